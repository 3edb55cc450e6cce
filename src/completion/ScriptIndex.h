// SPDX-License-Identifier: GPL-3.0-or-later
// ScriptIndex: the words of a text and the places of what it creates and uses, kept up to date
// while it is edited.
//
// The text is cut into stretches. A change makes its stretch stale, which costs nothing but that;
// Work reads stale ones, in idle time, and Freshen the one at the caret when somebody asks. What is
// read of a stretch hangs on the state that the one before it leaves, so a comment that is opened
// has what is behind it read again, as far as the text means something else.
//
// Positions count units. The text is asked for through a function and not kept. Words beyond a
// tenth of the text's size, or a megabyte, are left out, so that the index stays small in a text
// that is all different words.
#pragma once

#include "completion/NameMachine.h"
#include "completion/WordTable.h"

#include <functional>
#include <string>
#include <vector>

namespace completion {

class ScriptIndex
{
public:
    using Id = WordTable::Id;
    using Read = std::function<void(long start, long end, std::u16string& text)>; // replaces text

    static constexpr long kStretch = 32768;

    struct Object
    {
        NameKind kind;
        Id name;
        long position; // of the name
    };

    // Null: any text, whose words are letters, digits and underscores.
    explicit ScriptIndex(const engine::analysis::SqlDialect* dialect, long stretch = kStretch);

    void Reset(long units);
    void Inserted(long position, long units);
    void Deleted(long position, long units);
    long Size() const { return m_size; }
    const engine::analysis::SqlDialect* Dialect() const { return m_dialect; }

    // Reads about so many units of what is stale, from the front. False if nothing is.
    bool Work(const Read& read, long units);
    bool IsDone() const { return FirstStale() == m_stretches.size(); }
    // What stands around the position is up to date behind it.
    void Freshen(const Read& read, long position);

    const WordTable& Words() const { return m_words; }
    // What is created, altered and used, in order; of what is used one for each name and stretch.
    template <typename Take> // (const Object&), false to stop
    void ForEachObject(Take take) const
    {
        long start = 0;
        for (const Stretch& stretch : m_stretches) {
            for (const Item& item : stretch.objects) {
                if (!take(Object{static_cast<NameKind>(item.place & kKindMask), item.name,
                                 start + static_cast<long>(item.place >> kKindBits)}))
                    return;
            }
            start += stretch.length;
        }
    }
    std::vector<Object> Objects() const;
    // The numbers of a word in any case.
    std::vector<Id> NumbersOf(std::string_view word) const;
    std::size_t MemoryBytes() const;

    // The state that the text is read with from a place in front of the position on.
    struct Entry
    {
        engine::analysis::ScanState scan;
        NameState names;
        long skip = 0; // units that a token from before reaches into

        bool operator==(const Entry&) const = default;
    };
    struct Start
    {
        long position = 0;
        Entry entry;
    };
    Start StartBefore(long position) const;

private:
    static constexpr int kKindBits = 5;
    static constexpr std::uint32_t kKindMask = (1U << kKindBits) - 1;

    struct Item
    {
        Id name;
        std::uint32_t place; // distance from the stretch's start, above the kind
    };
    struct Stretch
    {
        long length = 0;
        Entry entry;
        std::string words; // their numbers, by distances in bytes of seven bits
        std::vector<Item> objects;
        bool isStale = true;
    };
    class Reader;

    std::size_t FirstStale() const;
    std::size_t IndexAt(long position, long& start) const;
    long ReadStretch(const Read& read, std::size_t index, long start);
    void FitStretch(const Read& read, std::size_t index, long start);
    void Split(std::size_t index, long length);
    long CutBefore(const Read& read, long start, long position) const;
    void MakeStale(std::size_t index);
    void MakeReachingStale(std::size_t index, long distance);
    void Forget(Stretch& stretch);
    void Keep(Stretch& stretch, std::vector<Id>& words, std::vector<Item> objects);
    bool IsFull() const;

    const engine::analysis::SqlDialect* m_dialect;
    long m_stretch;
    long m_size = 0;
    std::vector<Stretch> m_stretches;
    WordTable m_words;
    std::size_t m_kept = 0;            // bytes of all stretches
    mutable std::size_t m_fresh = 0;   // none is stale before this one
    mutable std::size_t m_nearest = 0; // where the last place was found, and where that starts
    mutable long m_nearestStart = 0;
    std::u16string m_units; // of what is being read
    std::string m_bytes;
};

} // namespace completion
