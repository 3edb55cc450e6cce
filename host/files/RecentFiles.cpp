// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/RecentFiles.h"

#include "host/files/Places.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

#include <algorithm>

// The file is its path without links, dots and doubled separators, as it was when it was opened.
struct RecentFiles::Entry
{
    QString path;
    QString file;
};

namespace {

const QString kList = QStringLiteral("RecentFiles");
const QString kPath = QStringLiteral("path");
const QString kFile = QStringLiteral("file");

QString FileBehind(const QString& path)
{
    const QString file = QFileInfo(path).canonicalFilePath();
    return file.isEmpty() ? path : file;
}

} // namespace

// Somebody may have edited the settings, so each entry has to look like one.
QList<RecentFiles::Entry> RecentFiles::Read() const
{
    m_settings.sync();
    QList<Entry> entries;
    const int count = std::clamp(m_settings.beginReadArray(kList), 0, kMost);
    for (int i = 0; i < count; ++i) {
        m_settings.setArrayIndex(i);
        const QString path = m_settings.value(kPath).toString();
        const bool isDouble = std::ranges::any_of(
            entries, [&path](const Entry& entry) { return entry.path == path; });
        if (places::CanBeFile(path) && !isDouble)
            entries.append({path, m_settings.value(kFile, path).toString()});
    }
    m_settings.endArray();
    return entries;
}

void RecentFiles::Write(const QList<Entry>& entries)
{
    m_settings.remove(kList);
    m_settings.beginWriteArray(kList, static_cast<int>(entries.size()));
    for (qsizetype i = 0; i < entries.size(); ++i) {
        m_settings.setArrayIndex(static_cast<int>(i));
        m_settings.setValue(kPath, entries[i].path);
        m_settings.setValue(kFile, entries[i].file);
    }
    m_settings.endArray();
    m_settings.sync();
}

QStringList RecentFiles::Paths() const
{
    QStringList paths;
    for (const Entry& entry : Read())
        paths << entry.path;
    return paths;
}

void RecentFiles::Add(const QString& path)
{
    const QString absolute = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    if (path.isEmpty() || !places::CanBeFile(absolute))
        return;
    const Entry added = {absolute, FileBehind(absolute)};
    QList<Entry> entries = Read();
    entries.removeIf([&added](const Entry& entry) {
        return entry.path == added.path || entry.file == added.file;
    });
    entries.prepend(added);
    if (entries.size() > kMost)
        entries.resize(kMost);
    Write(entries);
}

void RecentFiles::Remove(const QString& path)
{
    QList<Entry> entries = Read();
    if (entries.removeIf([&path](const Entry& entry) { return entry.path == path; }) > 0)
        Write(entries);
}

void RecentFiles::Clear()
{
    Write({});
}

QString RecentFileIsGoneQuestion(const QString& path)
{
    return QStringLiteral("“%1” is not there any more. It may have been moved, renamed or deleted, "
                          "or its drive may be away. Remove it from the list of recent files?")
        .arg(QDir::toNativeSeparators(path));
}

QStringList RecentFileNames(const QStringList& paths)
{
    // The last parts of a path, that many of them.
    const auto tail = [](const QString& path, int parts) {
        return path.section(u'/', -parts, -1, QString::SectionSkipEmpty);
    };
    QStringList names;
    for (const QString& path : paths) {
        int parts = 1;
        const auto isTaken = [&](const QString& other) {
            return other != path && tail(other, parts) == tail(path, parts);
        };
        while (parts < path.count(u'/') && std::ranges::any_of(paths, isTaken))
            ++parts;
        const QString name = tail(path, 1);
        const QString folder = tail(path, parts).chopped(name.size());
        names << (folder.isEmpty() ? name : QStringLiteral("%1 (%2)").arg(name, folder.chopped(1)));
    }
    return names;
}
