// SPDX-License-Identifier: GPL-3.0-or-later
// The workbench's menus for comments, lines, words and bookmarks.
#include "editing/ZNCoreEditorControlEx.h"
#include "tests/host/WorkbenchTest.h"

namespace {

class EditingMenus : public WorkbenchTest
{};

} // namespace

TEST_F(EditingMenus, FollowTheRulesOfTheEditor)
{
    Open("orders.sql", "select (1);\n");
    Editor().SetSel(0, 0, 1);
    Q_EMIT Script().StateChanged();
    EXPECT_FALSE(Action("comment").isEnabled());
    EXPECT_FALSE(Action("sortUp").isEnabled());
    EXPECT_FALSE(Action("nextBookmark").isEnabled());
    EXPECT_TRUE(Action("bookmark").isEnabled());
    Editor().SetSel(0, 7, 1);
    Q_EMIT Script().StateChanged();
    EXPECT_TRUE(Action("comment").isEnabled());
    EXPECT_TRUE(Action("sortUp").isEnabled());
    Trigger("bookmark");
    EXPECT_TRUE(Action("nextBookmark").isEnabled());
}

TEST_F(EditingMenus, AreRuledByTheView)
{
    Open("orders.sql", "select (1);\n");
    Editor().SetSel(0, 0, 1);
    Q_EMIT Script().StateChanged();
    EXPECT_FALSE(Action("selectToBrace").isEnabled());
    EXPECT_FALSE(Action("firstBookmark").isEnabled());
    EXPECT_FALSE(Action("swapEnds").isEnabled());
    EXPECT_FALSE(Action("indent").isEnabled()) << "without a selection";
    Editor().SetSel(0, 7, 1);
    Trigger("bookmark");
    Q_EMIT Script().StateChanged();
    for (const char* name : {"selectToBrace", "firstBookmark", "swapEnds", "indent", "trim"})
        EXPECT_TRUE(Action(name).isEnabled()) << name;
    Editor().SetReadOnly(1, 1);
    Q_EMIT Script().StateChanged();
    for (const char* name :
         {"commentLines", "comment", "indent", "upperCase", "trim", "deleteWord"})
        EXPECT_FALSE(Action(name).isEnabled()) << name;
    for (const char* name : {"firstBookmark", "nextBookmark", "selectLine", "swapEnds"})
        EXPECT_TRUE(Action(name).isEnabled()) << name;
}

TEST_F(EditingMenus, OfferNothingWithoutAScript)
{
    while (Action("close").isEnabled())
        Trigger("close");
    EXPECT_FALSE(Action("bookmark").isEnabled());
    EXPECT_FALSE(Action("trim").isEnabled());
    EXPECT_FALSE(Action("comment").isEnabled());
}

TEST_F(EditingMenus, CommentAndUncomment)
{
    Open("orders.sql", "select 1;\nselect 2;\n");
    Editor().SelectAll(1);
    Q_EMIT Script().StateChanged();
    Trigger("comment");
    EXPECT_EQ(Text(), QStringLiteral("-- select 1;\n-- select 2;\n"));
    Trigger("uncomment");
    EXPECT_EQ(Text(), QStringLiteral("select 1;\nselect 2;\n"));
}

TEST_F(EditingMenus, SortWithoutLosingALine)
{
    Open("orders.sql", "x\nc\na\nb\ny\n");
    Editor().SetSel(2, 7, 1); // to the end of b
    Q_EMIT Script().StateChanged();
    Trigger("sortUp");
    EXPECT_EQ(Text(), QStringLiteral("x\na\nb\nc\ny\n"));
    Trigger("undo");
    EXPECT_EQ(Text(), QStringLiteral("x\nc\na\nb\ny\n"));
    Editor().SetSel(2, 8, 1); // to the start of y
    Q_EMIT Script().StateChanged();
    Trigger("sortDown");
    EXPECT_EQ(Text(), QStringLiteral("x\nc\nb\na\ny\n"));
}

TEST_F(EditingMenus, SortTheLastLineOfAFileToo)
{
    Open("orders.sql", "b\r\na");
    Editor().SelectAll(1);
    Q_EMIT Script().StateChanged();
    Trigger("sortUp");
    EXPECT_EQ(Text(), QStringLiteral("a\r\nb"));
}

TEST_F(EditingMenus, CleanUpAndChangeLineEnds)
{
    Open("orders.sql", "a\tb  \nc\n");
    Editor().SetTabWidth(4, 1);
    Trigger("trim");
    Trigger("tabsToSpaces");
    Trigger("endsWindows");
    EXPECT_EQ(Text(), QStringLiteral("a   b\r\nc\r\n"));
}
