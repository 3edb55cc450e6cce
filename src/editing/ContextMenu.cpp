// SPDX-License-Identifier: GPL-3.0-or-later
// The context menus as data, and CZNCoreEditorControlEx: showing one where no view does.
#include "editing/ContextMenu.h"

#include "editing/ControlRules.h"
#include "editing/WindowClasses.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "platform/windows/ActionUI.h"

#include <QCoreApplication>
#include <QCursor>
#include <QMenu>

#include <algorithm>
#include <span>

namespace {

// A text without a number opens a menu, which a row without either of them ends.
struct MenuRow
{
    const char* text = nullptr;
    UINT id = 0;
};

constexpr const char* kSeparator = "";

QString Text(const MenuRow& row)
{
    return QCoreApplication::translate("ContextMenu", row.text);
}

constexpr MenuRow kReadOnlyMenu[] = {
    {QT_TRANSLATE_NOOP("ContextMenu", "&Copy\tCtrl+C"), 57634},
    {QT_TRANSLATE_NOOP("ContextMenu", "&Select All\tCtrl+A"), 57642},
    {kSeparator},
    {QT_TRANSLATE_NOOP("ContextMenu", "Match To&ken\tCtrl+]"), 54040},
    {QT_TRANSLATE_NOOP("ContextMenu", "Line Numbers"), 54036},
    {kSeparator},
    {QT_TRANSLATE_NOOP("ContextMenu", "&Find..."), 57636},
    {QT_TRANSLATE_NOOP("ContextMenu", "Repeat Last Find"), 57640},
};

constexpr MenuRow kWritableMenu[] = {
    {QT_TRANSLATE_NOOP("ContextMenu", "&Undo\tCtrl+Z"), 57643},
    {QT_TRANSLATE_NOOP("ContextMenu", "&Redo\tCtrl+Y"), 57644},
    {kSeparator},
    {QT_TRANSLATE_NOOP("ContextMenu", "Cu&t\tCtrl+X"), 57635},
    {QT_TRANSLATE_NOOP("ContextMenu", "&Copy\tCtrl+C"), 57634},
    {QT_TRANSLATE_NOOP("ContextMenu", "&Paste\tCtrl+V"), 57637},
    {QT_TRANSLATE_NOOP("ContextMenu", "&Delete\tDel"), 57632},
    {QT_TRANSLATE_NOOP("ContextMenu", "&Select All\tCtrl+A"), 57642},
    {QT_TRANSLATE_NOOP("ContextMenu", "Insert File..."), 54038},
    {kSeparator},
    {QT_TRANSLATE_NOOP("ContextMenu", "Line Endings")},
    {QT_TRANSLATE_NOOP("ContextMenu", "Windows (CR+LF)"), 54071},
    {QT_TRANSLATE_NOOP("ContextMenu", "Unix (LF)"), 54072},
    {QT_TRANSLATE_NOOP("ContextMenu", "Mac (CR)"), 54073},
    {},
    {kSeparator},
    {QT_TRANSLATE_NOOP("ContextMenu", "Co&mment Out"), 54037},
    {QT_TRANSLATE_NOOP("ContextMenu", "U&ndo Comment Out"), 54041},
    {QT_TRANSLATE_NOOP("ContextMenu", "Upper C&ase"), 54042},
    {QT_TRANSLATE_NOOP("ContextMenu", "&Lower Case"), 54039},
    {QT_TRANSLATE_NOOP("ContextMenu", "&Indent"), 54034},
    {QT_TRANSLATE_NOOP("ContextMenu", "&Outdent"), 54035},
    {QT_TRANSLATE_NOOP("ContextMenu", "Match To&ken\tCtrl+]"), 54040},
    {QT_TRANSLATE_NOOP("ContextMenu", "Line Numbers"), 54036},
    {kSeparator},
    {QT_TRANSLATE_NOOP("ContextMenu", "&Find..."), 57636},
    {QT_TRANSLATE_NOOP("ContextMenu", "Repeat Last Find"), 57640},
    {QT_TRANSLATE_NOOP("ContextMenu", "R&eplace..."), 57641},
    {kSeparator},
    {kSeparator},
};

// When the control's own menu offers a command; null: an item of the number stays as it is.
struct MenuRule
{
    UINT id;
    bool (*isPossible)(CZNCoreEditorControlEx& control);
};

constexpr bool (*Unlisted)(CZNCoreEditorControlEx&) = nullptr;

// Line Numbers shows how it stands as well.
bool AlwaysAndChecked(CZNCoreEditorControlEx& /*control*/)
{
    return true;
}

using namespace controlrules;

constexpr MenuRule kMenuRules[] = {
#define ZN_COMMAND(id, handler, action, update, rule, menu) {id, menu},
#define ZN_PLAIN(id, handler, action, menu) {id, menu},
#define ZN_OWN(id, handler, update, rule, menu) {id, menu},
#define ZN_OWN_PLAIN(id, handler, menu) {id, menu},
#define ZN_AGAIN(id, handler, update, menu) {id, menu},
#define ZN_AGAIN_PLAIN(id, handler, menu) {id, menu},
#define ZN_RULE(id, update, rule)
#include "editing/ControlCommands.def"
};

// The frame that a window stands in; null if there is none.
CWnd* ParentFrame(HWND window)
{
    for (HWND at = GetParent(window); at; at = GetParent(at)) {
        CWnd* frame = AttachedWnd(at);
        if (IsOfClass(frame, "CFrameWnd"))
            return frame;
    }
    return nullptr;
}

} // namespace

std::unique_ptr<QMenu> MakeContextMenu(bool isWritable, HWND owner)
{
    auto menu = std::make_unique<QMenu>(owner);
    QMenu* into = menu.get();
    const auto rows = isWritable ? std::span<const MenuRow>(kWritableMenu) : kReadOnlyMenu;
    for (const MenuRow& row : rows) {
        if (!row.text)
            into = menu.get();
        else if (!*row.text)
            into->addSeparator();
        else if (row.id == 0)
            into = menu->addMenu(Text(row));
        else
            SetCommand(*into->addAction(Text(row)), row.id, owner);
    }
    return menu;
}

// In a frame the items follow its commands; in a dialog, and in a window that knows no frames, they
// follow the control's own rules. The answer tells that the click was dealt with.
LRESULT CZNCoreEditorControlEx::OnContextMenu(CWnd* window, CPoint point)
{
    if (m_pCallback && m_pCallback->OnBeforeContextMenu(window, point))
        return 1;
    const HWND parent = GetParent(GetSafeHwnd());
    if (IsOfClass(AttachedWnd(parent), "CZNCoreEditorView")) {
        const bool isKey = point.x == -1 && point.y == -1;
        const QPoint pointer = QCursor::pos();
        return SendMessage(parent, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(GetSafeHwnd()),
                           PointParam(isKey ? CPoint{pointer.x(), pointer.y()} : point));
    }
    CWnd* frame = IsDialog(parent) ? nullptr : ParentFrame(GetSafeHwnd());
    CWnd& owner = frame ? *frame : static_cast<CWnd&>(*this);
    std::unique_ptr<QMenu> menu = MakeContextMenu(WritableEnabled(*this), owner.GetSafeHwnd());
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (frame)
        UpdateActions(menu->actions(), owner);
    else
        SetDefaultMenuState(*menu);
    menu.release()->popup(MenuPlace(point));
    return 1;
}

// A menu that a key opens stands at the caret.
QPoint CZNCoreEditorControlEx::MenuPlace(CPoint point)
{
    if (point.x != -1 || point.y != -1)
        return {static_cast<int>(point.x), static_cast<int>(point.y)};
    const long caret = GetCurrentPos(1);
    return GetSafeHwnd()->mapToGlobal(
        QPoint(PointXFromPosition(caret, 1), PointYFromPosition(caret, 1)));
}

void CZNCoreEditorControlEx::SetDefaultMenuState(QMenu& menu)
{
    for (QAction* action : menu.actions()) {
        if (action->menu()) {
            SetDefaultMenuState(*action->menu());
            continue;
        }
        const auto* rule = std::ranges::find(kMenuRules, CommandOf(*action), &MenuRule::id);
        if (rule == std::end(kMenuRules) || !rule->isPossible)
            continue;
        action->setEnabled(rule->isPossible(*this));
        if (rule->isPossible == AlwaysAndChecked) {
            action->setCheckable(true);
            action->setChecked(IsVisibleLineNumber());
        }
    }
}
