// SPDX-License-Identifier: GPL-3.0-or-later
// SqlStyler: bodies of routines, which some dialects write as strings between tags of dollars. They
// are coloured and folded as the code that they are; partitions take them for the strings that they
// are to the server. A body ends at its tag wherever that stands, inside a comment or a string too.
#include "engine/analysis/ByteSearch.h"
#include "engine/colours/SqlStyler.h"

namespace engine {

// The tag that opens a body.
bool SqlStyler::TakeBodyTag(const Token& token)
{
    if (!m_state.bodyMayCome || m_state.inBody || token.resumed)
        return false;
    const analysis::SqlScanner::DollarTag tag = m_scanner.DollarTagAt(token.start);
    if (tag.end < 0)
        return false;
    Fill(token.start, tag.end, m_palette.string);
    Feed(token, analysis::SqlWord::None);
    m_line.afterName = m_line.afterGlobalName = false;
    m_blankStart = -1;
    m_scanner.Restart(tag.end);
    m_state.inBody = true;
    m_state.bodyTag = tag.hash;
    return true;
}

// True for the tag that closes the body. A token that has it farther behind ends in front of it.
bool SqlStyler::CutAtBodyEnd(Token& token)
{
    const analysis::TextSpans& text = m_scanner.Text();
    for (long at = token.start;; ++at) {
        at = analysis::FindEither(text, at, token.end, '$', '$');
        if (at >= token.end)
            return false;
        const analysis::SqlScanner::DollarTag tag = m_scanner.DollarTagAt(at);
        if (tag.end < 0 || tag.hash != m_state.bodyTag)
            continue;
        if (at == token.start) {
            Fill(at, tag.end, m_palette.string);
            const bool isFirst = m_line.isBlank;
            m_line.isBlank = m_line.isClean = false;
            m_line.afterName = m_line.afterGlobalName = false;
            m_blankStart = -1;
            OpenFreshBatch();
            m_blocks.EndBody(text, {.kind = TokenKind::String, .start = at, .end = tag.end});
            if (isFirst)
                m_line.startDepth = VisibleDepth();
            NoteDepth();
            m_state.inBody = false;
            m_state.bodyTag = 0;
            m_state.bodyMayCome = false;
            m_state.docComment = false;
            m_scanner.Restart(tag.end);
            return true;
        }
        // A lead without its name, and a tag without its end, are none.
        const bool isTag = token.kind == TokenKind::String && !token.resumed &&
                           m_scanner.DollarTagAt(token.start).end > at;
        if (isTag || token.kind == TokenKind::Variable)
            token.kind = at - token.start > 1 ? TokenKind::Variable : TokenKind::Operator;
        token.end = at;
        token.cut = false;
        m_scanner.Restart(at);
        return false;
    }
}

} // namespace engine
