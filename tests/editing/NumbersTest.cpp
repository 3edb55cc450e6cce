// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers and capitals in plain text.
#include "editing/text/Numbers.h"
#include "editing/text/Capitals.h"
#include "platform/text/Integer.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

TEST(NumbersInText, AreReadAsFarAsTheyGo)
{
    EXPECT_EQ(IntegerOf(u"007"), 7);
    EXPECT_EQ(IntegerOf(u" \t-12x"), -12);
    EXPECT_EQ(IntegerOf(u"+3"), 3);
    EXPECT_EQ(IntegerOf(u"x"), 0);
    EXPECT_EQ(IntegerOf(u"-"), 0);
    EXPECT_EQ(IntegerOf(u"\u0661"), 0);
}

TEST(NumbersInText, StopAtTheLargest)
{
    EXPECT_EQ(IntegerOf(u"2147483648"), INT_MAX);
    EXPECT_EQ(IntegerOf(u"-2147483649"), INT_MIN);
    EXPECT_EQ(IntegerOf(u"99999999999999999999999"), INT_MAX);
}

TEST(NumbersInText, ArePaddedWithZeros)
{
    EXPECT_EQ(numbers::PaddedTextOf(1, 3), u"001");
    EXPECT_EQ(numbers::PaddedTextOf(-1, 5), u"-0001");
    EXPECT_EQ(numbers::PaddedTextOf(1234, 3), u"1234");
    EXPECT_EQ(numbers::PaddedTextOf(1, 0), u"1");
    EXPECT_EQ(numbers::PaddedTextOf(1, -3), u"1  ");
    EXPECT_EQ(numbers::PaddedTextOf(1, INT_MAX).size(), 1024u);
    EXPECT_EQ(numbers::PaddedTextOf(1, INT_MIN).size(), 1024u);
}

TEST(NumbersInText, AddAsMachinesDo)
{
    EXPECT_EQ(numbers::Sum(INT_MAX, 1), INT_MIN);
    EXPECT_EQ(numbers::Sum(INT_MIN, -1), INT_MAX);
    EXPECT_EQ(numbers::TextOf(INT_MIN), u"-2147483648");
}

TEST(Capitals, BeginWords)
{
    EXPECT_EQ(capitals::Capitalized(u"select FROM\ttable"), u"Select From\tTable");
    EXPECT_EQ(capitals::Capitalized(u""), u"");
}

TEST(Capitals, NeedWhiteSpaceInFront)
{
    EXPECT_EQ(capitals::Capitalized(u"order_ID a.B"), u"Order_id A.b");
}

// What is no letter leaves the word's start open, so the letter behind it begins the word.
TEST(Capitals, ComeBehindADigitThatBeginsAWord)
{
    EXPECT_EQ(capitals::Capitalized(u"a1B 2b"), u"A1b 2B");
}

TEST(Capitals, NarrowTheirLetters)
{
    EXPECT_EQ(capitals::Narrowed(u'a'), u'a');
    EXPECT_EQ(capitals::Narrowed(u'\u00c9'), u'\uffc9');
    EXPECT_EQ(capitals::Narrowed(u'\u0161'), u'a');
    EXPECT_EQ(capitals::Capitalized(u"\u00e9"), u"\uffc9");
    EXPECT_EQ(capitals::Capitalized(u"\u20ac \U0001F600"), u"\u20ac \U0001F600"); // no letters
}

} // namespace
