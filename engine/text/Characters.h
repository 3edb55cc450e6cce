// SPDX-License-Identifier: GPL-3.0-or-later
// Where characters begin and end in the stored text, by their first bytes alone. The stock engine
// takes the bytes of a noncharacter (U+FFFE, U+FDD0, U+1FFFF and their like) for characters of
// their own, so that its answers may lie inside of one.
#pragma once

#include "engine/text/Raw.h"

#include <string_view>

namespace engine {

inline bool IsContinuation(char byte)
{
    return (byte & 0xC0) == 0x80;
}

// By its first byte.
inline long WidthOf(char lead)
{
    const auto byte = static_cast<unsigned char>(lead);
    return byte < 0x80 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
}

// The start of the character that a position lies in; a place between characters stays. Bytes.
long CharacterStart(const Raw& raw, long position);

// The end of the character that a position lies in; a place between characters stays.
long CharacterEnd(const Raw& raw, long position);

// The end of the character that starts at a position; the text's end stays.
long BehindCharacter(const Raw& raw, long position);

// The start of the character that ends at a position; the text's start stays.
long BeforeCharacter(const Raw& raw, long position);

// Whether there is a noncharacter in the bytes.
bool HasNoncharacter(std::string_view bytes);

} // namespace engine
