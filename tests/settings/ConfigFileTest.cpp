// SPDX-License-Identifier: GPL-3.0-or-later
// The settings of every editor by name, the list of languages and the list of words.
#include "SettingsFolder.h"

#include "settings/ConfigFile.h"

#include <functional>

namespace {

constexpr const char* kLanguages = "<C><Languages count=\"3\">"
                                   "<Language number=\"0\"><Name>Text</Name>"
                                   "<SyntaxFile>text.xml</SyntaxFile></Language>"
                                   "<Language number=\"1\"><Name>SQL</Name></Language>"
                                   "%1</Languages>"
                                   "<InsertText><InsertWords><Word>one</Word><Other>x</Other>"
                                   "<Word/></InsertWords></InsertText></C>";

class ConfigFile : public SettingsFolder
{
protected:
    void Open(const char* text)
    {
        Put("c", text);
        config.SetFilename(PathOf("c"));
        ASSERT_TRUE(config.Parse());
    }
    void OpenLanguages(const char* third = "")
    {
        Open(
            QString::fromLatin1(kLanguages).arg(QString::fromLatin1(third)).toLatin1().constData());
    }
    QByteArray Saved()
    {
        EXPECT_TRUE(config.Save());
        return Get("c");
    }

    CConfigFile config;
};

TEST_F(ConfigFile, TellsItsClass)
{
    EXPECT_STREQ(config.GetRuntimeClass()->name, "CConfigFile");
    EXPECT_TRUE(config.IsKindOf(CXMLFile::GetThisClass()));
}

// Every setting, with the place where its value stands in the file.
struct Setting
{
    const char* path;
    std::function<long(CConfigFile&)> get;
    std::function<bool(CConfigFile&, int)> set;
    bool isBool = false;
};

template <auto Get, auto Set>
Setting Row(const char* path)
{
    using Value = decltype((std::declval<CConfigFile&>().*Get)());
    return {path, [](CConfigFile& file) { return static_cast<long>((file.*Get)()); },
            [](CConfigFile& file, int value) { return (file.*Set)(static_cast<Value>(value)); },
            std::is_same_v<Value, bool>};
}

using C = CConfigFile;
const Setting kSettings[] = {
    Row<&C::GetFileTracking, &C::SetFileTracking>("General/CheckFileModification"),
    Row<&C::GetCaretColor, &C::SetCaretColor>("Editor/CaretColor"),
    Row<&C::GetSelectionForegroundColor, &C::SetSelectionForegroundColor>(
        "Editor/SelectionForeColor"),
    Row<&C::GetSelectionBackgroundColor, &C::SetSelectionBackgroundColor>(
        "Editor/SelectionBackColor"),
    Row<&C::GetHighlightCurrentLine, &C::SetHighlightCurrentLine>("Editor/HighlightCurrentLine"),
    Row<&C::GetHighlightCurrentLineColor, &C::SetHighlightCurrentLineColor>(
        "Editor/HighlightCurrentLineColor"),
    Row<&C::GetRightEdge, &C::SetRightEdge>("Editor/RightEdge"),
    Row<&C::GetRightEdgeColumn, &C::SetRightEdgeColumn>("Editor/RightEdgeColumn"),
    Row<&C::GetRightEdgeColor, &C::SetRightEdgeColor>("Editor/RightEdgeColor"),
    Row<&C::GetInsertTextType, &C::SetInsertTextType>("InsertText/Type"),
    Row<&C::GetInsertTextPosition, &C::SetInsertTextPosition>("InsertText/Position"),
    Row<&C::GetInsertTextFirstNumber, &C::SetInsertTextFirstNumber>("InsertText/FirstNumber"),
    Row<&C::GetInsertTextLength, &C::SetInsertTextLength>("InsertText/Length"),
    Row<&C::GetInsertTextStep, &C::SetInsertTextStep>("InsertText/Step"),
};

TEST_F(ConfigFile, EverySettingStandsInItsSectionUnderItsKey)
{
    for (const Setting& setting : kSettings) {
        SCOPED_TRACE(setting.path);
        const QByteArrayList path = QByteArray(setting.path).split('/');
        config.Clear();
        Open("<C><" + path[0] + "><Filler/></" + path[0] + "></C>");
        EXPECT_EQ(setting.get(config), 0);
        EXPECT_TRUE(setting.set(config, 7));
        EXPECT_EQ(setting.get(config), setting.isBool ? 1 : 7);
        EXPECT_EQ(Saved(), "<C>\r\n\t<" + path[0] + ">\r\n\t\t<Filler/>\r\n\t\t<" + path[1] + ">" +
                               (setting.isBool ? "1" : "7") + "</" + path[1] + ">\r\n\t</" +
                               path[0] + ">\r\n</C>\r\n");
        config.Clear();
        Open("<C><Elsewhere><Filler/></Elsewhere></C>");
        EXPECT_FALSE(setting.set(config, 7));
        EXPECT_EQ(setting.get(config), 0);
    }
}

TEST_F(ConfigFile, ColoursHave32Bits)
{
    Open("<Editor><CaretColor>-1</CaretColor></Editor>");
    EXPECT_EQ(config.GetCaretColor(), 0xFFFFFFFFul);
    EXPECT_TRUE(config.SetCaretColor(0x80FF0001));
    EXPECT_EQ(config.GetCaretColor(), 0x80FF0001ul);
    EXPECT_EQ(Saved(), "<Editor>\r\n\t<CaretColor>-2130771967</CaretColor>\r\n</Editor>\r\n");
}

TEST_F(ConfigFile, TheFirstUseOfASelectionColourTellsItsValue)
{
    Open("<Editor><SelectionForeColor>5</SelectionForeColor>"
         "<SelectionBackColor use=\"0\">6</SelectionBackColor></Editor>");
    EXPECT_FALSE(config.SetUseSelectionForegroundColor(false));
    EXPECT_FALSE(config.GetModified());
    EXPECT_FALSE(config.UseSelectionForegroundColor());
    EXPECT_TRUE(config.SetUseSelectionForegroundColor(true));
    EXPECT_TRUE(config.GetModified());
    EXPECT_TRUE(config.UseSelectionForegroundColor());
    EXPECT_FALSE(config.UseSelectionBackgroundColor());
    EXPECT_TRUE(config.SetUseSelectionBackgroundColor(true));
    EXPECT_TRUE(config.UseSelectionBackgroundColor());
    EXPECT_EQ(config.GetSelectionBackgroundColor(), 6ul);
}

TEST_F(ConfigFile, TheSeparatorIsAText)
{
    Open("<InsertText><Type>1</Type></InsertText>");
    EXPECT_TRUE(config.SetInsertTextSeparator(QStringLiteral(", ")));
    EXPECT_EQ(config.GetInsertTextSeparator(), ", ");
    EXPECT_TRUE(Saved().contains("\t<Separator>, </Separator>\r\n"));
}

TEST_F(ConfigFile, CountsLanguagesByTheAttribute)
{
    OpenLanguages();
    EXPECT_EQ(config.GetLanguageCount(), 3);
    EXPECT_EQ(config.GetLanguageName(0), "Text");
    EXPECT_EQ(config.GetLanguageSyntaxFileName(0), "text.xml");
    EXPECT_EQ(config.GetLanguageName(1), "SQL");
    EXPECT_EQ(config.GetLanguageName(2), "");
    EXPECT_EQ(config.GetLanguageName(-1), "");
}

TEST_F(ConfigFile, HasNoCountWithoutAList)
{
    EXPECT_EQ(config.GetLanguageCount(), -1);
    Open("<C><Languages><Language/></Languages></C>");
    EXPECT_EQ(config.GetLanguageCount(), -1);
    EXPECT_FALSE(config.AddLanguage("a", "", "", ""));
    EXPECT_FALSE(config.RemoveLanguage(0));
    EXPECT_FALSE(config.GetModified());
}

TEST_F(ConfigFile, AddsALanguageUnderTheNumberOfThoseThatStandThere)
{
    OpenLanguages();
    EXPECT_TRUE(config.AddLanguage("C++", "cpp.xml", "", "ignored"));
    EXPECT_EQ(config.GetLanguageCount(), 3);
    EXPECT_EQ(config.GetLanguageName(2), "C++");
    EXPECT_EQ(config.GetLanguageSyntaxFileName(2), "cpp.xml");
    EXPECT_TRUE(Saved().contains("\t\t<Language number=\"2\">\r\n\t\t\t<Name>C++</Name>\r\n"
                                 "\t\t\t<SyntaxFile>cpp.xml</SyntaxFile>\r\n\t\t</Language>\r\n"));
}

TEST_F(ConfigFile, AddsNoLanguageWithoutAName)
{
    OpenLanguages();
    EXPECT_FALSE(config.AddLanguage("", "cpp.xml", "cpp.ac", ""));
    EXPECT_FALSE(config.GetModified());
    EXPECT_EQ(config.GetLanguageCount(), 3);
}

TEST_F(ConfigFile, RemovesALanguageAndClosesTheGap)
{
    OpenLanguages("<Language number=\"2\"><Name>C++</Name></Language>");
    EXPECT_TRUE(config.RemoveLanguage(1));
    EXPECT_TRUE(config.GetModified());
    EXPECT_EQ(config.GetLanguageCount(), 2);
    EXPECT_EQ(config.GetLanguageName(0), "Text");
    EXPECT_EQ(config.GetLanguageName(1), "C++");
    EXPECT_EQ(config.GetLanguageName(2), "");
}

TEST_F(ConfigFile, NumbersAllLanguagesBehindARemovedOneAnew)
{
    Open("<Languages count=\"4\"><Language number=\"0\"><Name>a</Name></Language>"
         "<Language number=\"1\"><Name>b</Name></Language>"
         "<Language number=\"2\"><Name>c</Name></Language>"
         "<Language number=\"3\"><Name>d</Name></Language></Languages>");
    EXPECT_TRUE(config.RemoveLanguage(0));
    EXPECT_EQ(config.GetLanguageName(0), "b");
    EXPECT_EQ(config.GetLanguageName(1), "c");
    EXPECT_EQ(config.GetLanguageName(2), "d");
    EXPECT_EQ(config.GetLanguageName(3), "");
}

TEST_F(ConfigFile, RemovesTheLanguageByItsPlaceAndNotByItsNode)
{
    Open("<Languages count=\"2\"><Language number=\"1\"><Name>a</Name></Language>"
         "<Language number=\"0\"><Name>b</Name></Language></Languages>");
    EXPECT_TRUE(config.RemoveLanguage(0));
    EXPECT_EQ(config.GetLanguageName(0), "b");
}

TEST_F(ConfigFile, AnUnknownNumberLowersTheCountAllTheSame)
{
    OpenLanguages("<Language number=\"2\"><Name>C++</Name></Language>");
    EXPECT_FALSE(config.RemoveLanguage(7));
    EXPECT_EQ(config.GetLanguageCount(), 2);
    EXPECT_TRUE(config.GetModified());
    EXPECT_EQ(config.GetLanguageName(2), "C++");
}

TEST_F(ConfigFile, SetsTheTextsOfALanguage)
{
    OpenLanguages("<Language number=\"2\"/>");
    EXPECT_EQ(config.GetLanguageAutoCompFileName(0), "");
    EXPECT_TRUE(config.SetLanguageAutoCompFileName(0, "text.ac"));
    EXPECT_EQ(config.GetLanguageAutoCompFileName(0), "text.ac");
    EXPECT_TRUE(config.SetLanguageName(0, "Plain"));
    EXPECT_TRUE(config.SetLanguageSyntaxFileName(1, "sql.xml"));
    EXPECT_EQ(config.GetLanguageName(0), "Plain");
    EXPECT_EQ(config.GetLanguageSyntaxFileName(1), "sql.xml");
    EXPECT_FALSE(config.SetLanguageName(2, "x")) << "a language without children";
    EXPECT_FALSE(config.SetLanguageName(3, "x"));
}

TEST_F(ConfigFile, GivesInsertWordsByTheirPlace)
{
    OpenLanguages();
    EXPECT_EQ(config.GetInsertTextWord(0), "one");
    EXPECT_EQ(config.GetInsertTextWord(1), "") << "no word";
    EXPECT_EQ(config.GetInsertTextWord(2), "") << "an empty word";
    EXPECT_EQ(config.GetInsertTextWord(3), "");
    EXPECT_EQ(config.GetInsertTextWord(0xFFFFFFFF), "");
    EXPECT_TRUE(config.AddInsertTextWord("one"));
    EXPECT_TRUE(config.GetModified());
    EXPECT_EQ(config.GetInsertTextWord(3), "one");
}

TEST_F(ConfigFile, RemovesAllInsertWords)
{
    OpenLanguages();
    EXPECT_TRUE(config.RemoveInsertTextWords());
    EXPECT_EQ(config.GetInsertTextWord(0), "");
    config.SetModified(false);
    EXPECT_TRUE(config.RemoveInsertTextWords());
    EXPECT_TRUE(config.GetModified()) << "an empty list counts as changed too";
    EXPECT_TRUE(config.AddInsertTextWord("two"));
    EXPECT_EQ(config.GetInsertTextWord(0), "two");
}

TEST_F(ConfigFile, LooksForInsertWordsOnlyInWhatIsParsed)
{
    Put("c", "<InsertText><InsertWords><Word>one</Word></InsertWords></InsertText>");
    config.SetFilename(PathOf("c"));
    EXPECT_EQ(config.GetInsertTextWord(0), "");
    EXPECT_FALSE(config.AddInsertTextWord("two"));
    EXPECT_FALSE(config.RemoveInsertTextWords());
    EXPECT_EQ(config.GetInsertTextType(), 0);
    EXPECT_EQ(config.GetInsertTextWord(0), "one");
}

TEST_F(ConfigFile, HasNoPlaceForWordsUnlessTheFileHas)
{
    Open("<C><InsertText><Type>1</Type></InsertText></C>");
    EXPECT_FALSE(config.AddInsertTextWord("one"));
    EXPECT_FALSE(config.RemoveInsertTextWords());
    EXPECT_FALSE(config.GetModified());
}

TEST_F(ConfigFile, AFileThatCannotBeParsedReadsAsEmptyAndStays)
{
    for (const QByteArray text : {"", "<C><Languages count=\"1\">", "no XML at all"}) {
        Put("config", text);
        CConfigFile file;
        file.SetFilename(PathOf("config"));
        EXPECT_EQ(file.GetFileTracking(), 0);
        EXPECT_FALSE(file.SetFileTracking(1));
        EXPECT_EQ(file.GetLanguageCount(), -1);
        EXPECT_EQ(file.GetLanguageName(0), "");
        EXPECT_FALSE(file.SetLanguageName(0, "x"));
        EXPECT_FALSE(file.AddLanguage("x", "y", "z", ""));
        EXPECT_FALSE(file.RemoveLanguage(0));
        EXPECT_EQ(file.GetInsertTextWord(0), "");
        EXPECT_FALSE(file.AddInsertTextWord("x"));
        EXPECT_FALSE(file.RemoveInsertTextWords());
        file.SetModified(true);
        EXPECT_FALSE(file.Save());
        EXPECT_EQ(Get("config"), text);
    }
}

} // namespace
