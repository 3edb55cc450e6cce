// SPDX-License-Identifier: GPL-3.0-or-later
// The menu of a right click. All views of a process share the one that the first click chose, so
// each case has a process of its own.
#include "ViewFixture.h"

#include <QContextMenuEvent>
#include <QMenu>

namespace {

class ViewMenu : public ViewTest
{
protected:
    ViewMenu() { testing::FLAGS_gtest_death_test_style = "threadsafe"; }

    static QMenu* Ask(OpenView* of, QPoint at = {20, 20})
    {
        SendMessage(of->GetSafeHwnd(), WM_CONTEXTMENU, 0, PointParam({at.x(), at.y()}));
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }

    static QStringList TextsOf(const QMenu* menu)
    {
        QStringList texts;
        for (const QAction* action : menu->actions())
            texts << (action->isSeparator() ? QStringLiteral("-") : action->text());
        return texts;
    }

    // What the first click of the process shows, and what the next one does in the other state.
    [[noreturn]] void ClickTwice(bool readOnlyFirst, int rows)
    {
        view->GetParentFrame()->ActivateFrame();
        bool isRight = true;
        for (const bool readOnly : {readOnlyFirst, !readOnlyFirst}) {
            Control().SetReadOnly(readOnly, 1);
            QMenu* menu = Ask(view);
            isRight = isRight && menu && menu->actions().size() == rows;
            delete menu;
        }
        std::_Exit(isRight ? 0 : 1);
    }

    [[noreturn]] void ShowAndRun();
};

void ViewMenu::ShowAndRun()
{
    Put("select", 0, 6);
    CFrameWnd* frame = view->GetParentFrame();
    frame->ActivateFrame();
    frame->SetActiveView(view);
    QPoint middle(5, 5);
    QContextMenuEvent click(QContextMenuEvent::Mouse, middle,
                            Control().GetSafeHwnd()->mapToGlobal(middle));
    QApplication::sendEvent(Control().GetSafeHwnd()->findChild<QWidget*>("qt_scrollarea_viewport"),
                            &click);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    const QStringList expected = {"&Undo\tCtrl+Z",
                                  "&Redo\tCtrl+Y",
                                  "-",
                                  "Cu&t\tCtrl+X",
                                  "&Copy\tCtrl+C",
                                  "&Paste\tCtrl+V",
                                  "&Delete\tDel",
                                  "&Select All\tCtrl+A",
                                  "Insert File...",
                                  "-",
                                  "Line Endings",
                                  "-",
                                  "Co&mment Out",
                                  "U&ndo Comment Out",
                                  "Upper C&ase",
                                  "&Lower Case",
                                  "&Indent",
                                  "&Outdent",
                                  "Match To&ken\tCtrl+]",
                                  "Line Numbers",
                                  "-",
                                  "&Find...",
                                  "Repeat Last Find",
                                  "R&eplace...",
                                  "-",
                                  "-"};
    if (!menu || TextsOf(menu) != expected)
        std::_Exit(2);
    QAction* upper = menu->actions()[14];
    QAction* undo = menu->actions()[0];
    QAction* nobodys = menu->actions()[8];
    if (!upper->isEnabled() || undo->isEnabled() || nobodys->isEnabled())
        std::_Exit(3);
    upper->trigger();
    std::_Exit(Control().GetText() == "SELECT" ? 0 : 4);
}

} // namespace

using ViewMenuDeathTest = ViewMenu;

TEST_F(ViewMenuDeathTest, IsTheShortOneForAllOnceAReadOnlyViewWasClickedFirst)
{
    EXPECT_EXIT(ClickTwice(true, 8), testing::ExitedWithCode(0), "");
}

TEST_F(ViewMenuDeathTest, IsTheLongOneForAllOnceAWritableViewWasClickedFirst)
{
    EXPECT_EXIT(ClickTwice(false, 26), testing::ExitedWithCode(0), "");
}

TEST_F(ViewMenuDeathTest, RunsCommandsOfTheViewThatWasClicked)
{
    EXPECT_EXIT(ShowAndRun(), testing::ExitedWithCode(0), "");
}
