// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/TextLanguage.h"

#include <QMap>
#include <QRegularExpression>

#include <algorithm>

namespace {

struct Row
{
    const char* language;
    int weight; // 3: only this dialect has it, 1: others may
    const char* pattern;
};

// clang-format off
constexpr Row kRows[] = {
    {"Transact-SQL",       3, R"(^[ \t]*GO(?:[ \t]+\d+)?[ \t]*;?[ \t]*\r?$)"},
    {"Transact-SQL",       2, R"(\bDECLARE[ \t]+@\w)"},
    {"Transact-SQL",       2, R"(\[?\bdbo\b\]?\.)"},
    {"Transact-SQL",       2, R"(\bSET[ \t]+NOCOUNT\b)"},
    {"MySQL",              3, R"(^[ \t]*DELIMITER[ \t]+\S)"},
    {"MySQL",              2, R"(\bENGINE[ \t]*=[ \t]*\w|\bAUTO_INCREMENT\b)"},
    {"MySQL",              1, R"(`\w+`)"},
    {"PostgreSQL",         3, R"(\$\w*\$)"},
    {"PostgreSQL",         3, R"(^\\(?:connect|c|i|ir|echo|qecho|set|copy|pset|timing|restrict)\b)"},
    {"PostgreSQL",         3, R"(\bLANGUAGE[ \t]+'?plpgsql\b|\bFROM[ \t]+stdin\b)"},
    {"PostgreSQL",         1, R"(\w::\w)"},
    {"PL/SQL",             3, R"(^[ \t]*/[ \t]*\r?$)"},
    {"PL/SQL",             2, R"(\bVARCHAR2\b|\bDBMS_\w)"},
    {"PL/SQL",             2, R"(^[ \t]*(?:PROMPT|SPOOL|WHENEVER[ \t]+SQLERROR|SET[ \t]+DEFINE)\b)"},
    {"SQLite",             3, R"(^\.(?:tables|mode|headers?|read|open|schema|import|output)\b)"},
    {"SQLite",             2, R"(^[ \t]*PRAGMA[ \t]+\w+|\bAUTOINCREMENT\b)"},
    {"InterBase/Firebird", 3, R"(^[ \t]*SET[ \t]+TERM\b)"},
    {"DB2",                3, R"(^[ \t]*--#SET[ \t]+TERMINATOR\b)"},
};
// clang-format on

} // namespace

QString DialectOfText(const QString& text)
{
    constexpr qsizetype kLookedAt = 65536;
    const QString front = text.left(kLookedAt);
    QMap<QString, int> weights;
    for (const Row& row : kRows) {
        const QRegularExpression sign(QLatin1String(row.pattern),
                                      QRegularExpression::CaseInsensitiveOption |
                                          QRegularExpression::MultilineOption);
        if (sign.match(front).hasMatch())
            weights[QLatin1String(row.language)] += row.weight;
    }
    QString language;
    int most = 1; // less tells nothing
    for (auto at = weights.cbegin(); at != weights.cend(); ++at) {
        if (at.value() == most)
            language.clear();
        if (at.value() > most) {
            language = at.key();
            most = at.value();
        }
    }
    return language;
}
