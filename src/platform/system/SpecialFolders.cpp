// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/SpecialFolders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRandomGenerator>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr mode_t kFolderMode = 0700;
constexpr mode_t kFileMode = 0600;

const ISpecialFolders*& Current()
{
    static const ISpecialFolders* current = nullptr;
    return current;
}

const ISpecialFolders& Folders()
{
    static const ISpecialFolders desktop;
    return Current() ? *Current() : desktop;
}

QString Below(const QString& folder, const QString& name)
{
    if (folder.isEmpty() || name.isEmpty())
        return QString();
    return folder.endsWith(u'/') ? folder + name : folder + u'/' + name;
}

QString FromUnits(const char16_t* text)
{
    return text ? QString::fromUtf16(text) : QString();
}

// The base-directory rules ignore a path that is not absolute.
QString BaseFolder(const char* variable, const char* belowHome)
{
    const QString given = qEnvironmentVariable(variable);
    return QDir::cleanPath(given.startsWith(u'/') ? given
                                                  : QDir::homePath() + QLatin1String(belowHome));
}

// Every folder on the way is made for its user alone, as the base-directory rules ask.
bool MakeFolder(const QString& path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat status;
    if (stat(name.constData(), &status) == 0)
        return S_ISDIR(status.st_mode);
    const qsizetype slash = path.lastIndexOf(u'/');
    if (slash > 0 && !MakeFolder(path.left(slash)))
        return false;
    // Another process may have been quicker.
    return mkdir(name.constData(), kFolderMode) == 0 ||
           (errno == EEXIST && stat(name.constData(), &status) == 0 && S_ISDIR(status.st_mode));
}

bool IsOwnAlone(const QString& path)
{
    struct stat status;
    return lstat(QFile::encodeName(path).constData(), &status) == 0 && S_ISDIR(status.st_mode) &&
           status.st_uid == geteuid() && (status.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

// Names are lower case throughout, so that they differ on every file system.
QString NewFile(const QString& folder, const QString& prefix, const QString& extension)
{
    constexpr int kAttempts = 100;
    for (int i = 0; i < kAttempts; ++i) {
        const QString number = QString::number(QRandomGenerator::global()->generate64(), 36);
        const QString path = Below(folder, prefix + number + extension);
        const int file = open(QFile::encodeName(path).constData(),
                              O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, kFileMode);
        if (file >= 0) {
            close(file);
            return path;
        }
        if (errno != EEXIST)
            break;
    }
    return QString();
}

} // namespace

ISpecialFolders::~ISpecialFolders() = default;

QString ISpecialFolders::LocalAppData() const
{
    return BaseFolder("XDG_DATA_HOME", "/.local/share");
}

QString ISpecialFolders::Config() const
{
    return BaseFolder("XDG_CONFIG_HOME", "/.config");
}

QString ISpecialFolders::AppData() const
{
    return Below(LocalAppData(), znutils::CSpecialFolders::GetSimpleAppName());
}

QString ISpecialFolders::Temp() const
{
    return QDir::tempPath();
}

QString ISpecialFolders::AppTemp() const
{
    return Below(Temp(),
                 znutils::CSpecialFolders::GetSimpleAppName() + u'-' + QString::number(geteuid()));
}

QString ISpecialFolders::AppName() const
{
    return QCoreApplication::applicationName();
}

namespace {

QString& FolderName()
{
    static QString name = QStringLiteral("Marrowfield");
    return name;
}

} // namespace

void SetSettingsFolderName(const QString& name)
{
    FolderName() = name;
}

const QString& SettingsFolderName()
{
    return FolderName();
}

void SetSpecialFolders(const ISpecialFolders* folders)
{
    Current() = folders;
}

namespace znutils {

QString CSpecialFolders::GetLocalAppDataPath(bool create)
{
    const QString path = Folders().LocalAppData();
    return create && !path.isEmpty() && !MakeFolder(path) ? QString() : path;
}

QString CSpecialFolders::GetConfigPath()
{
    return Folders().Config();
}

bool CSpecialFolders::GetAppAppDataPath(QString& path, bool create, const char16_t* below)
{
    path = Folders().AppData();
    if (below)
        path = Below(path, FromUnits(below));
    if (create && !path.isEmpty() && !MakeFolder(path))
        path.clear();
    return !path.isEmpty();
}

bool CSpecialFolders::GetAppTempPath(QString& path, bool create)
{
    path = Folders().AppTemp();
    const bool made = !path.isEmpty() && (!create || MakeFolder(path));
    if (!made || (QFile::exists(path) && !IsOwnAlone(path)))
        path.clear();
    return !path.isEmpty();
}

QString CSpecialFolders::GetTempFile(const char16_t* prefix, const char16_t* folder,
                                     const char16_t* extension)
{
    return NewFile(folder ? FromUnits(folder) : Folders().Temp(), FromUnits(prefix),
                   extension ? FromUnits(extension) : QStringLiteral(".tmp"));
}

QString CSpecialFolders::GetAppTempFile(const char16_t* prefix, const char16_t* extension)
{
    QString folder;
    if (!GetAppTempPath(folder, true))
        return QString();
    return GetTempFile(prefix, reinterpret_cast<const char16_t*>(folder.utf16()), extension);
}

QString CSpecialFolders::GetSimpleAppName()
{
    QString name = Folders().AppName();
    name.replace(u'/', u'_');
    const bool unusable =
        name.isEmpty() || name == QLatin1String(".") || name == QLatin1String("..");
    return unusable ? QStringLiteral("ZNCoreEditor") : name;
}

} // namespace znutils
