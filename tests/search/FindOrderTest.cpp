// SPDX-License-Identifier: GPL-3.0-or-later
// The messages of the find manager, in their order.
#include "control/ZNCoreEditorControl.h"
#include "tests/control/RecordingEngine.h"
#include "tests/search/FindFixture.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

class FindOrder : public testing::Test
{
protected:
    FindOrder()
    {
        control.SubclassWindow(
            CreateWindowOfClass(engine::kWindowClass, WS_CHILD, RECT{0, 0, 300, 200}, &parent));
        recording::Forget();
        recording::AnswerTo(engine::message::GetSearchFlags, [](WPARAM, LPARAM) { return 4; });
    }
    ~FindOrder() override { recording::Forget(); }

    // The first so many searches find, one after the other.
    void FindTimes(int times)
    {
        recording::AnswerTo(engine::message::SearchInTarget,
                            [times, found = 0](WPARAM, LPARAM) mutable -> LRESULT {
                                return found < times ? 3 * found++ : -1;
                            });
    }

    MemoryRegistry registry;
    QWidget parent;
    CZNCoreEditorControl control;
    CFindReplaceManager manager;
};

} // namespace

TEST_F(FindOrder, SetsTheTargetTheFlagsAndBringsTheFlagsBack)
{
    FindTimes(1);
    manager.SetWholeWord(true);
    manager.AddFindHistory(QStringLiteral("one"));
    EXPECT_EQ(manager.FindInRange(&control, 7, 9, true), 0);
    EXPECT_THAT(recording::Sentences(),
                ElementsAre("GetSearchFlags", "SetSearchFlags 2", "SetTargetStart 7",
                            "SetTargetEnd 9", "SearchInTarget(one)", "SetSearchFlags 4"));
    for (const recording::Message& message : recording::Messages())
        EXPECT_TRUE(message.direct);
}

TEST_F(FindOrder, AnnouncesAReplacementOfAllAroundOneUndoStep)
{
    FindTimes(2);
    recording::AnswerTo(engine::message::GetLength, [](WPARAM, LPARAM) { return 9; });
    manager.SetWrap(false);
    manager.AddFindHistory(QStringLiteral("one"));
    manager.ReplaceAll(&control, false);
    std::vector<std::string> frame;
    for (const std::string& sentence : recording::Sentences()) {
        for (const char* word : {"SetDoingReplaceAll", "UndoAction", "SearchInTarget", "ReplaceT"})
            if (sentence.find(word) != sentence.npos)
                frame.push_back(sentence);
    }
    EXPECT_THAT(frame, ElementsAre("SetDoingReplaceAll 1", "BeginUndoAction", "SearchInTarget(one)",
                                   "ReplaceTargetNoProcess()", "SearchInTarget(one)",
                                   "ReplaceTargetNoProcess()", "SearchInTarget(one)",
                                   "EndUndoAction", "SetDoingReplaceAll 0"));
}

TEST_F(FindOrder, WrapsOnceUnderItsOwnFlags)
{
    FindTimes(0);
    recording::AnswerTo(engine::message::GetLength, [](WPARAM, LPARAM) { return 9; });
    recording::AnswerTo(engine::message::GetCurrentPos, [](WPARAM, LPARAM) { return 5; });
    recording::AnswerTo(engine::message::GetSelectionStart, [](WPARAM, LPARAM) { return 3; });
    manager.AddFindHistory(QStringLiteral("one"));
    EXPECT_EQ(manager.FindInRange(&control, 7, 9, false), -1);
    EXPECT_THAT(recording::Sentences(),
                ElementsAre("GetSearchFlags", "SetSearchFlags 0", "SetTargetStart 7",
                            "SetTargetEnd 9", "SearchInTarget(one)", "GetCurrentPos",
                            "SetTargetStart 0", "SetTargetEnd 5", "SearchInTarget(one)",
                            "SetSearchFlags 4"));
    manager.SetDown(false);
    EXPECT_EQ(manager.FindInRange(&control, 2, 0, false), -1);
    const std::vector<std::string> sentences = recording::Sentences();
    EXPECT_THAT(std::vector<std::string>(sentences.end() - 4, sentences.end()),
                ElementsAre("SetTargetStart 9", "SetTargetEnd 3", "SearchInTarget(one)",
                            "SetSearchFlags 4"));
}

TEST_F(FindOrder, HandsItsOptionsToTheEngine)
{
    for (int options = 0; options < 8; ++options) {
        manager.SetWholeWord(options & 1);
        manager.SetMatchCase(options & 2);
        manager.SetRegExp(options & 4);
        recording::Forget();
        manager.FindInRange(&control, 0, 1, true);
        const int flags = (options & 1) * 2 + (options & 2) * 2 + (options & 4 ? 0x200000 : 0);
        EXPECT_EQ(recording::Sentences().at(1), "SetSearchFlags " + std::to_string(flags));
    }
}

TEST_F(FindOrder, ReplacesATargetByTheMessageOfItsKind)
{
    manager.AddReplaceHistory(QStringLiteral("x"));
    manager.SetRegExp(true);
    manager.ReplaceOne(&control);
    EXPECT_THAT(recording::Sentences(),
                ElementsAre("ReplaceTargetRE(x)", "GetCurrentPos", "SetCurrentPos 0"));
}
