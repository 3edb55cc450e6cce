// SPDX-License-Identifier: GPL-3.0-or-later
// Where the settings of a user are kept, beside those that were installed with the library.
#pragma once

#include <QString>

// A path below the user's folder, which may not exist. Empty if the user has none.
QString UserSettingsPath(const QString& relative);
