// SPDX-License-Identifier: GPL-3.0-or-later
// Searches through files by the clock on the wall, beside ripgrep with as many threads where it is
// installed, else beside a plain program that reads the same files and looks for the same with
// PCRE2's compiler, which counts the matches in any case; the memory that a search takes; and the
// pane that a million matches come into.
#define PCRE2_CODE_UNIT_WIDTH 8
#include "bench/Pair.h"
#include "bench/Texts.h"
#include "encoding/FileEncodeConverter.h"
#include "host/finding/FoundTexts.h"
#include "host/finding/ResultsPane.h"
#include "search/files/FileSearch.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <fstream>
#include <map>
#include <thread>

#include <malloc.h>
#include <pcre2.h>

namespace bench {
namespace {

constexpr int kFiles = 5000;
constexpr std::size_t kBytes = 256 * kMegabyte; // of UTF-8

class Counter final : public IFileSearchListener
{
public:
    Counter() { m_clock.start(); }
    void OnFound(FoundFile&& /*file*/) override
    {
        if (first < 0)
            first = m_clock.elapsed();
    }
    void OnNote(FileNote /*note*/, const QString& /*path*/) override {}
    void OnDone(const FileSearchTotals& all) override { totals = all; }

    FileSearchTotals totals;
    qint64 first = -1; // milliseconds

private:
    QElapsedTimer m_clock;
};

struct Files
{
    QTemporaryDir folder;
    QStringList paths;
};

// Kept from row to row: files take long to write.
const Files& FilesIn(int encoding)
{
    static std::map<int, Files> kept;
    Files& files = kept[encoding];
    if (!files.paths.isEmpty())
        return files;
    std::string bytes = Encode(MakeSql(Script::Mixed, kBytes / kFiles), encoding);
    if (encoding == FileEncodeConverter::encUTF16LE)
        bytes.insert(0, "\xFF\xFE");
    for (int i = 0; i < kFiles; ++i) {
        const QString inside = files.folder.filePath(QString::number(i / 100));
        if (i % 100 == 0)
            QDir().mkpath(inside);
        files.paths << QStringLiteral("%1/%2.sql").arg(inside).arg(i);
        std::ofstream(files.paths.back().toStdString(), std::ios::binary) << bytes;
    }
    return files;
}

double WallSeconds(const std::function<void()>& work)
{
    QElapsedTimer clock;
    clock.start();
    work();
    return static_cast<double>(clock.nsecsElapsed()) * 1e-9;
}

struct Sought
{
    const char* name;
    const char* text;
    bool matchCase;
    bool regExp;
    double limit;
};

constexpr Sought kSought[] = {
    {"literal", "penguin", true, false, 1.5},
    {"frequent", "article", true, false, 1.5},
    {"anyCase", "ARTICLE", false, false, 1.5},
    {"expression", "[a-z]+_id", true, true, 2},
};

// The text of a file as UTF-8, by Qt.
QByteArray PlainRead(const QString& path, int encoding)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        std::abort();
    QByteArray bytes = file.readAll();
    if (encoding == FileEncodeConverter::encANSI)
        return QString::fromLatin1(bytes).toUtf8();
    if (encoding == FileEncodeConverter::encUTF16LE)
        return QStringView(reinterpret_cast<const QChar*>(bytes.constData()) + 1,
                           bytes.size() / 2 - 1)
            .toUtf8();
    return bytes;
}

// The matches in the files, with the lines that they stand in counted.
long long PlainSearch(const QStringList& paths, int encoding, const Sought& sought, int threads)
{
    std::atomic<qsizetype> next{0};
    std::atomic<long long> found{0};
    const auto work = [&] {
        int error = 0;
        PCRE2_SIZE offset = 0;
        pcre2_code* code =
            pcre2_compile(reinterpret_cast<PCRE2_SPTR>(sought.text), PCRE2_ZERO_TERMINATED,
                          PCRE2_UTF | PCRE2_NO_UTF_CHECK | (sought.matchCase ? 0U : PCRE2_CASELESS),
                          &error, &offset, nullptr);
        pcre2_jit_compile(code, PCRE2_JIT_COMPLETE);
        pcre2_match_data* data = pcre2_match_data_create(4, nullptr);
        for (qsizetype i = next++; i < paths.size(); i = next++) {
            const QByteArray text = PlainRead(paths[i], encoding);
            const auto size = static_cast<PCRE2_SIZE>(text.size());
            const char* counted = text.constData();
            long line = 0;
            for (PCRE2_SIZE at = 0;
                 pcre2_match(code, reinterpret_cast<PCRE2_SPTR>(text.constData()), size, at,
                             PCRE2_NO_UTF_CHECK, data, nullptr) > 0;) {
                const PCRE2_SIZE* ends = pcre2_get_ovector_pointer(data);
                const char* start = text.constData() + ends[0];
                line += std::count(counted, start, '\n');
                counted = start;
                at = ends[1];
                ++found;
            }
            benchmark::DoNotOptimize(line);
        }
        pcre2_match_data_free(data);
        pcre2_code_free(code);
    };
    std::vector<std::thread> others;
    for (int i = 1; i < threads; ++i)
        others.emplace_back(work);
    work();
    for (std::thread& other : others)
        other.join();
    return found;
}

QStringList RipgrepWords(const Sought& sought, int encoding, int threads)
{
    QStringList words = {QStringLiteral("--threads"),    QString::number(threads),
                         QStringLiteral("--no-heading"), QStringLiteral("--line-number"),
                         QStringLiteral("--column"),     QStringLiteral("--no-ignore")};
    if (!sought.matchCase)
        words << QStringLiteral("--ignore-case");
    if (!sought.regExp)
        words << QStringLiteral("--fixed-strings");
    if (encoding == FileEncodeConverter::encANSI)
        words << QStringLiteral("--encoding") << QStringLiteral("windows-1252");
    return words << QString::fromLatin1(sought.text) << FilesIn(encoding).folder.path();
}

void SearchFiles(benchmark::State& state, int encoding, const Sought& sought)
{
    const Files& files = FilesIn(encoding);
    const int threads = std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
    FileSearchRequest request;
    request.text = QString::fromLatin1(sought.text);
    request.matchCase = sought.matchCase;
    request.regExp = sought.regExp;
    request.folders = {files.folder.path()};
    request.types = QStringLiteral("*.sql");
    request.threads = threads;
    const QString program = QStandardPaths::findExecutable(QStringLiteral("rg"));
    std::vector<double> ours;
    std::vector<double> theirs;
    std::vector<double> ripgrep;
    std::vector<double> first;
    for (auto _ : state) {
        long long matches = 0;
        ours.push_back(WallSeconds([&] {
            Counter counter;
            CFileSearch search(request, counter);
            search.Start();
            search.Wait();
            first.push_back(static_cast<double>(counter.first));
            matches = counter.totals.matches;
        }));
        long long reference = 0;
        theirs.push_back(
            WallSeconds([&] { reference = PlainSearch(files.paths, encoding, sought, threads); }));
        if (matches != reference)
            state.SkipWithError("not the same matches");
        state.counters["matches"] = static_cast<double>(matches);
        if (!program.isEmpty())
            ripgrep.push_back(WallSeconds([&] {
                QProcess process;
                process.setStandardOutputFile(QProcess::nullDevice());
                process.start(program, RipgrepWords(sought, encoding, threads));
                process.waitForFinished(-1);
            }));
    }
    const double reference = MedianOf(ripgrep.empty() ? theirs : ripgrep);
    state.counters["ours_ms"] = MedianOf(ours) * 1e3;
    state.counters["reference_ms"] = reference * 1e3;
    state.counters["plain_ms"] = MedianOf(theirs) * 1e3;
    state.counters["ratio"] = MedianOf(ours) / reference;
    state.counters["limit"] = sought.limit;
    state.counters["first_ms"] = MedianOf(first);
    state.SetLabel(ripgrep.empty() ? "times a plain program" : "times ripgrep");
}

const bool kRegistered = [] {
    struct Kind
    {
        const char* name;
        int encoding;
    };
    constexpr Kind kKinds[] = {{"utf8", FileEncodeConverter::encUTF8},
                               {"windows1252", FileEncodeConverter::encANSI},
                               {"utf16", FileEncodeConverter::encUTF16LE}};
    for (const Kind& kind : kKinds) {
        for (const Sought& sought : kSought) {
            benchmark::RegisterBenchmark(
                ("SearchFiles/" + std::string(kind.name) + '/' + sought.name).c_str(),
                [kind, sought](benchmark::State& state) {
                    SearchFiles(state, kind.encoding, sought);
                })
                ->Iterations(3);
        }
    }
    return true;
}();

double HeapBytes()
{
    const auto heap = mallinfo2();
    return static_cast<double>(heap.uordblks + heap.hblkhd);
}

// What a search holds at most in a file of 1 GB, beside what it found.
void SearchFilesMemory(benchmark::State& state)
{
    QTemporaryDir folder;
    {
        const std::string part = MakeSql(Script::Mixed, 16 * kMegabyte);
        std::ofstream file(folder.filePath(QStringLiteral("large.sql")).toStdString(),
                           std::ios::binary);
        for (int i = 0; i < 64; ++i)
            file << part;
    }
    FileSearchRequest request;
    request.text = QStringLiteral("penguin");
    request.folders = {folder.path()};
    double most = 0;
    for (auto _ : state) {
        const double before = HeapBytes();
        Counter counter;
        CFileSearch search(request, counter);
        std::atomic<bool> isDone{false};
        std::thread watch([&] {
            while (!isDone) {
                most = std::max(most, HeapBytes() - before);
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
            }
        });
        search.Start();
        search.Wait();
        isDone = true;
        watch.join();
        if (counter.totals.files != 1)
            state.SkipWithError("the file was not searched");
    }
    ReportFigure(state, most / kMegabyte, 64, "MB of a file of 1 GB");
}
BENCHMARK(SearchFilesMemory)->Iterations(1);

class NoTexts final : public IFoundTexts
{
public:
    CZNCoreEditorControlEx* EditorOf(const QString& /*path*/) const override { return nullptr; }
    CZNCoreEditorControlEx* Open(const QString& /*path*/) override { return nullptr; }
    std::vector<OpenText> All() const override { return {}; }
};

// Of this thread, so that what the search's own threads do does not count.
double ThreadMilliseconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) * 1e-6;
}

// The longest that the window does nothing else while a million matches come in.
void SearchResultsStill(benchmark::State& state)
{
    QTemporaryDir folder;
    for (int i = 0; i < 10; ++i) {
        std::ofstream file(folder.filePath(QStringLiteral("%1.sql").arg(i)).toStdString());
        for (int line = 0; line < 50000; ++line)
            file << "select x, x from t" << line << ";\n";
    }
    NoTexts texts;
    ResultsPane pane(QStringLiteral("Results"), texts, nullptr);
    pane.resize(800, 300);
    pane.show();
    double longest = 0;
    for (auto _ : state) {
        FileSearchRequest request;
        request.text = QStringLiteral("x");
        request.matchCase = true;
        request.wholeWord = true;
        request.folders = {folder.path()};
        pane.Search(std::move(request));
        while (pane.IsSearching()) {
            const double start = ThreadMilliseconds();
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
            longest = std::max(longest, ThreadMilliseconds() - start);
        }
    }
    ReportFigure(state, longest, 50, "processor ms at a time for a million matches");
}
BENCHMARK(SearchResultsStill)->Iterations(1);

} // namespace
} // namespace bench
