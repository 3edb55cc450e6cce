// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/colours/SqlVocabulary.h"

#include <bit>
#include <cstring>
#include <utility>

namespace engine {
namespace {

constexpr std::array<unsigned char, 256> kLower = [] {
    std::array<unsigned char, 256> table{};
    for (std::size_t i = 0; i < table.size(); ++i)
        table[i] = static_cast<unsigned char>(i >= 'A' && i <= 'Z' ? i | 0x20 : i);
    return table;
}();

// Writes the word in lower case and gives its hash.
std::uint32_t LowerAndHash(std::string_view word, char* lower)
{
    std::uint32_t hash = static_cast<std::uint32_t>(word.size());
    for (const char c : word) {
        const unsigned char byte = kLower[static_cast<unsigned char>(c)];
        *lower++ = static_cast<char>(byte);
        hash = (hash ^ byte) * 0x9E3779B1U;
    }
    return hash ^ hash >> 15;
}

bool IsBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

template <typename Take>
void EachWord(std::string_view words, Take take)
{
    for (std::size_t start = 0; start < words.size();) {
        if (IsBlank(words[start])) {
            ++start;
            continue;
        }
        std::size_t end = start;
        while (end < words.size() && !IsBlank(words[end]))
            ++end;
        if (end - start <= SqlVocabulary::kLongestWord)
            take(words.substr(start, end - start));
        start = end;
    }
}

} // namespace

bool SqlVocabulary::SetWords(int set, std::string_view words)
{
    if (set < 0 || set >= kSets || m_sets[static_cast<std::size_t>(set)] == words)
        return false;
    m_sets[static_cast<std::size_t>(set)] = words;
    m_isStale = true;
    return true;
}

void SqlVocabulary::Clear()
{
    m_sets.fill({});
    m_isStale = true;
}

void SqlVocabulary::Prepare()
{
    if (!std::exchange(m_isStale, false))
        return;
    std::size_t count = 0;
    const auto countWord = [&count](std::string_view word) {
        count += 1 + (word.find('.') != std::string_view::npos);
    };
    for (const std::string_view word : analysis::SqlWordTexts())
        countWord(word);
    for (const std::string& words : m_sets)
        EachWord(words, countWord);
    m_text.clear();
    m_slots.assign(std::bit_ceil(2 * count + 1), Slot());
    auto shape = static_cast<std::uint8_t>(analysis::SqlWord::None);
    for (const std::string_view word : analysis::SqlWordTexts())
        Add(word).shape = static_cast<analysis::SqlWord>(++shape);
    for (std::size_t set = 0; set < m_sets.size(); ++set) {
        EachWord(m_sets[set], [this, set](std::string_view word) {
            Add(word).sets |= static_cast<std::uint8_t>(1U << set);
            const std::size_t point = word.find('.');
            if (point != std::string_view::npos && point > 0)
                Add(word.substr(0, point)).beginsWithPoint = true;
        });
    }
}

SqlVocabulary::Entry& SqlVocabulary::Add(std::string_view word)
{
    char lower[kLongestWord];
    const std::uint32_t hash = LowerAndHash(word, lower);
    const std::size_t mask = m_slots.size() - 1;
    std::size_t at = hash & mask;
    for (; m_slots[at].length != 0; at = (at + 1) & mask) {
        Slot& slot = m_slots[at];
        if (slot.hash == hash && slot.length == word.size() &&
            m_text.compare(slot.offset, slot.length, lower, word.size()) == 0)
            return slot.entry;
    }
    m_slots[at] = {.hash = hash,
                   .offset = static_cast<std::uint32_t>(m_text.size()),
                   .length = static_cast<std::uint8_t>(word.size()),
                   .entry = {}};
    m_text.append(lower, word.size());
    return m_slots[at].entry;
}

const SqlVocabulary::Entry& SqlVocabulary::Find(std::string_view word) const
{
    static const Entry kNone;
    if (word.size() > kLongestWord)
        return kNone;
    char lower[kLongestWord];
    const std::uint32_t hash = LowerAndHash(word, lower);
    const std::size_t mask = m_slots.size() - 1;
    for (std::size_t at = hash & mask; m_slots[at].length != 0; at = (at + 1) & mask) {
        const Slot& slot = m_slots[at];
        if (slot.hash == hash && slot.length == word.size() &&
            std::memcmp(m_text.data() + slot.offset, lower, word.size()) == 0)
            return slot.entry;
    }
    return kNone;
}

} // namespace engine
