// SPDX-License-Identifier: GPL-3.0-or-later
// What a view sends when it is printed, and how the framework leads it from page to page.
#include "control/EngineRecords.h"
#include "docview/ZNCoreEditorDoc.h"
#include "platform/docview/CreateContext.h"
#include "platform/printing/PrintInfo.h"
#include "platform/printing/PrinterDC.h"
#include "platform/services/OptionsServer.h"
#include "platform/system/Exceptions.h"
#include "tests/control/RecordingEngine.h"
#include "tests/docview/OpenView.h"
#include "tests/platform/printing/FakePrinter.h"

#include <gmock/gmock.h>

#include <map>

namespace {

using recording::AnswerTo;
using testing::ElementsAre;
using testing::IsEmpty;
namespace msg = engine::message;
using Ranges = std::vector<std::pair<int, int>>;

class PrintOptions : public CZNOptionsServer
{
public:
    PrintOptions() { SetOptionsServer(this); }
    ~PrintOptions() override { SetOptionsServer(nullptr); }
    bool GetBool(int key) override { return on[key]; }
    bool GetLOGFONT(int /*key*/, LOGFONT* /*font*/) override { return false; }
    void SetLOGFONT(int key, const LOGFONT* font) override { stored[key] = *font; }
    std::map<int, bool> on;
    std::map<int, LOGFONT> stored;
};

// Pages of 100 units each.
class ViewPrintOrder : public testing::Test
{
protected:
    ViewPrintOrder()
    {
        recording::Forget();
        doc.m_bAutoDelete = false;
        doc.SetTitle(QStringLiteral("a.sql"));
        CCreateContext context;
        context.m_pCurrentDoc = &doc;
        view->CreateViewIn(&desk, &context);
        recording::Forget();
        AnswerTo(msg::FormatRange, [this](WPARAM draw, LPARAM record) -> LRESULT {
            const auto* range = reinterpret_cast<const RangeToFormat*>(record);
            if (!range)
                return 0;
            last = *range;
            (draw ? drawn : measured).emplace_back(range->chrg.cpMin, range->chrg.cpMax);
            return std::min(range->chrg.cpMin + 100, range->chrg.cpMax);
        });
    }
    ~ViewPrintOrder() override
    {
        view->DestroyWindow();
        recording::Forget();
    }

    static void Length(long units)
    {
        AnswerTo(msg::GetLength, [units](WPARAM, LPARAM) { return units; });
    }
    static void Selection(long start, long end)
    {
        AnswerTo(msg::GetSelectionStart, [start](WPARAM, LPARAM) { return start; });
        AnswerTo(msg::GetSelectionEnd, [end](WPARAM, LPARAM) { return end; });
    }
    std::vector<unsigned> Begin(UINT flags = 0)
    {
        info.m_pPD->m_pd.Flags = flags;
        dc.Attach(printer.MakeJob(std::make_unique<QPrinter>()));
        view->OnBeginPrinting(&dc, &info);
        return view->m_pageStarts;
    }
    static std::vector<std::string> SentOf(const std::string& part)
    {
        std::vector<std::string> sent;
        for (const std::string& sentence : recording::Sentences()) {
            if (sentence.find(part) != std::string::npos)
                sent.push_back(sentence);
        }
        return sent;
    }

    PrintOptions options;
    FakePrinter printer;
    QWidget desk;
    CZNCoreEditorDoc doc;
    OpenView* view = new OpenView;
    CPrinterDC dc;
    CPrintInfo info;
    RangeToFormat last;
    Ranges measured;
    Ranges drawn;
};

} // namespace

TEST_F(ViewPrintOrder, PagesAreKeptByTheViewAlone)
{
    Length(250);
    EXPECT_THAT(Begin(), ElementsAre(0, 100, 200, 250));
    EXPECT_EQ(info.GetMaxPage(), 3u);
    EXPECT_EQ(measured, (Ranges{{0, 250}, {100, 250}, {200, 250}}));
    EXPECT_EQ(last.rc.right, 600);
    EXPECT_EQ(last.rcPage.bottom, 400);
    EXPECT_EQ(recording::Messages().back().lParam, 0) << "the engine lets go of what it has kept";
}

TEST_F(ViewPrintOrder, AnEmptyTextHasOnePage)
{
    Length(0);
    EXPECT_THAT(Begin(), ElementsAre(0));
    EXPECT_EQ(info.GetMaxPage(), 1u);
    view->OnPrint(&dc, &info);
    EXPECT_EQ(drawn, (Ranges{{0, 0}}));
}

TEST_F(ViewPrintOrder, AnEmptySelectionHasTheEndAlone)
{
    Length(500);
    Selection(40, 40);
    EXPECT_THAT(Begin(PD_SELECTION), ElementsAre(39)); // below its start
    EXPECT_EQ(info.GetMaxPage(), 1u);
}

TEST_F(ViewPrintOrder, ASelectionEndsOneUnitEarly)
{
    Length(500);
    Selection(40, 200);
    EXPECT_THAT(Begin(PD_SELECTION), ElementsAre(40, 140, 199));
    Selection(-5, 9000);
    EXPECT_THAT(Begin(PD_SELECTION), ElementsAre(0, 100, 200, 300, 400, 500));
}

TEST_F(ViewPrintOrder, APageIsDrawnToTheRangesEndInThePlaceGiven)
{
    Length(250);
    Begin();
    info.m_nCurPage = 3;
    info.m_rectDraw = {5, 6, 70, 80};
    view->OnPrint(&dc, &info);
    EXPECT_EQ(drawn, (Ranges{{200, 250}}));
    EXPECT_EQ(last.rc.top, 6);
    EXPECT_EQ(last.rcPage.right, 70);
    EXPECT_EQ(last.hdc, dc.GetSafeHdc());
    view->OnPrint(nullptr, &info);
    EXPECT_EQ(last.hdc, nullptr);
}

TEST_F(ViewPrintOrder, APageThatIsNotThereIsRefused)
{
    Length(250);
    EXPECT_THROW(view->OnPrint(&dc, &info), CInvalidArgException) << "no table";
    Begin();
    for (const UINT page : {0u, 5u}) {
        info.m_nCurPage = page;
        EXPECT_THROW(view->OnPrint(&dc, &info), CInvalidArgException) << page;
    }
    view->OnEndPrinting(&dc, &info);
    EXPECT_THAT(view->m_pageStarts, IsEmpty());
}

TEST_F(ViewPrintOrder, TheStyleIsSetAtTheBeginningAndForEachPage)
{
    Length(50);
    Begin();
    EXPECT_THAT(SentOf("Print"),
                ElementsAre("SetPrintWrapMode 1", "SetPrintColorMode 2", "PrintStyleSetFont()"));
    const std::size_t before = recording::Messages().size();
    info.m_nCurPage = 1;
    view->OnPrint(&dc, &info);
    const auto sentences = recording::Sentences();
    EXPECT_THAT(std::vector<std::string>(sentences.begin() + static_cast<long>(before),
                                         sentences.end() - 1),
                ElementsAre("SetPrintWrapMode 1", "SetPrintColorMode 2"))
        << "a page leaves the font alone";
}

TEST_F(ViewPrintOrder, AFontOfItsOwnIsSetForEachPage)
{
    Length(50);
    options.on = {{50512, false}, {50513, true}, {50514, true}};
    Begin();
    recording::Messages();
    EXPECT_THAT(SentOf("Print"),
                ElementsAre("SetPrintWrapMode 1", "PrintStyleSetFont(Tahoma)",
                            "PrintStyleSetBold 0", "PrintStyleSetItalic 0", "PrintStyleSetSize 9"));
    EXPECT_EQ(options.stored[50187].lfHeight, -13);
    view->OnPrint(&dc, &info);
    EXPECT_EQ(SentOf("PrintStyleSetFont(Tahoma)").size(), 2u);
}

TEST_F(ViewPrintOrder, ASelectionIsOfferedAndChosen)
{
    Length(500);
    Selection(10, 10);
    view->OnPreparePrinting(&info);
    EXPECT_EQ(printer.flags & 0xF, PD_NOSELECTION);
    Selection(10, 20);
    EXPECT_EQ(view->OnPreparePrinting(&info), 1);
    EXPECT_EQ(printer.flags & 0xF, PD_SELECTION);
    printer.isCancelled = true;
    EXPECT_EQ(view->OnPreparePrinting(&info), 0);
}

TEST_F(ViewPrintOrder, TheCommandPrintsPageByPage)
{
    Length(250);
    EXPECT_TRUE(view->OnCmdMsg(57607, nullptr));
    EXPECT_EQ(printer.asked, (QStringList{"StartDoc a.sql", "StartPage", "EndPage", "StartPage",
                                          "EndPage", "StartPage", "EndPage", "EndDoc", "gone"}));
    EXPECT_EQ(printer.told, (QStringList{"1 of 3", "2 of 3", "3 of 3", "done"}));
    EXPECT_EQ(drawn, (Ranges{{0, 250}, {100, 250}, {200, 250}}));
}

TEST_F(ViewPrintOrder, ARangeOfPagesIsPrintedAsFarAsItIsThere)
{
    Length(450);
    printer.chosen = [](PRINTDLG& record) {
        record.Flags |= PD_PAGENUMS;
        record.nFromPage = 4;
        record.nToPage = 900;
    };
    view->OnFilePrint();
    EXPECT_EQ(printer.told, (QStringList{"4 of 5", "5 of 5", "done"}));
    printer.told.clear();
    printer.chosen = [](PRINTDLG& record) {
        record.Flags |= PD_PAGENUMS;
        record.nFromPage = 700;
        record.nToPage = 900;
    };
    view->OnFilePrint();
    EXPECT_EQ(printer.told, QStringList{"done"});
}

TEST_F(ViewPrintOrder, AJobThatIsStoppedIsAborted)
{
    Length(1000);
    printer.stopAt = 3;
    view->OnFilePrint();
    EXPECT_EQ(printer.pages.size(), 2);
    EXPECT_EQ(printer.asked.mid(printer.asked.size() - 2), (QStringList{"AbortDoc", "gone"}));
}

TEST_F(ViewPrintOrder, AJobThatFailsIsAbortedAndTold)
{
    Length(1000);
    printer.failAtPage = 2;
    view->OnFilePrint();
    EXPECT_EQ(printer.told, (QStringList{"1 of 10", "2 of 10", "failed"}));
    EXPECT_EQ(printer.asked.mid(printer.asked.size() - 2), (QStringList{"AbortDoc", "gone"}));
    EXPECT_THAT(view->m_pageStarts, IsEmpty());
}

TEST_F(ViewPrintOrder, TheUsualPrinterIsNotAskedFor)
{
    Length(50);
    printer.isCancelled = true; // so nothing is printed if it asks
    EXPECT_TRUE(view->OnCmdMsg(57608, nullptr));
    EXPECT_EQ(printer.told, (QStringList{"1 of 1", "done"}));
    printer.hasDefault = false;
    view->OnFilePrintDirect();
    EXPECT_EQ(printer.told.size(), 2);
}

TEST_F(ViewPrintOrder, ThePreviewDrawsEveryPage)
{
    Length(250);
    printer.shown = [](const std::function<bool(QPrinter&)>& print) {
        QPrinter paper;
        paper.setOutputFormat(QPrinter::PdfFormat);
        paper.setOutputFileName(QStringLiteral("/dev/null"));
        print(paper);
    };
    EXPECT_TRUE(view->OnCmdMsg(57609, nullptr));
    EXPECT_EQ(printer.previewed, QStringList{"a.sql"});
    EXPECT_EQ(drawn, (Ranges{{0, 250}, {100, 250}, {200, 250}}));
    EXPECT_TRUE(printer.asked.isEmpty());
}

TEST_F(ViewPrintOrder, ATextThatChangesUnderThePreviewIsPagedAnew)
{
    Length(250);
    printer.shown = [this](const std::function<bool(QPrinter&)>& print) {
        QPrinter paper;
        paper.setOutputFormat(QPrinter::PdfFormat);
        paper.setOutputFileName(QStringLiteral("/dev/null"));
        print(paper);
        drawn.clear();
        Length(80);
        QPrinter again;
        again.setOutputFormat(QPrinter::PdfFormat);
        again.setOutputFileName(QStringLiteral("/dev/null"));
        print(again);
    };
    view->OnFilePrintPreview();
    EXPECT_EQ(drawn, (Ranges{{0, 80}}));
}

TEST_F(ViewPrintOrder, ThePreviewDrawsNoMorePagesThanItCanKeep)
{
    Length(45000);
    std::vector<bool> isWhole;
    printer.shown = [&](const std::function<bool(QPrinter&)>& print) {
        for (const long length : {45000, 30000}) {
            Length(length);
            QPrinter paper;
            paper.setOutputFormat(QPrinter::PdfFormat);
            paper.setOutputFileName(QStringLiteral("/dev/null"));
            isWhole.push_back(print(paper));
        }
    };
    view->OnFilePrintPreview();
    EXPECT_THAT(isWhole, ElementsAre(false, true));
    EXPECT_EQ(drawn.size(), 600u);
    EXPECT_EQ(drawn[299], std::pair(29900, 45000));
}
