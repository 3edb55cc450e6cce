// SPDX-License-Identifier: GPL-3.0-or-later
// What a document notices of what others do to its file, and what it asks.
#include "EditDocFixture.h"

#include "platform/windows/ActionUI.h"

#include <QTest>

namespace {

class OutsideChange : public EditDocTest
{
protected:
    OutsideChange() { doc = OpenScript(); }

    QString Gone() const
    {
        return "'" + Path("a.sql") +
               "'\nFile has been deleted outside of this application!\n"
               "Do you want to close this Document?";
    }
    QString Rewritten() const
    {
        return "'" + Path("a.sql") +
               "'\nFile has been modified outside of this application!\n"
               "Do you want to reload it?";
    }

    OpenDoc* doc = nullptr;
};

} // namespace

TEST_F(OutsideChange, ThatIsNoneAsksNothing)
{
    doc->CheckLastAccessTime();
    EXPECT_TRUE(user.asked.isEmpty());
    EXPECT_EQ(doc->m_lastAccessTime, 100000);
}

TEST_F(OutsideChange, IsReloadedOnAYes)
{
    Write("a.sql", "select 2", 100001);
    user.answer = Answer::Yes;
    doc->clock = 2000;
    doc->CheckLastAccessTime();
    EXPECT_EQ(user.asked, QStringList(Rewritten()));
    EXPECT_EQ(Text(doc), "select 2");
    EXPECT_EQ(doc->m_lastAccessTime, 100001);
    EXPECT_EQ(doc->m_changedTime, 2000);
    doc->CheckLastAccessTime();
    EXPECT_EQ(user.asked.size(), 1);
}

TEST_F(OutsideChange, ToAnOlderTimeCountsAsWell)
{
    Write("a.sql", "restored", 90000);
    user.answer = Answer::Yes;
    doc->CheckLastAccessTime();
    EXPECT_EQ(Text(doc), "restored");
}

TEST_F(OutsideChange, IsLeftAloneOnANoUntilTheNextSave)
{
    Write("a.sql", "select 2", 100001);
    doc->CheckLastAccessTime();
    EXPECT_EQ(Text(doc), "select 1");
    EXPECT_EQ(doc->m_lastAccessTime, 0);
    Write("a.sql", "select 3", 100002);
    doc->CheckLastAccessTime();
    EXPECT_EQ(user.asked.size(), 1);
    Type(doc, "-- ");
    EXPECT_EQ(doc->DoFileSave(), 1);
    EXPECT_EQ(Read(Path("a.sql")), "-- select 1");
    Write("a.sql", "select 4", 100003);
    doc->CheckLastAccessTime();
    EXPECT_EQ(user.asked.size(), 2);
}

TEST_F(OutsideChange, IsReloadedUnaskedIfTheOptionSaysSo)
{
    options.reload = 1;
    Write("a.sql", "select 2", 100001);
    doc->CheckLastAccessTime();
    EXPECT_TRUE(user.asked.isEmpty());
    EXPECT_EQ(Text(doc), "select 2");
}

TEST_F(OutsideChange, ThatTakesTheFileAwayClosesOnAYes)
{
    doc->SaveTempCopy();
    const QString copy = doc->GetTempPathName();
    QFile::remove(Path("a.sql"));
    user.answer = Answer::Yes;
    doc->CheckLastAccessTime();
    EXPECT_EQ(user.asked, QStringList(Gone()));
    EXPECT_FALSE(QFile::exists(copy));
    EXPECT_FALSE(doc->IsClosed()); // the message is on its way
    Settle();
    EXPECT_TRUE(kind.GetDocuments().empty());
}

TEST_F(OutsideChange, ThatTakesTheFileAwayIsAskedAboutOnceOnANo)
{
    QFile::remove(Path("a.sql"));
    doc->CheckLastAccessTime();
    doc->CheckLastAccessTime();
    EXPECT_EQ(user.asked.size(), 1);
    EXPECT_EQ(Text(doc), "select 1");
    Type(doc, "-- ");
    EXPECT_EQ(doc->DoFileSave(), 1);
    EXPECT_EQ(Read(Path("a.sql")), "-- select 1");
    SetTime("a.sql", 5);
    doc->CheckLastAccessTime();
    EXPECT_EQ(user.asked.size(), 2);
}

TEST_F(OutsideChange, ToReadOnlyIsFollowedWithoutAQuestion)
{
    Protect("a.sql");
    doc->CheckLastAccessTime();
    EXPECT_TRUE(doc->IsFileReadOnly());
    EXPECT_TRUE(Control(doc).GetReadOnly(1));
    EXPECT_TRUE(user.asked.isEmpty());
    Write("a.sql", "select 2", 100001); // no longer tracked
    doc->CheckLastAccessTime();
    EXPECT_TRUE(user.asked.isEmpty());
}

TEST_F(OutsideChange, IntoAFolderLosesNoText)
{
    Type(doc, "-- ");
    QFile::remove(Path("a.sql"));
    QDir().mkdir(Path("a.sql"));
    user.answer = Answer::Yes;
    doc->CheckLastAccessTime();
    EXPECT_EQ(Text(doc), "-- select 1");
    EXPECT_TRUE(doc->IsModified());
}

TEST_F(OutsideChange, ToNothingReloadsAsEmpty)
{
    Write("a.sql", "", 100001);
    user.answer = Answer::Yes;
    doc->CheckLastAccessTime();
    EXPECT_EQ(Text(doc), "");
    EXPECT_FALSE(doc->IsModified());
}

TEST_F(OutsideChange, WithoutAConfigurationIsRecordedAndNeverChecked)
{
    doc->configured = false;
    Type(doc, "-- ");
    SetTime("a.sql", 5);
    EXPECT_EQ(doc->DoFileSave(), 1);
    EXPECT_NE(doc->m_lastAccessTime, 100000);
    SetTime("a.sql", 6);
    doc->CheckLastAccessTime();
    EXPECT_TRUE(user.asked.isEmpty());
    EXPECT_EQ(doc->ShouldParse(), 0);
}

TEST_F(OutsideChange, IsNotLookedForWhenTheConfigurationSaysSo)
{
    zncoreeditor::GetConfigFile()->SetFileTracking(0);
    Write("a.sql", "select 2", 100001);
    doc->CheckLastAccessTime();
    EXPECT_TRUE(user.asked.isEmpty());
    EXPECT_EQ(doc->OnOpenDocument(Path("a.sql")), 1);
    EXPECT_EQ(doc->m_lastAccessTime, 100000);
}

TEST_F(OutsideChange, IsAskedAboutOnceThoughTheQuestionTakesTheFocus)
{
    Write("a.sql", "select 2", 100001);
    user.meanwhile = [&] {
        EXPECT_TRUE(doc->m_checkingAccessTime);
        Write("a.sql", "select 3", 100002);
        doc->CheckLastAccessTime();
    };
    doc->CheckLastAccessTime();
    EXPECT_EQ(user.asked.size(), 1);
    EXPECT_FALSE(doc->m_checkingAccessTime);
}

TEST_F(OutsideChange, ToADocumentThatIsClosedUnderTheQuestionEndsThere)
{
    Write("a.sql", "select 2", 100001);
    user.answer = Answer::Yes;
    user.meanwhile = [&] {
        doc->OnCloseDocument();
        Settle();
    };
    doc->CheckLastAccessTime();
    EXPECT_TRUE(doc->IsClosed());
    Settle();
}

TEST_F(OutsideChange, ReachesAnEditorThatTheUserHasMadeReadOnly)
{
    Control(doc).SetReadOnly(1, 1);
    Write("a.sql", "select 2", 100001);
    user.answer = Answer::Yes;
    doc->CheckLastAccessTime();
    EXPECT_EQ(Text(doc), "select 2");
    EXPECT_TRUE(Control(doc).GetReadOnly(1));
}

TEST_F(OutsideChange, WhoseTempCopyCannotBeRemovedRaisesAndCanBeCheckedAgain)
{
    doc->SaveTempCopy();
    QFile::remove(doc->GetTempPathName());
    QDir().mkdir(doc->GetTempPathName());
    Write("a.sql", "select 2", 100001);
    user.answer = Answer::Yes;
    EXPECT_THROW(doc->CheckLastAccessTime(), CFileException);
    EXPECT_TRUE(doc->m_tempCopySaved);
    EXPECT_FALSE(doc->m_checkingAccessTime);
}

TEST_F(OutsideChange, IsNotForgivenByAReloadThatTheUserAskedFor)
{
    Write("a.sql", "select 2", 100001);
    user.answer = Answer::Yes;
    EXPECT_TRUE(doc->OnCmdMsg(54008, nullptr));
    EXPECT_EQ(user.asked, QStringList("Do you want to reload '" + Path("a.sql") + "' ?"));
    EXPECT_EQ(Text(doc), "select 2");
    doc->CheckLastAccessTime();
    EXPECT_EQ(user.asked.size(), 2);
}

TEST_F(OutsideChange, ReloadGoesBackToTheLineOrTheEnd)
{
    Write("a.sql", "1\n2\n3\n4", 100001);
    options.reload = 1;
    doc->CheckLastAccessTime();
    Control(doc).GotoLine(2, 1);
    Write("a.sql", "1\n2\n3", 100002);
    doc->CheckLastAccessTime();
    EXPECT_EQ(Control(doc).GetCurrentPos(1), 4);
    Write("a.sql", "1\n2", 100003);
    doc->CheckLastAccessTime();
    EXPECT_EQ(Control(doc).GetCurrentPos(1), 3);
}

// The whole path, with keys and focus as the user's.
TEST_F(OutsideChange, OpenQuestionReloadAndParseFollowEachOther)
{
    CFrameWnd* frame = doc->GetFirstEditView()->GetParentFrame();
    const HWND editor = Control(doc).GetSafeHwnd();
    QWidget elsewhere;
    const auto goTo = [](QWidget* window, QWidget* inside) {
        window->show();
        QApplication::setActiveWindow(window);
        inside->setFocus();
        Settle();
    };
    EXPECT_EQ(doc->m_docPointer, Control(doc).GetDocPointer(1));
    EXPECT_EQ(doc->m_lastAccessTime, 100000);
    EXPECT_EQ(doc->ShouldParse(), 1);
    doc->SetParsedTime();
    EXPECT_EQ(doc->ShouldParse(), 0);
    goTo(frame->GetSafeHwnd(), editor);
    doc->clock = 1001;
    QTest::keyClicks(editor, "x");
    EXPECT_EQ(doc->GetTitle(), "a.sql *");
    EXPECT_EQ(doc->ShouldParse(), 1);
    doc->SetParsedTime();
    goTo(&elsewhere, &elsewhere);
    Write("a.sql", "select 2", 100001);
    Settle();
    EXPECT_TRUE(user.asked.isEmpty()); // nobody watches the file
    user.answer = Answer::Yes;
    doc->clock = 1002;
    goTo(frame->GetSafeHwnd(), editor);
    EXPECT_EQ(user.asked, QStringList(Rewritten()));
    EXPECT_EQ(Text(doc), "select 2");
    EXPECT_EQ(doc->m_lastAccessTime, 100001);
    EXPECT_EQ(doc->GetTitle(), "a.sql");
    EXPECT_FALSE(doc->IsModified());
    EXPECT_EQ(doc->ShouldParse(), 1);
    doc->SetParsedTime();
    EXPECT_EQ(doc->ShouldParse(), 0);
    goTo(&elsewhere, &elsewhere);
    goTo(frame->GetSafeHwnd(), editor);
    EXPECT_EQ(user.asked.size(), 1);
}

TEST_F(OutsideChange, IsLookedForWhenTheFocusComes)
{
    QWidget elsewhere;
    elsewhere.show();
    QApplication::setActiveWindow(&elsewhere);
    elsewhere.setFocus();
    Settle();
    Write("a.sql", "select 2", 100001);
    CFrameWnd* frame = doc->GetFirstEditView()->GetParentFrame();
    frame->ActivateFrame();
    QApplication::setActiveWindow(frame->GetSafeHwnd());
    Control(doc).SetFocus();
    Settle();
    EXPECT_EQ(user.asked, QStringList(Rewritten()));
}

TEST_F(OutsideChange, EditsWithinTheSecondOfAParseAreNotParsedAgain)
{
    doc->DocumentChanged();
    doc->SetParsedTime();
    doc->DocumentChanged();
    EXPECT_EQ(doc->ShouldParse(), 0);
    doc->clock += 1;
    Type(doc, "x"); // by way of the view
    EXPECT_EQ(doc->ShouldParse(), 1);
}

TEST_F(OutsideChange, ReloadIsOfferedForAFileWithChanges)
{
    QAction action;
    SetCommand(action, 54008, doc->GetFirstEditView()->GetSafeHwnd());
    UpdateActions({&action}, *doc);
    EXPECT_FALSE(action.isEnabled());
    Type(doc, "x");
    UpdateActions({&action}, *doc);
    EXPECT_TRUE(action.isEnabled());
    OpenDoc* other = New();
    other->SetModifiedFlag(1);
    UpdateActions({&action}, *other);
    EXPECT_FALSE(action.isEnabled());
    user.asked.clear();
    other->OnCmdMsg(54008, nullptr);
    EXPECT_TRUE(user.asked.isEmpty());
}
