// SPDX-License-Identifier: GPL-3.0-or-later
// The script analysis on 64 MB: the first look, one typed character, the questions, the memory.
// All but the memory is measured through the control, translation of positions included.
#include "bench/Pair.h"
#include "bench/Texts.h"
#include "control/Analysis.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "engine/analysis/Partitioner.h"

#include <QString>

#include <algorithm>
#include <memory>
#include <random>
#include <vector>

namespace bench {
namespace {

constexpr std::size_t kBytes = 64 * kMegabyte;
constexpr int kLexer = 3; // Transact-SQL
constexpr double kMegabytesPerSecond = 100;
constexpr double kTypedLimit = 100; // us
constexpr double kAskedLimit = 5;   // us
constexpr double kMemoryLimit = 32; // bytes

// Some of the letters with accents. Quotes and terminators stay, or it would be one statement.
std::string Accented(const std::string& ascii)
{
    std::mt19937 random(7);
    std::string text;
    for (const char c : ascii) {
        if (c >= 'a' && c <= 'z' && random() % 100 < 15)
            text += "\u00e9";
        else
            text += c;
    }
    return text;
}

// Statements in batches of 400 lines, every tenth of which begins with USE.
std::string MakeBatches(Script script)
{
    const std::string ascii = MakeSql(Script::Ascii, 24000);
    const std::string batch = (script == Script::Ascii ? ascii : Accented(ascii)) + "go\n";
    std::string text;
    text.reserve(kBytes + batch.size());
    for (int i = 0; text.size() < kBytes; ++i)
        text += (i % 10 == 0 ? "use stock" + std::to_string(i) + "\n" : std::string()) + batch;
    return text;
}

struct Editor
{
    explicit Editor(const std::string& text)
    {
        control.SetLexer(kLexer, 1);
        control.SetText(QString::fromStdString(text).toStdU16String().c_str(), 1);
        control.SetUndoCollection(0, 1);
        length = static_cast<int>(control.GetLength(1));
    }

    void Erase(int position, int units)
    {
        control.SetTarget(position, position + units);
        control.ReplaceTargetNoProcess(0, u"", 1);
    }

    // Everything is read.
    void Settle() { control.PartitionGetAt(found, length, 1); }

    ZNCoreEditorWidget widget;
    CZNCoreEditorControl& control = widget.control();
    PartitionInfo found;
    int length = 0;
};

Editor& Ready(Script script)
{
    static std::unique_ptr<Editor> editors[2];
    auto& editor = editors[script == Script::Mixed];
    if (!editor)
        editor = std::make_unique<Editor>(MakeBatches(script));
    return *editor;
}

void FirstLook(benchmark::State& state, Script script)
{
    Editor& editor = Ready(script);
    std::vector<double> times;
    for (auto _ : state) {
        editor.control.PartitionerReset(partitioner::ResetText, 0, 0, 1);
        times.push_back(1e3 * CpuSeconds([&] { editor.Settle(); }));
    }
    const double bar = 1e3 * (static_cast<double>(kBytes) / 1e6) / kMegabytesPerSecond;
    state.counters["MB_per_s"] = kMegabytesPerSecond * bar / MedianOf(times);
    ReportFigure(state, MedianOf(times), bar, "ms for 64 MB");
}

// A character, and the statement at it.
double TypeAndAsk(Editor& editor, int position, const char16_t* text)
{
    return 1e6 * CpuSeconds([&] {
               editor.control.InsertText(position, text, 1);
               editor.control.PartitionGetAt(editor.found, position + 1, 1);
           });
}

void Typed(benchmark::State& state, Script script, double place)
{
    Editor& editor = Ready(script);
    editor.Settle();
    const int at = static_cast<int>(place * (editor.length - 200)) + 100;
    std::vector<double> times;
    for (auto _ : state) {
        for (int i = 0; i < 200; ++i)
            times.push_back(TypeAndAsk(editor, at + i, u"x"));
        editor.Erase(at, 200);
        editor.Settle();
    }
    std::sort(times.begin(), times.end());
    state.counters["p99_us"] = times[times.size() * 99 / 100];
    ReportFigure(state, MedianOf(times), kTypedLimit, "us a character, median");
}

// What turns the rest of the text inside out, and is answered where it stands.
void Opened(benchmark::State& state, const char16_t* opener)
{
    Editor& editor = Ready(Script::Ascii);
    const int units = static_cast<int>(std::char_traits<char16_t>::length(opener));
    editor.control.InsertText(0, u" ", 1); // the gap comes here once, which is the text's own cost
    editor.Erase(0, 1);
    std::vector<double> times;
    for (auto _ : state) {
        editor.Settle();
        times.push_back(1e6 * CpuSeconds([&] {
                            editor.control.InsertText(0, opener, 1);
                            editor.control.GetCatalogForOffset(units, 1);
                        }));
        times.push_back(1e6 * CpuSeconds([&] {
                            editor.Erase(0, units);
                            editor.control.GetCatalogForOffset(units, 1);
                        }));
    }
    ReportFigure(state, *std::max_element(times.begin(), times.end()), kTypedLimit,
                 "us to open or close, the most");
}

// The farthest a question can reach: no statement but the one that the comment swallows.
void SwallowedRest(benchmark::State& state)
{
    Editor& editor = Ready(Script::Ascii);
    editor.Settle();
    std::vector<double> times;
    for (auto _ : state) {
        times.push_back(1e3 * CpuSeconds([&] {
                            editor.control.InsertText(0, u"'", 1);
                            editor.control.PartitionGetAt(editor.found, 1, 1);
                        }));
        editor.Erase(0, 1);
        editor.Settle();
    }
    state.counters["ours_ms"] = MedianOf(times);
}

enum class Question
{
    Statement,
    Batch,
    Catalog
};

void Asked(benchmark::State& state, Script script, Question question)
{
    constexpr int kQuestions = 20000;
    Editor& editor = Ready(script);
    editor.Settle();
    std::mt19937 random(11);
    std::vector<double> times;
    for (auto _ : state) {
        const double seconds = CpuSeconds([&] {
            for (int i = 0; i < kQuestions; ++i) {
                const int at = static_cast<int>(random() % static_cast<unsigned>(editor.length));
                long start = 0;
                long end = 0;
                if (question == Question::Statement)
                    editor.control.PartitionGetAt(editor.found, at, 1);
                else if (question == Question::Batch)
                    editor.control.DoFindBatch(at, at, start, end, 1);
                else
                    benchmark::DoNotOptimize(editor.control.GetCatalogForOffset(at, 1));
            }
        });
        times.push_back(1e6 * seconds / kQuestions);
    }
    ReportFigure(state, MedianOf(times), kAskedLimit, "us a question");
}

void Memory(benchmark::State& state, Script script)
{
    using namespace engine::analysis;
    const std::string text = MakeBatches(script);
    const SqlDialect& dialect = *DialectOfLexer(kLexer);
    double bytes = 0;
    for (auto _ : state) {
        Partitioner all({&dialect, SeparatorOf(dialect)}, static_cast<long>(text.size()));
        long statements = 0;
        all.ForEachStatement(TextSpans(text), {0, static_cast<long>(text.size())},
                             [&](const Span&) { ++statements; });
        bytes = static_cast<double>(all.MemoryBytes()) / static_cast<double>(statements);
        state.counters["statements"] = static_cast<double>(statements);
    }
    ReportFigure(state, bytes, kMemoryLimit, "bytes a partition");
}

const bool kRegistered = [] {
    const auto name = [](const char* what, Script script) {
        return std::string(what) + NameOf(script);
    };
    for (const Script script : {Script::Ascii, Script::Mixed}) {
        benchmark::RegisterBenchmark(name("Analysis/firstLook/", script).c_str(), FirstLook, script)
            ->Iterations(3);
        for (const auto& [place, where] :
             {std::pair("/start", 0.0), {"/middle", 0.5}, {"/end", 1.0}})
            benchmark::RegisterBenchmark((name("Analysis/typed/", script) + place).c_str(), Typed,
                                         script, where)
                ->Iterations(3);
        for (const auto& [what, question] :
             {std::pair("Analysis/statementAt/", Question::Statement),
              {"Analysis/batchAround/", Question::Batch},
              {"Analysis/catalogAt/", Question::Catalog}})
            benchmark::RegisterBenchmark(name(what, script).c_str(), Asked, script, question)
                ->Iterations(3);
        benchmark::RegisterBenchmark(name("Analysis/memory/", script).c_str(), Memory, script)
            ->Iterations(1);
    }
    benchmark::RegisterBenchmark("Analysis/openedComment", Opened, u"/*")->Iterations(5);
    benchmark::RegisterBenchmark("Analysis/openedString", Opened, u"'")->Iterations(5);
    benchmark::RegisterBenchmark("Analysis/swallowedRest", SwallowedRest)->Iterations(3);
    return true;
}();

} // namespace
} // namespace bench
