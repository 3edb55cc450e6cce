// SPDX-License-Identifier: GPL-3.0-or-later
// What is commented, decided on plain text.
#include "editing/text/Comments.h"

#include <gtest/gtest.h>

namespace {

using namespace comments;

TEST(CommentMarkers, ThatOverlapCountOnce)
{
    const Found slashStarSlash = WithoutOverlap({4, 5, -1});
    EXPECT_EQ(slashStarSlash.start, 4);
    EXPECT_EQ(slashStarSlash.end, -1);
    const Found starSlashStar = WithoutOverlap({5, 4, -1});
    EXPECT_EQ(starSlashStar.start, -1);
    EXPECT_EQ(starSlashStar.end, 4);
    const Found apart = WithoutOverlap({4, 6, -1});
    EXPECT_EQ(apart.start, 4);
    EXPECT_EQ(apart.end, 6);
    EXPECT_FALSE(WithoutOverlap({}).Any());
}

TEST(LineCommentToRemove, TakesTheBlankBehindItAlong)
{
    EXPECT_EQ(MarkerToRemove(u"-- a", u"--"), 3);
    EXPECT_EQ(MarkerToRemove(u"--a", u"--"), 2);
    EXPECT_EQ(MarkerToRemove(u"--", u"--"), 2);
    EXPECT_EQ(MarkerToRemove(u"-", u"--"), 0);
    EXPECT_EQ(MarkerToRemove(u"", u"--"), 0);
    EXPECT_EQ(MarkerToRemove(u"# a", u"#"), 2);
}

TEST(LineCommentToRemove, IsLookedForInThreeUnits)
{
    EXPECT_EQ(MarkerToRemove(u"REM a", u"REM"), 3);
    EXPECT_EQ(MarkerToRemove(u"REMA a", u"REMA"), 0);
    EXPECT_EQ(MarkerToRemove(u"rem a", u"REM"), 0);
}

TEST(CommentContinuation, FollowsWhatTheLineBeginsWith)
{
    EXPECT_EQ(ContinuationOf(u"-- a").text, u"-- ");
    EXPECT_FALSE(ContinuationOf(u"-- a").ifOpen);
    EXPECT_EQ(ContinuationOf(u"/* a").text, u" * ");
    EXPECT_EQ(ContinuationOf(u"*").text, u"* ");
    EXPECT_TRUE(ContinuationOf(u"* a").ifOpen);
    EXPECT_TRUE(ContinuationOf(u"/").text.empty());
    EXPECT_TRUE(ContinuationOf(u"").text.empty());
    EXPECT_TRUE(ContinuationOf(u"a -- b").text.empty());
}

long ToTheRight(std::u16string_view text, long offset)
{
    return CountToTheRight(text, offset, [](char16_t c) { return c != u' '; });
}

TEST(WordToTheRight, BeginsOnePlacePastTheCaret)
{
    EXPECT_EQ(ToTheRight(u"abcd ef", 2), 2);
    EXPECT_EQ(ToTheRight(u"ab cd ef", 2), 3); // the blank, and the next word
    EXPECT_EQ(ToTheRight(u"ab", 2), 1);
}

TEST(WordToTheRight, EndsWithTheScannedUnits)
{
    const std::u16string text(200, u'x');
    EXPECT_EQ(ToTheRight(text, 90), 9);
    EXPECT_EQ(ToTheRight(text, 98), 1);
    EXPECT_EQ(ToTheRight(text, 150), 1);
    EXPECT_EQ(ToTheRight(text, -1), 1);
}

} // namespace
