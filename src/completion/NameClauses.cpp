// SPDX-License-Identifier: GPL-3.0-or-later
// NameMachine's clauses: what the words of a statement say of the names behind them.
#include "completion/NameMachine.h"

namespace completion {
namespace {

using engine::analysis::Routine;
using W = NameWord;

constexpr std::uint8_t kPatience = 12; // words

} // namespace

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
    case W::Drop:
        return s.verb != W::Alter; // it drops columns there, or turns out to be one
    case W::With:
        return IsOneOf(s.previous, {W::Begins, W::As, W::Open});
    case W::Replace:
    case W::Analyze:
    case W::Comment:
    case W::Copy:
    case W::Describe:
    case W::Vacuum:
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

// ON of a join names no table, but that of what belongs to one does.
void NameMachine::ReadOn()
{
    State& s = m_state;
    if (s.depth > 0)
        return;
    const bool gives = IsOneOf(s.verb, {W::Create, W::Alter});
    if (gives && s.object == NameKind::Index) {
        s.step = Step::TableName;
    } else if (gives && s.object == NameKind::Trigger) {
        s.object = NameKind::Table; // the next ON is one of its statements
        MentionTable();
    } else if (s.verb == W::Drop ||
               (IsOneOf(s.verb, {W::Grant, W::Revoke, W::Deny}) && s.previous != W::Execute)) {
        MentionTable();
    }
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
        m_beganQuery = true;
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
        if (IsOneOf(s.verb, {W::Truncate, W::Drop, W::Lock})) {
            s.step = Step::TableName;
            Set(s.froms, true); // commas part tables
        } else if (s.verb == W::Comment ||
                   (s.verb == W::Other && s.depth == 0 && !Has(s.selects))) {
            MentionTable();
        }
        return;
    case W::Column:
        if (s.verb == W::Comment)
            MentionTable();
        return;
    case W::Analyze:
    case W::Copy:
    case W::Describe:
    case W::Vacuum:
        if (m_beganPart)
            MentionTable();
        return;
    case W::Truncate:
        if (m_beganPart && NextByte(token.end) != '(')
            s.step = Step::TableName;
        return;
    case W::View:
        if (s.verb == W::Drop)
            s.step = Step::TableName;
        else if (s.verb == W::Comment)
            MentionTable();
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
    case W::Drop:
        if (s.verb == W::Alter && s.depth == 0)
            s.step = Step::DropColumn;
        return;
    case W::Rename:
    case W::Change:
        if (s.verb == W::Alter && s.depth == 0)
            s.step = Step::OldColumn;
        return;
    case W::Go:
        if (m_dialect->separator == "GO")
            EndStatement();
        return;
    case W::On:
        Set(s.froms, false);
        ReadOn();
        return;
    case W::Where:
    case W::Group:
    case W::Order:
    case W::Having:
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

} // namespace completion
