// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/LexerNames.h"

#include "settings/Number.h"

#include <algorithm>

namespace {

struct LexerName
{
    const char16_t* name;
    int number;
};

constexpr LexerName kLexerNames[] = {
    {u"ZNEDITLEX_CONTAINER", 0},  {u"ZNEDITLEX_NULL", 1},         {u"ZNEDITLEX_SYBASE", 2},
    {u"ZNEDITLEX_MSSQL", 3},      {u"ZNEDITLEX_DB2SQL", 4},       {u"ZNEDITLEX_ORACLESQL", 5},
    {u"ZNEDITLEX_CPP", 6},        {u"ZNEDITLEX_HTML", 7},         {u"ZNEDITLEX_XML", 8},
    {u"ZNEDITLEX_SQL", 9},        {u"ZNEDITLEX_DB2OS390SQL", 10}, {u"ZNEDITLEX_VB", 11},
    {u"ZNEDITLEX_VBSCRIPT", 12},  {u"ZNEDITLEX_BATCH", 13},       {u"ZNEDITLEX_MYSQL", 14},
    {u"ZNEDITLEX_INTERBASE", 15}, {u"ZNEDITLEX_SQLAZURE", 17},    {u"ZNEDITLEX_SYBASE_IQ", 18},
    {u"ZNEDITLEX_DIFF", 19},      {u"ZNEDITLEX_PROPERTIES", 20},  {u"ZNEDITLEX_MAKEFILE", 21},
    {u"ZNEDITLEX_ERRORLIST", 22}, {u"ZNEDITLEX_LATEX", 23},       {u"ZNEDITLEX_ASP", 24},
    {u"ZNEDITLEX_PHP", 25},       {u"ZNEDITLEX_PERL", 26},        {u"ZNEDITLEX_CSS", 27},
    {u"ZNEDITLEX_CPPNOCASE", 28}, {u"ZNEDITLEX_USER", 29},        {u"ZNEDITLEX_PHPSCRIPT", 30},
};

} // namespace

int LexerNumberOf(const QString& name)
{
    for (const LexerName& row : kLexerNames) {
        if (name == QStringView(row.name))
            return row.number;
    }
    const bool isNumber = std::all_of(name.begin(), name.end(),
                                      [](QChar unit) { return unit >= u'0' && unit <= u'9'; });
    return isNumber ? TextToInt(name) : -1;
}
