// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/ScriptSource.h"

#include "completion/Utf8Text.h"

#include <QRegularExpression>

#include <algorithm>
#include <initializer_list>
#include <optional>

namespace completion {
namespace {

using Place = ProposalQuery::Place;

constexpr long kDefinition = 16384; // units of what creates a table that are looked at
constexpr std::size_t kMostWords = 400;
constexpr std::size_t kMostAlters = 100; // of a table

// Among what fits equally well. Columns stand in the order of their table.
enum Rank : int
{
    First,
    Second = 10000,
    Third = 20000,
    Fifth = 40000,
    Last = 90000,
};

QString ToText(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

bool IsSame(const QString& one, const QString& other)
{
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

// As far as the script goes that gives the name its columns or parameters.
std::u16string DefinitionOf(const ScriptIndex& index, const ScriptIndex::Read& read, long position,
                            const char16_t* front)
{
    std::u16string units;
    read(position, std::min(position + kDefinition, index.Size()), units);
    return front + units;
}

int NumberOf(const engine::analysis::SqlDialect* dialect)
{
    constexpr int kMost = 32;
    for (int number = 0; number < kMost; ++number) {
        if (engine::analysis::DialectByNumber(number) == dialect)
            return number;
    }
    return 0;
}

// The objects of these kinds and the name, in any case.
std::vector<ScriptIndex::Object> FindAll(const ScriptIndex& index, const QString& name,
                                         std::initializer_list<NameKind> kinds, std::size_t most)
{
    const QByteArray bytes = name.toUtf8();
    const auto ids = index.NumbersOf({bytes.data(), static_cast<std::size_t>(bytes.size())});
    std::vector<ScriptIndex::Object> found;
    if (ids.empty())
        return found;
    index.ForEachObject([&](const ScriptIndex::Object& object) {
        if (std::find(ids.begin(), ids.end(), object.name) != ids.end() &&
            std::find(kinds.begin(), kinds.end(), object.kind) != kinds.end())
            found.push_back(object);
        return found.size() < most;
    });
    return found;
}

std::optional<ScriptIndex::Object> FindDefinition(const ScriptIndex& index, const QString& name,
                                                  std::initializer_list<NameKind> kinds)
{
    const auto found = FindAll(index, name, kinds, 1);
    return found.empty() ? std::nullopt : std::optional(found.front());
}

// The columns that stand behind the first name, up to where it ends.
std::vector<ScriptName> MembersOf(std::vector<ScriptName> names, NameKind kind)
{
    std::vector<ScriptName> members;
    for (std::size_t i = 1; i < names.size(); ++i) {
        if (names[i].kind != kind)
            break;
        members.push_back(std::move(names[i]));
    }
    return members;
}

// What stands behind a name, as far as its comma.
QString TextBehind(const std::u16string& text, long end)
{
    constexpr qsizetype kMost = 80;
    QString type;
    int depth = 0;
    for (auto i = static_cast<std::size_t>(end); i < text.size() && type.size() < kMost; ++i) {
        const char16_t unit = text[i];
        if (depth == 0 && (unit == u',' || unit == u')' || unit == u'\n' || unit == u'-'))
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
                       "COLLATE|GENERATED|AUTO_INCREMENT|COMMENT|ON|AS)\\b.*$"),
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

ProposalKind KindOf(NameKind kind)
{
    switch (kind) {
    case NameKind::View:
        return ProposalKind::View;
    case NameKind::Procedure:
    case NameKind::RoutineUse:
        return ProposalKind::Procedure;
    case NameKind::Function:
        return ProposalKind::Function;
    case NameKind::Type:
        return ProposalKind::Type;
    case NameKind::Table:
    case NameKind::TableUse:
    case NameKind::InsertUse:
        return ProposalKind::Table;
    case NameKind::Variable:
        return ProposalKind::Variable;
    case NameKind::Parameter:
        return ProposalKind::Parameter;
    case NameKind::Cte:
        return ProposalKind::Cte;
    default:
        return ProposalKind::Object;
    }
}

} // namespace

ScriptSource::ScriptSource(const ScriptIndex& index, ScriptIndex::Read read)
    : m_index(index), m_read(std::move(read))
{}

void ScriptSource::SetLanguage(std::vector<LanguageWord> words)
{
    m_words = std::move(words);
}

void ScriptSource::Propose(const ProposalQuery& query, std::vector<Proposal>& proposals)
{
    if (query.place == Place::Comment || query.place == Place::String) {
        ProposeWords(query, proposals);
        return;
    }
    if (!query.qualifier.isEmpty()) {
        if (ProposeQualified(query, proposals))
            return;
        ProposeObjects(query, proposals);
        if (!query.typed.isEmpty())
            ProposeWords(query, proposals);
        return;
    }
    if (m_index.Dialect()) {
        ProposeLocals(query, proposals);
        if (query.place == Place::Anywhere)
            ProposeColumns(query, proposals);
        ProposeObjects(query, proposals);
    }
    ProposeLanguage(query, proposals);
    if (!query.typed.isEmpty())
        ProposeWords(query, proposals);
}

// Quoted if it has to be, or was begun so.
QString ScriptSource::Written(const QString& name) const
{
    const auto* dialect = m_index.Dialect();
    if (!dialect)
        return name;
    const auto& bytes = engine::analysis::BytesOf(*dialect);
    const QByteArray utf8 = name.toUtf8();
    const bool isPlain =
        m_context.quote.isNull() && !utf8.isEmpty() && !(utf8[0] >= '0' && utf8[0] <= '9') &&
        std::all_of(utf8.begin(), utf8.end(),
                    [&](char byte) { return bytes.inWord[static_cast<unsigned char>(byte)]; });
    const bool isVariable =
        !utf8.isEmpty() && dialect->variableLeads.find(utf8[0]) != std::string_view::npos;
    if (isPlain || isVariable)
        return name;
    const QChar open = !m_context.quote.isNull() ? m_context.quote
                       : dialect->brackets       ? QChar(u'[')
                       : dialect->backticks      ? QChar(u'`')
                                                 : QChar(u'"');
    const QChar close = open == u'[' ? QChar(u']') : open;
    return open + QString(name).replace(close, QString(2, close)) + close;
}

Proposal ScriptSource::Named(ProposalKind kind, const QString& name, int rank,
                             const QString& description) const
{
    Proposal proposal{kind, Written(name), description, {}, rank};
    if (proposal.text != name)
        proposal.name = name;
    return proposal;
}

int ScriptSource::AddSelected(const std::vector<SelectItem>& items, const QString& table, int rank,
                              std::vector<Proposal>& proposals, int deep) const
{
    for (const SelectItem& item : items) {
        if (!item.star.isEmpty())
            rank = AddColumnsOf(item.star, rank, proposals, deep - 1);
        else
            proposals.push_back(Named(ProposalKind::Column, item.name, rank++, table));
    }
    return rank;
}

// From where the script creates, fills or alters it.
int ScriptSource::AddDefined(const ScriptIndex::Object& object, const QString& table, int rank,
                             std::vector<Proposal>& proposals, int deep) const
{
    const bool isTable = object.kind == NameKind::Table || object.kind == NameKind::AlterUse;
    const std::u16string text = DefinitionOf(m_index, m_read, object.position,
                                             object.kind == NameKind::Table      ? u"CREATE TABLE "
                                             : object.kind == NameKind::View     ? u"CREATE VIEW "
                                             : object.kind == NameKind::AlterUse ? u"ALTER TABLE "
                                                                                 : u"INSERT INTO ");
    const auto columns = MembersOf(NamesIn(text, NumberOf(m_index.Dialect())), NameKind::Column);
    for (const ScriptName& column : columns) {
        const QString type = isTable ? TypeOfColumn(text, column.end) : QString();
        proposals.push_back(
            Named(ProposalKind::Column, column.name, rank++,
                  type.isEmpty() ? table : type + QStringLiteral(" \u00b7 ") + table));
    }
    if (columns.empty() && object.kind == NameKind::View)
        rank = AddSelected(SelectListBehindAs(*m_index.Dialect(), ToUtf8(text)), table, rank,
                           proposals, deep);
    return rank;
}

// The columns of a table that the script creates, fills or alters, or that the statement has made.
int ScriptSource::AddColumnsOf(const QString& table, int rank, std::vector<Proposal>& proposals,
                               int deep) const
{
    if (deep == 0)
        return rank;
    const std::size_t before = proposals.size();
    for (const ScriptName& local : m_context.locals) {
        if (local.kind == NameKind::Column && IsSame(local.parent, table))
            proposals.push_back(Named(ProposalKind::Column, local.name, rank++, table));
    }
    for (auto query = m_context.queries.rbegin(); query != m_context.queries.rend(); ++query) {
        if (proposals.size() == before && IsSame(query->name, table))
            rank = AddSelected(query->items, table, rank, proposals, deep);
    }
    const auto place = FindDefinition(m_index, table, {NameKind::Table, NameKind::View});
    const auto found = place ? place : FindDefinition(m_index, table, {NameKind::InsertUse});
    if (found)
        rank = AddDefined(*found, table, rank, proposals, deep);
    for (const ScriptIndex::Object& object :
         FindAll(m_index, table, {NameKind::AlterUse}, kMostAlters))
        rank = AddDefined(object, table, rank, proposals, deep);
    return rank;
}

void ScriptSource::ProposeColumns(const ProposalQuery& /*query*/,
                                  std::vector<Proposal>& proposals) const
{
    for (const ScopedTable& table : m_context.tables) {
        if (!table.name.isEmpty())
            AddColumnsOf(table.name, Rank::First, proposals);
        if (!table.alias.isEmpty())
            proposals.push_back(Named(ProposalKind::Alias, table.alias, Rank::Second, table.name));
    }
}

// False if nothing is known of what stands before the point.
bool ScriptSource::ProposeQualified(const ProposalQuery& query,
                                    std::vector<Proposal>& proposals) const
{
    const QString& qualifier = query.qualifier.back();
    const std::size_t before = proposals.size();
    bool isKnown = false;
    for (const ScopedTable& table : m_context.tables) {
        if (!IsSame(table.alias, qualifier))
            continue;
        isKnown = true;
        if (!table.name.isEmpty())
            AddColumnsOf(table.name, Rank::First, proposals);
    }
    if (!isKnown)
        AddColumnsOf(qualifier, Rank::First, proposals);
    return proposals.size() > before;
}

void ScriptSource::ProposeLocals(const ProposalQuery& query, std::vector<Proposal>& proposals) const
{
    for (const ScriptName& local : m_context.locals) {
        if (local.kind == NameKind::Column)
            continue;
        const bool isTable = local.kind == NameKind::Cte;
        if (query.place == Place::Table && !isTable && local.kind != NameKind::Variable)
            continue;
        proposals.push_back(Named(KindOf(local.kind), local.name,
                                  query.place == Place::Table && !isTable ? Rank::Third
                                  : query.place == Place::Table           ? Rank::First
                                                                          : Rank::Second));
    }
}

void ScriptSource::ProposeObjects(const ProposalQuery& query,
                                  std::vector<Proposal>& proposals) const
{
    std::vector<std::uint32_t> known; // by name, a bit for each kind
    const QByteArray bytes = query.typed.toUtf8();
    const Typed typed(std::string_view(bytes.data(), static_cast<std::size_t>(bytes.size())));
    m_index.ForEachObject([&](const ScriptIndex::Object& object) {
        const ProposalKind kind = KindOf(object.kind);
        if (object.position == query.start)
            return true; // what is being typed
        if (object.name >= known.size())
            known.resize(std::max<std::size_t>(object.name + 1, known.size() * 2));
        const std::uint32_t bit = 1U << static_cast<unsigned>(kind);
        if (known[object.name] & bit)
            return true;
        known[object.name] |= bit;
        const std::string_view name = m_index.Words().Text(object.name);
        // What is a use of one letter is an alias more often than a table.
        if ((object.kind >= NameKind::TableUse && name.size() < 2) || typed.Of(name) == Match::None)
            return true;
        const bool isTable = IsTable(object.kind);
        const bool isRoutine = IsRoutine(object.kind);
        const int rank = query.place == Place::Table     ? (isTable ? Rank::Second : Rank::Fifth)
                         : query.place == Place::Routine ? (isRoutine ? Rank::First : Rank::Fifth)
                                                         : Rank::Third;
        if (query.place == Place::Anywhere && object.kind == NameKind::Index)
            return true;
        proposals.push_back(Named(kind, ToText(name), rank));
        return true;
    });
}

// In the case that the person types in.
void ScriptSource::ProposeLanguage(const ProposalQuery& query,
                                   std::vector<Proposal>& proposals) const
{
    const bool isCapital = query.typed.size() > 0 && query.typed != query.typed.toLower() &&
                           query.typed == query.typed.toUpper();
    const bool isScript = m_index.Dialect() != nullptr;
    for (const LanguageWord& word : m_words) {
        const bool isTable = word.kind == ProposalKind::System;
        const int rank = query.place == Place::Table ? (isTable ? Rank::Third : Rank::Fifth)
                         : query.place == Place::Routine
                             ? (word.kind == ProposalKind::Procedure ? Rank::Second : Rank::Fifth)
                         : isTable ? Rank::Fifth
                                   : Rank::Third;
        proposals.push_back(
            {word.kind, isCapital && isScript ? word.text.toUpper() : word.text, {}, {}, rank});
    }
}

void ScriptSource::ProposeWords(const ProposalQuery& query, std::vector<Proposal>& proposals) const
{
    struct Fitting
    {
        Match match;
        WordTable::Id id;
    };
    const QByteArray bytes = query.typed.toUtf8();
    const std::string_view text(bytes.data(), static_cast<std::size_t>(bytes.size()));
    const std::string whole = (query.typed + m_context.rest).toStdString();
    std::vector<Fitting> fitting;
    m_index.Words().Find(Typed(text), [&](WordTable::Id id, Match match) {
        // The word that is being typed is no proposal for itself.
        const std::string_view word = m_index.Words().Text(id);
        if (word != text && word != whole)
            fitting.push_back({match, id});
    });
    const auto isBetter = [this](const Fitting& one, const Fitting& other) {
        return one.match != other.match
                   ? one.match < other.match
                   : m_index.Words().Text(one.id) < m_index.Words().Text(other.id);
    };
    const auto most = std::min(fitting.size(), kMostWords);
    std::partial_sort(fitting.begin(), fitting.begin() + static_cast<std::ptrdiff_t>(most),
                      fitting.end(), isBetter);
    fitting.resize(most);
    for (const Fitting& each : fitting)
        proposals.push_back(
            Named(ProposalKind::Word, ToText(m_index.Words().Text(each.id)), Rank::Last));
}

Signature SignatureIn(const ScriptIndex& index, const ScriptIndex::Read& read, const QString& name)
{
    const auto found = FindDefinition(index, name, {NameKind::Procedure, NameKind::Function});
    if (!found)
        return {};
    const std::u16string text = DefinitionOf(
        index, read, found->position,
        found->kind == NameKind::Procedure ? u"CREATE PROCEDURE " : u"CREATE FUNCTION ");
    QStringList parameters;
    for (const ScriptName& parameter :
         MembersOf(NamesIn(text, NumberOf(index.Dialect())), NameKind::Parameter)) {
        parameters << (parameter.name + u' ' + TypeOfParameter(text, parameter.end)).trimmed();
    }
    return ParseSignature(ToText(index.Words().Text(found->name)) + u'(' +
                              parameters.join(QStringLiteral(", ")) + u')',
                          {});
}

} // namespace completion
