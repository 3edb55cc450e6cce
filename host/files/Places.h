// SPDX-License-Identifier: GPL-3.0-or-later
// Where the workbench keeps what it remembers of a user.
#pragma once

#include <QString>

namespace places {

// Choices and lists, a file of settings (platform/system/SettingsFile) in the user's folder for
// settings.
QString SettingsPath();

// A file or folder of that name in the user's folder for data of the workbench. The folder is
// made. Empty if there is none.
QString DataPath(const QString& name);

// Whether what was read from one of these can name a file at all: absolute, of a length that a
// system takes, without a NUL or half a character.
bool CanBeFile(const QString& path);

} // namespace places
