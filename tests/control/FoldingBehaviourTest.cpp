// SPDX-License-Identifier: GPL-3.0-or-later
// Bookmarks and folding over the real engine: what is to be seen afterwards.
#include "tests/control/ControlFixture.h"

namespace {

constexpr int kHeader = 0x2000;
constexpr int kDigits = 0x3FF;

class OnTheEngine : public ControlTest
{
protected:
    void SetLevels(const std::vector<int>& levels)
    {
        std::u16string text;
        for (std::size_t line = 0; line < levels.size(); ++line)
            text += u"line\n";
        control.SetText(text.c_str(), 1);
        for (std::size_t line = 0; line < levels.size(); ++line)
            control.SetFoldLevel(static_cast<int>(line), levels[line], 1);
    }

    // Two folds of the first level, the first with another inside.
    void SetTwoFolds()
    {
        SetLevels({kHeader | 0x400, 0x401, kHeader | 0x401, 0x402, 0x402, 0x401, kHeader | 0x400,
                   0x401, 0x400});
    }

    std::string Visible()
    {
        std::string visible;
        for (int line = 0; line < control.GetLineCount(1); ++line)
            visible += control.GetLineVisible(line, 1) ? '#' : '.';
        return visible;
    }

    void GoTo(int line) { control.GotoLine(line, 1); }
    int Digits(int line) { return control.MarkerGet(line, 1) & kDigits; }
    long StartOf(int line) { return control.PositionFromLine(line, 1); }
};

} // namespace

TEST_F(OnTheEngine, ABookmarkThatIsToggledTwiceIsGone)
{
    SetTwoFolds();
    control.DefineNumberedBookmarks(0, true);
    GoTo(4);
    control.ToggleNumberedBookmark(3, 0);
    EXPECT_EQ(Digits(4), 1 << 3);
    control.ToggleNumberedBookmark(3, 0);
    EXPECT_EQ(Digits(4), 0);
    // The slot holds a handle without a marker, which counts as a bookmark elsewhere.
    control.ToggleNumberedBookmark(3, 0);
    EXPECT_EQ(Digits(4), 1 << 3);
}

TEST_F(OnTheEngine, ALineHoldsOneNumberedBookmark)
{
    SetTwoFolds();
    control.DefineNumberedBookmarks(0, false);
    GoTo(4);
    control.ToggleNumberedBookmark(5, 0);
    control.ToggleNumberedBookmark(3, 0);
    EXPECT_EQ(Digits(4), 1 << 3);
    EXPECT_EQ(control.m_aNumberedBookmarks[5], -1);
}

TEST_F(OnTheEngine, ABookmarkMovesInOneCall)
{
    SetTwoFolds();
    control.DefineNumberedBookmarks(0, false);
    GoTo(4);
    control.ToggleNumberedBookmark(3, 0);
    GoTo(7);
    control.ToggleNumberedBookmark(3, 0);
    EXPECT_EQ(Digits(4), 0);
    EXPECT_EQ(Digits(7), 1 << 3);
}

TEST_F(OnTheEngine, AJumpOpensTheFoldThatHidesTheBookmark)
{
    SetTwoFolds();
    control.DefineNumberedBookmarks(0, false);
    GoTo(4);
    control.ToggleNumberedBookmark(9, 0);
    GoTo(8);
    control.FoldAll();
    ASSERT_FALSE(control.GetLineVisible(4, 1));
    control.JumpToNumberedBookmark(10, 0);
    EXPECT_EQ(control.LineFromPosition(control.GetCurrentPos(1), 1), 8);
    control.JumpToNumberedBookmark(9, 0);
    EXPECT_EQ(control.LineFromPosition(control.GetCurrentPos(1), 1), 4);
    EXPECT_TRUE(control.GetLineVisible(4, 1));
}

TEST_F(OnTheEngine, AJumpToABookmarkWhoseTextIsGoneEndsAtTheTop)
{
    SetTwoFolds();
    control.DefineNumberedBookmarks(0, false);
    GoTo(4);
    control.ToggleNumberedBookmark(3, 0);
    control.SetText(u"one\ntwo\n", 1);
    GoTo(1);
    control.JumpToNumberedBookmark(3, 0);
    EXPECT_EQ(control.GetCurrentPos(1), 0);
}

TEST_F(OnTheEngine, FoldAllFoldsAndOpensByTheFirstHeader)
{
    SetTwoFolds();
    control.FoldAll();
    EXPECT_EQ(Visible(), "#.....#.##");
    control.FoldAll();
    EXPECT_EQ(Visible(), "##########");
    control.MarginClick(StartOf(0), 0); // the first is closed, the second open: all open
    ASSERT_EQ(Visible(), "#.....####");
    control.FoldAll();
    EXPECT_EQ(Visible(), "##########");
    control.MarginClick(StartOf(6), 0); // the first is open: all close
    control.FoldAll();
    EXPECT_EQ(Visible(), "#.....#.##");
}

TEST_F(OnTheEngine, FoldAllLeavesATextWithoutHeadersAlone)
{
    SetLevels({0x400, 0x400, 0x400});
    control.FoldAll();
    EXPECT_EQ(Visible(), "####");
}

TEST_F(OnTheEngine, AClickFoldsAHeaderAndNothingElse)
{
    SetTwoFolds();
    EXPECT_TRUE(control.MarginClick(StartOf(2), 0));
    EXPECT_EQ(Visible(), "###..#####");
    EXPECT_TRUE(control.MarginClick(StartOf(1), 0));
    EXPECT_EQ(Visible(), "###..#####");
    EXPECT_TRUE(control.MarginClick(StartOf(8), 1 | 2));
    EXPECT_EQ(Visible(), "#.....#.##");
}

TEST_F(OnTheEngine, AClickWithControlFoldsTheChildrenToo)
{
    SetTwoFolds();
    control.MarginClick(StartOf(0), 2);
    EXPECT_EQ(Visible(), "#.....####");
    control.MarginClick(StartOf(0), 0);
    EXPECT_FALSE(control.GetFoldExpanded(2, 1)); // it was folded with its parent
    control.MarginClick(StartOf(0), 1);
    EXPECT_EQ(Visible(), "##########");
    EXPECT_TRUE(control.GetFoldExpanded(2, 1));
}

TEST_F(OnTheEngine, ARemovedHeaderShowsItsLinesAgain)
{
    SetTwoFolds();
    control.MarginClick(StartOf(0), 0);
    ASSERT_EQ(Visible(), "#.....####");
    control.SetFoldLevel(0, 0x400, 1);
    EXPECT_EQ(Visible(), "##########");
}

TEST_F(OnTheEngine, ARangeIsMadeVisibleFromEitherEnd)
{
    for (const bool backwards : {false, true}) {
        SetTwoFolds();
        control.FoldAll();
        const long from = StartOf(3);
        const long to = StartOf(7);
        control.EnsureRangeVisible(backwards ? to : from, backwards ? from : to);
        EXPECT_EQ(Visible(), "##########") << backwards;
    }
}

TEST_F(OnTheEngine, AHeaderOnEveryLineIsWalkedWithoutEnd)
{
    std::vector<int> levels; // of blank lines, which belong to every header above them
    for (int depth = 0; depth < 1000; ++depth)
        levels.push_back(kHeader | 0x1000 | std::min(0x400 + depth, 0xFFF));
    SetLevels(levels);
    control.MarginClick(0, 2);
    EXPECT_FALSE(control.GetLineVisible(5, 1));
    control.MarginClick(0, 1);
    EXPECT_TRUE(control.GetLineVisible(5, 1));
}

TEST_F(OnTheEngine, ProblemsAreListedMarkedAndFoundThroughTheControl)
{
    control.SetText(u"select one\nfrom two\n", 1);
    control.DefineErrorIndicators();
    control.ErrorsSetMarkNum(2, 1);
    control.WarningsSetMarkNum(9, 1);
    EXPECT_EQ(control.IndicGetStyle(0, 1), 1);
    EXPECT_EQ(control.IndicGetFore(1, 1), 0x0007E4DFu);
    ErrorInfo record;
    record.nStart = 16;
    record.nEnd = 19;
    record.SetText(u"There is no table two");
    const int id = control.ErrorAdd(1, &record, 1);
    control.ErrorsShow(1);
    EXPECT_EQ(control.MarkerGet(1, 1), 1 << 2);
    EXPECT_EQ(control.ErrorGetOverPos(17, 1)->nId, id);
    EXPECT_EQ(control.ErrorsGetAll(problem::kAny, problem::kAny, 1)->at(1).size(), 1u);
    control.ErrorDelete(1, id, 1);
    EXPECT_EQ(control.ErrorGetFirst(problem::kAny, 1), nullptr);
    EXPECT_EQ(control.MarkerGet(1, 1), 0);
}
