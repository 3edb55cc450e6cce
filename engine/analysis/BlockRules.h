// SPDX-License-Identifier: GPL-3.0-or-later
// BlockRules: which words open and close blocks in a statement, by dialect. Partitions and folds
// go by them. The rules keep nothing themselves: all that was read stands in a BlockState.
#pragma once

#include "engine/analysis/SqlWords.h"

#include <utility>

namespace engine::analysis {

struct BlockState
{
    // What the first words of the statement have said.
    enum class Head : std::uint8_t
    {
        Plain,      // no more than that it is a statement
        Create,     // CREATE or ALTER: the kind of object comes
        CreateType, // a type: it has a body if BODY comes
        Execute,    // EXECUTE: a body if BLOCK comes
        Set,        // SET: TERM may come
        Copy,       // COPY: FROM may come
        CopyFrom,   // from where comes next
        CopyData,   // data stand behind the terminator
        Java,       // CREATE JAVA: SOURCE may come
        JavaSource, // what stands behind is none of SQL
        Label,      // <<, a label
        LabelEnd,   // behind it
        With,       // WITH: the declaration of a function may come
        WithBody,   // and has come
        Explain,    // EXPLAIN: CREATE may come
        Routine,    // the header of a routine
        Trigger,    // the header of a trigger
        Body,       // behind the IS or the DECLARE of a routine
    };

    // A word whose meaning hangs on the next one.
    enum class Pending : std::uint8_t
    {
        None,
        Begin,
        BeginBackup,
        BeginNew,
        BeginDeclare,
        BeginSection, // BEGIN DECLARE SECTION
        BeginAtStart, // a transaction, or NOT ATOMIC
        End,
        Is,
        Repeat,
    };

    // The last token, comments and blanks left out.
    enum class Before : std::uint8_t
    {
        Other,
        Operator,
        Point, // what stands behind it is a name
    };

    // Each BEGIN above a declaration part turns that part into its block, and END closes the
    // innermost one that is open, so that counts say as much as a stack would.
    std::uint32_t declarations = 0; // parts that wait for their BEGIN, packages included
    std::uint32_t blocks = 0;       // open above them; a CASE in a block counts
    std::uint32_t cases = 0;        // open CASEs while there is no block
    std::uint32_t controls = 0;     // IF and loops while there is no block
    std::uint32_t parentheses = 0;
    Head head = Head::Plain;
    Pending pending = Pending::None;
    Before before = Before::Other;
    bool routineHeader = false; // of a routine in declarations
    bool ifSeen = false;        // its THEN comes
    bool whileSeen = false;     // its DO comes
    bool rowset = false;        // OPENROWSET, whose parentheses may hold terminators

    bool operator==(const BlockState&) const = default;

    bool InHeader() const { return head == Head::Routine || head == Head::Trigger; }
    bool InRoutine() const { return InHeader() || head == Head::Body; }

    // Whether the next word still says what the statement is.
    bool ReadsHead() const { return head != Head::Plain && !InRoutine() && head != Head::CopyData; }
};

class BlockRules
{
public:
    // Which IFs and loops count.
    enum class Controls
    {
        BodiesAlone, // those that no BEGIN stands around: inside of one its END says enough
        All,
    };

    BlockRules(const SqlDialect& dialect, Controls controls);

    // The first token of a statement. False: it is read as any other.
    bool Open(BlockState& state, const TextSpans& text, const Token& token, SqlWord word) const;

    // Decides what the word before has meant. True if the token at hand belongs to it.
    bool SettlePending(BlockState& state, TokenKind kind, SqlWord word) const
    {
        return state.pending != Pending::None && Settle(state, kind, word);
    }

    // A token behind the first one and what it settles; of a word that was made a name by what
    // stands before it, the word is None. True if it is TERM of SET TERM.
    bool Continue(BlockState& state, const TextSpans& text, const Token& token, SqlWord word) const;

    // A terminator. True if the statement goes on behind it.
    bool TakeTerminator(BlockState& state, bool isOfScript) const;

    void NoteBefore(BlockState& state, const TextSpans& text, const Token& token) const;

private:
    using Head = BlockState::Head;
    using Pending = BlockState::Pending;
    using Before = BlockState::Before;

    bool OpenWord(BlockState& state, SqlWord word) const;
    bool ReadHead(BlockState& state, SqlWord word) const;
    void ReadFirstWord(BlockState& state, SqlWord word) const;
    void ReadCreate(BlockState& state, SqlWord word) const;
    void ReadWord(BlockState& state, SqlWord word) const;
    void ReadControl(BlockState& state, SqlWord word) const;
    bool Settle(BlockState& state, TokenKind kind, SqlWord word) const;
    void OpenBlock(BlockState& state) const;
    bool SettleBegin(BlockState& state, TokenKind kind, SqlWord word) const;
    bool SettleEnd(BlockState& state, SqlWord word) const;
    void KeepCaseBody(BlockState& state) const;
    void CloseBlock(BlockState& state) const;
    void CloseControl(BlockState& state) const;
    bool BeginsBlock(const BlockState& state, TokenKind kind, SqlWord word) const;
    bool CanDeclare(const BlockState& state, SqlWord word) const;
    bool OpensDeclarations(const BlockState& state, SqlWord word) const;
    bool HoldsTerminator(const BlockState& state) const;
    bool CountsControls(const BlockState& state) const;

    const SqlDialect& m_dialect;
    Controls m_controls;
};

} // namespace engine::analysis
