// SPDX-License-Identifier: GPL-3.0-or-later
// The script analysis as the control offers it: what the engine allocates becomes a value here and
// is released, in the form of delete that fits its new.
#include "control/ZNCoreEditorControl.h"

#include <algorithm>
#include <memory>

namespace {

constexpr const char16_t* kTerminatorProperty = u"sql.terminator";
constexpr int kSquiggle = 1;
constexpr int kErrorIndicator = 0;
constexpr int kWarningIndicator = 1;
constexpr unsigned long kRed = 0x000000FF;
constexpr unsigned long kYellow = 0x0007E4DF;

template <class T>
LPARAM Address(T* pointer)
{
    return reinterpret_cast<LPARAM>(pointer);
}

std::u16string TakeText(LRESULT answer)
{
    const std::unique_ptr<char16_t[]> text(reinterpret_cast<char16_t*>(answer));
    return text ? std::u16string(text.get()) : std::u16string();
}

std::unique_ptr<PartitionInfo> TakeRecord(LRESULT answer)
{
    return std::unique_ptr<PartitionInfo>(reinterpret_cast<PartitionInfo*>(answer));
}

} // namespace

int CZNCoreEditorControl::PartitionerInit(void* pointer, bool flag, int direct)
{
    return static_cast<int>(Call(engine::message::PartitionerInit,
                                 static_cast<WPARAM>(Address(pointer)), flag ? 1 : 0, direct));
}

int CZNCoreEditorControl::PartitionerReset(int first, int second, int third, int direct)
{
    const NumberPair pair{second, third};
    return static_cast<int>(Call(engine::message::PartitionerReset, static_cast<WPARAM>(first),
                                 Address(&pair), direct));
}

int CZNCoreEditorControl::PartitionGetAt(PartitionInfo& out, int at, int direct)
{
    const auto record =
        TakeRecord(Call(engine::message::PartitionGetAt, static_cast<WPARAM>(at), 0, direct));
    if (!record)
        return 0;
    out = *record;
    return 1;
}

int CZNCoreEditorControl::PartitionGetAll(std::vector<PartitionInfo>& out, int from, int to,
                                          int direct)
{
    auto record =
        TakeRecord(Call(engine::message::PartitionGetAll, static_cast<WPARAM>(from), to, direct));
    while (record) {
        PartitionInfo* next = record->pNext;
        out.push_back(std::move(*record)); // its text goes along instead of being copied
        record.reset(next);
    }
    return 1;
}

std::u16string CZNCoreEditorControl::GetCatalogForOffset(int offset, int direct)
{
    return TakeText(
        Call(engine::message::GetCatalogForOffset, static_cast<WPARAM>(offset), 0, direct));
}

std::u16string CZNCoreEditorControl::GetBatchSeparator(int direct)
{
    return TakeText(Call(engine::message::GetBatchSeparator, 0, 0, direct));
}

int CZNCoreEditorControl::DoFindBatch(long first, long second, long& third, long& fourth,
                                      int direct)
{
    PositionPair around{first, second};
    PositionPair found{third, fourth};
    const LRESULT result = Call(engine::message::DoFindBatch, static_cast<WPARAM>(Address(&around)),
                                Address(&found), direct);
    third = found.first;
    fourth = found.second;
    return result > 0 ? 1 : 0;
}

void CZNCoreEditorControl::SetEnablePartitioner(bool enable, int direct)
{
    Call(engine::message::SetEnablePartitioner, enable ? 1 : 0, 0, direct);
}

int CZNCoreEditorControl::GetMultiCodePage()
{
    return static_cast<int>(Call(engine::message::GetMultiCodePage, 0, 0, 1));
}

void CZNCoreEditorControl::SetEnableReconciler(bool enable, int direct)
{
    Call(engine::message::SetEnableReconciler, enable ? 1 : 0, 0, direct);
}

void CZNCoreEditorControl::SetDoingReplaceAll(bool bulk, int direct)
{
    Call(engine::message::SetDoingReplaceAll, bulk ? 1 : 0, 0, direct);
}

int CZNCoreEditorControl::GetIsReconcilerEnabled()
{
    return static_cast<int>(Call(engine::message::GetIsReconcilerEnabled, 0, 0, 1));
}

void CZNCoreEditorControl::SetStatementTerminator(const char16_t* text, int direct)
{
    SetProperty(kTerminatorProperty, text ? text : u"", direct);
}

std::u16string CZNCoreEditorControl::GetStatementTerminator(int direct)
{
    const int length = std::max(GetProperty(kTerminatorProperty, nullptr, direct), 0);
    std::u16string text(static_cast<std::size_t>(length) + 1, u'\0'); // and its end
    GetProperty(kTerminatorProperty, text.data(), direct);
    text.resize(static_cast<std::size_t>(length));
    return text.empty() ? u";" : text;
}

int CZNCoreEditorControl::DefineErrorIndicators()
{
    IndicSetStyle(kErrorIndicator, kSquiggle, 1);
    IndicSetFore(kErrorIndicator, kRed, 1);
    ErrorsSetIndic(kErrorIndicator, 1);
    IndicSetStyle(kWarningIndicator, kSquiggle, 1);
    IndicSetFore(kWarningIndicator, kYellow, 1);
    WarningsSetIndic(kWarningIndicator, 1);
    return 0;
}

void CZNCoreEditorControl::DefineMarker(int marker, int symbol, unsigned long fore,
                                        unsigned long back)
{
    MarkerDefine(marker, symbol, 1);
    MarkerSetFore(marker, fore, 1);
    MarkerSetBack(marker, back, 1);
}
