// SPDX-License-Identifier: GPL-3.0-or-later
// Several views of one script: panes of a tab, and tabs of their own.
#include "host/problems/ScriptChecker.h"
#include "host/script/ScriptTabs.h"
#include "platform/windows/Timer.h"
#include "tests/host/WorkbenchTest.h"

#include <algorithm>

namespace {

class Views : public WorkbenchTest
{
protected:
    QString Caption(int index) const
    {
        return Tabs().tabText(index) + (Tabs().tabIcon(index).isNull() ? "" : " *");
    }
    ScriptTabs& Tabs() const { return *m_window.findChild<ScriptTabs*>(); }

    QStringList Texts() const
    {
        QStringList texts;
        for (CView* view : Script().GetViews())
            texts << dynamic_cast<ScriptView*>(view)->GetCoreEditorControl()->GetText();
        return texts;
    }
};

} // namespace

TEST_F(Views, OfASplitTabShowOneText)
{
    Open("a.sql", "one\n");
    Trigger("splitBelow");
    EXPECT_TRUE(Frame().IsSplit());
    EXPECT_TRUE(Action("splitBelow").isChecked());
    EXPECT_FALSE(Action("splitBeside").isChecked());
    EXPECT_EQ(m_window.TabCount(), 1);
    Type(u"x");
    EXPECT_EQ(Texts(), (QStringList{"xone\n", "xone\n"}));
    EXPECT_EQ(Caption(0), "a.sql *");
    Trigger("splitBelow");
    EXPECT_FALSE(Frame().IsSplit());
    EXPECT_FALSE(Action("splitBelow").isChecked());
    EXPECT_TRUE(m_prompts.asked.isEmpty());
    EXPECT_EQ(Texts(), QStringList{"xone\n"});
}

TEST_F(Views, OfAScriptWithoutAFileShowOneTextToo)
{
    m_app.NewScript();
    Trigger("splitBeside");
    Type(u"shared");
    EXPECT_EQ(Texts(), (QStringList{"shared", "shared"}));
    Trigger("newView");
    EXPECT_EQ(Texts(), (QStringList{"shared", "shared", "shared"}));
}

TEST_F(Views, OfATabSplitBothWaysAreFour)
{
    Open("a.sql", QByteArray("line\n").repeated(400));
    Trigger("splitBelow");
    Trigger("splitBeside");
    EXPECT_EQ(Script().GetViews().size(), 4u);
    EXPECT_TRUE(Action("splitBelow").isChecked());
    EXPECT_TRUE(Action("splitBeside").isChecked());
    Editor().LineScroll(0, 100, 1);
    std::vector<int> places;
    for (CView* view : Script().GetViews())
        places.push_back(
            dynamic_cast<ScriptView*>(view)->GetCoreEditorControl()->GetFirstVisibleLine(1));
    EXPECT_EQ(std::ranges::count(places, 0), 3) << "each has its own place";
    const ScriptView* active = Frame().View();
    for (int i = 0; i < 4; ++i)
        Trigger("otherPane");
    EXPECT_EQ(Frame().View(), active);
    Trigger("previousPane");
    EXPECT_NE(Frame().View(), active);
    Trigger("splitBelow");
    EXPECT_EQ(Script().GetViews().size(), 2u);
    Trigger("splitBeside");
    EXPECT_EQ(Script().GetViews().size(), 1u);
}

TEST_F(Views, HaveADocumentMapAllOrNone)
{
    Open("a.sql", "one\n");
    const auto maps = [this] {
        int count = 0;
        for (CView* view : Script().GetViews())
            count +=
                dynamic_cast<ScriptView*>(view)->GetCoreEditorControl()->IsDocumentMapVisible();
        return count;
    };
    EXPECT_EQ(maps(), 0);
    Trigger("documentMap");
    EXPECT_TRUE(Action("documentMap").isChecked());
    Trigger("splitBelow");
    Trigger("splitBeside");
    Trigger("newView");
    EXPECT_EQ(maps(), 5);
    Open("b.sql", "two\n");
    EXPECT_EQ(maps(), 1);
    Script().SetLanguage(3);
    EXPECT_EQ(maps(), 1);
    Trigger("documentMap");
    EXPECT_EQ(maps(), 0);
    m_window.ShowTab(0);
    EXPECT_EQ(maps(), 0);
}

TEST_F(Views, OfADividedPaneTakeTheKeysFromItAlone)
{
    Open("a.sql", QByteArray("line\n").repeated(400));
    Trigger("splitBelow");
    Frame().View()->GoToLine(300);
    Trigger("otherPane");
    Frame().View()->GoToLine(11);
    Trigger("splitBeside");
    EXPECT_EQ(Editor().LineFromPosition(Editor().GetCurrentPos(1), 1), 11)
        << "the pane above was divided, not the one at line 300";
}

TEST_F(Views, BeginAtThePlaceOfTheOther)
{
    Open("a.sql", QByteArray("line\n").repeated(400));
    Frame().View()->GoToLine(300);
    Trigger("zoomIn");
    const int top = Editor().GetFirstVisibleLine(1);
    ASSERT_GT(top, 0);
    Trigger("newView");
    EXPECT_EQ(Editor().LineFromPosition(Editor().GetCurrentPos(1), 1), 300);
    EXPECT_EQ(Editor().GetFirstVisibleLine(1), top);
    EXPECT_EQ(Editor().GetZoom(1), 1);
    EXPECT_GT(Editor().GetMarginWidthN(1, 1), 0);
}

TEST_F(Views, BeginAtThePlaceOfTheOneThatIsDividedNotOfTheFirst)
{
    Open("a.sql", QByteArray("line\n").repeated(400));
    Trigger("newView");
    Frame().View()->GoToLine(300);
    const int top = Editor().GetFirstVisibleLine(1);
    for (const char* command : {"splitBeside", "newView"}) {
        Trigger(command);
        EXPECT_EQ(Editor().LineFromPosition(Editor().GetCurrentPos(1), 1), 300) << command;
        EXPECT_EQ(Editor().GetFirstVisibleLine(1), top) << command;
    }
}

TEST_F(Views, TakeTheFocusFromEachOther)
{
    Open("a.sql", "one\n");
    EXPECT_FALSE(Action("otherPane").isEnabled());
    Trigger("splitBelow");
    const ScriptView* second = Frame().View();
    EXPECT_TRUE(Action("otherPane").isEnabled());
    Trigger("otherPane");
    EXPECT_NE(Frame().View(), second);
    Trigger("otherPane");
    EXPECT_EQ(Frame().View(), second);
}

TEST_F(Views, InTabsOfTheirOwnAreNumbered)
{
    Open("a.sql", "one\n");
    Trigger("newView");
    EXPECT_EQ(m_window.TabCount(), 2);
    EXPECT_EQ(Caption(0), "a.sql:1");
    EXPECT_EQ(Caption(1), "a.sql:2");
    EXPECT_TRUE(m_window.windowTitle().startsWith(QStringLiteral("a.sql:2[*] – ")));
    Type(u"x");
    EXPECT_EQ(Caption(0), "a.sql:1 *");
    EXPECT_EQ(Caption(1), "a.sql:2 *");
    EXPECT_TRUE(m_window.isWindowModified());

    Trigger("close");
    EXPECT_TRUE(m_prompts.asked.isEmpty()) << "the text is still shown";
    EXPECT_EQ(m_window.TabCount(), 1);
    EXPECT_EQ(Caption(0), "a.sql *");
    Trigger("close");
    EXPECT_EQ(m_prompts.asked, QStringList{"a.sql"});
    EXPECT_EQ(m_window.TabCount(), 1);
}

TEST_F(Views, HandTheFileOnWhenTheFirstOfThemCloses)
{
    const QByteArray bytes("\xFF\xFE"
                           "a\0",
                           4);
    Open("a.sql", bytes);
    Trigger("newView");
    m_window.ShowTab(0);
    Trigger("close");
    ASSERT_EQ(m_window.TabCount(), 1);
    constexpr UINT kAutosave = 100;
    EXPECT_EQ(TimerInterval(Editor().GetSafeHwnd(), kAutosave), 60000u);
    EXPECT_EQ(Status("encoding"), "UTF-16 LE with mark");
    Type(u"b");
    Trigger("save");
    EXPECT_EQ(Read("a.sql"), QByteArray("\xFF\xFE"
                                        "b\0a\0",
                                        6));
    EXPECT_FALSE(Script().IsModified());
}

TEST_F(Views, GoOnBeingCheckedWhenTheFirstOfThemCloses)
{
    Open("a.pgsql", "selekt 2;\n");
    Script().Checker()->Check();
    ASSERT_EQ(Script().Checker()->Problems().size(), 1u);
    Trigger("newView");
    m_window.ShowTab(0);
    Trigger("close");
    Script().Checker()->Check();
    EXPECT_EQ(Script().Checker()->Problems().size(), 1u);
}

TEST_F(Views, HaveOneLanguageAndOneLook)
{
    Open("a.sql", "one\n");
    Trigger("whitespace");
    Trigger("splitBelow");
    m_window.SetLanguage(3);
    for (CView* view : Script().GetViews()) {
        auto* editor = dynamic_cast<ScriptView*>(view)->GetCoreEditorControl();
        EXPECT_EQ(editor->GetCurrentLanguage(), 3);
        EXPECT_EQ(editor->GetViewWS(1), 1);
    }
}

TEST_F(Views, OfManyTabsGoWithTheirScript)
{
    Open("a.sql", "one\n");
    Trigger("newView");
    Trigger("splitBelow");
    Open("b.sql", "two\n");
    EXPECT_TRUE(CloseWindow());
    EXPECT_TRUE(m_app.Scripts().empty());
}
