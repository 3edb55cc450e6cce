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
