// SPDX-License-Identifier: GPL-3.0-or-later
// Pages found beside the engine's own loop and drawn beside Qt alone, what printing takes of the
// memory, HTML beside the colouring of its text, and what scrolling costs a view and its panes.
#include "bench/ExpandScripts.h"
#include "bench/Pair.h"
#include "bench/Texts.h"
#include "control/EngineRecords.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "editing/operations/PrintStyle.h"
#include "host/export/HtmlText.h"
#include "host/export/StyledText.h"
#include "host/script/ScriptFrame.h"
#include "host/script/ScriptView.h"
#include "host/window/MainWindow.h"
#include "host/window/Workbench.h"
#include "platform/printing/PrintInfo.h"
#include "platform/services/OptionsServer.h"
#include "platform/windows/DeviceContext.h"
#include "platform/windows/ScrollBars.h"
#include "platform/windows/Window.h"

#include <QAbstractTextDocumentLayout>
#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QTextCursor>
#include <QTextDocument>

#include <Qsci/qsciscintillabase.h>

#include <vector>

namespace bench {
namespace {

using Sci = QsciScintillaBase;

constexpr const char* kDialect = "Transact-SQL";

// A4 as a PDF has it.
class Paper
{
public:
    Paper() : m_writer(&m_buffer)
    {
        m_buffer.open(QIODevice::WriteOnly);
        m_writer.setResolution(1200);
        m_writer.setPageSize(QPageSize(QPageSize::A4));
        painter.begin(&m_writer);
    }
    ~Paper() { painter.end(); }

    QRect Area() const { return {0, 0, m_writer.width(), m_writer.height()}; }
    void NextPage() { m_writer.newPage(); }

    QPainter painter;

private:
    QBuffer m_buffer;
    QPdfWriter m_writer;
};

// A coloured script that prints at ten points, without numbers of lines.
class Source
{
public:
    Source(const char* name, const std::string& text, const char* dialect)
    {
        if (dialect)
            Bind(m_editor, dialect);
        m_editor.openFile(QString::fromStdString(WriteFile(name, text)));
        CZNCoreEditorControlEx& control = Control();
        for (int style = 0; style < 128; ++style) {
            control.StyleSetFont(style, u"DejaVu Sans Mono", 1);
            control.StyleSetSize(style, 10, 1);
        }
        for (int margin = 0; margin < 5; ++margin)
            control.SetMarginWidthN(margin, 0, 1);
        control.SetPrintWrapMode(1, 1);
        control.Colorize(0, -1, 1);
    }

    CZNCoreEditorControlEx& Control() { return m_editor.control(); }
    Sci& Stock() { return static_cast<Sci&>(*Control().GetSafeHwnd()); }

private:
    ZNCoreEditorWidget m_editor;
};

UINT FindPages(CZNCoreEditorControlEx& control, Paper& paper)
{
    CDC dc(paper.painter);
    CPrintInfo info;
    control.OnBeginPrinting(&dc, &info);
    const UINT pages = info.GetMaxPage();
    control.OnEndPrinting(&dc, &info);
    return pages;
}

UINT FindPages(Sci& stock, Paper& paper)
{
    UINT pages = 0;
    const long length = stock.SendScintilla(Sci::SCI_GETLENGTH);
    for (long at = 0; at < length; ++pages)
        at = stock.SendScintilla(Sci::SCI_FORMATRANGE, 0UL, &paper.painter, paper.Area(), at,
                                 length);
    return pages;
}

void PrintPaging(benchmark::State& state)
{
    constexpr double kLimit = 1.1;
    Source script("paging.sql",
                  MakeSql(Script::Ascii, static_cast<std::size_t>(state.range(0)) * kMegabyte),
                  kDialect);
    Paper paper;
    UINT ours = 0;
    UINT theirs = 0;
    MeasurePair(
        state, [&] { ours = FindPages(script.Control(), paper); },
        [&] { theirs = FindPages(script.Stock(), paper); }, kLimit);
    state.counters["pages"] = ours;
    if (ours != theirs)
        state.SkipWithError("the pages differ");
}
BENCHMARK(PrintPaging)->Arg(1)->Iterations(5)->UseManualTime();
BENCHMARK(PrintPaging)->Arg(64)->Iterations(3)->UseManualTime();

// What a megabyte takes of many, over what one takes alone.
void PrintPagingGrows(benchmark::State& state)
{
    constexpr double kLimit = 1.2;
    const auto megabytes = static_cast<int>(state.range(0));
    Paper paper;
    const auto secondsOf = [&](int size) {
        Source script("paging.sql",
                      MakeSql(Script::Ascii, static_cast<std::size_t>(size) * kMegabyte), kDialect);
        return CpuSeconds([&] { FindPages(script.Control(), paper); }) / size;
    };
    double figure = 0;
    for (auto _ : state)
        figure = secondsOf(megabytes) / secondsOf(1);
    ReportFigure(state, figure, kLimit, "times 1 MB, for each MB");
}
BENCHMARK(PrintPagingGrows)->Arg(64)->Iterations(1);

// The text of the first pages in the colours of its styles, as Qt's own document.
void Colour(QTextDocument& document, CZNCoreEditorControlEx& control, long end)
{
    const StyleLooks looks = LooksOf(control);
    QTextCursor cursor(&document);
    ForEachRun(control, 0, end, [&](std::u16string_view text, int style) {
        const COLORREF fore = looks[static_cast<std::size_t>(style)].fore;
        QTextCharFormat format;
        format.setForeground(QColor(static_cast<int>(fore & 0xFF),
                                    static_cast<int>(fore >> 8 & 0xFF),
                                    static_cast<int>(fore >> 16 & 0xFF)));
        cursor.setPosition(cursor.position() + static_cast<int>(text.size()),
                           QTextCursor::KeepAnchor);
        cursor.setCharFormat(format);
        cursor.setPosition(cursor.position());
        return true;
    });
}

class InColours final : public CZNOptionsServer
{
public:
    InColours() { SetOptionsServer(this); }
    ~InColours() override { SetOptionsServer(nullptr); }
    bool GetBool(int key) override
    {
        return key == option::PrintColours || CZNOptionsServer::GetBool(key);
    }
};

// PDFs of so many pages each. Both sides lay the lines out in the width of the page and draw them.
// Where the pages begin is known to us; Qt's document finds it with the lines.
void DrawPages(benchmark::State& state, const char* dialect, std::size_t pages, double limit)
{
    constexpr std::size_t kPages = 50; // of all PDFs
    const InColours options;
    Source script("page.sql", MakeSql(Script::Ascii, kMegabyte), dialect);
    CZNCoreEditorControlEx& control = script.Control();
    const auto length = static_cast<int>(control.GetLength(1));
    std::vector<int> starts{0};
    ApplyPrintColours(control);
    const auto recordOf = [&](CDC& dc, int start) {
        RangeToFormat record = PrintRecord(&dc, PrintableArea(dc));
        record.chrg = {start, length};
        return record;
    };
    {
        Paper paper;
        CDC dc(paper.painter);
        while (starts.size() <= pages) {
            RangeToFormat record = recordOf(dc, starts.back());
            starts.push_back(static_cast<int>(control.FormatRange(0, &record, 1)));
        }
    }
    QTextDocument document;
    document.setDefaultFont(QFont(QStringLiteral("DejaVu Sans Mono"), 10));
    document.setDocumentMargin(0);
    document.setUndoRedoEnabled(false);
    document.setPlainText(control.GetText().left(starts.back()));
    if (dialect)
        Colour(document, control, starts.back());
    int turn = 0;
    MeasurePair(
        state,
        [&] {
            for (std::size_t pdf = 0; pdf < kPages / pages; ++pdf) {
                Paper paper;
                CDC dc(paper.painter);
                for (std::size_t page = 0; page < pages; ++page) {
                    if (page > 0)
                        paper.NextPage();
                    RangeToFormat record = recordOf(dc, starts[page]);
                    ::PrintPage(control, record);
                }
            }
        },
        [&] {
            for (std::size_t pdf = 0; pdf < kPages / pages; ++pdf) {
                Paper paper;
                document.documentLayout()->setPaintDevice(paper.painter.device());
                // Another size, by a dot, so that it is laid out anew.
                const QSizeF area = paper.Area().size() + QSize(0, turn++ % 2);
                document.setPageSize(area);
                for (int page = 0; page < document.pageCount(); ++page) {
                    if (page > 0)
                        paper.NextPage();
                    QAbstractTextDocumentLayout::PaintContext context;
                    context.palette.setColor(QPalette::Text, Qt::black);
                    context.clip = QRectF({0, page * area.height()}, area);
                    paper.painter.save();
                    paper.painter.translate(0, -page * area.height());
                    document.documentLayout()->draw(&paper.painter, context);
                    paper.painter.restore();
                }
            }
        },
        limit);
}

void PrintPage(benchmark::State& state, const char* dialect)
{
    constexpr double kLimit = 1.5;
    DrawPages(state, dialect, 1, kLimit);
}
BENCHMARK_CAPTURE(PrintPage, plain, nullptr)->Iterations(5)->UseManualTime();
BENCHMARK_CAPTURE(PrintPage, coloured, kDialect)->Iterations(5)->UseManualTime();

// Without what each PDF takes for itself, and so without a limit: of lines in one style the stock
// engine asks Qt for the place of each character.
void PrintPages(benchmark::State& state, const char* dialect)
{
    DrawPages(state, dialect, 50, 0);
}
BENCHMARK_CAPTURE(PrintPages, plain, nullptr)->Iterations(5)->UseManualTime();
BENCHMARK_CAPTURE(PrintPages, coloured, kDialect)->Iterations(5)->UseManualTime();

// A device that takes everything.
class Nowhere final : public QIODevice
{
public:
    Nowhere() { open(WriteOnly | Unbuffered); }

protected:
    qint64 readData(char* /*data*/, qint64 /*count*/) override { return -1; }
    qint64 writeData(const char* /*data*/, qint64 count) override { return count; }
};

void PrintHtml(benchmark::State& state)
{
    constexpr double kLimit = 2;
    Source script("html.sql", Sql64(Script::Ascii), kDialect);
    CZNCoreEditorControlEx& control = script.Control();
    Nowhere nowhere;
    MeasurePair(
        state,
        [&] { WriteHtml(control, 0, control.GetLength(1), QStringLiteral("html.sql"), nowhere); },
        [&] {
            control.ClearDocumentStyle(1);
            control.Colorize(0, -1, 1);
        },
        kLimit);
}
BENCHMARK(PrintHtml)->Iterations(3)->UseManualTime();

struct Host
{
    Host() : window(*new MainWindow(app))
    {
        window.resize(800, 600);
        window.show();
        Rest();
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

void ScrollStateUnchanged(benchmark::State& state)
{
    constexpr int kCalls = 100000;
    Host host;
    host.Open(WriteFile("scroll.sql", MakeSql(Script::Ascii, kMegabyte)));
    const HWND view = host.window.CurrentFrame()->View()->GetSafeHwnd();
    SCROLLINFO record{};
    record.cbSize = sizeof record;
    record.fMask = SIF_ALL;
    SendMessage(view, 2100, reinterpret_cast<WPARAM>(&record), kScrollVertical);
    std::vector<double> times;
    for (auto _ : state) {
        times.push_back(CpuSeconds([&] {
            for (int i = 0; i < kCalls; ++i)
                SendMessage(view, 2101, reinterpret_cast<WPARAM>(&record), kScrollVertical);
        }));
    }
    if (record.nMax == 0)
        state.SkipWithError("there is nothing to scroll");
    ReportFigure(state, MedianOf(times) * 1e6 / kCalls, 1, "us a message, median");
}
BENCHMARK(ScrollStateUnchanged)->Iterations(5);

// Line by line through 10,000 lines. What a line leaves to be painted is painted at once, without
// the wait for the screen's next turn, and that many panes of the same size are painted beside it.
void Scroll(MainWindow& window, int beside)
{
    CZNCoreEditorControlEx& editor = window.CurrentFrame()->Editor();
    editor.GotoPos(0, 1);
    for (int line = 0; line < 10000; ++line) {
        editor.LineScroll(0, 1, 1);
        QCoreApplication::processEvents();
        for (int pane = 0; pane < beside; ++pane)
            UpdateWindow(editor.GetSafeHwnd());
        QEvent update(QEvent::UpdateRequest);
        QCoreApplication::sendEvent(&window, &update);
    }
}

// A pane that scrolls has those above and below it painted: one of four has one.
void ScrollPanes(benchmark::State& state)
{
    constexpr double kLimit = 1.2;
    Host host;
    MainWindow& window = host.window;
    const std::string text = MakeSql(Script::Ascii, kMegabyte);
    host.Open(WriteFile("pane.sql", text));
    host.Open(WriteFile("panes.sql", text));
    window.findChild<QAction*>(QStringLiteral("splitBeside"))->trigger();
    window.findChild<QAction*>(QStringLiteral("splitBelow"))->trigger();
    Host::Rest();
    const auto sizeOfPane = [&] { return window.CurrentFrame()->Editor().GetSafeHwnd()->size(); };
    const QSize size = window.size();
    const QSize quarter = sizeOfPane();
    window.ShowTab(0);
    Host::Rest();
    const QSize small = size - sizeOfPane() + quarter; // a single pane is as large as one of four
    bool areAlike = true;
    const auto scroll = [&](int tab, QSize of, int beside) {
        window.ShowTab(tab);
        window.resize(of);
        Host::Rest();
        areAlike = areAlike && sizeOfPane() == quarter;
        Scroll(window, beside);
    };
    MeasurePair(
        state, [&] { scroll(1, size, 0); }, [&] { scroll(0, small, 1); }, kLimit);
    if (!areAlike)
        state.SkipWithError("the panes differ in size");
    if (window.CurrentEditor()->GetFirstVisibleLine(1) < 9000)
        state.SkipWithError("it has not scrolled");
}
BENCHMARK(ScrollPanes)->Iterations(3)->UseManualTime();

} // namespace
} // namespace bench
