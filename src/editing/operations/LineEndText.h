// SPDX-License-Identifier: GPL-3.0-or-later
// The characters of a line end, by the engine's mode.
#pragma once

#include <string_view>

inline constexpr const char16_t* kCrLfText = u"\r\n";
inline constexpr const char16_t* kLfText = u"\n";

// Where no single mode applies the operations differ in what they take instead.
inline std::u16string_view LineEndOf(int mode, std::u16string_view otherwise)
{
    switch (mode) {
    case 1:
        return kCrLfText;
    case 2:
        return u"\r";
    case 3:
        return kLfText;
    default:
        return otherwise;
    }
}
