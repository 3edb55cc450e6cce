#include "engine/SqlBlocks.h"

#include <utility>

namespace engine {

using analysis::Begin;
using analysis::Routine;
using analysis::SqlWord;
using analysis::TokenKind;

namespace {

bool IsControl(SqlWord word)
{
    return word == SqlWord::If || word == SqlWord::Loop || word == SqlWord::While ||
           word == SqlWord::Repeat || word == SqlWord::For;
}

} // namespace

// Where scripts set terminators by SET TERM, IF and loops hold one statement or a BEGIN.
SqlBlocks::SqlBlocks(const analysis::SqlDialect& dialect)
    : m_dialect(dialect), m_hasControls(dialect.endNamesBlock && !dialect.setTerm)
{}

void SqlBlocks::CloseBatch()
{
    state = {.terminator = state.terminator};
}

void SqlBlocks::CloseStatement()
{
    state = {.terminator = state.terminator, .batch = state.batch};
}

void SqlBlocks::TakeLineEnd()
{
    if (state.pending != Pending::None && state.pending != Pending::Is)
        SettlePending(TokenKind::LineEnd, SqlWord::None);
}

void SqlBlocks::Take(const analysis::TextSpans& text, const analysis::Token& token, SqlWord word)
{
    m_atSetTerm = false;
    if (token.resumed)
        return;
    if (token.kind == TokenKind::Terminator) {
        TakeTerminator();
        return;
    }
    if (state.before == Before::Point)
        word = SqlWord::None;
    TakePart(text, token, word);
    const bool isOperator = token.kind == TokenKind::Operator;
    const bool isPoint = isOperator && text.At(token.start) == '.';
    state.before = isPoint ? Before::Point : isOperator ? Before::Operator : Before::Other;
}

void SqlBlocks::TakePart(const analysis::TextSpans& text, const analysis::Token& token,
                         SqlWord word)
{
    if (!std::exchange(state.inStatement, true) && OpenStatement(word))
        return;
    if (state.pending != Pending::None && SettlePending(token.kind, word))
        return;
    if (token.kind == TokenKind::Operator) {
        const unsigned char byte = text.At(token.start);
        if (byte == '(')
            ++state.parentheses;
        else if (byte == ')' && state.parentheses > 0)
            --state.parentheses;
    } else if (token.kind == TokenKind::Word) {
        ReadHead(word);
    }
}

void SqlBlocks::TakeTerminator()
{
    SettlePending(TokenKind::Terminator, SqlWord::None);
    if (state.terminator != 0 || !HoldsTerminator()) {
        CloseStatement();
        return;
    }
    if (!m_dialect.parenthesesHold)
        state.parentheses = 0; // one that was never closed ends here
    state.cases = 0;
    state.routineHeader = false;
    state.ifSeen = false;
    state.whileSeen = false;
    state.before = Before::Other;
}

bool SqlBlocks::HoldsTerminator() const
{
    return (m_dialect.routine == Routine::Batch && InRoutine()) ||
           (m_dialect.parenthesesHold && state.parentheses > 0) || state.declarations > 0 ||
           state.blocks > 0 || state.controls > 0;
}

// What the first word of a statement says. False: it is read as any other.
bool SqlBlocks::OpenStatement(SqlWord word)
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
        return true;
    case SqlWord::Execute:
        state.head = m_dialect.executeBlock ? Head::Execute : Head::Plain;
        return true;
    case SqlWord::Set:
        state.head = m_dialect.setTerm ? Head::Set : Head::Plain;
        return true;
    default:
        return false;
    }
}

void SqlBlocks::ReadHead(SqlWord word)
{
    switch (state.head) {
    case Head::Create:
        ReadCreate(word);
        return;
    case Head::CreateType:
        state.head = word == SqlWord::Body ? Head::Routine : Head::Plain;
        return;
    case Head::Execute:
        state.head = word == SqlWord::Block ? Head::Routine : Head::Plain;
        return;
    case Head::Set:
        state.head = Head::Plain;
        m_atSetTerm = word == SqlWord::Term;
        return;
    default:
        if (word != SqlWord::None)
            ReadWord(word);
        return;
    }
}

void SqlBlocks::ReadCreate(SqlWord word)
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

bool SqlBlocks::InHeader() const
{
    return state.head == Head::Routine || state.head == Head::Trigger;
}

void SqlBlocks::ReadWord(SqlWord word)
{
    switch (word) {
    case SqlWord::Begin:
        if (m_dialect.begin != Begin::Transaction || InRoutine())
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
        if (OpensDeclarations(word)) {
            ++state.declarations; // taken back if the next word is none of a declaration's
            state.pending = Pending::Is;
        }
        return;
    case SqlWord::Declare:
    case SqlWord::Compound:
        if (CanDeclare(word)) {
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
    default:
        if (m_hasControls)
            ReadControl(word);
        return;
    }
}

// DECLARE in the header of a routine, and COMPOUND TRIGGER.
bool SqlBlocks::CanDeclare(SqlWord word) const
{
    const bool routine =
        m_dialect.routine == Routine::Declarations || m_dialect.routine == Routine::Mixed;
    return routine && InHeader() && state.blocks == 0 && state.declarations == 0 &&
           state.parentheses == 0 && (word == SqlWord::Declare || state.head == Head::Trigger);
}

bool SqlBlocks::OpensDeclarations(SqlWord word) const
{
    if (state.parentheses > 0 || state.blocks > 0)
        return false;
    const bool isHeader = state.routineHeader || state.head == Head::Routine ||
                          (state.head == Head::Trigger && m_dialect.triggerDeclares);
    return isHeader && (m_dialect.routine == Routine::Declarations ||
                        (m_dialect.routine == Routine::Mixed && word == SqlWord::Is));
}

// IF opens at its THEN, WHILE and FOR at their DO: the words alone are functions, options and
// cursors' clauses too.
void SqlBlocks::ReadControl(SqlWord word)
{
    switch (word) {
    case SqlWord::If:
        state.ifSeen = true;
        return;
    case SqlWord::While:
    case SqlWord::For:
        state.whileSeen = true;
        return;
    case SqlWord::When:
        state.ifSeen = false;
        return;
    case SqlWord::Then:
        if (std::exchange(state.ifSeen, false))
            OpenControl();
        return;
    case SqlWord::Do:
        if (std::exchange(state.whileSeen, false))
            OpenControl();
        return;
    case SqlWord::Loop:
        state.whileSeen = false;
        OpenControl();
        return;
    case SqlWord::Repeat:
        if (state.blocks > 0 || InRoutine())
            state.pending = Pending::Repeat;
        return;
    default:
        return;
    }
}

// Decides what the word before has meant. True if the word at hand belongs to it.
bool SqlBlocks::SettlePending(TokenKind kind, SqlWord word)
{
    switch (std::exchange(state.pending, Pending::None)) {
    case Pending::None:
        return false;
    case Pending::Begin:
        if (BeginsBlock(kind, word))
            OpenBlock();
        return false;
    case Pending::Is:
        if (kind == TokenKind::Terminator || kind == TokenKind::String || word == SqlWord::Null ||
            word == SqlWord::Not || word == SqlWord::Language || word == SqlWord::External) {
            --state.declarations;
            return false;
        }
        state.head = Head::Body;
        state.routineHeader = false;
        return false;
    case Pending::Repeat: // with parentheses it is a function
        if (kind != TokenKind::Operator)
            OpenControl();
        return false;
    case Pending::End:
        break;
    }
    if (m_dialect.endNamesBlock && IsControl(word)) {
        if (m_hasControls)
            CloseControl();
        return true;
    }
    if (word != SqlWord::Conversation)
        CloseBlock();
    return word == SqlWord::Case;
}

bool SqlBlocks::BeginsBlock(TokenKind kind, SqlWord word) const
{
    if (m_dialect.onlyAtomicBlocks)
        return word == SqlWord::Atomic;
    const bool inside = state.blocks > 0 || state.declarations > 0 || InRoutine();
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

void SqlBlocks::OpenBlock()
{
    if (state.blocks == 0) {
        state.cases = 0;
        if (state.declarations > 0)
            --state.declarations;
    }
    ++state.blocks;
}

void SqlBlocks::CloseControl()
{
    if (state.blocks > 0)
        --state.blocks;
    else if (state.controls > 0)
        --state.controls;
}

void SqlBlocks::CloseBlock()
{
    if (state.blocks > 0)
        --state.blocks;
    else if (state.cases > 0)
        --state.cases;
    else if (state.declarations > 0)
        --state.declarations;
}

} // namespace engine
