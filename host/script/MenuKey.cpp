// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/script/MenuKey.h"

#include <QContextMenuEvent>
#include <QWidget>

MenuKey::MenuKey(QWidget& window) : QObject(&window)
{
    window.installEventFilter(this);
}

bool MenuKey::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() == QEvent::ContextMenu)
        m_isPressed =
            static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard;
    return false;
}
