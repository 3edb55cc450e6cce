// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures of the dialog of the preferences.
#pragma once

#include <QDir>
#include <QString>

// Each kind of page and the palette, as NAME-prefs-....png.
void PicturePreferences(const QDir& folder, const QString& name);
