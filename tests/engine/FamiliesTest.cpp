// SPDX-License-Identifier: GPL-3.0-or-later
// Families of messages that mean something of this engine's own, on mixed text.
#include "control/Completion.h"
#include "tests/engine/EngineFixture.h"

#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QTest>

#include <gtest/gtest.h>

namespace msg = engine::message;

namespace {

class Families : public testing::Test
{
protected:
    void Start(const std::u16string& text)
    {
        m_engine.SetText(text);
        m_engine.Send(msg::EmptyUndoBuffer);
        m_engine.Parent().heard.clear();
    }

    LRESULT Find(const std::u16string& what, int from, int to, CharacterRange* found = nullptr)
    {
        TextToFind record{{from, to}, what.c_str(), {}};
        const LRESULT result = m_engine.Send(msg::FindTextW, 0, &record);
        if (found)
            *found = record.chrgText;
        return result;
    }

    void Target(long start, long end) const
    {
        m_engine.Send(msg::SetTargetStart, static_cast<WPARAM>(start));
        m_engine.Send(msg::SetTargetEnd, static_cast<WPARAM>(end));
    }

    std::u16string Property(UINT number, const char16_t* key) const
    {
        std::u16string buffer(100, u'#');
        buffer.resize(static_cast<std::size_t>(
            m_engine.Send(number, reinterpret_cast<WPARAM>(key), buffer.data())));
        return buffer;
    }

    std::u16string SelText() const
    {
        std::u16string buffer(100, u'#');
        buffer.resize(static_cast<std::size_t>(m_engine.Send(msg::GetSelText, 0, buffer.data())) -
                      1);
        return buffer;
    }

    LRESULT StyleAt(long position) const
    {
        return m_engine.Send(msg::GetStyleAt, static_cast<WPARAM>(position));
    }

    EngineUnderTest m_engine;
};

constexpr WPARAM kRegExp = 0x00200000;

} // namespace

TEST_F(Families, EnterInsertsTheLineEndOfTheMode)
{
    for (const auto& [mode, eol] : {std::pair{1, u"\r\n"}, {2, u"\r"}, {3, u"\n"}}) {
        Start(u"");
        m_engine.Send(msg::SetEOLMode, static_cast<WPARAM>(mode));
        EXPECT_EQ(m_engine.Send(msg::GetEOLMode), mode);
        QTest::keyClick(m_engine.Window(), Qt::Key_Return);
        EXPECT_EQ(m_engine.Text(), eol);
    }
}

TEST_F(Families, ModeZeroLeavesWhatEnterInserts)
{
    Start(u"");
    m_engine.Send(msg::SetEOLMode, 3);
    m_engine.Send(msg::SetEOLMode, 0);
    EXPECT_EQ(m_engine.Send(msg::GetEOLMode), 0);
    QTest::keyClick(m_engine.Window(), Qt::Key_Return);
    EXPECT_EQ(m_engine.Text(), u"\n");
    m_engine.Send(msg::SetEOLMode, 7);
    EXPECT_EQ(m_engine.Send(msg::GetEOLMode), 0);
}

TEST_F(Families, LineEndsAreConverted)
{
    Start(u"\u00e9\n\u4e2d\r\n\U0001F600\rx");
    m_engine.Send(msg::ConvertEOLs, 1);
    EXPECT_EQ(m_engine.Text(), u"\u00e9\r\n\u4e2d\r\n\U0001F600\r\nx");
    m_engine.Send(msg::ConvertEOLs, 2);
    EXPECT_EQ(m_engine.Text(), u"\u00e9\r\u4e2d\r\U0001F600\rx");
    EXPECT_EQ(m_engine.Send(msg::PositionFromLine, 3), 7);
    m_engine.Send(msg::ConvertEOLs, 0);
    EXPECT_EQ(m_engine.Text(), u"\u00e9\r\u4e2d\r\U0001F600\rx");
}

TEST_F(Families, TheDefaultMaskTellsOfTextAndFoldsOnly)
{
    Start(u"a\nb\n");
    m_engine.Send(msg::MarkerAdd, 0, LPARAM{1});
    m_engine.Send(msg::StartStyling, 0, LPARAM{0xFF});
    m_engine.Send(msg::SetStyling, 1, LPARAM{3});
    EXPECT_TRUE(m_engine.Parent().Of(notify::Modified).empty());
    m_engine.Send(msg::SetFoldLevel, 0, LPARAM{0x2400});
    const auto folds = m_engine.Parent().Of(notify::Modified);
    ASSERT_EQ(folds.size(), 1u);
    EXPECT_TRUE(folds[0].record.modificationType & modification::ChangeFold);
    EXPECT_EQ(folds[0].record.foldLevelNow, 0x2400);
}

TEST_F(Families, AMaskAddsAndTakesAway)
{
    Start(u"\u00e9\U0001F600\nb\n");
    m_engine.Send(msg::SetModEventMask, modification::ChangeMarker | modification::ChangeStyle);
    m_engine.Insert(0, u"x");
    EXPECT_TRUE(m_engine.Parent().Of(notify::Modified).empty());
    m_engine.Send(msg::MarkerAdd, 1, LPARAM{1});
    m_engine.Send(msg::StartStyling, 2, LPARAM{0xFF});
    m_engine.Send(msg::SetStyling, 2, LPARAM{3});
    const auto news = m_engine.Parent().Of(notify::Modified);
    ASSERT_EQ(news.size(), 2u);
    EXPECT_EQ(news[0].record.line, 1);
    EXPECT_EQ(news[1].record.position, 2);
    EXPECT_EQ(news[1].record.length, 2);
}

TEST_F(Families, ARecordingTellsMessagesInUnits)
{
    Start(u"\u00e9\U0001F600");
    m_engine.Send(msg::StartRecord);
    m_engine.Send(msg::GotoPos, 3);
    m_engine.Send(msg::ReplaceSel, 0, u"\u00fc\u4e2d");
    m_engine.Send(msg::LineDown);
    m_engine.Send(msg::StopRecord);
    m_engine.Send(msg::LineUp);
    const auto records = m_engine.Parent().Of(notify::MacroRecord);
    ASSERT_EQ(records.size(), 3u);
    EXPECT_EQ(records[0].record.message, msg::GotoPos);
    EXPECT_EQ(records[0].record.wParam, 3u);
    EXPECT_EQ(records[1].record.message, msg::ReplaceSel);
    EXPECT_EQ(records[2].record.message, msg::LineDown);
}

TEST_F(Families, ARecordingCarriesWhatIsTyped)
{
    static std::u16string typed;
    typed.clear();
    m_engine.Parent().onNotify = [](Listener&, const SCNotification& record) {
        if (record.nmhdr.code == notify::MacroRecord && record.message == msg::ReplaceSel)
            typed += reinterpret_cast<const char16_t*>(record.lParam);
    };
    m_engine.Send(msg::StartRecord);
    for (const auto* text : {u"a", u"\u00e9"}) {
        QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, QString::fromStdU16String(text));
        QApplication::sendEvent(m_engine.Window(), &key);
    }
    EXPECT_EQ(typed, u"a\u00e9");
}

TEST_F(Families, StyledTextGoesOutAsItCameIn)
{
    Start(u"");
    const std::u16string cells = u"\u00e9\x02\xD83D\x03\xDE00\x03x\x04";
    m_engine.Send(msg::AddStyledText, cells.size(), cells.data());
    EXPECT_EQ(m_engine.Text(), u"\u00e9\U0001F600x");
    std::u16string buffer(10, u'#');
    TextRange range{{0, -1}, buffer.data()};
    EXPECT_EQ(m_engine.Send(msg::GetStyledText, 0, &range), 8);
    EXPECT_EQ(buffer, cells + std::u16string(2, u'\0'));
}

TEST_F(Families, LongStyledTextIsThatOfEachUnit)
{
    static constexpr std::u16string_view kPieces[] = {u"x", u"\u00e9", u"\u4e2d", u"\U0001F600"};
    std::u16string text;
    std::u16string cells;
    for (std::size_t i = 0; text.size() < 30000; ++i) {
        for (const char16_t unit : kPieces[i * i % 7 % std::size(kPieces)]) {
            text += unit;
            cells += {unit, static_cast<char16_t>(i % 31)};
        }
    }
    Start(u"");
    m_engine.Send(msg::AddStyledText, cells.size(), cells.data());
    ASSERT_EQ(m_engine.Text(), text);
    std::u16string buffer(cells.size() + 2, u'#');
    TextRange range{{0, -1}, buffer.data()};
    EXPECT_EQ(m_engine.Send(msg::GetStyledText, 0, &range), LRESULT(cells.size()));
    EXPECT_EQ(buffer, cells + std::u16string(2, u'\0'));
}

TEST_F(Families, ARangeThatCutsAPairNeverGivesMoreThanItsUnits)
{
    Start(u"a\U0001F600b");
    std::u16string buffer(6, u'#');
    TextRange range{{2, 4}, buffer.data()};
    EXPECT_EQ(m_engine.Send(msg::GetTextRange, 0, &range), 1);
    EXPECT_EQ(buffer, std::u16string(u"b\0####", 6));
    range.chrg = {1, 2};
    EXPECT_EQ(m_engine.Send(msg::GetTextRange, 0, &range), 0);
    range.chrg = {2, 3};
    EXPECT_EQ(m_engine.Send(msg::GetTextRange, 0, &range), 0);
    EXPECT_EQ(m_engine.Send(msg::GetStyledText, 0, &range), 0);
}

TEST_F(Families, OneStyleIsSetForEachUnit)
{
    Start(u"\u00e9\U0001F600x\u4e2d");
    m_engine.Send(msg::StartStyling, 0, LPARAM{0xFF});
    m_engine.Send(msg::SetStylingEx, 5, "\x01\x02\x02\x03\x04");
    EXPECT_EQ(StyleAt(0), 1);
    EXPECT_EQ(StyleAt(1), 2);
    EXPECT_EQ(StyleAt(3), 3);
    EXPECT_EQ(StyleAt(4), 4);
    EXPECT_EQ(m_engine.Send(msg::GetEndStyled), 5);
}

TEST_F(Families, ACallTipKeepsThePlaceOfTheCaret)
{
    Start(u"\u00e9\U0001F600(");
    m_engine.Window()->show();
    m_engine.Send(msg::GotoPos, 3);
    m_engine.Send(msg::CallTipShow, 1, u"f(\u00e4, b)");
    EXPECT_EQ(m_engine.Send(msg::CallTipActive), 1);
    EXPECT_EQ(m_engine.Send(msg::CallTipPosStart), 3);
    m_engine.Send(msg::CallTipSetHlt, 2, LPARAM{3});
    m_engine.Send(msg::CallTipCancel);
    EXPECT_EQ(m_engine.Send(msg::CallTipActive), 0);
}

TEST_F(Families, ACompletionReplacesWhatWasTyped)
{
    Start(u"\u00e4s\u00fc");
    m_engine.Window()->show();
    m_engine.Send(msg::GotoPos, 3);
    std::vector<std::shared_ptr<znsqlassist::SQLCompletionProposal>> proposals;
    for (const auto* text : {u"s\u00fcd", u"s\u00fc\u00df"})
        proposals.push_back(std::make_shared<znsqlassist::SQLCompletionProposal>(text));
    const AutoCompleteConfig config{nullptr, 1, 2, 1};
    m_engine.Send(msg::AutoCShow, reinterpret_cast<WPARAM>(&config), &proposals);
    ASSERT_EQ(m_engine.Send(msg::AutoCActive), 1);
    EXPECT_EQ(m_engine.Send(msg::AutoCPosStart), 3);
    m_engine.Send(msg::AutoCSelect, 0, u"s\u00fc\u00df");
    EXPECT_EQ(m_engine.Send(msg::AutoCGetCurrent), 1);
    m_engine.Send(msg::AutoCComplete);
    EXPECT_EQ(m_engine.Text(), u"\u00e4s\u00fc\u00df");
    const auto chosen = m_engine.Parent().Of(notify::AutoCSelection);
    ASSERT_EQ(chosen.size(), 1u);
    EXPECT_EQ(chosen[0].text, u"s\u00fc\u00df");
    EXPECT_EQ(chosen[0].record.position, 1);
}

TEST_F(Families, AUserListTellsWhatWasChosen)
{
    Start(u"\u00e9");
    m_engine.Window()->show();
    m_engine.Send(msg::UserListShow, 7, u"\u00e4 \u4e2d");
    ASSERT_EQ(m_engine.Send(msg::AutoCActive), 1);
    m_engine.Send(msg::AutoCSelect, 0, u"\u4e2d");
    m_engine.Send(msg::AutoCComplete);
    const auto chosen = m_engine.Parent().Of(notify::UserListSelection);
    ASSERT_EQ(chosen.size(), 1u);
    EXPECT_EQ(chosen[0].text, u"\u4e2d");
    EXPECT_EQ(chosen[0].record.listType, 7);
    EXPECT_EQ(m_engine.Text(), u"\u00e9");
}

TEST_F(Families, TextIsFoundInBothDirections)
{
    Start(u"\U0001F600 \u00e9b \u00e9b");
    CharacterRange found;
    EXPECT_EQ(Find(u"\u00e9b", 0, -1, &found), 3);
    EXPECT_EQ(found.cpMin, 3);
    EXPECT_EQ(found.cpMax, 5);
    EXPECT_EQ(Find(u"\u00e9b", 8, 0), 6);
    EXPECT_EQ(Find(u"\u00e9b", 5, 0), 3);
    EXPECT_EQ(Find(u"nowhere", 0, -1), -1);
}

TEST_F(Families, TheTargetTakesTheMatch)
{
    Start(u"\U0001F600 a1 \u00e9b22");
    Target(0, 10);
    m_engine.Send(msg::SetSearchFlags, kRegExp);
    EXPECT_EQ(m_engine.Send(msg::SearchInTarget, static_cast<WPARAM>(-1), u"\u00e9b\\([0-9]*\\)"),
              6);
    EXPECT_EQ(m_engine.Send(msg::GetTargetStart), 6);
    EXPECT_EQ(m_engine.Send(msg::GetTargetEnd), 10);
    EXPECT_EQ(m_engine.Send(msg::ReplaceTargetRE, static_cast<WPARAM>(-1), u"\u4e2d\\1\\1"), 5);
    EXPECT_EQ(m_engine.Text(), u"\U0001F600 a1 \u4e2d2222");
}

TEST_F(Families, TheTargetIsGivenAsBytes)
{
    Start(u"x\u00e9\U0001F600y");
    Target(1, 4);
    char bytes[16] = {};
    EXPECT_EQ(m_engine.Send(msg::TargetAsUTF8, 0, bytes), 6);
    EXPECT_STREQ(bytes, "\xc3\xa9\xf0\x9f\x98\x80");
}

TEST_F(Families, BytesAreGivenAsText)
{
    char16_t text[16] = {};
    const auto bytes = reinterpret_cast<WPARAM>("\xc3\xa9\xf0\x9f\x98\x80z");
    EXPECT_EQ(m_engine.Send(msg::EncodedFromUTF8, bytes, text), 4);
    EXPECT_EQ(std::u16string(text), u"\u00e9\U0001F600z");
    m_engine.Send(msg::SetLengthForEncode, 2);
    EXPECT_EQ(m_engine.Send(msg::EncodedFromUTF8, bytes, text), 1);
    EXPECT_EQ(std::u16string(text), u"\u00e9");
}

TEST_F(Families, AColumnIsFoundInItsLine)
{
    Start(u"x\n\U0001F600\t\u00e9b");
    EXPECT_EQ(m_engine.Send(msg::FindColumn, 1, LPARAM{0}), 2);
    EXPECT_EQ(m_engine.Send(msg::FindColumn, 1, LPARAM{1}), 4);
    EXPECT_EQ(m_engine.Send(msg::FindColumn, 1, LPARAM{8}), 5);
    EXPECT_EQ(m_engine.Send(msg::FindColumn, 1, LPARAM{9}), 6);
    EXPECT_EQ(m_engine.Send(msg::FindColumn, 1, LPARAM{99}), 7);
}

TEST_F(Families, TheLineOfTheCaretComesWithItsPlace)
{
    Start(u"x\n\U0001F600\u00e9b\r\ny");
    m_engine.Send(msg::GotoPos, 5);
    std::u16string buffer(20, u'#');
    EXPECT_EQ(m_engine.Send(msg::GetCurLine, 20, buffer.data()), 3);
    EXPECT_EQ(std::u16string(buffer.c_str()), u"\U0001F600\u00e9b\r\n");
}

TEST_F(Families, ARectangleIsGivenLineByLine)
{
    Start(u"\u00e9b\n\u4e2dd\n");
    m_engine.Send(msg::SetSel, 0, LPARAM{1});
    EXPECT_EQ(SelText(), u"\u00e9");
    m_engine.Send(msg::GotoPos, 0);
    m_engine.Send(msg::CharRightRectExtend);
    m_engine.Send(msg::LineDownRectExtend);
    EXPECT_EQ(m_engine.Send(msg::SelectionIsRectangle), 1);
    const std::u16string lines = SelText();
    EXPECT_EQ(lines.front(), u'\u00e9');
    EXPECT_NE(lines.find(u'\u4e2d'), std::u16string::npos);
}

TEST_F(Families, PropertiesAreHeldExpandedAndReset)
{
    const auto key = [](const char16_t* name) { return reinterpret_cast<WPARAM>(name); };
    m_engine.Send(msg::SetProperty, key(u"n\u00e4me"), u"w\u00e9rt");
    m_engine.Send(msg::SetProperty, key(u"both"), u"<$(n\u00e4me)>");
    m_engine.Send(msg::SetProperty, key(u"fold"), u"12");
    EXPECT_EQ(Property(msg::GetProperty, u"both"), u"<$(n\u00e4me)>");
    EXPECT_EQ(Property(msg::GetPropertyExpanded, u"both"), u"<w\u00e9rt>");
    EXPECT_EQ(m_engine.Send(msg::GetPropertyInt, key(u"fold")), 12);
    EXPECT_EQ(Property(msg::GetProperty, u"absent"), u"");
    m_engine.Send(msg::ResetProperties);
    EXPECT_EQ(Property(msg::GetProperty, u"both"), u"");
    EXPECT_EQ(m_engine.Send(msg::GetPropertyInt, key(u"fold")), 0);
}

TEST_F(Families, TheDialectsStyleCommentsAndStringsByTheirNumbers)
{
    const std::u16string text = u"/*c*/ 'st\u00e9' --l\n";
    Start(text);
    m_engine.Send(msg::SetLexer, 3);
    m_engine.Send(msg::Colorize, 0, LPARAM{-1});
    EXPECT_EQ(m_engine.Send(msg::GetLexer), 3);
    EXPECT_EQ(StyleAt(1), 1);
    EXPECT_EQ(StyleAt(8), 4);
    EXPECT_EQ(StyleAt(14), 2);
}

TEST_F(Families, GenericSqlStylesCommentsAndStringsByItsNumbers)
{
    Start(u"/*c*/ 'st\u00e9' --l\n");
    m_engine.Send(msg::SetLexer, 9);
    m_engine.Send(msg::Colorize, 0, LPARAM{-1});
    EXPECT_EQ(StyleAt(1), 1);
    EXPECT_EQ(StyleAt(8), 7);
    EXPECT_EQ(StyleAt(14), 2);
}

TEST_F(Families, AnImageComesAsLinesOrAsOneText)
{
    const char* lines[] = {"4 4 1 1", "x c #FF0000", "xxxx", "xxxx", "xxxx", "xxxx"};
    const char* text = "/* XPM */\nstatic char* a[] = {\n\"4 4 1 1\", \"x c #0000FF\",\n"
                       "\"xxxx\", \"xxxx\", \"xxxx\", \"xxxx\"};";
    const auto shows = [this](QRgb colour) {
        const QImage image = m_engine.Window()->grab().toImage();
        for (int x = 0; x < 20; ++x) {
            for (int y = 0; y < 20; ++y) {
                if (image.pixel(x, y) == colour)
                    return true;
            }
        }
        return false;
    };
    Start(u"a\n");
    m_engine.Send(msg::SetMarginWidthN, 2, LPARAM{16});
    m_engine.Send(msg::SetMarginMaskN, 2, LPARAM{1 << 2});
    m_engine.Send(msg::MarkerAdd, 0, LPARAM{2});
    m_engine.Send(msg::MarkerDefinePixmap, 2, static_cast<const void*>(lines));
    EXPECT_TRUE(shows(0xFFFF0000));
    m_engine.Send(msg::MarkerDefinePixmap, 2, text);
    EXPECT_TRUE(shows(0xFF0000FF));
}

TEST_F(Families, WhatIsNoImageChangesNoMarker)
{
    Start(u"a\n");
    m_engine.Send(msg::SetMarginWidthN, 2, LPARAM{16});
    m_engine.Send(msg::SetMarginMaskN, 2, LPARAM{1 << 2});
    m_engine.Send(msg::MarkerAdd, 0, LPARAM{2});
    const QImage before = m_engine.Window()->grab().toImage();
    const char* cut[] = {"4 4 1 1", "x c #FF0000", nullptr};
    const char* noHeader[] = {"many colours"};
    const char* none[] = {nullptr};
    for (const auto* lines : {cut, noHeader, none})
        m_engine.Send(msg::MarkerDefinePixmap, 2, static_cast<const void*>(lines));
    EXPECT_EQ(m_engine.Window()->grab().toImage(), before);
}
