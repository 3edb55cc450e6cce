// SPDX-License-Identifier: GPL-3.0-or-later
// The frame around what has the keys, told at a glance on light and dark grounds.
#pragma once

#include <QColor>
#include <QPalette>

class QPainter;
class QRect;

// How much two colours stand off from each other, from 1 to 21, as the Web Content Accessibility
// Guidelines count it; they want 3 of a frame.
double ContrastOf(const QColor& one, const QColor& other);

// The palette's colour of links where the ground lets it stand out, else that of its texts.
QColor FocusColour(const QPalette& palette, const QColor& ground);

// Inside the rectangle; the width is in pixels.
void DrawFocusFrame(QPainter& painter, const QRect& rect, const QColor& colour, double width);
