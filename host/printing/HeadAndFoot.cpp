// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/printing/HeadAndFoot.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>

namespace headandfoot {
namespace {

constexpr double kPoints = 8;   // of the letters
constexpr double kBand = 2;     // lines of them, the text's distance with them
constexpr double kRule = 1.25;  // lines, from the page's edge
constexpr double kHair = 0.5;   // points
constexpr int kFewestBands = 8; // that a page is high, or it has none
constexpr QColor kInk(0x55, 0x55, 0x55);
constexpr QColor kLine(0xAA, 0xAA, 0xAA);

// Sized by the page's pixels, which are not the screen's.
QFont Letters(const QPainter& painter)
{
    QFont font(QGuiApplication::font().family());
    font.setPointSizeF(kPoints);
    return {font, painter.device()};
}

double LineHeight(const QPainter& painter)
{
    return QFontMetricsF(Letters(painter), painter.device()).height();
}

bool HasRoom(const RECT& page, double line)
{
    return page.bottom - page.top >= kFewestBands * kBand * line;
}

} // namespace

RECT TextArea(const QPainter& painter, const RECT& page)
{
    const double line = LineHeight(painter);
    if (!HasRoom(page, line))
        return page;
    const auto band = static_cast<long>(kBand * line);
    return {page.left, page.top + band, page.right, page.bottom - band};
}

void Draw(QPainter& painter, const RECT& page, const Words& words)
{
    const QFontMetricsF metrics(Letters(painter), painter.device());
    const double line = metrics.height();
    if (!HasRoom(page, line))
        return;
    const double width = page.right - page.left;
    const QRectF head(page.left, page.top, width, line);
    const QRectF foot(page.left, page.bottom - line, width, line);
    const double room = width - metrics.horizontalAdvance(words.page) - 2 * line;
    painter.save();
    painter.setFont(Letters(painter));
    painter.setPen(kInk);
    painter.drawText(head, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     metrics.elidedText(words.name, Qt::ElideMiddle, room));
    painter.drawText(head, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, words.page);
    painter.drawText(foot, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, words.printed);
    painter.setPen(QPen(kLine, kHair * painter.device()->logicalDpiY() / 72));
    for (const double y : {page.top + kRule * line, page.bottom - kRule * line})
        painter.drawLine(QPointF(page.left, y), QPointF(page.right, y));
    painter.restore();
}

} // namespace headandfoot
