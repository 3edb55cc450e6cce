// SPDX-License-Identifier: GPL-3.0-or-later
// How a document of the editor opens, saves and names its file, and how that fails.
#include "EditDocFixture.h"

namespace {

using EditDoc = EditDocTest;

} // namespace

TEST_F(EditDoc, OpensAFileAndRemembersIt)
{
    OpenDoc* doc = OpenScript();
    ASSERT_NE(doc, nullptr);
    EXPECT_EQ(Text(doc), "select 1");
    EXPECT_EQ(doc->GetTitle(), "a.sql");
    EXPECT_EQ(doc->GetPathName(), Path("a.sql"));
    EXPECT_EQ(doc->m_lastAccessTime, 100000);
    EXPECT_EQ(doc->m_changedTime, 1000);
    EXPECT_FALSE(doc->IsModified());
    EXPECT_FALSE(doc->IsFileReadOnly());
}

TEST_F(EditDoc, OpensInTheEncodingThatItIsTold)
{
    OpenDoc* doc = New();
    const QString path = Write("a.sql", "\xC3\xA4");
    EXPECT_EQ(doc->OnOpenDocumentEx(path, FileEncodeConverter::encANSI), 1);
    EXPECT_EQ(Text(doc).size(), 2);
    EXPECT_EQ(doc->OnOpenDocumentEx(path, FileEncodeConverter::encUTF8), 1);
    EXPECT_EQ(Text(doc).size(), 1);
}

TEST_F(EditDoc, ReportsAFileThatCannotBeOpenedAndKeepsItsText)
{
    OpenDoc* doc = OpenScript();
    doc->SaveTempCopy();
    EXPECT_EQ(doc->OnOpenDocument(Path("missing.sql")), 0);
    EXPECT_EQ(user.asked.size(), 1);
    EXPECT_EQ(Text(doc), "select 1");
    EXPECT_EQ(doc->GetPathName(), Path("a.sql"));
    EXPECT_TRUE(doc->GetTempPathName().isEmpty()); // that is gone first
}

TEST_F(EditDoc, RefusesAFolder)
{
    OpenDoc* doc = OpenScript();
    EXPECT_EQ(doc->OnOpenDocument(folder.path()), 0);
    EXPECT_EQ(user.asked.size(), 1);
    EXPECT_EQ(Text(doc), "select 1");
}

// The probe succeeds, then the control's own load does not.
class FailingControlDoc : public OpenDoc
{
public:
    static CObject* CreateObject() { return new FailingControlDoc; }
    static const CRuntimeClass* GetThisClass()
    {
        static const CRuntimeClass own = {"FailingControlDoc", OpenDoc::GetThisClass(),
                                          &CreateObject};
        return &own;
    }
    void ReleaseFile(CFile* file, bool abort) override
    {
        OpenDoc::ReleaseFile(file, abort);
        QFile::remove(gone);
    }
    static inline QString gone;
};

TEST_F(EditDoc, WhoseControlCannotReadKeepsItsPathAndIsWritable)
{
    CDocTemplate& failing = app.AddDocTemplate(std::make_unique<CMultiDocTemplate>(
        QString(), FailingControlDoc::GetThisClass(), CFrameWnd::GetThisClass(),
        CZNCoreEditorView::GetThisClass()));
    auto* doc = static_cast<OpenDoc*>(failing.OpenDocumentFile(QString(), false));
    const QString title = doc->GetTitle();
    FailingControlDoc::gone = Write("a.sql", "text");
    Control(doc).SetReadOnly(1, 1);
    EXPECT_EQ(doc->OnOpenDocument(Path("a.sql")), 0);
    EXPECT_FALSE(Control(doc).GetReadOnly(1));
    EXPECT_TRUE(user.asked.isEmpty());
    EXPECT_TRUE(doc->GetPathName().isEmpty());
    EXPECT_EQ(doc->GetTitle(), title);
}

TEST_F(EditDoc, WithoutAViewOpensAndSavesNothing)
{
    OpenDoc doc;
    const QString path = Write("a.sql", "text");
    EXPECT_EQ(doc.OnOpenDocument(path), 0);
    EXPECT_EQ(doc.OnSaveDocument(path), 0);
    EXPECT_EQ(doc.OnNewDocument(), 0);
    EXPECT_EQ(doc.GetFirstEditView(), nullptr);
    EXPECT_EQ(Read(path), "text");
}

TEST_F(EditDoc, SavesItsTextAndIsUnmodifiedThen)
{
    OpenDoc* doc = OpenScript();
    Type(doc, "-- ");
    EXPECT_TRUE(doc->IsModified());
    EXPECT_EQ(doc->GetTitle(), "a.sql *");
    doc->m_changedTime = 77;
    EXPECT_EQ(doc->DoFileSave(), 1);
    EXPECT_EQ(Read(Path("a.sql")), "-- select 1");
    EXPECT_FALSE(doc->IsModified());
    EXPECT_EQ(doc->GetTitle(), "a.sql");
    EXPECT_EQ(doc->m_changedTime, 77);
    doc->CheckLastAccessTime(); // its own write is not another's
    EXPECT_TRUE(user.asked.isEmpty());
}

TEST_F(EditDoc, WithoutChangesWritesNothingOverItsFile)
{
    OpenDoc* doc = OpenScript();
    Write("a.sql", "another's");
    EXPECT_EQ(doc->DoFileSave(), 1);
    EXPECT_EQ(Read(Path("a.sql")), "another's");
}

TEST_F(EditDoc, UnderAPathOfAnotherCaseWithoutChangesWritesNothing)
{
    OpenDoc* doc = OpenScript();
    EXPECT_EQ(doc->DoSave(Path("A.SQL")), 1);
    EXPECT_FALSE(QFile::exists(Path("A.SQL")));
    EXPECT_EQ(doc->GetPathName(), Path("a.sql"));
}

TEST_F(EditDoc, ThatCannotBeWrittenKeepsEverythingButItsCopy)
{
    OpenDoc* doc = OpenScript();
    Type(doc, "-- ");
    doc->SaveTempCopy();
    QFile::link("/dev/full", Path("full.sql"));
    EXPECT_EQ(doc->OnSaveDocument(Path("full.sql")), 0);
    EXPECT_TRUE(user.asked.isEmpty()); // the framework tells, which has called it
    EXPECT_EQ(doc->GetPathName(), Path("a.sql"));
    EXPECT_EQ(doc->GetTitle(), "a.sql *");
    EXPECT_TRUE(doc->IsModified());
    EXPECT_EQ(doc->m_lastAccessTime, 100000);
    EXPECT_TRUE(doc->GetTempPathName().isEmpty());
    EXPECT_EQ(doc->DoSave(Path("full.sql")), 0);
    EXPECT_EQ(user.asked.size(), 1);
}

TEST_F(EditDoc, WhoseStatusCannotBeReadCountsAsWritable)
{
    const QString path = Write("a.sql", "text");
    Protect("a.sql");
    facts.fails = true;
    OpenDoc* doc = Open(path);
    ASSERT_NE(doc, nullptr);
    EXPECT_FALSE(doc->IsFileReadOnly());
    EXPECT_FALSE(doc->m_fileFrozen);
    EXPECT_EQ(doc->m_lastAccessTime, 0);
    EXPECT_EQ(doc->OnSaveDocument(Path("b.sql")), 1);
    EXPECT_FALSE(doc->IsFileReadOnly());
}

TEST_F(EditDoc, WithoutAPathIsSavedUnderItsTitleUnasked)
{
    OpenDoc* doc = New();
    Type(doc, "text");
    const QString before = QDir::currentPath();
    QDir::setCurrent(folder.path());
    doc->SetTitle("Query#3");
    EXPECT_EQ(doc->DoSave(QString()), 1);
    QDir::setCurrent(before);
    EXPECT_EQ(user.namesAsked, 0);
    EXPECT_EQ(Read(Path("Query.sql")), "text");
    EXPECT_EQ(doc->GetPathName(), Path("Query.sql"));
}

TEST_F(EditDoc, WithoutPathAndTitleAsksForAName)
{
    CDocTemplate& bare = app.AddDocTemplate(std::make_unique<CMultiDocTemplate>(
        QString(), OpenDoc::GetThisClass(), CFrameWnd::GetThisClass(),
        CZNCoreEditorView::GetThisClass()));
    CDocument* doc = bare.OpenDocumentFile(QString(), false);
    doc->SetTitle(" nothing before the blank");
    EXPECT_EQ(doc->DoSave(QString()), 0);
    EXPECT_EQ(user.namesAsked, 1);
}

TEST_F(EditDoc, ACopyOfADocumentGoesToItsOwnPath)
{
    OpenDoc* doc = OpenScript();
    Type(doc, "-- ");
    EXPECT_EQ(doc->DoSave(QString(), 0), 1);
    EXPECT_EQ(Read(Path("a.sql")), "-- select 1");
    EXPECT_EQ(user.namesAsked, 0);
}

TEST_F(EditDoc, EmptiedIsWritableUntrackedAndForgetsItsText)
{
    const QString path = Write("a.sql", "text");
    Protect("a.sql");
    OpenDoc* doc = Open(path);
    EXPECT_EQ(doc->OnNewDocument(), 1);
    EXPECT_EQ(Text(doc), "");
    EXPECT_FALSE(Control(doc).GetReadOnly(1));
    EXPECT_TRUE(doc->GetPathName().isEmpty());
    EXPECT_EQ(doc->m_docPointer, 0);
}

TEST_F(EditDoc, AViewThatJoinsAnEmptiedDocumentHasATextOfItsOwn)
{
    OpenDoc* doc = New();
    Type(doc, "old");
    const auto join = [&] {
        kind.CreateNewFrame(doc, nullptr);
        return static_cast<CZNCoreEditorView*>(doc->GetViews().back());
    };
    CZNCoreEditorView* second = join();
    EXPECT_NE(second->GetCoreEditorControl()->GetText(), "old");
    EXPECT_EQ(doc->m_docPointer, second->GetCoreEditorControl()->GetDocPointer(1));
    second->GetCoreEditorControl()->ReplaceSel(u"fresh", 1);
    EXPECT_EQ(join()->GetCoreEditorControl()->GetText(), "fresh");
}

TEST_F(EditDoc, AFurtherViewShowsTheSameText)
{
    OpenDoc* doc = OpenScript();
    kind.CreateNewFrame(doc, nullptr)->InitialUpdateFrame(doc, false);
    auto* second = static_cast<CZNCoreEditorView*>(doc->GetViews().back());
    Type(doc, "-- ");
    EXPECT_EQ(second->GetCoreEditorControl()->GetText(), "-- select 1");
}

TEST_F(EditDoc, ATextThatWentWithItsViewsIsNotGivenToTheNext)
{
    OpenDoc doc;
    doc.m_bAutoDelete = false;
    CFrameWnd* frame = kind.CreateNewFrame(&doc, nullptr);
    frame->DestroyWindow();
    Settle();
    frame = kind.CreateNewFrame(&doc, nullptr);
    EXPECT_EQ(doc.m_docPointer, Control(&doc).GetDocPointer(1));
    Type(&doc, "text");
    EXPECT_EQ(Text(&doc), "text");
    frame->DestroyWindow();
    Settle();
}
