// SPDX-License-Identifier: GPL-3.0-or-later
// SqlScanner: lines that are none of SQL's, as the client program's and data.
#include "engine/analysis/ByteSearch.h"
#include "engine/analysis/SqlScanner.h"

#include <algorithm>
#include <utility>

namespace engine::analysis {
namespace {

// How a Command goes on, in the length of its state.
constexpr unsigned kGoesOnAtDash = 1;
constexpr unsigned kStopsAtEscape = 2;
constexpr unsigned kStopsAtTerminator = 4;
constexpr unsigned kEndsInDash = 0x100; // in the value

} // namespace

Token SqlScanner::TakeLine(long limit, ClientRest rest)
{
    m_limit = limit;
    m_state.length = static_cast<std::uint8_t>((rest.goesOnAtDash ? kGoesOnAtDash : 0) |
                                               (rest.stopsAtEscape ? kStopsAtEscape : 0) |
                                               (rest.stopsAtTerminator ? kStopsAtTerminator : 0));
    m_state.value = 0;
    return CommandRest(Begin(TokenKind::Command), m_position);
}

// The quote that is open and whether the line ended in a dash so far stand in the state's value.
Token SqlScanner::CommandRest(Token token, long from)
{
    const unsigned how = m_state.length;
    if (how == 0)
        return LineRest(token, from);
    const std::string_view terminator = m_terminator.empty() ? ";" : m_terminator;
    const long stop = CutOf(token);
    auto quote = static_cast<unsigned char>(m_state.value & 0xFF);
    bool endsInDash = (m_state.value & kEndsInDash) != 0;
    for (; from < stop; ++from) {
        const unsigned char byte = m_text.At(from);
        if (byte == '\r' && endsInDash && m_text.At(from + 1) == '\n')
            continue;
        if (byte == '\r' || byte == '\n') {
            if (!(how & kGoesOnAtDash) || !std::exchange(endsInDash, false))
                return Finish(token, from);
        } else if ((how & kStopsAtTerminator) && m_text.Has(from, terminator)) {
            return Finish(token, from + static_cast<long>(terminator.size()));
        } else if (how & kStopsAtEscape) {
            if (byte == '\\' && quote == 0)
                return Finish(token, m_text.At(from + 1) == '\\' ? from + 2 : from);
            if (byte == '\\')
                ++from;
            else if (byte == quote)
                quote = 0;
            else if (quote == 0 && (byte == '\'' || byte == '"' || byte == '`'))
                quote = byte;
        }
        if (byte > ' ')
            endsInDash = byte == '-';
    }
    from = std::min(from, m_text.Size());
    if (from == m_text.Size())
        return Finish(token, from);
    m_state.value = quote | (endsInDash ? kEndsInDash : 0U);
    return Cut(token, from);
}

Token SqlScanner::TakeLines(std::string_view last, long limit)
{
    m_limit = limit;
    m_state.close = Close::Line;
    m_state.length = static_cast<std::uint8_t>(last.size());
    m_state.value = 0;
    for (std::size_t i = 0; i < last.size(); ++i)
        m_state.value |= static_cast<std::uint64_t>(static_cast<unsigned char>(last[i])) << (8 * i);
    return LinesRest(Begin(TokenKind::String), m_position);
}

Token SqlScanner::LinesRest(Token token, long from)
{
    const long stop = CutOf(token);
    while ((from = FindEither(m_text, from, stop, '\r', '\n')) < stop) {
        const long end = EndIfLastLine(from);
        if (end >= 0)
            return Finish(token, end);
        ++from;
    }
    return Cut(token, std::min(from, m_text.Size()));
}

// Of the token, if the line behind a line's end is the last; else -1. Blanks may stand around a
// slash.
long SqlScanner::EndIfLastLine(long lineEnd) const
{
    const bool isSource = m_state.length == 1;
    long at = lineEnd + (m_text.At(lineEnd) == '\r' && m_text.At(lineEnd + 1) == '\n' ? 2 : 1);
    if (isSource)
        at = SkipBlanks(m_text, at);
    for (int i = 0; i < m_state.length; ++i) {
        if (at >= m_text.Size() || m_text.At(at++) != (m_state.value >> (8 * i) & 0xFF))
            return -1;
    }
    const long end = at;
    if (isSource)
        at = SkipBlanks(m_text, at);
    const unsigned char next = m_text.At(at);
    if (at < m_text.Size() && next != '\r' && next != '\n')
        return -1;
    return isSource ? lineEnd : end;
}

} // namespace engine::analysis
