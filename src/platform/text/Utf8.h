// SPDX-License-Identifier: GPL-3.0-or-later
// UTF-8 and UTF-16, both ways, without tables and without ICU.
// Counts of bytes on the one side, of UTF-16 units on the other. Ill-formed UTF-8 becomes U+FFFD,
// one for each maximal part of a character; a lone surrogate becomes the bytes EF BF BD.
#pragma once

#include <cstddef>

namespace platform::utf8 {

// How much text one conversion took, on both sides.
struct Extent
{
    std::size_t bytes;
    std::size_t units;
};

// The units that the bytes make.
std::size_t UnitCount(const unsigned char* bytes, std::size_t byteCount);

// Converts everything and gives the units written. units has room for capacity of them, which
// is at least UnitCount.
std::size_t ToUnits(const unsigned char* bytes, std::size_t byteCount, char16_t* units,
                    std::size_t capacity);

// Converts up to the first ill-formed or incomplete character. units has room for byteCount units.
Extent ToUnitsWhileWellFormed(const unsigned char* bytes, std::size_t byteCount, char16_t* units);

// The bytes that the units make.
std::size_t ByteCount(const char16_t* units, std::size_t unitCount);

// Converts everything and gives the bytes written. bytes has room for ByteCount of them.
std::size_t ToBytes(const char16_t* units, std::size_t unitCount, unsigned char* bytes);

// The bytes of the character that begins at a byte, judged by its first byte alone: 1 for ASCII,
// 2 to 4 for a lead byte (4 for anything from F0 up), 0 for a continuation byte.
inline std::size_t LengthByLead(unsigned char lead)
{
    if (lead < 0x80)
        return 1;
    if (lead < 0xC0)
        return 0;
    return lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

// The bytes that a walk in steps of LengthByLead covers before it meets a continuation byte where
// a character should begin, or a character that the bytes end within.
std::size_t Walk(const unsigned char* bytes, std::size_t byteCount);

} // namespace platform::utf8
