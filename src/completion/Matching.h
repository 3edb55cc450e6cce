// SPDX-License-Identifier: GPL-3.0-or-later
// How well a word fits what was typed of it.
#pragma once

#include <cstdint>
#include <string_view>

namespace completion {

// The better ones first.
enum class Match : std::uint8_t
{
    Exact,     // whatever the case
    Beginning, // with the letters as they were typed
    BeginningOfAnyCase,
    Initials, // what was typed falls into beginnings of its parts: cusna, customer_name
    Part,     // one of its parts but the first begins so
    Inside,   // it stands somewhere in it
    None,
};

// The smaller is the better: case is a reason only for what is equally good otherwise.
constexpr int Weight(Match match)
{
    return static_cast<int>(match == Match::BeginningOfAnyCase ? Match::Beginning : match);
}

// What was typed, prepared for many words. UTF-8; bytes that are not ASCII match themselves alone.
class Typed
{
public:
    explicit Typed(std::string_view text);

    Match Of(std::string_view word) const;
    std::string_view Text() const { return m_text; }
    bool IsEmpty() const { return m_text.empty(); }

    // The letters of a word, a bit each: one that lacks a letter of what was typed cannot match.
    static std::uint32_t LettersOf(std::string_view word);
    std::uint32_t Letters() const { return m_letters; }

private:
    bool BeginsAt(std::string_view word, std::size_t at) const;
    bool FallsIntoParts(std::string_view word, std::size_t at, std::size_t typed,
                        int& patience) const;

    std::string_view m_text;
    std::uint32_t m_letters;
};

} // namespace completion
