// SPDX-License-Identifier: GPL-3.0-or-later
// Sixteen characters at a time: runs of ASCII, units without surrogates, and text below U+0800,
// whose accents come at no foreseeable place, so that it is converted without a branch. Nearly all
// script text is one of these, so these loops decide how fast a file loads and saves; everything
// else may be careful and slower.
#pragma once

#include <cstddef>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace platform::ascii {

constexpr std::size_t kChunk = 16;
constexpr std::size_t kHalfChunk = 8;

// What was taken from a chunk, and what it became.
struct Taken
{
    std::size_t bytes;
    std::size_t units;
};

#if defined(__SSE2__)

inline __m128i Load(const void* at)
{
    return _mm_loadu_si128(static_cast<const __m128i*>(at));
}
inline void Store(void* at, __m128i value)
{
    _mm_storeu_si128(static_cast<__m128i*>(at), value);
}

// Writes the 16 bytes as 16 units, and gives how many of them at the front are ASCII. The units
// behind these are of no use to anyone.
inline std::size_t WidenChunk(const unsigned char* bytes, char16_t* units)
{
    const __m128i chunk = Load(bytes);
    Store(units, _mm_unpacklo_epi8(chunk, _mm_setzero_si128()));
    Store(units + 8, _mm_unpackhi_epi8(chunk, _mm_setzero_si128()));
    const int high = _mm_movemask_epi8(chunk);
    return high == 0 ? kChunk : static_cast<std::size_t>(__builtin_ctz(high));
}

// Writes the 8 bytes as 8 units. True if they are plain: ASCII without control characters. If not,
// the units are of no use.
inline bool WidenPlainHalf(const unsigned char* bytes, char16_t* units)
{
    const __m128i chunk = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(bytes));
    Store(units, _mm_unpacklo_epi8(chunk, _mm_setzero_si128()));
    const __m128i odd = _mm_cmplt_epi8(chunk, _mm_set1_epi8(' ')); // from 80 up they are negative
    return (_mm_movemask_epi8(odd) & 0xFF) == 0;
}

// Writes the characters of one and two bytes that the 16 bytes of UTF-8 hold, the first of which
// begins one; a lead byte at the end stays for the next chunk. Nothing is taken if there is
// anything else. units has room for 16 whatever is taken.
inline Taken WidenShortChunk(const unsigned char* bytes, char16_t* units)
{
    const __m128i chunk = Load(bytes);
    // Signed, 80 to BF are the lowest, then C0 to DF.
    const auto below = [chunk](int limit) {
        return static_cast<unsigned>(
            _mm_movemask_epi8(_mm_cmplt_epi8(chunk, _mm_set1_epi8(static_cast<char>(limit)))));
    };
    const unsigned all = static_cast<unsigned>(_mm_movemask_epi8(chunk));
    const unsigned continuations = below(0xC0);
    const unsigned leads = below(0xE0) & ~below(0xC2);
    if ((continuations | leads) != all || continuations != (leads << 1 & 0xFFFF))
        return {0, 0};

    const __m128i zero = _mm_setzero_si128();
    const auto decoded = [](__m128i byte, __m128i next) {
        const __m128i isLead = _mm_cmpgt_epi16(byte, _mm_set1_epi16(0xBF));
        const __m128i high = _mm_slli_epi16(_mm_and_si128(byte, _mm_set1_epi16(0x1F)), 6);
        const __m128i two = _mm_or_si128(high, _mm_and_si128(next, _mm_set1_epi16(0x3F)));
        return _mm_or_si128(_mm_and_si128(isLead, two), _mm_andnot_si128(isLead, byte));
    };
    const __m128i next = _mm_srli_si128(chunk, 1);
    char16_t each[kChunk]; // what begins at each byte
    Store(each, decoded(_mm_unpacklo_epi8(chunk, zero), _mm_unpacklo_epi8(next, zero)));
    Store(each + 8, decoded(_mm_unpackhi_epi8(chunk, zero), _mm_unpackhi_epi8(next, zero)));
    const std::size_t left = leads >> (kChunk - 1);
    std::size_t count = 0;
    for (std::size_t i = 0; i < kChunk; ++i) {
        units[count] = each[i];
        count += ~continuations >> i & 1;
    }
    return {kChunk - left, count - left};
}

// Writes the 16 units, all below 800, as UTF-8 and gives the bytes. One byte more than these is
// written.
inline std::size_t NarrowShortChunk(const char16_t* units, unsigned char* bytes)
{
    const auto encoded = [](__m128i unit, __m128i isTwo) {
        const __m128i lead = _mm_or_si128(_mm_srli_epi16(unit, 6), _mm_set1_epi16(0xC0));
        const __m128i trail =
            _mm_or_si128(_mm_and_si128(unit, _mm_set1_epi16(0x3F)), _mm_set1_epi16(0x80));
        const __m128i two = _mm_or_si128(lead, _mm_slli_epi16(trail, 8));
        return _mm_or_si128(_mm_and_si128(isTwo, two), _mm_andnot_si128(isTwo, unit));
    };
    const __m128i low = Load(units);
    const __m128i high = Load(units + 8);
    const __m128i lowTwo = _mm_cmpgt_epi16(low, _mm_set1_epi16(0x7F));
    const __m128i highTwo = _mm_cmpgt_epi16(high, _mm_set1_epi16(0x7F));
    const auto twos = static_cast<unsigned>(_mm_movemask_epi8(_mm_packs_epi16(lowTwo, highTwo)));
    char16_t each[kChunk]; // one or two bytes
    Store(each, encoded(low, lowTwo));
    Store(each + 8, encoded(high, highTwo));
    unsigned char* at = bytes;
    for (std::size_t i = 0; i < kChunk; ++i) {
        std::memcpy(at, &each[i], sizeof each[i]);
        at += 1 + (twos >> i & 1);
    }
    return static_cast<std::size_t>(at - bytes);
}

// True if the 16 units are ASCII; only then are their 16 bytes written.
inline bool NarrowChunk(const char16_t* units, unsigned char* bytes)
{
    const __m128i low = Load(units);
    const __m128i high = Load(units + 8);
    const __m128i beyond = _mm_and_si128(_mm_or_si128(low, high), _mm_set1_epi16(-0x80));
    if (_mm_movemask_epi8(_mm_cmpeq_epi8(beyond, _mm_setzero_si128())) != 0xFFFF)
        return false;
    Store(bytes, _mm_packus_epi16(low, high));
    return true;
}

// True if the 16 bytes are ASCII.
inline bool IsChunk(const unsigned char* bytes)
{
    return _mm_movemask_epi8(Load(bytes)) == 0;
}

// True if one of the 16 units lies in first to first + span.
inline bool HasUnitWithin(const char16_t* units, char16_t first, char16_t span)
{
    const __m128i start = _mm_set1_epi16(static_cast<short>(first));
    const __m128i reach = _mm_set1_epi16(static_cast<short>(span));
    const __m128i low = _mm_subs_epu16(_mm_sub_epi16(Load(units), start), reach);
    const __m128i high = _mm_subs_epu16(_mm_sub_epi16(Load(units + 8), start), reach);
    const __m128i zero = _mm_setzero_si128();
    const __m128i within = _mm_or_si128(_mm_cmpeq_epi16(low, zero), _mm_cmpeq_epi16(high, zero));
    return _mm_movemask_epi8(within) != 0;
}

#else

inline bool HasUnitWithin(const char16_t* units, char16_t first, char16_t span)
{
    bool within = false;
    for (std::size_t i = 0; i < kChunk; ++i)
        within |= static_cast<char16_t>(units[i] - first) <= span;
    return within;
}

inline std::size_t WidenChunk(const unsigned char* bytes, char16_t* units)
{
    std::size_t ascii = 0;
    for (std::size_t i = 0; i < kChunk; ++i) {
        units[i] = bytes[i];
        ascii += ascii == i && bytes[i] < 0x80;
    }
    return ascii;
}

inline Taken WidenShortChunk(const unsigned char*, char16_t*)
{
    return {0, 0}; // one by one then
}

inline std::size_t NarrowShortChunk(const char16_t* units, unsigned char* bytes)
{
    unsigned char* out = bytes;
    for (std::size_t i = 0; i < kChunk; ++i) {
        const unsigned int unit = units[i];
        const unsigned int two = (unit + 0x780) >> 11; // 1 from 80 up
        const unsigned int lead = (0xC0 | unit >> 6) ^ unit;
        out[0] = static_cast<unsigned char>(unit ^ (lead & (0 - two)));
        out[1] = static_cast<unsigned char>(0x80 | (unit & 0x3F));
        out += 1 + two;
    }
    return static_cast<std::size_t>(out - bytes);
}

inline bool WidenPlainHalf(const unsigned char* bytes, char16_t* units)
{
    bool plain = true;
    for (std::size_t i = 0; i < kHalfChunk; ++i) {
        plain &= bytes[i] >= ' ' && bytes[i] < 0x80;
        units[i] = bytes[i];
    }
    return plain;
}

inline bool NarrowChunk(const char16_t* units, unsigned char* bytes)
{
    char16_t all = 0;
    for (std::size_t i = 0; i < kChunk; ++i)
        all |= units[i];
    if (all >= 0x80)
        return false;
    for (std::size_t i = 0; i < kChunk; ++i)
        bytes[i] = static_cast<unsigned char>(units[i]);
    return true;
}

inline bool IsChunk(const unsigned char* bytes)
{
    unsigned char all = 0;
    for (std::size_t i = 0; i < kChunk; ++i)
        all |= bytes[i];
    return all < 0x80;
}

#endif

} // namespace platform::ascii
