// Sixteen characters at a time: runs of ASCII, and units without surrogates. Nearly all script text
// is ASCII, so these loops decide how fast a file loads and saves; everything else may be careful
// and slower.
#pragma once

#include <cstddef>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace platform::ascii {

constexpr std::size_t kChunk = 16;
constexpr std::size_t kHalfChunk = 8;

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
