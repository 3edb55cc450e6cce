// SPDX-License-Identifier: GPL-3.0-or-later
// The client programs whose scripts are known.
#pragma once

#include "engine/analysis/ClientProgram.h"

namespace engine::analysis {

extern const ClientProgram kSqlPlus;
extern const ClientProgram kSqlcmd;
extern const ClientProgram kAseIsql;
extern const ClientProgram kMySqlClient;
extern const ClientProgram kPsql;
extern const ClientProgram kSqliteShell;
extern const ClientProgram kDb2Clp;
extern const ClientProgram kNoClient;

} // namespace engine::analysis
