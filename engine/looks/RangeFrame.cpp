// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/looks/RangeFrame.h"

#include <QPainter>
#include <QPolygonF>

#include <algorithm>

namespace engine {
namespace {

using Sci = QsciScintillaBase;
using WPARAM = std::uintptr_t;

// The upper left of the character at a place. Of a line that is not seen nothing is measured, as it
// may be very long: its place is any outside the view.
QPoint UpperLeft(const Raw& raw, long place, const QRect& view, int height)
{
    const auto line = raw.Send(Sci::SCI_LINEFROMPOSITION, static_cast<WPARAM>(place));
    const auto row = [&raw](std::intptr_t of) {
        return raw.Send(Sci::SCI_VISIBLEFROMDOCLINE, static_cast<WPARAM>(of)) -
               raw.Send(Sci::SCI_GETFIRSTVISIBLELINE);
    };
    if (row(line + 1) <= 0)
        return {view.left(), view.top() - 2 * height};
    if (row(line) > view.height() / height)
        return {view.left(), view.bottom() + 2 * height};
    const auto x = raw.Send(Sci::SCI_POINTXFROMPOSITION, 0, std::intptr_t{place});
    const auto y = raw.Send(Sci::SCI_POINTYFROMPOSITION, 0, std::intptr_t{place});
    // What a row begins with has the view's edge for its own.
    const bool isFirst = x <= view.left() + raw.Send(Sci::SCI_GETMARGINLEFT);
    return {isFirst ? view.left() : static_cast<int>(x), static_cast<int>(y)};
}

} // namespace

void PaintFrame(QPainter& painter, const Raw& raw, const search::Range& range, const QRect& view,
                int height, const QColor& colour)
{
    const QPoint start = UpperLeft(raw, range.start, view, height);
    const QPoint end = UpperLeft(raw, range.end, view, height);
    const int left = view.left();
    const int right = view.right();
    QPolygonF frame{start};
    if (start.y() == end.y()) {
        const int x = std::max(start.x(), end.x());
        frame << QPointF(x, start.y()) << QPointF(x, start.y() + height - 1)
              << QPointF(start.x(), start.y() + height - 1);
    } else {
        frame << QPointF(right, start.y()) << QPointF(right, end.y() - 1)
              << QPointF(end.x(), end.y() - 1);
        if (end.x() > left)
            frame << QPointF(end.x(), end.y() + height - 1) << QPointF(left, end.y() + height - 1);
        if (start.x() > left)
            frame << QPointF(left, start.y() + height) << QPointF(start.x(), start.y() + height);
        else
            frame << start;
    }
    painter.setPen(QPen(colour, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolygon(frame.translated(0.5, 0.5));
}

} // namespace engine
