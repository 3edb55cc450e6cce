#include "engine/analysis/StatementMachine.h"

#include "engine/analysis/ByteSearch.h"

#include <algorithm>
#include <utility>

namespace engine::analysis {
namespace {

bool IsControl(SqlWord word)
{
    return word == SqlWord::If || word == SqlWord::Loop || word == SqlWord::While ||
           word == SqlWord::Repeat || word == SqlWord::For;
}

} // namespace

StatementMachine::StatementMachine(const ScriptRules& rules, Terminators& terminators,
                                   TextSpans text, long start, const StatementState& state)
    : m_rules(rules), m_dialect(*rules.dialect), m_terminators(terminators),
      m_scanner(m_dialect, text, start, state.scan), m_state(state), m_start(start)
{
    m_scanner.SetTerminator(m_terminators.TextOf(state.terminator));
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
            SettlePending(token, SqlWord::None);
        return;
    }
    if (m_state.lineIsClean && !token.resumed && TakeSeparator(token))
        return;
    switch (token.kind) {
    case TokenKind::LineComment:
        if (m_dialect.terminatorComment && !token.resumed)
            TakeTerminatorComment(token);
        return;
    case TokenKind::BlockComment:
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
    SettlePending(token, SqlWord::None);
    m_lastEnd = token.end;
    if (m_state.terminator != 0 || !HoldsTerminator()) {
        const bool data = m_state.head == Head::CopyData;
        m_state.Forget(Phase::Ended);
        if (data)
            m_lastEnd = m_scanner.TakeData(m_limit).end;
        return;
    }
    m_state.cases = 0; // no expression goes on behind it
    m_state.routineHeader = false;
    m_state.ifSeen = false;
    m_state.whileSeen = false;
    m_state.before = Before::Other;
}

bool StatementMachine::HoldsTerminator() const
{
    if (m_dialect.routine == Routine::Batch && InRoutine())
        return true;
    if (m_dialect.parenthesesHold && m_state.parentheses > 0)
        return true;
    return m_state.declarations > 0 || m_state.blocks > 0 || m_state.controls > 0;
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
    m_lastEnd = token.end;
    if (m_state.phase == Phase::None)
        OpenStatement(token, word);
    else
        Continue(token, word);
    const bool isOperator = token.kind == TokenKind::Operator;
    const bool isPoint = isOperator && m_scanner.Text().At(token.start) == '.';
    if (m_state.phase == Phase::Open)
        m_state.before = isPoint ? Before::Point : isOperator ? Before::Operator : Before::Other;
}

bool StatementMachine::SplitsAtUse(SqlWord word) const
{
    return word == SqlWord::Use && m_dialect.useIsReserved && m_state.lineIsClean &&
           m_state.parentheses == 0 && m_state.blocks == 0 && m_state.pending != Pending::Begin &&
           !InRoutine();
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
    if (m_state.lineIsClean && TakeCommand(token))
        return;
    switch (word) {
    case SqlWord::Create:
    case SqlWord::Alter:
    case SqlWord::Recreate:
        m_state.head = Head::Create;
        break;
    case SqlWord::Declare:
        m_state.declarations = m_dialect.declareOpens;
        break;
    case SqlWord::Begin:
        if (m_dialect.begin != Begin::Transaction)
            m_state.pending = Pending::Begin;
        break;
    case SqlWord::Use:
        m_state.nameExpected = m_dialect.hasUse;
        break;
    case SqlWord::Execute:
        m_state.head = m_dialect.executeBlock ? Head::Execute : Head::Plain;
        break;
    case SqlWord::Copy:
        m_state.head = m_dialect.copyData ? Head::Copy : Head::Plain;
        break;
    case SqlWord::Set:
        m_state.head = m_dialect.setTerm ? Head::Set : Head::Plain;
        break;
    default:
        Continue(token, word);
        break;
    }
}

void StatementMachine::Continue(const Token& token, SqlWord word)
{
    if (SettlePending(token, word))
        return;
    if (token.kind == TokenKind::Operator) {
        const unsigned char byte = m_scanner.Text().At(token.start);
        if (byte == '(')
            ++m_state.parentheses;
        else if (byte == ')' && m_state.parentheses > 0)
            --m_state.parentheses;
    }
    if (m_state.nameExpected)
        ReadName(token);
    else if (token.kind == TokenKind::Word)
        ReadHead(word);
}

void StatementMachine::ReadName(const Token& token)
{
    m_state.nameExpected = false;
    const bool isName = token.kind == TokenKind::Word || token.kind == TokenKind::QuotedName;
    if (!isName || token.Length() >= kLongToken) // of a longer one only the front may be at hand
        return;
    Note(Event::Use, token.start);
    if (m_state.blocks > 0)
        return;
    m_state.Forget(Phase::Ended);
    m_state.takesTerminator = true;
}

void StatementMachine::ReadHead(SqlWord word)
{
    switch (m_state.head) {
    case Head::Create:
        ReadCreate(word);
        return;
    case Head::CreateType:
        m_state.head = word == SqlWord::Body ? Head::Routine : Head::Plain;
        return;
    case Head::Execute:
        m_state.head = word == SqlWord::Block ? Head::Routine : Head::Plain;
        return;
    case Head::Copy:
        if (word == SqlWord::Stdin)
            m_state.head = Head::CopyData;
        return;
    case Head::Set:
        m_state.head = Head::Plain;
        if (word == SqlWord::Term)
            TakeTerm();
        return;
    default:
        if (word != SqlWord::None)
            ReadWord(word);
        return;
    }
}

void StatementMachine::ReadCreate(SqlWord word)
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
        m_state.head = m_dialect.routine == Routine::Batch ? Head::Plain : Head::Routine;
        return;
    case SqlWord::Proc:
    case SqlWord::Procedure:
    case SqlWord::Function:
    case SqlWord::Package:
        m_state.head = Head::Routine;
        return;
    case SqlWord::Trigger:
        m_state.head = Head::Trigger;
        return;
    case SqlWord::Type:
        m_state.head = Head::CreateType;
        return;
    default: // a user's name behind = is none of the statement's words
        if (m_state.before != Before::Operator)
            m_state.head = Head::Plain;
        return;
    }
}

bool StatementMachine::InHeader() const
{
    return m_state.head == Head::Routine || m_state.head == Head::Trigger;
}

void StatementMachine::ReadWord(SqlWord word)
{
    const bool declaring = m_state.declarations > 0 && m_state.blocks == 0;
    switch (word) {
    case SqlWord::Begin:
        if (m_dialect.begin != Begin::Transaction || InRoutine())
            m_state.pending = Pending::Begin;
        return;
    case SqlWord::Case:
        ++(m_state.blocks > 0 ? m_state.blocks : m_state.cases);
        m_state.ifSeen = false;
        return;
    case SqlWord::End:
        m_state.pending = Pending::End;
        return;
    case SqlWord::Is:
    case SqlWord::As:
        if (OpensDeclarations(word))
            m_state.pending = Pending::Is;
        return;
    case SqlWord::Declare:
    case SqlWord::Compound:
        if (CanDeclare(word)) {
            m_state.declarations = 1;
            m_state.head = Head::Body;
        }
        return;
    case SqlWord::Procedure:
    case SqlWord::Function:
    case SqlWord::Statement: // BEFORE STATEMENT IS
    case SqlWord::Row:
        m_state.routineHeader = m_state.routineHeader || declaring;
        return;
    case SqlWord::Use:
        m_state.nameExpected =
            m_dialect.useIsReserved && m_state.lineIsClean && m_state.parentheses == 0;
        return;
    default:
        ReadControl(word);
        return;
    }
}

// DECLARE in the header of a routine, and COMPOUND TRIGGER.
bool StatementMachine::CanDeclare(SqlWord word) const
{
    const bool routine =
        m_dialect.routine == Routine::Declarations || m_dialect.routine == Routine::Mixed;
    return routine && InHeader() && m_state.blocks == 0 && m_state.declarations == 0 &&
           m_state.parentheses == 0 && (word == SqlWord::Declare || m_state.head == Head::Trigger);
}

bool StatementMachine::OpensDeclarations(SqlWord word) const
{
    if (m_state.parentheses > 0 || m_state.blocks > 0)
        return false;
    const bool isHeader = m_state.routineHeader || m_state.head == Head::Routine ||
                          (m_state.head == Head::Trigger && m_dialect.triggerDeclares);
    return isHeader && (m_dialect.routine == Routine::Declarations ||
                        (m_dialect.routine == Routine::Mixed && word == SqlWord::Is));
}

// IF ... THEN, LOOP and WHILE ... DO where a routine's body has no BEGIN around them.
void StatementMachine::ReadControl(SqlWord word)
{
    if (!m_dialect.endNamesBlock || !InHeader() || m_state.blocks > 0 || m_state.parentheses > 0 ||
        m_state.declarations > 0)
        return;
    switch (word) {
    case SqlWord::If:
        m_state.ifSeen = true;
        break;
    case SqlWord::While:
        m_state.whileSeen = true;
        break;
    case SqlWord::When:
    case SqlWord::Elseif:
        m_state.ifSeen = false;
        break;
    case SqlWord::Then:
        m_state.controls += std::exchange(m_state.ifSeen, false);
        break;
    case SqlWord::Do:
        m_state.controls += std::exchange(m_state.whileSeen, false);
        break;
    case SqlWord::Loop:
        ++m_state.controls;
        break;
    default:
        break;
    }
}

// Decides what the word before has meant. True if the word at hand belongs to it.
bool StatementMachine::SettlePending(const Token& token, SqlWord word)
{
    switch (std::exchange(m_state.pending, Pending::None)) {
    case Pending::None:
        return false;
    case Pending::Begin:
        if (BeginsBlock(token, word))
            OpenBlock();
        return false;
    case Pending::Is:
        if (token.kind != TokenKind::Terminator && token.kind != TokenKind::String &&
            word != SqlWord::Null && word != SqlWord::Not && word != SqlWord::Language &&
            word != SqlWord::External) {
            ++m_state.declarations;
            m_state.head = Head::Body;
            m_state.routineHeader = false;
        }
        return false;
    case Pending::End:
        break;
    }
    if (m_dialect.endNamesBlock && IsControl(word)) {
        if (m_state.blocks == 0 && m_state.controls > 0)
            --m_state.controls;
        return true;
    }
    if (word != SqlWord::Conversation)
        CloseBlock();
    return word == SqlWord::Case;
}

bool StatementMachine::BeginsBlock(const Token& token, SqlWord word) const
{
    if (m_dialect.onlyAtomicBlocks)
        return word == SqlWord::Atomic;
    const bool inside = m_state.blocks > 0 || m_state.declarations > 0 || InRoutine();
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
        return !mayBeTransaction || token.kind != TokenKind::Terminator;
    }
}

void StatementMachine::OpenBlock()
{
    if (m_state.blocks == 0) {
        m_state.cases = 0;
        if (m_state.declarations > 0)
            --m_state.declarations;
    }
    ++m_state.blocks;
}

void StatementMachine::CloseBlock()
{
    if (m_state.blocks > 0)
        --m_state.blocks;
    else if (m_state.cases > 0)
        --m_state.cases;
    else if (m_state.declarations > 0)
        --m_state.declarations;
}

} // namespace engine::analysis
