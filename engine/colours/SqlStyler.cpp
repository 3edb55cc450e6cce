// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/colours/SqlStyler.h"

#include "control/SqlStyles.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

namespace engine {

using analysis::ScanState;
using analysis::SqlWord;
using analysis::TextSpans;

namespace {

constexpr int kGlobalVariables = 3; // keyword set
constexpr long kLongestPointedWord = 120;
constexpr long kRoom = 2 * analysis::kLongToken; // a part's last token ends within, behind the stop

std::uint64_t Mix(std::uint64_t hash, std::uint64_t value)
{
    hash = (hash ^ value) * 0x9E3779B97F4A7C15U;
    return hash ^ hash >> 29;
}

// AS of a routine, and DO, which runs one.
bool OpensBody(std::string_view word)
{
    const auto is = [word](char first, char second) {
        return (word[0] | 0x20) == first && (word[1] | 0x20) == second;
    };
    return word.size() == 2 && (is('a', 's') || is('d', 'o'));
}

bool IsInsideCharacter(unsigned char byte)
{
    return (byte & 0xC0U) == 0x80;
}

} // namespace

std::uint64_t SqlLineState::Hash() const
{
    const auto number = [](auto value) { return static_cast<std::uint64_t>(value); };
    std::uint64_t hash = Mix(scan.value, number(scan.inside) | number(scan.close) << 8 |
                                             number(scan.length) << 16 | number(docComment) << 24 |
                                             number(clientLine) << 25 | number(bodyMayCome) << 26 |
                                             number(inBody) << 27 | number(restStyle) << 32);
    hash = Mix(hash, bodyTag);
    hash = Mix(hash, number(blocks.declarations) << 32 | blocks.blocks);
    hash = Mix(hash, number(blocks.cases) << 32 | blocks.controls);
    hash = Mix(hash, number(blocks.parentheses) << 32 | blocks.body.depth);
    hash = Mix(hash, blocks.body.frames ^ number(blocks.body.place) << 62 ^
                         number(blocks.body.pending) << 60);
    for (const char c : blocks.terminator.Text())
        hash = Mix(hash, static_cast<unsigned char>(c));
    return Mix(hash, number(blocks.batch) | number(blocks.head) << 8 |
                         number(blocks.pending) << 16 | number(blocks.before) << 24 |
                         number(blocks.inStatement) << 32 | number(blocks.routineHeader) << 33 |
                         number(blocks.ifSeen) << 34 | number(blocks.whileSeen) << 35 |
                         number(blocks.rowset) << 36 | number(blocks.hasBegun) << 37 |
                         number(blocks.divided) << 38);
}

SqlStyler::SqlStyler(int lexer, const analysis::ScriptRules& rules, const SqlVocabulary& vocabulary,
                     SqlFoldOptions fold)
    : m_palette(PaletteOf(lexer)), m_dialect(*rules.dialect), m_vocabulary(vocabulary),
      m_separator(rules.separator), m_fold(fold), m_blocks(m_dialect), m_scanner(m_dialect, {})
{}

void SqlStyler::Start(TextSpans text, long position, const SqlLineState& state,
                      std::vector<char>& styles)
{
    m_scanner = analysis::SqlScanner(m_dialect, text, position, state.scan);
    m_state = state;
    m_blocks.state = state.blocks;
    m_scanner.SetTerminator(m_blocks.state.terminator.Text());
    m_inLine = false;
    m_buffer = &styles;
    m_start = position;
}

void SqlStyler::Resume(TextSpans text, long position, const SqlPlaceState& place,
                       std::vector<char>& styles)
{
    Start(text, position, place.state, styles);
    m_line = place.line;
    m_inLine = true;
    m_readTo = 0;
    m_blankStart = -1;
}

void SqlStyler::BeginLine()
{
    m_line = {};
    m_line.restStyle = m_state.restStyle;
    if (m_state.clientLine) {
        m_line.clientLine = m_line.ignored = true;
        m_line.isClean = false;
    }
    m_line.freshAtStart = m_blocks.state.batch == SqlBlockState::Batch::Fresh;
    m_line.startDepth = VisibleDepth();
    m_line.leastDepth = m_line.startDepth;
    m_readTo = 0;
    m_blankStart = -1;
    m_inLine = true;
}

// The part ends with a token, so that only one that is cut anyway is cut by it.
bool SqlStyler::Part(long next, long stop)
{
    const TextSpans& text = m_scanner.Text();
    while (IsInsideCharacter(text.At(stop)))
        ++stop;
    const bool isLast = stop + kRoom >= next;
    m_lineEnd = next;
    m_stop = isLast ? next : stop;
    m_scanner.CutTokensOf(isLast ? 1 : analysis::kLongToken);
    m_buffer->resize(static_cast<std::size_t>(m_stop + (isLast ? 0 : kRoom) - m_start));
    m_styles = *m_buffer;
    if (!m_inLine)
        BeginLine();
    while (m_scanner.Position() < m_stop) {
        const ScanState before = m_scanner.State();
        Token token = m_scanner.Next(m_stop);
        if (token.kind == TokenKind::End)
            break;
        if (!m_state.inBody || !CutAtBodyEnd(token))
            Take(token, before);
    }
    if (isLast)
        FinishLine();
    else
        m_buffer->resize(static_cast<std::size_t>(m_scanner.Position() - m_start));
    return isLast;
}

bool SqlStyler::IsPlace() const
{
    const long position = m_scanner.Position();
    const bool mayOpenBatch =
        m_line.freshAtStart && m_blocks.state.batch == SqlBlockState::Batch::Fresh;
    return position >= m_readTo && m_blankStart < 0 && !mayOpenBatch &&
           !IsInsideCharacter(m_scanner.Text().At(position));
}

SqlPlaceState SqlStyler::Place() const
{
    SqlPlaceState place{.state = m_state, .line = m_line};
    place.state.scan = m_scanner.State();
    place.state.blocks = m_blocks.state;
    return place;
}

void SqlStyler::Take(const Token& token, const ScanState& before)
{
    int style = 0;
    switch (token.kind) {
    case TokenKind::Blank:
        Fill(token.start, token.end, 0);
        if (m_line.afterName && token.start != std::exchange(m_blankEnd, token.end))
            m_blankStart = token.start;
        return;
    case TokenKind::LineEnd:
        Fill(token.start, token.end, 0);
        if (!m_state.inBody)
            m_blocks.TakeLineEnd();
        return;
    case TokenKind::LineComment:
    case TokenKind::BlockComment:
        TakeComment(token);
        return;
    case TokenKind::Word:
        TakeWord(token);
        return;
    case TokenKind::Variable:
        TakeVariable(token);
        return;
    case TokenKind::Command: // goes on from a part before
        Fill(token.start, token.end, m_line.restStyle);
        return;
    case TokenKind::CodeComment:
        style = m_palette.blockComment;
        break;
    case TokenKind::String:
        if (TakeBodyTag(token))
            return;
        style = m_palette.string;
        break;
    case TokenKind::QuotedName:
        style = QuotedNameStyle(token, before);
        break;
    case TokenKind::Number:
        style = m_palette.number;
        break;
    default:
        style = m_palette.op;
        break;
    }
    Fill(token.start, token.end, style);
    const bool wasGlobalName = m_line.afterGlobalName;
    Feed(token, SqlWord::None);
    m_line.afterName = token.kind == TokenKind::QuotedName;
    m_blankStart = -1;
    m_line.afterGlobalName = wasGlobalName && token.kind == TokenKind::Operator &&
                             m_blocks.state.before == SqlBlockState::Before::Point;
}

// Words and what else may begin a statement, a batch or a line of the client's.
void SqlStyler::Feed(const Token& token, SqlWord word)
{
    m_line.isBlank = false;
    const bool isFirst = m_line.isClean && !token.resumed;
    m_line.isClean = false;
    m_state.bodyMayCome = false;
    if (m_state.inBody) {
        OpenFreshBatch();
        const std::uint32_t depth = m_blocks.state.body.depth;
        m_blocks.TakeInBody(m_scanner.Text(), token, word);
        if (m_blocks.state.body.depth < depth)
            NoteDepth();
        return;
    }
    if (m_line.ignored || (isFirst && !m_separator.text.empty() && TakeSeparator(token)))
        return;
    OpenFreshBatch();
    if (TakeClient(token, isFirst))
        return;
    SqlBlockState::Batch& batch = m_blocks.state.batch;
    if (!m_separator.text.empty() && batch == SqlBlockState::Batch::None)
        batch = SqlBlockState::Batch::Fresh;
    m_blocks.Take(m_scanner.Text(), token, word);
    TakeWhatIsBehind();
    NoteDepth();
}

// The batch has code on an earlier line: this one and those behind belong to its fold.
void SqlStyler::OpenFreshBatch()
{
    if (!m_line.freshAtStart || m_blocks.state.batch != SqlBlockState::Batch::Fresh)
        return;
    m_blocks.state.batch = SqlBlockState::Batch::Open;
    const bool folds = BatchFolds(m_blocks.state, m_fold);
    m_line.startDepth += folds;
    m_line.leastDepth += folds;
}

bool SqlStyler::TakeSeparator(const Token& token)
{
    const analysis::SeparatorLine line =
        analysis::SeparatorAt(m_dialect, m_scanner.Text(), token.start, m_separator);
    m_readTo = std::max(line.read, token.start + static_cast<long>(m_separator.text.size()));
    if (!line.found)
        return false;
    m_blocks.CloseBatch();
    m_scanner.SetTerminator(m_blocks.state.terminator.Text());
    m_line.ignored = true;
    if (token.kind == TokenKind::Word)
        Fill(token.start, token.end, m_palette.statement);
    m_line.leastDepth = 0;
    return true;
}

void SqlStyler::TakeComment(const Token& token)
{
    const TextSpans& text = m_scanner.Text();
    const bool isLine = token.kind == TokenKind::LineComment;
    if (isLine && TakeDirective(token))
        return;
    if (!isLine && !token.resumed)
        m_state.docComment = text.At(token.start + 2) == '*' && text.At(token.start + 3) != '/';
    const bool isDoc = !isLine && m_state.docComment;
    Fill(token.start, token.end,
         isLine  ? m_palette.lineComment
         : isDoc ? m_palette.docComment
                 : m_palette.blockComment);
    if (!isLine && !token.cut)
        m_state.docComment = false;
    m_blankStart = -1;
    m_line.isBlank = false;
    OpenFreshBatch();
    if (m_dialect.terminatorComment && !token.resumed && !m_state.inBody)
        SetTerminator(analysis::TerminatorInComment(text, token, !m_blocks.state.hasBegun));
    NoteDepth();
}

void SqlStyler::TakeWord(const Token& token)
{
    if (token.resumed) {
        Fill(token.start, token.end, m_palette.identifier);
        m_line.isBlank = false;
        return;
    }
    using Before = SqlBlockState::Before;
    const bool behindPoint = m_blocks.state.before == Before::Point && !m_line.ignored;
    const SqlVocabulary::Entry* entry = &m_vocabulary.Find(BytesOf(token));
    Token whole = token;
    if (entry->beginsWithPoint && !behindPoint) {
        whole.end = EndOfPointedWord(token);
        const SqlVocabulary::Entry& pointed = m_vocabulary.Find(BytesOf(whole));
        if (pointed.sets)
            entry = &pointed;
        else
            whole.end = token.end;
    }
    const bool isGlobal =
        m_line.afterGlobalName && behindPoint && (entry->sets >> kGlobalVariables & 1);
    const int style =
        isGlobal ? m_palette.globalVariable : StylesFor(whole, *entry, behindPoint)[entry->sets];
    Fill(token.start, whole.end, style);
    if (style == m_palette.dataType && m_line.afterName && m_blankStart >= 0)
        Fill(m_blankStart, token.start, m_palette.beforeDataType);
    if (whole.end > token.end)
        m_scanner.Restart(whole.end);
    Feed(whole, entry->shape);
    m_state.bodyMayCome = !m_line.ignored && OpensBody(BytesOf(whole));
    m_line.afterName = style == m_palette.identifier;
    m_line.afterGlobalName = false;
    m_blankStart = -1;
}

// A word of several sets is what its place makes likely.
const SqlPalette::ByWordSets&
SqlStyler::StylesFor(const Token& token, const SqlVocabulary::Entry& entry, bool behindPoint) const
{
    if (behindPoint)
        return m_palette.wordsAfterPoint;
    if (m_line.afterName && (entry.sets >> SqlPalette::kDataTypeSet & 1))
        return m_palette.wordsAfterName;
    return m_scanner.Text().At(token.end) == '(' ? m_palette.calledWords : m_palette.words;
}

void SqlStyler::TakeVariable(const Token& token)
{
    const TextSpans& text = m_scanner.Text();
    int style = m_palette.variable;
    if (token.resumed) {
        Fill(token.start, token.end, style);
        return;
    }
    m_line.afterGlobalName = false;
    if (text.At(token.start) == '@' && text.At(token.start + 1) == '@') {
        Token name = token;
        name.start += 2;
        if (m_vocabulary.Find(BytesOf(name)).sets >> kGlobalVariables & 1)
            style = m_palette.globalVariable;
        m_line.afterGlobalName = true;
    }
    Fill(token.start, token.end, style);
    const bool isGlobalName = m_line.afterGlobalName;
    Feed(token, SqlWord::None);
    m_line.afterName = true;
    m_line.afterGlobalName = isGlobalName;
    m_blankStart = -1;
}

// Behind the last of words that points join.
long SqlStyler::EndOfPointedWord(const Token& token) const
{
    const TextSpans& text = m_scanner.Text();
    const auto& inWord = analysis::BytesOf(m_dialect).inWord;
    const long stop = std::min(m_lineEnd, token.start + kLongestPointedWord);
    long end = token.end;
    while (end + 1 < stop && text.At(end) == '.' && inWord[text.At(end + 1)]) {
        ++end;
        while (end < stop && inWord[text.At(end)])
            ++end;
    }
    return end;
}

int SqlStyler::QuotedNameStyle(const Token& token, const ScanState& before) const
{
    const TextSpans& text = m_scanner.Text();
    const bool hasPrefix = (text.At(token.start) | 0x20) == 'u'; // U&"
    const unsigned char quote = token.resumed ? static_cast<unsigned char>(before.value)
                                              : text.At(token.start + (hasPrefix ? 2 : 0));
    return quote == '"' ? m_palette.quotedName : m_palette.otherQuotedName;
}

// Good until the next call.
std::string_view SqlStyler::BytesOf(const Token& token)
{
    const auto length = static_cast<std::size_t>(token.Length());
    if (length == 0)
        return {};
    const std::string_view run = m_scanner.Text().RunAt(token.start);
    if (run.size() >= length)
        return run.substr(0, length);
    m_scratch = m_scanner.Text().Copy(token.start, token.end);
    return m_scratch;
}

void SqlStyler::Fill(long start, long end, int style)
{
    const auto size = static_cast<long>(m_styles.size());
    const long first = std::min(start - m_start, size);
    const long last = std::min(end - m_start, size);
    char* at = m_styles.data() + first;
    for (long i = first; i < last; ++i)
        *at++ = static_cast<char>(style);
}

void SqlStyler::NoteDepth()
{
    m_line.leastDepth = std::min(m_line.leastDepth, VisibleDepth());
}

long SqlStyler::VisibleDepth() const
{
    return FoldDepth(m_scanner.State(), m_blocks.state, m_fold);
}

// A line where something opens that stays open is a header, as deep as the line ever was: it may
// close something else before. Other lines are as deep as they start, so that the line of an END
// belongs to its block.
void SqlStyler::FinishLine()
{
    using Batch = SqlBlockState::Batch;
    m_inLine = false;
    const bool inText = m_scanner.State().inside == TokenKind::Command;
    if (m_line.clientLine && !m_scanner.State().InCode() && !inText)
        m_scanner.Restart(m_lineEnd);
    m_state.clientLine = m_line.clientLine && m_dialect.client->goesOnAtDash && EndsInDash();
    m_state.restStyle = inText ? m_line.restStyle : std::uint8_t{0};
    Batch& batch = m_blocks.state.batch;
    const long endDepth = VisibleDepth();
    const bool opens = endDepth > m_line.leastDepth;
    const long depth = m_line.ignored && batch == Batch::None ? 0
                       : opens                                ? m_line.leastDepth
                                                              : m_line.startDepth;
    m_level = FoldLevelOf(depth, opens, m_line.isBlank && m_fold.compact);
    m_state.scan = m_scanner.State();
    m_state.blocks = m_blocks.state;
    m_state.docComment = m_state.docComment && !m_state.scan.InCode();
}

} // namespace engine
