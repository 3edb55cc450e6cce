// SPDX-License-Identifier: GPL-3.0-or-later
// What a document promises about its file, its views and its title.
#include "DocViewFixture.h"

#include <sys/stat.h>

namespace {

using Document = DocViewTest;

} // namespace

TEST_F(Document, OpensAFileIntoAViewOfItsKind)
{
    const NoteDoc* doc = Open(Write("a.note", "text"));
    ASSERT_NE(doc, nullptr);
    EXPECT_EQ(doc->text, "text");
    EXPECT_EQ(doc->GetTitle(), "a.note");
    EXPECT_EQ(ViewOf(doc)->heard, QStringList({"initial", "on"}));
    EXPECT_TRUE(ViewOf(doc)->IsKindOf(CView::GetThisClass()));
}

TEST_F(Document, WithoutAFileIsNumberedByItsKind)
{
    EXPECT_EQ(New()->GetTitle(), "Note1");
    EXPECT_EQ(New()->GetTitle(), "Note2");
}

TEST_F(Document, ThatCannotBeOpenedIsReportedAndLeavesNothing)
{
    EXPECT_EQ(Open(Path("missing.note")), nullptr);
    ASSERT_EQ(user.asked.size(), 1);
    EXPECT_TRUE(user.asked[0].contains("missing.note was not found"));
    EXPECT_TRUE(notes.GetDocuments().empty());
    Settle();
    EXPECT_EQ(liveObjects, 0);
}

TEST_F(Document, DoesNotOpenAFolder)
{
    EXPECT_EQ(Open(folder.path()), nullptr);
    EXPECT_EQ(user.asked.size(), 1);
}

TEST_F(Document, WhoseViewIsRefusedIsClosed)
{
    NoteView::refuses = true;
    EXPECT_EQ(Open(Write("a.note", "text")), nullptr);
    EXPECT_TRUE(notes.GetDocuments().empty());
    Settle();
    EXPECT_EQ(liveObjects, 0);
}

TEST_F(Document, TellsEveryViewButTheSender)
{
    NoteDoc* doc = New();
    NoteView* second = FurtherView(doc);
    doc->UpdateAllViews(second, 7, nullptr);
    EXPECT_TRUE(ViewOf(doc)->heard.contains("update 7"));
    EXPECT_FALSE(second->heard.contains("update 7"));
}

TEST_F(Document, SavesUnderItsPathWithoutAQuestion)
{
    NoteDoc* doc = Open(Write("a.note", "old"));
    doc->text = "fresh";
    doc->SetModifiedFlag();
    EXPECT_EQ(doc->DoFileSave(), 1);
    EXPECT_EQ(Read("a.note"), "fresh");
    EXPECT_FALSE(doc->IsModified());
    EXPECT_TRUE(user.asked.isEmpty());
}

TEST_F(Document, WithoutAPathAsksForOneAndTakesIt)
{
    NoteDoc* doc = New();
    doc->SetTitle("My note");
    user.saveAs = Path("chosen.note");
    EXPECT_EQ(doc->DoFileSave(), 1);
    EXPECT_EQ(user.proposed, "My.note"); // a title is cut where a file name had better end
    EXPECT_EQ(user.offered, "Notes (*.note)");
    EXPECT_EQ(doc->GetPathName(), Path("chosen.note"));
    EXPECT_EQ(doc->GetTitle(), "chosen.note");
}

TEST_F(Document, SavesACopyWithoutBecomingIt)
{
    NoteDoc* doc = Open(Write("a.note", "text"));
    EXPECT_EQ(doc->DoSave(Path("copy.note"), 0), 1);
    EXPECT_EQ(Read("copy.note"), "text");
    EXPECT_EQ(doc->GetPathName(), Path("a.note"));
}

TEST_F(Document, OfAReadOnlyFileIsSavedElsewhere)
{
    const QString path = Write("a.note", "text");
    NoteDoc* doc = Open(path);
    chmod(QFile::encodeName(path).constData(), 0444);
    EXPECT_EQ(doc->DoFileSave(), 0);
    EXPECT_EQ(user.proposed, path);
}

TEST_F(Document, ThatCannotBeSavedSaysWhyAndStaysModified)
{
    NoteDoc* doc = New();
    doc->SetModifiedFlag();
    EXPECT_EQ(doc->DoSave(Path("nowhere/a.note")), 0);
    EXPECT_TRUE(user.asked.value(0).contains("was not found"));
    EXPECT_TRUE(doc->IsModified());
    EXPECT_TRUE(doc->GetPathName().isEmpty());
}

TEST_F(Document, OnAFullDiskSaysSo)
{
    NoteDoc* doc = New();
    doc->text = "text";
    QFile::link("/dev/full", Path("full"));
    EXPECT_EQ(doc->DoSave(Path("full")), 0);
    EXPECT_EQ(user.asked.size(), 1);
}

TEST_F(Document, AsksAboutItsChangesBeforeItsLastFrameCloses)
{
    NoteDoc* doc = Open(Write("a.note", "old"));
    doc->text = "fresh";
    doc->SetModifiedFlag();
    const HWND frame = ViewOf(doc)->GetParentFrame()->GetSafeHwnd();
    user.answer = Answer::Cancel;
    SendMessage(frame, WM_CLOSE, 0, 0);
    EXPECT_FALSE(doc->IsClosed());
    user.answer = Answer::Yes;
    SendMessage(frame, WM_CLOSE, 0, 0);
    EXPECT_TRUE(doc->IsClosed());
    EXPECT_EQ(Read("a.note"), "fresh");
    EXPECT_EQ(user.asked.size(), 2);
}

TEST_F(Document, GivesItsChangesUpOnANo)
{
    NoteDoc* doc = Open(Write("a.note", "old"));
    doc->text = "fresh";
    doc->SetModifiedFlag();
    user.answer = Answer::No;
    EXPECT_EQ(doc->SaveModified(), 1);
    EXPECT_EQ(Read("a.note"), "old");
}

TEST_F(Document, IsAskedAboutByItsNameWithoutTheMarkOfItsChanges)
{
    NoteDoc* doc = Open(Write("a.note", "old"));
    doc->SetModifiedFlag();
    user.answer = Answer::Cancel;
    for (const char* title : {"a.note", "a.note *"}) {
        doc->SetTitle(title);
        doc->SaveModified();
        EXPECT_TRUE(user.asked.last().contains("the changes to a.note?")) << title;
    }
    EXPECT_EQ(doc->GetTitle(), "a.note *");
}

TEST_F(Document, WithAnotherFrameClosesOneWithoutAQuestion)
{
    NoteDoc* doc = New();
    NoteView* second = FurtherView(doc);
    doc->SetModifiedFlag();
    SendMessage(second->GetParentFrame()->GetSafeHwnd(), WM_CLOSE, 0, 0);
    EXPECT_TRUE(user.asked.isEmpty());
    EXPECT_EQ(doc->GetViews().size(), 1U);
    EXPECT_FALSE(doc->IsClosed());
}

TEST_F(Document, NumbersItsFramesWhenItHasSeveral)
{
    NoteDoc* doc = New();
    CFrameWnd* first = ViewOf(doc)->GetParentFrame();
    doc->SetTitle("plan");
    EXPECT_EQ(first->GetSafeHwnd()->windowTitle(), "plan");
    CFrameWnd* second = FurtherView(doc)->GetParentFrame();
    doc->SetTitle("plan");
    EXPECT_EQ(first->GetSafeHwnd()->windowTitle(), "plan:1");
    EXPECT_EQ(second->GetSafeHwnd()->windowTitle(), "plan:2");
}

TEST_F(Document, OfAFileIsOpenedOnce)
{
    const QString path = Write("a.note", "text");
    CDocument* doc = app.OpenDocumentFile(path);
    QFile::link(path, Path("link.note"));
    EXPECT_EQ(app.OpenDocumentFile(path), doc);
    EXPECT_EQ(app.OpenDocumentFile(Path("link.note")), doc);
    EXPECT_EQ(notes.GetDocuments().size(), 1U);
}

TEST_F(Document, IsOpenedByCommandFromTheUsersChoice)
{
    user.open = Write("a.note", "text");
    EXPECT_TRUE(app.OnCmdMsg(ID_FILE_OPEN, nullptr));
    EXPECT_EQ(user.offered, "Notes (*.note)");
    ASSERT_EQ(notes.GetDocuments().size(), 1U);
    EXPECT_EQ(notes.GetDocuments()[0]->GetPathName(), user.open);
}

TEST_F(Document, OfAPathOfFourThousandCharactersIsRefusedWithItsName)
{
    EXPECT_EQ(Open("/" + QString(4000, 'x')), nullptr);
    EXPECT_TRUE(user.asked.value(0).contains("is not a valid path"));
}

TEST(SingleDocument, TakesThePlaceOfTheOneBefore)
{
    User user;
    CWinApp app;
    CDocTemplate& only = app.AddDocTemplate(std::make_unique<CSingleDocTemplate>(
        QString(), NoteDoc::GetThisClass(), NoteFrame::GetThisClass(), NoteView::GetThisClass()));
    CDocument* first = only.OpenDocumentFile(QString(), false);
    first->SetModifiedFlag();
    EXPECT_EQ(only.OpenDocumentFile(QString(), false), nullptr); // the user keeps it
    user.answer = Answer::No;
    EXPECT_EQ(only.OpenDocumentFile(QString(), false), first);
    EXPECT_EQ(only.GetDocuments().size(), 1U);
}

TEST(SingleDocument, ThatCannotBeOpenedLeavesNothing)
{
    User user;
    CWinApp app;
    CDocTemplate& only = app.AddDocTemplate(std::make_unique<CSingleDocTemplate>(
        QString(), NoteDoc::GetThisClass(), NoteFrame::GetThisClass(), NoteView::GetThisClass()));
    const int before = liveObjects;
    EXPECT_EQ(only.OpenDocumentFile(QStringLiteral("/nowhere/missing.note"), false), nullptr);
    EXPECT_EQ(user.asked.size(), 1);
    EXPECT_TRUE(only.GetDocuments().empty());
    Settle();
    EXPECT_EQ(liveObjects, before);
}
