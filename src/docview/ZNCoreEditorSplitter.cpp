// SPDX-License-Identifier: GPL-3.0-or-later
#include "docview/ZNCoreEditorSplitter.h"

#include "platform/windows/VisualManager.h"

// The box has an edge; what is left inside it is filled.
void CZNCoreEditorSplitter::OnDrawSplitter(CDC* dc, ESplitType type, const RECT& rect)
{
    if (!dc) {
        RedrawWindow(GetSafeHwnd(), &rect, RDW_INVALIDATE | RDW_ALLCHILDREN);
        return;
    }
    CBCGPVisualManager& look = *CBCGPVisualManager::GetInstance();
    RECT inside = rect;
    if (type == splitBorder) {
        look.OnDrawSplitterBorder(*dc, *this, rect);
        return;
    }
    if (type == splitBox)
        look.OnDrawSplitterBox(*dc, *this, inside);
    look.OnFillSplitterBackground(*dc, *this, inside);
}
