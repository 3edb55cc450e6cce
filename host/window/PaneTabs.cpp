// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/PaneTabs.h"

#include <QChildEvent>
#include <QMainWindow>
#include <QTabBar>

void PaneTabs::Take(QMainWindow& window)
{
    window.installEventFilter(new PaneTabs(&window));
}

bool PaneTabs::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ChildPolished) {
        if (auto* bar = qobject_cast<QTabBar*>(static_cast<QChildEvent*>(event)->child())) {
            bar->setAccessibleName(tr("Panes"));
            bar->installEventFilter(this);
            Follow(*bar);
        }
    } else if (event->type() == QEvent::Move || event->type() == QEvent::Resize) {
        if (auto* bar = qobject_cast<QTabBar*>(watched))
            Follow(*bar);
    }
    return false;
}

// To hide the bar would be of no use: the layout shows it again, for ever.
void PaneTabs::Follow(QTabBar& bar)
{
    // A part of the window by this name is none to a screen reader.
    static const QString kUntold = QStringLiteral("qt_rubberband");
    const bool isSeen = bar.parentWidget()->rect().intersects(bar.geometry());
    bar.setFocusPolicy(isSeen ? Qt::TabFocus : Qt::NoFocus);
    bar.setObjectName(isSeen ? QString() : kUntold);
}
