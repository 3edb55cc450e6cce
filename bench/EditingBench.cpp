// SPDX-License-Identifier: GPL-3.0-or-later
// Operations over very many lines beside the raw engine doing the same edits, and sorting beside
// std::sort of the same strings.
#include "bench/Pair.h"
#include "bench/RawEngine.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"

#include <QApplication>
#include <QCollator>
#include <QLocale>

#include <algorithm>
#include <functional>
#include <random>
#include <string>
#include <vector>

namespace bench {
namespace {

using Sci = QsciScintillaBase;

constexpr int kFewLines = 250000;
constexpr int kManyLines = 1000000;
constexpr int kSortedLines = 100000;

// Limit 0: none was set.
void Report(benchmark::State& state, const std::vector<double>& ours,
            const std::vector<double>& theirs, double limit)
{
    state.counters["ours_ms"] = MedianOf(ours) * 1e3;
    state.counters["reference_ms"] = MedianOf(theirs) * 1e3;
    state.counters["ratio"] = MedianOf(ours) / MedianOf(theirs);
    if (limit > 0)
        state.counters["limit"] = limit;
}

// Every third line has a tab inside, every other one trails.
std::string MakeLines(int lines)
{
    std::string text;
    for (int i = 0; i < lines; ++i) {
        text += "    select a" + std::to_string(i % 1000) + (i % 3 ? ", b" : ",\tb") + " from t" +
                std::to_string(i % 77) + (i % 2 ? "  " : "") + "\n";
    }
    return text;
}

struct Editor
{
    explicit Editor(const std::string& text)
    {
        widget.resize(1000, 700);
        control.SetEOLMode(3, 1);
        control.Reset();
        control.AddSingleLineComment(QStringLiteral("--"));
        control.SetText(std::u16string(text.begin(), text.end()).c_str(), 1);
        control.EmptyUndoBuffer(1);
    }

    ZNCoreEditorWidget widget;
    CZNCoreEditorControlEx& control = widget.control();
};

// One edit of each line in the raw engine: gives the bytes from start to end their replacement.
using RawEdit = std::function<void(const RawEngine& raw, long start, std::string_view line)>;

void Replace(const RawEngine& raw, long start, long end, std::string_view text)
{
    raw.Send(Sci::SCI_SETTARGETRANGE, static_cast<std::uintptr_t>(start), end);
    raw.Send(Sci::SCI_REPLACETARGET, text.size(), text.empty() ? "" : text.data());
}

void RawTabs(const RawEngine& raw, long start, std::string_view line)
{
    if (line.find('\t') == line.npos)
        return;
    std::string result;
    for (const char c : line) {
        if (c == '\t')
            result.append(4 - result.size() % 4, ' ');
        else
            result.push_back(c);
    }
    Replace(raw, start, start + static_cast<long>(line.size()), result);
}

void RawTrim(const RawEngine& raw, long start, std::string_view line)
{
    const auto kept = line.find_last_not_of(" \t") + 1;
    if (kept < line.size())
        Replace(raw, start + static_cast<long>(kept), start + static_cast<long>(line.size()), {});
}

void RawComment(const RawEngine& raw, long start, std::string_view line)
{
    if (line.find_first_not_of(" \t") != line.npos)
        Replace(raw, start, start, "-- ");
}

void RawUnComment(const RawEngine& raw, long start, std::string_view line)
{
    const auto at = std::min(line.find_first_not_of(" \t"), line.size());
    if (line.substr(at, 3) == "-- ")
        Replace(raw, start + static_cast<long>(at), start + static_cast<long>(at) + 3, {});
}

void EditRaw(const RawEngine& raw, const RawEdit& edit)
{
    raw.Send(Sci::SCI_BEGINUNDOACTION);
    const auto lines = static_cast<long>(raw.Send(Sci::SCI_GETLINECOUNT));
    for (long line = 0; line < lines; ++line) {
        const auto number = static_cast<std::uintptr_t>(line);
        const auto start = static_cast<long>(raw.Send(Sci::SCI_POSITIONFROMLINE, number));
        const auto end = static_cast<long>(raw.Send(Sci::SCI_GETLINEENDPOSITION, number));
        const auto* text = reinterpret_cast<const char*>(
            raw.Send(Sci::SCI_GETRANGEPOINTER, static_cast<std::uintptr_t>(start), end - start));
        edit(raw, start, {text, static_cast<std::size_t>(end - start)});
    }
    raw.Send(Sci::SCI_ENDUNDOACTION);
}

struct Operation
{
    const char* name;
    void (*prepare)(CZNCoreEditorControlEx& control); // may be null
    void (*run)(CZNCoreEditorControlEx& control);
    RawEdit raw;
};

const Operation kOperations[] = {
    {"TabsToSpaces", nullptr, [](CZNCoreEditorControlEx& c) { c.ConvertTabToSpaces(); }, RawTabs},
    {"Trim", nullptr, [](CZNCoreEditorControlEx& c) { c.RemoveTrailingSpaces(); }, RawTrim},
    {"Comment", [](CZNCoreEditorControlEx& c) { c.SelectAll(1); },
     [](CZNCoreEditorControlEx& c) { c.CommentSelection(0, false); }, RawComment},
    {"UnComment",
     [](CZNCoreEditorControlEx& c) {
         c.SelectAll(1);
         c.CommentSelection(0, false);
         c.EmptyUndoBuffer(1);
         c.SelectAll(1);
     },
     [](CZNCoreEditorControlEx& c) { c.UnCommentSelection(0, false); }, RawUnComment},
};

double SecondsOf(const Operation& operation, const std::string& text, bool wrap)
{
    Editor editor(text);
    if (wrap) {
        editor.widget.show();
        editor.control.SetWrapMode(1, 1);
        QApplication::processEvents();
    }
    if (operation.prepare)
        operation.prepare(editor.control);
    const long before = editor.control.GetLength(1);
    const double seconds = CpuSeconds([&] { operation.run(editor.control); });
    if (editor.control.GetLength(1) == before)
        std::abort(); // nothing was done: no figure
    return seconds;
}

double RawSecondsOf(const Operation& operation, const std::string& text)
{
    RawEngine raw;
    raw.Load(text);
    if (std::string_view(operation.name) == "UnComment") {
        EditRaw(raw, RawComment);
        raw.Send(Sci::SCI_EMPTYUNDOBUFFER);
    }
    return CpuSeconds([&] { EditRaw(raw, operation.raw); });
}

void BesideRaw(benchmark::State& state, const Operation& operation)
{
    const std::string text = MakeLines(kManyLines);
    std::vector<double> ours;
    std::vector<double> theirs;
    for (auto _ : state) {
        ours.push_back(SecondsOf(operation, text, false));
        theirs.push_back(RawSecondsOf(operation, text));
    }
    Report(state, ours, theirs, 0);
}

// The time of each line among many by that among a quarter of them.
void Growth(benchmark::State& state, const Operation& operation, bool wrap)
{
    constexpr double kLimit = 1.5;
    const std::string few = MakeLines(kFewLines);
    const std::string many = MakeLines(kManyLines);
    std::vector<double> shorter;
    std::vector<double> longer;
    for (auto _ : state) {
        shorter.push_back(SecondsOf(operation, few, wrap));
        longer.push_back(SecondsOf(operation, many, wrap));
    }
    state.counters["ours_ms"] = MedianOf(longer) * 1e3;
    state.counters["reference_ms"] = MedianOf(shorter) * 1e3;
    ReportFigure(state, MedianOf(longer) / MedianOf(shorter) * kFewLines / kManyLines, kLimit,
                 "times as long a line, of four times as many");
}

// One line of 50 MB beside lines of as much text.
void LongLine(benchmark::State& state, const Operation& operation)
{
    constexpr double kLimit = 1.5;
    std::string lines = MakeLines(kManyLines);
    std::string line = lines;
    std::replace(line.begin(), line.end(), '\n', 'x');
    line += "   ";
    std::vector<double> ours;
    std::vector<double> theirs;
    for (auto _ : state) {
        ours.push_back(SecondsOf(operation, line, false));
        theirs.push_back(SecondsOf(operation, lines, false));
    }
    Report(state, ours, theirs, kLimit);
}

std::vector<std::u16string> MakeShuffled()
{
    std::mt19937 random(1);
    std::vector<std::u16string> lines(kSortedLines);
    for (std::u16string& line : lines) {
        const std::string text = "abcdefghijklmnopqrstuv0123456789"[random() % 32] +
                                 std::to_string(random()) + " insert into t values (" +
                                 std::to_string(random()) + ", 'x')";
        line.assign(text.begin(), text.end());
    }
    return lines;
}

bool ComesFirstByLocale(const std::u16string& first, const std::u16string& second)
{
    static const QCollator collator = [] {
        const QLocale locale = QLocale().collation();
        return QCollator(locale.language() == QLocale::C ? QLocale(QLocale::English) : locale);
    }();
    return collator.compare(QStringView(first), QStringView(second)) < 0;
}

// Reads the lines, sorts and writes them.
void SortPlain(CZNCoreEditorControlEx& control, bool byLocale)
{
    std::u16string text(static_cast<std::size_t>(control.GetLength(1)) + 1, u'\0');
    control.GetText(static_cast<int>(text.size()), text.data(), 1);
    text.pop_back();
    std::vector<std::u16string> lines;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = text.find(u'\n', at);
        lines.push_back(text.substr(at, end - at));
        at = end + 1;
    }
    if (byLocale)
        std::sort(lines.begin(), lines.end(), ComesFirstByLocale);
    else
        std::sort(lines.begin(), lines.end());
    text.clear();
    for (const std::u16string& line : lines)
        text.append(line).append(u"\n");
    control.SetTarget(0, static_cast<int>(control.GetLength(1)));
    control.ReplaceTargetNoProcess(static_cast<int>(text.size()), text.data(), 1);
}

void Sort(benchmark::State& state, int mode, bool ignoreCase)
{
    constexpr double kLimit = 2.0;
    std::string text;
    for (const std::u16string& line : MakeShuffled())
        text += std::string(line.begin(), line.end()) + "\n";
    std::vector<double> ours;
    std::vector<double> theirs;
    for (auto _ : state) {
        Editor editor(text);
        editor.control.SelectAll(1);
        ours.push_back(
            CpuSeconds([&] { editor.control.SortLines(true, ignoreCase, true, mode, -1, -1); }));
        Editor plain(text);
        theirs.push_back(CpuSeconds([&] { SortPlain(plain.control, mode == 1); }));
        if (mode == 0 && !ignoreCase && editor.control.GetText() != plain.control.GetText())
            std::abort(); // sorted otherwise: no figure
    }
    Report(state, ours, theirs, kLimit);
}

const bool kRegistered = [] {
    constexpr int kRounds = 3;
    for (const Operation& operation : kOperations) {
        const std::string name = operation.name;
        benchmark::RegisterBenchmark(("Edit/" + name).c_str(), BesideRaw, operation)
            ->Iterations(kRounds);
        benchmark::RegisterBenchmark(("EditGrowth/" + name).c_str(), Growth, operation, false)
            ->Iterations(kRounds);
    }
    benchmark::RegisterBenchmark("EditGrowth/Wrapped", Growth, kOperations[0], true)
        ->Iterations(kRounds);
    benchmark::RegisterBenchmark("EditLongLine/TabsToSpaces", LongLine, kOperations[0])
        ->Iterations(kRounds);
    benchmark::RegisterBenchmark("EditLongLine/Trim", LongLine, kOperations[1])
        ->Iterations(kRounds);
    benchmark::RegisterBenchmark("SortLines/ByCode", Sort, 0, false)->Iterations(5);
    benchmark::RegisterBenchmark("SortLines/IgnoringCase", Sort, 0, true)->Iterations(5);
    benchmark::RegisterBenchmark("SortLines/ByLocale", Sort, 1, false)->Iterations(5);
    benchmark::RegisterBenchmark("SortLines/ByNumber", Sort, 2, false)->Iterations(5);
    return true;
}();

} // namespace
} // namespace bench
