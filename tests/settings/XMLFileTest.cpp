// SPDX-License-Identifier: GPL-3.0-or-later
// Sections, keys and attributes as typed settings, and the states of a file.
#include "OpenXMLFile.h"
#include "SettingsFolder.h"

#include "platform/text/CodePage.h"
#include "settings/Number.h"

#include <QDateTime>
#include <QFileInfo>

#include <climits>

namespace {

using XMLFile = SettingsFolder;

constexpr const char* kSmall = "<Root><Editor><Width>12</Width><Empty/>"
                               "<Colour use=\"1\" name=\"red\">7</Colour></Editor>"
                               "<Nothing/><Blank> </Blank></Root>";

TEST(XMLNumber, ReadsTheNumberInFront)
{
    EXPECT_EQ(TextToInt(u"12"), 12);
    EXPECT_EQ(TextToInt(u" \t\r\n-7x3"), -7);
    EXPECT_EQ(TextToInt(u"+5"), 5);
    EXPECT_EQ(TextToInt(u"- 5"), 0);
    EXPECT_EQ(TextToInt(u"yes"), 0);
    EXPECT_EQ(TextToInt(u""), 0);
    EXPECT_EQ(TextToInt(u"2147483647"), INT_MAX);
    EXPECT_EQ(TextToInt(u"2147483648"), INT_MAX);
    EXPECT_EQ(TextToInt(u"-2147483648"), INT_MIN);
    EXPECT_EQ(TextToInt(u"-99999999999999999999999"), INT_MIN);
}

TEST_F(XMLFile, TellsItsClass)
{
    const OpenXMLFile file;
    EXPECT_STREQ(file.GetRuntimeClass()->name, "CXMLFile");
    EXPECT_TRUE(file.IsKindOf(CXMLFile::GetThisClass()));
    EXPECT_TRUE(file.IsKindOf(CObject::GetThisClass()));
    const CRuntimeClass other = {"CXMLFile", nullptr};
    EXPECT_FALSE(file.IsKindOf(&other));
}

TEST_F(XMLFile, IsReadByTheFirstGet)
{
    OpenXMLFile file(PathOf("a"));
    EXPECT_EQ(file.GetIntFromXMLFile(u"Editor", u"Width"), 0);
    Put("a", kSmall);
    EXPECT_EQ(file.GetIntFromXMLFile(u"Editor", u"Width"), 12);
    EXPECT_FALSE(file.GetModified());
}

TEST_F(XMLFile, ReadsWhatIsMissingAsEmpty)
{
    Put("a", kSmall);
    OpenXMLFile file(PathOf("a"));
    EXPECT_EQ(file.GetStringFromXMLFile(u"Absent", u"Width"), QString());
    EXPECT_EQ(file.GetStringFromXMLFile(u"Editor", u"Absent"), QString());
    EXPECT_EQ(file.GetStringFromXMLFile(u"Editor", u"Empty"), QString());
    EXPECT_EQ(file.GetIntFromXMLFile(u"Editor", u"Empty"), 0);
    EXPECT_FALSE(file.GetBoolFromXMLFile(u"Absent", u"Absent"));
    EXPECT_EQ(file.GetStringFromXMLFile(pug::xml_node(), u"Width"), QString());
    EXPECT_EQ(file.GetStringFromXMLFile(nullptr, u"Width"), QString());
    EXPECT_EQ(file.GetStringFromXMLFile(u"Editor", nullptr), QString());
}

TEST_F(XMLFile, SearchesEachChildsOwnSubtreeFirst)
{
    Put("a", "<R><A><B><K>deep</K></B></A><S><X><K>inner</K></X><K>outer</K></S><K>last</K></R>");
    OpenXMLFile file(PathOf("a"));
    EXPECT_EQ(file.GetStringFromXMLFile(u"R", u"K"), "deep");
    EXPECT_EQ(file.GetStringFromXMLFile(u"S", u"K"), "inner");
}

TEST_F(XMLFile, GivesTheValueOfTheFirstChildWhateverItsKind)
{
    Put("a", "<S><C><!--said--></C><D><![CDATA[<&>]]></D><E><F>f</F></E><M>one<F/>two</M></S>");
    OpenXMLFile file(PathOf("a"));
    EXPECT_EQ(file.GetStringFromXMLFile(u"S", u"C"), "said");
    EXPECT_EQ(file.GetStringFromXMLFile(u"S", u"D"), "<&>");
    EXPECT_EQ(file.GetStringFromXMLFile(u"S", u"E"), "");
    EXPECT_EQ(file.GetStringFromXMLFile(u"S", u"M"), "one");
}

TEST_F(XMLFile, TakesEveryNumberButZeroForTrue)
{
    Put("a", "<S><A>2</A><B>yes</B><C>-1</C><D>0</D><E> 1</E></S>");
    OpenXMLFile file(PathOf("a"));
    EXPECT_TRUE(file.GetBoolFromXMLFile(u"S", u"A"));
    EXPECT_FALSE(file.GetBoolFromXMLFile(u"S", u"B"));
    EXPECT_TRUE(file.GetBoolFromXMLFile(u"S", u"C"));
    EXPECT_FALSE(file.GetBoolFromXMLFile(u"S", u"D"));
    EXPECT_TRUE(file.GetBoolFromXMLFile(u"S", u"E"));
}

TEST_F(XMLFile, LoadsWithAByteOrderMarkAsTextBeforeTheFirstElement)
{
    Put("a", QByteArray("\xEF\xBB\xBF") + kSmall);
    OpenXMLFile file(PathOf("a"));
    EXPECT_EQ(file.GetIntFromXMLFile(u"Editor", u"Width"), 12);
    ASSERT_TRUE(file.SetIntToXMLFile(u"Editor", u"Width", 13));
    EXPECT_TRUE(file.Save());
    EXPECT_TRUE(Get("a").startsWith("\xEF\xBB\xBF<Root>\r\n"));
}

TEST_F(XMLFile, LoadsAMarkAsTextInCodePage65001Too)
{
    Put("a", QByteArray("\xEF\xBB\xBF") + kSmall);
    platform::SetSystemCodePage(65001);
    OpenXMLFile file(PathOf("a"));
    EXPECT_TRUE(file.SetIntToXMLFile(u"Editor", u"Width", 13));
    EXPECT_TRUE(file.Save());
    platform::SetSystemCodePage(1252);
    EXPECT_TRUE(Get("a").startsWith("\xEF\xBB\xBF<Root>\r\n"));
}

TEST_F(XMLFile, WithAMarkKeepsItsLengthAtEachSave)
{
    for (const char* behind : {"", "\n", "\r\n"}) {
        Put("a", QByteArray("\xEF\xBB\xBF") + behind +
                     "<R>\r\n\t<S>\r\n\t\t<K>1</K>\r\n\t</S>\r\n</R>\r\n");
        QByteArray before;
        for (int value = 2; value < 5; ++value) {
            OpenXMLFile file(PathOf("a"));
            ASSERT_TRUE(file.SetIntToXMLFile(u"S", u"K", value));
            ASSERT_TRUE(file.Save());
            EXPECT_TRUE(before.isEmpty() || Get("a").size() == before.size());
            before = Get("a");
        }
        EXPECT_EQ(before.count('\n'), *behind ? 6 : 5);
    }
}

TEST_F(XMLFile, IsReadAndWrittenInTheSystemsCodePage)
{
    QByteArray high;
    for (int byte = 0x80; byte <= 0xFF; ++byte)
        high += static_cast<char>(byte);
    Put("a", "<S><K>" + high + "</K><N>0</N></S>");
    OpenXMLFile file(PathOf("a"));
    EXPECT_EQ(file.GetStringFromXMLFile(u"S", u"K").left(2), QStringLiteral("\u20AC\u0081"));
    EXPECT_TRUE(file.SetIntToXMLFile(u"S", u"N", 1));
    EXPECT_TRUE(file.Save());
    EXPECT_EQ(Get("a"), "<S>\r\n\t<K>" + high + "</K>\r\n\t<N>1</N>\r\n</S>\r\n");
}

TEST_F(XMLFile, WritesWhatTheCodePageLacksAsQuestionMarks)
{
    Put("a", "<S><K>1</K></S>");
    OpenXMLFile file(PathOf("a"));
    EXPECT_TRUE(file.SetStringToXMLFile(u"S", u"K", QStringLiteral("a\u0416b"), true));
    EXPECT_TRUE(file.Save());
    EXPECT_EQ(Get("a"), "<S>\r\n\t<K>a?b</K>\r\n</S>\r\n");
}

TEST_F(XMLFile, EndsAtTheFirstZeroByte)
{
    Put("a", QByteArray("<S><K>1</K></S>\0</S>", 20));
    EXPECT_EQ(OpenXMLFile(PathOf("a")).GetIntFromXMLFile(u"S", u"K"), 1);
    Put("b", QByteArray("<S><K>1\0</K></S>", 16));
    EXPECT_FALSE(OpenXMLFile(PathOf("b")).Parse());
}

TEST_F(XMLFile, DoesNotExpandEntities)
{
    Put("a", "<S><K>a &amp; b</K><L n=\"&lt;\"/></S>");
    OpenXMLFile file(PathOf("a"));
    EXPECT_EQ(file.GetStringFromXMLFile(u"S", u"K"), "a &amp; b");
    EXPECT_EQ(file.GetStringAttributeFromXMLFile(u"S", u"L", u"n"), "&lt;");
}

TEST_F(XMLFile, IsNotReadAgainUntilItIsClearedOrReverted)
{
    Put("a", kSmall);
    OpenXMLFile file(PathOf("a"));
    ASSERT_TRUE(file.Parse());
    Put("a", "<Editor><Width>99</Width></Editor>");
    EXPECT_TRUE(file.Parse());
    EXPECT_EQ(file.GetIntFromXMLFile(u"Editor", u"Width"), 12);
    EXPECT_TRUE(file.Revert());
    EXPECT_EQ(file.GetIntFromXMLFile(u"Editor", u"Width"), 12) << "nothing was modified";
    file.Clear();
    EXPECT_EQ(file.GetIntFromXMLFile(u"Editor", u"Width"), 99);
    ASSERT_TRUE(file.SetIntToXMLFile(u"Editor", u"Width", 1));
    EXPECT_TRUE(file.Revert());
    EXPECT_FALSE(file.GetModified());
    EXPECT_EQ(file.GetIntFromXMLFile(u"Editor", u"Width"), 99);
}

TEST_F(XMLFile, SaveLeavesAnUnmodifiedFileAlone)
{
    Put("a", kSmall);
    OpenXMLFile file(PathOf("a"));
    EXPECT_FALSE(file.Save()) << "never parsed";
    file.SetModified(true);
    EXPECT_FALSE(file.Save()) << "never parsed";
    file.SetModified(false);
    ASSERT_TRUE(file.Parse());
    QFile disk(PathOf("a"));
    ASSERT_TRUE(disk.open(QIODevice::ReadWrite));
    const auto old = QDateTime::fromSecsSinceEpoch(1'000'000'000);
    ASSERT_TRUE(disk.setFileTime(old, QFileDevice::FileModificationTime));
    disk.close();
    EXPECT_TRUE(file.Save());
    EXPECT_EQ(QFileInfo(PathOf("a")).lastModified(), old);
    EXPECT_EQ(Get("a"), kSmall);
}

TEST_F(XMLFile, SaveGoesToTheNameThatIsSetLast)
{
    Put("a", "<S><K>1</K></S>");
    OpenXMLFile file(PathOf("a"));
    ASSERT_TRUE(file.SetIntToXMLFile(u"S", u"K", 2));
    file.SetFilename(PathOf("b"));
    EXPECT_TRUE(file.GetModified());
    EXPECT_TRUE(file.Save());
    EXPECT_EQ(Get("a"), "<S><K>1</K></S>");
    EXPECT_EQ(Get("b"), "<S>\r\n\t<K>2</K>\r\n</S>\r\n");
}

TEST_F(XMLFile, ASetNeverMakesASection)
{
    Put("a", kSmall);
    OpenXMLFile file(PathOf("a"));
    for (const char16_t* section : {u"Absent", u"Nothing", u"Blank"}) {
        EXPECT_FALSE(file.SetIntToXMLFile(section, u"Width", 1));
        EXPECT_EQ(file.GetStringFromXMLFile(section, u"Width"), QString());
    }
    EXPECT_FALSE(file.GetModified());
}

TEST_F(XMLFile, ASetMakesAMissingKey)
{
    Put("a", "<S><K>1</K></S>");
    OpenXMLFile file(PathOf("a"));
    EXPECT_TRUE(file.SetIntToXMLFile(u"S", u"New", -5));
    EXPECT_TRUE(file.GetModified());
    EXPECT_TRUE(file.SetStringToXMLFile(u"S", u"Marks", QStringLiteral("<>"), false));
    EXPECT_TRUE(file.Save());
    EXPECT_FALSE(file.GetModified());
    EXPECT_EQ(Get("a"), "<S>\r\n\t<K>1</K>\r\n\t<New>-5</New>\r\n"
                        "\t<Marks>\r\n\t\t<![CDATA[<>]]>\r\n\t</Marks>\r\n</S>\r\n");
}

TEST_F(XMLFile, ASetFillsAnEmptyKey)
{
    Put("a", kSmall);
    OpenXMLFile file(PathOf("a"));
    EXPECT_TRUE(file.SetBoolToXMLFile(u"Editor", u"Empty", true));
    EXPECT_EQ(file.GetStringFromXMLFile(u"Editor", u"Empty"), "1");
    EXPECT_TRUE(file.GetModified());
}

TEST_F(XMLFile, ASetChangesTheKindOfTheFirstChild)
{
    Put("a", "<S><K>1</K><E><F>f</F><G/></E></S>");
    OpenXMLFile file(PathOf("a"));
    EXPECT_TRUE(file.SetStringToXMLFile(u"S", u"K", QStringLiteral("x"), false));
    EXPECT_EQ(file.Find(u"K").first_child().type(), pug::node_cdata);
    EXPECT_TRUE(file.SetStringToXMLFile(u"S", u"K", QStringLiteral("y"), true));
    EXPECT_EQ(file.Find(u"K").first_child().type(), pug::node_pcdata);
    EXPECT_EQ(file.Find(u"K").children(), 1);
    EXPECT_TRUE(file.SetStringToXMLFile(u"S", u"E", QStringLiteral("z"), true));
    EXPECT_EQ(file.GetStringFromXMLFile(u"S", u"E"), "z");
    EXPECT_TRUE(file.Find(u"F").empty());
    EXPECT_FALSE(file.Find(u"G").empty());
}

TEST_F(XMLFile, ASetOnAnEmptyNodeFails)
{
    OpenXMLFile file;
    pug::xml_node none;
    EXPECT_FALSE(file.SetStringToXMLFile(none, u"K", QStringLiteral("1"), true));
    EXPECT_FALSE(file.SetIntToXMLFile(none, u"K", 1));
    EXPECT_FALSE(file.SetStringAttributeToXMLFile(none, u"k", QStringLiteral("1")));
    EXPECT_FALSE(file.GetModified());
}

TEST_F(XMLFile, AttributesBelongToTheSectionOrToAKey)
{
    Put("a", "<R><Languages count=\"3\"><Language number=\"0\"/></Languages></R>");
    OpenXMLFile file(PathOf("a"));
    EXPECT_EQ(file.GetIntAttributeFromXMLFile(u"Languages", nullptr, u"count"), 3);
    EXPECT_EQ(file.GetStringAttributeFromXMLFile(u"Languages", u"Language", u"number"), "0");
    EXPECT_EQ(file.GetStringAttributeFromXMLFile(u"Languages", u"Absent", u"number"), "");
    EXPECT_EQ(file.GetStringAttributeFromXMLFile(u"Language", nullptr, u"number"), "")
        << "a section without children";
    EXPECT_FALSE(file.SetIntAttributeToXMLFile(u"Language", nullptr, u"number", 1));
    EXPECT_FALSE(file.SetIntAttributeToXMLFile(u"Languages", u"Absent", u"number", 1));
    EXPECT_FALSE(file.GetModified());
    EXPECT_TRUE(file.SetIntAttributeToXMLFile(u"Languages", nullptr, u"count", 4));
    EXPECT_TRUE(file.GetModified());
    EXPECT_EQ(file.GetIntAttributeFromXMLFile(file.Find(u"Languages"), u"count"), 4);
}

TEST_F(XMLFile, TheFirstAttributeOfAnElementTellsWhetherItReadsAsTrue)
{
    for (const char* value : {"1", "true", "T", "y", "Yes", "0", "red", "", "2"}) {
        Put("a", "<S><K>1</K></S>");
        OpenXMLFile file(PathOf("a"));
        const QString text = QString::fromLatin1(value);
        const bool reads = !text.isEmpty() && QStringLiteral("1tTyY").contains(text[0]);
        EXPECT_EQ(file.SetStringAttributeToXMLFile(u"S", u"K", u"use", text), reads) << value;
        EXPECT_FALSE(file.GetModified());
        EXPECT_EQ(file.Find(u"K").attributes(), 1);
        EXPECT_EQ(file.GetStringAttributeFromXMLFile(u"S", u"K", u"use"), text);
    }
}

TEST_F(XMLFile, FurtherAttributesMarkTheFile)
{
    Put("a", kSmall);
    OpenXMLFile file(PathOf("a"));
    EXPECT_TRUE(file.SetBoolAttributeToXMLFile(u"Editor", u"Colour", u"use", false));
    EXPECT_FALSE(file.GetBoolAttributeFromXMLFile(u"Editor", u"Colour", u"use"));
    EXPECT_TRUE(file.GetModified());
    file.SetModified(false);
    EXPECT_TRUE(file.SetBoolAttributeToXMLFile(file.Find(u"Colour"), u"extra", false));
    EXPECT_TRUE(file.GetModified());
    EXPECT_EQ(file.Find(u"Colour").attributes(), 3);
}

// Every access of the typed families passes the eight string operations.
struct RedirectedFile : OpenXMLFile
{
    QString GetStringFromXMLFile(const pug::xml_node&, const char16_t*) override { return "1"; }
    QString GetStringFromXMLFile(const char16_t*, const char16_t*) override { return "2"; }
    QString GetStringAttributeFromXMLFile(pug::xml_node&, const char16_t*) override { return "3"; }
    QString GetStringAttributeFromXMLFile(const char16_t*, const char16_t*,
                                          const char16_t*) override
    {
        return "4";
    }
};

TEST_F(XMLFile, TypedFamiliesGoThroughTheStringOperations)
{
    RedirectedFile file;
    EXPECT_EQ(file.GetIntFromXMLFile(pug::xml_node(), u"k"), 1);
    EXPECT_EQ(file.GetIntFromXMLFile(u"s", u"k"), 2);
    EXPECT_EQ(file.GetIntAttributeFromXMLFile(pug::xml_node(), u"a"), 3);
    EXPECT_EQ(file.GetIntAttributeFromXMLFile(u"s", u"k", u"a"), 4);
    EXPECT_TRUE(file.GetBoolFromXMLFile(u"s", u"k"));
}

} // namespace

TEST_F(XMLFile, ReadsTheUsersCopyInThePlaceOfTheFileWhereThereIsOne)
{
    Put("f", "<A><B>file</B></A>");
    Put("copy", "<A><B>copy</B></A>");
    OpenXMLFile both(PathOf("f"));
    both.SetUserCopy(PathOf("copy"));
    EXPECT_EQ(both.GetStringFromXMLFile(u"A", u"B"), QStringLiteral("copy"));
    OpenXMLFile without(PathOf("f"));
    without.SetUserCopy(PathOf("missing"));
    EXPECT_EQ(without.GetStringFromXMLFile(u"A", u"B"), QStringLiteral("file"));
}

TEST_F(XMLFile, NothingIsSetInAFileThatCannotBeRead)
{
    OpenXMLFile missing(PathOf("missing"));
    EXPECT_FALSE(missing.SetStringAttributeToXMLFile(u"A", u"B", u"c", QStringLiteral("v")));
    EXPECT_FALSE(missing.SetStringToXMLFile(u"A", u"B", QStringLiteral("v"), true));
}
