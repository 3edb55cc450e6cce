// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The files in which a user's settings stand, taken out, brought in and given up as a whole. What
/// is in memory is the caller's to read anew.
#pragma once

#include "common/Export.h"

#include <QString>

/// All settings of a user at once.
namespace usersettings {

/// What became of it.
enum class Result
{
    Done,       ///< all of it
    NotRead,    ///< the file cannot be read
    NoSettings, ///< it is none that Export wrote
    NotWritten, ///< everything is as it was
};

/// One file with all that differs from what was installed. It is replaced whole.
ZN_API Result Export(const QString& path);
/// The settings become those of the file, with none beside them; all of them or none.
ZN_API Result Import(const QString& path);

/// As installed: one language, by the name of its file without a folder, or everything. False if
/// something could not be removed.
ZN_API bool ResetLanguage(const QString& languageFile);
ZN_API bool ResetAll(); ///< the same for everything

} // namespace usersettings
