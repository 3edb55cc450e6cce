// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/text/Utf8Shape.h"

#include "platform/text/AsciiRun.h"

#include <bit>
#include <cstring>

namespace platform::utf8 {
namespace {

constexpr std::size_t kChunk = ascii::kChunk;

// What the sixteen bytes of a chunk are, a bit for each, the first one lowest.
struct Kinds
{
    unsigned continuations = 0;
    unsigned leads = 0; // of two bytes and more
    unsigned leadsOfThree = 0;
    unsigned leadsOfFour = 0;
    unsigned strict = 0; // leads whose second byte has bounds of its own
    bool hasOther = false;
};

#if defined(__SSE2__)

bool IsAsciiChunk(const unsigned char* at)
{
    return ascii::IsChunk(at);
}

Kinds KindsOf(const unsigned char* at)
{
    const __m128i chunk = ascii::Load(at);
    const auto bits = [](__m128i mask) { return static_cast<unsigned>(_mm_movemask_epi8(mask)); };
    const auto byte = [](int value) { return _mm_set1_epi8(static_cast<char>(value)); };
    // Signed, 80 to FF are the lowest.
    const auto from = [&](int value) { return bits(_mm_cmpgt_epi8(chunk, byte(value - 1))); };
    const auto is = [&](int value) { return _mm_cmpeq_epi8(chunk, byte(value)); };
    const unsigned high = bits(chunk);
    Kinds kinds;
    kinds.leads = high & from(0xC2);
    kinds.continuations = high & ~from(0xC0);
    kinds.hasOther = (high & ~kinds.continuations) != kinds.leads;
    kinds.leadsOfThree = high & from(0xE0);
    if (kinds.leadsOfThree != 0) {
        kinds.leadsOfFour = high & from(0xF0);
        kinds.hasOther |= (high & from(0xF5)) != 0;
        kinds.strict =
            bits(_mm_or_si128(_mm_or_si128(is(0xE0), is(0xED)), _mm_or_si128(is(0xF0), is(0xF4))));
    }
    return kinds;
}

#else

bool IsAsciiChunk(const unsigned char* at)
{
    unsigned char all = 0;
    for (std::size_t i = 0; i < kChunk; ++i)
        all |= at[i];
    return all < 0x80;
}

Kinds KindsOf(const unsigned char* at)
{
    Kinds kinds;
    for (std::size_t i = 0; i < kChunk; ++i) {
        const unsigned char byte = at[i];
        const unsigned bit = 1U << i;
        kinds.continuations |= (byte & 0xC0) == 0x80 ? bit : 0;
        kinds.leads |= byte >= 0xC2 ? bit : 0;
        kinds.leadsOfThree |= byte >= 0xE0 ? bit : 0;
        kinds.leadsOfFour |= byte >= 0xF0 ? bit : 0;
        kinds.strict |= byte == 0xE0 || byte == 0xED || byte == 0xF0 || byte == 0xF4 ? bit : 0;
        kinds.hasOther |= byte == 0xC0 || byte == 0xC1 || byte >= 0xF5;
    }
    return kinds;
}

#endif

// The second byte tells overlong forms, surrogates and values above U+10FFFF from good text.
bool MayFollow(unsigned char lead, unsigned char second)
{
    const unsigned char least = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    const unsigned char most = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    return second >= least && second <= most;
}

// Whether the leads at the bits, counted from a place, have a second byte that they may have.
bool AreStrictOnesGood(const unsigned char* bytes, std::size_t byteCount, std::size_t at,
                       unsigned strict)
{
    for (; strict != 0; strict &= strict - 1) {
        const std::size_t lead = at + static_cast<std::size_t>(std::countr_zero(strict));
        if (lead + 1 >= byteCount || !MayFollow(bytes[lead], bytes[lead + 1]))
            return false;
    }
    return true;
}

bool Check(const unsigned char* bytes, std::size_t byteCount, bool isStrict)
{
    unsigned char rest[kChunk] = {};
    unsigned expected = 0; // a bit for each byte that the character before it goes on with
    for (std::size_t at = 0; at < byteCount; at += kChunk) {
        const unsigned char* chunk = bytes + at;
        unsigned counted = 0xFFFF;
        if (byteCount - at < kChunk) {
            chunk = static_cast<unsigned char*>(std::memcpy(rest, chunk, byteCount - at));
            counted >>= kChunk - (byteCount - at);
        }
        if (expected == 0 && IsAsciiChunk(chunk))
            continue;
        const Kinds kinds = KindsOf(chunk);
        expected |= kinds.leads << 1 | kinds.leadsOfThree << 2 | kinds.leadsOfFour << 3;
        if (kinds.hasOther || (expected & counted) != kinds.continuations)
            return false;
        if (isStrict && kinds.strict != 0 && !AreStrictOnesGood(bytes, byteCount, at, kinds.strict))
            return false;
        expected = counted == 0xFFFF ? expected >> kChunk : expected & ~counted;
    }
    return !isStrict || expected == 0;
}

} // namespace

bool HasShape(const unsigned char* bytes, std::size_t byteCount)
{
    return Check(bytes, byteCount, false);
}

bool IsWellFormed(const unsigned char* bytes, std::size_t byteCount)
{
    return Check(bytes, byteCount, true);
}

bool IsAscii(const unsigned char* bytes, std::size_t byteCount)
{
    std::size_t at = 0;
    for (; byteCount - at >= kChunk; at += kChunk) {
        if (!IsAsciiChunk(bytes + at))
            return false;
    }
    for (; at < byteCount; ++at) {
        if (bytes[at] >= 0x80)
            return false;
    }
    return true;
}

} // namespace platform::utf8
