// SPDX-License-Identifier: GPL-3.0-or-later
// What profile and registry share: texts by key in a file of the user's, one line for each, in
// sections. The form is that of QSettings, which reads such files and has written those that are
// there; it takes a file that it cannot read for an empty one and forgets an error of its last
// write, so the files are read and written here.
#pragma once

#include <QString>

#include <optional>

namespace settingsfile {

// The path of a file below the user's folder for settings.
QString PathOf(const QString& relative);

// A name as one segment of a key. A slash would begin a group, and no segment may be empty.
QString Segment(const QString& name);

// Keys are segments with slashes between them. Nothing for a key that is not there, that holds
// something else than one text, or whose file cannot be read.
std::optional<QString> ReadValue(const QString& path, const QString& key);
bool CanRead(const QString& path); // true also if there is no file

// Each is on disk when it returns. What others write at the same time is kept.
enum class Outcome
{
    Done,
    NothingThere, // nothing had to be removed
    Failed,       // the file could not be read or written, and is as it was
};
Outcome WriteValue(const QString& path, const QString& key, const QString& value);
Outcome RemoveValue(const QString& path, const QString& key); // not the group of that name
Outcome RemoveGroup(const QString& path, const QString& group);

} // namespace settingsfile
