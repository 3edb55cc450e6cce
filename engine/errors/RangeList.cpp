// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/errors/RangeList.h"

#include <algorithm>
#include <iterator>

namespace engine {
namespace {

constexpr std::size_t kLargestChunk = 256;

} // namespace

long RangeList::Range::Start() const
{
    return m_start + m_chunk->offset;
}

long RangeList::Range::End() const
{
    return m_end + m_chunk->offset;
}

void RangeList::Chunk::FindLastEnd()
{
    lastEnd = ranges.front()->m_end;
    for (const auto& range : ranges)
        lastEnd = std::max(lastEnd, range->m_end);
}

std::size_t RangeList::Chunk::IndexOf(const Range& range) const
{
    const auto found = std::find_if(ranges.begin(), ranges.end(),
                                    [&](const auto& each) { return each.get() == &range; });
    return static_cast<std::size_t>(found - ranges.begin());
}

RangeList::RangeList() = default;
RangeList::~RangeList() = default;

RangeList::Range& RangeList::Insert(std::unique_ptr<Range> range, long start, long end)
{
    if (m_chunks.empty())
        m_chunks.push_back(std::make_unique<Chunk>());
    // The last chunk that begins at the start or before it, or else the first of all.
    auto behind =
        std::partition_point(m_chunks.begin(), m_chunks.end(), [start](const auto& chunk) {
            return !chunk->ranges.empty() && chunk->FirstStart() <= start;
        });
    Chunk& chunk = behind == m_chunks.begin() ? **behind : **std::prev(behind);
    range->m_start = start - chunk.offset;
    range->m_end = end - chunk.offset;
    range->m_chunk = &chunk;
    const bool isFirst = chunk.ranges.empty();
    chunk.lastEnd = isFirst ? range->m_end : std::max(chunk.lastEnd, range->m_end);
    const auto place =
        std::partition_point(chunk.ranges.begin(), chunk.ranges.end(), [&range](const auto& each) {
            return each->m_start <= range->m_start;
        });
    Range& inserted = **chunk.ranges.insert(place, std::move(range));
    if (chunk.ranges.size() > kLargestChunk)
        Split(chunk);
    return inserted;
}

void RangeList::Split(Chunk& chunk)
{
    auto upper = std::make_unique<Chunk>();
    upper->offset = chunk.offset;
    const auto middle = chunk.ranges.begin() + kLargestChunk / 2;
    upper->ranges.assign(std::make_move_iterator(middle),
                         std::make_move_iterator(chunk.ranges.end()));
    chunk.ranges.erase(middle, chunk.ranges.end());
    for (const auto& range : upper->ranges)
        range->m_chunk = upper.get();
    chunk.FindLastEnd();
    upper->FindLastEnd();
    const std::size_t index = chunk.index + 1;
    m_chunks.insert(m_chunks.begin() + static_cast<std::ptrdiff_t>(index), std::move(upper));
    NumberFrom(index);
}

void RangeList::NumberFrom(std::size_t index)
{
    for (; index < m_chunks.size(); ++index)
        m_chunks[index]->index = index;
}

void RangeList::Erase(Range& range)
{
    Chunk& chunk = *range.m_chunk;
    chunk.ranges.erase(chunk.ranges.begin() + static_cast<std::ptrdiff_t>(chunk.IndexOf(range)));
    if (!chunk.ranges.empty()) {
        chunk.FindLastEnd();
        return;
    }
    const std::size_t index = chunk.index;
    m_chunks.erase(m_chunks.begin() + static_cast<std::ptrdiff_t>(index));
    NumberFrom(index);
}

RangeList::Range* RangeList::First() const
{
    return m_chunks.empty() ? nullptr : m_chunks.front()->ranges.front().get();
}

RangeList::Range* RangeList::Next(const Range& range) const
{
    const Chunk& chunk = *range.m_chunk;
    const std::size_t next = chunk.IndexOf(range) + 1;
    if (next < chunk.ranges.size())
        return chunk.ranges[next].get();
    return chunk.index + 1 < m_chunks.size() ? m_chunks[chunk.index + 1]->ranges.front().get()
                                             : nullptr;
}

RangeList::Range* RangeList::Previous(const Range& range) const
{
    const Chunk& chunk = *range.m_chunk;
    const std::size_t index = chunk.IndexOf(range);
    if (index > 0)
        return chunk.ranges[index - 1].get();
    return chunk.index > 0 ? m_chunks[chunk.index - 1]->ranges.back().get() : nullptr;
}

RangeList::Range* RangeList::FirstFrom(long start) const
{
    const auto chunk =
        std::partition_point(m_chunks.begin(), m_chunks.end(),
                             [start](const auto& each) { return each->LastStart() < start; });
    if (chunk == m_chunks.end())
        return nullptr;
    return std::partition_point((*chunk)->ranges.begin(), (*chunk)->ranges.end(),
                                [start](const auto& each) { return each->Start() < start; })
        ->get();
}

template <class Move>
void RangeList::MoveEach(Chunk& chunk, Move move)
{
    for (const auto& range : chunk.ranges)
        move(range->m_start, range->m_end);
    chunk.FindLastEnd();
}

void RangeList::TextInserted(long at, long bytes)
{
    for (const auto& chunk : m_chunks) {
        if (chunk->FirstStart() >= at) {
            chunk->offset += bytes;
        } else if (chunk->LastStart() >= at || chunk->LastEnd() > at) {
            const long place = at - chunk->offset;
            MoveEach(*chunk, [=](long& start, long& end) {
                if (start >= place || end > place)
                    end += bytes;
                if (start >= place)
                    start += bytes;
            });
        }
    }
}

void RangeList::TextDeleted(long at, long bytes)
{
    for (const auto& chunk : m_chunks) {
        if (chunk->FirstStart() >= at + bytes) {
            chunk->offset -= bytes;
        } else if (chunk->LastStart() > at || chunk->LastEnd() > at) {
            const long place = at - chunk->offset;
            const auto moved = [=](long position) {
                return position <= place ? position : std::max(place, position - bytes);
            };
            MoveEach(*chunk, [moved](long& start, long& end) {
                start = moved(start);
                end = moved(end);
            });
        }
    }
}

} // namespace engine
