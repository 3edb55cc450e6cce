// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/analysis/BlockRules.h"

namespace engine::analysis {
namespace {

bool IsControl(SqlWord word)
{
    return word == SqlWord::If || word == SqlWord::Loop || word == SqlWord::While ||
           word == SqlWord::Repeat || word == SqlWord::For;
}

} // namespace

BlockRules::BlockRules(const SqlDialect& dialect, Controls controls)
    : m_dialect(dialect), m_controls(controls)
{}

bool BlockRules::Open(BlockState& state, const TextSpans& text, const Token& token,
                      SqlWord word) const
{
    if (token.kind != TokenKind::Operator || text.At(token.start) != '<')
        return OpenWord(state, word);
    state.head = Head::Label;
    return true;
}

bool BlockRules::OpenWord(BlockState& state, SqlWord word) const
{
    switch (word) {
    case SqlWord::Create:
    case SqlWord::Alter:
    case SqlWord::Recreate:
        state.head = Head::Create;
        return true;
    case SqlWord::Declare:
        state.declarations += m_dialect.declareOpens;
        return true;
    case SqlWord::Begin:
        if (m_dialect.begin != Begin::Transaction)
            state.pending = Pending::Begin;
        else if (m_dialect.beginNotAtomic)
            state.pending = Pending::BeginAtStart;
        return true;
    case SqlWord::Execute:
        state.head = m_dialect.executeBlock ? Head::Execute : Head::Plain;
        return true;
    case SqlWord::Copy:
        state.head = m_dialect.copyData ? Head::Copy : Head::Plain;
        return true;
    case SqlWord::Set:
        state.head = m_dialect.setTerm ? Head::Set : Head::Plain;
        return true;
    case SqlWord::With:
        state.head = m_dialect.withFunctions ? Head::With : Head::Plain;
        return true;
    case SqlWord::Explain:
        state.head = Head::Explain;
        return true;
    default:
        return false;
    }
}

bool BlockRules::Continue(BlockState& state, const TextSpans& text, const Token& token,
                          SqlWord word) const
{
    if (SettlePending(state, token.kind, word))
        return false;
    if (token.kind == TokenKind::Word)
        return ReadHead(state, word);
    if (token.kind == TokenKind::Operator) {
        const unsigned char byte = text.At(token.start);
        if (byte == '(')
            ++state.parentheses;
        else if (byte == ')' && state.parentheses > 0)
            --state.parentheses;
        else if (byte == '>' && state.head == Head::Label)
            state.head = Head::LabelEnd;
        state.rowset = state.rowset && (state.parentheses > 0 || byte != ')');
    }
    return false;
}

bool BlockRules::TakeTerminator(BlockState& state, bool isOfScript) const
{
    SettlePending(state, TokenKind::Terminator, SqlWord::None);
    KeepCaseBody(state);
    if (isOfScript || !HoldsTerminator(state))
        return false;
    if (!m_dialect.parenthesesHold && !state.rowset)
        state.parentheses = 0; // one that was never closed ends here
    state.cases = 0;           // no expression goes on behind it
    state.routineHeader = false;
    state.ifSeen = false;
    state.whileSeen = false;
    state.before = Before::Other;
    return true;
}

// No expression has a terminator in it: the CASE that is open is the body of a routine.
void BlockRules::KeepCaseBody(BlockState& state) const
{
    if (!m_dialect.endNamesBlock || m_dialect.setTerm || !state.InHeader() || state.blocks > 0 ||
        state.parentheses > 0 || state.declarations > 0)
        return;
    state.controls += std::exchange(state.cases, 0U);
}

void BlockRules::NoteBefore(BlockState& state, const TextSpans& text, const Token& token) const
{
    const bool isOperator = token.kind == TokenKind::Operator;
    const bool isPoint = isOperator && text.At(token.start) == '.';
    state.before = isPoint ? Before::Point : isOperator ? Before::Operator : Before::Other;
}

bool BlockRules::HoldsTerminator(const BlockState& state) const
{
    return (m_dialect.routine == Routine::Batch && state.InRoutine()) ||
           ((m_dialect.parenthesesHold || state.rowset) && state.parentheses > 0) ||
           state.declarations > 0 || state.blocks > 0 || state.controls > 0;
}

// True at TERM of SET TERM.
bool BlockRules::ReadHead(BlockState& state, SqlWord word) const
{
    switch (state.head) {
    case Head::Create:
        ReadCreate(state, word);
        return false;
    case Head::CreateType:
        state.head = word == SqlWord::Body ? Head::Routine : Head::Plain;
        return false;
    case Head::Execute:
        state.head = word == SqlWord::Block ? Head::Routine : Head::Plain;
        return false;
    case Head::Copy:
        if (word == SqlWord::From && state.parentheses == 0)
            state.head = Head::CopyFrom;
        return false;
    case Head::CopyFrom: // the server takes either word
        state.head =
            word == SqlWord::Stdin || word == SqlWord::Stdout ? Head::CopyData : Head::Plain;
        return false;
    case Head::Java:
        state.head = word == SqlWord::Source ? Head::JavaSource : Head::Plain;
        return false;
    case Head::Label:
        return false;
    case Head::LabelEnd:
        ReadFirstWord(state, word);
        return false;
    case Head::With:
        if (word != SqlWord::Function && word != SqlWord::Procedure) {
            ReadFirstWord(state, word);
            return false;
        }
        state.head = Head::WithBody;
        state.declarations = 1;
        state.routineHeader = true;
        return false;
    case Head::WithBody:
        if (word == SqlWord::Select && state.declarations == 1 && state.blocks == 0) {
            state.declarations = 0;
            state.head = Head::Plain;
        } else if (word != SqlWord::None) {
            ReadWord(state, word);
        }
        return false;
    case Head::Explain:
        if (word != SqlWord::Query && word != SqlWord::Plan)
            ReadFirstWord(state, word);
        return false;
    case Head::Set:
        state.head = Head::Plain;
        return word == SqlWord::Term;
    default:
        if (word != SqlWord::None)
            ReadWord(state, word);
        return false;
    }
}

// The first one of a statement in a statement.
void BlockRules::ReadFirstWord(BlockState& state, SqlWord word) const
{
    state.head = Head::Plain;
    if (word != SqlWord::None && !OpenWord(state, word))
        ReadWord(state, word);
}

void BlockRules::ReadCreate(BlockState& state, SqlWord word) const
{
    switch (word) {
    case SqlWord::Or:
    case SqlWord::Replace:
    case SqlWord::Alter:
    case SqlWord::Editionable:
    case SqlWord::Noneditionable:
    case SqlWord::Definer:
    case SqlWord::Temp:
    case SqlWord::Temporary:
    case SqlWord::Aggregate:
    case SqlWord::Constraint:
        return;
    case SqlWord::And: // OR REPLACE AND COMPILE NOFORCE JAVA SOURCE
    case SqlWord::Compile:
    case SqlWord::Resolve:
    case SqlWord::Noforce:
        state.head = m_dialect.javaSource ? Head::Create : Head::Plain;
        return;
    case SqlWord::Java:
        state.head = m_dialect.javaSource ? Head::Java : Head::Plain;
        return;
    case SqlWord::Event:
        state.head = m_dialect.routine == Routine::Batch ? Head::Plain : Head::Routine;
        return;
    case SqlWord::Proc:
    case SqlWord::Procedure:
    case SqlWord::Function:
    case SqlWord::Package:
        state.head = Head::Routine;
        return;
    case SqlWord::Trigger:
        state.head = Head::Trigger;
        return;
    case SqlWord::Type:
        state.head = Head::CreateType;
        return;
    default: // a user's name behind = is none of the statement's words
        if (state.before != Before::Operator)
            state.head = Head::Plain;
        return;
    }
}

void BlockRules::ReadWord(BlockState& state, SqlWord word) const
{
    switch (word) {
    case SqlWord::Begin:
        if (m_dialect.begin != Begin::Transaction || state.InRoutine())
            state.pending = Pending::Begin;
        return;
    case SqlWord::Case:
        ++(state.blocks > 0 ? state.blocks : state.cases);
        state.ifSeen = false;
        return;
    case SqlWord::End:
        state.pending = Pending::End;
        return;
    case SqlWord::Is:
    case SqlWord::As:
        if (OpensDeclarations(state, word)) {
            ++state.declarations; // taken back if the next word is none of a declaration's
            state.pending = Pending::Is;
        }
        return;
    case SqlWord::Declare:
    case SqlWord::Compound:
        if (CanDeclare(state, word)) {
            state.declarations = 1;
            state.head = Head::Body;
        }
        return;
    case SqlWord::Procedure:
    case SqlWord::Function:
    case SqlWord::Statement: // BEFORE STATEMENT IS
    case SqlWord::Row:
        state.routineHeader = state.routineHeader || (state.declarations > 0 && state.blocks == 0);
        return;
    case SqlWord::Openrowset:
        state.rowset = m_dialect.rowsetTerminators;
        return;
    default:
        if (CountsControls(state))
            ReadControl(state, word);
        return;
    }
}

// DECLARE in the header of a routine, and COMPOUND TRIGGER.
bool BlockRules::CanDeclare(const BlockState& state, SqlWord word) const
{
    const bool routine =
        m_dialect.routine == Routine::Declarations || m_dialect.routine == Routine::Mixed;
    return routine && state.InHeader() && state.blocks == 0 && state.declarations == 0 &&
           state.parentheses == 0 && (word == SqlWord::Declare || state.head == Head::Trigger);
}

bool BlockRules::OpensDeclarations(const BlockState& state, SqlWord word) const
{
    if (state.parentheses > 0 || state.blocks > 0)
        return false;
    const bool isHeader = state.routineHeader || state.head == Head::Routine ||
                          (state.head == Head::Trigger && m_dialect.triggerDeclares);
    return isHeader && (m_dialect.routine == Routine::Declarations ||
                        (m_dialect.routine == Routine::Mixed && word == SqlWord::Is));
}

// Where scripts set terminators by SET TERM, IF and loops hold one statement or a BEGIN.
bool BlockRules::CountsControls(const BlockState& state) const
{
    if (!m_dialect.endNamesBlock || m_dialect.setTerm)
        return false;
    return m_controls == Controls::All || (state.InHeader() && state.blocks == 0 &&
                                           state.parentheses == 0 && state.declarations == 0);
}

// IF opens at its THEN, WHILE and FOR at their DO: the words alone are functions, options and
// cursors' clauses too.
void BlockRules::ReadControl(BlockState& state, SqlWord word) const
{
    std::uint32_t& open = state.blocks > 0 ? state.blocks : state.controls;
    switch (word) {
    case SqlWord::If:
        state.ifSeen = true;
        return;
    case SqlWord::While:
    case SqlWord::For:
        state.whileSeen = true;
        return;
    case SqlWord::When:
    case SqlWord::Elseif:
        state.ifSeen = false;
        return;
    case SqlWord::Then:
        open += std::exchange(state.ifSeen, false);
        return;
    case SqlWord::Do:
        open += std::exchange(state.whileSeen, false);
        return;
    case SqlWord::Loop:
        state.whileSeen = false;
        ++open;
        return;
    case SqlWord::Repeat:
        if (state.blocks > 0 || state.InRoutine())
            state.pending = Pending::Repeat;
        return;
    default:
        return;
    }
}

bool BlockRules::Settle(BlockState& state, TokenKind kind, SqlWord word) const
{
    const bool isAtEnd = kind == TokenKind::Terminator || kind == TokenKind::LineEnd;
    switch (std::exchange(state.pending, Pending::None)) {
    case Pending::None:
        return false;
    case Pending::Begin:
        return SettleBegin(state, kind, word);
    case Pending::BeginBackup:
        if (!isAtEnd)
            OpenBlock(state);
        return false;
    case Pending::BeginNew:
        if (word != SqlWord::Stripe)
            OpenBlock(state);
        return false;
    case Pending::BeginDeclare:
        if (word == SqlWord::Section)
            state.pending = Pending::BeginSection;
        return false;
    case Pending::BeginSection:
        if (isAtEnd)
            CloseBlock(state);
        return false;
    case Pending::BeginAtStart:
        if (word == SqlWord::Not)
            OpenBlock(state);
        return false;
    case Pending::Is:
        if (kind == TokenKind::Terminator || kind == TokenKind::String || word == SqlWord::Null ||
            word == SqlWord::Not || word == SqlWord::Language || word == SqlWord::External) {
            --state.declarations;
            return false;
        }
        if (state.head != Head::WithBody)
            state.head = Head::Body;
        state.routineHeader = false;
        return false;
    case Pending::Repeat: // with parentheses it is a function
        if (kind != TokenKind::Operator)
            ++(state.blocks > 0 ? state.blocks : state.controls);
        return false;
    case Pending::End:
        break;
    }
    return SettleEnd(state, word);
}

bool BlockRules::SettleBegin(BlockState& state, TokenKind kind, SqlWord word) const
{
    if (!BeginsBlock(state, kind, word))
        return false;
    const bool isPartOfClause = m_dialect.routine != Routine::Batch;
    if (word == SqlWord::Backup && isPartOfClause) {
        state.pending = Pending::BeginBackup;
        return true;
    }
    if (word == SqlWord::New && isPartOfClause) {
        state.pending = Pending::BeginNew;
        return true;
    }
    OpenBlock(state);
    if (word == SqlWord::Declare && state.blocks == 1 && state.declarations == 0)
        state.pending = Pending::BeginDeclare;
    return false;
}

void BlockRules::OpenBlock(BlockState& state) const
{
    if (state.blocks++ > 0)
        return;
    state.cases = 0;
    state.declarations -= state.declarations > 0;
}

bool BlockRules::SettleEnd(BlockState& state, SqlWord word) const
{
    if (m_dialect.endNamesBlock && IsControl(word)) {
        CloseControl(state);
        return true;
    }
    const bool closesCaseBody =
        word == SqlWord::Case && state.blocks == 0 && state.cases == 0 && state.controls > 0;
    if (closesCaseBody)
        --state.controls;
    else if (word != SqlWord::Conversation)
        CloseBlock(state);
    return word == SqlWord::Case;
}

void BlockRules::CloseBlock(BlockState& state) const
{
    if (state.blocks > 0)
        --state.blocks;
    else if (state.cases > 0)
        --state.cases;
    else if (state.declarations > 0)
        --state.declarations;
}

void BlockRules::CloseControl(BlockState& state) const
{
    if (state.blocks == 0)
        state.controls -= state.controls > 0;
    else if (m_controls == Controls::All && !m_dialect.setTerm)
        --state.blocks;
}

bool BlockRules::BeginsBlock(const BlockState& state, TokenKind kind, SqlWord word) const
{
    if (m_dialect.onlyAtomicBlocks)
        return word == SqlWord::Atomic;
    const bool inside = state.blocks > 0 || state.declarations > 0 || state.InRoutine();
    const bool mayBeTransaction = m_dialect.begin == Begin::BlockOrTransaction && !inside;
    switch (word) {
    case SqlWord::Tran:
    case SqlWord::Transaction:
    case SqlWord::Work:
    case SqlWord::Distributed:
    case SqlWord::Dialog:
    case SqlWord::Conversation:
        return false;
    case SqlWord::Isolation:
    case SqlWord::Read:
    case SqlWord::Deferred:
    case SqlWord::Immediate:
    case SqlWord::Exclusive:
        return !mayBeTransaction;
    default:
        return !mayBeTransaction || kind != TokenKind::Terminator;
    }
}

} // namespace engine::analysis
