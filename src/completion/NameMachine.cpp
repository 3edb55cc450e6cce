// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/NameMachine.h"

#include "completion/NameText.h"

#include <algorithm>

namespace completion {
namespace {

using engine::analysis::TokenKind;
using W = NameWord;

constexpr std::uint8_t kDeepest = 63;
constexpr long kNear = 64;

} // namespace

void NameMachine::Take(const TextSpans& text, const Token& token, std::vector<NameEvent>& events)
{
    m_text = &text;
    m_events = &events;
    m_beganPart = false;
    m_beganQuery = false;
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
    if (s.step == Step::MentionedTable && byte != '.')
        s.step = s.next;
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
    case Step::AfterDerived:
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
    case Step::DropColumn:
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
    case Step::AfterDropped: // DROP COLUMN a, b and DROP (a, b)
        s.step = m_dialect->brackets || s.depth > 0 ? Step::DropColumn : Step::Code;
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
    case Step::Items: // INSERT names what there is
        return s.itemBegins && s.depth == s.listDepth && s.verb != W::Insert;
    case Step::Code:
        return s.previous == W::As && Has(s.selects);
    default:
        return false;
    }
}

// THEN is one of IF or of MERGE, unless it stands in an expression's CASE.
bool NameMachine::AtStatement() const
{
    const State& s = m_state;
    if (s.step != Step::Code || s.depth > 0 || s.declares)
        return false;
    return s.previous == W::Begins ||
           (s.previous == W::Then && !Has(s.selects) && IsOneOf(s.verb, {W::Other, W::Merge}));
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
