// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/WordTable.h"

#include <algorithm>
#include <functional>

namespace completion {
namespace {

constexpr std::size_t kFewest = 1024; // slots, and words that are swept at a time

// Doubling would leave half of it empty.
template <typename Container>
void GrowByQuarter(Container& container, std::size_t more)
{
    if (container.size() + more > container.capacity())
        container.reserve(container.size() + container.size() / 4 + more + kFewest);
}

} // namespace

std::size_t WordTable::SlotOf(std::string_view word) const
{
    const std::size_t mask = m_slots.size() - 1;
    std::size_t slot = std::hash<std::string_view>{}(word)&mask;
    while (m_slots[slot] != kNone && Text(m_slots[slot]) != word)
        slot = (slot + 1) & mask;
    return slot;
}

WordTable::Id WordTable::Add(std::string_view word, bool isFull)
{
    if (word.empty() || word.size() > kLongest)
        return kNone;
    if (m_slots.empty())
        FillSlots(kFewest);
    std::size_t slot = SlotOf(word);
    if (const Id known = m_slots[slot]; known != kNone) {
        Entry& entry = m_entries[known];
        if (entry.uses++ == 0) {
            --m_dead;
            ++m_live;
        }
        return known;
    }
    if (isFull)
        return kNone;
    if (m_dead > std::max(kFewest, m_live)) {
        Sweep();
        slot = SlotOf(word);
    }
    if ((m_live + m_dead + 1) * 4 > m_slots.size() * 3) {
        FillSlots(m_slots.size() * 2);
        slot = SlotOf(word);
    }
    Id id = static_cast<Id>(m_entries.size());
    if (m_free.empty()) {
        GrowByQuarter(m_entries, 1);
        m_entries.emplace_back();
    } else {
        id = m_free.back();
        m_free.pop_back();
    }
    m_entries[id] = {.start = static_cast<std::uint32_t>(m_bytes.size()),
                     .uses = 1,
                     .letters = Typed::LettersOf(word),
                     .length = static_cast<std::uint32_t>(word.size())};
    GrowByQuarter(m_bytes, word.size());
    m_bytes += word;
    m_slots[slot] = id;
    ++m_live;
    return id;
}

// The word stays where it is, since it mostly comes back with the next letter.
void WordTable::Release(Id id)
{
    if (--m_entries[id].uses > 0)
        return;
    --m_live;
    ++m_dead;
}

void WordTable::FillSlots(std::size_t count)
{
    std::vector<Id> old(count, kNone);
    m_slots.swap(old);
    for (const Id id : old) {
        if (id != kNone)
            m_slots[SlotOf(Text(id))] = id;
    }
}

// Words without uses go, and their numbers are given again.
void WordTable::Sweep()
{
    std::string bytes;
    std::vector<Id> living;
    living.reserve(m_live);
    for (const Id id : m_slots) {
        if (id == kNone)
            continue;
        Entry& entry = m_entries[id];
        if (entry.uses == 0) {
            entry = {};
            m_free.push_back(id);
            continue;
        }
        const std::string_view text = Text(id);
        entry.start = static_cast<std::uint32_t>(bytes.size());
        bytes += text;
        living.push_back(id);
    }
    m_bytes = std::move(bytes);
    m_slots.assign(m_slots.size(), kNone);
    for (const Id id : living)
        m_slots[SlotOf(Text(id))] = id;
    m_dead = 0;
}

std::size_t WordTable::MemoryBytes() const
{
    return m_entries.capacity() * sizeof(Entry) +
           (m_free.capacity() + m_slots.capacity()) * sizeof(Id) + m_bytes.capacity();
}

} // namespace completion
