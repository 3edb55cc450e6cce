#include "host/BatchMark.h"

#include "editing/ZNCoreEditorControlEx.h"

#include <algorithm>

namespace {

constexpr int kMarker = 10;        // the first that no language uses
constexpr int kLeftRectangle = 27; // Scintilla's number of the symbol
constexpr unsigned long kColour = 0xC08A3C;

} // namespace

void DefineBatchMark(CZNCoreEditorControlEx& control)
{
    control.DefineMarker(kMarker, kLeftRectangle, kColour, kColour);
}

void MarkBatch(CZNCoreEditorControlEx& control)
{
    control.MarkerDeleteAll(kMarker, 1);
    const long caret = control.GetCurrentPos(1);
    long start = 0;
    long end = 0;
    if (!control.DoFindBatch(caret, caret, start, end, 1) || end <= start ||
        (start == 0 && end >= control.GetLength(1)))
        return;
    const int top = control.DocLineFromVisible(control.GetFirstVisibleLine(1), 1);
    const int bottom =
        control.DocLineFromVisible(control.GetFirstVisibleLine(1) + control.LinesOnScreen(1), 1);
    const int first = std::max(top, control.LineFromPosition(start, 1));
    const int last = std::min(bottom, control.LineFromPosition(end - 1, 1));
    for (int line = first; line <= last; ++line)
        control.MarkerAdd(line, kMarker, 1);
}
