// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers in text, decimal. Knows no window and no locale.
#pragma once

#include <string>
#include <string_view>

namespace numbers {

std::u16string TextOf(int number);

// With zeros in front up to the width, the sign included. A negative width fills up with blanks
// behind the number. No width is above kWidest.
inline constexpr int kWidest = 1024;
std::u16string PaddedTextOf(int number, int width);

// As machines add: past the largest comes the smallest.
int Sum(int first, int second);

} // namespace numbers
