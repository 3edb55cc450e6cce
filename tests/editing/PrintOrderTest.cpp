// SPDX-License-Identifier: GPL-3.0-or-later
// What the control sends when it prints, on an engine that writes it down, and what it asks of the
// printer.
#include "control/EngineRecords.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "platform/printing/PrintInfo.h"
#include "platform/printing/PrinterDC.h"
#include "platform/services/OptionsServer.h"
#include "platform/system/Exceptions.h"
#include "tests/control/RecordingEngine.h"
#include "tests/platform/printing/FakePrinter.h"

#include <QCoreApplication>

#include <gmock/gmock.h>

#include <map>

namespace {

using recording::AnswerTo;
using testing::ElementsAre;
using testing::IsEmpty;
namespace msg = engine::message;

class OpenPages : public CZNCoreEditorControlEx
{
public:
    using CZNCoreEditorControlEx::m_pageStarts;
};

class PrintOptions : public CZNOptionsServer
{
public:
    PrintOptions() { SetOptionsServer(this); }
    ~PrintOptions() override { SetOptionsServer(nullptr); }
    bool GetBool(int key) override { return on[key]; }
    bool GetLOGFONT(int key, LOGFONT* wanted) override
    {
        if (key != option::PrintFont || !font)
            return false;
        *wanted = *font;
        return true;
    }
    void SetLOGFONT(int key, const LOGFONT* given) override
    {
        if (key == option::PrintFont)
            font = *given;
    }
    std::map<int, bool> on;
    std::optional<LOGFONT> font;
};

// Pages of 100 units each.
class PrintOrder : public testing::Test
{
protected:
    PrintOrder()
    {
        QCoreApplication::setApplicationName(QStringLiteral("Bench"));
        m_control.Create(WS_CHILD, RECT{0, 0, 100, 100}, nullptr, 1, nullptr);
        recording::Forget();
        AnswerTo(msg::FormatRange, [this](WPARAM draw, LPARAM record) -> LRESULT {
            const auto* range = reinterpret_cast<const RangeToFormat*>(record);
            if (!range)
                return 0;
            (draw ? m_drawn : m_measured).push_back(*range);
            return std::min(range->chrg.cpMin + 100, range->chrg.cpMax);
        });
    }
    ~PrintOrder() override { recording::Forget(); }

    void Length(long units)
    {
        AnswerTo(msg::GetLength, [units](WPARAM, LPARAM) { return units; });
    }
    void Selection(long start, long end)
    {
        AnswerTo(msg::GetSelectionStart, [start](WPARAM, LPARAM) { return start; });
        AnswerTo(msg::GetSelectionEnd, [end](WPARAM, LPARAM) { return end; });
    }
    std::vector<unsigned> Begin(UINT flags = 0)
    {
        m_info.m_pPD->m_pd.Flags = flags;
        m_dc.Attach(m_printer.MakeJob(std::make_unique<QPrinter>()));
        m_control.OnBeginPrinting(&m_dc, &m_info);
        return m_control.m_pageStarts;
    }
    std::vector<std::string> SentOf(const std::string& part)
    {
        std::vector<std::string> sent;
        for (const std::string& sentence : recording::Sentences()) {
            if (sentence.find(part) != std::string::npos)
                sent.push_back(sentence);
        }
        return sent;
    }
    static std::vector<std::pair<int, int>> Ranges(const std::vector<RangeToFormat>& records)
    {
        std::vector<std::pair<int, int>> ranges;
        for (const RangeToFormat& record : records)
            ranges.emplace_back(record.chrg.cpMin, record.chrg.cpMax);
        return ranges;
    }

    PrintOptions m_options;
    FakePrinter m_printer;
    OpenPages m_control;
    CPrinterDC m_dc;
    CPrintInfo m_info;
    std::vector<RangeToFormat> m_measured;
    std::vector<RangeToFormat> m_drawn;
};

} // namespace

TEST_F(PrintOrder, ThreePagesHaveFourEntries)
{
    Length(250);
    EXPECT_THAT(Begin(), ElementsAre(0, 100, 200, 250));
    EXPECT_EQ(m_info.GetMaxPage(), 3u);
    EXPECT_EQ(Ranges(m_measured),
              (std::vector<std::pair<int, int>>{{0, 250}, {100, 250}, {200, 250}}));
    EXPECT_EQ(m_measured[0].rc.right, 600);
    EXPECT_EQ(m_measured[0].rcPage.bottom, 400);
    EXPECT_EQ(m_measured[0].hdc, m_dc.GetSafeHdc());
    EXPECT_THAT(SentOf("SetPrint"), ElementsAre("SetPrintMagnification -1", "SetPrintWrapMode 1"));
    EXPECT_EQ(recording::Messages().back().lParam, 0) << "the engine lets go of what it has kept";
}

TEST_F(PrintOrder, ASelectionEndsOneUnitEarly)
{
    Length(1000);
    Selection(40, 190);
    EXPECT_THAT(Begin(PD_SELECTION), ElementsAre(40, 140, 189));
    Selection(990, 5000);
    EXPECT_THAT(Begin(PD_SELECTION), ElementsAre(990, 1000));
}

TEST_F(PrintOrder, ASelectionOfOneUnitHasNoPage)
{
    Length(1000);
    Selection(40, 41);
    EXPECT_THAT(Begin(PD_SELECTION), ElementsAre(40));
    EXPECT_EQ(m_info.GetMaxPage(), 0u);
}

TEST_F(PrintOrder, WithoutTheDialogsFlagASelectionIsNotLookedAt)
{
    Length(100);
    Selection(40, 90);
    EXPECT_THAT(Begin(PD_NOSELECTION), ElementsAre(0, 100));
}

TEST_F(PrintOrder, AnEmptyTextPrintsNoPageAndEndsItsDocument)
{
    Length(0);
    EXPECT_THAT(Begin(), ElementsAre(0));
    EXPECT_EQ(m_info.GetMaxPage(), 0u);
    m_dc.DeleteDC();
    m_printer.asked.clear();
    m_control.Print();
    EXPECT_EQ(m_printer.asked, (QStringList{"StartDoc Bench", "EndDoc", "gone"}));
}

TEST_F(PrintOrder, APageThatHoldsNothingDoesNotGoOnForEver)
{
    AnswerTo(msg::FormatRange, [](WPARAM, LPARAM) { return 0; });
    Length(250);
    EXPECT_THAT(Begin(), ElementsAre(0, 250));
}

TEST_F(PrintOrder, DrawsAPageToTheRangesEnd)
{
    Length(250);
    Begin();
    m_info.m_nCurPage = 2;
    m_info.m_rectDraw = {5, 6, 70, 80};
    m_control.OnPrint(&m_dc, &m_info);
    EXPECT_EQ(Ranges(m_drawn), (std::vector<std::pair<int, int>>{{100, 250}}));
    EXPECT_EQ(m_drawn[0].rc.left, 5);
    EXPECT_EQ(m_drawn[0].rcPage.bottom, 80);
}

TEST_F(PrintOrder, RefusesAPageThatIsNotInTheTable)
{
    Length(250);
    Begin();
    for (const UINT page : {0u, 5u, 70000u}) {
        m_info.m_nCurPage = page;
        EXPECT_THROW(m_control.OnPrint(&m_dc, &m_info), CInvalidArgException) << page;
    }
    EXPECT_THAT(m_drawn, IsEmpty());
}

TEST_F(PrintOrder, DrawsAllOfTheTextWithoutATable)
{
    Length(250);
    Begin();
    m_control.OnEndPrinting(&m_dc, &m_info);
    EXPECT_THAT(m_control.m_pageStarts, IsEmpty());
    m_control.OnPrint(&m_dc, &m_info);
    EXPECT_EQ(Ranges(m_drawn), (std::vector<std::pair<int, int>>{{0, 250}}));
}

TEST_F(PrintOrder, PrintsPageByPage)
{
    Length(150);
    m_control.Print();
    EXPECT_EQ(m_printer.flags, 0x14000Cu);
    EXPECT_EQ(m_printer.asked, (QStringList{"StartDoc Bench", "StartPage", "EndPage", "StartPage",
                                            "EndPage", "EndDoc", "gone"}));
    EXPECT_EQ(Ranges(m_drawn), (std::vector<std::pair<int, int>>{{0, 150}, {100, 150}}));
    EXPECT_EQ(m_drawn[0].rc.right, 600);
    EXPECT_THAT(m_control.m_pageStarts, IsEmpty());
}

TEST_F(PrintOrder, NamesTheDocumentByTheProductIfTheApplicationHasNoName)
{
    QCoreApplication::setApplicationName(QStringLiteral(""));
    Length(0);
    m_control.Print();
    const QString name = QCoreApplication::applicationName();
    EXPECT_EQ(m_printer.asked.value(0),
              "StartDoc " + (name.isEmpty() ? QStringLiteral("ZNCoreEditor") : name));
}

TEST_F(PrintOrder, GivesUpWhenTheUserDoes)
{
    m_printer.isCancelled = true;
    Length(150);
    m_control.Print();
    EXPECT_TRUE(m_printer.asked.isEmpty());
    EXPECT_THAT(recording::Sentences(), IsEmpty());
    EXPECT_EQ(m_control.OnPreparePrinting(&m_info), 0);
}

TEST_F(PrintOrder, AbortsAtAPageThatFails)
{
    m_printer.failAtPage = 2;
    Length(1000);
    m_control.Print();
    EXPECT_EQ(m_printer.asked, (QStringList{"StartDoc Bench", "StartPage", "EndPage", "StartPage",
                                            "EndPage", "AbortDoc", "gone"}));
}

TEST_F(PrintOrder, GoesOnWhereTheStartOfAPageOrADocumentFails)
{
    m_printer.startPage = -1;
    m_printer.startDoc = -1; // 0 alone keeps the pages from being printed
    Length(100);
    m_control.Print();
    EXPECT_EQ(m_printer.pages.size(), 1);
    m_printer.startDoc = 0;
    m_printer.asked.clear();
    m_control.Print();
    EXPECT_EQ(m_printer.asked, (QStringList{"StartDoc Bench", "AbortDoc", "gone"}));
}

TEST_F(PrintOrder, PreparesWithASelectionThatIsOfferedAndChosen)
{
    Length(100);
    Selection(3, 3);
    m_printer.startDoc = 17;
    m_info.m_pPD->m_pd.Flags = PD_NOSELECTION;
    EXPECT_EQ(m_control.OnPreparePrinting(&m_info), 17);
    EXPECT_EQ(m_info.m_pPD->m_pd.Flags, PD_NOSELECTION);
    Selection(3, 9);
    m_control.OnPreparePrinting(&m_info);
    EXPECT_EQ(m_info.m_pPD->m_pd.Flags, PD_SELECTION);
    EXPECT_EQ(m_printer.flags, 0x14000Cu) << "its own dialog does not know of it";
    EXPECT_EQ(m_info.GetMaxPage(), 0xFFFFu) << "and the info hears of nothing more";
    EXPECT_FALSE(m_printer.asked.contains("EndDoc"));
}

TEST_F(PrintOrder, SetsTheColourModeByTwoOptions)
{
    Length(0);
    const auto modes = [this](bool colours, bool ground) {
        recording::Forget();
        m_options.on = {{50512, colours}, {50513, ground}};
        m_control.Print();
        return SentOf("SetPrintColorMode");
    };
    EXPECT_THAT(modes(true, true), ElementsAre("SetPrintColorMode 0"));
    EXPECT_THAT(modes(true, false), ElementsAre("SetPrintColorMode 3"));
    EXPECT_THAT(modes(false, false), ElementsAre("SetPrintColorMode 2"));
    EXPECT_THAT(modes(false, true), IsEmpty()) << "the mode set before stays in force";
}

TEST_F(PrintOrder, LeavesTheStylesAloneWithoutAFontOfItsOwn)
{
    Length(0);
    m_control.Print();
    EXPECT_THAT(SentOf("PrintStyle"), IsEmpty());
}

TEST_F(PrintOrder, PrintsInTahomaUntilAFontIsChosen)
{
    Length(0);
    m_options.on[50514] = true;
    m_control.Print();
    EXPECT_THAT(SentOf("PrintStyle"),
                ElementsAre("PrintStyleSetFont(Tahoma)", "PrintStyleSetBold 0",
                            "PrintStyleSetItalic 0", "PrintStyleSetSize 9"));
    ASSERT_TRUE(m_options.font);
    EXPECT_EQ(m_options.font->lfHeight, -13);
    EXPECT_EQ(m_options.font->lfCharSet, 1);
}

TEST_F(PrintOrder, TakesTheChosenFont)
{
    Length(0);
    m_options.on[50514] = true;
    m_options.font.emplace();
    m_options.font->lfFaceName[0] = u'F';
    m_options.font->lfHeight = 31; // 23.25 points
    m_options.font->lfWeight = 700;
    m_options.font->lfItalic = 1;
    m_control.Print();
    EXPECT_THAT(SentOf("PrintStyle"), ElementsAre("PrintStyleSetFont(F)", "PrintStyleSetBold 1",
                                                  "PrintStyleSetItalic 1", "PrintStyleSetSize 23"));
    recording::Forget();
    m_options.font->lfWeight = 800; // only the one weight counts as bold, and 1 as italic
    m_options.font->lfItalic = 255;
    m_control.Print();
    EXPECT_THAT(SentOf("PrintStyleSetB"), ElementsAre("PrintStyleSetBold 0"));
    EXPECT_THAT(SentOf("PrintStyleSetI"), ElementsAre("PrintStyleSetItalic 0"));
}
