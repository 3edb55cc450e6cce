// SPDX-License-Identifier: GPL-3.0-or-later
// PostgreSQL's own parser.
#pragma once

#include "host/problems/SyntaxCheck.h"

class PostgresCheck final : public SyntaxCheck
{
public:
    std::vector<ScriptProblem> Check(const std::vector<ScriptStatement>& statements) override;
};
