// SPDX-License-Identifier: GPL-3.0-or-later
// A character typed in the middle of a very long line, key and paint together, and the memory that
// it takes.
#include "bench/Pair.h"
#include "bench/Texts.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"

#include <QApplication>
#include <QKeyEvent>

#include <algorithm>
#include <fstream>
#include <vector>

namespace bench {
namespace {

constexpr int kTransactSql = 3;

enum class Line
{
    Plain, // rows of values, and nobody colours them
    Sql,   // the same as SQL
    Data,  // one string without a blank
};

// As a dump writes it: one statement with all its rows.
std::string MakeLine(Line kind, std::size_t bytes)
{
    std::string line;
    unsigned seed = 1;
    const auto random = [&seed](unsigned below) {
        seed = seed * 1664525 + 1013904223;
        return (seed >> 8) % below;
    };
    if (kind == Line::Data) {
        line = "insert into t values (0x";
        while (line.size() < bytes)
            line += "0123456789abcdef"[random(16)];
        return line;
    }
    line = "insert into article (id, name, price, remark) values ";
    while (line.size() < bytes) {
        line.append("(").append(std::to_string(random(1000000)));
        line.append(", 'name ").append(std::to_string(random(100000)));
        line.append("', ").append(std::to_string(random(1000))).append(".5, 'remark of item ");
        line.append(std::to_string(random(100000))).append(" in stock'), ");
    }
    return line;
}

double ResidentMegabytes()
{
    std::ifstream pages("/proc/self/statm");
    long total = 0;
    long resident = 0;
    pages >> total >> resident;
    return static_cast<double>(resident) * 4096 / kMegabyte;
}

void TypeInLongLine(benchmark::State& state, Line kind, std::size_t bytes, double limit)
{
    const int keys = bytes > kMegabyte ? 5 : 15; // a second and more each in the longest
    const std::string path =
        WriteFile("long.sql", "select 1;\n" + MakeLine(kind, bytes) + ";\nselect 2;\n");
    const double before = ResidentMegabytes();
    ZNCoreEditorWidget editor;
    editor.resize(1000, 700);
    CZNCoreEditorControl& control = editor.control();
    control.SetCarefulFiles(true);
    if (kind == Line::Sql)
        control.SetLexer(kTransactSql, 1);
    editor.openFile(QString::fromStdString(path));
    int painted = 0;
    QObject::connect(&editor, &ZNCoreEditorWidget::notified, [&](const SCNotification& record) {
        painted += record.nmhdr.code == notify::Painted;
    });
    editor.show();
    QApplication::processEvents();
    control.GotoPos(static_cast<long>(bytes / 2), 1);
    QApplication::processEvents();
    std::vector<double> times;
    for (auto _ : state) {
        for (int i = 0; i < keys; ++i) {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
            painted = 0;
            times.push_back(1e3 * CpuSeconds([&] {
                                QApplication::sendEvent(control.GetHwnd(), &press);
                                while (painted == 0)
                                    QApplication::processEvents();
                            }));
        }
    }
    std::sort(times.begin(), times.end());
    state.counters["ours_ms"] = MedianOf(times);
    state.counters["worst_ms"] = times.back();
    state.counters["memory_MB"] = ResidentMegabytes() - before;
    ReportFigure(state, MedianOf(times), limit, "ms a character, median");
}

const bool kRegistered = [] {
    struct SizeRow
    {
        const char* name;
        std::size_t bytes;
        double limit; // ms
    };
    struct KindRow
    {
        const char* name;
        Line kind;
    };
    for (const auto& [size, bytes, limit] : {SizeRow{"100K", kMegabyte / 10, 5},
                                             {"1M", kMegabyte, 30},
                                             {"10M", 10 * kMegabyte, 300},
                                             {"50M", 50 * kMegabyte, 2500}}) {
        for (const auto& [name, kind] :
             {KindRow{"plain/", Line::Plain}, {"sql/", Line::Sql}, {"data/", Line::Data}})
            benchmark::RegisterBenchmark((std::string("LongLine/") + name + size).c_str(),
                                         TypeInLongLine, kind, bytes, limit)
                ->Iterations(1);
    }
    return true;
}();

} // namespace
} // namespace bench
