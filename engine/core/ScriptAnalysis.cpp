// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/core/ScriptAnalysis.h"

#include "engine/colours/SqlRules.h"
#include "engine/core/Documents.h"
#include "engine/core/Engine.h"

#include <algorithm>
#include <new>
#include <utility>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr int kBefore = modification::BeforeInsert | modification::BeforeDelete;

// A millisecond of reading, so that the window answers between two pieces.
constexpr long kIdlePiece = 128 * 1024;

} // namespace

ScriptAnalysis::ScriptAnalysis(Engine& engine) : m_engine(engine)
{
    m_idle.setInterval(0);
    QObject::connect(&m_idle, &QTimer::timeout, &m_idle, [this] { WorkAhead(); });
}

const analysis::SqlDialect* ScriptAnalysis::Dialect() const
{
    const auto* dialect = analysis::DialectByNumber(m_settings.dialect);
    return dialect ? dialect : DialectOf(m_engine.raw, m_engine.colouring->Lexer());
}

analysis::ScriptRules ScriptAnalysis::Rules() const
{
    const auto* dialect = Dialect();
    if (!dialect)
        return {};
    return {dialect, m_settings.separator.value_or(analysis::SeparatorOf(*dialect)),
            TerminatorOf(m_engine.raw)};
}

// Makes ready for a question. False if there is no analysis.
bool ScriptAnalysis::Begin()
{
    if (!m_enabled || m_detached)
        return false;
    if (m_settings.mostUnits > 0 && m_engine.text.Length() > m_settings.mostUnits) {
        Forget();
        return false;
    }
    Settle();
    const long length = m_engine.raw.Length();
    if (!m_partitioner) {
        const analysis::ScriptRules rules = Rules();
        if (!rules.dialect)
            return false;
        m_partitioner = ReadElsewhere(rules);
        if (!m_partitioner)
            m_partitioner = std::make_unique<analysis::Partitioner>(rules, length);
        if (!m_bulkChange)
            Follow();
    } else if (m_bulkChange || m_partitioner->Size() != length) {
        m_partitioner->Reset(length);
    }
    ContinueAhead();
    return true;
}

// What another window of the text has read by the same rules; null if none has.
std::unique_ptr<analysis::Partitioner>
ScriptAnalysis::ReadElsewhere(const analysis::ScriptRules& rules) const
{
    for (Engine* window : documents::Windows(m_engine.Document())) {
        ScriptAnalysis& other = window->analysis;
        if (&other == this || !other.m_partitioner || other.m_bulkChange)
            continue;
        other.Settle();
        if (!other.m_change && other.m_partitioner->Size() == m_engine.raw.Length() &&
            other.m_partitioner->Rules() == rules)
            return std::make_unique<analysis::Partitioner>(*other.m_partitioner);
    }
    return nullptr;
}

// The notifications before a change are the ones that cost nothing else.
void ScriptAnalysis::Follow()
{
    m_following = QObject::connect(
        &m_engine.window, &Sci::SCN_MODIFIED, &m_idle,
        [this](int position, int type, const char*, int length, int, int, int, int, int, int) {
            if (type & kBefore)
                ChangeBegins({(type & modification::BeforeInsert) != 0, position, length,
                              m_engine.raw.Length()});
        });
}

void ScriptAnalysis::ChangeBegins(const Change& change)
{
    Settle();
    m_change = change;
    ContinueAhead();
}

// A change that is in the text by now is made known to the partitioner.
void ScriptAnalysis::Settle()
{
    if (!m_change || m_engine.raw.Length() == m_change->lengthBefore)
        return;
    const Change change = *std::exchange(m_change, std::nullopt);
    if (!m_partitioner)
        return;
    if (change.insertion)
        m_partitioner->Inserted(change.position, change.bytes);
    else
        m_partitioner->Deleted(change.position, change.bytes);
}

void ScriptAnalysis::ContinueAhead()
{
    if (m_worksAhead && m_reconciling && !m_bulkChange && !m_idle.isActive())
        m_idle.start();
}

// Nobody waits for this: where memory does not suffice the next question tries again.
void ScriptAnalysis::WorkAhead()
try {
    Settle();
    const bool ready = m_partitioner && !m_change && m_partitioner->Size() == m_engine.raw.Length();
    if (!ready || !m_partitioner->Work(Text(), kIdlePiece))
        m_idle.stop();
} catch (const std::bad_alloc&) {
    Forget();
}

void ScriptAnalysis::Forget()
{
    QObject::disconnect(m_following);
    m_partitioner.reset();
    m_change.reset();
    m_idle.stop();
}

void ScriptAnalysis::RulesChanged()
{
    if (m_partitioner)
        Forget();
}

// The two runs around the gap; asking for one that spans it would move the gap.
analysis::TextSpans ScriptAnalysis::Text() const
{
    const Raw& raw = m_engine.raw;
    const long gap = static_cast<long>(raw.Send(Sci::SCI_GETGAPPOSITION));
    return {raw.Bytes(0, gap), raw.Bytes(gap, raw.Length())};
}

long ScriptAnalysis::Bytes(long position) const
{
    return m_engine.text.ToBytes({std::max(position, 0L)}).value;
}

ScriptAnalysis::Span ScriptAnalysis::Units(const Span& span) const
{
    return {m_engine.text.ToUnits({span.start}).value, m_engine.text.ToUnits({span.end}).value};
}

std::optional<ScriptAnalysis::Span> ScriptAnalysis::StatementAt(long position)
{
    if (!Begin())
        return std::nullopt;
    const long at = Bytes(position);
    const auto span = m_partitioner->StatementAt(Text(), at);
    return span ? std::optional(Units(*span)) : std::nullopt;
}

std::optional<ScriptAnalysis::Span> ScriptAnalysis::BatchAround(long first, long second)
{
    if (!Begin())
        return std::nullopt;
    const long start = Bytes(first);
    const long last = second > first ? Bytes(second - 1) : start;
    Span batch = m_partitioner->BatchAt(Text(), start);
    if (last > batch.end)
        batch.end = m_partitioner->BatchAt(Text(), last).end;
    return Units(batch);
}

std::optional<std::u16string> ScriptAnalysis::CatalogAt(long position)
{
    if (!Begin())
        return std::nullopt;
    if (!m_settings.catalogIsFixed || m_settings.catalog.empty()) {
        const long at = Bytes(position);
        if (const auto name = m_partitioner->CatalogAt(Text(), at))
            return ToUtf16(*name);
    }
    return m_settings.catalog.empty() ? std::nullopt : std::optional(m_settings.catalog);
}

std::vector<ScriptAnalysis::Span> ScriptAnalysis::Statements(long from, long to)
{
    std::vector<Span> statements;
    if (!Begin())
        return statements;
    const Span range{Bytes(from), to < 0 ? m_engine.raw.Length() : Bytes(to)};
    m_partitioner->ForEachStatement(Text(), range,
                                    [&](const Span& span) { statements.push_back(span); });
    for (Span& span : statements)
        span = Units(span);
    return statements;
}

std::optional<std::u16string> ScriptAnalysis::Separator()
{
    const analysis::ScriptRules rules = Rules();
    return rules.separator.text.empty() ? std::nullopt
                                        : std::optional(ToUtf16(rules.separator.text));
}

bool ScriptAnalysis::Initialize(const partitioner::ServerIdentifier* server, bool worksAhead)
{
    if (server)
        m_settings.dialect = server->nDialect;
    m_worksAhead = worksAhead;
    m_detached = false;
    Forget();
    return Dialect() != nullptr;
}

bool ScriptAnalysis::Attach(int dialect)
{
    if (dialect != partitioner::DialectOfLexer)
        m_settings.dialect = dialect;
    m_detached = false;
    Forget();
    m_attached = Dialect() != nullptr;
    if (m_attached)
        Begin();
    return m_attached;
}

bool ScriptAnalysis::Detach()
{
    Forget();
    m_detached = true;
    return std::exchange(m_attached, false);
}

bool ScriptAnalysis::Reset(int scope, long start, long end)
{
    if (scope == partitioner::ResetAll) {
        m_settings = {};
        FoldBySeparator();
        Forget();
    }
    if (!Begin())
        return false;
    const long from = Bytes(start);
    const long bytes = Bytes(end) - from;
    if (bytes <= 0) {
        m_partitioner->Reset(m_engine.raw.Length());
    } else {
        m_partitioner->Deleted(from, bytes);
        m_partitioner->Inserted(from, bytes);
    }
    return true;
}

void ScriptAnalysis::SetServer(int dialect)
{
    m_settings.dialect = dialect;
    RulesChanged();
}

void ScriptAnalysis::SetSeparator(const char16_t* text, int flags)
{
    m_settings.separator.reset();
    if (text) {
        static constexpr std::string_view kBlanks = " \t\r\n";
        const Utf8Text utf8(TerminatedText(text));
        const std::string_view bytes = utf8.View();
        const auto first = std::min(bytes.find_first_not_of(kBlanks), bytes.size());
        const auto last = bytes.find_last_not_of(kBlanks) + 1;
        m_settings.separator = {
            .text = std::string(bytes.substr(first, last > first ? last - first : 0)),
            .matchCase = (flags & partitioner::MatchCase) != 0,
            .takesCount = (flags & partitioner::NoCount) == 0,
        };
    }
    FoldBySeparator();
    RulesChanged();
}

// Batches fold as they are parted. The folds are the document's: the window that sets last decides.
void ScriptAnalysis::FoldBySeparator()
{
    m_engine.colouring->SetSeparator(m_engine.raw, m_settings.separator);
}

void ScriptAnalysis::SetCatalog(std::u16string text, bool fixed)
{
    m_settings.catalog = std::move(text);
    m_settings.catalogIsFixed = fixed;
}

void ScriptAnalysis::SetEnabled(bool enabled)
{
    m_enabled = enabled;
    if (!enabled)
        Forget();
}

void ScriptAnalysis::SetReconciling(bool reconciling)
{
    m_reconciling = reconciling;
    if (!reconciling)
        m_idle.stop();
    else if (m_partitioner)
        ContinueAhead();
}

// A change of many parts is cheaper to read afresh than to follow.
void ScriptAnalysis::SetBulkChange(bool bulk)
{
    if (bulk == m_bulkChange)
        return;
    m_bulkChange = bulk;
    if (m_partitioner)
        Forget();
}

void ScriptAnalysis::SetMostUnits(int units)
{
    m_settings.mostUnits = std::max(units, 0);
}

} // namespace engine
