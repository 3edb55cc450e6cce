// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/analysis/StatementMachine.h"

#include "engine/analysis/ByteSearch.h"

#include <algorithm>
#include <utility>

namespace engine::analysis {

StatementMachine::StatementMachine(const ScriptRules& rules, TextSpans text, long start,
                                   const StatementState& state)
    : m_rules(rules), m_dialect(*rules.dialect),
      m_blocks(m_dialect, BlockRules::Controls::BodiesAlone),
      m_scanner(m_dialect, text, start, state.scan), m_state(state), m_start(start)
{
    m_scanner.SetTerminator(m_state.terminator.Text());
}

void StatementMachine::Run(long limit)
{
    m_limit = limit;
    while (m_scanner.Position() < limit) {
        const Token token = m_scanner.Next(limit);
        if (token.kind == TokenKind::Blank)
            continue;
        if (token.kind == TokenKind::End)
            break;
        Take(token);
    }
}

long StatementMachine::Reach() const
{
    return std::max(m_read, m_scanner.Position() + kLookAhead);
}

StatementState StatementMachine::State() const
{
    StatementState state = m_state;
    state.scan = m_scanner.State();
    return state;
}

void StatementMachine::Note(Event::Kind kind, long position)
{
    m_events.emplace_back(kind, position - m_start);
}

void StatementMachine::Take(const Token& token)
{
    if (token.kind == TokenKind::LineEnd) {
        m_state.lineIsClean = true;
        if (m_state.pending == Pending::End) // what END names stands on its line
            m_blocks.SettlePending(m_state, token.kind, SqlWord::None);
        return;
    }
    if (m_state.lineIsClean && !token.resumed && TakeSeparator(token))
        return;
    switch (token.kind) {
    case TokenKind::LineComment:
        TakeComment(token);
        return;
    case TokenKind::BlockComment:
        TakeComment(token);
        if (!m_state.lineIsClean &&
            FindEither(m_scanner.Text(), token.start, token.end, '\r', '\n') < token.end)
            m_state.lineIsClean = true;
        return;
    case TokenKind::Terminator:
        TakeTerminator(token);
        break;
    default:
        token.resumed ? TakeRest(token) : TakePart(token);
        break;
    }
    m_state.lineIsClean = false;
    m_state.hasBegun = true;
}

bool StatementMachine::TakeSeparator(const Token& token)
{
    const SeparatorLine line =
        SeparatorAt(m_dialect, m_scanner.Text(), token.start, m_rules.separator);
    m_read = std::max(m_read, line.read);
    if (!line.found)
        return false;
    CloseStatement();
    Note(Event::Separator, token.start);
    m_state.Forget(Phase::None);
    m_state.lineIsClean = false;
    m_state.hasBegun = true;
    m_scanner.Restart(line.end);
    return true;
}

void StatementMachine::TakeTerminator(const Token& token)
{
    if (m_state.phase == Phase::None)
        return;
    if (m_state.phase == Phase::Ended) {
        if (std::exchange(m_state.takesTerminator, false))
            m_lastEnd = token.end;
        return;
    }
    const bool data = m_state.head == StatementState::Head::CopyData;
    m_lastEnd = token.end;
    if (m_blocks.TakeTerminator(m_state, m_state.terminator.IsOwn()))
        return;
    m_state.Forget(Phase::Ended);
    if (data)
        m_lastEnd = m_scanner.TakeData(m_limit).end;
}

// More of a long token: its first piece has said what there was to say.
void StatementMachine::TakeRest(const Token& token)
{
    m_lastEnd = token.end;
}

void StatementMachine::TakePart(const Token& token)
{
    const SqlWord word =
        m_state.before == Before::Point ? SqlWord::None : WordOf(m_scanner.Text(), token);
    if (m_state.phase == Phase::Ended) {
        if (word == SqlWord::Else && m_dialect.elseFollowsTerminator)
            m_state.phase = Phase::Open;
        else
            CloseStatement();
    } else if (m_state.phase == Phase::Open && SplitsAtUse(word)) {
        CloseStatement();
    }
    if (TakeClient(token))
        return;
    m_lastEnd = token.end;
    if (m_state.phase == Phase::None)
        OpenStatement(token, word);
    else
        Continue(token, word);
    if (m_state.phase == Phase::Open)
        m_blocks.NoteBefore(m_state, m_scanner.Text(), token);
}

bool StatementMachine::SplitsAtUse(SqlWord word) const
{
    return word == SqlWord::Use && m_dialect.useIsReserved && m_state.lineIsClean &&
           m_state.parentheses == 0 && m_state.blocks == 0 && m_state.pending != Pending::Begin &&
           !m_state.InRoutine();
}

void StatementMachine::CloseStatement()
{
    if (m_state.phase == Phase::None)
        return;
    if (m_lastEnd >= 0)
        Note(Event::End, m_lastEnd);
    else
        Note(Event::EndEarlier, m_start);
    m_state.phase = Phase::None;
}

void StatementMachine::OpenStatement(const Token& token, SqlWord word)
{
    Note(Event::Start, token.start);
    m_state.Forget(Phase::Open);
    if (word == SqlWord::Use)
        m_state.nameExpected = m_dialect.hasUse;
    else if (!m_blocks.Open(m_state, m_scanner.Text(), token, word))
        Continue(token, word);
}

void StatementMachine::Continue(const Token& token, SqlWord word)
{
    const bool choosesCatalog = word == SqlWord::Use && m_dialect.useIsReserved &&
                                m_state.lineIsClean && m_state.parentheses == 0 &&
                                !m_state.ReadsHead();
    const bool isName = m_state.nameExpected;
    if (m_blocks.Continue(m_state, m_scanner.Text(), token, isName ? SqlWord::None : word))
        TakeTerm();
    if (m_state.head == StatementState::Head::JavaSource) {
        m_lastEnd = m_scanner.TakeSource(m_limit).end;
        m_state.head = StatementState::Head::Plain;
    }
    if (isName)
        ReadName(token);
    else
        m_state.nameExpected = choosesCatalog;
}

void StatementMachine::ReadName(const Token& token)
{
    m_state.nameExpected = false;
    const long variables =
        m_dialect.variables ? EndOfVariables(m_dialect, m_scanner.Text(), token.start) : -1;
    const bool isName = token.kind == TokenKind::Word || token.kind == TokenKind::QuotedName;
    if (variables > token.end) {
        m_lastEnd = variables;
        m_read = std::max(m_read, variables + kLookAhead);
        m_scanner.Restart(variables);
    } else if (!isName ||
               token.Length() >= kLongToken) { // of a longer one the front may be at hand
        return;
    }
    Note(Event::Use, token.start);
    if (m_state.blocks > 0)
        return;
    m_state.Forget(Phase::Ended);
    m_state.takesTerminator = true;
}

} // namespace engine::analysis
