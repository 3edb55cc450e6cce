// SPDX-License-Identifier: GPL-3.0-or-later
// Find in Files as the window has it: from the dialog to the place in the script.
#include "tests/host/WorkbenchTest.h"

#include "host/finding/ResultsPane.h"
#include "platform/dialogs/Dialog.h"
#include "search/FindReplaceManager.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <QTreeView>

namespace {

constexpr UINT kFindBox = 28139;
constexpr UINT kTypeBox = 28127;
constexpr UINT kFolderBox = 28128;
constexpr UINT kInOpenFiles = 28158;

class FindInFilesInWindow : public WorkbenchTest
{
protected:
    ~FindInFilesInWindow() override
    {
        CFindReplaceManager& manager = *zncoreeditor::GetFindReplaceManager();
        manager.SetFind(QString());
    }

    // Fills in the dialog and says Find, and waits until all is found.
    void Search(const char* text, bool inOpenFiles = false)
    {
        QTimer::singleShot(0, &m_window, [=, this] {
            auto& dialog = *static_cast<CDialog*>(AttachedWnd(QApplication::activeModalWidget()));
            dialog.GetDlgItem<QComboBox>(kFindBox)->setEditText(QLatin1String(text));
            dialog.GetDlgItem<QComboBox>(kTypeBox)->setEditText(QStringLiteral("*.sql"));
            dialog.GetDlgItem<QComboBox>(kFolderBox)->setEditText(m_folder.path());
            if (inOpenFiles)
                dialog.GetDlgItem<QAbstractButton>(kInOpenFiles)->click();
            dialog.GetDlgItem<QAbstractButton>(IDOK)->click();
        });
        Action("findInFiles").trigger();
        ASSERT_TRUE(QTest::qWaitFor([this] { return !Pane().IsSearching(); }));
    }
    ResultsPane& Pane() const
    {
        return *m_window.findChild<ResultsPane*>(QStringLiteral("FindResults"));
    }
};

} // namespace

TEST_F(FindInFilesInWindow, WalksTheMatchesOverFilesAndBack)
{
    Write("a.sql", "one\ntwo one\n");
    Write("b.txt", "one");
    Search("one");
    const QAbstractItemModel& model = *Pane().ListArea()->model();
    ASSERT_EQ(model.rowCount(), 1);
    EXPECT_EQ(model.rowCount(model.index(0, 0)), 2);
    Trigger("nextResult");
    EXPECT_EQ(Script().GetPathName(), PathOf("a.sql"));
    EXPECT_EQ(Editor().GetSelectionStart(1), 0);
    Trigger("nextResult");
    EXPECT_EQ(Editor().GetSelectionStart(1), 8);
    EXPECT_EQ(Editor().GetSelectionEnd(1), 11);
    Trigger("previousResult");
    EXPECT_EQ(Editor().GetSelectionStart(1), 0);
}

TEST_F(FindInFilesInWindow, FindsOpenScriptsAsTheyAreEdited)
{
    Open("a.sql", "nothing");
    Editor().SetText(u"here it is", 1);
    Search("it is", true);
    Trigger("nextResult");
    EXPECT_EQ(Editor().GetSelectionStart(1), 5);
}

TEST_F(FindInFilesInWindow, ShowsASearchAsOneTypesInTheStatusBar)
{
    Open("a.sql", "ab ab x");
    Frame().View()->OnCmdMsg(54024, nullptr);
    Frame().View()->HandleInputCharacter(u'a', 1, 0);
    EXPECT_EQ(m_window.statusBar()->currentMessage(), "Incremental search: a   2 matches");
    Frame().View()->StopIncrementalSearch();
    EXPECT_EQ(m_window.statusBar()->currentMessage(), "");
}
