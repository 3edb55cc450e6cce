// SPDX-License-Identifier: GPL-3.0-or-later
// NameMachine's steps: what a word is where a name is expected.
#include "completion/NameMachine.h"
#include "completion/NameText.h"

namespace completion {
namespace {

using engine::analysis::Routine;
using W = NameWord;

struct Created
{
    NameWord word;
    NameKind kind;
};
constexpr Created kCreated[] = {
    {W::Table, NameKind::Table},         {W::View, NameKind::View},
    {W::Procedure, NameKind::Procedure}, {W::Proc, NameKind::Procedure},
    {W::Function, NameKind::Function},   {W::Trigger, NameKind::Trigger},
    {W::Index, NameKind::Index},         {W::Type, NameKind::Type},
    {W::Sequence, NameKind::Sequence},   {W::Package, NameKind::Package},
    {W::Schema, NameKind::Schema},
};

const Created* FindCreated(NameWord word)
{
    const auto* row = std::find_if(std::begin(kCreated), std::end(kCreated),
                                   [word](const Created& each) { return each.word == word; });
    return row != std::end(kCreated) ? row : nullptr;
}

} // namespace

// True if the step has taken the word; else it is to be read as any other.
bool NameMachine::ReadStep(const Token& token, NameWord word)
{
    State& s = m_state;
    const bool isLast = s.step == Step::Code || NextByte(token.end) != '.';
    switch (s.step) {
    case Step::Code:
        return false;
    case Step::AfterCreate:
        return ReadCreated(word);
    case Step::ObjectName:
        if (IsOneOf(word, {W::If, W::Not, W::Exists, W::Body, W::Concurrently, W::Only}))
            return true;
        if (!MayBeName(word)) {
            s.step = Step::Code;
            return false;
        }
        if (isLast) {
            Emit(s.object, token);
            s.listDone = false;
            s.step = s.object == NameKind::Table || s.object == NameKind::View ||
                             IsRoutine(s.object) || s.object == NameKind::Package ||
                             s.object == NameKind::Cursor || s.object == NameKind::Type
                         ? Step::Header
                         : Step::Code;
        }
        return true;
    case Step::Header:
        if (word == W::As || word == W::Is) {
            EnterBody();
            return true;
        }
        if (IsOneOf(word, {W::Select, W::Insert, W::Delete, W::Begin, W::Declare, W::With}) &&
            !(word == W::With && IsRoutine(s.object))) {
            s.step = Step::Code;
            s.previous = W::Begins;
            return false;
        }
        return true;
    case Step::Items:
        if (s.depth != s.listDepth)
            return true;
        if (s.object == NameKind::Table && s.verb != W::Insert &&
            (word == W::References || (word == W::Like && s.previous == W::Open)))
            MentionTable();
        else if (s.itemBegins)
            ReadItem(token, word);
        return true;
    case Step::BareParameters:
        if (word == W::As || word == W::Begin)
            EnterBody();
        return true;
    case Step::TableName:
        if (IsOneOf(word, {W::Into, W::Only, W::Lateral, W::Table, W::Ignore, W::Top, W::Or,
                           W::Replace, W::If, W::Exists, W::From}))
            return true;
        if (!MayBeName(word)) {
            s.step = Step::Code;
            return false;
        }
        if (!isLast)
            return true;
        if (s.object == NameKind::Index && IsOneOf(s.verb, {W::Create, W::Alter})) {
            s.object = NameKind::Table; // what ON names later is none
        } else if (NextByte(token.end) == '(') {
            if (s.verb != W::Insert)
                return true; // what a function gives, and its parenthesis comes
            Emit(NameKind::InsertUse, token);
            s.step = Step::AfterInsert;
            return true;
        }
        Emit(NameKind::TableUse, token);
        s.isDerived = false;
        s.step = Step::AfterTable;
        return true;
    case Step::MentionedTable:
        if (IsOneOf(word, {W::Table, W::Only, W::If, W::Exists, W::Full, W::Analyze, W::Freeze,
                           W::Verbose}))
            return true;
        if (!MayBeName(word)) {
            s.step = s.next;
            return s.step != Step::Code && ReadStep(token, word);
        }
        if (isLast)
            s.step = s.next;
        return true;
    case Step::AfterTable:
        if (word == W::As) {
            s.step = Step::AfterAs;
            return true;
        }
        [[fallthrough]];
    case Step::AfterAs:
        s.step = Step::Code;
        if (!MayBeName(word))
            return false;
        EmitAlias(token);
        return true;
    case Step::CteName:
        if (word == W::Recursive)
            return true;
        s.step = Step::Code;
        if (!MayBeName(word))
            return false;
        Emit(NameKind::Cte, token);
        s.step = Step::AfterCte;
        s.listDone = false;
        return true;
    case Step::AfterCte:
        s.step = word == W::As ? Step::AfterCteAs : Step::Code;
        return word == W::As;
    case Step::AfterCteAs:
        if (IsOneOf(word, {W::Not, W::Materialized}))
            return true;
        s.step = Step::Code;
        return false;
    case Step::Declare:
        s.step = Step::Code;
        if (!MayBeName(word))
            return false;
        Emit(NameKind::Variable, token);
        s.step = Step::AfterDeclared;
        return true;
    case Step::AfterDeclared:
        if (word == W::Table) {
            s.step = Step::Header;
            s.object = NameKind::Table;
            s.listDone = false;
            return true;
        }
        if (!IsHead(word))
            return true;
        s.step = Step::Code;
        return false;
    case Step::CallName:
        if (IsOneOf(word, {W::Procedure, W::Function, W::If, W::Exists}))
            return true;
        s.step = Step::Code;
        if (!MayBeName(word) || IsOneOf(word, {W::Immediate, W::Block}))
            return false;
        if (isLast)
            Emit(NameKind::RoutineUse, token);
        else
            s.step = Step::CallName;
        return true;
    case Step::AddColumn:
        if (IsOneOf(word, {W::Column, W::If, W::Not, W::Exists}))
            return true;
        s.step = Step::Code;
        if (!MayBeName(word))
            return false;
        Emit(NameKind::Column, token);
        s.step = Step::AfterAdded;
        return true;
    case Step::AfterAdded:
        if (word == W::References) {
            MentionTable();
            return true;
        }
        if (IsHead(word))
            s.step = Step::Code;
        return false;
    case Step::DropColumn: {
        if (IsOneOf(word, {W::Column, W::If, W::Exists}))
            return true;
        s.step = Step::Code;
        const bool isOther =
            m_dialect->brackets ? word != W::Constraint : word != W::Index && FindCreated(word);
        if (s.previous == W::Drop && isOther) {
            Begin(W::Drop); // a statement of its own
            return false;
        }
        if (!MayBeName(word) || word == W::Key)
            return false;
        Emit(NameKind::DroppedColumn, token);
        s.step = Step::AfterDropped;
        return true;
    }
    case Step::AfterDropped:
        if (IsHead(word))
            s.step = Step::Code;
        return false;
    case Step::OldColumn:
        if (word == W::Column)
            return true;
        s.step = Step::Code;
        if (!MayBeName(word) || word == W::Key)
            return false;
        Emit(NameKind::RenamedColumn, token);
        s.step = Step::NewColumn;
        return true;
    case Step::NewColumn:
        if (word == W::To)
            return true;
        s.step = Step::Code;
        if (!MayBeName(word))
            return false;
        Emit(NameKind::Column, token);
        return true;
    case Step::AlteredTable:
        if (IsOneOf(word, {W::If, W::Exists, W::Only}))
            return true;
        if (MayBeName(word) && !isLast)
            return true;
        s.step = Step::Code;
        if (!MayBeName(word))
            return false;
        Emit(NameKind::AlterUse, token);
        return true;
    case Step::AfterInsert:
    case Step::AfterDerived:
        s.step = Step::Code;
        return false;
    }
    return false;
}

// False for a word that begins a statement: what ALTER does ended without a name.
bool NameMachine::ReadCreated(NameWord word)
{
    State& s = m_state;
    if (const Created* row = FindCreated(word)) {
        s.object = row->kind;
        s.step = Step::ObjectName;
        // ALTER of these gives nothing anew but columns.
        if (s.verb == W::Alter && row->kind == NameKind::Table)
            s.step = Step::AlteredTable;
        return true;
    }
    const bool ends = (IsOneOf(word, {W::Create, W::Alter}) && s.previous != W::Or) ||
                      IsOneOf(word, {W::Insert, W::Update, W::Delete, W::Exec, W::Drop, W::Select});
    if (s.patience-- == 0 || ends || word == W::Column)
        s.step = Step::Code;
    return !ends;
}

// The columns that a query in parentheses gives may be named behind it.
void NameMachine::EmitAlias(const Token& token)
{
    State& s = m_state;
    Emit(s.isDerived ? NameKind::DerivedAlias : NameKind::Alias, token);
    if (s.isDerived && NextByte(token.end) == '(')
        s.step = Step::AfterDerived;
}

// What stands behind the name is read as what stands here is.
void NameMachine::MentionTable()
{
    m_state.itemBegins = false;
    m_state.next = m_state.step;
    m_state.step = Step::MentionedTable;
}

void NameMachine::ReadItem(const Token& token, NameWord word)
{
    State& s = m_state;
    if (IsRoutine(s.object)) {
        if (IsOneOf(word, {W::In, W::Out, W::Inout, W::Variadic}))
            return;
        const char next = NextByte(token.end);
        s.itemBegins = false;
        if (MayBeName(word) && next != ',' && next != ')' && next != '(')
            Emit(NameKind::Parameter, token);
        return;
    }
    s.itemBegins = false;
    if (IsQuotedName(*m_text, token.start) || (word != W::Key && MayBeName(word)) ||
        (word == W::Key && NextByte(token.end) != '('))
        Emit(NameKind::Column, token);
}

// What follows is code, and in some dialects declarations first.
void NameMachine::EnterBody()
{
    State& s = m_state;
    const bool isRoutine = IsRoutine(s.object) || s.object == NameKind::Package;
    s.step = Step::Code;
    m_atStart = true;
    s.declares = isRoutine && (m_dialect->routine == Routine::Declarations ||
                               m_dialect->routine == Routine::Mixed);
    s.verb = W::Other;
}

// PL/SQL and its kin: what stands first in a statement is declared by it.
bool NameMachine::ReadDeclaration(const Token& token, NameWord word)
{
    State& s = m_state;
    if (!s.declares || s.previous != W::Begins || s.depth > 0)
        return false;
    if (word == W::Begin || word == W::End) {
        s.declares = false;
        return false;
    }
    if (IsOneOf(word, {W::Procedure, W::Function, W::Type, W::Cursor})) {
        s.object = word == W::Procedure  ? NameKind::Procedure
                   : word == W::Function ? NameKind::Function
                   : word == W::Type     ? NameKind::Type
                                         : NameKind::Cursor;
        s.step = Step::ObjectName;
        return true;
    }
    const char next = NextByte(token.end);
    const bool isName = MayBeName(word);
    if (isName && next != '(' && next != '.' && next != ':' && next != ';' && next != ')')
        Emit(NameKind::Variable, token);
    return isName || word == W::Pragma;
}

} // namespace completion
