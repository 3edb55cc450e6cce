// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/SpecialFolders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <set>

#include <sys/stat.h>

inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << text.toStdString();
}

namespace {

using znutils::CSpecialFolders;

// An environment variable that is put back.
class Environment
{
public:
    Environment(const char* name, const QByteArray& value) : m_name(name), m_before(qgetenv(name))
    {
        value.isNull() ? qunsetenv(name) : qputenv(name, value);
    }
    ~Environment() { qputenv(m_name, m_before); }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

private:
    const char* m_name;
    QByteArray m_before;
};

// Everything in one folder, for a program of the given name.
class FoldersIn : public ISpecialFolders
{
public:
    explicit FoldersIn(QString folder) : m_folder(std::move(folder)) { SetSpecialFolders(this); }
    ~FoldersIn() override { SetSpecialFolders(nullptr); }

    QString LocalAppData() const override { return data.isNull() ? m_folder + "/data" : data; }
    QString Temp() const override { return m_folder + "/temp"; }
    QString AppName() const override { return name; }

    QString name = QStringLiteral("Bench");
    QString data;

private:
    QString m_folder;
};

mode_t ModeOf(const QString& path)
{
    struct stat status = {};
    EXPECT_EQ(stat(QFile::encodeName(path).constData(), &status), 0) << path.toStdString();
    return status.st_mode & 0777;
}

const char16_t* Units(const QString& text)
{
    return reinterpret_cast<const char16_t*>(text.utf16());
}

class SpecialFolders : public testing::Test
{
protected:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(SpecialFolders, FollowTheVariableOfTheDesktop)
{
    const Environment data("XDG_DATA_HOME", m_folder.path().toUtf8());
    const Environment config("XDG_CONFIG_HOME", m_folder.path().toUtf8() + "/c/");
    EXPECT_EQ(CSpecialFolders::GetLocalAppDataPath(false), m_folder.path());
    EXPECT_EQ(CSpecialFolders::GetConfigPath(), m_folder.path() + QStringLiteral("/c"));
}

TEST_F(SpecialFolders, StandBelowTheHomeFolderWithoutTheVariable)
{
    const Environment home("HOME", m_folder.path().toUtf8());
    for (const QByteArray& value : {QByteArray(), QByteArray(""), QByteArray("not/absolute")}) {
        const Environment data("XDG_DATA_HOME", value);
        EXPECT_EQ(CSpecialFolders::GetLocalAppDataPath(false),
                  m_folder.path() + QStringLiteral("/.local/share"));
        const Environment config("XDG_CONFIG_HOME", value);
        EXPECT_EQ(CSpecialFolders::GetConfigPath(), m_folder.path() + QStringLiteral("/.config"));
    }
}

TEST_F(SpecialFolders, AreMadeForTheirUserAloneWhenAsked)
{
    const FoldersIn folders(m_folder.path());
    QString path;
    EXPECT_TRUE(CSpecialFolders::GetAppAppDataPath(path, false, u"Backup"));
    EXPECT_EQ(path, m_folder.path() + QStringLiteral("/data/Bench/Backup"));
    EXPECT_FALSE(QFileInfo::exists(path));
    EXPECT_TRUE(CSpecialFolders::GetAppAppDataPath(path, true, u"Backup"));
    EXPECT_TRUE(CSpecialFolders::GetAppAppDataPath(path, true, u"Backup"));
    EXPECT_EQ(ModeOf(path), 0700u);
    EXPECT_TRUE(CSpecialFolders::GetAppAppDataPath(path, true, nullptr));
    EXPECT_EQ(path, m_folder.path() + QStringLiteral("/data/Bench"));
    EXPECT_EQ(ModeOf(path), 0700u);
}

TEST_F(SpecialFolders, GiveNothingWhereAFileIsInTheWay)
{
    FoldersIn folders(m_folder.path());
    folders.data = m_folder.filePath(QStringLiteral("file"));
    QFile file(folders.data);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    QString path = QStringLiteral("before");
    EXPECT_FALSE(CSpecialFolders::GetAppAppDataPath(path, true, nullptr));
    EXPECT_EQ(path, QString());
    EXPECT_EQ(CSpecialFolders::GetLocalAppDataPath(true), QString());
    EXPECT_EQ(CSpecialFolders::GetTempFile(u"~ZN", Units(folders.data), nullptr), QString());
}

TEST_F(SpecialFolders, GiveNothingWhereTheSystemHasNone)
{
    FoldersIn folders(m_folder.path());
    folders.data = QStringLiteral("");
    QString path;
    EXPECT_FALSE(CSpecialFolders::GetAppAppDataPath(path, true, u"Backup"));
    EXPECT_EQ(CSpecialFolders::GetLocalAppDataPath(true), QString());
}

TEST_F(SpecialFolders, MakeTemporaryFilesThatExistAndDiffer)
{
    const FoldersIn folders(m_folder.path());
    std::set<QString> paths;
    for (int i = 0; i < 50; ++i) {
        const QString path = CSpecialFolders::GetTempFile(u"~ZN", Units(m_folder.path()), nullptr);
        const QFileInfo info(path);
        EXPECT_TRUE(info.isFile()) << path.toStdString();
        EXPECT_EQ(info.path(), m_folder.path());
        EXPECT_EQ(info.size(), 0);
        EXPECT_TRUE(info.fileName().startsWith(QStringLiteral("~ZN")));
        EXPECT_EQ(info.suffix(), QStringLiteral("tmp"));
        EXPECT_EQ(ModeOf(path), 0600u);
        paths.insert(path);
    }
    EXPECT_EQ(paths.size(), 50u);
}

TEST_F(SpecialFolders, PutATemporaryFileWithoutAFolderWhereTheSystemKeepsThem)
{
    const FoldersIn folders(m_folder.path());
    ASSERT_TRUE(QDir().mkdir(m_folder.filePath(QStringLiteral("temp"))));
    const QString path = CSpecialFolders::GetTempFile(u"Bck", nullptr, u".sql");
    EXPECT_EQ(QFileInfo(path).path(), m_folder.filePath(QStringLiteral("temp")));
    EXPECT_EQ(QFileInfo(path).suffix(), QStringLiteral("sql"));
}

TEST_F(SpecialFolders, KeepTheApplicationsTemporaryFilesFromOtherUsers)
{
    const FoldersIn folders(m_folder.path());
    const QString file = CSpecialFolders::GetAppTempFile(u"Bck", nullptr);
    QString path;
    ASSERT_TRUE(CSpecialFolders::GetAppTempPath(path, true));
    EXPECT_EQ(QFileInfo(file).path(), path);
    EXPECT_EQ(ModeOf(path), 0700u);
    // A folder that anybody may write to, and a link to elsewhere, are somebody's trap.
    ASSERT_EQ(chmod(QFile::encodeName(path).constData(), 0777), 0);
    EXPECT_FALSE(CSpecialFolders::GetAppTempPath(path, true));
    EXPECT_EQ(CSpecialFolders::GetAppTempFile(u"Bck", nullptr), QString());
    path = QFileInfo(file).path();
    ASSERT_TRUE(QDir(path).removeRecursively());
    ASSERT_TRUE(QFile::link(m_folder.path(), path));
    EXPECT_FALSE(CSpecialFolders::GetAppTempPath(path, true));
}

TEST_F(SpecialFolders, NameTheApplicationSoThatItFitsIntoAPath)
{
    EXPECT_EQ(CSpecialFolders::GetSimpleAppName(), QCoreApplication::applicationName());
    FoldersIn folders(m_folder.path());
    const std::pair<const char*, const char*> names[] = {
        {"DBGlazier", "DBGlazier"}, {"a/b", "a_b"}, {"..", "ZNCoreEditor"}, {"", "ZNCoreEditor"}};
    for (const auto& [given, simple] : names) {
        folders.name = QString::fromLatin1(given);
        EXPECT_EQ(CSpecialFolders::GetSimpleAppName(), QString::fromLatin1(simple));
    }
}
