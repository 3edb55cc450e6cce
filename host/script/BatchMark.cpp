// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/script/BatchMark.h"

#include "editing/ZNCoreEditorControlEx.h"
#include "looks/ColourScheme.h"

namespace {

constexpr int kMarker = 10;        // the first that no language uses
constexpr int kLeftRectangle = 27; // Scintilla's number of the symbol
constexpr unsigned long kColour = 0xC08A3C;

// Only what changes: taking all marks away walks through all lines of the text. A line that two
// marked ones were joined to has two marks.
void MarkLine(CZNCoreEditorControlEx& control, int line, bool isMarked)
{
    constexpr int kBit = 1 << kMarker;
    const bool wasMarked = (control.MarkerGet(line, 1) & kBit) != 0;
    if (isMarked && !wasMarked)
        control.MarkerAdd(line, kMarker, 1);
    while (!isMarked && (control.MarkerGet(line, 1) & kBit))
        control.MarkerDelete(line, kMarker, 1);
}

} // namespace

void DefineBatchMark(CZNCoreEditorControlEx& control)
{
    const ColourScheme* scheme = control.Scheme();
    const unsigned long colour = scheme ? scheme->Of(Drawn::Batch) : kColour;
    control.DefineMarker(kMarker, kLeftRectangle, colour, colour);
}

void MarkBatch(CZNCoreEditorControlEx& control)
{
    const long caret = control.GetCurrentPos(1);
    long start = 0;
    long end = 0;
    // Without a separator the answer is all of the text, which would be read for it.
    const bool isDivided = !control.GetBatchSeparator(1).empty() &&
                           control.DoFindBatch(caret, caret, start, end, 1) && end > start &&
                           (start > 0 || end < control.GetLength(1));
    const int first = isDivided ? control.LineFromPosition(start, 1) : 0;
    const int last = isDivided ? control.LineFromPosition(end - 1, 1) : -1;
    const int topShown = control.GetFirstVisibleLine(1);
    const int top = control.DocLineFromVisible(topShown, 1);
    const int bottom = control.DocLineFromVisible(topShown + control.LinesOnScreen(1), 1);
    for (int line = top; line <= bottom; ++line)
        MarkLine(control, line, line >= first && line <= last);
}

void ForgetBatchMark(CZNCoreEditorControlEx& control)
{
    control.MarkerDeleteAll(kMarker, 1);
}
