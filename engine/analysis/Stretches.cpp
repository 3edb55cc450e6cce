// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/analysis/Stretches.h"

#include <algorithm>
#include <cstring>

namespace engine::analysis {

void Stretches::Reset(long size)
{
    m_starts = {0, size};
    m_shifted = 0;
    m_shift = 0;
    m_stretches.clear();
    m_stretches.push_back(std::make_shared<Stretch>());
    for (auto& marks : m_marks)
        marks.assign(1, 0);
    Set(Mark::Stale, 0, true);
}

Stretch& Stretches::Edit(std::size_t index)
{
    std::shared_ptr<Stretch>& stretch = m_stretches[index];
    if (stretch.use_count() > 1)
        stretch = std::make_shared<Stretch>(*stretch);
    return *stretch;
}

std::size_t Stretches::IndexAt(long position) const
{
    std::size_t low = 0;
    std::size_t high = Count();
    while (high - low > 1) {
        const std::size_t middle = low + (high - low) / 2;
        (StartOf(middle) <= position ? low : high) = middle;
    }
    return low;
}

// The starts behind the index are the ones that lack the shift.
void Stretches::MoveShift(std::size_t index)
{
    if (m_shift != 0) {
        for (std::size_t i = m_shifted + 1; i <= index; ++i)
            m_starts[i] += m_shift;
        for (std::size_t i = index + 1; i <= m_shifted; ++i)
            m_starts[i] -= m_shift;
    }
    m_shifted = index;
}

void Stretches::Grow(std::size_t index, long bytes)
{
    MoveShift(index);
    m_shift += bytes;
}

void Stretches::Split(std::size_t index, long position)
{
    MoveShift(Count());
    m_shift = 0;
    const auto behind = static_cast<std::ptrdiff_t>(index) + 1;
    m_starts.insert(m_starts.begin() + behind, position);
    m_stretches.insert(m_stretches.begin() + behind, std::make_shared<Stretch>());
    for (auto& marks : m_marks)
        marks.insert(marks.begin() + behind, 0);
    m_shifted = Count();
}

void Stretches::Merge(std::size_t first, std::size_t last)
{
    if (first == last)
        return;
    MoveShift(Count());
    m_shift = 0;
    const auto from = static_cast<std::ptrdiff_t>(first) + 1;
    const auto to = static_cast<std::ptrdiff_t>(last) + 1;
    m_starts.erase(m_starts.begin() + from, m_starts.begin() + to);
    m_stretches.erase(m_stretches.begin() + from, m_stretches.begin() + to);
    for (auto& marks : m_marks)
        marks.erase(marks.begin() + from, marks.begin() + to);
    m_shifted = Count();
}

void Stretches::MoveStart(std::size_t index, long position)
{
    m_starts[index] = position - (index > m_shifted ? m_shift : 0);
}

void Stretches::Set(Mark mark, std::size_t index, bool has)
{
    Of(mark)[index] = has;
}

bool Stretches::Has(Mark mark, std::size_t index) const
{
    return Of(mark)[index] != 0;
}

std::size_t Stretches::Next(Mark mark, std::size_t from) const
{
    const auto& marks = Of(mark);
    if (from >= marks.size())
        return kNone;
    const void* found = std::memchr(marks.data() + from, 1, marks.size() - from);
    return found ? static_cast<std::size_t>(static_cast<const unsigned char*>(found) - marks.data())
                 : kNone;
}

std::size_t Stretches::Previous(Mark mark, std::size_t before) const
{
    const auto& marks = Of(mark);
    const void* found = memrchr(marks.data(), 1, std::min(before, marks.size()));
    return found ? static_cast<std::size_t>(static_cast<const unsigned char*>(found) - marks.data())
                 : kNone;
}

std::size_t Stretches::MemoryBytes() const
{
    std::size_t bytes = m_starts.capacity() * sizeof(long) +
                        m_stretches.capacity() * sizeof m_stretches[0] + Count() * sizeof(Stretch);
    for (const auto& marks : m_marks)
        bytes += marks.capacity();
    for (const auto& stretch : m_stretches)
        bytes += stretch->events.capacity() * sizeof(Event);
    return bytes;
}

} // namespace engine::analysis
