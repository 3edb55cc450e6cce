// SPDX-License-Identifier: GPL-3.0-or-later
// What Enter and braces do to the indentation, and Enter to a comment, with keys as they are typed.
#include "tests/editing/EditingFixture.h"

namespace {

class AutoIndent : public EditingTest
{
protected:
    AutoIndent() { options.on = false; }

    std::u16string EnterAt(const std::u16string& marked)
    {
        Put(marked);
        Enter();
        return Marked();
    }

    ContinuedComments options;
};

TEST_F(AutoIndent, ModeZeroKeepsNothing)
{
    EXPECT_EQ(EnterAt(u"  one|"), u"  one\n|");
}

TEST_F(AutoIndent, ModeOneTakesTheIndentationOfTheLineAbove)
{
    control.SetAutoIndent(1);
    EXPECT_EQ(EnterAt(u"  one|"), u"  one\n  |");
    EXPECT_EQ(EnterAt(u"  f()|"), u"  f()\n  |");
    EXPECT_EQ(EnterAt(u"  one|two"), u"  one\n  |two");
}

TEST_F(AutoIndent, WorksInEveryLineEnd)
{
    control.SetAutoIndent(2);
    control.SetEOLMode(kCrLf, 1);
    EXPECT_EQ(EnterAt(u"  {|"), u"  {\r\n      |");
    control.SetEOLMode(kCr, 1);
    EXPECT_EQ(EnterAt(u"  {|"), u"  {\r      |");
}

TEST_F(AutoIndent, WithoutASingleModeAnLfDoesNothing)
{
    control.SetAutoIndent(2);
    Put(u"  a\n|");
    control.SetEOLMode(0, 1);
    control.AutoIndentIn(u'\n');
    EXPECT_EQ(Marked(), u"  a\n|");
    control.AutoIndentIn(u'\r');
    EXPECT_EQ(Marked(), u"  a\n  |");
}

TEST_F(AutoIndent, ModeTwoStepsInAfterBracesAndColons)
{
    control.SetAutoIndent(2);
    EXPECT_EQ(EnterAt(u"  if (a)|"), u"  if (a)\n      |");
    EXPECT_EQ(EnterAt(u"  if {|"), u"  if {\n      |");
    EXPECT_EQ(EnterAt(u"  a:|"), u"  a:\n      |");
    EXPECT_EQ(EnterAt(u"  word|"), u"  word\n  |");
}

TEST_F(AutoIndent, TheStepIsTheIndentSizeOrElseATab)
{
    control.SetAutoIndent(2);
    control.SetIndent(2, 1);
    EXPECT_EQ(EnterAt(u"{|"), u"{\n  |");
    control.SetIndent(0, 1);
    control.SetTabWidth(3, 1);
    EXPECT_EQ(EnterAt(u"{|"), u"{\n   |");
}

TEST_F(AutoIndent, ALineThatIsIndentedFurtherStays)
{
    control.SetAutoIndent(1);
    EXPECT_EQ(EnterAt(u"  a|    b"), u"  a\n|    b");
}

TEST_F(AutoIndent, OpeningBracesLineUpWithTheLineAbove)
{
    control.SetAutoIndent(2);
    Put(u"  if\n      |");
    Type(u'{');
    EXPECT_EQ(Marked(), u"  if\n  {|");
    Put(u"  {\n      |");
    Type(u'{');
    EXPECT_EQ(Marked(), u"  {\n      {|");
    Put(u"    |");
    Type(u'{');
    EXPECT_EQ(Marked(), u"    {|");
}

TEST_F(AutoIndent, ClosingBracesLineUpWithTheLineOfTheirMatch)
{
    control.SetAutoIndent(2);
    Put(u"  a {\n    { b }\n      |");
    Type(u'}');
    EXPECT_EQ(Marked(), u"  a {\n    { b }\n  }|");
}

TEST_F(AutoIndent, AClosingBraceBehindOtherTextLeavesTheLine)
{
    control.SetAutoIndent(2);
    Put(u"{\n    a |");
    Type(u'}');
    EXPECT_EQ(Marked(), u"{\n    a }|");
}

TEST_F(AutoIndent, AnUnmatchedClosingBraceLeavesTheLine)
{
    control.SetAutoIndent(2);
    Put(u"{ }\n    |");
    Type(u'}');
    EXPECT_EQ(Marked(), u"{ }\n    }|");
    Put(u"|");
    Type(u'}');
    EXPECT_EQ(Marked(), u"}|");
}

TEST_F(AutoIndent, AClosingBraceFindsItsMatchFarAway)
{
    control.SetAutoIndent(2);
    std::u16string text = u"  {\n";
    for (int i = 0; i < 3000; ++i)
        text += u"\u00e9\U0001F600 { x }\n";
    PutPlain(text + u"      ");
    control.DocumentEnd(1);
    Type(u'}');
    EXPECT_EQ(Text(), text + u"  }");
}

TEST_F(AutoIndent, BracesDoNothingInModeOne)
{
    control.SetAutoIndent(1);
    Put(u"  if\n      |");
    Type(u'{');
    EXPECT_EQ(Marked(), u"  if\n      {|");
}

TEST_F(AutoIndent, TheSelectionGoesAlongWithAnIndentation)
{
    Put(u"    a[b]|c");
    control.SetLineIndentationEx(0, 6);
    EXPECT_EQ(Marked(), u"      a[b]|c");
    control.SetLineIndentationEx(0, 1);
    EXPECT_EQ(Marked(), u" a[b]|c");
    control.SetLineIndentationEx(0, -1);
    EXPECT_EQ(Marked(), u" a[b]|c");
}

TEST_F(AutoIndent, ASelectionInsideTheOldIndentationEndsUpAtTheNewOne)
{
    Put(u"    [  ]|  a");
    control.SetLineIndentationEx(0, 2);
    EXPECT_EQ(Marked(), u"  |a");
    Put(u" [ ]|      a");
    control.SetLineIndentationEx(0, 6);
    EXPECT_EQ(Marked(), u" [ ]|    a");
    Put(u" [ ]| a");
    control.SetLineIndentationEx(0, 6);
    EXPECT_EQ(Marked(), u" [ ]|    a");
}

class ContinuedComment : public AutoIndent
{
protected:
    ContinuedComment() { options.on = true; }
};

TEST_F(ContinuedComment, DashesGoOnAlsoWithoutAutoIndentation)
{
    EXPECT_EQ(EnterAt(u"-- one|"), u"-- one\n-- |");
    EXPECT_EQ(EnterAt(u"  --|"), u"  --\n-- |");
}

TEST_F(ContinuedComment, DashesReportFalse)
{
    Put(u"-- a\n|");
    EXPECT_FALSE(control.AutomaticCommenting());
    EXPECT_EQ(Marked(), u"-- a\n-- |");
}

TEST_F(ContinuedComment, AnOpenCommentGoesOn)
{
    EXPECT_EQ(EnterAt(u"/* one|"), u"/* one\n * |");
    EXPECT_EQ(EnterAt(u"/* one\n * two|"), u"/* one\n * two\n* |");
    Put(u"/*\n*\n|");
    EXPECT_TRUE(control.AutomaticCommenting());
    EXPECT_EQ(Marked(), u"/*\n*\n* |");
}

TEST_F(ContinuedComment, AClosedCommentDoesNot)
{
    EXPECT_EQ(EnterAt(u"/* one\n * two */|"), u"/* one\n * two */\n|");
    EXPECT_EQ(EnterAt(u"* a|"), u"* a\n|");
}

TEST_F(ContinuedComment, OtherTextAndBlankLinesDoNot)
{
    EXPECT_EQ(EnterAt(u"/*\na|"), u"/*\na\n|");
    EXPECT_EQ(EnterAt(u"/*\n  |"), u"/*\n  \n|");
    EXPECT_EQ(EnterAt(u"/*\n/|"), u"/*\n/\n|");
}

TEST_F(ContinuedComment, WorksInCrLf)
{
    control.SetEOLMode(kCrLf, 1);
    EXPECT_EQ(EnterAt(u"/*\r\n*|"), u"/*\r\n*\r\n* |");
    EXPECT_EQ(EnterAt(u"/*\r\n|"), u"/*\r\n\r\n|");
}

TEST_F(ContinuedComment, TheTargetIsLeftFromTheCaretToTheStart)
{
    Put(u"/* a\n|");
    control.AutomaticCommenting();
    EXPECT_EQ(control.GetTargetStart(1), 5);
    EXPECT_EQ(control.GetTargetEnd(1), 0);
}

TEST_F(ContinuedComment, OnTheFirstLineThereIsNothingToContinue)
{
    Put(u"-- a|");
    EXPECT_FALSE(control.AutomaticCommenting());
    EXPECT_EQ(Marked(), u"-- a|");
}

TEST_F(ContinuedComment, TheOptionTurnsItOff)
{
    options.on = false;
    EXPECT_EQ(EnterAt(u"-- one|"), u"-- one\n|");
}

TEST_F(ContinuedComment, IsIndentedLikeTheLineAbove)
{
    control.SetAutoIndent(1);
    EXPECT_EQ(EnterAt(u"  -- one|"), u"  -- one\n  -- |");
}

// The two markers of "/*/" share their star, and each counts.
TEST_F(ContinuedComment, CountsMarkersThatOverlap)
{
    EXPECT_EQ(EnterAt(u"/*/|"), u"/*/\n|");
    EXPECT_EQ(EnterAt(u"/*/*|"), u"/*/*\n * |"); // two starts, and the end between them
    EXPECT_EQ(EnterAt(u"/*/*/|"), u"/*/*/\n|");
}

TEST_F(ContinuedComment, GoesOnInsideANestedOne)
{
    EXPECT_EQ(EnterAt(u"/* /* a */\n* b|"), u"/* /* a */\n* b\n* |");
    EXPECT_EQ(EnterAt(u"/* a |*/"), u"/* a \n * |*/");
}

TEST_F(ContinuedComment, IsIndependentOfTheLanguagesMarkers)
{
    control.Reset();
    EXPECT_EQ(EnterAt(u"\t -- a|"), u"\t -- a\n-- |");
    EXPECT_EQ(EnterAt(u"  /* a|"), u"  /* a\n * |");
}

} // namespace
