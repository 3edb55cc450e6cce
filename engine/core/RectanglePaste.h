// SPDX-License-Identifier: GPL-3.0-or-later
// A rectangle put in beside whole characters. The stock engine looks for the place in each line by
// pixels, which may lie within a character that it takes byte by byte, and pads a line with blanks
// until it is as wide, which never ends where a blank has no width.
#pragma once

#include "engine/text/Raw.h"

#include <string_view>

namespace engine {

// Whether a rectangle is to be put in here: there may be noncharacters, or blanks have no width.
bool NeedsOwnRectanglePaste(const Raw& raw, bool mayHaveNoncharacters);

// Over what is selected, at the column where that begins in its first line and those below; one
// undo step. The caret stays before it, as the stock engine leaves it.
void PasteRectangle(const Raw& raw, std::string_view bytes);

} // namespace engine
