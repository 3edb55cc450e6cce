// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// What profile and registry share: texts by key in a file of the user's, one line for each, in
/// sections. The form is that of QSettings, which reads such files and has written those that are
/// there; it takes a file that it cannot read for an empty one and forgets an error of its last
/// write, so the files are read and written here.
#pragma once

#include "common/Export.h"
#include "platform/system/SettingsText.h"

#include <QString>

#include <functional>
#include <optional>

/// Texts by key, in files.
namespace settingsfile {

/// The path of a file below the user's folder for settings.
ZN_API QString PathOf(const QString& relative);

/// A name as one segment of a key. A slash would begin a group, and no segment may be empty.
ZN_API QString Segment(const QString& name);

/// Keys are segments with slashes between them. Nothing for a key that is not there, that holds
/// something else than one text, or whose file cannot be read.
ZN_API std::optional<QString> ReadValue(const QString& path, const QString& key);
ZN_API bool CanRead(const QString& path); ///< true also if there is no file

/// All of it. Nothing if there is a file that cannot be read; an empty text if there is none.
ZN_API std::optional<SettingsText> Read(const QString& path);

/// Each is on disk when it returns. What others write at the same time is kept.
enum class Outcome
{
    Done,         ///< it is on disk
    NothingThere, ///< nothing had to be removed
    Failed,       ///< the file could not be read or written, and is as it was
};
/// The change gives false if nothing has to be written.
ZN_API Outcome Change(const QString& path, const std::function<bool(SettingsText&)>& change);
/// One value.
ZN_API Outcome WriteValue(const QString& path, const QString& key, const QString& value);
ZN_API Outcome RemoveValue(const QString& path, const QString& key); ///< not the group of that name
ZN_API Outcome RemoveGroup(const QString& path, const QString& group); ///< all of it

} // namespace settingsfile
