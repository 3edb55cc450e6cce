// SPDX-License-Identifier: GPL-3.0-or-later
// Documents and views in the workbench, with its tabs and status bar: a further view of a large
// text, a key on its whole way, and many documents at once.
#include "bench/Pair.h"
#include "bench/Texts.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "host/script/ScriptDoc.h"
#include "host/script/ScriptFrame.h"
#include "host/window/MainWindow.h"
#include "host/window/Workbench.h"
#include "platform/docview/DocTemplate.h"

#include <QApplication>
#include <QKeyEvent>

#include <algorithm>
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

    void Open(const std::string& path)
    {
        app.OpenDocumentFile(QString::fromStdString(path));
        Rest();
    }

    static void Rest()
    {
        for (int pass = 0; pass < 3; ++pass)
            QCoreApplication::processEvents();
    }

    Workbench app{Workbench::Keeps::Nothing};
    MainWindow& window; // goes with the application
};

void TenthView(benchmark::State& state)
{
    Host host;
    host.Open(WriteFile("views.sql", Sql64(Script::Mixed)));
    ScriptDoc* script = host.window.CurrentFrame()->Script();
    const auto open = [&] {
        CFrameWnd* frame = script->GetDocTemplate()->CreateNewFrame(script, nullptr);
        frame->InitialUpdateFrame(script, true);
        Host::Rest();
        return frame;
    };
    for (int view = 2; view < 10; ++view)
        open();
    CFrameWnd* tenth = nullptr;
    MeasureBar(
        state, 50, "view of 64 MB, painted",
        [&] {
            if (tenth)
                tenth->DestroyWindow();
            Host::Rest();
        },
        [&] { tenth = open(); });
}
BENCHMARK(TenthView)->Iterations(1)->UseManualTime();

// Lines of sixty keys, some of them commands of the key table.
QKeyEvent KeyOf(int number)
{
    constexpr int kKeysInLine = 60;
    switch (number % kKeysInLine) {
    case kKeysInLine - 1:
        return QKeyEvent(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r");
    case kKeysInLine - 2:
        return QKeyEvent(QEvent::KeyPress, Qt::Key_Z, Qt::ControlModifier, "\x1a");
    case kKeysInLine - 3:
        return QKeyEvent(QEvent::KeyPress, Qt::Key_ParenRight, Qt::NoModifier, ")");
    default:
        return QKeyEvent(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
    }
}

// From the key event until the loop rests: what it changed is painted, tab, title and status bar
// too. By turns with the same key in a bare widget, in the same text and language.
void KeyOnItsWay(benchmark::State& state)
{
    constexpr int kKeys = 1000;
    constexpr int kTabs = 10;
    Host host;
    const std::string text = MakeSql(Script::Mixed, kMegabyte);
    for (int tab = 0; tab < kTabs; ++tab)
        host.Open(WriteFile("keys" + std::to_string(tab) + ".sql", text));
    ScriptFrame& frame = *host.window.CurrentFrame();
    ZNCoreEditorWidget bare;
    bare.resize(frame.Editor().GetHwnd()->size());
    bare.setLanguage(frame.Script()->Language());
    bare.openFile(QString::fromStdString(WriteFile("bare.sql", text)));
    bare.show();
    const HWND window = frame.Editor().GetSafeHwnd();
    window->setFocus();
    Host::Rest();
    const auto typeInto = [](HWND target, int key) {
        QKeyEvent press = KeyOf(key);
        return CpuSeconds([&] {
            QApplication::sendEvent(target, &press);
            QCoreApplication::processEvents();
        });
    };
    std::vector<double> times;
    std::vector<double> bareTimes;
    for (auto _ : state) {
        for (int key = 0; key < kKeys; ++key) {
            times.push_back(typeInto(window, key));
            bareTimes.push_back(typeInto(bare.control().GetHwnd(), key));
        }
    }
    if (!frame.Script()->IsModified() || !frame.Script()->GetTitle().endsWith(" *") ||
        !bare.isModified())
        state.SkipWithError("no key arrived");
    state.counters["ours_ms"] = MedianOf(times) * 1e3;
    state.counters["reference_ms"] = MedianOf(bareTimes) * 1e3;
    ReportFigure(state, MedianOf(times) / MedianOf(bareTimes), 2,
                 "times the bare widget, a key, painted");
    frame.Script()->SetModifiedFlag(0);
}
BENCHMARK(KeyOnItsWay)->Iterations(1)->UseManualTime();

void HundredDocuments(benchmark::State& state)
{
    constexpr int kDocuments = 100;
    const std::string text = MakeSql(Script::Mixed, 100 * 1024);
    std::vector<std::string> paths;
    for (int file = 0; file < kDocuments; ++file)
        paths.push_back(WriteFile("many" + std::to_string(file) + ".sql", text));
    double seconds = 0;
    for (auto _ : state) {
        Host host;
        seconds = CpuSeconds([&] {
            for (const std::string& path : paths)
                host.Open(path);
        });
    }
    ReportFigure(state, seconds, 3, "s for 100 documents of 100 KB, painted");
}
BENCHMARK(HundredDocuments)->Iterations(1)->UseManualTime();

} // namespace
} // namespace bench
