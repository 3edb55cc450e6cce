// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The script analysis as a host uses it: what the numbers of the partitioner's messages mean.
///
/// An editor window whose lexer is one of SQL's divides its script into statements, batches and
/// catalogs. Nothing has to be switched on: the first question starts it, and it follows every edit
/// from then on. Before that it costs nothing.
///
/// \code
/// PartitionInfo statement;
/// if (editor.PartitionGetAt(statement, partitioner::AtCaret, 1))
///     Run(statement.pszText, editor.GetCatalogForOffset(statement.nFirst, 1));
/// \endcode
///
/// Units. Every place is a position in UTF-16 units, as in the other messages; one outside the text
/// is taken as its nearest end.
///
/// PartitionInfo. nFirst is where a statement starts, at its first word; nSecond is behind its last
/// one, terminator included. pszText is the text between them, or null if it is longer than
/// LongestText. Its line is LineFromPosition(nFirst), its batch DoFindBatch(nFirst, nSecond, ...),
/// its catalog GetCatalogForOffset(nFirst). Leading comments belong to no statement.
///
/// PartitionGetAt. The argument is a position, or AtCaret. The answer is the statement that a caret
/// there means: the one it stands in or directly behind, block bodies, strings and comments
/// included; on the rest of the line behind a terminator the one that ended there; else the next
/// one in the batch; else the last one in the batch. 0 if the batch has none.
///
/// PartitionGetAll. Every statement that has text in [from, to), in order. ToEnd as the second
/// argument is the text's end. pNext of what lands in the vector is not to be followed.
///
/// DoFindBatch. The first pair is a range, or twice the same position. The second pair is not read;
/// behind the call it holds the start and the end of the batch, from the batch of the range's first
/// unit to that of its last one. The lines of the separators are left out; a place on such a line
/// belongs to the batch before it. The result is 0, and the pair as it was, only while there is no
/// analysis.
///
/// Batches end at a separator that stands on a line of its own, between comments at most, with a
/// count behind it if it takes one: GO in Transact-SQL, ASE, IQ and generic SQL, / in Oracle, none
/// elsewhere. SetBatchSeparator sets another for the window (SeparatorFlags); an empty text: none;
/// null: the dialect's. GetBatchSeparator gives the one that holds, null for none.
///
/// Catalogs. GetCatalogForOffset gives what the last USE before a place has chosen (`\c` and
/// `\connect` in PostgreSQL), without its quotes and with the values of :setvar for $(name), in
/// force behind the name; else what SetCurrentCatalog has set; else null. With CatalogFixed that
/// text holds everywhere. Null or empty takes it back.
///
/// Statements end at the dialect's terminator, at a line of DELIMITER, SET TERM or
/// `--#SET TERMINATOR` in scripts that change it, or at a separator. A terminator in a block body
/// (BEGIN ... END, a package, declarations) ends nothing; the body of a Transact-SQL or ASE routine
/// goes on to the end of its batch. A blank line ends nothing. A line of the client program (psql's
/// `\`, SQL*Plus' PROMPT, sqlcmd's :) is a statement of its own. The data behind COPY ... FROM
/// STDIN belong to it. Unbalanced text is read as it stands: a block that is not closed goes on to
/// the next separator or to the text's end.
///
/// SetStatementTerminator of the control says what ends a statement until the script says other; it
/// is the lexer property sql.terminator, so that windows of one document share it. In DB2 a comment
/// in front of the first statement may say so too, by -td@ as on the client's command line.
///
/// Dialects. The lexer says which one. For generic SQL (lexers 0 and 9) the lexer property
/// sql.dialect does ("postgresql", "sqlite"), and SetServerIdentifier says more than both.
///
/// Switches. SetEnablePartitioner(false): every question is answered with nothing, and what was
/// read is forgotten. SetEnableReconciler(false): edits are noted, but nothing is read ahead of the
/// questions. Between SetDoingReplaceAll(true) and (false) edits are not even noted; the next
/// question reads afresh. All questions that are answered are answered for the text as it stands.
///
/// PartitionerInit takes a ServerIdentifier or null, and whether the rest of a script is read ahead
/// in idle time (it is until then); it forgets what was read. PartitionerAttach starts reading
/// ahead before the first question, for a dialect of Dialect or for DialectOfLexer; it is what
/// answers questions again after PartitionerDetach, which forgets what was read and answers nothing
/// from there on. The results are 1, or 0 where there is no dialect (Init, Attach) and where
/// nothing was attached (Detach).
///
/// PartitionerReset(what, start, end): ResetText has the text from start to end read again when it
/// is asked about, all of it if they are equal; ResetAll forgets separator, catalog, server and
/// size limit as well. 1, or 0 while there is no analysis.
///
/// PartitionerSetMaxFileSize. A text with more units is not analysed; 0, as it is at first: any is.
/// GetMultiCodePage is 65001: bytes that cross the channel are UTF-8.
///
/// Memory. The operations of CZNCoreEditorControl copy and release what the engine hands over; one
/// who sends the numbers releases with delete (records) and delete[] (texts). The engine copies
/// what a pointer shows it before the message returns.
#pragma once

/// The numbers of the script analysis.
namespace partitioner {

/// PartitionGetAt: where the caret stands.
inline constexpr int AtCaret = -1;

/// PartitionGetAll: the text's end.
inline constexpr int ToEnd = -1;

/// The longest pszText, in units. A longer statement is fetched by GetTextRange.
inline constexpr int LongestText = 65536;

/// The second argument of SetBatchSeparator.
enum SeparatorFlags : int
{
    MatchCase = 1, ///< else letters of any case
    NoCount = 2,   ///< else a number may follow
};

/// The second argument of SetCurrentCatalog.
enum CatalogScope : int
{
    CatalogBase = 0,  ///< where no USE stands before
    CatalogFixed = 1, ///< everywhere
};

/// The first argument of PartitionerReset.
enum ResetScope : int
{
    ResetText = 0, ///< a range of the text is read again
    ResetAll = 1,  ///< what was set is forgotten too
};

/// How a script is read: PartitionerAttach, ServerIdentifier.
enum Dialect : int
{
    DialectOfLexer = -1, ///< as the lexer says
    GenericSql = 0,      ///< what the dialects have in common
    TransactSql,         ///< SQL Server
    Ase,                 ///< Adaptive Server
    Iq,                  ///< IQ
    Db2,                 ///< DB2
    Db2ForZOs,           ///< DB2 for z/OS
    Oracle,              ///< PL/SQL and SQL*Plus
    MySql,               ///< MySQL and MariaDB
    InterBase,           ///< InterBase and Firebird
    PostgreSql,          ///< PostgreSQL and psql
    Sqlite,              ///< SQLite
};

/// What PartitionerInit and SetServerIdentifier point at. Null to SetServerIdentifier is the same
/// as DialectOfLexer; to PartitionerInit it leaves the server as it is.
struct ServerIdentifier
{
    int nDialect = DialectOfLexer; ///< a Dialect
};

} // namespace partitioner
