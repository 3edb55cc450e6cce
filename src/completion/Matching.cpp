// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/Matching.h"

namespace completion {
namespace {

constexpr char Lower(char byte)
{
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte | 0x20) : byte;
}

bool IsLower(char byte)
{
    return byte >= 'a' && byte <= 'z';
}

bool IsUpper(char byte)
{
    return byte >= 'A' && byte <= 'Z';
}

bool IsDigit(char byte)
{
    return byte >= '0' && byte <= '9';
}

bool IsMark(char byte)
{
    const auto value = static_cast<unsigned char>(byte);
    return value < 0x80 && !IsLower(byte) && !IsUpper(byte) && !IsDigit(byte);
}

// customer_name, CustomerName, HTMLText, line2
bool BeginsPart(std::string_view word, std::size_t at)
{
    if (at == 0 || at >= word.size() || IsMark(word[at]))
        return false;
    const char before = word[at - 1];
    if (IsMark(before) || (IsDigit(word[at]) && !IsDigit(before)))
        return true;
    return IsUpper(word[at]) &&
           (!IsUpper(before) || (at + 1 < word.size() && IsLower(word[at + 1])));
}

} // namespace

Typed::Typed(std::string_view text) : m_text(text), m_letters(LettersOf(text)) {}

std::uint32_t Typed::LettersOf(std::string_view word)
{
    constexpr int kDigits = 26;
    constexpr int kOthers = 27;
    std::uint32_t letters = 0;
    for (const char each : word) {
        const char lower = Lower(each);
        letters |= 1U << (IsLower(lower) ? lower - 'a' : IsDigit(lower) ? kDigits : kOthers);
    }
    return letters;
}

bool Typed::BeginsAt(std::string_view word, std::size_t at) const
{
    if (word.size() - at < m_text.size())
        return false;
    for (std::size_t i = 0; i < m_text.size(); ++i) {
        if (Lower(word[at + i]) != Lower(m_text[i]))
            return false;
    }
    return true;
}

// From the start of a part on. The patience bounds what words like a_a_a_a_a would cost.
bool Typed::FallsIntoParts(std::string_view word, std::size_t at, std::size_t typed,
                           int& patience) const
{
    if (typed == m_text.size())
        return true;
    if (at >= word.size() || patience-- <= 0)
        return false;
    std::size_t end = at;
    std::size_t taken = typed;
    while (end < word.size() && taken < m_text.size() && Lower(word[end]) == Lower(m_text[taken]) &&
           (end == at || !BeginsPart(word, end))) {
        ++end;
        ++taken;
    }
    for (; taken > typed; --taken) {
        for (std::size_t next = at + 1; next <= word.size(); ++next) {
            if ((next == word.size() || BeginsPart(word, next)) &&
                FallsIntoParts(word, next, taken, patience))
                return true;
        }
    }
    return false;
}

Match Typed::Of(std::string_view word) const
{
    constexpr int kPatience = 64;
    if (word.size() < m_text.size())
        return Match::None;
    if (BeginsAt(word, 0)) {
        if (word.size() == m_text.size())
            return Match::Exact;
        return word.starts_with(m_text) ? Match::Beginning : Match::BeginningOfAnyCase;
    }
    int patience = kPatience;
    if (m_text.size() > 1 && Lower(word[0]) == Lower(m_text[0]) &&
        FallsIntoParts(word, 0, 0, patience))
        return Match::Initials;
    if (m_text.size() < 2)
        return Match::None;
    Match best = Match::None;
    for (std::size_t at = 1; at + m_text.size() <= word.size(); ++at) {
        if (!BeginsAt(word, at))
            continue;
        if (BeginsPart(word, at))
            return Match::Part;
        best = Match::Inside;
    }
    return best;
}

} // namespace completion
