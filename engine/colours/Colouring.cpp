// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/colours/Colouring.h"

#include "control/SqlStyles.h"
#include "engine/colours/Lexers.h"
#include "engine/colours/SqlRules.h"

#include <algorithm>
#include <limits>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr long kChunk = 64 * 1024; // bytes that are walked over before they are handed on
constexpr long kPlaceStep = 1024;  // between places inside a line; each takes 136 bytes
constexpr long kSmallStep = 64;    // from where there can be none
constexpr long kNowhere = std::numeric_limits<long>::max();

long StartOfLine(const Raw& raw, long line)
{
    return line < raw.LineCount() ? static_cast<long>(raw.Send(Sci::SCI_POSITIONFROMLINE,
                                                               static_cast<std::uintptr_t>(line)))
                                  : raw.Length();
}

long LineAt(const Raw& raw, long position)
{
    return static_cast<long>(
        raw.Send(Sci::SCI_LINEFROMPOSITION, static_cast<std::uintptr_t>(position)));
}

bool IsOn(const Raw& raw, const char* property)
{
    return raw.Send(Sci::SCI_GETPROPERTYINT, reinterpret_cast<std::uintptr_t>(property)) != 0;
}

// The two runs of the text, without moving the gap between them.
analysis::TextSpans TextOf(const Raw& raw)
{
    const long gap = static_cast<long>(raw.Send(Sci::SCI_GETGAPPOSITION));
    const long length = raw.Length();
    const auto run = [&raw](long start, long end) {
        return end > start ? raw.Bytes(start, end) : std::string_view();
    };
    return {run(0, std::min(gap, length)), run(std::min(gap, length), length)};
}

bool IsFresh(const SqlLineState& state)
{
    return state.blocks.batch == SqlBlockState::Batch::Fresh;
}

} // namespace

void Colouring::SetLexer(const Raw& raw, int lexer)
{
    raw.Send(Sci::SCI_SETLEXER, static_cast<std::uintptr_t>(StockLexer(lexer)));
    Become(raw, lexer);
}

void Colouring::TakeStockLexer(const Raw& raw)
{
    const int lexer = LexerOfStock(static_cast<int>(raw.Send(Sci::SCI_GETLEXER)));
    if (IsSqlLexer(lexer))
        SetLexer(raw, lexer);
    else
        Become(raw, lexer);
}

void Colouring::Become(const Raw& raw, int lexer)
{
    if (lexer != m_lexer)
        m_vocabulary.Clear();
    m_lexer = lexer;
    ChooseDialect(raw);
    Restart(raw);
}

void Colouring::ChooseDialect(const Raw& raw)
{
    m_dialect = IsSqlLexer(m_lexer) ? DialectOf(raw, m_lexer) : nullptr;
    m_foldOptions.statements = m_dialect && m_dialect->statementsFold;
    m_terminator = TerminatorOf(raw);
}

void Colouring::SetKeyWords(const Raw& raw, int set, std::string_view words)
{
    if (m_vocabulary.SetWords(set, words))
        Restart(raw);
}

void Colouring::ReadProperties(const Raw& raw)
{
    const analysis::SqlDialect* dialect = m_dialect;
    const bool folds = m_folds;
    const SqlFoldOptions options = m_foldOptions;
    const analysis::Terminator terminator = m_terminator;
    ChooseDialect(raw);
    m_folds = IsOn(raw, "fold");
    m_foldOptions.comments = IsOn(raw, "fold.comment");
    m_foldOptions.compact = IsOn(raw, "fold.compact");
    if (m_dialect != dialect || m_folds != folds || m_foldOptions != options ||
        m_terminator != terminator)
        Restart(raw);
}

void Colouring::SetSeparator(const Raw& raw, std::optional<analysis::BatchSeparator> separator)
{
    if (m_separator == separator)
        return;
    m_separator = std::move(separator);
    Restart(raw);
}

void Colouring::Restart(const Raw& raw)
{
    DropTail();
    ++m_edits;
    if (!IsSql())
        return;
    raw.Send(Sci::SCI_STARTSTYLING, 0);
    m_end = 0;
    m_places.Clear();
    m_editLines = -1;
}

// Each window of a document tells of an edit before it happens, with the text as long as it was.
bool Colouring::IsRepeated(long length)
{
    const bool repeated = length == m_notedLength;
    m_notedLength = length;
    m_edits += !repeated;
    return repeated || !IsSql();
}

// How far the text is styled. If somebody else has styled, there is no telling what.
long Colouring::TakeEnd(const Raw& raw)
{
    const long end = static_cast<long>(raw.Send(Sci::SCI_GETENDSTYLED));
    if (end != m_end) {
        DropTail();
        m_places.Replace(m_end + 1, kNowhere, {}, raw.Length());
        m_end = end;
    }
    return end;
}

// The last place from which a walk can start to style a position.
long Colouring::LastPlace(const Raw& raw, long position) const
{
    const long lineStart = StartOfLine(raw, LineAt(raw, position));
    const std::size_t behind = m_places.FirstFrom(position + 1, raw.Length());
    return behind > 0 ? std::max(lineStart, m_places.PositionOf(behind - 1, raw.Length()))
                      : lineStart;
}

// The tail begins behind the edit's end, where what stood there in front of it may stand.
void Colouring::EditBegins(const Raw& raw, long length, long start, long end)
{
    EditEnds(raw);
    const long styled = m_end;
    if (TakeEnd(raw) == styled) {
        if (m_tail.IsEmpty())
            m_tail = {end + 1, styled};
        else if (start < m_tail.end)
            m_tail.start = std::max(m_tail.start, end + 1);
    }
    const long firstStale = start - SqlStyler::kReach + 1;
    m_places.Replace(firstStale, m_tail.IsEmpty() ? kNowhere : std::max(m_tail.start, end + 1), {},
                     length);
    if (start >= m_tail.end && firstStale <= m_tail.end)
        m_tail.end = std::min(m_tail.end, LastPlace(raw, start));
    m_end = std::min(m_end, start);
    m_editLines = raw.LineCount();
}

// Where lines were made or unmade, what the engine keeps for them may be another line's: for the
// one behind them too, since an edit between CR and LF unmakes a line.
void Colouring::EditEnds(const Raw& raw)
{
    if (m_editLines >= 0 && m_editLines != raw.LineCount()) {
        const long behind = StartOfLine(raw, LineAt(raw, m_editEnd) + 2);
        m_tail.start = std::max(m_tail.start, behind);
        m_places.Replace(m_editEnd, behind, {}, raw.Length());
    }
    m_editLines = -1;
}

// A text whose end is gone seems to be styled to its end. Its last line may be an empty one, that
// is to get a level of its own.
void Colouring::LeaveSomeToStyle(const Raw& raw, long position)
{
    const long place = LastPlace(raw, std::max(position - 1, 0L));
    m_tail.end = std::min(m_tail.end, place);
    m_end = std::min(m_end, place);
    raw.Send(Sci::SCI_STARTSTYLING, static_cast<std::uintptr_t>(m_end));
}

void Colouring::InsertionBegins(const Raw& raw, long length, long position, long bytes)
{
    if (IsRepeated(length))
        return;
    EditBegins(raw, length, position, position);
    m_editEnd = position + bytes;
    if (position < m_tail.end) {
        m_tail.start += bytes;
        m_tail.end += bytes;
    }
}

void Colouring::DeletionBegins(const Raw& raw, long length, long position, long bytes)
{
    if (IsRepeated(length))
        return;
    EditBegins(raw, length, position, position + bytes);
    m_editEnd = position;
    if (position + bytes == length)
        LeaveSomeToStyle(raw, position);
    if (position < m_tail.end) {
        m_tail.start -= bytes;
        m_tail.end -= bytes;
    }
}

void Colouring::Colorize(const Raw& raw, long start, long end)
{
    const long last = end < 0 ? raw.Length() : end;
    // What is styled in front of the start stays, and what stands ready behind an edit too.
    if (start > 0 && static_cast<long>(raw.Send(Sci::SCI_GETENDSTYLED)) <= start) {
        StyleTo(raw, last);
        return;
    }
    const long first = StartOfLine(raw, LineAt(raw, std::max(start, 0L)));
    DropTail();
    m_end = std::min(TakeEnd(raw), first);
    raw.Send(Sci::SCI_STARTSTYLING, static_cast<std::uintptr_t>(m_end));
    StyleTo(raw, last);
}

void Colouring::StyleTo(const Raw& raw, long position)
{
    if (m_running || !IsSql()) // a handler may ask while it is told of a style
        return;
    m_running = true;
    m_vocabulary.Prepare();
    EditEnds(raw);
    if (TakeEnd(raw) == 0 && m_tail.IsEmpty()) {
        SqlLineState first;
        first.blocks.terminator = m_terminator;
        m_states.Clear(first);
        m_places.Clear();
    }
    const long target = std::min(position, raw.Length());
    while (StyleChunk(raw, target)) {}
    m_running = false;
}

// Styles some lines. False: there is no more to do up to the place.
bool Colouring::StyleChunk(const Raw& raw, long target)
{
    const unsigned edits = m_edits;
    m_end = static_cast<long>(raw.Send(Sci::SCI_GETENDSTYLED));
    const analysis::ScriptRules rules = {
        m_dialect, m_separator.value_or(analysis::SeparatorOf(*m_dialect)), m_terminator};
    SqlStyler styler(m_lexer, rules, m_vocabulary, m_foldOptions);
    StartWalk(raw, styler);
    Walk(raw, styler, target);
    if (m_folds && TurnsFirstBatch(raw))
        return true;
    if (m_folds)
        m_lines.folds.FoldFreshBatch(raw, m_states, m_lines.states, BlocksBehind(),
                                     m_lines.endsInLine, m_foldOptions);
    if (!Apply(raw) || m_edits != edits)
        return false;
    const long end = m_lines.End();
    m_places.Replace(m_lines.start + 1, end + 1, m_lines.places, raw.Length());
    if (m_lines.agrees) {
        m_end = std::max(end, m_tail.end);
        raw.Send(Sci::SCI_STARTSTYLING, static_cast<std::uintptr_t>(m_end));
        DropTail();
    } else {
        m_end = end;
        m_tail.start = std::max(m_tail.start, end + 1); // the place's state is that of the front
    }
    return m_end < target;
}

void Colouring::StartWalk(const Raw& raw, SqlStyler& styler)
{
    m_lines.first = LineAt(raw, m_end);
    m_lines.start = LastPlace(raw, m_end);
    m_lines.styles.clear();
    const analysis::TextSpans text = TextOf(raw);
    if (m_lines.start > StartOfLine(raw, m_lines.first)) {
        const std::size_t place = m_places.FirstFrom(m_lines.start, raw.Length());
        styler.Resume(text, m_lines.start, m_places.StateOf(place), m_lines.styles);
    } else {
        const long number = m_lines.first > 0 ? SqlLineStates::NumberAt(raw, m_lines.first) : 0;
        styler.Start(text, m_lines.start, m_states.Of(number), m_lines.styles);
    }
}

void Colouring::Walk(const Raw& raw, SqlStyler& styler, long target)
{
    const long lineCount = raw.LineCount();
    const long length = raw.Length();
    m_lines.folds.Begin(m_lines.first);
    m_lines.states.clear();
    m_lines.places.clear();
    m_lines.agrees = false;
    m_lines.hasLongLine = false;
    int number = -1;
    long start = StartOfLine(raw, m_lines.first);
    for (long line = m_lines.first; line < lineCount;) {
        const long next = line + 1 < lineCount ? StartOfLine(raw, line + 1) : length;
        m_lines.hasLongLine |= next - std::exchange(start, next) >= AlikeStyles::kLongLine;
        const SqlLineState before = styler.State();
        m_lines.endsInLine = !WalkLine(raw, styler, next, target);
        if (m_lines.endsInLine)
            return;
        if (number < 0 || !(before == styler.State()))
            number = m_states.NumberOf(styler.State());
        m_lines.folds.Add(styler.Level());
        m_lines.states.push_back(number);
        ++line;
        m_lines.agrees = ReachesTail(raw, line, next, styler.State(), number);
        const bool enough = next >= target || next - m_lines.start >= kChunk;
        const bool lastIsLeft = line == lineCount - 1 && next == length;
        if (m_lines.agrees || (enough && !IsFresh(styler.State()) && !lastIsLeft))
            return;
    }
}

// False: there is no more to do in the line, or not in this walk.
bool Colouring::WalkLine(const Raw& raw, SqlStyler& styler, long next, long target)
{
    long step = kPlaceStep;
    while (!styler.Part(next, StopBehind(raw, m_lines.End(), step))) {
        const bool isPlace = styler.IsPlace();
        step = isPlace ? kPlaceStep : kSmallStep;
        if (!isPlace)
            continue;
        const long position = m_lines.End();
        m_lines.places.push_back({position, styler.Place()});
        m_lines.agrees = IsOfTail(m_lines.places.back(), raw.Length());
        if (m_lines.agrees || position >= target || position - m_lines.start >= kChunk)
            return false;
    }
    return true;
}

// At the next place, if one comes soon, so that a tail is not missed by a few bytes.
long Colouring::StopBehind(const Raw& raw, long position, long step) const
{
    if (m_places.IsEmpty())
        return position + step;
    const std::size_t next = m_places.FirstFrom(position + 1, raw.Length());
    const long place = next < m_places.Count() ? m_places.PositionOf(next, raw.Length()) : kNowhere;
    return place <= position + 2 * step ? place : position + step;
}

bool Colouring::IsOfTail(const SqlPlaces::Place& place, long length) const
{
    if (m_tail.IsEmpty() || place.position < m_tail.start || place.position > m_tail.end)
        return false;
    const std::size_t index = m_places.FirstFrom(place.position, length);
    return index < m_places.Count() && m_places.PositionOf(index, length) == place.position &&
           m_places.StateOf(index) == place.state;
}

// A line whose batch may yet turn out to have one line only decides about lines before it.
bool Colouring::ReachesTail(const Raw& raw, long line, long start, const SqlLineState& state,
                            int number) const
{
    return !m_tail.IsEmpty() && start >= m_tail.start && start <= m_tail.end &&
           line < raw.LineCount() && !IsFresh(state) &&
           SqlLineStates::NumberAt(raw, line) == number;
}

// What stands open behind the lines.
const SqlBlockState& Colouring::BlocksBehind() const
{
    return m_lines.endsInLine ? m_lines.places.back().state.state.blocks
                              : m_states.Of(m_lines.states.back()).blocks;
}

// Whether the first batch folds is not known before a separator or the text's end is met: the lines
// in front of it are then styled again.
bool Colouring::TurnsFirstBatch(const Raw& raw)
{
    const bool divided = BlocksBehind().divided;
    const bool isKnown = divided || (!m_lines.endsInLine && m_lines.End() == raw.Length());
    if (!isKnown || divided == m_foldOptions.firstBatch)
        return false;
    m_foldOptions.firstBatch = divided;
    Restart(raw);
    return true;
}

// Hands the lines on to the stock engine, the styles last: they say how far the text is done. False
// if a handler that heard of it has changed the text.
bool Colouring::Apply(const Raw& raw)
{
    const unsigned edits = m_edits;
    const long lineCount = raw.LineCount();
    long line = m_lines.first;
    for (const int number : m_lines.states) {
        if (++line < lineCount && SqlLineStates::NumberAt(raw, line) != number)
            raw.Send(Sci::SCI_SETLINESTATE, static_cast<std::uintptr_t>(line), long{number});
        if (m_edits != edits)
            return false;
    }
    if (m_folds && !m_lines.folds.Apply(raw, m_edits))
        return false;
    if (static_cast<long>(raw.Send(Sci::SCI_GETENDSTYLED)) != m_lines.start)
        raw.Send(Sci::SCI_STARTSTYLING, static_cast<std::uintptr_t>(m_lines.start));
    if (m_lines.hasLongLine)
        LayAlikeInLongLines(raw);
    raw.Send(Sci::SCI_SETSTYLINGEX, m_lines.styles.size(), m_lines.styles.data());
    return m_edits == edits;
}

void Colouring::LayAlikeInLongLines(const Raw& raw)
{
    const long lineCount = raw.LineCount();
    long line = m_lines.first;
    for (long start = StartOfLine(raw, line); start < m_lines.End(); ++line) {
        const long next = line + 1 < lineCount ? StartOfLine(raw, line + 1) : raw.Length();
        const long from = std::max(start, m_lines.start);
        const long to = std::min(next, m_lines.End());
        if (next - std::exchange(start, next) >= AlikeStyles::kLongLine)
            m_alike.Lay(std::span(m_lines.styles)
                            .subspan(static_cast<std::size_t>(from - m_lines.start),
                                     static_cast<std::size_t>(to - from)),
                        raw.Bytes(from, to));
        if (next == raw.Length())
            break;
    }
    m_alike.Match(raw);
}

void Colouring::LayAlike(const Raw& raw, long start, std::span<char> styles)
{
    const auto end = static_cast<std::uintptr_t>(raw.Send(Sci::SCI_GETENDSTYLED));
    m_alike.Lay(styles, raw.Bytes(start, start + static_cast<long>(styles.size())));
    raw.Send(Sci::SCI_STARTSTYLING, static_cast<std::uintptr_t>(start));
    raw.Send(Sci::SCI_SETSTYLINGEX, styles.size(), styles.data());
    raw.Send(Sci::SCI_STARTSTYLING, end);
    m_alike.Match(raw);
}

} // namespace engine
