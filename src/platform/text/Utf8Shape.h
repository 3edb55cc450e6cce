// SPDX-License-Identifier: GPL-3.0-or-later
// Whether bytes are UTF-8, sixteen at a time and without converting them.
#pragma once

#include <cstddef>

namespace platform::utf8 {

// By the shape of the characters alone: each byte that may begin one has as many continuation bytes
// behind it as it tells, but for the last character, which the end may cut.
bool HasShape(const unsigned char* bytes, std::size_t byteCount);

// None is overlong, a surrogate or above U+10FFFF either, and the last one is whole.
bool IsWellFormed(const unsigned char* bytes, std::size_t byteCount);

bool IsAscii(const unsigned char* bytes, std::size_t byteCount);

} // namespace platform::utf8
