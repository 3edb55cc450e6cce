// SPDX-License-Identifier: GPL-3.0-or-later
// The workbench shows a script expanded, and leads back to where its lines were written.
#include "host/expanded/ExpandedScript.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "host/options/OptionsDialog.h"
#include "host/problems/ProblemPane.h"
#include "platform/services/OptionsServer.h"
#include "tests/host/WorkbenchTest.h"

#include <QDir>
#include <QLineEdit>
#include <QTest>
#include <QTreeWidget>

namespace {

class ExpandedScripts : public WorkbenchTest
{
protected:
    ExpandedScripts() { Options().SetString(option::IncludePath, m_folder.path()); }
    ~ExpandedScripts() override { Options().SetString(option::IncludePath, QString()); }

    static CZNOptionsServer& Options() { return *CZNOptionsServer::GetObjectW(); }

    ExpandedScript& Pane() const { return *m_window.findChild<ExpandedScript*>(); }
    CZNCoreEditorControlEx& Result() const
    {
        return m_window.findChild<ZNCoreEditorWidget*>("expandedText")->control();
    }
    QTreeWidget& Errors() const { return *m_window.findChild<QTreeWidget*>("includeErrors"); }
};

TEST_F(ExpandedScripts, StandBesideTheScript)
{
    Write("part.sql", "part\n");
    Open("main.sql", "#define &&A 1\n#include part.sql\nselect &&A\n");
    EXPECT_FALSE(Pane().isVisible());
    Trigger("expand");
    EXPECT_TRUE(Pane().isVisible());
    EXPECT_EQ(Result().GetText(), "--#define &&A 1\n--#include part.sql\rpart\n\nselect 1\n");
    EXPECT_TRUE(Result().GetReadOnly(1));
    EXPECT_FALSE(Errors().isVisible());
}

TEST_F(ExpandedScripts, ScrollSidewaysAsFarAsTheirLinesReach)
{
    Open("main.sql", "#define &&A 1\nselect &&A\n");
    Trigger("expand");
    EXPECT_LT(Result().GetScrollWidth(1), 400);
    Open("long.sql", "#define &&A 1\n" + QByteArray("x").repeated(1000) + " &&A\n");
    Trigger("expand");
    EXPECT_GT(Result().GetScrollWidth(1), 4000);
}

TEST_F(ExpandedScripts, HaveNoLinesThatSomebodyChanged)
{
    constexpr int kChanged = 1 << 21 | 1 << 22; // and saved
    Open("main.sql", "#define &&A 1\nselect &&A\n");
    Trigger("expand");
    ASSERT_GT(Result().GetLineCount(1), 1);
    EXPECT_EQ(Result().MarkerNext(0, kChanged, 1), -1);
    EXPECT_FALSE(Result().CanUndo(1));
}

TEST_F(ExpandedScripts, LeaveTheScriptAsItIs)
{
    Open("main.sql", "#define &&A 1\nselect &&A\n");
    Editor().SetSel(3, 5, 1);
    Trigger("expand");
    EXPECT_EQ(Text(), "#define &&A 1\nselect &&A\n");
    EXPECT_FALSE(Script().IsModified());
    EXPECT_FALSE(Editor().CanUndo(1));
    EXPECT_EQ(Editor().GetSelectionEnd(1), 5);
}

TEST_F(ExpandedScripts, ListWhatCannotBeIncluded)
{
    Open("main.sql", "select 1\n#include gone.sql\n");
    Trigger("expand");
    ASSERT_EQ(Errors().topLevelItemCount(), 1);
    EXPECT_EQ(Errors().topLevelItem(0)->text(0), "2");
    EXPECT_EQ(Errors().topLevelItem(0)->text(1),
              "Unable to open the included file 'gone.sql': No such file or directory");
    EXPECT_EQ(Errors().topLevelItem(0)->toolTip(1), Errors().topLevelItem(0)->text(1));
    EXPECT_TRUE(Errors().isVisible());
}

TEST_F(ExpandedScripts, LookForFilesBesideTheScript)
{
    ASSERT_TRUE(QDir(PathOf({})).mkpath(QStringLiteral("deep/sub")));
    Write("deep/sub/more.sql", "select 7\n");
    Open("deep/main.sql", "#include sub/more.sql\n");
    Trigger("expand");
    EXPECT_EQ(Errors().topLevelItemCount(), 0);
    EXPECT_TRUE(Result().GetText().contains(QLatin1String("select 7")));
}

TEST_F(ExpandedScripts, ListVariablesThatNothingDefines)
{
    Write("part.sql", "select &&B\n");
    Open("main.sql", "#define X 1\n#include part.sql\n");
    Trigger("expand");
    ASSERT_EQ(Errors().topLevelItemCount(), 2);
    EXPECT_EQ(Errors().topLevelItem(0)->text(1),
              "This defines nothing: the name of a variable begins with &&.");
    EXPECT_EQ(Errors().topLevelItem(1)->text(1), "Nothing defines &&B.");
    EXPECT_TRUE(Errors().isVisible());
    EXPECT_FALSE(m_window.findChild<QLabel*>("includeHint")->isVisible());
    const auto place = static_cast<int>(Result().GetText().indexOf("&&B"));
    ASSERT_NE(Result().ErrorGetOverPos(place, 1), nullptr);
    Q_EMIT Errors().itemActivated(Errors().topLevelItem(1), 0);
    EXPECT_EQ(Script().Name(), "part.sql");
}

TEST_F(ExpandedScripts, SayThatTheyAreOutOfDateAndLeadNowhereUntilTheyAreRenewed)
{
    const auto* hint = m_window.findChild<QLabel*>("includeHint");
    Open("main.sql", "#define &&A sales\nselect &&A\n");
    Trigger("expand");
    EXPECT_FALSE(hint->isVisible());
    const QString caption = Pane().windowTitle();
    Editor().InsertText(0, u"-- \n-- ", 1);
    EXPECT_EQ(Pane().windowTitle(), caption + " (out of date)");
    EXPECT_TRUE(hint->isVisible());
    EXPECT_FALSE(m_window.findChild<QAction*>("goToSource")->isEnabled());
    const auto line = [this] { return Editor().LineFromPosition(Editor().GetCurrentPos(1), 1); };
    const auto kept = line();
    Result().GotoLine(1, 1);
    Pane().GoToSource();
    EXPECT_EQ(line(), kept);
    Trigger("expand");
    EXPECT_TRUE(Pane().isVisible()) << "renewed, not closed";
    EXPECT_EQ(Pane().windowTitle(), caption);
    EXPECT_TRUE(m_window.findChild<QAction*>("goToSource")->isEnabled());
    EXPECT_EQ(Result().GetText(), "-- \n-- #define &&A sales\nselect &&A\n");
    Result().GotoLine(2, 1);
    Pane().GoToSource();
    EXPECT_EQ(line(), 2);
}

TEST_F(ExpandedScripts, TellWhereFilesAreLookedForIfOneIsMissing)
{
    Open("main.sql", "#include gone.sql\n");
    Trigger("expand");
    EXPECT_TRUE(m_window.findChild<QLabel*>("includeHint")->isVisible());
    Write("gone.sql", "part\n");
    Trigger("expand");
    EXPECT_FALSE(m_window.findChild<QLabel*>("includeHint")->isVisible());
}

TEST_F(ExpandedScripts, TellThatNothingWasExpanded)
{
    const auto* hint = m_window.findChild<QLabel*>("includeHint");
    Open("main.sql", "\\i sub/more.sql\nselect 1;\n");
    Trigger("expand");
    EXPECT_EQ(Result().GetText(), "\\i sub/more.sql\nselect 1;\n");
    EXPECT_TRUE(hint->isVisible());
    EXPECT_TRUE(hint->text().startsWith("Nothing was expanded."));
    Open("named.sql", "#define &&A 1\nselect &&A;\n");
    Trigger("expand");
    EXPECT_FALSE(hint->isVisible());
    Open("missing.sql", "select &&B;\n");
    Trigger("expand");
    EXPECT_TRUE(Errors().isVisible());
    EXPECT_FALSE(hint->isVisible());
}

TEST_F(ExpandedScripts, OfferWhatIsPossible)
{
    EXPECT_FALSE(Action("goToSource").isEnabled());
    EXPECT_FALSE(Action("putOriginalBack").isEnabled());
    Open("plain.sql", "select 1\n");
    Trigger("expand");
    EXPECT_TRUE(Action("goToSource").isEnabled());
    EXPECT_FALSE(Action("putOriginalBack").isEnabled()); // nothing was expanded
    Open("main.sql", "#define &&A 1\n");
    Trigger("expand");
    EXPECT_TRUE(Action("putOriginalBack").isEnabled());
    Trigger("putOriginalBack");
    EXPECT_FALSE(Action("putOriginalBack").isEnabled());
    EXPECT_EQ(Pane().windowTitle(), QStringLiteral("Original Script – main.sql"));
}

TEST_F(ExpandedScripts, LeadToTheLineOfAnIncludedFile)
{
    Write("part.sql", "one\ntwo\n");
    Open("main.sql", "#include part.sql\nselect 1\n");
    Trigger("expand");
    Result().GotoLine(2, 1);
    Trigger("goToSource");
    EXPECT_EQ(Script().Name(), "part.sql");
    EXPECT_EQ(Editor().LineFromPosition(Editor().GetCurrentPos(1), 1), 1);
    Result().GotoLine(4, 1);
    Trigger("goToSource");
    EXPECT_EQ(Script().Name(), "main.sql");
    EXPECT_EQ(Editor().LineFromPosition(Editor().GetCurrentPos(1), 1), 1);
}

TEST_F(ExpandedScripts, LeadFromAnErrorToItsLine)
{
    Write("part.sql", "\n#include gone.sql\n");
    Open("main.sql", "#include part.sql\n");
    Trigger("expand");
    ASSERT_EQ(Errors().topLevelItemCount(), 1);
    Q_EMIT Errors().itemActivated(Errors().topLevelItem(0), 0);
    EXPECT_EQ(Script().Name(), "part.sql");
    EXPECT_EQ(Editor().LineFromPosition(Editor().GetCurrentPos(1), 1), 1);
}

TEST_F(ExpandedScripts, GoByTheirOwnKeyUnlessThereIsSomethingElseToShow)
{
    Open("main.sql", "select 1;\n");
    const auto* pane = m_window.findChild<ExpandedScript*>();
    Trigger("expand");
    EXPECT_TRUE(pane->isVisible());
    Trigger("expand");
    EXPECT_FALSE(pane->isVisible());
    Trigger("expand");
    EXPECT_TRUE(pane->isVisible());
    Type(u"x");
    Trigger("expand");
    EXPECT_TRUE(pane->isVisible()) << "it shows what was typed";
    Open("other.sql", "select 2;\n");
    Trigger("expand");
    EXPECT_TRUE(pane->isVisible()) << "and the other script";
}

TEST_F(ExpandedScripts, AreReachedAndLeftByKeys)
{
    Open("main.sql", "\n#include gone.sql\n");
    Trigger("expand");
    Trigger("problems");
    QWidget* text = Editor().GetSafeHwnd();
    ASSERT_EQ(m_window.focusWidget(), text);
    Trigger("nextArea");
    EXPECT_EQ(m_window.focusWidget(), Result().GetSafeHwnd());
    Trigger("nextArea");
    EXPECT_EQ(m_window.focusWidget(), &Errors());
    Trigger("nextArea");
    EXPECT_EQ(m_window.focusWidget(), m_window.findChild<ProblemPane*>()->ListArea());
    Trigger("nextArea");
    EXPECT_EQ(m_window.focusWidget(), text);

    for (const int steps : {1, 2, 3}) {
        for (int i = 0; i < steps; ++i)
            Trigger("nextArea");
        ASSERT_NE(m_window.focusWidget(), text);
        QTest::keyClick(m_window.focusWidget(), Qt::Key_Escape);
        EXPECT_EQ(m_window.focusWidget(), text) << steps;
        EXPECT_EQ(m_window.findChild<ExpandedScript*>()->isVisible(), steps == 3) << steps;
        if (steps < 3)
            Trigger("expand");
    }

    Trigger("nextArea");
    Result().GotoLine(1, 1);
    QTest::keyClick(Result().GetSafeHwnd(), Qt::Key_Return);
    EXPECT_EQ(m_window.focusWidget(), text);
    EXPECT_EQ(Editor().LineFromPosition(Editor().GetCurrentPos(1), 1), 1);
}

TEST_F(ExpandedScripts, ComeAndGoInTheViewMenuWithTheScriptAsItIs)
{
    auto& shown = Action("expandedScriptPane");
    EXPECT_FALSE(shown.isEnabled()) << "there is no script";
    Open("main.sql", "select 1;\n");
    const auto* pane = m_window.findChild<ExpandedScript*>();
    for (const char16_t* typed : {u"a", u"b"}) {
        Type(typed);
        EXPECT_TRUE(shown.isEnabled() && !shown.isChecked());
        Trigger("expandedScriptPane");
        EXPECT_TRUE(pane->isVisible() && shown.isChecked());
        EXPECT_EQ(Result().GetText(), Text());
        EXPECT_EQ(shown.text(), "E&xpanded Script") << "not the title, which names the script";
        Trigger("expandedScriptPane");
        EXPECT_FALSE(pane->isVisible());
    }
}

TEST_F(ExpandedScripts, PutTheOriginalBack)
{
    Write("part.sql", "one\ntwo\n");
    Open("main.sql", "#include part.sql\nselect 1\n");
    Trigger("expand");
    Trigger("putOriginalBack");
    EXPECT_EQ(Result().GetText(), "#include part.sql\nselect 1\n");
    Result().GotoLine(1, 1);
    Trigger("goToSource");
    EXPECT_EQ(Script().Name(), "main.sql");
}

TEST_F(ExpandedScripts, OutliveTheirScript)
{
    Open("main.sql", "#define &&A 1\n");
    Trigger("expand");
    Trigger("close");
    Trigger("goToSource");
    EXPECT_EQ(m_window.TabCount(), 0);
    EXPECT_EQ(Result().GetText(), "--#define &&A 1\n");
}

TEST_F(ExpandedScripts, TakeTheirFoldersFromTheOptions)
{
    OptionsDialog dialog(&m_window);
    auto* path = dialog.findChild<QLineEdit*>("includePath");
    ASSERT_TRUE(path);
    EXPECT_EQ(path->text(), m_folder.path());
    path->setText("/elsewhere");
    dialog.Store();
    EXPECT_EQ(Options().GetString(option::IncludePath), "/elsewhere");
}

} // namespace
