// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/search/MatchFinder.h"

#include "engine/search/PatternText.h"

#include <algorithm>
#include <optional>

namespace engine::search {
namespace {

constexpr long kWindow = 1024; // bytes of a quick run
constexpr long kGrowth = 4;    // of the window of an attempt that runs out of it

} // namespace

MatchFinder::Finding MatchFinder::First(long from, long to, const WordRule& words)
{
    Begin(words);
    return Seek(from, -1, to);
}

// Looks for the first match in ever larger stretches of starts, from the end; the last one is in
// the first stretch that has any. The gap goes along.
MatchFinder::Finding MatchFinder::Last(long from, long to, const WordRule& words)
{
    constexpr long kFirstStretch = 256;
    constexpr long kLargestStretch = 1024 * 1024;
    Begin(words);
    long stretch = kFirstStretch;
    for (long bound = to + 1; bound > from;) {
        const long first = CharacterStart(std::max(from, bound - stretch));
        const Finding finding = Seek(std::max(first, from), bound - 1, to);
        if (finding.outcome == Outcome::Found)
            return LastFrom(finding, to, bound);
        if (finding.outcome == Outcome::Stopped)
            return finding;
        bound = std::min(std::max(first, from), bound - 1);
        stretch = std::min(2 * stretch, kLargestStretch);
    }
    return {};
}

void MatchFinder::Begin(const WordRule& words)
{
    m_words = words;
    m_budget = Budget(m_limit);
    m_length = m_text.Length();
}

// The last match that starts before the bound, by halves.
MatchFinder::Finding MatchFinder::LastFrom(Finding first, long to, long bound)
{
    bool isLatest = true; // the last match that was found: groups are asked for it
    for (;;) {
        const long next = NextPlace(first.whole.start);
        if (next >= bound || next == first.whole.start)
            return isLatest ? first : Seek(first.whole.start, first.whole.start, to);
        const long middle = CharacterStart(next + (bound - next) / 2);
        const long from = std::max(middle, next);
        const Finding later = Seek(from, bound - 1, to);
        if (later.outcome == Outcome::Stopped)
            return later;
        isLatest = later.outcome == Outcome::Found;
        if (isLatest)
            first = later;
        else
            bound = from;
    }
}

// The first match that starts from one place to another, which is -1 for any.
MatchFinder::Finding MatchFinder::Seek(long from, long lastStart, long to)
{
    long end = QuickEnd(from, to);
    long carefulTo = from; // starts before it are too much for a quick run
    long reach = kWindow;
    std::optional<bool> mayMatch;
    for (;;) {
        Finding finding;
        if (from < carefulTo) {
            if (!mayMatch)
                mayMatch = CanMatchFrom(from, to);
            if (!*mayMatch)
                return {};
            finding = SeekCarefully(from, to, reach);
            if (finding.outcome == Outcome::NotFound) {
                if (from == to || (lastStart >= 0 && from >= lastStart))
                    return {};
                from = NextPlace(from);
                reach = kWindow;
                if (from >= carefulTo)
                    end = QuickEnd(from, to);
                continue;
            }
            return finding;
        }
        finding = FindIn({from, end, lastStart, end < to});
        switch (finding.outcome) {
        case Outcome::Found:
            return finding;
        case Outcome::Stopped:
            carefulTo = end < to ? end : to + 1;
            continue;
        case Outcome::Partial:
            if (finding.whole.start == from) {
                carefulTo = from + 1;
                continue;
            }
            from = finding.whole.start;
            break;
        case Outcome::NotFound:
            if (end >= to || (lastStart >= 0 && end > lastStart))
                return finding;
            from = end;
            break;
        }
        if (!m_budget.Take(kWindow / 2))
            return {Outcome::Stopped};
        end = QuickEnd(from, to);
    }
}

// Asked once before careful runs: what is not in the text need not be tried. The gap stays.
bool MatchFinder::CanMatchFrom(long from, long to) const
{
    const long gap = std::clamp(m_text.Gap(), from, to);
    return m_expression->CanMatchIn(m_text.Bytes(from, gap)) ||
           m_expression->CanMatchIn(m_text.Bytes(gap, to));
}

// The match that starts at a place.
MatchFinder::Finding MatchFinder::SeekCarefully(long at, long to, long& reach)
{
    for (;;) {
        reach *= kGrowth;
        const long end = to - at <= reach ? to : CharacterStart(at + reach);
        const Finding finding = FindIn({at, end, at, end < to, true});
        if (m_budget.IsSpent())
            return {Outcome::Stopped};
        if (finding.outcome != Outcome::Partial)
            return finding;
    }
}

// A window ends at the gap, which so stays where it is until an attempt needs what is behind it.
long MatchFinder::QuickEnd(long from, long to) const
{
    long end = to - from <= kWindow ? to : CharacterStart(from + kWindow);
    const long gap = m_text.Gap();
    if (from < gap && gap < end) {
        const long start = CharacterStart(gap);
        if (start > from)
            end = start;
    }
    return end;
}

// The first match in a window that counts. Nothing at a line's end is none, unless the pattern
// looks for the line's edge.
MatchFinder::Finding MatchFinder::FindIn(const Window& window)
{
    constexpr long kLongestCharacter = 4;
    const long back = kLongestCharacter * (static_cast<long>(m_expression->Lookbehind()) + 2);
    m_base = std::max(0L, window.from - back);
    std::string_view subject = m_text.Bytes(m_base, window.to);
    while (m_base < window.from && IsInsideCharacter(subject.front())) {
        subject.remove_prefix(1);
        ++m_base;
    }
    Expression::Run run;
    run.from = static_cast<std::size_t>(window.from - m_base);
    for (int i = 0; i < 3 && run.from < subject.size() && IsInsideCharacter(subject[run.from]); ++i)
        ++run.from;
    if (window.lastStart >= 0)
        run.lastStart = static_cast<std::size_t>(window.lastStart - m_base);
    run.isUnfinished = window.isUnfinished;
    run.endsInLine = !window.isUnfinished && !IsLineEnd(window.to);
    run.budget = window.isCareful ? &m_budget : nullptr;
    while (run.from <= run.lastStart) {
        const Outcome outcome = m_expression->Find(subject, run);
        if (outcome == Outcome::NotFound || outcome == Outcome::Stopped)
            return {outcome};
        Finding finding = Describe();
        finding.outcome = outcome;
        if (outcome == Outcome::Partial)
            return finding;
        const Range whole = finding.whole;
        const bool isNothing = whole.start == whole.end && !m_rules.emptyAtLineEnds &&
                               (whole.start == window.to || IsLineEnd(whole.start));
        if (!isNothing && m_words.Admits(m_text, whole))
            return finding;
        if (whole.start == window.to)
            return {window.isUnfinished ? Outcome::Partial : Outcome::NotFound, whole};
        run.notEmptyAtStart = isNothing;
        run.from =
            static_cast<std::size_t>((isNothing ? whole.start : NextPlace(whole.start)) - m_base);
    }
    return {};
}

MatchFinder::Finding MatchFinder::Describe() const
{
    Finding finding;
    finding.whole = finding.visible = Group(0);
    for (const int mark : m_rules.ends) {
        if (m_expression->Start(mark) != Expression::kAnywhere)
            finding.visible.end = Group(mark).start;
    }
    return finding;
}

Range MatchFinder::Group(int group) const
{
    const std::size_t start = m_expression->Start(group);
    if (start == Expression::kAnywhere)
        return {};
    return {m_base + static_cast<long>(start),
            m_base + static_cast<long>(m_expression->End(group))};
}

// The gap may stand inside a character, wherever somebody has read from.
long MatchFinder::CharacterStart(long at) const
{
    if (at >= m_length)
        return at;
    long start = at;
    while (start > 0 && at - start < 3 && IsInsideCharacter(m_text.Bytes(start, start + 1)[0]))
        --start;
    return start;
}

long MatchFinder::NextPlace(long at) const
{
    ++at;
    for (int i = 0; i < 3 && at < m_length && IsInsideCharacter(m_text.Bytes(at, at + 1)[0]); ++i)
        ++at;
    return std::min(at, m_length);
}

bool MatchFinder::IsLineEnd(long at) const
{
    if (at >= m_length)
        return true;
    const char byte = m_text.Bytes(at, at + 1)[0];
    return byte == '\r' || byte == '\n';
}

} // namespace engine::search
