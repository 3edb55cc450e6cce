// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/DeviceContext.h"

#include "platform/base/Colours.h"

#include <QPainter>

CDC::~CDC() = default;

void CDC::FillSolidRect(const RECT& rect, COLORREF color)
{
    const QRect area(static_cast<int>(rect.left), static_cast<int>(rect.top),
                     static_cast<int>(rect.right - rect.left),
                     static_cast<int>(rect.bottom - rect.top));
    m_painter->fillRect(area, ToQColor(color));
}

int CDC::GetDeviceCaps(int index) const
{
    const QPainter* painter = GetSafeHdc();
    const QPaintDevice* device = painter ? painter->device() : nullptr;
    if (!device)
        return 0;
    switch (index) {
    case HORZRES:
        return device->width();
    case VERTRES:
        return device->height();
    case LOGPIXELSX:
        return device->logicalDpiX();
    case LOGPIXELSY:
        return device->logicalDpiY();
    default:
        return 0;
    }
}
