// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/NameMachine.h"

#include <algorithm>

namespace completion {
namespace {

using engine::analysis::Routine;
using engine::analysis::TextSpans;
using engine::analysis::Token;
using engine::analysis::TokenKind;
using W = NameWord;

constexpr std::uint8_t kDeepest = 63;
constexpr std::uint8_t kPatience = 12; // words
constexpr long kNear = 64;

} // namespace

long DollarTag(const TextSpans& text, const Token& token)
{
    if (token.kind != TokenKind::String || text.At(token.start) != '$' || token.resumed)
        return 0;
    for (long at = token.start + 1; at < token.end; ++at) {
        if (text.At(at) == '$')
            return at + 1 - token.start;
    }
    return 0;
}

std::string PlainName(const TextSpans& text, long start, long end)
{
    std::string name = text.Copy(start, end);
    const char first = name.empty() ? '\0' : name.front();
    if (first != '"' && first != '[' && first != '`')
        return name;
    const char last = first == '[' ? ']' : first;
    name.erase(0, 1);
    if (!name.empty() && name.back() == last)
        name.pop_back();
    for (std::size_t at = name.find(last); at != std::string::npos; at = name.find(last, at + 1)) {
        if (at + 1 < name.size() && name[at + 1] == last)
            name.erase(at + 1, 1);
    }
    return name;
}

void NameMachine::Take(const TextSpans& text, const Token& token, std::vector<NameEvent>& events)
{
    m_text = &text;
    m_events = &events;
    m_beganPart = false;
    TakeToken(token);
    const auto last = token.end > token.start ? text.At(token.end - 1) : 0;
    m_state.before = DollarTag(text, token) != 0    ? State::Before::Other
                     : last == '\n' || last == '\r' ? State::Before::LineEnd
                     : last == '.'                  ? State::Before::Point
                                                    : State::Before::Other;
}

void NameMachine::TakeToken(const Token& token)
{
    const TextSpans& text = *m_text;
    // One that may be cut is no name, so that nothing hangs on where it is.
    const bool isLong = token.resumed || token.cut || token.Length() > engine::analysis::kLongToken;
    switch (token.kind) {
    case TokenKind::Blank:
    case TokenKind::LineEnd:
    case TokenKind::LineComment:
    case TokenKind::BlockComment:
    case TokenKind::CodeComment:
    case TokenKind::Command:
    case TokenKind::End:
        return;
    case TokenKind::Terminator:
        EndStatement();
        return;
    case TokenKind::Word: {
        if (isLong) {
            m_state.previous = W::Other;
            return;
        }
        const std::string_view run = text.RunAt(token.start);
        const auto length = static_cast<std::size_t>(token.Length());
        TakeWord(token, run.size() >= length ? NameWordOf(run.substr(0, length))
                                             : NameWordOf(text.Copy(token.start, token.end)));
        return;
    }
    case TokenKind::QuotedName:
        if (!isLong)
            TakeName(token);
        m_state.previous = W::Other;
        return;
    case TokenKind::Variable:
        if (!isLong)
            TakeVariable(token);
        m_state.previous = W::Other;
        return;
    case TokenKind::Operator:
        if (token.Length() == 1) {
            TakeOperator(static_cast<char>(text.At(token.start)));
            return;
        }
        [[fallthrough]];
    default:
        if (DollarTag(text, token) != 0 || m_state.step == Step::AfterTable)
            m_state.step = Step::Code;
        m_state.previous = DollarTag(text, token) != 0 ? W::Begins : W::Other;
        return;
    }
}

void NameMachine::TakeWord(const Token& token, NameWord word)
{
    // What stands behind a point is a name, whatever it says.
    if (m_state.before == State::Before::Point)
        word = W::Other;
    m_atStart = false;
    if (!ReadStep(token, word))
        ReadClause(token, word);
    m_state.previous =
        m_atStart || IsOneOf(word, {W::Begin, W::Else, W::Loop, W::Do}) ? W::Begins : word;
}

void NameMachine::TakeName(const Token& token)
{
    ReadStep(token, W::Other);
}

bool NameMachine::IsHead(NameWord word) const
{
    const State& s = m_state;
    if (s.depth > 0 || IsOneOf(s.verb, {W::Grant, W::Revoke, W::Deny}))
        return false;
    switch (word) {
    case W::Insert:
    case W::Update:
    case W::Delete:
        return !IsOneOf(s.previous,
                        {W::On, W::For, W::After, W::Before, W::Of, W::Or, W::Comma, W::Into}) &&
               !(s.previous == W::Then && s.verb == W::Merge) &&
               !(s.previous == W::Begins && s.verb == W::Merge);
    case W::Execute:
        return s.previous != W::With && s.previous != W::On;
    case W::Exec:
    case W::Call:
    case W::Select:
    case W::Merge:
    case W::Declare:
    case W::Fetch:
    case W::Drop:
    case W::Truncate:
    case W::Print:
    case W::Return:
    case W::Use:
    case W::While:
    case W::Begin:
    case W::Grant:
    case W::Revoke:
    case W::Deny:
    case W::Create:
    case W::Alter:
    case W::Lock:
        return true;
    case W::With:
        return IsOneOf(s.previous, {W::Begins, W::As, W::Open});
    case W::Replace:
        return s.previous == W::Begins;
    default:
        return false;
    }
}

// A statement, or a query beside another one.
void NameMachine::Begin(NameWord word)
{
    State& s = m_state;
    m_beganPart = true;
    if (!IsOneOf(word, {W::Select, W::With, W::Begin}))
        s.verb = word == W::Replace ? W::Insert : word;
    else if (word == W::Begin || s.verb == W::Fetch)
        s.verb = W::Other;
    Set(s.froms, false);
}

void NameMachine::ReadClause(const Token& token, NameWord word)
{
    State& s = m_state;
    if (word == W::Other) {
        s.afterCte = false;
        ReadDeclaration(token, word);
        return;
    }
    if (ReadDeclaration(token, word))
        return;
    s.afterCte = false;
    if (IsHead(word))
        Begin(word);
    const bool isQuery = s.depth == 0 || Has(s.selects);
    switch (word) {
    case W::Create:
    case W::Alter:
        if (!m_beganPart)
            return;
        s.step = Step::AfterCreate;
        s.patience = kPatience;
        return;
    case W::Select:
        Set(s.selects, true);
        Set(s.froms, false);
        return;
    case W::From:
        if (s.previous == W::Distinct || s.verb == W::Fetch || !isQuery ||
            IsOneOf(s.verb, {W::Grant, W::Revoke, W::Deny}))
            return;
        s.step = Step::TableName;
        Set(s.froms, true);
        return;
    case W::Join:
    case W::Apply:
    case W::StraightJoin:
        s.step = Step::TableName;
        Set(s.froms, true);
        return;
    case W::Using:
        if (s.verb == W::Merge && s.depth == 0)
            s.step = Step::TableName;
        return;
    case W::Insert:
    case W::Update:
    case W::Merge:
    case W::Replace:
        if (m_beganPart && NextByte(token.end) != '(')
            s.step = Step::TableName;
        return;
    case W::Into:
        if (m_dialect->brackets && Has(s.selects))
            s.step = Step::TableName;
        return;
    case W::Table:
        if (IsOneOf(s.verb, {W::Truncate, W::Drop, W::Lock}))
            s.step = Step::TableName;
        return;
    case W::Truncate:
        if (m_beganPart && NextByte(token.end) != '(')
            s.step = Step::TableName;
        return;
    case W::View:
        if (s.verb == W::Drop)
            s.step = Step::TableName;
        return;
    case W::References:
        s.step = Step::TableName;
        return;
    case W::Procedure:
    case W::Proc:
    case W::Function:
        if (s.verb == W::Drop)
            s.step = Step::CallName;
        return;
    case W::Exec:
    case W::Execute:
    case W::Call:
        if (m_beganPart)
            s.step = Step::CallName;
        return;
    case W::Declare: {
        const bool marksVariables = NextByte(token.end) == '@';
        if (marksVariables || (m_dialect->routine == Routine::Block && !m_dialect->dollarStrings) ||
            m_dialect->routine == Routine::Batch) {
            s.step = Step::Declare;
        } else {
            s.declares = true;
            m_atStart = true;
        }
        return;
    }
    case W::With:
        if (m_beganPart || (s.depth > 0 && s.previous == W::Open))
            s.step = Step::CteName;
        return;
    case W::Add:
        if (s.verb == W::Alter)
            s.step = Step::AddColumn;
        return;
    case W::Go:
        if (m_dialect->separator == "GO")
            EndStatement();
        return;
    case W::Where:
    case W::Group:
    case W::Order:
    case W::Having:
    case W::On:
    case W::Set:
    case W::Union:
    case W::Except:
    case W::Intersect:
    case W::Minus:
    case W::Values:
    case W::Limit:
    case W::Window:
    case W::Connect:
    case W::Start:
        Set(s.froms, false);
        return;
    default:
        return;
    }
}

void NameMachine::TakeVariable(const Token& token)
{
    State& s = m_state;
    switch (s.step) {
    case Step::Declare:
        Emit(NameKind::Variable, token);
        s.step = Step::AfterDeclared;
        return;
    case Step::Header:
        if (!IsRoutine(s.object) || s.listDone)
            return;
        Emit(NameKind::Parameter, token);
        s.step = Step::BareParameters;
        s.listDepth = s.depth;
        s.itemBegins = false;
        return;
    case Step::BareParameters:
    case Step::Items:
        if (s.itemBegins && s.depth == s.listDepth)
            Emit(NameKind::Parameter, token);
        s.itemBegins = false;
        return;
    case Step::TableName:
        Emit(NameKind::TableUse, token);
        s.isDerived = false;
        s.step = Step::AfterTable;
        return;
    case Step::AfterTable:
    case Step::AfterAs:
        s.step = Step::Code;
        return;
    default:
        return;
    }
}

void NameMachine::TakeOperator(char byte)
{
    State& s = m_state;
    switch (byte) {
    case '(':
        OpenParenthesis();
        s.previous = W::Open;
        return;
    case ')':
        CloseParenthesis();
        s.previous = W::Other;
        return;
    case ',':
        TakeComma();
        s.previous = W::Comma;
        return;
    case '.':
        return;
    default:
        if (s.step == Step::AfterTable || s.step == Step::AfterAs || s.step == Step::TableName)
            s.step = Step::Code;
        s.previous = W::Other;
        return;
    }
}

void NameMachine::OpenParenthesis()
{
    State& s = m_state;
    const Step step = s.step;
    s.depth = std::min<std::uint8_t>(static_cast<std::uint8_t>(s.depth + 1), kDeepest);
    Set(s.froms, false);
    Set(s.selects, false);
    Set(s.derived, step == Step::TableName);
    Set(s.ctes, step == Step::AfterCteAs);
    switch (step) {
    case Step::Header:
        if (s.listDone)
            return;
        [[fallthrough]];
    case Step::AfterInsert:
    case Step::AfterCte:
    case Step::AddColumn:
        if (step != Step::Header)
            s.object = step == Step::AfterCte ? NameKind::Cte : NameKind::Table;
        s.step = Step::Items;
        s.listDepth = s.depth;
        s.itemBegins = true;
        return;
    case Step::Items:
    case Step::BareParameters:
    case Step::AfterDeclared:
    case Step::AfterAdded:
        return;
    default:
        s.step = Step::Code;
        return;
    }
}

void NameMachine::CloseParenthesis()
{
    State& s = m_state;
    const bool wasDerived = Has(s.derived);
    const bool wasCte = Has(s.ctes);
    const bool closesList = s.step == Step::Items && s.depth == s.listDepth;
    if (s.depth > 0)
        --s.depth;
    if (closesList) {
        s.listDone = true;
        s.step = s.object == NameKind::Cte                           ? Step::AfterCte
                 : IsRoutine(s.object) || s.object == NameKind::View ? Step::Header
                                                                     : Step::Code;
    } else if (wasDerived) {
        s.isDerived = true;
        s.step = Step::AfterTable;
    } else if (s.step != Step::Items && s.step != Step::BareParameters &&
               s.step != Step::AfterDeclared && s.step != Step::AfterAdded &&
               s.step != Step::Header) {
        s.step = Step::Code;
    }
    s.afterCte = wasCte;
}

void NameMachine::TakeComma()
{
    State& s = m_state;
    if (s.afterCte) {
        s.afterCte = false;
        s.step = Step::CteName;
        return;
    }
    switch (s.step) {
    case Step::Items:
    case Step::BareParameters:
        s.itemBegins = s.itemBegins || s.depth == s.listDepth;
        return;
    case Step::AfterDeclared:
        if (s.depth == 0)
            s.step = Step::Declare;
        return;
    case Step::AfterAdded: // ADD a int, b int
        if (s.depth == 0)
            s.step = m_dialect->brackets ? Step::AddColumn : Step::Code;
        return;
    case Step::Code:
    case Step::AfterTable:
    case Step::AfterAs:
        s.step = Has(s.froms) ? Step::TableName : Step::Code;
        return;
    default:
        return;
    }
}

void NameMachine::EndStatement()
{
    const bool declares = m_state.declares;
    m_state = {};
    m_state.declares = declares;
    m_beganPart = true;
    m_atStart = true;
}

bool NameMachine::WantsOwnName() const
{
    const State& s = m_state;
    switch (s.step) {
    case Step::ObjectName:
    case Step::AfterAs:
    case Step::CteName:
    case Step::Declare:
        return true;
    case Step::Items:
        return s.itemBegins && s.depth == s.listDepth;
    case Step::Code:
        return s.previous == W::As && Has(s.selects);
    default:
        return false;
    }
}

void NameMachine::Emit(NameKind kind, const Token& token)
{
    m_events->push_back({kind, token.start, token.end});
}

char NameMachine::NextByte(long position) const
{
    for (const long stop = position + kNear; position < stop; ++position) {
        const auto byte = m_text->At(position);
        if (byte > ' ' || byte == 0)
            return static_cast<char>(byte);
    }
    return 0;
}

} // namespace completion
