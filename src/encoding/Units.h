// SPDX-License-Identifier: GPL-3.0-or-later
// Units and words as they stand in bytes, and what a UTF-16 unit can be.
#pragma once

#include <cstring>

namespace units {

inline bool IsSurrogate(unsigned int character)
{
    return (character & ~0x7FFu) == 0xD800;
}
inline bool IsHighSurrogate(unsigned int character)
{
    return (character & ~0x3FFu) == 0xD800;
}
inline bool IsLowSurrogate(unsigned int character)
{
    return (character & ~0x3FFu) == 0xDC00;
}

inline char16_t UnitAt(const unsigned char* at)
{
    return static_cast<char16_t>(at[0] | at[1] << 8);
}

inline unsigned int WordAt(const unsigned char* at)
{
    return at[0] | at[1] << 8 | at[2] << 16 | static_cast<unsigned int>(at[3]) << 24;
}

inline void PutUnit(unsigned char* at, char16_t unit)
{
    std::memcpy(at, &unit, sizeof unit);
}
inline void PutWord(unsigned char* at, unsigned int word)
{
    std::memcpy(at, &word, sizeof word);
}

inline char16_t Swap16(unsigned int unit)
{
    return __builtin_bswap16(static_cast<unsigned short>(unit));
}

inline unsigned int Swap32(unsigned int word)
{
    return __builtin_bswap32(word);
}

} // namespace units
