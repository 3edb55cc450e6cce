// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/problems/SyntaxCheck.h"

#include "host/problems/PostgresCheck.h"
#include "host/problems/SqliteCheck.h"

std::unique_ptr<SyntaxCheck> SyntaxCheckFor(const QString& language)
{
    if (language == QLatin1String("PostgreSQL"))
        return std::make_unique<PostgresCheck>();
    if (language == QLatin1String("SQLite"))
        return std::make_unique<SqliteCheck>();
    return nullptr;
}
