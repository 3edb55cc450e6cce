// SPDX-License-Identifier: GPL-3.0-or-later
// White space of one line.
#include "editing/text/Spaces.h"
#include "tests/RandomSeed.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using namespace spaces;

TEST(TabsToBlanks, FillUpToTheNextStop)
{
    EXPECT_EQ(TabsToBlanks(u"a\tb", 4), u"a   b");
    EXPECT_EQ(TabsToBlanks(u"\t\ta", 4), u"        a");
    EXPECT_EQ(TabsToBlanks(u"abcd\te", 4), u"abcd    e");
    EXPECT_EQ(TabsToBlanks(u"", 4), u"");
}

TEST(TabsToBlanks, TakesAWidthBelowOneForOne)
{
    EXPECT_EQ(TabsToBlanks(u"a\tb", 0), u"a b");
    EXPECT_EQ(TabsToBlanks(u"a\tb", -3), u"a b");
}

TEST(TabsToBlanks, CountsEveryUnitAsAColumn)
{
    EXPECT_EQ(TabsToBlanks(u"\U0001F600\tb", 4), u"\U0001F600  b");
}

TEST(BlanksToTabs, PutsATabWhereOnlyBlanksReachTheStop)
{
    EXPECT_EQ(BlanksToTabs(u"    a", 4), u"\ta");
    EXPECT_EQ(BlanksToTabs(u"a   b", 4), u"a\tb");
    EXPECT_EQ(BlanksToTabs(u"ab c", 4), u"ab c");
    EXPECT_EQ(BlanksToTabs(u"abc d", 4), u"abc\td");
    EXPECT_EQ(BlanksToTabs(u"   ", 4), u"   ");
}

TEST(BlanksToTabs, CountsATabThatStandsThereAsOneCharacter)
{
    EXPECT_EQ(BlanksToTabs(u"\t   a", 4), u"\t\ta");
}

TEST(BlanksToTabs, DoesNotTellStringsApart)
{
    EXPECT_EQ(BlanksToTabs(u"'    '", 4), u"'\t '");
}

TEST(BlanksToTabs, StaysLinearForAWidthBeyondTheLine)
{
    std::u16string line(1 << 20, u' ');
    line += u'a';
    EXPECT_EQ(BlanksToTabs(line, 1 << 30), line);
}

std::u16string SlowBlanksToTabs(const std::u16string& line, std::size_t width)
{
    std::u16string result;
    for (std::size_t i = 0; i < line.size();) {
        const std::size_t stop = (i / width + 1) * width;
        bool blank = stop <= line.size();
        for (std::size_t j = i; blank && j < stop; ++j)
            blank = line[j] == u' ';
        if (blank) {
            result += u'\t';
            i = stop;
        } else {
            result += line[i++];
        }
    }
    return result;
}

TEST(BlanksToTabs, AgreesWithAPlainWalkAndComesBackFromTabs)
{
    const unsigned seed = RandomSeed();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 random(seed);
    for (int round = 0; round < 5000; ++round) {
        std::u16string line(random() % 40, u' ');
        for (char16_t& c : line)
            c = u"    ab"[random() % 6];
        const int width = 1 + static_cast<int>(random() % 9);
        const std::u16string tabbed = BlanksToTabs(line, width);
        ASSERT_EQ(tabbed, SlowBlanksToTabs(line, static_cast<std::size_t>(width)));
        ASSERT_EQ(TabsToBlanks(tabbed, width), line);
    }
}

TEST(TrailingSpaces, AreCountedFromTheEnd)
{
    EXPECT_EQ(CountTrailing(u"a \t "), 3u);
    EXPECT_EQ(CountTrailing(u" a"), 0u);
    EXPECT_EQ(CountTrailing(u" \t"), 2u);
    EXPECT_EQ(CountTrailing(u""), 0u);
}

TEST(TrailingSpaces, GoByTheLowByte)
{
    EXPECT_EQ(CountTrailing(u"a\u0120\u2009"), 2u);
    EXPECT_EQ(CountTrailing(u"a\U0001F420"), 0u); // its second half ends in 20
}

} // namespace
