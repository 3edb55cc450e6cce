// SPDX-License-Identifier: GPL-3.0-or-later
// What a view sends where the order counts, on an engine that writes it down.
#include "tests/docview/OpenView.h"

#include "docview/ZNCoreEditorDoc.h"
#include "platform/docview/CreateContext.h"
#include "platform/windows/Mouse.h"
#include "platform/windows/ScrollBars.h"
#include "tests/control/RecordingEngine.h"

#include <gmock/gmock.h>

namespace {

using recording::AnswerTo;
using recording::Sentences;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
namespace msg = engine::message;

// One document and its view on a desk; the desk takes the view along.
class ViewOrder : public testing::Test
{
protected:
    ViewOrder()
    {
        recording::Forget();
        doc.m_bAutoDelete = false;
        CCreateContext context;
        context.m_pCurrentDoc = &doc;
        view->CreateViewIn(&desk, &context);
        view->GetCoreEditorControl()->SetBraces(QStringLiteral("()"));
        created = recording::Messages();
        recording::Forget();
    }
    ~ViewOrder() override
    {
        view->DestroyWindow();
        recording::Forget();
        SetLeftButton(nullptr);
    }

    // The text around the caret at 7.
    static void Around(int before, int behind)
    {
        AnswerTo(msg::GetCurrentPos, [](WPARAM, LPARAM) { return 7; });
        AnswerTo(msg::GetCharAt, [=](WPARAM at, LPARAM) {
            return at == 7 ? behind : at == 6 ? before : 0;
        });
    }

    static std::vector<std::string> SentOf(const std::vector<std::string>& names)
    {
        std::vector<std::string> sent;
        for (const std::string& sentence : Sentences()) {
            const std::string name = sentence.substr(0, sentence.find_first_of(" ("));
            if (std::find(names.begin(), names.end(), name) != names.end())
                sent.push_back(sentence);
        }
        return sent;
    }
    static std::vector<std::string> BraceMessages()
    {
        return SentOf({"GetCharAt", "BraceMatch", "BraceHighlight", "BraceBadLight"});
    }

    QWidget desk;
    CZNCoreEditorDoc doc;
    OpenView* view = new OpenView;
    std::vector<recording::Message> created;
};

} // namespace

TEST_F(ViewOrder, CreationChoosesTheIndicatorThenGivesTheDocumentItsText)
{
    ASSERT_GE(created.size(), 2u);
    const recording::Message& indicator = *(created.end() - 2);
    EXPECT_EQ(indicator.number, 2500u);
    EXPECT_EQ(indicator.wParam, 1u);
    EXPECT_FALSE(indicator.direct);
    EXPECT_EQ(created.back().number, UINT{msg::GetDocPointer});
}

TEST_F(ViewOrder, TheBraceBehindTheCaretGoesFirst)
{
    Around('(', ')');
    AnswerTo(msg::BraceMatch, [](WPARAM, LPARAM) { return 3; });
    EXPECT_EQ(view->Hear(notify::UpdateUi), 1);
    EXPECT_THAT(BraceMessages(), ElementsAre("GetCharAt 7", "BraceMatch 7", "BraceHighlight 7 3"));
}

TEST_F(ViewOrder, ThenTheBraceBeforeIt)
{
    Around('(', 'a');
    AnswerTo(msg::BraceMatch, [](WPARAM, LPARAM) { return 9; });
    view->Hear(notify::UpdateUi);
    EXPECT_THAT(BraceMessages(),
                ElementsAre("GetCharAt 7", "GetCharAt 6", "BraceMatch 6", "BraceHighlight 6 9"));
}

TEST_F(ViewOrder, WithoutABraceTheHighlightGoes)
{
    Around('a', 'b');
    view->Hear(notify::UpdateUi);
    EXPECT_THAT(BraceMessages(), ElementsAre("GetCharAt 7", "GetCharAt 6", "BraceHighlight -1 -1"));
}

TEST_F(ViewOrder, AScrollStateThatIsUnchangedStillLooksAtTheBraces)
{
    Around('(', 'x');
    AnswerTo(msg::BraceMatch, [](WPARAM, LPARAM) { return 9; });
    SCROLLINFO unchanged;
    unchanged.fMask = SIF_POS;
    EXPECT_EQ(SendMessage(view->GetSafeHwnd(), kSetScrollInfo, reinterpret_cast<WPARAM>(&unchanged),
                          kScrollVertical),
              1);
    EXPECT_THAT(BraceMessages(), Contains("BraceHighlight 6 9"));
}

TEST_F(ViewOrder, OnlyTheLowByteOfACharacterMakesABrace)
{
    Around(0x128, 'b'); // 0x28 is the opening bracket
    AnswerTo(msg::BraceMatch, [](WPARAM, LPARAM) { return 9; });
    view->Hear(notify::UpdateUi);
    EXPECT_THAT(BraceMessages(), Contains("BraceHighlight 6 9"));
    view->GetCoreEditorControl()->SetBraces(QString(QChar(0xFFE9)) + QChar(0xE9));
    recording::Forget();
    Around('a', 0xE9); // a negative byte
    view->Hear(notify::UpdateUi);
    EXPECT_THAT(BraceMessages(), Contains("BraceMatch 7"));
}

TEST_F(ViewOrder, ADocumentThatMatchesNoBracesLeavesThemAlone)
{
    doc.ToggleBraceMatching();
    Around('(', ')');
    EXPECT_EQ(view->Hear(notify::UpdateUi), 1);
    EXPECT_THAT(BraceMessages(), IsEmpty());
}

TEST_F(ViewOrder, ASelectionIsCopiedWhileTheMouseDrawsIt)
{
    AnswerTo(msg::GetSelectionEnd, [](WPARAM, LPARAM) { return 5; });
    SetLeftButton([] { return true; });
    view->Hear(notify::UpdateUi);
    EXPECT_THAT(SentOf({"Copy"}), IsEmpty()); // unless the document wants it
    doc.SetSelectCopy(1);
    view->Hear(notify::UpdateUi);
    view->Hear(notify::UpdateUi);
    EXPECT_EQ(SentOf({"Copy", "BraceHighlight"}).back(), SentOf({"Copy"}).front());
    EXPECT_EQ(SentOf({"Copy"}).size(), 2u);
    SetLeftButton([] { return false; });
    view->Hear(notify::UpdateUi);
    EXPECT_EQ(SentOf({"Copy"}).size(), 2u);
}

TEST_F(ViewOrder, NothingIsCopiedWithoutASelection)
{
    doc.SetSelectCopy(1);
    SetLeftButton([] { return true; });
    view->Hear(notify::UpdateUi);
    EXPECT_THAT(SentOf({"Copy"}), IsEmpty());
}

TEST_F(ViewOrder, TheBraceCommandShowsAndClearsAtOnce)
{
    Around('a', '(');
    AnswerTo(msg::BraceMatch, [](WPARAM, LPARAM) { return 9; });
    view->OnCmdMsg(54000, nullptr);
    EXPECT_FALSE(doc.GetBraceMatching());
    EXPECT_THAT(BraceMessages(), ElementsAre("BraceHighlight -1 -1"));
    view->OnCmdMsg(54000, nullptr);
    EXPECT_TRUE(doc.GetBraceMatching());
    EXPECT_THAT(BraceMessages(), Contains("BraceHighlight 7 9"));
}

TEST_F(ViewOrder, TheSelectedLineIsMarkedAlone)
{
    AnswerTo(msg::LineFromPosition, [](WPARAM, LPARAM) { return 4; });
    view->SetSelectedLine(4, 0);
    EXPECT_THAT(SentOf({"GotoLine", "MarkerDeleteAll", "MarkerAdd"}),
                ElementsAre("GotoLine 4", "MarkerDeleteAll 4", "MarkerAdd 4 4"));
}

TEST_F(ViewOrder, AViewThatLosesItsPlaceClosesTheListOfCompletions)
{
    view->OnActivateView(0, nullptr, view);
    ASSERT_THAT(SentOf({"AutoCCancel"}), ElementsAre("AutoCCancel"));
    EXPECT_FALSE(recording::Messages().back().direct);
    recording::Forget();
    view->OnActivateView(1, view, nullptr);
    EXPECT_THAT(SentOf({"AutoCCancel"}), IsEmpty());
}

TEST_F(ViewOrder, AHintOfOneBindsTheLanguageAgainAndNoOtherDoes)
{
    view->OnUpdate(nullptr, 0, nullptr);
    view->OnUpdate(nullptr, 2, nullptr);
    EXPECT_THAT(Sentences(), IsEmpty());
    view->OnUpdate(nullptr, 1, nullptr);
    EXPECT_THAT(Sentences(), Not(IsEmpty()));
}

TEST_F(ViewOrder, TheFirstViewScrollsToItsOwnPlace)
{
    AnswerTo(msg::GetFirstVisibleLine, [](WPARAM, LPARAM) { return 12; });
    EXPECT_EQ(view->m_initialized, 0);
    view->OnInitialUpdate();
    EXPECT_EQ(view->m_initialized, 1);
    EXPECT_THAT(SentOf({"GetFirstVisibleLine", "LineScroll", "SetXOffset"}),
                ElementsAre("GetFirstVisibleLine", "LineScroll 0 12"));
}

TEST_F(ViewOrder, AFurtherViewTakesPlaceAndLanguageOfTheFirst)
{
    auto* further = new OpenView;
    CCreateContext context;
    context.m_pCurrentDoc = &doc;
    further->CreateViewIn(&desk, &context);
    recording::Forget();
    AnswerTo(msg::GetFirstVisibleLine, [](WPARAM, LPARAM) { return 12; });
    AnswerTo(msg::GetXOffset, [](WPARAM, LPARAM) { return 30; });
    view->GetCoreEditorControl()->SetCurrentLanguage(3);
    further->OnInitialUpdate();
    EXPECT_THAT(
        SentOf({"GetFirstVisibleLine", "GetXOffset", "LineScroll", "SetXOffset"}),
        ElementsAre("GetFirstVisibleLine", "GetXOffset", "LineScroll 0 12", "SetXOffset 30"));
    EXPECT_EQ(further->GetCoreEditorControl()->GetCurrentLanguage(), 3);
    further->DestroyWindow();
}
