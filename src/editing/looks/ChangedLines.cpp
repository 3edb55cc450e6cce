// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorControlEx: which lines have changed since the file was read, and since it was saved.
// They are known by markers, so they move with their lines and all views of a text have them.
#include "editing/ZNCoreEditorControlEx.h"

#include "control/EngineLooks.h"
#include "control/EngineRecords.h"

#include <algorithm>

using engine::lookmarker::kLineChanged;
using engine::lookmarker::kLineSaved;

// A load, which nobody can undo, changes nothing.
void CZNCoreEditorControlEx::MarkChangedLines(const SCNotification& record)
{
    constexpr int kTextBits = modification::InsertText | modification::DeleteText;
    if (!(record.modificationType & kTextBits) || !GetUndoCollection(1))
        return;
    constexpr int kBit = 1 << kLineChanged;
    const int first = LineFromPosition(record.position, 1);
    const int last = first + static_cast<int>(std::max(record.linesAdded, 0L));
    for (int line = first; line <= last; ++line) {
        if (!(MarkerGet(line, 1) & kBit))
            MarkerAdd(line, kLineChanged, 1);
    }
}

void CZNCoreEditorControlEx::MarkChangedAsSaved()
{
    if (m_scheme.isEmpty())
        return;
    constexpr int kChanged = 1 << kLineChanged;
    constexpr int kSaved = 1 << kLineSaved;
    for (int line = MarkerNext(0, kChanged, 1); line >= 0;
         line = MarkerNext(line + 1, kChanged, 1)) {
        if (!(MarkerGet(line, 1) & kSaved))
            MarkerAdd(line, kLineSaved, 1);
    }
    MarkerDeleteAll(kLineChanged, 1);
}

void CZNCoreEditorControlEx::ForgetChangedLines()
{
    MarkerDeleteAll(kLineChanged, 1);
    MarkerDeleteAll(kLineSaved, 1);
}
