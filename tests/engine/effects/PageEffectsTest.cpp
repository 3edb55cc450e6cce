// SPDX-License-Identifier: GPL-3.0-or-later
// Pages and scrolling: which line is the first that is seen, and where the caret goes with it.
#include "tests/engine/effects/EffectsFixture.h"

namespace msg = engine::message;

namespace {

constexpr int kLines = 200;
constexpr int kMiddle = 100; // line in which the caret begins, the first that is seen

class Pages : public Effects
{
protected:
    Pages()
    {
        m_engine.SetText(LinesOf(kLines));
        Begin();
    }

    void Begin()
    {
        m_engine.Send(msg::GotoLine, kMiddle);
        m_engine.Send(msg::LineScroll, 0, kMiddle - TopLine());
    }

    long CaretLine() const
    {
        return m_engine.Send(msg::LineFromPosition, static_cast<WPARAM>(Caret()));
    }
    long AnchorLine() const
    {
        const auto anchor = static_cast<WPARAM>(m_engine.Send(msg::GetAnchor));
        return m_engine.Send(msg::LineFromPosition, anchor);
    }
    // One line of the page before is seen again.
    int Step() const { return WholeLines() - 1; }
};

} // namespace

TEST_F(Pages, GoDownWithTheCaret)
{
    m_engine.Send(msg::PageDown);
    EXPECT_EQ(CaretLine(), kMiddle + Step());
    EXPECT_EQ(AnchorLine(), kMiddle + Step());
    EXPECT_EQ(TopLine(), kMiddle + Step());
}

TEST_F(Pages, GoUpWithTheCaret)
{
    m_engine.Send(msg::PageUp);
    EXPECT_EQ(CaretLine(), kMiddle - Step());
    EXPECT_EQ(AnchorLine(), kMiddle - Step());
    EXPECT_EQ(TopLine(), kMiddle - Step());
}

TEST_F(Pages, AreSelectedDownAndUp)
{
    m_engine.Send(msg::PageDownExtend);
    EXPECT_EQ(CaretLine(), kMiddle + Step());
    EXPECT_EQ(AnchorLine(), kMiddle);
    Begin();
    m_engine.Send(msg::PageUpExtend);
    EXPECT_EQ(CaretLine(), kMiddle - Step());
    EXPECT_EQ(AnchorLine(), kMiddle);
}

TEST_F(Pages, AreSelectedAsARectangle)
{
    m_engine.Send(msg::CharRightRectExtend);
    m_engine.Send(msg::PageDownRectExtend);
    EXPECT_EQ(CaretLine(), kMiddle + Step());
    for (const long line : {0, 3, Step()})
        EXPECT_EQ(SelectedOfLine(kMiddle + line), u"l");
    m_engine.Send(msg::PageUpRectExtend);
    EXPECT_EQ(SelectedOfLine(kMiddle), u"l");
    EXPECT_EQ(SelectedOfLine(kMiddle + 3), u"");
}

TEST_F(Pages, EndWithTheText)
{
    for (int page = 0; page < kLines; ++page)
        m_engine.Send(msg::PageDown);
    EXPECT_EQ(CaretLine(), kLines); // behind the last line end
    for (int page = 0; page < kLines; ++page)
        m_engine.Send(msg::PageUp);
    EXPECT_EQ(CaretLine(), 0);
    EXPECT_EQ(TopLine(), 0);
}

TEST_F(Pages, ThatStutterGoToTheEdgeOfTheirOwnPageFirst)
{
    m_engine.Send(msg::StutteredPageDown);
    EXPECT_EQ(TopLine(), kMiddle);
    const long edge = CaretLine();
    EXPECT_GE(edge, kMiddle + Step() - 1);
    EXPECT_LE(edge, kMiddle + Step());
    m_engine.Send(msg::StutteredPageDown);
    EXPECT_EQ(TopLine(), kMiddle + Step());
    EXPECT_EQ(CaretLine(), edge + Step());
    m_engine.Send(msg::StutteredPageUp);
    EXPECT_EQ(TopLine(), kMiddle + Step());
    EXPECT_LE(CaretLine(), TopLine() + 1);
    m_engine.Send(msg::StutteredPageUp);
    EXPECT_EQ(TopLine(), kMiddle);
}

TEST_F(Pages, ThatStutterAreSelected)
{
    m_engine.Send(msg::StutteredPageDownExtend);
    const long edge = CaretLine();
    EXPECT_EQ(TopLine(), kMiddle);
    EXPECT_GT(edge, kMiddle);
    EXPECT_EQ(AnchorLine(), kMiddle);
    m_engine.Send(msg::StutteredPageUpExtend);
    EXPECT_LE(CaretLine(), kMiddle + 1);
    EXPECT_EQ(AnchorLine(), kMiddle);
    m_engine.Send(msg::StutteredPageUpExtend);
    EXPECT_LT(CaretLine(), kMiddle);
    EXPECT_EQ(AnchorLine(), kMiddle);
}

TEST_F(Pages, ScrollByALineAndKeepTheCaretInView)
{
    m_engine.Send(msg::LineScrollDown);
    EXPECT_EQ(TopLine(), kMiddle + 1);
    EXPECT_EQ(CaretLine(), kMiddle + 1);
    m_engine.Send(msg::LineScrollUp);
    m_engine.Send(msg::LineScrollUp);
    EXPECT_EQ(TopLine(), kMiddle - 1);
    EXPECT_EQ(CaretLine(), kMiddle + 1);
}

TEST_F(Pages, ComeBackToTheCaret)
{
    m_engine.Send(msg::LineScroll, 0, LPARAM{-kMiddle});
    ASSERT_EQ(TopLine(), 0);
    m_engine.Send(msg::ScrollCaret);
    EXPECT_LE(TopLine(), kMiddle);
    EXPECT_GT(TopLine() + WholeLines(), kMiddle);
    EXPECT_EQ(CaretLine(), kMiddle);
}

TEST_F(Pages, TakeTheCaretAlongWhenAsked)
{
    m_engine.Send(msg::LineScroll, 0, LPARAM{-50});
    ASSERT_EQ(CaretLine(), kMiddle);
    m_engine.Send(msg::MoveCaretInsideView);
    EXPECT_GE(CaretLine(), TopLine());
    EXPECT_LT(CaretLine(), TopLine() + WholeLines());
}

TEST_F(Pages, EndWithTheLastLineUnlessTheyMayGoOn)
{
    m_engine.Send(msg::SetEndAtLastLine, 1);
    EXPECT_EQ(m_engine.Send(msg::GetEndAtLastLine), 1);
    m_engine.Send(msg::LineScroll, 0, kLines);
    EXPECT_EQ(TopLine(), kLines + 1 - WholeLines());
    m_engine.Send(msg::SetEndAtLastLine, 0);
    EXPECT_EQ(m_engine.Send(msg::GetEndAtLastLine), 0);
    m_engine.Send(msg::LineScroll, 0, kLines);
    EXPECT_EQ(TopLine(), kLines);
}

TEST_F(Pages, KeepLinesAroundTheCaretAsThePolicySays)
{
    constexpr WPARAM kSlopStrict = 1 | 4;
    m_engine.Send(msg::SetYCaretPolicy, kSlopStrict, LPARAM{5});
    m_engine.Send(msg::GotoLine, kMiddle + 2);
    EXPECT_EQ(TopLine(), kMiddle - 3); // five lines above it are seen
    m_engine.Send(msg::SetYCaretPolicy, 0, LPARAM{0});
    m_engine.Send(msg::GotoLine, kMiddle - 3);
    EXPECT_EQ(TopLine(), kMiddle - 3);
}

TEST_F(Pages, ShowALineWithRoomAroundItAsThePolicySays)
{
    constexpr WPARAM kSlopStrict = 1 | 4;
    m_engine.Send(msg::SetVisiblePolicy, kSlopStrict, LPARAM{4});
    m_engine.Send(msg::EnsureVisibleEnforcePolicy, 20);
    EXPECT_EQ(TopLine(), 16);
    m_engine.Send(msg::SetVisiblePolicy, kSlopStrict, LPARAM{2});
    m_engine.Send(msg::EnsureVisibleEnforcePolicy, 17);
    EXPECT_EQ(TopLine(), 15);
}

TEST_F(Pages, ScrollSidewardsAsFarAsThePolicySays)
{
    constexpr WPARAM kSlopStrict = 1 | 4;
    m_engine.SetText(std::u16string(400, u'x'));
    const auto offsetFor = [this](LPARAM slop) {
        m_engine.Send(msg::SetXCaretPolicy, kSlopStrict, slop);
        m_engine.Send(msg::GotoPos, 0);
        m_engine.Send(msg::GotoPos, 200);
        return static_cast<int>(m_engine.Send(msg::GetXOffset));
    };
    EXPECT_NEAR(offsetFor(150) - offsetFor(50), 100, 2);
}
