// SPDX-License-Identifier: GPL-3.0-or-later
// The icons of the margins as shapes, so that they are sharp at every scale. Each fills the square
// around the middle given, whose side is in device-independent pixels.
#pragma once

#include <QColor>
#include <QPointF>

class QPainter;

namespace engine::icons {

void Bookmark(QPainter& painter, QPointF middle, qreal side, const QColor& colour);
void Error(QPainter& painter, QPointF middle, qreal side, const QColor& colour);
void Warning(QPainter& painter, QPointF middle, qreal side, const QColor& colour);
void Chevron(QPainter& painter, QPointF middle, qreal side, const QColor& colour, bool isOpen);

} // namespace engine::icons
