// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/file/FileCopies.h"

#include <QList>

#include <array>
#include <cerrno>
#include <cstdlib>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

constexpr std::size_t kBlock = 64 * 1024;

class Descriptor
{
public:
    explicit Descriptor(int number) : m_number(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor()
    {
        const int reason = errno;
        if (m_number >= 0)
            close(m_number);
        errno = reason;
    }
    int Number() const { return m_number; }

private:
    int m_number;
};

bool WriteAll(int file, const char* bytes, std::size_t count, off_t at)
{
    while (count > 0) {
        const ssize_t put = pwrite(file, bytes, count, at);
        if (put < 0 && errno == EINTR)
            continue;
        if (put <= 0) {
            errno = put == 0 ? ENOSPC : errno;
            return false;
        }
        bytes += put;
        at += put;
        count -= static_cast<std::size_t>(put);
    }
    return true;
}

bool CopyBytes(int from, int to, off_t size)
{
    std::array<char, kBlock> block;
    for (off_t at = 0; at < size;) {
        const ssize_t got = pread(from, block.data(), block.size(), at);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0) {
            errno = got == 0 ? EIO : errno;
            return false;
        }
        if (!WriteAll(to, block.data(), static_cast<std::size_t>(got), at))
            return false;
        at += got;
    }
    return true;
}

// A file system that has no attributes has none to lose.
bool CopyAttribute(int from, int to, const char* name)
{
    const ssize_t size = fgetxattr(from, name, nullptr, 0);
    if (size < 0)
        return errno == ENODATA || errno == ENOTSUP;
    QByteArray value(size, '\0');
    const ssize_t got = fgetxattr(from, name, value.data(), static_cast<std::size_t>(size));
    return got == size &&
           fsetxattr(to, name, value.constData(), static_cast<std::size_t>(size), 0) == 0;
}

bool CopyAttributes(int from, int to)
{
    const ssize_t size = flistxattr(from, nullptr, 0);
    if (size < 0)
        return errno == ENOTSUP;
    QByteArray names(size, '\0');
    if (flistxattr(from, names.data(), static_cast<std::size_t>(size)) != size)
        return false;
    for (const QByteArray& name : names.split('\0')) {
        if ((name.startsWith("user.") || name == "system.posix_acl_access") &&
            !CopyAttribute(from, to, name.constData()))
            return false;
    }
    return true;
}

// A file system that cannot flush says so, which is no loss of text.
bool Flush(int file)
{
    return fsync(file) == 0 || errno == EINVAL || errno == ENOTSUP;
}

} // namespace

// A user who may write a file but does not own it cannot give the copy away; then it keeps the
// group if it can.
bool CopyPermissions(int from, int to)
{
    struct stat status;
    if (fstat(from, &status) != 0)
        return false;
    if (fchown(to, status.st_uid, status.st_gid) != 0 &&
        fchown(to, static_cast<uid_t>(-1), status.st_gid) != 0)
        errno = 0;
    return CopyAttributes(from, to) && fchmod(to, status.st_mode & 07777) == 0;
}

int OpenUnnamed(const QByteArray& folder)
{
    constexpr int kFlags = O_RDWR | O_CLOEXEC;
    const char* const given = std::getenv("TMPDIR");
    const QByteArray temporary = given && *given ? QByteArray(given) : QByteArray("/tmp");
    for (const QByteArray& place : {folder, temporary}) {
        const int file = open(place.constData(), kFlags | O_TMPFILE, 0600);
        if (file >= 0)
            return file;
    }
    QByteArray name = temporary + "/znXXXXXX";
    const int file = mkostemp(name.data(), O_CLOEXEC);
    if (file >= 0)
        unlink(name.constData());
    return file;
}

// The room is taken, and what stands there put aside, before the first byte changes.
bool Overwrite(int target, int source, const QByteArray& folder)
{
    struct stat before;
    struct stat after;
    if (fstat(target, &before) != 0 || fstat(source, &after) != 0)
        return false;
    const Descriptor aside(OpenUnnamed(folder));
    if (aside.Number() < 0 || !CopyBytes(target, aside.Number(), before.st_size))
        return false;
    int reason = 0;
    if (after.st_size > before.st_size)
        reason = posix_fallocate(target, 0, after.st_size);
    if (reason == 0 && CopyBytes(source, target, after.st_size) &&
        ftruncate(target, after.st_size) == 0 && Flush(target))
        return true;
    reason = reason ? reason : errno;
    if (CopyBytes(aside.Number(), target, before.st_size) && ftruncate(target, before.st_size) == 0)
        Flush(target);
    errno = reason;
    return false;
}
