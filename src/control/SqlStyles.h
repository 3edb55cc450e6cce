// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// What a host must know of the colouring and folding of SQL, which is the engine's own for the
/// lexer numbers 2, 3, 4, 5, 9, 10, 14, 15, 16, 17 and 18.
///
/// Dialects. The lexer number says which rules of comments, strings and names hold; number 9 serves
/// dialects without a number of their own by its lexer property sql.dialect: "sql" (what holds
/// without the property too: takes every form that means nothing else in the dialects beside it),
/// "postgresql" or "sqlite". The property has no effect with the other numbers.
///
/// Words. SetKeyWords takes sets 0 to 7; ASCII letters are compared in any case, and a word may
/// have points in it (sys.objects). A word of several sets gets the style of the first of:
/// operators, statements, functions, system objects, procedures, data types; but directly before a
/// parenthesis a function comes first, and behind a name or a variable a data type. Behind a point
/// only objects, procedures and functions are told from names, and the global variables of set 3
/// only behind @@, or behind @@name and a point.
///
/// Directives. Where a bare `#` begins a comment, a line that begins with the pre-processor's
/// `#include` or `#define` is none: its word has the style of statements, the rest that of text.
///
/// Folds. With the property fold at 1: BEGIN to END, CASE to END, the declarations and the body of
/// a routine, IF and loops where the dialect ends them by name, parentheses over lines, with lexer
/// number 9 the lines of a statement behind its first, where a separator divides the script the
/// lines of a batch behind its first (its separator stays outside), and with fold.comment at 1
/// block comments over lines. A separator that stands behind the lines that are styled is not known
/// yet. With fold.compact at 1 blank lines carry bit 0x1000. The level's number stays within 0xFFF;
/// deeper lines share the last one. With fold at 0 levels stay as they are.
///
/// Sharing. The lexer, its words, its properties and what they make of the text belong to the
/// document, so windows that show one document show it in one language. What is coloured first is
/// what is painted first; an edit colours and folds again from its line to the first line that
/// starts as it did before.
///
/// Lines. The engine keeps its own numbers as the states of lines (GetLineState): they mean nothing
/// to a host.
#pragma once

/// Styles and folds of SQL.
namespace engine::sqlstyle {

/// The lexer property that names the dialect of number 9.
inline constexpr const char* kDialectProperty = "sql.dialect";
inline constexpr const char* kTerminatorProperty = "sql.terminator"; ///< see control/Analysis.h

/// Styles of every SQL lexer number but 9.
namespace dialect {
inline constexpr int kText = 0;             ///< what is nothing else
inline constexpr int kBlockComment = 1;     ///< between its two marks, over lines
inline constexpr int kLineComment = 2;      ///< up to the line's end
inline constexpr int kNumber = 3;           ///< a number
inline constexpr int kString = 4;           ///< in single quotes
inline constexpr int kOperator = 5;         ///< keyword set 6 too
inline constexpr int kIdentifier = 6;       ///< a name
inline constexpr int kVariable = 7;         ///< begins with @ or :
inline constexpr int kQuotedName = 8;       ///< in double quotes
inline constexpr int kStatement = 9;        ///< keyword set 0
inline constexpr int kDataType = 10;        ///< keyword set 1
inline constexpr int kSystemTable = 11;     ///< keyword set 2
inline constexpr int kGlobalVariable = 12;  ///< keyword set 3, behind @@
inline constexpr int kFunction = 13;        ///< keyword set 4
inline constexpr int kProcedure = 14;       ///< keyword set 5
inline constexpr int kBeforeDataType = 15;  ///< the blanks between a name and its data type
inline constexpr int kOtherQuotedName = 16; ///< in brackets or backticks
} // namespace dialect

/// Styles of lexer number 9.
namespace generic {
inline constexpr int kText = 0;             ///< what is nothing else
inline constexpr int kBlockComment = 1;     ///< between its two marks, over lines
inline constexpr int kLineComment = 2;      ///< up to the line's end
inline constexpr int kDocComment = 3;       ///< begins with two asterisks
inline constexpr int kNumber = 4;           ///< a number
inline constexpr int kKeyword = 5;          ///< keyword set 0
inline constexpr int kQuotedName = 6;       ///< in double quotes
inline constexpr int kString = 7;           ///< in single quotes
inline constexpr int kClientCommand = 8;    ///< keyword set 3, and lines of the client program
inline constexpr int kOperator = 10;        ///< + - * / and their like
inline constexpr int kIdentifier = 11;      ///< variables too
inline constexpr int kDataType = 16;        ///< keyword set 1
inline constexpr int kDocKeyword = 17;      ///< keyword set 2
inline constexpr int kFunction = 19;        ///< keyword set 4
inline constexpr int kSystemObject = 20;    ///< keyword set 5
inline constexpr int kSetting = 21;         ///< keyword set 6
inline constexpr int kFurtherKeyword = 22;  ///< keyword set 7
inline constexpr int kOtherQuotedName = 23; ///< in backticks or brackets
} // namespace generic

/// The fold level word.
inline constexpr int kFoldBase = 0x400;
inline constexpr int kFoldNumber = 0xFFF;  ///< the bits of the level's number
inline constexpr int kFoldBlank = 0x1000;  ///< a line that holds blanks alone
inline constexpr int kFoldHeader = 0x2000; ///< a line that others fold under

} // namespace engine::sqlstyle
