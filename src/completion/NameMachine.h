// SPDX-License-Identifier: GPL-3.0-or-later
// NameMachine: the names that a script gives to things and uses, found token by token. It keeps a
// few bytes between tokens, so that a script can be read on from any place whose state is known.
// Positions count bytes.
#pragma once

#include "completion/NameKind.h"
#include "completion/NameWords.h"
#include "engine/analysis/SqlScanner.h"

#include <vector>

namespace completion {

// Where the name stands, quotes included.
struct NameEvent
{
    NameKind kind = NameKind::Table;
    long start = 0;
    long end = 0;
};

struct NameState
{
    // What the next name is.
    enum class Step : std::uint8_t
    {
        Code,
        AfterCreate, // what is created comes
        ObjectName,
        Header,         // behind the name of what is created, before its list
        Items,          // in the list: columns, parameters
        BareParameters, // without parentheses
        TableName,
        MentionedTable, // one that nothing is read from: REFERENCES, GRANT
        AfterTable,     // an alias may come
        AfterAs,
        AfterInsert, // the list of columns
        CteName,
        AfterCte,
        AfterCteAs,
        Declare,
        AfterDeclared,
        CallName,
        AlteredTable,
        AddColumn,
        AfterAdded, // the type of a column that ALTER adds
        DropColumn,
        AfterDropped,
        OldColumn, // that is renamed
        NewColumn,
        AfterDerived, // the columns of an alias
    };

    // What the last byte was, which the next token may touch.
    enum class Before : std::uint8_t
    {
        LineEnd,
        Point,
        Other,
        Word, // in the midst of a long one, in a text that is no script
    };

    Step step = Step::Code;
    Step next = Step::Code; // behind MentionedTable
    Before before = Before::LineEnd;
    NameKind object = NameKind::Table;
    NameWord verb = NameWord::Other; // that the statement began with
    NameWord previous = NameWord::Begins;
    std::uint8_t patience = 0; // words until what is created has to be named
    std::uint8_t depth = 0;    // of parentheses
    std::uint8_t listDepth = 0;
    bool itemBegins = false;
    bool listDone = false;
    bool isDerived = false;    // AfterTable: what stood there was no table's name
    bool afterCte = false;     // behind the parenthesis of one, where a comma brings another
    bool declares = false;     // statements declare variables until BEGIN
    std::uint64_t froms = 0;   // by depth, a bit each: commas part tables
    std::uint64_t selects = 0; // a query
    std::uint64_t derived = 0; // the parenthesis stands for a table
    std::uint64_t ctes = 0;    // the parenthesis is the query of a name

    bool operator==(const NameState&) const = default;
};

class NameMachine
{
public:
    using Token = engine::analysis::Token;
    using TextSpans = engine::analysis::TextSpans;

    using Step = NameState::Step;
    using State = NameState;

    explicit NameMachine(const engine::analysis::SqlDialect& dialect, State state = {})
        : m_dialect(&dialect), m_state(state)
    {}

    // Takes the next token; blanks and comments may come or not. What it names goes behind
    // `events`. A few bytes behind it are looked at too, less than the scanner's kLookAhead.
    void Take(const TextSpans& text, const Token& token, std::vector<NameEvent>& events);

    const State& Now() const { return m_state; }
    bool BeganPart() const { return m_beganPart; }   // the last token did: a statement, a query
    bool BeganQuery() const { return m_beganQuery; } // the same in any parentheses

    // What a name in this place would be.
    bool WantsTable() const
    {
        const Step step = m_state.step;
        return step == Step::TableName || step == Step::MentionedTable ||
               step == Step::AlteredTable;
    }
    bool WantsRoutine() const { return m_state.step == Step::CallName; }
    bool WantsOwnName() const; // one that nothing has yet
    bool AtStatement() const;  // a word in this place would begin one

private:
    void TakeToken(const Token& token);
    void TakeWord(const Token& token, NameWord word);
    void TakeName(const Token& token);
    void TakeVariable(const Token& token);
    void TakeOperator(char byte);
    void OpenParenthesis();
    void CloseParenthesis();
    void TakeComma();
    void EndStatement();
    bool ReadStep(const Token& token, NameWord word);
    void ReadClause(const Token& token, NameWord word);
    bool ReadDeclaration(const Token& token, NameWord word);
    bool ReadCreated(NameWord word);
    void ReadItem(const Token& token, NameWord word);
    void EmitAlias(const Token& token);
    void MentionTable();
    void ReadOn();
    void EnterBody();
    bool IsHead(NameWord word) const;
    void Begin(NameWord word);
    void Emit(NameKind kind, const Token& token);
    char NextByte(long position) const; // that is no blank, 0 if there is none near
    bool Has(std::uint64_t bits) const { return (bits >> m_state.depth) & 1; }
    void Set(std::uint64_t& bits, bool on) const
    {
        const std::uint64_t bit = std::uint64_t{1} << m_state.depth;
        bits = on ? bits | bit : bits & ~bit;
    }

    const engine::analysis::SqlDialect* m_dialect;
    State m_state;
    const TextSpans* m_text = nullptr;
    std::vector<NameEvent>* m_events = nullptr;
    bool m_beganPart = false;
    bool m_beganQuery = false;
    bool m_atStart = false; // what stands behind the word begins a statement
};

} // namespace completion
