// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/looks/Icons.h"

#include <QPainter>
#include <QPainterPath>

namespace engine::icons {
namespace {

// White or black, whichever stands out.
QColor Against(const QColor& colour)
{
    constexpr int kMiddle = 150;
    return qGray(colour.rgb()) > kMiddle ? QColor(0x1E, 0x22, 0x27) : QColor(Qt::white);
}

} // namespace

void Bookmark(QPainter& painter, QPointF middle, qreal side, const QColor& colour)
{
    const qreal half = side / 2;
    const qreal wide = half * 0.68;
    QPainterPath ribbon;
    ribbon.moveTo(middle + QPointF(-wide, -half));
    ribbon.lineTo(middle + QPointF(wide, -half));
    ribbon.lineTo(middle + QPointF(wide, half));
    ribbon.lineTo(middle + QPointF(0, half * 0.35));
    ribbon.lineTo(middle + QPointF(-wide, half));
    ribbon.closeSubpath();
    painter.fillPath(ribbon, colour);
}

void Error(QPainter& painter, QPointF middle, qreal side, const QColor& colour)
{
    const qreal half = side / 2;
    const qreal arm = half * 0.38;
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(middle, half, half);
    painter.setPen(QPen(Against(colour), side / 8, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(middle + QPointF(-arm, -arm), middle + QPointF(arm, arm));
    painter.drawLine(middle + QPointF(-arm, arm), middle + QPointF(arm, -arm));
}

void Warning(QPainter& painter, QPointF middle, qreal side, const QColor& colour)
{
    const qreal half = side / 2;
    QPainterPath triangle;
    triangle.moveTo(middle + QPointF(0, -half * 0.85));
    triangle.lineTo(middle + QPointF(half * 0.92, half * 0.8));
    triangle.lineTo(middle + QPointF(-half * 0.92, half * 0.8));
    triangle.closeSubpath();
    painter.setPen(QPen(colour, side / 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(colour);
    painter.drawPath(triangle);
    painter.setPen(QPen(Against(colour), side / 9, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(middle + QPointF(0, -half * 0.25), middle + QPointF(0, half * 0.2));
    painter.drawPoint(middle + QPointF(0, half * 0.55));
}

void Chevron(QPainter& painter, QPointF middle, qreal side, const QColor& colour, bool isOpen)
{
    const qreal wide = side / 3;
    const qreal flat = side / 6;
    QPainterPath path;
    if (isOpen) {
        path.moveTo(middle + QPointF(-wide, -flat));
        path.lineTo(middle + QPointF(0, flat));
        path.lineTo(middle + QPointF(wide, -flat));
    } else {
        path.moveTo(middle + QPointF(-flat, -wide));
        path.lineTo(middle + QPointF(flat, 0));
        path.lineTo(middle + QPointF(-flat, wide));
    }
    painter.setPen(QPen(colour, side / 9, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(path);
}

} // namespace engine::icons
