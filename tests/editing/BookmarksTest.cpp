// SPDX-License-Identifier: GPL-3.0-or-later
// Bookmarks: set and taken away one by one, and gone to in turn.
#include "tests/editing/EditingFixture.h"

namespace {

class Bookmarks : public EditingTest
{
protected:
    void PutLines(int count)
    {
        std::u16string text;
        for (int line = 1; line < count; ++line)
            text += u"x\n";
        PutPlain(text);
    }
    void ToggleLines(long from, long to)
    {
        for (long line = from; line < to; ++line)
            control.ToggleBookmark(line);
    }
    int LineAfter(void (CZNCoreEditorControlEx::*operation)())
    {
        (control.*operation)();
        return control.GetCurLineNumber();
    }
};

TEST_F(Bookmarks, AreToggled)
{
    Put(u"0\n1\n2\n3");
    EXPECT_FALSE(control.HasBookmarks());
    control.ToggleBookmark(1);
    EXPECT_TRUE(control.HasBookmarks());
    EXPECT_EQ(control.MarkerGet(1, 1) & 1, 1);
    control.ToggleBookmark(1);
    EXPECT_FALSE(control.HasBookmarks());
    EXPECT_EQ(control.MarkerGet(1, 1) & 1, 0);
}

TEST_F(Bookmarks, AreGoneToInTurn)
{
    Put(u"0\n|1\n2\n3\n4");
    control.ToggleBookmark(1);
    control.ToggleBookmark(3);
    EXPECT_EQ(LineAfter(&CZNCoreEditorControlEx::NextBookmark), 3);
    EXPECT_EQ(LineAfter(&CZNCoreEditorControlEx::NextBookmark), 1);
    EXPECT_EQ(LineAfter(&CZNCoreEditorControlEx::PreviousBookmark), 3);
    EXPECT_EQ(LineAfter(&CZNCoreEditorControlEx::PreviousBookmark), 1);
    EXPECT_EQ(LineAfter(&CZNCoreEditorControlEx::LastBookmark), 3);
    EXPECT_EQ(LineAfter(&CZNCoreEditorControlEx::FirstBookmark), 1);
    control.GotoLine(4, 1);
    EXPECT_EQ(LineAfter(&CZNCoreEditorControlEx::NextBookmark), 1);
}

TEST_F(Bookmarks, OfAnotherHandCountOnlyBesideOnesOwn)
{
    Put(u"|0\n1\n2\n3");
    control.MarkerAdd(2, 0, 1);
    EXPECT_FALSE(control.HasBookmarks());
    EXPECT_EQ(LineAfter(&CZNCoreEditorControlEx::NextBookmark), 0);
    control.ToggleBookmark(3);
    EXPECT_EQ(LineAfter(&CZNCoreEditorControlEx::NextBookmark), 2);
    control.ToggleBookmark(2); // takes the mark away, and keeps the handle of the other
    EXPECT_EQ(control.m_bookmarkHandles.size(), 1u);
    control.ClearBookmarks();
    EXPECT_FALSE(control.HasBookmarks());
    EXPECT_EQ(control.MarkerNext(0, 1, 1), -1);
}

TEST_F(Bookmarks, WithoutOneNothingIsGoneTo)
{
    Put(u"0\n|1");
    for (const auto operation :
         {&CZNCoreEditorControlEx::NextBookmark, &CZNCoreEditorControlEx::PreviousBookmark,
          &CZNCoreEditorControlEx::FirstBookmark, &CZNCoreEditorControlEx::LastBookmark})
        EXPECT_EQ(LineAfter(operation), 1);
}

TEST_F(Bookmarks, OfLinesThatAreNotThereAreNotSet)
{
    Put(u"0\n1");
    control.ToggleBookmark(-1);
    control.ToggleBookmark(99);
    EXPECT_FALSE(control.HasBookmarks());
}

TEST_F(Bookmarks, OfATextThatWentAreForgottenByTheNextToggle)
{
    PutLines(4);
    ToggleLines(0, 3);
    PutPlain(u"0\n1");
    EXPECT_TRUE(control.HasBookmarks());
    control.ToggleBookmark(1);
    EXPECT_EQ(control.m_bookmarkHandles.size(), 4u);
    control.ToggleBookmark(1);
    EXPECT_FALSE(control.HasBookmarks());
}

TEST_F(Bookmarks, KeepTheOrderInWhichTheyWereSet)
{
    PutLines(6);
    for (const long line : {4L, 1L, 3L, 0L})
        control.ToggleBookmark(line);
    control.MarkerDelete(3, 0, 1);
    control.ToggleBookmark(1);
    std::vector<int> lines;
    for (const int handle : control.m_bookmarkHandles)
        lines.push_back(control.MarkerLineFromHandle(handle, 1));
    EXPECT_EQ(lines, (std::vector<int>{4, 0}));
}

// One toggle asks for some thousands of them at most.
constexpr int kVeryMany = 8000;

TEST_F(Bookmarks, AmongVeryManyAreForgottenInTheEnd)
{
    PutLines(kVeryMany);
    ToggleLines(0, kVeryMany);
    ToggleLines(10, 20);
    EXPECT_TRUE(control.HasBookmarks());
    for (int i = 0; i < 8; ++i)
        control.ToggleBookmark(kVeryMany - 1);
    EXPECT_EQ(control.m_bookmarkHandles.size(), kVeryMany - 10u);
    for (const int handle : control.m_bookmarkHandles)
        ASSERT_NE(control.MarkerLineFromHandle(handle, 1), -1);
}

TEST_F(Bookmarks, AmongVeryManyAreSeenToBeTheLast)
{
    PutLines(kVeryMany);
    ToggleLines(0, kVeryMany);
    for (int line = 1; line < kVeryMany; ++line)
        control.MarkerDelete(line, 0, 1);
    EXPECT_TRUE(control.HasBookmarks());
    control.ToggleBookmark(0);
    EXPECT_FALSE(control.HasBookmarks());
}

} // namespace
