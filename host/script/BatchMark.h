// SPDX-License-Identifier: GPL-3.0-or-later
// A bar in the margin beside the batch that the caret stands in.
#pragma once

class CZNCoreEditorControlEx;

void DefineBatchMark(CZNCoreEditorControlEx& control);

// Marks the lines on screen that belong to the batch, and no other ones there. A script of one
// batch has none to tell apart.
void MarkBatch(CZNCoreEditorControlEx& control);

// Takes the marks away in all of the text, whichever view has set them.
void ForgetBatchMark(CZNCoreEditorControlEx& control);
