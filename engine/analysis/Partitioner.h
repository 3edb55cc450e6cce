// SPDX-License-Identifier: GPL-3.0-or-later
// Partitioner: the statements, batches and catalogs of a script that is being edited.
//
// It reads no text before it is asked, and then as far as the question needs. A change makes the
// stretch that it stands in stale; that is read again, and what is behind it only if it was read
// from another state than the one that comes out. So a change that turns the rest of a script
// inside out (an opened comment) costs as much of the rest as is asked about; what remains is for
// Work to do in idle time.
//
// Positions count bytes. The text is handed in with every question and is the one that the changes
// told so far have made; nothing of it is kept.
#pragma once

#include "engine/analysis/Stretches.h"

#include <functional>
#include <optional>
#include <string>

namespace engine::analysis {

struct Span
{
    long start = 0;
    long end = 0;
    bool operator==(const Span&) const = default;
};

// A copy costs a pointer for each stretch: it shares what neither of both has read again.
class Partitioner
{
public:
    // A stretch is aimed at this length and may become twice as long. A change has one read again,
    // some 20 us; each takes 200 bytes beside its events.
    static constexpr long kStretch = 4096;

    explicit Partitioner(ScriptRules rules, long size = 0, long stretch = kStretch);

    void Reset(long size);
    void Inserted(long position, long bytes);
    void Deleted(long position, long bytes);
    long Size() const { return m_stretches.Size(); }
    const ScriptRules& Rules() const { return m_rules; }

    // Reads about that many bytes of what is stale. False if nothing is.
    bool Work(const TextSpans& text, long bytes);
    bool IsDone() const { return FirstStale() == Stretches::kNone; }

    // The statement that a caret means: the one it stands in or at the end of; on the rest of the
    // line behind a statement that one; else the next in the batch; else the last in the batch.
    std::optional<Span> StatementAt(const TextSpans& text, long position);

    // The batch around a position, without the lines of its separators. A place on a separator's
    // line belongs to the batch before it.
    Span BatchAt(const TextSpans& text, long position);

    // What the last USE before a position has chosen, unquoted, with the values that the client's
    // variables have there.
    std::optional<std::string> CatalogAt(const TextSpans& text, long position);

    // Every statement that has bytes in [start, end), in order.
    void ForEachStatement(const TextSpans& text, Span range,
                          const std::function<void(const Span&)>& take);

    std::size_t MemoryBytes() const { return m_stretches.MemoryBytes(); }

private:
    // An event among those of its stretch.
    struct Place
    {
        std::size_t stretch = 0;
        std::size_t event = 0;
    };
    using Found = std::optional<Place>;

    std::size_t FirstStale() const;
    long Read(const TextSpans& text, std::size_t index);
    void MeetNeighbours(std::size_t index, long end);
    void Keep(std::size_t index, const StatementMachine& machine, const StatementState& entry);
    void MakeStale(std::size_t index, long position);
    void EnsureAt(const TextSpans& text, long position);
    long PositionOf(Place place) const;
    const Event& EventAt(Place place) const;
    Found Last(Mark mark, long position) const; // not behind the position
    Found Before(Mark mark, Place place) const;
    Found After(const TextSpans& text, Mark mark, Place place);
    Place FirstBehind(long position) const;
    long EndOfStatement(const TextSpans& text, Place start);
    Found NextInBatch(const TextSpans& text, long position);
    long BatchStart(const TextSpans& text, long position, Found* onLine) const;
    std::optional<std::string> NameAt(const TextSpans& text, Place place, long position) const;
    std::string Substituted(const TextSpans& text, const std::string& name, Place place) const;
    std::optional<std::string> ValueOf(const TextSpans& text, const std::string& variable,
                                       Place before) const;

    ScriptRules m_rules;
    long m_stretch;
    Stretches m_stretches;
    mutable std::size_t m_fresh = 0; // no stretch before this one is stale
};

} // namespace engine::analysis
