// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/session/AutosaveSettings.h"

#include "control/ZNCoreEditorControl.h"
#include "host/files/Places.h"
#include "platform/system/SettingsFile.h"

namespace {

const QString kOn = QStringLiteral("Autosave/on");
const QString kMinutes = QStringLiteral("Autosave/minutes");

} // namespace

AutosaveSettings AutosaveSettings::Load()
{
    AutosaveSettings loaded;
    const std::optional<SettingsText> settings = settingsfile::Read(places::SettingsPath());
    if (!settings)
        return loaded;
    if (const std::optional<QString> on = settings->Value(kOn))
        loaded.on = *on != QLatin1String("false") && *on != QLatin1String("0") && !on->isEmpty();
    const int minutes = settings->Value(kMinutes).value_or(QString()).toInt();
    if (minutes >= 1 && minutes <= kMostMinutes)
        loaded.minutes = minutes;
    return loaded;
}

bool AutosaveSettings::Store() const
{
    const auto outcome = settingsfile::Change(places::SettingsPath(), [this](SettingsText& text) {
        text.SetValue(kOn, on ? QStringLiteral("true") : QStringLiteral("false"));
        text.SetValue(kMinutes, QString::number(minutes));
        return true;
    });
    return outcome != settingsfile::Outcome::Failed;
}

void AutosaveSettings::ApplyTo(CZNCoreEditorControl& editor) const
{
    editor.setAutoSaveMinutes(minutes);
    editor.setAutoSaveOn(on);
}
