// SPDX-License-Identifier: GPL-3.0-or-later
// The lines beside the document map: how they look, and as much of them as has room.
#include "tests/engine/MapPreviewFixture.h"

namespace {

using namespace mappreview;

TEST_F(MapPreviewTest, IsInTheColoursOfTheStylesWithTheLineOfTheMouseLit)
{
    std::u16string text;
    for (int i = 0; i < 20; ++i)
        text += u"\u2588\u2588 word\n"; // full blocks
    m_engine.SetText(text);
    m_engine.Send(msg::StyleSetFore, 1, 0x00A000);
    m_engine.Send(msg::StartStyling, 0, 0xFF);
    m_engine.Send(msg::SetStyling, 2, 1);
    Settle();
    RestOver(0);
    ASSERT_TRUE(IsShown());
    const int right = Size().width() - 4;
    EXPECT_EQ(At(right, MiddleOf(0, kLines)), ToQColor(kLit));
    EXPECT_EQ(At(2, MiddleOf(0, kLines)), ToQColor(kCaret)) << "the bar beside it";
    EXPECT_EQ(At(right, MiddleOf(3, kLines)), ToQColor(kGround));
    EXPECT_EQ(At(2, MiddleOf(3, kLines)), ToQColor(kGround));
    EXPECT_TRUE(HasInk(ToQColor(0x00A000), 0, kLines));
    EXPECT_FALSE(HasInk(ToQColor(0x00A000), 1, kLines));
    EXPECT_TRUE(HasInk(ToQColor(kInk), 1, kLines));
    for (const QPoint& edge : {QPoint(0, 30), QPoint(30, 0), QPoint(Size().width() - 1, 30),
                               QPoint(30, Size().height() - 1)})
        EXPECT_NE(At(edge.x(), edge.y()), ToQColor(kGround)) << "a frame";
}

TEST_F(MapPreviewTest, LightsItsLineWhereThatOfTheCaretIsNotLit)
{
    PutTellable(60);
    m_engine.Send(msg::SetCaretLineVisible, 0);
    RestOver(30);
    const QColor lit = At(Size().width() - 4, MiddleOf(5, kLines));
    EXPECT_NE(lit, ToQColor(kGround));
    EXPECT_NE(lit, ToQColor(kLit));
}

TEST_F(MapPreviewTest, TakesNewColoursWhileItIsShown)
{
    PutTellable(60);
    RestOver(30);
    m_engine.Send(msg::StyleSetBack, Sci::STYLE_DEFAULT, 0x202020);
    Settle();
    ASSERT_TRUE(IsShown());
    EXPECT_EQ(At(Size().width() - 4, MiddleOf(1, kLines)), ToQColor(0x202020));
}

// Full blocks tell where a text begins.
TEST_F(MapPreviewTest, ExpandsTabsAndTakesTheCommonIndentationAway)
{
    m_engine.Send(msg::SetTabWidth, 4);
    Put(u"\t\u2588\n\n            \u2588\n    a\t\u2588\n");
    RestOver(0);
    ASSERT_TRUE(IsShown());
    const auto blockOf = [this](int row) {
        int x = kBeside;
        while (x < Size().width() - 1 && At(x, MiddleOf(row, 5)) != ToQColor(kInk))
            ++x;
        return x - kBeside;
    };
    const double column = blockOf(2) / 8.0;
    EXPECT_NEAR(blockOf(0), 0, 1);
    EXPECT_GT(column, 3);
    // Behind the letter, which has ink of its own.
    int x = kBeside + static_cast<int>(2 * column);
    while (x < Size().width() && At(x, MiddleOf(3, 5)) != ToQColor(kInk))
        ++x;
    EXPECT_NEAR(x - kBeside, 4 * column, 2);
}

TEST_F(MapPreviewTest, CutsLongLinesAtThreeFifthsOfTheEditor)
{
    Put(u"short\n");
    RestOver(0);
    EXPECT_LT(Size().width(), 120);
    Put(std::u16string(3000, u'x') + u"\nshort\n");
    RestOver(0);
    EXPECT_EQ(Size().width(), 360);
    MoveTo(kRow);
    EXPECT_EQ(Size().width(), 360) << "its edge stays while it is shown";
}

// A window may hang out of the screen.
TEST_F(MapPreviewTest, IsCutToTheRoomOfTheScreen)
{
    const int screen = Window().screen()->availableGeometry().width();
    m_top->setGeometry(-1600 + 3 * screen / 4, 60, 1620, 420);
    Window().resize(1600, 400);
    QApplication::processEvents();
    Put(std::u16string(3000, u'x') + u"\n");
    RestOver(0);
    ASSERT_TRUE(IsShown());
    EXPECT_TRUE(Window().screen()->availableGeometry().contains(Preview()->geometry()));
    EXPECT_LT(Preview()->geometry().right(), Map().mapToGlobal(QPoint()).x());
    // The sign of the cut stands at the end.
    bool isSigned = false;
    for (int x = Size().width() - kBeside - 6; x < Size().width() - kBeside; ++x) {
        for (int y = kAbove + 2; y < kAbove + Height(2) - 2; ++y)
            isSigned |= At(x, y).red() < ToQColor(kLit).red() - 60;
    }
    EXPECT_TRUE(isSigned);
    EXPECT_EQ(At(Size().width() - kBeside + 1, MiddleOf(0, 2)), ToQColor(kLit));
}

TEST_F(MapPreviewTest, CutsALineBehindALetterAndSaysSo)
{
    const QColor red = ToQColor(0x0000FF);
    m_engine.Send(msg::StyleSetFore, 1, 0x0000FF);
    m_engine.SetText(std::u16string(3000, u'\u2588') + u"\n");
    m_engine.Send(msg::StartStyling, 0, 0xFF);
    m_engine.Send(msg::SetStyling, 3000, 1);
    Settle();
    RestOver(0);
    const int middle = MiddleOf(0, 2);
    int end = Size().width() - 1;
    while (end > 0 && At(end, middle) != red)
        --end;
    const int room = Size().width() - kBeside - end;
    EXPECT_GT(room, 4) << "the sign of a cut";
    EXPECT_LT(room, 24);
    bool isSigned = false; // without red, by letters with soft edges
    for (int x = end + 2; x < Size().width() - kBeside; ++x) {
        for (int y = kAbove + 2; y < kAbove + Height(2) - 2; ++y)
            isSigned |= At(x, y).red() < ToQColor(kLit).red() - 60;
    }
    EXPECT_TRUE(isSigned);
}

TEST_F(MapPreviewTest, BeginsAWrappedLineWhereTheMouseIs)
{
    std::u16string text;
    for (int i = 0; i < 400; ++i)
        text += u"\u2588\u2588\u2588\u2588 ";
    m_engine.SetText(text);
    const auto half = static_cast<int>(text.size()) / 2;
    m_engine.Send(msg::StyleSetFore, 1, 0x0000FF);
    m_engine.Send(msg::StyleSetFore, 2, 0x00A000);
    m_engine.Send(msg::StartStyling, 0, 0xFF);
    m_engine.Send(msg::SetStyling, static_cast<WPARAM>(half), 1);
    m_engine.Send(msg::SetStyling, static_cast<WPARAM>(half), 2);
    m_engine.Send(msg::SetWrapMode, 1);
    Settle();
    const auto rows = static_cast<int>(m_engine.Send(msg::VisibleFromDocLine, 1));
    ASSERT_GT(rows, 10);
    RestOver(0);
    EXPECT_TRUE(HasInk(ToQColor(0x0000FF), 0, 1));
    EXPECT_FALSE(HasInk(ToQColor(0x00A000), 0, 1));
    RestOver(rows - 2);
    EXPECT_FALSE(HasInk(ToQColor(0x0000FF), 0, 1));
    EXPECT_TRUE(HasInk(ToQColor(0x00A000), 0, 1));
}

TEST_F(MapPreviewTest, HasFewerLinesWhereLettersAreLarge)
{
    PutTellable(60);
    m_engine.Send(msg::SetZoom, 40);
    Settle();
    RestAt(60);
    ASSERT_TRUE(IsShown());
    EXPECT_LE(Size().height(), Window().screen()->availableGeometry().height() * 4 / 5 + kAbove);
}

} // namespace
