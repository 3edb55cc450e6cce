// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/search/Searcher.h"

#include "engine/search/PatternText.h"

#include <algorithm>
#include <cctype>

namespace engine::search {
namespace {

constexpr int kFlagsThatPrepare = flag::MatchCase | flag::Expression | flag::Posix | flag::Native;

bool IsEmpty(Range range)
{
    return range.start >= range.end;
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
    from = std::clamp(from, 0L, m_length);
    to = std::clamp(to, 0L, m_length);
    if (sought.empty())
        return Range{Aligned(from), Aligned(from)};
    const bool isExpression = (flags & flag::Expression) != 0;
    if (isExpression)
        flags &= ~(flag::WholeWord | flag::WordStart);
    if (!Prepare(sought, flags)) {
        if (isExpression) {
            m_groupsAre = Groups::None;
            m_groups[0] = {};
        }
        return std::nullopt;
    }
    m_flags = flags;
    // What is sought starts with a whole character, so that only the upper place matters.
    (from <= to ? to : from) = Aligned(std::max(from, to));
    if (!m_scan)
        return FindMatch(from, to);
    const Range found = FindText(from, to);
    return IsEmpty(found) ? std::nullopt : std::optional(found);
}

// The groups of the expression before are kept aside for as long as texts are searched.
bool Searcher::Prepare(std::string_view sought, int flags)
{
    const bool isSame = m_flags >= 0 && sought == m_sought &&
                        (flags & kFlagsThatPrepare) == (m_flags & kFlagsThatPrepare) &&
                        (!m_usesWords || WordsAreTheSame());
    if (isSame)
        return m_scan || m_finder;
    KeepGroups();
    m_flags = -1;
    m_sought = sought;
    m_scan.reset();
    m_finder.reset();
    m_anchored.reset();
    m_usesWords = false;
    return flags & flag::Expression ? PrepareExpression(sought, flags)
                                    : PrepareText(m_sought, (flags & flag::MatchCase) != 0);
}

bool Searcher::PrepareText(const std::string& text, bool matchCase)
{
    if (LiteralScan::Suits(text, matchCase)) {
        m_scan.emplace(text, matchCase);
        return true;
    }
    auto expression = Expression::Compile(text, Expression::Reading::Plain, matchCase);
    if (!expression)
        return false;
    m_finder.emplace(m_text, std::move(expression), MatchFinder::Rules(), m_limit);
    return true;
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
    const auto translation = Translated(sought, flags);
    if (!translation)
        return false;
    auto expression =
        Expression::Compile(translation->pattern, Expression::Reading::Pattern, matchCase);
    if (!expression)
        return false;
    m_usesWords = translation->usesWords;
    m_groupNumbers = translation->groups;
    m_finder.emplace(m_text, std::move(expression),
                     MatchFinder::Rules{translation->ends, translation->emptyAtLineEnds}, m_limit);
    if (!(flags & flag::Native))
        m_anchored = AnchoredText::Of(sought, (flags & flag::Posix) != 0);
    if (m_anchored && LiteralScan::Suits(m_anchored->text, matchCase)) {
        m_scan.emplace(m_anchored->text, matchCase);
        m_asciiWords.reset();
        for (const char character : m_words)
            m_asciiWords.set(static_cast<unsigned char>(character));
        m_asciiWords.reset('\r').reset('\n'); // no word leaves the line
    }
    return true;
}

std::optional<Translation> Searcher::Translated(std::string_view sought, int flags,
                                                Expression::Problem* problem)
{
    if (flags & flag::Native) {
        Translation same;
        same.pattern = sought;
        same.emptyAtLineEnds = true;
        for (int i = 1; i < 10; ++i)
            same.groups[static_cast<std::size_t>(i)] = i;
        return same;
    }
    m_wordsVersion = m_text.WordsVersion();
    m_words = m_text.WordCharacters();
    ExpressionTranslator translator(
        {(flags & flag::Posix) != 0, (flags & flag::MatchCase) != 0, WordItem()});
    auto translation = translator.Translate(sought);
    if (!translation && problem)
        *problem = {translator.Reason(), translator.Place()};
    return translation;
}

std::optional<Expression::Problem> Searcher::ProblemOf(std::string_view sought, int flags)
{
    if (sought.empty() || !(flags & flag::Expression))
        return std::nullopt;
    m_flags = -1; // what is prepared may have been made with other words
    Expression::Problem problem;
    const auto translation = Translated(sought, flags, &problem);
    if (!translation)
        return problem;
    if (Expression::Compile(translation->pattern, Expression::Reading::Pattern,
                            (flags & flag::MatchCase) != 0, &problem))
        return std::nullopt;
    if (!(flags & flag::Native)) // the place is one of the translation
        problem.place = Expression::kAnywhere;
    return problem;
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

// Texts as they stand. The two pieces of the text are scanned one by one, and between them a copy
// of the few bytes in which a match can cross the gap.

Range Searcher::FindText(long from, long to)
{
    m_isDoubtful = false;
    const Range found = from <= to ? FirstText(from, to) : LastText(to, from);
    if (m_isDoubtful)
        return FindMatch(from <= to ? found.start : from, to).value_or(Range());
    if (m_flags & flag::Expression) {
        m_groupsAre = Groups::None;
        m_groups[0] = found;
    }
    return found;
}

Range Searcher::FirstText(long from, long to)
{
    const long gap = m_text.Gap();
    if (gap <= from || gap >= to)
        return FirstTextIn(m_text.Bytes(from, to), from, to);
    if (const Range match = FirstTextIn(m_text.Bytes(from, gap), from, to); !IsEmpty(match))
        return match;
    const long reach = static_cast<long>(m_scan->LongestMatch()) - 1;
    const Range match = FirstTextIn(AroundGap(from, gap, to), std::max(from, gap - reach), to);
    return IsEmpty(match) ? FirstTextIn(m_text.Bytes(gap, to), gap, to) : match;
}

Range Searcher::LastText(long from, long to)
{
    const long gap = m_text.Gap();
    if (gap <= from || gap >= to)
        return LastTextIn(m_text.Bytes(from, to), from, to);
    if (const Range match = LastTextIn(m_text.Bytes(gap, to), gap, to); !IsEmpty(match))
        return match;
    const long reach = static_cast<long>(m_scan->LongestMatch()) - 1;
    const Range match = LastTextIn(AroundGap(from, gap, to), std::max(from, gap - reach), to);
    return IsEmpty(match) ? LastTextIn(m_text.Bytes(from, gap), from, to) : match;
}

std::string Searcher::AroundGap(long from, long gap, long to) const
{
    const long reach = static_cast<long>(m_scan->LongestMatch()) - 1;
    std::string around(m_text.Bytes(std::max(from, gap - reach), gap));
    around += m_text.Bytes(gap, std::min(to, gap + reach));
    return around;
}

Range Searcher::FirstTextIn(std::string_view bytes, long base, long to)
{
    for (Hit hit = m_scan->First(bytes, 0); hit; hit = m_scan->First(bytes, hit.start + 1)) {
        const Range match{base + static_cast<long>(hit.start), base + static_cast<long>(hit.end)};
        if (Suits(match, to, bytes, base))
            return match;
    }
    return {};
}

Range Searcher::LastTextIn(std::string_view bytes, long base, long to)
{
    for (Hit hit = m_scan->Last(bytes, bytes.size()); hit; hit = m_scan->Last(bytes, hit.start)) {
        const Range match{base + static_cast<long>(hit.start), base + static_cast<long>(hit.end)};
        if (Suits(match, to, bytes, base))
            return match;
    }
    return {};
}

// Whether a match of the text has the edges and the words that are asked for. Beside characters
// that are not ASCII it counts, and the expression looks again from there.
bool Searcher::Suits(Range match, long to, std::string_view bytes, long base)
{
    if (!m_anchored)
        return Words().Admits(m_text, match);
    if (!m_anchored->HasEdges())
        return true;
    const auto fits = m_anchored->FitsAt(match, to, {m_text, m_length, bytes, base}, m_asciiWords);
    m_isDoubtful = !fits;
    return fits.value_or(true);
}

std::optional<Range> Searcher::FindMatch(long from, long to)
{
    const Finding finding =
        from <= to ? m_finder->First(from, to, Words()) : m_finder->Last(to, from, Words());
    const bool isFound = finding.outcome == Expression::Outcome::Found;
    m_stopped += finding.outcome == Expression::Outcome::Stopped;
    if (m_flags & flag::Expression) {
        m_groupsAre = isFound ? Groups::InFinder : Groups::None;
        m_groups[0] = isFound ? finding.visible : Range();
    }
    return isFound ? std::optional<Range>(finding.visible) : std::nullopt;
}

// Of the last expression, before the finder goes on to something else.
void Searcher::KeepGroups()
{
    if (m_groupsAre == Groups::Kept)
        return;
    for (std::size_t i = 1; i < m_groups.size(); ++i) {
        const bool isThere = m_groupsAre == Groups::InFinder && m_groupNumbers[i] > 0;
        m_groups[i] = isThere ? m_finder->Group(m_groupNumbers[i]) : Range{};
    }
    m_groupsAre = Groups::Kept;
}

std::string Searcher::Substituted(std::string_view replacement)
{
    KeepGroups();
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
