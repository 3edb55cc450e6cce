// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/looks/TabArrows.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace engine {
namespace {

using Sci = QsciScintillaBase;
using WPARAM = std::uintptr_t;

constexpr long kFarthest = 4096; // bytes of a line that are looked at

} // namespace

TabArrows::TabArrows(const Raw& raw, const QColor& colour, int width)
    : m_raw(raw), m_colour(colour), m_width(width),
      m_shown(static_cast<long>(raw.Send(Sci::SCI_GETVIEWWS)))
{}

void TabArrows::Paint(QPainter& painter, long line, int height) const
{
    const auto number = static_cast<WPARAM>(line);
    const auto indent = static_cast<long>(m_raw.Send(Sci::SCI_GETLINEINDENTPOSITION, number));
    auto start = static_cast<long>(m_raw.Send(Sci::SCI_POSITIONFROMLINE, number));
    auto end = static_cast<long>(m_raw.Send(Sci::SCI_GETLINEENDPOSITION, number));
    if (m_shown == Sci::SCWS_VISIBLEAFTERINDENT)
        start = indent;
    if (m_shown == Sci::SCWS_VISIBLEONLYININDENT)
        end = indent;
    end = std::min(end, start + kFarthest);
    const std::string bytes = end > start ? std::string(m_raw.Bytes(start, end)) : std::string();
    const bool isWrapped = m_raw.Send(Sci::SCI_GETWRAPMODE) != 0;
    const qreal side = std::max(2.0, height / 7.0);
    painter.setPen(QPen(m_colour, 1));
    for (std::size_t at = bytes.find('\t'); at != std::string::npos;
         at = bytes.find('\t', at + 1)) {
        const long place = start + static_cast<long>(at);
        const auto left = m_raw.Send(Sci::SCI_POINTXFROMPOSITION, 0, place);
        if (left > m_width && !isWrapped)
            break;
        const auto right = m_raw.Send(Sci::SCI_POINTXFROMPOSITION, 0, place + 1);
        if (right - left < 2 * side)
            continue; // no room, or the next row
        const auto top = m_raw.Send(Sci::SCI_POINTYFROMPOSITION, 0, place);
        // Where the stock engine's line ends.
        const QPointF point(static_cast<qreal>(right) - 1.5,
                            static_cast<qreal>(top) + std::floor(height / 2.0) + 0.5);
        const QPointF ends[] = {point + QPointF(-side, -side), point, point + QPointF(-side, side)};
        painter.drawPolyline(ends, 3);
    }
}

} // namespace engine
