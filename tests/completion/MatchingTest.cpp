// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/Matching.h"

#include <gtest/gtest.h>

using completion::Match;
using completion::Typed;

namespace {

Match Of(const char* typed, const char* word)
{
    return Typed(typed).Of(word);
}

} // namespace

TEST(Matching, PrefersTheBeginning)
{
    EXPECT_EQ(Of("ord", "orders"), Match::Beginning);
    EXPECT_EQ(Of("ord", "Orders"), Match::BeginningOfAnyCase);
    EXPECT_EQ(Of("ORDERS", "Orders"), Match::Exact);
}

TEST(Matching, FallsIntoThePartsOfAWord)
{
    EXPECT_EQ(Of("cn", "customer_name"), Match::Initials);
    EXPECT_EQ(Of("cusna", "customer_name"), Match::Initials);
    EXPECT_EQ(Of("cn", "CustomerName"), Match::Initials);
    EXPECT_EQ(Of("htt", "HTMLText"), Match::Initials);
    EXPECT_EQ(Of("cx", "customer_name"), Match::None);
}

TEST(Matching, FindsPartsAndWhatStandsInside)
{
    EXPECT_EQ(Of("name", "customer_name"), Match::Part);
    EXPECT_EQ(Of("tome", "customer_name"), Match::Inside);
    EXPECT_EQ(Of("n", "customer_name"), Match::None);
    EXPECT_EQ(Of("longer", "long"), Match::None);
}

TEST(Matching, EndsSoonInWordsOfManyParts)
{
    EXPECT_EQ(Of("aaaaaaaaaaaaaaaaaaaab", "a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_a_c"),
              Match::None);
}
