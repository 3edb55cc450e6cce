// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorControlEx: the commands that find, and the one that goes to a line.
#include "common/Globals.h"
#include "editing/FindDialogs.h"
#include "editing/WindowClasses.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "platform/windows/Questions.h"
#include "search/FindReplaceManager.h"

#include <QCoreApplication>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CZNCoreEditorControlEx)
};

constexpr int kNoFindDialog = 28174;
constexpr int kNoReplaceDialog = 28175;

// Whether the control stands in a dialog, itself or by its parents a window above the others: one
// of the find dialogs that belongs to the main window could then not be reached.
bool IsInModalDialog(HWND control)
{
    const HWND parent = GetParent(control);
    if (!IsDialog(parent))
        return false;
    for (HWND at = parent; at; at = GetParent(at)) {
        if (at->isWindow())
            return true;
    }
    return false;
}

} // namespace

void CZNCoreEditorControlEx::OnSearchFind()
{
    IFindDialogs* dialogs = GetFindDialogs();
    if (!dialogs || !dialogs->ShowFind(*this, GetFindString(), IsInModalDialog(GetSafeHwnd())))
        ShowMessage(GetSafeHwnd(), zncoreeditor::GetResourceLoader().LoadString(kNoFindDialog),
                    MessageKind::Stop);
}

void CZNCoreEditorControlEx::OnSearchFindreplace()
{
    IFindDialogs* dialogs = GetFindDialogs();
    if (!dialogs || !dialogs->ShowReplace(*this, GetFindString(), IsInModalDialog(GetSafeHwnd())))
        ShowMessage(GetSafeHwnd(), zncoreeditor::GetResourceLoader().LoadString(kNoReplaceDialog),
                    MessageKind::Stop);
}

// A match before the caret is told and not selected.
void CZNCoreEditorControlEx::OnRepeatFind()
{
    CFindReplaceManager& manager = *zncoreeditor::GetFindReplaceManager();
    if (manager.GetFind().isEmpty()) {
        OnSearchFind();
        return;
    }
    manager.SetDown(true);
    manager.SetWrap(true);
    const long caret = GetCurrentPos(1);
    const int found = manager.FindNext(this);
    if (found < 0)
        ShowMessage(GetSafeHwnd(),
                    Texts::tr("Could not find the string '%1'.").arg(manager.GetFind()));
    else if (found < caret)
        ShowMessage(GetSafeHwnd(), Texts::tr("Search has finished searching the whole document"));
    else
        SelectionFromTarget();
}

void CZNCoreEditorControlEx::OnEditGoto()
{
    if (const GotoDialog dialog = GetGotoDialog())
        dialog(GetParent(GetSafeHwnd()), GetCurLineNumber(), GetLineCount(1));
}
