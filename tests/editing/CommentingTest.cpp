// SPDX-License-Identifier: GPL-3.0-or-later
// Comment markers put in, for every shape of a selection.
#include "tests/editing/CommentFixture.h"

namespace {

class Commenting : public CommentTest<&CZNCoreEditorControlEx::CommentSelection>
{};

TEST_F(Commenting, MarkersMayNotBeEmpty)
{
    control.Reset();
    EXPECT_FALSE(control.AddSingleLineComment(QString()));
    EXPECT_FALSE(control.AddBlockComment(QString(), QStringLiteral("*/")));
    EXPECT_FALSE(control.AddBlockComment(QStringLiteral("/*"), QString()));
    EXPECT_EQ(control.GetSingleLineComment(0), QString());
    EXPECT_EQ(control.GetBlockCommentStart(0), QString());
}

TEST_F(Commenting, TheIndexOfALineMarkerSelectsNothing)
{
    control.AddSingleLineComment(QStringLiteral("#"));
    EXPECT_EQ(control.GetSingleLineComment(5), QStringLiteral("--"));
    EXPECT_EQ(control.GetSingleLineComment(1), QStringLiteral("--"));
    EXPECT_EQ(control.GetSingleLineComment(-1), QString());
}

TEST_F(Commenting, ThePairOfABlockMarkerIsSelected)
{
    EXPECT_EQ(control.GetBlockCommentStart(1), QString());
    control.AddBlockComment(QStringLiteral("{"), QStringLiteral("}"));
    EXPECT_EQ(control.GetBlockCommentStart(0), QStringLiteral("/*"));
    EXPECT_EQ(control.GetBlockCommentEnd(0), QStringLiteral("*/"));
    EXPECT_EQ(control.GetBlockCommentStart(1), QStringLiteral("{"));
    EXPECT_EQ(control.GetBlockCommentEnd(1), QStringLiteral("}"));
    EXPECT_EQ(control.GetBlockCommentEnd(-1), QString());
    EXPECT_EQ(control.GetBlockCommentEnd(2), QString());
}

TEST_F(Commenting, TheWordAroundTheCaretIsWrapped)
{
    EXPECT_EQ(Block(u"one tw|o three"), u"one /*[two]|*/ three");
    EXPECT_EQ(TextAfterUndo(), u"one two three");
}

TEST_F(Commenting, RightBehindAWordTheNextOneIsTakenToo)
{
    EXPECT_EQ(Block(u"one| two three"), u"/*[one two]|*/ three");
}

TEST_F(Commenting, AWordAtTheEndOfTheTextIsWrapped)
{
    EXPECT_EQ(Block(u"one tw|o"), u"one /*[two]|*/");
    EXPECT_EQ(BlockText(u"one|"), u"/*one*/");
}

TEST_F(Commenting, NothingHappensWithoutAWordToTheLeft)
{
    EXPECT_EQ(Block(u"one |two"), u"one |two");
    EXPECT_EQ(Block(u"; |"), u"; |");
    EXPECT_FALSE(control.CanUndo(1));
}

TEST_F(Commenting, AtColumnZeroOfALaterLineThatLineGetsAMarker)
{
    EXPECT_EQ(Block(u"one\n|two"), u"one\n[-- ]|two");
    EXPECT_EQ(Block(u"one\n|\ntwo"), u"one\n|\ntwo");
}

TEST_F(Commenting, AtTheStartOfTheTextNothingHappens)
{
    EXPECT_EQ(Block(u"|one two"), u"|one two");
}

TEST_F(Commenting, OnABlankLineNothingHappens)
{
    EXPECT_EQ(Block(u"one\n  |  \ntwo"), u"one\n  |  \ntwo");
    EXPECT_EQ(Block(u"|"), u"|");
    EXPECT_EQ(Block(u"|\n"), u"|\n");
}

TEST_F(Commenting, PartOfALineIsWrappedExactly)
{
    EXPECT_EQ(Block(u"on[e tw]|o"), u"on/*[e tw]|*/o");
    EXPECT_EQ(TextAfterUndo(), u"one two");
}

TEST_F(Commenting, ASelectionThatRunsBackwardsStaysBackwards)
{
    EXPECT_EQ(Block(u"on|[e tw]o"), u"on/*|[e tw]*/o");
    EXPECT_EQ(Lines(u"|[one\ntwo]"), u"|[-- one\n-- two]");
}

TEST_F(Commenting, ASlashAndAStarInPartOfALineGivesALineMarkerInsideIt)
{
    EXPECT_EQ(Block(u"one [/* two */]| x"), u"one [-- /* two */]| x");
}

TEST_F(Commenting, TheTextOfALineFromColumnZeroGetsALineMarker)
{
    EXPECT_EQ(Block(u"a\n[one]|\nb"), u"a\n[-- one]|\nb");
    // One line end's length before the end counts as well.
    EXPECT_EQ(Block(u"a\n[on]|e\nb"), u"a\n[-- on]|e\nb");
}

TEST_F(Commenting, WholeLinesGetAMarkerEachAndTheLineBehindThemNone)
{
    EXPECT_EQ(Block(u"[one\n\n  two\n]|three"), u"[-- one\n\n--   two\n]|three");
    EXPECT_EQ(TextAfterUndo(), u"one\n\n  two\nthree");
}

TEST_F(Commenting, WholeLinesAreSeenInEveryLineEnd)
{
    control.SetEOLMode(kCrLf, 1);
    EXPECT_EQ(Block(u"[one\r\ntwo\r\n]|x"), u"[-- one\r\n-- two\r\n]|x");
    control.SetEOLMode(kCr, 1);
    EXPECT_EQ(Block(u"[one\rtwo\r]|x"), u"[-- one\r-- two\r]|x");
    // Other line ends than those of the mode are text like any other.
    control.SetEOLMode(kCrLf, 1);
    EXPECT_EQ(Block(u"on[e\n]|x"), u"on/*[e\n]|*/x");
}

TEST_F(Commenting, FromInsideALineToInsideAnotherIsWrapped)
{
    EXPECT_EQ(Block(u"o[ne\ntw]|o"), u"o/*[ne\ntw]|*/o");
}

TEST_F(Commenting, FromInsideALineWithABlockCommentEachLineGetsAMarker)
{
    EXPECT_EQ(Block(u"o[ne /*\ntw]|o"), u"o[-- ne /*\n-- tw]|o");
}

TEST_F(Commenting, TheFixedMarkerIsLookedForWhateverTheLanguageHas)
{
    control.Reset();
    control.AddSingleLineComment(QStringLiteral("#"));
    control.AddBlockComment(QStringLiteral("<<"), QStringLiteral(">>"));
    EXPECT_EQ(Block(u"x [a /* b]| y"), u"x [# a /* b]| y");
    EXPECT_EQ(Block(u"x [a << b]| y"), u"x <<[a << b]|>> y");
}

TEST_F(Commenting, SearchFlagsOfAnEarlierSearchDoNotMatter)
{
    constexpr int kRegularExpression = 0x200000;
    control.SetSearchFlags(kRegularExpression, 1);
    EXPECT_EQ(Block(u"on[e tw]|o"), u"on/*[e tw]|*/o");
    EXPECT_EQ(control.GetSearchFlags(1), kRegularExpression);
}

TEST_F(Commenting, TheLineFormStartsAtTheSelectionAndThenAtColumnZero)
{
    EXPECT_EQ(Lines(u"on[e\n  two]|"), u"on[-- e\n--   two]|");
    EXPECT_EQ(Lines(u"on|e"), u"on[-- ]|e");
    EXPECT_EQ(Lines(u"[a\n\n  b]|"), u"[-- a\n\n--   b]|");
}

TEST_F(Commenting, MissingMarkersGiveFalseAndChangeNothing)
{
    Put(u"[one]|");
    EXPECT_FALSE(control.CommentSelection(-1, true));
    EXPECT_FALSE(control.CommentSelection(-1, false));
    control.Reset();
    Put(u"o[n]|e");
    EXPECT_FALSE(control.CommentSelection(0, true));
    EXPECT_FALSE(control.CommentSelection(0, false));
    EXPECT_EQ(Marked(), u"o[n]|e");
}

TEST_F(Commenting, TheWordScanReadsNinetyNineUnitsOfTheLine)
{
    const std::u16string line(150, u'x');
    Put(line);
    control.SetSel(90, 90, 1);
    ASSERT_TRUE(control.CommentSelection(0, true));
    EXPECT_EQ(Text(), u"/*" + line.substr(0, 99) + u"*/" + line.substr(99));
    Put(line);
    control.SetSel(120, 120, 1);
    ASSERT_TRUE(control.CommentSelection(0, true));
    EXPECT_EQ(Text(), u"/*" + line.substr(0, 121) + u"*/" + line.substr(121));
}

TEST_F(Commenting, APairAtTheCaretStaysWhole)
{
    EXPECT_EQ(BlockText(u"ab|\U0001F600 x"), u"/*ab*/\U0001F600 x");
    EXPECT_EQ(TextAfterUndo(), u"ab\U0001F600 x");
}

TEST_F(Commenting, AReadOnlyTextStays)
{
    Put(u"[one\ntwo]|");
    control.SetReadOnly(1, 1);
    EXPECT_TRUE(control.CommentSelection(0, true));
    EXPECT_TRUE(control.CommentSelection(0, false));
    EXPECT_TRUE(control.UnCommentSelection(0, true));
    EXPECT_TRUE(control.UnCommentSelection(0, false));
    EXPECT_EQ(Text(), u"one\ntwo");
}

TEST_F(Commenting, MarkersAreTakenInTheirOrder)
{
    control.Reset();
    EXPECT_TRUE(control.AddSingleLineComment(QStringLiteral("#")));
    EXPECT_TRUE(control.AddBlockComment(QStringLiteral("{"), QStringLiteral("}")));
    EXPECT_TRUE(control.AddBlockComment(QStringLiteral("(*"), QStringLiteral("*)")));
    Put(u"a[b]|c");
    EXPECT_TRUE(control.CommentSelection(1, true));
    EXPECT_EQ(Marked(), u"a(*[b]|*)c");
    Put(u"(*abc*)|");
    EXPECT_TRUE(control.UnCommentSelection(1, true));
    EXPECT_EQ(Text(), u"abc");
}

TEST_F(Commenting, AnIndexBehindTheMarkersIsMissingForTheBlockFormOnly)
{
    Put(u"a[b]|c");
    EXPECT_FALSE(control.CommentSelection(7, true));
    EXPECT_FALSE(control.CommentSelection(-2, true));
    EXPECT_FALSE(control.CommentSelection(-2, false));
    EXPECT_EQ(Marked(), u"a[b]|c");
    EXPECT_TRUE(control.CommentSelection(7, false));
    EXPECT_EQ(Marked(), u"a[-- b]|c");
}

TEST_F(Commenting, ALineEndBehindTheSelectionMakesItLinesWhereverItBegins)
{
    EXPECT_EQ(Block(u"on[e\ntwo\n]|x"), u"on[-- e\n-- two\n]|x");
    EXPECT_EQ(Block(u"on[e\n]|x"), u"on[-- e\n]|x");
}

TEST_F(Commenting, WithoutASingleModeALineEndIsCrLf)
{
    control.SetEOLMode(0, 1);
    EXPECT_EQ(Block(u"on[e\r\n]|x"), u"on[-- e\r\n]|x");
    EXPECT_EQ(Block(u"on[e\n]|x"), u"on/*[e\n]|*/x");
}

TEST_F(Commenting, AMarkerLongerThanTheTextIsPutAroundIt)
{
    control.Reset();
    const QString marker(300, u'#');
    control.AddSingleLineComment(marker);
    control.AddBlockComment(marker, marker);
    const std::u16string text = marker.toStdU16String();
    EXPECT_EQ(BlockText(u"a[b]|c"), u"a" + text + u"b" + text + u"c");
    EXPECT_EQ(TextAfterUndo(), u"abc");
    Lines(u"[a]|");
    EXPECT_EQ(Text(), text + u" a");
}

TEST_F(Commenting, NulAndAstralCharactersAreTextLikeAny)
{
    const std::u16string nul(1, u'\0');
    EXPECT_EQ(Block(u"a[" + nul + u"]|b"), u"a/*[" + nul + u"]|*/b");
    EXPECT_EQ(Block(u"a[\U0001F600]|b"), u"a/*[\U0001F600]|*/b");
    EXPECT_EQ(Lines(u"[" + nul + u"a\n\U0001F600]|"), u"[-- " + nul + u"a\n-- \U0001F600]|");
}

} // namespace
