// SPDX-License-Identifier: GPL-3.0-or-later
// The words of NameMachine, looked up by their text.
#pragma once

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <string_view>

namespace completion {

enum class NameWord : std::uint8_t
{
    Other,  // any other token
    Begins, // nothing stands before in the statement
    Open,   // (
    Comma,
#define ZN_NAME_WORD(name, text) name,
#include "completion/NameWords.def"
#undef ZN_NAME_WORD
};

// Letters of any case. Other for a word that is none of them.
NameWord NameWordOf(std::string_view word);

// Dialects take this one for a name as well.
bool MayBeName(NameWord word);

inline bool IsOneOf(NameWord word, std::initializer_list<NameWord> words)
{
    return std::find(words.begin(), words.end(), word) != words.end();
}

} // namespace completion
