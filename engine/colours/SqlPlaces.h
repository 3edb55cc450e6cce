// SPDX-License-Identifier: GPL-3.0-or-later
// SqlPlaces: places inside long lines where a styler can go on, in order. They follow the text as
// it is edited: those in front of the last edit count from the text's start and those behind it
// from its end, so that an edit costs as much as there is between it and the one before.
//
// Positions count bytes of a text that has the length that every call says.
#pragma once

#include "engine/colours/SqlStyler.h"

#include <vector>

namespace engine {

class SqlPlaces
{
public:
    struct Place
    {
        long position;
        SqlPlaceState state;
    };

    bool IsEmpty() const { return m_front.empty() && m_back.empty(); }
    std::size_t Count() const { return m_front.size() + m_back.size(); }
    long PositionOf(std::size_t index, long length) const;
    const SqlPlaceState& StateOf(std::size_t index) const { return At(index).state; }

    // The index of the first place that is not in front of the position; Count() if there is none.
    std::size_t FirstFrom(long position, long length) const;

    void Clear();

    // Puts others in the stead of those from one position up to another, that one left out. They
    // belong there. An edit between the two moves those behind it.
    void Replace(long from, long to, const std::vector<Place>& others, long length);

private:
    const Place& At(std::size_t index) const
    {
        return index < m_front.size() ? m_front[index] : m_back[Count() - 1 - index];
    }
    void MoveGap(std::size_t index, long length);

    std::vector<Place> m_front;
    std::vector<Place> m_back; // the last one first, each less the text's length
};

} // namespace engine
