#include "engine/Colouring.h"

#include "control/SqlStyles.h"
#include "engine/Lexers.h"

#include <algorithm>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr long kChunk = 64 * 1024; // bytes that are walked over before they are handed on
constexpr int kGenericLexer = 9;

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

long StateNumber(const Raw& raw, long line)
{
    return static_cast<long>(raw.Send(Sci::SCI_GETLINESTATE, static_cast<std::uintptr_t>(line)));
}

int FoldLevel(const Raw& raw, long line)
{
    return static_cast<int>(raw.Send(Sci::SCI_GETFOLDLEVEL, static_cast<std::uintptr_t>(line)));
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

void SqlLineStates::Clear()
{
    m_states.assign(1, SqlLineState());
    m_numbers.clear();
    m_numbers.emplace(SqlLineState(), 0);
}

int SqlLineStates::NumberOf(const SqlLineState& state)
{
    const auto [found, isNew] = m_numbers.emplace(state, static_cast<int>(m_states.size()));
    if (isNew)
        m_states.push_back(state);
    return found->second;
}

const SqlLineState& SqlLineStates::Of(long number) const
{
    const auto index = static_cast<std::size_t>(number);
    return m_states[number >= 0 && index < m_states.size() ? index : 0];
}

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

// Dialects without a number of their own share one and say by a property which they are.
void Colouring::ChooseDialect(const Raw& raw)
{
    m_dialect = IsSqlLexer(m_lexer) ? analysis::DialectOfLexer(m_lexer) : nullptr;
    if (m_lexer != kGenericLexer)
        return;
    char name[32] = {};
    const auto key = reinterpret_cast<std::uintptr_t>(sqlstyle::kDialectProperty);
    if (raw.Send(Sci::SCI_GETPROPERTY, key) >= static_cast<std::intptr_t>(sizeof name))
        return;
    raw.Send(Sci::SCI_GETPROPERTY, key, name);
    if (const analysis::SqlDialect* chosen = analysis::DialectByName(name))
        m_dialect = chosen;
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
    ChooseDialect(raw);
    m_folds = IsOn(raw, "fold");
    m_foldOptions = {.comments = IsOn(raw, "fold.comment"), .compact = IsOn(raw, "fold.compact")};
    if (m_dialect != dialect || m_folds != folds || m_foldOptions != options)
        Restart(raw);
}

void Colouring::SetSeparator(const Raw& raw, std::optional<analysis::BatchSeparator> separator)
{
    if (m_separator == separator)
        return;
    m_separator = std::move(separator);
    Restart(raw);
}

// All of the text is to be styled afresh.
void Colouring::Restart(const Raw& raw)
{
    DropTail();
    ++m_edits;
    if (!IsSql())
        return;
    raw.Send(Sci::SCI_STARTSTYLING, 0);
    m_end = 0;
}

// Each window of a document tells of an edit before it happens, with the text as long as it was.
bool Colouring::IsRepeated(long length)
{
    const bool repeated = length == m_notedLength;
    m_notedLength = length;
    m_edits += !repeated;
    return repeated || !IsSql();
}

// The tail begins behind the lines that the edit touches: the one behind them too, since an edit
// between CR and LF makes and unmakes lines.
void Colouring::EditBegins(const Raw& raw, long start, long end)
{
    const long styled = static_cast<long>(raw.Send(Sci::SCI_GETENDSTYLED));
    if (styled != m_end) { // somebody else has styled: there is no telling what
        DropTail();
        m_end = std::min(styled, start);
        return;
    }
    const long after = StartOfLine(raw, LineAt(raw, end) + 2);
    if (m_tail.IsEmpty())
        m_tail = {after, m_end};
    else if (start < m_tail.end)
        m_tail.start = std::max(m_tail.start, after);
    else if (start == m_tail.end)
        m_tail.end = StartOfLine(raw, LineAt(raw, start));
    m_end = std::min(m_end, start);
}

void Colouring::InsertionBegins(const Raw& raw, long length, long position, long bytes)
{
    if (IsRepeated(length))
        return;
    EditBegins(raw, position, position);
    if (position < m_tail.end) {
        m_tail.start += bytes;
        m_tail.end += bytes;
    }
}

void Colouring::DeletionBegins(const Raw& raw, long length, long position, long bytes)
{
    if (IsRepeated(length))
        return;
    EditBegins(raw, position, position + bytes);
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
    m_end = std::min(static_cast<long>(raw.Send(Sci::SCI_GETENDSTYLED)), first);
    raw.Send(Sci::SCI_STARTSTYLING, static_cast<std::uintptr_t>(m_end));
    StyleTo(raw, last);
}

void Colouring::StyleTo(const Raw& raw, long position)
{
    if (m_running || !IsSql()) // a handler may ask while it is told of a style
        return;
    m_running = true;
    m_vocabulary.Prepare();
    const long end = static_cast<long>(raw.Send(Sci::SCI_GETENDSTYLED));
    if (end != m_end)
        DropTail();
    if (end == 0 && m_tail.IsEmpty()) {
        m_states.Clear();
        m_terminators.Clear();
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
    const long line = LineAt(raw, m_end);
    const long start = StartOfLine(raw, line);
    const analysis::ScriptRules rules = {m_dialect,
                                         m_separator.value_or(analysis::SeparatorOf(*m_dialect))};
    SqlStyler styler(m_lexer, rules, m_vocabulary, m_terminators, m_foldOptions);
    styler.Start(TextOf(raw), start,
                 line > 0 ? m_states.Of(StateNumber(raw, line)) : SqlLineState());
    m_lines.first = line;
    m_lines.start = start;
    Walk(raw, styler, target);
    const long end = start + static_cast<long>(m_lines.styles.size());
    if (m_folds)
        FoldFreshBatch(raw);
    if (!Apply(raw) || m_edits != edits)
        return false;
    if (m_lines.agrees) {
        m_end = std::max(end, m_tail.end);
        raw.Send(Sci::SCI_STARTSTYLING, static_cast<std::uintptr_t>(m_end));
        DropTail();
    } else {
        m_end = end;
        m_tail.start = std::max(m_tail.start, end + 1); // the line's state is that of the front
    }
    return m_end < target;
}

void Colouring::Walk(const Raw& raw, SqlStyler& styler, long target)
{
    const long lineCount = raw.LineCount();
    const long length = raw.Length();
    m_lines.styles.clear();
    m_lines.levels.clear();
    m_lines.states.clear();
    m_lines.agrees = false;
    int number = -1;
    for (long line = m_lines.first; line < lineCount;) {
        const std::size_t done = m_lines.styles.size();
        const long start = m_lines.start + static_cast<long>(done);
        const long next = line + 1 < lineCount ? StartOfLine(raw, line + 1) : length;
        m_lines.styles.resize(done + static_cast<std::size_t>(next - start));
        const SqlLineState before = styler.State();
        styler.Line(next, std::span(m_lines.styles).subspan(done));
        if (number < 0 || !(before == styler.State()))
            number = m_states.NumberOf(styler.State());
        m_lines.levels.push_back(styler.Level());
        m_lines.states.push_back(number);
        ++line;
        m_lines.agrees = ReachesTail(raw, line, next, styler.State(), number);
        const long walked = static_cast<long>(m_lines.styles.size());
        const bool enough = next >= target || walked >= kChunk;
        const bool lastIsLeft = line == lineCount - 1 && next == length;
        if (m_lines.agrees || (enough && !IsFresh(styler.State()) && !lastIsLeft))
            return;
    }
}

// A line whose batch may yet turn out to have one line only decides about lines before it.
bool Colouring::ReachesTail(const Raw& raw, long line, long start, const SqlLineState& state,
                            int number) const
{
    return !m_tail.IsEmpty() && start >= m_tail.start && start <= m_tail.end &&
           line < raw.LineCount() && !IsFresh(state) && StateNumber(raw, line) == number;
}

// The first line of a batch is a header once there is something on another line of it. Between the
// two are blank lines only.
void Colouring::FoldFreshBatch(const Raw& raw)
{
    m_lines.before.clear();
    const SqlLineState& first = m_states.Of(StateNumber(raw, m_lines.first));
    bool fresh = m_lines.first > 0 && IsFresh(first);
    bool isBefore = fresh; // the batch's first line
    std::size_t begin = 0; // of the blank lines behind it
    for (std::size_t i = 0; i < m_lines.states.size(); ++i) {
        const SqlBlockState& behind = m_states.Of(m_lines.states[i]).blocks;
        const bool freshBehind = behind.batch == SqlBlockState::Batch::Fresh;
        if (fresh && !freshBehind) {
            const bool opens = behind.batch == SqlBlockState::Batch::Open;
            for (std::size_t blank = begin; blank < i; ++blank)
                m_lines.levels[blank] += opens;
            if (isBefore)
                FoldBefore(raw, opens);
            else if (opens)
                m_lines.levels[begin - 1] |= sqlstyle::kFoldHeader;
        } else if (!fresh && freshBehind) {
            begin = i + 1;
            isBefore = false;
        }
        fresh = freshBehind;
    }
    if (fresh && isBefore)
        FoldBefore(raw, false);
}

// The same for a batch whose first line stands before the lines that were walked over.
void Colouring::FoldBefore(const Raw& raw, bool opens)
{
    long line = m_lines.first;
    long depthBehind = 0;
    while (line > 0) {
        const SqlLineState& behind = m_states.Of(StateNumber(raw, line));
        depthBehind = static_cast<long>(behind.blocks.Depth());
        --line;
        if (line == 0 || !IsFresh(m_states.Of(StateNumber(raw, line))))
            break;
        const int level = sqlstyle::kFoldBase + static_cast<int>(depthBehind) + opens;
        m_lines.before.emplace_back(line, std::min(level, sqlstyle::kFoldNumber) |
                                              (m_foldOptions.compact ? sqlstyle::kFoldBlank : 0));
    }
    const int level = FoldLevel(raw, line);
    const int number = level & sqlstyle::kFoldNumber;
    const bool isHeader = opens || sqlstyle::kFoldBase + depthBehind > number;
    m_lines.before.emplace_back(line, isHeader ? level | sqlstyle::kFoldHeader
                                               : level & ~sqlstyle::kFoldHeader);
}

// Hands the lines on to the stock engine, the styles last: they say how far the text is done. False
// if a handler that heard of it has changed the text.
bool Colouring::Apply(const Raw& raw)
{
    const unsigned edits = m_edits;
    const long lineCount = raw.LineCount();
    long line = m_lines.first;
    for (const int number : m_lines.states) {
        if (++line < lineCount && StateNumber(raw, line) != number)
            raw.Send(Sci::SCI_SETLINESTATE, static_cast<std::uintptr_t>(line), long{number});
        if (m_edits != edits)
            return false;
    }
    if (m_folds && !ApplyLevels(raw))
        return false;
    if (static_cast<long>(raw.Send(Sci::SCI_GETENDSTYLED)) != m_lines.start)
        raw.Send(Sci::SCI_STARTSTYLING, static_cast<std::uintptr_t>(m_lines.start));
    raw.Send(Sci::SCI_SETSTYLINGEX, m_lines.styles.size(), m_lines.styles.data());
    return m_edits == edits;
}

bool Colouring::ApplyLevels(const Raw& raw)
{
    const unsigned edits = m_edits;
    const auto set = [&](long line, int level) {
        if (FoldLevel(raw, line) != level)
            raw.Send(Sci::SCI_SETFOLDLEVEL, static_cast<std::uintptr_t>(line), long{level});
        return m_edits == edits;
    };
    for (const auto& [line, level] : m_lines.before) {
        if (!set(line, level))
            return false;
    }
    long line = m_lines.first;
    for (const int level : m_lines.levels) {
        if (!set(line++, level))
            return false;
    }
    return true;
}

} // namespace engine
