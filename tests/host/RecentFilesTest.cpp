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
    QString settings = folder.filePath("settings.ini");
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
    RecentFiles other(settings);
    recent.Add("/x/a.sql");
    other.Add("/x/b.sql");
    recent.Add("/x/c=d; \"e\", \u00E9%.sql");
    EXPECT_EQ(other.Paths(), (QStringList{"/x/c=d; \"e\", \u00E9%.sql", "/x/b.sql", "/x/a.sql"}));
}

TEST_F(RecentFilesTest, AreNotTakenOnTrustFromTheSettings)
{
    QFile file(settings);
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
    RecentFiles own(places::SettingsPath());
    own.Clear();
    own.Add("/x/a.sql");
    EXPECT_EQ(RecentFiles(places::SettingsPath()).Paths(), QStringList{"/x/a.sql"});
    own.Clear();
}

TEST_F(RecentFilesTest, AreReadAndWrittenAsQSettingsDoes)
{
    {
        QSettings theirs(settings, QSettings::IniFormat);
        theirs.setValue("Autosave/minutes", 7);
        theirs.beginWriteArray("RecentFiles", 1);
        theirs.setArrayIndex(0);
        theirs.setValue("path", "/x/\u00E9, a.sql");
        theirs.endArray();
    }
    EXPECT_EQ(recent.Paths(), QStringList{"/x/\u00E9, a.sql"});
    EXPECT_TRUE(recent.Add("/x/b.sql"));
    QSettings theirs(settings, QSettings::IniFormat);
    EXPECT_EQ(theirs.value("Autosave/minutes").toInt(), 7);
    ASSERT_EQ(theirs.beginReadArray("RecentFiles"), 2);
    theirs.setArrayIndex(1);
    EXPECT_EQ(theirs.value("path").toString(), "/x/\u00E9, a.sql");
}

TEST_F(RecentFilesTest, AreNotTakenForEmptyWhereTheyCannotBeRead)
{
    ASSERT_TRUE(QDir().mkpath(settings)); // a folder cannot be read
    EXPECT_FALSE(recent.Add("/x/a.sql"));
    EXPECT_FALSE(recent.Clear());
    EXPECT_TRUE(recent.Paths().isEmpty());
    EXPECT_TRUE(QFileInfo(settings).isDir());
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
