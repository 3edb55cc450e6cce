// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/colours/SqlPlaces.h"

namespace engine {

long SqlPlaces::PositionOf(std::size_t index, long length) const
{
    return At(index).position + (index < m_front.size() ? 0 : length);
}

std::size_t SqlPlaces::FirstFrom(long position, long length) const
{
    std::size_t low = 0;
    std::size_t high = Count();
    while (low < high) {
        const std::size_t middle = low + (high - low) / 2;
        if (PositionOf(middle, length) < position)
            low = middle + 1;
        else
            high = middle;
    }
    return low;
}

void SqlPlaces::Clear()
{
    m_front.clear();
    m_back.clear();
}

void SqlPlaces::Replace(long from, long to, const std::vector<Place>& others, long length)
{
    MoveGap(FirstFrom(from, length), length);
    while (!m_back.empty() && m_back.back().position + length < to)
        m_back.pop_back();
    m_front.insert(m_front.end(), others.begin(), others.end());
}

void SqlPlaces::MoveGap(std::size_t index, long length)
{
    while (m_front.size() > index) {
        m_back.push_back(m_front.back());
        m_back.back().position -= length;
        m_front.pop_back();
    }
    while (m_front.size() < index) {
        m_front.push_back(m_back.back());
        m_front.back().position += length;
        m_back.pop_back();
    }
}

} // namespace engine
