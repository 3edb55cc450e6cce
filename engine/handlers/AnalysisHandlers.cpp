// SPDX-License-Identifier: GPL-3.0-or-later
// Messages of the script analysis but for the error list. What their numbers mean stands in
// control/Analysis.h.
#include "control/PartitionInfo.h"
#include "engine/core/Engine.h"
#include "engine/core/Handlers.h"

#include <algorithm>

namespace engine {
namespace {

int Number(WPARAM value)
{
    return static_cast<int>(value);
}

int Number(LPARAM value)
{
    return static_cast<int>(value);
}

template <class T>
LRESULT Address(T* object)
{
    return reinterpret_cast<LRESULT>(object);
}

const char16_t* Text(WPARAM value)
{
    return reinterpret_cast<const char16_t*>(value);
}

// A text that the caller releases.
LRESULT Give(const std::optional<std::u16string>& text)
{
    if (!text)
        return 0;
    auto* given = new char16_t[text->size() + 1];
    std::copy_n(text->c_str(), text->size() + 1, given);
    return Address(given);
}

// A record that the caller releases.
PartitionInfo* RecordOf(const Engine& engine, const ScriptAnalysis::Span& span)
{
    auto record = std::make_unique<PartitionInfo>();
    record->nFirst = static_cast<int>(span.start);
    record->nSecond = static_cast<int>(span.end);
    const long units = span.end - span.start;
    if (units <= partitioner::LongestText) {
        const auto size = static_cast<std::size_t>(units);
        record->pszText = new char16_t[size + 1];
        const std::string_view bytes = engine.raw.Bytes(engine.text.ToBytes({span.start}).value,
                                                        engine.text.ToBytes({span.end}).value);
        record->pszText[ToUtf16(bytes, record->pszText, size)] = 0;
    }
    return record.release();
}

LRESULT PartitionGetAt(Engine& engine, WPARAM wParam, LPARAM)
{
    const int at = Number(wParam);
    const auto span = engine.analysis.StatementAt(at < 0 ? engine.CaretPosition() : at);
    return span ? Address(RecordOf(engine, *span)) : 0;
}

LRESULT PartitionGetAll(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    PartitionInfo* head = nullptr;
    PartitionInfo** next = &head;
    for (const auto& span : engine.analysis.Statements(Number(wParam), Number(lParam))) {
        *next = RecordOf(engine, span);
        next = &(*next)->pNext;
    }
    return Address(head);
}

LRESULT DoFindBatch(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    const auto* around = reinterpret_cast<const PositionPair*>(wParam);
    auto* found = reinterpret_cast<PositionPair*>(lParam);
    if (!around || !found)
        return 0;
    const auto batch = engine.analysis.BatchAround(around->first, around->second);
    if (batch)
        *found = {batch->start, batch->end};
    return batch.has_value();
}

LRESULT GetCatalogForOffset(Engine& engine, WPARAM wParam, LPARAM)
{
    return Give(engine.analysis.CatalogAt(Number(wParam)));
}

LRESULT GetBatchSeparator(Engine& engine, WPARAM, LPARAM)
{
    return Give(engine.analysis.Separator());
}

LRESULT SetBatchSeparator(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    engine.analysis.SetSeparator(Text(wParam), Number(lParam));
    return 0;
}

LRESULT SetCurrentCatalog(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    engine.analysis.SetCatalog(std::u16string(TerminatedText(Text(wParam))),
                               Number(lParam) == partitioner::CatalogFixed);
    return 0;
}

LRESULT SetServerIdentifier(Engine& engine, WPARAM wParam, LPARAM)
{
    const auto* server = reinterpret_cast<const partitioner::ServerIdentifier*>(wParam);
    engine.analysis.SetServer(server ? server->nDialect : partitioner::DialectOfLexer);
    return 0;
}

LRESULT PartitionerInit(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    const auto* server = reinterpret_cast<const partitioner::ServerIdentifier*>(wParam);
    return engine.analysis.Initialize(server, lParam != 0);
}

LRESULT PartitionerAttach(Engine& engine, WPARAM wParam, LPARAM)
{
    return engine.analysis.Attach(Number(wParam));
}

LRESULT PartitionerDetach(Engine& engine, WPARAM, LPARAM)
{
    return engine.analysis.Detach();
}

LRESULT PartitionerReset(Engine& engine, WPARAM wParam, LPARAM lParam)
{
    const auto* pair = reinterpret_cast<const NumberPair*>(lParam);
    const NumberPair range = pair ? *pair : NumberPair();
    return engine.analysis.Reset(Number(wParam), range.first, range.second);
}

LRESULT PartitionerSetMaxFileSize(Engine& engine, WPARAM wParam, LPARAM)
{
    engine.analysis.SetMostUnits(Number(wParam));
    return 0;
}

LRESULT PartitionerGetMaxFileSize(Engine& engine, WPARAM, LPARAM)
{
    return engine.analysis.MostUnits();
}

LRESULT SetEnablePartitioner(Engine& engine, WPARAM wParam, LPARAM)
{
    engine.analysis.SetEnabled(wParam != 0);
    return 0;
}

LRESULT SetEnableReconciler(Engine& engine, WPARAM wParam, LPARAM)
{
    engine.reconciler = wParam != 0;
    engine.analysis.SetReconciling(engine.reconciler);
    return 0;
}

LRESULT GetIsReconcilerEnabled(Engine& engine, WPARAM, LPARAM)
{
    return engine.reconciler;
}

LRESULT SetDoingReplaceAll(Engine& engine, WPARAM wParam, LPARAM)
{
    engine.bulkChange = wParam != 0;
    engine.analysis.SetBulkChange(engine.bulkChange);
    if (!engine.bulkChange)
        engine.TellSelection();
    return 0;
}

// The text is UTF-16 to everybody; bytes that cross the channel are UTF-8.
LRESULT GetMultiCodePage(Engine&, WPARAM, LPARAM)
{
    return QsciScintillaBase::SC_CP_UTF8;
}

constexpr HandlerRow kRows[] = {
    {message::PartitionerInit, PartitionerInit},
    {message::PartitionerAttach, PartitionerAttach},
    {message::PartitionerDetach, PartitionerDetach},
    {message::PartitionerReset, PartitionerReset},
    {message::PartitionerSetMaxFileSize, PartitionerSetMaxFileSize},
    {message::PartitionerGetMaxFileSize, PartitionerGetMaxFileSize},
    {message::PartitionGetAt, PartitionGetAt},
    {message::PartitionGetAll, PartitionGetAll},
    {message::DoFindBatch, DoFindBatch},
    {message::SetBatchSeparator, SetBatchSeparator},
    {message::GetBatchSeparator, GetBatchSeparator},
    {message::SetCurrentCatalog, SetCurrentCatalog},
    {message::GetCatalogForOffset, GetCatalogForOffset},
    {message::SetServerIdentifier, SetServerIdentifier},
    {message::SetEnablePartitioner, SetEnablePartitioner},
    {message::SetEnableReconciler, SetEnableReconciler},
    {message::GetIsReconcilerEnabled, GetIsReconcilerEnabled},
    {message::SetDoingReplaceAll, SetDoingReplaceAll},
    {message::GetMultiCodePage, GetMultiCodePage},
};

} // namespace

std::span<const HandlerRow> AnalysisHandlers()
{
    return kRows;
}

} // namespace engine
