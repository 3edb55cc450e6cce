// SPDX-License-Identifier: GPL-3.0-or-later
// The map beside a text: what is drawn, that it stays right, and what the mouse does there.
#include "engine/looks/DocumentMap.h"
#include "control/EngineLooks.h"
#include "tests/RandomSeed.h"
#include "tests/engine/EngineFixture.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

using engine::DocumentMap;
using Sci = QsciScintillaBase;
namespace msg = engine::message;

constexpr int kRow = 2;  // pixels
constexpr int kLeft = 4; // of the text

std::u16string Lines(int count, const std::u16string& line = u"select 1;\n")
{
    std::u16string text;
    for (int i = 0; i < count; ++i)
        text += line;
    return text;
}

class DocumentMapTest : public testing::Test
{
protected:
    DocumentMapTest()
    {
        m_engine.Send(msg::StyleSetFore, 1, 0x0000FF);
        m_engine.Send(msg::StyleSetFore, 2, 0x00A000);
        m_engine.Window()->resize(600, 400);
        m_engine.Send(engine::kShowDocumentMap, 1);
        m_engine.Window()->parentWidget()->show();
        m_engine.Window()->show();
        Settle();
    }

    Sci& Window() const { return *static_cast<Sci*>(m_engine.Window()); }
    QScrollBar& Bar() const { return *Window().verticalScrollBar(); }
    DocumentMap* Map() const
    {
        QWidget* map = nullptr;
        for (auto* each : Window().findChildren<QWidget*>(QStringLiteral("documentMap"))) {
            if (each->isVisibleTo(&Window()))
                map = each;
        }
        return static_cast<DocumentMap*>(map);
    }

    void Settle() const
    {
        QElapsedTimer clock;
        for (clock.start(); clock.elapsed() < 5000;) {
            QApplication::processEvents();
            if (!Map() || Map()->Refresh())
                return;
        }
        FAIL() << "the map is never done";
    }

    QImage Picture() const
    {
        Settle();
        return Map()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    }

    // A map of the same that knows nothing of what was drawn before.
    QImage PictureAnew() const
    {
        Map()->Forget();
        return Picture();
    }

    // Columns of the first row, in which there is ink: 'r' of style 1, 'g' of style 2, '#' other.
    std::string InkOf(const QImage& picture, int row, int columns) const
    {
        std::string ink;
        for (int column = 0; column < columns; ++column) {
            const QColor one = picture.pixelColor(kLeft + column, row * kRow);
            const QColor ground = picture.pixelColor(2, row * kRow);
            ink += one == ground                                                   ? ' '
                   : one.red() > one.green() + 60 && one.red() > one.blue() + 60   ? 'r'
                   : one.green() > one.red() + 40 && one.green() > one.blue() + 40 ? 'g'
                                                                                   : '#';
        }
        return ink;
    }

    void Press(int y) { QTest::mousePress(Map(), Qt::LeftButton, {}, {30, y}); }
    void MoveTo(int y)
    {
        const QPointF place(30, y);
        QMouseEvent move(QEvent::MouseMove, place, Map()->mapToGlobal(place), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(Map(), &move);
    }
    void Release(int y) { QTest::mouseRelease(Map(), Qt::LeftButton, {}, {30, y}); }

    int First() const { return static_cast<int>(m_engine.Send(msg::GetFirstVisibleLine)); }

    EngineUnderTest m_engine;
};

TEST_F(DocumentMapTest, DrawsTheColumnsOfALineThatAreNoBlanks)
{
    m_engine.SetText(u"ab  c\n\n\tx\n");
    m_engine.Send(msg::SetTabWidth, 4);
    const QImage picture = Picture();
    EXPECT_EQ(InkOf(picture, 0, 8), "##  #   ");
    EXPECT_EQ(InkOf(picture, 1, 8), "        ");
    EXPECT_EQ(InkOf(picture, 2, 8), "    #   ");
    EXPECT_EQ(InkOf(picture, 3, 8), "        ");
}

TEST_F(DocumentMapTest, DrawsStylesInTheirColoursOnceTheyAreThere)
{
    m_engine.SetText(u"aabb cc\n");
    EXPECT_EQ(InkOf(Picture(), 0, 8), "#### ## ");
    m_engine.Send(msg::StartStyling, 0, 0xFF);
    m_engine.Send(msg::SetStyling, 2, 1);
    m_engine.Send(msg::SetStyling, 3, 2);
    EXPECT_EQ(InkOf(Picture(), 0, 8), "rrgg ## ");
    m_engine.Send(msg::StyleSetFore, 2, 0x0000FF);
    EXPECT_EQ(InkOf(Picture(), 0, 8), "rrrr ## ");
}

// The window itself colours no further than it shows.
TEST_F(DocumentMapTest, ColoursWhatItShowsBelowTheWindow)
{
    m_engine.Send(msg::SetLexer, 3); // Transact-SQL
    m_engine.SetText(Lines(150, u"-- a\n"));
    m_engine.Send(msg::StyleSetFore, 2, 0x00A000); // comments
    EXPECT_EQ(InkOf(Picture(), 140, 4), "gg g");
    EXPECT_EQ(m_engine.Send(msg::GetEndStyled), 150 * 5);
}

TEST_F(DocumentMapTest, ColoursNothingFarBelow)
{
    m_engine.Send(msg::SetLexer, 3);
    m_engine.SetText(Lines(50, u"-- a\n") + std::u16string(3 << 20, u'a') + u"\n-- a\n");
    Settle();
    EXPECT_LT(m_engine.Send(msg::GetEndStyled), 2 << 20);
}

TEST_F(DocumentMapTest, GivesWideCharactersTwoColumns)
{
    m_engine.SetText(u"\u00E9a \u6F22\u5B57 x\n");
    EXPECT_EQ(InkOf(Picture(), 0, 12), "## #### #   ");
}

TEST_F(DocumentMapTest, LeavesFoldedLinesOut)
{
    m_engine.SetText(u"a\nbb\nccc\ndddd\n");
    m_engine.Send(msg::HideLines, 1, 2);
    const QImage picture = Picture();
    EXPECT_EQ(InkOf(picture, 0, 6), "#     ");
    EXPECT_EQ(InkOf(picture, 1, 6), "####  ");
    m_engine.Send(msg::ShowLines, 1, 2);
    EXPECT_EQ(InkOf(Picture(), 1, 6), "##    ");
}

TEST_F(DocumentMapTest, HasAsManyRowsOfAWrappedLineAsTheWindow)
{
    m_engine.SetText(Lines(200, u"word ") + u"\nend\n");
    m_engine.Send(msg::SetWrapMode, 1);
    Settle();
    const auto rows = static_cast<int>(m_engine.Send(msg::VisibleFromDocLine, 1));
    ASSERT_GT(rows, 3);
    const QImage picture = Picture();
    for (int row = 0; row < rows; ++row)
        EXPECT_NE(InkOf(picture, row, 20), std::string(20, ' ')) << row;
    EXPECT_EQ(InkOf(picture, rows, 6), "###   ");
}

TEST_F(DocumentMapTest, IsNotThereUntilItIsAskedForAndNoLongerWhenItIsNotWanted)
{
    EngineUnderTest other;
    EXPECT_EQ(other.Send(engine::kIsDocumentMapShown), 0);
    EXPECT_EQ(other.Window()->findChild<QWidget*>(QStringLiteral("documentMap")), nullptr);
    EXPECT_EQ(m_engine.Send(engine::kIsDocumentMapShown), 1);
    const int narrow = Window().viewport()->width();
    m_engine.Send(engine::kShowDocumentMap, 0);
    EXPECT_EQ(m_engine.Send(engine::kIsDocumentMapShown), 0);
    EXPECT_EQ(Window().viewport()->width(), narrow + 100);
    EXPECT_EQ(Map(), nullptr);
}

TEST_F(DocumentMapTest, StandsBetweenTheTextAndTheScrollBar)
{
    m_engine.SetText(Lines(500));
    Settle();
    const QRect text = Window().viewport()->geometry();
    EXPECT_EQ(Map()->geometry(), QRect(text.right() + 1, 0, 100, text.height()));
    EXPECT_EQ(Map()->geometry().right() + 1, Bar().mapTo(&Window(), QPoint()).x());
}

TEST_F(DocumentMapTest, LeavesANarrowWindowItsText)
{
    m_engine.SetText(Lines(500));
    for (const int width : {600, 450, 250, 190, 60, 600}) {
        Window().resize(width, 400);
        QApplication::processEvents();
        const int map = width >= 500 ? 100 : width >= 200 ? width / 5 : 0;
        EXPECT_EQ(Map() && Map()->width() > 0 ? Map()->width() : 0, map) << width;
        EXPECT_EQ(Window().viewport()->width(), Bar().mapTo(&Window(), QPoint()).x() - map)
            << width;
    }
}

TEST_F(DocumentMapTest, BringsTheClickedLineIntoTheMiddle)
{
    m_engine.SetText(Lines(3000));
    Settle();
    const int y = Map()->height() * 3 / 4;
    const int line = y / kRow; // the text stands at its start, and so does the map
    Press(y);
    Release(y);
    const auto page = static_cast<int>(m_engine.Send(msg::LinesOnScreen));
    EXPECT_NEAR(First() + page / 2, line, 1);
    EXPECT_FALSE(Map()->hasFocus());
    EXPECT_EQ(m_engine.Send(msg::GetCurrentPos), 0);
}

TEST_F(DocumentMapTest, ScrollsToBothEndsWithItsBox)
{
    m_engine.SetText(Lines(3000));
    Settle();
    Press(3); // inside of the box, which stands at the top
    EXPECT_EQ(First(), 0);
    MoveTo(Map()->height() / 2);
    EXPECT_NEAR(First(), Bar().maximum() / 2, Bar().maximum() / 8);
    MoveTo(Map()->height() + 50);
    EXPECT_EQ(First(), Bar().maximum());
    MoveTo(-50);
    EXPECT_EQ(First(), 0);
    Release(-50);
    MoveTo(100);
    EXPECT_EQ(First(), 0);
}

TEST_F(DocumentMapTest, HandsTheWheelToTheText)
{
    m_engine.SetText(Lines(500));
    Settle();
    const QPointF place(30, 100);
    QWheelEvent wheel(place, Map()->mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(Map(), &wheel);
    EXPECT_EQ(First(), QApplication::wheelScrollLines());
}

TEST_F(DocumentMapTest, HasANameAndTakesNoKeys)
{
    EXPECT_FALSE(Map()->accessibleName().isEmpty());
    EXPECT_EQ(Map()->focusPolicy(), Qt::NoFocus);
}

// In lines that nobody could wait for, and beside a text that is not styled.
TEST_F(DocumentMapTest, ReadsNoMoreOfALineThanItShows)
{
    m_engine.SetText(std::u16string(3'000'000, u'x') + u"\nend\n");
    Settle();
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(InkOf(PictureAnew(), 1, 5), "###  ");
    EXPECT_LT(clock.elapsed(), 1000);
}

TEST_F(DocumentMapTest, ShowsTheTextThatTakesTheOldOnesPlace)
{
    m_engine.SetText(u"aaaa\n");
    Settle();
    const LRESULT other = m_engine.Send(msg::CreateDocument);
    m_engine.Send(msg::SetDocPointer, 0, other);
    m_engine.Send(msg::ReleaseDocument, 0, other);
    EXPECT_EQ(InkOf(Picture(), 0, 6), "      ");
    m_engine.SetText(u"bb\n");
    EXPECT_EQ(InkOf(Picture(), 0, 6), "##    ");
}

// Whatever is done to the text and the window, also in another window of the text.
class RandomWork
{
public:
    RandomWork(unsigned seed, EngineUnderTest& one, EngineUnderTest& other)
        : m_random(seed), m_one(one), m_other(other)
    {}

    void Do()
    {
        EngineUnderTest& engine = Below(4) == 0 ? m_other : m_one;
        const long length = static_cast<long>(engine.Send(msg::GetLength));
        const long lines = static_cast<long>(engine.Send(msg::GetLineCount));
        const long line = Below(lines);
        const long from = Below(length + 1);
        switch (Below(12)) {
        case 0:
        case 1:
            engine.Insert(from, Piece());
            break;
        case 2:
            engine.Erase(from, std::min(length, from + Below(90)));
            break;
        case 3:
            engine.Send(Below(3) ? msg::Undo : msg::Redo);
            break;
        case 4:
            m_one.Send(msg::HideLines, static_cast<WPARAM>(std::max(1L, line)),
                       std::min(lines - 1, line + Below(20)));
            break;
        case 5:
            m_one.Send(msg::ShowLines, 0, lines - 1);
            break;
        case 6:
            m_one.Send(msg::SetWrapMode, static_cast<WPARAM>(Below(2)));
            break;
        case 7:
            engine.Send(msg::StartStyling, static_cast<WPARAM>(from), 0xFF);
            engine.Send(msg::SetStyling, static_cast<WPARAM>(std::min(length - from, Below(300))),
                        Below(3));
            break;
        case 8:
            m_one.Send(msg::SetZoom, static_cast<WPARAM>(Below(5)));
            break;
        case 9:
            m_one.Window()->resize(300 + static_cast<int>(Below(400)),
                                   100 + static_cast<int>(Below(500)));
            break;
        default:
            m_one.Send(msg::LineScroll, 0,
                       line - static_cast<long>(m_one.Send(msg::GetFirstVisibleLine)));
        }
    }

    bool Sometimes() { return Below(4) == 0; }

private:
    long Below(long limit)
    {
        return limit < 1 ? 0 : std::uniform_int_distribution<long>(0, limit - 1)(m_random);
    }

    std::u16string Piece()
    {
        constexpr std::u16string_view kPieces[] = {
            u"\r", u"\n", u"\r\n", u"abc", u"\t", u"  ", u"\u6F22", u"\U0001F600", u"word word "};
        std::u16string text;
        for (long i = 1 + Below(30); i > 0; --i)
            text += kPieces[static_cast<std::size_t>(Below(std::size(kPieces)))];
        return text;
    }

    std::mt19937 m_random;
    EngineUnderTest& m_one;
    EngineUnderTest& m_other;
};

TEST_F(DocumentMapTest, IsAfterAllWorkWhatItWouldBeIfItWereDrawnAnew)
{
    const unsigned seed = RandomSeed();
    SCOPED_TRACE(seed);
    m_engine.SetText(Lines(150, u"select a, b from t -- c\n\tx\n"));
    EngineUnderTest other;
    other.Send(msg::SetDocPointer, 0, m_engine.Send(msg::GetDocPointer));
    RandomWork work(seed, m_engine, other);
    for (int step = 0; step < 300 && !HasFailure(); ++step) {
        work.Do();
        if (!work.Sometimes())
            continue;
        const QImage kept = Picture();
        EXPECT_TRUE(kept == PictureAnew()) << "step " << step;
    }
}

} // namespace
