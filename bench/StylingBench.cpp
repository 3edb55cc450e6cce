// The colours and folds of 64 MB of SQL beside the stock engine's own lexer, and what a typed
// character costs to colour.
#include "bench/Pair.h"
#include "bench/RawEngine.h"
#include "bench/Texts.h"
#include "editing/ZNCoreEditorWidget.h"

#include <algorithm>
#include <cstdlib>
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

double MedianOf(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

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

// A character at a place of a text that is styled to its end: the character, and all the styles
// that it has made stale.
void Typed(benchmark::State& state, const char16_t* text, double part)
{
    constexpr double kLimit = 100;
    constexpr int kKeys = 200;
    Ours ours(Sql64(Script::Ascii), true);
    ours.Style();
    CZNCoreEditorControl& control = ours.editor.control();
    std::vector<double> times;
    for (auto _ : state) {
        control.GotoPos(static_cast<long>(part * static_cast<double>(control.GetLength(1))), 1);
        for (int i = 0; i < kKeys; ++i) {
            times.push_back(1e6 * CpuSeconds([&] {
                                control.AddText(1, text, 1);
                                // Asks for the styles of the lines that a window would show.
                                const int line =
                                    control.LineFromPosition(control.GetCurrentPos(1), 1);
                                control.GetLastChild(line + 50, 0xFFF, 1);
                            }));
        }
    }
    state.counters["ours_ms"] = MedianOf(times) / 1e3;
    ReportFigure(state, MedianOf(times), kLimit, "us a character and its styles");
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
    return true;
}();

} // namespace
} // namespace bench
