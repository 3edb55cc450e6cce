// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorView: what the engine and the control tell it.
#include "docview/ZNCoreEditorView.h"

#include "control/EngineRecords.h"
#include "docview/ZNCoreEditorDoc.h"
#include "editing/operations/Macro.h"
#include "platform/windows/Mouse.h"

#include <algorithm>

namespace {

constexpr UINT kControlId = 28161;
constexpr int kTextBits = modification::InsertText | modification::DeleteText | modification::User;

} // namespace

// The control goes first, and may close the view: then there is no document.
int CZNCoreEditorView::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (wParam != kControlId || !m_coreEditor.IsBaseEditorNotify(lParam))
        return CView::OnNotify(wParam, lParam, result);
    const auto& record = *reinterpret_cast<const SCNotification*>(lParam);
    const UINT code = record.nmhdr.code;
    const int bits = record.modificationType;
    m_coreEditor.HandleNotify(lParam);
    CZNCoreEditorDoc* document = EditDocument();
    switch (code) {
    case notify::SavePointReached:
    case notify::SavePointLeft:
        if (document)
            document->SetModifiedFlag(m_coreEditor.GetModified());
        return 1;
    case notify::UpdateUi:
        if (document)
            OnUpdateUi(*document);
        return 1;
    case notify::Modified:
        if (document && (bits & kTextBits))
            document->DocumentChanged();
        return 1;
    case notify::MacroRecord:
        AppendToMacro(record.message, record.wParam, record.lParam);
        return 1;
    case notify::UserListSelection:
        return 1;
    default:
        return 0;
    }
}

// A selection is copied again and again while the mouse draws it.
void CZNCoreEditorView::OnUpdateUi(const CZNCoreEditorDoc& document)
{
    if (document.GetBraceMatching())
        RefreshBraces();
    if (document.GetSelectCopy() && m_coreEditor.IsSelection() && IsLeftButtonDown())
        m_coreEditor.Copy(1);
}

// Only the low byte of a character counts, as a signed number.
bool CZNCoreEditorView::IsBraceAt(long position)
{
    const auto byte = static_cast<signed char>(m_coreEditor.GetCharAt(position, 1));
    return m_coreEditor.IsBrace(static_cast<char16_t>(byte));
}

// The brace behind the caret, or else the one before it.
void CZNCoreEditorView::RefreshBraces()
{
    const long caret = m_coreEditor.GetCurrentPos(1);
    if (IsBraceAt(caret))
        m_coreEditor.HighlightBraces(caret);
    else if (IsBraceAt(caret - 1))
        m_coreEditor.HighlightBraces(caret - 1);
    else
        m_coreEditor.BraceHighlight(-1, -1, 1);
}

// With several views the flag is only set here; the save points clear it.
LRESULT CZNCoreEditorView::OnEditChange(WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    CDocument* document = GetDocument();
    if (!document || !m_initialized)
        return 0;
    const bool isModified = m_coreEditor.GetSafeHwnd() && m_coreEditor.GetModified();
    if (document->GetViews().size() == 1)
        document->SetModifiedFlag(isModified);
    else if (isModified && !m_coreEditor.GetReadOnly(1))
        document->SetModifiedFlag(1);
    return 0;
}
