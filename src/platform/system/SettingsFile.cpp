// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/SettingsFile.h"

#include "platform/file/DiskFile.h"
#include "platform/system/SpecialFolders.h"

#include <QDir>
#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace settingsfile {

namespace {

// Held while a file is read, changed and written, one process after the other.
class WriteGuard
{
public:
    explicit WriteGuard(const QString& path)
    {
        constexpr int kPatience = 500;        // tries, for a process that is stopped meanwhile
        constexpr useconds_t kBetween = 2000; // microseconds
        const qsizetype name = path.lastIndexOf(u'/') + 1;
        QDir().mkpath(path.left(name));
        const QString guard = path.left(name) + u'.' + path.mid(name) + QLatin1String(".guard");
        m_file = open(QFile::encodeName(guard).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
        for (int i = 0; m_file >= 0 && i < kPatience; ++i) {
            if (flock(m_file, LOCK_EX | LOCK_NB) == 0)
                return;
            usleep(kBetween);
        }
    }
    WriteGuard(const WriteGuard&) = delete;
    WriteGuard& operator=(const WriteGuard&) = delete;
    ~WriteGuard()
    {
        if (m_file >= 0)
            close(m_file);
    }

private:
    int m_file = -1;
};

} // namespace

std::optional<SettingsText> Read(const QString& path)
{
    errno = 0;
    if (const std::optional<QByteArray> bytes = ReadWholeFile(path))
        return SettingsText(*bytes);
    if (errno == ENOENT || errno == ENOTDIR)
        return SettingsText(QByteArray());
    return std::nullopt;
}

Outcome Change(const QString& path, const std::function<bool(SettingsText&)>& change)
{
    const WriteGuard guard(path);
    std::optional<SettingsText> text = Read(path);
    if (!text)
        return Outcome::Failed;
    if (!change(*text))
        return Outcome::NothingThere;
    return WriteWholeFile(path, text->Bytes()) ? Outcome::Done : Outcome::Failed;
}

QString PathOf(const QString& relative)
{
    return znutils::CSpecialFolders::GetConfigPath() + u'/' + relative;
}

QString Segment(const QString& name)
{
    if (name.isEmpty())
        return QStringLiteral("%");
    QString segment = name;
    segment.replace(u'%', QLatin1String("%25"));
    segment.replace(u'/', QLatin1String("%2F"));
    return segment.replace(u'\\', QLatin1String("%5C"));
}

bool CanRead(const QString& path)
{
    return Read(path).has_value();
}

std::optional<QString> ReadValue(const QString& path, const QString& key)
{
    const std::optional<SettingsText> text = Read(path);
    return text ? text->Value(key) : std::nullopt;
}

Outcome WriteValue(const QString& path, const QString& key, const QString& value)
{
    return Change(path, [&](SettingsText& text) {
        text.SetValue(key, value);
        return true;
    });
}

Outcome RemoveValue(const QString& path, const QString& key)
{
    return Change(path, [&](SettingsText& text) { return text.RemoveValue(key); });
}

Outcome RemoveGroup(const QString& path, const QString& group)
{
    return Change(path, [&](SettingsText& text) { return text.RemoveGroup(group); });
}

} // namespace settingsfile
