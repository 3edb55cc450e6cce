// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/Timer.h"

#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <climits>

namespace {

QString NameOf(UINT id)
{
    return QStringLiteral("WM_TIMER %1").arg(id);
}

QTimer* Find(HWND window, UINT id)
{
    return IsWindow(window) ? window->findChild<QTimer*>(NameOf(id), Qt::FindDirectChildrenOnly)
                            : nullptr;
}

// A timer that is killed stays for the next use, since it may be killed out of its own message.
QTimer* Make(HWND window, UINT id)
{
    auto* timer = new QTimer(window);
    timer->setObjectName(NameOf(id));
    QObject::connect(timer, &QTimer::timeout, window,
                     [window, id] { SendMessage(window, WM_TIMER, id, 0); });
    return timer;
}

} // namespace

bool SetTimer(HWND window, UINT id, UINT milliseconds)
{
    if (!IsWindow(window))
        return false;
    QTimer* timer = Find(window, id);
    if (!timer)
        timer = Make(window, id);
    timer->start(static_cast<int>(std::clamp(milliseconds, 1u, UINT(INT_MAX))));
    return true;
}

bool KillTimer(HWND window, UINT id)
{
    QTimer* timer = Find(window, id);
    if (!timer || !timer->isActive())
        return false;
    timer->stop();
    return true;
}

UINT TimerInterval(HWND window, UINT id)
{
    const QTimer* timer = Find(window, id);
    return timer && timer->isActive() ? static_cast<UINT>(timer->interval()) : 0;
}
