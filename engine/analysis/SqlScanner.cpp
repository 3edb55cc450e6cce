// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/analysis/SqlScanner.h"

#include "engine/analysis/ByteSearch.h"

#include <algorithm>

namespace engine::analysis {
namespace {

constexpr long kLongestTag = 64; // of $tag$, dollars included

// FNV-1a, to tell one dollar tag from another.
std::uint64_t HashOf(const TextSpans& text, long start, long end)
{
    std::uint64_t hash = 0xcbf29ce484222325U;
    for (; start < end; ++start)
        hash = (hash ^ text.At(start)) * 0x100000001b3U;
    return hash;
}

bool IsDigit(unsigned char byte)
{
    return byte >= '0' && byte <= '9';
}

long BytesOfCharacter(unsigned char lead)
{
    return lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

// What closes q'[..]' after the character behind the quote.
std::uint64_t ClosingByte(unsigned char opening)
{
    switch (opening) {
    case '[':
        return ']';
    case '{':
        return '}';
    case '(':
        return ')';
    case '<':
        return '>';
    default:
        return opening;
    }
}

} // namespace

SqlScanner::SqlScanner(const SqlDialect& dialect, TextSpans text, long position, ScanState state)
    : m_dialect(&dialect), m_bytes(&BytesOf(dialect)), m_text(text), m_position(position),
      m_state(state)
{}

void SqlScanner::SetTerminator(std::string_view terminator)
{
    m_terminator = terminator;
    m_plainEnd = 0;
}

// A terminator of the script's own may stand anywhere, in words too: then no token is plain.
void SqlScanner::FindPlainEnd()
{
    if (!m_terminator.empty())
        return;
    const std::string_view run = m_text.RunAt(m_position);
    const long room = static_cast<long>(run.size()) - kLongToken - 1;
    if (room <= 0)
        return;
    m_run = reinterpret_cast<const unsigned char*>(run.data());
    m_runStart = m_position;
    m_plainEnd = m_position + room;
}

Token SqlScanner::AnyToken(long limit)
{
    m_limit = limit;
    if (m_position >= m_text.Size())
        return Begin(TokenKind::End);
    if (m_position >= m_plainEnd)
        FindPlainEnd();
    if (!m_state.InCode()) {
        const Token rest = Resume();
        return rest.Length() > 0 ? rest : Next(limit);
    }
    if (!m_terminator.empty() && m_text.Has(m_position, m_terminator))
        return Finish(Begin(TokenKind::Terminator),
                      m_position + static_cast<long>(m_terminator.size()));
    switch (m_bytes->begins[m_text.At(m_position)]) {
    case ByteClass::Blank:
        return ScanBlank();
    case ByteClass::LineEnd:
        return ScanLineEnd();
    case ByteClass::Word:
        return ScanWord();
    case ByteClass::Digit:
        return ScanNumber();
    case ByteClass::Quote:
        return OpenQuote(TokenKind::String, 0,
                         m_dialect->backslashes ? Close::Escaped : Close::Doubled, '\'');
    case ByteClass::DoubleQuote:
        return m_dialect->doubleQuoteStrings
                   ? OpenQuote(TokenKind::String, 0,
                               m_dialect->backslashes ? Close::Escaped : Close::Doubled, '"')
                   : OpenQuote(TokenKind::QuotedName, 0, Close::Doubled, '"');
    case ByteClass::Backtick:
        return OpenQuote(TokenKind::QuotedName, 0, Close::Doubled, '`');
    case ByteClass::Bracket:
        return OpenQuote(TokenKind::QuotedName, 0, Close::Doubled, ']');
    case ByteClass::Dollar:
        return ScanDollar();
    case ByteClass::Dash:
        return ScanDash();
    case ByteClass::Slash:
        return ScanSlash();
    case ByteClass::Hash:
        return LineRest(Begin(TokenKind::LineComment), m_position);
    case ByteClass::Lead:
        return ScanVariable();
    case ByteClass::Semicolon:
        if (m_terminator.empty())
            return Finish(Begin(TokenKind::Terminator), m_position + 1);
        return ScanOperator();
    case ByteClass::Operator:
        break;
    }
    return ScanOperator();
}

Token SqlScanner::Resume()
{
    Token token = Begin(m_state.inside);
    token.resumed = true;
    switch (token.kind) {
    case TokenKind::LineComment:
        return LineRest(token, m_position);
    case TokenKind::Command:
        return CommandRest(token, m_position);
    case TokenKind::BlockComment:
    case TokenKind::CodeComment:
        return BlockComment(token, m_position);
    case TokenKind::String:
    case TokenKind::QuotedName:
        return m_state.close == Close::Line ? LinesRest(token, m_position)
                                            : Quoted(token, m_position);
    default:
        return WordRest(token, m_position);
    }
}

Token SqlScanner::Finish(Token token, long end)
{
    token.end = end;
    m_position = end;
    m_state = {};
    return token;
}

// The token goes on behind this place, or the text ends in it.
Token SqlScanner::Cut(Token token, long end)
{
    token.end = end;
    token.cut = true;
    m_position = end;
    m_state.inside = token.kind;
    return token;
}

long SqlScanner::CutOf(const Token& token) const
{
    const long least = token.start + (token.resumed ? 1 : m_uncut);
    return std::min(std::max(m_limit, least), m_text.Size());
}

Token SqlScanner::ScanBlank()
{
    const Token token = Begin(TokenKind::Blank);
    const long stop = CutOf(token);
    long end = m_position + 1;
    while (end < stop && m_bytes->begins[m_text.At(end)] == ByteClass::Blank)
        ++end;
    return Finish(token, end);
}

Token SqlScanner::ScanLineEnd()
{
    const Token token = Begin(TokenKind::LineEnd);
    const long stop = CutOf(token);
    long end = m_position + 1;
    while (end < stop) {
        const ByteClass next = m_bytes->begins[m_text.At(end)];
        if (next != ByteClass::Blank && next != ByteClass::LineEnd)
            break;
        ++end;
    }
    return Finish(token, end);
}

long SqlScanner::EndOfWord(long from, long stop) const
{
    long end = from;
    while (end < stop) {
        const std::string_view run =
            m_text.RunAt(end).substr(0, static_cast<std::size_t>(stop - end));
        const auto* const last = std::find_if_not(run.begin(), run.end(), [this](char c) {
            return m_bytes->inWord[static_cast<unsigned char>(c)];
        });
        end += last - run.begin();
        if (last != run.end())
            break;
    }
    if (m_terminator.empty())
        return end;
    for (; from < end; ++from) {
        if (m_text.Has(from, m_terminator))
            break;
    }
    return from;
}

Token SqlScanner::WordRest(Token token, long from)
{
    const long stop = CutOf(token);
    const long end = EndOfWord(from, stop);
    return end < stop || stop == m_text.Size() ? Finish(token, end) : Cut(token, end);
}

Token SqlScanner::ScanWord()
{
    const Token word = WordRest(Begin(TokenKind::Word), m_position + 1);
    const unsigned char next = m_text.At(word.end);
    return word.Length() <= 2 && (next == '\'' || next == '&') ? PrefixedString(word) : word;
}

// The string that a word is the prefix of, or the word.
Token SqlScanner::PrefixedString(const Token& word)
{
    m_position = word.start;
    const auto first = static_cast<char>(m_text.At(word.start) | 32);
    const unsigned char next = m_text.At(word.end);
    const Close close = m_dialect->backslashes ? Close::Escaped : Close::Doubled;
    const unsigned char quote = m_text.At(word.end + 1);
    if (next == '&') {
        if (m_dialect->unicodeStrings && word.Length() == 1 && first == 'u' &&
            (quote == '\'' || quote == '"'))
            return OpenQuote(quote == '"' ? TokenKind::QuotedName : TokenKind::String, 2,
                             Close::Doubled, static_cast<char>(quote));
    } else if (word.Length() == 1) {
        if (first == 'e' && m_dialect->escapeStrings)
            return OpenQuote(TokenKind::String, 1, Close::Escaped, '\'');
        if (m_dialect->stringPrefixes.find(first) != std::string_view::npos)
            return OpenQuote(TokenKind::String, 1, close, '\'');
        if (first == 'q' && m_dialect->quotingStrings)
            return OpenQuotingString(1);
    } else if (m_dialect->quotingStrings && first == 'n' &&
               (m_text.At(word.start + 1) | 32) == 'q') {
        return OpenQuotingString(2);
    }
    m_position = word.end;
    return word;
}

// Exponents, suffixes and other bases are letters; a point belongs to it before a digit.
Token SqlScanner::ScanNumber()
{
    Token token = WordRest(Begin(TokenKind::Number), m_position + 1);
    while (!token.cut && m_text.At(token.end) == '.' && IsDigit(m_text.At(token.end + 1)) &&
           token.Length() < kLongToken) {
        const Token more = WordRest(token, token.end + 1);
        token.end = more.end;
        token.cut = more.cut;
    }
    return token;
}

// A lead with a word behind it. One alone, or two of : (a cast), is an operator.
Token SqlScanner::ScanVariable()
{
    const unsigned char lead = m_text.At(m_position);
    long name = m_position + 1;
    if (m_text.At(name) == lead) {
        if (lead == ':')
            return Finish(Begin(TokenKind::Operator), name + 1);
        ++name;
    }
    const bool isLead =
        m_dialect->variableLeads.find(static_cast<char>(lead)) != std::string_view::npos;
    if (!isLead || !m_bytes->inWord[m_text.At(name)])
        return ScanOperator();
    return WordRest(Begin(TokenKind::Variable), name);
}

Token SqlScanner::ScanDash()
{
    if (m_text.At(m_position + 1) != '-')
        return ScanOperator();
    const bool blankBehind = m_text.At(m_position + 2) <= ' '; // the text's end included
    if (m_dialect->dashes == Dashes::CommentBeforeBlank && !blankBehind)
        return ScanOperator();
    return LineRest(Begin(TokenKind::LineComment), m_position + 2);
}

Token SqlScanner::ScanSlash()
{
    const unsigned char next = m_text.At(m_position + 1);
    if (next == '/' && m_dialect->slashComments)
        return LineRest(Begin(TokenKind::LineComment), m_position + 2);
    if (next != '*')
        return ScanOperator();
    const bool isCode = m_dialect->codeComments && m_text.At(m_position + 2) == '!';
    m_state.value = 1;
    return BlockComment(Begin(isCode ? TokenKind::CodeComment : TokenKind::BlockComment),
                        m_position + 2);
}

Token SqlScanner::LineRest(Token token, long from)
{
    const long stop = CutOf(token);
    const long end = FindEither(m_text, from, stop, '\r', '\n');
    return end < stop || stop == m_text.Size() ? Finish(token, end) : Cut(token, end);
}

Token SqlScanner::BlockComment(Token token, long from)
{
    const long stop = CutOf(token);
    const char opener = m_dialect->nestedComments ? '/' : '*';
    while ((from = FindEither(m_text, from, stop, '*', opener)) < stop) {
        const unsigned char next = m_text.At(from + 1);
        const bool closes = m_text.At(from) == '*' && next == '/';
        const bool opens = m_text.At(from) == '/' && next == '*';
        if (closes && --m_state.value == 0)
            return Finish(token, from + 2);
        if (opens)
            ++m_state.value;
        from += closes || opens ? 2 : 1;
    }
    return Cut(token, std::min(from, m_text.Size()));
}

Token SqlScanner::OpenQuote(TokenKind kind, long prefix, Close close, char closer)
{
    m_state.close = close;
    m_state.value = static_cast<unsigned char>(closer);
    return Quoted(Begin(kind), m_position + prefix + 1);
}

// The character behind the quote and a quote close it. A blank there is an ordinary string.
Token SqlScanner::OpenQuotingString(long prefix)
{
    const long at = m_position + prefix + 1;
    const unsigned char opening = m_text.At(at);
    if (opening <= ' ')
        return OpenQuote(TokenKind::String, prefix, Close::Doubled, '\'');
    const long bytes = BytesOfCharacter(opening);
    m_state.close = Close::Sequence;
    m_state.value = ClosingByte(opening);
    for (long i = 1; i < bytes; ++i)
        m_state.value |= static_cast<std::uint64_t>(m_text.At(at + i)) << (8 * i);
    m_state.value |= std::uint64_t{'\''} << (8 * bytes);
    m_state.length = static_cast<std::uint8_t>(bytes + 1);
    return Quoted(Begin(TokenKind::String), std::min(at + bytes, m_text.Size()));
}

long SqlScanner::EndOfDollarTag(long from) const
{
    long end = from + 1;
    const long stop = from + kLongestTag;
    while (end < stop && m_text.At(end) != '$' && m_bytes->inWord[m_text.At(end)])
        ++end;
    return m_text.At(end) == '$' && !IsDigit(m_text.At(from + 1)) ? end + 1 : -1;
}

SqlScanner::DollarTag SqlScanner::DollarTagAt(long position) const
{
    const bool mayBe = m_dialect->dollarStrings && m_text.At(position) == '$';
    const long end = mayBe ? EndOfDollarTag(position) : -1;
    return end < 0 ? DollarTag() : DollarTag{end, HashOf(m_text, position, end)};
}

Token SqlScanner::ScanDollar()
{
    const long tag = m_dialect->dollarStrings ? EndOfDollarTag(m_position) : -1;
    if (tag < 0) {
        const unsigned char next = m_text.At(m_position + 1);
        return next != '$' && m_bytes->inWord[next]
                   ? WordRest(Begin(TokenKind::Variable), m_position + 1)
                   : ScanOperator();
    }
    m_state.close = Close::DollarTag;
    m_state.value = HashOf(m_text, m_position, tag);
    return Quoted(Begin(TokenKind::String), tag);
}

// Where the token that is closed at this place ends, -1 if it is not closed here. A byte that only
// looks like it is passed by the caller.
long SqlScanner::EndIfClosed(long position) const
{
    switch (m_state.close) {
    case Close::DollarTag: {
        const long end = EndOfDollarTag(position);
        return end > 0 && HashOf(m_text, position, end) == m_state.value ? end : -1;
    }
    case Close::Sequence:
        for (int i = 1; i < m_state.length; ++i) {
            if (m_text.At(position + i) != (m_state.value >> (8 * i) & 0xFF))
                return -1;
        }
        return position + m_state.length;
    default:
        return m_text.At(position + 1) == m_state.value ? -1 : position + 1;
    }
}

Token SqlScanner::Quoted(Token token, long from)
{
    const long stop = CutOf(token);
    const bool dollar = m_state.close == Close::DollarTag;
    const char closer = dollar ? '$' : static_cast<char>(m_state.value & 0xFF);
    const char escape = m_state.close == Close::Escaped ? '\\' : closer;
    const long step = m_state.close == Close::Doubled || m_state.close == Close::Escaped ? 2 : 1;
    while ((from = FindEither(m_text, from, stop, closer, escape)) < stop) {
        if (m_text.At(from) == static_cast<unsigned char>(closer)) {
            const long end = EndIfClosed(from);
            if (end >= 0)
                return Finish(token, end);
        }
        from += step;
    }
    return Cut(token, std::min(from, m_text.Size()));
}

Token SqlScanner::ScanOperator()
{
    return Finish(Begin(TokenKind::Operator), m_position + 1);
}

} // namespace engine::analysis
