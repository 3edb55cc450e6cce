// SPDX-License-Identifier: GPL-3.0-or-later
// Colours of settings as they are painted.
#pragma once

#include "platform/base/Types.h"

#include <QColor>
#include <QPainter>
#include <QPalette>

inline QColor ToQColor(COLORREF color)
{
    return QColor(static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF),
                  static_cast<int>(color >> 16 & 0xFF));
}

inline COLORREF FromQColor(const QColor& color)
{
    return static_cast<COLORREF>(color.red() | color.green() << 8 | color.blue() << 16);
}

// With an edge that is seen on every ground.
inline void PaintSwatch(QPainter& painter, const QRect& rect, COLORREF color,
                        const QPalette& palette)
{
    QColor edge = palette.color(QPalette::WindowText);
    constexpr int kFaint = 110;
    edge.setAlpha(kFaint);
    painter.setPen(edge);
    painter.setBrush(ToQColor(color));
    painter.drawRect(rect.adjusted(0, 0, -1, -1));
}
