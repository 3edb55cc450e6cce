// SPDX-License-Identifier: GPL-3.0-or-later
// MapPicture: the picture of some rows of a text, a few pixels high each, which are kept as long as
// they look alike and go along when lines come and go. A pixel is the number of a style, of which
// the colours are looked up when it is shown. It reads no more of a line than fits into the width.
#pragma once

#include "engine/text/Raw.h"

#include <QColor>
#include <QImage>

#include <vector>

namespace engine {

// A row of a line; one that is not wrapped has one part.
struct MapRow
{
    long line = -1; // none
    long part = 0;
    long parts = 1;

    bool operator==(const MapRow&) const = default;
};

class MapPicture
{
public:
    struct Measures // in pixels
    {
        int width = 0;
        int left = 0; // of the text
        int row = 0;
        int ink = 0;    // of a row, from its top
        int column = 0; // of a character, and of a blank
        int tab = 0;    // columns

        bool operator==(const Measures&) const = default;
    };

    explicit MapPicture(const Raw& raw) : m_raw(raw) {}

    // Nothing is drawn any more if they differ.
    void SetMeasures(const Measures& measures);
    // Asks how styles look, and takes so much of their ink. True if that has changed anything.
    bool TakeColours(double share);
    QColor Ground() const { return QColor(m_image.color(kGround)); }
    QColor Ink() const { return QColor(m_ink); } // undiluted, of text

    // The rows that are wanted from here on, top to bottom in the order of the text. Those that
    // were drawn are moved to where they belong. True if that has changed anything.
    bool Show(const std::vector<MapRow>& rows);
    // Draws the first row that is not; false if all are.
    bool DrawNext();

    // The text has changed there, and the lines behind have moved.
    void LinesChanged(long first, long last, long moved);
    void Forget(); // all

    const QImage& Image() const { return m_image; }

private:
    static constexpr int kGround = 33; // the style of line numbers, which no text has

    void Move(std::size_t from, std::size_t to);
    void Clear(std::size_t row);
    void Draw(const MapRow& row, std::size_t at);
    void Run(std::size_t row, int from, int to, int style);

    const Raw& m_raw;
    Measures m_measures;
    QImage m_image;
    QRgb m_ink = 0;
    std::vector<MapRow> m_rows;  // wanted
    std::vector<char> m_isDrawn; // of them
    std::size_t m_next = 0;      // all before it are drawn
    std::vector<char> m_cells;   // a byte and its style each
    std::vector<QRgb> m_colours; // as they were told
};

} // namespace engine
