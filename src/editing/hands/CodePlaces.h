// SPDX-License-Identifier: GPL-3.0-or-later
// Where code stands in an editor's text, and what only looks like it. Positions count UTF-16 units.
#pragma once

class CZNCoreEditorControlEx;

namespace hands {

// By the style of what stands before the caret in its line, or of the line's end above. False
// without a scheme.
bool IsInStringOrComment(CZNCoreEditorControlEx& editor, long caret);

} // namespace hands
