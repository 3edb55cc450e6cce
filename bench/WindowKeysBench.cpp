// SPDX-License-Identifier: GPL-3.0-or-later
// Keys in the workbench's window on an X server while highlights and marks of a very long script
// are looked for. By the clock, since what counts is how long a person waits.
#include "bench/Pair.h"
#include "bench/Texts.h"
#include "bench/WindowBench.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "host/finding/FindBar.h"
#include "host/script/ScriptDoc.h"
#include "host/script/ScriptFrame.h"
#include "host/window/MainWindow.h"
#include "host/window/Workbench.h"

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QTimer>
#include <Qsci/qsciscintillabase.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <vector>

namespace bench {
namespace {

constexpr int kBursts = 40;
constexpr int kKeysInBurst = 10;

// Keys in bursts: the rest between two is long enough for the looking to begin, and too short for
// it to end.
class Typist : public QObject
{
public:
    explicit Typist(QsciScintillaBase& editor) : m_editor(editor)
    {
        connect(&editor, &QsciScintillaBase::SCN_PAINTED, this, &Typist::Painted);
        m_timer.setSingleShot(true);
        m_timer.setTimerType(Qt::PreciseTimer);
        connect(&m_timer, &QTimer::timeout, this, &Typist::Press);
        m_clock.start();
        Wait(kPause);
    }

    bool IsDone() const { return m_times.size() == kBursts * kKeysInBurst; }
    const std::vector<double>& Times() const { return m_times; }

private:
    static constexpr double kPause = 420; // milliseconds; occurrences are looked for after 350
    static constexpr double kBetween = 30;

    double Now() const { return static_cast<double>(m_clock.nsecsElapsed()) * 1e-6; }

    void Wait(double milliseconds)
    {
        m_due = Now() + milliseconds;
        m_timer.start(static_cast<int>(milliseconds));
    }

    void Press()
    {
        const bool erases = m_times.size() % kKeysInBurst >= kKeysInBurst / 2;
        QKeyEvent press(QEvent::KeyPress, erases ? Qt::Key_Backspace : Qt::Key_A, Qt::NoModifier,
                        erases ? "\b" : "a");
        m_isAwaited = true;
        QApplication::sendEvent(&m_editor, &press);
    }

    void Painted()
    {
        if (!std::exchange(m_isAwaited, false))
            return;
        m_times.push_back(Now() - m_due);
        if (!IsDone())
            Wait(m_times.size() % kKeysInBurst == 0 ? kPause : kBetween);
    }

    QsciScintillaBase& m_editor;
    QElapsedTimer m_clock;
    QTimer m_timer;
    double m_due = 0;
    bool m_isAwaited = false;
    std::vector<double> m_times;
};

void KeysWhileMarking(benchmark::State& state)
{
    constexpr double kLimit = 20;
    const std::string path = WriteFile("keys.sql", Sql64(Script::Ascii));
    std::vector<double> times;
    const bool hasDisplay = WithDisplay([&](const QString& display) {
        for (auto _ : state) {
            std::istringstream lines(
                AskChild(QStringLiteral("xcb"), display, "--keys-in-window", path));
            for (double time = 0; lines >> time;)
                times.push_back(time);
        }
    });
    if (!hasDisplay || times.size() != kBursts * kKeysInBurst) {
        state.SkipWithError("no keys on a display");
        return;
    }
    std::sort(times.begin(), times.end());
    state.counters["ours_ms"] = MedianOf(times);
    state.counters["longest_ms"] = times.back();
    ReportFigure(state, times[times.size() * 99 / 100], kLimit,
                 "ms until a key is painted, 99th percentile, 64 MB on a display");
}
BENCHMARK(KeysWhileMarking)->Iterations(1)->UseManualTime();

} // namespace

void PrintKeyTimes(const char* path)
{
    Workbench app(Workbench::Keeps::Nothing);
    MainWindow& window = *new MainWindow(app); // goes with the application
    window.resize(1000, 700);
    window.show();
    app.OpenDocumentFile(QString::fromUtf8(path));
    CZNCoreEditorControlEx& editor = window.CurrentFrame()->Editor();
    window.Find().Open();
    window.Find().findChild<QComboBox*>(QStringLiteral("findText"))->setEditText("article");
    window.GoToScript();
    const long place =
        editor.PositionFromLine(editor.LineFromPosition(editor.GetLength(1) / 2, 1), 1);
    const int line = editor.LineFromPosition(place, 1);
    editor.GotoLine(line, 1);
    editor.ReplaceSel(u"article_id ", 1); // which is on every other line
    editor.GotoPos(editor.GetCurrentPos(1) - 1, 1);
    for (int pass = 0; pass < 10; ++pass)
        QCoreApplication::processEvents();
    Typist typist(*static_cast<QsciScintillaBase*>(editor.GetSafeHwnd()));
    while (!typist.IsDone())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    if (editor.GetLength(1) == 0)
        std::abort();
    for (const double time : typist.Times())
        std::cout << time << '\n';
    window.CurrentFrame()->Script()->SetModifiedFlag(0);
}

} // namespace bench
