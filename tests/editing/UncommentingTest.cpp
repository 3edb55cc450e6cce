// SPDX-License-Identifier: GPL-3.0-or-later
// Comment markers taken out.
#include "tests/editing/CommentFixture.h"

namespace {

class Uncommenting : public CommentTest<&CZNCoreEditorControlEx::UnCommentSelection>
{};

TEST_F(Uncommenting, TheBlankBehindALineMarkerGoesToo)
{
    EXPECT_EQ(Lines(u"[-- one]|"), u"[one]|");
    EXPECT_EQ(TextAfterUndo(), u"-- one");
    EXPECT_EQ(Lines(u"[--one]|"), u"[one]|");
    EXPECT_EQ(Lines(u"-- one|"), u"-- one|");
}

// The selection's end moves by what was removed, also where that stood behind it, and a negative
// end is the text's.
TEST_F(Uncommenting, WithoutASelectionTheEndOvertakesTheStart)
{
    EXPECT_EQ(Lines(u"one\n|-- two"), u"o|[ne\n]two");
    EXPECT_EQ(Lines(u"|-- one\ntwo"), u"[one\ntwo]|");
}

TEST_F(Uncommenting, LineMarkersAreFoundBehindTheIndentation)
{
    EXPECT_EQ(Lines(u"[  -- one\n\t--two\n\nthree -- x\n]|-- y"),
              u"[  one\n\ttwo\n\nthree -- x\n]|-- y");
    EXPECT_EQ(TextAfterUndo(), u"  -- one\n\t--two\n\nthree -- x\n-- y");
}

TEST_F(Uncommenting, OnTheFirstLineTheMarkerIsLookedForFromTheSelectionOn)
{
    EXPECT_EQ(Lines(u"a[  -- b]|"), u"a[  b]|");
    EXPECT_EQ(Lines(u"-[- a]|"), u"-[- a]|");
}

TEST_F(Uncommenting, ASelectionThatRunsBackwardsStaysBackwards)
{
    EXPECT_EQ(Lines(u"|[-- a\n-- b]"), u"|[a\nb]");
}

TEST_F(Uncommenting, AMarkerOfThreeLosesNoBlankAndALongerOneIsNotFound)
{
    control.Reset();
    control.AddSingleLineComment(QStringLiteral("REM"));
    EXPECT_EQ(Lines(u"[REM one]|"), u"[ one]|");
    control.Reset();
    control.AddSingleLineComment(QStringLiteral("REMARK"));
    EXPECT_EQ(Lines(u"|REMARK one"), u"|REMARK one");
}

TEST_F(Uncommenting, ABlockCommentOnALineLosesBothMarkers)
{
    EXPECT_EQ(Block(u"a [/* b */]| c"), u"a [ b ]| c");
    EXPECT_EQ(TextAfterUndo(), u"a /* b */ c");
    EXPECT_EQ(Block(u"|  /*abc*/"), u"  [abc]|");
}

// The end marker is looked for as far behind the indentation as the start marker reached, which is
// gone then.
TEST_F(Uncommenting, AnEndMarkerSoonBehindTheStartMarkerIsMissed)
{
    EXPECT_EQ(Block(u"[  /*a*/]|"), u"  [a*/]|");
    EXPECT_EQ(Block(u"[  /*ab*/]|"), u"  [ab]|");
}

TEST_F(Uncommenting, WithoutTheStartMarkerTheEndIsLookedForBehindItsPlace)
{
    EXPECT_EQ(BlockText(u"|*/ab*/"), u"*/ab");
    EXPECT_EQ(BlockText(u"|*/ab"), u"*/ab");
}

TEST_F(Uncommenting, WithoutAnEndMarkerTheSelectionRunsToTheEngineslimit)
{
    EXPECT_EQ(Block(u"|/*a\nb"), u"[a\nb]|");
}

TEST_F(Uncommenting, LineMarkersMakeTheBlockFormALineForm)
{
    EXPECT_EQ(Block(u"[-- a /* b */\n-- c]|"), u"[a /* b */\nc]|");
    EXPECT_EQ(Block(u"[  -- /*a*/]|"), u"[  /*a*/]|");
}

TEST_F(Uncommenting, AThreeCharacterMarkerIsSeenOnlyByItsIndentation)
{
    control.Reset();
    control.AddSingleLineComment(QStringLiteral("REM"));
    control.AddBlockComment(QStringLiteral("/*"), QStringLiteral("*/"));
    EXPECT_EQ(Block(u"[ REM /*a*/]|"), u"[  /*a*/]|");
    EXPECT_EQ(BlockText(u"[REM /*a*/]|"), u"REM a");
}

TEST_F(Uncommenting, OverLinesTheMarkersOfEachGo)
{
    EXPECT_EQ(Block(u"[/* a\n** b\n   c */\n]|d"), u" a\n b\n   c \n|d");
    EXPECT_EQ(TextAfterUndo(), u"/* a\n** b\n   c */\nd");
}

TEST_F(Uncommenting, OverLinesBothMarkersOfOneLineGo)
{
    EXPECT_EQ(Block(u"[/*a*/\n/*b*/ c]|"), u"a\nb c|");
}

TEST_F(Uncommenting, OverLinesTheLastEndMarkerGoes)
{
    EXPECT_EQ(Block(u"[a */ b */\nc]|"), u"a */ b \nc|");
}

TEST_F(Uncommenting, MarkersThatOverlapCountOnce)
{
    EXPECT_EQ(Block(u"[x\n /*/ a\n]|"), u"x\n / a\n|");
    EXPECT_EQ(Block(u"[x\n */* a\n]|"), u"x\n * a\n|");
}

TEST_F(Uncommenting, AMiddleMarkerGoesOnlyWithoutTheOthers)
{
    EXPECT_EQ(Block(u"[** a\nb]|"), u" a\nb|");
    EXPECT_EQ(Block(u"[/* ** a\nb]|"), u" ** a\nb|");
    EXPECT_EQ(Block(u"[** a */\nb]|"), u"** a \nb|");
}

TEST_F(Uncommenting, AnEndMarkerInFrontOfTheStartTakesWhatIsBeforeIt)
{
    // The place of the second removal counts the first one, wherever that was.
    EXPECT_EQ(BlockText(u"[abcd */ /*\nx]|"), u"abc*/ \nx");
    EXPECT_EQ(TextAfterUndo(), u"abcd */ /*\nx");
}

TEST_F(Uncommenting, ALineOfOneMarkerAtTheTextsEndDeletesTheLineOfTheCaret)
{
    EXPECT_EQ(BlockText(u"[a\n*/]|"), u"a\n");
    EXPECT_EQ(BlockText(u"|[a\n*/]"), u"*/");
    EXPECT_EQ(TextAfterUndo(), u"a\n*/");
}

TEST_F(Uncommenting, TheLengthOfTheStartMarkerHoldsForTheEnd)
{
    control.Reset();
    control.AddBlockComment(QStringLiteral("<!--"), QStringLiteral("-->"));
    EXPECT_EQ(BlockText(u"[<!--a-->]|"), u"a-->"); // four units are looked for
    control.Reset();
    control.AddBlockComment(QStringLiteral("{"), QStringLiteral("--}"));
    EXPECT_EQ(BlockText(u"[{a--}]|"), u"a-}");
}

TEST_F(Uncommenting, MissingMarkersGiveFalse)
{
    Put(u"[/*a*/]|");
    EXPECT_FALSE(control.UnCommentSelection(-1, true));
    EXPECT_FALSE(control.UnCommentSelection(-1, false));
    control.Reset();
    EXPECT_FALSE(control.UnCommentSelection(0, true));
    EXPECT_FALSE(control.UnCommentSelection(0, false));
    EXPECT_EQ(Text(), u"/*a*/");
}

TEST_F(Uncommenting, AnEmptyTextStays)
{
    EXPECT_EQ(Block(u"|"), u"|");
    EXPECT_EQ(Lines(u"|"), u"|");
}

TEST_F(Uncommenting, OverLinesOfCrLfTheMarkersOfEachGo)
{
    control.SetEOLMode(kCrLf, 1);
    EXPECT_EQ(Block(u"[/* a\r\n\r\n** b\r\n   c */\r\n]|d"), u" a\r\n\r\n b\r\n   c \r\n|d");
    EXPECT_EQ(TextAfterUndo(), u"/* a\r\n\r\n** b\r\n   c */\r\nd");
}

// Its three units are those of a marker cut by one and of a line end.
TEST_F(Uncommenting, InCrLfALastLineOfAMarkerAndOneUnitDeletesTheLineOfTheCaret)
{
    control.SetEOLMode(kCrLf, 1);
    EXPECT_EQ(BlockText(u"|[a\r\n/*b]"), u"/*b");
    EXPECT_EQ(BlockText(u"|[a\r\n/*bc]"), u"a\r\nbc");
}

TEST_F(Uncommenting, WithoutASingleModeALineEndIsLf)
{
    control.SetEOLMode(0, 1);
    EXPECT_EQ(BlockText(u"|[a\n*/]"), u"*/");
}

TEST_F(Uncommenting, SearchFlagsOfAnEarlierSearchDoNotMatter)
{
    constexpr int kRegularExpression = 0x200000;
    control.SetSearchFlags(kRegularExpression, 1);
    EXPECT_EQ(Block(u"a [/* b */]| c"), u"a [ b ]| c");
    EXPECT_EQ(Block(u"[/* a\n** b */\n]|d"), u" a\n** b \n|d");
    EXPECT_EQ(control.GetSearchFlags(1), kRegularExpression);
}

} // namespace
