// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/RecentFiles.h"

#include "host/files/Places.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class RecentFilesTest : public testing::Test
{
protected:
    QString Make(const QString& name) const
    {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        return file.fileName();
    }

    QTemporaryDir folder;
    QSettings settings{folder.filePath("settings.ini"), QSettings::IniFormat};
    RecentFiles recent{settings};
};

} // namespace

TEST_F(RecentFilesTest, AreEmptyAtFirst)
{
    EXPECT_TRUE(recent.Paths().isEmpty());
}

TEST_F(RecentFilesTest, HaveTheLastOpenedFirst)
{
    recent.Add("/x/a.sql");
    recent.Add("/x/b.sql");
    EXPECT_EQ(recent.Paths(), (QStringList{"/x/b.sql", "/x/a.sql"}));
    recent.Add("/x/a.sql");
    EXPECT_EQ(recent.Paths(), (QStringList{"/x/a.sql", "/x/b.sql"}));
}

TEST_F(RecentFilesTest, AreTenAtMost)
{
    for (int i = 0; i < 15; ++i)
        recent.Add(QStringLiteral("/x/%1.sql").arg(i));
    EXPECT_EQ(recent.Paths().size(), 10);
    EXPECT_EQ(recent.Paths().front(), "/x/14.sql");
    EXPECT_EQ(recent.Paths().back(), "/x/5.sql");
}

TEST_F(RecentFilesTest, HaveAFileOnceHoweverItIsSpelt)
{
    const QString path = Make("a.sql");
    QDir(folder.path()).mkdir("below");
    QFile::link(path, folder.filePath("link.sql"));
    recent.Add(path);
    recent.Add(folder.path() + "/./below/..//a.sql");
    EXPECT_EQ(recent.Paths(), QStringList{path});
    recent.Add(folder.filePath("link.sql"));
    EXPECT_EQ(recent.Paths(), QStringList{folder.filePath("link.sql")}); // as it was opened last
}

TEST_F(RecentFilesTest, HaveFilesOfNamesThatDifferByCase)
{
    recent.Add(Make("a.sql"));
    recent.Add(Make("A.sql"));
    EXPECT_EQ(recent.Paths().size(), 2);
}

TEST_F(RecentFilesTest, HaveWholePaths)
{
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder.path());
    const QString here = QDir::currentPath();
    recent.Add("a.sql");
    QDir::setCurrent(before);
    recent.Add("");
    EXPECT_EQ(recent.Paths(), QStringList{here + "/a.sql"});
}

TEST_F(RecentFilesTest, KeepAFileThatIsGoneUntilItIsRemoved)
{
    const QString path = Make("a.sql");
    recent.Add(path);
    QFile::remove(path);
    EXPECT_EQ(recent.Paths(), QStringList{path});
    EXPECT_TRUE(RecentFileIsGoneQuestion(path).contains(path));
    recent.Remove("/x/another.sql");
    EXPECT_EQ(recent.Paths(), QStringList{path});
    recent.Remove(path);
    EXPECT_TRUE(recent.Paths().isEmpty());
}

TEST_F(RecentFilesTest, CanBeCleared)
{
    recent.Add("/x/a.sql");
    recent.Add("/x/b.sql");
    recent.Clear();
    EXPECT_TRUE(recent.Paths().isEmpty());
}

TEST_F(RecentFilesTest, AreSharedByWindowsAndOutliveThem)
{
    QSettings others(settings.fileName(), QSettings::IniFormat);
    RecentFiles other(others);
    recent.Add("/x/a.sql");
    other.Add("/x/b.sql");
    recent.Add("/x/c=d; \"e\", \u00E9%.sql");
    EXPECT_EQ(other.Paths(), (QStringList{"/x/c=d; \"e\", \u00E9%.sql", "/x/b.sql", "/x/a.sql"}));
}

TEST_F(RecentFilesTest, AreNotTakenOnTrustFromTheSettings)
{
    QFile file(settings.fileName());
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("[RecentFiles]\n1\\path=relative.sql\n2\\path=\n3\\path=/x/a.sql\n"
               "4\\path=/x/a.sql\n5\\path=/x/\\x0.sql\n6\\path=/" +
               QByteArray(10000, 'x') +
               "\n7\\path=@Variant(nonsense)\n8\\path=a, b\nsize=2000000000\n");
    file.close();
    EXPECT_EQ(recent.Paths(), QStringList{"/x/a.sql"});
}

TEST_F(RecentFilesTest, StandInTheSettingsOfTheWorkbench)
{
    QSettings own = places::Settings();
    RecentFiles(own).Clear();
    RecentFiles(own).Add("/x/a.sql");
    QSettings again = places::Settings();
    EXPECT_EQ(RecentFiles(again).Paths(), QStringList{"/x/a.sql"});
    RecentFiles(own).Clear();
}

TEST(RecentFileMenu, NamesEachFileSoThatItCanBeTold)
{
    EXPECT_EQ(RecentFileNames({"/x/a.sql", "/x/b.sql"}), (QStringList{"a.sql", "b.sql"}));
    EXPECT_EQ(RecentFileNames({"/x/old/a.sql", "/x/new/a.sql", "/a.sql", "/x/b.sql"}),
              (QStringList{"a.sql (old)", "a.sql (new)", "a.sql", "b.sql"}));
    EXPECT_EQ(RecentFileNames({"/1/x/a.sql", "/2/x/a.sql"}),
              (QStringList{"a.sql (1/x)", "a.sql (2/x)"}));
    EXPECT_TRUE(RecentFileNames({}).isEmpty());
}
