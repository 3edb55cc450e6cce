// One typed character, and undo and redo of very many changes.
#include "bench/Pair.h"
#include "bench/RawEngine.h"
#include "bench/Texts.h"
#include "control/ZNCoreEditorWidget.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QKeyEvent>

#include <algorithm>
#include <vector>

namespace bench {
namespace {

using Sci = QsciScintillaBase;

constexpr int kKeys = 2000;
constexpr int kPaintedKeys = 500;

void Type(QWidget* window)
{
    QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
    QApplication::sendEvent(window, &press);
}

enum class Place
{
    Start,
    Middle,
    End
};

long PositionOf(Place place, long length)
{
    return place == Place::Start ? 0 : place == Place::Middle ? length / 2 : length;
}

// Microseconds of each key, sorted. The parent hears of each change.
std::vector<double> TypeMany(Script script, Place place, bool painted)
{
    ZNCoreEditorWidget editor;
    editor.resize(1000, 700);
    if (painted)
        editor.show();
    const std::string& text = Sql64(script);
    const std::string path = WriteFile("typing.sql", text);
    editor.openFile(QString::fromStdString(path));
    editor.control().GotoPos(PositionOf(place, editor.control().GetLength(1)), 1);
    QApplication::processEvents();
    QWidget* window = editor.control().GetHwnd();
    QWidget* viewport = qobject_cast<QAbstractScrollArea*>(window)->viewport();
    int told = 0;
    QObject::connect(&editor, &ZNCoreEditorWidget::notified, [&](const SCNotification& record) {
        told += record.nmhdr.code == notify::Modified &&
                (record.modificationType & modification::InsertText);
    });
    const int keys = painted ? kPaintedKeys : kKeys;
    std::vector<double> times;
    for (int i = 0; i < keys; ++i) {
        times.push_back(1e6 * CpuSeconds([&] {
                            Type(window);
                            if (painted)
                                viewport->repaint();
                        }));
    }
    if (told != keys)
        times.assign(1, 1e9); // the parent was not told: no figure
    std::sort(times.begin(), times.end());
    return times;
}

void Typing(benchmark::State& state, Script script, Place place, bool painted)
{
    std::vector<double> times;
    for (auto _ : state)
        times = TypeMany(script, place, painted);
    const double p99 = times[times.size() * 99 / 100];
    state.counters["p99_us"] = p99;
    if (!painted && p99 > 1000)
        state.SkipWithError("99th percentile above 1 ms");
    ReportFigure(state, times[times.size() / 2], painted ? 250 : 10, "us a key, median");
}

constexpr int kReplacements = 250000; // two changes each

void UndoRedo(benchmark::State& state, bool redo)
{
    constexpr double kLimit = 2.0;
    const std::string text = MakeSql(Script::Ascii, 16 * kMegabyte);
    ZNCoreEditorWidget editor;
    CZNCoreEditorControl& control = editor.control();
    control.SetText(std::u16string(text.begin(), text.end()).c_str(), 1);
    control.EmptyUndoBuffer(1);
    RawEngine raw;
    raw.Load(text);
    const long step = static_cast<long>(text.size()) / kReplacements;
    control.BeginUndoAction(1);
    raw.Send(Sci::SCI_BEGINUNDOACTION);
    for (long i = 0; i < kReplacements; ++i) {
        control.SetTarget(static_cast<int>(i * step), static_cast<int>(i * step + 2));
        control.ReplaceTargetNoProcess(3, u"xyz", 1);
        raw.Send(Sci::SCI_SETTARGETRANGE, static_cast<std::uintptr_t>(i * step), i * step + 2);
        raw.Send(Sci::SCI_REPLACETARGET, 3, "xyz");
    }
    control.EndUndoAction(1);
    raw.Send(Sci::SCI_ENDUNDOACTION);
    const auto other = [&](bool wantRedo) {
        // Outside of the measurement, back to where the next round starts.
        if (wantRedo) {
            control.Redo(1);
            raw.Send(Sci::SCI_REDO);
        } else {
            control.Undo(1);
            raw.Send(Sci::SCI_UNDO);
        }
    };
    if (redo)
        other(false);
    std::vector<double> ours;
    std::vector<double> theirs;
    for (auto _ : state) {
        ours.push_back(CpuSeconds([&] { redo ? control.Redo(1) : control.Undo(1); }));
        theirs.push_back(CpuSeconds([&] { raw.Send(redo ? Sci::SCI_REDO : Sci::SCI_UNDO); }));
        other(!redo);
    }
    std::sort(ours.begin(), ours.end());
    std::sort(theirs.begin(), theirs.end());
    state.counters["ours_ms"] = ours[ours.size() / 2] * 1e3;
    state.counters["reference_ms"] = theirs[theirs.size() / 2] * 1e3;
    state.counters["ratio"] = ours[ours.size() / 2] / theirs[theirs.size() / 2];
    state.counters["limit"] = kLimit;
}

const bool kRegistered = [] {
    struct PlaceRow
    {
        const char* name;
        Place place;
    };
    for (const Script script : {Script::Ascii, Script::Mixed}) {
        for (const auto& [name, place] :
             {PlaceRow{"start", Place::Start}, {"middle", Place::Middle}, {"end", Place::End}}) {
            for (const bool painted : {false, true}) {
                const std::string title =
                    std::string(painted ? "TypePainted/" : "Type/") + NameOf(script) + "/" + name;
                benchmark::RegisterBenchmark(title.c_str(), Typing, script, place, painted)
                    ->Iterations(1);
            }
        }
    }
    benchmark::RegisterBenchmark("Undo500000", UndoRedo, false)->Iterations(3);
    benchmark::RegisterBenchmark("Redo500000", UndoRedo, true)->Iterations(3);
    return true;
}();

} // namespace
} // namespace bench
