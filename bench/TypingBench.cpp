// SPDX-License-Identifier: GPL-3.0-or-later
// One typed character, and undo and redo of very many changes.
#include "bench/Pair.h"
#include "bench/RawEngine.h"
#include "bench/Texts.h"
#include "control/EngineLooks.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"

#include <QApplication>
#include <QKeyEvent>

#include <algorithm>
#include <iterator>
#include <vector>

namespace bench {
namespace {

using Sci = QsciScintillaBase;

constexpr int kKeys = 2000;
constexpr int kPaintedKeys = 500;

constexpr int kKeysInLine = 60;

// A person's lines: Enter after every sixty keys.
void Type(QWidget* window, int key)
{
    const bool enter = key % kKeysInLine == kKeysInLine - 1;
    QKeyEvent press(QEvent::KeyPress, enter ? Qt::Key_Return : Qt::Key_A, Qt::NoModifier,
                    enter ? "\r" : "a");
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

enum class Way
{
    Message,
    Key,
    PaintedKey
};

struct Editor
{
    explicit Editor(Script script)
    {
        widget.resize(1000, 700);
        widget.control().SetCarefulFiles(true);
        const std::string path = WriteFile("typing.sql", Sql64(script));
        widget.openFile(QString::fromStdString(path));
        QObject::connect(&widget, &ZNCoreEditorWidget::notified,
                         [this](const SCNotification& record) {
                             painted += record.nmhdr.code == notify::Painted;
                             told += record.nmhdr.code == notify::Modified &&
                                     (record.modificationType & modification::InsertText);
                         });
    }

    ZNCoreEditorWidget widget;
    int told = 0;
    int painted = 0;
};

// Microseconds of each character. The parent hears of every one of them.
std::vector<double> TypeMany(Editor& editor, Place place, Way way)
{
    CZNCoreEditorControl& control = editor.widget.control();
    control.GotoPos(PositionOf(place, control.GetLength(1)), 1);
    QApplication::processEvents();
    QWidget* window = control.GetHwnd();
    const int keys = way == Way::PaintedKey ? kPaintedKeys : kKeys;
    editor.told = editor.painted = 0;
    std::vector<double> times;
    for (int i = 0; i < keys; ++i) {
        times.push_back(1e6 * CpuSeconds([&] {
                            if (way == Way::Message)
                                control.AddText(1, i % kKeysInLine ? u"a" : u"\n", 1);
                            else
                                Type(window, i);
                            if (way == Way::PaintedKey)
                                QApplication::processEvents(); // paints what the key has changed
                        }));
    }
    // Enter on an indented line puts more in than itself.
    if (editor.told < keys || (way == Way::PaintedKey && editor.painted < keys))
        std::abort(); // the parent was not told, or nothing was painted: no figure
    return times;
}

// The same keys in the raw engine, whose parent hears nothing.
std::vector<double> TypeManyRaw(Script script, Place place)
{
    RawEngine raw;
    raw.Widget().resize(1000, 700);
    raw.Load(Sql64(script));
    raw.Send(Sci::SCI_GOTOPOS, static_cast<std::uintptr_t>(PositionOf(
                                   place, static_cast<long>(raw.Send(Sci::SCI_GETLENGTH)))));
    std::vector<double> times;
    for (int i = 0; i < kKeys; ++i)
        times.push_back(1e6 * CpuSeconds([&] { Type(&raw.Widget(), i); }));
    return times;
}

void Typing(benchmark::State& state, Script script, Place place, Way way)
{
    constexpr double kLimit = 10;
    constexpr double kPaintedLimit = 250;
    Editor editor(script);
    if (way == Way::PaintedKey)
        editor.widget.show();
    std::vector<double> times;
    for (auto _ : state)
        times = TypeMany(editor, place, way);
    std::sort(times.begin(), times.end());
    const double p99 = times[times.size() * 99 / 100];
    state.counters["p99_us"] = p99;
    if (way != Way::PaintedKey && p99 > 1000)
        state.SkipWithError("99th percentile above 1 ms");
    state.counters["ours_ms"] = MedianOf(times) / 1e3;
    if (way == Way::Key) { // nearly all of a key is the engine's own work
        const double raw = MedianOf(TypeManyRaw(script, place));
        state.counters["reference_ms"] = raw / 1e3;
        state.counters["ratio"] = MedianOf(times) / raw;
        return;
    }
    ReportFigure(state, MedianOf(times), way == Way::PaintedKey ? kPaintedLimit : kLimit,
                 "us a character, median");
}

constexpr int kReplacements = 250000; // two changes each

// Undone or done again without a scheme, which has the changed lines marked too.
void UndoRedo(benchmark::State& state, bool redo)
{
    constexpr double kLimit = 2.0;
    const std::string text = MakeSql(Script::Ascii, 16 * kMegabyte);
    ZNCoreEditorWidget editor;
    editor.setScheme(QString());
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

// Many changes undone and done again with a scheme, whose marks at changed lines they take away and
// set, beside without one.
void UndoWithLooks(benchmark::State& state)
{
    constexpr double kLimit = 1.5;
    const std::string text = MakeSql(Script::Ascii, 16 * kMegabyte);
    const std::u16string units(text.begin(), text.end());
    const long step = static_cast<long>(text.size()) / kReplacements;
    ZNCoreEditorWidget plain;
    ZNCoreEditorWidget dressed;
    plain.setScheme(QString());
    for (ZNCoreEditorWidget* editor : {&plain, &dressed}) {
        CZNCoreEditorControl& control = editor->control();
        control.SetText(units.c_str(), 1);
        control.EmptyUndoBuffer(1);
        control.BeginUndoAction(1);
        for (long i = 0; i < kReplacements; ++i) {
            control.SetTarget(static_cast<int>(i * step), static_cast<int>(i * step + 2));
            control.ReplaceTargetNoProcess(3, u"xyz", 1);
        }
        control.EndUndoAction(1);
    }
    const auto undoAndRedo = [](ZNCoreEditorWidget& editor) {
        editor.control().Undo(1);
        editor.control().Redo(1);
    };
    MeasurePair(
        state, [&] { undoAndRedo(dressed); }, [&] { undoAndRedo(plain); }, kLimit);
}

// Keys that are painted, with all that a scheme draws beside the text and problems, bookmarks and
// matches to draw, beside the same editor without a scheme; by turns.
void TypingWithLooks(benchmark::State& state)
{
    constexpr int kTransactSql = 3;
    constexpr double kLimit = 1.3;
    constexpr int kRounds = 4;
    Editor plain(Script::Ascii);
    Editor dressed(Script::Ascii);
    plain.widget.setScheme(QString());
    for (Editor* editor : {&plain, &dressed}) {
        editor->widget.setLanguage(kTransactSql);
        editor->widget.show();
    }
    CZNCoreEditorControl& control = dressed.widget.control();
    for (int line = 0; line < control.GetLineCount(1); line += 1000)
        control.MarkerAdd(line, engine::lookmarker::kBookmark, 1);
    control.Call(engine::kShowMatches, 0, reinterpret_cast<LPARAM>(u"select"), 1);
    QApplication::processEvents();
    std::vector<double> with;
    std::vector<double> without;
    for (auto _ : state) {
        for (int round = 0; round < kRounds; ++round) {
            std::ranges::copy(TypeMany(plain, Place::Middle, Way::PaintedKey),
                              std::back_inserter(without));
            std::ranges::copy(TypeMany(dressed, Place::Middle, Way::PaintedKey),
                              std::back_inserter(with));
        }
    }
    std::sort(with.begin(), with.end());
    state.counters["p99_us"] = with[with.size() * 99 / 100];
    state.counters["ours_ms"] = MedianOf(with) / 1e3;
    state.counters["reference_ms"] = MedianOf(without) / 1e3;
    state.counters["ratio"] = MedianOf(with) / MedianOf(without);
    state.counters["limit"] = kLimit;
}

const bool kRegistered = [] {
    struct PlaceRow
    {
        const char* name;
        Place place;
    };
    struct WayRow
    {
        const char* title;
        Way way;
    };
    for (const Script script : {Script::Ascii, Script::Mixed}) {
        for (const auto& [name, place] :
             {PlaceRow{"start", Place::Start}, {"middle", Place::Middle}, {"end", Place::End}}) {
            for (const auto& [title, way] : {WayRow{"TypeMessage/", Way::Message},
                                             {"TypeKey/", Way::Key},
                                             {"TypePainted/", Way::PaintedKey}})
                benchmark::RegisterBenchmark(
                    (std::string(title) + NameOf(script) + "/" + name).c_str(), Typing, script,
                    place, way)
                    ->Iterations(1);
        }
    }
    benchmark::RegisterBenchmark("TypeWithLooks", TypingWithLooks)->Iterations(1);
    benchmark::RegisterBenchmark("Undo500000", UndoRedo, false)->Iterations(3);
    benchmark::RegisterBenchmark("Redo500000", UndoRedo, true)->Iterations(3);
    benchmark::RegisterBenchmark("UndoWithLooks", UndoWithLooks)
        ->Iterations(5)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
    return true;
}();

} // namespace
} // namespace bench
