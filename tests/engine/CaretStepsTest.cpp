// SPDX-License-Identifier: GPL-3.0-or-later
// Undo and redo of what is typed at several carets, and what is selected behind them.
#include "control/EngineLooks.h"
#include "control/Selections.h"
#include "tests/RandomSeed.h"
#include "tests/engine/EngineFixture.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QMimeData>
#include <QString>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

namespace msg = engine::message;

namespace {

using engine::SelectionEnds;
using Ends = std::vector<SelectionEnds>;

class CaretSteps : public testing::Test
{
public:
    CaretSteps()
    {
        m_engine.Window()->resize(600, 400);
        const engine::Looks looks;
        m_engine.Send(engine::kSetLooks, 0, &looks);
    }

    void Start(const std::u16string& text)
    {
        m_engine.SetText(text);
        m_engine.Send(msg::EmptyUndoBuffer);
        m_engine.Send(msg::SetSavePoint);
    }

    void Select(const Ends& ends)
    {
        m_engine.Send(engine::kSetSelections, ends.size(), ends.data());
    }

    void Press(int key, const QString& text = {}, Qt::KeyboardModifiers held = Qt::NoModifier)
    {
        QKeyEvent press(QEvent::KeyPress, key, held, text);
        QApplication::sendEvent(m_engine.Window(), &press);
    }

    void Type(const QString& text)
    {
        for (const QChar c : text)
            Press(c.toUpper().unicode(), c);
    }

    Ends Selected() const
    {
        Ends all(static_cast<std::size_t>(m_engine.Send(engine::kGetSelections)));
        m_engine.Send(engine::kGetSelections, all.size(), all.data());
        return all;
    }

    std::string Text() const { return QString::fromStdU16String(m_engine.Text()).toStdString(); }

    EngineUnderTest m_engine;
};

const Ends kThree = {{0, 0}, {4, 4}, {8, 8}};

} // namespace

namespace engine {
static void PrintTo(const SelectionEnds& ends, std::ostream* out)
{
    *out << ends.anchor << ".." << ends.caret;
}
} // namespace engine

TEST_F(CaretSteps, AreOneForCharactersThatAreTypedOneAfterTheOther)
{
    Start(u"one\ntwo\nten\n");
    Select(kThree);
    Type("a.");
    EXPECT_EQ(Text(), "a.one\na.two\na.ten\n");
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Text(), "one\ntwo\nten\n");
    EXPECT_EQ(Selected(), kThree);
    EXPECT_FALSE(m_engine.Send(msg::CanUndo));
    EXPECT_FALSE(m_engine.Send(msg::GetModify));
    m_engine.Send(msg::Redo);
    EXPECT_EQ(Text(), "a.one\na.two\na.ten\n");
    EXPECT_EQ(Selected(), (Ends{{2, 2}, {8, 8}, {14, 14}}));
}

TEST_F(CaretSteps, GiveBackWhatTypingHasReplaced)
{
    Start(u"one\ntwo\nten\n");
    const Ends words = {{0, 3}, {7, 4}, {8, 11}};
    Select(words);
    Type("ab");
    EXPECT_EQ(Text(), "ab\nab\nab\n");
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Text(), "one\ntwo\nten\n");
    EXPECT_EQ(Selected(), words);
}

TEST_F(CaretSteps, EndWithAMoveOfTheCarets)
{
    Start(u"one\ntwo\nten\n");
    Select(kThree);
    Type("a");
    Press(Qt::Key_Right);
    Type("b");
    EXPECT_EQ(Text(), "aobne\natbwo\natben\n");
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Text(), "aone\natwo\naten\n");
    EXPECT_EQ(Selected(), (Ends{{2, 2}, {7, 7}, {12, 12}}));
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Selected(), kThree);
}

TEST_F(CaretSteps, TakeLinesThatWereTypedOneByOne)
{
    Start(u"");
    Type("one");
    Press(Qt::Key_Return, "\r");
    Type("two");
    Press(Qt::Key_Enter, "\r", Qt::KeypadModifier);
    Type("ten");
    EXPECT_EQ(Text(), "one\ntwo\nten");
    for (const char* left : {"one\ntwo", "one", ""}) {
        m_engine.Send(msg::Undo);
        EXPECT_EQ(Text(), left);
    }
    EXPECT_FALSE(m_engine.Send(msg::CanUndo));
    EXPECT_FALSE(m_engine.Send(msg::GetModify));
    for (const char* back : {"one", "one\ntwo", "one\ntwo\nten"}) {
        m_engine.Send(msg::Redo);
        EXPECT_EQ(Text(), back);
    }
}

TEST_F(CaretSteps, BeginAnewWhereTheCaretHasComeBackFromElsewhere)
{
    Start(u"");
    Type("ab");
    Press(Qt::Key_Home);
    Press(Qt::Key_End);
    Press(Qt::Key_Shift, {}, Qt::ShiftModifier);
    Type("c");
    Press(Qt::Key_Shift, {}, Qt::ShiftModifier);
    Type("d");
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Text(), "ab");
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Text(), "");
}

TEST_F(CaretSteps, OfAColumnGoOnAsSeveralCaretsAlongTheirLines)
{
    Start(u"one,\nseventy\ntwo");
    for (int line = 0; line < 2; ++line)
        Press(Qt::Key_Down, {}, Qt::AltModifier | Qt::ShiftModifier);
    Press(Qt::Key_End);
    Type(";");
    EXPECT_EQ(Text(), "one,;\nseventy;\ntwo;");
    Press(Qt::Key_Home);
    Type("-");
    EXPECT_EQ(Text(), "-one,;\n-seventy;\n-two;");
    m_engine.Send(msg::Undo);
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Text(), "one,\nseventy\ntwo");
}

TEST_F(CaretSteps, LoseNothingToALineThatCannotBeTyped)
{
    Start(u"");
    Type("a");
    m_engine.Send(msg::Undo);
    m_engine.Send(msg::SetReadOnly, 1);
    Press(Qt::Key_Return, "\r");
    m_engine.Send(msg::SetReadOnly, 0);
    m_engine.Send(msg::Redo);
    EXPECT_EQ(Text(), "a");
}

TEST_F(CaretSteps, TakeLinesThatWereTypedAtSeveralCaretsOneByOne)
{
    Start(u"one\ntwo\nten\n");
    Select(kThree);
    Type("a");
    Press(Qt::Key_Return, "\r");
    Type("b");
    EXPECT_EQ(Text(), "a\nbone\na\nbtwo\na\nbten\n");
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Text(), "a\none\na\ntwo\na\nten\n");
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Text(), "aone\natwo\naten\n");
    EXPECT_EQ(Selected(), (Ends{{1, 1}, {6, 6}, {11, 11}}));
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Text(), "one\ntwo\nten\n");
    EXPECT_EQ(Selected(), kThree);
    EXPECT_FALSE(m_engine.Send(msg::CanUndo));
    EXPECT_FALSE(m_engine.Send(msg::GetModify));
    for (const char* back :
         {"aone\natwo\naten\n", "a\none\na\ntwo\na\nten\n", "a\nbone\na\nbtwo\na\nbten\n"}) {
        m_engine.Send(msg::Redo);
        EXPECT_EQ(Text(), back);
    }
}

TEST_F(CaretSteps, TakeLinesThatWereTypedOverOthersOneByOne)
{
    Start(u"abcdef");
    m_engine.Send(msg::GotoPos, 0);
    m_engine.Send(msg::SetOvertype, 1);
    Type("xy");
    Press(Qt::Key_Enter, "\r", Qt::KeypadModifier);
    Type("z");
    EXPECT_EQ(Text(), "xy\nzdef");
    for (const char* left : {"xy\ncdef", "xycdef", "xbcdef", "abcdef"}) { // one by one, as ever
        m_engine.Send(msg::Undo);
        EXPECT_EQ(Text(), left);
    }
    EXPECT_FALSE(m_engine.Send(msg::CanUndo));
}

TEST_F(CaretSteps, AreNoneWhereNothingIsCollected)
{
    Start(u"");
    m_engine.Send(msg::SetUndoCollection, 0);
    Type("a");
    Press(Qt::Key_Return, "\r");
    Type("b");
    Press(Qt::Key_Home);
    Type("c");
    EXPECT_EQ(Text(), "a\ncb");
    EXPECT_FALSE(m_engine.Send(msg::CanUndo));
    m_engine.Send(msg::SetUndoCollection, 1);
    EXPECT_FALSE(m_engine.Send(msg::CanUndo));
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Text(), "a\ncb");
}

TEST_F(CaretSteps, AreNotEndedByALineThatCannotBeTyped)
{
    Start(u"");
    Type("a");
    m_engine.Send(msg::SetReadOnly, 1);
    Press(Qt::Key_Return, "\r");
    m_engine.Send(msg::SetReadOnly, 0);
    Type("b");
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Text(), "");
}

TEST_F(CaretSteps, AreAPartOfTheActionThatIsOpen)
{
    Start(u"");
    m_engine.Send(msg::BeginUndoAction);
    Type("a");
    Press(Qt::Key_Return, "\r");
    Type("b");
    m_engine.Send(msg::EndUndoAction);
    EXPECT_EQ(Text(), "a\nb");
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Text(), "");
}

TEST_F(CaretSteps, BeginAnewBehindEveryKeyThatMoves)
{
    for (const int key : {Qt::Key_Home, Qt::Key_End, Qt::Key_Left, Qt::Key_Up, Qt::Key_Right,
                          Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown}) {
        Start(u"");
        Type("ab");
        Press(key);
        m_engine.Send(msg::GotoPos, 2);
        Type("c");
        EXPECT_EQ(Text(), "abc");
        m_engine.Send(msg::Undo);
        EXPECT_EQ(Text(), "ab") << key;
    }
}

TEST_F(CaretSteps, BeginAnewBehindAClick)
{
    Start(u"");
    Type("ab");
    QTest::mouseClick(static_cast<QAbstractScrollArea*>(m_engine.Window())->viewport(),
                      Qt::LeftButton, {}, QPoint(300, 5));
    EXPECT_EQ(Selected(), (Ends{{2, 2}}));
    Type("c");
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Text(), "ab");
}

TEST_F(CaretSteps, OfAColumnStayAColumnWhileItIsMadeWider)
{
    Start(u"abc\nabc\nabc");
    Press(Qt::Key_Down, {}, Qt::AltModifier | Qt::ShiftModifier);
    Press(Qt::Key_Right, {}, Qt::AltModifier | Qt::ShiftModifier);
    engine::ColumnCorners corners;
    ASSERT_TRUE(m_engine.Send(engine::kGetColumns, 0, &corners));
    EXPECT_EQ(corners.ends, (SelectionEnds{0, 5}));
    EXPECT_EQ(Selected(), (Ends{{0, 1}, {4, 5}}));
}

TEST_F(CaretSteps, OfAColumnGoToItsLastLineAloneWithoutLooks)
{
    m_engine.Send(engine::kSetLooks, 0, nullptr);
    Start(u"abc\nabc\nabc");
    Press(Qt::Key_Down, {}, Qt::AltModifier | Qt::ShiftModifier);
    Press(Qt::Key_End);
    EXPECT_EQ(Selected().size(), 1U);
}

TEST_F(CaretSteps, TakeAllThatIsTypedWithoutLooks)
{
    m_engine.Send(engine::kSetLooks, 0, nullptr);
    Start(u"");
    Type("one");
    Press(Qt::Key_Return, "\r");
    Type("two");
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Text(), "");
}

TEST_F(CaretSteps, EndWhereTheTextIsSaved)
{
    Start(u"one\ntwo\nten\n");
    Select(kThree);
    Type("a");
    m_engine.Send(msg::SetSavePoint);
    Type("b");
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Text(), "aone\natwo\naten\n");
    EXPECT_FALSE(m_engine.Send(msg::GetModify));
}

TEST_F(CaretSteps, AreAnotherForWhatIsTakenAway)
{
    Start(u"one\ntwo\nten\n");
    Select(kThree);
    Type("abc");
    Press(Qt::Key_Backspace);
    Press(Qt::Key_Backspace);
    EXPECT_EQ(Text(), "aone\natwo\naten\n");
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Text(), "abcone\nabctwo\nabcten\n");
    EXPECT_EQ(Selected(), (Ends{{3, 3}, {10, 10}, {17, 17}}));
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Text(), "one\ntwo\nten\n");
}

TEST_F(CaretSteps, AreCommandsToo)
{
    Start(u"one\ntwo\nten\n");
    const Ends words = {{0, 3}, {4, 7}};
    Select(words);
    m_engine.Send(msg::UpperCase);
    EXPECT_EQ(Text(), "ONE\nTWO\nten\n");
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Selected(), words);
    m_engine.Send(msg::BeginUndoAction);
    m_engine.Send(msg::Clear);
    m_engine.Insert(0, u"x");
    m_engine.Send(msg::EndUndoAction);
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Text(), "one\ntwo\nten\n");
    EXPECT_EQ(Selected(), words);
}

TEST_F(CaretSteps, GiveBackColumnsWithTheirBlanks)
{
    Start(u"one\n\nten\n");
    const engine::ColumnCorners corners{.ends = {3, 8}, .anchorBlanks = 0, .caretBlanks = 0};
    m_engine.Send(engine::kSetColumns, 0, &corners);
    const Ends before = Selected();
    ASSERT_EQ(before.size(), 3U);
    Type("xy");
    const std::string typed = Text();
    const Ends after = Selected();
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Text(), "one\n\nten\n");
    EXPECT_EQ(Selected(), before);
    EXPECT_TRUE(m_engine.Send(msg::SelectionIsRectangle));
    m_engine.Send(msg::Redo);
    EXPECT_EQ(Text(), typed);
    EXPECT_EQ(Selected(), after);
    m_engine.Send(msg::Undo);
    Type("xy");
    EXPECT_EQ(Text(), typed);
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Selected(), before);
    m_engine.Send(msg::Redo);
    EXPECT_EQ(Selected(), after);
}

// As it is of a single caret, whose steps the stock engine makes.
TEST_F(CaretSteps, GiveBackThePlaceAndTheViewBeforeAChangeOfManyPlaces)
{
    std::u16string text;
    for (int line = 0; line < 200; ++line)
        text += u"one\n";
    Start(text);
    Select({{401, 403}});
    m_engine.Send(msg::LineScroll, 0, 90 - m_engine.Send(msg::GetFirstVisibleLine));
    m_engine.Send(msg::SetDoingReplaceAll, 1);
    m_engine.Send(msg::BeginUndoAction);
    for (const int place : {4, 0, 400}) {
        m_engine.Send(msg::SetSel, place, place + 3);
        m_engine.Send(msg::ReplaceSel, 0, u"three");
    }
    m_engine.Send(msg::EndUndoAction);
    m_engine.Send(msg::SetDoingReplaceAll, 0);
    m_engine.Send(msg::GotoPos, 0);
    m_engine.Send(msg::Undo);
    EXPECT_EQ(m_engine.Text(), text);
    EXPECT_EQ(Selected(), (Ends{{401, 403}}));
    EXPECT_EQ(m_engine.Send(msg::GetFirstVisibleLine), 90);
}

TEST_F(CaretSteps, KeepTheViewIfWhatTheyGiveBackIsInSight)
{
    std::u16string text;
    for (int line = 0; line < 200; ++line)
        text += u"one\n";
    m_engine.Window()->grab(); // a window that was never shown is laid out first
    Start(text);
    Select({{40, 43}});
    m_engine.Send(msg::BeginUndoAction);
    m_engine.Send(msg::ReplaceSel, 0, u"three");
    m_engine.Send(msg::EndUndoAction);
    m_engine.Send(msg::LineScroll, 0, 5 - m_engine.Send(msg::GetFirstVisibleLine));
    ASSERT_GT(m_engine.Send(msg::LinesOnScreen), 6) << "the caret is in sight";
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Selected(), (Ends{{40, 43}}));
    EXPECT_EQ(m_engine.Send(msg::GetFirstVisibleLine), 5);
}

TEST_F(CaretSteps, BringBackWhatWasTypedOverInOneStep)
{
    Start(u"end loop;\n");
    Select({{0, 4}});
    Type("abcd");
    EXPECT_EQ(Text(), "abcdloop;\n");
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Text(), "end loop;\n");
    EXPECT_EQ(Selected(), (Ends{{0, 4}}));
    m_engine.Send(msg::Redo);
    EXPECT_EQ(Text(), "abcdloop;\n");
    EXPECT_EQ(Selected(), (Ends{{4, 4}}));
    EXPECT_EQ(m_engine.Send(msg::CanRedo), 0);
}

TEST_F(CaretSteps, BringBackTheLinesThatWereIndentedOrErased)
{
    const std::u16string text = u"one\ntwo\nten\nsix\n";
    struct KeyRow
    {
        int key;
        Qt::KeyboardModifiers held;
    };
    for (const KeyRow row : {KeyRow{Qt::Key_Tab, Qt::NoModifier},
                             {Qt::Key_Delete, Qt::NoModifier},
                             {Qt::Key_Backspace, Qt::NoModifier},
                             {Qt::Key_Return, Qt::NoModifier}}) {
        Start(text);
        Select({{0, 8}});
        Press(row.key, {}, row.held);
        ASSERT_NE(m_engine.Text(), text) << row.key;
        m_engine.Send(msg::Undo);
        EXPECT_EQ(m_engine.Text(), text) << row.key;
        EXPECT_EQ(Selected(), (Ends{{0, 8}})) << row.key;
        EXPECT_EQ(m_engine.Send(msg::CanUndo), 0) << row.key;
    }
}

TEST_F(CaretSteps, EndBehindATextThatWasTypedOverWhenTheCaretMoves)
{
    Start(u"end loop;\n");
    Select({{0, 4}});
    Type("ab");
    Press(Qt::Key_Right);
    Type("cd");
    EXPECT_EQ(Text(), "ablcdoop;\n");
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Text(), "abloop;\n");
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Text(), "end loop;\n");
}

TEST_F(CaretSteps, LeaveTheColumnOfTheCaretToUpAndDown)
{
    Start(u"one\ntwo\nlonger line\nlonger line\n");
    Select({{8, 19}});
    Press(Qt::Key_Delete);
    Press(Qt::Key_Up);
    m_engine.Send(msg::Undo); // with the caret behind the third line
    ASSERT_EQ(Selected(), (Ends{{8, 19}}));
    Press(Qt::Key_Down);
    EXPECT_EQ(Selected(), (Ends{{31, 31}}));
}

TEST_F(CaretSteps, ShowLinesFromTheirStartOnceALongOneIsGone)
{
    m_engine.Window()->grab(); // a window that was never shown is laid out first
    Start(u"one\ntwo\n");
    Select({{8, 8}});
    m_engine.Send(msg::ReplaceSel, 0, std::u16string(500, u'x').c_str());
    m_engine.Send(msg::ScrollCaret);
    ASSERT_GT(m_engine.Send(msg::GetXOffset), 0);
    m_engine.Send(msg::Undo);
    EXPECT_EQ(m_engine.Send(msg::GetXOffset), 0);
    EXPECT_EQ(Selected(), (Ends{{8, 8}}));
}

TEST_F(CaretSteps, GiveBackWhatWasPastedAtEachCaret)
{
    Start(u"one two\nten six\nelf\n");
    Select({{0, 3}, {8, 11}, {16, 19}});
    m_engine.Send(msg::Copy);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("one\nten\nelf"));
    Select({{7, 7}, {12, 15}, {19, 19}});
    m_engine.Send(msg::Paste);
    EXPECT_EQ(Text(), "one twoone\nten ten\nelfelf\n");
    EXPECT_EQ(Selected(), (Ends{{10, 10}, {18, 18}, {25, 25}}));
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Text(), "one two\nten six\nelf\n");
    Ends again = Selected();
    std::ranges::sort(again, {}, &SelectionEnds::caret);
    EXPECT_EQ(again, (Ends{{7, 7}, {12, 15}, {19, 19}}));
    EXPECT_FALSE(m_engine.Send(msg::CanUndo));
    Select({{20, 20}}); // one place has all, a line for each
    m_engine.Send(msg::Paste);
    EXPECT_EQ(Text(), "one two\nten six\nelf\none\nten\nelf");
}

TEST_F(CaretSteps, TakeWhatIsCutWithItsPieces)
{
    Start(u"a \u00e9\U0001F600;\nb two\nlines;\n");
    Select({{2, 5}, {8, 18}});
    m_engine.Send(msg::Cut);
    EXPECT_EQ(Text(), "a ;\nb;\n");
    m_engine.Send(msg::SetEOLMode, 1); // CR LF, of what is put in
    Select({{0, 0}, {4, 4}});
    m_engine.Send(msg::Paste);
    EXPECT_EQ(Text(), "\u00e9\U0001F600a ;\n two\r\nlinesb;\n");
}

// Anything may stand on the clipboard.
TEST_F(CaretSteps, PasteAsTextWhatSaysWrongThingsOfItsPieces)
{
    for (const char* told : {"3 3", "3", "3 -4 9", "3 4", "99999999999999999999 1", "a b", " ",
                             "3 3 3", "9223372036854775807 3"}) {
        auto* data = new QMimeData;
        data->setText(QStringLiteral("one\ntwo!"));
        data->setData(QStringLiteral("application/x-zncoreeditor-pieces"), told);
        QApplication::clipboard()->setMimeData(data);
        Start(u".\n.\n");
        Select({{0, 0}, {2, 2}});
        m_engine.Send(msg::Paste);
        EXPECT_EQ(Text(), QByteArray(told) == "3 4" ? "one.\ntwo!.\n" : "one\ntwo!.\none\ntwo!.\n")
            << told;
    }
}

TEST_F(CaretSteps, AreTheStockEnginesWithoutLooks)
{
    m_engine.Send(engine::kSetLooks, 0, LPARAM{0});
    Start(u"one\ntwo\nten\n");
    Select(kThree);
    Type("ab");
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Text(), "aone\natwo\naten\n");
    EXPECT_EQ(Selected().size(), 1U);
}

TEST_F(CaretSteps, AreForgottenWithTheHistory)
{
    Start(u"one\ntwo\nten\n");
    Select(kThree);
    Type("a");
    m_engine.Send(msg::EmptyUndoBuffer);
    EXPECT_FALSE(m_engine.Send(msg::CanUndo));
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Text(), "aone\natwo\naten\n");
    m_engine.Send(msg::GotoPos, 0);
    Type("xy");
    m_engine.Send(msg::Undo);
    EXPECT_EQ(Text(), "aone\natwo\naten\n");
    EXPECT_EQ(Selected(), (Ends{{0, 0}}));
}

// Whatever is done, undo and redo go through texts that were, each with selections that stood in
// it.
TEST_F(CaretSteps, LeadBackThroughWhatWasThere)
{
    const unsigned seed = RandomSeed();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 random(seed);
    const auto below = [&random](int end) {
        return std::uniform_int_distribution<int>(0, end - 1)(random);
    };
    for (int round = 0; round < 40; ++round) {
        Start(u"select a,\n  b\u00fc\u4e2d,\n\nfrom t\n");
        const std::string first = Text();
        std::multimap<std::string, Ends> seen;
        for (int i = 0; i < 40; ++i) {
            const long length = m_engine.Send(msg::GetLength);
            switch (below(9)) {
            case 0: {
                Ends ends(static_cast<std::size_t>(1 + below(4)));
                for (SelectionEnds& each : ends)
                    each.anchor = each.caret = below(static_cast<int>(length) + 1);
                Select(ends);
                break;
            }
            case 1:
                Press(below(2) ? Qt::Key_Left : Qt::Key_Right);
                break;
            case 2:
                Press(below(2) ? Qt::Key_Backspace : Qt::Key_Delete);
                break;
            case 3:
                m_engine.Send(below(2) ? UINT{msg::UpperCase} : UINT{msg::NewLine});
                break;
            case 4:
                m_engine.Send(below(3) ? UINT{msg::Undo} : UINT{msg::Redo});
                continue;
            default:
                Type(QChar(u'a' + below(3)));
            }
            seen.emplace(Text(), Selected());
        }
        while (m_engine.Send(msg::CanRedo))
            m_engine.Send(msg::Redo);
        const std::string last = Text();
        for (const UINT step : {UINT{msg::Undo}, UINT{msg::Redo}}) {
            while (m_engine.Send(step == msg::Undo ? msg::CanUndo : msg::CanRedo)) {
                m_engine.Send(step);
                const auto [from, to] = seen.equal_range(Text());
                const Ends selected = Selected();
                EXPECT_TRUE(selected.size() == 1 ||
                            std::any_of(from, to,
                                        [&](const auto& each) { return each.second == selected; }))
                    << Text() << testing::PrintToString(selected);
            }
            EXPECT_EQ(Text(), step == msg::Undo ? first : last);
        }
    }
}
