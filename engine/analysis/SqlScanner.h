// SPDX-License-Identifier: GPL-3.0-or-later
// SqlScanner: the text of a script as tokens, in the dialect's own rules.
//
// It starts at any place where its state is known, and it may be cut at any place: a token longer
// than kLongToken bytes (a comment, a string, a run of blanks, binary junk) ends at the limit that
// the caller sets, and the state says what goes on behind it. Shorter tokens are always whole. A
// token depends on at most kLookAhead bytes behind its end.
#pragma once

#include "engine/analysis/SqlDialects.h"
#include "engine/analysis/TextSpans.h"

#include <cstdint>

namespace engine::analysis {

inline constexpr long kLongToken = 512;
inline constexpr long kLookAhead = 128;

enum class TokenKind : std::uint8_t
{
    Blank,       // no line end in it
    LineEnd,     // line ends and the blanks behind them, the first byte is a line end
    LineComment, // up to the line's end, without it
    BlockComment,
    CodeComment, // a block comment that the server runs
    Command,     // the rest of a line that is the client's, see TakeLine
    String,      // any quoting, prefix included
    QuotedName,
    Number,
    Variable, // its lead included
    Word,
    Terminator, // ; or what the script has set in its place
    Operator,   // one byte, parentheses included; :: is one too
    End,        // of the text, no bytes
};

struct Token
{
    TokenKind kind = TokenKind::End;
    bool resumed = false; // goes on from before: only the state told what it is
    bool cut = false;     // goes on behind its end
    long start = 0;
    long end = 0;

    long Length() const { return end - start; }
};

// What is under way at a place between tokens, or inside a long one.
struct ScanState
{
    enum class Close : std::uint8_t
    {
        Doubled,   // the byte in value, which stands for itself when doubled
        Escaped,   // the same, and a backslash takes the next byte with it
        Sequence,  // the bytes in value, length of them
        DollarTag, // the tag with the hash in value
        Line,      // a line of the bytes in value alone, length of them
    };

    TokenKind inside = TokenKind::End; // End: nothing
    Close close = Close::Doubled;
    std::uint8_t length = 0;
    std::uint64_t value = 0; // of a block comment how deep it is; of a Command see CommandRest

    bool InCode() const { return inside == TokenKind::End; }
    bool operator==(const ScanState&) const = default;
};

class SqlScanner
{
public:
    SqlScanner(const SqlDialect& dialect, TextSpans text, long position = 0, ScanState state = {});

    // The next token. One that is longer than kLongToken is cut at the limit, or a byte or two
    // behind it; at the text's end its kind is End.
    Token Next(long limit = kNoLimit)
    {
        if (m_position < m_plainEnd && m_state.InCode()) {
            const Token token = PlainToken();
            if (token.kind != TokenKind::End)
                return token;
        }
        return AnyToken(limit);
    }

    // The rest of the line behind the last token, as a Command.
    Token TakeLine(long limit = kNoLimit, ClientRest rest = {});

    // Lines that are none of SQL's, as a String: of data up to one that is \., this one included;
    // of foreign source up to one that is a slash, this one left out.
    Token TakeData(long limit = kNoLimit) { return TakeLines("\\.", limit); }
    Token TakeSource(long limit = kNoLimit) { return TakeLines("/", limit); }

    // What quotes text in dollars and begins at a place; the end is -1 if none does.
    struct DollarTag
    {
        long end = -1;
        std::uint64_t hash = 0; // tells one tag from another
    };
    DollarTag DollarTagAt(long position) const;

    // Goes on between tokens, behind what the caller has read by itself.
    void Restart(long position)
    {
        m_position = position;
        m_state = {};
    }

    // Lets the limit cut tokens of so many bytes that would stand across it, not only long ones.
    void CutTokensOf(long bytes) { m_uncut = bytes; }

    // What ends a statement instead of ;. Empty: ; does. The bytes are the caller's.
    void SetTerminator(std::string_view terminator);

    long Position() const { return m_position; }
    const ScanState& State() const { return m_state; }
    const TextSpans& Text() const { return m_text; }
    const SqlDialect& Dialect() const { return *m_dialect; }

    static constexpr long kNoLimit = 0x7fffffffffffffff;

private:
    using Close = ScanState::Close;

    // Nine tokens of ten are blanks, words and operators that lie in one run with room behind them:
    // read with one look at the table for each byte. End: the next one is something else.
    Token PlainToken()
    {
        const auto* const start = m_run + (m_position - m_runStart);
        const auto* at = start;
        const ByteClass first = m_bytes->begins[*at++];
        TokenKind kind = TokenKind::Operator;
        if (first == ByteClass::Word) {
            const auto* const stop = start + kLongToken;
            while (m_bytes->inWord[*at] && at < stop)
                ++at;
            if (*at == '\'' || *at == '&' || at == stop) // a string's prefix, a long token
                return {};
            kind = TokenKind::Word;
        } else if (first == ByteClass::Blank) {
            const auto* const stop = start + kLongToken;
            while (m_bytes->begins[*at] == ByteClass::Blank && at < stop)
                ++at;
            kind = TokenKind::Blank;
        } else if (first != ByteClass::Operator) {
            return {};
        }
        const Token token{.kind = kind, .start = m_position, .end = m_position + (at - start)};
        m_position = token.end;
        return token;
    }

    Token AnyToken(long limit);
    void FindPlainEnd();
    Token Begin(TokenKind kind) const { return {.kind = kind, .start = m_position}; }
    Token Resume();
    Token Finish(Token token, long end);
    Token Cut(Token token, long end);
    long CutOf(const Token& token) const;
    Token ScanBlank();
    Token ScanLineEnd();
    Token ScanWord();
    Token ScanNumber();
    Token ScanVariable();
    Token ScanDash();
    Token ScanSlash();
    Token ScanDollar();
    Token ScanOperator();
    Token OpenQuote(TokenKind kind, long prefix, Close close, char closer);
    Token OpenQuotingString(long prefix);
    Token TakeLines(std::string_view last, long limit);
    Token LineRest(Token token, long from);
    Token CommandRest(Token token, long from);
    Token PrefixedString(const Token& word);
    Token LinesRest(Token token, long from);
    long EndIfLastLine(long lineEnd) const;
    Token BlockComment(Token token, long from);
    Token Quoted(Token token, long from);
    Token WordRest(Token token, long from);
    long EndOfWord(long from, long stop) const;
    long EndOfDollarTag(long from) const;
    long EndIfClosed(long position) const;

    const SqlDialect* m_dialect;
    const ByteTable* m_bytes;
    TextSpans m_text;
    std::string_view m_terminator;
    long m_position;
    long m_limit = kNoLimit;
    long m_uncut = kLongToken; // bytes of a token that no limit cuts
    ScanState m_state;
    const unsigned char* m_run = nullptr; // what lies in memory from m_runStart on
    long m_runStart = 0;
    long m_plainEnd = 0; // plain tokens start before this place, and in the run
};

} // namespace engine::analysis
