// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorControlEx: which lines have changed since the file was read, and since it was saved.
// They are known by markers, so they move with their lines and all views of a text have them.
#include "editing/ZNCoreEditorControlEx.h"

#include "control/EngineLooks.h"

using engine::lookmarker::kLineChanged;
using engine::lookmarker::kLineSaved;

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
