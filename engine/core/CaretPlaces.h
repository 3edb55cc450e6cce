// SPDX-License-Identifier: GPL-3.0-or-later
// CaretPlaces: all that is selected in a window, to compare and to put back. Bytes.
#pragma once

#include "engine/text/Raw.h"

#include <array>
#include <cstddef>
#include <vector>

namespace engine {

class CaretPlaces
{
public:
    CaretPlaces() = default;
    explicit CaretPlaces(const Raw& raw); // those of the moment

    // In a text that is as long as it was then.
    void PutBack(const Raw& raw) const;

    std::size_t Size() const { return m_ranges.size(); }
    bool operator==(const CaretPlaces&) const = default;

private:
    // Anchor and caret, and how many blanks behind a line's end each stands.
    using Range = std::array<long, 4>;

    std::vector<Range> m_ranges;
    std::size_t m_main = 0;
    bool m_isRectangle = false;
    Range m_corners{}; // of the rectangle
};

} // namespace engine
