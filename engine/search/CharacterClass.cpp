// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/search/CharacterClass.h"

#include "engine/search/PatternText.h"

#include <algorithm>

namespace engine::search {
namespace {

struct SetRow
{
    char letter;
    const char* outside;
    const char* inside; // of brackets
};

// None of them leaves the line.
constexpr SetRow kSets[] = {
    {'d', "[0-9]", "0-9"},
    {'D', "[^0-9\\r\\n]", R"(\x{0}-\x{9}\x{b}\x{c}\x{e}-\x{2f}\x{3a}-\x{10ffff})"},
    {'s', "[ \\t\\x{b}\\f]", " \\t\\x{b}\\f"},
    {'S', "[^ \\t\\x{b}\\f\\r\\n]", R"(\x{0}-\x{8}\x{e}-\x{1f}\x{21}-\x{10ffff})"},
};

const SetRow* FindSet(char32_t letter)
{
    for (const SetRow& row : kSets) {
        if (static_cast<char32_t>(row.letter) == letter)
            return &row;
    }
    return nullptr;
}

} // namespace

const char* NamedClass(char letter)
{
    const SetRow* row = FindSet(static_cast<unsigned char>(letter));
    return row ? row->outside : nullptr;
}

std::string OtherThan(const std::string& item)
{
    return Join({"(?:(?!", item, ")[^\\r\\n])"});
}

bool CharacterClass::Follows(char character) const
{
    return m_at < m_pattern.size() && m_pattern[m_at] == character;
}

bool CharacterClass::Read(std::string_view pattern, std::size_t& at)
{
    m_pattern = pattern;
    m_at = at + 1;
    if (Follows('^')) {
        m_negated = true;
        ++m_at;
    }
    for (const char plainAtFirst : {'-', ']'}) {
        if (Follows(plainAtFirst)) {
            m_previous = static_cast<char32_t>(plainAtFirst);
            Add(m_previous);
            ++m_at;
        }
    }
    while (!Follows(']')) {
        if (m_at >= m_pattern.size() || !TakeOne())
            return false;
    }
    at = m_at + 1;
    return true;
}

bool CharacterClass::TakeOne()
{
    if (Follows('-'))
        return TakeDash();
    char32_t character = 0;
    bool isSet = false;
    if (Follows('\\') && m_at + 1 < m_pattern.size()) {
        if (!TakeEscape(character, isSet))
            return false;
        m_previous = character;
        m_previousIsSet = isSet;
        return true;
    }
    if (!NextCharacter(m_pattern, m_at, character))
        return false;
    Add(character);
    m_previous = character;
    m_previousIsSet = false;
    return true;
}

// Behind a set and before the end the dash is a character. A range that runs backwards adds nothing
// to its first character, and what starts a range may start another.
bool CharacterClass::TakeDash()
{
    ++m_at;
    if (m_previousIsSet || Follows(']')) {
        Add(U'-');
        m_previous = U'-';
        m_previousIsSet = false;
        return true;
    }
    if (m_at >= m_pattern.size())
        return false;
    const char32_t first = m_previous;
    char32_t last = 0;
    if (Follows('\\')) {
        bool isSet = false;
        if (m_at + 1 >= m_pattern.size() || !TakeEscape(last, isSet))
            return false;
        m_previous = last;
        m_previousIsSet = isSet;
        if (isSet) {
            m_previous = U'-';
            m_previousIsSet = false;
            Add(U'-');
            return true;
        }
    } else if (!NextCharacter(m_pattern, m_at, last)) {
        return false;
    }
    if (first < last)
        m_ranges.push_back({first + 1, last});
    return true;
}

bool CharacterClass::TakeEscape(char32_t& character, bool& isSet)
{
    ++m_at;
    char32_t letter = 0;
    if (!NextCharacter(m_pattern, m_at, letter))
        return false;
    isSet = true;
    if (const SetRow* row = FindSet(letter)) {
        m_sets += row->inside;
        return true;
    }
    if (letter == U'w' || letter == U'W') {
        (letter == U'w' ? m_hasWords : m_hasOthers) = true;
        return true;
    }
    if (letter == U'x' && HexadecimalAt(m_pattern, m_at) < 0) {
        m_sets += "0-9A-Fa-f";
        return true;
    }
    isSet = false;
    character = EscapedCharacter(letter);
    if (letter == U'x') {
        character = static_cast<char32_t>(HexadecimalAt(m_pattern, m_at));
        m_at += 2;
    }
    if (character >= 0x80 || IsAsciiLetter(character))
        m_exact.push_back(character);
    else
        Add(character);
    return true;
}

bool CharacterClass::HasLineEnd() const
{
    return !m_negated && std::any_of(m_ranges.begin(), m_ranges.end(), [](const Range& range) {
        return (range.first <= U'\n' && range.last >= U'\n') ||
               (range.first <= U'\r' && range.last >= U'\r');
    });
}

std::string CharacterClass::Translated(const std::string& word, bool matchCase) const
{
    std::string members = m_sets;
    for (const Range& range : m_ranges) {
        AppendCode(members, range.first);
        if (range.last > range.first) {
            members += '-';
            AppendCode(members, range.last);
        }
    }
    std::string exact; // in its own case
    for (const char32_t character : m_exact)
        AppendCode(matchCase ? members : exact, character);

    if (exact.empty() && !UsesWords() && !members.empty())
        return m_negated ? Join({"[^", members, "\\r\\n]"}) : Join({"[", members, "]"});
    std::string any = members.empty() ? "(?!)" : Join({"[", members, "]"});
    if (!exact.empty())
        any += Join({"|(?-i:[", exact, "])"});
    if (m_hasWords)
        any += Join({"|", word});
    if (m_hasOthers)
        any += Join({"|", OtherThan(word)});
    return m_negated ? OtherThan(any) : Join({"(?:", any, ")"});
}

} // namespace engine::search
