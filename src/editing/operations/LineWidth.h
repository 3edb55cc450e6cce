// SPDX-License-Identifier: GPL-3.0-or-later
// How wide a line is, for the range of the horizontal scroll bar.
#pragma once

class CZNCoreEditorControl;

// Pixels, with room for the caret behind it. A line of many units is estimated.
int WidthOfLine(CZNCoreEditorControl& editor, int line);
