// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/analysis/Partitioner.h"

#include <algorithm>

namespace engine::analysis {
namespace {

constexpr long kFarthestReach = kSeparatorReach + kLongToken + 2 * kLookAhead;

Mark GroupOf(Event::Kind kind)
{
    switch (kind) {
    case Event::End:
    case Event::EndEarlier:
        return Mark::Ends;
    case Event::Separator:
        return Mark::Separators;
    case Event::Start:
        return Mark::Starts;
    case Event::Variable:
        return Mark::Variables;
    default:
        return Mark::Catalogs;
    }
}

} // namespace

Partitioner::Partitioner(ScriptRules rules, long size, long stretch)
    : m_rules(std::move(rules)), m_stretch(stretch)
{
    Reset(size);
}

void Partitioner::Reset(long size)
{
    m_stretches.Reset(size);
    m_fresh = 0;
}

std::size_t Partitioner::FirstStale() const
{
    const std::size_t first = m_stretches.Next(Mark::Stale, m_fresh);
    m_fresh = std::min(first, m_stretches.Count());
    return first;
}

// The text at the position has changed, which stands in the stretch.
void Partitioner::MakeStale(std::size_t index, long position)
{
    const auto mark = [this](std::size_t i) {
        m_stretches.Edit(i).dirty = true;
        m_stretches.Set(Mark::Stale, i, true);
        m_fresh = std::min(m_fresh, i);
    };
    mark(index);
    // Reading the ones before may have looked at it.
    while (index-- > 0) {
        const long distance = position - m_stretches.StartOf(index + 1);
        if (distance >= kFarthestReach)
            break;
        if (distance < m_stretches[index].reach)
            mark(index);
    }
}

void Partitioner::Inserted(long position, long bytes)
{
    const std::size_t index = m_stretches.IndexAt(position);
    m_stretches.Grow(index, bytes);
    MakeStale(index, position);
}

void Partitioner::Deleted(long position, long bytes)
{
    const std::size_t index = m_stretches.IndexAt(position);
    m_stretches.Merge(index, m_stretches.IndexAt(position + bytes));
    m_stretches.Grow(index, -bytes);
    MakeStale(index, position);
}

bool Partitioner::Work(const TextSpans& text, long bytes)
{
    std::size_t stale = FirstStale();
    for (; bytes > 0 && stale != Stretches::kNone; stale = FirstStale())
        bytes -= Read(text, stale) + 1;
    return stale != Stretches::kNone;
}

void Partitioner::EnsureAt(const TextSpans& text, long position)
{
    for (std::size_t stale = FirstStale();
         stale != Stretches::kNone && m_stretches.StartOf(stale) <= position; stale = FirstStale())
        Read(text, stale);
}

// Reads the first stale stretch, or the front of it if it is long. Gives the bytes read.
long Partitioner::Read(const TextSpans& text, std::size_t index)
{
    while (index + 1 < m_stretches.Count() && m_stretches.LengthOf(index) < m_stretch / 4 &&
           m_stretches.LengthOf(index) + m_stretches.LengthOf(index + 1) <= 2 * m_stretch)
        m_stretches.Merge(index, index + 1);
    StatementState entry;
    entry.terminator = m_rules.terminator;
    if (index > 0)
        entry = m_stretches[index - 1].exit;
    const long start = m_stretches.StartOf(index);
    const long length = m_stretches.LengthOf(index);
    StatementMachine machine(m_rules, text, start, entry);
    machine.Run(start + (length > 2 * m_stretch ? m_stretch : length));
    MeetNeighbours(index, machine.Position());
    Keep(index, machine, entry);
    return machine.Position() - start;
}

// The stretch ends where its last token does: before its old end, or inside the ones behind it.
void Partitioner::MeetNeighbours(std::size_t index, long end)
{
    if (end < m_stretches.StartOf(index + 1)) {
        m_stretches.Split(index, end);
        return;
    }
    std::size_t last = index;
    while (last + 1 < m_stretches.Count() && m_stretches.StartOf(last + 2) <= end)
        ++last;
    m_stretches.Merge(index, last);
    if (index + 1 < m_stretches.Count() && m_stretches.StartOf(index + 1) < end) {
        m_stretches.MoveStart(index + 1, end);
        m_stretches.Edit(index + 1).dirty = true;
    }
}

void Partitioner::Keep(std::size_t index, const StatementMachine& machine,
                       const StatementState& entry)
{
    Stretch& stretch = m_stretches.Edit(index);
    const long start = m_stretches.StartOf(index);
    stretch.entry = entry;
    stretch.exit = machine.State();
    stretch.events = std::vector<Event>(machine.Events().begin(), machine.Events().end());
    stretch.lastEnd = machine.LastEnd() < 0 ? -1 : machine.LastEnd() - start;
    stretch.reach = machine.Reach() - machine.Position();
    stretch.dirty = false;
    for (const Mark mark :
         {Mark::Stale, Mark::Starts, Mark::Ends, Mark::Separators, Mark::Catalogs, Mark::Variables})
        m_stretches.Set(mark, index, false);
    for (const Event& event : stretch.events)
        m_stretches.Set(GroupOf(event.GetKind()), index, true);
    m_stretches.Set(Mark::Tokens, index, stretch.lastEnd >= 0);
    if (index + 1 < m_stretches.Count()) {
        const Stretch& next = m_stretches[index + 1];
        m_stretches.Set(Mark::Stale, index + 1, next.dirty || next.entry != stretch.exit);
    }
}

const Event& Partitioner::EventAt(Place place) const
{
    return m_stretches[place.stretch].events[place.event];
}

long Partitioner::PositionOf(Place place) const
{
    const Event& event = EventAt(place);
    const long start = m_stretches.StartOf(place.stretch);
    if (event.GetKind() != Event::EndEarlier)
        return start + event.Distance();
    const std::size_t earlier = m_stretches.Previous(Mark::Tokens, place.stretch);
    return earlier == Stretches::kNone
               ? start
               : m_stretches.StartOf(earlier) + m_stretches[earlier].lastEnd;
}

// The first event that stands behind the position, be it one of the next stretch.
Partitioner::Place Partitioner::FirstBehind(long position) const
{
    const std::size_t index = m_stretches.IndexAt(position);
    const auto& events = m_stretches[index].events;
    const long distance = position - m_stretches.StartOf(index);
    const auto first = std::partition_point(events.begin(), events.end(), [&](const Event& event) {
        return event.Distance() <= distance;
    });
    return {index, static_cast<std::size_t>(first - events.begin())};
}

Partitioner::Found Partitioner::Before(Mark mark, Place place) const
{
    for (;;) {
        while (place.event > 0) {
            --place.event;
            if (GroupOf(EventAt(place).GetKind()) == mark)
                return place;
        }
        place.stretch = m_stretches.Previous(mark, place.stretch);
        if (place.stretch == Stretches::kNone)
            return std::nullopt;
        place.event = m_stretches[place.stretch].events.size();
    }
}

Partitioner::Found Partitioner::Last(Mark mark, long position) const
{
    return Before(mark, FirstBehind(position));
}

// From the place on, the event there included.
Partitioner::Found Partitioner::After(const TextSpans& text, Mark mark, Place place)
{
    for (;;) {
        const auto& events = m_stretches[place.stretch].events;
        for (; place.event < events.size(); ++place.event) {
            if (GroupOf(EventAt(place).GetKind()) == mark)
                return place;
        }
        std::size_t from = place.stretch + 1;
        std::size_t next = m_stretches.Next(mark, from);
        for (std::size_t stale = FirstStale(); stale != Stretches::kNone && stale <= next;
             stale = FirstStale()) {
            from = std::max(from, stale);
            Read(text, stale);
            next = m_stretches.Next(mark, from);
        }
        if (next == Stretches::kNone)
            return std::nullopt;
        place = {next, 0};
    }
}

long Partitioner::EndOfStatement(const TextSpans& text, Place start)
{
    const Found end = After(text, Mark::Ends, {start.stretch, start.event + 1});
    if (end)
        return PositionOf(*end);
    const std::size_t last = m_stretches.Previous(Mark::Tokens, m_stretches.Count());
    return m_stretches.StartOf(last) + m_stretches[last].lastEnd;
}

} // namespace engine::analysis
