// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/files/TextCounts.h"

#include "platform/text/AsciiRun.h"
#include "platform/text/Utf8.h"

#include <algorithm>
#include <array>

namespace {

bool IsInside(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

#if defined(__SSE2__)

__m128i Sixteen(int byte)
{
    return _mm_set1_epi8(static_cast<char>(byte));
}

// The sum of what the marks are of each byte, 0, -1 or -2, as far as there are whole chunks.
template <class Marks>
long Sum(const char*& at, const char* end, Marks marksAt)
{
    constexpr std::ptrdiff_t kChunk = platform::ascii::kChunk;
    constexpr int kMost = 127; // chunks that a byte can count
    long sum = 0;
    while (end - at >= kChunk) {
        __m128i counts = _mm_setzero_si128();
        for (int i = 0; i < kMost && end - at >= kChunk; ++i, at += kChunk)
            counts = _mm_sub_epi8(counts, marksAt(at));
        const __m128i halves = _mm_sad_epu8(counts, _mm_setzero_si128());
        sum += _mm_cvtsi128_si32(halves) + _mm_extract_epi16(halves, 4);
    }
    return sum;
}

// Signed, 80 to FF are the lowest.
long UnitsOfChunks(const char*& at, const char* end)
{
    return Sum(at, end, [](const char* place) {
        const __m128i chunk = platform::ascii::Load(place);
        const __m128i begin = _mm_cmpgt_epi8(chunk, Sixteen(0xBF));
        const __m128i four = _mm_and_si128(_mm_cmpgt_epi8(chunk, Sixteen(0xEF)),
                                           _mm_cmplt_epi8(chunk, _mm_setzero_si128()));
        return _mm_add_epi8(begin, four);
    });
}

// There is a byte behind the end.
long LineEndsOfChunks(const char*& at, const char* end)
{
    return Sum(at, end, [](const char* place) {
        const __m128i feed = Sixteen('\n');
        const __m128i chunk = platform::ascii::Load(place);
        const __m128i feedBehind = _mm_cmpeq_epi8(platform::ascii::Load(place + 1), feed);
        const __m128i carriage = _mm_cmpeq_epi8(chunk, Sixteen('\r'));
        return _mm_or_si128(_mm_cmpeq_epi8(chunk, feed), _mm_andnot_si128(feedBehind, carriage));
    });
}

#else

long UnitsOfChunks(const char*&, const char*)
{
    return 0; // one by one then
}

long LineEndsOfChunks(const char*&, const char*)
{
    return 0;
}

#endif

} // namespace

// Each character is as many units as it has bytes that begin it, and one more for a lead of four.
long UnitsIn(std::string_view text)
{
    const char* at = text.data();
    const char* const end = at + text.size();
    long units = UnitsOfChunks(at, end);
    for (; at < end; ++at)
        units += !IsInside(*at) + (static_cast<unsigned char>(*at) >= 0xF0);
    return units;
}

// Qt would take U+FEFF at the start for a mark. A short text needs no more room than it has units.
QString TextOf(std::string_view text)
{
    const auto convert = [text](char16_t* units, std::size_t room) {
        return static_cast<qsizetype>(platform::utf8::ToUnits(
            reinterpret_cast<const unsigned char*>(text.data()), text.size(), units, room));
    };
    constexpr std::size_t kShort = 512; // bytes, and so units at most
    if (text.size() > kShort) {
        QString made(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
        made.truncate(convert(reinterpret_cast<char16_t*>(made.data()), text.size()));
        return made;
    }
    std::array<char16_t, kShort> units;
    const qsizetype count = convert(units.data(), units.size());
    return QString(reinterpret_cast<const QChar*>(units.data()), count);
}

long LineEndsIn(std::string_view text, std::size_t from, std::size_t to)
{
    if (from >= to)
        return 0;
    const char* at = text.data() + from;
    long ends = LineEndsOfChunks(at, text.data() + std::min(to, text.size() - 1));
    for (from = static_cast<std::size_t>(at - text.data()); from < to; ++from)
        ends += IsLineEnd(text, from);
    return ends;
}
