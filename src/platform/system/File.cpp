// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/File.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr mode_t kWritable = S_IWUSR | S_IWGRP | S_IWOTH;

const IFileFacts*& HostFacts()
{
    static const IFileFacts* facts = nullptr;
    return facts;
}

bool IsReadOnly(const QByteArray& path, const struct stat& status)
{
    return !(status.st_mode & kWritable) || access(path.constData(), W_OK) != 0;
}

// A writer that denies nothing takes no lock, so that it is not in the way of one that reads.
int LockFor(UINT flags)
{
    switch (flags & 0x70) {
    case CFile::shareExclusive:
    case CFile::shareDenyRead:
        return LOCK_EX;
    case CFile::shareDenyWrite:
        return flags & (CFile::modeWrite | CFile::modeReadWrite) ? LOCK_EX : LOCK_SH;
    default:
        return 0;
    }
}

int AccessFor(UINT flags)
{
    if (flags & CFile::modeReadWrite)
        return O_RDWR;
    return flags & CFile::modeWrite ? O_WRONLY : O_RDONLY;
}

// 0, or the number of the error.
int CheckAndLock(int descriptor, UINT flags)
{
    struct stat status;
    if (fstat(descriptor, &status) != 0)
        return errno;
    if (!S_ISREG(status.st_mode))
        return S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
    const int lock = LockFor(flags);
    if (lock && flock(descriptor, lock | LOCK_NB) != 0 && errno == EWOULDBLOCK)
        return EWOULDBLOCK;
    if ((flags & CFile::modeCreate) && ftruncate(descriptor, 0) != 0)
        return errno;
    return 0;
}

} // namespace

IFileFacts::~IFileFacts() = default;

bool IFileFacts::GetStatus(const QString& path, CFileStatus& status) const
{
    const QByteArray name = QFile::encodeName(path);
    struct stat found;
    if (stat(name.constData(), &found) != 0)
        return false;
    status.m_mtime = found.st_mtime;
    status.m_atime = found.st_atime;
    status.m_size = found.st_size;
    status.m_attribute = IsReadOnly(name, found) ? CFileStatus::readOnly : 0;
    return true;
}

void SetFileFacts(const IFileFacts* facts)
{
    HostFacts() = facts;
}

CFile::~CFile()
{
    Abort();
}

bool CFile::Open(const QString& path, UINT flags, CFileException* error)
{
    Abort();
    m_path = path;
    // A lock is taken before a file is emptied. Without O_NONBLOCK a pipe would wait for its
    // writer.
    const int create = flags & modeCreate ? O_CREAT : 0;
    m_descriptor = open(QFile::encodeName(path).constData(),
                        AccessFor(flags) | create | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, 0666);
    const int failure = m_descriptor < 0 ? errno : CheckAndLock(m_descriptor, flags);
    if (failure == 0)
        return true;
    Abort();
    if (error)
        *error = CFileException::FromErrno(failure, path);
    return false;
}

UINT CFile::Read(void* buffer, UINT count)
{
    UINT got = 0;
    while (got < count) {
        const ssize_t bytes = read(m_descriptor, static_cast<char*>(buffer) + got, count - got);
        if (bytes < 0 && errno == EINTR)
            continue;
        if (bytes < 0)
            throw CFileException::FromErrno(errno, m_path);
        if (bytes == 0)
            break;
        got += static_cast<UINT>(bytes);
    }
    return got;
}

void CFile::Write(const void* buffer, UINT count)
{
    UINT put = 0;
    while (put < count) {
        const ssize_t bytes =
            write(m_descriptor, static_cast<const char*>(buffer) + put, count - put);
        if (bytes < 0 && errno == EINTR)
            continue;
        if (bytes <= 0)
            throw CFileException::FromErrno(bytes < 0 ? errno : EIO, m_path);
        put += static_cast<UINT>(bytes);
    }
}

std::int64_t CFile::GetLength() const
{
    struct stat status;
    return fstat(m_descriptor, &status) == 0 ? status.st_size : 0;
}

void CFile::Close()
{
    if (m_descriptor >= 0 && close(std::exchange(m_descriptor, -1)) != 0)
        throw CFileException::FromErrno(errno, m_path);
}

void CFile::Abort()
{
    if (m_descriptor >= 0)
        close(std::exchange(m_descriptor, -1));
}

bool CFile::GetStatus(const QString& path, CFileStatus& status)
{
    static const IFileFacts fileSystem;
    return (HostFacts() ? *HostFacts() : fileSystem).GetStatus(path, status);
}

void CFile::Remove(const QString& path)
{
    if (unlink(QFile::encodeName(path).constData()) != 0)
        throw CFileException::FromErrno(errno, path);
}

std::uint32_t GetFileAttributesW(const QString& path)
{
    CFileStatus status;
    return CFile::GetStatus(path, status) ? status.m_attribute : INVALID_FILE_ATTRIBUTES;
}

bool SetFileAttributesW(const QString& path, std::uint32_t attributes)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat status;
    if (stat(name.constData(), &status) != 0)
        return false;
    const mode_t mode = attributes & FILE_ATTRIBUTE_READONLY ? status.st_mode & ~kWritable
                                                             : status.st_mode | S_IWUSR;
    return chmod(name.constData(), mode & 07777) == 0;
}
