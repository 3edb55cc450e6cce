// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/icons/FocusFrame.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

double Luminance(const QColor& colour)
{
    const auto part = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) +
           0.0722 * part(colour.blueF());
}

} // namespace

double ContrastOf(const QColor& one, const QColor& other)
{
    constexpr double kFlare = 0.05; // of a screen, over its black
    const auto [less, more] = std::minmax({Luminance(one), Luminance(other)});
    return (more + kFlare) / (less + kFlare);
}

QColor FocusColour(const QPalette& palette, const QColor& ground)
{
    constexpr double kSeen = 3;
    const QColor link = palette.color(QPalette::Active, QPalette::Link);
    if (ContrastOf(link, ground) >= kSeen)
        return link;
    const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
    const QColor chosen = palette.color(QPalette::Active, QPalette::HighlightedText);
    return ContrastOf(text, ground) >= ContrastOf(chosen, ground) ? text : chosen;
}

void DrawFocusFrame(QPainter& painter, const QRect& rect, const QColor& colour, double width)
{
    constexpr double kCorner = 2.5;
    const double inset = width / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, width));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), kCorner, kCorner);
    painter.restore();
}
