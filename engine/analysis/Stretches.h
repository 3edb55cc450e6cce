// SPDX-License-Identifier: GPL-3.0-or-later
// Stretches: a script cut into stretches of some kilobytes, with what the statement machine noted
// in each. Starts are kept so that a change in one stretch costs nothing in those behind it but a
// shift that moves with the place of the changes.
#pragma once

#include "engine/analysis/StatementMachine.h"

#include <array>
#include <cstddef>
#include <memory>
#include <vector>

namespace engine::analysis {

struct Stretch
{
    StatementState entry; // what it was read from
    StatementState exit;
    std::vector<Event> events;
    long lastEnd = -1; // as StatementMachine has it, from the stretch's start
    long reach = 0;    // bytes behind its end that reading it looked at
    bool dirty = true; // its text is not what was read
};

// What a stretch has, so that the next that has it is found without looking at those between.
enum class Mark : std::uint8_t
{
    Stale, // has to be read, again or at all
    Starts,
    Ends,
    Separators,
    Catalogs,
    Variables,
    Tokens,
};
inline constexpr std::size_t kMarks = 7;

// A copy shares what neither of both has changed. Not for several threads.
class Stretches
{
public:
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    // One stretch, to be read.
    void Reset(long size);

    std::size_t Count() const { return m_stretches.size(); }
    long Size() const { return StartOf(Count()); }
    long StartOf(std::size_t index) const
    {
        return m_starts[index] + (index > m_shifted ? m_shift : 0);
    }
    long LengthOf(std::size_t index) const { return StartOf(index + 1) - StartOf(index); }
    std::size_t IndexAt(long position) const; // the last one for a position at the end

    const Stretch& operator[](std::size_t index) const { return *m_stretches[index]; }
    Stretch& Edit(std::size_t index);

    void Grow(std::size_t index, long bytes);        // or shrink
    void Split(std::size_t index, long position);    // what is behind the position has to be read
    void Merge(std::size_t first, std::size_t last); // first takes the text of the others
    void MoveStart(std::size_t index, long position);

    void Set(Mark mark, std::size_t index, bool has);
    bool Has(Mark mark, std::size_t index) const;
    std::size_t Next(Mark mark, std::size_t from) const;       // kNone if there is none
    std::size_t Previous(Mark mark, std::size_t before) const; // likewise

    std::size_t MemoryBytes() const;

private:
    std::vector<unsigned char>& Of(Mark mark) { return m_marks[static_cast<std::size_t>(mark)]; }
    const std::vector<unsigned char>& Of(Mark mark) const
    {
        return m_marks[static_cast<std::size_t>(mark)];
    }
    void MoveShift(std::size_t index);

    std::vector<long> m_starts{0}; // and the end; those behind m_shifted lack m_shift
    std::size_t m_shifted = 0;
    long m_shift = 0;
    std::vector<std::shared_ptr<Stretch>> m_stretches;
    std::array<std::vector<unsigned char>, kMarks> m_marks;
};

} // namespace engine::analysis
