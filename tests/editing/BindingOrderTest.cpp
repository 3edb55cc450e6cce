// SPDX-License-Identifier: GPL-3.0-or-later
// The messages that bind a language, in their order. They are written down by an engine that does
// nothing else.
#include "common/Globals.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "platform/services/OptionsServer.h"
#include "tests/control/RecordingEngine.h"
#include "tests/editing/Languages.h"

#include <QWidget>

#include <gmock/gmock.h>

namespace {

using Sentences = std::vector<std::string>;
using testing::ElementsAreArray;

Sentences operator+(Sentences left, const Sentences& right)
{
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

std::string With(const std::string& name, int first, long second)
{
    return name + ' ' + std::to_string(first) + ' ' + std::to_string(second);
}

// What a style of the test's language sends.
Sentences StyleMessages(int style)
{
    const long fore = (style & 0xFF) << 16;            // 0000nn in the file
    const long back = 0x00FFFF | (style & 0xFF) << 16; // FFFFnn
    return {"StyleSetFont(F" + std::to_string(style) + ')',
            With("StyleSetSize", style, style + 5),
            With("StyleSetBold", style, 1),
            With("StyleSetItalic", style, 0),
            With("StyleSetUnderline", style, 1),
            With("StyleSetFore", style, fore),
            With("StyleSetBack", style, back)};
}

Sentences Marker(int marker, int symbol, long fore, long back)
{
    return {With("MarkerDefine", marker, symbol), With("MarkerSetFore", marker, fore),
            With("MarkerSetBack", marker, back)};
}

const Sentences kBegin = StyleMessages(32) + Sentences{"StyleClearAll", "SetStyleBits 7"};

const Sentences kIndentation = {
    "SetTabIndents 1",
    "SetBackSpaceUnIndents 1",
    "SetIndent 3",
    "SetIndentationGuides 0",
};

const Sentences kView = {
    "StyleSetEOLFilled 32 1", "UsePopUp 0", "SetViewWS 1", "SetViewEOL 1", "SetUseTabs 0",
};

const Sentences kLineNumbers = {"TextWidth(9)", "GetLineCount", "SetMarginWidthN 1 4"};

const Sentences kMargins = {
    "SetMarginWidthN 2 20",    "SetMarginTypeN 2 0", "SetMarginMaskN 2 33554431",
    "SetMarginWidthN 3 0",     "SetMarginTypeN 3 0", "SetMarginMaskN 3 -33554432",
    "SetMarginSensitiveN 3 1",
};

const Sentences kFolding =
    Marker(31, 14, 0xFFFFFF, 0x808080) + Marker(30, 12, 0xFFFFFF, 0x808080) +
    Marker(29, 9, 0xFFFFFF, 0x808080) + Marker(28, 10, 0xFFFFFF, 0x808080) +
    Marker(25, 13, 0xFFFFFF, 0x808080) + Marker(26, 15, 0xFFFFFF, 0x808080) +
    Marker(27, 11, 0xFFFFFF, 0x808080) +
    Sentences{"SetFoldMarginColor 1 " + std::to_string(0xC1CDC1), "SetIndentationGuides 1"};

const Sentences kMarkers =
    Marker(0, 1, 0xF3FA0E, 0xF3FA0E) + Sentences{"MarkerDefinePixmap 2", "ErrorsSetMarkNum 2"} +
    Sentences{"MarkerDefinePixmap 9", "WarningsSetMarkNum 9"} + Marker(7, 4, 0, 0xFFFFFF) +
    Marker(8, 4, 0, 0x40FF00) + Marker(3, 0, 0, 0x0909BF) + Marker(4, 0, 0, 0xFFFFFF) +
    Marker(1, 1, 0xF3FA0E, 0xF3FA0E) + Marker(5, 10067, 0xFF0000, 0xFF0000) +
    Marker(6, 10082, 0x8000FF, 0x8000FF);

// The caret has the text's colour, not the 99 of the configuration.
Sentences Caret(long color)
{
    return {"SetCaretFore " + std::to_string(color),
            "SetSelFore 0 17",
            "SetSelBack 1 18",
            "SetCaretLineVisible 1",
            "SetCaretWidth 1",
            "SetCaretLineBack 19",
            "SetEdgeMode 1",
            "SetEdgeColumn 80",
            "SetEdgeColor 20"};
}

const Sentences kEnd = {
    "SetTabWidth 7",
    "SetWrapMode 1",
    "IndicSetStyle 0 1",
    "IndicSetFore 0 255",
    "ErrorsSetIndic 0",
    "IndicSetStyle 1 1",
    "IndicSetFore 1 " + std::to_string(0x07E4DF),
    "WarningsSetIndic 1",
    "SetWordChars(abc)",
};

// Images come by address; which one it is does not matter here.
Sentences Recorded()
{
    Sentences sentences = recording::Sentences();
    for (std::string& sentence : sentences) {
        if (sentence.starts_with("MarkerDefinePixmap") || sentence.starts_with("GetProperty"))
            sentence = sentence.substr(0, sentence.rfind(' '));
    }
    return sentences;
}

class BindingOrder : public testing::Test
{
protected:
    BindingOrder()
    {
        m_control.Create(WS_CHILD, RECT{0, 0, 100, 100}, nullptr, 1, nullptr);
        QString styles;
        for (int style = 0; style <= 127; ++style)
            styles += LanguageFiles::Style(style);
        m_files.WriteSyntax(QStringLiteral("on.xml"), true, styles);
        m_files.WriteSyntax(QStringLiteral("off.xml"), false, styles);
        m_files.WriteConfig(QStringLiteral("config.xml"));
        m_config.SetFilename(m_files.Path(QStringLiteral("config.xml")));
        recording::Forget();
    }
    ~BindingOrder() override
    {
        recording::Forget();
        // What the options wrote is not for the tests behind.
        zncoreeditor::GetConfigFile()->Revert();
    }

    void Bind(const char* name)
    {
        m_files.Open(m_syntax, QLatin1String(name));
        m_languages.SetCoreEditorProperties(&m_config, &m_syntax, &m_control);
    }

    LanguageFiles m_files;
    CConfigFile m_config;
    CSyntaxFile m_syntax;
    CFileTypeManager m_languages;
    CZNCoreEditorControlEx m_control;
};

TEST_F(BindingOrder, OfALanguageWithHighlighting)
{
    Sentences styles;
    for (int style = 0; style <= 127; ++style) {
        if (style != 23)
            styles = styles + StyleMessages(style);
    }
    Bind("on.xml");
    EXPECT_THAT(Recorded(),
                ElementsAreArray(kBegin + Sentences{"SetLexer 3", "SetProperty(1)"} + styles +
                                 Sentences{"SetKeyWords(select from)", "SetKeyWords(int)"} +
                                 kIndentation + kView + kLineNumbers + kMargins + kFolding +
                                 kMarkers + Caret(0) + kEnd + kLineNumbers));
}

TEST_F(BindingOrder, OfALanguageWithoutHighlighting)
{
    Sentences styles;
    for (int style = 32; style <= 38; ++style)
        styles = styles + StyleMessages(style);
    Bind("off.xml");
    EXPECT_THAT(Recorded(),
                ElementsAreArray(kBegin + styles + kIndentation + kView + kLineNumbers + kMargins +
                                 kFolding + kMarkers + Caret(0) + kEnd + kLineNumbers));
}

TEST_F(BindingOrder, LeavesOutAFontWithoutNameOrSize)
{
    m_files.WriteSyntax(QStringLiteral("bare.xml"), false,
                        QStringLiteral("<Style number=\"33\"><Font><Size>0</Size></Font></Style>"));
    Bind("bare.xml");
    const Sentences sent = Recorded();
    for (const char* never : {"StyleSetFont()", "StyleSetSize 33 0", "StyleSetSize 32 0"})
        EXPECT_THAT(sent, testing::Not(testing::Contains(never)));
    EXPECT_THAT(sent, testing::Contains("StyleSetBold 33 0"));
    EXPECT_THAT(sent, testing::Contains("StyleSetBack 33 0"));
}

TEST_F(BindingOrder, DrawsPlainMarkersWhereTheTextsHaveNoImages)
{
    struct NoTexts final : IZNBaseResourceLoader
    {
        QString LoadString(UINT /*id*/) const override { return QString(); }
    } texts;
    zncoreeditor::SetResourceLoader(&texts);
    Bind("off.xml");
    zncoreeditor::SetResourceLoader(nullptr);
    const Sentences sent = Recorded();
    EXPECT_THAT(sent, testing::Not(testing::Contains("MarkerDefinePixmap 2")));
    for (const Sentences& marker : {Marker(2, 0, 0, 0x0000FF), Marker(9, 0, 0, 0x00FFFF)})
        EXPECT_THAT(sent, testing::IsSupersetOf(marker));
}

TEST_F(BindingOrder, HandsOverTheWholeImage)
{
    Sentences images;
    recording::AnswerTo(engine::message::MarkerDefinePixmap, [&](WPARAM, LPARAM lParam) -> LRESULT {
        const auto* lines = reinterpret_cast<const char* const*>(lParam);
        for (; *lines; ++lines)
            images.emplace_back(*lines);
        return 0;
    });
    Bind("off.xml");
    ASSERT_EQ(images.size(), 2u * (1 + 7 + 12));
    EXPECT_EQ(images.front(), "    12    12       7            1 ");
    EXPECT_EQ(images[8], "eegffffffgee ");
    EXPECT_EQ(images.back(), "effffffffffe");
}

TEST_F(BindingOrder, SendsNothingForAFileThatCannotBeRead)
{
    Bind("missing.xml");
    EXPECT_TRUE(recording::Messages().empty());
}

TEST_F(BindingOrder, SendsNothingForNoLanguageAndForNoControl)
{
    m_languages.SetCoreEditorProperties(&m_config, nullptr, &m_control);
    m_files.Open(m_syntax, QStringLiteral("on.xml"));
    m_languages.SetCoreEditorProperties(&m_config, &m_syntax, nullptr);
    EXPECT_TRUE(recording::Messages().empty());
}

// An options server that holds one number.
class OneOption final : public CZNOptionsServer
{
public:
    OneOption() { SetOptionsServer(this); }
    ~OneOption() override { SetOptionsServer(nullptr); }

    int GetInt(int key) override { return key == option::ColorMaxSize ? 12345 : 0; }
};

class LanguageOrder : public BindingOrder
{
protected:
    // What stands behind the language's own messages.
    Sentences Tail()
    {
        const Sentences sent = Recorded();
        const auto end = std::find(sent.rbegin(), sent.rend(), kLineNumbers.back()).base();
        return Sentences(end, sent.end());
    }

    OneOption m_options;
};

TEST_F(LanguageOrder, EndsWithTheSizeUpToWhichTextIsColoured)
{
    m_control.InitializeLanguage(1, 1);
    EXPECT_THAT(Tail(), ElementsAreArray(Sentences{"GetProperty", "SetProperty(12345)",
                                                   "ClearDocumentStyle", "2494"}));
}

TEST_F(LanguageOrder, StylesNothingAnewForTheSameSize)
{
    recording::AnswerTo(engine::message::GetProperty, [](WPARAM, LPARAM lParam) -> LRESULT {
        constexpr std::u16string_view kPresent = u"12345";
        if (auto* buffer = reinterpret_cast<char16_t*>(lParam))
            buffer[kPresent.copy(buffer, kPresent.size())] = u'\0';
        return kPresent.size();
    });
    m_control.InitializeLanguage(1, 1);
    EXPECT_THAT(Tail(), ElementsAreArray(Sentences{"GetProperty", "GetProperty"}));
}

TEST_F(LanguageOrder, MakesTheLanguageTheCurrentOne)
{
    EXPECT_EQ(m_control.InitializeLanguage(3, 0), 1);
    EXPECT_EQ(m_control.GetCurrentLanguage(), 3);
    EXPECT_EQ(zncoreeditor::GetFileTypeManager()->GetCurrentLanguageNumber(), 3);
}

TEST_F(LanguageOrder, OfAnUnknownLanguageIsOnlyTheEnd)
{
    m_control.InitializeLanguage(9999, 1);
    EXPECT_THAT(Recorded(), ElementsAreArray(Sentences{"GetProperty", "SetProperty(12345)",
                                                       "ClearDocumentStyle", "2494"}));
    EXPECT_EQ(m_control.GetCurrentLanguage(), 9999);
}

} // namespace
