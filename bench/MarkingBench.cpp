// SPDX-License-Identifier: GPL-3.0-or-later
// Bookmarks among very many: the time of each among many by that among few.
#include "bench/Pair.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"

#include <cstdlib>
#include <string>
#include <vector>

namespace bench {
namespace {

constexpr int kFewMarks = 100000;
constexpr int kManyMarks = 500000;
constexpr double kGrowthLimit = 1.5;

// A match on each line.
struct Editor
{
    explicit Editor(int lines)
    {
        widget.resize(1000, 700);
        control.SetEOLMode(3, 1);
        std::u16string text;
        for (int line = 0; line < lines; ++line)
            text += u"select article from stock where id = 1\n";
        control.SetText(text.c_str(), 1);
        control.EmptyUndoBuffer(1);
    }

    void MarkAll(int expected)
    {
        if (control.MarkAll(QStringLiteral("article"), 0) != expected)
            std::abort(); // other matches: no figure
    }

    // A bookmark with a handle on each of so many lines.
    void SetBookmarks(int count)
    {
        for (long line = 0; line < count; ++line)
            control.ToggleBookmark(line);
    }

    ZNCoreEditorWidget widget;
    CZNCoreEditorControlEx& control = widget.control();
};

double SecondsOfMarkAll(int marks)
{
    Editor editor(marks);
    return CpuSeconds([&] { editor.MarkAll(marks); });
}

double SecondsOfClear(int marks)
{
    Editor editor(marks);
    editor.MarkAll(marks);
    const double seconds = CpuSeconds([&] { editor.control.ClearBookmarks(); });
    if (editor.control.MarkerNext(0, 1, 1) != -1)
        std::abort(); // marks are left: no figure
    return seconds;
}

double SecondsOfSet(int marks)
{
    Editor editor(marks);
    return CpuSeconds([&] { editor.SetBookmarks(marks); });
}

void Growth(benchmark::State& state, double (*secondsOf)(int marks))
{
    std::vector<double> few;
    std::vector<double> many;
    for (auto _ : state) {
        few.push_back(secondsOf(kFewMarks));
        many.push_back(secondsOf(kManyMarks));
    }
    state.counters["ours_ms"] = MedianOf(many) * 1e3;
    state.counters["reference_ms"] = MedianOf(few) * 1e3;
    ReportFigure(state, MedianOf(many) / MedianOf(few) * kFewMarks / kManyMarks, kGrowthLimit,
                 "times as long a mark, of five times as many");
}

// One bookmark taken away among many.
double SecondsOfToggle(int marks)
{
    Editor editor(marks);
    editor.SetBookmarks(marks);
    const int line = marks / 2;
    const double seconds = CpuSeconds([&] { editor.control.ToggleBookmark(line); });
    if (editor.control.MarkerGet(line, 1) & 1)
        std::abort(); // the mark is left: no figure
    return seconds;
}

const bool kRegistered = [] {
    constexpr int kRounds = 3;
    benchmark::RegisterBenchmark("Marks/MarkAll", Growth, SecondsOfMarkAll)->Iterations(kRounds);
    benchmark::RegisterBenchmark("Marks/Clear", Growth, SecondsOfClear)->Iterations(kRounds);
    benchmark::RegisterBenchmark("Marks/Set", Growth, SecondsOfSet)->Iterations(kRounds);
    benchmark::RegisterBenchmark("Marks/Toggle", Growth, SecondsOfToggle)->Iterations(kRounds);
    return true;
}();

} // namespace
} // namespace bench
