// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/file/TargetFile.h"

#include "platform/file/FileCopies.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <random>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::size_t kBufferSize = 64 * 1024;
constexpr int kOpenFlags = O_CLOEXEC | O_NOCTTY;
constexpr const char* kHiddenMark = ".zn"; // between the target's name and a number
constexpr const char* kHiddenEnding = ".tmp";

// Waiting for the reader of a pipe would hang the window; without one there is nobody to write to.
int OpenWithoutWaiting(const QByteArray& path, int flags)
{
    const int descriptor = open(path.constData(), flags | kOpenFlags | O_NONBLOCK, 0666);
    if (descriptor >= 0)
        fcntl(descriptor, F_SETFL, fcntl(descriptor, F_GETFL) & ~O_NONBLOCK);
    return descriptor;
}

QByteArray FolderOf(const QByteArray& path)
{
    const qsizetype slash = path.lastIndexOf('/');
    return slash < 0 ? QByteArray("./") : path.left(slash + 1);
}

// The path behind a chain of links, which may end at nothing. Empty if the chain does not end.
QByteArray FollowLinks(QByteArray path)
{
    constexpr int kMostLinks = 40; // the system's own limit
    for (int i = 0; i <= kMostLinks; ++i) {
        std::array<char, PATH_MAX> link;
        const ssize_t length = readlink(path.constData(), link.data(), link.size());
        if (length < 0)
            return path;
        const QByteArray target(link.data(), length);
        path = target.startsWith('/') ? target : FolderOf(path) + target;
    }
    errno = ELOOP;
    return QByteArray();
}

// A dot and as much of the target's name as leaves room for the rest, in whole characters: some
// file systems take nothing but UTF-8.
QByteArray HiddenStem(const QByteArray& path)
{
    constexpr qsizetype kLongestStem = 200; // bytes of a name, of 255
    constexpr qsizetype kBesideStem = 1 + 3 + 13 + 4 + 1;
    const QByteArray folder = FolderOf(path);
    const QByteArray name = path.mid(path.lastIndexOf('/') + 1);
    const qsizetype room = PATH_MAX - folder.size() - kBesideStem;
    qsizetype stem = std::clamp<qsizetype>(room, 0, std::min(kLongestStem, name.size()));
    while (stem > 0 && stem < name.size() && (name[stem] & 0xC0) == 0x80)
        --stem;
    return '.' + name.left(stem) + kHiddenMark;
}

QByteArray HiddenName(const QByteArray& path)
{
    static std::mt19937_64 random{std::random_device{}()};
    return FolderOf(path) + HiddenStem(path) + QByteArray::number(qulonglong(random()), 36) +
           kHiddenEnding;
}

// A file system that cannot flush says so with EINVAL, which is no loss of text.
bool FlushToDisk(int descriptor)
{
    return fsync(descriptor) == 0 || errno == EINVAL || errno == ENOTSUP;
}

void FlushFolder(const QByteArray& path)
{
    const int folder = open(FolderOf(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return;
    fsync(folder);
    close(folder);
}

// Whoever writes such a file holds a lock on it, which goes with the process.
void RemoveIfAbandoned(const QByteArray& path)
{
    const int file = open(path.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | kOpenFlags);
    if (file < 0)
        return;
    struct stat status;
    if (fstat(file, &status) == 0 && S_ISREG(status.st_mode) && status.st_uid == geteuid() &&
        flock(file, LOCK_EX | LOCK_NB) == 0)
        unlink(path.constData());
    close(file);
}

} // namespace

TargetFile::~TargetFile()
{
    DropTemporary();
    if (m_existing >= 0)
        close(m_existing);
}

bool TargetFile::Fail()
{
    m_error = m_error ? m_error : errno ? errno : EIO;
    return false;
}

void TargetFile::DropTemporary()
{
    if (!m_temporary.isEmpty())
        unlink(std::exchange(m_temporary, QByteArray()).constData());
    if (m_file)
        std::fclose(std::exchange(m_file, nullptr));
}

void TargetFile::RemoveAbandoned(const QByteArray& path)
{
    const QByteArray target = FollowLinks(path);
    const QByteArray stem = HiddenStem(target);
    DIR* const folder = opendir(FolderOf(target).constData());
    if (!folder)
        return;
    while (const dirent* entry = readdir(folder)) {
        const QByteArray name = QByteArray::fromRawData(entry->d_name, qstrlen(entry->d_name));
        if (name.startsWith(stem) && name.endsWith(kHiddenEnding))
            RemoveIfAbandoned(FolderOf(target) + name);
    }
    closedir(folder);
}

bool TargetFile::OpenInPlace(const QByteArray& path)
{
    return Adopt(OpenWithoutWaiting(path, O_WRONLY | O_CREAT | O_TRUNC));
}

bool TargetFile::OpenBeside(const QByteArray& path)
{
    m_target = FollowLinks(path);
    if (m_target.isEmpty())
        return Fail();
    RemoveAbandoned(m_target);
    // The target is opened although nothing is written to it: that tells a folder and a file that
    // is read-only from one that may be replaced.
    const int existing = OpenWithoutWaiting(m_target, O_WRONLY);
    if (existing < 0)
        return errno == ENOENT ? CreateBeside(0666) : Fail();
    struct stat status;
    if (fstat(existing, &status) != 0) {
        Fail();
        close(existing);
        return false;
    }
    if (!S_ISREG(status.st_mode))
        return Adopt(existing);
    const bool canBeReplaced =
        status.st_nlink == 1 && CreateBeside(0600) && CopyPermissions(existing, fileno(m_file));
    close(existing);
    return canBeReplaced || WriteOverLater();
}

bool TargetFile::CreateBeside(int mode)
{
    constexpr int kAttempts = 100;
    for (int i = 0; i < kAttempts; ++i) {
        const QByteArray name = HiddenName(m_target);
        const int descriptor = open(name.constData(), O_RDWR | O_CREAT | O_EXCL | kOpenFlags,
                                    static_cast<mode_t>(mode));
        if (descriptor >= 0) {
            m_temporary = name;
            flock(descriptor, LOCK_EX | LOCK_NB);
            return Adopt(descriptor);
        }
        if (errno != EEXIST)
            break;
    }
    return Fail();
}

// What stands there is read too, to be put back if it has to be.
bool TargetFile::WriteOverLater()
{
    DropTemporary();
    m_error = 0;
    m_existing = OpenWithoutWaiting(m_target, O_RDWR);
    return m_existing < 0 ? Fail() : Adopt(OpenUnnamed(FolderOf(m_target)));
}

bool TargetFile::Adopt(int descriptor)
{
    if (descriptor < 0)
        return Fail();
    m_file = fdopen(descriptor, "wb");
    if (!m_file) {
        Fail();
        close(descriptor);
        return false;
    }
    m_buffer = std::make_unique_for_overwrite<char[]>(kBufferSize);
    std::setvbuf(m_file, m_buffer.get(), _IOFBF, kBufferSize);
    return true;
}

bool TargetFile::Write(const void* bytes, std::size_t count)
{
    if (count > 0 && fwrite_unlocked(bytes, count, 1, m_file) == 0)
        Fail();
    return m_error == 0;
}

// The file has its place before it is closed: until then its lock tells others that it is alive.
bool TargetFile::Close()
{
    if (!m_file)
        return false;
    if (std::fflush(m_file) != 0)
        Fail();
    const bool isBeside = !m_temporary.isEmpty();
    if (isBeside && m_error == 0 && !FlushToDisk(fileno(m_file)))
        Fail();
    const bool isWritten = m_error == 0 && Publish();
    const bool isClosed = std::fclose(std::exchange(m_file, nullptr)) == 0;
    if (!isBeside && m_existing < 0 && !isClosed)
        Fail();
    return isWritten && m_error == 0;
}

// In a folder where everybody may only rename what is his own, a file of another's is written over.
bool TargetFile::Publish()
{
    if (!m_temporary.isEmpty()) {
        if (std::rename(m_temporary.constData(), m_target.constData()) == 0) {
            m_temporary.clear();
            FlushFolder(m_target);
            return true;
        }
        if (errno != EPERM && errno != EACCES)
            return Fail();
        m_existing = OpenWithoutWaiting(m_target, O_RDWR);
        if (m_existing < 0)
            return Fail();
    }
    return m_existing < 0 || Overwrite(m_existing, fileno(m_file), FolderOf(m_target)) || Fail();
}
