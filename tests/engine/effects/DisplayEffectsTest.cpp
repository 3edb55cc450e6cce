// SPDX-License-Identifier: GPL-3.0-or-later
// What the settings of the display change about the picture, and about the bars beside it.
#include "tests/engine/effects/EffectsFixture.h"

#include <QAbstractScrollArea>
#include <QScrollBar>
#include <QTest>

namespace msg = engine::message;

namespace {

constexpr COLORREF kRed = 0x0000FF;
constexpr QRgb kRedDot = 0xFF0000;

class TextPicture : public Effects
{
protected:
    QAbstractScrollArea* Area() const
    {
        return qobject_cast<QAbstractScrollArea*>(m_engine.Window());
    }

    // How many columns of the picture have the colour.
    int ColumnsOf(QRgb colour) const
    {
        const QImage picture = Picture();
        int columns = 0;
        for (int x = 0; x < picture.width(); ++x)
            columns += CountOf(picture, colour, {x, 0, 1, picture.height()}) > 0;
        return columns;
    }

    // Two words that stand in two rows once lines are wrapped.
    void Wrap()
    {
        m_engine.SetText(std::u16string(40, u'x') + u' ' + std::u16string(40, u'y'));
        m_engine.Send(msg::SetWrapMode, 1);
        Picture();
        ASSERT_EQ(m_engine.Send(msg::WrapCount, 0), 2);
    }
};

} // namespace

// The window's text is drawn into memory by the widget system in any case.
TEST_F(TextPicture, IsTheSameHoweverItIsDrawn)
{
    m_engine.SetText(u"one \u4e2d two\nthree");
    const QImage picture = Picture();
    ASSERT_GT(CountOf(picture, 0), 0);
    for (const LRESULT is : {1, 0}) {
        m_engine.Send(msg::SetBufferedDraw, static_cast<WPARAM>(is));
        EXPECT_EQ(m_engine.Send(msg::GetBufferedDraw), is);
        m_engine.Send(msg::SetTwoPhaseDraw, static_cast<WPARAM>(is));
        EXPECT_EQ(m_engine.Send(msg::GetTwoPhaseDraw), is);
        EXPECT_EQ(Picture(), picture) << is;
    }
}

TEST_F(TextPicture, IsTheSameWhateverIsKeptOfItsLayout)
{
    m_engine.SetText(u"one \u4e2d two\nthree\n");
    const QImage picture = Picture();
    for (WPARAM mode = 0; mode <= 3; ++mode) {
        m_engine.Send(msg::SetLayoutCache, mode);
        EXPECT_EQ(m_engine.Send(msg::GetLayoutCache), static_cast<LRESULT>(mode));
        EXPECT_EQ(Picture(), picture) << mode;
        m_engine.Send(msg::InsertText, 0, u"x");
        EXPECT_NE(Picture(), picture) << mode;
        m_engine.Send(msg::Undo);
    }
}

// No screen shares a table of colours any more.
TEST_F(TextPicture, HasAllColoursWithoutAPalette)
{
    m_engine.SetText(u"text");
    const QImage picture = Picture();
    m_engine.Send(msg::SetUsePalette, 1);
    EXPECT_EQ(m_engine.Send(msg::GetUsePalette), 0);
    EXPECT_EQ(Picture(), picture);
}

TEST_F(TextPicture, HasAScrollBarBelowUnlessItIsTakenOff)
{
    m_engine.Parent().GetSafeHwnd()->show();
    m_engine.SetText(std::u16string(500, u'x'));
    m_engine.Send(msg::SetScrollWidth, 5000);
    m_engine.Window()->grab();
    const int height = Viewport()->height();
    EXPECT_EQ(m_engine.Send(msg::GetHScrollBar), 1);
    EXPECT_LT(height, 300);
    m_engine.Send(msg::SetHScrollBar, 0);
    m_engine.Window()->grab();
    EXPECT_EQ(m_engine.Send(msg::GetHScrollBar), 0);
    EXPECT_EQ(Viewport()->height(), 300);
    m_engine.Send(msg::SetHScrollBar, 1);
    m_engine.Window()->grab();
    EXPECT_EQ(Viewport()->height(), height);
}

TEST_F(TextPicture, HasAScrollBarOnTheRightUnlessItIsTakenOff)
{
    m_engine.Parent().GetSafeHwnd()->show();
    m_engine.SetText(LinesOf(100));
    ASSERT_TRUE(QTest::qWaitFor([this] { return Viewport()->width() < 400; }));
    const int width = Viewport()->width();
    EXPECT_EQ(m_engine.Send(msg::GetVScrollBar), 1);
    m_engine.Send(msg::SetVScrollBar, 0);
    EXPECT_EQ(m_engine.Send(msg::GetVScrollBar), 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Viewport()->width() == 400; }));
    m_engine.Send(msg::SetVScrollBar, 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Viewport()->width() == width; }));
}

TEST_F(TextPicture, IsScrolledAsFarAsItsWidth)
{
    m_engine.SetText(u"short");
    m_engine.Send(msg::SetScrollWidth, 3000);
    EXPECT_EQ(m_engine.Send(msg::GetScrollWidth), 3000);
    m_engine.Window()->grab();
    const QScrollBar* bar = Area()->horizontalScrollBar();
    EXPECT_EQ(bar->maximum() + bar->pageStep(), 3000);
}

TEST_F(TextPicture, HasAnEdgeInItsColour)
{
    constexpr int kColumn = 10;
    m_engine.Send(msg::SetMarginLeft, 0, LPARAM{5});
    m_engine.Send(msg::SetEdgeColumn, kColumn);
    m_engine.Send(msg::SetEdgeColor, kRed);
    EXPECT_EQ(m_engine.Send(msg::GetEdgeColor), LRESULT{kRed});
    EXPECT_EQ(ColumnsOf(kRedDot), 0);
    m_engine.Send(msg::SetEdgeMode, 1);
    EXPECT_EQ(ColumnsOf(kRedDot), 1);
    const int at = 5 + ColumnAt(kColumn);
    EXPECT_EQ(CountOf(kRedDot, {at - 1, 0, 4, 300}), Viewport()->height());
}

TEST_F(TextPicture, ShowsControlCharactersByTheirNamesOrByASign)
{
    m_engine.SetText(u"\x01");
    const auto widthOf = [this] { return m_engine.Send(msg::PointXFromPosition, 0, LPARAM{1}); };
    const LRESULT named = widthOf();
    EXPECT_EQ(m_engine.Send(msg::GetControlCharSymbol), 0);
    const QImage picture = Picture();
    m_engine.Send(msg::SetControlCharSymbol, '#');
    EXPECT_EQ(m_engine.Send(msg::GetControlCharSymbol), '#');
    EXPECT_LT(widthOf(), named);
    EXPECT_NE(Picture(), picture);
    m_engine.Send(msg::SetControlCharSymbol, 0);
    EXPECT_EQ(Picture(), picture);
}

TEST_F(TextPicture, ShowsSpacesInTheirColours)
{
    m_engine.SetText(u"a    b");
    m_engine.Send(msg::SetWhitespaceFore, 1, LPARAM{kRed});
    EXPECT_EQ(CountOf(kRedDot), 0);
    m_engine.Send(msg::SetViewWS, 1);
    EXPECT_GE(CountOf(kRedDot), 4); // a dot each
    m_engine.Send(msg::SetWhitespaceFore, 0, LPARAM{kRed});
    EXPECT_EQ(CountOf(kRedDot), 0);
    m_engine.Send(msg::SetWhitespaceBack, 1, LPARAM{kRed});
    EXPECT_GT(CountOf(kRedDot), ColumnAt(4) * LineHeight() / 2);
    m_engine.Send(msg::SetWhitespaceBack, 0, LPARAM{kRed});
    EXPECT_EQ(CountOf(kRedDot), 0);
}

TEST_F(TextPicture, HasACaretAsWideAsItIsTold)
{
    m_engine.Send(msg::SetCaretFore, kRed);
    m_engine.Send(msg::SetFocus, 1);
    EXPECT_EQ(m_engine.Send(msg::GetFocus), 1);
    for (const int width : {1, 2, 3}) {
        m_engine.Send(msg::SetCaretWidth, static_cast<WPARAM>(width));
        EXPECT_EQ(m_engine.Send(msg::GetCaretWidth), width);
        EXPECT_EQ(ColumnsOf(kRedDot), width);
    }
    m_engine.Send(msg::SetCaretWidth, 0);
    EXPECT_EQ(ColumnsOf(kRedDot), 0);
    m_engine.Send(msg::SetCaretWidth, 1);
    m_engine.Send(msg::SetFocus, 0);
    EXPECT_EQ(m_engine.Send(msg::GetFocus), 0);
    EXPECT_EQ(ColumnsOf(kRedDot), 0);
}

TEST_F(TextPicture, HasACaretThatBlinksAsFastAsItIsTold)
{
    m_engine.Send(msg::SetCaretFore, kRed);
    m_engine.Send(msg::SetCaretPeriod, 3);
    EXPECT_EQ(m_engine.Send(msg::GetCaretPeriod), 3);
    m_engine.Send(msg::SetFocus, 1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return ColumnsOf(kRedDot) == 0; }));
    EXPECT_TRUE(QTest::qWaitFor([this] { return ColumnsOf(kRedDot) == 1; }));
}

TEST_F(TextPicture, IsEnlargedAndReduced)
{
    m_engine.SetText(u"text");
    const int height = LineHeight();
    m_engine.Send(msg::ZoomIn);
    m_engine.Send(msg::ZoomIn);
    EXPECT_EQ(m_engine.Send(msg::GetZoom), 2);
    EXPECT_GT(LineHeight(), height);
    m_engine.Send(msg::ZoomOut);
    m_engine.Send(msg::ZoomOut);
    EXPECT_EQ(LineHeight(), height);
    m_engine.Send(msg::ZoomOut);
    EXPECT_EQ(m_engine.Send(msg::GetZoom), -1);
    EXPECT_LT(LineHeight(), height);
}

TEST_F(TextPicture, KnowsThePlaceUnderAPoint)
{
    m_engine.Send(msg::SetMarginLeft, 0, LPARAM{5});
    m_engine.SetText(u"abcdef\na\U0001F600cdef\n");
    const auto at = [this](UINT number, int column, int line) {
        const int x = 5 + ColumnAt(column + 0.25);
        const int y = line * LineHeight() + LineHeight() / 2;
        return m_engine.Send(number, static_cast<WPARAM>(x), LPARAM{y});
    };
    for (const UINT number : {msg::PositionFromPoint, msg::PositionFromPointClose}) {
        EXPECT_EQ(at(number, 0, 0), 0);
        EXPECT_EQ(at(number, 3, 0), 3);
        EXPECT_EQ(at(number, 1, 1), 8);
    }
    EXPECT_EQ(at(msg::PositionFromPoint, 30, 0), 6);
    EXPECT_EQ(at(msg::PositionFromPointClose, 30, 0), -1);
    EXPECT_EQ(at(msg::PositionFromPoint, 0, 12), 15); // the end of the text
    EXPECT_EQ(at(msg::PositionFromPointClose, 0, 12), -1);
}

TEST_F(TextPicture, CountsTheRowsOfAWrappedLine)
{
    Wrap();
    m_engine.Send(msg::SetWrapMode, 0);
    Picture();
    EXPECT_EQ(m_engine.Send(msg::WrapCount, 0), 1);
}

TEST_F(TextPicture, IndentsTheRowsOfAWrappedLine)
{
    Wrap();
    const auto startOfRow = [this] {
        return m_engine.Send(msg::PointXFromPosition, 0, LPARAM{41});
    };
    EXPECT_EQ(m_engine.Send(msg::GetWrapStartIndent), 0);
    const LRESULT before = startOfRow();
    m_engine.Send(msg::SetWrapStartIndent, 3);
    EXPECT_EQ(m_engine.Send(msg::GetWrapStartIndent), 3);
    EXPECT_NEAR(startOfRow(), before + ColumnAt(3), 1);
}

TEST_F(TextPicture, MarksWrappedLinesAtTheEndOrTheStartOfARow)
{
    constexpr WPARAM kEnd = 1;
    constexpr WPARAM kStart = 2;
    Wrap();
    const QImage plain = Picture();
    const int border = Viewport()->width() - 12;
    const auto differs = [&](const QRect& where) {
        return Picture().copy(where) != plain.copy(where);
    };
    const QRect endOfRow(border, 0, 12, LineHeight());
    const QRect startOfNext(0, LineHeight(), 12, LineHeight());
    m_engine.Send(msg::SetWrapVisualFlags, kEnd);
    EXPECT_EQ(m_engine.Send(msg::GetWrapVisualFlags), LRESULT{kEnd});
    EXPECT_TRUE(differs(endOfRow));
    EXPECT_FALSE(differs(startOfNext));
    m_engine.Send(msg::SetWrapVisualFlags, kStart);
    EXPECT_EQ(m_engine.Send(msg::GetWrapVisualFlags), LRESULT{kStart});
    EXPECT_FALSE(differs(endOfRow));
    EXPECT_TRUE(differs(startOfNext));
}

TEST_F(TextPicture, MarksWrappedLinesBesideTheTextOrAtTheBorder)
{
    constexpr WPARAM kEnd = 1;
    Wrap();
    m_engine.Send(msg::SetWrapVisualFlags, kEnd);
    const int behindText = 2 + ColumnAt(41);
    const auto inkNearText = [&] {
        const QImage picture = Picture();
        int ink = 0;
        for (int y = 0; y < LineHeight(); ++y) {
            for (int x = behindText; x < behindText + ColumnAt(2); ++x)
                ink += picture.pixel(x, y) != picture.pixel(picture.width() - 1, 200);
        }
        return ink;
    };
    EXPECT_EQ(m_engine.Send(msg::GetWrapVisualFlagsLocation), 0);
    EXPECT_EQ(inkNearText(), 0);
    m_engine.Send(msg::SetWrapVisualFlagsLocation, kEnd);
    EXPECT_EQ(m_engine.Send(msg::GetWrapVisualFlagsLocation), LRESULT{kEnd});
    EXPECT_GT(inkNearText(), 0);
}
