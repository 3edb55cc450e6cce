// SPDX-License-Identifier: GPL-3.0-or-later
// Text in every encoding of a file, written out character by character.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace reference {

// The bytes of the text in an encoding (0, 2, 4, 6, 8, 10, 11). For 0 the characters lie below 100
// hexadecimal and outside 80 to 9F, where windows-1252 is the identity.
std::vector<std::uint8_t> Encode(const std::u32string& text, int encoding);

// The units that well-formed or ill-formed UTF-8 makes, U+FFFD for each maximal part.
std::u16string DecodeUtf8(const std::vector<std::uint8_t>& bytes);

} // namespace reference
