// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorControlEx: the table of its commands, and the handlers that decide something.
#include "editing/ControlRules.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/language/Library.h"
#include "platform/base/Units.h"
#include "platform/windows/Questions.h"
#include "platform/windows/Window.h"

#include <QCoreApplication>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CZNCoreEditorControlEx)
};

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
#define ZN_COMMAND(id, handler, action, update, rule, menu) {id, Run<&Self::handler>},
#define ZN_PLAIN(id, handler, action, menu) {id, Run<&Self::handler>},
#define ZN_OWN(id, handler, update, rule, menu) {id, Run<&Self::handler>},
#define ZN_OWN_PLAIN(id, handler, menu) {id, Run<&Self::handler>},
#define ZN_AGAIN(id, handler, update, menu) {id, Run<&Self::handler>},
#define ZN_AGAIN_PLAIN(id, handler, menu) {id, Run<&Self::handler>},
#define ZN_RULE(id, update, rule)
#include "editing/ControlCommands.def"
};

constexpr UpdateEntry kUpdates[] = {
#define ZN_COMMAND(id, handler, action, update, rule, menu) {id, Update<&Self::update>},
#define ZN_PLAIN(id, handler, action, menu)
#define ZN_OWN(id, handler, update, rule, menu) {id, Update<&Self::update>},
#define ZN_OWN_PLAIN(id, handler, menu)
#define ZN_AGAIN(id, handler, update, menu) {id, Update<&Self::update>},
#define ZN_AGAIN_PLAIN(id, handler, menu)
#define ZN_RULE(id, update, rule) {id, Update<&Self::update>},
#include "editing/ControlCommands.def"
};

QString ScriptFilters()
{
    return Texts::tr("Scripts (*.sql);;DDL Files (*.ddl);;Queries (*.qry);;Text Files (*.txt);;"
                     "All Files (*)");
}

constexpr int kLargestZoom = 20;
constexpr int kSmallestZoom = -10;

} // namespace

#define ZN_COMMAND(id, handler, action, update, rule, menu)                                        \
    void CZNCoreEditorControlEx::handler()                                                         \
    {                                                                                              \
        action;                                                                                    \
    }                                                                                              \
    void CZNCoreEditorControlEx::update(CCmdUI& ui)                                                \
    {                                                                                              \
        ui.Enable(controlrules::rule(*this));                                                      \
    }
#define ZN_PLAIN(id, handler, action, menu)                                                        \
    void CZNCoreEditorControlEx::handler()                                                         \
    {                                                                                              \
        action;                                                                                    \
    }
#define ZN_OWN(id, handler, update, rule, menu) ZN_RULE(id, update, rule)
#define ZN_OWN_PLAIN(id, handler, menu)
#define ZN_AGAIN(id, handler, update, menu)
#define ZN_AGAIN_PLAIN(id, handler, menu)
#define ZN_RULE(id, update, rule)                                                                  \
    void CZNCoreEditorControlEx::update(CCmdUI& ui)                                                \
    {                                                                                              \
        ui.Enable(controlrules::rule(*this));                                                      \
    }
#include "editing/ControlCommands.def"

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

void CZNCoreEditorControlEx::OnEditInsertFile()
{
    const QString path = AskOpenFile(GetSafeHwnd(), ScriptFilters());
    if (!path.isEmpty())
        InsertFile(Units(path), FileEncodeConverter::encUnknown);
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

// The item says what choosing it does.
void CZNCoreEditorControlEx::OnUpdateLineNumbers(CCmdUI& ui)
{
    const bool shown = IsVisibleLineNumber();
    ui.SetText(shown ? Texts::tr("Hide LineNumbers") : Texts::tr("Show LineNumbers"));
    ui.SetCheck(shown ? 1 : 0);
}

void CZNCoreEditorControlEx::OnConfigureeditor()
{
    zncoreeditor::OnConfigurePreferences();
}
