// SPDX-License-Identifier: GPL-3.0-or-later
// Lines sorted, and text put into each of them.
#include "tests/RandomSeed.h"
#include "tests/editing/EditingFixture.h"
#include "tests/reference/BinaryInsertion.h"

#include "editing/text/LineOrder.h"

namespace {

class SortingLines : public EditingTest
{
protected:
    std::u16string Sorted(const std::u16string& marked, int mode = 0)
    {
        Put(marked);
        control.SortLines(true, false, true, mode, -1, -1);
        return Marked();
    }
};

TEST_F(SortingLines, LosesTheLastLineAndLeavesAnEmptyOne)
{
    EXPECT_EQ(Sorted(u"x\n[b\na\nlast]|\ny"), u"x\na\nb\n|\ny");
    EXPECT_EQ(TextAfterUndo(), u"x\nb\na\nlast\ny");
    EXPECT_EQ(Sorted(u"[b\na\n]|last\ny"), u"a\nb\n|\ny");
    EXPECT_EQ(Sorted(u"x\n|[only]\ny"), u"x\n|\ny");
}

TEST_F(SortingLines, TakesWholeLinesWhereverTheSelectionBeginsAndEnds)
{
    EXPECT_EQ(Sorted(u"bb[b\naaa\nla]|st"), u"aaa\nbbb\n|");
}

TEST_F(SortingLines, NeedsASelection)
{
    EXPECT_EQ(Sorted(u"b\n|a\n"), u"b\n|a\n");
    EXPECT_FALSE(control.CanUndo(1));
}

TEST_F(SortingLines, TrimsLinesOnTheRightAndUsesTheModesLineEnd)
{
    control.SetEOLMode(kCrLf, 1);
    EXPECT_EQ(Sorted(u"[b \t\n\u3000\na\r\nx]|"), u"\r\na\r\nb\r\n|");
    control.SetEOLMode(kCr, 1);
    EXPECT_EQ(Sorted(u"[b\na\nx]|"), u"a\rb\r|");
    control.SetEOLMode(0, 1);
    EXPECT_EQ(Sorted(u"[b\ra\rx]|"), u"a\nb\n|");
}

TEST_F(SortingLines, GoesBackwards)
{
    Put(u"[a\nc\nb\n]|");
    control.SortLines(false, false, true, 0, -1, -1);
    EXPECT_EQ(Text(), u"c\nb\na\n");
}

TEST_F(SortingLines, ByNumberPutsNineBeforeTen)
{
    EXPECT_EQ(Sorted(u"[10 a\n9 b\nx]|", 2), u"9 b\n10 a\n|");
    EXPECT_EQ(Sorted(u"[10 a\n9 b\nx]|", 0), u"10 a\n9 b\n|");
}

TEST_F(SortingLines, DropsLinesThatAreEqualInTheColumns)
{
    Put(u"[1 b x\n2 a y\n3 b z\n]|");
    control.SortLines(true, false, false, 0, 2, 3);
    EXPECT_EQ(Text(), u"2 a y\n1 b x\n");
    Put(u"[b\nB\na\n]|");
    control.SortLines(true, true, false, 0, -1, -1);
    EXPECT_EQ(Text(), u"a\nb\n");
}

TEST_F(SortingLines, KeepsALineWithNulWhole)
{
    const std::u16string nul(1, u'\0');
    PutPlain(u"b" + nul + u"x\na" + nul + u"\n\n");
    control.SetSel(0, control.GetLength(1), 1);
    control.SortLines(true, false, true, 0, -1, -1);
    EXPECT_EQ(Text(), u"\na" + nul + u"\nb" + nul + u"x\n");
}

TEST_F(SortingLines, LeavesAReadOnlyText)
{
    Put(u"[b\na\nx]|");
    control.SetReadOnly(1, 1);
    control.SortLines(true, false, true, 0, -1, -1);
    EXPECT_EQ(Text(), u"b\na\nx");
}

TEST_F(SortingLines, AgreesWithBinaryInsertionOfTheLines)
{
    const unsigned seed = RandomSeed();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    RandomText random(seed);
    for (int round = 0; round < 60; ++round) {
        std::vector<QString> lines;
        std::u16string text;
        for (int i = random.Number(80); i > 0; --i) {
            lines.push_back(QString::number(random.Number(12)) + u"aAbB"[random.Number(4)] +
                            QString(random.Number(3), u'x'));
            text += lines.back().toStdU16String() + u'\n';
        }
        const int mode = random.Number(3);
        const bool ignoreCase = random.Number(2);
        const bool keepDuplicates = random.Number(2);
        const bool ascending = random.Number(2);
        const int start = random.Number(4) - 1;
        const int end = random.Number(4) - 1;
        PutPlain(u"first\n" + text + u"lost\nrest");
        control.SetSel(6, control.PositionFromLine(control.GetLineCount(1) - 2, 1) + 1, 1);
        control.SortLines(ascending, ignoreCase, keepDuplicates, mode, start, end);

        const lineorder::Compare compare = lineorder::ComparisonOf(mode, ignoreCase);
        std::vector<QString> sorted = reference::InsertAll(
            lines, [&](const QString& a, const QString& b) { return compare(a, b, start, end); },
            keepDuplicates);
        if (!ascending)
            std::reverse(sorted.begin(), sorted.end());
        std::u16string expected = u"first\n";
        for (const QString& line : sorted)
            expected += line.toStdU16String() + u'\n';
        ASSERT_EQ(Text(), expected + u"\nrest");
        ASSERT_EQ(TextAfterUndo(), u"first\n" + text + u"lost\nrest");
    }
}

class TextIntoLines : public EditingTest
{};

TEST_F(TextIntoLines, GoesToTheEndForColumnMinusOne)
{
    Put(u"[a\nbc\n]|d");
    control.InsertTextIntoLines(-1, QStringLiteral(";"));
    EXPECT_EQ(Text(), u"a;\nbc;\nd");
    EXPECT_EQ(TextAfterUndo(), u"a\nbc\nd");
}

TEST_F(TextIntoLines, GoesToTheColumnOfLinesThatReachIt)
{
    Put(u"[abc\na\n\nab]|");
    control.InsertTextIntoLines(2, QStringLiteral("|"));
    EXPECT_EQ(Text(), u"ab|c\na\n\nab|");
    Put(u"[a\nb]|");
    control.InsertTextIntoLines(0, QStringLiteral("> "));
    EXPECT_EQ(Text(), u"> a\n> b");
}

TEST_F(TextIntoLines, GoesIntoTheCaretsLineWithoutASelection)
{
    Put(u"a\n|b\nc");
    control.InsertTextIntoLines(0, QStringLiteral("x"));
    EXPECT_EQ(Text(), u"a\nxb\nc");
}

TEST_F(TextIntoLines, TakesAnyColumn)
{
    Put(u"[a\nb]|");
    control.InsertTextIntoLines(2147483647, QStringLiteral("x"));
    EXPECT_EQ(Text(), u"a\nb");
    control.SetSel(0, 3, 1);
    control.InsertTextIntoLines(-2147483647, QStringLiteral("x"));
    EXPECT_EQ(Text(), u"xxa\nb"); // before the text is its start
}

TEST_F(TextIntoLines, NumbersThem)
{
    Put(u"[a\nb\nc]|");
    control.InsertTextIntoLines(1, QStringLiteral("x"), 2, 3);
    EXPECT_EQ(Text(), u"001x a\n003x b\n005x c");
    EXPECT_EQ(TextAfterUndo(), u"a\nb\nc");
}

TEST_F(TextIntoLines, NumbersDownwardsBelowZero)
{
    Put(u"[a\nb\n]|c");
    control.InsertTextIntoLines(0, QString(), -5, 3);
    EXPECT_EQ(Text(), u"000 a\n-05 b\nc");
}

} // namespace
