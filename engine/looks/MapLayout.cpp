// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/looks/MapLayout.h"

#include <algorithm>
#include <cmath>

namespace engine {

// A text that can be scrolled beyond its end has blank rows there.
MapLayout::MapLayout(int height, int rowHeight, const Text& text)
    : m_height(height), m_rowHeight(rowHeight), m_text(text), m_way(rowHeight)
{
    const auto last = static_cast<double>(text.last);
    const double rows = std::max(static_cast<double>(text.rows), last + text.page);
    const double hidden = rows * rowHeight - height;
    if (hidden <= 0 || text.last <= 0)
        return;
    const double offset = std::clamp(text.top, 0.0, last) / last * hidden;
    m_offset = std::llround(offset);
    m_way = rowHeight - hidden / last;
}

int MapLayout::RowCount() const
{
    const std::int64_t behind = (m_offset + m_height + m_rowHeight - 1) / m_rowHeight;
    return static_cast<int>(std::max<std::int64_t>(0, std::min(behind, m_text.rows) - FirstRow()));
}

int MapLayout::TopOf(std::int64_t row) const
{
    return static_cast<int>(row * m_rowHeight - m_offset);
}

std::int64_t MapLayout::RowAt(double pixel) const
{
    const double row = std::floor((pixel + static_cast<double>(m_offset)) / m_rowHeight);
    return std::clamp<std::int64_t>(static_cast<std::int64_t>(row), 0,
                                    std::max<std::int64_t>(0, m_text.rows - 1));
}

bool MapLayout::HasRowAt(double pixel) const
{
    const auto end = static_cast<double>(m_text.rows * m_rowHeight - m_offset);
    return pixel >= 0 && pixel < std::min(end, static_cast<double>(m_height));
}

double MapLayout::Clamped(double top) const
{
    return std::clamp(top, 0.0, static_cast<double>(std::max<std::int64_t>(0, m_text.last)));
}

// A box that is taller than the map cannot be moved in it.
double MapLayout::TopAfter(double top, double pixels) const
{
    return m_way > 0 ? Clamped(top + pixels / m_way) : top;
}

double MapLayout::TopAround(double pixel) const
{
    constexpr double kMiddle = 0.5;
    return Clamped(static_cast<double>(RowAt(pixel)) + kMiddle - m_text.page / 2);
}

} // namespace engine
