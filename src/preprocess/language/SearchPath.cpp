// SPDX-License-Identifier: GPL-3.0-or-later
#include "preprocess/language/SearchPath.h"

#include <QFile>

#include <cerrno>
#include <climits>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

int WhyNotReadable(const struct stat& status)
{
    if (S_ISDIR(status.st_mode))
        return EISDIR;
    if (!S_ISREG(status.st_mode))
        return EINVAL;
    return status.st_size > INT_MAX ? EFBIG : 0;
}

} // namespace

QStringList FoldersOf(const QString& list)
{
    QStringList folders;
    for (const QStringView entry : QStringView(list).split(u';')) {
        if (const QStringView folder = entry.trimmed(); !folder.isEmpty())
            folders << folder.toString();
    }
    return folders;
}

QString FileIn(const QString& folder, const QString& name)
{
    QString path = folder;
    if (!path.endsWith(u'/') && !path.endsWith(u'\\'))
        path += u'/';
    path += name;
    return path.replace(u'\\', u'/');
}

int OpenScript(const QString& path, int& reason)
{
    // A name with a NUL would be cut there by the system.
    reason = ENOENT;
    if (path.contains(QChar(u'\0')))
        return -1;
    // Without O_NONBLOCK the opening of a pipe waits for its writer.
    const int file =
        open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
    struct stat status;
    reason = file < 0 || fstat(file, &status) != 0 ? errno : WhyNotReadable(status);
    if (reason == 0)
        return file;
    if (file >= 0)
        close(file);
    return -1;
}
