// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/CopyClaim.h"

#include <QFile>

#include <cerrno>
#include <cstdint>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr const char* kClaims = ".claims";

// FNV-1a. A place may lie far behind the end of the file, which stays empty; two names at one place
// would only keep a copy from being offered while the other is open.
off_t PlaceOf(const QByteArray& name)
{
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const char byte : name)
        hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001b3;
    return static_cast<off_t>(hash >> 2);
}

} // namespace

// Somebody may have cleared the folder; a lock on what is no longer there tells nobody.
bool CopyClaim::Holds(const QByteArray& path) const
{
    struct stat status;
    return m_file >= 0 && m_path == path && fstat(m_file, &status) == 0 && status.st_nlink > 0;
}

bool CopyClaim::Take(const QString& copyPath)
{
    const QByteArray path = QFile::encodeName(copyPath);
    if (Holds(path))
        return true;
    Release();
    const qsizetype name = path.lastIndexOf('/') + 1;
    const QByteArray claims = path.left(name) + kClaims;
    m_file = open(claims.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600);
    if (m_file < 0)
        return true;
    // Locks of open files, not of processes: two controls of one process exclude each other too.
    struct flock lock = {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    lock.l_start = PlaceOf(path.mid(name));
    lock.l_len = 1;
    if (fcntl(m_file, F_OFD_SETLK, &lock) == 0) {
        m_path = path;
        return true;
    }
    const bool taken = errno == EAGAIN || errno == EACCES;
    Release();
    return !taken;
}

void CopyClaim::Release()
{
    if (m_file >= 0)
        close(m_file);
    m_file = -1;
    m_path.clear();
}
