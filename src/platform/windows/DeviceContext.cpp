#include "platform/windows/DeviceContext.h"

#include <QColor>
#include <QPainter>

void CDC::FillSolidRect(const RECT& rect, COLORREF color)
{
    const QRect area(static_cast<int>(rect.left), static_cast<int>(rect.top),
                     static_cast<int>(rect.right - rect.left),
                     static_cast<int>(rect.bottom - rect.top));
    m_painter.fillRect(area,
                       QColor(static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF),
                              static_cast<int>(color >> 16 & 0xFF)));
}
