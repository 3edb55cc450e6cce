// SPDX-License-Identifier: GPL-3.0-or-later
// Searching and replacing through the control beside the raw engine's own search, on the same text
// and with the same matches.
#include "bench/Pair.h"
#include "bench/RawEngine.h"
#include "bench/Texts.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "search/FindReplaceManager.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <iostream>
#include <vector>

namespace bench {
namespace {

using Sci = QsciScintillaBase;

constexpr int kWholeWord = 2;
constexpr int kMatchCase = 4;
constexpr int kExpression = 0x200000;
constexpr double kSearchLimit = 0.2;
constexpr double kReplaceLimit = 1.5;
constexpr long kReplacements = 500000;

struct SearchRow
{
    const char* name;
    const char* sought; // ASCII
    int flags;
};

constexpr SearchRow kRows[] = {
    {"word", "article", 0},
    {"wordMatchCase", "article", kMatchCase},
    {"wholeWord", "stock", kWholeWord},
    {"rareWord", "penguin", 0},
    {"numbers", "[0-9]+\\.[0-9]+", kExpression},
    {"group", "\\(article\\)_id", kExpression},
    {"names", "[a-z]+_id", kExpression},
    {"lineStart", "^insert", kExpression},
    {"lineEnd", ";$", kExpression},
    {"wordEdges", "\\<order", kExpression},
};

// Both with the same text.
struct Engines
{
    explicit Engines(Script script) : Engines(Sql64(script)) {}
    explicit Engines(const std::string& text)
    {
        const std::string path = WriteFile("search.sql", text);
        const std::u16string wide(path.begin(), path.end());
        editor.setScheme(QString()); // as the raw engine, which marks no changed lines
        editor.control().SetCarefulFiles(true);
        if (!editor.control().OpenFile(wide.c_str(), FileEncodeConverter::encUTF8))
            std::abort();
        raw.Load(text);
    }

    ZNCoreEditorWidget editor;
    RawEngine raw;
};

std::u16string Wide(std::string_view text)
{
    return {text.begin(), text.end()};
}

long CountOurs(CZNCoreEditorControl& control, const SearchRow& row)
{
    const std::u16string sought = Wide(row.sought);
    const long length = control.GetLength(1);
    control.SetSearchFlags(row.flags, 1);
    long count = 0;
    for (long from = 0;; from = control.GetTargetEnd(1)) {
        control.SetTargetStart(from, 1);
        control.SetTargetEnd(length, 1);
        if (control.SearchInTarget(static_cast<int>(sought.size()), sought.c_str(), 1) < 0)
            return count;
        ++count;
    }
}

long CountRaw(const RawEngine& raw, const SearchRow& row)
{
    const std::string_view sought = row.sought;
    const auto length = raw.Send(Sci::SCI_GETLENGTH);
    raw.Send(Sci::SCI_SETSEARCHFLAGS, static_cast<std::uintptr_t>(row.flags));
    long count = 0;
    for (std::intptr_t from = 0;; from = raw.Send(Sci::SCI_GETTARGETEND)) {
        raw.Send(Sci::SCI_SETTARGETSTART, static_cast<std::uintptr_t>(from));
        raw.Send(Sci::SCI_SETTARGETEND, static_cast<std::uintptr_t>(length));
        if (raw.Send(Sci::SCI_SEARCHINTARGET, sought.size(), sought.data()) < 0)
            return count;
        ++count;
    }
}

void RequireSame(benchmark::State& state, long ours, long theirs)
{
    if (ours != theirs)
        state.SkipWithError("the matches differ");
    state.counters["matches"] = static_cast<double>(ours);
}

void Count(benchmark::State& state, Script script, const SearchRow& row)
{
    Engines engines(script);
    long ours = 0;
    long theirs = 0;
    MeasurePair(
        state, [&] { ours = CountOurs(engines.editor.control(), row); },
        [&] { theirs = CountRaw(engines.raw, row); }, kSearchLimit);
    RequireSame(state, ours, theirs);
}

constexpr SearchRow kReplaced = {"", "article", 0};
constexpr std::string_view kReplacement = "catalogue item";

long ReplaceOurs(CZNCoreEditorControl& control)
{
    const std::u16string sought = Wide(kReplaced.sought);
    const std::u16string replacement = Wide(kReplacement);
    control.SetSearchFlags(kReplaced.flags, 1);
    control.BeginUndoAction(1);
    long count = 0;
    for (long from = 0; count < kReplacements; ++count) {
        control.SetTargetStart(from, 1);
        control.SetTargetEnd(control.GetLength(1), 1);
        if (control.SearchInTarget(static_cast<int>(sought.size()), sought.c_str(), 1) < 0)
            break;
        control.ReplaceTarget(static_cast<int>(replacement.size()), replacement.c_str(), 1);
        from = control.GetTargetEnd(1);
    }
    control.EndUndoAction(1);
    return count;
}

long ReplaceRaw(const RawEngine& raw, long most)
{
    const std::string_view sought = kReplaced.sought;
    raw.Send(Sci::SCI_SETSEARCHFLAGS, static_cast<std::uintptr_t>(kReplaced.flags));
    raw.Send(Sci::SCI_BEGINUNDOACTION);
    long count = 0;
    for (std::intptr_t from = 0; count < most; ++count) {
        raw.Send(Sci::SCI_SETTARGETSTART, static_cast<std::uintptr_t>(from));
        raw.Send(Sci::SCI_SETTARGETEND, static_cast<std::uintptr_t>(raw.Send(Sci::SCI_GETLENGTH)));
        if (raw.Send(Sci::SCI_SEARCHINTARGET, sought.size(), sought.data()) < 0)
            break;
        raw.Send(Sci::SCI_REPLACETARGET, kReplacement.size(), kReplacement.data());
        from = raw.Send(Sci::SCI_GETTARGETEND);
    }
    raw.Send(Sci::SCI_ENDUNDOACTION);
    return count;
}

void Report(benchmark::State& state, const std::vector<double>& ours,
            const std::vector<double>& theirs)
{
    state.counters["ours_ms"] = MedianOf(ours) * 1e3;
    state.counters["reference_ms"] = MedianOf(theirs) * 1e3;
    state.counters["ratio"] = MedianOf(ours) / MedianOf(theirs);
    state.counters["limit"] = kReplaceLimit;
}

enum class Timed
{
    Replace,
    Undo
};

void ReplaceAll(benchmark::State& state, Script script, Timed timed)
{
    Engines engines(script);
    CZNCoreEditorControl& control = engines.editor.control();
    std::vector<double> ours;
    std::vector<double> theirs;
    long counts[2] = {};
    for (auto _ : state) {
        const double replace = CpuSeconds([&] { counts[0] = ReplaceOurs(control); });
        const double undo = CpuSeconds([&] { control.Undo(1); });
        const double rawReplace =
            CpuSeconds([&] { counts[1] = ReplaceRaw(engines.raw, kReplacements); });
        const double rawUndo = CpuSeconds([&] { engines.raw.Send(Sci::SCI_UNDO); });
        ours.push_back(timed == Timed::Replace ? replace : undo);
        theirs.push_back(timed == Timed::Replace ? rawReplace : rawUndo);
        state.SetIterationTime(ours.back());
    }
    if (control.CanUndo(1) || engines.raw.Send(Sci::SCI_CANUNDO))
        state.SkipWithError("one undo left some of the replacements");
    RequireSame(state, counts[0], counts[1]);
    Report(state, ours, theirs);
}

// The find manager's own loop over just as many matches, beside the raw engine's.
void ManagerReplaceAll(benchmark::State& state)
{
    const std::string& whole = Sql64(Script::Ascii);
    std::size_t end = 0;
    for (long i = 0; i < kReplacements; ++i)
        end = whole.find(kReplaced.sought, end) + 1;
    const std::string text = whole.substr(0, whole.find('\n', end) + 1);
    Engines engines(text);
    const RawEngine& raw = engines.raw;
    CZNCoreEditorControlEx& control = engines.editor.control();
    CFindReplaceManager& manager = *zncoreeditor::GetFindReplaceManager();
    manager.SetWrap(true); // from the text's start, wherever an undo leaves the caret
    manager.SetDown(true);
    manager.SetWholeWord(false);
    manager.SetMatchCase(false);
    manager.SetRegExp(false);
    manager.SetTransform(false);
    manager.SetFind(QLatin1String(kReplaced.sought));
    manager.SetReplace(QString::fromStdString(std::string(kReplacement)));
    std::vector<double> ours;
    std::vector<double> theirs;
    long counts[2] = {};
    for (auto _ : state) {
        ours.push_back(CpuSeconds([&] { counts[0] = manager.ReplaceAll(&control, false); }));
        theirs.push_back(CpuSeconds([&] { counts[1] = ReplaceRaw(raw, LONG_MAX); }));
        state.SetIterationTime(ours.back());
        control.Undo(1);
        raw.Send(Sci::SCI_UNDO);
    }
    if (control.CanUndo(1) || counts[0] < kReplacements)
        state.SkipWithError("not one step of as many replacements");
    RequireSame(state, counts[0], counts[1]);
    Report(state, ours, theirs);
}

const bool kRegistered = [] {
    const auto finish = [](benchmark::internal::Benchmark* row, int iterations) {
        row->Iterations(iterations)->UseManualTime()->Unit(benchmark::kMillisecond);
    };
    for (const SearchRow& row : kRows)
        finish(benchmark::RegisterBenchmark((std::string("Search/") + row.name).c_str(), Count,
                                            Script::Ascii, row),
               3);
    finish(benchmark::RegisterBenchmark("Search/mixed/word", Count, Script::Mixed, kRows[0]), 3);
    finish(benchmark::RegisterBenchmark("ReplaceAll", ReplaceAll, Script::Ascii, Timed::Replace),
           3);
    finish(benchmark::RegisterBenchmark("ReplaceAll/undo", ReplaceAll, Script::Ascii, Timed::Undo),
           3);
    finish(benchmark::RegisterBenchmark("ReplaceAll/manager", ManagerReplaceAll), 3);
    return true;
}();

} // namespace
} // namespace bench
