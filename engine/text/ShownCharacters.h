// SPDX-License-Identifier: GPL-3.0-or-later
// Characters that would mislead, or not be seen at all, as their font has them.
#pragma once

#include "engine/text/Raw.h"

namespace engine {

// The stock engine measures a text from the left and has it drawn in the order that it is written
// in: letters from the right had no width, and lay over what follows them. They are shown one by
// one in the order of the text, each in a box of its own; what turns the order around by its name,
// so that no code looks like another. So is what looks like a blank, or like nothing, and is none
// to a database. For the document that is shown.
void ShowCharacters(const Raw& raw);

} // namespace engine
