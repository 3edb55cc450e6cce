// CZNCoreEditorView: its context menu.
#include "docview/ZNCoreEditorView.h"

#include "platform/docview/ActionUI.h"
#include "platform/docview/FrameWnd.h"

#include <QMenu>

#include <memory>
#include <span>

namespace {

// A text without a number opens a menu, which a row without either of them ends.
struct MenuRow
{
    const char* text = nullptr;
    UINT id = 0;
};

constexpr const char* kSeparator = "";

constexpr MenuRow kReadOnlyMenu[] = {
    {"&Copy\tCtrl+C", 57634},
    {"&Select All\tCtrl+A", 57642},
    {kSeparator},
    {"Match To&ken\tCtrl+]", 54040},
    {"Line Numbers", 54036},
    {kSeparator},
    {"&Find...", 57636},
    {"Repeat Last Find", 57640},
};

constexpr MenuRow kWritableMenu[] = {
    {"&Undo\tCtrl+Z", 57643},
    {"&Redo\tCtrl+Y", 57644},
    {kSeparator},
    {"Cu&t\tCtrl+X", 57635},
    {"&Copy\tCtrl+C", 57634},
    {"&Paste\tCtrl+V", 57637},
    {"&Delete\tDel", 57632},
    {"&Select All\tCtrl+A", 57642},
    {"Insert File...", 54038},
    {kSeparator},
    {"Line Endings"},
    {"Windows (CR+LF)", 54071},
    {"Unix (LF)", 54072},
    {"Mac (CR)", 54073},
    {},
    {kSeparator},
    {"Co&mment Out", 54037},
    {"U&ndo Comment Out", 54041},
    {"Upper C&ase", 54042},
    {"&Lower Case", 54039},
    {"&Indent", 54034},
    {"&Outdent", 54035},
    {"Match To&ken\tCtrl+]", 54040},
    {"Line Numbers", 54036},
    {kSeparator},
    {"&Find...", 57636},
    {"Repeat Last Find", 57640},
    {"R&eplace...", 57641},
    {kSeparator},
    {kSeparator},
};

// All views of the process share one menu, which the first of them chooses for good.
std::span<const MenuRow> SharedMenu(bool isWritable)
{
    static const std::span<const MenuRow> chosen =
        isWritable ? std::span<const MenuRow>(kWritableMenu) : kReadOnlyMenu;
    return chosen;
}

std::unique_ptr<QMenu> MakeMenu(std::span<const MenuRow> rows, HWND owner)
{
    auto menu = std::make_unique<QMenu>(owner);
    QMenu* into = menu.get();
    for (const MenuRow& row : rows) {
        if (!row.text)
            into = menu.get();
        else if (!*row.text)
            into->addSeparator();
        else if (row.id == 0)
            into = menu->addMenu(QLatin1String(row.text));
        else
            SetCommand(*into->addAction(QLatin1String(row.text)), row.id, owner);
    }
    return menu;
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
    std::unique_ptr<QMenu> menu = MakeMenu(SharedMenu(isWritable), owner.GetSafeHwnd());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    UpdateActions(menu->actions(), owner);
    QPoint place(static_cast<int>(point.x), static_cast<int>(point.y));
    if (place == QPoint(-1, -1))
        place = GetSafeHwnd()->mapFromGlobal(QPoint(0, 0));
    menu.release()->popup(place);
}
