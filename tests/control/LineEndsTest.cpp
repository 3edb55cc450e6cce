// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/LineEnds.h"
#include "tests/RandomSeed.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <random>
#include <string>

namespace {

std::u16string Normalised(std::u16string_view given, int selector)
{
    std::vector<char16_t> target;
    const char16_t* text = given.data();
    long length = static_cast<long>(given.size());
    lineends::Normalise(target, text, length, selector);
    return std::u16string(text, static_cast<std::size_t>(length));
}

// The text in pieces of the given sizes, the last of them repeated.
std::u16string InBlocks(std::u16string_view given, std::size_t blockLength, int selector)
{
    std::u16string all;
    std::vector<char16_t> target;
    char16_t held = 0;
    while (!given.empty()) {
        const std::u16string_view block = given.substr(0, blockLength);
        given.remove_prefix(block.size());
        const char16_t* text = block.data();
        long length = static_cast<long>(block.size());
        lineends::NormaliseBlock(target, text, length, held, selector);
        all.append(text, static_cast<std::size_t>(length));
    }
    if (held)
        all += lineends::Sequence(selector);
    return all;
}

TEST(LineEnds, ModesOfTheEngineMapToSelectors)
{
    EXPECT_EQ(lineends::SelectorOf(1), 0);
    EXPECT_EQ(lineends::SelectorOf(2), 2);
    EXPECT_EQ(lineends::SelectorOf(3), 1);
    for (const int mode : {-1, 0, 4, 1000})
        EXPECT_EQ(lineends::SelectorOf(mode), -1) << mode;
}

TEST(LineEnds, EveryKindBecomesTheSelectedOne)
{
    const std::u16string text = u"a\r\nb\rc\nd\n\re\r\r\n";
    EXPECT_EQ(Normalised(text, lineends::kLf), u"a\nb\nc\nd\n\ne\n\n");
    EXPECT_EQ(Normalised(text, lineends::kCr), u"a\rb\rc\rd\r\re\r\r");
    EXPECT_EQ(Normalised(text, lineends::kCrLf), u"a\r\nb\r\nc\r\nd\r\n\r\ne\r\n\r\n");
}

TEST(LineEnds, NothingHappensWithoutASelectorATextOrALength)
{
    std::vector<char16_t> target{u'x'};
    const char16_t* const given = u"a\r\nb";
    const char16_t* text = given;
    long length = 4;
    lineends::Normalise(target, text, length, lineends::kAsItIs);
    EXPECT_EQ(text, given);
    EXPECT_EQ(length, 4);
    length = 0;
    lineends::Normalise(target, text, length, lineends::kLf);
    EXPECT_EQ(text, given);
    text = nullptr;
    length = 4;
    lineends::Normalise(target, text, length, lineends::kLf);
    EXPECT_EQ(text, nullptr);
    EXPECT_EQ(target, std::vector<char16_t>{u'x'});
}

TEST(LineEnds, ACrAtABlocksEndWaitsForItsLf)
{
    EXPECT_EQ(InBlocks(u"a\r\nb", 2, lineends::kLf), u"a\nb");
    EXPECT_EQ(InBlocks(u"a\rb", 2, lineends::kCrLf), u"a\r\nb");
    EXPECT_EQ(InBlocks(u"a\r", 2, lineends::kCrLf), u"a\r\n");
    EXPECT_EQ(InBlocks(u"\r\r\r\n\r", 1, lineends::kLf), u"\n\n\n\n");
}

TEST(LineEnds, BlocksOfAnySizeGiveWhatTheWholeTextGives)
{
    const auto seed = RandomSeed();
    std::cout << "seed " << seed << '\n';
    std::mt19937 random(seed);
    for (int round = 0; round < 2000; ++round) {
        std::u16string text(random() % 40, u' ');
        std::ranges::generate(text, [&] { return u"\r\nab"[random() % 4]; });
        const int selector = static_cast<int>(random() % 3);
        const std::size_t blockLength = 1 + random() % 7;
        ASSERT_EQ(InBlocks(text, blockLength, selector), Normalised(text, selector));
    }
}

TEST(LineEnds, TheLargestCountDecidesTheMode)
{
    EXPECT_EQ(lineends::MajorityMode(1, 2, 10), 1);
    EXPECT_EQ(lineends::MajorityMode(10, 2, 3), 2);
    EXPECT_EQ(lineends::MajorityMode(3, 10, 2), 3);
    EXPECT_EQ(lineends::MajorityMode(0, 0, 1), 1);
    EXPECT_EQ(lineends::MajorityMode(1, 2, 3), 1);
}

TEST(LineEnds, TiesGoToLfThenToCr)
{
    EXPECT_EQ(lineends::MajorityMode(5, 5, 1), 3);
    EXPECT_EQ(lineends::MajorityMode(1, 5, 5), 3);
    EXPECT_EQ(lineends::MajorityMode(5, 1, 5), 2);
    EXPECT_EQ(lineends::MajorityMode(5, 5, 5), 0);
    EXPECT_EQ(lineends::MajorityMode(0, 0, 0), 0);
}

} // namespace
