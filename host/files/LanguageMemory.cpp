// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/LanguageMemory.h"

#include "host/files/Places.h"
#include "platform/system/SettingsFile.h"

#include <QFileInfo>
#include <QStringList>

#include <algorithm>

namespace languages {

namespace {

const QString kChosen = QStringLiteral("ChosenLanguages");
const QString kDefault = QStringLiteral("DefaultLanguage");

// A line for each: the language, a tab and the path, the newest first.
QStringList Entries(const QString& value)
{
    return value.split(u'\n', Qt::SkipEmptyParts);
}

QStringList Read()
{
    return Entries(settingsfile::ReadValue(places::SettingsPath(), kChosen).value_or(QString()));
}

std::pair<QString, QString> Parts(const QString& entry)
{
    const qsizetype at = entry.indexOf(u'\t');
    return {entry.left(at), entry.mid(at + 1)};
}

} // namespace

QString ChosenFor(const QString& path)
{
    for (const QString& entry : Read()) {
        if (const auto [language, file] = Parts(entry); file == path)
            return language;
    }
    return {};
}

QString ChosenInFolder(const QString& path)
{
    const QString folder = QFileInfo(path).absolutePath();
    for (const QString& entry : Read()) {
        if (const auto [language, file] = Parts(entry); QFileInfo(file).absolutePath() == folder)
            return language;
    }
    return {};
}

void Remember(const QString& path, const QString& language)
{
    constexpr qsizetype kMost = 200;
    if (path.contains(u'\n'))
        return;
    settingsfile::Change(places::SettingsPath(), [&](SettingsText& settings) {
        QStringList entries = Entries(settings.Value(kChosen).value_or(QString()));
        entries.removeIf([&](const QString& entry) { return Parts(entry).second == path; });
        entries.prepend(language + u'\t' + path);
        settings.SetValue(kChosen, entries.mid(0, kMost).join(u'\n'));
        return true;
    });
}

QString Default()
{
    return settingsfile::ReadValue(places::SettingsPath(), kDefault).value_or(QString());
}

void SetDefault(const QString& language)
{
    settingsfile::WriteValue(places::SettingsPath(), kDefault, language);
}

} // namespace languages
