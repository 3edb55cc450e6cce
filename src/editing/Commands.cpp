// CZNCoreEditorControlEx: commands by number, and when each is possible.
#include "editing/ZNCoreEditorControlEx.h"

#include "platform/base/Units.h"
#include "platform/windows/Questions.h"
#include "platform/windows/Window.h"

namespace {

using Self = CZNCoreEditorControlEx;

template <void (Self::*Handler)()>
void Run(CCmdTarget& target)
{
    (static_cast<Self&>(target).*Handler)();
}

template <void (Self::*Handler)(CCmdUI&)>
void Update(CCmdTarget& target, CCmdUI& ui)
{
    (static_cast<Self&>(target).*Handler)(ui);
}

constexpr CommandEntry kCommands[] = {
    {57635, Run<&Self::OnEditCut>},
    {57634, Run<&Self::OnEditCopy>},
    {57637, Run<&Self::OnEditPaste>},
    {57643, Run<&Self::OnEditUndo>},
    {57644, Run<&Self::OnEditRedo>},
    {57642, Run<&Self::OnEditSelectall>},
    {57632, Run<&Self::OnEditClear>},
    {53899, Run<&Self::OnEditClear>},
    {54037, Run<&Self::OnEditComments>},
    {54041, Run<&Self::OnEditSingleLineUncomment>},
    {53960, Run<&Self::OnEditMatchToken>},
    {54040, Run<&Self::OnEditMatchToken>},
    {54038, Run<&Self::OnEditInsertFile>},
    {54034, Run<&Self::OnEditIndent>},
    {54035, Run<&Self::OnEditOutdent>},
    {54042, Run<&Self::OnEditUppercase>},
    {54039, Run<&Self::OnEditLowercase>},
    {54036, Run<&Self::OnLineNumbers>},
    {53962, Run<&Self::OnViewZoomlevelZoomin>},
    {53963, Run<&Self::OnViewZoomlevelZoomout>},
    {53964, Run<&Self::OnViewZoomlevelZoomdefault>},
    {54056, Run<&Self::OnBookmarknext>},
    {54057, Run<&Self::OnBookmarkset>},
    {54058, Run<&Self::OnBookmarkprev>},
    {54059, Run<&Self::OnBookmarkdelete>},
    {54001, Run<&Self::OnMacrohelperNumplus>},
    {54002, Run<&Self::OnMacrohelperNumminus>},
    {54071, Run<&Self::OnLineEndingsWindows>},
    {54072, Run<&Self::OnLineEndingsUnix>},
    {54073, Run<&Self::OnLineEndingsMac>},
};

// clang-format off
constexpr UpdateEntry kUpdates[] = {
    {57635, Update<&Self::OnUpdateEditCut>},
    {57634, Update<&Self::OnUpdateEditCopy>},
    {57637, Update<&Self::OnUpdateEditPaste>},
    {57643, Update<&Self::OnUpdateEditUndo>},
    {57644, Update<&Self::OnUpdateEditRedo>},
    {57632, Update<&Self::OnUpdateEditClear>},
    {54037, Update<&Self::OnUpdateEditSingleLineComment>},
    {54041, Update<&Self::OnUpdateEditSingleLineUncomment>},
    {54034, Update<&Self::OnUpdateEditIndent>},
    {54035, Update<&Self::OnUpdateEditOutdent>},
    {53960, Update<&Self::OnUpdateEditMatchToken>},
    {54040, Update<&Self::OnUpdateEditMatchToken>},
    {54038, Update<&Self::OnUpdateEditInsertFile>},
    {54042, Update<&Self::OnUpdateEditUppercase>},
    {54039, Update<&Self::OnUpdateEditLowercase>},
    {54056, Update<&Self::OnUpdateBookmarknext>},
    {54057, Update<&Self::OnUpdateBookmarkset>},
    {54058, Update<&Self::OnUpdateBookmarkprev>},
    {54059, Update<&Self::OnUpdateBookmarkdelete>},
    {54001, Update<&Self::OnUpdateMacrohelperNumplus>},
    {54002, Update<&Self::OnUpdateMacrohelperNumminus>},
    {54071, Update<&Self::OnUpdateLineEndingsWindows>},
    {54072, Update<&Self::OnUpdateLineEndingsUnix>},
    {54073, Update<&Self::OnUpdateLineEndingsMac>},
};
// clang-format on

constexpr const char* kScriptFilters =
    "Scripts (*.sql);;DDL Files (*.ddl);;Queries (*.qry);;Text Files (*.txt);;All Files (*)";
constexpr long kTooShort = 2; // units of a text in which there is nothing to look for
constexpr int kLargestZoom = 20;
constexpr int kSmallestZoom = -10;

} // namespace

const CommandMap& CZNCoreEditorControlEx::GetCommandMap() const
{
    static const CommandMap kMap{&CZNCoreEditorControl::GetCommandMap(), kCommands, kUpdates};
    return kMap;
}

bool CZNCoreEditorControlEx::CanCut()
{
    return IsSelection() && !GetReadOnly(1);
}

bool CZNCoreEditorControlEx::CanCopy()
{
    return IsSelection();
}

void CZNCoreEditorControlEx::OnEditCut()
{
    Cut(1);
}

void CZNCoreEditorControlEx::OnEditCopy()
{
    Copy(1);
}

void CZNCoreEditorControlEx::OnEditPaste()
{
    Paste(1);
}

void CZNCoreEditorControlEx::OnEditUndo()
{
    Undo(1);
    UpdateWindow(GetSafeHwnd());
}

void CZNCoreEditorControlEx::OnEditRedo()
{
    Redo(1);
    UpdateWindow(GetSafeHwnd());
}

void CZNCoreEditorControlEx::OnEditSelectall()
{
    SelectAll(1);
}

void CZNCoreEditorControlEx::OnEditClear()
{
    Clear(1);
}

void CZNCoreEditorControlEx::OnEditIndent()
{
    Tab(1);
}

void CZNCoreEditorControlEx::OnEditOutdent()
{
    BackTab(1);
}

void CZNCoreEditorControlEx::OnEditMatchToken()
{
    JumpToMatchingBrace(false);
}

void CZNCoreEditorControlEx::OnEditInsertFile()
{
    const QString path = AskOpenFile(GetSafeHwnd(), QLatin1String(kScriptFilters));
    if (!path.isEmpty())
        InsertFile(Units(path), FileEncodeConverter::encUnknown);
}

void CZNCoreEditorControlEx::OnEditUppercase()
{
    UpperCase(1);
}

void CZNCoreEditorControlEx::OnEditLowercase()
{
    LowerCase(1);
}

void CZNCoreEditorControlEx::OnLineEndingsWindows()
{
    ChangeEOLs(1);
}

void CZNCoreEditorControlEx::OnLineEndingsUnix()
{
    ChangeEOLs(3);
}

void CZNCoreEditorControlEx::OnLineEndingsMac()
{
    ChangeEOLs(2);
}

void CZNCoreEditorControlEx::OnBookmarknext()
{
    NextBookmark();
}

void CZNCoreEditorControlEx::OnBookmarkset()
{
    ToggleBookmark(GetCurLineNumber());
}

void CZNCoreEditorControlEx::OnBookmarkprev()
{
    PreviousBookmark();
}

void CZNCoreEditorControlEx::OnBookmarkdelete()
{
    ClearBookmarks();
}

void CZNCoreEditorControlEx::OnMacrohelperNumplus()
{
    NumPlus();
}

void CZNCoreEditorControlEx::OnMacrohelperNumminus()
{
    NumMinus();
}

void CZNCoreEditorControlEx::OnLineNumbers()
{
    SetVisibleLineNumber(!IsVisibleLineNumber());
}

void CZNCoreEditorControlEx::OnViewZoomlevelZoomin()
{
    if (const int zoom = GetZoom(1); zoom < kLargestZoom)
        SetZoom(zoom + 1, 1);
}

void CZNCoreEditorControlEx::OnViewZoomlevelZoomout()
{
    if (const int zoom = GetZoom(1); zoom > kSmallestZoom)
        SetZoom(zoom - 1, 1);
}

void CZNCoreEditorControlEx::OnViewZoomlevelZoomdefault()
{
    SetZoom(0, 1);
}

void CZNCoreEditorControlEx::OnUpdateEditCut(CCmdUI& ui)
{
    ui.Enable(CanCut());
}

void CZNCoreEditorControlEx::OnUpdateEditCopy(CCmdUI& ui)
{
    ui.Enable(CanCopy());
}

void CZNCoreEditorControlEx::OnUpdateEditPaste(CCmdUI& ui)
{
    ui.Enable(CanPaste(1));
}

void CZNCoreEditorControlEx::OnUpdateEditUndo(CCmdUI& ui)
{
    ui.Enable(CanUndo(1));
}

void CZNCoreEditorControlEx::OnUpdateEditRedo(CCmdUI& ui)
{
    ui.Enable(CanRedo(1));
}

void CZNCoreEditorControlEx::OnUpdateEditClear(CCmdUI& ui)
{
    ui.Enable(IsSelection() && !GetReadOnly(1));
}

void CZNCoreEditorControlEx::OnUpdateEditSingleLineComment(CCmdUI& ui)
{
    ui.Enable(IsSelection() && !GetReadOnly(1));
}

void CZNCoreEditorControlEx::OnUpdateEditSingleLineUncomment(CCmdUI& ui)
{
    ui.Enable(IsSelection() && !GetReadOnly(1));
}

void CZNCoreEditorControlEx::OnUpdateEditMatchToken(CCmdUI& ui)
{
    ui.Enable(IsWindowEnabled(GetSafeHwnd()) && GetTextLength(1) > kTooShort &&
              IsBrace(static_cast<char16_t>(GetCharAt(GetCurrentPos(1), 1))));
}

void CZNCoreEditorControlEx::OnUpdateEditInsertFile(CCmdUI& ui)
{
    ui.Enable(!GetReadOnly(1) && IsWindowEnabled(GetSafeHwnd()));
}

void CZNCoreEditorControlEx::OnUpdateEditIndent(CCmdUI& ui)
{
    ui.Enable(GetTextLength(1) != 0 && !GetReadOnly(1));
}

void CZNCoreEditorControlEx::OnUpdateEditOutdent(CCmdUI& ui)
{
    ui.Enable(GetTextLength(1) != 0 && !GetReadOnly(1) && IsSelection());
}

void CZNCoreEditorControlEx::OnUpdateEditUppercase(CCmdUI& ui)
{
    ui.Enable(IsSelection() && !GetReadOnly(1));
}

void CZNCoreEditorControlEx::OnUpdateEditLowercase(CCmdUI& ui)
{
    ui.Enable(IsSelection() && !GetReadOnly(1));
}

void CZNCoreEditorControlEx::OnUpdateLineEndingsWindows(CCmdUI& ui)
{
    ui.Enable(!GetReadOnly(1) && IsWindowEnabled(GetSafeHwnd()));
}

void CZNCoreEditorControlEx::OnUpdateLineEndingsUnix(CCmdUI& ui)
{
    ui.Enable(!GetReadOnly(1) && IsWindowEnabled(GetSafeHwnd()));
}

void CZNCoreEditorControlEx::OnUpdateLineEndingsMac(CCmdUI& ui)
{
    ui.Enable(!GetReadOnly(1) && IsWindowEnabled(GetSafeHwnd()));
}

void CZNCoreEditorControlEx::OnUpdateBookmarknext(CCmdUI& ui)
{
    ui.Enable(HasBookmarks());
}

void CZNCoreEditorControlEx::OnUpdateBookmarkset(CCmdUI& ui)
{
    ui.Enable(true);
}

void CZNCoreEditorControlEx::OnUpdateBookmarkprev(CCmdUI& ui)
{
    ui.Enable(HasBookmarks());
}

void CZNCoreEditorControlEx::OnUpdateBookmarkdelete(CCmdUI& ui)
{
    ui.Enable(HasBookmarks());
}

void CZNCoreEditorControlEx::OnUpdateMacrohelperNumplus(CCmdUI& ui)
{
    ui.Enable(!GetReadOnly(1));
}

void CZNCoreEditorControlEx::OnUpdateMacrohelperNumminus(CCmdUI& ui)
{
    ui.Enable(!GetReadOnly(1));
}

// The item says what choosing it does.
void CZNCoreEditorControlEx::OnUpdateLineNumbers(CCmdUI& ui)
{
    const bool shown = IsVisibleLineNumber();
    ui.SetText(shown ? QStringLiteral("Hide LineNumbers") : QStringLiteral("Show LineNumbers"));
    ui.SetCheck(shown ? 1 : 0);
}
