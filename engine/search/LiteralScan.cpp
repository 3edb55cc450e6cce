// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/search/LiteralScan.h"

#include <algorithm>
#include <bit>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace engine::search {
namespace {

constexpr std::size_t kBlock = 16;
constexpr std::string_view kKelvin = "\xE2\x84\xAA";
constexpr std::string_view kLongS = "\xC5\xBF";

bool IsLetter(char byte)
{
    return (byte | 0x20) >= 'a' && (byte | 0x20) <= 'z';
}

char Lower(char byte)
{
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte | 0x20) : byte;
}

std::string_view ThirdForm(char letter)
{
    return letter == 'k' ? kKelvin : letter == 's' ? kLongS : std::string_view();
}

#ifdef __SSE2__
// Where the anchor's byte stands among the sixteen at a place.
template <class Anchor>
__m128i Standing(const Anchor& anchor, const char* at)
{
    const auto load = [](const void* from) {
        return _mm_loadu_si128(static_cast<const __m128i*>(from));
    };
    const __m128i masked = _mm_or_si128(load(at), load(anchor.masks.data()));
    return _mm_cmpeq_epi8(masked, load(anchor.bytes.data()));
}
#endif

// How common a byte is in scripts and prose; what is not named is rare.
int Commonness(char byte)
{
    static constexpr std::string_view kCommon = "etaoinsr _dlcu.,mphg01f()=2w'yb\t\nvx-3456789k;*/";
    const std::size_t place = kCommon.find(Lower(byte));
    return place == std::string_view::npos ? 0 : static_cast<int>(kCommon.size() - place);
}

} // namespace

bool LiteralScan::Suits(std::string_view sought, bool matchCase)
{
    if (matchCase)
        return true;
    const bool isAscii = std::all_of(sought.begin(), sought.end(), [](char c) { return c >= 0; });
    return isAscii && std::any_of(sought.begin(), sought.end(),
                                  [](char c) { return ThirdForm(Lower(c)).empty(); });
}

LiteralScan::LiteralScan(std::string_view sought, bool matchCase)
    : m_sought(sought), m_matchCase(matchCase), m_longest(sought.size())
{
    if (!matchCase) {
        for (char& byte : m_sought) {
            byte = Lower(byte);
            m_longest += std::max<std::size_t>(ThirdForm(byte).size(), 1) - 1;
        }
    }
    for (const char byte : m_sought)
        m_masks += !matchCase && IsLetter(byte) ? '\x20' : '\0';
    ChooseAnchors();
}

bool LiteralScan::IsFixed(std::size_t i) const
{
    return m_matchCase || ThirdForm(m_sought[i]).empty();
}

// All stand in one stretch of characters that have one length, so that their distances are known.
void LiteralScan::ChooseAnchors()
{
    const auto anchorAt = [this](std::size_t i) {
        Anchor anchor{i, static_cast<unsigned char>(m_sought[i]),
                      static_cast<unsigned char>(m_masks[i])};
        anchor.bytes.fill(anchor.byte);
        anchor.masks.fill(anchor.mask);
        return anchor;
    };
    const auto distance = [](std::size_t from, std::size_t to) {
        return static_cast<std::ptrdiff_t>(to) - static_cast<std::ptrdiff_t>(from);
    };
    std::size_t rarest = m_sought.size();
    for (std::size_t i = 0; i < m_sought.size(); ++i) {
        if (IsFixed(i) &&
            (rarest == m_sought.size() || Commonness(m_sought[i]) < Commonness(m_sought[rarest])))
            rarest = i;
    }
    const std::size_t second = RarestBeside(rarest, rarest);
    const std::size_t third = RarestBeside(rarest, second);
    m_first = anchorAt(rarest);
    m_second = anchorAt(second);
    m_third = anchorAt(third);
    m_distance = distance(rarest, second);
    m_thirdDistance = distance(rarest, third);
}

// In the stretch around the anchor, and not the other; the anchor, if there is none.
std::size_t LiteralScan::RarestBeside(std::size_t anchor, std::size_t other) const
{
    std::size_t rarest = anchor;
    const auto consider = [&](std::size_t i) {
        if (i != other &&
            (rarest == anchor || Commonness(m_sought[i]) < Commonness(m_sought[rarest])))
            rarest = i;
    };
    for (std::size_t i = anchor + 1; i < m_sought.size() && IsFixed(i); ++i)
        consider(i);
    for (std::size_t i = anchor; i > 0 && IsFixed(i - 1); --i)
        consider(i - 1);
    return rarest;
}

LiteralScan::Places LiteralScan::PlacesIn(std::string_view bytes) const
{
    if (bytes.size() < m_sought.size())
        return {};
    return {m_first.offset, bytes.size() - m_sought.size() + m_first.offset + 1};
}

bool LiteralScan::AnchorsAt(std::string_view bytes, std::size_t place) const
{
    const auto stands = [](const Anchor& anchor, char byte) {
        return (static_cast<unsigned char>(byte) | anchor.mask) == anchor.byte;
    };
    return stands(m_first, bytes[place]) &&
           stands(m_second, bytes[place + static_cast<std::size_t>(m_distance)]) &&
           stands(m_third, bytes[place + static_cast<std::size_t>(m_thirdDistance)]);
}

#ifdef __SSE2__

unsigned LiteralScan::AnchorsAtSixteen(const char* place) const
{
    const __m128i both =
        _mm_and_si128(Standing(m_first, place), Standing(m_second, place + m_distance));
    const auto bits = static_cast<unsigned>(_mm_movemask_epi8(both));
    if (bits == 0)
        return 0;
    return bits &
           static_cast<unsigned>(_mm_movemask_epi8(Standing(m_third, place + m_thirdDistance)));
}

bool LiteralScan::LackAnchors(const char* place) const
{
    const char* next = place + kBlock;
    const __m128i one =
        _mm_and_si128(Standing(m_first, place), Standing(m_second, place + m_distance));
    const __m128i other =
        _mm_and_si128(Standing(m_first, next), Standing(m_second, next + m_distance));
    return _mm_movemask_epi8(_mm_or_si128(one, other)) == 0;
}

#else

unsigned LiteralScan::AnchorsAtSixteen(const char* place) const
{
    unsigned bits = 0;
    const auto stands = [](const Anchor& anchor, char byte) {
        return (static_cast<unsigned char>(byte) | anchor.mask) == anchor.byte;
    };
    for (std::ptrdiff_t i = 0; i < static_cast<std::ptrdiff_t>(kBlock); ++i) {
        if (stands(m_first, place[i]) && stands(m_second, place[i + m_distance]) &&
            stands(m_third, place[i + m_thirdDistance]))
            bits |= 1U << i;
    }
    return bits;
}

bool LiteralScan::LackAnchors(const char* place) const
{
    return AnchorsAtSixteen(place) == 0 && AnchorsAtSixteen(place + kBlock) == 0;
}

#endif

Hit LiteralScan::First(std::string_view bytes, std::size_t from) const
{
    if (from > bytes.size())
        return {};
    bytes.remove_prefix(from);
    const auto [first, end] = PlacesIn(bytes);
    const auto moved = [from](Hit hit) { return Hit{hit.start + from, hit.end + from}; };
    std::size_t place = first;
    for (; place + kBlock <= end; place += kBlock) {
        while (place + 3 * kBlock <= end && LackAnchors(bytes.data() + place))
            place += 2 * kBlock;
        for (unsigned bits = AnchorsAtSixteen(bytes.data() + place); bits; bits &= bits - 1) {
            const auto bit = static_cast<std::size_t>(std::countr_zero(bits));
            if (const Hit hit = MatchAround(bytes, place + bit))
                return moved(hit);
        }
    }
    for (; place < end; ++place) {
        if (!AnchorsAt(bytes, place))
            continue;
        if (const Hit hit = MatchAround(bytes, place))
            return moved(hit);
    }
    return {};
}

Hit LiteralScan::Last(std::string_view bytes, std::size_t before) const
{
    // What starts before the place has no byte behind this one.
    if (before < bytes.size())
        bytes = bytes.substr(0, before + std::min(m_longest - 1, bytes.size() - before));
    const auto [first, end] = PlacesIn(bytes);
    const auto fits = [before](Hit hit) { return hit && hit.start < before; };
    std::size_t place = end;
    for (; place >= first + kBlock; place -= kBlock) {
        for (unsigned bits = AnchorsAtSixteen(bytes.data() + place - kBlock); bits;) {
            const auto bit = static_cast<unsigned>(std::bit_width(bits)) - 1;
            bits &= ~(1U << bit);
            if (const Hit hit = MatchAround(bytes, place - kBlock + bit); fits(hit))
                return hit;
        }
    }
    for (; place > first; --place) {
        if (!AnchorsAt(bytes, place - 1))
            continue;
        if (const Hit hit = MatchAround(bytes, place - 1); fits(hit))
            return hit;
    }
    return {};
}

// Whether the text stands at a place in forms of one byte. The place may be before the bytes.
bool LiteralScan::AsciiMatches(std::string_view bytes, std::size_t start) const
{
    if (start > bytes.size() || bytes.size() - start < m_sought.size())
        return false;
    const char* at = bytes.data() + start;
    for (std::size_t i = 0; i < m_sought.size(); ++i) {
        if ((at[i] | m_masks[i]) != m_sought[i])
            return false;
    }
    return true;
}

// The match whose first anchor stands at the place.
Hit LiteralScan::MatchAround(std::string_view bytes, std::size_t place) const
{
    if (m_matchCase) {
        const std::size_t start = place - m_first.offset;
        if (std::memcmp(bytes.data() + start, m_sought.data(), m_sought.size()) != 0)
            return {};
        return Hit{start, start + m_sought.size()};
    }
    if (AsciiMatches(bytes, place - m_first.offset))
        return Hit{place - m_first.offset, place - m_first.offset + m_sought.size()};
    if (m_longest == m_sought.size())
        return {};
    std::size_t start = place;
    for (std::size_t i = m_first.offset; i > 0; --i) {
        if (!TakeBackward(bytes, start, m_sought[i - 1]))
            return {};
    }
    std::size_t end = place;
    for (std::size_t i = m_first.offset; i < m_sought.size(); ++i) {
        if (!TakeForward(bytes, end, m_sought[i]))
            return {};
    }
    return Hit{start, end};
}

bool LiteralScan::TakeForward(std::string_view bytes, std::size_t& at, char letter) const
{
    if (at < bytes.size() && Lower(bytes[at]) == letter) {
        ++at;
        return true;
    }
    const std::string_view form = ThirdForm(letter);
    if (form.empty() || !bytes.substr(std::min(at, bytes.size())).starts_with(form))
        return false;
    at += form.size();
    return true;
}

bool LiteralScan::TakeBackward(std::string_view bytes, std::size_t& at, char letter) const
{
    if (at > 0 && Lower(bytes[at - 1]) == letter) {
        --at;
        return true;
    }
    const std::string_view form = ThirdForm(letter);
    if (form.empty() || !bytes.substr(0, at).ends_with(form))
        return false;
    at -= form.size();
    return true;
}

} // namespace engine::search
