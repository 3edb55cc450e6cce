#include "platform/file/TargetFile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <random>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

constexpr std::size_t kBufferSize = 64 * 1024;
constexpr int kOpenFlags = O_WRONLY | O_CLOEXEC | O_NOCTTY;

// Waiting for the reader of a pipe would hang the window; without one there is nobody to write to.
int OpenWithoutWaiting(const QByteArray& path, int flags)
{
    const int descriptor = open(path.constData(), flags | O_NONBLOCK, 0666);
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
    constexpr int kMostLinks = 40;
    for (int i = 0; i < kMostLinks; ++i) {
        std::array<char, PATH_MAX> link;
        const ssize_t length = readlink(path.constData(), link.data(), link.size());
        if (length < 0)
            return path;
        const QByteArray target(link.data(), length);
        path = target.startsWith('/') ? target : FolderOf(path) + target;
    }
    return QByteArray();
}

// As much of the target's name as leaves room for the rest, in whole characters: some file systems
// take nothing but UTF-8.
QByteArray HiddenName(const QByteArray& path)
{
    constexpr qsizetype kLongestStem = 200; // bytes of a name, of 255
    constexpr qsizetype kBesideStem = 1 + 1 + 13 + 4 + 1;
    static std::mt19937_64 random{std::random_device{}()};
    const QByteArray folder = FolderOf(path);
    const QByteArray name = path.mid(path.lastIndexOf('/') + 1);
    const qsizetype room = PATH_MAX - folder.size() - kBesideStem;
    qsizetype stem = std::clamp<qsizetype>(room, 0, std::min(kLongestStem, name.size()));
    while (stem > 0 && stem < name.size() && (name[stem] & 0xC0) == 0x80)
        --stem;
    return folder + '.' + name.left(stem) + '.' + QByteArray::number(qulonglong(random()), 36) +
           ".tmp";
}

// An access list travels as an attribute; a file system without them has none to lose.
void CopyAccessList(int from, int to)
{
    constexpr const char* kAccessList = "system.posix_acl_access";
    std::array<char, 4096> list;
    const ssize_t size = fgetxattr(from, kAccessList, list.data(), list.size());
    if (size > 0)
        fsetxattr(to, kAccessList, list.data(), static_cast<std::size_t>(size), 0);
}

// A user who may write a file but does not own it cannot give the copy away; then it keeps the
// group if it can, and the mode in any case.
bool CopyPermissions(int from, const struct stat& status, int to)
{
    if (fchown(to, status.st_uid, status.st_gid) != 0 &&
        fchown(to, static_cast<uid_t>(-1), status.st_gid) != 0)
        errno = 0;
    CopyAccessList(from, to);
    return fchmod(to, status.st_mode & 07777) == 0;
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

} // namespace

TargetFile::~TargetFile()
{
    if (m_file)
        std::fclose(m_file);
    if (!m_temporary.isEmpty())
        unlink(m_temporary.constData());
}

bool TargetFile::OpenInPlace(const QByteArray& path)
{
    return Adopt(OpenWithoutWaiting(path, kOpenFlags | O_CREAT | O_TRUNC));
}

bool TargetFile::OpenBeside(const QByteArray& path)
{
    m_target = FollowLinks(path);
    if (m_target.isEmpty())
        return false;
    // The target is opened although nothing is written to it: that tells a folder and a file that
    // is read-only from one that may be replaced.
    const int existing = OpenWithoutWaiting(m_target, kOpenFlags);
    if (existing < 0)
        return errno == ENOENT && CreateBeside(0666);
    struct stat status;
    const bool known = fstat(existing, &status) == 0;
    if (known && !S_ISREG(status.st_mode))
        return Adopt(existing);
    const bool created =
        known && CreateBeside(0600) && CopyPermissions(existing, status, fileno(m_file));
    const int reason = errno;
    close(existing);
    errno = reason;
    return created;
}

bool TargetFile::CreateBeside(int mode)
{
    constexpr int kAttempts = 100;
    for (int i = 0; i < kAttempts; ++i) {
        const QByteArray name = HiddenName(m_target);
        const int descriptor =
            open(name.constData(), kOpenFlags | O_CREAT | O_EXCL, static_cast<mode_t>(mode));
        if (descriptor >= 0) {
            m_temporary = name;
            return Adopt(descriptor);
        }
        if (errno != EEXIST)
            break;
    }
    return false;
}

bool TargetFile::Adopt(int descriptor)
{
    if (descriptor < 0)
        return false;
    m_file = fdopen(descriptor, "wb");
    if (!m_file) {
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
        m_failed = true;
    return !m_failed;
}

bool TargetFile::Close()
{
    if (!m_file)
        return false;
    if (std::fflush(m_file) != 0)
        m_failed = true;
    if (!m_temporary.isEmpty() && !m_failed && !FlushToDisk(fileno(m_file)))
        m_failed = true;
    if (std::fclose(std::exchange(m_file, nullptr)) != 0)
        m_failed = true;
    return !m_failed && Publish();
}

bool TargetFile::Publish()
{
    if (m_temporary.isEmpty())
        return true;
    if (std::rename(m_temporary.constData(), m_target.constData()) != 0)
        return false;
    m_temporary.clear();
    FlushFolder(m_target);
    return true;
}
