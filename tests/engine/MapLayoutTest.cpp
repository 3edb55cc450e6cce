// SPDX-License-Identifier: GPL-3.0-or-later
// The numbers of a document map, for texts and windows of all sizes.
#include "engine/looks/MapLayout.h"
#include "tests/RandomSeed.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

using engine::MapLayout;

// As a window has it: it stands at the end of its text with whole lines, or with the last one at
// the top.
struct Case
{
    int height;
    int rowHeight;
    MapLayout::Text text;

    MapLayout At(double top) const
    {
        MapLayout::Text at = text;
        at.top = top;
        return {height, rowHeight, at};
    }
};

class Cases
{
public:
    explicit Cases(unsigned seed) : m_random(seed) {}

    long Below(long limit) { return std::uniform_int_distribution<long>(0, limit - 1)(m_random); }

    Case Next()
    {
        Case made;
        made.height = 70 + static_cast<int>(Below(2000)); // a row of the window at least
        made.rowHeight = 2 + static_cast<int>(Below(5));
        const long textHeight = made.rowHeight + 1 + Below(60); // of a row in the window
        made.text.rows = 1 + Below(Below(4) == 0 ? 3'000'000 : 2000);
        made.text.page = static_cast<double>(made.height) / static_cast<double>(textHeight);
        const auto page = static_cast<long>(made.text.page);
        made.text.last = Below(5) == 0 ? made.text.rows - 1 : std::max(0L, made.text.rows - page);
        return made;
    }

private:
    std::mt19937 m_random;
};

template <typename Check>
void ForAll(Check check)
{
    const unsigned seed = RandomSeed();
    SCOPED_TRACE(seed);
    Cases cases(seed);
    for (int i = 0; i < 400 && !testing::Test::HasFailure(); ++i) {
        const Case one = cases.Next();
        SCOPED_TRACE(testing::Message() << one.height << " pixels, " << one.rowHeight << " a row, "
                                        << one.text.rows << " rows, to " << one.text.last);
        check(one, static_cast<double>(cases.Below(one.text.last + 1)));
    }
}

TEST(MapLayout, HasRowsToTheEndOfTheTextOrItsOwn)
{
    ForAll([](const Case& one, double top) {
        const MapLayout map = one.At(top);
        for (int y = -5; y < one.height + 5; ++y) {
            const std::int64_t row = map.RowAt(y);
            const bool isIn =
                y >= 0 && y < one.height && y >= map.TopOf(row) && y < map.TopOf(row + 1);
            ASSERT_EQ(map.HasRowAt(y), isIn) << y;
        }
    });
}

TEST(MapLayout, HasARowAtEachPixelInTheOrderOfTheText)
{
    ForAll([](const Case& one, double top) {
        const MapLayout map = one.At(top);
        std::int64_t before = map.RowAt(0);
        for (int y = 0; y < one.height; ++y) {
            const std::int64_t row = map.RowAt(y);
            EXPECT_TRUE(row == before || row == before + 1) << y;
            EXPECT_LE(map.TopOf(row), y);
            if (row + 1 < one.text.rows) {
                EXPECT_GT(map.TopOf(row + 1), y);
            }
            before = row;
        }
    });
}

TEST(MapLayout, FindsEachRowAtItsPixels)
{
    ForAll([](const Case& one, double top) {
        const MapLayout map = one.At(top);
        for (std::int64_t row = map.FirstRow(); row < map.FirstRow() + map.RowCount(); ++row) {
            EXPECT_EQ(map.RowAt(map.TopOf(row)), row);
            EXPECT_EQ(map.RowAt(map.TopOf(row) + one.rowHeight - 1), row);
            EXPECT_GT(map.TopOf(row) + one.rowHeight, 0);
            EXPECT_LT(map.TopOf(row), one.height);
        }
    });
}

TEST(MapLayout, StandsAtItsEndsWhenTheTextDoes)
{
    ForAll([](const Case& one, double) {
        EXPECT_EQ(one.At(0).TopOf(0), 0);
        EXPECT_EQ(one.At(0).BoxTop(), 0);
        const MapLayout end = one.At(static_cast<double>(one.text.last));
        const double rows = std::max(static_cast<double>(one.text.rows),
                                     static_cast<double>(one.text.last) + one.text.page);
        if (rows * one.rowHeight > one.height && one.text.last > 0) {
            EXPECT_NEAR(end.BoxTop() + end.BoxHeight() +
                            (rows - static_cast<double>(one.text.last) - one.text.page) *
                                one.rowHeight,
                        one.height, 0.501);
        } else {
            EXPECT_EQ(end.Offset(), 0);
        }
    });
}

TEST(MapLayout, HasItsBoxAroundTheRowsThatTheWindowShows)
{
    ForAll([](const Case& one, double top) {
        const MapLayout map = one.At(top);
        EXPECT_EQ(map.BoxTop(), map.TopOf(static_cast<std::int64_t>(top)));
        EXPECT_EQ(map.RowAt(std::max(0.0, map.BoxTop())),
                  std::min<std::int64_t>(static_cast<std::int64_t>(top), one.text.rows - 1));
    });
}

TEST(MapLayout, GoesDownWithTheText)
{
    ForAll([](const Case& one, double top) {
        const double further = std::min(top + 7, static_cast<double>(one.text.last));
        EXPECT_LE(one.At(top).Offset(), one.At(further).Offset());
        if (one.text.page * one.rowHeight < one.height) {
            EXPECT_LE(one.At(top).BoxTop(), one.At(further).BoxTop() + 1);
        }
    });
}

// To a pixel's worth of the text.
TEST(MapLayout, BringsTheTextToWhereItsBoxIsMoved)
{
    ForAll([](const Case& one, double top) {
        const MapLayout from = one.At(top);
        const auto last = static_cast<double>(one.text.last);
        EXPECT_NEAR(from.TopAfter(top, 0), top, 1e-6);
        EXPECT_EQ(from.TopAfter(top, 2.0 * one.height * (last + 1)), last);
        EXPECT_EQ(from.TopAfter(top, -2.0 * one.height * (last + 1)), 0);
        const double way = one.At(last).BoxTop() - one.At(0).BoxTop();
        if (way >= 2 && last > 0) {
            EXPECT_NEAR(from.TopAfter(0, from.BoxTop()), top, 2 * last / way);
        }
    });
}

TEST(MapLayout, BringsARowIntoTheMiddleOfTheWindow)
{
    ForAll([](const Case& one, double top) {
        const MapLayout map = one.At(top);
        const int pixel = one.height / 3;
        const double middle = static_cast<double>(map.RowAt(pixel)) + 0.5;
        const double to = map.TopAround(pixel);
        EXPECT_GE(to, 0);
        EXPECT_LE(to, static_cast<double>(one.text.last));
        if (to > 0 && to < static_cast<double>(one.text.last)) {
            EXPECT_NEAR(to + one.text.page / 2, middle, 1e-6);
        }
    });
}

TEST(MapLayout, OfAShortTextDoesNotMove)
{
    const MapLayout::Text text{100, 20, 43.75, 57};
    const MapLayout map(700, 2, text);
    EXPECT_EQ(map.Offset(), 0);
    EXPECT_EQ(map.RowCount(), 100);
    EXPECT_EQ(map.BoxTop(), 40);
    EXPECT_EQ(map.BoxHeight(), 87.5);
    EXPECT_EQ(map.RowAt(699), 99);
}

} // namespace
