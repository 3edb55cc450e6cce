// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/problems/SyntaxCheck.h"

#include "host/problems/PostgresCheck.h"
#include "host/problems/SqliteCheck.h"

// Without the libraries no language has a checker, and the pane of problems says so.
std::unique_ptr<SyntaxCheck> SyntaxCheckFor([[maybe_unused]] const QString& language)
{
#ifdef ZN_CHECKERS
    if (language == QLatin1String("PostgreSQL"))
        return std::make_unique<PostgresCheck>();
    if (language == QLatin1String("SQLite"))
        return std::make_unique<SqliteCheck>();
#endif
    return nullptr;
}
