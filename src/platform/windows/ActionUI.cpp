// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/ActionUI.h"

#include "platform/windows/Accelerators.h"
#include "platform/windows/Window.h"

#include <QMenu>
#include <QPointer>
#include <QVariant>

namespace {

constexpr char kCommandProperty[] = "znCommand";

} // namespace

ActionUI::ActionUI(QAction& action) : CCmdUI(CommandOf(action)), m_action(action) {}

void ActionUI::Enable(bool on)
{
    m_action.setEnabled(on);
    m_enableChanged = true;
}

void ActionUI::SetCheck(int state)
{
    m_action.setCheckable(true);
    m_action.setChecked(state != 0);
}

// How a radio mark looks is a matter of the action's group, which is the host's.
void ActionUI::SetRadio(bool on)
{
    SetCheck(on ? 1 : 0);
}

void ActionUI::SetText(const QString& text)
{
    m_action.setText(text);
}

void ActionUI::DoUpdate(CCmdTarget& target)
{
    m_enableChanged = false;
    target.OnCmdMsg(m_nID, this);
    if (!m_enableChanged)
        m_action.setEnabled(target.HasCommand(m_nID));
}

void SetCommand(QAction& action, UINT id, HWND window)
{
    action.setProperty(kCommandProperty, id);
    const QPointer<QWidget> target = window;
    QObject::connect(&action, &QAction::triggered, window,
                     [id, target] { SendMessage(target, WM_COMMAND, id, 0); });
}

UINT CommandOf(const QAction& action)
{
    return action.property(kCommandProperty).toUInt();
}

void UpdateActions(const QList<QAction*>& actions, CCmdTarget& target)
{
    for (QAction* action : actions) {
        if (action->menu())
            UpdateActions(action->menu()->actions(), target);
        else if (CommandOf(*action))
            ActionUI(*action).DoUpdate(target);
    }
}
