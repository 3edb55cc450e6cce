// SPDX-License-Identifier: GPL-3.0-or-later
// A frame around a range of the text, as it runs over the rows of a window.
#pragma once

#include "engine/search/WordRule.h"
#include "engine/text/Raw.h"

#include <QColor>
#include <QRect>

class QPainter;

namespace engine {

// view: where the text is seen, without the margins; height: of a row, in pixels. Each part of the
// frame lies inside a row, so that rows can be painted alone.
void PaintFrame(QPainter& painter, const Raw& raw, const search::Range& range, const QRect& view,
                int height, const QColor& colour);

} // namespace engine
