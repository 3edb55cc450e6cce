// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/problems/PostgresCheck.h"

#include "host/files/Utf8Place.h"
#include "host/problems/StatementPieces.h"

#include <pg_query.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>

namespace {

// A command of the client, which the server never sees.
bool IsForTheClient(const QString& text)
{
    return text.trimmed().startsWith(u'\\');
}

// The parser counts characters, from 1; 0 says that it does not know.
long UnitsBeforeCharacter(const QString& text, int character)
{
    long unit = 0;
    for (int i = 1; i < character && unit < text.size(); ++i)
        unit += text[unit].isHighSurrogate() ? 2 : 1;
    return unit;
}

struct FreeResult
{
    void operator()(PgQueryProtobufParseResult* result) const
    {
        pg_query_free_protobuf_parse_result(*result);
        delete result;
    }
};
using Result = std::unique_ptr<PgQueryProtobufParseResult, FreeResult>;

std::optional<ScriptProblem> ProblemOf(const ScriptStatement& statement)
{
    if (IsForTheClient(statement.text) || statement.text.contains(QChar(u'\0')))
        return std::nullopt;
    const QByteArray utf8 = statement.text.toUtf8();
    const Result result(new PgQueryProtobufParseResult(pg_query_parse_protobuf(utf8.constData())));
    if (!result->error)
        return std::nullopt;
    const long place = UnitsBeforeCharacter(statement.text, result->error->cursorpos);
    // A script that just stops has its fault at its end.
    const long start = std::min(place, static_cast<long>(statement.text.size()) - 1);
    return ScriptProblem{statement.start + start,
                         statement.start + EndOfWord(statement.text, start), true,
                         QString::fromUtf8(result->error->message)};
}

} // namespace

std::vector<ScriptProblem> PostgresCheck::Check(const std::vector<ScriptStatement>& statements)
{
    std::vector<ScriptProblem> problems;
    for (const ScriptStatement& statement : statements) {
        if (!statement.text.isEmpty())
            std::ranges::move(ProblemsOfPieces(statement, ProblemOf), std::back_inserter(problems));
    }
    return problems;
}
