// SPDX-License-Identifier: GPL-3.0-or-later
// A statement that reaches too far, since a parenthesis of it is not closed, cut into the
// statements that its writer had in mind.
#pragma once

#include "host/problems/SyntaxCheck.h"

#include <functional>
#include <optional>

// The first one begins where the statement does. One piece if nothing says that there are more:
// within an open parenthesis, a semicolon with an empty line behind it and a line that begins at
// its first column.
std::vector<ScriptStatement> PiecesOf(const ScriptStatement& statement);

using StatementCheck = std::function<std::optional<ScriptProblem>(const ScriptStatement&)>;

// What the check finds in a statement: in each of its pieces, if there are several.
std::vector<ScriptProblem> ProblemsOfPieces(const ScriptStatement& statement,
                                            const StatementCheck& check);
