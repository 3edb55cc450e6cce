// SPDX-License-Identifier: GPL-3.0-or-later
// Searches without a dialog, which go on with the process's settings, and the way to a line.
#include "tests/docview/ViewFixture.h"

#include "docview/Goto.h"
#include "search/FindReplaceManager.h"
#include "search/dialogs/FindDialog.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

namespace {

constexpr UINT kNext = 54063;
constexpr UINT kPrevious = 53902;
constexpr UINT kNextWord = 53903;
constexpr UINT kPreviousWord = 53904;
constexpr UINT kGoto = 54049;

class ViewSearch : public ViewTest
{
protected:
    ViewSearch()
    {
        manager.SetFind(QString());
        manager.SetRegExp(false);
        manager.SetMatchCase(false);
        manager.SetWholeWord(false);
        manager.SetDown(true);
    }
    ~ViewSearch() override
    {
        manager.SetDown(true);
        manager.SetWholeWord(false);
        manager.SetWrap(true);
    }

    void Run(UINT command) { view->OnCmdMsg(command, nullptr); }
    std::pair<long, long> Selection()
    {
        return {Control().GetSelectionStart(1), Control().GetSelectionEnd(1)};
    }
    using Pair = std::pair<long, long>;

    // Runs Goto, and hands its dialog over once it stands.
    template <class Action>
    void Goto(Action action)
    {
        QTimer::singleShot(0, &desk, [action] {
            action(*static_cast<CDialog*>(AttachedWnd(QApplication::activeModalWidget())));
        });
        Run(kGoto);
    }

    CFindReplaceManager& manager = *zncoreeditor::GetFindReplaceManager();
};

bool FindDialogShows()
{
    CFindDialog* dialog = CFindDialog::GetFindDialog(false, false);
    return dialog && IsWindowVisible(dialog->GetSafeHwnd());
}

} // namespace

TEST_F(ViewSearch, OpensTheFindDialogForNextWithoutATextAndNotForAWord)
{
    Put("one two one", 0, 0);
    Run(kNextWord);
    EXPECT_FALSE(FindDialogShows());
    EXPECT_EQ(manager.GetFind(), "one");
    manager.SetFind(QString());
    Run(kNext);
    EXPECT_TRUE(FindDialogShows());
    CFindDialog::GetFindDialog(false, false)->DestroyWindow();
}

TEST_F(ViewSearch, OpensTheDialogsByTheirCommandsWithTheWordAtTheCaret)
{
    Put("first second", 8, 8);
    Run(53895);
    EXPECT_TRUE(FindDialogShows());
    Run(53896);
    EXPECT_FALSE(FindDialogShows());
    CFindReplace* dialog = CFindReplace::GetReplaceDialog(false, false);
    ASSERT_TRUE(dialog);
    EXPECT_TRUE(IsWindowVisible(dialog->GetSafeHwnd()));
    EXPECT_EQ(dialog->GetDlgItem<QComboBox>(28139)->currentText(), "second");
    dialog->DestroyWindow();
    Control().SetReadOnly(1, 1);
    EXPECT_EQ(Probe(53896, *view).enabled, 0);
}

TEST_F(ViewSearch, TellsThatTheOnlyMatchLiesBehindTheTextsEnd)
{
    Put("one two", 7, 7);
    manager.SetFind("one");
    Run(kNext);
    EXPECT_EQ(user.asked, QStringList("Passed the end of the document"));
    EXPECT_EQ(Selection(), Pair(0, 3));
    EXPECT_TRUE(manager.GetWrap());
}

TEST_F(ViewSearch, TellsThatTheOnlyMatchLiesBehindTheTextsStart)
{
    Put("one two", 0, 0);
    manager.SetFind("two");
    manager.SetDown(false);
    Run(kNext);
    EXPECT_EQ(user.asked, QStringList("Passed the start of the document"));
    EXPECT_EQ(Selection(), Pair(4, 7));
}

TEST_F(ViewSearch, GoesOnUpwardsBehindPrevious)
{
    Put("ab ab ab", 8, 8);
    manager.SetFind("ab");
    Run(kPrevious);
    EXPECT_EQ(Selection(), Pair(6, 8));
    Control().SetSel(6, 6, 1);
    Run(kNext);
    EXPECT_EQ(Selection(), Pair(3, 5));
}

TEST_F(ViewSearch, LeavesAMatchBehindTheTextsStartAloneAtPrevious)
{
    Put("one two", 0, 0);
    manager.SetFind("two");
    Run(kPrevious);
    EXPECT_EQ(Selection(), Pair(0, 0));
    EXPECT_TRUE(user.asked.isEmpty());
    EXPECT_FALSE(manager.GetWrap());
}

TEST_F(ViewSearch, SaysWhatItDidNotFind)
{
    Put("one two", 0, 0);
    manager.SetFind("three");
    Run(kNext);
    Run(kPrevious);
    EXPECT_EQ(user.asked, QStringList({"Could not find the string 'three'.",
                                       "Could not find the string 'three'."}));
}

TEST_F(ViewSearch, StaysOnTheWordWhoseNextMatchIsFurtherDown)
{
    Put("ab cd ab", 1, 1);
    Run(kNextWord);
    EXPECT_EQ(Selection(), Pair(0, 2));
}

TEST_F(ViewSearch, GoesToAMatchOfTheWordThatOnlyWrappingReaches)
{
    Put("ab cd ab", 7, 7);
    Run(kNextWord);
    EXPECT_EQ(Selection(), Pair(0, 2));
    EXPECT_TRUE(manager.GetWholeWord());
    EXPECT_TRUE(manager.GetDown());
}

TEST_F(ViewSearch, GoesToThePreviousMatchOfTheWordAtTheCaret)
{
    Put("ab abc ab", 8, 8);
    Run(kPreviousWord);
    EXPECT_EQ(Selection(), Pair(0, 2));
    EXPECT_FALSE(manager.GetDown());
}

TEST_F(ViewSearch, ShowsTheLineAndHowManyThereAreInGoto)
{
    Put("a\nb\nc", 2, 2);
    Goto([](CDialog& dialog) {
        EXPECT_EQ(dialog.GetSafeHwnd()->windowTitle(), "Goto");
        EXPECT_EQ(dialog.GetDlgItem<QLineEdit>(CGoto::kLine)->selectedText(), "2");
        EXPECT_EQ(dialog.GetDlgItem<QLabel>(CGoto::kRange)->text(), "(1 - 3)");
        dialog.EndDialog(IDCANCEL);
    });
    EXPECT_EQ(Control().GetCurLineNumber(), 1);
}

TEST_F(ViewSearch, GoesToTheLineThatGotoIsTold)
{
    Put("a\nb\nc", 0, 0);
    const auto go = [this](const char* line) {
        Goto([line](CDialog& dialog) {
            dialog.GetDlgItem<QLineEdit>(CGoto::kLine)->setText(line);
            dialog.GetDlgItem<QPushButton>(IDOK)->click();
        });
        return Control().GetCurLineNumber();
    };
    EXPECT_EQ(go("3"), 2);
    EXPECT_EQ(go("0"), 0);  // line -1, which the engine takes for the first
    EXPECT_EQ(go("99"), 2); // and this for the last
    EXPECT_EQ(go(" 2 and more"), 1);
    EXPECT_EQ(go("none"), 0);
}
