// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/LanguageMemory.h"

#include "host/files/FileMemory.h"
#include "host/files/Places.h"
#include "platform/system/SettingsFile.h"

namespace languages {

namespace {

const FileMemory kChosen(QStringLiteral("ChosenLanguages"));
const QString kDefault = QStringLiteral("DefaultLanguage");

} // namespace

QString ChosenFor(const QString& path)
{
    return kChosen.Of(path);
}

QString ChosenInFolder(const QString& path)
{
    return kChosen.InFolder(path);
}

void Remember(const QString& path, const QString& language)
{
    kChosen.Remember(path, language);
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
