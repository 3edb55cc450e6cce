// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/colours/SqlPalette.h"

#include "control/SqlStyles.h"

#include <cstddef>

namespace engine {
namespace {

namespace dialect = sqlstyle::dialect;
namespace generic = sqlstyle::generic;

constexpr int kGenericLexer = 9;

struct SetRow
{
    int set;
    std::uint8_t style;
    bool afterPoint; // told from a name behind a point
};

// The first row whose set has the word wins.
constexpr SetRow kDialectSets[] = {
    {6, dialect::kOperator, false}, {0, dialect::kStatement, false},
    {4, dialect::kFunction, true},  {2, dialect::kSystemTable, true},
    {5, dialect::kProcedure, true}, {1, dialect::kDataType, false},
};
constexpr SetRow kGenericSets[] = {
    {0, generic::kKeyword, false},    {7, generic::kFurtherKeyword, false},
    {4, generic::kFunction, true},    {5, generic::kSystemObject, true},
    {1, generic::kDataType, false},   {6, generic::kSetting, false},
    {2, generic::kDocKeyword, false}, {3, generic::kClientCommand, false},
};
constexpr int kFunctionSet = 4;

template <std::size_t Count>
constexpr SqlPalette::ByWordSets StylesOf(const SetRow (&rows)[Count], int first, bool afterPoint,
                                          std::uint8_t other)
{
    SqlPalette::ByWordSets styles{};
    for (unsigned sets = 0; sets < styles.size(); ++sets) {
        styles[sets] = other;
        for (std::size_t i = Count; i-- > 0;) {
            if ((sets >> rows[i].set & 1U) && (rows[i].afterPoint || !afterPoint))
                styles[sets] = rows[i].style;
        }
        for (const SetRow& row : rows) {
            if (row.set == first && (sets >> first & 1U))
                styles[sets] = row.style;
        }
    }
    return styles;
}

constexpr SqlPalette kDialectPalette = {
    .blockComment = dialect::kBlockComment,
    .lineComment = dialect::kLineComment,
    .docComment = dialect::kBlockComment,
    .number = dialect::kNumber,
    .string = dialect::kString,
    .op = dialect::kOperator,
    .identifier = dialect::kIdentifier,
    .variable = dialect::kVariable,
    .quotedName = dialect::kQuotedName,
    .otherQuotedName = dialect::kOtherQuotedName,
    .statement = dialect::kStatement,
    .dataType = dialect::kDataType,
    .globalVariable = dialect::kGlobalVariable,
    .beforeDataType = dialect::kBeforeDataType,
    .clientLine = 0,
    .words = StylesOf(kDialectSets, -1, false, dialect::kIdentifier),
    .wordsAfterName = StylesOf(kDialectSets, SqlPalette::kDataTypeSet, false, dialect::kIdentifier),
    .wordsAfterPoint = StylesOf(kDialectSets, -1, true, dialect::kIdentifier),
    .calledWords = StylesOf(kDialectSets, kFunctionSet, false, dialect::kIdentifier),
};

constexpr SqlPalette kGenericPalette = {
    .blockComment = generic::kBlockComment,
    .lineComment = generic::kLineComment,
    .docComment = generic::kDocComment,
    .number = generic::kNumber,
    .string = generic::kString,
    .op = generic::kOperator,
    .identifier = generic::kIdentifier,
    .variable = generic::kIdentifier,
    .quotedName = generic::kQuotedName,
    .otherQuotedName = generic::kOtherQuotedName,
    .statement = generic::kKeyword,
    .dataType = generic::kDataType,
    .globalVariable = generic::kIdentifier,
    .beforeDataType = generic::kText,
    .clientLine = generic::kClientCommand,
    .words = StylesOf(kGenericSets, -1, false, generic::kIdentifier),
    .wordsAfterName = StylesOf(kGenericSets, SqlPalette::kDataTypeSet, false, generic::kIdentifier),
    .wordsAfterPoint = StylesOf(kGenericSets, -1, true, generic::kIdentifier),
    .calledWords = StylesOf(kGenericSets, kFunctionSet, false, generic::kIdentifier),
};

} // namespace

const SqlPalette& PaletteOf(int lexer)
{
    return lexer == kGenericLexer ? kGenericPalette : kDialectPalette;
}

} // namespace engine
