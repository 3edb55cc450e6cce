// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/text/ShortRun.h"

#include <array>
#include <bit>

#if defined(__SSE2__)
#include <tmmintrin.h>
#endif

namespace platform::ascii {
namespace {

#if defined(__SSE2__)

using Shuffle = std::array<unsigned char, kChunk>;

// By a mask of eight characters: from where each byte comes. With kept units, the others are left
// out; with long units, the second bytes of the others are.
template <bool Kept>
constexpr std::array<Shuffle, 256> MakeShuffles()
{
    std::array<Shuffle, 256> shuffles{};
    for (unsigned mask = 0; mask < 256; ++mask) {
        std::size_t to = 0;
        for (unsigned i = 0; i < kHalfChunk; ++i) {
            const bool isSet = (mask >> i & 1) != 0;
            if (!Kept || isSet)
                shuffles[mask][to++] = static_cast<unsigned char>(2 * i);
            if (isSet)
                shuffles[mask][to++] = static_cast<unsigned char>(2 * i + 1);
        }
    }
    return shuffles;
}

alignas(16) constexpr auto kKept = MakeShuffles<true>();
alignas(16) constexpr auto kLong = MakeShuffles<false>();

#define ZN_SHUFFLES __attribute__((target("ssse3,popcnt")))

ZN_SHUFFLES inline __m128i Shuffled(__m128i value, const Shuffle& shuffle)
{
    return _mm_shuffle_epi8(value, _mm_load_si128(reinterpret_cast<const __m128i*>(&shuffle)));
}

// A lead byte that ends a chunk takes its trail from the next one, so that each chunk begins where
// the one before ends, and none has to wait for what the other found.
ZN_SHUFFLES Taken WidenByShuffles(const unsigned char* bytes, std::size_t byteCount,
                                  char16_t* units)
{
    const __m128i zero = _mm_setzero_si128();
    const unsigned char* at = bytes;
    const unsigned char* const end = bytes + byteCount;
    char16_t* out = units;
    unsigned carried = 0; // 1: the chunk begins with the trail of a unit that is written
    while (end - at > std::ptrdiff_t{kChunk}) {
        const __m128i chunk = Load(at);
        // Signed, 80 to BF are the lowest, then C0 to DF.
        const auto below = [chunk](int limit) {
            return static_cast<unsigned>(
                _mm_movemask_epi8(_mm_cmplt_epi8(chunk, _mm_set1_epi8(static_cast<char>(limit)))));
        };
        const auto longOnes = static_cast<unsigned>(_mm_movemask_epi8(chunk));
        if ((longOnes | carried) == 0) {
            Store(out, _mm_unpacklo_epi8(chunk, zero));
            Store(out + kHalfChunk, _mm_unpackhi_epi8(chunk, zero));
            at += kChunk;
            out += kChunk;
            continue;
        }
        const unsigned trails = below(0xC0);
        const unsigned leads = below(0xE0) & ~below(0xC2);
        if ((trails | leads) != longOnes || trails != ((leads << 1 | carried) & 0xFFFF))
            break;
        const __m128i next = Load(at + 1);
        const auto decoded = [](__m128i byte, __m128i trail) {
            const __m128i isLead = _mm_cmpgt_epi16(byte, _mm_set1_epi16(0xBF));
            const __m128i shifted = _mm_slli_epi16(_mm_and_si128(byte, _mm_set1_epi16(0x1F)), 6);
            const __m128i two = _mm_or_si128(shifted, _mm_and_si128(trail, _mm_set1_epi16(0x3F)));
            return _mm_or_si128(_mm_and_si128(isLead, two), _mm_andnot_si128(isLead, byte));
        };
        const __m128i first =
            decoded(_mm_unpacklo_epi8(chunk, zero), _mm_unpacklo_epi8(next, zero));
        const __m128i second =
            decoded(_mm_unpackhi_epi8(chunk, zero), _mm_unpackhi_epi8(next, zero));
        const unsigned kept = ~trails & 0xFFFF;
        Store(out, Shuffled(first, kKept[kept & 0xFF]));
        out += std::popcount(kept & 0xFF);
        Store(out, Shuffled(second, kKept[kept >> kHalfChunk]));
        out += std::popcount(kept >> kHalfChunk);
        carried = leads >> (kChunk - 1);
        at += kChunk;
    }
    // The trail was not looked at.
    at -= carried;
    out -= carried;
    return {static_cast<std::size_t>(at - bytes), static_cast<std::size_t>(out - units)};
}

ZN_SHUFFLES Taken NarrowByShuffles(const char16_t* units, std::size_t unitCount,
                                   unsigned char* bytes)
{
    const char16_t* at = units;
    const char16_t* const end = units + unitCount;
    unsigned char* out = bytes;
    // A half writes sixteen bytes, of which eight may be those of the units behind it.
    while (static_cast<std::size_t>(end - at) >= kChunk + kHalfChunk) {
        const __m128i low = Load(at);
        const __m128i high = Load(at + kHalfChunk);
        const __m128i all = _mm_or_si128(low, high);
        const __m128i zero = _mm_setzero_si128();
        const auto isClear = [zero](__m128i bits) {
            return _mm_movemask_epi8(_mm_cmpeq_epi16(bits, zero)) == 0xFFFF;
        };
        if (isClear(_mm_and_si128(all, _mm_set1_epi16(-0x80)))) {
            Store(out, _mm_packus_epi16(low, high));
            at += kChunk;
            out += kChunk;
            continue;
        }
        if (!isClear(_mm_and_si128(all, _mm_set1_epi16(-0x800))))
            break;
        const auto encoded = [](__m128i unit, __m128i isTwo) {
            const __m128i lead = _mm_or_si128(_mm_srli_epi16(unit, 6), _mm_set1_epi16(0xC0));
            const __m128i trail =
                _mm_or_si128(_mm_and_si128(unit, _mm_set1_epi16(0x3F)), _mm_set1_epi16(0x80));
            const __m128i two = _mm_or_si128(lead, _mm_slli_epi16(trail, 8));
            return _mm_or_si128(_mm_and_si128(isTwo, two), _mm_andnot_si128(isTwo, unit));
        };
        const __m128i lowTwo = _mm_cmpgt_epi16(low, _mm_set1_epi16(0x7F));
        const __m128i highTwo = _mm_cmpgt_epi16(high, _mm_set1_epi16(0x7F));
        const auto twos =
            static_cast<unsigned>(_mm_movemask_epi8(_mm_packs_epi16(lowTwo, highTwo)));
        Store(out, Shuffled(encoded(low, lowTwo), kLong[twos & 0xFF]));
        out += kHalfChunk + static_cast<std::size_t>(std::popcount(twos & 0xFF));
        Store(out, Shuffled(encoded(high, highTwo), kLong[twos >> kHalfChunk]));
        out += kHalfChunk + static_cast<std::size_t>(std::popcount(twos >> kHalfChunk));
        at += kChunk;
    }
    return {static_cast<std::size_t>(out - bytes), static_cast<std::size_t>(at - units)};
}

bool CanShuffle()
{
    static const bool can =
        __builtin_cpu_supports("ssse3") != 0 && __builtin_cpu_supports("popcnt") != 0;
    return can;
}

#endif

} // namespace

Taken WidenByChunks(const unsigned char* bytes, std::size_t byteCount, char16_t* units)
{
    Taken taken{0, 0};
    while (byteCount - taken.bytes >= kChunk) {
        const unsigned char* const at = bytes + taken.bytes;
        const std::size_t plain = WidenChunk(at, units + taken.units);
        const Taken chunk =
            plain == kChunk ? Taken{plain, plain} : WidenShortChunk(at, units + taken.units);
        if (chunk.bytes == 0)
            break;
        taken.bytes += chunk.bytes;
        taken.units += chunk.units;
    }
    return taken;
}

Taken NarrowByChunks(const char16_t* units, std::size_t unitCount, unsigned char* bytes)
{
    Taken taken{0, 0};
    while (unitCount - taken.units > kChunk) { // there is a unit behind them
        const char16_t* const at = units + taken.units;
        if (NarrowChunk(at, bytes + taken.bytes))
            taken.bytes += kChunk;
        else if (!HasUnitWithin(at, 0x800, 0xF7FF))
            taken.bytes += NarrowShortChunk(at, bytes + taken.bytes);
        else
            break;
        taken.units += kChunk;
    }
    return taken;
}

Taken WidenShortRun(const unsigned char* bytes, std::size_t byteCount, char16_t* units)
{
#if defined(__SSE2__)
    if (CanShuffle())
        return WidenByShuffles(bytes, byteCount, units);
#endif
    return WidenByChunks(bytes, byteCount, units);
}

Taken NarrowShortRun(const char16_t* units, std::size_t unitCount, unsigned char* bytes)
{
#if defined(__SSE2__)
    if (CanShuffle())
        return NarrowByShuffles(units, unitCount, bytes);
#endif
    return NarrowByChunks(units, unitCount, bytes);
}

} // namespace platform::ascii
