// SPDX-License-Identifier: GPL-3.0-or-later
// What the map beside a text costs: keys, changes that nobody types, memory.
#include "bench/Pair.h"
#include "bench/Texts.h"
#include "control/EngineRecords.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>

#include <cstdlib>
#include <vector>

#include <malloc.h>

namespace bench {
namespace {

constexpr int kTransactSql = 3;

struct Editor
{
    Editor(const std::string& path, bool hasMap)
    {
        widget.resize(1000, 700);
        widget.setLanguage(kTransactSql);
        widget.openFile(QString::fromStdString(path));
        widget.setDocumentMapVisible(hasMap);
        QObject::connect(&widget, &ZNCoreEditorWidget::notified,
                         [this](const SCNotification& record) {
                             painted += record.nmhdr.code == notify::Painted;
                         });
        widget.show();
        Rest();
    }

    // Until the map is drawn.
    static void Rest()
    {
        constexpr qint64 kLong = 300; // milliseconds
        QElapsedTimer clock;
        for (clock.start(); clock.elapsed() < kLong;)
            QApplication::processEvents(QEventLoop::AllEvents, 20);
    }

    // Seconds of each key, with all that is done about it before the next one.
    double Type(int keys)
    {
        constexpr int kKeysInLine = 60;
        painted = 0;
        const double seconds = CpuSeconds([&] {
            for (int key = 0; key < keys; ++key) {
                const bool ends = key % kKeysInLine == kKeysInLine - 1;
                QKeyEvent press(QEvent::KeyPress, ends ? Qt::Key_Return : Qt::Key_A, Qt::NoModifier,
                                ends ? "\r" : "a");
                QApplication::sendEvent(widget.control().GetHwnd(), &press);
                QApplication::processEvents();
            }
        });
        if (painted < keys)
            std::abort(); // no figure
        return seconds / keys;
    }

    ZNCoreEditorWidget widget;
    int painted = 0;
};

// The keys of both by turns, in the middle of the text; what is done about them in between counts.
void TypeInTwo(benchmark::State& state, const std::string& path, int keys, int rounds, double limit)
{
    Editor plain(path, false);
    Editor mapped(path, true);
    for (Editor* editor : {&plain, &mapped}) {
        CZNCoreEditorControl& control = editor->widget.control();
        control.GotoPos(control.GetLength(1) / 2, 1);
        Editor::Rest();
        editor->Type(2); // what the first ones allocate
    }
    std::vector<double> with;
    std::vector<double> without;
    for (auto _ : state) {
        for (int round = 0; round < rounds; ++round) {
            without.push_back(plain.Type(keys));
            with.push_back(mapped.Type(keys));
        }
    }
    state.counters["ours_ms"] = MedianOf(with) * 1e3;
    state.counters["reference_ms"] = MedianOf(without) * 1e3;
    ReportFigure(state, MedianOf(with) / MedianOf(without), limit,
                 "times a painted key without a map");
}

void TypeWithMap(benchmark::State& state)
{
    TypeInTwo(state, WriteFile("map.sql", Sql64(Script::Ascii)), 500, 9, 1.1);
}
BENCHMARK(TypeWithMap)->Iterations(1);

void LongLineWithMap(benchmark::State& state)
{
    std::string line = "select 1;\ninsert into article (id, name) values ";
    for (int row = 0; line.size() < 10 * kMegabyte; ++row)
        line.append("(").append(std::to_string(row)).append(", 'a name of some length'), ");
    line.append(";\nselect 2;\n");
    TypeInTwo(state, WriteFile("maplong.sql", line), 3, 5, 1.1);
}
BENCHMARK(LongLineWithMap)->Iterations(1);

// Each change moves lines.
void UndoWithMap(benchmark::State& state)
{
    constexpr double kLimit = 1.1;
    constexpr int kChanges = 100'000;
    const std::string path = WriteFile("mapundo.sql", MakeSql(Script::Ascii, 16 * kMegabyte));
    Editor plain(path, false);
    Editor mapped(path, true);
    for (Editor* editor : {&plain, &mapped}) {
        CZNCoreEditorControl& control = editor->widget.control();
        const long step = control.GetLength(1) / kChanges;
        control.BeginUndoAction(1);
        for (int change = 0; change < kChanges; ++change) {
            control.SetTarget(static_cast<int>(change * step), static_cast<int>(change * step));
            control.ReplaceTargetNoProcess(2, u"x\n", 1);
        }
        control.EndUndoAction(1);
        Editor::Rest();
    }
    const auto undoAndRedo = [](Editor& editor) {
        editor.widget.control().Undo(1);
        editor.widget.control().Redo(1);
    };
    MeasurePair(
        state, [&] { undoAndRedo(mapped); }, [&] { undoAndRedo(plain); }, kLimit);
}
BENCHMARK(UndoWithMap)->Iterations(5)->UseManualTime()->Unit(benchmark::kMillisecond);

// Of a window that is 1,400 pixels high.
void MapMemory(benchmark::State& state)
{
    constexpr double kLimit = 2;
    const auto allocated = [] {
        const struct mallinfo2 heap = mallinfo2();
        return static_cast<double>(heap.uordblks + heap.hblkhd) / kMegabyte;
    };
    Editor editor(WriteFile("mapmemory.sql", MakeSql(Script::Mixed, kMegabyte)), true);
    editor.widget.resize(1000, 1400);
    Editor::Rest();
    double with = 0;
    double without = 0;
    for (auto _ : state) {
        for (int turn = 0; turn < 3; ++turn) { // the first ones fill what is kept in any case
            editor.widget.setDocumentMapVisible(false);
            Editor::Rest();
            without = allocated();
            editor.widget.setDocumentMapVisible(true);
            Editor::Rest();
            with = allocated();
        }
    }
    if (without >= with)
        std::abort(); // something else was measured
    ReportFigure(state, with - without, kLimit, "megabytes");
}
BENCHMARK(MapMemory)->Iterations(1);

} // namespace
} // namespace bench
