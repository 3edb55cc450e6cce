// SPDX-License-Identifier: GPL-3.0-or-later
// A language by its two files: routing, styles, keywords, lexer.
#include "SettingsFolder.h"
#include "tests/platform/file/FullDisk.h"
#include "tests/platform/file/OrdinaryUser.h"

#include "settings/SyntaxFile.h"

#include <QDir>

#include <functional>

namespace {

struct OpenSyntaxFile : CSyntaxFile
{
    using CSyntaxFile::ColorIntValueToRGBHex;
    using CSyntaxFile::GetBoolAttributeFromXMLFile;
    using CSyntaxFile::GetStringFromXMLFile;
    using CSyntaxFile::GetStyleNode;
    using CSyntaxFile::RGBHexValueToColorInt;
    using CSyntaxFile::SetStringAttributeToXMLFile;
    using CSyntaxFile::SetStringToXMLFile;
};

const QByteArray kStyles = "<StyleInformation><StyleBits>5</StyleBits><StyleMax>127</StyleMax>"
                           "<Style number=\"0\"><Name>Default</Name>"
                           "<Font><Name>Mono</Name><Size>10</Size><Bold>0</Bold></Font>"
                           "<Color><Foreground>FF8000</Foreground><Background/></Color></Style>"
                           "<Style number=\"128\"><Name>Far</Name></Style>"
                           "<Style number=\"-1\"><Name>Below</Name></Style></StyleInformation>";
const QByteArray kBase =
    "<Syntax><Lexer><Name>ZNEDITLEX_SQL</Name><Property name=\"fold\">1</Property>"
    "<Property name=\"fold\">2</Property><Property>x</Property><Property other=\"e\"/>"
    "<Property key=\"b\">3</Property></Lexer>"
    "<Keywords set=\"0\" description=\"Reserved\"><Word>select</Word><Other>x</Other><Word/>"
    "<Word>from</Word></Keywords><Keywords set=\"2\" description=\"\"><Word>abs</Word>"
    "<Word>from</Word><Word>Abs</Word></Keywords><Keywords set=\"3\"><Word>go</Word></Keywords>"
    "<View><TabWidth>4</TabWidth></View>"
    "<LanguageDefines><Braces>()</Braces><SingleLineComment default=\"1\">--|//"
    "</SingleLineComment><BlockComment>/*|*/</BlockComment></LanguageDefines>" +
    kStyles + "</Syntax>";

class SyntaxFile : public SettingsFolder
{
protected:
    void Open(const QByteArray& base = kBase)
    {
        Put("base", base);
        syntax.SetFilename(PathOf("base"));
        syntax.SetCustomFilename(PathOf("custom"));
        ASSERT_TRUE(syntax.Parse());
    }
    void OpenWithCustom(const QByteArray& custom)
    {
        Put("custom", custom);
        Open();
    }

    OpenSyntaxFile syntax;
};

TEST_F(SyntaxFile, TellsItsClass)
{
    EXPECT_STREQ(syntax.GetRuntimeClass()->name, "CSyntaxFile");
    EXPECT_TRUE(syntax.IsKindOf(CXMLFile::GetThisClass()));
}

// Every setting, with the place where its value stands in the base file.
struct Setting
{
    const char* path;
    std::function<int(CSyntaxFile&)> get;
    std::function<bool(CSyntaxFile&, int)> set;
    bool isBool = false;
};

template <auto Get, auto Set>
Setting Row(const char* path)
{
    using Value = decltype((std::declval<CSyntaxFile&>().*Get)());
    return {path, [](CSyntaxFile& file) { return static_cast<int>((file.*Get)()); },
            [](CSyntaxFile& file, int value) { return (file.*Set)(static_cast<Value>(value)); },
            std::is_same_v<Value, bool>};
}

using S = CSyntaxFile;
// clang-format off
const Setting kSettings[] = {
    Row<&S::GetWhiteSpace, &S::SetWhiteSpace>("View/WhiteSpace"),
    Row<&S::GetEOL, &S::SetEOL>("View/EOL"),
    Row<&S::GetWordWrap, &S::SetWordWrap>("View/WordWrap"),
    Row<&S::GetTabWidth, &S::SetTabWidth>("View/TabWidth"),
    Row<&S::GetTabsToSpaces, &S::SetTabsToSpaces>("View/TabsToSpaces"),
    Row<&S::GetSyntaxHighlighting, &S::SetSyntaxHighlighting>("CodeHighlight/SyntaxHighlighting"),
    Row<&S::GetBraceMatch, &S::SetBraceMatch>("CodeHighlight/BraceMatching"),
    Row<&S::GetAutoCompletion, &S::SetAutoCompletion>("AutoComp/AutoCompletion"),
    Row<&S::GetCodeCompletion, &S::SetCodeCompletion>("AutoComp/CodeCompletion"),
    Row<&S::GetACKey, &S::SetACKey>("AutoComp/AutoCompKey"),
    Row<&S::GetEnsureFinalNewLine, &S::SetEnsureFinalNewLine>("OnSave/EnsureFinalNewLine"),
    Row<&S::GetConvertTabsToSpaces, &S::SetConvertTabsToSpaces>("OnSave/ConvertTabsToSpaces"),
    Row<&S::GetTrimTrailingSpaces, &S::SetTrimTrailingSpaces>("OnSave/TrimTrailingSpaces"),
    Row<&S::GetIndent, &S::SetIndent>("Indent/Indent"),
    Row<&S::GetIndentSize, &S::SetIndentSize>("Indent/IndentSize"),
    Row<&S::GetAutoIndent, &S::SetAutoIndent>("Indent/AutoIndent"),
    Row<&S::GetIndentGuides, &S::SetIndentGuides>("Indent/IndentGuides"),
    Row<&S::GetMarginLineNumber, &S::SetMarginLineNumber>("Margins/LineNumbers"),
    Row<&S::GetMarginBookmark, &S::SetMarginBookmark>("Margins/BookMark"),
    Row<&S::GetMarginFold, &S::SetMarginFold>("Margins/Fold"),
};
// clang-format on

TEST_F(SyntaxFile, EverySettingStandsInItsSectionUnderItsKey)
{
    for (const Setting& setting : kSettings) {
        SCOPED_TRACE(setting.path);
        const QByteArrayList path = QByteArray(setting.path).split('/');
        syntax.Clear();
        Open("<C><" + path[0] + "><Filler/></" + path[0] + "></C>");
        EXPECT_EQ(setting.get(syntax), 0);
        EXPECT_TRUE(setting.set(syntax, 7));
        EXPECT_EQ(setting.get(syntax), setting.isBool ? 1 : 7);
        EXPECT_TRUE(syntax.Save());
        EXPECT_TRUE(Get("base").contains("<Filler/>\r\n\t\t<" + path[1] + ">" +
                                         (setting.isBool ? "1" : "7") + "</" + path[1] + ">\r\n"));
        syntax.Clear();
        Open("<C><Elsewhere><Filler/></Elsewhere></C>");
        EXPECT_FALSE(setting.set(syntax, 7));
        EXPECT_EQ(setting.get(syntax), 0);
    }
}

TEST_F(SyntaxFile, WhatIsMadeOfMarkupStandsInSectionsOfItsOwn)
{
    Open();
    EXPECT_EQ(syntax.GetBraces(), "()");
    EXPECT_TRUE(syntax.SetBraces("()<>"));
    EXPECT_TRUE(syntax.SetWordCharacters("a&b"));
    EXPECT_TRUE(syntax.SetSingleLineComment("--|<"));
    EXPECT_TRUE(syntax.SetBlockComment("<!--|-->"));
    EXPECT_TRUE(syntax.Save());
    EXPECT_TRUE(Get("base").contains(
        "\t\t<Braces>\r\n\t\t\t<![CDATA[()<>]]>\r\n\t\t</Braces>\r\n"
        "\t\t<SingleLineComment default=\"1\">\r\n\t\t\t<![CDATA[--|<]]>\r\n"));
    syntax.Clear();
    EXPECT_EQ(syntax.GetBraces(), "()<>");
    EXPECT_EQ(syntax.GetWordCharacters(), "a&b");
    EXPECT_EQ(syntax.GetSingleLineComment(), "--|<");
    EXPECT_EQ(syntax.GetBlockComment(), "<!--|-->");
}

TEST_F(SyntaxFile, AnyOtherSectionOfTheCustomFileIsDropped)
{
    OpenWithCustom("<Syntax><Keywords set=\"0\"><Word>mine</Word></Keywords><!--note--><View>"
                   "<TabWidth>9</TabWidth></View>" +
                   kStyles + "text</Syntax>");
    EXPECT_EQ(syntax.GetDelimitedKeywordSet(0, ' '), "select from");
    EXPECT_EQ(syntax.GetTabWidth(), 4);
    EXPECT_TRUE(syntax.SetStyleFontSize(0, 12));
    EXPECT_TRUE(syntax.Save());
    EXPECT_FALSE(Get("custom").contains("Keywords"));
    EXPECT_FALSE(Get("custom").contains("note"));
    EXPECT_FALSE(Get("custom").contains("View"));
    EXPECT_TRUE(Get("custom").startsWith("<Syntax>\r\n\t<StyleInformation>\r\n"));
    EXPECT_TRUE(Get("custom").endsWith("\t</StyleInformation>\r\n</Syntax>\r\n"));
}

TEST_F(SyntaxFile, ReadsTheStyleBitsOfTheCustomFile)
{
    OpenWithCustom("<Syntax><StyleInformation><StyleBits>7</StyleBits>"
                   "</StyleInformation></Syntax>");
    EXPECT_EQ(syntax.GetStyleBits(), 7);
    syntax.Clear();
    Put("custom", "<Syntax><StyleInformation><StyleMax>1</StyleMax></StyleInformation></Syntax>");
    EXPECT_EQ(syntax.GetStyleBits(), 0);
    EXPECT_EQ(syntax.GetStyleMax(), 1);
}

TEST_F(SyntaxFile, StartsWithTheStylesOfTheBaseFile)
{
    Open();
    EXPECT_EQ(syntax.GetStyleBits(), 5);
    EXPECT_EQ(syntax.GetStyleName(0), "Default");
    EXPECT_FALSE(QFile::exists(PathOf("custom")));
    EXPECT_TRUE(syntax.SetTabWidth(8));
    EXPECT_TRUE(syntax.Save());
    EXPECT_TRUE(Get("custom").startsWith("<Syntax>\r\n\t<StyleInformation>\r\n\t\t<StyleBits>5<"));
    EXPECT_FALSE(syntax.GetModified());
}

TEST_F(SyntaxFile, ABrokenCustomFileIsReplacedByTheStylesOfTheBaseFile)
{
    OpenWithCustom("<Syntax><StyleInformation>");
    EXPECT_EQ(syntax.GetStyleName(0), "Default");
    EXPECT_TRUE(syntax.SetStyleFontBold(0, true));
    EXPECT_TRUE(syntax.Save());
    EXPECT_TRUE(Get("custom").contains("<Bold>1</Bold>"));
    EXPECT_TRUE(Get("base").contains("<Bold>0</Bold>"));
}

TEST_F(SyntaxFile, ABrokenCustomFileIsNotReplacedByAnEmptyOne)
{
    Put("custom", "<Syntax><StyleInformation>");
    Open("<Syntax><View><TabWidth>4</TabWidth></View></Syntax>");
    EXPECT_TRUE(syntax.SetTabWidth(8));
    EXPECT_TRUE(syntax.Save());
    EXPECT_EQ(Get("custom"), "<Syntax><StyleInformation>");
}

TEST_F(SyntaxFile, FindsStylesUpToTheGreatestNumber)
{
    Open();
    EXPECT_EQ(syntax.GetStyleName(128), "");
    EXPECT_EQ(syntax.GetStyleName(-1), "Below");
    EXPECT_EQ(syntax.GetStyleName(5), "");
    syntax.Clear();
    Put("custom", "<Syntax>" + QByteArray(kStyles).replace("127", "255") + "</Syntax>");
    EXPECT_EQ(syntax.GetStyleName(128), "Far");
    syntax.Clear();
    Put("custom", "<Syntax>" + QByteArray(kStyles).replace("127", "") + "</Syntax>");
    EXPECT_EQ(syntax.GetStyleName(128), "Far") << "without a number the last one holds";
}

TEST_F(SyntaxFile, ReadsAndWritesStyles)
{
    Open();
    EXPECT_EQ(syntax.GetStyleFontName(0), "Mono");
    EXPECT_EQ(syntax.GetStyleFontSize(0), 10);
    EXPECT_FALSE(syntax.GetStyleFontBold(0));
    EXPECT_FALSE(syntax.GetStyleFontItalic(0));
    EXPECT_EQ(syntax.GetStyleColorForeground(0), 0x0080FF);
    EXPECT_EQ(syntax.GetStyleColorBackground(0), 0);
    EXPECT_TRUE(syntax.SetStyleFontName(0, "Sans"));
    EXPECT_TRUE(syntax.SetStyleFontSize(0, 14));
    EXPECT_TRUE(syntax.SetStyleFontBold(0, true));
    EXPECT_TRUE(syntax.SetStyleFontItalic(0, true));
    EXPECT_TRUE(syntax.SetStyleFontUnderline(0, true));
    EXPECT_TRUE(syntax.SetStyleColorForeground(0, 0x010203));
    EXPECT_TRUE(syntax.SetStyleColorBackground(0, 0xFFFFFF));
    EXPECT_TRUE(syntax.Save());
    syntax.Clear();
    EXPECT_EQ(syntax.GetStyleName(0), "Default");
    EXPECT_EQ(syntax.GetStyleFontName(0), "Sans");
    EXPECT_EQ(syntax.GetStyleFontSize(0), 14);
    EXPECT_TRUE(syntax.GetStyleFontBold(0));
    EXPECT_TRUE(syntax.GetStyleFontItalic(0));
    EXPECT_TRUE(syntax.GetStyleFontUnderline(0));
    EXPECT_EQ(syntax.GetStyleColorForeground(0), 0x010203);
    EXPECT_EQ(syntax.GetStyleColorBackground(0), 0xFFFFFF);
    EXPECT_TRUE(Get("custom").contains("<Foreground>030201</Foreground>"));
}

TEST_F(SyntaxFile, AStyleThatIsMissingReadsAsEmptyAndCannotBeSet)
{
    Open();
    EXPECT_EQ(syntax.GetStyleFontSize(128), 0);
    EXPECT_EQ(syntax.GetStyleColorForeground(77), 0);
    EXPECT_FALSE(syntax.SetStyleFontSize(128, 1));
    EXPECT_FALSE(syntax.SetStyleFontName(77, "x"));
    EXPECT_FALSE(syntax.SetStyleColorForeground(77, 1));
    EXPECT_FALSE(syntax.GetModified());
}

TEST_F(SyntaxFile, DescribesKeywordSets)
{
    Open();
    EXPECT_EQ(syntax.GetKeywordSetDescription(0), "Reserved");
    EXPECT_EQ(syntax.GetKeywordSetDescription(1), "") << "no such set";
    EXPECT_EQ(syntax.GetKeywordSetDescription(2), "Keywords 3");
    EXPECT_EQ(syntax.GetKeywordSetDescription(3), "") << "no description";
    EXPECT_EQ(syntax.GetKeywordSetDescription(8), "");
    EXPECT_EQ(syntax.GetKeywordSetDescription(-1), "");
}

TEST_F(SyntaxFile, JoinsKeywordsInTheOrderOfTheFileOrSorted)
{
    Open();
    EXPECT_EQ(syntax.GetDelimitedKeywordSet(0, '|'), "select|from");
    EXPECT_EQ(syntax.GetDelimitedKeywordSet(1, '|'), "");
    EXPECT_EQ(syntax.GetDelimitedKeywordSet(8, '|'), "");
    EXPECT_EQ(syntax.GetDelimitedKeywordSet(-1, '|'), "");
    EXPECT_EQ(syntax.GetDelimitedKeywords(' '), "Abs abs from from go select");
    EXPECT_EQ(syntax.GetDelimitedKeywordSet(0, ' '), "select from") << "the set stays as it was";
}

TEST_F(SyntaxFile, DropsALastWordOfOneCharacter)
{
    Open();
    EXPECT_TRUE(syntax.SetDelimitedKeywordSet(0, "ab cd e", ' '));
    EXPECT_EQ(syntax.GetDelimitedKeywordSet(0, ' '), "ab cd");
    EXPECT_TRUE(syntax.SetDelimitedKeywordSet(0, "ab cd ef", ' '));
    EXPECT_EQ(syntax.GetDelimitedKeywordSet(0, ' '), "ab cd ef");
    EXPECT_TRUE(syntax.SetDelimitedKeywordSet(0, "  a  b ", ' '));
    EXPECT_EQ(syntax.GetDelimitedKeywordSet(0, ' '), "a b");
    EXPECT_TRUE(syntax.SetDelimitedKeywordSet(0, "x", ' '));
    EXPECT_EQ(syntax.GetDelimitedKeywordSet(0, ' '), "");
}

TEST_F(SyntaxFile, WritesTheKeywordsThatAreSet)
{
    Open();
    EXPECT_TRUE(syntax.SetDelimitedKeywordSet(0, "ab,cd", ','));
    EXPECT_TRUE(syntax.GetModified());
    EXPECT_TRUE(syntax.Save());
    EXPECT_TRUE(
        Get("base").contains("\t<Keywords set=\"0\" description=\"Reserved\">\r\n"
                             "\t\t<Word>ab</Word>\r\n\t\t<Word>cd</Word>\r\n\t</Keywords>"));
}

TEST_F(SyntaxFile, KeepsTheWordsOfASetThatTheFileLacks)
{
    Open();
    EXPECT_FALSE(syntax.SetDelimitedKeywordSet(5, "ab cd", ' '));
    EXPECT_FALSE(syntax.GetModified());
    EXPECT_EQ(syntax.GetDelimitedKeywordSet(5, ' '), "ab cd");
    EXPECT_FALSE(syntax.SetDelimitedKeywordSet(8, "ab cd", ' '));
    EXPECT_FALSE(syntax.SetDelimitedKeywordSet(-1, "ab cd", ' '));
}

TEST_F(SyntaxFile, KeywordsOutliveClearUntilTheNextParseReplacesThem)
{
    Open();
    syntax.Clear();
    EXPECT_EQ(syntax.GetDelimitedKeywordSet(0, ' '), "select from");
    EXPECT_EQ(syntax.GetKeywordSetDescription(0), "Reserved");
    EXPECT_TRUE(syntax.Parse());
    EXPECT_EQ(syntax.GetDelimitedKeywordSet(0, ' '), "select from");
    EXPECT_TRUE(syntax.SetTabWidth(1));
    EXPECT_TRUE(syntax.Revert());
    EXPECT_EQ(syntax.GetTabWidth(), 4);
    EXPECT_EQ(syntax.GetDelimitedKeywordSet(0, ' '), "select from");
}

TEST_F(SyntaxFile, AForcedParseReadsTheCustomFileAgainAndAddsTheKeywordsAgain)
{
    Open();
    Put("base", "<Syntax><View><TabWidth>9</TabWidth></View></Syntax>");
    Put("custom", "<Syntax><StyleInformation><StyleBits>3</StyleBits></StyleInformation></Syntax>");
    EXPECT_TRUE(syntax.Parse());
    EXPECT_EQ(syntax.GetStyleBits(), 5);
    EXPECT_TRUE(syntax.CSyntaxFile::Parse(true));
    EXPECT_EQ(syntax.GetStyleBits(), 3);
    EXPECT_EQ(syntax.GetTabWidth(), 4);
    EXPECT_EQ(syntax.GetDelimitedKeywordSet(0, ' '), "select from select from");
}

TEST_F(SyntaxFile, GivesTheLexersNumber)
{
    const std::pair<const char*, int> names[] = {
        {"<Name>42</Name>", 42},
        {"<Name>ZNEDITLEX_sql</Name>", -1},
        {"<Name/>", 0},
        {"<Other/>", -1},
        {"<Name>ZNEDITLEX_CONTAINER</Name>", 0},
        {"<Name>ZNEDITLEX_INTERBASE</Name>", 15},
        {"<Name>ZNEDITLEX_SQLAZURE</Name>", 17},
        {"<Name>ZNEDITLEX_PHPSCRIPT</Name>", 30},
        {"<Name>4x</Name>", -1},
        {"<Name>-1</Name>", -1},
        {"<Name> 4</Name>", -1},
    };
    for (const auto& [name, number] : names) {
        syntax.Clear();
        EXPECT_EQ(syntax.GetLexerNumber(), -1) << "not parsed";
        Open(QByteArray("<Syntax><Lexer>") + name + "</Lexer></Syntax>");
        EXPECT_EQ(syntax.GetLexerNumber(), number) << name;
    }
}

TEST_F(SyntaxFile, GivesTheLexersProperties)
{
    CMapStringToString properties;
    EXPECT_EQ(syntax.GetLexerProperties(properties), 0);
    Open();
    EXPECT_EQ(syntax.GetLexerProperties(properties), 3) << "a repeated key counts again";
    EXPECT_EQ(properties, (CMapStringToString{{"fold", "2"}, {"b", "3"}}));
}

TEST_F(SyntaxFile, TellsTheCommentsToStartWith)
{
    EXPECT_EQ(syntax.GetDefaultSingleLineComment(), -1);
    EXPECT_FALSE(syntax.SetDefaultSingleLineComment(0));
    Open();
    EXPECT_EQ(syntax.GetDefaultSingleLineComment(), 1);
    EXPECT_EQ(syntax.GetDefaultBlockComment(), -1);
    EXPECT_TRUE(syntax.SetDefaultBlockComment(0)) << "a first attribute like any other here";
    EXPECT_TRUE(syntax.GetModified());
    EXPECT_TRUE(syntax.SetDefaultSingleLineComment(2));
    EXPECT_EQ(syntax.GetDefaultBlockComment(), 0);
    EXPECT_EQ(syntax.GetDefaultSingleLineComment(), 2);
    syntax.Clear();
    Open("<Syntax/>");
    EXPECT_FALSE(syntax.SetDefaultBlockComment(0));
}

TEST_F(SyntaxFile, AFirstAttributeThatReadsAsTrueMarksTheFile)
{
    Open();
    EXPECT_FALSE(syntax.SetStringAttributeToXMLFile(u"View", u"TabWidth", u"a", "0"));
    EXPECT_FALSE(syntax.GetModified());
    EXPECT_TRUE(syntax.SetStringAttributeToXMLFile(u"LanguageDefines", u"Braces", u"a", "1"));
    EXPECT_TRUE(syntax.GetModified());
    EXPECT_TRUE(syntax.GetBoolAttributeFromXMLFile(u"LanguageDefines", u"Braces", u"a"));
}

TEST_F(SyntaxFile, ConvertsColours)
{
    EXPECT_EQ(OpenSyntaxFile::ColorIntValueToRGBHex(255), "FF0000");
    EXPECT_EQ(OpenSyntaxFile::ColorIntValueToRGBHex(0x0080FF), "FF8000");
    EXPECT_EQ(OpenSyntaxFile::ColorIntValueToRGBHex(-1), "FFFFFF");
    EXPECT_EQ(OpenSyntaxFile::ColorIntValueToRGBHex(0x7F123456), "563412");
    EXPECT_EQ(OpenSyntaxFile::RGBHexValueToColorInt("ff0000"), 255);
    EXPECT_EQ(OpenSyntaxFile::RGBHexValueToColorInt("FF8000"), 0x0080FF);
    EXPECT_EQ(OpenSyntaxFile::RGBHexValueToColorInt("FF80g-"), 0x0080FF);
    EXPECT_EQ(OpenSyntaxFile::RGBHexValueToColorInt("abcdef12"), 0xEFCDAB);
    EXPECT_EQ(OpenSyntaxFile::RGBHexValueToColorInt(""), 0);
    EXPECT_EQ(OpenSyntaxFile::RGBHexValueToColorInt("FF"), 0xFF);
    const QString digits = "0123456789abcdef";
    for (int unit = 1; unit <= 0xFFFF; ++unit) {
        const QChar digit(unit);
        const auto value = unit < 0x80 ? digits.indexOf(digit.toLower()) : -1;
        ASSERT_EQ(OpenSyntaxFile::RGBHexValueToColorInt(QString(6, digit)),
                  value < 0 ? 0 : value * 0x111111)
            << unit;
    }
}

TEST_F(SyntaxFile, CopiesANodeWithAllBelowIt)
{
    pug::xml_parser from;
    ASSERT_TRUE(from.parse("<A a=\"1\" b=\"2\"><B>t</B><![CDATA[<]]><!--c--></A>"));
    pug::xml_parser to;
    ASSERT_TRUE(to.parse("<T/>"));
    pug::xml_node source = from.document().first_child();
    pug::xml_node target = to.document().first_child();
    syntax.CopyNode(source, target);
    from.clear();
    const pug::xml_node copy = target.first_child();
    EXPECT_EQ(copy.name(), "A");
    EXPECT_EQ(copy.attributes(), 2);
    EXPECT_EQ(copy.first_attribute().next_attribute().value(), "2");
    EXPECT_EQ(copy.first_element_by_name(u"B").first_child().value(), "t");
    EXPECT_EQ(copy.child(1).type(), pug::node_cdata);
    EXPECT_EQ(copy.child(2).value(), "c");
}

TEST_F(SyntaxFile, WithoutABaseFileEverythingIsEmpty)
{
    Put("custom", "<Syntax>" + kStyles + "</Syntax>");
    syntax.SetFilename(PathOf("base"));
    syntax.SetCustomFilename(PathOf("custom"));
    EXPECT_FALSE(syntax.Parse());
    EXPECT_EQ(syntax.GetStyleName(0), "");
    EXPECT_EQ(syntax.GetStyleBits(), 0);
    EXPECT_FALSE(syntax.SetStyleFontSize(0, 1));
    EXPECT_FALSE(syntax.SetTabWidth(1));
    EXPECT_FALSE(syntax.Save());
    EXPECT_EQ(Get("custom"), "<Syntax>" + kStyles + "</Syntax>");
}

TEST_F(SyntaxFile, ABaseFileThatCannotBeWrittenDoesNotKeepTheStylesFromTheirs)
{
    Open();
    EXPECT_TRUE(syntax.SetStyleFontSize(0, 12));
    syntax.SetFilename("/dev/full");
    EXPECT_FALSE(syntax.Save());
    EXPECT_FALSE(syntax.GetModified());
    EXPECT_TRUE(Get("custom").contains("<Size>12</Size>"));
}

TEST_F(SyntaxFile, AReadOnlyBaseFileFailsTheSaveButNotThatOfTheStyles)
{
    Open();
    EXPECT_TRUE(syntax.SetStyleFontSize(0, 12));
    SetMode("base", 0444);
    const OrdinaryUser user;
    EXPECT_FALSE(syntax.Save());
    EXPECT_EQ(Get("base"), kBase);
    EXPECT_TRUE(Get("custom").contains("<Size>12</Size>"));
}

TEST_F(SyntaxFile, ACustomFileThatCannotBeWrittenFailsTheSave)
{
    Open();
    EXPECT_TRUE(syntax.SetStyleFontSize(0, 12));
    syntax.SetCustomFilename(PathOf("no/such"));
    EXPECT_FALSE(syntax.Save());
    EXPECT_FALSE(syntax.GetModified()) << "the base file was saved";
}

TEST_F(SyntaxFile, AFullDiskKeepsBothFiles)
{
    const QByteArray custom = "<Syntax>" + kStyles + "</Syntax>";
    OpenWithCustom(custom);
    EXPECT_TRUE(syntax.SetStyleFontSize(0, 12));
    for (const rlim_t room : {0, 100, 300}) {
        const FullDisk disk(room);
        EXPECT_FALSE(syntax.Save());
        EXPECT_TRUE(syntax.GetModified());
        EXPECT_EQ(Get("base"), kBase);
        EXPECT_EQ(Get("custom"), custom);
    }
    EXPECT_TRUE(syntax.Save());
    EXPECT_TRUE(Get("custom").contains("<Size>12</Size>"));
}

TEST_F(SyntaxFile, WhateverStandsInPlaceOfTheCustomFileLeavesTheStylesOfTheBaseFile)
{
    constexpr int kLevels = 100'000;
    const QByteArray deep =
        QByteArray("<Syntax>").repeated(kLevels) + "x" + QByteArray("</Syntax>").repeated(kLevels);
    for (const QByteArray& custom :
         {QByteArray(), QByteArray("no XML at all"), QByteArray("<Syntax>\0</Syntax>", 18), deep}) {
        syntax.Clear();
        OpenWithCustom(custom);
        EXPECT_EQ(syntax.GetStyleName(0), "Default");
        EXPECT_EQ(Get("custom"), custom);
    }
    syntax.Clear();
    ASSERT_TRUE(QFile::remove(PathOf("custom")));
    ASSERT_TRUE(QDir().mkdir(PathOf("custom")));
    EXPECT_EQ(syntax.GetStyleName(0), "Default");
    EXPECT_TRUE(syntax.SetStyleFontSize(0, 12));
    EXPECT_FALSE(syntax.Save());
    EXPECT_TRUE(QDir(PathOf("custom")).exists());
}

TEST_F(SyntaxFile, SaveWithoutChangesWritesNeitherFile)
{
    Open();
    EXPECT_TRUE(syntax.Save());
    EXPECT_EQ(Get("base"), kBase);
    EXPECT_FALSE(QFile::exists(PathOf("custom")));
}

TEST_F(SyntaxFile, ACustomFileCutAtAnyByteLeavesTheStylesOfTheBaseFile)
{
    const QByteArray whole = "<Syntax><StyleInformation><StyleBits>9</StyleBits>"
                             "</StyleInformation></Syntax>";
    for (qsizetype size = 0; size < whole.size(); ++size) {
        syntax.Clear();
        OpenWithCustom(whole.left(size));
        EXPECT_EQ(syntax.GetStyleBits(), 5) << size;
    }
}

} // namespace
