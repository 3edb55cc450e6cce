// SPDX-License-Identifier: GPL-3.0-or-later
// The operations of the script analysis: what they send, and what becomes of memory that the
// engine hands over.
#include "tests/control/ControlFixture.h"
#include "tests/control/RecordingEngine.h"

#include <climits>

namespace {

namespace msg = engine::message;
using recording::AnswerTo;
using recording::Messages;
using recording::Sentences;
using Strings = std::vector<std::string>;

LRESULT NewText(const char16_t* text)
{
    return reinterpret_cast<LRESULT>(PartitionInfo::Duplicate(text));
}

PartitionInfo* NewPartition(int first, int second, const char16_t* text,
                            PartitionInfo* next = nullptr)
{
    auto* record = new PartitionInfo;
    record->nFirst = first;
    record->nSecond = second;
    record->pszText = PartitionInfo::Duplicate(text);
    record->pNext = next;
    return record;
}

void AnswerWithPartitions(UINT number, PartitionInfo* records)
{
    AnswerTo(number, [records](WPARAM, LPARAM) { return reinterpret_cast<LRESULT>(records); });
}

class AnalysisWrappers : public ControlTest
{
protected:
    AnalysisWrappers() { recording::Forget(); }
    ~AnalysisWrappers() override { recording::Forget(); }
};

} // namespace

TEST(PartitionRecord, ACopyHasATextOfItsOwn)
{
    const std::unique_ptr<PartitionInfo> record(NewPartition(3, 4, u"master"));
    PartitionInfo next;
    record->pNext = &next;
    const PartitionInfo copy(*record);
    EXPECT_NE(copy.pszText, record->pszText);
    EXPECT_EQ(std::u16string(copy.pszText), u"master");
    EXPECT_EQ(copy.nFirst, 3);
    EXPECT_EQ(copy.nSecond, 4);
    EXPECT_EQ(copy.pNext, &next);
}

TEST(PartitionRecord, AssigningReleasesTheOldText)
{
    const std::unique_ptr<PartitionInfo> full(NewPartition(1, 2, u"tempdb"));
    const std::unique_ptr<PartitionInfo> other(NewPartition(0, 0, u"a longer text than that"));
    *other = *full;
    EXPECT_EQ(std::u16string(other->pszText), u"tempdb");
    *other = *static_cast<const PartitionInfo*>(other.get());
    EXPECT_EQ(std::u16string(other->pszText), u"tempdb");
    *other = PartitionInfo();
    EXPECT_EQ(other->pszText, nullptr);
}

TEST(ErrorRecord, ACopyHasATextOfItsOwn)
{
    ErrorInfo record;
    record.nStart = 7;
    record.nCode = 208;
    record.SetText(u"Invalid object name");
    ErrorInfo copy(record);
    record.SetText(nullptr);
    EXPECT_EQ(record.pszText, nullptr);
    EXPECT_EQ(std::u16string(copy.pszText), u"Invalid object name");
    EXPECT_EQ(copy.nStart, 7);
    EXPECT_EQ(copy.nCode, 208);
    copy = record;
    EXPECT_EQ(copy.pszText, nullptr);
}

TEST_F(AnalysisWrappers, ABatchSeparatorIsTakenOver)
{
    AnswerTo(msg::GetBatchSeparator, [](WPARAM, LPARAM) { return NewText(u"GO"); });
    EXPECT_EQ(control.GetBatchSeparator(1), u"GO");
    EXPECT_EQ(control.GetBatchSeparator(0), u"GO");
    EXPECT_EQ(Sentences(), (Strings{"GetBatchSeparator", "GetBatchSeparator"}));
    EXPECT_TRUE(Messages()[0].direct);
    EXPECT_FALSE(Messages()[1].direct);
}

TEST_F(AnalysisWrappers, NoBatchSeparatorIsAnEmptyText)
{
    EXPECT_EQ(control.GetBatchSeparator(1), u"");
    EXPECT_EQ(control.GetCatalogForOffset(12, 1), u"");
    EXPECT_EQ(Messages().size(), 2u);
}

TEST_F(AnalysisWrappers, ACatalogIsAskedForByItsOffset)
{
    AnswerTo(msg::GetCatalogForOffset, [](WPARAM, LPARAM) { return NewText(u"m\u00e4ster"); });
    EXPECT_EQ(control.GetCatalogForOffset(120, 1), u"m\u00e4ster");
    EXPECT_EQ(Sentences(), (Strings{"GetCatalogForOffset 120"}));
}

TEST_F(AnalysisWrappers, APartitionIsTakenOver)
{
    AnswerWithPartitions(msg::PartitionGetAt, NewPartition(10, 20, u"select 1"));
    PartitionInfo out;
    out.pszText = PartitionInfo::Duplicate(u"what stood there");
    EXPECT_EQ(control.PartitionGetAt(out, 15, 1), 1);
    EXPECT_EQ(out.nFirst, 10);
    EXPECT_EQ(out.nSecond, 20);
    EXPECT_EQ(std::u16string(out.pszText), u"select 1");
    EXPECT_EQ(Sentences(), (Strings{"PartitionGetAt 15"}));
}

TEST_F(AnalysisWrappers, APartitionWithoutATextLeavesNone)
{
    AnswerWithPartitions(msg::PartitionGetAt, NewPartition(10, 20, nullptr));
    PartitionInfo out;
    out.pszText = PartitionInfo::Duplicate(u"what stood there");
    EXPECT_EQ(control.PartitionGetAt(out, 15, 1), 1);
    EXPECT_EQ(out.pszText, nullptr);
}

TEST_F(AnalysisWrappers, NoPartitionLeavesTheRecordUntouched)
{
    PartitionInfo out;
    out.nFirst = 5;
    out.pszText = PartitionInfo::Duplicate(u"kept");
    const char16_t* text = out.pszText;
    EXPECT_EQ(control.PartitionGetAt(out, 15, 1), 0);
    EXPECT_EQ(out.nFirst, 5);
    EXPECT_EQ(out.pszText, text);
}

TEST_F(AnalysisWrappers, AllPartitionsAreAppended)
{
    std::vector<PartitionInfo> out;
    AnswerWithPartitions(msg::PartitionGetAll,
                         NewPartition(0, 9, u"one", NewPartition(9, 12, nullptr)));
    EXPECT_EQ(control.PartitionGetAll(out, 0, 100, 1), 1);
    AnswerWithPartitions(msg::PartitionGetAll, NewPartition(12, 30, u"three"));
    EXPECT_EQ(control.PartitionGetAll(out, 50, 60, 1), 1);
    ASSERT_EQ(out.size(), 3u);
    EXPECT_EQ(std::u16string(out[0].pszText), u"one");
    EXPECT_NE(out[0].pNext, nullptr);
    EXPECT_EQ(out[1].pszText, nullptr);
    EXPECT_EQ(out[1].nFirst, 9);
    EXPECT_EQ(std::u16string(out[2].pszText), u"three");
    EXPECT_EQ(Sentences(), (Strings{"PartitionGetAll 0 100", "PartitionGetAll 50 60"}));
}

TEST_F(AnalysisWrappers, NoPartitionsAppendNothing)
{
    std::vector<PartitionInfo> out(2);
    EXPECT_EQ(control.PartitionGetAll(out, 0, 100, 1), 1);
    EXPECT_EQ(out.size(), 2u);
}

TEST_F(AnalysisWrappers, AResetPassesItsPair)
{
    NumberPair passed;
    AnswerTo(msg::PartitionerReset, [&passed](WPARAM, LPARAM lParam) {
        passed = *reinterpret_cast<const NumberPair*>(lParam);
        return 77;
    });
    EXPECT_EQ(control.PartitionerReset(3, -4, INT_MAX, 1), 77);
    EXPECT_EQ(Messages().front().wParam, 3u);
    EXPECT_EQ(passed.first, -4);
    EXPECT_EQ(passed.second, INT_MAX);
}

namespace {

struct BatchAnswer
{
    LRESULT answer;
    int result;
};

class FindBatch : public AnalysisWrappers, public testing::WithParamInterface<BatchAnswer>
{};

} // namespace

TEST_P(FindBatch, CopiesThePairBackWhateverTheAnswer)
{
    PositionPair around;
    PositionPair before;
    AnswerTo(msg::DoFindBatch, [&](WPARAM wParam, LPARAM lParam) {
        around = *reinterpret_cast<const PositionPair*>(wParam);
        auto& found = *reinterpret_cast<PositionPair*>(lParam);
        before = std::exchange(found, {40, -50});
        return GetParam().answer;
    });
    long third = 3;
    long fourth = 4;
    EXPECT_EQ(control.DoFindBatch(1, 2, third, fourth, 1), GetParam().result);
    EXPECT_EQ(around.first, 1);
    EXPECT_EQ(around.second, 2);
    EXPECT_EQ(before.first, 3);
    EXPECT_EQ(before.second, 4);
    EXPECT_EQ(third, 40);
    EXPECT_EQ(fourth, -50);
}

INSTANTIATE_TEST_SUITE_P(Answers, FindBatch,
                         testing::Values(BatchAnswer{5, 1}, BatchAnswer{1, 1}, BatchAnswer{0, 0},
                                         BatchAnswer{-1, 0}));

TEST_F(AnalysisWrappers, SwitchesSendNoughtOrOne)
{
    control.SetEnablePartitioner(true, 1);
    control.SetEnablePartitioner(false, 0);
    control.PartitionerInit(&control, true, 1);
    control.GetMultiCodePage();
    control.GetIsReconcilerEnabled();
    EXPECT_EQ(Sentences(), (Strings{"SetEnablePartitioner 1", "SetEnablePartitioner 0",
                                    "PartitionerInit " +
                                        std::to_string(reinterpret_cast<LPARAM>(&control)) + " 1",
                                    "GetMultiCodePage", "GetIsReconcilerEnabled"}));
    EXPECT_TRUE(Messages()[3].direct);
    EXPECT_TRUE(Messages()[4].direct);
}

TEST_F(AnalysisWrappers, TheListsOwnRecordIsHandedThrough)
{
    ErrorInfo record;
    ErrorMap map;
    AnswerTo(msg::ErrorGetFirst,
             [&](WPARAM, LPARAM) { return reinterpret_cast<LRESULT>(&record); });
    AnswerTo(msg::ErrorsGetAll, [&](WPARAM, LPARAM) { return reinterpret_cast<LRESULT>(&map); });
    EXPECT_EQ(control.ErrorGetFirst(problem::kAny, 1), &record);
    EXPECT_EQ(control.ErrorGetNext(problem::kAny, 1), nullptr);
    EXPECT_EQ(control.ErrorsGetAll(problem::kAny, problem::Syntax, 1), &map);
}

TEST_F(AnalysisWrappers, ErrorsAreRedSquigglesAndWarningsYellowOnes)
{
    EXPECT_EQ(control.DefineErrorIndicators(), 0);
    EXPECT_EQ(Sentences(),
              (Strings{"IndicSetStyle 0 1", "IndicSetFore 0 255", "ErrorsSetIndic 0",
                       "IndicSetStyle 1 1", "IndicSetFore 1 517343", "WarningsSetIndic 1"}));
    for (const recording::Message& message : Messages())
        EXPECT_TRUE(message.direct);
}

TEST_F(AnalysisWrappers, AMarkerGetsItsSymbolBeforeItsColours)
{
    control.DefineMarker(7, 4, 0x0000FF, 0xFFFFFF);
    EXPECT_EQ(Sentences(),
              (Strings{"MarkerDefine 7 4", "MarkerSetFore 7 255", "MarkerSetBack 7 16777215"}));
}

TEST_F(AnalysisWrappers, WithoutAWindowEveryAnswerIsTheEmptyOne)
{
    delete control.GetSafeHwnd();
    PartitionInfo record;
    record.nFirst = 5;
    std::vector<PartitionInfo> records(1);
    long third = LONG_MAX;
    long fourth = LONG_MIN;
    EXPECT_EQ(control.GetBatchSeparator(1), u"");
    EXPECT_EQ(control.GetCatalogForOffset(0, 0), u"");
    EXPECT_EQ(control.PartitionGetAt(record, 0, 1), 0);
    EXPECT_EQ(record.nFirst, 5);
    EXPECT_EQ(control.PartitionGetAll(records, 0, 1, 1), 1);
    EXPECT_EQ(records.size(), 1u);
    EXPECT_EQ(control.PartitionerReset(1, 2, 3, 1), 0);
    EXPECT_EQ(control.PartitionerInit(nullptr, true, 1), 0);
    EXPECT_EQ(control.DoFindBatch(1, 2, third, fourth, 1), 0);
    EXPECT_EQ(third, LONG_MAX);
    EXPECT_EQ(fourth, LONG_MIN);
    EXPECT_EQ(control.GetMultiCodePage(), 0);
    EXPECT_EQ(control.ErrorGetOverPos(0, 1), nullptr);
    EXPECT_EQ(control.ErrorsGetAll(-1, -1, 1), nullptr);
    EXPECT_EQ(control.DefineErrorIndicators(), 0);
    EXPECT_TRUE(Messages().empty());
}
