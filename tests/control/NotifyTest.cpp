// SPDX-License-Identifier: GPL-3.0-or-later
// What the control makes of the engine's notifications.
#include "tests/control/ControlFixture.h"
#include "tests/control/RecordingEngine.h"

namespace {

using recording::AnswerTo;
using recording::Messages;
using recording::Sentences;
using Strings = std::vector<std::string>;

class Notifications : public ControlTest
{
protected:
    Notifications() { recording::Forget(); }

    SCNotification Record(UINT code) const
    {
        SCNotification record;
        record.nmhdr.hwndFrom = control.m_hEditorWnd;
        record.nmhdr.code = code;
        return record;
    }

    int Handle(const SCNotification& record)
    {
        return control.HandleNotify(reinterpret_cast<LPARAM>(&record));
    }

    int HandleChange(int type)
    {
        SCNotification record = Record(notify::Modified);
        record.modificationType = type;
        return Handle(record);
    }
};

TEST_F(Notifications, AreTheControlsIfTheirSenderIs)
{
    SCNotification record = Record(notify::Painted);
    EXPECT_TRUE(control.IsBaseEditorNotify(reinterpret_cast<LPARAM>(&record)));
    record.nmhdr.hwndFrom = parent.widget();
    EXPECT_FALSE(control.IsBaseEditorNotify(reinterpret_cast<LPARAM>(&record)));
}

TEST_F(Notifications, EveryCodeIsTheAnswer)
{
    for (UINT code = 1999; code < 2040; ++code)
        EXPECT_EQ(Handle(Record(code)), static_cast<int>(code));
}

TEST_F(Notifications, SavePointsAndCharactersMoveTheModifiedFlag)
{
    Handle(Record(notify::CharAdded));
    EXPECT_TRUE(control.GetModified());
    Handle(Record(notify::SavePointReached));
    EXPECT_FALSE(control.GetModified());
    Handle(Record(notify::SavePointLeft));
    EXPECT_TRUE(control.GetModified());
}

TEST_F(Notifications, AnUpdateMeasuresTheSelection)
{
    AnswerTo(engine::message::GetSelectionStart, [](WPARAM, LPARAM) { return 4; });
    AnswerTo(engine::message::GetSelectionEnd, [](WPARAM, LPARAM) { return 9; });
    Handle(Record(notify::UpdateUi));
    EXPECT_EQ(control.GetSelLength(), 5);
}

TEST_F(Notifications, TheFirstChangeAfterASaveTellsNobody)
{
    HandleChange(modification::InsertText);
    EXPECT_TRUE(control.GetModified());
    EXPECT_TRUE(parent.editChanges.empty());
    HandleChange(modification::DeleteText);
    ASSERT_EQ(parent.editChanges.size(), 1u);
    EXPECT_EQ(parent.editChanges[0].first, reinterpret_cast<WPARAM>(control.GetSafeHwnd()));
    EXPECT_EQ(parent.editChanges[0].second, 1);
    Handle(Record(notify::SavePointReached));
    HandleChange(modification::User);
    EXPECT_EQ(parent.editChanges.size(), 1u);
    HandleChange(modification::User);
    EXPECT_EQ(parent.editChanges.size(), 2u);
}

TEST_F(Notifications, OnlyTextAndUserChangesAreTold)
{
    control.SetModified(true);
    HandleChange(modification::ChangeStyle | modification::ChangeMarker | modification::Undo);
    EXPECT_TRUE(parent.editChanges.empty());
}

TEST_F(Notifications, AStyleChangeStillSetsTheModifiedFlag)
{
    HandleChange(modification::ChangeStyle);
    EXPECT_TRUE(control.GetModified());
}

TEST_F(Notifications, AReadOnlyEngineTellsNobodyAndStillCountsAsModified)
{
    AnswerTo(engine::message::GetReadOnly, [](WPARAM, LPARAM) { return 1; });
    HandleChange(modification::InsertText);
    EXPECT_TRUE(control.GetModified());
    HandleChange(modification::InsertText);
    EXPECT_TRUE(parent.editChanges.empty());
}

TEST_F(Notifications, AControlWithoutAParentTellsNobody)
{
    control.GetSafeHwnd()->setParent(nullptr);
    control.SetModified(true);
    EXPECT_EQ(HandleChange(modification::InsertText), 2008);
    EXPECT_TRUE(parent.editChanges.empty());
}

TEST_F(Notifications, AClickOutsideTheFoldMarginChangesNothing)
{
    AnswerTo(engine::message::GetFoldLevel, [](WPARAM, LPARAM) { return 0x2400; });
    SCNotification record = Record(notify::MarginClick);
    for (const int margin : {0, 1, 2, 4}) {
        record.margin = margin;
        Handle(record);
    }
    EXPECT_TRUE(Messages().empty());
    EXPECT_FALSE(control.GetModified());
}

TEST_F(Notifications, AClickInTheFoldMarginTogglesAHeader)
{
    AnswerTo(engine::message::LineFromPosition, [](WPARAM, LPARAM) { return 12; });
    AnswerTo(engine::message::GetFoldLevel, [](WPARAM, LPARAM) { return 0x2400; });
    SCNotification record = Record(notify::MarginClick);
    record.margin = 3;
    record.position = 345;
    Handle(record);
    EXPECT_EQ(Sentences(), (Strings{"LineFromPosition 345", "GetFoldLevel 12", "ToggleFold 12"}));
    AnswerTo(engine::message::GetFoldLevel, [](WPARAM, LPARAM) { return 0x400; });
    Handle(record);
    EXPECT_EQ(Sentences().back(), "GetFoldLevel 12");
}

class FoldLevels : public Notifications
{
protected:
    void HandleLevels(int from, int to)
    {
        SCNotification record = Record(notify::Modified);
        record.modificationType = modification::ChangeFold;
        record.line = 7;
        record.foldLevelPrev = from;
        record.foldLevelNow = to;
        Handle(record);
    }
};

TEST_F(FoldLevels, ALineThatBecomesAHeaderIsExpanded)
{
    HandleLevels(0x401, 0x2401);
    EXPECT_EQ(Sentences(), (Strings{"SetFoldExpanded 7 1"}));
}

TEST_F(FoldLevels, AFoldedHeaderThatIsNoneAnyMoreShowsItsLines)
{
    AnswerTo(engine::message::GetLastChild, [](WPARAM, LPARAM) { return 8; });
    HandleLevels(0x2401, 0x401);
    EXPECT_EQ(Sentences(),
              (Strings{"GetFoldExpanded 7", "GetLastChild 7 1025", "ShowLines 8 8",
                       "GetFoldExpanded 8", "SetFoldExpanded 8 1", "GetLastChild 8 4095"}));
}

TEST_F(FoldLevels, AnExpandedHeaderThatIsNoneAnyMoreIsLeftAlone)
{
    AnswerTo(engine::message::GetFoldExpanded, [](WPARAM, LPARAM) { return 1; });
    HandleLevels(0x2401, 0x401);
    EXPECT_EQ(Sentences(), (Strings{"GetFoldExpanded 7"}));
}

} // namespace
