// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/operations/LineWidth.h"

#include "control/ZNCoreEditorControl.h"

#include <algorithm>
#include <limits>

int WidthOfLine(CZNCoreEditorControl& editor, int line)
{
    constexpr long kRoomForTheCaret = 12;
    constexpr long kLayoutLimit = 10000; // laying out a longer line costs more than a paint may
    const long units = editor.LineLength(line, 1);
    if (units > kLayoutLimit) {
        // With room to type in, since each other range paints the line once more.
        const long unit = editor.TextWidth(0, u"n", 1);
        const long steps = units / kLayoutLimit + 1;
        return int(std::min<long>(steps * kLayoutLimit * unit, std::numeric_limits<int>::max()));
    }
    const long start = editor.PositionFromLine(line, 1);
    const long end = editor.GetLineEndPosition(line, 1);
    return int(editor.PointXFromPosition(end, 1) - editor.PointXFromPosition(start, 1) +
               kRoomForTheCaret);
}
