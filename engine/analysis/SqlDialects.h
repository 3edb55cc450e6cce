// SPDX-License-Identifier: GPL-3.0-or-later
// SqlDialects: how each dialect of SQL is read, as data. One row for a dialect: the first columns
// say how its text falls into tokens (SqlScanner), the others how tokens make statements and
// batches (StatementMachine).
#pragma once

#include "engine/analysis/ClientPrograms.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace engine::analysis {

// What a byte begins, where no token is under way.
enum class ByteClass : std::uint8_t
{
    Operator,
    Blank,
    LineEnd,
    Word,
    Digit,
    Quote,       // '
    DoubleQuote, // "
    Backtick,
    Bracket, // [
    Dollar,
    Dash,
    Slash,
    Hash,
    Lead, // of a variable: @ : & ?
    Semicolon,
};

enum class Dashes : std::uint8_t
{
    Comment,            // -- begins a comment
    CommentBeforeBlank, // only with a blank, a control character or the line's end behind it
};

// What the body of CREATE PROCEDURE and its like is.
enum class Routine : std::uint8_t
{
    Block,        // BEGIN ... END, or one statement
    Declarations, // from IS or AS on declarations, then BEGIN ... END
    Mixed,        // the same from IS on, and else a block
    Batch,        // the rest of the batch
};

// What BEGIN means where a statement starts. Elsewhere it opens a block.
enum class Begin : std::uint8_t
{
    Block,
    BlockOrTransaction, // a transaction if the statement is at its end behind it
    Transaction,
};

struct SqlDialect
{
    std::string_view name; // the value of the lexer property sql.dialect

    // Tokens
    Dashes dashes = Dashes::Comment;
    bool hashComments = false;             // # to the line's end
    bool slashComments = false;            // // to the line's end
    bool nestedComments = false;           // /* /* */ */
    bool codeComments = false;             // /*! */ is code to the server
    bool backslashes = false;              // \' does not end a string
    bool escapeStrings = false;            // E'..': backslashes in this one
    std::string_view stringPrefixes = "n"; // letters directly before a string
    bool unicodeStrings = false;           // U&'..', U&".."
    bool quotingStrings = false;           // q'[..]', nq'[..]'
    bool dollarStrings = false;            // $$..$$, $tag$..$tag$
    bool doubleQuoteStrings = false;       // ".." is a string; else a name
    bool backticks = false;                // `..` is a name
    bool brackets = false;                 // [..] is a name
    std::string_view wordMarks;            // in a word beside letters, digits and _
    std::string_view wordLeads;            // those that a word may begin with
    std::string_view variableLeads;        // of variables, and of :names

    // Statements and batches
    std::string_view separator; // of batches; empty: none
    Routine routine = Routine::Block;
    Begin begin = Begin::Block;
    bool triggerDeclares = false;       // IS or AS opens a trigger's declarations too
    bool declareOpens = false;          // DECLARE begins a block where a statement starts
    bool endNamesBlock = true;          // END IF, END LOOP, ... close no BEGIN
    bool parenthesesHold = false;       // a terminator in parentheses ends nothing
    bool onlyAtomicBlocks = false;      // BEGIN without ATOMIC opens no block
    bool elseFollowsTerminator = false; // IF a b; ELSE c; is one statement
    bool hasUse = false;                // USE name chooses the catalog
    bool useIsReserved = false;         // first on its line it begins a statement anywhere
    bool executeBlock = false;          // EXECUTE BLOCK has a body as a routine has
    bool copyData = false;              // lines of data behind COPY ... FROM STDIN;
    bool javaSource = false;            // CREATE JAVA SOURCE goes on to its separator
    bool rowsetTerminators = false;     // ; in the parentheses of OPENROWSET
    bool beginNotAtomic = false;        // BEGIN NOT ATOMIC opens a block
    bool withFunctions = false;         // WITH FUNCTION declares them
    bool setTerm = false;               // SET TERM new old
    bool terminatorComment = false;     // --#SET TERMINATOR new, -tdnew in a first comment
    bool variables = false;             // $(name) in names, set by the client
    bool statementsFold = false;        // those of several lines; else what stands in them alone
    const ClientProgram* client = &kNoClient;
};

// The row of a lexer number. Null for a lexer that is none of SQL's.
const SqlDialect* DialectOfLexer(int lexer);

// The row by its name, letters of any case. Null for an unknown one.
const SqlDialect* DialectByName(std::string_view name);

// The row by its number in control/Analysis.h. Null outside.
const SqlDialect* DialectByNumber(int number);

// What the dialect's bytes begin and which of them go on in a word.
struct ByteTable
{
    std::array<ByteClass, 256> begins{};
    std::array<bool, 256> inWord{};
};

// Made once for each dialect.
const ByteTable& BytesOf(const SqlDialect& dialect);

} // namespace engine::analysis
