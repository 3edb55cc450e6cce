// SQL colouring and the looks of an editor, set by hand on a control.
#pragma once

class CZNCoreEditorControl;

// A fixed-pitch font, line numbers, the current line lit up, generic SQL coloured.
void DressForSql(CZNCoreEditorControl& editor);

// Makes the line-number margin as wide as the last line's number needs at the present zoom.
void FitLineNumberMargin(CZNCoreEditorControl& editor);

// Widens the range of the horizontal scroll bar to the longest of the lines; it never shrinks.
void FitScrollWidth(CZNCoreEditorControl& editor, int firstLine, int lastLine);
