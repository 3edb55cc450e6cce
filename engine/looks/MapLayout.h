// SPDX-License-Identifier: GPL-3.0-or-later
// MapLayout: which rows of a text a map of it has at which pixel, and where its box is. Rows are
// those of the window: a wrapped line has several, a hidden one none. A text that is taller than
// the map goes by behind it, in proportion: at its ends the map stands at its own. Knows no window.
#pragma once

#include <cstdint>

namespace engine {

class MapLayout
{
public:
    struct Text // in rows
    {
        std::int64_t rows = 1;
        double top = 0;        // the one at the window's top, or the part of it that is above
        double page = 1;       // that the window has room for
        std::int64_t last = 0; // the greatest top

        bool operator==(const Text&) const = default;
    };

    // Both in pixels, of which a row has at least 1.
    MapLayout(int height, int rowHeight, const Text& text);

    int Height() const { return m_height; }
    // Pixels of the text's map above this one.
    std::int64_t Offset() const { return m_offset; }

    // What can be seen at least in part.
    std::int64_t FirstRow() const { return m_offset / m_rowHeight; }
    int RowCount() const;

    int TopOf(std::int64_t row) const;      // its first pixel
    std::int64_t RowAt(double pixel) const; // the nearest that there is
    bool HasRowAt(double pixel) const;

    // The box around the rows that the window shows; it may end below the map.
    double BoxTop() const { return m_text.top * m_rowHeight - static_cast<double>(m_offset); }
    double BoxHeight() const { return m_text.page * m_rowHeight; }

    // The tops of the text, 0 to the last, ...
    double TopAfter(double top, double pixels) const; // ... when the box is moved so far
    double TopAround(double pixel) const;             // ... with the row there in the middle

    bool operator==(const MapLayout&) const = default;

private:
    double Clamped(double top) const;

    int m_height;
    int m_rowHeight;
    Text m_text;
    std::int64_t m_offset = 0;
    double m_way = 1; // pixels that the box goes when the text goes by a row
};

} // namespace engine
