// SPDX-License-Identifier: GPL-3.0-or-later
// The error list: 10,000 problems added and shown, and what they cost a typed character.
#include "bench/Pair.h"
#include "bench/Texts.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"

#include <algorithm>
#include <random>

namespace bench {
namespace {

constexpr int kErrors = 10000;
constexpr int kKeys = 10000;

struct FaultyScript
{
    explicit FaultyScript(Script kind)
    {
        const std::string& text = Sql64(kind);
        control.SetText(
            QString::fromUtf8(text.data(), static_cast<int>(text.size())).toStdU16String().c_str(),
            1);
        control.DefineErrorIndicators();
        control.ErrorsSetMarkNum(2, 1);
        control.WarningsSetMarkNum(9, 1);
        // As several checks would report them: not in the order of the text.
        std::mt19937 random(4711);
        std::uniform_int_distribution<long> place(0, control.GetLength(1) - 20);
        records.resize(kErrors);
        for (std::size_t i = 0; i < records.size(); ++i) {
            records[i].nStart = place(random);
            records[i].nEnd = records[i].nStart + 12;
            records[i].nSeverity = i % 2 ? problem::Error : problem::Warning;
            records[i].SetText(u"Incorrect syntax near the keyword 'select'.");
        }
    }

    void Add()
    {
        for (const ErrorInfo& record : records)
            control.ErrorAdd(1, &record, 1);
    }
    void AddAndShow()
    {
        Add();
        control.ErrorsShow(1);
    }
    void Clear() { control.ErrorDeleteAll(problem::kAny, problem::kAny, 1); }

    ZNCoreEditorWidget editor;
    CZNCoreEditorControl& control = editor.control();
    std::vector<ErrorInfo> records;
};

// Milliseconds of the slowest round; each begins with an empty list.
double Slowest(benchmark::State& state, FaultyScript& script, const std::function<void()>& prepare,
               const std::function<void()>& work)
{
    double slowest = 0;
    for (auto _ : state) {
        script.Clear();
        prepare();
        slowest = std::max(slowest, 1000 * CpuSeconds(work));
    }
    return slowest;
}

void AddErrors(benchmark::State& state, Script kind)
{
    FaultyScript script(kind);
    script.Add(); // the index of positions is the text's, and is made once
    const double slowest = Slowest(
        state, script, [] {}, [&] { script.Add(); });
    ReportFigure(state, slowest, 50, "ms for 10,000 errors");
}

void AddAndShow(benchmark::State& state)
{
    FaultyScript script(Script::Ascii);
    const double slowest = Slowest(
        state, script, [] {}, [&] { script.AddAndShow(); });
    ReportFigure(state, slowest, 100, "ms for 10,000 errors with their marks");
}

void DeleteEach(benchmark::State& state)
{
    FaultyScript script(Script::Ascii);
    const auto deleteEach = [&] {
        while (const ErrorInfo* first = script.control.ErrorGetFirst(problem::kAny, 1))
            script.control.ErrorDelete(first->nOwner, first->nId, 1);
    };
    const double slowest = Slowest(
        state, script, [&] { script.AddAndShow(); }, deleteEach);
    ReportFigure(state, slowest, 200, "ms for 10,000 errors one by one");
}

// All over the text, the way a replacement goes through it.
void TypeAllOver(CZNCoreEditorControl& control)
{
    const int stride = static_cast<int>(control.GetLength(1) / kKeys);
    for (int key = 0; key < kKeys; ++key) {
        control.SetTarget(key * stride, key * stride);
        control.ReplaceTargetNoProcess(1, u"x", 1);
    }
}

void TypeAmongErrors(benchmark::State& state)
{
    FaultyScript script(Script::Ascii);
    script.AddAndShow();
    FaultyScript faultless(Script::Ascii);
    MeasurePair(
        state, [&] { TypeAllOver(script.control); }, [&] { TypeAllOver(faultless.control); }, 3);
}

BENCHMARK_CAPTURE(AddErrors, ascii, Script::Ascii)
    ->Name("Errors/add10000")
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(AddErrors, mixed, Script::Mixed)
    ->Name("Errors/add10000Mixed")
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(AddAndShow)->Name("Errors/addAndShow")->Iterations(3)->Unit(benchmark::kMillisecond);
BENCHMARK(DeleteEach)->Name("Errors/deleteEach")->Iterations(3)->Unit(benchmark::kMillisecond);
BENCHMARK(TypeAmongErrors)->Name("Errors/typeAmong")->Iterations(5);

} // namespace
} // namespace bench
