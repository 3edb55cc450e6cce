// SPDX-License-Identifier: GPL-3.0-or-later
// The files that were opened last, as the File menu lists them. Kept in the user's settings, which
// several windows share: each call looks at what the others have written.
#pragma once

#include <QString>
#include <QStringList>

class QSettings;

class RecentFiles
{
public:
    static constexpr int kMost = 10;

    // The settings stay the caller's and outlive the list.
    explicit RecentFiles(QSettings& settings) : m_settings(settings) {}

    // Absolute paths, the last opened first. No file is looked at, since one on a drive that is
    // away would stall the menu.
    QStringList Paths() const;

    // Puts the path at the top. The same file under another spelling, through a link as well,
    // leaves the list.
    void Add(const QString& path);
    void Remove(const QString& path); // as it stands in the list
    void Clear();

private:
    struct Entry;
    QList<Entry> Read() const;
    void Write(const QList<Entry>& entries);

    QSettings& m_settings;
};

// What is said of a listed file that is gone, and the offer to take it off the list.
QString RecentFileIsGoneQuestion(const QString& path);

// The names of a menu for the paths, one each: the file's name, with as much of its folder behind
// it as tells it from the others. An "&" stands as it is.
QStringList RecentFileNames(const QStringList& paths);
