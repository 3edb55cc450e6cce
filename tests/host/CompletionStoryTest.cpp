// SPDX-License-Identifier: GPL-3.0-or-later
// Proposals by the keys of a person: the list comes while one types, is walked through, taken from
// and sent away, and keeps out of comments and strings.
#include "tests/host/WindowStory.h"

namespace {

class CompletionStory : public WindowStory
{
protected:
    void SetUp() override
    {
        ASSERT_NO_FATAL_FAILURE(WindowStory::SetUp());
        Keys({"ctrl+a"});
        Type("alpha_one alpha_two");
        Keys({"Return"});
    }

    // Beside the window itself.
    static bool IsListThere()
    {
        return XDoTool({"search", "--onlyvisible", "--class", "znworkbench"}).count(u'\n') > 0;
    }
    void ExpectSaved(const QByteArray& last)
    {
        Keys({"ctrl+s"});
        EXPECT_TRUE(Eventually([&] { return Read() == "alpha_one alpha_two\n" + last; }))
            << Read().toStdString();
    }
};

} // namespace

TEST_F(CompletionStory, TabTakesTheFirstOfTheListThatTypingOpened)
{
    EXPECT_FALSE(IsListThere());
    Type("alph");
    ASSERT_TRUE(Eventually(IsListThere));
    Keys({"Tab"});
    ExpectSaved("alpha_one");
}

TEST_F(CompletionStory, EnterTakesTheRowThatIsWalkedTo)
{
    Type("alph");
    ASSERT_TRUE(Eventually(IsListThere));
    Keys({"Down", "Down", "Return"});
    ExpectSaved("alpha_two");
}

TEST_F(CompletionStory, EnterIsTheEditorsUntilSomebodyWalksIntoTheList)
{
    Type("alph");
    ASSERT_TRUE(Eventually(IsListThere));
    Keys({"Return"});
    ExpectSaved("alph\n");
}

TEST_F(CompletionStory, EscapeSendsTheListAway)
{
    Type("alph");
    ASSERT_TRUE(Eventually(IsListThere));
    Keys({"Escape"});
    ASSERT_TRUE(Eventually([] { return !IsListThere(); }));
    Keys({"Tab"});
    Keys({"ctrl+s"});
    EXPECT_TRUE(Eventually([this] { return Read().contains("alph") && Read().back() != 'h'; }));
    EXPECT_FALSE(Read().endsWith("alpha_one")) << Read().toStdString();
}

TEST_F(CompletionStory, ControlAndSpaceOpenItForTwoLetters)
{
    Type("al");
    EXPECT_FALSE(IsListThere());
    Keys({"ctrl+space"});
    ASSERT_TRUE(Eventually(IsListThere));
    Type("pha_t");
    Keys({"Return"});
    ExpectSaved("alpha_two");
}

TEST_F(CompletionStory, TabTakesATableOfAnotherScript)
{
    Keys({"ctrl+n"});
    Type("create table sales_order (id int);");
    Keys({"Escape", "ctrl+Tab"});
    Type("select * from sal");
    ASSERT_TRUE(Eventually([this] { // the other script may not be read yet
        if (!IsListThere()) {
            Keys({"BackSpace"});
            Type("l");
        }
        return IsListThere();
    }));
    Keys({"Tab"});
    ExpectSaved("select * from sales_order");
}

TEST_F(CompletionStory, EscapeInTheFormOfATemplateLeavesItsName)
{
    Type("del");
    Keys({"Escape", "Tab"});
    QString form;
    ASSERT_TRUE(Eventually([&form] {
        form = Visible("^Insert Template$");
        return !form.isEmpty();
    }));
    XDoTool({"windowfocus", "--sync", form});
    Type("orders");
    Keys({"Return", "Escape"});
    ASSERT_TRUE(Eventually([] { return Visible("^Insert Template$").isEmpty(); }));
    XDoTool({"windowfocus", "--sync", m_windowId});
    ExpectSaved("del");
}

TEST_F(CompletionStory, KeepsOutOfCommentsAndStrings)
{
    Type("-- alph");
    Keys({"Tab", "Return"});
    Type("'alph");
    Keys({"Tab", "ctrl+s"});
    ASSERT_TRUE(Eventually([this] { return Read().contains("'alph"); }));
    EXPECT_EQ(Read().count("alpha_one"), 1) << Read().toStdString();
}
