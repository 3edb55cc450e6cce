// SPDX-License-Identifier: GPL-3.0-or-later
// Colours of settings as they are painted.
#pragma once

#include "platform/base/Colours.h"

#include <QPainter>
#include <QPalette>

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
