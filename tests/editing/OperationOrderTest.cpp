// What the editing operations send where the order counts, on an engine that writes it down.
#include "editing/ZNCoreEditorControlEx.h"
#include "tests/control/RecordingEngine.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

constexpr UINT kGetLineCount = engine::message::GetLineCount;
constexpr UINT kGetSelectionEnd = engine::message::GetSelectionEnd;

class OperationOrder : public testing::Test
{
protected:
    OperationOrder()
    {
        m_control.Create(WS_CHILD, RECT{0, 0, 100, 100}, nullptr, 1, nullptr);
        recording::Forget();
    }
    ~OperationOrder() override { recording::Forget(); }

    // Those that a test names, of all that were sent.
    std::vector<std::string> SentOf(const std::vector<std::string>& names)
    {
        std::vector<std::string> sent;
        for (const std::string& sentence : recording::Sentences()) {
            const std::string name = sentence.substr(0, sentence.find_first_of(" ("));
            if (std::find(names.begin(), names.end(), name) != names.end())
                sent.push_back(sentence);
        }
        return sent;
    }

    CZNCoreEditorControlEx m_control;
};

TEST_F(OperationOrder, LineEndsChangeUnderTheWaitCursor)
{
    m_control.SetEOLCR();
    EXPECT_THAT(recording::Sentences(),
                ElementsAre("SetCursor 4", "SetEOLMode 2", "ConvertEOLs 2", "SetCursor -1"));
}

TEST_F(OperationOrder, ALineEndIsTwoInsertionsAtOnePlace)
{
    recording::AnswerTo(engine::message::GetEOLMode, [](WPARAM, LPARAM) { return 1; });
    m_control.InsertEOL(7);
    EXPECT_THAT(SentOf({"BeginUndoAction", "InsertText", "EndUndoAction"}).size(), 4u);
    std::vector<std::u16string> texts;
    for (const recording::Message& message : recording::Messages()) {
        if (message.number != engine::message::InsertText)
            continue;
        EXPECT_EQ(message.wParam, 7u);
        texts.push_back(message.text);
    }
    EXPECT_THAT(texts, ElementsAre(u"\r", u"\n"));
}

TEST_F(OperationOrder, TheAnalysisRestsWhileManyLinesChange)
{
    recording::AnswerTo(kGetLineCount, [](WPARAM, LPARAM) { return 2; });
    m_control.ConvertTabToSpaces();
    EXPECT_THAT(SentOf({"BeginUndoAction", "EndUndoAction", "SetDoingReplaceAll"}),
                ElementsAre("BeginUndoAction", "SetDoingReplaceAll 1", "SetDoingReplaceAll 0",
                            "EndUndoAction"));
}

TEST_F(OperationOrder, ACleanUpGoesOneLineBehindTheLast)
{
    recording::AnswerTo(kGetLineCount, [](WPARAM, LPARAM) { return 2; });
    m_control.ConvertTabToSpaces();
    EXPECT_THAT(SentOf({"PositionFromLine"}),
                ElementsAre("PositionFromLine 0", "PositionFromLine 1", "PositionFromLine 2"));
}

TEST_F(OperationOrder, ABraceWithoutAMatchIsShownAsBad)
{
    recording::AnswerTo(engine::message::BraceMatch, [](WPARAM, LPARAM) { return -1; });
    m_control.HighlightBraces(5);
    EXPECT_THAT(recording::Sentences(),
                ElementsAre("BraceMatch 5", "BraceHighlight -1 -1", "BraceBadLight 5"));
}

TEST_F(OperationOrder, AFileNameAsksForTheSelectionOnly)
{
    recording::AnswerTo(kGetSelectionEnd, [](WPARAM, LPARAM) { return 0; });
    EXPECT_EQ(m_control.SelectionFilename(), QString());
    EXPECT_THAT(SentOf({"SetSel", "GotoPos"}), ElementsAre());
}

} // namespace
