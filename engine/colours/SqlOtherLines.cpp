// SPDX-License-Identifier: GPL-3.0-or-later
// What a SqlStyler makes of lines that are not the server's: the client program's, the
// pre-processor's, and what comments and statements put in the place of SQL's own rules.
#include "engine/colours/SqlStyler.h"

#include <algorithm>

namespace engine {

using analysis::ClientWord;
using analysis::TextSpans;

namespace {

// Where a bare # begins a comment, a line that begins with one of these is none: the pre-processor
// has still to deal with it. Told in the letters that it goes by.
constexpr std::string_view kIncludeWord = "#include"; // of any case, whole
constexpr std::string_view kDefineWord = "#define";   // with a blank behind it

bool IsBlankByte(unsigned char byte)
{
    return byte <= ' ';
}

std::string LowerCopy(const TextSpans& text, long start, long end)
{
    std::string copy = text.Copy(start, end);
    std::transform(copy.begin(), copy.end(), copy.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c; });
    return copy;
}

} // namespace

// Of a word or another token of code. isFirst: the first on its line.
bool SqlStyler::TakeClient(const Token& token, bool isFirst)
{
    if (token.resumed)
        return false;
    const TextSpans& text = m_scanner.Text();
    const bool isInside = m_blocks.state.inStatement;
    const analysis::ClientLine line =
        isInside
            ? analysis::ClientLineInStatement(m_dialect, text, token, isFirst)
            : analysis::ClientLineAt(m_dialect, text, token, isFirst, m_blocks.state.terminator);
    m_readTo = std::max(m_readTo, line.read);
    switch (line.kind) {
    case ClientWord::None:
        return false;
    case ClientWord::Inner:
        Fill(token.start, line.behind, m_palette.op);
        m_scanner.Restart(line.behind);
        m_blocks.state.inStatement = true;
        return true;
    default:
        TakeClientLine(token, line, isInside);
        return true;
    }
}

void SqlStyler::TakeClientLine(const Token& token, const analysis::ClientLine& line, bool isInside)
{
    using Batch = SqlBlockState::Batch;
    m_blocks.state.hasBegun = true;
    if (line.kind == ClientWord::Delimiter)
        SetTerminator(analysis::DelimiterAt(m_scanner.Text(), line.behind));
    const SqlBlockState& blocks = m_blocks.state;
    const bool isDeep = blocks.blocks > 0 || blocks.declarations > 0 || blocks.parentheses > 0 ||
                        blocks.InRoutine();
    const bool staysInside =
        isInside &&
        (line.isEscape ? line.kind != ClientWord::Send && line.kind != ClientWord::Cut : isDeep);
    if (!staysInside)
        m_blocks.CloseStatement();
    if (!m_separator.text.empty() && m_blocks.state.batch == Batch::None)
        m_blocks.state.batch = Batch::Fresh;
    if (token.kind == TokenKind::Word)
        Fill(token.start, token.end, m_palette.statement);
    const bool isCode = (line.kind == ClientWord::Line || line.kind == ClientWord::Bare ||
                         line.kind == ClientWord::Setting || line.kind == ClientWord::Variable ||
                         line.kind == ClientWord::Delimiter) &&
                        !line.isEscape && m_palette.clientLine == 0;
    if (isCode) {
        m_line.ignored = true;
        m_line.clientLine = true;
    } else {
        TakeClientText(token, line);
    }
    NoteDepth();
}

void SqlStyler::TakeClientText(const Token& token, const analysis::ClientLine& line)
{
    const bool isRemark = line.kind == ClientWord::Remark || line.kind == ClientWord::Comment;
    const bool isShort = line.kind == ClientWord::Alone ||
                         (line.kind == ClientWord::Send && line.rest.stopsAtTerminator);
    m_line.restStyle = isRemark ? m_palette.lineComment : m_palette.clientLine;
    if (token.kind != TokenKind::Word || m_line.restStyle != 0)
        Fill(token.start, token.end,
             token.kind != TokenKind::Word && m_line.restStyle == 0 ? m_palette.statement
                                                                    : m_line.restStyle);
    if (line.behind > token.end) {
        Fill(token.end, line.behind,
             m_line.restStyle == 0 ? m_palette.statement : m_line.restStyle);
        m_scanner.Restart(line.behind);
    }
    if (isShort)
        return;
    const Token rest = m_scanner.TakeLine(m_stop, line.rest);
    Fill(rest.start, rest.end, m_line.restStyle);
}

// What is read by other rules than SQL's behind the last token.
void SqlStyler::TakeWhatIsBehind()
{
    switch (m_blocks.WhatIsBehind()) {
    case SqlBlocks::Behind::Code:
        return;
    case SqlBlocks::Behind::Terminators: {
        const long start = m_scanner.Position();
        const analysis::TerminatorChange change =
            analysis::SetTermAt(m_scanner.Text(), start, m_blocks.state.terminator);
        const long stop = std::min(change.end, m_lineEnd);
        Fill(start, stop, m_palette.op);
        m_scanner.Restart(stop);
        SetTerminator(change);
        m_blocks.CloseStatement();
        return;
    }
    case SqlBlocks::Behind::Data:
    case SqlBlocks::Behind::Source: {
        const bool isData = m_blocks.WhatIsBehind() == SqlBlocks::Behind::Data;
        const Token foreign = isData ? m_scanner.TakeData(m_stop) : m_scanner.TakeSource(m_stop);
        Fill(foreign.start, foreign.end, m_palette.string);
        return;
    }
    }
}

void SqlStyler::SetTerminator(const analysis::TerminatorChange& change)
{
    m_readTo = std::max(m_readTo, change.read);
    if (!change.found)
        return;
    m_blocks.state.terminator = change.terminator;
    m_scanner.SetTerminator(m_blocks.state.terminator.Text());
}

// The bytes of the directive's word that a comment is, 0 for a real comment.
long SqlStyler::DirectiveWord(const Token& token) const
{
    const TextSpans& text = m_scanner.Text();
    if (!m_dialect.hashComments || !m_line.isBlank || text.At(token.start) != '#')
        return 0;
    const auto includeLength = static_cast<long>(kIncludeWord.size());
    const auto defineLength = static_cast<long>(kDefineWord.size());
    if (token.Length() >= includeLength &&
        LowerCopy(text, token.start, token.start + includeLength) == kIncludeWord &&
        !analysis::BytesOf(m_dialect).inWord[text.At(token.start + includeLength)])
        return includeLength;
    return text.Has(token.start, kDefineWord) && token.Length() > defineLength &&
                   IsBlankByte(text.At(token.start + defineLength))
               ? defineLength
               : 0;
}

bool SqlStyler::TakeDirective(const Token& token)
{
    const long word = token.resumed ? 0 : DirectiveWord(token);
    m_line.directive = m_line.directive || word > 0;
    if (!m_line.directive)
        return false;
    Fill(token.start, token.start + word, m_palette.statement);
    Fill(token.start + word, token.end, 0);
    m_blankStart = -1;
    m_line.isBlank = false;
    return true;
}

// Blanks behind a dash are looked over as far as a styler may look.
bool SqlStyler::EndsInDash() const
{
    const TextSpans& text = m_scanner.Text();
    const long first = std::max(m_lineEnd - kReach, 0L);
    long at = m_lineEnd - 1;
    while (at > first && IsBlankByte(text.At(at)))
        --at;
    return text.At(at) == '-';
}

} // namespace engine
