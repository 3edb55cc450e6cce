// SPDX-License-Identifier: GPL-3.0-or-later
// The menu of a script by the key for it: where it comes up, and what it offers.
#include "platform/windows/ActionUI.h"
#include "tests/host/WorkbenchTest.h"

#include <QAbstractScrollArea>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>

namespace {

constexpr UINT kUndo = 57643;
constexpr UINT kCut = 57635;
constexpr UINT kCopy = 57634;
constexpr UINT kSelectAll = 57642;
constexpr UINT kMatchToken = 54040;
constexpr UINT kCommentOut = 54037;

class ScriptMenu : public WorkbenchTest
{
protected:
    ScriptMenu() { Open("a.sql", "select 1;\nselect (2);\n"); }
    ~ScriptMenu() override { Close(); }

    QMenu* Ask()
    {
        Close();
        QWidget* window = Editor().GetSafeHwnd();
        const QPoint pointer(1, 1); // Qt gives one by the key as well
        QContextMenuEvent event(QContextMenuEvent::Keyboard, pointer, window->mapToGlobal(pointer));
        QApplication::sendEvent(window, &event);
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }

    // 1 possible, 0 greyed, -1 not there.
    int State(UINT id)
    {
        const QMenu* menu = Ask();
        for (const QAction* action : menu ? menu->actions() : QList<QAction*>()) {
            if (CommandOf(*action) == id)
                return action->isEnabled();
        }
        return -1;
    }

    static void Close()
    {
        if (QWidget* menu = QApplication::activePopupWidget())
            menu->close();
        QApplication::processEvents();
    }
};

} // namespace

TEST_F(ScriptMenu, ComesUpBelowTheCaretByItsKey)
{
    Editor().GotoPos(14, 1);
    const QMenu* menu = Ask();
    ASSERT_TRUE(menu);
    const QPoint caret = Editor().GetSafeHwnd()->mapToGlobal(
        QPoint(Editor().PointXFromPosition(14, 1),
               Editor().PointYFromPosition(14, 1) + Editor().TextHeight(1, 1)));
    EXPECT_EQ(menu->pos().x(), caret.x());
    EXPECT_LE(menu->pos().y(), caret.y()); // higher up where the screen ends
}

TEST_F(ScriptMenu, ComesUpAtThePointerByTheMouse)
{
    Editor().GotoPos(14, 1);
    ASSERT_TRUE(Ask()); // by the key once, which is not to be kept in mind
    Close();
    QWidget* viewport = qobject_cast<QAbstractScrollArea*>(Editor().GetSafeHwnd())->viewport();
    const QPoint pointer(150, 5);
    QContextMenuEvent event(QContextMenuEvent::Mouse, pointer, viewport->mapToGlobal(pointer));
    QApplication::sendEvent(viewport, &event);
    const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    EXPECT_EQ(menu->pos().x(), viewport->mapToGlobal(pointer).x());
}

TEST_F(ScriptMenu, ComesUpByShiftAndF10)
{
    EXPECT_FALSE(QApplication::activePopupWidget());
    QTest::keyClick(Editor().GetSafeHwnd(), Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_TRUE(qobject_cast<QMenu*>(QApplication::activePopupWidget()));
    Close();
    QTest::keyClick(Editor().GetSafeHwnd(), Qt::Key_F10);
    EXPECT_FALSE(QApplication::activePopupWidget());
}

TEST_F(ScriptMenu, OffersWhatIsPossible)
{
    Editor().GotoPos(0, 1);
    EXPECT_EQ(State(kUndo), 0);
    EXPECT_EQ(State(kCut), 0);
    EXPECT_EQ(State(kCopy), 0);
    EXPECT_EQ(State(kCommentOut), 0);
    EXPECT_EQ(State(kMatchToken), 0);
    EXPECT_EQ(State(kSelectAll), 1);
    Editor().SetSel(0, 6, 1);
    EXPECT_EQ(State(kCut), 1);
    EXPECT_EQ(State(kCopy), 1);
    EXPECT_EQ(State(kCommentOut), 1);
    Editor().GotoPos(17, 1);
    EXPECT_EQ(State(kMatchToken), 1);
    Type(u"x");
    EXPECT_EQ(State(kUndo), 1);
}

TEST_F(ScriptMenu, OffersNoChangeOfATextThatIsReadOnly)
{
    Editor().SetSel(0, 6, 1);
    ASSERT_EQ(State(kCut), 1); // the first click of the process chooses the menu for all
    Editor().SetReadOnly(1, 1);
    EXPECT_EQ(State(kCut), 0);
    EXPECT_EQ(State(kCommentOut), 0);
    EXPECT_EQ(State(kCopy), 1);
    Editor().SetReadOnly(0, 1);
}
