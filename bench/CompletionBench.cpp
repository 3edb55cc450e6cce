// SPDX-License-Identifier: GPL-3.0-or-later
// Proposals while somebody types in 64 MB, what their index takes, the words near the caret beside
// the engine's own search, and macros beside the messages that they send.
#include "bench/Pair.h"
#include "bench/Texts.h"
#include "completion/ScriptIndex.h"
#include "completion/popup/Completer.h"
#include "completion/popup/LiveIndex.h"
#include "control/EngineRecords.h"
#include "docview/ZNCoreEditorView.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "editing/operations/Macro.h"
#include "engine/analysis/SqlScanner.h"
#include "platform/docview/CreateContext.h"

#include <QApplication>
#include <QKeyEvent>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

namespace bench {
namespace {

constexpr int kTransactSql = 3;
constexpr int kWordStart = 0x100000;
constexpr int kSteps = 100000;

// 64 MB of tables and queries over them, with names of their own.
std::string ManyNames()
{
    constexpr std::size_t kBytes = 64 << 20;
    std::mt19937 random(11);
    std::string text;
    text.reserve(kBytes + 512);
    const auto name = [&](const char* stem, unsigned count) {
        return stem + std::to_string(random() % count);
    };
    while (text.size() < kBytes) {
        text += "create table " + name("customer_table_", 20000) + " (id int, " +
                name("customer_name_", 50000) + " varchar(20), " + name("amount_", 50000) +
                " decimal(9, 2));\n";
        for (int i = 0; i < 8; ++i)
            text += "select c." + name("customer_name_", 50000) +
                    ", 'some text that is data' from " + name("customer_table_", 20000) +
                    " c where c.id = 4711; -- a remark\n";
    }
    return text;
}

// 64 MB with letters in its names that are not ASCII, and quotes that close. (In Script::Mixed they
// do not, so that most of it is one string or another, where no list opens.)
std::string AccentedNames()
{
    constexpr std::size_t kBytes = 64 << 20;
    std::string piece = MakeSql(Script::Ascii, kMegabyte);
    const auto replace = [&](std::string_view from, std::string_view to) {
        for (auto at = piece.find(from); at != std::string::npos; at = piece.find(from, at))
            piece.replace(at, from.size(), to);
    };
    replace("article", "art\u00edculo");
    replace("quantity", "quantit\u00e9");
    replace("region", "r\u00e9gion");
    replace("sales_order", "sales_\u00f6rder");
    std::string text;
    while (text.size() < kBytes)
        text += piece;
    return text;
}

// 0 the same few names in ASCII, 1 with letters that are not, 2 many names.
const std::string& TextOf(int kind)
{
    static const std::string accented = AccentedNames();
    static const std::string names = ManyNames();
    return kind == 0 ? Sql64(Script::Ascii) : kind == 1 ? accented : names;
}

struct Typist
{
    explicit Typist(const std::string& text)
    {
        const std::string path = WriteFile("completion.sql", text);
        const std::u16string wide(path.begin(), path.end());
        editor.resize(900, 600);
        editor.show();
        editor.setLanguage(kTransactSql);
        if (!editor.control().OpenFile(wide.c_str(), FileEncodeConverter::encUTF8))
            std::abort();
        editor.setCompletesWhileTyping(true);
        QApplication::setActiveWindow(&editor);
        editor.control().GetSafeHwnd()->setFocus();
        const long middle = editor.control().PositionFromLine(
            editor.control().LineFromPosition(editor.control().GetLength(1) / 2, 1), 1);
        editor.control().GotoPos(middle, 1);
        editor.control().InsertText(middle, u"\n", 1); // no list opens in front of a word
        QApplication::processEvents();
        // The index is built as it is while nobody types.
        editor.completer()->Open();
        editor.completer()->Close();
        Index().CreatedInAll();
    }

    completion::LiveIndex& Index() { return *editor.findChild<completion::LiveIndex*>(); }

    void Key(int key, const QString& text)
    {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
        QApplication::sendEvent(editor.control().GetSafeHwnd(), &press);
        QApplication::processEvents();
    }

    ZNCoreEditorWidget editor;
};

// From a key to the list behind it, painted.
void TypeWords(benchmark::State& state, Typist& typist)
{
    const QString words[] = {QStringLiteral("select "),   QStringLiteral("customer"),
                             QStringLiteral(" sales"),    QStringLiteral(" o"),
                             QStringLiteral(" amount_1"), QStringLiteral(" from art")};
    std::vector<double> keys;
    std::size_t opened = 0;
    for (auto _ : state) {
        for (const QString& word : words) {
            for (const QChar unit : word) {
                keys.push_back(1e3 *
                               CpuSeconds([&] { typist.Key(unit.toUpper().unicode(), unit); }));
                opened += typist.editor.completer()->IsOpen();
            }
            typist.editor.completer()->Close();
        }
        typist.Key(Qt::Key_Return, QStringLiteral("\r"));
    }
    if (opened == 0)
        state.SkipWithError("the list never opened");
    std::sort(keys.begin(), keys.end());
    ReportFigure(state, keys[keys.size() * 99 / 100], 16, "ms a key, 99th percentile");
}

void CompletionKey(benchmark::State& state)
{
    Typist typist(TextOf(static_cast<int>(state.range(0))));
    TypeWords(state, typist);
}
BENCHMARK(CompletionKey)->DenseRange(0, 2)->Iterations(20)->Unit(benchmark::kMillisecond);

// In a short script, with nothing beside it and with a script of 29 MB full of names.
void CompletionBeside(benchmark::State& state)
{
    constexpr std::size_t kBeside = 29 << 20;
    Typist beside(TextOf(2).substr(0, kBeside));
    Typist typist("select 1;\n");
    if (state.range(0) == 1) {
        typist.editor.completer()->SetOtherScripts([&beside] {
            return std::vector<completion::OtherScript>{{&beside.Index(), QString()}};
        });
    }
    TypeWords(state, typist);
    typist.editor.completer()->SetOtherScripts({});
}
BENCHMARK(CompletionBeside)->DenseRange(0, 1)->Iterations(20)->Unit(benchmark::kMillisecond);

void CompletionMemory(benchmark::State& state)
{
    Typist typist(TextOf(static_cast<int>(state.range(0))));
    const double size = static_cast<double>(TextOf(static_cast<int>(state.range(0))).size());
    double memory = 0;
    for (auto _ : state)
        memory = static_cast<double>(typist.Index().MemoryBytes());
    ReportFigure(state, memory / size, 0.15, "of the text's size");
}
BENCHMARK(CompletionMemory)->DenseRange(0, 2)->Iterations(1);

// The longest that an idle slice of the index holds the window, while all is read again behind a
// comment that is opened in front, and closed.
void CompletionIdle(benchmark::State& state)
{
    constexpr long kSlice = 65536; // as LiveIndex reads them
    const std::string& utf8 = TextOf(2);
    std::u16string text(utf8.begin(), utf8.end());
    const auto read = [&](long start, long end, std::u16string& units) {
        units.assign(text, static_cast<std::size_t>(start), static_cast<std::size_t>(end - start));
    };
    completion::ScriptIndex index(engine::analysis::DialectByName("transact-sql"));
    index.Reset(static_cast<long>(text.size()));
    double longest = 0;
    const auto work = [&] {
        for (bool goesOn = true; goesOn;)
            longest = std::max(longest, CpuSeconds([&] { goesOn = index.Work(read, kSlice); }));
    };
    for (auto _ : state) {
        work();
        text.insert(0, u"/*");
        index.Inserted(0, 2);
        work();
        text.erase(0, 2);
        index.Deleted(0, 2);
        work();
    }
    ReportFigure(state, longest * 1e3, 16, "ms at a time behind an edit in front");
}
BENCHMARK(CompletionIdle)->Iterations(1);

// The whole index beside a walk over the tokens of the same text.
void CompletionBuild(benchmark::State& state)
{
    const std::string& utf8 = TextOf(2);
    const std::u16string text(utf8.begin(), utf8.end());
    const auto* dialect = engine::analysis::DialectByName("transact-sql");
    const auto read = [&](long start, long end, std::u16string& units) {
        units.assign(text, static_cast<std::size_t>(start), static_cast<std::size_t>(end - start));
    };
    MeasurePair(
        state,
        [&] {
            completion::ScriptIndex index(dialect);
            index.Reset(static_cast<long>(text.size()));
            while (index.Work(read, 1 << 20)) {}
            benchmark::DoNotOptimize(index.MemoryBytes());
        },
        [&] {
            engine::analysis::SqlScanner scanner(*dialect, engine::analysis::TextSpans(utf8));
            while (scanner.Next().kind != engine::analysis::TokenKind::End) {}
        },
        0);
}
BENCHMARK(CompletionBuild)->Iterations(3)->Unit(benchmark::kMillisecond);

// A view with the words near its caret opened.
class NearView final : public CZNCoreEditorView
{
public:
    using CZNCoreEditorView::GetWordsNear;
};

// The same word found as often by the engine's search alone.
void CompletionWordsNear(benchmark::State& state)
{
    QWidget desk;
    auto* view = new NearView;
    CCreateContext context;
    view->CreateViewIn(&desk, &context);
    CZNCoreEditorControlEx& control = view->GetCoreEditorControlRef();
    const std::string path = WriteFile("near.sql", Sql64(Script::Ascii));
    const std::u16string wide(path.begin(), path.end());
    if (!control.OpenFile(wide.c_str(), FileEncodeConverter::encUTF8))
        std::abort();
    control.GotoPos(control.GetLength(1), 1);
    const char16_t* word = u"art";
    MeasurePair(
        state,
        [&] {
            QStringList list;
            view->GetWordsNear(word, 3, list);
            if (list.isEmpty())
                std::abort();
        },
        [&] {
            const long end = control.GetLength(1);
            long found = 0;
            for (long start = 0; start < end;) {
                TextToFind search{.chrg = {static_cast<int>(start), static_cast<int>(end)},
                                  .lpstrText = word};
                const long at = control.FindTextW(kWordStart, &search, 1);
                if (at < 0)
                    break;
                start = at + 3;
                ++found;
            }
            if (found == 0)
                std::abort();
        },
        1.5);
    view->DestroyWindow();
}
BENCHMARK(CompletionWordsNear)->Iterations(3)->Unit(benchmark::kMillisecond);

// The second half of a long recording beside the first.
void MacroRecord(benchmark::State& state)
{
    const auto record = [] {
        for (int i = 0; i < kSteps; ++i)
            AppendToMacro(2170, 0, reinterpret_cast<LPARAM>(u"x"));
    };
    FreeMacro();
    std::vector<double> first;
    std::vector<double> second;
    for (auto _ : state) {
        FreeMacro();
        first.push_back(CpuSeconds(record));
        second.push_back(CpuSeconds(record));
    }
    FreeMacro();
    state.counters["ours_ms"] = MedianOf(second) * 1e3;
    state.counters["reference_ms"] = MedianOf(first) * 1e3;
    state.counters["ratio"] = MedianOf(second) / MedianOf(first);
    state.counters["limit"] = 1.5;
}
BENCHMARK(MacroRecord)->Iterations(15)->Unit(benchmark::kMillisecond);

void MacroPlay(benchmark::State& state)
{
    ZNCoreEditorWidget editor;
    CZNCoreEditorControlEx& control = editor.control();
    FreeMacro();
    // In lines as people type them.
    const auto step = [](int i) { return i % 60 == 59 ? u"\n" : u"x"; };
    for (int i = 0; i < kSteps; ++i)
        AppendToMacro(2170, 0, reinterpret_cast<LPARAM>(step(i)));
    const auto inOneStep = [&](const std::function<void()>& type) {
        control.ClearAll(1);
        control.EmptyUndoBuffer(1);
        control.BeginUndoAction(1);
        type();
        control.EndUndoAction(1);
    };
    MeasurePair(
        state, [&] { inOneStep([&] { control.PerformMacro(GetMacroHead()); }); },
        [&] {
            inOneStep([&] {
                for (int i = 0; i < kSteps; ++i)
                    control.ReplaceSel(step(i), 1);
            });
        },
        1.2);
    FreeMacro();
}
BENCHMARK(MacroPlay)->Iterations(5)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace bench
