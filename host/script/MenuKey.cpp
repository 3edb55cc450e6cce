// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/script/MenuKey.h"

#include <QAbstractScrollArea>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

MenuKey::MenuKey(QWidget& window) : QObject(&window)
{
    window.installEventFilter(this);
    // The key asks the window, the mouse what the window shows its text in.
    if (const auto* area = qobject_cast<QAbstractScrollArea*>(&window))
        area->viewport()->installEventFilter(this);
}

// Qt makes an event of the menu key alone, and people also press Shift+F10.
bool MenuKey::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ContextMenu) {
        m_isPressed =
            static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard;
        return false;
    }
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_F10 || key->modifiers() != Qt::ShiftModifier)
        return false;
    const QPoint corner;
    QContextMenuEvent asks(QContextMenuEvent::Keyboard, corner,
                           static_cast<QWidget*>(watched)->mapToGlobal(corner));
    QCoreApplication::sendEvent(watched, &asks);
    return true;
}
