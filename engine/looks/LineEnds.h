// SPDX-License-Identifier: GPL-3.0-or-later
// The names of line ends behind their lines, as faint as drawn blanks: the stock engine has them in
// boxes as strong as the text.
#pragma once

#include "engine/text/Raw.h"

#include <QColor>

class QPainter;
class QRectF;

namespace engine {

class LineEnds
{
public:
    explicit LineEnds(const Raw& raw) : m_raw(raw) {}

    // Of a line; height is that of a row. Nothing where the line is too long to be laid out for it.
    void Paint(QPainter& painter, const QColor& colour, long line, int height) const;
    // Pixels behind the text; 0: nothing.
    int WidthOf(long line, int height) const;

private:
    const char* NameOf(long line) const;

    const Raw& m_raw;
};

} // namespace engine
