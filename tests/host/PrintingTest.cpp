// SPDX-License-Identifier: GPL-3.0-or-later
// Printing, PDFs, rich copies and HTML from the workbench's menus.
#include "host/printing/HeadAndFoot.h"
#include "host/printing/WorkbenchPrinter.h"
#include "platform/services/OptionsServer.h"
#include "tests/host/WorkbenchTest.h"
#include "tests/platform/file/FullDisk.h"

#include <QAbstractScrollArea>
#include <QClipboard>
#include <QDateTime>
#include <QElapsedTimer>
#include <QLocale>
#include <QMimeData>
#include <QPageLayout>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>
#include <QProgressDialog>
#include <QStatusBar>
#include <QTest>
#include <QTextDocument>
#include <QTimer>

namespace {

class PathPrompts final : public IUserQuestions
{
public:
    PathPrompts() { SetUserQuestions(this); }
    ~PathPrompts() override { SetUserQuestions(nullptr); }
    Answer Ask(HWND, const QString& text, Buttons) override
    {
        told << text;
        return Answer::Yes;
    }
    QString AskSaveFile(HWND, const QString& proposal, const QString&) override
    {
        proposed = proposal;
        return path;
    }
    QString path;
    QString proposed;
    QStringList told;
};

class PrintingScripts : public WorkbenchTest
{
protected:
    QString TextOfPdf(const QString& path)
    {
        QProcess reader;
        reader.start("pdftotext", {"-layout", path, "-"});
        EXPECT_TRUE(reader.waitForFinished());
        return QString::fromUtf8(reader.readAllStandardOutput()).simplified();
    }
    QStringList PagesOfPdf(const QString& path)
    {
        QProcess reader;
        reader.start("pdftotext", {"-layout", path, "-"});
        EXPECT_TRUE(reader.waitForFinished());
        QStringList pages;
        for (const QString& page :
             QString::fromUtf8(reader.readAllStandardOutput()).split(u'\f', Qt::SkipEmptyParts))
            pages << page.simplified();
        return pages;
    }
    PathPrompts m_paths;
};

} // namespace

TEST_F(PrintingScripts, SavesAllOfAScriptAsAPdf)
{
    Open("a.sql", "select 1 from first;\nselect 2 from second;\n");
    Editor().SetSel(7, 8, 1);
    m_paths.path = PathOf("out");
    Trigger("savePdf");
    EXPECT_EQ(m_paths.proposed, PathOf("a.pdf"));
    EXPECT_TRUE(TextOfPdf(PathOf("out.pdf")).contains("select 1 from first; "));
    EXPECT_TRUE(TextOfPdf(PathOf("out.pdf")).contains("select 2 from second;"));
    EXPECT_TRUE(m_paths.told.isEmpty());
    EXPECT_EQ(m_window.statusBar()->currentMessage(),
              "“" + PathOf("out.pdf") + "” was written: 1 page");
    m_window.statusBar()->clearMessage();
    m_paths.path.clear();
    Trigger("savePdf");
    EXPECT_EQ(m_window.statusBar()->currentMessage(), "") << "nothing was";
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files).size(), 2);
}

TEST_F(PrintingScripts, HasAHeadAndAFootOnEachPage)
{
    Open("orders.sql", QByteArray("select 1 from first;\n").repeated(150));
    CZNOptionsServer::GetObjectW()->SetInt(headandfoot::kOption, 1);
    m_paths.path = PathOf("with.pdf");
    const QString before = QLocale().toString(QDateTime::currentDateTime(), QLocale::ShortFormat);
    Trigger("savePdf");
    const QString after = QLocale().toString(QDateTime::currentDateTime(), QLocale::ShortFormat);
    const QStringList pages = PagesOfPdf(PathOf("with.pdf"));
    ASSERT_GE(pages.size(), 2);
    int lines = 0;
    for (qsizetype i = 0; i < pages.size(); ++i) {
        const QString number = QStringLiteral("Page %1 of %2").arg(i + 1).arg(pages.size());
        EXPECT_TRUE(pages[i].startsWith("orders.sql " + number)) << pages[i].toStdString();
        EXPECT_TRUE(pages[i].endsWith(before) || pages[i].endsWith(after))
            << pages[i].right(60).toStdString();
        lines += static_cast<int>(pages[i].count("select 1 from first;"));
    }
    EXPECT_EQ(lines, 150);
    EXPECT_EQ(
        m_window.statusBar()->currentMessage(),
        QStringLiteral("“%1” was written: %2 pages").arg(PathOf("with.pdf")).arg(pages.size()));
}

TEST_F(PrintingScripts, HasTheScriptsNameWithoutItsMarks)
{
    Open("orders.sql", "select 1 from first;\n");
    Type(u"-- changed\n");
    ASSERT_TRUE(Script().GetTitle().endsWith("*"));
    CZNOptionsServer::GetObjectW()->SetInt(headandfoot::kOption, 1);
    m_paths.path = PathOf("named.pdf");
    Trigger("savePdf");
    const QString text = TextOfPdf(PathOf("named.pdf"));
    EXPECT_TRUE(text.startsWith("orders.sql Page 1 of 1")) << text.toStdString();
}

TEST_F(PrintingScripts, HasNeitherIfTheyAreNotWanted)
{
    Open("orders.sql", "select 1 from first;\n");
    CZNOptionsServer::GetObjectW()->SetInt(headandfoot::kOption, 0);
    m_paths.path = PathOf("without.pdf");
    Trigger("savePdf");
    const QString text = TextOfPdf(PathOf("without.pdf"));
    EXPECT_TRUE(text.endsWith("select 1 from first;")) << text.toStdString();
    EXPECT_FALSE(text.contains("Page") || text.contains("orders.sql")) << text.toStdString();
}

TEST_F(PrintingScripts, OffersAPdfWhereThereIsNoPrinter)
{
    if (!QPrinterInfo::availablePrinterNames().isEmpty())
        GTEST_SKIP() << "this machine has a printer";
    Open("a.sql", "select 1 from first;\n");
    m_paths.path = PathOf("instead.pdf");
    Trigger("print");
    ASSERT_EQ(m_paths.told.size(), 1);
    EXPECT_TRUE(m_paths.told[0].startsWith("No printer is set up."));
    EXPECT_TRUE(TextOfPdf(PathOf("instead.pdf")).contains("select 1 from first;"));
}

TEST_F(PrintingScripts, PrintsTheSelectionIfItIsChosen)
{
    struct Selection final : IPrintService
    {
        std::unique_ptr<QPrinter> ChoosePrinter(HWND, PRINTDLG& record) override
        {
            EXPECT_FALSE(record.Flags & (PD_NOSELECTION | PD_SELECTION)) << "offered, not chosen";
            if (isChosen)
                record.Flags |= PD_SELECTION;
            auto printer = std::make_unique<QPrinter>();
            printer->setOutputFormat(QPrinter::PdfFormat);
            printer->setOutputFileName(path);
            return printer;
        }
        QString path;
        bool isChosen = true;
    } service;
    SetPrintService(&service);
    CZNOptionsServer::GetObjectW()->SetInt(headandfoot::kOption, 0);
    Open("a.sql", "first;\nsecond;\nthird;\n");
    Editor().SetSel(7, 15, 1);
    service.path = PathOf("part.pdf");
    Trigger("print");
    Editor().SetSel(0, 1, 1);
    const QString ofLines = service.path;
    service.path = PathOf("character.pdf");
    Trigger("print");
    const QString ofCharacter = TextOfPdf(service.path);
    EXPECT_TRUE(ofCharacter.contains(u'f') && !ofCharacter.contains("irst"));
    service.path = PathOf("unchosen.pdf");
    service.isChosen = false;
    Trigger("print");
    EXPECT_EQ(TextOfPdf(service.path), "1 first; 2 second; 3 third;");
    service.path = ofLines;
    SetPrintService(nullptr);
    EXPECT_TRUE(TextOfPdf(service.path).contains("second;"));
    EXPECT_FALSE(TextOfPdf(service.path).contains("first;"));
    EXPECT_FALSE(TextOfPdf(service.path).contains("third;"));
}

TEST_F(PrintingScripts, ShowsPagesBesideEachOther)
{
    Open("a.sql", QByteArray("select 1 from first;\n").repeated(200));
    int pages = 0;
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        auto* preview = dialog->findChild<QPrintPreviewWidget*>();
        pages = preview->pageCount();
        preview->setViewMode(QPrintPreviewWidget::FacingPagesView);
        preview->setZoomFactor(2);
        EXPECT_EQ(preview->pageCount(), pages);
        dialog->reject();
    });
    Trigger("printPreview");
    EXPECT_GE(pages, 3);
}

TEST_F(PrintingScripts, PreviewsAllOfAScriptWithASelection)
{
    Open("a.sql", QByteArray("select 1 from first;\n").repeated(200));
    const auto pages = [this] {
        int count = 0;
        QTimer::singleShot(0, [&count] {
            auto* dialog = qobject_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            count = dialog->findChild<QPrintPreviewWidget*>()->pageCount();
            dialog->reject();
        });
        Trigger("printPreview");
        return count;
    };
    const int all = pages();
    EXPECT_GE(all, 3);
    Editor().SetSel(0, 6, 1);
    EXPECT_EQ(pages(), all);
}

TEST_F(PrintingScripts, PreviewsNoMoreThanItCanKeep)
{
    Open("a.sql", QByteArray("select 1 from first;\n").repeated(60000));
    int pages = 0;
    QString title;
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        pages = dialog->findChild<QPrintPreviewWidget*>()->pageCount();
        title = dialog->windowTitle();
        dialog->reject();
    });
    Trigger("printPreview");
    EXPECT_EQ(pages, int(IPrintService::kMostPreviewed));
    EXPECT_EQ(title, QString::fromUtf8("a.sql – print preview, the first 300 pages"));
}

TEST_F(PrintingScripts, SaysTheNameOfTheScriptAsItIs)
{
    Open("a%1%2.sql", QByteArray("select 1 from first;\n").repeated(60000));
    QString title;
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        title = dialog->windowTitle();
        dialog->reject();
    });
    Trigger("printPreview");
    EXPECT_EQ(title.toStdString(), "a%1%2.sql – print preview, the first 300 pages");
    m_paths.path = PathOf("a.html");
    Trigger("saveHtml");
    const QByteArray html = Read("a.html");
    EXPECT_TRUE(html.contains("<title>a%1%2.sql</title>"));
    EXPECT_TRUE(html.contains("pt;tab-size:4;")) << html.left(500).toStdString();
}

TEST_F(PrintingScripts, ShowsInThePreviewWhatTheTextHasBecomeMeanwhile)
{
    Open("a.sql", "select 1 from first;\n");
    QList<int> pages;
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        auto* preview = dialog->findChild<QPrintPreviewWidget*>();
        pages << preview->pageCount();
        Editor().SetText(QString("longer;\n").repeated(300).toStdU16String().c_str(), 1);
        pages << preview->pageCount();
        preview->setOrientation(QPageLayout::Landscape);
        pages << preview->pageCount();
        dialog->reject();
    });
    Trigger("printPreview");
    EXPECT_EQ(pages.first(2), (QList<int>{1, 1}));
    EXPECT_GT(pages.value(2), 3);
}

TEST_F(PrintingScripts, OutlivesTheScriptInThePreview)
{
    Open("a.sql", "select 1 from first;\n");
    int pages = 0;
    QString title;
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        Trigger("close");
        QApplication::processEvents();
        auto* preview = dialog->findChild<QPrintPreviewWidget*>();
        preview->setOrientation(QPageLayout::Landscape);
        pages = preview->pageCount();
        title = dialog->windowTitle();
        dialog->reject();
    });
    Trigger("printPreview");
    EXPECT_LE(pages, 1);
    EXPECT_EQ(title.toStdString(), "a.sql – print preview");
    EXPECT_EQ(m_window.TabCount(), 0);
}

TEST_F(PrintingScripts, LeavesNoProgressOverThePreview)
{
    bool wasThere = false;
    bool isThere = true;
    bool goesOn = false;
    GetPrintService().Preview(&m_window, "a.sql", [&](QPrinter&) {
        QElapsedTimer clock;
        for (clock.start(); !wasThere && clock.elapsed() < 5000;) {
            goesOn = WorkbenchPrinter::GoesOn(&m_window, "Finding page 2", 1, 9);
            wasThere = m_window.findChild<QProgressDialog*>("printProgress");
        }
        QTimer::singleShot(0, [&] {
            isThere = m_window.findChild<QProgressDialog*>("printProgress");
            qobject_cast<QDialog*>(QApplication::activeModalWidget())->reject();
        });
        return true;
    });
    EXPECT_TRUE(wasThere);
    EXPECT_TRUE(goesOn);
    EXPECT_FALSE(isThere);
}

TEST_F(PrintingScripts, ShowsTheStepOfALongJobAndStopsIt)
{
    QElapsedTimer clock;
    clock.start();
    bool goesOn = true;
    while (goesOn && clock.elapsed() < 5000) {
        goesOn = WorkbenchPrinter::GoesOn(&m_window, "Page 3 of 9", 2, 9);
        auto* box = m_window.findChild<QProgressDialog*>("printProgress");
        EXPECT_EQ(box != nullptr, box && clock.elapsed() >= 1000);
        if (box) {
            EXPECT_EQ(box->labelText(), "Page 3 of 9");
            box->cancel();
        }
    }
    EXPECT_FALSE(goesOn);
    EXPECT_GE(clock.elapsed(), 1000);
    GetPrintService().OnDone(&m_window, false, "a.pdf");
    EXPECT_FALSE(m_window.findChild<QProgressDialog*>("printProgress"));
    EXPECT_TRUE(m_paths.told.isEmpty()) << "who stops a job knows it";
}

TEST_F(PrintingScripts, CopiesColoursBesideThePlainText)
{
    Open("a.sql", "-- <b> & \xC3\xA4\nselect 'x';\n");
    m_window.SetLanguage(3);
    EXPECT_FALSE(Action("copyWithColours").isEnabled());
    Editor().SelectAll(1);
    QApplication::processEvents();
    Trigger("copyWithColours");
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    EXPECT_EQ(data->text(), Text());
    QTextDocument page;
    page.setHtml(data->html());
    EXPECT_EQ(page.toPlainText().trimmed(), Text().trimmed());
    EXPECT_TRUE(data->html().contains("<span style=\"color:#"));
    EXPECT_TRUE(data->data("text/rtf").startsWith("{\\rtf1\\ansi"));
    EXPECT_TRUE(data->data("text/rtf").contains("<b> & \\u228?"));
    EXPECT_TRUE(data->hasFormat("application/rtf"));
}

// Of several selections no single run of colours can be made.
TEST_F(PrintingScripts, CopiesSeveralSelectionsAsPlainCopyDoes)
{
    Open("a.sql", "one two three\n");
    QWidget* viewport = qobject_cast<QAbstractScrollArea*>(Editor().GetSafeHwnd())->viewport();
    Editor().GotoPos(0, 1);
    QTest::mouseClick(
        viewport, Qt::LeftButton, Qt::ControlModifier,
        QPoint(Editor().PointXFromPosition(8, 1) + 1, Editor().PointYFromPosition(8, 1) + 3));
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(Editor().GetSafeHwnd(), Qt::Key_Right, Qt::ShiftModifier);
    QApplication::processEvents();
    m_window.FollowNow();
    Trigger("copy");
    const QString plain = QGuiApplication::clipboard()->text();
    ASSERT_EQ(plain.toStdString(), "one\nthr");
    Trigger("copyWithColours");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), plain);
    EXPECT_FALSE(QGuiApplication::clipboard()->mimeData()->hasHtml());
}

TEST_F(PrintingScripts, CopiesWhatRtfHasSignsForAsText)
{
    Open("a.sql", "a {b\\} \t;\r\n\xF0\x9F\x98\x80 end");
    Editor().SelectAll(1);
    QApplication::processEvents();
    constexpr int kPlain = 32; // the style
    Editor().StyleSetFont(kPlain, u"A \\ Face", 1);
    Trigger("copyWithColours");
    const QByteArray rtf = QGuiApplication::clipboard()->mimeData()->data("text/rtf");
    EXPECT_TRUE(rtf.contains(" A \\\\ Face;")) << rtf.toStdString();
    for (const char* part : {"\\{", "\\\\", "\\}", "\\tab ", "\\par\n", "\\u-10179?\\u-8704?"})
        EXPECT_TRUE(rtf.contains(part)) << part << " in " << rtf.toStdString();
    EXPECT_EQ(rtf.count('{') - rtf.count("\\{"), rtf.count('}') - rtf.count("\\}"));
}

TEST_F(PrintingScripts, SavesHtmlThatReadsAsTheScript)
{
    QByteArray text;
    for (int line = 0; line < 3000; ++line)
        text += "select 'a<b>&\xF0\x9F\x98\x80' from t" + QByteArray::number(line) + ";\r\n";
    Open("a.sql", text);
    m_window.SetLanguage(3);
    m_paths.path = PathOf("a.html");
    Trigger("saveHtml");
    QTextDocument page;
    page.setHtml(QString::fromUtf8(Read("a.html")));
    EXPECT_EQ(page.toPlainText().trimmed(),
              QString::fromUtf8(text).replace("\r\n", "\n").trimmed());
    EXPECT_EQ(m_window.statusBar()->currentMessage(), "“" + PathOf("a.html") + "” was written");
    m_window.statusBar()->clearMessage();
    m_paths.path = PathOf("no/such.html");
    Trigger("saveHtml");
    EXPECT_EQ(m_window.statusBar()->currentMessage(), "");
    ASSERT_EQ(m_prompts.told.size(), 1);
    EXPECT_TRUE(m_prompts.told[0].contains("no/such.html could not be written"));
}

// The chooser has asked about the name without its ending.
TEST_F(PrintingScripts, AsksBeforeItWritesOverAFileThatTheEndingNames)
{
    Open("a.sql", "select 1;\n");
    const QString html = Write("out.html", "before");
    Write("out.pdf", "before");
    m_paths.path = PathOf("out");
    Trigger("saveHtml");
    Trigger("savePdf");
    ASSERT_EQ(m_prompts.asked.size(), 2);
    EXPECT_EQ(m_prompts.asked[0].toStdString(), "“" + html.toStdString() + "” is there already.");
    EXPECT_EQ(Read("out.html"), QByteArray("before"));
    EXPECT_EQ(Read("out.pdf"), QByteArray("before"));
    m_prompts.confirm = true;
    Trigger("saveHtml");
    EXPECT_TRUE(Read("out.html").contains("<html>"));
    m_paths.path = PathOf("out.html"); // which the chooser has asked about
    Trigger("saveHtml");
    EXPECT_EQ(m_prompts.asked.size(), 3);
}

TEST_F(PrintingScripts, KeepsTheHtmlThatWasThereWhereTheDiskIsFull)
{
    Open("a.sql", "select 1;\n");
    m_paths.path = Write("a.html", "before");
    {
        const FullDisk full(0);
        Trigger("saveHtml");
    }
    EXPECT_EQ(Read("a.html"), QByteArray("before"));
    ASSERT_EQ(m_prompts.told.size(), 1);
    EXPECT_TRUE(m_prompts.told[0].startsWith(m_paths.path + " could not be written: "));
}

TEST_F(PrintingScripts, OpensWhatTheCaretStandsOn)
{
    Write("b.sql", "one\ntwo\nthree\n");
    Open("a.sql", "b.sql:3 nothing.sql\n");
    Editor().SetSel(3, 3, 1);
    Trigger("openAtCaret");
    ASSERT_EQ(m_window.TabCount(), 2);
    EXPECT_EQ(Script().GetPathName(), PathOf("b.sql"));
    EXPECT_EQ(Editor().GetCurLineNumber(), 2);
    m_window.ShowTab(0);
    Editor().SetSel(12, 12, 1);
    Trigger("openAtCaret");
    EXPECT_EQ(m_prompts.told, QStringList{"There is no file nothing.sql."});
}

TEST_F(PrintingScripts, OpensWhatStandsBehindAtSigns)
{
    Write("b.sql", "one\n");
    Write("@c.sql", "two\n");
    Open("a.sql", "@b.sql\n@@b.sql\n@c.sql\n");
    for (const auto& [at, name] : {std::pair(3, "b.sql"), {10, "b.sql"}, {18, "@c.sql"}}) {
        m_window.ShowTab(0);
        Editor().SetSel(at, at, 1);
        Trigger("openAtCaret");
        EXPECT_EQ(Script().GetPathName(), PathOf(QLatin1String(name))) << at;
    }
    EXPECT_TRUE(m_prompts.told.isEmpty());
}

TEST_F(PrintingScripts, OffersTheFileAtTheCaretInTheContextMenuIfItIsThere)
{
    Write("b.sql", "one\n");
    Open("a.sql", "nothing.sql b.sql\n");
    const auto firstOfMenu = [&](long caret) -> QAction* {
        Editor().SetSel(caret, caret, 1);
        SendMessage(Frame().View()->GetSafeHwnd(), WM_CONTEXTMENU, 0, PointParam({10, 10}));
        const QWidget* menu = QApplication::activePopupWidget();
        return menu ? menu->actions().value(0) : nullptr;
    };
    QAction* first = firstOfMenu(3);
    ASSERT_TRUE(first);
    EXPECT_NE(first->text(), "Open &Document");
    QApplication::activePopupWidget()->close();
    first = firstOfMenu(14);
    ASSERT_TRUE(first);
    EXPECT_EQ(first->text(), "Open &Document");
    first->trigger();
    EXPECT_EQ(m_window.TabCount(), 2);
    EXPECT_EQ(Script().GetPathName(), PathOf("b.sql"));
}
