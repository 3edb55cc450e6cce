// SPDX-License-Identifier: GPL-3.0-or-later
#include "preprocess/language/SearchPath.h"
#include "tests/platform/file/OrdinaryUser.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cerrno>
#include <climits>

#include <sys/stat.h>
#include <unistd.h>

namespace {

// 0 if it can be read.
int WhyNotReadable(const QString& path)
{
    int reason = -1;
    const int file = OpenScript(path, reason);
    EXPECT_EQ(file >= 0, reason == 0);
    if (file >= 0)
        close(file);
    return reason;
}

QByteArray Native(const QString& path)
{
    return QFile::encodeName(path);
}

class Readable : public testing::Test
{
protected:
    QString Make(const QString& name, qint64 size) const
    {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || !file.resize(size))
            ADD_FAILURE() << file.errorString().toStdString();
        return file.fileName();
    }

    QTemporaryDir folder;
};

TEST(SearchPath, IsCutAtSemicolonsAndTrimmed)
{
    EXPECT_EQ(FoldersOf(" /a ;/b c; ;;/d;"), (QStringList{"/a", "/b c", "/d"}));
    EXPECT_EQ(FoldersOf(""), QStringList());
    EXPECT_EQ(FoldersOf(" ; "), QStringList());
}

TEST(SearchPath, PutsASeparatorInBetweenIfThereIsNone)
{
    EXPECT_EQ(FileIn("/a", "x.sql"), "/a/x.sql");
    EXPECT_EQ(FileIn("/a/", "x.sql"), "/a/x.sql");
    EXPECT_EQ(FileIn("\\a\\", "b\\x.sql"), "/a/b/x.sql");
    EXPECT_EQ(FileIn("/a", "/b/x.sql"), "/a//b/x.sql");
}

TEST_F(Readable, IsAFileThatIsThere)
{
    EXPECT_EQ(WhyNotReadable(Make("a", 3)), 0);
    EXPECT_EQ(WhyNotReadable(folder.filePath("b")), ENOENT);
    EXPECT_EQ(WhyNotReadable(Make("c", 0)), 0);
}

TEST_F(Readable, IsNoFolderAndNoPipe)
{
    EXPECT_EQ(WhyNotReadable(folder.path()), EISDIR);
    ASSERT_EQ(mkfifo(Native(folder.filePath("pipe")), 0600), 0);
    EXPECT_EQ(WhyNotReadable(folder.filePath("pipe")), EINVAL);
}

TEST_F(Readable, IsNothingWithoutPermission)
{
    const QString path = Make("a", 1);
    ASSERT_EQ(chmod(Native(path), 0), 0);
    const OrdinaryUser user;
    EXPECT_EQ(WhyNotReadable(path), EACCES);
}

TEST_F(Readable, IsNoFileThatNoTextCanHold)
{
    EXPECT_EQ(WhyNotReadable(Make("a", INT_MAX)), 0);
    EXPECT_EQ(WhyNotReadable(Make("b", INT_MAX + qint64(1))), EFBIG);
}

TEST_F(Readable, IsNoNameBeyondTheSystemsLimitsNorOneWithANul)
{
    EXPECT_EQ(WhyNotReadable(folder.filePath(QString(1000, 'x'))), ENAMETOOLONG);
    const QString path = Make("a", 1);
    EXPECT_EQ(WhyNotReadable(path + QChar(u'\0') + "b"), ENOENT);
}

} // namespace
