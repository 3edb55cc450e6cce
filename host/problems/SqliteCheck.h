// SPDX-License-Identifier: GPL-3.0-or-later
// SQLite's own parser, over an empty database in memory that learns the script's tables.
#pragma once

#include "host/problems/SyntaxCheck.h"

class SqliteCheck final : public SyntaxCheck
{
public:
    std::vector<ScriptProblem> Check(const std::vector<ScriptStatement>& statements) override;
};
