// SPDX-License-Identifier: GPL-3.0-or-later
// FormatRange: pages that cover the text, and what differs on paper.
#include "tests/engine/EngineFixture.h"

#include "control/EngineLooks.h"
#include "control/EngineModes.h"
#include "tests/engine/ErrorFixture.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>

#include <gtest/gtest.h>

#include <algorithm>

namespace msg = engine::message;

namespace {

class Printing : public testing::Test
{
protected:
    Printing() { Clear(); }

    void Clear() { m_paper.fill(Qt::white); }

    RangeToFormat Range(QPainter& painter, int from, int to) const
    {
        const RECT page{0, 0, m_paper.width(), m_paper.height()};
        return {&painter, &painter, page, page, {from, to}};
    }

    long Format(bool draw, int from, int to = -1)
    {
        QPainter painter(&m_paper);
        const RangeToFormat range = Range(painter, from, to);
        return m_engine.Send(msg::FormatRange, draw, &range);
    }

    // The first position of each page, and the end.
    std::vector<long> Pages(bool draw)
    {
        const long end = m_engine.Send(msg::GetLength);
        std::vector<long> starts{0};
        while (starts.back() < end && starts.size() < 1000) {
            const long next = Format(draw, static_cast<int>(starts.back()), -1);
            if (next <= starts.back())
                break;
            starts.push_back(next);
        }
        return starts;
    }

    QImage Drawn()
    {
        Clear();
        Format(true, 0);
        return m_paper;
    }

    // How dark the paper is, in dots that are not white.
    static long Ink(const QImage& image)
    {
        long ink = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                ink += image.pixel(x, y) != QColor(Qt::white).rgb();
        }
        return ink;
    }

    static bool HasColour(const QImage& image)
    {
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor dot = image.pixelColor(x, y);
                if (dot.red() > dot.green() + 60)
                    return true;
            }
        }
        return false;
    }

    EngineUnderTest m_engine;
    QImage m_paper{400, 300, QImage::Format_RGB32};
};

std::u16string ManyLines(int count)
{
    std::u16string text;
    for (int i = 0; i < count; ++i)
        text += u"\u00e9\U0001F600 line " + std::u16string(static_cast<std::size_t>(i % 7), u'x') +
                u"\r\n";
    return text;
}

} // namespace

TEST_F(Printing, ThePagesCoverTheTextInOrder)
{
    m_engine.SetText(ManyLines(200));
    const std::vector<long> pages = Pages(false);
    EXPECT_GT(pages.size(), 4u);
    EXPECT_TRUE(std::is_sorted(pages.begin(), pages.end()));
    EXPECT_EQ(pages.back(), m_engine.Send(msg::GetLength));
    for (const long start : pages) // without wrapped lines each page starts a line
        EXPECT_EQ(m_engine.Send(msg::GetColumn, static_cast<WPARAM>(start)), 0);
}

TEST_F(Printing, DrawingGivesThePagesThatMeasuringGave)
{
    m_engine.SetText(ManyLines(100));
    EXPECT_EQ(Pages(true), Pages(false));
}

TEST_F(Printing, MeasuringDrawsNothing)
{
    m_engine.SetText(ManyLines(3));
    Format(false, 0);
    EXPECT_EQ(Ink(m_paper), 0);
    Format(true, 0);
    EXPECT_GT(Ink(m_paper), 0);
}

TEST_F(Printing, ALineThatDoesNotFitIsWrappedAcrossPages)
{
    std::u16string line;
    for (int i = 0; i < 3000; ++i)
        line += u"\u00e9\u4e2d w\U0001F600rd ";
    m_engine.SetText(line);
    m_engine.Send(msg::SetPrintWrapMode, 1);
    EXPECT_EQ(Pages(false).back(), static_cast<long>(line.size()));
}

TEST_F(Printing, ALineThatDoesNotFitIsCutOffWhereNoneIsWrapped)
{
    m_engine.SetText(std::u16string(3000, u'M'));
    m_engine.Send(msg::SetPrintWrapMode, 0);
    EXPECT_EQ(m_engine.Send(msg::GetPrintWrapMode), 0);
    const long cut = Ink(Drawn());
    m_engine.Send(msg::SetPrintWrapMode, 1);
    EXPECT_EQ(m_engine.Send(msg::GetPrintWrapMode), 1);
    EXPECT_GT(Ink(Drawn()), 5 * cut);
}

TEST_F(Printing, TheCharacterAtARangesEndBelongsToIt)
{
    m_engine.SetText(ManyLines(5));
    EXPECT_EQ(Format(false, 0, 14), 15);
    EXPECT_EQ(Format(false, 0, 1), 3) << "a pair is one character";
    EXPECT_EQ(Format(false, 4, 4), 5);
}

TEST_F(Printing, OfPartsOfLinesLeavesTheStylesAsTheyWere)
{
    m_engine.SetText(ManyLines(40));
    m_engine.Send(msg::StartStyling, 0);
    m_engine.Send(msg::SetStyling, 30, 3);
    m_engine.Send(msg::SetSavePoint);
    Format(true, 5, 20);
    Format(true, 14, 400);
    EXPECT_EQ(m_engine.Send(msg::GetEndStyled), 30);
    EXPECT_EQ(m_engine.Send(msg::GetStyleAt, 4), 3);
    EXPECT_EQ(m_engine.Send(msg::GetStyleAt, 21), 3);
    EXPECT_EQ(m_engine.Send(msg::GetStyleAt, 31), 0);
    EXPECT_EQ(m_engine.Send(msg::GetModify), 0);
}

// What is in front of a page does not move what is on it: the same line, begun at a page's start.
TEST_F(Printing, APageFromTheMiddleOfALineLooksAsTheRestAlone)
{
    std::u16string line;
    for (int i = 0; i < 3000; ++i)
        line += u"\u00e9\u4e2d w\U0001F600rd ";
    m_engine.SetText(line);
    const long second = Format(false, 0);
    Clear();
    Format(true, static_cast<int>(second));
    const QImage inTheLine = m_paper;
    m_engine.SetText(line.substr(static_cast<std::size_t>(second)));
    EXPECT_EQ(Drawn(), inTheLine);
}

TEST_F(Printing, NothingIsFormattedWithoutRecordOrPainter)
{
    m_engine.SetText(ManyLines(5));
    QPainter painter(&m_paper);
    RangeToFormat range = Range(painter, 0, -1);
    range.hdc = nullptr;
    EXPECT_EQ(m_engine.Send(msg::FormatRange, 1, &range), 0);
    EXPECT_EQ(m_engine.Send(msg::FormatRange, 1, LPARAM{0}), 0);
    EXPECT_EQ(m_engine.Send(msg::FormatRange, 0, LPARAM{0}), 0);
}

TEST_F(Printing, OddRectanglesAndRangesComeToAnEnd)
{
    m_engine.SetText(ManyLines(20));
    QPainter painter(&m_paper);
    for (const RECT& rect :
         {RECT{0, 0, 0, 0}, {50, 50, 10, 10}, {0, 0, 400, 1}, {-9, -9, -1, -1}}) {
        for (const CharacterRange bounds :
             {CharacterRange{0, -1}, {5, 5}, {30, 10}, {-4, 999999}}) {
            RangeToFormat range = Range(painter, bounds.cpMin, bounds.cpMax);
            range.rc = range.rcPage = rect;
            const LRESULT next = m_engine.Send(msg::FormatRange, 1, &range);
            EXPECT_GE(next, 0);
            EXPECT_LE(next, m_engine.Send(msg::GetLength));
        }
    }
}

TEST_F(Printing, AnEmptyTextHasNoPage)
{
    EXPECT_EQ(Format(true, 0), 0);
    EXPECT_EQ(Ink(m_paper), 0);
}

TEST_F(Printing, PrintStylesHoldOnPaperOnly)
{
    m_engine.SetText(u"some text of a script");
    m_engine.Send(msg::SetCaretPeriod, 0);
    const QImage screen = m_engine.Window()->grab().toImage();
    const QImage plain = Drawn();
    m_engine.Send(msg::PrintStyleSetBold, 1);
    const QImage bold = Drawn();
    EXPECT_GT(Ink(bold), Ink(plain));
    m_engine.Send(msg::PrintStyleSetBold, 0);
    m_engine.Send(msg::PrintStyleSetItalic, 1);
    EXPECT_NE(Drawn(), plain);
    m_engine.Send(msg::PrintStyleSetItalic, 0);
    m_engine.Send(msg::PrintStyleSetFont, 0, u"DejaVu Serif");
    EXPECT_NE(Drawn(), plain);
    EXPECT_EQ(m_engine.Window()->grab().toImage(), screen);
}

TEST_F(Printing, WhatIsLitOnTheScreenIsNotOnPaper)
{
    engine::Looks looks;
    looks.match = 0x0000FF;
    m_engine.SetText(u"some text of a script");
    m_engine.Send(engine::kSetLooks, 0, &looks);
    const QImage plain = Drawn();
    m_engine.Send(engine::kShowMatches, 0, u"text");
    const QImage screen = m_engine.Window()->grab().toImage();
    EXPECT_TRUE(HasColour(screen));
    EXPECT_EQ(Drawn(), plain);
    EXPECT_EQ(m_engine.Window()->grab().toImage(), screen);
}

TEST_F(Printing, ProblemsAreNotMarkedOnPaper)
{
    using Sci = QsciScintillaBase;
    constexpr int kOfTheHost = 6;
    m_engine.SetText(u"some text of a script");
    for (const int each : {kErrorIndicator, kOfTheHost}) {
        m_engine.Send(msg::IndicSetStyle, static_cast<WPARAM>(each),
                      engine::indicator::StraightBox);
        m_engine.Send(msg::IndicSetFore, static_cast<WPARAM>(each), 0x0000FF);
    }
    const QImage plain = Drawn();
    const Errors errors(m_engine);
    errors.SetNumbers();
    m_engine.Send(msg::WarningsSetIndic, kErrorIndicator); // both classes may have one
    errors.Add(5, 9);
    m_engine.Send(msg::ErrorsShow);
    const QImage screen = m_engine.Window()->grab().toImage();
    EXPECT_TRUE(HasColour(screen));
    EXPECT_EQ(Drawn(), plain);
    EXPECT_EQ(m_engine.Window()->grab().toImage(), screen);
    auto& stock = *qobject_cast<Sci*>(m_engine.Window());
    stock.SendScintilla(Sci::SCI_SETINDICATORCURRENT, kOfTheHost);
    stock.SendScintilla(Sci::SCI_INDICATORFILLRANGE, 0UL, 4L);
    EXPECT_TRUE(HasColour(Drawn())) << "what a host marks is its own";
}

TEST_F(Printing, SizesChangeWhatFitsOnAPage)
{
    m_engine.SetText(ManyLines(100));
    const std::size_t plain = Pages(false).size();
    m_engine.Send(msg::PrintStyleSetSize, 30);
    EXPECT_GT(Pages(false).size(), plain);
    m_engine.Send(msg::PrintStyleSetSize, 0);
    EXPECT_EQ(Pages(false).size(), plain);
    m_engine.Send(msg::SetPrintMagnification, 12);
    EXPECT_EQ(m_engine.Send(msg::GetPrintMagnification), 12);
    EXPECT_GT(Pages(false).size(), plain);
}

TEST_F(Printing, ColoursFollowTheColourMode)
{
    constexpr WPARAM kBlackOnWhite = 2;
    m_engine.Send(msg::StyleSetFore, 0, LPARAM{0x0000FF});
    m_engine.SetText(u"WWWW");
    EXPECT_TRUE(HasColour(Drawn()));
    m_engine.Send(msg::SetPrintColorMode, kBlackOnWhite);
    EXPECT_EQ(m_engine.Send(msg::GetPrintColorMode), LRESULT{kBlackOnWhite});
    EXPECT_FALSE(HasColour(Drawn()));
}

TEST_F(Printing, AllOfALongLineIsOfTheColourThatItsStyleHasByThen)
{
    constexpr WPARAM kTransactSql = 3;
    m_engine.Send(msg::SetLexer, kTransactSql);
    std::u16string line = u"--";
    while (line.size() < 40000)
        line += u" WWWW";
    m_engine.SetText(line);
    m_engine.Send(msg::Colorize, 0, LPARAM{-1});
    for (WPARAM style = 0; style < 128; ++style)
        m_engine.Send(msg::StyleSetFore, style, LPARAM{0x0000FF});
    const QImage page = Drawn();
    EXPECT_TRUE(HasColour(page));
    int leastRed = 255;
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x)
            leastRed = std::min(leastRed, qRed(page.pixel(x, y)));
    }
    EXPECT_EQ(leastRed, 255) << "white paper and red letters";
}

TEST_F(Printing, GoesIntoADocumentOfSeveralPages)
{
    m_engine.SetText(ManyLines(100));
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QPageSize::A6));
    QPainter painter(&writer);
    const RECT page{0, 0, writer.width(), writer.height()};
    RangeToFormat range{&painter, &painter, page, page, {0, -1}};
    int pages = 0;
    while (range.chrg.cpMin < m_engine.Send(msg::GetLength) && pages < 100) {
        if (pages++ > 0)
            writer.newPage();
        range.chrg.cpMin = static_cast<int>(m_engine.Send(msg::FormatRange, 1, &range));
    }
    painter.end();
    EXPECT_GT(pages, 1);
    EXPECT_LT(pages, 100);
    EXPECT_TRUE(buffer.data().startsWith("%PDF"));
}
