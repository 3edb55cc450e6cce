// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/MemoryBench.h"

#include "bench/ExpandScripts.h"
#include "bench/Pair.h"
#include "bench/RawEngine.h"
#include "bench/RawExpansion.h"
#include "bench/Texts.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "host/printing/WorkbenchPrinter.h"
#include "host/script/ScriptFrame.h"
#include "host/script/ScriptView.h"
#include "host/window/MainWindow.h"
#include "host/window/Workbench.h"
#include "preprocess/CompileManager.h"
#include "preprocess/language/VariableTable.h"

#include <QProcess>

#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <sstream>

#include <malloc.h>

namespace bench {
namespace {

using Sci = QsciScintillaBase;

constexpr double kLimitMegabytes = 1.0;
constexpr double kExpandLimitMegabytes = 2.0;

// A line of /proc/self/status, in bytes.
double StatusBytes(const char* key)
{
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.rfind(key, 0) == 0)
            return std::strtod(line.c_str() + std::strlen(key) + 1, nullptr) * 1024;
    }
    return 0;
}

// From here on the peak counts anew.
void ForgetPeak()
{
    std::ofstream("/proc/self/clear_refs") << "5";
}

// Code that runs for the first time is read in, which is no memory of the load's.
void WarmUp()
{
    const std::string path = WriteFile("warm.sql", MakeSql(Script::Ascii, 4 * 8192));
    ZNCoreEditorWidget editor;
    editor.openFile(QString::fromStdString(path));
}

double RawLoad(const char* path)
{
    WarmUp();
    RawEngine raw;
    ForgetPeak();
    const double before = StatusBytes("VmRSS:");
    raw.Send(Sci::SCI_SETUNDOCOLLECTION, 0);
    std::FILE* file = std::fopen(path, "rb");
    std::fseek(file, 0, SEEK_END);
    raw.Send(Sci::SCI_ALLOCATE, static_cast<std::uintptr_t>(std::ftell(file)));
    std::rewind(file);
    char block[8192];
    while (const std::size_t length = std::fread(block, 1, sizeof block, file))
        raw.Send(Sci::SCI_ADDTEXT, length, block);
    std::fclose(file);
    return StatusBytes("VmHWM:") - before;
}

double OurLoad(const char* path)
{
    WarmUp();
    ZNCoreEditorWidget editor;
    ForgetPeak();
    const double before = StatusBytes("VmRSS:");
    editor.openFile(QString::fromLocal8Bit(path));
    return StatusBytes("VmHWM:") - before;
}

double OurSave(const char* path, bool careful)
{
    ZNCoreEditorWidget editor;
    editor.openFile(QString::fromLocal8Bit(path));
    editor.control().SetCarefulFiles(careful);
    ForgetPeak();
    const double before = StatusBytes("VmRSS:");
    editor.saveFile(QString::fromLocal8Bit(path) + ".out");
    return StatusBytes("VmHWM:") - before;
}

std::string ReadBytes(const std::string& path)
{
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

// The script is the folder's main.sql.
double RawExpand(const std::string& folder)
{
    RawEngine raw;
    RawExpansion expansion(raw, folder);
    raw.Load("#define &&A 1\nselect &&A\n");
    expansion.Expand();
    raw.Load(ReadBytes(folder + "/main.sql"));
    raw.Send(Sci::SCI_COLOURISE, 0, -1);
    malloc_trim(0);
    ForgetPeak();
    const double before = StatusBytes("VmRSS:");
    expansion.Expand();
    return StatusBytes("VmHWM:") - before;
}

// The text that is handed over is the host's; styles and fold levels are the engine's. It keeps a
// state and a level of each line once it has styled it, which the reference does not: 9.4 MB for
// the 1.1 million lines of 64 MB, 13.9 MB while it makes room, so that both are styled before.
double OurExpand(const std::string& folder)
{
    ZNCoreEditorWidget editor;
    editor.setScheme(QString()); // it would mark each line that changes, in some 46 bytes
    Bind(editor, "Transact-SQL");
    CZNCompileManager& manager = *zncoreeditor::GetCompileManager();
    manager.SetSearchPath(QString::fromStdString(folder));
    editor.control().SetText(u"#define &&A 1\nselect &&A\n", 1);
    manager.PreProcess(&editor.control(), editor.control().GetText());
    editor.openFile(QString::fromStdString(folder + "/main.sql"));
    // The first edit makes room, which the reference has from its load.
    editor.control().InsertText(0, u" ", 1);
    editor.control().Undo(1);
    editor.control().Colorize(0, -1, 1);
    const QString text = editor.control().GetText();
    malloc_trim(0);
    ForgetPeak();
    const double before = StatusBytes("VmRSS:");
    manager.PreProcess(&editor.control(), text);
    return StatusBytes("VmHWM:") - before;
}

// Beside the script and its styles; what prints for the first time is read in before.
double OurPrint(const char* path)
{
    Workbench app(Workbench::Keeps::Nothing);
    MainWindow& window = *new MainWindow(app); // goes with the application
    const auto print = [&](const std::string& script) {
        app.OpenDocumentFile(QString::fromStdString(script));
        ScriptView& view = *window.CurrentFrame()->View();
        window.SetLanguage(ZNCoreEditorWidget::languageOfName(QStringLiteral("Transact-SQL")));
        view.GetCoreEditorControl()->Colorize(0, -1, 1);
        malloc_trim(0);
        ForgetPeak();
        const double before = StatusBytes("VmRSS:");
        WorkbenchPrinter::SavePdf(view, QString::fromStdString(script) + QStringLiteral(".pdf"));
        return StatusBytes("VmHWM:") - before;
    };
    print(WriteFile("warm.sql", MakeSql(Script::Ascii, 4 * 8192)));
    return print(path);
}

// What the variables of the script take.
double TableMemory(const std::string& folder)
{
    const auto inUse = [] {
        const auto info = mallinfo2();
        return static_cast<double>(info.uordblks + info.hblkhd);
    };
    std::istringstream script(ReadBytes(folder + "/main.sql"));
    const double before = inUse();
    VariableTable table;
    std::string word;
    std::string name;
    std::string value;
    while (script >> word >> name >> value && word == "#define") {
        table.Insert(QString::fromStdString(name), QString::fromStdString(value));
        table.LongestDefined(QString::fromStdString(name));
    }
    return inUse() - before;
}

double AskChild(const char* what, const std::string& path)
{
    QProcess child;
    child.start("/proc/self/exe", {"--child", what, QString::fromStdString(path)});
    child.waitForFinished(-1);
    return child.readAllStandardOutput().toDouble();
}

void LoadMemory(benchmark::State& state)
{
    const auto megabytes = static_cast<std::size_t>(state.range(0));
    const std::string path = WriteFile("memory.sql", MakeSql(Script::Ascii, megabytes * kMegabyte));
    double extra = 0;
    for (auto _ : state)
        extra = AskChild("load", path) - AskChild("raw", path);
    ReportFigure(state, extra / static_cast<double>(kMegabyte), kLimitMegabytes,
                 "MB above the raw engine's peak");
}

void SaveMemory(benchmark::State& state, const char* what)
{
    const auto megabytes = static_cast<std::size_t>(state.range(0));
    const std::string path = WriteFile("memory.sql", MakeSql(Script::Ascii, megabytes * kMegabyte));
    double extra = 0;
    for (auto _ : state)
        extra = AskChild(what, path);
    ReportFigure(state, extra / static_cast<double>(kMegabyte), kLimitMegabytes,
                 "MB above the memory before");
}

void PrintMemory(benchmark::State& state)
{
    constexpr double kLimit = 32;
    const auto megabytes = static_cast<std::size_t>(state.range(0));
    const std::string path = WriteFile("memory.sql", MakeSql(Script::Ascii, megabytes * kMegabyte));
    double extra = 0;
    for (auto _ : state)
        extra = AskChild("print", path);
    if (extra <= 0)
        state.SkipWithError("nothing was printed");
    ReportFigure(state, extra / static_cast<double>(kMegabyte), kLimit,
                 "MB above the memory before");
}

void ExpandMemory(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString script = folder.filePath("main.sql");
    std::ofstream(script.toStdString())
        << MakeExpandable(folder, static_cast<std::size_t>(state.range(0)));
    const std::string path = folder.path().toStdString();
    double ours = 0;
    double raw = 0;
    double table = 0;
    for (auto _ : state) {
        ours = AskChild("expand", path);
        raw = AskChild("expand-raw", path);
        table = AskChild("table", path);
    }
    const auto megabyte = static_cast<double>(kMegabyte);
    state.counters["ours_mb"] = ours / megabyte;
    state.counters["reference_mb"] = raw / megabyte;
    state.counters["table_mb"] = table / megabyte;
    ReportFigure(state, (ours - raw - table) / megabyte, kExpandLimitMegabytes,
                 "MB above the raw engine's peak and the variables");
}

const bool kRegistered = [] {
    for (const int megabytes : {16, 64}) {
        benchmark::RegisterBenchmark("PeakMemory/load", LoadMemory)->Arg(megabytes)->Iterations(1);
        benchmark::RegisterBenchmark("PeakMemory/save", SaveMemory, "save")
            ->Arg(megabytes)
            ->Iterations(1);
        benchmark::RegisterBenchmark("PeakMemory/saveCareful", SaveMemory, "save-careful")
            ->Arg(megabytes)
            ->Iterations(1);
    }
    benchmark::RegisterBenchmark("PeakMemory/print", PrintMemory)->Arg(4)->Iterations(1);
    for (const int megabytes : {16, 64}) {
        benchmark::RegisterBenchmark("PeakMemory/expand", ExpandMemory)
            ->Arg(megabytes)
            ->Iterations(1);
    }
    return true;
}();

} // namespace

bool RunAsChild(int argc, char** argv)
{
    if (argc != 4 || std::strcmp(argv[1], "--child") != 0)
        return false;
    const std::string what = argv[2];
    const double bytes = what == "raw"            ? RawLoad(argv[3])
                         : what == "load"         ? OurLoad(argv[3])
                         : what == "expand"       ? OurExpand(argv[3])
                         : what == "expand-raw"   ? RawExpand(argv[3])
                         : what == "print"        ? OurPrint(argv[3])
                         : what == "table"        ? TableMemory(argv[3])
                         : what == "save-careful" ? OurSave(argv[3], true)
                                                  : OurSave(argv[3], false);
    std::cout << static_cast<long long>(bytes) << '\n';
    return true;
}

} // namespace bench
