// SPDX-License-Identifier: GPL-3.0-or-later
#include "encoding/ContentDetection.h"

#include "encoding/Units.h"
#include "platform/text/AsciiRun.h"
#include "platform/text/CodePage.h"
#include "platform/text/Utf8Shape.h"

#include <algorithm>
#include <string_view>

namespace content {
namespace {

using Converter = FileEncodeConverter;

// Blanks and line ends are the characters that nearly every script has and that the other byte
// order turns into nothing that anyone writes.
bool IsSpace(unsigned int character)
{
    return character == 9 || character == 10 || character == 13 || character == 32;
}

bool IsInvalidWord(unsigned int word)
{
    return units::IsSurrogate(word) || word == 0xFFFE || word == 0xFFFF || word > 0x10FFFF;
}

// Not for high surrogates, which the next unit decides about.
bool IsInvalidUnit(unsigned int unit)
{
    return unit == 0xFFFE || unit == 0xFFFF || units::IsLowSurrogate(unit);
}

// What a walk found out about one byte order.
struct Order
{
    bool invalid = false;
    bool ascii = true;
    bool space = false;
};

struct Orders
{
    Order le;
    Order be;
    bool done = false; // the walk ends before the block does
};

void ForgetSpaceOfInvalid(Orders& orders)
{
    if (orders.le.invalid)
        orders.le.space = false;
    if (orders.be.invalid)
        orders.be.space = false;
}

// A NUL is a character in neither order.
void MeetNul(Orders& orders)
{
    orders.le.invalid = orders.be.invalid = true;
    orders.le.ascii = orders.be.ascii = false;
    orders.done = true;
}

// The rules that both widths share, the first that holds; encANSI if none does.
Converter::encodingType FirstVerdict(const Orders& orders, Converter::encodingType little,
                                     Converter::encodingType big)
{
    if (orders.le.space)
        return little;
    if (orders.be.space)
        return orders.le.ascii ? little : big;
    if (orders.le.ascii)
        return little;
    return orders.be.ascii ? big : Converter::encANSI;
}

// One word in one order, which is one of the two orders. A block invalid in both is no UTF-32.
void MeetWord(unsigned int word, Order& order, Orders& orders)
{
    if (word > 0x7F)
        order.ascii = false;
    if (!IsInvalidWord(word))
        return;
    order.invalid = true;
    if (orders.le.invalid && orders.be.invalid) {
        orders.le.space = orders.le.ascii = orders.be.ascii = false;
        orders.done = true;
    }
}

enum class Met
{
    Valid,
    Invalid,
    Pair
};

// One unit in one order; next is the unit behind it in the same order, or -1 at the block's end. A
// pair of surrogates is proof of its order. A high surrogate that the block's end cuts off passes.
Met MeetUnit(unsigned int unit, long next, Order& order)
{
    if (unit > 0x7F)
        order.ascii = false;
    if (units::IsHighSurrogate(unit) && next >= 0) {
        if (!units::IsLowSurrogate(static_cast<unsigned int>(next))) {
            order.invalid = true;
            return Met::Invalid;
        }
        order.space = true;
        return Met::Pair;
    }
    if (IsInvalidUnit(unit)) {
        order.invalid = true;
        return Met::Invalid;
    }
    return Met::Valid;
}

// The unit of both orders at one place. A pair ends the walk, since it sets the order's space.
void MeetUnits(unsigned int unit, long next, Orders& orders)
{
    const Met little = MeetUnit(unit, next, orders.le);
    if (little == Met::Pair)
        return;
    if (little == Met::Invalid && orders.be.invalid) {
        orders.done = true;
        return;
    }
    if (unit == 0) {
        MeetNul(orders);
        return;
    }
    orders.le.space |= IsSpace(unit);

    const unsigned int swapped = units::Swap16(unit);
    const long nextSwapped = next < 0 ? next : units::Swap16(static_cast<unsigned int>(next));
    const Met big = MeetUnit(swapped, nextSwapped, orders.be);
    if (big == Met::Pair)
        return;
    if (big == Met::Invalid && orders.le.invalid) {
        // A broken pair vouches for little-endian, which holds only if a zero byte was seen.
        orders.le.space |= units::IsHighSurrogate(swapped);
        orders.done = true;
        return;
    }
    orders.be.space |= IsSpace(swapped);
}

// Whether the eight units at a place say nothing in either order: none is ASCII, half a pair or no
// character. Text of one byte a character is all like that, but for rare letters.
bool AreDull(const unsigned char* bytes)
{
#if defined(__SSE2__)
    const auto byte = [](int value) { return _mm_set1_epi8(static_cast<char>(value)); };
    const __m128i chunk = platform::ascii::Load(bytes);
    const __m128i halves = _mm_cmpeq_epi8(_mm_and_si128(chunk, byte(0xF8)), byte(0xD8));
    const __m128i none = _mm_cmpeq_epi8(_mm_max_epu8(chunk, byte(0xFE)), chunk);
    const __m128i odd =
        _mm_or_si128(_mm_or_si128(halves, none), _mm_cmpeq_epi8(chunk, _mm_setzero_si128()));
    return _mm_movemask_epi8(odd) == 0;
#else
    return std::all_of(bytes, bytes + platform::ascii::kChunk, [](unsigned char byte) {
        return byte != 0 && (byte & 0xF8) != 0xD8 && byte < 0xFE;
    });
#endif
}

bool LooksSwapped(const unsigned char* bytes, unsigned int length)
{
    int tests = platform::IS_TEXT_UNICODE_REVERSE_STATISTICS;
    return platform::IsTextUnicode(bytes, static_cast<int>(length), &tests) && tests != 0;
}

std::string_view FirstLine(std::string_view text)
{
    const std::size_t end = text.find_first_of("\r\n");
    return text.substr(0, end);
}

bool IsOfName(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9') || character == '_' || character == '-' ||
           character == '.';
}

char ToLower(char character)
{
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                                : character;
}

} // namespace

Converter::encodingType DetectUtf32(const unsigned char* bytes, unsigned int length)
{
    Orders orders;
    bool littleLowZero = false;
    bool bigLowZero = false;
    for (unsigned int i = 0; i < length && !orders.done; i += 4) {
        if (orders.le.space || orders.be.space)
            break;
        const unsigned int word = units::WordAt(bytes + i);
        littleLowZero |= (word & 0xFFFF) == 0;
        MeetWord(word, orders.le, orders);
        if (orders.done)
            break;
        if (word == 0) {
            MeetNul(orders);
            break;
        }
        orders.le.space |= IsSpace(word);

        const unsigned int swapped = units::Swap32(word);
        bigLowZero |= (swapped & 0xFFFF) == 0;
        MeetWord(swapped, orders.be, orders);
        if (!orders.done)
            orders.be.space |= IsSpace(swapped);
    }
    if (!littleLowZero && !bigLowZero)
        ForgetSpaceOfInvalid(orders);
    const auto verdict = FirstVerdict(orders, Converter::encUTF32LE, Converter::encUTF32BE);
    if (verdict != Converter::encANSI || (!littleLowZero && !bigLowZero))
        return verdict;
    return littleLowZero ? Converter::encUTF32LE : Converter::encUTF32BE;
}

Converter::encodingType DetectUtf16(const unsigned char* bytes, unsigned int length)
{
    Orders orders;
    bool zeroByte = false;
    constexpr unsigned int kChunk = platform::ascii::kChunk;
    for (unsigned int i = 0; i < length && !orders.done; i += 2) {
        if (orders.le.space || orders.be.space)
            break;
        if (i % kChunk == 0 && length - i >= kChunk && AreDull(bytes + i)) {
            orders.le.ascii = orders.be.ascii = false;
            i += kChunk - 2;
            continue;
        }
        zeroByte |= bytes[i] == 0 || bytes[i + 1] == 0;
        const long next = i + 2 < length ? units::UnitAt(bytes + i + 2) : -1;
        MeetUnits(units::UnitAt(bytes + i), next, orders);
    }
    if (!zeroByte)
        ForgetSpaceOfInvalid(orders);
    const auto verdict = FirstVerdict(orders, Converter::encUTF16LE, Converter::encUTF16BE);
    if (verdict != Converter::encANSI || !zeroByte)
        return verdict;
    return LooksSwapped(bytes, length) ? Converter::encUTF16BE : Converter::encUTF16LE;
}

Converter::encodingType DetectUtf8(const unsigned char* bytes, unsigned int length)
{
    if (platform::utf8::IsAscii(bytes, length) || !platform::utf8::HasShape(bytes, length))
        return Converter::encANSI;
    return Converter::encUTF8;
}

Converter::encodingType FindCookie(const unsigned char* bytes, unsigned int length)
{
    constexpr std::string_view kWord = "coding";
    constexpr std::string_view kUtf8 = "utf-8";
    std::string_view line = FirstLine({reinterpret_cast<const char*>(bytes), length});
    const std::size_t word = line.find(kWord);
    if (word == std::string_view::npos)
        return Converter::encANSI;
    line.remove_prefix(word + kWord.size());
    if (line.empty() || (line[0] != ':' && line[0] != '='))
        return Converter::encANSI;
    line.remove_prefix(1);
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));

    const auto end = std::find_if_not(line.begin(), line.end(), IsOfName);
    const bool isUtf8 = std::equal(line.begin(), end, kUtf8.begin(), kUtf8.end(),
                                   [](char a, char b) { return ToLower(a) == b; });
    return isUtf8 ? Converter::encUTF8Cookie : Converter::encANSI;
}

} // namespace content
