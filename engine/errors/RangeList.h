// SPDX-License-Identifier: GPL-3.0-or-later
// RangeList: ranges of a text in the order of their starts, which follow the text as it is edited.
// They stand in chunks that each carry an offset, so an edit touches the ranges around it and one
// number of each other chunk. Positions count bytes.
#pragma once

#include <memory>
#include <vector>

namespace engine {

class RangeList
{
    struct Chunk;

public:
    // What the list holds; derived from by who has more to say about a range.
    class Range
    {
    public:
        Range() = default;
        virtual ~Range() = default;
        Range(const Range&) = delete;
        Range& operator=(const Range&) = delete;

        long Start() const;
        long End() const;

    private:
        friend class RangeList;
        long m_start = 0; // without the chunk's offset, as is the end
        long m_end = 0;
        Chunk* m_chunk = nullptr;
    };

    RangeList();
    ~RangeList();
    RangeList(const RangeList&) = delete;
    RangeList& operator=(const RangeList&) = delete;

    bool IsEmpty() const { return m_chunks.empty(); }
    Range& Insert(std::unique_ptr<Range> range, long start, long end); // behind equal starts
    void Erase(Range& range);

    // In the order of the starts; null at the ends.
    Range* First() const;
    Range* Next(const Range& range) const;
    Range* Previous(const Range& range) const;
    Range* FirstFrom(long start) const; // the first that starts there or behind

    // Calls visit with each range that starts at `to` or before and ends at `from` or behind.
    template <class Visit>
    void ForEachTouching(long from, long to, Visit visit) const;

    // What is put in at a range's start or end stays outside; an empty range moves behind it.
    void TextInserted(long at, long bytes);
    void TextDeleted(long at, long bytes);

private:
    struct Chunk
    {
        std::size_t index = 0; // in m_chunks
        long offset = 0;
        long lastEnd = 0; // the greatest end, without the offset
        std::vector<std::unique_ptr<Range>> ranges;

        long FirstStart() const { return ranges.front()->m_start + offset; }
        long LastStart() const { return ranges.back()->m_start + offset; }
        long LastEnd() const { return lastEnd + offset; }
        void FindLastEnd();
        std::size_t IndexOf(const Range& range) const;
    };

    void Split(Chunk& chunk);
    void NumberFrom(std::size_t index);
    template <class Move>
    void MoveEach(Chunk& chunk, Move move);

    std::vector<std::unique_ptr<Chunk>> m_chunks; // none is empty
};

template <class Visit>
void RangeList::ForEachTouching(long from, long to, Visit visit) const
{
    for (const auto& chunk : m_chunks) {
        if (chunk->FirstStart() > to)
            return;
        if (chunk->LastEnd() < from)
            continue;
        for (const auto& range : chunk->ranges) {
            if (range->Start() <= to && range->End() >= from)
                visit(*range);
        }
    }
}

} // namespace engine
