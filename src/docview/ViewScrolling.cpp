// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorView: its scroll bars, which mirror those of the engine.
#include "docview/ZNCoreEditorView.h"

#include "docview/ZNCoreEditorDoc.h"
#include "platform/docview/SplitterWnd.h"
#include "platform/windows/ScrollBars.h"

namespace {

int BarOf(LPARAM flags)
{
    return flags & kScrollVertical ? SB_VERT : SB_HORZ;
}

// Without a position, that of a drag is looked at.
bool Differs(const SCROLLINFO& now, const SCROLLINFO& wanted)
{
    const UINT mask = wanted.fMask;
    if ((mask & SIF_RANGE) && (now.nMin != wanted.nMin || now.nMax != wanted.nMax))
        return true;
    if ((mask & SIF_PAGE) && now.nPage != wanted.nPage)
        return true;
    if (mask & SIF_POS)
        return now.nPos != wanted.nPos;
    return (mask & SIF_TRACKPOS) && now.nPos != wanted.nTrackPos;
}

} // namespace

LRESULT CZNCoreEditorView::OnGetScrollInfoMsg(SCROLLINFO* record, LPARAM flags)
{
    return GetScrollInfo(GetSafeHwnd(), BarOf(flags), record);
}

// Every change of what is shown passes here, so the braces are looked at as well.
LRESULT CZNCoreEditorView::OnSetScrollInfoMsg(const SCROLLINFO* record, LPARAM flags)
{
    const CZNCoreEditorDoc* document = EditDocument();
    if (document && document->GetBraceMatching())
        RefreshBraces();
    const int bar = BarOf(flags);
    SCROLLINFO now;
    now.fMask = SIF_ALL;
    GetScrollInfo(GetSafeHwnd(), bar, &now);
    if (!Differs(now, *record))
        return 1;
    if (!SetScrollInfo(GetSafeHwnd(), bar, record, (flags & kScrollRedraw) != 0))
        return 0;
    if (m_initialized)
        RepaintNeighbours(bar == SB_VERT);
    return 1;
}

// Those above and below it, or beside it. Each keeps its own place in the text.
void CZNCoreEditorView::RepaintNeighbours(bool isVertical)
{
    const CSplitterWnd* splitter = CSplitterWnd::Around(GetSafeHwnd());
    if (!splitter)
        return;
    const int own = static_cast<int>(GetDlgCtrlID(GetSafeHwnd())) - CSplitterWnd::kFirstPane;
    const int row = own / CSplitterWnd::kPanesInRow;
    const int column = own % CSplitterWnd::kPanesInRow;
    const int count = isVertical ? splitter->GetRowCount() : splitter->GetColumnCount();
    for (int at = 0; at < count; ++at) {
        if (at == (isVertical ? row : column))
            continue;
        CWnd* pane = isVertical ? splitter->GetPane(at, column) : splitter->GetPane(row, at);
        if (auto* view = dynamic_cast<CZNCoreEditorView*>(pane))
            UpdateWindow(view->m_coreEditor.GetSafeHwnd());
    }
}

void CZNCoreEditorView::OnHScroll(UINT code, UINT position, CWnd* bar)
{
    ScrollByBar(WM_HSCROLL, code, position, bar);
}

void CZNCoreEditorView::OnVScroll(UINT code, UINT position, CWnd* bar)
{
    ScrollByBar(WM_VSCROLL, code, position, bar);
}

void CZNCoreEditorView::ScrollByBar(UINT message, UINT code, UINT position, CWnd* bar)
{
    if (HWND control = m_coreEditor.GetSafeHwnd())
        SendMessage(control, message, ScrollParam(code, static_cast<int>(position)),
                    reinterpret_cast<LPARAM>(bar ? bar->GetSafeHwnd() : nullptr));
}
