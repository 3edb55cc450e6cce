// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/lists/ListKeys.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>

#include <utility>

ListKeys::ListKeys(QLineEdit& line, QListWidget& list, std::function<void()> choose)
    : QObject(&line), m_list(list), m_choose(std::move(choose))
{
    line.installEventFilter(this);
}

bool ListKeys::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        m_choose();
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        QCoreApplication::sendEvent(&m_list, event);
        return true;
    default:
        return false;
    }
}
