// SPDX-License-Identifier: GPL-3.0-or-later
// The search as one types, in the workbench: the key event of a character, beside the engine's own
// search for the same text from the same place. What it takes until the window is painted is told
// as painted_ms.
#include "bench/Pair.h"
#include "bench/Texts.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "host/script/ScriptFrame.h"
#include "host/window/MainWindow.h"
#include "host/window/Workbench.h"

#include <QApplication>
#include <QKeyEvent>

#include <vector>

namespace bench {
namespace {

constexpr std::u16string_view kSought = u"~whereabouts"; // at the end, and no part of it before

void SearchAsTyped(benchmark::State& state)
{
    const std::size_t size = static_cast<std::size_t>(state.range(0)) * kMegabyte;
    const std::string text = MakeSql(Script::Mixed, size) + "~whereabouts\n";
    Workbench app{Workbench::Keeps::Nothing};
    MainWindow& window = *new MainWindow(app); // goes with the application
    window.resize(1000, 700);
    window.show();
    QApplication::setActiveWindow(&window);
    app.OpenDocumentFile(QString::fromStdString(WriteFile("typed.sql", text)));
    for (int pass = 0; pass < 3; ++pass)
        QCoreApplication::processEvents();
    ScriptFrame& frame = *window.CurrentFrame();
    CZNCoreEditorControlEx& editor = frame.Editor();
    const HWND widget = editor.GetSafeHwnd();
    widget->setFocus();
    constexpr UINT kForward = 54024;
    frame.OnCmdMsg(kForward, nullptr);
    std::vector<double> ours;
    std::vector<double> painted;
    std::vector<double> theirs;
    for (auto _ : state) {
        for (std::size_t i = 0; i < kSought.size(); ++i) {
            QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(QChar(kSought[i])));
            ours.push_back(CpuSeconds([&] { QApplication::sendEvent(widget, &press); }));
            painted.push_back(ours.back() + CpuSeconds([] { QCoreApplication::processEvents(); }));
            const std::u16string typed(kSought.substr(0, i + 1));
            theirs.push_back(CpuSeconds([&] {
                editor.SetTargetStart(0, 1);
                editor.SetTargetEnd(editor.GetLength(1), 1);
                editor.SetSearchFlags(0, 1);
                editor.SearchInTarget(static_cast<int>(typed.size()), typed.c_str(), 1);
            }));
        }
    }
    const long found = editor.GetSelectionEnd(1) - editor.GetSelectionStart(1);
    if (found != static_cast<long>(kSought.size()))
        state.SkipWithError("what was typed is not selected");
    state.counters["ours_ms"] = MedianOf(ours) * 1e3;
    state.counters["painted_ms"] = MedianOf(painted) * 1e3;
    state.counters["reference_ms"] = MedianOf(theirs) * 1e3;
    ReportFigure(state, MedianOf(ours) / MedianOf(theirs), 2,
                 "times the engine's own search, a character");
}
BENCHMARK(SearchAsTyped)->Arg(4)->Arg(64)->Iterations(1)->UseManualTime();

} // namespace
} // namespace bench
