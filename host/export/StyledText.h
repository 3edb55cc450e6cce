// SPDX-License-Identifier: GPL-3.0-or-later
// The text of an editor with its styles, piece by piece, and how the styles look on the screen.
#pragma once

#include "control/EngineRecords.h"

#include <array>
#include <functional>
#include <string_view>
#include <vector>

class CZNCoreEditorControl;

// Of each style, by its number.
using StyleLooks = std::array<StyleLook, 256>;
StyleLooks LooksOf(const CZNCoreEditorControl& editor);

// Tells the text between two positions as runs of one style each, coloured to their end. A run does
// not end within a pair; one style may come as several runs. Positions count UTF-16 units. False as
// soon as the function gives it.
bool ForEachRun(CZNCoreEditorControl& editor, long start, long end,
                const std::function<bool(std::u16string_view text, int style)>& take);
