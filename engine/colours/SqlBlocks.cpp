// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/colours/SqlBlocks.h"

#include <utility>

namespace engine {

using analysis::BlockRules;
using analysis::SqlWord;
using analysis::TokenKind;

SqlBlocks::SqlBlocks(const analysis::SqlDialect& dialect)
    : m_rules(dialect, BlockRules::Controls::All)
{}

void SqlBlocks::CloseBatch()
{
    CloseStatement();
    state.batch = SqlBlockState::Batch::None;
    state.divided = true;
}

void SqlBlocks::CloseStatement()
{
    SqlBlockState behind;
    behind.terminator = state.terminator;
    behind.batch = state.batch;
    behind.hasBegun = true;
    behind.divided = state.divided;
    state = behind;
}

// IS may have its declarations on the next line.
void SqlBlocks::TakeLineEnd()
{
    if (state.pending != SqlBlockState::Pending::Is)
        m_rules.SettlePending(state, TokenKind::LineEnd, SqlWord::None);
}

// Behind two points stands the end of a range, and no name.
void SqlBlocks::TakeInBody(const analysis::TextSpans& text, const analysis::Token& token,
                           SqlWord word)
{
    using Before = SqlBlockState::Before;
    state.body.Take(text, token, state.before == Before::Point ? SqlWord::None : word);
    m_rules.NoteBefore(state, text, token);
    if (state.before == Before::Point && text.At(token.start - 1) == '.')
        state.before = Before::Operator;
}

void SqlBlocks::EndBody(const analysis::TextSpans& text, const analysis::Token& tag)
{
    state.body = {};
    m_rules.NoteBefore(state, text, tag);
}

void SqlBlocks::Take(const analysis::TextSpans& text, const analysis::Token& token, SqlWord word)
{
    m_behind = Behind::Code;
    if (token.resumed)
        return;
    state.hasBegun = true;
    if (token.kind == TokenKind::Terminator) {
        const bool data = state.head == SqlBlockState::Head::CopyData;
        if (m_rules.TakeTerminator(state, state.terminator.IsOwn()))
            return;
        CloseStatement();
        m_behind = data ? Behind::Data : Behind::Code;
        return;
    }
    if (state.before == SqlBlockState::Before::Point)
        word = SqlWord::None;
    if ((std::exchange(state.inStatement, true) || !m_rules.Open(state, text, token, word)) &&
        m_rules.Continue(state, text, token, word))
        m_behind = Behind::Terminators;
    m_rules.NoteBefore(state, text, token);
    if (state.head == SqlBlockState::Head::JavaSource) {
        state.head = SqlBlockState::Head::Plain;
        m_behind = Behind::Source;
    }
}

} // namespace engine
