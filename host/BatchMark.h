// A bar in the margin beside the batch that the caret stands in.
#pragma once

class CZNCoreEditorControlEx;

void DefineBatchMark(CZNCoreEditorControlEx& control);

// Marks the lines on screen that belong to the batch. A script of one batch has none to tell apart.
void MarkBatch(CZNCoreEditorControlEx& control);
