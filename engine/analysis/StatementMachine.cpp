#include "engine/analysis/StatementMachine.h"

#include "engine/analysis/ByteSearch.h"

#include <algorithm>
#include <utility>

namespace engine::analysis {
namespace {

constexpr long kFarthestArgument = 64; // blanks between a client's word and what it sets

bool IsBlank(unsigned char byte)
{
    return byte <= ' ';
}

// Behind the blanks of the line.
long SkipBlanks(const TextSpans& text, long position)
{
    const long stop = position + kFarthestArgument;
    while (position < stop && (text.At(position) == ' ' || text.At(position) == '\t'))
        ++position;
    return position;
}

long EndOfArgument(const TextSpans& text, long position)
{
    const long stop =
        std::min(position + static_cast<long>(Terminators::kLongest) + 1, text.Size());
    while (position < stop && !IsBlank(text.At(position)))
        ++position;
    return position;
}

bool IsControl(SqlWord word)
{
    return word == SqlWord::If || word == SqlWord::Loop || word == SqlWord::While ||
           word == SqlWord::Repeat || word == SqlWord::For;
}

} // namespace

std::uint16_t Terminators::NumberOf(std::string_view text)
{
    if (text == ";")
        return 0;
    const auto found = std::find(m_texts.begin(), m_texts.end(), text);
    if (found == m_texts.end()) {
        m_texts.emplace_back(text);
        return static_cast<std::uint16_t>(m_texts.size());
    }
    return static_cast<std::uint16_t>(found - m_texts.begin() + 1);
}

std::string_view Terminators::TextOf(std::uint16_t number) const
{
    return number == 0 ? std::string_view() : m_texts[number - 1U];
}

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
        m_state.Forget(Phase::Ended);
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
    case SqlWord::Set:
        m_state.head = m_dialect.setTerm ? Head::Set : Head::Plain;
        break;
    default:
        Continue(token, word);
        break;
    }
}

bool StatementMachine::EqualsWord(const Token& token, std::string_view word) const
{
    if (token.kind != TokenKind::Word || token.Length() != static_cast<long>(word.size()))
        return false;
    long at = token.start;
    return std::all_of(word.begin(), word.end(), [&](char letter) {
        return (m_scanner.Text().At(at++) | 0x20) == static_cast<unsigned char>(letter);
    });
}

// A line of the client's ends where the line does.
bool StatementMachine::TakeCommand(const Token& token)
{
    const TextSpans& text = m_scanner.Text();
    const bool byLead = m_dialect.commandLeads.find(static_cast<char>(text.At(token.start))) !=
                        std::string_view::npos;
    const bool isDelimiter =
        !m_dialect.delimiterWord.empty() && EqualsWord(token, m_dialect.delimiterWord);
    if (!byLead && !isDelimiter && !IsListed(token, m_dialect.commandWords))
        return false;
    if (isDelimiter)
        TakeDelimiter(token);
    else if (byLead && !m_dialect.connectCommands.empty())
        NoteConnect(token.end);
    const Token line = m_scanner.TakeLine(m_limit);
    m_lastEnd = line.end;
    m_state.Forget(Phase::Ended);
    return true;
}

// Whether the word is one of a list, each of which stands between blanks.
bool StatementMachine::IsListed(const Token& token, std::string_view list) const
{
    if (list.empty() || token.kind != TokenKind::Word || token.Length() > 16)
        return false;
    std::string word = " " + m_scanner.Text().Copy(token.start, token.end) + " ";
    std::transform(word.begin(), word.end(), word.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c; });
    return list.find(word) != std::string_view::npos;
}

// \c name: the argument behind the command's word.
void StatementMachine::NoteConnect(long position)
{
    const TextSpans& text = m_scanner.Text();
    Token word{.kind = TokenKind::Word, .start = position, .end = position};
    while (word.Length() < 16 && BytesOf(m_dialect).inWord[text.At(word.end)])
        ++word.end;
    if (!IsListed(word, m_dialect.connectCommands))
        return;
    const long name = SkipBlanks(text, word.end);
    if (name > word.end && !IsBlank(text.At(name)) && text.At(name) != '-')
        Note(Event::Connect, name);
}

void StatementMachine::SetTerminator(long start, long end)
{
    const std::string text = m_scanner.Text().Copy(start, end);
    if (text.empty() || text.size() > Terminators::kLongest)
        return;
    m_state.terminator = m_terminators.NumberOf(text);
    m_scanner.SetTerminator(m_terminators.TextOf(m_state.terminator));
}

void StatementMachine::TakeDelimiter(const Token& token)
{
    const long start = SkipBlanks(m_scanner.Text(), token.end);
    if (start > token.end)
        SetTerminator(start, EndOfArgument(m_scanner.Text(), start));
}

// SET TERM new old. The old one may stand directly behind.
void StatementMachine::TakeTerm()
{
    const TextSpans& text = m_scanner.Text();
    std::string_view old = m_terminators.TextOf(m_state.terminator);
    if (old.empty())
        old = ";";
    const long start = SkipBlanks(text, m_scanner.Position());
    const long blank = EndOfArgument(text, start);
    long end = std::min(start + 1, blank);
    while (end < blank && !text.Has(end, old))
        ++end;
    const long behind = SkipBlanks(text, end);
    const bool closed = text.Has(behind, old);
    m_lastEnd = closed ? behind + static_cast<long>(old.size()) : end;
    m_read = std::max(m_read, m_lastEnd + kLookAhead);
    m_scanner.Restart(m_lastEnd);
    SetTerminator(start, end);
    m_state.Forget(Phase::Ended);
}

// --#SET TERMINATOR new
void StatementMachine::TakeTerminatorComment(const Token& token)
{
    static constexpr std::string_view kStart = "--#set terminator";
    const TextSpans& text = m_scanner.Text();
    const long behind = token.start + static_cast<long>(kStart.size());
    if (behind >= token.end)
        return;
    std::string start = text.Copy(token.start, behind);
    std::transform(start.begin(), start.end(), start.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c; });
    const long argument = SkipBlanks(text, behind);
    if (start == kStart && argument > behind)
        SetTerminator(argument, std::min(EndOfArgument(text, argument), token.end));
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
