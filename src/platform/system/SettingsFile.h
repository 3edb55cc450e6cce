// What profile and registry share: a QSettings file of the user's, and names that it takes as they
// are. QSettings locks the file while it writes and merges what others have written since.
#pragma once

#include <QSettings>
#include <QString>

namespace settingsfile {

// The path of a file below the user's folder for settings.
QString PathOf(const QString& relative);

// A name as one segment of a key. A slash would begin a group, and no segment may be empty.
QString Segment(const QString& name);

// A value is under the key; removing it leaves the values of the group with the same name, which
// QSettings would take along. False if there was no value.
bool RemoveValue(QSettings& settings, const QString& key);
// The reverse: the group goes and a value under the same key stays. False if there was no group.
bool RemoveGroup(QSettings& settings, const QString& key);

// Held while a file is written, one process after the other. QSettings has a lock of its own, a
// file with the writer's number in it; a process that is killed before it has put its number there
// would make the next writer wait for 30 seconds. Under this guard such a file is a dead one's.
class WriteGuard
{
public:
    explicit WriteGuard(const QString& path);
    WriteGuard(const WriteGuard&) = delete;
    WriteGuard& operator=(const WriteGuard&) = delete;
    ~WriteGuard();

private:
    int m_file = -1;
};

// Writes at once, so that a process that dies later has lost nothing. False if it cannot be done.
bool Flush(QSettings& settings);

} // namespace settingsfile
