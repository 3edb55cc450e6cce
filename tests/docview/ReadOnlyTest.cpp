// SPDX-License-Identifier: GPL-3.0-or-later
// Files that may not be written, and the switch between writable and read-only.
#include "EditDocFixture.h"

#include "platform/windows/ActionUI.h"

namespace {

class ReadOnlyFile : public EditDocTest
{
protected:
    OpenDoc* OpenProtected()
    {
        const QString path = Write("a.sql", "text");
        Protect("a.sql");
        return Open(path);
    }
    void Switch(OpenDoc* doc) { EXPECT_TRUE(doc->OnCmdMsg(54010, nullptr)); }
    bool IsProtected() const
    {
        return GetFileAttributesW(Path("a.sql")) == FILE_ATTRIBUTE_READONLY;
    }
};

} // namespace

TEST_F(ReadOnlyFile, IsOpenedReadOnlyAndUntracked)
{
    OpenDoc* doc = OpenProtected();
    EXPECT_TRUE(doc->IsFileReadOnly());
    EXPECT_TRUE(Control(doc).GetReadOnly(1));
    EXPECT_FALSE(doc->m_fileFrozen);
    EXPECT_EQ(doc->m_lastAccessTime, 0);
    EXPECT_EQ(doc->m_changedTime, 0);
    EXPECT_EQ(doc->ShouldParse(), 0);
}

TEST_F(ReadOnlyFile, IsParsedOnceItsTextChanges)
{
    OpenDoc* doc = OpenProtected();
    Control(doc).SetReadOnly(0, 1);
    Type(doc, "x");
    EXPECT_EQ(doc->ShouldParse(), 1);
}

TEST_F(ReadOnlyFile, ThatWasNeverReadIsFrozenForGood)
{
    facts.neverRead = true;
    OpenDoc* doc = OpenProtected();
    EXPECT_TRUE(doc->m_fileFrozen);
    facts.neverRead = false;
    Switch(doc);
    EXPECT_TRUE(Control(doc).GetReadOnly(1));
    EXPECT_EQ(doc->OnOpenDocument(Write("b.sql", "other")), 1);
    EXPECT_TRUE(doc->m_fileFrozen);
    EXPECT_EQ(doc->m_lastAccessTime, 0);
    SetTime("b.sql", 5);
    doc->CheckLastAccessTime();
    EXPECT_TRUE(user.asked.isEmpty());
}

TEST_F(ReadOnlyFile, IsWritableAgainAfterASaveElsewhere)
{
    OpenDoc* doc = OpenProtected();
    doc->SetModifiedFlag(1);
    EXPECT_EQ(doc->OnSaveDocument(Path("b.sql")), 1);
    EXPECT_FALSE(doc->IsFileReadOnly());
    EXPECT_FALSE(Control(doc).GetReadOnly(1));
    EXPECT_NE(doc->m_lastAccessTime, 0);
}

TEST_F(ReadOnlyFile, SwitchAsksWhetherTheFileFollows)
{
    OpenDoc* doc = OpenScript();
    Switch(doc);
    EXPECT_EQ(user.asked,
              QStringList("Do you want to set the file '" + Path("a.sql") + "' to read only too?"));
    EXPECT_TRUE(Control(doc).GetReadOnly(1));
    EXPECT_FALSE(IsProtected()); // on a No they differ
    EXPECT_FALSE(doc->IsFileReadOnly());
    Switch(doc);
    EXPECT_EQ(user.asked.size(), 1); // they agree again
}

TEST_F(ReadOnlyFile, SwitchTakesTheFileAlongOnAYes)
{
    OpenDoc* doc = OpenScript();
    user.answer = Answer::Yes;
    Switch(doc);
    EXPECT_TRUE(IsProtected());
    EXPECT_TRUE(doc->IsFileReadOnly());
    Switch(doc);
    EXPECT_FALSE(IsProtected());
    EXPECT_FALSE(doc->IsFileReadOnly());
    EXPECT_FALSE(Control(doc).GetReadOnly(1));
}

TEST_F(ReadOnlyFile, SwitchOfADocumentWithoutAFileIsTheEditorsAlone)
{
    OpenDoc* doc = New();
    Switch(doc);
    EXPECT_TRUE(Control(doc).GetReadOnly(1));
    EXPECT_TRUE(user.asked.isEmpty());
}

TEST_F(ReadOnlyFile, ThatIsGoneReadsAsReadOnly)
{
    OpenDoc* doc = OpenScript();
    QFile::remove(Path("a.sql"));
    user.answer = Answer::Yes;
    Switch(doc); // read-only, as the file is taken to be
    EXPECT_TRUE(user.asked.isEmpty());
    Switch(doc);
    EXPECT_EQ(user.asked.size(), 1);
    EXPECT_FALSE(doc->IsFileReadOnly());
    EXPECT_FALSE(QFile::exists(Path("a.sql")));
}

TEST_F(ReadOnlyFile, SwitchIsOfferedForWritableFilesAndShowsTheEditorsState)
{
    OpenDoc* doc = OpenScript();
    QAction action;
    SetCommand(action, 54010, doc->GetFirstEditView()->GetSafeHwnd());
    UpdateActions({&action}, *doc);
    EXPECT_TRUE(action.isEnabled());
    EXPECT_FALSE(action.isChecked());
    Control(doc).SetReadOnly(1, 1);
    UpdateActions({&action}, *doc);
    EXPECT_TRUE(action.isChecked());
    UpdateActions({&action}, *OpenProtected());
    EXPECT_FALSE(action.isEnabled());
}

TEST_F(ReadOnlyFile, MoveIsOfferedForAFileAndDoesNothing)
{
    QAction action;
    OpenDoc* doc = OpenScript();
    SetCommand(action, 54011, doc->GetFirstEditView()->GetSafeHwnd());
    UpdateActions({&action}, *New());
    EXPECT_FALSE(action.isEnabled());
    UpdateActions({&action}, *doc);
    EXPECT_TRUE(action.isEnabled());
    action.trigger();
    EXPECT_TRUE(QFile::exists(Path("a.sql")));
}
