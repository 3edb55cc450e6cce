// SPDX-License-Identifier: GPL-3.0-or-later
// CharacterClass: what stands between [ and ] in a pattern of the engine.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace engine::search {

class CharacterClass
{
public:
    // Reads the class whose [ stands at the place, which then is behind its ]. False if it does not
    // end, or is not UTF-8.
    bool Read(std::string_view pattern, std::size_t& at);

    // One item of a PCRE2 pattern; the word is another.
    std::string Translated(const std::string& word, bool matchCase) const;
    bool UsesWords() const { return m_hasWords || m_hasOthers; }
    bool HasLineEnd() const; // a match may be CR or LF

private:
    struct Range
    {
        char32_t first = 0;
        char32_t last = 0;
    };

    bool TakeOne();
    bool TakeDash();
    bool TakeEscape(char32_t& character, bool& isSet);
    void Add(char32_t character) { m_ranges.push_back({character, character}); }
    bool Follows(char character) const;

    std::string_view m_pattern;
    std::size_t m_at = 0;
    char32_t m_previous = 0;
    bool m_previousIsSet = false; // a range cannot start there

    bool m_negated = false;
    std::vector<Range> m_ranges;
    std::vector<char32_t> m_exact; // escaped ones, which keep their case
    std::string m_sets;            // \d and the like, as PCRE2 ranges
    bool m_hasWords = false;       // \w
    bool m_hasOthers = false;      // \W
};

// \d, \D, \s and \S outside of brackets; null for another letter.
const char* NamedClass(char letter);

// Any character of the line that the item of a PCRE2 pattern does not match.
std::string OtherThan(const std::string& item);

} // namespace engine::search
