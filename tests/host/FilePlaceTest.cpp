// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/FilePlace.h"

#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <climits>

namespace {

// Path, line and column with bars between them.
QString Parsed(const QString& word, const QStringList& files = {})
{
    const FilePlace place =
        ParseFilePlace(word, [&files](const QString& path) { return files.contains(path); });
    return QStringLiteral("%1|%2|%3").arg(place.path).arg(place.line).arg(place.column);
}

} // namespace

TEST(FilePlaceInAWord, IsTheFileAloneWithoutANumber)
{
    EXPECT_EQ(Parsed("a.sql"), "a.sql|0|0");
    EXPECT_EQ(Parsed(""), "|0|0");
    EXPECT_EQ(Parsed(":"), ":|0|0");
    EXPECT_EQ(Parsed("a.sql:x"), "a.sql:x|0|0");
    EXPECT_EQ(Parsed("a.sql:-3"), "a.sql:-3|0|0");
    EXPECT_EQ(Parsed(":12"), ":12|0|0");
}

TEST(FilePlaceInAWord, IsALineBehindAColonAndAColumnBehindASecond)
{
    EXPECT_EQ(Parsed("a.sql:120"), "a.sql|120|0");
    EXPECT_EQ(Parsed("a.sql:120", {"a.sql"}), "a.sql|120|0");
    EXPECT_EQ(Parsed("dir/a b.sql:120:7", {"dir/a b.sql"}), "dir/a b.sql|120|7");
    EXPECT_EQ(Parsed("a.sql:120:7"), "a.sql|120|7");
}

TEST(FilePlaceInAWord, MayEndInTheColonThatToolsPrint)
{
    EXPECT_EQ(Parsed("a.sql:120:"), "a.sql|120|0");
    EXPECT_EQ(Parsed("a.sql:120:7:"), "a.sql|120|7");
    EXPECT_EQ(Parsed("a.sql:"), "a.sql:|0|0");
}

TEST(FilePlaceInAWord, IsTheLongestNameThatIsThere)
{
    EXPECT_EQ(Parsed("a:5", {"a:5"}), "a:5|0|0");
    EXPECT_EQ(Parsed("a:5", {"a:5", "a"}), "a:5|0|0");
    EXPECT_EQ(Parsed("ab:5:6", {"ab:5", "ab"}), "ab:5|6|0");
    EXPECT_EQ(Parsed("ab:5:6:7", {"ab:5"}), "ab:5|6|7");
    EXPECT_EQ(Parsed("a:5:", {"a:5:"}), "a:5:|0|0");
}

TEST(FilePlaceInAWord, LeavesADriveLetterWithItsColon)
{
    EXPECT_EQ(Parsed("C:5"), "C:5|0|0");
    EXPECT_EQ(Parsed("C:5:12"), "C:5|12|0");
    EXPECT_EQ(Parsed("C:\\a.sql:12"), "C:\\a.sql|12|0");
    EXPECT_EQ(Parsed("C:5", {"C"}), "C|5|0");
}

TEST(FilePlaceInAWord, ClampsNumbersThatNoLineHas)
{
    EXPECT_EQ(Parsed("a.sql:0"), "a.sql|0|0");
    EXPECT_EQ(Parsed("a.sql:007"), "a.sql|7|0");
    const QString most = QString::number(INT_MAX);
    EXPECT_EQ(Parsed("a.sql:99999999999"), "a.sql|" + most + "|0");
    EXPECT_EQ(Parsed("a.sql:" + QString(300, u'9')), "a.sql|" + most + "|0");
    EXPECT_EQ(Parsed(QStringLiteral("a.sql:\u0661\u0662")),
              QStringLiteral("a.sql:\u0661\u0662|0|0"));
}

TEST(FilePlaceInAWord, LooksForTheFilesOnDisk)
{
    const QTemporaryDir folder;
    const QString odd = folder.filePath("a:5");
    ASSERT_TRUE(QFile(odd).open(QFile::WriteOnly));
    EXPECT_EQ(ParseFilePlace(odd).path, odd);
    EXPECT_EQ(ParseFilePlace(odd + ":6").path, odd);
    EXPECT_EQ(ParseFilePlace(odd + ":6").line, 6);
    EXPECT_EQ(ParseFilePlace(folder.filePath("b:5")).path, folder.filePath("b"));
}
