// SPDX-License-Identifier: GPL-3.0-or-later
// The range of the horizontal scroll bar, measured as lines come into view.
#pragma once

class CZNCoreEditorControl;

// Widens the range of the horizontal scroll bar to the longest of the lines; it never shrinks.
void FitScrollWidth(CZNCoreEditorControl& editor, int firstLine, int lastLine);
