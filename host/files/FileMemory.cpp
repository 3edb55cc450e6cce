// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/FileMemory.h"

#include "host/files/Places.h"
#include "platform/system/SettingsFile.h"

#include <QFileInfo>
#include <QStringList>

#include <utility>

namespace {

// A line for each: the choice, a tab and the path, the newest first.
QStringList Entries(const QString& value)
{
    return value.split(u'\n', Qt::SkipEmptyParts);
}

std::pair<QString, QString> Parts(const QString& entry)
{
    const qsizetype at = entry.indexOf(u'\t');
    return {entry.left(at), entry.mid(at + 1)};
}

} // namespace

QStringList FileMemory::Read() const
{
    return Entries(settingsfile::ReadValue(places::SettingsPath(), m_name).value_or(QString()));
}

QString FileMemory::Of(const QString& path) const
{
    for (const QString& entry : Read()) {
        if (const auto [choice, file] = Parts(entry); file == path)
            return choice;
    }
    return {};
}

QString FileMemory::InFolder(const QString& path) const
{
    const QString folder = QFileInfo(path).absolutePath();
    for (const QString& entry : Read()) {
        if (const auto [choice, file] = Parts(entry); QFileInfo(file).absolutePath() == folder)
            return choice;
    }
    return {};
}

void FileMemory::Remember(const QString& path, const QString& choice) const
{
    constexpr qsizetype kMost = 200;
    if (path.contains(u'\n'))
        return;
    settingsfile::Change(places::SettingsPath(), [&](SettingsText& settings) {
        QStringList entries = Entries(settings.Value(m_name).value_or(QString()));
        entries.removeIf([&](const QString& entry) { return Parts(entry).second == path; });
        entries.prepend(choice + u'\t' + path);
        settings.SetValue(m_name, entries.mid(0, kMost).join(u'\n'));
        return true;
    });
}
