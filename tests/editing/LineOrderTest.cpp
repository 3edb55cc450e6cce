// SPDX-License-Identifier: GPL-3.0-or-later
// The orders of lines, and the array that keeps them.
#include "editing/text/LineOrder.h"
#include "editing/text/SortedArrayEx.h"
#include "tests/RandomSeed.h"
#include "tests/reference/BinaryInsertion.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <random>

namespace {

using namespace lineorder;

int Sign(int order)
{
    return (order > 0) - (order < 0);
}

QString Text(const char16_t* text)
{
    return QString::fromUtf16(text);
}

TEST(PartOfALine, IsTheWholeWithoutColumns)
{
    EXPECT_EQ(PartOf(u"abcdef", -1, -1), u"abcdef");
}

TEST(PartOfALine, RunsFromColumnToColumn)
{
    EXPECT_EQ(PartOf(u"abcdef", 1, 3), u"bc");
    EXPECT_EQ(PartOf(u"abcdef", -1, 2), u"ab");
    EXPECT_EQ(PartOf(u"abcdef", 2, -1), u"cdef");
    EXPECT_EQ(PartOf(u"abcdef", 2, 2), u"cdef");
}

TEST(PartOfALine, IsEmptyOutsideTheLine)
{
    EXPECT_EQ(PartOf(u"abc", 7, 9), u"");
    EXPECT_EQ(PartOf(u"abc", 7, -1), u"");
    EXPECT_EQ(PartOf(u"abc", 2, 1), u"");
    EXPECT_EQ(PartOf(u"abc", -5, 2), u"abc");
    EXPECT_EQ(PartOf(u"", 0, 5), u"");
    EXPECT_EQ(PartOf(u"abc", 1, 2147483647), u"bc");
}

TEST(OrderByCode, ComparesUnits)
{
    EXPECT_LT(CompareText(Text(u"B"), Text(u"a"), -1, -1), 0);
    EXPECT_GT(CompareTextNoCase(Text(u"B"), Text(u"a"), -1, -1), 0);
    EXPECT_EQ(CompareTextNoCase(Text(u"\u00c9"), Text(u"\u00e9"), -1, -1), 0);
    EXPECT_EQ(CompareText(Text(u"xay"), Text(u"zaw"), 1, 2), 0);
    EXPECT_LT(CompareText(QString(), Text(u"a"), -1, -1), 0);
}

TEST(OrderByLocale, KeepsLettersTogether)
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_LT(CompareCollate(Text(u"a"), Text(u"B"), -1, -1), 0);
    EXPECT_LT(CompareCollate(Text(u"\u00e9"), Text(u"f"), -1, -1), 0);
    EXPECT_NE(CompareCollate(Text(u"a"), Text(u"A"), -1, -1), 0);
    EXPECT_EQ(CompareCollateNoCase(Text(u"a"), Text(u"A"), -1, -1), 0);
    EXPECT_EQ(CompareCollate(Text(u"1a"), Text(u"2a"), 1, 2), 0);
}

TEST(OrderByNumber, PutsNineBeforeTen)
{
    EXPECT_LT(CompareNumeric(Text(u"9 b"), Text(u"10 a"), -1, -1), 0);
    EXPECT_GT(CompareText(Text(u"9 b"), Text(u"10 a"), -1, -1), 0);
}

TEST(OrderByNumber, FallsToTheTextForEqualValuesAndWithoutDigits)
{
    EXPECT_LT(CompareNumeric(Text(u"007"), Text(u"7"), -1, -1), 0);
    EXPECT_LT(CompareNumeric(Text(u"10"), Text(u"a"), -1, -1), 0);
    EXPECT_LT(CompareNumeric(Text(u"B"), Text(u"a"), -1, -1), 0);
    EXPECT_GT(CompareNumericNoCase(Text(u"B"), Text(u"a"), -1, -1), 0);
}

TEST(OrderByNumber, TakesADigitByItsLowByte)
{
    EXPECT_LT(CompareNumeric(Text(u"\u0130x"), Text(u"5"), -1, -1), 0); // the value is 0
    EXPECT_GT(CompareText(Text(u"\u0130x"), Text(u"5"), -1, -1), 0);
}

TEST(OrderByNumber, TakesTheLargestValueForALongerNumber)
{
    EXPECT_EQ(CompareNumeric(Text(u"99999999999999999999"), Text(u"99999999999999999999"), -1, -1),
              0);
    EXPECT_GT(CompareNumeric(Text(u"99999999999999999999"), Text(u"2147483646"), -1, -1), 0);
}

std::vector<std::u16string> RandomLines(std::mt19937& random)
{
    static const std::u16string kPieces[] = {
        u"a", u"A",      u"b", u"1",          u"10", u"007", u"9", u"\u0130",
        u"é", u"\u4e31", u" ", u"\U0001F600", u"ß",  u"_",   u"Z", u"\U00010400"};
    std::vector<std::u16string> lines(random() % 60);
    for (std::u16string& line : lines) {
        for (unsigned i = random() % 4; i > 0; --i)
            line += kPieces[random() % std::size(kPieces)];
    }
    return lines;
}

// Keys are what a comparison of many lines works with; the comparison says what they have to do.
TEST(LineKeys, GiveTheOrderOfTheirComparison)
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    const unsigned seed = RandomSeed();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 random(seed);
    for (int round = 0; round < 120; ++round) {
        const std::vector<std::u16string> lines = RandomLines(random);
        const std::vector<std::u16string_view> views(lines.begin(), lines.end());
        const int mode = static_cast<int>(random() % 4);
        const bool ignoreCase = random() % 2;
        const int start = static_cast<int>(random() % 4) - 1;
        const int end = static_cast<int>(random() % 4) - 1;
        const Keys keys(views, mode, ignoreCase, start, end);
        const Compare compare = ComparisonOf(mode, ignoreCase);
        for (std::uint32_t i = 0; i < lines.size(); ++i) {
            const std::uint32_t j = static_cast<std::uint32_t>(random() % lines.size());
            ASSERT_EQ(Sign(keys(i, j)),
                      Sign(compare(QString::fromStdU16String(lines[i]),
                                   QString::fromStdU16String(lines[j]), start, end)))
                << "mode " << mode << " columns " << start << " " << end;
        }
    }
}

struct Item
{
    int value;
    int serial;
    bool operator==(const Item&) const = default;
};

template <class Compare>
void ExpectAsPlain(const std::vector<Item>& items, Compare compare, bool keepDuplicates)
{
    CSortedArrayEx<Item, Compare> sorted(compare);
    std::size_t kept = 0;
    for (const Item& item : items)
        kept += sorted.Add(item, keepDuplicates);
    ASSERT_EQ(sorted.GetSize(), kept);
    std::vector<Item> result;
    sorted.ForEach(true, [&](const Item& item) { result.push_back(item); });
    ASSERT_TRUE(result == reference::InsertAll(items, compare, keepDuplicates));
    std::vector<Item> backwards;
    sorted.ForEach(false, [&](const Item& item) { backwards.push_back(item); });
    std::reverse(backwards.begin(), backwards.end());
    ASSERT_TRUE(backwards == result);
}

TEST(SortedArray, AgreesWithBinaryInsertionIntoAPlainArray)
{
    const unsigned seed = RandomSeed();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 random(seed);
    const auto byValue = [](const Item& a, const Item& b) { return a.value - b.value; };
    for (int round = 0; round < 60; ++round) {
        std::vector<Item> items(random() % (round % 10 == 0 ? 6000 : 200));
        const unsigned range = 1 + random() % 300; // many equals, or few
        for (std::size_t i = 0; i < items.size(); ++i)
            items[i] = {static_cast<int>(random() % range), static_cast<int>(i)};
        ExpectAsPlain(items, byValue, true);
        ExpectAsPlain(items, byValue, false);
    }
}

TEST(SortedArray, FollowsAComparisonThatContradictsItself)
{
    const unsigned seed = RandomSeed();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 random(seed);
    const auto inACircle = [](const Item& a, const Item& b) {
        const int apart = (a.value - b.value + 30) % 3;
        return apart == 2 ? -1 : apart;
    };
    std::vector<Item> items(3000);
    for (std::size_t i = 0; i < items.size(); ++i)
        items[i] = {static_cast<int>(random() % 9), static_cast<int>(i)};
    ExpectAsPlain(items, inACircle, true);
    ExpectAsPlain(items, inACircle, false);
}

TEST(SortedArray, PutsAnEqualInFrontOfTheOneItMeets)
{
    const auto allEqual = [](const Item&, const Item&) { return 0; };
    CSortedArrayEx<Item, decltype(allEqual)> sorted(allEqual);
    for (int i = 0; i < 4; ++i)
        EXPECT_TRUE(sorted.Add({0, i}, true));
    EXPECT_FALSE(sorted.Add({0, 4}, false));
    std::vector<int> serials;
    sorted.ForEach(true, [&](const Item& item) { serials.push_back(item.serial); });
    // 0; in front of 0; in front of the first of two; in front of the middle of three.
    EXPECT_EQ(serials, (std::vector<int>{2, 3, 1, 0}));
}

} // namespace
