// SPDX-License-Identifier: GPL-3.0-or-later
// What the window keeps and tells: undo, selections, indentation, markers, folds; each with what it
// changes.
#include "tests/engine/effects/EffectsFixture.h"

#include <ostream>

namespace msg = engine::message;

namespace {

constexpr COLORREF kRed = 0x0000FF;
constexpr QRgb kRedDot = 0xFF0000;

class States : public Effects
{
protected:
    long XOf(long position) const
    {
        return m_engine.Send(msg::PointXFromPosition, 0, LPARAM{position});
    }
};

struct Edit
{
    const char* name;
    UINT number;
    const char16_t* before;
    const char16_t* after;
};

std::ostream& operator<<(std::ostream& out, const Edit& edit)
{
    return out << edit.name;
}

class KeyEdits : public Effects, public testing::WithParamInterface<Edit>
{};

constexpr Edit kEdits[] = {
    {"BackTab", msg::BackTab, u"\t[one\n\ttwo|\n", u"[one\ntwo\n|"}, // whole lines
    {"DelWordLeft", msg::DelWordLeft, u"one two|+", u"one |+"},
    {"DelWordRight", msg::DelWordRight, u"one |two three", u"one |three"},
    {"DelLineLeft", msg::DelLineLeft, u"one\ntw|o\n", u"one\n|o\n"},
    {"DelLineRight", msg::DelLineRight, u"one\nt|wo\nx", u"one\nt|\nx"},
    {"LineDelete", msg::LineDelete, u"one\nt|wo\nthree", u"one\n|three"},
    {"LineDuplicate", msg::LineDuplicate, u"one\nt|wo\nx", u"one\nt|wo\ntwo\nx"},
    {"LineTranspose", msg::LineTranspose, u"one\n|two\nx", u"two\n|one\nx"},
};

} // namespace

TEST_P(KeyEdits, PutIntoTheTextWhatTheyAreNamedFor)
{
    Place(GetParam().before);
    m_engine.Send(GetParam().number);
    EXPECT_EQ(Placed(), GetParam().after);
}

TEST_P(KeyEdits, AreUndoneInOneStep)
{
    Place(GetParam().before);
    const std::u16string before = m_engine.Text();
    m_engine.Send(GetParam().number);
    m_engine.Send(msg::Undo);
    EXPECT_EQ(m_engine.Text(), before);
    EXPECT_EQ(m_engine.Send(msg::CanUndo), 0);
}

INSTANTIATE_TEST_SUITE_P(OfCommands, KeyEdits, testing::ValuesIn(kEdits),
                         [](const auto& edit) { return std::string(edit.param.name); });

TEST_F(States, AnUndoIsPossibleWhereChangesAreCollected)
{
    EXPECT_EQ(m_engine.Send(msg::GetUndoCollection), 1);
    m_engine.Send(msg::SetUndoCollection, 0);
    EXPECT_EQ(m_engine.Send(msg::GetUndoCollection), 0);
    m_engine.Send(msg::AppendText, 1, u"a");
    EXPECT_EQ(m_engine.Send(msg::CanUndo), 0);
    m_engine.Send(msg::SetUndoCollection, 1);
    m_engine.Send(msg::AppendText, 1, u"b");
    m_engine.Send(msg::Undo);
    EXPECT_EQ(m_engine.Text(), u"a");
}

TEST_F(States, AGroupOfChangesEndsAndIsOneStep)
{
    m_engine.Send(msg::BeginUndoAction);
    m_engine.Send(msg::InsertText, 0, u"a");
    m_engine.Send(msg::InsertText, 0, u"b");
    m_engine.Send(msg::EndUndoAction);
    m_engine.Send(msg::InsertText, 2, u"c");
    m_engine.Send(msg::Undo);
    EXPECT_EQ(m_engine.Text(), u"ba");
    m_engine.Send(msg::Undo);
    EXPECT_EQ(m_engine.Text(), u"");
}

TEST_F(States, ATextIsGivenAsFarAsThereIsRoom)
{
    m_engine.SetText(u"a\u00e9\u4e2db");
    std::u16string buffer(6, u'#');
    m_engine.Send(msg::GetText, 4, buffer.data()); // with the terminator
    EXPECT_EQ(buffer, std::u16string(u"a\u00e9\u4e2d\0##", 6));
}

TEST_F(States, ALineEndsBeforeItsLineEnd)
{
    m_engine.SetText(u"a\U0001F600\r\n\nbc");
    EXPECT_EQ(m_engine.Send(msg::GetLineEndPosition, 0), 3);
    EXPECT_EQ(m_engine.Send(msg::GetLineEndPosition, 1), 5);
    EXPECT_EQ(m_engine.Send(msg::GetLineEndPosition, 2), 8);
}

TEST_F(States, ATabIsAsWideAsItIsTold)
{
    m_engine.SetText(u"\tx");
    for (const int width : {3, 11}) {
        m_engine.Send(msg::SetTabWidth, static_cast<WPARAM>(width));
        EXPECT_EQ(m_engine.Send(msg::GetTabWidth), width);
        EXPECT_NEAR(XOf(1) - XOf(0), ColumnAt(width), 2);
    }
}

TEST_F(States, AnIndentationIsOfTabsOrOfSpaces)
{
    m_engine.Send(msg::SetTabWidth, 4);
    m_engine.Send(msg::SetIndent, 6);
    EXPECT_EQ(m_engine.Send(msg::GetIndent), 6);
    m_engine.Send(msg::SetUseTabs, 1);
    EXPECT_EQ(m_engine.Send(msg::GetUseTabs), 1);
    Place(u"|x");
    m_engine.Send(msg::Tab);
    EXPECT_EQ(m_engine.Text(), u"\t  x");
    m_engine.Send(msg::SetUseTabs, 0);
    EXPECT_EQ(m_engine.Send(msg::GetUseTabs), 0);
    m_engine.Send(msg::SetLineIndentation, 0, LPARAM{5});
    EXPECT_EQ(m_engine.Text(), u"     x");
    EXPECT_EQ(m_engine.Send(msg::GetLineIndentation, 0), 5);
}

TEST_F(States, ASelectionIsMovedByEitherEdge)
{
    Place(u"ab[cd|ef");
    m_engine.Send(msg::SetSelectionStart, 1);
    EXPECT_EQ(Placed(), u"a[bcd|ef");
    m_engine.Send(msg::SetSelectionEnd, 5);
    EXPECT_EQ(Placed(), u"a[bcde|f");
    m_engine.Send(msg::SetSelectionEnd, 0); // before its start: none is left
    EXPECT_EQ(Placed(), u"|abcdef");
}

TEST_F(States, ASelectionIsHiddenAndStays)
{
    m_engine.Send(msg::SetSelBack, 1, LPARAM{kRed});
    Place(u"a[bcd|e");
    ASSERT_GT(CountOf(kRedDot), 0);
    m_engine.Send(msg::HideSelection, 1);
    EXPECT_EQ(CountOf(kRedDot), 0);
    EXPECT_EQ(Placed(), u"a[bcd|e");
    m_engine.Send(msg::HideSelection, 0);
    EXPECT_GT(CountOf(kRedDot), 0);
}

TEST_F(States, AMoveSelectsAsTheModeSays)
{
    constexpr WPARAM kStream = 0;
    constexpr WPARAM kRectangle = 1;
    constexpr WPARAM kLines = 2;
    Place(u"ab|cd\nefgh\n");
    m_engine.Send(msg::SetSelectionMode, kLines);
    EXPECT_EQ(m_engine.Send(msg::GetSelectionMode), LRESULT{kLines});
    m_engine.Send(msg::CharRight);
    EXPECT_EQ(SelectedOfLine(0), u"abcd");
    m_engine.Send(msg::Cancel);
    Place(u"a|bcd\nefgh\n");
    m_engine.Send(msg::SetSelectionMode, kRectangle);
    EXPECT_EQ(m_engine.Send(msg::GetSelectionMode), LRESULT{kRectangle});
    m_engine.Send(msg::CharRight);
    m_engine.Send(msg::LineDown);
    EXPECT_EQ(SelectedOfLine(0), u"b");
    EXPECT_EQ(SelectedOfLine(1), u"f");
    m_engine.Send(msg::SetSelectionMode, kStream);
    EXPECT_EQ(m_engine.Send(msg::GetSelectionMode), LRESULT{kStream});
}

TEST_F(States, MarkersGoOneByOneOrAllOfAKind)
{
    m_engine.SetText(u"a\nb\nc\nd\n");
    for (const WPARAM line : {0, 2, 3})
        m_engine.Send(msg::MarkerAdd, line, LPARAM{4});
    m_engine.Send(msg::MarkerAdd, 2, LPARAM{5});
    EXPECT_EQ(m_engine.Send(msg::MarkerNext, 1, LPARAM{1 << 4}), 2);
    m_engine.Send(msg::MarkerDelete, 2, LPARAM{4});
    EXPECT_EQ(m_engine.Send(msg::MarkerNext, 1, LPARAM{1 << 4}), 3);
    EXPECT_EQ(m_engine.Send(msg::MarkerGet, 2), 1 << 5);
    m_engine.Send(msg::MarkerDeleteAll, 4);
    EXPECT_EQ(m_engine.Send(msg::MarkerNext, 0, LPARAM{1 << 4}), -1);
    EXPECT_EQ(m_engine.Send(msg::MarkerNext, 0, LPARAM{1 << 5}), 2);
}

TEST_F(States, TextBeginsBehindItsMargins)
{
    m_engine.SetText(u"x");
    m_engine.Send(msg::SetMarginLeft, 0, LPARAM{7});
    EXPECT_EQ(m_engine.Send(msg::GetMarginLeft), 7);
    m_engine.Send(msg::SetMarginWidthN, 2, LPARAM{30});
    EXPECT_EQ(m_engine.Send(msg::GetMarginWidthN, 2), 30);
    EXPECT_EQ(XOf(0), 37);
    m_engine.Send(msg::SetXOffset, 12);
    EXPECT_EQ(m_engine.Send(msg::GetXOffset), 12);
    EXPECT_EQ(XOf(0), 25);
}

TEST_F(States, LineEndsAndSpacesAreShown)
{
    m_engine.SetText(u"a b\n");
    const QImage plain = Picture();
    m_engine.Send(msg::SetViewEOL, 1);
    EXPECT_EQ(m_engine.Send(msg::GetViewEOL), 1);
    const QImage withEnds = Picture();
    EXPECT_GT(CountOf(withEnds, 0), CountOf(plain, 0));
    m_engine.Send(msg::SetViewWS, 1);
    EXPECT_EQ(m_engine.Send(msg::GetViewWS), 1);
    EXPECT_NE(Picture(), withEnds);
    m_engine.Send(msg::SetViewEOL, 0);
    m_engine.Send(msg::SetViewWS, 0);
    EXPECT_EQ(Picture(), plain);
}

TEST_F(States, TheZoomIsPointsOfTheFont)
{
    m_engine.SetText(u"x");
    const int height = LineHeight();
    m_engine.Send(msg::SetZoom, 10);
    EXPECT_EQ(m_engine.Send(msg::GetZoom), 10);
    EXPECT_NEAR(LineHeight(), 2 * height, 3); // of ten points
}

TEST_F(States, WhatIsSetOfCaretEdgeAndWrappingIsTold)
{
    m_engine.Send(msg::SetCaretFore, kRed);
    EXPECT_EQ(m_engine.Send(msg::GetCaretFore), LRESULT{kRed});
    m_engine.Send(msg::SetCaretLineVisible, 1);
    EXPECT_EQ(m_engine.Send(msg::GetCaretLineVisible), 1);
    m_engine.Send(msg::SetEdgeColumn, 33);
    EXPECT_EQ(m_engine.Send(msg::GetEdgeColumn), 33);
    m_engine.Send(msg::SetEdgeMode, 2);
    EXPECT_EQ(m_engine.Send(msg::GetEdgeMode), 2);
    m_engine.Send(msg::SetWrapMode, 1);
    EXPECT_EQ(m_engine.Send(msg::GetWrapMode), 1);
}

TEST_F(States, ASearchFollowsItsFlags)
{
    constexpr WPARAM kMatchCase = 4;
    m_engine.SetText(u"ABC abc");
    const auto found = [this](WPARAM flags) {
        m_engine.Send(msg::SetSearchFlags, flags);
        EXPECT_EQ(m_engine.Send(msg::GetSearchFlags), static_cast<LRESULT>(flags));
        m_engine.Send(msg::SetTargetStart, 0);
        m_engine.Send(msg::SetTargetEnd, 7);
        return m_engine.Send(msg::SearchInTarget, 3, u"abc");
    };
    EXPECT_EQ(found(0), 0);
    EXPECT_EQ(found(kMatchCase), 4);
}

TEST_F(States, AHiddenLineComesBackWithItsFold)
{
    constexpr int kHeader = 0x2400;
    m_engine.SetText(u"a\nb\nc\nd\n");
    m_engine.Send(msg::SetFoldLevel, 0, LPARAM{kHeader});
    m_engine.Send(msg::SetFoldLevel, 1, LPARAM{0x401});
    m_engine.Send(msg::SetFoldLevel, 2, LPARAM{0x401});
    m_engine.Send(msg::SetFoldLevel, 3, LPARAM{0x400});
    EXPECT_EQ(m_engine.Send(msg::GetFoldLevel, 0), kHeader);
    EXPECT_EQ(m_engine.Send(msg::GetFoldExpanded, 0), 1);
    m_engine.Send(msg::ToggleFold, 0);
    EXPECT_EQ(m_engine.Send(msg::GetFoldExpanded, 0), 0);
    EXPECT_EQ(m_engine.Send(msg::GetLineVisible, 2), 0);
    EXPECT_EQ(m_engine.Send(msg::VisibleFromDocLine, 3), 1);
    m_engine.Send(msg::EnsureVisible, 2);
    EXPECT_EQ(m_engine.Send(msg::GetFoldExpanded, 0), 1);
    EXPECT_EQ(m_engine.Send(msg::GetLineVisible, 2), 1);
    EXPECT_EQ(m_engine.Send(msg::VisibleFromDocLine, 3), 3);
}
