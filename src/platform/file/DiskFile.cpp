// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/file/DiskFile.h"

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
    ~Descriptor()
    {
        if (m_number >= 0)
            close(m_number);
    }

    int Number() const { return m_number; }
    bool IsOpen() const { return m_number >= 0; }

private:
    int m_number;
};

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
    TargetFile target;
    return target.OpenBeside(QFile::encodeName(name)) &&
           target.Write(bytes.constData(), static_cast<std::size_t>(bytes.size())) &&
           target.Close();
}
