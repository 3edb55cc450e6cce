// SPDX-License-Identifier: GPL-3.0-or-later
// Keys on their way through a view: its key table, and the search that owns the keyboard.
#include "ViewFixture.h"

#include <QTest>

#include <algorithm>

namespace {

constexpr int kNone = 0;
constexpr int kShift = static_cast<int>(Qt::ShiftModifier);
constexpr int kCtrl = static_cast<int>(Qt::ControlModifier);
constexpr int kCtrlShift = kCtrl | kShift;
constexpr int kCtrlAlt = kCtrl | static_cast<int>(Qt::AltModifier);

constexpr Accelerator kKeys[] = {
    {Qt::Key_F2, kNone, 54056},
    {Qt::Key_F2, kCtrlShift, 54059},
    {Qt::Key_F2, kCtrl, 54057},
    {Qt::Key_F2, kShift, 54058},
    {Qt::Key_U, kCtrl, 54039},
    {Qt::Key_U, kCtrlShift, 54042},
    {Qt::Key_Space, kCtrlShift, 53952},
    {Qt::Key_Delete, kNone, 53899},
    {Qt::Key_C, kCtrl, 57634},
    {Qt::Key_X, kCtrl, 57635},
    {Qt::Key_V, kCtrl, 57637},
    {Qt::Key_Z, kCtrl, 57643},
    {Qt::Key_Y, kCtrl, 57644},
    {Qt::Key_A, kCtrl, 57642},
    {Qt::Key_L, kCtrlShift, 53907},
    {Qt::Key_Delete, kCtrl, 53920},
    {Qt::Key_Delete, kCtrlShift, 53918},
    {Qt::Key_Backspace, kCtrl, 53919},
    {Qt::Key_Backspace, kCtrlShift, 53917},
    {Qt::Key_F, kCtrl, 57636},
    {Qt::Key_F3, kNone, 54063},
    {Qt::Key_F3, kShift, 53902},
    {Qt::Key_F3, kCtrl, 53903},
    {Qt::Key_F3, kCtrlShift, 53904},
    {Qt::Key_G, kCtrl, 54049},
    {Qt::Key_B, kCtrl, 53960},
    {Qt::Key_B, kCtrlShift, 53961},
    {Qt::Key_H, kCtrl, 57641},
    {Qt::Key_R, kCtrl, 57641},
    {Qt::Key_Tab, kNone, 54034},
    {Qt::Key_Tab, kShift, 54035},
    {Qt::Key_F4, kCtrl, 57602},
    {Qt::Key_I, kCtrl, 54024},
    {Qt::Key_I, kCtrlShift, 54025},
    {Qt::Key_R, kCtrlShift, 53938},
    {Qt::Key_P, kCtrlShift, 53989},
    {Qt::Key_Left, kCtrlAlt, 54002},
    {Qt::Key_Right, kCtrlAlt, 54001},
    {Qt::Key_F10, kCtrlAlt, 53962},
    {Qt::Key_F11, kCtrlAlt, 53964},
    {Qt::Key_F12, kCtrlAlt, 53963},
};

class ViewKeys : public ViewTest
{
protected:
    ViewKeys()
    {
        CFrameWnd* frame = view->GetParentFrame();
        frame->ActivateFrame();
        QApplication::setActiveWindow(frame->GetSafeHwnd());
        view->SetFocus();
        Settle();
    }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(Control().GetSafeHwnd(), key, modifiers);
    }
    void Type(const QString& text) { QTest::keyClicks(Control().GetSafeHwnd(), text); }

    // A search under way: who starts one makes the text read-only.
    void Search(bool wasReadOnly = false)
    {
        view->m_incrementalForward = true;
        view->m_savedReadOnly = wasReadOnly ? 1 : 0;
        view->m_searchText.clear();
        Control().SetReadOnly(1, 1);
    }
    bool IsSearching() const { return view->m_incrementalForward || view->m_incrementalReverse; }
};

} // namespace

TEST_F(ViewKeys, AreTheseAndNoOthers)
{
    ASSERT_TRUE(view->m_accelerators);
    ASSERT_EQ(view->m_accelerators->size(), std::size(kKeys));
    for (const Accelerator& key : kKeys) {
        const auto found = std::find_if(
            view->m_accelerators->begin(), view->m_accelerators->end(), [&](const auto& each) {
                return each.key == key.key && each.modifiers == key.modifiers;
            });
        ASSERT_NE(found, view->m_accelerators->end()) << key.command;
        EXPECT_EQ(found->command, key.command);
    }
}

TEST_F(ViewKeys, BecomeCommandsOfTheView)
{
    Put("abc", 0, 3);
    Press(Qt::Key_U, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Control().GetText(), "ABC");
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Control().GetText(), "abc");
    Control().SelectAll(1);
    Press(Qt::Key_F10, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(Control().GetZoom(1), 1);
    Press(Qt::Key_Delete);
    EXPECT_EQ(Control().GetText(), "");
    Press(Qt::Key_Tab);
    EXPECT_FALSE(Control().GetText().isEmpty());
}

TEST_F(ViewKeys, OfACommandThatNobodyKnowsAreUsedUp)
{
    Put("abc", 1, 1);
    Press(Qt::Key_A, Qt::ControlModifier); // which the engine would take for itself
    EXPECT_FALSE(Control().IsSelection());
    Press(Qt::Key_F2);
    EXPECT_EQ(Control().GetText(), "abc");
}

TEST_F(ViewKeys, ThatAreInNoTableReachTheText)
{
    Put("", 0, 0);
    Type("ab");
    Press(Qt::Key_Left);
    Type("c");
    EXPECT_EQ(Control().GetText(), "acb");
    EXPECT_TRUE(doc->IsModified());
}

TEST_F(ViewKeys, DuringASearchAreItsOwn)
{
    Put("ab \tc", 0, 0);
    view->OnCmdMsg(54024, nullptr);
    Type("b ");
    EXPECT_TRUE(view->HandleInputCharacter(u'\t', 1, 0));
    EXPECT_EQ(view->m_searchText, "b \t");
    EXPECT_EQ(Control().GetText(), "ab \tc");
    Press(Qt::Key_Backspace);
    EXPECT_EQ(view->m_searchText, "b ");
    EXPECT_TRUE(IsSearching());
    EXPECT_TRUE(Control().GetReadOnly(1));
}

TEST_F(ViewKeys, EndASearchAndMakeTheTextAsWritableAsItWas)
{
    for (const bool wasReadOnly : {false, true}) {
        for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
            Put("abc", 0, 0);
            Search(wasReadOnly);
            Press(key);
            EXPECT_FALSE(IsSearching());
            EXPECT_EQ(Control().GetReadOnly(1), wasReadOnly);
            EXPECT_EQ(Control().GetText(), "abc"); // Enter did not reach it
        }
    }
}

TEST_F(ViewKeys, WithoutASearchAreNotHandled)
{
    EXPECT_FALSE(view->HandleInputCharacter(u'a', 1, 0));
    EXPECT_FALSE(view->HandleInputCharacter(27, 1, 0));
    EXPECT_FALSE(view->HandleDeleteBack());
    EXPECT_FALSE(view->HandleCommand(54024));
    Search();
    EXPECT_FALSE(view->HandleDeleteBack()); // there is nothing to take back
    EXPECT_FALSE(view->HandleInputCharacter(8, 1, 0));
    EXPECT_TRUE(view->HandleInputCharacter(1, 1, 0));
    EXPECT_FALSE(IsSearching());
}

TEST_F(ViewKeys, OfAnEditorsCommandEndASearchFirst)
{
    Put("abc", 0, 0);
    Search();
    Press(Qt::Key_Tab); // 54034: the text is writable again when it runs
    EXPECT_FALSE(IsSearching());
    EXPECT_NE(Control().GetText(), "abc");
}

TEST_F(ViewKeys, OfOtherCommandsLeaveASearchRunning)
{
    Put("abc", 0, 2);
    Search();
    for (const UINT id : {54024u, 54025u, 57634u, 53889u, 54070u}) {
        view->OnCmdMsg(id, nullptr);
        EXPECT_TRUE(IsSearching()) << id;
    }
    EXPECT_TRUE(view->HandleCommand(54025));
    EXPECT_FALSE(view->HandleCommand(57634));
    for (const UINT id : {53890u, 54069u}) {
        Search();
        view->OnCmdMsg(id, nullptr); // nobody runs it
        EXPECT_FALSE(IsSearching()) << id;
    }
}

TEST_F(ViewKeys, AskingAboutACommandEndsNoSearch)
{
    Search();
    EXPECT_TRUE(view->HasCommand(54034));
    Probe(53923, *view);
    EXPECT_TRUE(IsSearching());
}

TEST_F(ViewKeys, TheIndicatorShowsTheStateBeforeASearch)
{
    Search();
    EXPECT_EQ(Probe(53893, *view).text, "");
    view->StopIncrementalSearch();
    Search(true);
    EXPECT_EQ(Probe(53893, *view).text, "READ");
}
