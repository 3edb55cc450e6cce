// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/outline/Symbols.h"

#include "completion/ScriptNames.h"
#include "control/Analysis.h"

#include <QRegularExpression>

#include <algorithm>
#include <iterator>
#include <optional>

namespace {

using completion::NameKind;

struct DialectRow
{
    const char* language;
    int dialect;
};

constexpr DialectRow kDialects[] = {
    {"SQL", partitioner::GenericSql},
    {"Transact-SQL", partitioner::TransactSql},
    {"Azure SQL", partitioner::TransactSql},
    {"Sybase ASE", partitioner::Ase},
    {"Sybase IQ", partitioner::Iq},
    {"DB2", partitioner::Db2},
    {"PL/SQL", partitioner::Oracle},
    {"MySQL", partitioner::MySql},
    {"InterBase/Firebird", partitioner::InterBase},
    {"PostgreSQL", partitioner::PostgreSql},
    {"SQLite", partitioner::Sqlite},
};

struct KindRow
{
    NameKind kind;
    const char* name;
    bool isInside;
};

constexpr KindRow kKinds[] = {
    {NameKind::Table, "Table", false},         {NameKind::View, "View", false},
    {NameKind::Procedure, "Procedure", false}, {NameKind::Function, "Function", false},
    {NameKind::Trigger, "Trigger", false},     {NameKind::Index, "Index", false},
    {NameKind::Type, "Type", false},           {NameKind::Sequence, "Sequence", false},
    {NameKind::Package, "Package", false},     {NameKind::Schema, "Schema", false},
    {NameKind::Column, "Column", true},        {NameKind::Parameter, "Parameter", true},
};

const DialectRow* DialectNamed(const QString& language)
{
    return std::find_if(std::begin(kDialects), std::end(kDialects), [&](const DialectRow& row) {
        return language == QLatin1String(row.language);
    });
}

// What clients print between the parts of a script.
void AddSteps(const QString& text, std::vector<Symbol>& symbols)
{
    static const QRegularExpression step(
        QStringLiteral("^[ \\t]*(?:print[ \\t]+N?'([^'\\r\\n]+)'|prompt[ \\t]+([^\\r\\n]+)|"
                       "(?:\\\\q?echo|\\.print)[ \\t]+([^\\r\\n]+))"),
        QRegularExpression::MultilineOption | QRegularExpression::CaseInsensitiveOption);
    for (auto at = step.globalMatch(text); at.hasNext();) {
        const QRegularExpressionMatch match = at.next();
        const int group = match.lastCapturedIndex();
        symbols.push_back({match.captured(group).trimmed(), QStringLiteral("Step"),
                           static_cast<long>(match.capturedStart(group)),
                           static_cast<long>(match.capturedEnd(group))});
    }
}

} // namespace

bool HasSymbols(const QString& language)
{
    return DialectNamed(language) != std::end(kDialects);
}

std::vector<Symbol> SymbolsOf(const QString& text, const QString& language)
{
    const auto* dialect = DialectNamed(language);
    if (dialect == std::end(kDialects))
        return {};
    std::vector<Symbol> symbols;
    const std::u16string_view units(reinterpret_cast<const char16_t*>(text.utf16()),
                                    static_cast<std::size_t>(text.size()));
    for (const completion::ScriptName& name : completion::NamesIn(units, dialect->dialect)) {
        const auto* kind = std::find_if(std::begin(kKinds), std::end(kKinds),
                                        [&](const KindRow& row) { return row.kind == name.kind; });
        if (kind != std::end(kKinds))
            symbols.push_back(
                {name.name, QLatin1String(kind->name), name.start, name.end, kind->isInside});
    }
    AddSteps(text, symbols);
    std::ranges::stable_sort(symbols, {}, &Symbol::start);
    return symbols;
}
