// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/session/AutosaveSettings.h"

#include "control/ZNCoreEditorControl.h"
#include "host/files/Places.h"

namespace {

const QString kOn = QStringLiteral("Autosave/on");
const QString kMinutes = QStringLiteral("Autosave/minutes");

} // namespace

AutosaveSettings AutosaveSettings::Load()
{
    const QSettings settings = places::Settings();
    AutosaveSettings loaded;
    loaded.on = settings.value(kOn, loaded.on).toBool();
    const int minutes = settings.value(kMinutes).toInt();
    if (minutes >= 1 && minutes <= kMostMinutes)
        loaded.minutes = minutes;
    return loaded;
}

void AutosaveSettings::Store() const
{
    QSettings settings = places::Settings();
    settings.setValue(kOn, on);
    settings.setValue(kMinutes, minutes);
}

void AutosaveSettings::ApplyTo(CZNCoreEditorControl& editor) const
{
    editor.setAutoSaveMinutes(minutes);
    editor.setAutoSaveOn(on);
}
