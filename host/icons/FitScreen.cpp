// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/icons/FitScreen.h"

#include <QMargins>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace {

QRect RoomFor(const QWidget& window)
{
    constexpr QMargins kFrame(4, 30, 4, 4); // at most, of a window manager's
    return window.screen()->availableGeometry().marginsRemoved(kFrame);
}

QRect Inside(QRect place, const QRect& room)
{
    place.setSize(place.size().boundedTo(room.size()));
    place.moveRight(std::min(place.right(), room.right()));
    place.moveBottom(std::min(place.bottom(), room.bottom()));
    place.moveLeft(std::max(place.left(), room.left()));
    place.moveTop(std::max(place.top(), room.top()));
    return place;
}

} // namespace

QSize FittingScreen(const QWidget& window, QSize size)
{
    return size.boundedTo(RoomFor(window).size());
}

void FitScreen(QWidget& window)
{
    const QRect room = RoomFor(window);
    if (window.isMaximized() || window.isFullScreen() || room.contains(window.geometry()))
        return;
    window.setGeometry(Inside(window.geometry(), room));
}

void FitWindow(QWidget& popup, const QWidget& window)
{
    const QRect seen = window.geometry() & window.screen()->availableGeometry();
    popup.setGeometry(Inside(popup.geometry(), seen));
}
