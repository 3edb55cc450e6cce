// SPDX-License-Identifier: GPL-3.0-or-later
#include "common/Translations.h"

#include <QCoreApplication>
#include <QLocale>
#include <QRegularExpression>
#include <QTranslator>

#include <algorithm>

namespace zncoreeditor {

namespace {

const QString kEnglish = QStringLiteral("en");

// Traditional Chinese is not simplified Chinese: where the script differs, English is read better.
QString TextsFor(const QLocale& wanted)
{
    const QStringList languages = GetUiLanguages();
    const auto found = std::ranges::find_if(languages, [&](const QString& name) {
        const QLocale own(name);
        return own.language() == wanted.language() && own.script() == wanted.script();
    });
    return found == languages.end() ? QString() : *found;
}

// The first that there are texts in, of those that a person reads, best first.
QString LanguageOfEnvironment()
{
    for (const QString& wanted : QLocale::system().uiLanguages()) {
        if (const QString name = TextsFor(QLocale(wanted)); !name.isEmpty())
            return name;
    }
    return kEnglish;
}

QString& Language()
{
    static QString language = LanguageOfEnvironment();
    return language;
}

void InstallTranslator()
{
    static QTranslator* installed = nullptr;
    QCoreApplication* application = QCoreApplication::instance();
    if (!application)
        return;
    delete installed; // which takes it out of the application
    installed = nullptr;
    if (Language() == kEnglish)
        return;
    installed = new QTranslator;
    if (installed->load(QStringLiteral(":/zncoreeditor/i18n/zncoreeditor_") + Language()))
        QCoreApplication::installTranslator(installed);
}

} // namespace

QStringList GetUiLanguages()
{
    return {kEnglish,
            QStringLiteral("de"),
            QStringLiteral("fr"),
            QStringLiteral("es"),
            QStringLiteral("ja"),
            QStringLiteral("zh_CN")};
}

QString GetUiLanguage()
{
    return Language();
}

void SetUiLanguage(const QString& name)
{
    const QString known = name.isEmpty() ? LanguageOfEnvironment() : TextsFor(QLocale(name));
    Language() = known.isEmpty() ? kEnglish : known;
    InstallTranslator();
}

QString WithoutMnemonic(QString text)
{
    static const QRegularExpression behind(QStringLiteral("\\s*\\(&\\w\\)"));
    return text.remove(behind).remove(u'&');
}

} // namespace zncoreeditor

namespace {

void TranslateApplication()
{
    zncoreeditor::InstallTranslator();
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(TranslateApplication)
