// SPDX-License-Identifier: GPL-3.0-or-later
// Upper and lower case at the starts of words. Knows no window; works unit by unit.
#pragma once

#include <string>
#include <string_view>

namespace capitals {

// What is left of a unit that goes through a signed byte: above 7F only its low byte counts, and
// from 80 on that comes back as FF80 to FFFF.
char16_t Narrowed(char16_t c);

// The first letter behind white space in upper case, the others in lower case. What is no letter
// stays, and leaves it open whether the word has begun. Letters are narrowed: those above 7F do not
// survive, but where a NUL would be left the letter stays as it is.
std::u16string Capitalized(std::u16string_view text);

} // namespace capitals
