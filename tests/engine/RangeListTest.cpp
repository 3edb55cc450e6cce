// SPDX-License-Identifier: GPL-3.0-or-later
// Ranges that follow an edited text, beside the plainest way to do it.
#include "engine/errors/RangeList.h"
#include "tests/RandomSeed.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <random>

namespace {

using engine::RangeList;

struct Named : RangeList::Range
{
    explicit Named(int number) : name(number) {}
    int name;
};

struct Plain
{
    long start;
    long end;
    int name;
    bool operator==(const Plain&) const = default;
};

void PrintTo(const Plain& plain, std::ostream* out)
{
    *out << plain.name << ": " << plain.start << " to " << plain.end;
}

Plain PlainOf(const RangeList::Range& range)
{
    return {range.Start(), range.End(), static_cast<const Named&>(range).name};
}

std::vector<Plain> AllOf(const RangeList& list)
{
    std::vector<Plain> all;
    for (const auto* range = list.First(); range; range = list.Next(*range))
        all.push_back(PlainOf(*range));
    return all;
}

// One vector, every entry moved by every edit.
class PlainRanges
{
public:
    void Insert(Plain range)
    {
        const auto behind = std::find_if(
            all.begin(), all.end(), [&](const Plain& each) { return each.start > range.start; });
        all.insert(behind, range);
    }
    void TextInserted(long at, long bytes)
    {
        for (Plain& range : all) {
            range.end += range.end > at || range.start >= at ? bytes : 0;
            range.start += range.start >= at ? bytes : 0;
        }
    }
    void TextDeleted(long at, long bytes)
    {
        for (Plain& range : all) {
            for (long* position : {&range.start, &range.end})
                *position -= std::clamp(*position - at, 0L, bytes);
        }
    }

    std::vector<Plain> all;
};

} // namespace

TEST(RangeList, MovesRangesAsAPlainListDoes)
{
    const unsigned seed = RandomSeed();
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const auto upTo = [&random](long last) {
        return std::uniform_int_distribution<long>(0, last)(random);
    };
    RangeList list;
    PlainRanges plain;
    long length = 5000;
    for (int step = 0; step < 20000; ++step) {
        const long at = upTo(length);
        switch (upTo(4)) {
        case 0:
        case 1: {
            const long end = std::min(length, at + upTo(upTo(9) == 0 ? 2000 : 12));
            list.Insert(std::make_unique<Named>(step), at, end);
            plain.Insert({at, end, step});
            break;
        }
        case 2: {
            const long bytes = 1 + upTo(30);
            list.TextInserted(at, bytes);
            plain.TextInserted(at, bytes);
            length += bytes;
            break;
        }
        case 3: {
            const long bytes = std::min(length - at, 1 + upTo(25));
            list.TextDeleted(at, bytes);
            plain.TextDeleted(at, bytes);
            length -= bytes;
            break;
        }
        default:
            if (plain.all.size() > 1500 || (!plain.all.empty() && upTo(3) == 0)) {
                const auto victim = upTo(static_cast<long>(plain.all.size()) - 1);
                auto* range = list.First();
                for (long i = 0; i < victim; ++i)
                    range = list.Next(*range);
                list.Erase(*range);
                plain.all.erase(plain.all.begin() + victim);
            }
        }
        if (step % 100 == 0) {
            ASSERT_EQ(AllOf(list), plain.all) << step;
        }
    }
    ASSERT_EQ(AllOf(list), plain.all);
    EXPECT_GT(plain.all.size(), 1000u);
}

TEST(RangeList, GoesBothWaysAndEndsAtBothEnds)
{
    RangeList list;
    EXPECT_EQ(list.First(), nullptr);
    EXPECT_EQ(list.FirstFrom(0), nullptr);
    for (int i = 0; i < 1000; ++i)
        list.Insert(std::make_unique<Named>(i), (i * 7) % 1000, (i * 7) % 1000 + 3);
    long expected = 0;
    const RangeList::Range* last = nullptr;
    for (const auto* range = list.First(); range; range = list.Next(*range)) {
        EXPECT_EQ(range->Start(), expected++);
        EXPECT_EQ(list.Previous(*range), last);
        last = range;
    }
    EXPECT_EQ(expected, 1000);
    EXPECT_EQ(list.FirstFrom(517)->Start(), 517);
    EXPECT_EQ(list.FirstFrom(1000), nullptr);
    EXPECT_EQ(list.FirstFrom(LONG_MIN), list.First());
}

TEST(RangeList, FindsWhatTouchesAPlaceHoweverFarItBegan)
{
    RangeList list;
    list.Insert(std::make_unique<Named>(-1), 3, 4000);
    for (int i = 0; i < 2000; ++i)
        list.Insert(std::make_unique<Named>(i), i * 2, i * 2 + 1);
    std::vector<int> found;
    list.ForEachTouching(3000, 3001, [&](const RangeList::Range& range) {
        found.push_back(static_cast<const Named&>(range).name);
    });
    EXPECT_EQ(found, (std::vector<int>{-1, 1500}));
}
