// SPDX-License-Identifier: GPL-3.0-or-later
// What styles, hotspots, margins and folds look like, by the pixels of a picture.
#include "tests/engine/effects/EffectsFixture.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTest>

namespace msg = engine::message;

namespace {

constexpr int kDefaultStyle = 32;
constexpr COLORREF kRed = 0x0000FF;
constexpr COLORREF kBlue = 0xFF0000;
constexpr QRgb kRedDot = 0xFF0000;
constexpr QRgb kBlueDot = 0x0000FF;

class Styles : public Effects
{
protected:
    // All of a text in style 1.
    void Style(const std::u16string& text)
    {
        m_engine.SetText(text);
        m_engine.Send(msg::StartStyling, 0, LPARAM{0xFF});
        m_engine.Send(msg::SetStyling, text.size(), LPARAM{1});
    }

    QRect RowOf(int line) const { return {0, line * LineHeight(), 400, LineHeight()}; }
};

class Hotspots : public Styles
{
protected:
    Hotspots()
    {
        Style(u"hotspot\nof two lines");
        m_engine.Send(msg::StyleSetHotSpot, 1, LPARAM{1});
        m_engine.Send(msg::SetHotspotActiveUnderline, 0);
    }

    void PointAt(int line)
    {
        const QPointF at(ColumnAt(3), line * LineHeight() + LineHeight() / 2);
        QMouseEvent move(QEvent::MouseMove, at, Viewport()->mapToGlobal(at), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(Viewport(), &move);
    }
};

class Margins : public Styles
{
protected:
    static constexpr int kMargin = 2;
    static constexpr int kWidth = 20;

    Margins()
    {
        m_engine.SetText(u"a\nb\nc\n");
        m_engine.Send(msg::SetMarginWidthN, kMargin, LPARAM{kWidth});
    }

    QRect BesideLine(int line) const { return {0, line * LineHeight(), kWidth, LineHeight()}; }
};

class Folds : public Styles
{
protected:
    static constexpr int kBase = 0x400;
    static constexpr int kHeader = 0x2000;

    Folds()
    {
        m_engine.SetText(u"a\nb\nc\nd\n");
        const int levels[] = {kBase | kHeader, (kBase + 1) | kHeader, kBase + 2, kBase};
        for (int line = 0; line < 4; ++line)
            m_engine.Send(msg::SetFoldLevel, static_cast<WPARAM>(line), LPARAM{levels[line]});
    }
};

} // namespace

TEST_F(Styles, GoBackToTheirBeginning)
{
    Style(u"MMM");
    m_engine.Send(msg::StyleSetFore, kDefaultStyle, LPARAM{kRed});
    m_engine.Send(msg::StyleSetSize, kDefaultStyle, LPARAM{40});
    m_engine.Send(msg::StyleClearAll);
    const int height = LineHeight();
    ASSERT_GT(CountOf(kRedDot), 0);
    m_engine.Send(msg::StyleResetDefault);
    m_engine.Send(msg::StyleClearAll);
    EXPECT_EQ(CountOf(kRedDot), 0);
    EXPECT_LT(LineHeight(), height / 2);
}

TEST_F(Styles, ShowTextInAnotherCaseThanItHas)
{
    Style(u"MiXed");
    const QImage mixed = Picture();
    m_engine.Send(msg::StyleSetCase, 1, LPARAM{1});
    const QImage upper = Picture();
    m_engine.Send(msg::StyleSetCase, 1, LPARAM{2});
    const QImage lower = Picture();
    EXPECT_EQ(m_engine.Text(), u"MiXed");
    m_engine.Send(msg::StyleSetCase, 1, LPARAM{0});
    EXPECT_EQ(Picture(), mixed);
    Style(u"MIXED");
    EXPECT_EQ(Picture(), upper);
    Style(u"mixed");
    EXPECT_EQ(Picture(), lower);
    EXPECT_NE(upper, lower);
}

// Every text is Unicode, so that no set of characters chooses what a byte looks like.
TEST_F(Styles, ShowEveryCharacterWhicheverSetTheyName)
{
    Style(u"\u00e9\u0436\u4e2d");
    const QImage before = Picture();
    constexpr int kRussian = 204;
    m_engine.Send(msg::StyleSetCharacterSet, 1, LPARAM{kRussian});
    EXPECT_EQ(Picture(), before);
    EXPECT_EQ(m_engine.Text(), u"\u00e9\u0436\u4e2d");
}

TEST_F(Styles, HideTheirTextAndTakeNoRoom)
{
    Style(u"abc");
    m_engine.Send(msg::StyleSetFore, 1, LPARAM{kRed});
    ASSERT_GT(CountOf(kRedDot), 0);
    const LRESULT start = m_engine.Send(msg::PointXFromPosition, 0, LPARAM{0});
    m_engine.Send(msg::StyleSetVisible, 1, LPARAM{0});
    EXPECT_EQ(CountOf(kRedDot), 0);
    EXPECT_EQ(m_engine.Send(msg::PointXFromPosition, 0, LPARAM{3}), start);
    m_engine.Send(msg::StyleSetVisible, 1, LPARAM{1});
    EXPECT_NEAR(m_engine.Send(msg::PointXFromPosition, 0, LPARAM{3}), start + ColumnAt(3), 1);
}

TEST_F(Hotspots, HaveTheirOwnTextColourUnderTheMouse)
{
    m_engine.Send(msg::SetHotspotActiveFore, 1, LPARAM{kRed});
    EXPECT_EQ(CountOf(kRedDot), 0);
    PointAt(0);
    EXPECT_GT(CountOf(kRedDot), 0);
    m_engine.Send(msg::SetHotspotActiveFore, 0, LPARAM{kRed});
    EXPECT_EQ(CountOf(kRedDot), 0);
}

TEST_F(Hotspots, HaveTheirOwnGroundUnderTheMouse)
{
    m_engine.Send(msg::SetHotspotActiveBack, 1, LPARAM{kBlue});
    EXPECT_EQ(CountOf(kBlueDot), 0);
    PointAt(0);
    EXPECT_GT(CountOf(kBlueDot, RowOf(0)), ColumnAt(3) * LineHeight());
    m_engine.Send(msg::SetHotspotActiveBack, 0, LPARAM{kBlue});
    EXPECT_EQ(CountOf(kBlueDot), 0);
}

TEST_F(Hotspots, AreUnderlinedUnderTheMouse)
{
    PointAt(0);
    const QImage plain = Picture();
    m_engine.Send(msg::SetHotspotActiveUnderline, 1);
    const QImage underlined = Picture();
    // A line as long as seven characters that was not there.
    EXPECT_GE(CountOf(underlined, 0), CountOf(plain, 0) + ColumnAt(6));
}

TEST_F(Hotspots, GoOnIntoTheNextLineUnlessTheyAreOfOne)
{
    m_engine.Send(msg::SetHotspotActiveBack, 1, LPARAM{kBlue});
    m_engine.Send(msg::SetHotspotSingleLine, 0);
    PointAt(0);
    EXPECT_GT(CountOf(kBlueDot, RowOf(0)), 0);
    EXPECT_GT(CountOf(kBlueDot, RowOf(1)), 0);
    m_engine.Send(msg::SetHotspotSingleLine, 1);
    PointAt(10); // behind the text
    PointAt(0);
    EXPECT_GT(CountOf(kBlueDot, RowOf(0)), 0);
    EXPECT_EQ(CountOf(kBlueDot, RowOf(1)), 0);
}

TEST_F(Margins, ShowTheMarkersOfTheirMask)
{
    m_engine.Send(msg::MarkerSetBack, 4, LPARAM{kRed});
    m_engine.Send(msg::MarkerAdd, 1, LPARAM{4});
    m_engine.Send(msg::SetMarginMaskN, kMargin, LPARAM{1 << 4});
    EXPECT_EQ(m_engine.Send(msg::GetMarginMaskN, kMargin), 1 << 4);
    EXPECT_GT(CountOf(kRedDot, BesideLine(1)), 0);
    EXPECT_EQ(CountOf(kRedDot, BesideLine(0)), 0);
    m_engine.Send(msg::SetMarginMaskN, kMargin, LPARAM{1 << 5});
    EXPECT_EQ(m_engine.Send(msg::GetMarginMaskN, kMargin), 1 << 5);
    EXPECT_EQ(CountOf(kRedDot, BesideLine(1)), 0);
}

TEST_F(Margins, ShowNumbersIfThatIsTheirType)
{
    constexpr int kLineNumbers = 33; // a style
    constexpr int kNumbers = 1;      // a type
    m_engine.Send(msg::StyleSetFore, kLineNumbers, LPARAM{kRed});
    EXPECT_EQ(m_engine.Send(msg::GetMarginTypeN, kMargin), 0);
    EXPECT_EQ(CountOf(kRedDot, BesideLine(1)), 0);
    m_engine.Send(msg::SetMarginTypeN, kMargin, LPARAM{kNumbers});
    EXPECT_EQ(m_engine.Send(msg::GetMarginTypeN, kMargin), kNumbers);
    EXPECT_GT(CountOf(kRedDot, BesideLine(1)), 0);
}

TEST_F(Margins, TellOfAClickOrSelectItsLine)
{
    const QPoint besideTheSecond(kWidth / 2, LineHeight() * 3 / 2);
    m_engine.Send(msg::SetMarginSensitiveN, kMargin, LPARAM{1});
    EXPECT_EQ(m_engine.Send(msg::GetMarginSensitiveN, kMargin), 1);
    QTest::mouseClick(Viewport(), Qt::LeftButton, {}, besideTheSecond);
    const auto clicks = m_engine.Parent().Of(notify::MarginClick);
    ASSERT_EQ(clicks.size(), 1u);
    EXPECT_EQ(clicks[0].record.position, 2);
    EXPECT_EQ(clicks[0].record.margin, kMargin);
    EXPECT_EQ(Placed(), u"|a\nb\nc\n");
    m_engine.Send(msg::SetMarginSensitiveN, kMargin, LPARAM{0});
    EXPECT_EQ(m_engine.Send(msg::GetMarginSensitiveN, kMargin), 0);
    QTest::mouseClick(Viewport(), Qt::LeftButton, {}, besideTheSecond);
    EXPECT_EQ(m_engine.Parent().Of(notify::MarginClick).size(), 1u);
    EXPECT_EQ(SelectedOfLine(1), u"b");
}

TEST_F(Margins, OfFoldsAreAMixtureOfTwoColours)
{
    m_engine.Send(msg::SetMarginMaskN, kMargin, LPARAM{static_cast<int>(0xFE000000)});
    m_engine.Send(msg::SetFoldMarginColor, 1, LPARAM{kRed});
    m_engine.Send(msg::SetFoldMarginHiColor, 1, LPARAM{kBlue});
    const int dots = kWidth * LineHeight();
    EXPECT_NEAR(CountOf(kRedDot, BesideLine(1)), dots / 2, dots / 10);
    EXPECT_NEAR(CountOf(kBlueDot, BesideLine(1)), dots / 2, dots / 10);
    m_engine.Send(msg::SetFoldMarginHiColor, 1, LPARAM{kRed});
    EXPECT_GT(CountOf(kRedDot, BesideLine(1)), dots * 9 / 10);
}

TEST_F(Margins, BesideTheTextOnTheRightTakeRoomFromWrappedLines)
{
    m_engine.Send(msg::SetWrapMode, 1);
    m_engine.SetText(std::u16string(20, u'x') + u' ' + std::u16string(20, u'y'));
    Picture();
    EXPECT_EQ(m_engine.Send(msg::WrapCount, 0), 1);
    const int half = Viewport()->width() / 2;
    m_engine.Send(msg::SetMarginRight, 0, LPARAM{half});
    EXPECT_EQ(m_engine.Send(msg::GetMarginRight), half);
    Picture();
    EXPECT_EQ(m_engine.Send(msg::WrapCount, 0), 2);
}

TEST_F(Margins, AreSearchedBackwardForMarkers)
{
    m_engine.Send(msg::MarkerAdd, 0, LPARAM{4});
    m_engine.Send(msg::MarkerAdd, 2, LPARAM{5});
    EXPECT_EQ(m_engine.Send(msg::MarkerPrevious, 3, LPARAM{1 << 4 | 1 << 5}), 2);
    EXPECT_EQ(m_engine.Send(msg::MarkerPrevious, 3, LPARAM{1 << 4}), 0);
    EXPECT_EQ(m_engine.Send(msg::MarkerPrevious, 2, LPARAM{1 << 5}), 2); // the line itself too
    EXPECT_EQ(m_engine.Send(msg::MarkerPrevious, 1, LPARAM{1 << 5}), -1);
}

TEST_F(Folds, HaveParents)
{
    EXPECT_EQ(m_engine.Send(msg::GetFoldParent, 0), -1);
    EXPECT_EQ(m_engine.Send(msg::GetFoldParent, 1), 0);
    EXPECT_EQ(m_engine.Send(msg::GetFoldParent, 2), 1);
    EXPECT_EQ(m_engine.Send(msg::GetFoldParent, 3), -1);
}

TEST_F(Folds, LeaveTheLinesBehindThemToBeSeen)
{
    EXPECT_EQ(m_engine.Send(msg::DocLineFromVisible, 2), 2);
    m_engine.Send(msg::ToggleFold, 1);
    EXPECT_EQ(m_engine.Send(msg::DocLineFromVisible, 2), 3);
    m_engine.Send(msg::ToggleFold, 0);
    EXPECT_EQ(m_engine.Send(msg::DocLineFromVisible, 1), 3);
    EXPECT_EQ(m_engine.Send(msg::DocLineFromVisible, 0), 0);
}

TEST_F(Folds, HaveALineDrawnWhereTheFlagsSay)
{
    constexpr WPARAM kBeforeContracted = 4;
    constexpr WPARAM kAfterContracted = 16;
    m_engine.Send(msg::StyleSetFore, kDefaultStyle, LPARAM{kRed});
    m_engine.Send(msg::ToggleFold, 0);
    const auto edge = [this](int y) { return CountOf(kRedDot, {0, y, 400, 1}); };
    const auto edges = [&](WPARAM flags) {
        m_engine.Send(msg::SetFoldFlags, flags);
        return std::pair(edge(0) > 300, edge(LineHeight() - 1) > 300);
    };
    EXPECT_EQ(edges(0), std::pair(false, false));
    EXPECT_EQ(edges(kBeforeContracted), std::pair(true, false));
    EXPECT_EQ(edges(kAfterContracted), std::pair(false, true));
}
