// SPDX-License-Identifier: GPL-3.0-or-later
// LiteralScan: finds one text in bytes of UTF-8, with case or, if the text is ASCII, without.
// It looks at two of the text's rarer bytes at sixteen places at once, at a third one where both
// stand, and compares the rest where that stands, too. Without case K and S have a third form
// outside ASCII, the signs for kelvin and the long s, so a match may have more bytes than the text.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace engine::search {

// Bytes of a match, from its first to behind its last. False: none. It travels in two registers:
// there may be one for every line of a text.
struct Hit
{
    std::size_t start = 0;
    std::size_t end = 0;
    explicit operator bool() const { return start < end; }
};

class LiteralScan
{
public:
    // Whether a text can be found in this way. It is not empty.
    static bool Suits(std::string_view sought, bool matchCase);

    LiteralScan(std::string_view sought, bool matchCase);

    // The first match in the bytes that does not start before a place.
    Hit First(std::string_view bytes, std::size_t from) const;
    // The last match in the bytes that starts before a place.
    Hit Last(std::string_view bytes, std::size_t before) const;

    std::size_t LongestMatch() const { return m_longest; }

private:
    struct Anchor
    {
        std::size_t offset = 0; // in the text
        unsigned char byte = 0;
        unsigned char mask = 0; // over a byte before it is compared: 0x20 for a letter of any case
        std::array<unsigned char, 16> bytes{}; // sixteen times
        std::array<unsigned char, 16> masks{}; // likewise
    };

    // Where the first anchor may stand.
    struct Places
    {
        std::size_t first = 0;
        std::size_t end = 0;
    };

    void ChooseAnchors();
    std::size_t RarestBeside(std::size_t anchor, std::size_t other) const;
    bool IsFixed(std::size_t i) const; // in length
    Places PlacesIn(std::string_view bytes) const;
    bool AnchorsAt(std::string_view bytes, std::size_t place) const;
    unsigned AnchorsAtSixteen(const char* place) const; // a bit for each place
    bool LackAnchors(const char* place) const;          // thirty-two places; not all that do say so
    bool AsciiMatches(std::string_view bytes, std::size_t start) const;
    Hit MatchAround(std::string_view bytes, std::size_t place) const;
    bool TakeForward(std::string_view bytes, std::size_t& at, char letter) const;
    bool TakeBackward(std::string_view bytes, std::size_t& at, char letter) const;

    std::string m_sought; // in lower case, unless case matters
    bool m_matchCase;
    std::size_t m_longest;
    Anchor m_first;
    Anchor m_second;
    Anchor m_third;
    std::ptrdiff_t m_distance = 0;      // from the first to the second
    std::ptrdiff_t m_thirdDistance = 0; // from the first to the third
    std::string m_masks;                // over the bytes at a match, as an anchor's
};

} // namespace engine::search
