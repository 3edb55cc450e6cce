// SPDX-License-Identifier: GPL-3.0-or-later
// Rectangles: which columns of which lines they take.
#include "tests/engine/effects/EffectsFixture.h"

namespace msg = engine::message;

namespace {

class Rectangles : public Effects
{
protected:
    Rectangles() { m_engine.SetText(u"  abcdef\n  ghijkl\n  mnopqr\n"); }

    // From a column of a line, two columns to the right.
    void Begin(long line, long column)
    {
        const long start = m_engine.Send(msg::PositionFromLine, static_cast<WPARAM>(line));
        m_engine.Send(msg::GotoPos, static_cast<WPARAM>(start + column));
        m_engine.Send(msg::CharRightRectExtend);
        m_engine.Send(msg::CharRightRectExtend);
    }
    std::vector<std::u16string> Selected() const
    {
        return {SelectedOfLine(0), SelectedOfLine(1), SelectedOfLine(2)};
    }
};

using Lines = std::vector<std::u16string>;

} // namespace

TEST_F(Rectangles, GrowAndShrinkByAColumn)
{
    Begin(0, 3);
    EXPECT_EQ(Selected(), (Lines{u"bc", u"", u""}));
    m_engine.Send(msg::CharLeftRectExtend);
    EXPECT_EQ(Selected(), (Lines{u"b", u"", u""}));
    m_engine.Send(msg::CharLeftRectExtend);
    m_engine.Send(msg::CharLeftRectExtend);
    EXPECT_EQ(Selected(), (Lines{u"a", u"", u""})); // to the other side
}

TEST_F(Rectangles, GrowDownAndUp)
{
    Begin(1, 3);
    m_engine.Send(msg::LineDownRectExtend);
    EXPECT_EQ(Selected(), (Lines{u"", u"hi", u"no"}));
    m_engine.Send(msg::LineUpRectExtend);
    m_engine.Send(msg::LineUpRectExtend);
    EXPECT_EQ(Selected(), (Lines{u"bc", u"hi", u""}));
}

TEST_F(Rectangles, ReachToTheStartOfTheLines)
{
    Begin(0, 3);
    m_engine.Send(msg::LineDownRectExtend);
    m_engine.Send(msg::HomeRectExtend);
    EXPECT_EQ(Selected(), (Lines{u"  a", u"  g", u""}));
}

TEST_F(Rectangles, ReachToTheIndentationOfTheLines)
{
    Begin(0, 4);
    m_engine.Send(msg::LineDownRectExtend);
    m_engine.Send(msg::VCHomeRectExtend);
    EXPECT_EQ(Selected(), (Lines{u"ab", u"gh", u""}));
}

TEST_F(Rectangles, ReachToTheEndOfTheLines)
{
    Begin(0, 4);
    m_engine.Send(msg::LineDownRectExtend);
    m_engine.Send(msg::LineEndRectExtend);
    EXPECT_EQ(Selected(), (Lines{u"cdef", u"ijkl", u""}));
}

TEST_F(Rectangles, TellWhatOfEachLineIsSelected)
{
    Begin(0, 3);
    m_engine.Send(msg::LineDownRectExtend);
    EXPECT_EQ(m_engine.Send(msg::GetLineSelStartPosition, 1), 12);
    EXPECT_EQ(m_engine.Send(msg::GetLineSelEndPosition, 1), 14);
    EXPECT_EQ(m_engine.Send(msg::GetLineSelStartPosition, 2), -1);
    EXPECT_EQ(m_engine.Send(msg::GetLineSelEndPosition, 2), -1);
}

TEST_F(Rectangles, AreNoneWhereTheSelectionRunsOn)
{
    m_engine.Send(msg::SetSel, 4, LPARAM{12});
    EXPECT_EQ(Selected(), (Lines{u"cdef", u"  g", u""})); // a line's end is not of it
}

TEST_F(Rectangles, AreCutOutOfTheirLines)
{
    Begin(0, 3);
    m_engine.Send(msg::LineDownRectExtend);
    m_engine.Send(msg::Clear);
    EXPECT_EQ(m_engine.Text(), u"  adef\n  gjkl\n  mnopqr\n");
}
