// SPDX-License-Identifier: GPL-3.0-or-later
// What a wrapper's call costs above the raw engine's direct call.
#include "bench/Pair.h"
#include "bench/RawEngine.h"
#include "bench/Texts.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"

#include <algorithm>

namespace bench {
namespace {

using Sci = QsciScintillaBase;

constexpr int kCalls = 1000000;
constexpr int kRounds = 9;

// The least of several rounds: what the call costs when nothing comes between.
double NanosecondsEach(const std::function<void()>& calls)
{
    double least = 1e9;
    for (int round = 0; round < kRounds; ++round)
        least = std::min(least, CpuSeconds(calls));
    return least * 1e9 / kCalls;
}

struct Both
{
    Both()
    {
        const std::string text = MakeSql(Script::Ascii, kMegabyte);
        raw.Load(text);
        editor.control().SetText(std::u16string(text.begin(), text.end()).c_str(), 1);
    }

    ZNCoreEditorWidget editor;
    RawEngine raw;
};

void Untranslated(benchmark::State& state)
{
    Both both;
    CZNCoreEditorControl& control = both.editor.control();
    double above = 0;
    for (auto _ : state) {
        const double ours = NanosecondsEach([&] {
            for (int i = 0; i < kCalls; ++i)
                benchmark::DoNotOptimize(control.GetTabWidth(1));
        });
        const double raw = NanosecondsEach([&] {
            for (int i = 0; i < kCalls; ++i)
                benchmark::DoNotOptimize(both.raw.Send(Sci::SCI_GETTABWIDTH));
        });
        above = ours - raw;
    }
    ReportFigure(state, above, 10, "ns above the raw call");
}

void PositionInAscii(benchmark::State& state)
{
    Both both;
    CZNCoreEditorControl& control = both.editor.control();
    double above = 0;
    for (auto _ : state) {
        const double ours = NanosecondsEach([&] {
            for (int i = 0; i < kCalls; ++i)
                benchmark::DoNotOptimize(control.GetStyleAt(i & 0xFFFF, 1));
        });
        const double raw = NanosecondsEach([&] {
            for (int i = 0; i < kCalls; ++i)
                benchmark::DoNotOptimize(
                    both.raw.Send(Sci::SCI_GETSTYLEAT, static_cast<std::uintptr_t>(i & 0xFFFF)));
        });
        above = ours - raw;
    }
    ReportFigure(state, above, 40, "ns above the raw call");
}

void PositionOutOfAscii(benchmark::State& state)
{
    Both both;
    CZNCoreEditorControl& control = both.editor.control();
    const int lines = control.GetLineCount(1);
    double above = 0;
    for (auto _ : state) {
        const double ours = NanosecondsEach([&] {
            for (int i = 0; i < kCalls; ++i)
                benchmark::DoNotOptimize(control.GetLineEndPosition(i % lines, 1));
        });
        const double raw = NanosecondsEach([&] {
            for (int i = 0; i < kCalls; ++i)
                benchmark::DoNotOptimize(both.raw.Send(Sci::SCI_GETLINEENDPOSITION,
                                                       static_cast<std::uintptr_t>(i % lines)));
        });
        above = ours - raw;
    }
    ReportFigure(state, above, 40, "ns above the raw call");
}

// In the middle of a line of 10 MB, each call a few units from the one before.
void LongMixedLine(benchmark::State& state)
{
    ZNCoreEditorWidget editor;
    CZNCoreEditorControl& control = editor.control();
    const std::u16string line = MakeMixedLine(5 * kMegabyte);
    control.SetText(line.c_str(), 1);
    const auto middle = static_cast<long>(line.size() / 2);
    control.GetStyleAt(middle, 1);
    double each = 0;
    for (auto _ : state)
        each = NanosecondsEach([&] {
            for (int i = 0; i < kCalls; ++i)
                benchmark::DoNotOptimize(control.GetStyleAt(middle + (i * 7) % 64, 1));
        });
    ReportFigure(state, each, 1000, "ns a call");
}

BENCHMARK(Untranslated)->Name("Wrapper/untranslated")->Iterations(1);
BENCHMARK(PositionInAscii)->Name("Wrapper/positionIn")->Iterations(1);
BENCHMARK(PositionOutOfAscii)->Name("Wrapper/positionOut")->Iterations(1);
BENCHMARK(LongMixedLine)->Name("Wrapper/longMixedLine")->Iterations(1);

} // namespace
} // namespace bench
