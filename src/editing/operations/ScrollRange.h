// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The range of the horizontal scroll bar, measured as lines come into view. An engine that is told
/// nothing takes 2,000 pixels, whatever its text.
#pragma once

#include "common/Export.h"

class CZNCoreEditorControl;

/// Widens the range of the horizontal scroll bar to the longest of the lines. In an editor with a
/// scheme it is set back once the text has rested and is much narrower.
ZN_API void FitScrollWidth(CZNCoreEditorControl& editor, int firstLine, int lastLine);
