// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/colours/Lexers.h"

#include <Qsci/qsciscintillabase.h>

#include <algorithm>
#include <iterator>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

struct LexerRow
{
    int number;
    int stock;
};

constexpr int kPlain = 1;

// SQL's have a stock lexer here for its name alone (LexerOfStock).
constexpr LexerRow kLexers[] = {
    {0, Sci::SCLEX_CONTAINER},   {1, Sci::SCLEX_NULL},      {9, Sci::SCLEX_SQL},
    {3, Sci::SCLEX_MSSQL},       {14, Sci::SCLEX_MYSQL},    {6, Sci::SCLEX_CPP},
    {28, Sci::SCLEX_CPPNOCASE},  {7, Sci::SCLEX_HTML},      {24, Sci::SCLEX_HTML},
    {25, Sci::SCLEX_HTML},       {8, Sci::SCLEX_XML},       {11, Sci::SCLEX_VB},
    {12, Sci::SCLEX_VBSCRIPT},   {13, Sci::SCLEX_BATCH},    {19, Sci::SCLEX_DIFF},
    {20, Sci::SCLEX_PROPERTIES}, {21, Sci::SCLEX_MAKEFILE}, {22, Sci::SCLEX_ERRORLIST},
    {23, Sci::SCLEX_LATEX},      {26, Sci::SCLEX_PERL},     {27, Sci::SCLEX_CSS},
    {30, Sci::SCLEX_PHPSCRIPT},
};

constexpr int kSqlLexers[] = {2, 3, 4, 5, 9, 10, 14, 15, 16, 17, 18};

} // namespace

bool IsSqlLexer(int lexer)
{
    return std::find(std::begin(kSqlLexers), std::end(kSqlLexers), lexer) != std::end(kSqlLexers);
}

int StockLexer(int lexer)
{
    if (IsSqlLexer(lexer))
        return Sci::SCLEX_CONTAINER;
    const auto* row = std::find_if(std::begin(kLexers), std::end(kLexers),
                                   [lexer](const LexerRow& r) { return r.number == lexer; });
    return row != std::end(kLexers) ? row->stock : static_cast<int>(Sci::SCLEX_NULL);
}

int LexerOfStock(int stock)
{
    const auto* row = std::find_if(std::begin(kLexers), std::end(kLexers),
                                   [stock](const LexerRow& r) { return r.stock == stock; });
    return row != std::end(kLexers) ? row->number : kPlain;
}

} // namespace engine
