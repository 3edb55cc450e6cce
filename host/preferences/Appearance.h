// SPDX-License-Identifier: GPL-3.0-or-later
// Light, dark or of high contrast: the scheme that a person has chosen for the workbench. It
// colours the editors, and by the palette of the application everything around them.
#pragma once

#include <QPalette>
#include <QString>
#include <QStringList>

namespace appearance {

// In the order of the menu: as the desktop, then those that ship.
QStringList Names();
// Of scripts that are opened from here on; "Desktop" until another is chosen.
QString Current();
// The palette follows at once; without a scheme of the name, the desktop's.
void SetCurrent(const QString& name);

// The path is that of a file of settings. False if it could not be written.
QString Load(const QString& settings);
bool Store(const QString& settings, const QString& name);

} // namespace appearance
