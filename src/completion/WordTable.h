// SPDX-License-Identifier: GPL-3.0-or-later
// WordTable: words by number, each with how many stretches of a text have it. UTF-8.
#pragma once

#include "completion/Matching.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace completion {

class WordTable
{
public:
    using Id = std::uint32_t;
    static constexpr Id kNone = 0xFFFFFFFF;
    static constexpr std::size_t kLongest = 128; // bytes; a longer one is no word

    // The word's number, counted once more. kNone for one that is not there yet, if `isFull`.
    Id Add(std::string_view word, bool isFull);
    void Release(Id id);

    std::string_view Text(Id id) const
    {
        const Entry& entry = m_entries[id];
        return {m_bytes.data() + entry.start, entry.length};
    }
    std::size_t Count() const { return m_live; }
    Match MatchOf(Id id, const Typed& typed) const
    {
        const bool hasLetters = (m_entries[id].letters & typed.Letters()) == typed.Letters();
        return hasLetters ? typed.Of(Text(id)) : Match::None;
    }

    // What fits, in no order.
    template <typename Take> // (Id, Match)
    void Find(const Typed& typed, Take take) const
    {
        for (Id id = 0; id < m_entries.size(); ++id) {
            const Match match = MatchOf(id, typed);
            if (match != Match::None && m_entries[id].uses > 0)
                take(id, match);
        }
    }

    // The word in any case.
    template <typename Take> // (Id)
    void FindSame(std::string_view word, Take take) const
    {
        const Typed same(word);
        for (Id id = 0; id < m_entries.size(); ++id) {
            const Entry& entry = m_entries[id];
            if (entry.length == word.size() && entry.letters == same.Letters() && entry.uses > 0 &&
                same.Of(Text(id)) == Match::Exact)
                take(id);
        }
    }

    std::size_t MemoryBytes() const;

private:
    struct Entry
    {
        std::uint32_t start = 0; // in m_bytes
        std::uint32_t uses = 0;
        std::uint32_t letters = 0;
        std::uint32_t length = 0;
    };

    std::size_t SlotOf(std::string_view word) const;
    void Sweep();
    void FillSlots(std::size_t count);

    std::vector<Entry> m_entries;
    std::vector<Id> m_free;  // numbers whose words went
    std::vector<Id> m_slots; // by hash, probed upwards
    std::string m_bytes;
    std::size_t m_live = 0; // words with uses
    std::size_t m_dead = 0; // those that wait for Sweep
};

} // namespace completion
