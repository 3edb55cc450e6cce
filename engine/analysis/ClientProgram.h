// SPDX-License-Identifier: GPL-3.0-or-later
// ClientProgram: what a script says to the program that sends it, and not to the server. The words
// of each program are rows of a table; what stands at a place of a script is told for statements
// and for colours alike.
#pragma once

#include "engine/analysis/Terminator.h"
#include "engine/analysis/TextSpans.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace engine::analysis {

struct SqlDialect;
struct Token;

enum class ClientWord : std::uint8_t
{
    None,      // nothing of the client's
    Line,      // a line that is read for its colours as code is
    Bare,      // the same, if nothing stands behind the word
    Text,      // what stands behind the word is no code
    Remark,    // the same, and is a comment to the eye
    Comment,   // a comment, and no statement of its own
    Setting,   // SET: a line, but for what it sets in the server
    Delimiter, // sets the terminator
    Variable,  // gives a variable its value
    Connect,   // chooses the catalog
    Alone,     // an escape with nothing behind it
    Send,      // ends the statement that it stands behind
    Cut,       // the same, and is none of it
    Inner,     // what stands behind the escape is read as no more than a part of the statement
};

struct ClientCommand
{
    enum class Match : std::uint8_t
    {
        AnyCase,
        Exact,
        Front, // words that begin so
    };

    std::string_view word; // lower case, unless it is matched exactly
    std::uint8_t least;    // bytes of it that suffice
    ClientWord kind = ClientWord::Line;
    Match match = Match::AnyCase;
};

struct ClientProgram
{
    std::string_view leads;                   // bytes that begin a line where a statement starts
    ClientWord lead = ClientWord::Line;       // what they are unless a row below says other
    std::span<const ClientCommand> words;     // words that begin a line
    std::span<const ClientCommand> leadWords; // what stands behind a lead or an escape
    char escape = 0;                          // begins a command in the midst of a line too
    ClientWord escaped = ClientWord::None;    // what it is unless a row says other
    bool escapesMeet = false;                 // a command ends where the next one begins
    bool leadsAnywhere = false;               // a lead begins a line inside of a statement too
    bool goesOnAtDash = false;                // a line that ends in - is not at its end
    bool wordsLackTerminator = false;         // no line if there is a terminator on it
    bool dashesBegin = false;                 // -- with anything behind it where a statement starts
};

// What SqlScanner::TakeLine has to know of the rest of a line.
struct ClientRest
{
    bool goesOnAtDash = false;
    bool stopsAtEscape = false;     // a backslash that is not in quotes
    bool stopsAtTerminator = false; // behind it
};

struct ClientLine
{
    ClientWord kind = ClientWord::None;
    long behind = 0; // its word
    ClientRest rest; // how it goes on
    long read = 0;   // how far the text was looked at
    bool isEscape = false;
};

// What begins at a token that may be the first of a statement. lineIsClean: nothing but blanks and
// comments before it on its line.
ClientLine ClientLineAt(const SqlDialect& dialect, const TextSpans& text, const Token& token,
                        bool lineIsClean, const Terminator& terminator);

// The same inside of a statement.
ClientLine ClientLineInStatement(const SqlDialect& dialect, const TextSpans& text,
                                 const Token& token, bool lineIsClean);

// A change of the terminator.
struct TerminatorChange
{
    bool found = false;
    Terminator terminator;
    long end = 0;  // behind what says so
    long read = 0; // how far the text was looked at
};

// The argument of a client's DELIMITER, behind its word.
TerminatorChange DelimiterAt(const TextSpans& text, long behind);

// What stands behind SET TERM: the new one and the old one, which may stand directly behind.
TerminatorChange SetTermAt(const TextSpans& text, long behind, const Terminator& old);

// --#SET TERMINATOR x, and in a comment before the first statement also -tdx, as the client's
// command line has it.
TerminatorChange TerminatorInComment(const TextSpans& text, const Token& comment, bool isBeforeAll);

// Behind a name with $(variables) in it, as they stand in the text; -1 if there is none.
long EndOfVariables(const SqlDialect& dialect, const TextSpans& text, long start);

// Behind the blanks of the line, not far.
long SkipBlanks(const TextSpans& text, long position);

} // namespace engine::analysis
