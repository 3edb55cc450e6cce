// SPDX-License-Identifier: GPL-3.0-or-later
// What is no settings file reads as empty, and is never written over.
#include "OpenXMLFile.h"
#include "SettingsFolder.h"
#include "tests/RandomSeed.h"
#include "tests/platform/file/FullDisk.h"
#include "tests/platform/file/OrdinaryUser.h"

#include <QDir>

#include <random>

#include <sys/stat.h>

namespace {

class XMLBadInput : public SettingsFolder
{
protected:
    // Nothing can be read from the file or set in it, and it stays as it is.
    void ExpectUnusable(const char* name)
    {
        const QByteArray before = Get(name);
        OpenXMLFile file(PathOf(name));
        EXPECT_FALSE(file.Parse());
        EXPECT_EQ(file.GetStringFromXMLFile(u"S", u"K"), QString());
        EXPECT_EQ(file.GetIntFromXMLFile(u"S", u"K"), 0);
        EXPECT_FALSE(file.SetIntToXMLFile(u"S", u"K", 2));
        file.SetModified(true);
        EXPECT_FALSE(file.Save());
        EXPECT_EQ(Get(name), before);
    }
};

TEST_F(XMLBadInput, AMissingFileOrNameIsUnusable)
{
    ExpectUnusable("absent");
    EXPECT_FALSE(QFile::exists(PathOf("absent")));
    OpenXMLFile nameless;
    EXPECT_FALSE(nameless.Parse());
    EXPECT_FALSE(nameless.Save());
}

TEST_F(XMLBadInput, WhatIsNotWellFormedIsUnusable)
{
    for (const char* text :
         {"", " \r\n", "no XML at all", "<", "<S>", "<S><K>1</S></K>", "</S>", "<S a></S>",
          "<S a=1></S>", "<S a=\"1></S>", "<!-- only -->", "<![CDATA[x]]>", "<S><![CDATA[x]]</S>",
          "<?xml version=\"1.0\"?>", "<S><!ELEMENT a></S>", "<S><![INCLUDE[x]]></S>"}) {
        SCOPED_TRACE(text);
        Put("a", text);
        ExpectUnusable("a");
    }
}

TEST_F(XMLBadInput, ADeclarationThatDoesNotEndAsOneIsUnusable)
{
    for (const char* text :
         {"<?xml a='?>'><S><K>1</K></S></xml>", "<?xml a='1'><S><K>1</K></S></xml><?b?>",
          "<?xml/><S><K>1</K></S><!-- ?> -->", "<?xml a='?>'/><S><K>1</K></S>",
          "<?XML a=\"?>\"><S><K>1</K></S></XML>", "<?xml a='1'><?b?> c='2'/><S><K>1</K></S>"}) {
        SCOPED_TRACE(text);
        Put("a", text);
        ExpectUnusable("a");
    }
}

// The second declaration has its end in the quotes, and all that follows below it.
TEST_F(XMLBadInput, ADeclarationInTheMiddleThatDoesNotEndAsOneIsUnusable)
{
    Put("a", "\r!<S/>V/><S\xDB/>\n\t\xE8<V/>><S/>4\nV/$\1><S\xDB/>>\nV<?xml version='1.0'?>"
             "<?xml version='1.0\xFC\r\r\r/>'\r\r\r\r>'\r\n\n\r\t\r<S/>'\r]\x7F\r!<S/>"
             " version='1.0'?>/>\n\r\xE8<V/>\nVl version='1.0'.0'?><?xlemv rsion='1.0'?>/>"
             "\n\r\xE8<V/>\nV/>\n/>\n\r\xE8<Z/>\nV<?\xFFxml version='1.0'?>/>\n/");
    ExpectUnusable("a");
}

TEST_F(XMLBadInput, TextSeveralRootsAndSeveralDeclarationsAreRead)
{
    Put("a", "\r!<S><K>1</K></S>V/><?xml version='1.0'?>\nW<?XML b=\"/>'\" ?><T/>X");
    OpenXMLFile file(PathOf("a"));
    EXPECT_TRUE(file.SetIntToXMLFile(u"S", u"K", 2));
    EXPECT_TRUE(file.Save());
    EXPECT_EQ(Get("a"), "\r\n!\r\n<S>\r\n\t<K>2</K>\r\n</S>\r\nV/>\r\n<?xml version=\"1.0\"?>"
                        "\r\n\r\nW\r\n<?XML b=\"/>'\"?>\r\n<T/>\r\nX\r\n");
}

TEST_F(XMLBadInput, AFileCutAtAnyByteIsUnusable)
{
    const QByteArray whole =
        "<?xml version=\"1.0\"?><!DOCTYPE S [ <!ELEMENT S (K)> ]>\r\n<S a=\"1\"><!--c-->"
        "<K>1</K><L><![CDATA[<>]]></L><M/></S>";
    for (qsizetype size = 0; size < whole.size(); ++size) {
        SCOPED_TRACE(size);
        Put("a", whole.left(size));
        ExpectUnusable("a");
    }
    Put("a", whole);
    EXPECT_EQ(OpenXMLFile(PathOf("a")).GetIntFromXMLFile(u"S", u"K"), 1);
}

TEST_F(XMLBadInput, NestingWithoutEndIsUnusable)
{
    constexpr int kLevels = 100'000;
    Put("a",
        QByteArray("<S>").repeated(kLevels) + "<K>1</K>" + QByteArray("</S>").repeated(kLevels));
    ExpectUnusable("a");
    Put("b", QByteArray("<S>").repeated(kLevels));
    ExpectUnusable("b");
}

TEST_F(XMLBadInput, NestingThatSomeoneMightMeanIsRead)
{
    Put("a", QByteArray("<S>").repeated(500) + "<K>1</K>" + QByteArray("</S>").repeated(500));
    OpenXMLFile file(PathOf("a"));
    EXPECT_EQ(file.GetIntFromXMLFile(u"S", u"K"), 1);
    EXPECT_TRUE(file.SetIntToXMLFile(u"S", u"K", 2));
    EXPECT_TRUE(file.Save());
    EXPECT_EQ(OpenXMLFile(PathOf("a")).GetIntFromXMLFile(u"S", u"K"), 2);
}

TEST_F(XMLBadInput, HugeValuesAreReadAndWritten)
{
    const QByteArray attribute(64 * 1024 * 1024, 'x');
    const QByteArray text(8 * 1024 * 1024, 'y');
    Put("a", "<S a=\"" + attribute + "\"><K>1</K><L>" + text + "</L></S>");
    OpenXMLFile file(PathOf("a"));
    EXPECT_EQ(file.GetStringAttributeFromXMLFile(u"S", nullptr, u"a").size(), attribute.size());
    EXPECT_TRUE(file.SetIntToXMLFile(u"S", u"K", 2));
    EXPECT_TRUE(file.Save());
    EXPECT_TRUE(Get("a") ==
                "<S a=\"" + attribute + "\">\r\n\t<K>2</K>\r\n\t<L>" + text + "</L>\r\n</S>\r\n");
}

TEST_F(XMLBadInput, FoldersAndPipesAreUnusable)
{
    ASSERT_TRUE(QDir().mkdir(PathOf("folder")));
    ExpectUnusable("folder");
    ASSERT_EQ(mkfifo(QFile::encodeName(PathOf("pipe")).constData(), 0600), 0);
    OpenXMLFile pipe(PathOf("pipe"));
    EXPECT_FALSE(pipe.Parse());
}

TEST_F(XMLBadInput, AFailedSaveKeepsTheChange)
{
    Put("a", "<S><K>1</K></S>");
    ASSERT_TRUE(QDir().mkdir(PathOf("folder")));
    OpenXMLFile file(PathOf("a"));
    ASSERT_TRUE(file.SetIntToXMLFile(u"S", u"K", 2));
    for (const QString& target :
         {PathOf("folder"), PathOf("no/such"), QStringLiteral("/dev/full")}) {
        file.SetFilename(target);
        EXPECT_FALSE(file.Save()) << target.toStdString();
        EXPECT_TRUE(file.GetModified());
    }
    file.SetFilename(PathOf("a"));
    EXPECT_TRUE(file.Save());
    EXPECT_EQ(Get("a"), "<S>\r\n\t<K>2</K>\r\n</S>\r\n");
}

TEST_F(XMLBadInput, AReadOnlyFileIsReadButNotWritten)
{
    Put("a", "<S><K>1</K></S>");
    SetMode("a", 0444);
    const OrdinaryUser user;
    OpenXMLFile file(PathOf("a"));
    EXPECT_EQ(file.GetIntFromXMLFile(u"S", u"K"), 1);
    EXPECT_TRUE(file.SetIntToXMLFile(u"S", u"K", 2));
    EXPECT_FALSE(file.Save());
    EXPECT_TRUE(file.GetModified());
    EXPECT_EQ(Get("a"), "<S><K>1</K></S>");
}

TEST_F(XMLBadInput, AFileThatMayNotBeReadIsUnusable)
{
    Put("a", "<S><K>1</K></S>");
    SetMode("a", 0);
    {
        const OrdinaryUser user;
        EXPECT_EQ(OpenXMLFile(PathOf("a")).GetIntFromXMLFile(u"S", u"K"), 0);
    }
    SetMode("a", 0644);
    EXPECT_EQ(OpenXMLFile(PathOf("a")).GetIntFromXMLFile(u"S", u"K"), 1);
}

TEST_F(XMLBadInput, WhatSomeoneElseWroteMeanwhileIsReplacedWhole)
{
    Put("a", "<S><K>1</K></S>");
    OpenXMLFile file(PathOf("a"));
    ASSERT_TRUE(file.SetIntToXMLFile(u"S", u"K", 2));
    Put("a", QByteArray(10'000, 'z'));
    EXPECT_TRUE(file.Save());
    EXPECT_EQ(Get("a"), "<S>\r\n\t<K>2</K>\r\n</S>\r\n");
}

TEST_F(XMLBadInput, AFileThatSomeoneTookAwayIsWrittenAgain)
{
    Put("a", "<S><K>1</K></S>");
    OpenXMLFile file(PathOf("a"));
    ASSERT_TRUE(file.SetIntToXMLFile(u"S", u"K", 2));
    ASSERT_TRUE(QFile::remove(PathOf("a")));
    EXPECT_TRUE(file.Save());
    EXPECT_EQ(Get("a"), "<S>\r\n\t<K>2</K>\r\n</S>\r\n");
    ASSERT_TRUE(file.SetIntToXMLFile(u"S", u"K", 3));
    ASSERT_TRUE(QFile::remove(PathOf("a")));
    ASSERT_TRUE(QDir().mkdir(PathOf("a")));
    EXPECT_FALSE(file.Save());
    EXPECT_TRUE(file.GetModified());
    EXPECT_EQ(file.GetIntFromXMLFile(u"S", u"K"), 3);
}

TEST_F(XMLBadInput, AFileThatSomeoneBrokeIsNotWrittenOverOnceItHasToBeReadAgain)
{
    Put("a", "<S><K>1</K></S>");
    OpenXMLFile file(PathOf("a"));
    ASSERT_TRUE(file.SetIntToXMLFile(u"S", u"K", 2));
    Put("a", "<S><K>");
    EXPECT_TRUE(file.Revert());
    EXPECT_FALSE(file.SetIntToXMLFile(u"S", u"K", 2));
    EXPECT_FALSE(file.Save());
    EXPECT_EQ(Get("a"), "<S><K>");
}

TEST_F(XMLBadInput, AFullDiskKeepsTheFileAndTheChange)
{
    const QByteArray before = "<S><K>1</K></S>";
    const QByteArray after = "<S>\r\n\t<K>2</K>\r\n</S>\r\n";
    Put("a", before);
    OpenXMLFile file(PathOf("a"));
    ASSERT_TRUE(file.SetIntToXMLFile(u"S", u"K", 2));
    const auto enough = static_cast<rlim_t>(after.size());
    for (rlim_t room = 0; room < enough; ++room) {
        const FullDisk disk(room);
        EXPECT_FALSE(file.Save()) << room;
        EXPECT_TRUE(file.GetModified());
        EXPECT_EQ(Get("a"), before) << room;
    }
    const FullDisk disk(enough);
    EXPECT_TRUE(file.Save());
    EXPECT_EQ(Get("a"), after);
}

TEST_F(XMLBadInput, DamagedFilesNeverCrash)
{
    const auto seed = RandomSeed();
    std::cout << "seed " << seed << '\n';
    std::mt19937 random(seed);
    const QByteArray whole = "<?p q?><!DOCTYPE S [<!ENTITY a 'b'>]><S a=\"1\" b='2'><!--c-->"
                             "<K>1</K><L><![CDATA[<>]]></L>text<M/></S>";
    int parsed = 0;
    for (int round = 0; round < 400; ++round) {
        QByteArray bytes = whole;
        for (unsigned int i = random() % 3; i < 4; ++i)
            bytes[static_cast<qsizetype>(random() % static_cast<unsigned int>(bytes.size()))] =
                "<>&\"'/?![]- \0\r\nx"[random() % 17];
        Put("a", bytes);
        OpenXMLFile file(PathOf("a"));
        if (!file.Parse())
            continue;
        ++parsed;
        file.SetModified(true);
        EXPECT_TRUE(file.Save());
        EXPECT_TRUE(OpenXMLFile(PathOf("a")).Parse())
            << bytes.toStdString() << Get("a").toStdString();
    }
    EXPECT_GT(parsed, 0);
}

} // namespace
