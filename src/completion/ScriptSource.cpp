// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/ScriptSource.h"

#include "completion/Definitions.h"
#include "completion/Utf8Text.h"
#include "completion/WrittenName.h"

#include <QSet>

#include <algorithm>
#include <array>
#include <tuple>

namespace completion {
namespace {

using Place = ProposalQuery::Place;

constexpr std::size_t kMostObjects = 400;
constexpr std::size_t kMostWords = 400;

// Among what fits equally well. Columns stand in the order of their table.
enum Rank : int
{
    BeforeAll = -1,
    First,
    Second = 10000,
    Third = 20000,
    Fourth = 30000,
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

// The words that may stand where a table is wanted, in lower case between blanks, by the word in
// front of them. What stands in no row has those of FROM.
struct Standing
{
    NameWord behind;
    QLatin1String words;
};
constexpr QLatin1String kBehindFrom(
    " dual deleted final generate_series inserted json_table lateral only opendatasource openjson "
    "openquery openrowset openxml string_split table unnest xmltable ");
constexpr std::array kStanding = {
    Standing{NameWord::Analyze, QLatin1String(" freeze full local no_write_to_binlog only table "
                                              "verbose ")},
    Standing{NameWord::Describe, QLatin1String(" analyze delete extended format insert replace "
                                               "select update ")},
    Standing{NameWord::If, QLatin1String(" exists not ")},
    Standing{NameWord::Insert, QLatin1String(" all delayed first high_priority ignore into "
                                             "low_priority or overwrite top ")},
    Standing{NameWord::Into, QLatin1String(" table ")},
    Standing{NameWord::Merge, QLatin1String(" into top ")},
    Standing{NameWord::On,
             QLatin1String(" all database directory domain foreign function language large only "
                           "package procedure routine schema sequence table tablespace type ")},
    Standing{NameWord::Or, QLatin1String(" abort fail ignore replace rollback ")},
    Standing{NameWord::Replace, QLatin1String(" delayed into low_priority ")},
    Standing{NameWord::Table, QLatin1String(" if only ")},
    Standing{NameWord::Truncate, QLatin1String(" only table ")},
    Standing{NameWord::Update, QLatin1String(" ignore low_priority only or statistics top ")},
    Standing{NameWord::Vacuum, QLatin1String(" analyze freeze full verbose ")},
    Standing{NameWord::View, QLatin1String(" if ")},
};

bool StandsForTable(const QString& word, NameWord behind)
{
    const auto* row =
        std::find_if(kStanding.begin(), kStanding.end(),
                     [behind](const Standing& each) { return each.behind == behind; });
    const QLatin1String words = row != kStanding.end() ? row->words : kBehindFrom;
    return words.contains(u' ' + word + u' ', Qt::CaseInsensitive);
}

// The words that statements begin with, in blocks too, in lower case between blanks. Those that a
// language does not know are not proposed.
constexpr QLatin1String kBeginStatements(
    " abort alter analyze assert associate attach audit backup begin bulk call case change "
    "checkpoint close cluster comment commit connect continue copy create cursor dbcc deallocate "
    "declare delete deny desc describe detach disable disassociate discard disconnect do drop else "
    "elseif elsif enable end exception exec execute exit explain export fetch flashback flush for "
    "forall foreach get go goto grant handler help if import insert install iterate kill leave "
    "listen load lock loop merge move noaudit notify null open optimize pragma prepare print "
    "procedure purge raise raiserror readtext reassign reconfigure recover refresh reindex release "
    "rename repair repeat replace reset resignal restore return revert revoke rollback save "
    "savepoint select set setuser show shutdown signal start stop suspend table throw truncate "
    "unlisten unlock update updatetext upsert use vacuum values waitfor when while with writetext "
    "xa ");

bool BeginsStatements(const LanguageWord& word)
{
    return word.kind == ProposalKind::Keyword &&
           kBeginStatements.contains(u' ' + word.text + u' ', Qt::CaseInsensitive);
}

bool IsQuotedAt(const ScriptIndex& index, const ScriptIndex::Read& read, long position)
{
    std::u16string unit;
    if (position < index.Size()) // the text may have been cut since it was read
        read(position, position + 1, unit);
    return !unit.empty() && (unit[0] == u'"' || unit[0] == u'[' || unit[0] == u'`');
}

// An object of an index that may be meant.
struct Fitting
{
    int match;
    int rank;
    std::string_view name;
    ScriptIndex::Object object;
};

// So many, in no order.
template <typename Found, typename IsBetter>
void KeepBest(std::vector<Found>& fitting, std::size_t most, IsBetter isBetter)
{
    if (fitting.size() <= most)
        return;
    std::nth_element(fitting.begin(), fitting.begin() + static_cast<std::ptrdiff_t>(most),
                     fitting.end(), isBetter);
    fitting.resize(most);
}

// The best objects, each name once for a kind of proposal. Many may fit the first letters: only
// these become proposals.
template <typename RankOf> // int(const ScriptIndex::Object&), below 0: it is not wanted
std::vector<Fitting> FittingObjects(const ScriptIndex& index, const QString& typed, RankOf rankOf)
{
    std::vector<Fitting> fitting;
    std::vector<std::uint32_t> known; // by name, a bit for each kind
    const QByteArray bytes = typed.toUtf8();
    const Typed wanted(std::string_view(bytes.data(), static_cast<std::size_t>(bytes.size())));
    index.ForEachObject([&](const ScriptIndex::Object& object) {
        const int rank = rankOf(object);
        if (rank < 0)
            return true;
        if (object.name >= known.size())
            known.resize(std::max<std::size_t>(object.name + 1, known.size() * 2));
        const std::uint32_t bit = 1U << static_cast<unsigned>(KindOf(object.kind));
        if (known[object.name] & bit)
            return true;
        known[object.name] |= bit;
        const std::string_view name = index.Words().Text(object.name);
        const Match match = index.Words().MatchOf(object.name, wanted);
        // What is a use of one letter is an alias more often than a table.
        if (match != Match::None && (object.kind < NameKind::TableUse || name.size() > 1))
            fitting.push_back({Weight(match), rank, name, object});
        return true;
    });
    KeepBest(fitting, kMostObjects, [](const Fitting& one, const Fitting& other) {
        return std::tie(one.match, one.rank) != std::tie(other.match, other.rank)
                   ? std::tie(one.match, one.rank) < std::tie(other.match, other.rank)
                   : ComesFirst(one.name, other.name);
    });
    return fitting;
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
        ProposeOthers(query, proposals);
        if (!query.typed.isEmpty())
            ProposeWords(query, true, proposals);
        return;
    }
    if (m_index.Dialect()) {
        ProposeLocals(query, proposals);
        if (query.place == Place::Anywhere)
            ProposeColumns(proposals);
        ProposeObjects(query, proposals);
        ProposeOthers(query, proposals);
    }
    const bool takesKeywords = TakesKeywords(query, proposals);
    if (m_context.quote.isNull()) // what stands in quotes is a name
        ProposeLanguage(query, takesKeywords, proposals);
    if (!query.typed.isEmpty())
        ProposeWords(query, takesKeywords, proposals);
}

// Where a table is wanted ORDER and its like are not meant, however well they fit. A person who
// asks where no table fits gets what there is.
bool ScriptSource::TakesKeywords(const ProposalQuery& query, const std::vector<Proposal>& proposals)
{
    if (query.place != Place::Table || !query.isAsked)
        return query.place != Place::Table;
    const QByteArray bytes = query.typed.toUtf8();
    const Typed typed(std::string_view(bytes.data(), static_cast<std::size_t>(bytes.size())));
    return std::none_of(proposals.begin(), proposals.end(), [&](const Proposal& each) {
        const QByteArray name = each.Compared().toUtf8();
        return (each.kind == ProposalKind::Table || each.kind == ProposalKind::View ||
                each.kind == ProposalKind::Cte) &&
               typed.Of({name.data(), static_cast<std::size_t>(name.size())}) != Match::None;
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
    TableColumns columns(m_index, m_read, m_context, m_others);
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
    TableColumns columns(m_index, m_read, m_context, m_others);
    const QString& qualifier = query.qualifier.back();
    const std::size_t before = proposals.size();
    int rank = Rank::First;
    const auto table =
        std::find_if(m_context.tables.begin(), m_context.tables.end(),
                     [&](const ScopedTable& each) { return IsSame(each.alias, qualifier); });
    columns.LookAhead({table != m_context.tables.end() ? table->name : qualifier});
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

void ScriptSource::ProposeObjects(const ProposalQuery& query,
                                  std::vector<Proposal>& proposals) const
{
    const auto rankOf = [&](const ScriptIndex::Object& object) -> int {
        if (object.position == query.start || object.kind == NameKind::Index)
            return -1; // what is being typed
        if (query.place == Place::Table)
            return IsTable(object.kind) ? Rank::Second : Rank::Fifth;
        if (query.place == Place::Routine)
            return IsRoutine(object.kind) ? Rank::First : Rank::Fifth;
        return Rank::Third;
    };
    for (const Fitting& each : FittingObjects(m_index, query.typed, rankOf))
        proposals.push_back(Named(KindOf(each.object.kind), ToText(each.name), each.rank, {},
                                  IsQuotedAt(m_index, m_read, each.object.position)));
}

// Behind what the script has itself, and no name of it twice.
void ScriptSource::ProposeOthers(const ProposalQuery& query, std::vector<Proposal>& proposals) const
{
    if (m_others.empty())
        return;
    QSet<QString> known;
    for (const Proposal& each : proposals)
        known.insert(each.Compared().toCaseFolded());
    const auto rankOf = [&](const ScriptIndex::Object& object) -> int {
        const bool isTable = object.kind == NameKind::Table || object.kind == NameKind::View;
        const bool isRoutine =
            object.kind == NameKind::Procedure || object.kind == NameKind::Function;
        if (query.place == Place::Table)
            return isTable ? Rank::Second + 1 : -1;
        if (query.place == Place::Routine)
            return isRoutine ? Rank::First + 1 : -1;
        return isTable || isRoutine ? Rank::Fourth : -1;
    };
    for (const OtherText& other : m_others) {
        for (const Fitting& each : FittingObjects(*other.index, query.typed, rankOf)) {
            const QString name = ToText(each.name);
            const QString key = name.toCaseFolded();
            if (known.contains(key))
                continue;
            known.insert(key);
            proposals.push_back(Named(KindOf(each.object.kind), name, each.rank, other.name,
                                      IsQuotedAt(*other.index, other.read, each.object.position)));
        }
    }
}

// In the case that the person types in.
void ScriptSource::ProposeLanguage(const ProposalQuery& query, bool takesKeywords,
                                   std::vector<Proposal>& proposals) const
{
    const bool isCapital = query.typed.size() > 0 && query.typed != query.typed.toLower() &&
                           query.typed == query.typed.toUpper();
    const bool isScript = m_index.Dialect() != nullptr;
    for (const LanguageWord& word : m_words) {
        const bool isTable = word.kind == ProposalKind::System;
        const bool mayStand = isTable ? word.text.startsWith(query.typed, Qt::CaseInsensitive)
                                      : StandsForTable(word.text, m_context.behind);
        if (!takesKeywords && !mayStand)
            continue;
        const int rank = m_context.beginsStatement && BeginsStatements(word) ? Rank::BeforeAll
                         : query.place == Place::Table ? (isTable ? Rank::Third : Rank::Fifth)
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
