#include "platform/system/SettingsFile.h"

#include "platform/system/SpecialFolders.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QVariant>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace settingsfile {

namespace {

QHash<QString, QVariant> ValuesBelow(QSettings& settings, const QString& group)
{
    QHash<QString, QVariant> values;
    settings.beginGroup(group);
    for (const QString& key : settings.allKeys())
        values.insert(key, settings.value(key));
    settings.endGroup();
    return values;
}

} // namespace

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

bool RemoveValue(QSettings& settings, const QString& key)
{
    if (!settings.contains(key))
        return false;
    const QHash<QString, QVariant> below = ValuesBelow(settings, key);
    settings.remove(key);
    for (auto at = below.begin(); at != below.end(); ++at)
        settings.setValue(key + u'/' + at.key(), at.value());
    return true;
}

bool RemoveGroup(QSettings& settings, const QString& key)
{
    if (ValuesBelow(settings, key).isEmpty())
        return false;
    const QVariant own = settings.value(key);
    settings.remove(key);
    if (own.isValid())
        settings.setValue(key, own);
    return true;
}

WriteGuard::WriteGuard(const QString& path)
{
    constexpr int kPatience = 500;        // tries, for a process that is stopped meanwhile
    constexpr useconds_t kBetween = 2000; // microseconds
    const qsizetype name = path.lastIndexOf(u'/') + 1;
    QDir().mkpath(path.left(name));
    const QString guard = path.left(name) + u'.' + path.mid(name) + QLatin1String(".guard");
    m_file = open(QFile::encodeName(guard).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    for (int i = 0; m_file >= 0 && i < kPatience; ++i) {
        if (flock(m_file, LOCK_EX | LOCK_NB) == 0) {
            unlink(QFile::encodeName(path + QLatin1String(".lock")).constData());
            return;
        }
        usleep(kBetween);
    }
}

WriteGuard::~WriteGuard()
{
    if (m_file >= 0)
        close(m_file);
}

bool Flush(QSettings& settings)
{
    settings.sync();
    return settings.status() != QSettings::AccessError;
}

} // namespace settingsfile
