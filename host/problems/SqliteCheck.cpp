// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/problems/SqliteCheck.h"

#include "host/files/Utf8Place.h"
#include "host/problems/StatementPieces.h"

#include <sqlite3.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>

namespace {

struct CloseDatabase
{
    void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
};
using Database = std::unique_ptr<sqlite3, CloseDatabase>;

struct Finalize
{
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Prepared = std::unique_ptr<sqlite3_stmt, Finalize>;

// A script is checked, never obeyed: no file is opened, no code is loaded.
int Authorize(void* /*context*/, int action, const char* /*first*/, const char* second,
              const char* /*database*/, const char* /*trigger*/)
{
    if (action == SQLITE_ATTACH || action == SQLITE_DETACH)
        return SQLITE_IGNORE;
    if (action == SQLITE_FUNCTION && second && sqlite3_stricmp(second, "load_extension") == 0)
        return SQLITE_DENY;
    return SQLITE_OK;
}

Database OpenInMemory()
{
    constexpr int kLongestStatement = 16 << 20; // bytes
    sqlite3* opened = nullptr;
    const bool isOpen = sqlite3_open(":memory:", &opened) == SQLITE_OK;
    Database database(opened);
    if (!isOpen)
        return nullptr;
    sqlite3_set_authorizer(opened, &Authorize, nullptr);
    sqlite3_limit(opened, SQLITE_LIMIT_LENGTH, kLongestStatement);
    // What a definition runs ends early; none needs as much as this.
    constexpr int kSteps = 1 << 20;
    sqlite3_progress_handler(
        opened, kSteps, [](void*) { return 1; }, nullptr);
    return database;
}

// A command of the client program.
bool IsForTheClient(const QString& text)
{
    return text.trimmed().startsWith(u'.');
}

// What later statements build on: tables, views, and the like. Filling them would only cost time.
bool IsDefinition(const QString& text)
{
    for (const char* word : {"create", "alter", "drop"}) {
        if (text.trimmed().startsWith(QLatin1String(word), Qt::CaseInsensitive))
            return !text.contains(QLatin1String("select"), Qt::CaseInsensitive) ||
                   text.contains(QLatin1String("view"), Qt::CaseInsensitive) ||
                   text.contains(QLatin1String("trigger"), Qt::CaseInsensitive);
    }
    return false;
}

bool IsSyntaxMessage(const QString& message)
{
    return message.contains(QLatin1String("syntax error")) ||
           message.contains(QLatin1String("incomplete input")) ||
           message.contains(QLatin1String("unrecognized token"));
}

ScriptProblem ProblemAt(const ScriptStatement& statement, const QByteArray& utf8, sqlite3* database)
{
    const QString message = QString::fromUtf8(sqlite3_errmsg(database));
    const int offset = sqlite3_error_offset(database);
    const long last = static_cast<long>(statement.text.size()) - 1;
    // A statement that just stops has its fault at its end; a fault without a place is the
    // statement's first word's.
    const bool stops = message.contains(QLatin1String("incomplete input"));
    const long start = stops ? last : std::min(offset < 0 ? 0 : UnitsBefore(utf8, offset), last);
    return {statement.start + start, statement.start + EndOfWord(statement.text, start),
            IsSyntaxMessage(message), message};
}

std::optional<ScriptProblem> ProblemOf(const ScriptStatement& statement, sqlite3* database)
{
    const QByteArray utf8 = statement.text.toUtf8();
    sqlite3_stmt* made = nullptr;
    const int result = sqlite3_prepare_v2(database, utf8.constData(), static_cast<int>(utf8.size()),
                                          &made, nullptr);
    const Prepared prepared(made);
    if (result != SQLITE_OK)
        return ProblemAt(statement, utf8, database);
    if (made && IsDefinition(statement.text))
        sqlite3_step(made);
    return std::nullopt;
}

} // namespace

std::vector<ScriptProblem> SqliteCheck::Check(const std::vector<ScriptStatement>& statements)
{
    std::vector<ScriptProblem> problems;
    const Database database = OpenInMemory();
    if (!database)
        return problems;
    const auto check = [&](const ScriptStatement& statement) {
        return ProblemOf(statement, database.get());
    };
    for (const ScriptStatement& statement : statements) {
        if (statement.text.isEmpty() || IsForTheClient(statement.text))
            continue;
        std::ranges::move(ProblemsOfPieces(statement, check), std::back_inserter(problems));
    }
    return problems;
}
