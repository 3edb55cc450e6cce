// SPDX-License-Identifier: GPL-3.0-or-later
// Marks in and beside the text: markers, braces, guides, the selection, indicators, lines that are
// folded or hidden; by the pixels of a picture.
#include "tests/engine/effects/EffectsFixture.h"

#include <QApplication>
#include <QMouseEvent>

namespace msg = engine::message;

namespace {

constexpr int kDefaultStyle = 32;
constexpr int kBraceStyle = 34;
constexpr int kBadBraceStyle = 35;
constexpr int kNoBrace = -1;
constexpr COLORREF kRed = 0x0000FF;
constexpr COLORREF kBlue = 0xFF0000;
constexpr QRgb kRedDot = 0xFF0000;
constexpr QRgb kBlueDot = 0x0000FF;

class Marks : public Effects
{
protected:
    QRect RowOf(int line) const { return {0, line * LineHeight(), 400, LineHeight()}; }
    // A character in the first line.
    QRect CellAt(int column) const
    {
        return {1 + ColumnAt(column), 0, ColumnAt(1) + 1, LineHeight()};
    }

    void ShowMarkers(int marker)
    {
        m_engine.Send(msg::SetMarginWidthN, 2, LPARAM{20});
        m_engine.Send(msg::SetMarginMaskN, 2, LPARAM{1 << marker});
    }

    // How far below its middle anything of a colour stands in a row, in pixels; -1: nowhere.
    int LowestOf(QRgb colour, int line) const
    {
        const QImage picture = Picture();
        for (int y = (line + 1) * LineHeight() - 1; y >= line * LineHeight(); --y) {
            if (CountOf(picture, colour, {0, y, 400, 1}) > 0)
                return y - line * LineHeight();
        }
        return -1;
    }
};

} // namespace

TEST_F(Marks, OfALineHaveTheirShapeAndColours)
{
    constexpr int kFullSquare = 26;
    constexpr int kCircle = 0;
    ShowMarkers(4);
    m_engine.SetText(u"a\n");
    m_engine.Send(msg::MarkerAdd, 0, LPARAM{4});
    m_engine.Send(msg::MarkerSetBack, 4, LPARAM{kRed});
    m_engine.Send(msg::MarkerSetFore, 4, LPARAM{kBlue});
    m_engine.Send(msg::MarkerDefine, 4, LPARAM{kCircle});
    const int circle = CountOf(kRedDot);
    EXPECT_GT(circle, 0);
    EXPECT_GT(CountOf(kBlueDot), 0); // the line around it
    m_engine.Send(msg::MarkerDefine, 4, LPARAM{kFullSquare});
    EXPECT_GT(CountOf(kRedDot), 2 * circle);
    EXPECT_EQ(CountOf(kBlueDot), 0);
}

TEST_F(Marks, OfALineGoByTheirHandle)
{
    m_engine.SetText(u"a\nb\n");
    const LRESULT first = m_engine.Send(msg::MarkerAdd, 1, LPARAM{4});
    const LRESULT second = m_engine.Send(msg::MarkerAdd, 1, LPARAM{5});
    m_engine.Send(msg::MarkerDeleteHandle, static_cast<WPARAM>(first));
    EXPECT_EQ(m_engine.Send(msg::MarkerGet, 1), 1 << 5);
    EXPECT_EQ(m_engine.Send(msg::MarkerLineFromHandle, static_cast<WPARAM>(first)), -1);
    EXPECT_EQ(m_engine.Send(msg::MarkerLineFromHandle, static_cast<WPARAM>(second)), 1);
}

TEST_F(Marks, OfBracesAreTheirStyles)
{
    m_engine.SetText(u"(ab)");
    m_engine.Send(msg::StyleSetBack, kBraceStyle, LPARAM{kRed});
    m_engine.Send(msg::StyleSetBack, kBadBraceStyle, LPARAM{kBlue});
    EXPECT_EQ(CountOf(kRedDot), 0);
    m_engine.Send(msg::BraceHighlight, 0, LPARAM{3});
    EXPECT_GT(CountOf(kRedDot, CellAt(0)), 0);
    EXPECT_EQ(CountOf(kRedDot, CellAt(1).adjusted(2, 0, -2, 0)), 0);
    EXPECT_GT(CountOf(kRedDot, CellAt(3)), 0);
    m_engine.Send(msg::BraceBadLight, 3);
    EXPECT_EQ(CountOf(kRedDot), 0);
    EXPECT_GT(CountOf(kBlueDot, CellAt(3)), 0);
    m_engine.Send(msg::BraceBadLight, static_cast<WPARAM>(kNoBrace));
    EXPECT_EQ(CountOf(kBlueDot), 0);
}

TEST_F(Marks, OfIndentationStandEveryIndentation)
{
    m_engine.Send(msg::SetIndent, 4);
    m_engine.Send(msg::StyleSetFore, 37, LPARAM{kRed}); // the guides' style
    m_engine.SetText(u"(\n            x\n)");
    const auto guides = [this] {
        const QImage picture = Picture();
        std::vector<int> found;
        for (int column = 0; column < 12; ++column) {
            if (CountOf(picture, kRedDot, {ColumnAt(column), LineHeight(), 3, LineHeight()}) > 0)
                found.push_back(column);
        }
        return found;
    };
    EXPECT_EQ(guides(), std::vector<int>());
    m_engine.Send(msg::SetIndentationGuides, 1);
    EXPECT_EQ(m_engine.Send(msg::GetIndentationGuides), 1);
    EXPECT_EQ(guides(), (std::vector{4, 8}));
    m_engine.Send(msg::StyleSetFore, kBraceStyle, LPARAM{kBlue});
    EXPECT_EQ(CountOf(kBlueDot, RowOf(1)), 0);
    m_engine.Send(msg::BraceHighlight, 0, LPARAM{16}); // between whose lines it is
    m_engine.Send(msg::SetHighlightGuide, 8);
    EXPECT_EQ(m_engine.Send(msg::GetHighlightGuide), 8);
    EXPECT_EQ(guides(), std::vector{4});
    EXPECT_GT(CountOf(kBlueDot, RowOf(1)), 0);
}

TEST_F(Marks, OfTheSelectionHaveItsColours)
{
    m_engine.Send(msg::SetSelFore, 1, LPARAM{kBlue});
    m_engine.Send(msg::SetSelBack, 1, LPARAM{kRed});
    Place(u"aa[MMMM|aa");
    const int cells = ColumnAt(4) * LineHeight();
    EXPECT_GT(CountOf(kRedDot), cells / 3);
    EXPECT_LE(CountOf(kRedDot), cells + 4 * LineHeight());
    EXPECT_GT(CountOf(kBlueDot), 0);
    m_engine.Send(msg::GotoPos, 0);
    EXPECT_EQ(CountOf(kRedDot) + CountOf(kBlueDot), 0);
}

TEST_F(Marks, OfTheCaretsLineFillIt)
{
    Place(u"one\ntw|o\nthree");
    m_engine.Send(msg::SetCaretLineBack, kRed);
    EXPECT_EQ(m_engine.Send(msg::GetCaretLineBack), LRESULT{kRed});
    EXPECT_EQ(CountOf(kRedDot), 0);
    m_engine.Send(msg::SetCaretLineVisible, 1);
    m_engine.Send(msg::SetFocus, 1);
    EXPECT_GT(CountOf(kRedDot, RowOf(1)), 300 * LineHeight());
    EXPECT_EQ(CountOf(kRedDot), CountOf(kRedDot, RowOf(1)));
}

TEST_F(Marks, OfProblemsHaveTheShapeAndColourOfTheirIndicator)
{
    constexpr int kIndicator = 11;
    constexpr int kRoundBox = 7;
    constexpr int kPlainLine = 0;
    m_engine.SetText(u"wrong right");
    m_engine.Send(msg::ErrorsSetIndic, kIndicator);
    ErrorInfo record;
    record.nStart = 0;
    record.nEnd = 5;
    record.nSeverity = problem::Error;
    m_engine.Send(msg::ErrorAdd, 1, &record);
    m_engine.Send(msg::IndicSetStyle, kIndicator, LPARAM{kPlainLine});
    m_engine.Send(msg::IndicSetFore, kIndicator, LPARAM{kRed});
    EXPECT_EQ(m_engine.Send(msg::IndicGetFore, kIndicator), LRESULT{kRed});
    EXPECT_EQ(CountOf(kRedDot), 0);
    m_engine.Send(msg::ErrorsShow, 1);
    EXPECT_NEAR(CountOf(kRedDot), ColumnAt(5), 3); // one pixel high
    m_engine.Send(msg::IndicSetStyle, kIndicator, LPARAM{kRoundBox});
    EXPECT_EQ(m_engine.Send(msg::IndicGetStyle, kIndicator), kRoundBox);
    EXPECT_EQ(CountOf(kRedDot), 0); // it is seen through
}

TEST_F(Marks, OfAStyleAreSlantedUnderlinedAndFilled)
{
    m_engine.SetText(u"lll\nlll");
    m_engine.Send(msg::StyleSetFore, 0, LPARAM{kRed});
    const QImage upright = Picture();
    m_engine.Send(msg::StyleSetItalic, 0, LPARAM{1});
    EXPECT_NE(Picture(), upright);
    m_engine.Send(msg::StyleSetItalic, 0, LPARAM{0});
    EXPECT_EQ(Picture(), upright);
    const int lowest = LowestOf(kRedDot, 0);
    m_engine.Send(msg::StyleSetUnderline, 0, LPARAM{1});
    EXPECT_GT(LowestOf(kRedDot, 0), lowest);
    m_engine.Send(msg::StyleSetUnderline, 0, LPARAM{0});
    m_engine.Send(msg::StyleSetBack, 0, LPARAM{kBlue});
    const QRect behindText(200, 0, 100, LineHeight());
    EXPECT_EQ(CountOf(kBlueDot, behindText), 0);
    m_engine.Send(msg::StyleSetEOLFilled, 0, LPARAM{1});
    EXPECT_EQ(CountOf(kBlueDot, behindText), 100 * LineHeight());
}

TEST_F(Marks, OfHiddenLinesComeBackWithTheLines)
{
    m_engine.SetText(u"a\nb\nc\nd\n");
    m_engine.Send(msg::StyleSetFore, kDefaultStyle, LPARAM{0});
    const QImage all = Picture();
    m_engine.Send(msg::HideLines, 1, LPARAM{2});
    EXPECT_NE(Picture(), all);
    EXPECT_EQ(m_engine.Send(msg::DocLineFromVisible, 1), 3);
    m_engine.Send(msg::ShowLines, 1, LPARAM{2});
    EXPECT_EQ(m_engine.Send(msg::DocLineFromVisible, 1), 1);
    EXPECT_EQ(Picture(), all);
}

TEST_F(Marks, OfAFoldTellWhetherItIsOpen)
{
    constexpr int kHeader = 0x2400;
    constexpr int kInside = 0x401;
    constexpr int kClosedMarker = 30;
    m_engine.SetText(u"a\nb\n");
    m_engine.Send(msg::SetFoldLevel, 0, LPARAM{kHeader});
    m_engine.Send(msg::SetFoldLevel, 1, LPARAM{kInside});
    m_engine.Send(msg::SetMarginWidthN, 2, LPARAM{20});
    m_engine.Send(msg::SetMarginMaskN, 2, LPARAM{static_cast<int>(0xFE000000)});
    m_engine.Send(msg::MarkerSetBack, kClosedMarker, LPARAM{kRed});
    EXPECT_EQ(CountOf(kRedDot), 0);
    m_engine.Send(msg::SetFoldExpanded, 0, LPARAM{0});
    EXPECT_EQ(m_engine.Send(msg::GetFoldExpanded, 0), 0);
    EXPECT_GT(CountOf(kRedDot), 0);
    EXPECT_EQ(m_engine.Send(msg::GetLineVisible, 1), 1); // hiding is a message of its own
}

TEST_F(Marks, OfTheMouseHaveTheShapeThatIsSet)
{
    constexpr WPARAM kWait = 4;
    const auto shape = [this] {
        const QPointF at(50, 5);
        QMouseEvent move(QEvent::MouseMove, at, Viewport()->mapToGlobal(at), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(Viewport(), &move);
        return Viewport()->cursor().shape();
    };
    EXPECT_EQ(shape(), Qt::IBeamCursor);
    m_engine.Send(msg::SetCursor, kWait);
    EXPECT_EQ(m_engine.Send(msg::GetCursor), LRESULT{kWait});
    EXPECT_EQ(shape(), Qt::WaitCursor);
    m_engine.Send(msg::SetCursor, static_cast<WPARAM>(-1));
    EXPECT_EQ(shape(), Qt::IBeamCursor);
}
