// SPDX-License-Identifier: GPL-3.0-or-later
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

struct BulkRow
{
    const char* name;
    void (*run)(CZNCoreEditorControlEx& control);
};

const BulkRow kBulkChanges[] = {
    {"ConvertTabToSpaces", [](auto& c) { c.ConvertTabToSpaces(); }},
    {"ConvertSpacesToTab", [](auto& c) { c.ConvertSpacesToTab(); }},
    {"RemoveTrailingSpaces", [](auto& c) { c.RemoveTrailingSpaces(); }},
    {"CommentLines", [](auto& c) { c.CommentSelection(0, false); }},
    {"UnCommentLines", [](auto& c) { c.UnCommentSelection(0, false); }},
    {"UnCommentBlock", [](auto& c) { c.UnCommentSelection(0, true); }},
    {"SortLines", [](auto& c) { c.SortLines(true, false, true, 0, -1, -1); }},
    {"InsertText", [](auto& c) { c.InsertTextIntoLines(0, QStringLiteral("x")); }},
    {"InsertNumbers", [](auto& c) { c.InsertTextIntoLines(1, QStringLiteral("x"), 1, 3); }},
};

// Every operation over many lines.
class BulkChange : public OperationOrder, public testing::WithParamInterface<BulkRow>
{};

TEST_P(BulkChange, IsOneUndoStepInWhichTheAnalysisRests)
{
    m_control.AddSingleLineComment(QStringLiteral("--"));
    m_control.AddBlockComment(QStringLiteral("/*"), QStringLiteral("*/"));
    recording::AnswerTo(kGetLineCount, [](WPARAM, LPARAM) { return 2; });
    recording::AnswerTo(kGetSelectionEnd, [](WPARAM, LPARAM) { return 5; });
    recording::AnswerTo(engine::message::LineFromPosition,
                        [](WPARAM position, LPARAM) { return position >= 5 ? 1 : 0; });
    recording::AnswerTo(engine::message::SearchInTarget, [](WPARAM, LPARAM) { return -1; });
    GetParam().run(m_control);
    EXPECT_THAT(SentOf({"BeginUndoAction", "EndUndoAction", "SetDoingReplaceAll"}),
                ElementsAre("BeginUndoAction", "SetDoingReplaceAll 1", "SetDoingReplaceAll 0",
                            "EndUndoAction"));
}

INSTANTIATE_TEST_SUITE_P(Operations, BulkChange, testing::ValuesIn(kBulkChanges),
                         [](const auto& row) { return std::string(row.param.name); });

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

TEST_F(OperationOrder, ABraceWithAMatchIsShownWithIt)
{
    recording::AnswerTo(engine::message::BraceMatch, [](WPARAM, LPARAM) { return 9; });
    recording::AnswerTo(engine::message::GetColumn,
                        [](WPARAM position, LPARAM) { return position == 9 ? 2 : 4; });
    m_control.HighlightBraces(5);
    EXPECT_THAT(SentOf({"BraceMatch", "BraceHighlight", "BraceBadLight", "SetHighlightGuide"}),
                ElementsAre("BraceMatch 5", "BraceHighlight 5 9", "SetHighlightGuide 2"));
}

TEST_F(OperationOrder, IndentingIsTheEnginesOwn)
{
    m_control.OnEditIndent();
    m_control.OnEditOutdent();
    EXPECT_THAT(recording::Sentences(), ElementsAre("Tab", "BackTab"));
}

TEST_F(OperationOrder, ATakenBookmarkAsksForEveryHandleInItsOrder)
{
    int handle = 40;
    recording::AnswerTo(engine::message::MarkerAdd, [&handle](WPARAM, LPARAM) { return ++handle; });
    for (const long line : {7L, 3L, 5L})
        m_control.ToggleBookmark(line);
    recording::AnswerTo(engine::message::MarkerGet, [](WPARAM, LPARAM) { return 1; });
    recording::AnswerTo(engine::message::MarkerLineFromHandle,
                        [](WPARAM asked, LPARAM) { return asked == 42 ? -1 : 7; });
    m_control.ToggleBookmark(3);
    EXPECT_THAT(SentOf({"MarkerAdd", "MarkerDelete", "MarkerLineFromHandle"}),
                ElementsAre("MarkerAdd 7 0", "MarkerAdd 3 0", "MarkerAdd 5 0", "MarkerDelete 3 0",
                            "MarkerLineFromHandle 41", "MarkerLineFromHandle 42",
                            "MarkerLineFromHandle 43"));
    EXPECT_TRUE(m_control.HasBookmarks());
}

} // namespace
