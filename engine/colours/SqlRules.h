// SPDX-License-Identifier: GPL-3.0-or-later
// How a document's SQL is read, as its lexer and its lexer properties say.
#pragma once

#include "engine/analysis/SqlDialects.h"
#include "engine/text/Raw.h"

namespace engine {

// Null for a lexer that is none of SQL's. Dialects without a number of their own share one and say
// by a property which they are; with the other numbers it may be left of another language.
const analysis::SqlDialect* DialectOf(const Raw& raw, int lexer);

// What ends a statement until the script sets another.
analysis::Terminator TerminatorOf(const Raw& raw);

} // namespace engine
