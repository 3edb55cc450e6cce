// SPDX-License-Identifier: GPL-3.0-or-later
// The view over the engine: notifications, sizes, the wheel, the line that a host shows.
#include "ViewFixture.h"

#include <QClipboard>
#include <QTest>
#include <QWindow>

namespace {

// Its control has a window before the view makes it one.
class LateView final : public CZNCoreEditorView
{
public:
    static CObject* CreateObject() { return new LateView; }
    static const CRuntimeClass* GetThisClass()
    {
        static const CRuntimeClass own = {"LateView", CZNCoreEditorView::GetThisClass(),
                                          &CreateObject};
        return &own;
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_CREATE)
            m_coreEditor.Create(WS_CHILD, RECT{0, 0, 9, 9}, this, 1, nullptr);
        return CZNCoreEditorView::WindowProc(message, wParam, lParam);
    }
};

class View : public ViewTest
{
protected:
    LRESULT Turn(UINT flags, int delta)
    {
        return SendMessage(view->GetSafeHwnd(), WM_MOUSEWHEEL, WheelParam(flags, delta), 0);
    }
};

} // namespace

TEST_F(View, AnswersTheNotificationsThatItKnows)
{
    for (UINT code = 1999; code < 2040; ++code) {
        const bool isKnown = code == 2002 || code == 2003 || code == 2007 || code == 2008 ||
                             code == 2009 || code == 2014;
        EXPECT_EQ(view->Hear(code), isKnown ? 1 : 0) << code;
    }
}

TEST_F(View, LeavesANotificationOfAnotherChildToItsBase)
{
    EXPECT_EQ(view->Hear(notify::SavePointLeft, 0, OpenView::kControl + 1), 0);
    EXPECT_FALSE(Control().GetModified()); // the control was not told
    EXPECT_FALSE(doc->IsModified());
    EXPECT_EQ(view->Hear(notify::SavePointLeft), 1);
    EXPECT_TRUE(Control().GetModified());
    EXPECT_TRUE(doc->IsModified());
}

TEST_F(View, LeavesANotificationOfAnotherSenderToItsBase)
{
    QWidget stranger;
    SCNotification record;
    record.nmhdr = {&stranger, OpenView::kControl, notify::SavePointLeft};
    LRESULT result = 0;
    EXPECT_EQ(view->OnNotify(OpenView::kControl, reinterpret_cast<LPARAM>(&record), &result), 0);
    EXPECT_FALSE(Control().GetModified());
}

TEST_F(View, WithoutADocumentStillLetsItsControlHear)
{
    OpenView* alone = ViewWithoutDocument();
    EXPECT_EQ(alone->Hear(notify::SavePointLeft), 1);
    EXPECT_TRUE(alone->GetCoreEditorControl()->GetModified());
    EXPECT_EQ(alone->Hear(notify::UpdateUi), 1);
    EXPECT_EQ(alone->Hear(notify::Modified, modification::InsertText), 1);
    alone->OnInitialUpdate();
    EXPECT_EQ(alone->m_initialized, 1);
    alone->OnSyntaxHighlighting();
    alone->OnBraceMatching();
    EXPECT_EQ(Probe(53992, *alone).checked, -1);
    EXPECT_EQ(Probe(54000, *alone).checked, -1);
    EXPECT_FALSE(alone->ReloadFile());
    EXPECT_EQ(SendMessage(alone->GetSafeHwnd(), ZNBASEM_ON_EDITCHANGE, 0, 1), 0);
    alone->DestroyWindow();
}

TEST_F(View, TellsItsDocumentOfChangesOfTheTextAlone)
{
    doc->m_changedTime = 0;
    view->Hear(notify::Modified, modification::ChangeStyle | modification::ChangeMarker);
    EXPECT_EQ(doc->m_changedTime, 0);
    for (const int bit : {modification::InsertText, modification::DeleteText, modification::User}) {
        doc->m_changedTime = 0;
        view->Hear(notify::Modified, bit);
        EXPECT_EQ(doc->m_changedTime, doc->clock) << bit;
    }
}

TEST_F(View, HasItsControlOverAllOfIt)
{
    view->GetSafeHwnd()->resize(300, 200);
    QResizeEvent resized({300, 200}, {10, 10});
    QApplication::sendEvent(view->GetSafeHwnd(), &resized);
    EXPECT_EQ(Control().GetSafeHwnd()->geometry(), QRect(0, 0, 300, 200));
    SendMessage(view->GetSafeHwnd(), WM_SIZE, 6, SizeParam(50, 50));
    SendMessage(view->GetSafeHwnd(), WM_SIZE, 0, SizeParam(0, 50));
    SendMessage(view->GetSafeHwnd(), WM_SIZE, 0, SizeParam(50, 50));
    EXPECT_EQ(Control().GetSafeHwnd()->geometry(), QRect(0, 0, 300, 200));
}

TEST_F(View, KeepsTheMouseOnItsRimToItself)
{
    Control().GetSafeHwnd()->hide();
    class Around : public QObject
    {
    public:
        bool eventFilter(QObject*, QEvent* event) override
        {
            pressed += event->type() == QEvent::MouseButtonPress;
            return false;
        }
        int pressed = 0;
    } around;
    view->GetParentFrame()->GetSafeHwnd()->installEventFilter(&around);
    QTest::mousePress(view->GetSafeHwnd(), Qt::LeftButton);
    EXPECT_EQ(around.pressed, 0);
}

TEST_F(View, GivesTheFocusToItsControl)
{
    CFrameWnd* frame = view->GetParentFrame();
    frame->ActivateFrame();
    QApplication::setActiveWindow(frame->GetSafeHwnd());
    view->SetFocus();
    Settle();
    EXPECT_TRUE(Control().GetSafeHwnd()->hasFocus());
}

TEST_F(View, ZoomsWithinItsLimits)
{
    for (int i = 0; i < 40; ++i)
        view->OnCmdMsg(53962, nullptr);
    EXPECT_EQ(Control().GetZoom(1), 20);
    Turn(MK_CONTROL, WHEEL_DELTA);
    EXPECT_EQ(Control().GetZoom(1), 20);
    view->OnCmdMsg(53964, nullptr);
    EXPECT_EQ(Control().GetZoom(1), 0);
    for (int i = 0; i < 40; ++i)
        Turn(MK_CONTROL, -WHEEL_DELTA);
    EXPECT_EQ(Control().GetZoom(1), -10);
    view->OnCmdMsg(53963, nullptr);
    EXPECT_EQ(Control().GetZoom(1), -10);
    view->OnCmdMsg(53964, nullptr);
    EXPECT_EQ(Control().GetZoom(1), 0);
}

TEST_F(View, ZoomsAndDoesNotPageWithControlAndShift)
{
    Put(QStringLiteral("\n").repeated(500), 0, 0);
    EXPECT_NE(Turn(MK_CONTROL | MK_SHIFT, -WHEEL_DELTA), 0);
    EXPECT_EQ(Control().GetZoom(1), -1);
    EXPECT_EQ(Control().GetCurrentPos(1), 0);
    Turn(MK_SHIFT, -WHEEL_DELTA);
    EXPECT_EQ(Control().GetZoom(1), -1);
    const long page = Control().GetCurrentPos(1);
    EXPECT_GT(page, 0);
    Turn(MK_SHIFT, WHEEL_DELTA);
    EXPECT_LT(Control().GetCurrentPos(1), page);
    Turn(0, -WHEEL_DELTA);
    EXPECT_EQ(Control().GetZoom(1), -1);
}

TEST_F(View, ZoomsOnceForAStepOfTheUsersWheel)
{
    QWidget* viewport = Control().GetSafeHwnd()->findChild<QWidget*>("qt_scrollarea_viewport");
    ASSERT_TRUE(viewport);
    QWheelEvent step({5, 5}, {5, 5}, {}, {0, 120}, Qt::NoButton, Qt::ControlModifier,
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(viewport, &step);
    EXPECT_EQ(Control().GetZoom(1), 1);
}

TEST_F(View, MarksTheLineThatAHostShowsAndNoOther)
{
    Put(QStringLiteral("a\nb\nc"), 0, 0);
    view->SetSelectedLine(2, 1);
    EXPECT_EQ(Control().GetCurLineNumber(), 2);
    view->SetSelectedLine(1, 0);
    EXPECT_EQ(Control().MarkerGet(1, 1), 1 << 4);
    EXPECT_EQ(Control().MarkerGet(2, 1), 0);
}

TEST_F(View, ALanguageOfOnePaneStaysThereUntilTheDocumentSaysSo)
{
    Control().InitializeLanguage(2, 0);
    OpenView* second = FurtherView();
    EXPECT_EQ(second->GetCoreEditorControl()->GetCurrentLanguage(), 2);
    Control().InitializeLanguage(3, 0);
    EXPECT_EQ(second->GetCoreEditorControl()->GetCurrentLanguage(), 2);
    const int lexer = second->GetCoreEditorControl()->GetLexer(1);
    second->GetCoreEditorControl()->SetLexer(1, 1);
    doc->ReloadDefaults();
    EXPECT_EQ(second->GetCoreEditorControl()->GetCurrentLanguage(), 2);
    EXPECT_EQ(second->GetCoreEditorControl()->GetLexer(1), lexer);
}

TEST_F(View, TheTitlesMarkFollowsTheUserWithOneView)
{
    OpenDoc* file = static_cast<OpenDoc*>(viewed.OpenDocumentFile(Write("t.sql", "a"), false));
    auto& control = file->GetFirstEditView()->GetCoreEditorControlRef();
    QTest::keyClicks(control.GetSafeHwnd(), "xy");
    EXPECT_EQ(file->GetTitle(), "t.sql *");
    control.Undo(1);
    EXPECT_EQ(file->GetTitle(), "t.sql");
}

TEST_F(View, OfSeveralOnlySetsTheMarkAndTheSavePointClearsIt)
{
    FurtherView();
    const HWND window = view->GetSafeHwnd();
    Control().SetModified(true);
    doc->SetModifiedFlag(0);
    SendMessage(window, ZNBASEM_ON_EDITCHANGE, 0, 1);
    EXPECT_TRUE(doc->IsModified());
    Control().SetModified(false);
    SendMessage(window, ZNBASEM_ON_EDITCHANGE, 0, 1);
    EXPECT_TRUE(doc->IsModified());
    view->Hear(notify::SavePointReached);
    EXPECT_FALSE(doc->IsModified());
    Control().SetModified(true);
    Control().SetReadOnly(1, 1);
    SendMessage(window, ZNBASEM_ON_EDITCHANGE, 0, 1);
    EXPECT_FALSE(doc->IsModified());
}

TEST_F(View, BeforeItsContentsTellsNothingOfAnEdit)
{
    CFrameWnd* frame = viewed.CreateNewFrame(doc, nullptr);
    auto* fresh = static_cast<OpenView*>(doc->GetViews().back());
    fresh->GetCoreEditorControl()->SetModified(true);
    SendMessage(fresh->GetSafeHwnd(), ZNBASEM_ON_EDITCHANGE, 0, 1);
    EXPECT_FALSE(doc->IsModified());
    frame->InitialUpdateFrame(doc, false);
    SendMessage(fresh->GetSafeHwnd(), ZNBASEM_ON_EDITCHANGE, 0, 1);
    EXPECT_TRUE(doc->IsModified());
}

TEST_F(View, HandsAHostsMarginTextsToItsControl)
{
    std::map<int, std::u16string> texts = {{0, u"12:00"}};
    view->SetExtendedMargin(true);
    view->SetExtendedText(texts);
    EXPECT_GT(Control().GetMarginWidthN(0, 1), 0);
    view->SetExtendedText(u"", 0);
}

TEST_F(View, ReadsItsFileAgain)
{
    OpenDoc* file = static_cast<OpenDoc*>(viewed.OpenDocumentFile(Write("r.sql", "one"), false));
    Write("r.sql", "two", 100009);
    EXPECT_TRUE(file->GetFirstEditView()->ReloadFile());
    EXPECT_EQ(Text(file), "two");
}

TEST_F(View, WhoseControlCannotBeMadeIsGivenUp)
{
    CDocTemplate& late = app.AddDocTemplate(std::make_unique<CMultiDocTemplate>(
        QString(), OpenDoc::GetThisClass(), CFrameWnd::GetThisClass(), LateView::GetThisClass()));
    EXPECT_EQ(late.OpenDocumentFile(QString(), false), nullptr);
    EXPECT_TRUE(late.GetDocuments().empty());
}

TEST_F(View, CopiesWhatTheMouseSelectsAsItGoes)
{
    Put("select all of it", 0, 0);
    doc->SetSelectCopy(1);
    CFrameWnd* frame = view->GetParentFrame();
    frame->ActivateFrame();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(frame->GetSafeHwnd()));
    QWidget* viewport = Control().GetSafeHwnd()->findChild<QWidget*>("qt_scrollarea_viewport");
    QWindow* window = frame->GetSafeHwnd()->windowHandle();
    const auto placeOf = [&](int position) {
        const QPoint inside(Control().PointXFromPosition(position, 1) + 1,
                            Control().PointYFromPosition(position, 1) + 3);
        return viewport->mapTo(frame->GetSafeHwnd(), inside);
    };
    const auto isCopied = [](const QString& text) {
        return QTest::qWaitFor([&] { return QApplication::clipboard()->text() == text; });
    };
    QApplication::clipboard()->clear();
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, placeOf(0));
    QTest::mouseMove(window, placeOf(6));
    EXPECT_TRUE(isCopied("select"));
    QTest::mouseMove(window, placeOf(10));
    EXPECT_TRUE(isCopied("select all"));
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, placeOf(10));
    QApplication::clipboard()->setText("another's");
    Control().SetSel(0, 3, 1);
    Control().GetSafeHwnd()->repaint();
    Settle();
    EXPECT_EQ(QApplication::clipboard()->text(), "another's");
}
