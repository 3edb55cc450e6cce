// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// ActionUI: a CCmdUI over a QAction, so that menus and toolbars follow the update handlers.
#pragma once

#include "platform/windows/CmdTarget.h"

#include <QAction>
#include <QList>

class QWidget;

/// A CCmdUI over a QAction, so that menus and toolbars follow the update handlers.
class ZN_API ActionUI final : public CCmdUI
{
public:
    /// The action's command is its number, set by SetCommand.
    explicit ActionUI(QAction& action);

    void Enable(bool on = true) override;
    void SetCheck(int state = 1) override;
    void SetRadio(bool on = true) override;
    void SetText(const QString& text) override;

    /// Asks the target. What no update handler enables or disables is enabled as long as somebody
    /// would run the command.
    void DoUpdate(CCmdTarget& target);

private:
    QAction& m_action;
    bool m_enableChanged = false;
};

/// Makes the action stand for a command: when it is triggered, the window gets WM_COMMAND. The
/// window may go first.
ZN_API void SetCommand(QAction& action, UINT id, HWND window);
ZN_API UINT CommandOf(const QAction& action); ///< 0: none

/// Brings all actions that stand for a command up to date, those of submenus too. For a menu:
/// UpdateActions(menu.actions(), frame) when it is about to show.
ZN_API void UpdateActions(const QList<QAction*>& actions, CCmdTarget& target);
