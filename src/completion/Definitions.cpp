// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/Definitions.h"

#include "completion/Utf8Text.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace completion {
namespace {

using Object = ScriptIndex::Object;

constexpr long kDefinition = 16384; // units of what creates a table that are looked at
constexpr std::size_t kMostAlters = 100;
constexpr int kDeepest = 4; // tables in tables, by their stars

QString ToText(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

bool IsSame(const QString& one, const QString& other)
{
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

// What gives the name its columns or parameters.
struct Definition
{
    std::u16string text;           // behind the words that the kind begins with
    std::vector<ScriptName> names; // the object and its members
};

// Without names if something else stands there: the index follows the text with a delay.
Definition DefinitionOf(const ScriptIndex& index, const ScriptIndex::Read& read,
                        const Object& object)
{
    const long start = std::min(object.position, index.Size());
    std::u16string units;
    read(start, std::min(start + kDefinition, index.Size()), units);
    const char16_t* front = object.kind == NameKind::Table       ? u"CREATE TABLE "
                            : object.kind == NameKind::View      ? u"CREATE VIEW "
                            : object.kind == NameKind::AlterUse  ? u"ALTER TABLE "
                            : object.kind == NameKind::InsertUse ? u"INSERT INTO "
                            : object.kind == NameKind::Procedure ? u"CREATE PROCEDURE "
                                                                 : u"CREATE FUNCTION ";
    Definition definition{front + units, {}};
    definition.names = MembersIn(definition.text, *index.Dialect());
    if (!definition.names.empty() &&
        definition.names.front().name != ToText(index.Words().Text(object.name)))
        definition.names.clear();
    return definition;
}

void Note(TablePlaces& places, const Object& object)
{
    if (object.kind == NameKind::Table || object.kind == NameKind::View)
        places.created = places.created ? places.created : object;
    else if (object.kind == NameKind::InsertUse)
        places.filled = places.filled ? places.filled : object;
    else if (object.kind == NameKind::AlterUse && places.altered.size() < kMostAlters)
        places.altered.push_back(object);
}

// In any case; the names differ by more than that.
std::vector<TablePlaces> FindTables(const ScriptIndex& index, const QStringList& names)
{
    std::vector<TablePlaces> places(static_cast<std::size_t>(names.size()));
    std::vector<std::uint32_t> which; // by a word's number, from 1
    for (std::uint32_t i = 0; i < places.size(); ++i) {
        const QByteArray bytes = names[static_cast<qsizetype>(i)].toUtf8();
        for (const ScriptIndex::Id id :
             index.NumbersOf({bytes.data(), static_cast<std::size_t>(bytes.size())})) {
            if (id >= which.size())
                which.resize(id + std::size_t{1});
            which[id] = i + 1;
        }
    }
    if (which.empty())
        return places;
    index.ForEachObject([&](const Object& object) {
        if (object.name < which.size() && which[object.name] > 0)
            Note(places[which[object.name] - 1], object);
        return true;
    });
    return places;
}

std::optional<Object> FindRoutine(const ScriptIndex& index, const QString& name)
{
    const QByteArray bytes = name.toUtf8();
    const auto ids = index.NumbersOf({bytes.data(), static_cast<std::size_t>(bytes.size())});
    std::optional<Object> found;
    if (ids.empty())
        return found;
    index.ForEachObject([&](const Object& object) {
        if ((object.kind == NameKind::Procedure || object.kind == NameKind::Function) &&
            std::find(ids.begin(), ids.end(), object.name) != ids.end())
            found = object;
        return !found;
    });
    return found;
}

// What stands behind a name, as far as its comma.
QString TextBehind(const std::u16string& text, long end)
{
    constexpr qsizetype kMost = 80;
    QString type;
    int depth = 0;
    for (auto i = static_cast<std::size_t>(end); i < text.size() && type.size() < kMost; ++i) {
        const char16_t unit = text[i];
        if (unit == u';' ||
            (depth == 0 && (unit == u',' || unit == u')' || unit == u'\n' || unit == u'-')))
            break;
        depth += unit == u'(' ? 1 : unit == u')' ? -1 : 0;
        type += QChar(unit);
    }
    return type.simplified();
}

QString TypeOfColumn(const std::u16string& text, long end)
{
    static const QRegularExpression rest(
        QStringLiteral("\\b(NOT|NULL|DEFAULT|PRIMARY|UNIQUE|REFERENCES|CONSTRAINT|IDENTITY|CHECK|"
                       "COLLATE|GENERATED|AUTO_INCREMENT|COMMENT|ON|AS|FIRST|AFTER)\\b.*$"),
        QRegularExpression::CaseInsensitiveOption);
    return TextBehind(text, end).remove(rest).trimmed();
}

// Up to the body of the routine, which may follow the last one.
QString TypeOfParameter(const std::u16string& text, long end)
{
    static const QRegularExpression body(QStringLiteral("\\b(AS|IS|BEGIN)\\b.*$"),
                                         QRegularExpression::CaseInsensitiveOption);
    return TextBehind(text, end).remove(body).trimmed();
}

Column ColumnOf(const ScriptName& name, const QString& type, const QString& table)
{
    return {name.name, name.isQuoted,
            type.isEmpty() ? table : type + QStringLiteral(" \u00b7 ") + table};
}

} // namespace

TableColumns::TableColumns(const ScriptIndex& index, const ScriptIndex::Read& read,
                           const CaretContext& context, std::span<const OtherText> others)
    : m_index(index), m_read(read), m_context(context)
{
    static const CaretContext kNone;
    m_others.reserve(others.size());
    for (const OtherText& other : others)
        m_others.emplace_back(*other.index, other.read, kNone);
}

void TableColumns::LookAhead()
{
    QStringList names;
    for (const ScopedTable& table : m_context.tables) {
        if (!table.name.isEmpty() && !names.contains(table.name, Qt::CaseInsensitive))
            names << table.name;
    }
    LookAhead(names);
}

void TableColumns::LookAhead(const QStringList& tables)
{
    std::vector<TablePlaces> places = FindTables(m_index, tables);
    QStringList elsewhere;
    for (std::size_t i = 0; i < places.size(); ++i) {
        const QString& name = tables[static_cast<qsizetype>(i)];
        if (!places[i].created)
            elsewhere << name;
        m_known.emplace_back(name, std::move(places[i]));
    }
    for (TableColumns& other : m_others) {
        if (!elsewhere.isEmpty())
            other.LookAhead(elsewhere);
    }
}

TablePlaces TableColumns::PlacesOf(const QString& table) const
{
    const auto known = std::find_if(m_known.begin(), m_known.end(),
                                    [&](const auto& each) { return IsSame(each.first, table); });
    return known != m_known.end() ? known->second : FindTables(m_index, {table}).front();
}

std::vector<Column> TableColumns::Of(const QString& table) const
{
    std::vector<Column> columns;
    Add(table, columns, kDeepest);
    return columns;
}

std::vector<Column> TableColumns::Of(const ScopedTable& table) const
{
    if (!table.name.isEmpty())
        return Of(table.name);
    std::vector<Column> columns;
    if (!AddLocals(table.alias, columns))
        AddItems(table.items, table.alias, columns, kDeepest);
    return columns;
}

// Those of a list that the statement names itself.
bool TableColumns::AddLocals(const QString& table, std::vector<Column>& columns) const
{
    const std::size_t before = columns.size();
    for (const ScriptName& local : m_context.locals) {
        if (local.kind == NameKind::Column && IsSame(local.parent, table))
            columns.push_back({local.name, local.isQuoted, table});
    }
    return columns.size() > before;
}

void TableColumns::AddItems(const std::vector<SelectItem>& items, const QString& table,
                            std::vector<Column>& columns, int deep) const
{
    for (const SelectItem& item : items) {
        if (!item.star.isEmpty())
            Add(item.star, columns, deep - 1);
        else
            columns.push_back({item.name, item.isQuoted, table});
    }
}

void TableColumns::Add(const QString& table, std::vector<Column>& columns, int deep) const
{
    if (deep == 0)
        return;
    const std::size_t first = columns.size();
    AddLocals(table, columns);
    for (auto query = m_context.queries.rbegin(); query != m_context.queries.rend(); ++query) {
        if (columns.size() == first && IsSame(query->name, table))
            AddItems(query->items, table, columns, deep);
    }
    const TablePlaces places = PlacesOf(table);
    const bool isElsewhere =
        !places.created && columns.size() == first && AddOfOthers(table, columns, deep);
    if (const auto& place = places.created ? places.created : places.filled; place && !isElsewhere)
        AddDefined(*place, table, columns, deep);
    for (const Object& altered : places.altered)
        Alter(altered, table, columns, first);
}

// The first script counts that creates it.
bool TableColumns::AddOfOthers(const QString& table, std::vector<Column>& columns, int deep) const
{
    const auto other =
        std::find_if(m_others.begin(), m_others.end(), [&](const TableColumns& each) {
            return each.PlacesOf(table).created.has_value();
        });
    if (other == m_others.end())
        return false;
    const std::size_t before = columns.size();
    other->Add(table, columns, deep);
    return columns.size() > before;
}

// From where the script creates or fills it.
void TableColumns::AddDefined(const Object& object, const QString& table,
                              std::vector<Column>& columns, int deep) const
{
    const std::size_t first = columns.size();
    const auto [text, names] = DefinitionOf(m_index, m_read, object);
    for (const ScriptName& name : names) {
        const bool isTable = object.kind == NameKind::Table;
        if (name.kind == NameKind::Column)
            columns.push_back(
                ColumnOf(name, isTable ? TypeOfColumn(text, name.end) : QString(), table));
    }
    if (columns.size() == first && object.kind == NameKind::View && !names.empty())
        AddItems(SelectListBehindAs(*m_index.Dialect(), ToUtf8(text)), table, columns, deep);
}

// The columns from `first` on are those of the table.
void TableColumns::Alter(const Object& object, const QString& table, std::vector<Column>& columns,
                         std::size_t first) const
{
    const auto [text, names] = DefinitionOf(m_index, m_read, object);
    auto renamed = columns.end();
    for (const ScriptName& name : names) {
        const auto found =
            std::find_if(columns.begin() + static_cast<std::ptrdiff_t>(first), columns.end(),
                         [&](const Column& each) { return IsSame(each.name, name.name); });
        if (name.kind == NameKind::DroppedColumn) {
            if (found != columns.end())
                columns.erase(found);
            renamed = columns.end();
        } else if (name.kind == NameKind::RenamedColumn) {
            renamed = found;
        } else if (name.kind == NameKind::Column) {
            const QString type = TypeOfColumn(text, name.end);
            Column column = ColumnOf(name, type, table);
            if (renamed == columns.end()) {
                columns.push_back(std::move(column));
            } else {
                if (type.isEmpty())
                    column.description = renamed->description;
                *renamed = std::move(column);
            }
            renamed = columns.end();
        }
    }
}

Signature SignatureIn(const ScriptIndex& index, const ScriptIndex::Read& read, const QString& name)
{
    const auto found = FindRoutine(index, name);
    if (!found)
        return {};
    const auto [text, names] = DefinitionOf(index, read, *found);
    if (names.empty())
        return {};
    QStringList parameters;
    for (const ScriptName& parameter : names) {
        if (parameter.kind == NameKind::Parameter)
            parameters << (parameter.name + u' ' + TypeOfParameter(text, parameter.end)).trimmed();
    }
    return ParseSignature(ToText(index.Words().Text(found->name)) + u'(' +
                              parameters.join(QStringLiteral(", ")) + u')',
                          {});
}

} // namespace completion
