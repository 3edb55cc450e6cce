// SPDX-License-Identifier: GPL-3.0-or-later
// Tabs where whitespace is shown: the stock engine draws a line through each, and this the point of
// an arrow at its end.
#pragma once

#include "engine/text/Raw.h"

#include <QColor>

class QPainter;

namespace engine {

class TabArrows
{
public:
    TabArrows(const Raw& raw, const QColor& colour, int width);

    bool AreShown() const { return m_shown != 0; }
    // Of a line, in all of its rows; height is that of a row.
    void Paint(QPainter& painter, long line, int height) const;

private:
    const Raw& m_raw;
    QColor m_colour;
    int m_width; // of the window, in pixels
    long m_shown;
};

} // namespace engine
