// SPDX-License-Identifier: GPL-3.0-or-later
// The context menu of a control that stands in no view: its items, and when each is possible.
#include "editing/ContextMenu.h"
#include "platform/windows/ActionUI.h"
#include "platform/windows/WindowEvents.h"
#include "tests/editing/EditingFixture.h"

#include <QClipboard>
#include <QDialog>
#include <QMenu>

namespace {

struct State
{
    bool readOnly;
    bool enabled;
    bool selection;
    bool longText; // above two characters
};

using Rule = bool (*)(const State&);

bool Always(const State&)
{
    return true;
}
bool Changes(const State& s)
{
    return !s.readOnly && s.selection && s.enabled;
}
bool Comments(const State& s)
{
    return !s.readOnly && s.selection;
}
bool Inserts(const State& s)
{
    return !s.readOnly && s.enabled;
}
// A selection is something to look for; without one the caret stands at a word of one character.
bool Finds(const State& s)
{
    return s.selection && s.longText;
}
bool Replaces(const State& s)
{
    return !s.readOnly && s.enabled && s.longText;
}
bool Pastes(const State& s)
{
    return !s.readOnly;
}
bool HasWindow(const State& s)
{
    return s.enabled;
}

struct Row
{
    UINT id;
    Rule isPossible;
};

constexpr Row kRows[] = {
    {54034, Changes}, {54035, Changes}, {54036, Always},  {54037, Comments}, {54041, Comments},
    {54038, Inserts}, {54039, Changes}, {54042, Changes}, {54040, Finds},    {54071, Always},
    {54072, Always},  {54073, Always},  {57632, Inserts}, {57634, Changes},  {57635, Changes},
    {57636, Finds},   {57637, Pastes},  {57640, Finds},   {57641, Replaces}, {57642, HasWindow},
};

class ContextMenu : public EditingTest
{
protected:
    void Prepare(const State& state)
    {
        PutPlain(state.longText ? u"a b c" : u"a");
        control.SetSel(0, state.selection ? 1 : 0, 1);
        control.SetReadOnly(state.readOnly, 1);
        control.GetSafeHwnd()->setEnabled(state.enabled);
        QApplication::clipboard()->setText(QStringLiteral("x"));
    }
    ~ContextMenu() override { control.GetSafeHwnd()->setEnabled(true); }

    static QAction* Item(const QMenu& menu, UINT id)
    {
        for (QAction* action : menu.actions()) {
            if (CommandOf(*action) == id)
                return action;
            if (QAction* inside = action->menu() ? Item(*action->menu(), id) : nullptr)
                return inside;
        }
        return nullptr;
    }

    // The menu that a right click brings up, closed again by the caller.
    std::unique_ptr<QMenu> Click(CPoint point = {20, 20})
    {
        SendMessage(control.GetSafeHwnd(), WM_CONTEXTMENU,
                    reinterpret_cast<WPARAM>(control.GetSafeHwnd()), PointParam(point));
        return std::unique_ptr<QMenu>(qobject_cast<QMenu*>(QApplication::activePopupWidget()));
    }
};

TEST_F(ContextMenu, EnablesWhatItKnowsAndNothingElse)
{
    for (int bits = 0; bits < 16; ++bits) {
        const State state{(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0, (bits & 8) != 0};
        Prepare(state);
        for (const Row& row : kRows) {
            for (const bool before : {false, true}) {
                QMenu menu;
                SetCommand(*menu.addAction(QStringLiteral("item")), row.id, control.GetSafeHwnd());
                Item(menu, row.id)->setEnabled(before);
                control.SetDefaultMenuState(menu);
                EXPECT_EQ(Item(menu, row.id)->isEnabled(), row.isPossible(state))
                    << row.id << " in state " << bits;
            }
        }
    }
}

TEST_F(ContextMenu, LeavesOtherNumbersAsTheyWere)
{
    for (const UINT id : {57611u, 53960u, 54033u, 54056u, 53899u}) {
        QMenu menu;
        SetCommand(*menu.addAction(QStringLiteral("item")), id, control.GetSafeHwnd());
        Item(menu, id)->setEnabled(false);
        control.SetDefaultMenuState(menu);
        EXPECT_FALSE(Item(menu, id)->isEnabled()) << id;
        Item(menu, id)->setEnabled(true);
        control.SetDefaultMenuState(menu);
        EXPECT_TRUE(Item(menu, id)->isEnabled()) << id;
    }
}

TEST_F(ContextMenu, FollowsUndoAndRedo)
{
    Put(u"a|");
    control.AddText(1, u"b", 1);
    const auto menu = MakeContextMenu(true, control.GetSafeHwnd());
    control.SetDefaultMenuState(*menu);
    EXPECT_TRUE(Item(*menu, 57643)->isEnabled());
    EXPECT_FALSE(Item(*menu, 57644)->isEnabled());
    control.Undo(1);
    control.SetDefaultMenuState(*menu);
    EXPECT_FALSE(Item(*menu, 57643)->isEnabled());
    EXPECT_TRUE(Item(*menu, 57644)->isEnabled());
}

TEST_F(ContextMenu, ChecksLineNumbersWhenTheyAreShown)
{
    for (const bool shown : {true, false}) {
        control.SetVisibleLineNumber(shown);
        const auto menu = MakeContextMenu(false, control.GetSafeHwnd());
        control.SetDefaultMenuState(*menu);
        EXPECT_EQ(Item(*menu, 54036)->isChecked(), shown);
    }
    control.SetVisibleLineNumber(true);
}

TEST_F(ContextMenu, IsTheShortOneForWhatIsOnlyRead)
{
    Prepare({.readOnly = true, .enabled = true, .selection = true, .longText = true});
    const auto menu = Click();
    ASSERT_TRUE(menu);
    EXPECT_EQ(menu->actions().size(), 8);
    EXPECT_EQ(Item(*menu, 57635), nullptr);
    EXPECT_TRUE(Item(*menu, 57636)->isEnabled()) << "Find follows what there is to find";
    EXPECT_FALSE(Item(*menu, 57634)->isEnabled()) << "Copy is off, though its command would run";
}

TEST_F(ContextMenu, RunsTheCommandThatIsChosen)
{
    Put(u"a[b]|c");
    const auto menu = Click();
    ASSERT_TRUE(menu);
    EXPECT_EQ(menu->actions().size(), 26);
    Item(*menu, 54042)->trigger();
    EXPECT_EQ(Marked(), u"a[B]|c");
    Item(*menu, 54071)->trigger();
    EXPECT_EQ(control.GetEOLMode(1), kCrLf);
}

TEST_F(ContextMenu, StandsAtTheCaretWhenAKeyOpensIt)
{
    Put(u"a\nb\nccc|");
    const auto menu = Click({-1, -1});
    ASSERT_TRUE(menu);
    const QPoint caret = control.GetSafeHwnd()->mapToGlobal(
        QPoint(control.PointXFromPosition(7, 1), control.PointYFromPosition(7, 1)));
    EXPECT_EQ(menu->pos(), caret);
}

// A host that deals with the click itself.
class Host final : public CZNCoreEditorControlExCallback
{
public:
    int OnBeforeContextMenu(CWnd* window, CPoint point) override
    {
        clicked = window;
        at = point;
        return 1;
    }

    CWnd* clicked = nullptr;
    CPoint at{};
};

TEST(ContextMenuOfAHost, IsNotShownIfTheHostDealsWithTheClick)
{
    ParentWindow parent;
    Host host;
    CZNCoreEditorControlEx control(&host);
    control.SubclassWindow(
        CreateWindowOfClass(engine::kWindowClass, WS_CHILD, RECT{0, 0, 400, 300}, parent.widget()));
    SendMessage(control.GetSafeHwnd(), WM_CONTEXTMENU, 0, PointParam({3, 4}));
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(host.clicked, &control);
    EXPECT_EQ(host.at.x, 3);
    EXPECT_EQ(host.at.y, 4);
}

} // namespace
