// SPDX-License-Identifier: GPL-3.0-or-later
// Nobody is left with a pointer to what is gone: views, frames and documents may be closed at any
// moment, by anybody.
#include "DocViewFixture.h"

#include <QEventLoop>
#include <QMainWindow>
#include <QPointer>
#include <QTimer>

namespace {

using Lifetime = DocViewTest;

} // namespace

TEST_F(Lifetime, AViewClosedInItsNotificationLivesUntilTheLoopHasControl)
{
    NoteDoc* doc = New();
    NoteView* view = ViewOf(doc);
    const HWND window = view->GetSafeHwnd();
    CFrameWnd* frame = view->GetParentFrame();
    view->onNotify = [](NoteView& self) {
        self.DestroyWindow();
        EXPECT_EQ(self.GetSafeHwnd(), nullptr);
        EXPECT_EQ(self.GetDocument(), nullptr);
        EXPECT_EQ(liveObjects, 3);
    };
    SendMessage(window, WM_NOTIFY, 0, 0);
    EXPECT_EQ(SendMessage(window, WM_NOTIFY, 0, 0), 0); // nobody listens any more
    EXPECT_TRUE(doc->IsClosed());
    Settle();
    EXPECT_EQ(liveObjects, 1); // a frame may hold other things than views
    frame->DestroyWindow();
}

TEST_F(Lifetime, AViewClosedByAnothersUpdateHearsNothingMore)
{
    NoteDoc* doc = New();
    NoteView* first = ViewOf(doc);
    NoteView* second = FurtherView(doc);
    CFrameWnd* frame = second->GetParentFrame();
    first->onUpdate = [second](NoteView&) { second->DestroyWindow(); };
    doc->UpdateAllViews(nullptr, 3, nullptr);
    EXPECT_FALSE(second->heard.contains("update 3"));
    EXPECT_EQ(doc->GetViews().size(), 1U);
    frame->DestroyWindow();
}

TEST_F(Lifetime, ADocumentClosedUnderItsQuestionIsAskedNoMore)
{
    NoteDoc* doc = Open(Write("a.note", "old"));
    doc->text = "fresh";
    doc->SetModifiedFlag();
    const HWND frame = ViewOf(doc)->GetParentFrame()->GetSafeHwnd();
    bool lived = false;
    user.meanwhile = [&] {
        doc->OnCloseDocument();
        Settle();
        lived = liveObjects == 3;
    };
    user.answer = Answer::No;
    SendMessage(frame, WM_CLOSE, 0, 0);
    EXPECT_TRUE(lived);
    Settle();
    EXPECT_EQ(liveObjects, 0);
}

TEST_F(Lifetime, AFrameClosedTwiceUnderOneQuestionAsksOnce)
{
    NoteDoc* doc = New();
    doc->SetModifiedFlag();
    const HWND frame = ViewOf(doc)->GetParentFrame()->GetSafeHwnd();
    user.meanwhile = [&] { SendMessage(frame, WM_CLOSE, 0, 0); };
    user.answer = Answer::No;
    SendMessage(frame, WM_CLOSE, 0, 0);
    EXPECT_EQ(user.asked.size(), 1);
    EXPECT_TRUE(doc->IsClosed());
}

TEST_F(Lifetime, AWidgetThatQtDeletesTakesViewAndDocumentAlong)
{
    NoteDoc* doc = New();
    CFrameWnd* frame = ViewOf(doc)->GetParentFrame();
    delete frame->GetSafeHwnd();
    EXPECT_EQ(frame->GetSafeHwnd(), nullptr);
    EXPECT_TRUE(doc->IsClosed());
    Settle();
    EXPECT_EQ(liveObjects, 0);
}

TEST_F(Lifetime, AHostsWindowMayGoWithTheFramesInside)
{
    auto host = std::make_unique<QMainWindow>();
    NoteDoc* doc = New();
    CFrameWnd* frame = ViewOf(doc)->GetParentFrame();
    host->setCentralWidget(frame->GetSafeHwnd());
    EXPECT_EQ(FrameAround(ViewOf(doc)->GetSafeHwnd()), frame);
    host.reset();
    Settle();
    EXPECT_EQ(liveObjects, 0);
}

TEST_F(Lifetime, ClosedObjectsWaitForTheOutermostLoop)
{
    QEventLoop outer;
    int inside = -1;
    int behind = -1;
    QTimer::singleShot(0, &outer, [&] {
        NoteDoc* doc = New();
        doc->OnCloseDocument();
        QEventLoop inner; // as that of a drag or of a modal box
        QTimer::singleShot(0, &inner, [&] { QTimer::singleShot(0, &inner, &QEventLoop::quit); });
        inner.exec();
        inside = liveObjects;
        auto* poll = new QTimer(&outer);
        QObject::connect(poll, &QTimer::timeout, &outer, [&] {
            behind = liveObjects;
            if (behind == 0)
                outer.quit();
        });
        poll->start(1);
    });
    outer.exec();
    EXPECT_EQ(inside, 3);
    EXPECT_EQ(behind, 0);
}

TEST_F(Lifetime, ADeletedViewHasLeftItsDocument)
{
    NoteDoc* doc = New();
    NoteView* second = FurtherView(doc);
    CFrameWnd* frame = second->GetParentFrame();
    delete second;
    EXPECT_EQ(doc->GetViews().size(), 1U);
    EXPECT_EQ(frame->GetActiveView(), nullptr);
    frame->DestroyWindow();
}

TEST_F(Lifetime, ADeletedDocumentHasLeftItsViews)
{
    NoteDoc* doc = New();
    NoteView* view = ViewOf(doc);
    delete doc;
    EXPECT_EQ(view->GetDocument(), nullptr);
    EXPECT_TRUE(notes.GetDocuments().empty());
    EXPECT_FALSE(view->OnCmdMsg(ID_FILE_SAVE, nullptr));
    view->GetParentFrame()->DestroyWindow();
}

TEST_F(Lifetime, APostedMessageFindsItsWindowOrNobody)
{
    NoteDoc* doc = New();
    const HWND frame = ViewOf(doc)->GetParentFrame()->GetSafeHwnd();
    EXPECT_TRUE(PostMessage(frame, WM_CLOSE, 0, 0));
    EXPECT_FALSE(doc->IsClosed());
    EXPECT_TRUE(PostMessage(frame, WM_CLOSE, 0, 0));
    Settle();
    EXPECT_EQ(liveObjects, 0);
    EXPECT_FALSE(PostMessage(frame, WM_CLOSE, 0, 0));
}

TEST_F(Lifetime, AFileExceptionInAHandlerIsToldAndSurvived)
{
    NoteDoc* doc = New();
    ViewOf(doc)->onNotify = [this](NoteView&) { CFile::Remove(Path("missing")); };
    EXPECT_EQ(SendMessage(ViewOf(doc)->GetSafeHwnd(), WM_NOTIFY, 0, 0), 0);
    EXPECT_TRUE(user.asked.value(0).contains("was not found"));
}
