// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/RecentFiles.h"

#include "host/files/Places.h"
#include "platform/system/SettingsFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

// The file is its path without links, dots and doubled separators, as it was when it was opened.
struct RecentFiles::Entry
{
    QString path;
    QString file;
};

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(RecentFiles)
};

const QString kList = QStringLiteral("RecentFiles");
const QString kSize = QStringLiteral("/size");
const QString kPath = QStringLiteral("path");
const QString kFile = QStringLiteral("file");

// Entries count from 1.
QString KeyOf(int entry, const QString& name)
{
    return QStringLiteral("%1/%2/%3").arg(kList).arg(entry).arg(name);
}

QString FileBehind(const QString& path)
{
    const QString file = QFileInfo(path).canonicalFilePath();
    return file.isEmpty() ? path : file;
}

} // namespace

// Somebody may have edited the settings, so each entry has to look like one.
QList<RecentFiles::Entry> RecentFiles::Read(const SettingsText& settings)
{
    QList<Entry> entries;
    const int count =
        std::clamp(settings.Value(kList + kSize).value_or(QString()).toInt(), 0, kMost);
    for (int i = 1; i <= count; ++i) {
        const QString path = settings.Value(KeyOf(i, kPath)).value_or(QString());
        const bool isDouble = std::ranges::any_of(
            entries, [&path](const Entry& entry) { return entry.path == path; });
        if (places::CanBeFile(path) && !isDouble)
            entries.append({path, settings.Value(KeyOf(i, kFile)).value_or(path)});
    }
    return entries;
}

// The list of the moment: another window may have changed it.
bool RecentFiles::Change(const std::function<bool(QList<Entry>&)>& change) const
{
    const auto outcome = settingsfile::Change(m_settings, [&change](SettingsText& settings) {
        QList<Entry> entries = Read(settings);
        if (!change(entries))
            return false;
        settings.RemoveGroup(kList);
        settings.SetValue(kList + kSize, QString::number(entries.size()));
        for (int i = 0; i < entries.size(); ++i) {
            settings.SetValue(KeyOf(i + 1, kPath), entries[i].path);
            settings.SetValue(KeyOf(i + 1, kFile), entries[i].file);
        }
        return true;
    });
    return outcome != settingsfile::Outcome::Failed;
}

QStringList RecentFiles::Paths() const
{
    QStringList paths;
    if (const std::optional<SettingsText> settings = settingsfile::Read(m_settings)) {
        for (const Entry& entry : Read(*settings))
            paths << entry.path;
    }
    return paths;
}

bool RecentFiles::Add(const QString& path)
{
    const QString absolute = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    if (path.isEmpty() || !places::CanBeFile(absolute))
        return true;
    const Entry added = {absolute, FileBehind(absolute)};
    return Change([&added](QList<Entry>& entries) {
        entries.removeIf([&added](const Entry& entry) {
            return entry.path == added.path || entry.file == added.file;
        });
        entries.prepend(added);
        if (entries.size() > kMost)
            entries.resize(kMost);
        return true;
    });
}

bool RecentFiles::Remove(const QString& path)
{
    return Change([&path](QList<Entry>& entries) {
        return entries.removeIf([&path](const Entry& entry) { return entry.path == path; }) > 0;
    });
}

bool RecentFiles::Clear()
{
    return Change([](QList<Entry>& entries) {
        entries.clear();
        return true;
    });
}

QString RecentFileIsGoneQuestion(const QString& path)
{
    return Texts::tr("“%1” is not there any more. It may have been moved, renamed or deleted, "
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
