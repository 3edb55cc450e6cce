// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/translations/Translations.h"

#include "common/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QPointer>
#include <QTranslator>

#include <vector>

void InstallTranslations()
{
    // "C" orders names by their codes alone, so that "10" comes before "2".
    if (QLocale().language() == QLocale::C)
        QLocale::setDefault(QLocale(QLocale::English, QLocale::World));
    static std::vector<QPointer<QTranslator>> installed; // the application's
    for (const QPointer<QTranslator>& translator : installed)
        delete translator.data(); // which takes it out of the application
    installed.clear();
    const QString language = zncoreeditor::GetUiLanguage();
    const QString catalogues[] = {
        QLibraryInfo::path(QLibraryInfo::TranslationsPath) + QStringLiteral("/qtbase_") + language,
        QStringLiteral(":/znworkbench/i18n/znworkbench_") + language,
    };
    for (const QString& catalogue : catalogues) {
        QTranslator* translator =
            installed.emplace_back(new QTranslator(QCoreApplication::instance()));
        if (translator->load(catalogue))
            QCoreApplication::installTranslator(translator);
    }
}
