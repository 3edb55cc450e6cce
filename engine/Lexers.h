// This engine's lexer numbers and the stock lexers behind them.
#pragma once

namespace engine {

// The plain lexer for a number that is not known.
int StockLexer(int lexer);

// The first of this engine's numbers that the stock lexer stands behind, 1 (plain) if there is
// none.
int LexerOfStock(int stock);

} // namespace engine
