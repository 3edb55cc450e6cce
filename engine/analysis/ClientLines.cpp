// SPDX-License-Identifier: GPL-3.0-or-later
// What the statement machine makes of the client program's lines in a script and of comments that
// speak to the client: statements of their own, the terminator, the catalog.
#include "engine/analysis/StatementMachine.h"

#include <algorithm>

namespace engine::analysis {

// Of a statement's first token, or of one inside where the client has a say.
bool StatementMachine::TakeClient(const Token& token)
{
    const TextSpans& text = m_scanner.Text();
    const bool isInside = m_state.phase == Phase::Open;
    const ClientLine line =
        isInside ? ClientLineInStatement(m_dialect, text, token, m_state.lineIsClean)
                 : ClientLineAt(m_dialect, text, token, m_state.lineIsClean, m_state.terminator);
    m_read = std::max(m_read, line.read);
    if (line.kind == ClientWord::None)
        return false;
    if (line.kind == ClientWord::Inner) {
        if (!isInside) {
            Note(Event::Start, token.start);
            m_state.Forget(Phase::Open);
        }
        m_scanner.Restart(line.behind);
        m_lastEnd = line.behind;
        return true;
    }
    isInside ? TakeInStatement(token, line) : TakeClientLine(token, line);
    return true;
}

// A line of the client's is a statement of its own.
void StatementMachine::TakeClientLine(const Token& token, const ClientLine& line)
{
    if (line.kind == ClientWord::Comment) {
        m_scanner.TakeLine(m_limit);
        return;
    }
    Note(Event::Start, token.start);
    m_scanner.Restart(line.behind);
    Apply(line);
    TakeRestOf(line);
    m_state.Forget(Phase::Ended);
}

void StatementMachine::TakeInStatement(const Token& token, const ClientLine& line)
{
    const bool isBetween = !line.isEscape && m_state.blocks == 0 && m_state.parentheses == 0 &&
                           m_state.declarations == 0 && !m_state.InRoutine();
    if (line.kind == ClientWord::Cut || isBetween) {
        CloseStatement();
        TakeClientLine(token, line);
        return;
    }
    m_scanner.Restart(line.behind);
    Apply(line);
    TakeRestOf(line);
    if (line.kind == ClientWord::Send)
        m_state.Forget(Phase::Ended);
}

void StatementMachine::TakeRestOf(const ClientLine& line)
{
    const bool isShort = line.kind == ClientWord::Alone ||
                         (line.kind == ClientWord::Send && line.rest.stopsAtTerminator);
    m_lastEnd = isShort ? line.behind : m_scanner.TakeLine(m_limit, line.rest).end;
}

void StatementMachine::Apply(const ClientLine& line)
{
    if (line.kind == ClientWord::Delimiter)
        SetTerminator(DelimiterAt(m_scanner.Text(), line.behind));
    else if (line.kind == ClientWord::Connect)
        NoteArgument(Event::Connect, line.behind);
    else if (line.kind == ClientWord::Variable)
        NoteArgument(Event::Variable, line.behind);
}

// \c - keeps what it is.
void StatementMachine::NoteArgument(Event::Kind kind, long behind)
{
    const TextSpans& text = m_scanner.Text();
    const long start = SkipBlanks(text, behind);
    if (start > behind && text.At(start) > ' ' && text.At(start) != '-')
        Note(kind, start);
}

void StatementMachine::SetTerminator(const TerminatorChange& change)
{
    m_read = std::max(m_read, change.read);
    if (!change.found)
        return;
    m_state.terminator = change.terminator;
    m_scanner.SetTerminator(m_state.terminator.Text());
}

void StatementMachine::TakeTerm()
{
    const TerminatorChange change =
        SetTermAt(m_scanner.Text(), m_scanner.Position(), m_state.terminator);
    m_lastEnd = change.end;
    m_scanner.Restart(m_lastEnd);
    SetTerminator(change);
    m_state.Forget(Phase::Ended);
}

void StatementMachine::TakeComment(const Token& token)
{
    if (m_dialect.terminatorComment && !token.resumed)
        SetTerminator(TerminatorInComment(m_scanner.Text(), token, !m_state.hasBegun));
}

} // namespace engine::analysis
