// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/looks/LineEnds.h"

#include <QGuiApplication>
#include <QPainter>

#include <string_view>

namespace engine {
namespace {

using Sci = QsciScintillaBase;
using WPARAM = std::uintptr_t;

constexpr long kLongest = 64 * 1024; // bytes of a line
constexpr int kGap = 2;              // pixels in front of a box

} // namespace

const char* LineEnds::NameOf(long line) const
{
    const auto number = static_cast<WPARAM>(line);
    const auto start = static_cast<long>(m_raw.Send(Sci::SCI_POSITIONFROMLINE, number));
    const auto end = static_cast<long>(m_raw.Send(Sci::SCI_GETLINEENDPOSITION, number));
    const auto next = static_cast<long>(m_raw.Send(Sci::SCI_POSITIONFROMLINE, number + 1));
    if (end - start > kLongest || next <= end)
        return "";
    const std::string_view bytes = m_raw.Bytes(end, next);
    return bytes == "\r\n" ? "CRLF" : bytes == "\r" ? "CR" : "LF";
}

int LineEnds::WidthOf(long line, int height) const
{
    const auto letters = static_cast<int>(std::string_view(NameOf(line)).size());
    return letters > 0 ? kGap + letters * height * 2 / 5 + height / 4 : 0;
}

void LineEnds::Paint(QPainter& painter, const QColor& colour, long line, int height) const
{
    const int width = WidthOf(line, height);
    if (width == 0)
        return;
    const auto end = m_raw.Send(Sci::SCI_GETLINEENDPOSITION, static_cast<WPARAM>(line));
    const QPointF place(static_cast<qreal>(m_raw.Send(Sci::SCI_POINTXFROMPOSITION, 0, end)),
                        static_cast<qreal>(m_raw.Send(Sci::SCI_POINTYFROMPOSITION, 0, end)));
    const int above = height / 5;
    const QRectF box(place + QPointF(kGap + 0.5, above + 0.5),
                     QSizeF(width - kGap - 1, height - 2 * above));
    painter.setPen(QPen(colour, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(box, 2, 2);
    QFont font = QGuiApplication::font();
    font.setPixelSize(std::max(6, height / 2));
    painter.setFont(font);
    painter.drawText(box, Qt::AlignCenter, QLatin1String(NameOf(line)));
}

} // namespace engine
