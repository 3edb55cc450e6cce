// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/analysis/SqlDialects.h"

#include <algorithm>
#include <iterator>

namespace engine::analysis {
namespace {

// Unknown servers' SQL: takes every form that means nothing else in the dialects beside it.
constexpr SqlDialect kGeneric = {
    .name = "sql",
    .escapeStrings = true,
    .stringPrefixes = "bnx",
    .unicodeStrings = true,
    .quotingStrings = true,
    .dollarStrings = true,
    .backticks = true,
    .wordMarks = "$#@",
    .wordLeads = "#",
    .variableLeads = "@:",
    .separator = "GO",
    .routine = Routine::Mixed,
    .begin = Begin::BlockOrTransaction,
    .hasUse = true,
    .withFunctions = true,
    .statementsFold = true,
};

constexpr SqlDialect kTransactSql = {
    .name = "transact-sql",
    .nestedComments = true,
    .brackets = true,
    .wordMarks = "$#@",
    .wordLeads = "#",
    .variableLeads = "@",
    .separator = "GO",
    .routine = Routine::Batch,
    .endNamesBlock = false,
    .elseFollowsTerminator = true,
    .hasUse = true,
    .useIsReserved = true,
    .rowsetTerminators = true,
    .variables = true,
    .client = &kSqlcmd,
};

constexpr SqlDialect kAse = [] {
    SqlDialect dialect = kTransactSql;
    dialect.name = "ase";
    dialect.doubleQuoteStrings = true;
    dialect.rowsetTerminators = false;
    dialect.variables = false;
    dialect.client = &kAseIsql;
    return dialect;
}();

constexpr SqlDialect kIq = {
    .name = "iq",
    .slashComments = true,
    .nestedComments = true,
    .brackets = true,
    .wordMarks = "$#@",
    .wordLeads = "#",
    .variableLeads = "@",
    .separator = "GO",
};

constexpr SqlDialect kDb2 = {
    .name = "db2",
    .nestedComments = true,
    .stringPrefixes = "gnx",
    .unicodeStrings = true,
    .wordMarks = "$#@",
    .wordLeads = "$#@",
    .variableLeads = ":",
    .terminatorComment = true,
    .client = &kDb2Clp,
};

constexpr SqlDialect kDb2ForZOs = [] {
    SqlDialect dialect = kDb2;
    dialect.name = "db2-zos";
    return dialect;
}();

constexpr SqlDialect kOracle = {
    .name = "oracle",
    .quotingStrings = true,
    .wordMarks = "$#",
    .variableLeads = ":&",
    .separator = "/",
    .routine = Routine::Declarations,
    .declareOpens = true,
    .javaSource = true,
    .withFunctions = true,
    .client = &kSqlPlus,
};

constexpr SqlDialect kMySql = {
    .name = "mysql",
    .dashes = Dashes::CommentBeforeBlank,
    .hashComments = true,
    .codeComments = true,
    .backslashes = true,
    .stringPrefixes = "bnx",
    .doubleQuoteStrings = true,
    .backticks = true,
    .wordMarks = "$",
    .wordLeads = "$",
    .variableLeads = "@",
    .begin = Begin::Transaction,
    .hasUse = true,
    .beginNotAtomic = true,
    .client = &kMySqlClient,
};

constexpr SqlDialect kInterBase = {
    .name = "interbase",
    .stringPrefixes = "nx",
    .quotingStrings = true,
    .wordMarks = "$",
    .variableLeads = ":",
    .routine = Routine::Declarations,
    .triggerDeclares = true,
    .executeBlock = true,
    .setTerm = true,
};

constexpr SqlDialect kPostgreSql = {
    .name = "postgresql",
    .nestedComments = true,
    .escapeStrings = true,
    .stringPrefixes = "bnx",
    .unicodeStrings = true,
    .dollarStrings = true,
    .wordMarks = "$",
    .variableLeads = ":",
    .begin = Begin::Transaction,
    .parenthesesHold = true,
    .onlyAtomicBlocks = true,
    .copyData = true,
    .statementsFold = true,
    .client = &kPsql,
};

constexpr SqlDialect kSqlite = {
    .name = "sqlite",
    .stringPrefixes = "x",
    .backticks = true,
    .brackets = true,
    .wordMarks = "$",
    .variableLeads = "@:$?",
    .begin = Begin::Transaction,
    .statementsFold = true,
    .client = &kSqliteShell,
};

// By their numbers.
constexpr const SqlDialect* kDialects[] = {&kGeneric,   &kTransactSql, &kAse,    &kIq,
                                           &kDb2,       &kDb2ForZOs,   &kOracle, &kMySql,
                                           &kInterBase, &kPostgreSql,  &kSqlite};

struct LexerRow
{
    int lexer;
    const SqlDialect* dialect;
};

constexpr LexerRow kLexers[] = {
    {0, &kGeneric},    {9, &kGeneric},      {2, &kAse},          {3, &kTransactSql},
    {4, &kDb2},        {5, &kOracle},       {10, &kDb2ForZOs},   {14, &kMySql},
    {15, &kInterBase}, {16, &kTransactSql}, {17, &kTransactSql}, {18, &kIq},
};

constexpr bool IsLetter(int byte)
{
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || byte == '_' ||
           byte >= 0x80;
}

constexpr bool IsDigit(int byte)
{
    return byte >= '0' && byte <= '9';
}

bool Holds(std::string_view bytes, int byte)
{
    return byte != 0 && bytes.find(static_cast<char>(byte)) != std::string_view::npos;
}

ByteClass ClassOf(const SqlDialect& dialect, int byte)
{
    if (IsLetter(byte) || Holds(dialect.wordLeads, byte)) {
        const bool comment = byte == '#' && dialect.hashComments;
        return comment ? ByteClass::Hash : ByteClass::Word;
    }
    if (IsDigit(byte))
        return ByteClass::Digit;
    switch (byte) {
    case '\r':
    case '\n':
        return ByteClass::LineEnd;
    case '\'':
        return ByteClass::Quote;
    case '"':
        return ByteClass::DoubleQuote;
    case '`':
        return dialect.backticks ? ByteClass::Backtick : ByteClass::Operator;
    case '[':
        return dialect.brackets ? ByteClass::Bracket : ByteClass::Operator;
    case '$':
        return ByteClass::Dollar;
    case '-':
        return ByteClass::Dash;
    case '/':
        return ByteClass::Slash;
    case '#':
        return dialect.hashComments ? ByteClass::Hash : ByteClass::Operator;
    case ';':
        return ByteClass::Semicolon;
    case ':': // alone, of a variable, or ::
        return ByteClass::Lead;
    default:
        break;
    }
    if (Holds(dialect.variableLeads, byte))
        return ByteClass::Lead;
    return byte <= ' ' ? ByteClass::Blank : ByteClass::Operator;
}

ByteTable MakeTable(const SqlDialect& dialect)
{
    ByteTable table;
    for (int byte = 0; byte < 256; ++byte) {
        const auto slot = static_cast<std::size_t>(byte);
        table.begins[slot] = ClassOf(dialect, byte);
        table.inWord[slot] = IsLetter(byte) || IsDigit(byte) || Holds(dialect.wordMarks, byte);
    }
    return table;
}

bool SameName(std::string_view one, std::string_view other)
{
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 32) : c; };
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [lower](char a, char b) { return lower(a) == lower(b); });
}

} // namespace

const SqlDialect* DialectOfLexer(int lexer)
{
    const auto* row = std::find_if(std::begin(kLexers), std::end(kLexers),
                                   [lexer](const auto& r) { return r.lexer == lexer; });
    return row != std::end(kLexers) ? row->dialect : nullptr;
}

const SqlDialect* DialectByName(std::string_view name)
{
    const auto* found =
        std::find_if(std::begin(kDialects), std::end(kDialects),
                     [name](const SqlDialect* dialect) { return SameName(dialect->name, name); });
    return found != std::end(kDialects) ? *found : nullptr;
}

const SqlDialect* DialectByNumber(int number)
{
    return number >= 0 && number < static_cast<int>(std::size(kDialects)) ? kDialects[number]
                                                                          : nullptr;
}

const ByteTable& BytesOf(const SqlDialect& dialect)
{
    static const auto tables = [] {
        std::array<ByteTable, std::size(kDialects)> all;
        std::transform(std::begin(kDialects), std::end(kDialects), all.begin(),
                       [](const SqlDialect* row) { return MakeTable(*row); });
        return all;
    }();
    const auto* found = std::find(std::begin(kDialects), std::end(kDialects), &dialect);
    return tables[static_cast<std::size_t>(found - std::begin(kDialects))];
}

} // namespace engine::analysis
