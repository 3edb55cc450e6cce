#include "settings/DiskFile.h"

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
    Descriptor(const QString& name, int flags)
        : m_number(open(QFile::encodeName(name).constData(), flags | kAlways, 0666))
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

} // namespace

std::optional<QByteArray> ReadWholeFile(const QString& name)
{
    const Descriptor file(name, O_RDONLY);
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
    Descriptor file(name, O_WRONLY | O_CREAT | O_TRUNC);
    qsizetype done = 0;
    while (file.IsOpen() && done < bytes.size()) {
        const ssize_t count = write(file.Number(), bytes.constData() + done,
                                    static_cast<std::size_t>(bytes.size() - done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        done += count;
    }
    return file.Close();
}
