// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorView: its context menu.
#include "docview/ZNCoreEditorView.h"

#include "editing/ContextMenu.h"
#include "platform/docview/FrameWnd.h"
#include "platform/windows/ActionUI.h"

#include <QMenu>

#include <memory>

namespace {

// All views of the process share one menu, which the first of them chooses for good.
bool SharedMenuIsWritable(bool isWritable)
{
    static const bool chosen = isWritable;
    return chosen;
}

} // namespace

// By its key the menu comes up where the screen's corner is, as the view counts.
void CZNCoreEditorView::OnContextMenu(CWnd* /*window*/, CPoint point)
{
    if (!GetSafeHwnd())
        return;
    const bool isWritable = !m_coreEditor.GetReadOnly(1) && IsWindowEnabled(GetSafeHwnd());
    CFrameWnd* frame = GetParentFrame();
    CWnd& owner = frame ? static_cast<CWnd&>(*frame) : *this;
    std::unique_ptr<QMenu> menu =
        MakeContextMenu(SharedMenuIsWritable(isWritable), owner.GetSafeHwnd());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    UpdateActions(menu->actions(), owner);
    QPoint place(static_cast<int>(point.x), static_cast<int>(point.y));
    if (place == QPoint(-1, -1))
        place = GetSafeHwnd()->mapFromGlobal(QPoint(0, 0));
    menu.release()->popup(place);
}
