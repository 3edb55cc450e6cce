// The error list: 10,000 problems added and shown, and what they cost a typed character.
#include "bench/Pair.h"
#include "bench/Texts.h"
#include "control/ZNCoreEditorWidget.h"

#include <random>

namespace bench {
namespace {

constexpr int kErrors = 10000;
constexpr int kKeys = 10000;

struct Script
{
    explicit Script(bench::Script kind)
    {
        const std::string text = MakeSql(kind, 16 * kMegabyte);
        control.SetText(QString::fromUtf8(text.data(), static_cast<int>(text.size()))
                            .toStdU16String()
                            .c_str(),
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
    void Clear() { control.ErrorDeleteAll(problem::kAny, problem::kAny, 1); }

    ZNCoreEditorWidget editor;
    CZNCoreEditorControl& control = editor.control();
    std::vector<ErrorInfo> records;
};

void AddErrors(benchmark::State& state, bench::Script kind)
{
    Script script(kind);
    double milliseconds = 0;
    for (auto _ : state) {
        script.Clear();
        milliseconds = 1000 * CpuSeconds([&] { script.Add(); });
    }
    ReportFigure(state, milliseconds, 50, "ms for 10,000 errors");
}

void AddAndShow(benchmark::State& state)
{
    Script script(bench::Script::Ascii);
    double milliseconds = 0;
    for (auto _ : state) {
        script.Clear();
        milliseconds = 1000 * CpuSeconds([&] {
            script.Add();
            script.control.ErrorsShow(1);
        });
    }
    ReportFigure(state, milliseconds, 100, "ms for 10,000 errors with their marks");
}

void DeleteEach(benchmark::State& state)
{
    Script script(bench::Script::Ascii);
    double milliseconds = 0;
    for (auto _ : state) {
        script.Clear();
        script.Add();
        script.control.ErrorsShow(1);
        milliseconds = 1000 * CpuSeconds([&] {
            while (const ErrorInfo* first = script.control.ErrorGetFirst(problem::kAny, 1))
                script.control.ErrorDelete(first->nOwner, first->nId, 1);
        });
    }
    ReportFigure(state, milliseconds, 200, "ms for 10,000 errors one by one");
}

// All over the text, the way a replacement goes through it.
void TypeAmongErrors(benchmark::State& state)
{
    Script script(bench::Script::Ascii);
    script.Add();
    script.control.ErrorsShow(1);
    const long stride = script.control.GetLength(1) / kKeys;
    double microseconds = 0;
    for (auto _ : state)
        microseconds = 1e6 / kKeys * CpuSeconds([&] {
            for (int key = 0; key < kKeys; ++key) {
                script.control.SetTarget(static_cast<int>(key * stride),
                                         static_cast<int>(key * stride));
                script.control.ReplaceTargetNoProcess(1, u"x", 1);
            }
        });
    ReportFigure(state, microseconds, 10, "us a character among 10,000 errors");
}

BENCHMARK_CAPTURE(AddErrors, ascii, bench::Script::Ascii)
    ->Name("Errors/add10000")
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(AddErrors, mixed, bench::Script::Mixed)
    ->Name("Errors/add10000Mixed")
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(AddAndShow)->Name("Errors/addAndShow")->Iterations(3)->Unit(benchmark::kMillisecond);
BENCHMARK(DeleteEach)->Name("Errors/deleteEach")->Iterations(3)->Unit(benchmark::kMillisecond);
BENCHMARK(TypeAmongErrors)->Name("Errors/typeAmong")->Iterations(1);

} // namespace
} // namespace bench
