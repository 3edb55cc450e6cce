// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/AutosaveCopies.h"

#include "control/CopyClaim.h"
#include "platform/base/Units.h"
#include "platform/system/Profile.h"
#include "platform/system/SpecialFolders.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QStringList>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace autosave {

namespace {

const QString kSection = QStringLiteral("Backup");
const QString kOrigins = QStringLiteral("BackupOrigins");

// Also a link to nowhere, which is offered like every copy that cannot be read.
bool IsThere(const QString& path)
{
    struct stat status;
    return lstat(QFile::encodeName(path).constData(), &status) == 0;
}

// What cannot be asked may hold a text.
bool IsUnwritten(const QString& path)
{
    struct stat status;
    return lstat(QFile::encodeName(path).constData(), &status) == 0 && S_ISREG(status.st_mode) &&
           status.st_size == 0;
}

QString NameOf(const QString& path)
{
    return path.mid(path.lastIndexOf(u'/') + 1);
}

QString FolderOf(const QString& path)
{
    return path.left(path.lastIndexOf(u'/') + 1);
}

const QString kPrefix = QStringLiteral("~ZN");
const QString kPartEnding = QStringLiteral(".tmp");

// The name of the copy that a part is written for: a dot is in front of it, and a dot, a number and
// the ending are behind it.
QString CopyOfPart(const QString& name)
{
    return name.mid(1, name.chopped(kPartEnding.size()).lastIndexOf(u'.') - 1);
}

} // namespace

QString BackupFolder(bool create)
{
    QString folder;
    if (!znutils::CSpecialFolders::GetAppAppDataPath(folder, create, nullptr))
        return QString();
    folder += u'/' + kSection;
    // Fails mostly because it is there. If it does not, no copy can be made, which tells enough.
    if (create)
        mkdir(QFile::encodeName(folder).constData(), 0700);
    return folder + u'/';
}

QString MakeCopyFile(const QString& folder)
{
    return znutils::CSpecialFolders::GetTempFile(
        Units(kPrefix), folder.isEmpty() ? nullptr : Units(folder), nullptr);
}

void WriteNote(const QString& copyPath, const QString& documentPath)
{
    if (NoteOf(copyPath) != documentPath)
        ApplicationProfile().WriteString(kSection, NameOf(copyPath), Units(documentPath));
}

void RemoveNote(const QString& copyPath)
{
    ApplicationProfile().WriteString(kSection, NameOf(copyPath), nullptr);
}

void RemoveOrigin(const QString& copyPath)
{
    if (OriginOf(copyPath))
        ApplicationProfile().WriteString(kOrigins, NameOf(copyPath), nullptr);
}

QString NoteOf(const QString& copyPath)
{
    return ApplicationProfile().GetString(kSection, NameOf(copyPath), QString());
}

void WriteOrigin(const QString& copyPath, const Origin& origin)
{
    if (OriginOf(copyPath) == origin)
        return;
    const FileStamp& stamp = origin.stamp;
    QString told =
        QStringLiteral("%1 %2 %3").arg(stamp.size).arg(stamp.seconds).arg(stamp.nanoseconds);
    if (origin.codePage != 0)
        told += QStringLiteral(" %1").arg(origin.codePage);
    ApplicationProfile().WriteString(kOrigins, NameOf(copyPath), Units(told));
}

std::optional<Origin> OriginOf(const QString& copyPath)
{
    const QStringList numbers =
        ApplicationProfile().GetString(kOrigins, NameOf(copyPath), QString()).split(u' ');
    if (numbers.size() != 3 && numbers.size() != 4)
        return std::nullopt;
    return Origin{{numbers[0].toLongLong(), numbers[1].toLongLong(), numbers[2].toLongLong()},
                  numbers.value(3).toInt()};
}

void EmptyCopy(const QString& copyPath)
{
    constexpr int kFlags = O_WRONLY | O_TRUNC | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC | O_NOCTTY;
    const int file = open(QFile::encodeName(copyPath).constData(), kFlags);
    if (file >= 0)
        close(file);
}

void RemoveCopy(const QString& copyPath)
{
    QFile::remove(copyPath);
    const QString beside = u'.' + NameOf(copyPath) + u'.';
    QDirIterator files(FolderOf(copyPath), QDir::Files | QDir::Hidden);
    while (files.hasNext()) {
        const QString path = files.next();
        if (files.fileName().startsWith(beside) && path.endsWith(kPartEnding))
            QFile::remove(path);
    }
}

QString FindCopy(const QString& documentPath,
                 const std::function<bool(const QString& copyPath)>& take)
{
    const QString folder = documentPath.isEmpty() ? QString() : BackupFolder(false);
    if (folder.isEmpty())
        return QString();
    QDirIterator entries(folder,
                         QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        const QString name = entries.fileName();
        // Whoever had it may have taken it away before it was claimed here.
        if (!entries.fileInfo().isDir() && NoteOf(folder + name) == documentPath &&
            take(folder + name) && IsThere(folder + name))
            return name;
    }
    return QString();
}

void RemoveUnwritten()
{
    const QString folder = BackupFolder(false);
    if (folder.isEmpty())
        return;
    const QStringList patterns = {kPrefix + u'*', u'.' + kPrefix + u'*' + kPartEnding};
    const QFileInfoList files =
        QDir(folder).entryInfoList(patterns, QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QFileInfo& file : files) {
        const bool isPart = file.fileName().startsWith(u'.');
        if (!isPart && !IsUnwritten(file.filePath()))
            continue;
        const QString copy = folder + (isPart ? CopyOfPart(file.fileName()) : file.fileName());
        CopyClaim claim;
        if (!claim.Take(copy) || !claim.IsHeld())
            continue;
        if (isPart) {
            QFile::remove(file.filePath());
        } else {
            RemoveNote(copy);
            RemoveOrigin(copy);
            RemoveCopy(copy);
        }
    }
}

} // namespace autosave
