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
    const std::uint16_t terminator = state.terminator;
    state = {};
    state.terminator = terminator;
}

void SqlBlocks::CloseStatement()
{
    const SqlBlockState::Batch batch = state.batch;
    CloseBatch();
    state.batch = batch;
}

// IS may have its declarations on the next line.
void SqlBlocks::TakeLineEnd()
{
    if (state.pending != SqlBlockState::Pending::Is)
        m_rules.SettlePending(state, TokenKind::LineEnd, SqlWord::None);
}

void SqlBlocks::Take(const analysis::TextSpans& text, const analysis::Token& token, SqlWord word)
{
    m_atSetTerm = false;
    if (token.resumed)
        return;
    if (token.kind == TokenKind::Terminator) {
        if (!m_rules.TakeTerminator(state, state.terminator != 0))
            CloseStatement();
        return;
    }
    if (state.before == SqlBlockState::Before::Point)
        word = SqlWord::None;
    if (std::exchange(state.inStatement, true) || !m_rules.Open(state, word))
        m_atSetTerm = m_rules.Continue(state, text, token, word);
    m_rules.NoteBefore(state, text, token);
}

} // namespace engine
