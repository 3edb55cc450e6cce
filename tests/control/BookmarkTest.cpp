// SPDX-License-Identifier: GPL-3.0-or-later
// What bookmarks send to the engine, and where they stand on it.
#include "platform/system/SystemColors.h"
#include "tests/control/ControlFixture.h"
#include "tests/control/RecordingEngine.h"

namespace {

namespace msg = engine::message;
using recording::AnswerTo;
using recording::Messages;
using recording::Sentences;
using Strings = std::vector<std::string>;

std::string Colour(int index)
{
    return ' ' + std::to_string(GetSysColor(index));
}

class Bookmarks : public ControlTest
{
protected:
    Bookmarks()
    {
        recording::Forget();
        control.m_aNumberedBookmarks.fill(-1);
    }
    ~Bookmarks() override { recording::Forget(); }

    // The caret's line, the markers on it, and the handle of the next marker.
    void Line(int line, int mask = 0, int handle = 0)
    {
        AnswerTo(msg::GetCurrentPos, [](WPARAM, LPARAM) { return 345; });
        AnswerTo(msg::LineFromPosition, [line](WPARAM, LPARAM) { return line; });
        AnswerTo(msg::MarkerGet, [mask](WPARAM, LPARAM) { return mask; });
        AnswerTo(msg::MarkerAdd, [handle](WPARAM, LPARAM) { return handle; });
    }
};

} // namespace

TEST_F(Bookmarks, PlainOnesAreCirclesInTheColoursOfTheDesktop)
{
    control.DefineBookmarks();
    EXPECT_EQ(Sentences(), (Strings{"MarkerSetFore 0" + Colour(13), "MarkerSetBack 0" + Colour(26),
                                    "MarkerDefine 0 0"}));
}

TEST_F(Bookmarks, NumberedOnesAreDigits)
{
    control.m_aNumberedBookmarks.fill(7);
    control.DefineNumberedBookmarks(10, false);
    Strings expected;
    for (int i = 0; i < 10; ++i)
        expected.push_back("MarkerDefine " + std::to_string(10 + i) + ' ' +
                           std::to_string(10048 + i));
    EXPECT_EQ(Sentences(), expected);
    for (const int handle : control.m_aNumberedBookmarks)
        EXPECT_EQ(handle, -1);
}

TEST_F(Bookmarks, NumberedOnesTakeTheColoursOfTheDesktopIfAsked)
{
    control.DefineNumberedBookmarks(0, true);
    const Strings sentences = Sentences();
    ASSERT_EQ(sentences.size(), 30u);
    EXPECT_EQ(Strings(sentences.begin(), sentences.begin() + 4),
              (Strings{"MarkerDefine 0 10048", "MarkerSetFore 0" + Colour(14),
                       "MarkerSetBack 0" + Colour(13), "MarkerDefine 1 10049"}));
    EXPECT_EQ(sentences.back(), "MarkerSetBack 9" + Colour(13));
}

TEST_F(Bookmarks, AToggleOnAFreeLineAddsAMarker)
{
    Line(12, 0, 88);
    control.ToggleNumberedBookmark(3, 0);
    EXPECT_EQ(Sentences(),
              (Strings{"GetCurrentPos", "LineFromPosition 345", "MarkerGet 12", "MarkerAdd 12 3"}));
    EXPECT_EQ(control.m_aNumberedBookmarks[3], 88);
}

TEST_F(Bookmarks, AToggleOnItsOwnLineTakesTheMarkerAndKeepsTheHandle)
{
    Line(12);
    control.m_aNumberedBookmarks[3] = 88;
    AnswerTo(msg::MarkerLineFromHandle, [](WPARAM, LPARAM) { return 12; });
    control.ToggleNumberedBookmark(3, 0);
    EXPECT_EQ(Sentences(),
              (Strings{"GetCurrentPos", "LineFromPosition 345", "MarkerLineFromHandle 88",
                       "MarkerDeleteHandle 88", "MarkerGet 12"}));
    EXPECT_EQ(control.m_aNumberedBookmarks[3], 88);
}

TEST_F(Bookmarks, AToggleOnItsOwnLineClearsTheSlotIfTheLineStillShowsTheNumber)
{
    Line(12, 1 << 3);
    control.m_aNumberedBookmarks[3] = 88;
    AnswerTo(msg::MarkerLineFromHandle, [](WPARAM, LPARAM) { return 12; });
    control.ToggleNumberedBookmark(3, 0);
    EXPECT_EQ(Sentences().back(), "MarkerDelete 12 3");
    EXPECT_EQ(control.m_aNumberedBookmarks[3], -1);
}

TEST_F(Bookmarks, AToggleElsewhereMovesTheMarker)
{
    Line(20, 0, 89);
    control.m_aNumberedBookmarks[3] = 88;
    AnswerTo(msg::MarkerLineFromHandle, [](WPARAM, LPARAM) { return 12; });
    control.ToggleNumberedBookmark(3, 0);
    EXPECT_EQ(Sentences(),
              (Strings{"GetCurrentPos", "LineFromPosition 345", "MarkerLineFromHandle 88",
                       "MarkerDeleteHandle 88", "MarkerGet 20", "MarkerAdd 20 3"}));
    EXPECT_EQ(control.m_aNumberedBookmarks[3], 89);
}

TEST_F(Bookmarks, AToggleFreesTheLineOfOtherNumbers)
{
    Line(12, 1 << 5 | 1 << 7 | 1 << 11, 90);
    control.m_aNumberedBookmarks[5] = 50;
    control.m_aNumberedBookmarks[7] = 70;
    control.ToggleNumberedBookmark(3, 0);
    EXPECT_EQ(Sentences(), (Strings{"GetCurrentPos", "LineFromPosition 345", "MarkerGet 12",
                                    "MarkerDelete 12 5", "MarkerDelete 12 7", "MarkerAdd 12 3"}));
    EXPECT_EQ(control.m_aNumberedBookmarks[5], -1);
    EXPECT_EQ(control.m_aNumberedBookmarks[7], -1);
    EXPECT_EQ(control.m_aNumberedBookmarks[3], 90);
}

TEST_F(Bookmarks, AFreedSlotIsTheOneOfTheMarkersNumber)
{
    Line(12, 1 << 4, 90); // bookmark 2 on the markers from 2 on
    for (int i = 0; i < 10; ++i)
        control.m_aNumberedBookmarks[static_cast<std::size_t>(i)] = 100 + i;
    control.m_aNumberedBookmarks[0] = -1;
    control.ToggleNumberedBookmark(0, 2);
    EXPECT_EQ(Sentences(), (Strings{"GetCurrentPos", "LineFromPosition 345", "MarkerGet 12",
                                    "MarkerDelete 12 4", "MarkerAdd 12 2"}));
    EXPECT_EQ(control.m_aNumberedBookmarks[2], 102);
    EXPECT_EQ(control.m_aNumberedBookmarks[4], -1);
    EXPECT_EQ(control.m_aNumberedBookmarks[0], 90);
}

TEST_F(Bookmarks, MarkersBehindTheLastSlotAndBehindTheLastMarkerAreSafe)
{
    Line(12, -1, 90);
    control.ToggleNumberedBookmark(1, 28);
    EXPECT_EQ(Sentences(),
              (Strings{"GetCurrentPos", "LineFromPosition 345", "MarkerGet 12",
                       "MarkerDelete 12 28", "MarkerDelete 12 29", "MarkerDelete 12 30",
                       "MarkerDelete 12 31", "MarkerAdd 12 29"}));
    recording::Forget();
    Line(12, -1, 91);
    control.ToggleNumberedBookmark(1, -5);
    EXPECT_EQ(Messages().size(), 5u + 5u + 1u);
}

TEST_F(Bookmarks, NumbersThatThereAreNotDoNothing)
{
    for (const int number : {10, 11, -1, 1 << 30}) {
        control.ToggleNumberedBookmark(number, 0);
        control.JumpToNumberedBookmark(number, 0);
    }
    EXPECT_TRUE(Messages().empty());
}

TEST_F(Bookmarks, AJumpGoesToTheMarkersLine)
{
    control.m_aNumberedBookmarks[3] = 88;
    AnswerTo(msg::MarkerLineFromHandle, [](WPARAM, LPARAM) { return 12; });
    control.JumpToNumberedBookmark(3, 20);
    EXPECT_EQ(Sentences(),
              (Strings{"MarkerLineFromHandle 88", "EnsureVisibleEnforcePolicy 12", "GotoLine 12"}));
    recording::Forget();
    control.JumpToNumberedBookmark(4, 0);
    EXPECT_TRUE(Messages().empty());
}

TEST_F(Bookmarks, AJumpWithAStaleHandlePassesNoLineOn)
{
    control.m_aNumberedBookmarks[3] = 88;
    AnswerTo(msg::MarkerLineFromHandle, [](WPARAM, LPARAM) { return -1; });
    control.JumpToNumberedBookmark(3, 0);
    EXPECT_EQ(Sentences(),
              (Strings{"MarkerLineFromHandle 88", "EnsureVisibleEnforcePolicy -1", "GotoLine -1"}));
}
