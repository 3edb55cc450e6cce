// SPDX-License-Identifier: GPL-3.0-or-later
// Bookmarks on all matches.
#include "search/FindReplaceManager.h"
#include "tests/editing/EditingFixture.h"

namespace {

class Marking : public EditingTest
{
protected:
    QList<int> Marked()
    {
        QList<int> lines;
        for (int line = 0; line < control.GetLineCount(1); ++line) {
            if (control.MarkerGet(line, 1) & 1)
                lines << line;
        }
        return lines;
    }

    CFindReplaceManager& search = *zncoreeditor::GetFindReplaceManager();
};

TEST_F(Marking, CountsTheMatchesAndMarksTheirLines)
{
    PutPlain(u"one two\ntwo two\nthree\nTWO\n");
    control.GotoPos(9, 1);
    EXPECT_EQ(control.MarkAll(QStringLiteral("two"), 0), 4);
    EXPECT_EQ(Marked(), QList<int>({0, 1, 3}));
    EXPECT_EQ(control.GetCurrentPos(1), 9);
}

TEST_F(Marking, MindsTheCaseWhereItIsAsked)
{
    PutPlain(u"one two\ntwo two\nthree\nTWO\n");
    EXPECT_EQ(control.MarkAll(QStringLiteral("TWO"), 1), 1);
    EXPECT_EQ(Marked(), QList<int>({3}));
    EXPECT_TRUE(search.GetMatchCase());
    EXPECT_TRUE(search.GetRegExp());
    EXPECT_TRUE(search.GetDown());
    EXPECT_FALSE(search.GetWholeWord());
    EXPECT_FALSE(search.GetWrap());
}

TEST_F(Marking, LeavesEverythingForNoText)
{
    PutPlain(u"a\n");
    search.SetRegExp(false);
    search.SetWrap(true);
    search.AddFindHistory(QStringLiteral("before"));
    control.GotoPos(1, 1);
    EXPECT_EQ(control.MarkAll(QString(), 0), -1);
    EXPECT_EQ(control.GetCurrentPos(1), 1);
    EXPECT_EQ(search.GetFind(), QStringLiteral("before"));
    EXPECT_FALSE(search.GetRegExp());
    EXPECT_TRUE(search.GetWrap());
}

TEST_F(Marking, LeavesTheCaretAtTheStartForNoMatch)
{
    PutPlain(u"a\nb\n");
    control.GotoPos(3, 1);
    EXPECT_EQ(control.MarkAll(QStringLiteral("z"), 0), -1);
    EXPECT_EQ(control.GetCurrentPos(1), 0);
    EXPECT_EQ(Marked(), QList<int>());
}

TEST_F(Marking, PassesByEmptyMatchesAndEnds)
{
    PutPlain(u"ab\u00e9\U0001F600aa\r\n");
    EXPECT_EQ(control.MarkAll(QStringLiteral("a*"), 0), 2);
    EXPECT_EQ(control.MarkAll(QStringLiteral("x*"), 0), 0);
    EXPECT_EQ(control.MarkAll(QStringLiteral("$"), 0), 0);
}

TEST_F(Marking, StaysOutsideTheWalkFromBookmarkToBookmark)
{
    PutPlain(u"a\nb\na\n");
    EXPECT_EQ(control.MarkAll(QStringLiteral("a"), 0), 2);
    EXPECT_FALSE(control.HasBookmarks());
    control.GotoPos(0, 1);
    control.NextBookmark();
    EXPECT_EQ(control.GetCurrentPos(1), 0);
    control.ClearBookmarks();
    EXPECT_EQ(Marked(), QList<int>());
}

TEST_F(Marking, MarksALineOnce)
{
    PutPlain(u"a a\nb\n");
    EXPECT_EQ(control.MarkAll(QStringLiteral("a"), 0), 2);
    EXPECT_EQ(control.MarkAll(QStringLiteral("a"), 0), 2);
    control.MarkerDelete(0, 0, 1); // takes one mark away
    EXPECT_EQ(Marked(), QList<int>());
}

TEST_F(Marking, SearchesForAnExpressionFromTheStartOn)
{
    PutPlain(u"one\ntwo\nten\n");
    search.SetDown(false);
    search.SetWholeWord(true);
    control.GotoPos(6, 1);
    EXPECT_EQ(control.MarkAll(QStringLiteral("t[a-z]*"), 0), 2);
    EXPECT_EQ(Marked(), QList<int>({1, 2}));
    EXPECT_EQ(search.GetFind(), QStringLiteral("t[a-z]*"));
}

TEST_F(Marking, FindsNothingByAPatternThatIsNone)
{
    PutPlain(u"a[b\n");
    EXPECT_EQ(control.MarkAll(QStringLiteral("["), 0), -1);
    EXPECT_EQ(Marked(), QList<int>());
}

} // namespace
