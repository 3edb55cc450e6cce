// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/operations/ScrollRange.h"

#include "control/ZNCoreEditorControl.h"
#include "editing/operations/LineWidth.h"
#include "editing/operations/ScrollRest.h"

#include <QAbstractScrollArea>
#include <QScrollBar>

namespace {

// The bar could not follow a caret that went farther than its range was.
void ShowPlace(CZNCoreEditorControl& editor)
{
    if (auto* area = qobject_cast<QAbstractScrollArea*>(editor.GetSafeHwnd()))
        area->horizontalScrollBar()->setValue(editor.GetXOffset(1));
}

} // namespace

void FitScrollWidth(CZNCoreEditorControl& editor, int firstLine, int lastLine)
{
    const int last = std::min(lastLine, editor.GetLineCount(1) - 1);
    const int before = editor.GetScrollWidth(1);
    int width = before;
    int widest = -1;
    for (int line = firstLine; line <= last; ++line) {
        if (const int each = WidthOfLine(editor, line); each > width) {
            width = each;
            widest = line;
        }
    }
    if (width > before) {
        editor.SetScrollWidth(width, 1);
        ShowPlace(editor);
    }
    const HWND window = editor.GetSafeHwnd();
    if (ScrollRest* rest = window ? ScrollRest::Of(*window) : nullptr)
        rest->Measured(widest);
}
