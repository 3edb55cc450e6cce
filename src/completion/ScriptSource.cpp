// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/ScriptSource.h"

#include "completion/Definitions.h"
#include "completion/Utf8Text.h"
#include "completion/WrittenName.h"

#include <algorithm>
#include <tuple>

namespace completion {
namespace {

using Place = ProposalQuery::Place;

constexpr std::size_t kMostObjects = 400;
constexpr std::size_t kMostWords = 400;

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
    case NameKind::AlterUse:
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

// By the letters whatever their case, as far as ASCII goes.
bool ComesFirst(std::string_view one, std::string_view other)
{
    const auto lower = [](char byte) {
        const auto value = static_cast<unsigned char>(byte);
        return value >= 'A' && value <= 'Z' ? value | 0x20U : value;
    };
    return std::lexicographical_compare(
        one.begin(), one.end(), other.begin(), other.end(),
        [&](char left, char right) { return lower(left) < lower(right); });
}

// So many, in no order.
template <typename Fitting, typename IsBetter>
void KeepBest(std::vector<Fitting>& fitting, std::size_t most, IsBetter isBetter)
{
    if (fitting.size() <= most)
        return;
    std::nth_element(fitting.begin(), fitting.begin() + static_cast<std::ptrdiff_t>(most),
                     fitting.end(), isBetter);
    fitting.resize(most);
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
        ProposeWords(query, true, proposals);
        return;
    }
    if (!query.qualifier.isEmpty()) {
        if (ProposeQualified(query, proposals))
            return;
        ProposeObjects(query, proposals);
        if (!query.typed.isEmpty())
            ProposeWords(query, true, proposals);
        return;
    }
    if (m_index.Dialect()) {
        ProposeLocals(query, proposals);
        if (query.place == Place::Anywhere)
            ProposeColumns(proposals);
        ProposeObjects(query, proposals);
    }
    const bool takesKeywords = !FitsTable(query, proposals);
    if (m_context.quote.isNull()) // what stands in quotes is a name
        ProposeLanguage(query, takesKeywords, proposals);
    if (!query.typed.isEmpty())
        ProposeWords(query, takesKeywords, proposals);
}

// Where a table is wanted and one of the script's begins with what is typed, ORDER and its like are
// not meant, however well they fit.
bool ScriptSource::FitsTable(const ProposalQuery& query, const std::vector<Proposal>& proposals)
{
    return query.place == Place::Table && !query.typed.isEmpty() &&
           std::any_of(proposals.begin(), proposals.end(), [&](const Proposal& each) {
               return (each.kind == ProposalKind::Table || each.kind == ProposalKind::View ||
                       each.kind == ProposalKind::Cte) &&
                      each.Compared().startsWith(query.typed, Qt::CaseInsensitive);
           });
}

// What had quotes where it was given keeps them if it says something else without.
Proposal ScriptSource::Named(ProposalKind kind, const QString& name, int rank,
                             const QString& description, bool wasQuoted) const
{
    Proposal proposal{kind, name, description, {}, rank};
    if (const auto* dialect = m_index.Dialect()) {
        const bool isReserved = wasQuoted && IsKeyword(name);
        const QChar begun =
            isReserved && m_context.quote.isNull() ? QuoteOf(*dialect) : m_context.quote;
        proposal.text = WrittenName(*dialect, name, begun, wasQuoted);
    }
    if (proposal.text != name)
        proposal.name = name;
    return proposal;
}

bool ScriptSource::IsKeyword(const QString& name) const
{
    return std::any_of(m_words.begin(), m_words.end(), [&](const LanguageWord& word) {
        return word.kind == ProposalKind::Keyword && IsSame(word.text, name);
    });
}

void ScriptSource::AddColumns(const std::vector<Column>& columns, int& rank,
                              std::vector<Proposal>& proposals) const
{
    for (const Column& column : columns)
        proposals.push_back(
            Named(ProposalKind::Column, column.name, rank++, column.description, column.isQuoted));
}

void ScriptSource::ProposeColumns(std::vector<Proposal>& proposals) const
{
    TableColumns columns(m_index, m_read, m_context);
    columns.LookAhead();
    int rank = Rank::First;
    for (const ScopedTable& table : m_context.tables) {
        AddColumns(columns.Of(table), rank, proposals);
        if (!table.alias.isEmpty())
            proposals.push_back(Named(ProposalKind::Alias, table.alias, Rank::Second, table.name,
                                      table.isAliasQuoted));
    }
}

// False if nothing is known of what stands before the point.
bool ScriptSource::ProposeQualified(const ProposalQuery& query,
                                    std::vector<Proposal>& proposals) const
{
    const TableColumns columns(m_index, m_read, m_context);
    const QString& qualifier = query.qualifier.back();
    const std::size_t before = proposals.size();
    int rank = Rank::First;
    const auto table =
        std::find_if(m_context.tables.begin(), m_context.tables.end(),
                     [&](const ScopedTable& each) { return IsSame(each.alias, qualifier); });
    AddColumns(table != m_context.tables.end() ? columns.Of(*table) : columns.Of(qualifier), rank,
               proposals);
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
                                                                          : Rank::Second,
                                  {}, local.isQuoted));
    }
}

// Many names may fit the first letters: only the best become proposals.
void ScriptSource::ProposeObjects(const ProposalQuery& query,
                                  std::vector<Proposal>& proposals) const
{
    struct Fitting
    {
        int match;
        int rank;
        std::string_view name;
        ScriptIndex::Object object;
    };
    std::vector<Fitting> fitting;
    std::vector<std::uint32_t> known; // by name, a bit for each kind
    const QByteArray bytes = query.typed.toUtf8();
    const Typed typed(std::string_view(bytes.data(), static_cast<std::size_t>(bytes.size())));
    m_index.ForEachObject([&](const ScriptIndex::Object& object) {
        if (object.position == query.start)
            return true; // what is being typed
        if (object.name >= known.size())
            known.resize(std::max<std::size_t>(object.name + 1, known.size() * 2));
        const std::uint32_t bit = 1U << static_cast<unsigned>(KindOf(object.kind));
        if (known[object.name] & bit)
            return true;
        known[object.name] |= bit;
        const std::string_view name = m_index.Words().Text(object.name);
        const Match match = m_index.Words().MatchOf(object.name, typed);
        // What is a use of one letter is an alias more often than a table.
        if (match == Match::None || object.kind == NameKind::Index ||
            (object.kind >= NameKind::TableUse && name.size() < 2))
            return true;
        const int rank =
            query.place == Place::Table     ? (IsTable(object.kind) ? Rank::Second : Rank::Fifth)
            : query.place == Place::Routine ? (IsRoutine(object.kind) ? Rank::First : Rank::Fifth)
                                            : Rank::Third;
        fitting.push_back({Weight(match), rank, name, object});
        return true;
    });
    KeepBest(fitting, kMostObjects, [](const Fitting& one, const Fitting& other) {
        return std::tie(one.match, one.rank) != std::tie(other.match, other.rank)
                   ? std::tie(one.match, one.rank) < std::tie(other.match, other.rank)
                   : ComesFirst(one.name, other.name);
    });
    for (const Fitting& each : fitting)
        proposals.push_back(Named(KindOf(each.object.kind), ToText(each.name), each.rank, {},
                                  IsQuotedAt(each.object.position)));
}

bool ScriptSource::IsQuotedAt(long position) const
{
    std::u16string unit;
    if (position < m_index.Size()) // the text may have been cut since it was read
        m_read(position, position + 1, unit);
    return !unit.empty() && (unit[0] == u'"' || unit[0] == u'[' || unit[0] == u'`');
}

// In the case that the person types in.
void ScriptSource::ProposeLanguage(const ProposalQuery& query, bool takesKeywords,
                                   std::vector<Proposal>& proposals) const
{
    const bool isCapital = query.typed.size() > 0 && query.typed != query.typed.toLower() &&
                           query.typed == query.typed.toUpper();
    const bool isScript = m_index.Dialect() != nullptr;
    for (const LanguageWord& word : m_words) {
        if (!takesKeywords && word.kind == ProposalKind::Keyword)
            continue;
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

void ScriptSource::ProposeWords(const ProposalQuery& query, bool takesKeywords,
                                std::vector<Proposal>& proposals) const
{
    struct Fitting
    {
        int match;
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
            fitting.push_back({Weight(match), id});
    });
    KeepBest(fitting, kMostWords, [this](const Fitting& one, const Fitting& other) {
        return one.match != other.match
                   ? one.match < other.match
                   : ComesFirst(m_index.Words().Text(one.id), m_index.Words().Text(other.id));
    });
    for (const Fitting& each : fitting) {
        const QString word = ToText(m_index.Words().Text(each.id));
        if (takesKeywords || !IsKeyword(word))
            proposals.push_back(Named(ProposalKind::Word, word, Rank::Last));
    }
}

} // namespace completion
