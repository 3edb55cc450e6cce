// SPDX-License-Identifier: GPL-3.0-or-later
// The integer that a text begins with.
#pragma once

#include <string_view>

// Behind white space and with a sign, in decimal; what follows the digits does not matter. 0 if
// there is none; one that does not fit is the nearest that does.
int IntegerOf(std::u16string_view text);
