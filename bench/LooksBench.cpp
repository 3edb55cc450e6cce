// SPDX-License-Identifier: GPL-3.0-or-later
// What the workbench shows beside a script and costs no key: the outline, very many tabs.
#include "bench/Pair.h"
#include "bench/Texts.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "host/script/ScriptDoc.h"
#include "host/script/ScriptFrame.h"
#include "host/session/Session.h"
#include "host/window/MainWindow.h"
#include "host/window/Workbench.h"

#include <QAbstractScrollArea>
#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTimer>
#include <QTreeView>
#include <QWheelEvent>

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace bench {
namespace {

struct Host
{
    Host() : window(*new MainWindow(app))
    {
        window.resize(1000, 700);
        window.show();
        QApplication::setActiveWindow(&window);
    }

    CZNCoreEditorControlEx& Open(const std::string& path)
    {
        app.OpenDocumentFile(QString::fromStdString(path));
        QCoreApplication::processEvents();
        return window.CurrentFrame()->Editor();
    }

    template <typename Condition>
    static void WaitFor(Condition condition)
    {
        constexpr qint64 kPatience = 120'000; // milliseconds
        QTimer wakes; // a loop with a limit of its own would not sleep, and its turns would count
        wakes.start(20);
        QElapsedTimer clock;
        for (clock.start(); !condition() && clock.elapsed() < kPatience;)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (!condition())
            std::abort(); // it did not happen: no figure
    }

    Workbench app{Workbench::Keeps::Nothing};
    MainWindow& window; // goes with the application
};

// From a change in the middle to an outline that has it, without the time in which nothing is done:
// what the rest costs whoever types on. Beside the same change without an outline.
void OutlineFollows(benchmark::State& state)
{
    constexpr double kLimit = 100;
    constexpr int kRounds = 9;
    Host host;
    CZNCoreEditorControlEx& editor = host.Open(WriteFile("outline.sql", Sql64(Script::Ascii)));
    QAction& outline = *host.window.findChild<QAction*>(QStringLiteral("outline"));
    outline.trigger();
    const QAbstractItemModel& rows =
        *host.window.findChild<QTreeView*>(QStringLiteral("outlineList"))->model();
    const std::string& text = Sql64(Script::Ascii);
    int created = 0;
    for (std::size_t at = text.find("create "); at != std::string::npos;
         at = text.find("create ", at + 1))
        ++created;
    Host::WaitFor([&] { return rows.rowCount() == created; });
    editor.GotoLine(editor.LineFromPosition(editor.GetLength(1) / 2, 1), 1);
    completion::LiveIndex& names = host.window.CurrentFrame()->Script()->Names();
    int read = 0;
    QObject::connect(&names, &completion::LiveIndex::Finished, &host.window, [&read] { ++read; });
    const auto change = [&] {
        const int before = read;
        ++created;
        return 1e3 * CpuSeconds([&] {
                   editor.ReplaceSel(u"create table added (n int);\n", 1);
                   Host::WaitFor([&] {
                       return read > before && (!outline.isChecked() || rows.rowCount() == created);
                   });
                   QCoreApplication::processEvents(); // and paints it
               });
    };
    change(); // the first one moves the text's gap
    std::vector<double> with;
    std::vector<double> without;
    for (auto _ : state) {
        for (int round = 0; round < kRounds; ++round) {
            with.push_back(change());
            outline.trigger();
            without.push_back(change());
            outline.trigger();
            Host::WaitFor([&] { return rows.rowCount() == created; });
        }
    }
    state.counters["ours_ms"] = MedianOf(with);
    state.counters["reference_ms"] = MedianOf(without);
    state.counters["rows"] = created;
    ReportFigure(state, *std::max_element(with.begin(), with.end()), kLimit,
                 "ms of work from a change of 64 MB to its outline, the longest");
    host.window.CurrentFrame()->Script()->SetModifiedFlag(0);
}
BENCHMARK(OutlineFollows)->Iterations(1)->UseManualTime();

// With all that the window does about a key.
std::vector<double> TypeKeys(HWND window)
{
    constexpr int kKeys = 500;
    constexpr int kKeysInLine = 60;
    std::vector<double> times;
    for (int key = 0; key < kKeys; ++key) {
        const bool ends = key % kKeysInLine == kKeysInLine - 1;
        QKeyEvent press(QEvent::KeyPress, ends ? Qt::Key_Return : Qt::Key_A, Qt::NoModifier,
                        ends ? "\r" : "a");
        times.push_back(CpuSeconds([&] {
            QApplication::sendEvent(window, &press);
            QCoreApplication::processEvents();
        }));
    }
    return times;
}

void HundredTabs(benchmark::State& state)
{
    constexpr int kTabs = 100;
    constexpr double kLimit = 1.1;
    const std::string text = MakeSql(Script::Mixed, 100 * 1024);
    Host host;
    CZNCoreEditorControlEx& editor = host.Open(WriteFile("tab0.sql", text));
    ScriptDoc* script = host.window.CurrentFrame()->Script();
    std::vector<double> one;
    std::vector<double> many;
    for (auto _ : state) {
        TypeKeys(editor.GetSafeHwnd()); // what the first ones allocate
        one = TypeKeys(editor.GetSafeHwnd());
        for (int tab = 1; tab < kTabs; ++tab)
            host.Open(WriteFile("tab" + std::to_string(tab) + ".sql", text));
        host.window.ShowTab(0);
        for (int pass = 0; pass < 10; ++pass)
            QCoreApplication::processEvents();
        many = TypeKeys(editor.GetSafeHwnd());
    }
    if (host.window.TabCount() != kTabs || !script->IsModified())
        std::abort();
    state.counters["ours_ms"] = MedianOf(many) * 1e3;
    state.counters["reference_ms"] = MedianOf(one) * 1e3;
    ReportFigure(state, MedianOf(many) / MedianOf(one), kLimit,
                 "times a key in the only tab, painted");
    script->SetModifiedFlag(0);
}
BENCHMARK(HundredTabs)->Iterations(1)->UseManualTime();

// What is remembered whenever the keys have rested for a while: folds of very many lines, wrapped.
void SessionOfManyLines(benchmark::State& state)
{
    constexpr int kLines = 1'000'000;
    constexpr int kFolds = 100;
    constexpr double kLimit = 20;
    std::string text;
    for (int line = 0; line < kLines; line += 4)
        text += "begin\n    select 1;\n    select 2;\nend\n";
    Host host;
    host.window.ResumeSession();
    CZNCoreEditorControlEx& editor = host.Open(WriteFile("session.sql", text));
    editor.Colorize(0, 200'000, 1);
    for (int fold = 0; fold < kFolds; ++fold)
        editor.ToggleFold(40 * fold, 1);
    editor.SetWrapMode(1, 1);
    for (int pass = 0; pass < 3; ++pass)
        QCoreApplication::processEvents();
    double seconds = 0;
    for (auto _ : state)
        seconds = CpuSeconds([&] { host.window.EndSession(); });
    QFile file(Session::DefaultPath());
    if (!file.open(QFile::ReadOnly) ||
        Session::FromBytes(file.readAll()).files.value(0).folds.size() != kFolds)
        std::abort(); // what was to be remembered was not: no figure
    ReportFigure(state, seconds * 1e3, kLimit, "ms for what is remembered of 1,000,000 lines");
}
BENCHMARK(SessionOfManyLines)->Iterations(1)->UseManualTime();

struct Paints final : QObject
{
    explicit Paints(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        count += event->type() == QEvent::Paint;
        return false;
    }
    int count = 0;
};

// A step of some pixels, painted, beside a step of the bar by a line. What moves behind a bar for
// going across is painted whole, without one a line at a time.
void ScrollByPixels(benchmark::State& state)
{
    constexpr int kSteps = 200;
    constexpr int kRounds = 7;
    constexpr double kLimit = 1.3;
    Host host;
    CZNCoreEditorControlEx& editor =
        host.Open(WriteFile("scroll.sql", MakeSql(Script::Mixed, 100 * 1024)));
    const bool hasBar = state.range(0) != 0;
    editor.SetScrollWidth(hasBar ? 5000 : 100, 1);
    QCoreApplication::processEvents();
    auto* area = qobject_cast<QAbstractScrollArea*>(editor.GetSafeHwnd());
    QScrollBar& bar = *area->verticalScrollBar();
    const Paints paints(*area->viewport());
    const auto step = [&paints](auto&& scroll) {
        const int before = paints.count;
        return CpuSeconds([&] {
            scroll();
            Host::WaitFor([&] { return paints.count > before; });
        });
    };
    const auto steps = [&](auto&& scroll) {
        bar.setValue(0);
        QCoreApplication::processEvents();
        double seconds = 0;
        for (int at = 0; at < kSteps; ++at)
            seconds += step(scroll);
        return seconds / kSteps;
    };
    const auto byLine = [&bar] { bar.setValue(bar.value() + 1); };
    const auto byPixels = [area] {
        const QPointF place(100, 100);
        QWheelEvent wheel(place, area->viewport()->mapToGlobal(place), {0, -5}, {0, -5},
                          Qt::NoButton, Qt::NoModifier, Qt::ScrollUpdate, false);
        QApplication::sendEvent(area->viewport(), &wheel);
    };
    std::vector<double> lines;
    std::vector<double> pixels;
    for (auto _ : state) {
        steps(byLine); // colours what will be seen
        for (int round = 0; round < kRounds; ++round) {
            lines.push_back(steps(byLine));
            pixels.push_back(steps(byPixels));
            if (area->viewport()->height() <= area->height() ||
                area->horizontalScrollBar()->isVisible() != hasBar)
                std::abort(); // it was not between lines, or not so: no figure
        }
    }
    state.counters["ours_ms"] = MedianOf(pixels) * 1e3;
    state.counters["reference_ms"] = MedianOf(lines) * 1e3;
    ReportFigure(state, MedianOf(pixels) / MedianOf(lines), kLimit,
                 "times a step by a line, painted");
}
BENCHMARK(ScrollByPixels)->Arg(0)->Arg(1)->Iterations(1)->UseManualTime();

} // namespace
} // namespace bench
