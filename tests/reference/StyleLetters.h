// SPDX-License-Identifier: GPL-3.0-or-later
// Styles of SQL as letters, so that a test can show a line of text and a line of styles under it.
#pragma once

#include "control/SqlStyles.h"

namespace reference {

struct StyleLetter
{
    int dialect; // style, -1: none
    int generic; // style of lexer number 9
    char letter;
};

namespace d = engine::sqlstyle::dialect;
namespace g = engine::sqlstyle::generic;

inline constexpr StyleLetter kStyleLetters[] = {
    {d::kText, g::kText, ' '},
    {d::kBlockComment, g::kBlockComment, 'C'},
    {d::kLineComment, g::kLineComment, 'c'},
    {-1, g::kDocComment, 'D'},
    {d::kNumber, g::kNumber, 'n'},
    {d::kString, g::kString, 's'},
    {d::kOperator, g::kOperator, 'o'},
    {d::kIdentifier, g::kIdentifier, 'i'},
    {d::kVariable, -1, 'v'},
    {d::kQuotedName, g::kQuotedName, 'q'},
    {d::kOtherQuotedName, g::kOtherQuotedName, 'Q'},
    {d::kStatement, g::kKeyword, 'k'},
    {-1, g::kFurtherKeyword, 'K'},
    {d::kDataType, g::kDataType, 't'},
    {d::kSystemTable, g::kSystemObject, 'T'},
    {d::kGlobalVariable, g::kSetting, 'g'},
    {d::kFunction, g::kFunction, 'f'},
    {d::kProcedure, -1, 'p'},
    {d::kBeforeDataType, -1, '_'},
    {-1, g::kClientCommand, '$'},
    {-1, g::kDocKeyword, 'd'},
};

// '?' for a style that SQL has not.
constexpr char LetterOf(int lexer, int style)
{
    for (const StyleLetter& row : kStyleLetters) {
        if ((lexer == 9 ? row.generic : row.dialect) == style)
            return row.letter;
    }
    return '?';
}

} // namespace reference
