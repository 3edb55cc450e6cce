// SPDX-License-Identifier: GPL-3.0-or-later
// This engine's lexer numbers and the stock lexers behind them.
#pragma once

namespace engine {

// Whether the number is one of SQL's, whose colours are this engine's own.
bool IsSqlLexer(int lexer);

// The plain lexer for a number that is not known, the container's for one of SQL's.
int StockLexer(int lexer);

// The first of this engine's numbers that the stock lexer stands behind, 1 (plain) if there is
// none.
int LexerOfStock(int stock);

} // namespace engine
