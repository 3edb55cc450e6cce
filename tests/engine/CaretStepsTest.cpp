// SPDX-License-Identifier: GPL-3.0-or-later
// Undo and redo of what is typed at several carets, and what is selected behind them.
#include "control/EngineLooks.h"
#include "control/Selections.h"
#include "tests/engine/EngineFixture.h"

#include <QApplication>
#include <QKeyEvent>
#include <QString>

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
    const unsigned seed = std::random_device{}();
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
