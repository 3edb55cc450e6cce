// SPDX-License-Identifier: GPL-3.0-or-later
// Paths taken apart and put together.
#include "common/PathParts.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace {

QStringList Parts(const char16_t* path)
{
    const CPathParts parts(QString::fromStdU16String(path));
    return {parts.drive, parts.folder, parts.name, parts.extension};
}

QString Beside(const char16_t* path, const char16_t* other)
{
    CPathParts parts(QString::fromStdU16String(path));
    parts.SetNameExt(QString::fromStdU16String(other));
    return parts.GetPath();
}

} // namespace

TEST(PathParts, AreDriveFolderNameAndExtension)
{
    EXPECT_EQ(Parts(u"/home/ann/a.b.sql"), (QStringList{"", "/home/ann/", "a.b", ".sql"}));
    EXPECT_EQ(Parts(u"C:\\work\\a.sql"), (QStringList{"C:", "\\work\\", "a", ".sql"}));
    EXPECT_EQ(Parts(u"folder.x/name"), (QStringList{"", "folder.x/", "name", ""}));
    EXPECT_EQ(Parts(u".sql"), (QStringList{"", "", "", ".sql"}));
    EXPECT_EQ(Parts(u""), (QStringList{"", "", "", ""}));
}

TEST(PathParts, KeepServerAndShareTogether)
{
    EXPECT_EQ(Parts(u"\\\\server\\share\\dir\\a.sql"),
              (QStringList{"\\\\server\\share", "\\dir\\", "a", ".sql"}));
    EXPECT_EQ(Parts(u"\\\\server\\share"), (QStringList{"\\\\server\\share", "", "", ""}));
}

TEST(PathParts, TakeANameFromAnotherPathWithoutItsFolder)
{
    EXPECT_EQ(Beside(u"/home/ann/a.sql", u"sub/other/b.txt"), "/home/ann/b.txt");
    EXPECT_EQ(Beside(u"/home/ann/a.sql", u"c:sub\\b"), "/home/ann/b");
    EXPECT_EQ(Beside(u"", u"b.sql"), "b.sql");
}

TEST(PathParts, AreNoneWhereOneIsTooLong)
{
    const QString name(256, u'n');
    EXPECT_EQ(CPathParts("/a/" + name).GetPath(), "");
    EXPECT_EQ(CPathParts("/a/" + name.chopped(1)).GetPath(), "/a/" + name.chopped(1));
    const QString folder = '/' + QString(258, u'd') + '/';
    EXPECT_EQ(CPathParts(folder + 'x').GetPath(), "");
    EXPECT_EQ(CPathParts("/a/b." + QString(255, u'e')).GetPath(), "");
}

TEST(PathParts, ComeBackAsTheyWere)
{
    for (const char16_t* path : {u"/", u"//", u"a", u"C:", u"C:a.b", u"\\\\?\\C:\\x", u"\\\\s",
                                 u"/a/.b", u"a/.", u"..", u"/x/../y.z"})
        EXPECT_EQ(CPathParts(QString::fromStdU16String(path)).GetPath(),
                  QString::fromStdU16String(path));
}

TEST(PathParts, KnowAnAbsolutePathByItsFirstTwoCharacters)
{
    for (const char* path : {"\\a", "/a", "C:", "x:y"})
        EXPECT_TRUE(CPathParts::IsAbsolute(QString::fromLatin1(path))) << path;
    for (const char* path : {"", "a", "a/b", ":a", "ab:c"})
        EXPECT_FALSE(CPathParts::IsAbsolute(QString::fromLatin1(path))) << path;
}
