// SPDX-License-Identifier: GPL-3.0-or-later
// The colours and folds of 64 MB of SQL beside the stock engine's own lexer, and what a typed
// character costs to colour.
#include "bench/Pair.h"
#include "bench/RawEngine.h"
#include "bench/Texts.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <vector>

namespace bench {
namespace {

using Sci = QsciScintillaBase;

constexpr int kTransactSql = 3;

// As many words as a language has, those of the scripts among them.
std::string Words(int set)
{
    static constexpr const char* kFront[] = {
        "and as by create execute from in index insert into join on or order select set update "
        "values where ",
        "int numeric varchar date ", "sysobjects ", "rowcount ", "count sum upper lower "};
    std::string words = kFront[set];
    for (int i = 0; i < 400; ++i)
        words += QStringLiteral("w%1ord%2 ").arg(set).arg(i * 37).toStdString();
    return words;
}

struct Ours
{
    explicit Ours(const std::string& text, bool fold)
    {
        editor.control().SetCarefulFiles(true);
        editor.openFile(QString::fromStdString(WriteFile("styling.sql", text)));
        CZNCoreEditorControl& control = editor.control();
        control.SetLexer(kTransactSql, 1);
        control.SetProperty(u"fold", fold ? u"1" : u"0", 1);
        control.SetProperty(u"fold.comment", u"1", 1);
        for (int set = 0; set < 5; ++set) {
            const std::string words = Words(set);
            control.SetKeyWords(set, std::u16string(words.begin(), words.end()).c_str(), 1);
        }
    }

    void Clear() { editor.control().ClearDocumentStyle(1); }
    void Style() { editor.control().Colorize(0, -1, 1); }

    ZNCoreEditorWidget editor;
};

struct Stock
{
    Stock(const std::string& text, bool fold)
    {
        raw.Load(text);
        raw.Send(Sci::SCI_SETLEXER, Sci::SCLEX_MSSQL);
        raw.Send(Sci::SCI_SETPROPERTY, reinterpret_cast<std::uintptr_t>("fold"), fold ? "1" : "0");
        raw.Send(Sci::SCI_SETPROPERTY, reinterpret_cast<std::uintptr_t>("fold.comment"), "1");
        for (int set = 0; set < 5; ++set)
            raw.Send(Sci::SCI_SETKEYWORDS, static_cast<std::uintptr_t>(set), Words(set).c_str());
    }

    void Clear() const { raw.Send(Sci::SCI_CLEARDOCUMENTSTYLE); }
    void Style() const { raw.Send(Sci::SCI_COLOURISE, 0, -1L); }

    RawEngine raw;
};

void Colour(benchmark::State& state, Script script, bool fold)
{
    constexpr double kLimit = 1.0;
    Ours ours(Sql64(script), fold);
    const Stock stock(Sql64(script), fold);
    std::vector<double> oursTimes;
    std::vector<double> stockTimes;
    for (auto _ : state) {
        ours.Clear();
        stock.Clear();
        oursTimes.push_back(CpuSeconds([&] { ours.Style(); }));
        stockTimes.push_back(CpuSeconds([&] { stock.Style(); }));
    }
    if (ours.editor.control().GetStyleAt(0, 1) != 9)
        std::abort(); // nothing was styled: no figure
    state.counters["ours_ms"] = MedianOf(oursTimes) * 1e3;
    state.counters["reference_ms"] = MedianOf(stockTimes) * 1e3;
    state.counters["ratio"] = MedianOf(oursTimes) / MedianOf(stockTimes);
    state.counters["limit"] = kLimit;
}

// Microseconds of the characters and of all the styles that each has made stale up to the end of
// what a window would show, typed at a place of a text that is styled to its end.
std::vector<double> Type(Ours& ours, const char16_t* text, double part,
                         const std::function<void(CZNCoreEditorControl&)>& style)
{
    constexpr int kKeys = 200;
    ours.Style();
    CZNCoreEditorControl& control = ours.editor.control();
    const auto place = static_cast<long>(part * static_cast<double>(control.GetLength(1)));
    control.SetCurrentPos(place, 1); // shows no caret: that lays out all of a line
    control.SetAnchor(place, 1);
    std::vector<double> times;
    for (int i = 0; i < kKeys; ++i) {
        times.push_back(1e6 * CpuSeconds([&] {
                            control.AddText(1, text, 1);
                            style(control);
                        }));
    }
    return times;
}

void ReportTyped(benchmark::State& state, const std::vector<double>& times)
{
    constexpr double kLimit = 100;
    state.counters["ours_ms"] = MedianOf(times) / 1e3;
    ReportFigure(state, MedianOf(times), kLimit, "us a character and its styles");
}

void Typed(benchmark::State& state, const char16_t* text, double part)
{
    Ours ours(Sql64(Script::Ascii), true);
    for (auto _ : state) {
        ReportTyped(state, Type(ours, text, part, [](CZNCoreEditorControl& control) {
                        const int line = control.LineFromPosition(control.GetCurrentPos(1), 1);
                        control.GetLastChild(line + 50, 0xFFF, 1); // asks for their styles
                    }));
    }
}

void TypedInOneLine(benchmark::State& state, double part)
{
    constexpr std::size_t kLength = 50 * kMegabyte;
    std::string line = Sql64(Script::Ascii).substr(0, kLength);
    for (const char c : {'\r', '\n', '-'}) // nor may a comment take all of it
        std::replace(line.begin(), line.end(), c, ' ');
    Ours ours(line, true);
    for (auto _ : state) {
        ReportTyped(state, Type(ours, u"a", part, [](CZNCoreEditorControl& control) {
                        control.Colorize(control.GetEndStyled(1), -1, 1);
                        if (control.GetEndStyled(1) != control.GetLength(1))
                            std::abort();
                    }));
    }
}

const bool kRegistered = [] {
    for (const Script script : {Script::Ascii, Script::Mixed}) {
        for (const bool fold : {false, true})
            benchmark::RegisterBenchmark(
                std::string(fold ? "ColourAndFold64/" : "Colour64/").append(NameOf(script)).c_str(),
                Colour, script, fold)
                ->Iterations(3);
    }
    benchmark::RegisterBenchmark("StyleTyped/start", Typed, u"a", 0.0)->Iterations(1);
    benchmark::RegisterBenchmark("StyleTyped/middle", Typed, u"a", 0.5)->Iterations(1);
    benchmark::RegisterBenchmark("StyleTyped/end", Typed, u"a", 1.0)->Iterations(1);
    benchmark::RegisterBenchmark("StyleTyped/quote", Typed, u"'", 0.0)->Iterations(1);
    benchmark::RegisterBenchmark("StyleTypedInOneLine50/start", TypedInOneLine, 0.01)
        ->Iterations(1);
    benchmark::RegisterBenchmark("StyleTypedInOneLine50/middle", TypedInOneLine, 0.5)
        ->Iterations(1);
    benchmark::RegisterBenchmark("StyleTypedInOneLine50/end", TypedInOneLine, 1.0)->Iterations(1);
    return true;
}();

} // namespace
} // namespace bench
