// SPDX-License-Identifier: GPL-3.0-or-later
// SqlVocabulary: the words of a language's keyword sets, and those that shape statements. A look-up
// is one hash over the word and, nearly always, one comparison.
#pragma once

#include "engine/analysis/SqlWords.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace engine {

class SqlVocabulary
{
public:
    static constexpr int kSets = 8;
    static constexpr std::size_t kLongestWord = 127; // bytes; a longer one is none of the words

    struct Entry
    {
        std::uint8_t sets = 0;        // a bit for each set that has the word
        bool beginsWithPoint = false; // a word of some set goes on behind it with a point
        analysis::SqlWord shape = analysis::SqlWord::None;
    };

    // Words between blanks, in any letter case. Gives whether the set has changed.
    bool SetWords(int set, std::string_view words);
    void Clear();

    // Makes what is looked up in, if a set has changed since.
    void Prepare();

    // An empty entry for other words. Prepared first.
    const Entry& Find(std::string_view word) const;

private:
    struct Slot
    {
        std::uint32_t hash = 0;
        std::uint32_t offset = 0; // in the text
        std::uint8_t length = 0;  // 0: the slot is free
        Entry entry;
    };

    Entry& Add(std::string_view lowerWord);

    std::array<std::string, kSets> m_sets; // as they were set
    std::string m_text;                    // every word once, in lower case
    std::vector<Slot> m_slots;             // a power of two of them
    bool m_isStale = true;
};

} // namespace engine
