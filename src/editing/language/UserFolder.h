// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// Where the settings of a user are kept, beside those that were installed with the library.
#pragma once

#include "common/Export.h"

#include <QString>

/// A path below the user's folder, which may not exist. Empty if the user has none.
ZN_API QString UserSettingsPath(const QString& relative);
