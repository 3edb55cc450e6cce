// SPDX-License-Identifier: GPL-3.0-or-later
// The files that were opened last, as the File menu lists them. Kept in the user's settings, which
// several windows share: each call looks at what the others have written.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <utility>

class SettingsText;

class RecentFiles
{
public:
    static constexpr int kMost = 10;

    // The path of a file of settings.
    explicit RecentFiles(QString settings) : m_settings(std::move(settings)) {}

    // Absolute paths, the last opened first. No file is looked at, since one on a drive that is
    // away would stall the menu.
    QStringList Paths() const;

    // Puts the path at the top. The same file under another spelling, through a link as well,
    // leaves the list. These give false if the settings cannot be read or written; the list is as
    // it was then.
    bool Add(const QString& path);
    bool Remove(const QString& path); // as it stands in the list
    bool Clear();

private:
    struct Entry;
    static QList<Entry> Read(const SettingsText& settings);
    bool Change(const std::function<bool(QList<Entry>&)>& change) const;

    QString m_settings;
};

// What is said of a listed file that is gone, and the offer to take it off the list.
QString RecentFileIsGoneQuestion(const QString& path);

// The names of a menu for the paths, one each: the file's name, with as much of its folder behind
// it as tells it from the others. An "&" stands as it is.
QStringList RecentFileNames(const QStringList& paths);
