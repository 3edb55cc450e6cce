// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/outline/Symbols.h"

#include "control/Analysis.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <iterator>
#include <optional>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Symbols)
};

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
    {NameKind::Table, QT_TRANSLATE_NOOP("Symbols", "Table"), false},
    {NameKind::View, QT_TRANSLATE_NOOP("Symbols", "View"), false},
    {NameKind::Procedure, QT_TRANSLATE_NOOP("Symbols", "Procedure"), false},
    {NameKind::Function, QT_TRANSLATE_NOOP("Symbols", "Function"), false},
    {NameKind::Trigger, QT_TRANSLATE_NOOP("Symbols", "Trigger"), false},
    {NameKind::Index, QT_TRANSLATE_NOOP("Symbols", "Index"), false},
    {NameKind::Type, QT_TRANSLATE_NOOP("Symbols", "Type"), false},
    {NameKind::Sequence, QT_TRANSLATE_NOOP("Symbols", "Sequence"), false},
    {NameKind::Package, QT_TRANSLATE_NOOP("Symbols", "Package"), false},
    {NameKind::Schema, QT_TRANSLATE_NOOP("Symbols", "Schema"), false},
    {NameKind::Column, QT_TRANSLATE_NOOP("Symbols", "Column"), true},
    {NameKind::Parameter, QT_TRANSLATE_NOOP("Symbols", "Parameter"), true},
};

const DialectRow* DialectNamed(const QString& language)
{
    return std::find_if(std::begin(kDialects), std::end(kDialects), [&](const DialectRow& row) {
        return language == QLatin1String(row.language);
    });
}

constexpr const char* kStep = QT_TRANSLATE_NOOP("Symbols", "Step");

// Whether a routine begins in front of the place whose batch has not ended there.
bool IsInRoutine(const QString& text, const std::vector<Symbol>& symbols, qsizetype place)
{
    static const QRegularExpression batchEnd(QStringLiteral("^[ \\t]*go\\b"),
                                             QRegularExpression::MultilineOption |
                                                 QRegularExpression::CaseInsensitiveOption);
    const auto isRoutine = [](const Symbol& symbol) {
        return std::ranges::any_of(kKinds, [&](const KindRow& row) {
            return row.name == symbol.kind &&
                   (row.kind == NameKind::Procedure || row.kind == NameKind::Function ||
                    row.kind == NameKind::Trigger);
        });
    };
    const auto before = std::find_if(symbols.rbegin(), symbols.rend(), [&](const Symbol& symbol) {
        return symbol.start < place && isRoutine(symbol);
    });
    if (before == symbols.rend())
        return false;
    const QRegularExpressionMatch end = batchEnd.match(text, before->end);
    return !end.hasMatch() || end.capturedStart() > place;
}

// What clients print between the parts of a script. What a routine prints is no step of it.
void AddSteps(const QString& text, std::vector<Symbol>& symbols)
{
    const std::vector<Symbol> created = symbols;
    static const QRegularExpression step(
        QStringLiteral("^[ \\t]*(?:print[ \\t]+N?'([^'\\r\\n]+)'|prompt[ \\t]+([^\\r\\n]+)|"
                       "(?:\\\\q?echo|\\.print)[ \\t]+([^\\r\\n]+))"),
        QRegularExpression::MultilineOption | QRegularExpression::CaseInsensitiveOption);
    for (auto at = step.globalMatch(text); at.hasNext();) {
        const QRegularExpressionMatch match = at.next();
        const int group = match.lastCapturedIndex();
        constexpr int kStatement = 1; // the others are commands of a client
        if (group == kStatement && IsInRoutine(text, created, match.capturedStart()))
            continue;
        symbols.push_back({match.captured(group).trimmed(), kStep,
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
    const std::u16string_view units(reinterpret_cast<const char16_t*>(text.utf16()),
                                    static_cast<std::size_t>(text.size()));
    std::vector<Symbol> symbols = SymbolsOf(completion::NamesIn(units, dialect->dialect));
    AddSteps(text, symbols);
    std::ranges::stable_sort(symbols, {}, &Symbol::start);
    return symbols;
}

// Columns that INSERT and ALTER name are not created there: they would be listed below whatever
// stands above.
std::vector<Symbol> SymbolsOf(std::vector<completion::ScriptName> names)
{
    std::vector<Symbol> symbols;
    symbols.reserve(names.size());
    bool isInCreated = false;
    for (completion::ScriptName& name : names) {
        const auto* kind = std::find_if(std::begin(kKinds), std::end(kKinds),
                                        [&](const KindRow& row) { return row.kind == name.kind; });
        if (name.kind == NameKind::InsertUse || name.kind == NameKind::AlterUse)
            isInCreated = false;
        if (kind == std::end(kKinds))
            continue;
        isInCreated |= !kind->isInside;
        if (isInCreated)
            symbols.push_back(
                {std::move(name.name), kind->name, name.start, name.end, kind->isInside});
    }
    return symbols;
}

QString KindText(const Symbol& symbol)
{
    return Texts::tr(symbol.kind);
}
