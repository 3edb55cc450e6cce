// SPDX-License-Identifier: GPL-3.0-or-later
// What a host may say and a stock engine does not survive.
#include "tests/engine/EngineFixture.h"

#include "control/Completion.h"

#include <Qsci/qsciscintillabase.h>

#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

#include <climits>
#include <memory>

namespace msg = engine::message;

namespace {

void FoldThreeLines(const EngineUnderTest& engine)
{
    engine.SetText(u"a\nb\nc\nd\n");
    engine.Send(msg::HideLines, 1, 2);
}

constexpr WPARAM kMinusOne = static_cast<WPARAM>(-1);

} // namespace

TEST(HostileCalls, ANegativeLineIsNotSoughtAmongHiddenOnes)
{
    EngineUnderTest engine;
    FoldThreeLines(engine);
    EXPECT_EQ(engine.Send(msg::VisibleFromDocLine, kMinusOne), 0);
    engine.Send(msg::EnsureVisibleEnforcePolicy, kMinusOne);
    engine.Send(msg::EnsureVisible, kMinusOne);
    EXPECT_EQ(engine.Send(msg::GetLineVisible, 1), 0);
    EXPECT_EQ(engine.Send(msg::GetLineVisible, 3), 1);
}

TEST(HostileCalls, HiddenLinesThatComeToTheFrontArePaintedAndBegin)
{
    EngineUnderTest engine;
    FoldThreeLines(engine);
    engine.Erase(0, 2);
    engine.Window()->grab();
    EXPECT_EQ(engine.Send(msg::GetLineVisible, 0), 1);
    EXPECT_EQ(engine.Send(msg::GetLineVisible, 1), 0);
}

TEST(HostileCalls, ARangeThatRunsBackwardsIsNotColoured)
{
    EngineUnderTest engine;
    for (const WPARAM lexer : {WPARAM{3}, WPARAM{2}}) {
        engine.Send(msg::SetLexer, lexer);
        engine.SetText(u"select 1 -- x");
        const LRESULT before = engine.Send(msg::GetEndStyled);
        engine.Send(msg::Colorize, 5, 2);
        EXPECT_EQ(engine.Send(msg::GetEndStyled), before) << lexer;
    }
}

TEST(HostileCalls, KeyWordsOfASetThatIsNoneAreIgnored)
{
    EngineUnderTest engine;
    for (const WPARAM lexer : {WPARAM{2}, WPARAM{3}, WPARAM{5}}) {
        engine.Send(msg::SetLexer, lexer);
        for (const long set : {-1L, 9L, 100L, 1L << 40, -(1L << 31)})
            engine.Send(msg::SetKeyWords, static_cast<WPARAM>(set), u"alpha beta");
        engine.SetText(u"alpha");
        engine.Send(msg::Colorize, 0, LPARAM{-1});
        EXPECT_EQ(engine.Send(msg::GetEndStyled), 5) << lexer;
    }
}

TEST(HostileCalls, WidthsOfTabsAndIndentationsStayWithinALine)
{
    EngineUnderTest engine;
    engine.Send(msg::SetTabWidth, 5);
    engine.Send(msg::SetTabWidth, kMinusOne);
    EXPECT_EQ(engine.Send(msg::GetTabWidth), 5);
    engine.Send(msg::SetUseTabs, 0);
    for (const UINT number : {msg::SetIndent, msg::SetTabWidth}) {
        engine.SetText(u"x");
        engine.Send(number, 1000000000);
        engine.Send(msg::Tab);
        EXPECT_LE(engine.Send(msg::GetLength), 64 * 1024 + 1);
        engine.Send(number, 4);
    }
    engine.Send(msg::SetLineIndentation, 0, 1000000000);
    EXPECT_LE(engine.Send(msg::GetLineIndentation, 0), 64 * 1024);
}

TEST(HostileCalls, AStatusThatAHostHasSetStopsNoText)
{
    EngineUnderTest engine;
    engine.Send(msg::SetStatus, 2);
    EXPECT_EQ(engine.Send(msg::GetStatus), 2);
    EXPECT_NO_THROW(engine.SetText(u"abc"));
    EXPECT_EQ(engine.Text(), u"abc");
    EXPECT_EQ(engine.Send(msg::GetStatus), 2);
}

TEST(HostileCalls, AListWithTheCaretFarAwayIsShownAtTheCaret)
{
    EngineUnderTest engine;
    engine.Parent().GetSafeHwnd()->show();
    engine.SetText(std::u16string(5000, u'\n'));
    engine.Send(msg::GotoPos, 5000);
    engine.Send(msg::LineScroll, 0, -5000);
    engine.Send(msg::UserListShow, 1, u"one two");
    EXPECT_EQ(engine.Send(msg::AutoCActive), 1);
    EXPECT_GT(engine.Send(msg::GetFirstVisibleLine), 0);
}

TEST(HostileCalls, AWindowOffEveryScreenShowsNoList)
{
    EngineUnderTest engine;
    engine.SetText(u"o");
    QWidget& top = *engine.Parent().GetSafeHwnd();
    const std::vector<std::shared_ptr<znsqlassist::SQLCompletionProposal>> proposals{
        std::make_shared<znsqlassist::SQLCompletionProposal>(u"one")};
    const AutoCompleteConfig config{nullptr, 1, 0, 1};
    for (const QPoint place : {QPoint(-90000, -90000), QPoint(-20, -20), QPoint(10, 10)}) {
        top.move(place);
        top.show();
        engine.Send(msg::AutoCShow, reinterpret_cast<WPARAM>(&config), &proposals);
        EXPECT_EQ(engine.Send(msg::AutoCActive), place.x() > 0) << place.x();
        engine.Send(msg::AutoCCancel);
        engine.Send(msg::UserListShow, 1, u"one two");
        EXPECT_EQ(engine.Send(msg::AutoCActive), place.x() > 0) << place.x();
        engine.Send(msg::AutoCCancel);
    }
}

TEST(HostileCalls, AListIsShownAtTheCaretThatCountsOfColumns)
{
    EngineUnderTest engine;
    QWidget& top = *engine.Parent().GetSafeHwnd();
    top.move(10, 10);
    top.show();
    engine.SetText(std::u16string(3000, u'\n'));
    const auto& stock = *qobject_cast<QsciScintillaBase*>(engine.Window());
    stock.SendScintilla(QsciScintillaBase::SCI_SETRECTANGULARSELECTIONCARET, 3000UL);
    stock.SendScintilla(QsciScintillaBase::SCI_SCROLLCARET);
    stock.SendScintilla(QsciScintillaBase::SCI_SETMAINSELECTION, 0UL);
    engine.Send(msg::UserListShow, 1, u"one two");
    EXPECT_EQ(engine.Send(msg::AutoCActive), 1);
    EXPECT_EQ(engine.Send(msg::GetFirstVisibleLine), 0);
}

TEST(HostileCalls, ColumnsTakeACharacterWhileStylesWaitToBeApplied)
{
    EngineUnderTest engine;
    engine.Parent().GetSafeHwnd()->show();
    engine.SetText(u"ab\ncd\nef\ngh");
    for (int i = 0; i < 3; ++i)
        engine.Send(msg::LineDownRectExtend);
    QTest::keyClick(engine.Window(), 'Y', Qt::ShiftModifier);
    engine.Send(msg::SetOvertype, 1);
    engine.Send(msg::StyleSetSize, 32, LPARAM{20});
    QTest::keyClick(engine.Window(), 'X', Qt::ShiftModifier);
    EXPECT_EQ(engine.Text(), u"YXb\nYXd\nYXf\nYXh");
}

TEST(HostileCalls, AColumnBehindALineThatGrowsEndsBesideAWholeCharacter)
{
    EngineUnderTest engine;
    engine.SetText(u"");
    engine.Send(msg::CharRightRectExtend);
    engine.Send(msg::ReplaceTargetNoProcess, 2, u"\u4e2dx");
    engine.Send(msg::DelWordLeft);
    EXPECT_EQ(engine.Text(), u"\u4e2dx");
    EXPECT_EQ(engine.Send(msg::GetCurrentPos), 0);
}

TEST(HostileCalls, AListAtAColumnOffEveryScreenIsNotShownOnceStylesAreApplied)
{
    EngineUnderTest engine;
    engine.Parent().GetSafeHwnd()->show();
    engine.SetText(std::u16string(3000, u'\n'));
    const auto& stock = *qobject_cast<QsciScintillaBase*>(engine.Window());
    stock.SendScintilla(QsciScintillaBase::SCI_SETRECTANGULARSELECTIONCARET, 3000UL);
    QTest::keyClick(engine.Window(), 'Y', Qt::ShiftModifier);
    stock.SendScintilla(QsciScintillaBase::SCI_SETMAINSELECTION, 0UL);
    engine.Send(msg::LineScroll, 0, LPARAM{-3000});
    engine.Send(msg::StyleSetSize, 32, LPARAM{20});
    engine.Send(msg::UserListShow, 1, u"one two");
    EXPECT_EQ(engine.Send(msg::AutoCActive), 0);
}

TEST(HostileCalls, AColumnBegunInTheMarginOfAViewThatIsFarRightIsACaret)
{
    EngineUnderTest engine;
    engine.Parent().GetSafeHwnd()->show();
    engine.SetText(u"ab\ncd");
    engine.Send(msg::SetMarginWidthN, 1, LPARAM{40});
    engine.Send(msg::SetXOffset, 1000000000);
    engine.Send(msg::StyleSetSize, 0, LPARAM{1});
    auto* viewport = engine.Window()->findChild<QWidget*>(QStringLiteral("qt_scrollarea_viewport"));
    QTest::mouseClick(viewport, Qt::LeftButton, Qt::AltModifier, QPoint(20, 4));
    EXPECT_EQ(engine.Send(msg::SelectionIsRectangle), 0);
    EXPECT_EQ(engine.Send(msg::GetLineCount), 2);
    EXPECT_LE(engine.Send(msg::GetCurrentPos), 2);
}

TEST(HostileCalls, StylesThatEndedInsideOfACharacterGoOnAtItsStart)
{
    EngineUnderTest engine;
    engine.SetText(u"\u4e2dx");
    const auto& stock = *qobject_cast<QsciScintillaBase*>(engine.Window());
    stock.SendScintilla(QsciScintillaBase::SCI_STARTSTYLING, 2UL);
    const char styles[] = {5, 7, 8};
    engine.Send(msg::SetStylingEx, 2, styles + 1);
    EXPECT_EQ(engine.Send(msg::GetStyleAt, 0), 7);
    EXPECT_EQ(engine.Send(msg::GetStyleAt, 1), 8);
}

TEST(HostileCalls, LinesOfAReadOnlyTextAreNotJoined)
{
    EngineUnderTest engine;
    engine.SetText(u"a\nb\nc");
    engine.Send(msg::SetTargetStart, 0);
    engine.Send(msg::SetTargetEnd, 3);
    engine.Send(msg::SetReadOnly, 1);
    engine.Send(msg::LinesJoin);
    EXPECT_EQ(engine.Send(msg::GetTargetEnd), 3);
    EXPECT_EQ(engine.Text(), u"a\nb\nc");
}

TEST(HostileCalls, StylesOfARangeThatEndsInsideALineEndStayWithinIt)
{
    EngineUnderTest engine;
    engine.SetText(u"ab\r\ncd");
    std::u16string cells(12, u'#');
    TextRange range{{1, 3}, cells.data()};
    EXPECT_EQ(engine.Send(msg::GetStyledText, 0, &range), 4);
    EXPECT_EQ(cells.substr(0, 8), std::u16string(u"b\0\r\0\0\0##", 8));
}

TEST(HostileCalls, StylesOfARangeThatBeginsInsideACharacterStayWithinIt)
{
    EngineUnderTest engine;
    engine.SetText(u"\U0001F600\U0001F600");
    std::u16string cells(12, u'#');
    TextRange range{{1, 2}, cells.data()};
    EXPECT_LE(engine.Send(msg::GetStyledText, 0, &range), 2);
    EXPECT_EQ(cells.substr(4), std::u16string(8, u'#'));
}

TEST(HostileCalls, StyledTextGoesInWhereTheCaretIsOnceAnotherWindowHasTakenTheText)
{
    EngineUnderTest engine;
    EngineUnderTest other;
    engine.SetText(u"\u4e2d\u6587 select");
    other.Send(msg::SetDocPointer, 0, engine.Send(msg::GetDocPointer));
    engine.Send(msg::DocumentEnd);
    other.Send(msg::ClearAll);
    const std::u16string cells{u'\u4e2d', 7, u'x', 8};
    engine.Send(msg::AddStyledText, cells.size(), cells.data());
    EXPECT_EQ(engine.Text(), u"\u4e2dx");
    EXPECT_EQ(engine.Send(msg::GetStyleAt, 0), 7);
    EXPECT_EQ(engine.Send(msg::GetStyleAt, 1), 8);
    EXPECT_EQ(engine.Send(msg::GetCurrentPos), 2);
}

TEST(HostileCalls, StyledTextDoesNotGoIntoATextThatMayOnlyBeRead)
{
    EngineUnderTest engine;
    engine.SetText(u"ab");
    engine.Send(msg::DocumentEnd);
    engine.Send(msg::SetReadOnly, 1);
    const std::u16string cells{u'x', 8};
    engine.Send(msg::AddStyledText, cells.size(), cells.data());
    EXPECT_EQ(engine.Text(), u"ab");
    EXPECT_EQ(engine.Send(msg::GetStyleAt, 1), 0);
}

TEST(HostileCalls, ARectangleIsReadIntoTheRoomThatItsEndsTell)
{
    EngineUnderTest engine;
    engine.Send(msg::SetEOLMode, 1);
    engine.SetText(u"a\nb\nc\n");
    engine.Send(msg::GotoPos, 0);
    engine.Send(msg::LineDownRectExtend);
    engine.Send(msg::LineDownRectExtend);
    engine.Send(msg::CharRightRectExtend);
    const LRESULT room =
        engine.Send(msg::GetSelectionEnd) - engine.Send(msg::GetSelectionStart) + 1;
    const LRESULT all = engine.Send(msg::GetSelText);
    EXPECT_GT(all, room);
    std::u16string buffer(static_cast<std::size_t>(all) + 1, u'#');
    engine.Send(msg::GetSelText, 0, buffer.data());
    EXPECT_EQ(buffer[static_cast<std::size_t>(room) - 1], u'\0');
    EXPECT_EQ(buffer[static_cast<std::size_t>(room)], u'#');
    engine.Send(msg::GetSelText, static_cast<WPARAM>(all), buffer.data());
    EXPECT_EQ(buffer, u"a\r\nb\r\nc\r\n" + std::u16string(u"\0#", 2));
}

TEST(HostileCalls, SelectionsStayInTheText)
{
    EngineUnderTest engine;
    engine.SetText(u"text");
    for (const UINT number : {msg::SetAnchor, msg::SetCurrentPos, msg::SetSelectionStart,
                              msg::SetSelectionEnd, msg::GotoPos}) {
        engine.Send(msg::SetSel, 2, LPARAM{3});
        engine.Send(number, kMinusOne);
        EXPECT_GE(engine.Send(msg::GetAnchor), 0) << number;
        EXPECT_GE(engine.Send(msg::GetCurrentPos), 0) << number;
    }
}

TEST(HostileCalls, ColoursOfAPieceOfALineAreThoseOfTheLine)
{
    EngineUnderTest engine;
    engine.Send(msg::SetLexerLanguage, 0, u"cpp");
    engine.SetText(u"int a;\n/* a comment */ int b;\n");
    engine.Send(msg::Colorize, 0, LPARAM{-1});
    const LRESULT comment = engine.Send(msg::GetStyleAt, 12);
    const LRESULT code = engine.Send(msg::GetStyleAt, 25);
    ASSERT_NE(comment, code);
    engine.Send(msg::Colorize, 13, LPARAM{15});
    EXPECT_EQ(engine.Send(msg::GetStyleAt, 12), comment);
    EXPECT_EQ(engine.Send(msg::GetStyleAt, 25), code);
    EXPECT_EQ(engine.Send(msg::GetEndStyled), 30);
}

TEST(HostileCalls, StylesThatEndInsideACharacterGoOnBehindIt)
{
    EngineUnderTest engine;
    engine.SetText(u"\U0001F600\U0001F600ab");
    engine.Send(msg::StartStyling, 0, LPARAM{0});
    for (int i = 0; i < 3; ++i) {
        engine.Send(msg::SetStyling, 1, LPARAM{1});
        engine.Send(msg::SetStylingEx, 1, "\1");
        EXPECT_LE(engine.Send(msg::GetEndStyled), 6);
    }
    EXPECT_EQ(engine.Text(), u"\U0001F600\U0001F600ab");
}

TEST(HostileCalls, MarksThatMoveAreNotToldInTheMiddleOfAnEdit)
{
    constexpr int kEverything = 0x7FFFF;
    EngineUnderTest engine;
    engine.Send(msg::SetModEventMask, kEverything);
    engine.SetText(u"a\nb\nc\nd\n");
    engine.Send(msg::ErrorsSetMarkNum, 2);
    engine.Send(msg::ErrorsSetIndic, 0);
    ErrorInfo error;
    for (const long start : {0L, 2L, 4L, 6L}) {
        error.nStart = start;
        error.nEnd = start + 1;
        engine.Send(msg::ErrorAdd, 1, &error);
    }
    engine.Send(msg::ErrorsShow);
    engine.Parent().heard.clear();
    std::u16string mirror = engine.Text();
    for (int i = 0; i < 20; ++i) {
        engine.Send(msg::InsertText, static_cast<WPARAM>(i % 5), u"\n\u4e2d\n");
        engine.Send(msg::Undo);
        engine.Send(msg::Redo);
    }
    for (const Heard& each : engine.Parent().Of(notify::Modified)) {
        const auto at = static_cast<std::size_t>(each.record.position);
        if (each.record.modificationType & modification::InsertText)
            mirror.insert(at, each.text);
        else if (each.record.modificationType & modification::DeleteText)
            mirror.erase(at, each.text.size());
    }
    EXPECT_EQ(mirror, engine.Text());
}

TEST(HostileCalls, AWindowThatGoesWithAnOpenListTellsNobody)
{
    auto engine = std::make_unique<EngineUnderTest>();
    Listener& parent = engine->Parent();
    parent.GetSafeHwnd()->show();
    engine->SetText(u"x");
    engine->Send(msg::UserListShow, 1, u"one two");
    ASSERT_EQ(engine->Send(msg::AutoCActive), 1);
    parent.heard.clear();
    delete engine->Window();
    EXPECT_TRUE(parent.heard.empty());
}

TEST(HostileCalls, AHiddenLineThatBecomesTheFirstIsShown)
{
    EngineUnderTest engine;
    EngineUnderTest other;
    other.Send(msg::SetDocPointer, 0, engine.Send(msg::GetDocPointer));
    engine.Window()->show();
    FoldThreeLines(engine);
    other.Send(msg::HideLines, 1, 3);
    engine.Erase(0, 2);
    for (const EngineUnderTest* each : {&engine, &other}) {
        EXPECT_EQ(each->Send(msg::GetLineVisible, 0), 1);
        EXPECT_EQ(each->Send(msg::GetLineVisible, 1), 0);
        each->Window()->grab();
        each->Send(msg::GotoPos, 3);
        each->Send(msg::ParaUp); // which ran for ever
        EXPECT_EQ(each->Send(msg::GetCurrentPos), 0);
    }
    engine.Send(msg::Undo);
    EXPECT_EQ(engine.Send(msg::GetLineVisible, 0), 1);
}

TEST(HostileCalls, LinesAreSplitWhileStylesWaitAndColumnsAreSelected)
{
    EngineUnderTest engine;
    engine.Window()->show();
    engine.SetText(u"one two three four five six seven eight\nnine ten\n");
    engine.Send(msg::LineDownRectExtend);
    engine.Send(msg::CharRightRectExtend);
    engine.Send(msg::SetTargetStart, 0);
    engine.Send(msg::SetTargetEnd, 10);
    engine.Send(msg::StyleSetSize, 32, LPARAM{20});
    engine.Send(msg::LinesSplit, 100);
    EXPECT_GT(engine.Send(msg::GetLineCount), 3);
}

TEST(HostileCalls, AMarkerOfNoNumberIsNotAdded)
{
    EngineUnderTest engine;
    engine.SetText(u"a\nb\n");
    for (const LPARAM number : {LPARAM{INT_MIN}, LPARAM{-1}, LPARAM{32}, LPARAM{64}}) {
        EXPECT_EQ(engine.Send(msg::MarkerAdd, 1, number), -1);
        EXPECT_EQ(engine.Send(msg::MarkerGet, 1), 0) << number;
    }
    EXPECT_GT(engine.Send(msg::MarkerAdd, 1, LPARAM{31}), 0);
}

TEST(HostileCalls, ColumnsOfALineThatIsTooLongAreNotSelected)
{
    EngineUnderTest engine;
    engine.SetText(std::u16string(900 * 1000, u'a') + u"\nb\n");
    engine.Send(msg::GotoPos, 900 * 1000);
    for (const UINT number : {msg::LineDownRectExtend, msg::PageDownRectExtend})
        engine.Send(number);
    QTest::keyClick(engine.Window(), Qt::Key_Down, Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_EQ(engine.Send(msg::GetCurrentPos), 900 * 1000);
    EXPECT_EQ(engine.Send(msg::SelectionIsRectangle), 0);
}

TEST(HostileCalls, AClickFarToTheRightOfEveryLineIsAtAnEnd)
{
    EngineUnderTest engine;
    engine.Window()->show();
    engine.SetText(u"a\nb\n");
    auto* viewport = engine.Window()->findChild<QWidget*>(QStringLiteral("qt_scrollarea_viewport"));
    for (const UINT number : {msg::SetMarginLeft, msg::SetMarginRight})
        engine.Send(number, 0, LPARAM{INT_MIN});
    engine.Send(msg::SetXOffset, INT_MAX);
    engine.Send(msg::StyleSetSize, 0, LPARAM{1});
    ASSERT_GT(engine.Send(msg::GetXOffset), 1000000);
    for (const Qt::KeyboardModifier held : {Qt::AltModifier, Qt::NoModifier, Qt::ShiftModifier}) {
        QTest::mousePress(viewport, Qt::LeftButton, held, {50, 5});
        QTest::mouseMove(viewport, {60, 25});
        QTest::mouseRelease(viewport, Qt::LeftButton, held, {60, 25});
        QTest::mouseDClick(viewport, Qt::LeftButton, held, {60, 25});
        EXPECT_EQ(engine.Send(msg::SelectionIsRectangle), 0);
        EXPECT_EQ(engine.Send(msg::GetCurrentPos), 3);
        QTest::mouseMove(viewport, {60, 5});
    }
    EXPECT_EQ(engine.Send(msg::GetMarginLeft), 0);
}

TEST(HostileCalls, WrappedLinesAreNotIndentedOutOfSight)
{
    EngineUnderTest engine;
    engine.Window()->show();
    engine.SetText(std::u16string(2000, u'a') + u"\nb");
    engine.Send(msg::SetWrapMode, 2);
    engine.Send(msg::SetWrapStartIndent, INT_MAX);
    engine.Window()->grab();
    engine.Send(msg::GotoPos, 1999);
    EXPECT_LT(engine.Send(msg::PointXFromPosition, 0, LPARAM{1999}), 1000000);
    engine.Send(msg::LineDownRectExtend);
    EXPECT_EQ(engine.Send(msg::SelectionIsRectangle), 1);
}

TEST(HostileCalls, LinesThatAColumnIsInAreCutWhole)
{
    EngineUnderTest engine;
    const std::u16string kept = u"\xFFFF\xFFFFgh\nlast";
    const std::u16string text = u"\xFFFF\ncd\n" + kept;
    engine.SetText(text);
    engine.Send(msg::GotoPos, 1);
    engine.Send(msg::LineDownRectExtend);
    engine.Send(msg::LineCut);
    EXPECT_EQ(engine.Text(), kept);
    engine.Send(msg::Undo);
    EXPECT_EQ(engine.Text(), text);
}

TEST(HostileCalls, AModeOfColumnsBeginsAtTheSelection)
{
    EngineUnderTest engine;
    engine.Window()->show();
    for (const WPARAM mode : {1, 3}) {
        engine.SetText(u"abc\ndef\nghi");
        engine.Send(msg::SetSel, 1, LPARAM{6});
        engine.Send(msg::SetSelectionMode, mode);
        EXPECT_EQ(engine.Send(msg::GetSelectionMode), static_cast<LRESULT>(mode));
        EXPECT_EQ(engine.Send(msg::GetCurrentPos), 6);
        engine.Send(msg::Clear);
        EXPECT_EQ(engine.Text(), u"ac\ndf\nghi");
    }
    engine.SetText(u"");
    engine.Send(msg::SetSelectionMode, 3);
    EXPECT_EQ(engine.Send(msg::GetCurrentPos), 0);
}

TEST(HostileCalls, APageOfColumnsBeginsAtTheCaret)
{
    EngineUnderTest engine;
    engine.Window()->show();
    engine.SetText(u"abc\ndef\nghi");
    engine.Send(msg::GotoPos, 6);
    engine.Send(msg::PageUpRectExtend);
    EXPECT_EQ(engine.Send(msg::SelectionIsRectangle), 1);
    engine.Send(msg::Clear);
    EXPECT_EQ(engine.Text(), u"c\nf\nghi");
}

TEST(HostileCalls, StepsBeforeAChangeThatWasNotCollectedAreNotUndone)
{
    EngineUnderTest engine;
    engine.SetText(u"");
    engine.Send(msg::InsertText, 0, u"a long text");
    engine.Send(msg::SetUndoCollection, 0);
    engine.Erase(2, 11);
    engine.Send(msg::SetUndoCollection, 1);
    EXPECT_EQ(engine.Send(msg::GetModify), 1);
    EXPECT_NO_THROW(engine.Send(msg::Undo));
    EXPECT_NO_THROW(engine.Send(msg::Undo));
    EXPECT_EQ(engine.Text(), u"a ");
    engine.Send(msg::AppendText, 1, u"b"); // which a stock engine refuses from then on
    EXPECT_EQ(engine.Text(), u"a b");
}

TEST(HostileCalls, StepsBeforeTextThatWasPutInFrontAndNotCollectedAreNotUndone)
{
    EngineUnderTest engine;
    engine.SetText(u"");
    engine.Send(msg::InsertText, 0, u"abc");
    engine.Send(msg::SetUndoCollection, 0);
    engine.Send(msg::InsertText, 0, u"longer than that ");
    engine.Send(msg::SetUndoCollection, 1);
    EXPECT_NO_THROW(engine.Send(msg::Undo));
    EXPECT_EQ(engine.Text(), u"longer than that abc");
}

TEST(HostileCalls, StepsBeforeTextThatWasPutInBehindAndNotCollectedAreUndone)
{
    EngineUnderTest engine;
    engine.SetText(u"");
    engine.Send(msg::InsertText, 0, u"abc");
    engine.Send(msg::SetUndoCollection, 0);
    engine.Send(msg::AppendText, 1, u"x");
    engine.Send(msg::SetUndoCollection, 1);
    engine.Send(msg::Undo);
    EXPECT_EQ(engine.Text(), u"x");
}
