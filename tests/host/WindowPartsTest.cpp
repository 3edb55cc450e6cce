// SPDX-License-Identifier: GPL-3.0-or-later
// Parts of the main window beside the script: tool bar, help, outline, folder, fields of the status
// bar, tabs that were closed.
#include "host/folder/FolderPane.h"
#include "host/help/KeysDialog.h"
#include "host/outline/OutlinePane.h"
#include "host/outline/SymbolPicker.h"
#include "host/problems/ProblemPane.h"
#include "host/script/ScriptTabs.h"
#include "host/window/FieldMenus.h"
#include "tests/host/WorkbenchTest.h"

#include <QFileSystemModel>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTest>
#include <QToolBar>
#include <QTreeView>
#include <QTreeWidget>

namespace {

class WindowParts : public WorkbenchTest
{
protected:
    template <typename Condition>
    static bool Wait(Condition condition)
    {
        constexpr int kMost = 5000; // milliseconds
        return QTest::qWaitFor(condition, kMost);
    }
};

TEST_F(WindowParts, HaveAPictureForEveryTool)
{
    const QToolBar* bar = m_window.findChild<QToolBar*>("toolBar");
    ASSERT_NE(bar, nullptr);
    int tools = 0;
    for (const QAction* action : bar->actions()) {
        if (action->isSeparator())
            continue;
        ++tools;
        const QImage picture = action->icon().pixmap(20).toImage();
        EXPECT_FALSE(picture.isNull()) << action->objectName().toStdString();
        bool isBlank = true;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                isBlank = isBlank && qAlpha(picture.pixel(x, y)) == 0;
        }
        EXPECT_FALSE(isBlank) << action->objectName().toStdString();
    }
    EXPECT_GT(tools, 12);
}

TEST_F(WindowParts, BringAClosedTabBack)
{
    EXPECT_FALSE(Action("reopenClosed").isEnabled());
    Open("a.sql", "a");
    Open("b.sql", "b");
    Trigger("close");
    EXPECT_TRUE(Action("reopenClosed").isEnabled());
    EXPECT_EQ(Script().Name(), "a.sql");
    Trigger("reopenClosed");
    EXPECT_EQ(Script().Name(), "b.sql");
    EXPECT_FALSE(Action("reopenClosed").isEnabled());
    Trigger("reopenClosed");
    EXPECT_EQ(m_window.TabCount(), 2);
}

TEST_F(WindowParts, ListKeysByWords)
{
    Trigger("keys");
    auto* dialog = m_window.findChild<KeysDialog*>();
    ASSERT_NE(dialog, nullptr);
    const auto* list = dialog->findChild<QTreeWidget*>();
    dialog->findChild<QLineEdit*>()->setText("line go");
    QStringList shown;
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        if (!list->topLevelItem(i)->isHidden())
            shown << list->topLevelItem(i)->text(0) + ' ' + list->topLevelItem(i)->text(1);
    }
    EXPECT_EQ(shown, QStringList{QStringLiteral("Search \u203A Go to Line Ctrl+G")});
}

TEST_F(WindowParts, TellWhatTheWorkbenchIs)
{
    Trigger("about");
    const auto* box = m_window.findChild<QMessageBox*>("about");
    ASSERT_NE(box, nullptr);
    EXPECT_TRUE(box->text().contains(ZN_VERSION));
}

TEST_F(WindowParts, SayAndSetTheZoom)
{
    Open("a.sql", "a");
    EXPECT_EQ(ZoomText(Editor()), "100 %");
    const std::unique_ptr<QMenu> menu(ZoomMenu(Editor(), nullptr));
    for (QAction* action : menu->actions()) {
        if (action->text() == "200 %")
            action->trigger();
    }
    EXPECT_EQ(ZoomText(Editor()), "200 %");
}

TEST_F(WindowParts, SayAndSetTheIndentation)
{
    Open("a.sql", "");
    const std::unique_ptr<QMenu> menu(IndentationMenu(Editor(), nullptr));
    for (QAction* action : menu->actions()) {
        if (action->text() == "&8 Columns" || action->text() == "Indent with &Tabs")
            action->trigger();
    }
    EXPECT_EQ(IndentationText(Editor()), "Tabs: 8");
    EXPECT_EQ(Editor().GetTabWidth(1), 8);
    EXPECT_NE(Editor().GetUseTabs(1), 0);
}

TEST_F(WindowParts, ShowTheOutlineOfTheScript)
{
    Open("a.sql", "create table t (n int);\ncreate view v as select 1;\n");
    Trigger("outline");
    const auto* list = m_window.findChild<QTreeWidget*>("outlineList");
    ASSERT_TRUE(Wait([&] { return list->topLevelItemCount() == 2; }));
    EXPECT_EQ(list->topLevelItem(0)->text(0), "t");
    EXPECT_EQ(list->topLevelItem(0)->child(0)->text(0), "n");
    Q_EMIT m_window.findChild<QTreeWidget*>("outlineList")->itemActivated(list->topLevelItem(1), 0);
    EXPECT_EQ(Editor().GetSelectionStart(1), 36);
    Editor().GotoPos(0, 1);
    Editor().ReplaceSel(u"create table before_it (n int);\n", 1);
    EXPECT_TRUE(Wait([&] { return list->topLevelItemCount() == 3; }));
    EXPECT_EQ(list->topLevelItem(0)->text(0), "before_it");
}

TEST_F(WindowParts, SayWhyAnOutlineIsEmpty)
{
    Open("a.sql", "select 1;\n");
    Trigger("outline");
    const auto* why = m_window.findChild<QLabel*>("outlineWhy");
    const auto* list = m_window.findChild<QTreeWidget*>("outlineList");
    ASSERT_TRUE(Wait([&] { return why->isVisible(); }));
    EXPECT_TRUE(why->text().contains("creates nothing"));
    EXPECT_FALSE(list->isVisible());
    Editor().ReplaceSel(u"create table t (n int);\n", 1);
    ASSERT_TRUE(Wait([&] { return list->isVisible(); }));
    EXPECT_FALSE(why->isVisible());
    EXPECT_EQ(list->topLevelItemCount(), 1);
    Open("a.css", "a { color: red; }\n");
    ASSERT_TRUE(Wait([&] { return why->isVisible(); }));
    EXPECT_TRUE(why->text().contains("CSS"));
}

TEST_F(WindowParts, GoToASymbolByPartOfItsName)
{
    Open("a.sql", "create table first_one (n int);\ncreate table second_one (n int);\n");
    Trigger("goToSymbol");
    auto* picker = m_window.findChild<SymbolPicker*>();
    ASSERT_NE(picker, nullptr);
    auto* words = picker->findChild<QLineEdit*>();
    words->setText("SECOND");
    QTest::keyClick(words, Qt::Key_Return);
    EXPECT_EQ(Editor().GetSelectionStart(1), 45);
    EXPECT_EQ(Editor().GetSelectionEnd(1), 55);
}

TEST_F(WindowParts, OpenFilesOfTheFolder)
{
    Write("other.sql", "other");
    Open("a.sql", "a");
    Trigger("folder");
    auto* pane = m_window.findChild<FolderPane*>();
    EXPECT_EQ(QFileInfo(pane->Folder()).canonicalFilePath(),
              QFileInfo(PathOf("a.sql")).canonicalPath());
    auto* model = qobject_cast<QFileSystemModel*>(pane->ListArea()->model());
    ASSERT_NE(model, nullptr);
    const QModelIndex other = model->index(pane->Folder() + "/other.sql");
    ASSERT_TRUE(other.isValid());
    Q_EMIT pane->ListArea()->activated(other);
    EXPECT_EQ(Script().Name(), "other.sql");
}

TEST_F(WindowParts, SayWhyThereAreNoProblems)
{
    const auto* text = m_window.findChild<QLabel*>("noProblems");
    Open("a.tsql", "select from;\n");
    EXPECT_FALSE(text->isHidden());
    EXPECT_EQ(text->text(),
              "Scripts in Transact-SQL are not checked: there is no parser for it here.");
    Open("a.pgsql", "select 1;\n");
    EXPECT_EQ(text->text(), "No problems found.");
    Open("b.pgsql", "select 1;\n  select from from;\nselect 2;\n select, ;\n");
    EXPECT_TRUE(text->isHidden());
    const QTreeWidget* list = m_window.findChild<ProblemPane*>()->ListArea();
    ASSERT_EQ(list->topLevelItemCount(), 2); // beyond the first, by statement
    EXPECT_EQ(list->topLevelItem(0)->text(0), "2");
    EXPECT_EQ(list->topLevelItem(0)->text(1), "15");
    EXPECT_EQ(list->topLevelItem(1)->text(0), "4");
}

TEST_F(WindowParts, SayWhyACommandIsDisabled)
{
    const auto tipOf = [this](const char* name) {
        for (QMenu* menu : m_window.menuBar()->findChildren<QMenu*>()) {
            if (menu->actions().contains(&Action(name)))
                Q_EMIT menu->aboutToShow();
        }
        return Action(name).statusTip();
    };
    EXPECT_EQ(tipOf("undo"), "No script is open.");
    EXPECT_EQ(tipOf("reopenClosed"), "No tab was closed.");
    Open("a.sql", "a");
    EXPECT_EQ(tipOf("undo"), "There is nothing to undo.");
    EXPECT_EQ(tipOf("copy"), "Nothing is selected.");
    EXPECT_EQ(tipOf("next"), "No other script is open.");
    Editor().SetSel(0, 1, 1);
    QApplication::processEvents();
    EXPECT_EQ(tipOf("copy"), "");
    Trigger("readOnlySwitch");
    EXPECT_EQ(tipOf("cut"), "The script is read-only.");
}

} // namespace
