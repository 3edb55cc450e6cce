// SqlWords: the few words that shape statements and blocks, told from all others by their length
// and first letter before they are compared.
#pragma once

#include "engine/analysis/SqlScanner.h"

namespace engine::analysis {

enum class SqlWord : std::uint8_t
{
    None, // any other word
    Aggregate,
    Alter,
    As,
    Atomic,
    Begin,
    Block,
    Body,
    Case,
    Compound,
    Constraint,
    Conversation,
    Copy,
    Create,
    Declare,
    Deferred,
    Definer,
    Dialog,
    Distributed,
    Do,
    Editionable,
    Else,
    Elseif,
    End,
    Event,
    Exclusive,
    Execute,
    External,
    For,
    Function,
    If,
    Immediate,
    Is,
    Isolation,
    Language,
    Loop,
    Noneditionable,
    Not,
    Null,
    Or,
    Package,
    Proc,
    Procedure,
    Read,
    Recreate,
    Repeat,
    Replace,
    Row,
    Set,
    Statement,
    Stdin,
    Temp,
    Temporary,
    Term,
    Then,
    Tran,
    Transaction,
    Trigger,
    Type,
    Use,
    When,
    While,
    Work,
};

// The word that a token is, in any letter case.
SqlWord WordOf(const TextSpans& text, const Token& token);

} // namespace engine::analysis
