// SPDX-License-Identifier: GPL-3.0-or-later
// The copy of a text that is not the user's file, and what a document tells its views.
#include "EditDocFixture.h"
#include "platform/docview/CommandIds.h"

namespace {

using TempCopy = EditDocTest;

} // namespace

TEST_F(TempCopy, HoldsTheTextAndLeavesItModified)
{
    OpenDoc* doc = OpenScript();
    Type(doc, "-- ");
    EXPECT_EQ(doc->SaveTempCopy(), 0);
    EXPECT_EQ(doc->GetTempPathName(), folders.folder.filePath("a.sql"));
    EXPECT_EQ(Read(doc->GetTempPathName()), "-- select 1");
    EXPECT_TRUE(doc->IsModified());
    EXPECT_EQ(Read(Path("a.sql")), "select 1");
}

TEST_F(TempCopy, IsWrittenAnewUnderTheSameName)
{
    OpenDoc* doc = OpenScript();
    doc->SaveTempCopy();
    const QString name = doc->GetTempPathName();
    Type(doc, "-- ");
    EXPECT_EQ(doc->SaveTempCopy(), 0);
    EXPECT_EQ(doc->GetTempPathName(), name);
    EXPECT_EQ(Read(name), "-- select 1");
}

TEST_F(TempCopy, AnswersOneIfItCannotBeWritten)
{
    OpenDoc* doc = OpenScript();
    QFile::link("/dev/full", folders.folder.filePath("a.sql"));
    EXPECT_EQ(doc->SaveTempCopy(), 1);
    EXPECT_TRUE(doc->m_tempCopySaved);
    EXPECT_FALSE(doc->GetTempPathName().isEmpty());
}

TEST_F(TempCopy, IsNotMadeWithoutAPathOrAFolder)
{
    EXPECT_EQ(New()->SaveTempCopy(), 0);
    OpenDoc* doc = OpenScript();
    folders.there = false;
    EXPECT_EQ(doc->SaveTempCopy(), 0);
    EXPECT_FALSE(doc->m_tempCopySaved);
    EXPECT_TRUE(doc->GetTempPathName().isEmpty());
}

TEST_F(TempCopy, OfAFileInItsOwnFolderIsRefused)
{
    const QString path = folders.folder.filePath("a.sql");
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("mine");
    file.close();
    OpenDoc* doc = Open(path);
    EXPECT_EQ(doc->SaveTempCopy(), 1);
    doc->OnCloseDocument();
    Settle();
    EXPECT_EQ(Read(path), "mine");
}

TEST_F(TempCopy, GoesWithTheNextSaveOrOpenAndItsNameToo)
{
    OpenDoc* doc = OpenScript();
    Type(doc, "-- ");
    doc->SaveTempCopy();
    const QString name = doc->GetTempPathName();
    EXPECT_EQ(doc->DoFileSave(), 1);
    EXPECT_FALSE(QFile::exists(name));
    EXPECT_TRUE(doc->GetTempPathName().isEmpty());
    doc->SaveTempCopy();
    EXPECT_EQ(doc->OnOpenDocument(Write("b.sql", "other")), 1);
    EXPECT_FALSE(QFile::exists(name));
    doc->SaveTempCopy();
    EXPECT_EQ(doc->GetTempPathName(), folders.folder.filePath("b.sql"));
}

TEST_F(TempCopy, KeepsItsNameOverAReload)
{
    OpenDoc* doc = OpenScript();
    doc->SaveTempCopy();
    const QString name = doc->GetTempPathName();
    doc->ReloadFile();
    EXPECT_FALSE(QFile::exists(name));
    EXPECT_EQ(doc->GetTempPathName(), name);
}

TEST_F(TempCopy, ThatCannotBeRemovedRaisesAndStillCounts)
{
    OpenDoc* doc = OpenScript();
    doc->SaveTempCopy();
    QFile::remove(doc->GetTempPathName());
    QDir().mkdir(doc->GetTempPathName());
    EXPECT_THROW(doc->RemoveTempCopy(1), CFileException);
    EXPECT_TRUE(doc->m_tempCopySaved);
    EXPECT_FALSE(doc->GetTempPathName().isEmpty());
}

TEST_F(TempCopy, ThatIsGoneRaisesInEveryStepThatRemovesIt)
{
    OpenDoc* doc = OpenScript();
    Type(doc, "-- ");
    doc->SaveTempCopy();
    QFile::remove(doc->GetTempPathName());
    EXPECT_THROW(doc->OnSaveDocument(Path("a.sql")), CFileException);
    EXPECT_THROW(doc->SaveTempCopy(), CFileException);
    EXPECT_THROW(doc->ReloadFile(), CFileException);
    EXPECT_THROW(doc->OnOpenDocument(Path("a.sql")), CFileException);
    EXPECT_TRUE(doc->m_tempCopySaved);
    EXPECT_TRUE(doc->IsModified());
    EXPECT_EQ(Text(doc), "-- select 1");
    EXPECT_EQ(Read(Path("a.sql")), "select 1");
}

// Note: the copy counts as written, as the control tells it.
TEST_F(TempCopy, ThatWasNeverWrittenCountsAndRaisesToo)
{
    OpenDoc* doc = OpenScript();
    QDir(folders.folder.path()).mkdir("a.sql");
    EXPECT_EQ(doc->SaveTempCopy(), 0);
    EXPECT_TRUE(doc->m_tempCopySaved);
    EXPECT_THROW(doc->RemoveTempCopy(1), CFileException);
    EXPECT_TRUE(doc->m_tempCopySaved);
}

TEST_F(TempCopy, ThatIsGoneIsToldToAUserWhoSaves)
{
    OpenDoc* doc = OpenScript();
    Type(doc, "-- ");
    doc->SaveTempCopy();
    const QString copy = doc->GetTempPathName();
    QFile::remove(copy);
    SendMessage(doc->GetFirstEditView()->GetParentFrame()->GetSafeHwnd(), WM_COMMAND, ID_FILE_SAVE,
                0);
    ASSERT_EQ(user.asked.size(), 1);
    EXPECT_TRUE(user.asked[0].contains(copy));
    EXPECT_TRUE(doc->IsModified());
    EXPECT_EQ(Text(doc), "-- select 1");
}

// The name is that of the file alone: of two documents with one name the later copy stands, until
// the first of them removes it.
TEST_F(TempCopy, IsSharedByDocumentsOfOneName)
{
    OpenDoc* first = OpenScript();
    QDir(folder.path()).mkdir("other");
    OpenDoc* second = Open(Write("other/a.sql", "select 2"));
    first->SaveTempCopy();
    second->SaveTempCopy();
    EXPECT_EQ(first->GetTempPathName(), second->GetTempPathName());
    EXPECT_EQ(Read(first->GetTempPathName()), "select 2");
    first->OnCloseDocument();
    Settle();
    EXPECT_FALSE(QFile::exists(second->GetTempPathName()));
    EXPECT_THROW(second->RemoveTempCopy(0), CFileException);
}

TEST_F(TempCopy, GoesWithItsDocument)
{
    OpenDoc* doc = OpenScript();
    doc->SaveTempCopy();
    const QString name = doc->GetTempPathName();
    ASSERT_TRUE(QFile::exists(name));
    doc->OnCloseDocument();
    Settle();
    EXPECT_FALSE(QFile::exists(name));
}

TEST_F(TempCopy, ThatIsGoneAlreadyDoesNotKeepItsDocument)
{
    OpenDoc* doc = OpenScript();
    doc->SaveTempCopy();
    QFile::remove(doc->GetTempPathName());
    doc->OnCloseDocument();
    Settle();
    EXPECT_TRUE(kind.GetDocuments().empty());
}

TEST_F(EditDocTest, TogglesAreTheDocumentsOwn)
{
    OpenDoc* doc = New();
    EXPECT_EQ(doc->GetSyntaxHighlighting(), 1);
    EXPECT_EQ(doc->GetBraceMatching(), 1);
    EXPECT_EQ(doc->GetSelectCopy(), 0);
    EXPECT_EQ(doc->GetLanguageNr(), 1);
    doc->ToggleSyntaxHighlighting();
    doc->ToggleBraceMatching();
    EXPECT_EQ(doc->GetSyntaxHighlighting(), 0);
    EXPECT_EQ(doc->GetBraceMatching(), 0);
    EXPECT_EQ(New()->GetBraceMatching(), 1);
}

// A view beside the editor's own, which hears what the document tells all of them.
class Listener : public CView
{
public:
    void OnUpdate(CView* /*sender*/, std::intptr_t hint, CObject* /*object*/) override
    {
        hints.push_back(hint);
    }
    std::vector<std::intptr_t> hints;
};

TEST_F(EditDocTest, NewDefaultsAndTheSyntaxToggleReachEveryView)
{
    OpenDoc* doc = New();
    auto* listener = new Listener;
    CCreateContext context;
    context.m_pCurrentDoc = doc;
    ASSERT_TRUE(listener->CreateView(doc->GetFirstEditView()->GetParentFrame(), &context));
    doc->ReloadDefaults();
    doc->ToggleSyntaxHighlighting();
    doc->ToggleBraceMatching();
    EXPECT_EQ(listener->hints, (std::vector<std::intptr_t>{1, 1}));
    EXPECT_NE(static_cast<CView*>(doc->GetFirstEditView()), listener);
}
