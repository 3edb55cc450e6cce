#include "engine/search/Searcher.h"

#include "engine/search/PatternText.h"

#include <algorithm>
#include <cctype>

namespace engine::search {
namespace {

using Outcome = Expression::Outcome;

constexpr int kFlagsThatPrepare = flag::MatchCase | flag::Expression | flag::Posix | flag::Native;

constexpr bool IsInsideCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

char EscapedControl(char letter)
{
    switch (letter) {
    case 'a':
        return '\a';
    case 'b':
        return '\b';
    case 'f':
        return '\f';
    case 'n':
        return '\n';
    case 'r':
        return '\r';
    case 't':
        return '\t';
    case 'v':
        return '\v';
    case '\\':
        return '\\';
    default:
        return 0;
    }
}

} // namespace

std::optional<Range> Searcher::Find(std::string_view sought, int flags, long from, long to)
{
    m_length = m_text.Length();
    from = Aligned(std::clamp(from, 0L, m_length));
    to = Aligned(std::clamp(to, 0L, m_length));
    if (sought.empty())
        return Range{from, from};
    if (flags & flag::Expression) {
        flags &= ~(flag::WholeWord | flag::WordStart);
        m_groups = {};
    }
    if (!Prepare(sought, flags))
        return std::nullopt;
    m_flags = flags;
    if (m_scan)
        return from <= to ? FirstLiteral(from, to) : LastLiteral(to, from);
    return from <= to ? FirstMatch(from, to) : LastMatch(to, from);
}

bool Searcher::Prepare(std::string_view sought, int flags)
{
    const bool isSame = m_flags >= 0 && sought == m_sought &&
                        (flags & kFlagsThatPrepare) == (m_flags & kFlagsThatPrepare) &&
                        (!m_translation.usesWords || WordsAreTheSame());
    if (!isSame) {
        m_flags = -1;
        m_sought = sought;
        m_scan.reset();
        m_expression.reset();
        m_translation = {};
        const bool matchCase = (flags & flag::MatchCase) != 0;
        if (flags & flag::Expression) {
            if (!PrepareExpression(sought, flags))
                return false;
        } else if (LiteralScan::Suits(sought, matchCase)) {
            m_scan.emplace(sought, matchCase);
        } else {
            m_expression = Expression::Compile(m_sought, Expression::Reading::Plain, false);
        }
    }
    return m_scan || m_expression;
}

bool Searcher::WordsAreTheSame()
{
    if (m_wordsVersion == m_text.WordsVersion())
        return true;
    m_wordsVersion = m_text.WordsVersion();
    return m_words == m_text.WordCharacters();
}

bool Searcher::PrepareExpression(std::string_view sought, int flags)
{
    const bool matchCase = (flags & flag::MatchCase) != 0;
    if (flags & flag::Native) {
        m_translation.pattern = sought;
        m_translation.emptyAtLineEnds = true;
        for (int i = 1; i < 10; ++i)
            m_translation.groups[static_cast<std::size_t>(i)] = i;
    } else {
        m_wordsVersion = m_text.WordsVersion();
        m_words = m_text.WordCharacters();
        ExpressionTranslator translator({(flags & flag::Posix) != 0, matchCase, WordItem()});
        auto translation = translator.Translate(sought);
        if (!translation)
            return false;
        m_translation = std::move(*translation);
    }
    m_expression =
        Expression::Compile(m_translation.pattern, Expression::Reading::Pattern, matchCase);
    return m_expression != nullptr;
}

// Outside ASCII letters, marks and numbers make words, whatever is set.
std::string Searcher::WordItem() const
{
    std::string ascii;
    long alphanumerics = 0;
    for (const char character : m_words) {
        if (character == '\r' || character == '\n') // no word leaves the line
            continue;
        AppendCode(ascii, static_cast<unsigned char>(character));
        alphanumerics += std::isalnum(static_cast<unsigned char>(character)) != 0;
    }
    if (alphanumerics == 26 + 26 + 10)
        return Join({"[", ascii, "\\p{L}\\p{M}\\p{N}]"});
    return Join({"(?:[", ascii, "\\p{M}]|[^\\x{0}-\\x{7f}\\P{Xan}])"});
}

long Searcher::Aligned(long at) const
{
    if (at <= 0 || at >= m_length)
        return at;
    for (int i = 0; i < 3 && at < m_length && IsInsideCharacter(m_text.Bytes(at, at + 1)[0]); ++i)
        ++at;
    return at;
}

// The gap may stand inside a character, wherever somebody has read from.
long Searcher::CharacterStart(long at) const
{
    if (at >= m_length)
        return at;
    long start = at;
    while (start > 0 && at - start < 3 && IsInsideCharacter(m_text.Bytes(start, start + 1)[0]))
        --start;
    return start;
}

long Searcher::NextPlace(long at) const
{
    return std::min(Aligned(at + 1), m_length);
}

bool Searcher::SuitsWords(Range match) const
{
    if ((m_flags & flag::WholeWord) && m_text.IsWord(match.start, match.end))
        return true;
    if ((m_flags & flag::WordStart) && m_text.IsWordStart(match.start))
        return true;
    return (m_flags & (flag::WholeWord | flag::WordStart)) == 0;
}

// Texts as they stand. The two pieces of the text are scanned one by one, and between them a copy
// of the few bytes in which a match can cross the gap.

std::optional<Range> Searcher::FirstLiteral(long from, long to) const
{
    const long gap = m_text.Gap();
    if (gap <= from || gap >= to)
        return FirstLiteralIn(m_text.Bytes(from, to), from);
    if (const auto hit = FirstLiteralIn(m_text.Bytes(from, gap), from))
        return hit;
    const long reach = static_cast<long>(m_scan->LongestMatch()) - 1;
    if (const auto hit = FirstLiteralIn(AroundGap(from, gap, to), std::max(from, gap - reach)))
        return hit;
    return FirstLiteralIn(m_text.Bytes(gap, to), gap);
}

std::optional<Range> Searcher::LastLiteral(long from, long to) const
{
    const long gap = m_text.Gap();
    if (gap <= from || gap >= to)
        return LastLiteralIn(m_text.Bytes(from, to), from);
    if (const auto hit = LastLiteralIn(m_text.Bytes(gap, to), gap))
        return hit;
    const long reach = static_cast<long>(m_scan->LongestMatch()) - 1;
    if (const auto hit = LastLiteralIn(AroundGap(from, gap, to), std::max(from, gap - reach)))
        return hit;
    return LastLiteralIn(m_text.Bytes(from, gap), from);
}

std::string Searcher::AroundGap(long from, long gap, long to) const
{
    const long reach = static_cast<long>(m_scan->LongestMatch()) - 1;
    std::string around(m_text.Bytes(std::max(from, gap - reach), gap));
    around += m_text.Bytes(gap, std::min(to, gap + reach));
    return around;
}

std::optional<Range> Searcher::FirstLiteralIn(std::string_view bytes, long base) const
{
    auto hit = m_scan->First(bytes, 0);
    for (; hit; hit = m_scan->First(bytes, hit->start + 1)) {
        const Range match{base + static_cast<long>(hit->start), base + static_cast<long>(hit->end)};
        if (SuitsWords(match))
            return match;
    }
    return std::nullopt;
}

std::optional<Range> Searcher::LastLiteralIn(std::string_view bytes, long base) const
{
    auto hit = m_scan->Last(bytes, bytes.size());
    for (; hit; hit = m_scan->Last(bytes, hit->start)) {
        const Range match{base + static_cast<long>(hit->start), base + static_cast<long>(hit->end)};
        if (SuitsWords(match))
            return match;
    }
    return std::nullopt;
}

// Expressions. They want their subject in one piece, so the gap moves. Forwards it moves no further
// than the search has looked: what stands before it is searched as an unfinished subject, and only
// a match attempt that runs into the gap brings it to that attempt's start.

std::optional<Range> Searcher::FirstMatch(long from, long to)
{
    const long base = BaseOf(from);
    long gap = m_text.Gap();
    if (from < gap && gap < to)
        gap = CharacterStart(gap);
    if (from < gap && gap < to) {
        const Finding finding = FindIn({base, from, gap, -1, true});
        if (finding.outcome == Outcome::Stopped ||
            (finding.outcome == Outcome::Found && finding.whole.start < gap))
            return Keep(finding);
        from = finding.outcome == Outcome::Partial ? finding.whole.start : gap;
    }
    return Keep(FindIn({BaseOf(from), from, to}));
}

// Looks for the first match in ever larger stretches of starts, from the end; the last one is in
// the first stretch that has any. The gap goes along.
std::optional<Range> Searcher::LastMatch(long from, long to)
{
    constexpr long kFirstStretch = 256;
    constexpr long kLargestStretch = 1024 * 1024;
    long stretch = kFirstStretch;
    for (long bound = to + 1; bound > from;) {
        const long first = std::min(Aligned(std::max(from, bound - stretch)), bound - 1);
        const Window window{BaseOf(first), first, to, bound - 1};
        const Finding finding = FindIn(window);
        if (finding.outcome == Outcome::Found)
            return Keep(LastFrom(finding, window, bound));
        if (finding.outcome == Outcome::Stopped)
            return Keep(finding);
        bound = first;
        stretch = std::min(2 * stretch, kLargestStretch);
    }
    return std::nullopt;
}

// The last match of a window that starts before the bound, by halves.
Searcher::Finding Searcher::LastFrom(Finding first, Window window, long bound) const
{
    for (;;) {
        const long next = NextPlace(first.whole.start);
        if (next >= bound || next == first.whole.start)
            return first;
        window.from = Aligned(next + (bound - next) / 2);
        if (window.from >= bound)
            window.from = next;
        window.lastStart = bound - 1;
        const Finding later = FindIn(window);
        if (later.outcome == Outcome::Stopped)
            return later;
        if (later.outcome == Outcome::Found)
            first = later;
        else
            bound = window.from;
    }
}

// The first match in a window that counts. Nothing at a line's end is none, unless the pattern
// looks for the line's edge.
Searcher::Finding Searcher::FindIn(const Window& window) const
{
    const std::string_view subject = m_text.Bytes(window.base, window.to);
    Expression::Run run;
    run.from = static_cast<std::size_t>(window.from - window.base);
    if (window.lastStart >= 0)
        run.lastStart = static_cast<std::size_t>(window.lastStart - window.base);
    run.isUnfinished = window.isUnfinished;
    run.endsInLine = !IsLineEnd(window.to);
    for (;;) {
        const Outcome outcome = m_expression->Find(subject, run);
        if (outcome == Outcome::NotFound || outcome == Outcome::Stopped)
            return {outcome};
        Finding finding = Describe(window);
        finding.outcome = outcome;
        if (outcome == Outcome::Partial)
            return finding;
        const Range whole = finding.whole;
        const bool isNothing = whole.start == whole.end && !m_translation.emptyAtLineEnds &&
                               (whole.start == window.to || IsLineEnd(whole.start));
        if (!isNothing && SuitsWords(whole))
            return finding;
        if (whole.start == window.to)
            return {window.isUnfinished ? Outcome::Partial : Outcome::NotFound, whole};
        run.notEmptyAtStart = isNothing;
        run.from = static_cast<std::size_t>((isNothing ? whole.start : NextPlace(whole.start)) -
                                            window.base);
        if (run.from > run.lastStart)
            return {};
    }
}

Searcher::Finding Searcher::Describe(const Window& window) const
{
    const auto rangeOf = [&](int group) {
        const std::size_t start = m_expression->Start(group);
        if (start == Expression::kAnywhere)
            return Range{};
        return Range{window.base + static_cast<long>(start),
                     window.base + static_cast<long>(m_expression->End(group))};
    };
    Finding finding;
    finding.whole = finding.visible = rangeOf(0);
    for (const int mark : m_translation.ends) {
        if (m_expression->Start(mark) != Expression::kAnywhere)
            finding.visible.end = rangeOf(mark).start;
    }
    finding.groups[0] = finding.visible;
    for (std::size_t i = 1; i < finding.groups.size(); ++i) {
        if (m_translation.groups[i] > 0)
            finding.groups[i] = rangeOf(m_translation.groups[i]);
    }
    return finding;
}

std::optional<Range> Searcher::Keep(const Finding& finding)
{
    m_stopped += finding.outcome == Outcome::Stopped;
    if (finding.outcome != Outcome::Found)
        return std::nullopt;
    if (m_flags & flag::Expression)
        m_groups = finding.groups;
    return finding.visible;
}

// Where a subject starts whose matches start at a place: far enough before for what looks back.
long Searcher::BaseOf(long at) const
{
    constexpr long kLongestCharacter = 4;
    const long back = kLongestCharacter * (static_cast<long>(m_expression->Lookbehind()) + 2);
    return std::min(Aligned(std::max(0L, at - back)), at);
}

bool Searcher::IsLineEnd(long at) const
{
    if (at >= m_length)
        return true;
    const char byte = m_text.Bytes(at, at + 1)[0];
    return byte == '\r' || byte == '\n';
}

std::string Searcher::Substituted(std::string_view replacement) const
{
    std::string text;
    const long length = m_text.Length();
    for (std::size_t i = 0; i < replacement.size(); ++i) {
        const bool isEscape = replacement[i] == '\\' && i + 1 < replacement.size();
        const char letter = isEscape ? replacement[i + 1] : '\0';
        const char control = EscapedControl(letter);
        if (letter >= '0' && letter <= '9') {
            const Range group = m_groups[static_cast<std::size_t>(letter - '0')];
            const long end = std::min(group.end, length); // the text may have been cut since
            if (group.start < end)
                text += m_text.Bytes(group.start, end);
        } else if (control) {
            text += control;
        } else {
            text += replacement[i];
            continue;
        }
        ++i;
    }
    return text;
}

} // namespace engine::search
