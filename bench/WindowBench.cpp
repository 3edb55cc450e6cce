// SPDX-License-Identifier: GPL-3.0-or-later
// Replace All in the workbench's window on an X server, and its undo, beside the same without a
// display. By the clock, since what a display costs is the waiting for it.
#include "bench/WindowBench.h"

#include "bench/Pair.h"
#include "bench/Texts.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "host/finding/FindBar.h"
#include "host/script/ScriptDoc.h"
#include "host/script/ScriptFrame.h"
#include "host/window/MainWindow.h"
#include "host/window/Workbench.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QProcess>

#include <algorithm>
#include <cstring>
#include <iostream>
#include <sstream>

namespace bench {
namespace {

constexpr int kMatches = 500'000;
constexpr int kRounds = 3;
constexpr double kLimit = 1.5;

struct Seconds
{
    double replace = 0;
    double undo = 0;
};

// Until it is painted and the display has it.
template <typename Work>
double SecondsOf(Work work)
{
    QElapsedTimer clock;
    clock.start();
    work();
    for (int pass = 0; pass < 3; ++pass)
        QCoreApplication::processEvents();
    QGuiApplication::sync();
    return static_cast<double>(clock.nsecsElapsed()) * 1e-9;
}

Seconds ReplaceAndUndo(const char* path)
{
    Workbench app(Workbench::Keeps::Nothing);
    MainWindow& window = *new MainWindow(app); // goes with the application
    window.resize(1000, 700);
    window.show();
    app.OpenDocumentFile(QString::fromUtf8(path));
    QCoreApplication::processEvents();
    CZNCoreEditorControlEx& editor = window.CurrentFrame()->Editor();
    FindBar& bar = window.Find();
    bar.Open();
    bar.findChild<QComboBox*>(QStringLiteral("findText"))->setEditText(QStringLiteral("a"));
    bar.findChild<QComboBox*>(QStringLiteral("replaceText"))->setEditText(QStringLiteral("bc"));
    const long length = editor.GetLength(1);
    Seconds seconds;
    seconds.replace = SecondsOf([&] { bar.ReplaceAll(); });
    const bool replaced = editor.GetLength(1) == length + kMatches;
    window.FollowNow();
    seconds.undo =
        SecondsOf([&] { window.findChild<QAction*>(QStringLiteral("undo"))->trigger(); });
    if (!replaced || editor.GetLength(1) != length || editor.CanUndo(1))
        std::abort(); // what was measured did not happen
    return seconds;
}

Seconds AskSeconds(const std::string& path, const QString& platform, const QString& display)
{
    Seconds seconds;
    std::istringstream(AskChild(platform, display, "--in-window", path)) >> seconds.replace >>
        seconds.undo;
    return seconds;
}

void ReportTurns(benchmark::State& state, const std::vector<Seconds>& shown,
                 const std::vector<Seconds>& unseen, double Seconds::*what)
{
    std::vector<double> ours;
    std::vector<double> reference;
    std::vector<double> ratios;
    for (std::size_t i = 0; i < shown.size(); ++i) {
        ours.push_back(shown[i].*what);
        reference.push_back(unseen[i].*what);
        ratios.push_back(ours.back() / reference.back());
    }
    const auto [lowest, highest] = std::minmax_element(ratios.begin(), ratios.end());
    state.counters["lowest"] = *lowest;
    state.counters["highest"] = *highest;
    state.counters["ours_ms"] = MedianOf(ours) * 1e3;
    state.counters["reference_ms"] = MedianOf(reference) * 1e3;
    ReportFigure(state, MedianOf(ours) / MedianOf(reference), kLimit,
                 "times without a display, by the clock");
}

void InWindow(benchmark::State& state, double Seconds::*what)
{
    std::string text;
    for (int line = 0; line < kMatches; ++line)
        text += "where a = 1;\n";
    const std::string path = WriteFile("window.sql", text);
    std::vector<Seconds> shown;
    std::vector<Seconds> unseen;
    const bool hasDisplay = WithDisplay([&](const QString& display) {
        for (auto _ : state) {
            for (int round = 0; round < kRounds; ++round) {
                unseen.push_back(AskSeconds(path, QStringLiteral("offscreen"), display));
                shown.push_back(AskSeconds(path, QStringLiteral("xcb"), display));
            }
        }
    });
    if (hasDisplay)
        ReportTurns(state, shown, unseen, what);
    else
        state.SkipWithError("there is no Xvfb");
}
BENCHMARK_CAPTURE(InWindow, ReplaceAll, &Seconds::replace)->Iterations(1)->UseManualTime();
BENCHMARK_CAPTURE(InWindow, Undo, &Seconds::undo)->Iterations(1)->UseManualTime();

} // namespace

bool WithDisplay(const std::function<void(const QString& display)>& work)
{
    QProcess server;
    server.start(QStringLiteral("Xvfb"),
                 {"-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp"});
    if (!server.waitForReadyRead())
        return false;
    work(u':' + QString::fromLatin1(server.readLine()).trimmed());
    server.kill();
    server.waitForFinished();
    return true;
}

std::string AskChild(const QString& platform, const QString& display, const char* word,
                     const std::string& path)
{
    QProcess child;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), platform);
    environment.insert(QStringLiteral("DISPLAY"), display);
    child.setProcessEnvironment(environment);
    child.start("/proc/self/exe", {word, QString::fromStdString(path)});
    child.waitForFinished(-1);
    return child.readAllStandardOutput().toStdString();
}

bool RunInWindow(int argc, char** argv)
{
    if (argc == 3 && std::strcmp(argv[1], "--keys-in-window") == 0) {
        PrintKeyTimes(argv[2]);
        return true;
    }
    if (argc != 3 || std::strcmp(argv[1], "--in-window") != 0)
        return false;
    const Seconds seconds = ReplaceAndUndo(argv[2]);
    std::cout << seconds.replace << ' ' << seconds.undo << '\n';
    return true;
}

} // namespace bench
