// SPDX-License-Identifier: GPL-3.0-or-later
// The channel to the engine and the life of a control, seen by a recording engine.
#include "tests/control/ControlFixture.h"
#include "tests/control/RecordingEngine.h"

namespace {

using recording::AnswerTo;
using recording::Messages;
using recording::Sentences;
using testing::Test;
using Strings = std::vector<std::string>;

class Channel : public ControlTest
{
protected:
    Channel() { recording::Forget(); }

    static void SetMode(int mode)
    {
        AnswerTo(engine::message::GetEOLMode, [mode](WPARAM, LPARAM) { return mode; });
    }
};

TEST(ControlLife, LoadsTheEngineOnceAndCountsControls)
{
    const int before = CZNCoreEditorControl::refs;
    HINSTANCE first = nullptr;
    {
        OpenControl one;
        first = CZNCoreEditorControl::m_hEditorDllHandle;
        EXPECT_NE(first, nullptr);
        EXPECT_EQ(one.m_bFirstInstance, before == 0 ? 1 : 0);
        OpenControl two;
        EXPECT_EQ(two.m_bFirstInstance, 0);
        EXPECT_EQ(CZNCoreEditorControl::refs, before + 2);
    }
    EXPECT_EQ(CZNCoreEditorControl::refs, before);
    OpenControl third;
    EXPECT_EQ(CZNCoreEditorControl::m_hEditorDllHandle, first);
    EXPECT_EQ(third.m_bFirstInstance, before == 0 ? 1 : 0);
}

TEST(ControlLife, StartsWithItsDocumentedState)
{
    OpenControl control;
    EXPECT_EQ(control.m_bCreated, 0);
    EXPECT_EQ(control.GetEncoding(), FileEncodeConverter::encUTF16LE);
    EXPECT_EQ(control.GetLineEndingStyle(), -1);
    EXPECT_FALSE(control.GetModified());
    EXPECT_EQ(control.GetSelLength(), 0);
    EXPECT_FALSE(control.m_bAutoSaveOn);
    EXPECT_EQ(control.m_nAutoSaveMinutes, 1);
    EXPECT_TRUE(control.GetWriteEncodingSig());
    EXPECT_FALSE(control.GetCarefulFiles());
    EXPECT_TRUE(control.GetFileName().isEmpty());
}

TEST(ControlLife, AnswersNothingWithoutAWindow)
{
    recording::Forget();
    CZNCoreEditorControl control;
    EXPECT_EQ(control.Call(2006, 0, 0, 1), 0);
    EXPECT_EQ(control.Call(2006, 0, 0, 0), 0);
    EXPECT_EQ(control.GetHwnd(), nullptr);
    EXPECT_EQ(control.GetSelText(), QString());
    EXPECT_TRUE(Messages().empty());
}

TEST(ControlLife, CreateWithAParentLeavesDirectAccessToTheSubclass)
{
    recording::Forget();
    ParentWindow parent;
    OpenControl control;
    ASSERT_EQ(control.Create(WS_CHILD, RECT{0, 0, 10, 10}, &parent, 7, nullptr), 1);
    EXPECT_EQ(control.m_bCreated, 1);
    EXPECT_EQ(control.m_pDirectFunction, nullptr);
    EXPECT_EQ(control.m_hEditorWnd, nullptr);
    EXPECT_EQ(control.GetHwnd(), control.GetSafeHwnd());
    AnswerTo(2006, [](WPARAM, LPARAM) { return 42; });
    EXPECT_EQ(control.Call(2006, 0, 0, 1), 0);
    EXPECT_EQ(control.Call(2006, 0, 0, 0), 42);
    control.SetupDirectAccess();
    EXPECT_EQ(control.Call(2006, 0, 0, 1), 42);
}

TEST(ControlLife, CreateOfABareWindowIsTheCallersToAttach)
{
    recording::Forget();
    ParentWindow parent;
    OpenControl control;
    const HWND window = control.Create(parent.widget(), nullptr);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(GetParent(window), parent.widget());
    EXPECT_FALSE(window->isVisibleTo(parent.widget()));
    EXPECT_EQ(window->geometry(), QRect(0, 0, 100, 100));
    EXPECT_EQ(control.GetHwnd(), window);
    EXPECT_EQ(control.GetSafeHwnd(), nullptr);
    EXPECT_EQ(control.m_bCreated, 1);
    EXPECT_EQ(control.m_pDirectFunction, nullptr);
    EXPECT_EQ(control.GetLength(1), 0);
    AnswerTo(2006, [](WPARAM, LPARAM) { return 42; });
    ASSERT_TRUE(control.Attach(window));
    control.SetupDirectAccess();
    EXPECT_EQ(control.GetLength(1), 42);
}

TEST(ControlLife, SubclassingAfterACreateSetsNothingUp)
{
    ParentWindow parent;
    OpenControl control;
    control.m_bCreated = 1;
    const HWND window =
        CreateWindowOfClass(engine::kWindowClass, WS_CHILD, RECT{}, parent.widget());
    ASSERT_TRUE(control.SubclassWindow(window));
    EXPECT_EQ(control.m_hEditorWnd, nullptr);
    EXPECT_EQ(control.m_pDirectFunction, nullptr);
}

TEST_F(Channel, SubclassingSetsDirectAccessUp)
{
    EXPECT_NE(control.m_pDirectFunction, nullptr);
    EXPECT_EQ(control.m_hEditorWnd.data(), control.GetSafeHwnd());
}

TEST_F(Channel, DirectCallsNeedTheFunctionAndMessagesDoNot)
{
    AnswerTo(2006, [](WPARAM, LPARAM) { return 5; });
    const engine::DirectFunction function = std::exchange(control.m_pDirectFunction, nullptr);
    EXPECT_EQ(control.Call(2006, 0, 0, 1), 0);
    EXPECT_TRUE(Messages().empty());
    EXPECT_EQ(control.Call(2006, 0, 0, 0), 5);
    control.m_pDirectFunction = function;
    EXPECT_EQ(control.Call(2006, 0, 0, 1), 5);
}

TEST_F(Channel, ADestroyedWindowAnswersNothing)
{
    delete control.GetSafeHwnd();
    EXPECT_EQ(control.Call(2006, 0, 0, 1), 0);
    EXPECT_EQ(control.Call(2006, 0, 0, 0), 0);
    EXPECT_EQ(control.GetHwnd(), nullptr);
    EXPECT_EQ(control.GetDirectFunction(), 0);
    EXPECT_TRUE(Messages().empty());
}

TEST_F(Channel, GetSelMessageGivesBothEndsAndAWordOfBoth)
{
    AnswerTo(engine::message::GetSelectionStart, [](WPARAM, LPARAM) { return 0x12345; });
    AnswerTo(engine::message::GetSelectionEnd, [](WPARAM, LPARAM) { return 0x7A0008; });
    int start = 0;
    int end = 0;
    const LRESULT answer =
        SendMessage(control.GetSafeHwnd(), 0x00B0, reinterpret_cast<WPARAM>(&start),
                    reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(start, 0x12345);
    EXPECT_EQ(end, 0x7A0008);
    EXPECT_EQ(answer, 0x2345 | 0x7A);
    EXPECT_EQ(SendMessage(control.GetSafeHwnd(), 0x00B0, 0, 0), answer);
}

TEST_F(Channel, LineLengthMessageGivesTheWholeLength)
{
    AnswerTo(engine::message::GetLength, [](WPARAM, LPARAM) { return 777; });
    EXPECT_EQ(SendMessage(control.GetSafeHwnd(), 0x00C1, 3, 4), 777);
}

TEST_F(Channel, AddTextWithAModeRunsToTheTerminator)
{
    SetMode(1);
    control.AddText(3, u"a\nbcd", 1);
    EXPECT_EQ(Sentences(), (Strings{"GetEOLMode", "AddTextNoProcess(a\r\nbcd)"}));
    EXPECT_EQ(Messages().back().wParam, 6u);
}

TEST_F(Channel, AddTextWithoutAModeAddsWhatWasAsked)
{
    SetMode(0);
    control.AddText(3, u"a\nbcd", 1);
    EXPECT_EQ(Sentences(), (Strings{"GetEOLMode", "AddTextNoProcess(a\nb)"}));
}

TEST_F(Channel, AddTextOfNothingPassesTheGivenLength)
{
    SetMode(1);
    const char16_t empty[6] = u"";
    control.AddText(4, empty, 1);
    EXPECT_EQ(Messages().back().number, 2001u);
    EXPECT_EQ(Messages().back().wParam, 4u);
    EXPECT_EQ(Messages().back().lParam, reinterpret_cast<LPARAM>(empty));
    control.AddText(0, nullptr, 1);
    EXPECT_EQ(Messages().back().lParam, 0);
}

TEST_F(Channel, EnteredTextTakesTheLineEndsOfEachMode)
{
    const std::pair<int, std::u16string> modes[] = {
        {1, u"a\r\nb\r\nc\r\n"}, {2, u"a\rb\rc\r"}, {3, u"a\nb\nc\n"}, {0, u"a\r\nb\rc\n"}};
    for (const auto& [mode, expected] : modes) {
        SetMode(mode);
        control.ReplaceSel(u"a\r\nb\rc\n", 1);
        EXPECT_EQ(Messages().back().number, 2170u);
        EXPECT_EQ(Messages().back().wParam, 0u);
        EXPECT_EQ(Messages().back().text, expected);
    }
}

TEST_F(Channel, ReplaceTargetAnswersForTheEngineAndForwardsThePath)
{
    SetMode(3);
    AnswerTo(engine::message::ReplaceTargetNoProcess, [](WPARAM, LPARAM) { return 4; });
    EXPECT_EQ(control.ReplaceTarget(1, u"ab\r\n", 0), 4);
    EXPECT_EQ(Messages().back().text, u"ab\n");
    EXPECT_FALSE(Messages().back().direct);
    EXPECT_TRUE(Messages().front().direct); // the mode is always asked directly
}

TEST_F(Channel, CopyCarriesTheLineEndingStyle)
{
    control.Copy(1);
    EXPECT_EQ(Messages().back().lParam, -1);
    control.SetLineEndingStyle(3);
    control.Copy(0);
    EXPECT_EQ(Messages().back().number, 2178u);
    EXPECT_EQ(Messages().back().wParam, 0u);
    EXPECT_EQ(Messages().back().lParam, 3);
    EXPECT_FALSE(Messages().back().direct);
}

TEST_F(Channel, SetTextClearsTheModifiedFlagAlone)
{
    control.SetModified(true);
    control.SetText(u"text", 1);
    EXPECT_FALSE(control.GetModified());
    EXPECT_EQ(Sentences(), (Strings{"SetText(text)"}));
}

TEST_F(Channel, GetFileByteLengthDoublesForUtf16LittleEndianOnly)
{
    AnswerTo(engine::message::GetLength, [](WPARAM, LPARAM) { return 10; });
    control.SetEncoding(2);
    EXPECT_EQ(control.GetFileByteLength(), 20);
    for (const int encoding : {-1, 0, 4, 6, 8, 10, 11}) {
        control.SetEncoding(encoding);
        EXPECT_EQ(control.GetFileByteLength(), 10) << encoding;
    }
}

TEST_F(Channel, GetSelTextAsksForTheBoundsAndReadsToTheTerminator)
{
    AnswerTo(engine::message::GetSelectionStart, [](WPARAM, LPARAM) { return 4; });
    AnswerTo(engine::message::GetSelectionEnd, [](WPARAM, LPARAM) { return 9; });
    AnswerTo(engine::message::GetSelText, [](WPARAM, LPARAM lParam) {
        std::u16string(u"ab\0cd", 5).copy(reinterpret_cast<char16_t*>(lParam), 5);
        return 5;
    });
    EXPECT_EQ(control.GetSelText(), QStringLiteral("ab"));
    EXPECT_EQ(Messages().back().number, 2161u);
    EXPECT_EQ(Messages().back().wParam, 0u);
}

TEST_F(Channel, GetRangeHandsOverARecord)
{
    AnswerTo(engine::message::GetTextRange, [](WPARAM, LPARAM lParam) {
        const auto& range = *reinterpret_cast<const TextRange*>(lParam);
        EXPECT_EQ(range.chrg.cpMin, 3);
        EXPECT_EQ(range.chrg.cpMax, 5);
        std::u16string(u"xy").copy(range.lpstrText, 2);
        return 2;
    });
    char16_t buffer[3] = {};
    EXPECT_EQ(control.GetRange(3, 5, buffer), 2);
    EXPECT_EQ(std::u16string(buffer), u"xy");
    EXPECT_TRUE(Messages().back().direct);
}

TEST_F(Channel, SelectionAndTargetGoByRecordToo)
{
    AnswerTo(engine::message::GetSelectionStart, [](WPARAM, LPARAM) { return 4; });
    AnswerTo(engine::message::GetSelectionEnd, [](WPARAM, LPARAM) { return 9; });
    CharacterRange range;
    control.GetSel(range);
    EXPECT_EQ(range.cpMin, 4);
    EXPECT_EQ(range.cpMax, 9);
    recording::Forget();
    control.SetTarget(&range);
    control.SetTarget(1, 2);
    EXPECT_EQ(Sentences(), (Strings{"SetTargetStart 4", "SetTargetEnd 9", "SetTargetStart 1",
                                    "SetTargetEnd 2"}));
}

TEST_F(Channel, AnalysisSwitchesPassTheirFlag)
{
    AnswerTo(engine::message::GetIsReconcilerEnabled, [](WPARAM, LPARAM) { return 1; });
    control.SetEnableReconciler(true, 1);
    control.SetEnableReconciler(false, 1);
    control.SetDoingReplaceAll(true, 1);
    control.SetDoingReplaceAll(false, 1);
    EXPECT_EQ(control.GetIsReconcilerEnabled(), 1);
    EXPECT_EQ(Sentences(),
              (Strings{"SetEnableReconciler 1", "SetEnableReconciler 0", "SetDoingReplaceAll 1",
                       "SetDoingReplaceAll 0", "GetIsReconcilerEnabled"}));
}

} // namespace
