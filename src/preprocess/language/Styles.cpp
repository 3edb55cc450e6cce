// SPDX-License-Identifier: GPL-3.0-or-later
#include "preprocess/language/Styles.h"

#include <algorithm>
#include <array>
#include <span>

namespace {

constexpr int kGenericLexers[] = {0, 9};
constexpr int kDialectLexers[] = {2, 3, 4, 5, 10, 14, 15, 16, 17, 18};

struct StyleRow
{
    std::span<const int> lexers;
    std::array<int, 3> comments; // -1 where there are fewer
    std::array<int, 2> strings;
};

constexpr StyleRow kRows[] = {
    {kGenericLexers, {1, 2, 3}, {6, 7}},
    {kDialectLexers, {1, 2, -1}, {4, 8}},
};

template <typename List>
bool Has(const List& list, int number)
{
    return std::find(std::begin(list), std::end(list), number) != std::end(list);
}

const StyleRow* RowOf(int lexer)
{
    const auto* row = std::find_if(std::begin(kRows), std::end(kRows),
                                   [lexer](const StyleRow& r) { return Has(r.lexers, lexer); });
    return row != std::end(kRows) ? row : nullptr;
}

} // namespace

bool IsCommentStyle(int lexer, int style)
{
    const StyleRow* row = RowOf(lexer);
    return row && style >= 0 && Has(row->comments, style);
}

bool IsStringStyle(int lexer, int style)
{
    const StyleRow* row = RowOf(lexer);
    return row && Has(row->strings, style);
}

bool TellsCommentsAndStrings(int lexer)
{
    return RowOf(lexer) != nullptr;
}
