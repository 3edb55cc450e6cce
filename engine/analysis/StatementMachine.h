// SPDX-License-Identifier: GPL-3.0-or-later
// StatementMachine: reads a stretch of a script and notes where statements start and end, where
// batches are separated and where the catalog changes. It begins and stops at any place.
#pragma once

#include "engine/analysis/SqlWords.h"
#include "engine/analysis/StatementState.h"

#include <vector>

namespace engine::analysis {

// What happens at a place, in four bytes: the distance from the stretch's start above the kind.
// In this order where several stand at one place.
class Event
{
public:
    enum Kind : std::uint32_t
    {
        End,        // behind the last token of a statement
        EndEarlier, // the same, but that token stands before the stretch; its distance is 0
        Separator,  // the first byte of the word between two batches
        Start,      // of a statement
        Use,        // the first byte of the name of a catalog
        Connect,    // the same in a line of the client's
        Variable,   // the first byte of the name of a client's variable that gets a value
    };

    Event(Kind kind, long distance) : m_bits(static_cast<std::uint32_t>(distance) << 3 | kind) {}

    Kind GetKind() const { return static_cast<Kind>(m_bits & 7); }
    long Distance() const { return static_cast<long>(m_bits >> 3); }
    bool operator==(const Event&) const = default;

private:
    std::uint32_t m_bits;
};

class StatementMachine
{
public:
    StatementMachine(const ScriptRules& rules, TextSpans text, long start,
                     const StatementState& state);
    StatementMachine(const StatementMachine&) = delete; // the scanner points at the state
    StatementMachine& operator=(const StatementMachine&) = delete;

    // Reads up to the limit, or to the end of the token that stands across it.
    void Run(long limit);

    long Position() const { return m_scanner.Position(); }
    long Reach() const; // how far the text was looked at
    StatementState State() const;
    const std::vector<Event>& Events() const { return m_events; }

    // Behind the last token of a statement, -1 if there was none in the stretch.
    long LastEnd() const { return m_lastEnd; }

private:
    using Phase = StatementState::Phase;
    using Pending = StatementState::Pending;
    using Before = StatementState::Before;

    void Take(const Token& token);
    bool TakeSeparator(const Token& token);
    void TakeTerminator(const Token& token);
    void TakePart(const Token& token);
    void TakeRest(const Token& token);
    void OpenStatement(const Token& token, SqlWord word);
    void CloseStatement();
    bool TakeClient(const Token& token);
    void TakeClientLine(const Token& token, const ClientLine& line);
    void TakeInStatement(const Token& token, const ClientLine& line);
    void TakeRestOf(const ClientLine& line);
    void Apply(const ClientLine& line);
    void NoteArgument(Event::Kind kind, long behind);
    void TakeTerm();
    void TakeComment(const Token& token);
    void SetTerminator(const TerminatorChange& change);
    void Continue(const Token& token, SqlWord word);
    void ReadName(const Token& token);
    bool SplitsAtUse(SqlWord word) const;
    void Note(Event::Kind kind, long position);

    const ScriptRules& m_rules;
    const SqlDialect& m_dialect;
    BlockRules m_blocks;
    SqlScanner m_scanner;
    StatementState m_state; // its scan state is the scanner's
    long m_start;
    long m_limit = 0;
    long m_lastEnd = -1;
    long m_read = 0; // by others than the scanner
    std::vector<Event> m_events;
};

} // namespace engine::analysis
