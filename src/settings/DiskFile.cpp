#include "settings/DiskFile.h"

#include "platform/file/TargetFile.h"

#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// A pipe at the other end of a name must not hang the window.
constexpr int kAlways = O_CLOEXEC | O_NOCTTY | O_NONBLOCK;

class Descriptor
{
public:
    Descriptor(const QByteArray& path, int flags)
        : m_number(open(path.constData(), flags | kAlways, 0666))
    {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { Close(); }

    int Number() const { return m_number; }
    bool IsOpen() const { return m_number >= 0; }
    bool Close()
    {
        const int number = m_number;
        m_number = -1;
        return number >= 0 && close(number) == 0;
    }

private:
    int m_number;
};

bool WriteAll(int descriptor, const QByteArray& bytes)
{
    qsizetype done = 0;
    while (done < bytes.size()) {
        const ssize_t count = write(descriptor, bytes.constData() + done,
                                    static_cast<std::size_t>(bytes.size() - done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        done += count;
    }
    return true;
}

bool HasSeveralNames(const QByteArray& path)
{
    struct stat status;
    return stat(path.constData(), &status) == 0 && S_ISREG(status.st_mode) && status.st_nlink > 1;
}

// Nothing if another file cannot take the place of this one: it would part with its further names,
// or the folder lets nobody replace it.
std::optional<bool> Replace(const QByteArray& path, const QByteArray& bytes)
{
    if (HasSeveralNames(path))
        return std::nullopt;
    TargetFile target;
    if (target.OpenBeside(path) &&
        target.Write(bytes.constData(), static_cast<std::size_t>(bytes.size())) && target.Close())
        return true;
    return errno == EACCES || errno == EPERM ? std::nullopt : std::optional(false);
}

// The room for the bytes is taken before the first of them changes.
bool Overwrite(const QByteArray& path, const QByteArray& bytes)
{
    Descriptor file(path, O_RDWR); // to take room, some systems read the file
    struct stat status;
    if (!file.IsOpen() || fstat(file.Number(), &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    if (bytes.size() > status.st_size && posix_fallocate(file.Number(), 0, bytes.size()) != 0) {
        [[maybe_unused]] const int shrunk = ftruncate(file.Number(), status.st_size);
        return false;
    }
    return WriteAll(file.Number(), bytes) && ftruncate(file.Number(), bytes.size()) == 0 &&
           file.Close();
}

} // namespace

std::optional<QByteArray> ReadWholeFile(const QString& name)
{
    const Descriptor file(QFile::encodeName(name), O_RDONLY);
    struct stat status;
    if (!file.IsOpen() || fstat(file.Number(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    QByteArray bytes(static_cast<qsizetype>(status.st_size), '\0');
    qsizetype done = 0;
    while (done < bytes.size()) {
        const ssize_t count =
            read(file.Number(), bytes.data() + done, static_cast<std::size_t>(bytes.size() - done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return std::nullopt;
        if (count == 0)
            break; // someone cut the file short meanwhile
        done += count;
    }
    bytes.truncate(done);
    return bytes;
}

bool WriteWholeFile(const QString& name, const QByteArray& bytes)
{
    const QByteArray path = QFile::encodeName(name);
    const std::optional<bool> replaced = Replace(path, bytes);
    return replaced ? *replaced : Overwrite(path, bytes);
}
