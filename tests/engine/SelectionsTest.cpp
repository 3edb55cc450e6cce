// SPDX-License-Identifier: GPL-3.0-or-later
// Several selections and columns, by message.
#include "tests/engine/EngineFixture.h"

#include "control/Recording.h"
#include "control/Selections.h"

#include <QTest>

#include <gtest/gtest.h>

#include <climits>
#include <vector>

namespace msg = engine::message;
using engine::ColumnCorners;
using engine::SelectionEnds;

namespace engine {
void PrintTo(const SelectionEnds& ends, std::ostream* out)
{
    *out << ends.anchor << " to " << ends.caret;
}
} // namespace engine

namespace {

constexpr WPARAM kDefaultStyle = 32;

class Selections : public testing::Test
{
protected:
    Selections() // columns are places in the window
    {
        engine.Send(msg::StyleSetFont, kDefaultStyle, u"DejaVu Sans Mono");
        engine.Send(msg::StyleClearAll);
    }

    std::vector<SelectionEnds> Told()
    {
        std::vector<SelectionEnds> ends(
            static_cast<std::size_t>(engine.Send(engine::kGetSelections)));
        engine.Send(engine::kGetSelections, ends.size(), ends.data());
        return ends;
    }
    void Select(const std::vector<SelectionEnds>& ends)
    {
        engine.Send(engine::kSetSelections, ends.size(), ends.data());
    }
    void SelectColumns(const ColumnCorners& corners)
    {
        engine.Send(engine::kSetColumns, 0, &corners);
    }

    EngineUnderTest engine;
};

using Ends = std::vector<SelectionEnds>;

TEST_F(Selections, AreTypedAtAndNobodyIsToldOfTyping)
{
    engine.SetText(u"one\ntwo\nten\n");
    engine.Send(msg::EmptyUndoBuffer);
    Select({{0, 0}, {4, 5}});
    EXPECT_EQ(engine.Send(engine::kTypeAtEach, 0, u"\U0001F600"), 1);
    EXPECT_EQ(engine.Text(), u"\U0001F600one\n\U0001F600wo\nten\n");
    EXPECT_EQ(Told(), (Ends{{2, 2}, {8, 8}}));
    SelectColumns({{0, 8}, 0, 0});
    EXPECT_EQ(engine.Send(engine::kTypeAtEach, 0, u"}"), 1);
    EXPECT_EQ(engine.Text(), u"}one\n}wo\nten\n");
    EXPECT_TRUE(engine.Send(engine::kGetColumns, 0, std::vector<ColumnCorners>(1).data()));
    EXPECT_TRUE(engine.Parent().Of(notify::CharAdded).empty());
    engine.Send(msg::Undo);
    engine.Send(msg::Undo);
    EXPECT_EQ(engine.Text(), u"one\ntwo\nten\n");
    QTest::keyClick(engine.Window(), 'x');
    EXPECT_EQ(engine.Parent().Of(notify::CharAdded).size(), 1u) << "of keys they are, as before";
}

TEST_F(Selections, AreNotTypedAtWhereThereIsOnePlaceAlone)
{
    engine.SetText(u"one\n");
    Select({{0, 3}});
    EXPECT_EQ(engine.Send(engine::kTypeAtEach, 0, u"x"), 0);
    EXPECT_EQ(engine.Send(engine::kTypeAtEach, 0, nullptr), 0);
    EXPECT_EQ(engine.Text(), u"one\n");
    Select({{0, 0}, {2, 2}});
    EXPECT_EQ(engine.Send(engine::kTypeAtEach, 0, nullptr), 0);
    engine.Send(msg::SetReadOnly, 1);
    engine.Send(engine::kTypeAtEach, 0, u"x");
    EXPECT_EQ(engine.Text(), u"one\n");
}

TEST_F(Selections, CountUnitsAndTellTheMainOneLast)
{
    engine.SetText(u"\u00e4\U0001F600b c d");
    EXPECT_EQ(Told(), (Ends{{0, 0}}));
    Select({{6, 6}, {1, 3}, {5, 4}});
    EXPECT_EQ(Told(), (Ends{{6, 6}, {1, 3}, {5, 4}}));
    EXPECT_EQ(engine.Send(msg::GetAnchor), 5);
    EXPECT_EQ(engine.Send(msg::GetCurrentPos), 4);
}

TEST_F(Selections, AreTypedIntoTogether)
{
    engine.SetText(u"a b c");
    Select({{0, 1}, {4, 5}});
    engine.Send(msg::DeleteBack);
    EXPECT_EQ(engine.Text(), u" b ");
    EXPECT_EQ(Told(), (Ends{{0, 0}, {3, 3}}));
}

TEST_F(Selections, AreTakenIntoTheText)
{
    engine.SetText(u"abc");
    Select({{-5, -1}, {INT_MAX, 2}});
    EXPECT_EQ(Told(), (Ends{{0, 0}, {3, 2}}));
    Select({});
    engine.Send(engine::kSetSelections, 3, LPARAM{0});
    EXPECT_EQ(Told().size(), 2U);
}

TEST_F(Selections, FillNoMoreThanThereIsRoomFor)
{
    engine.SetText(u"a b c");
    Select({{0, 0}, {2, 2}, {4, 4}});
    SelectionEnds ends[] = {{-7, -7}, {-7, -7}, {-7, -7}};
    EXPECT_EQ(engine.Send(engine::kGetSelections, 2, ends), 3);
    EXPECT_EQ(ends[1], (SelectionEnds{2, 2}));
    EXPECT_EQ(ends[2], (SelectionEnds{-7, -7}));
}

TEST_F(Selections, StandAtEachPlaceOnce)
{
    engine.SetText(u"a b c");
    Select({{2, 2}, {0, 1}, {4, 4}, {2, 2}, {0, 1}});
    EXPECT_EQ(Told(), (Ends{{4, 4}, {2, 2}, {0, 1}}));
}

TEST_F(Selections, OfColumnsHaveOneInEachLine)
{
    engine.SetText(u"alpha\nbeta\ngamma");
    SelectColumns({{1, 14}, 0, 0});
    EXPECT_EQ(engine.Send(msg::SelectionIsRectangle), 1);
    EXPECT_EQ(Told().size(), 3U);
    engine.Send(msg::DeleteBack);
    EXPECT_EQ(engine.Text(), u"aha\nba\ngma");
}

TEST_F(Selections, OfColumnsReachBehindTheEndsOfLines)
{
    engine.SetText(u"a\n\nbcd");
    SelectColumns({{1, 6}, 3, 1});
    QTest::keyClicks(engine.Window(), QStringLiteral("|"));
    EXPECT_EQ(engine.Text(), u"a   |\n    |\nbcd |");
}

TEST_F(Selections, OfColumnsBecomeOthers)
{
    engine.SetText(u"alpha\nbeta\ngamma");
    SelectColumns({{1, 14}, 0, 0});
    Select({{0, 2}});
    EXPECT_EQ(engine.Send(msg::SelectionIsRectangle), 0);
    EXPECT_EQ(Told(), (Ends{{0, 2}}));
}

// The stock engine aborts over 800,000 blanks.
TEST_F(Selections, OfColumnsStopWhereThereIsNoRoom)
{
    engine.SetText(u"a\n" + std::u16string(500'000, u'x') + u"\nb");
    SelectColumns({{0, 1}, 0, INT_MAX});
    EXPECT_EQ(engine.Send(msg::SelectionIsRectangle), 1);
    SelectColumns({{0, 400'000}, 0, 0});
    EXPECT_EQ(engine.Send(msg::SelectionIsRectangle), 0);
    EXPECT_EQ(Told(), (Ends{{0, 400'000}}));
    engine.Send(engine::kSetColumns, 0, LPARAM{0});
    EXPECT_EQ(Told(), (Ends{{0, 400'000}}));
}

} // namespace
