// SPDX-License-Identifier: GPL-3.0-or-later
// A view that is closed while the engine's own code is on the stack.
#include "EditDocFixture.h"

#include "control/EngineRecords.h"

#include <QContextMenuEvent>
#include <QTest>
#include <QWheelEvent>

namespace {

class ClosingView final : public CZNCoreEditorView
{
public:
    static CObject* CreateObject() { return new ClosingView; }
    static const CRuntimeClass* GetThisClass()
    {
        static const CRuntimeClass own = {"ClosingView", CZNCoreEditorView::GetThisClass(),
                                          &CreateObject};
        return &own;
    }

    int OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override
    {
        const auto& record = *reinterpret_cast<const SCNotification*>(lParam);
        const UINT code = record.nmhdr.code;
        const int answer = CZNCoreEditorView::OnNotify(wParam, lParam, result);
        if (code == closeOn)
            ++closed;
        if (code == closeOn && closed == 1) {
            if (byQuestion)
                AskYesNo(GetSafeHwnd(), "?");
            else
                GetParentFrame()->DestroyWindow();
        }
        return answer;
    }

    static inline UINT closeOn = 0;
    static inline int closed = 0;
    static inline bool byQuestion = false;
};

class Closing : public EditDocTest, public testing::WithParamInterface<UINT>
{
protected:
    Closing()
        : closing(app.AddDocTemplate(std::make_unique<CMultiDocTemplate>(
              QString(), OpenDoc::GetThisClass(), CFrameWnd::GetThisClass(),
              ClosingView::GetThisClass())))
    {
        ClosingView::closeOn = 0;
        ClosingView::closed = 0;
        ClosingView::byQuestion = false;
        doc = static_cast<OpenDoc*>(closing.OpenDocumentFile(QString(), true));
        Settle();
    }

    CDocTemplate& closing;
    OpenDoc* doc = nullptr;
};

} // namespace

TEST_P(Closing, AViewInItsEnginesNotificationIsSafe)
{
    QPointer<QWidget> engine = Control(doc).GetSafeHwnd();
    ClosingView::closeOn = GetParam();
    QTest::keyClicks(engine, "a{b");
    EXPECT_TRUE(QTest::qWaitFor([] { return ClosingView::closed > 0; }));
    Settle();
    EXPECT_GE(ClosingView::closed, 1);
    EXPECT_TRUE(engine.isNull());
    EXPECT_TRUE(closing.GetDocuments().empty());
}

TEST_P(Closing, ADocumentUnderAQuestionOfItsNotificationIsSafe)
{
    QPointer<QWidget> engine = Control(doc).GetSafeHwnd();
    ClosingView::closeOn = GetParam();
    ClosingView::byQuestion = true;
    bool livedOn = false;
    user.meanwhile = [&] {
        doc->OnCloseDocument();
        Settle();
        livedOn = !engine.isNull();
    };
    QTest::keyClicks(engine, "a");
    EXPECT_TRUE(QTest::qWaitFor([&] { return livedOn; }));
    Settle();
    EXPECT_TRUE(engine.isNull());
}

INSTANTIATE_TEST_SUITE_P(Notifications, Closing,
                         testing::Values(UINT{notify::CharAdded}, UINT{notify::Modified},
                                         UINT{notify::SavePointLeft}, UINT{notify::UpdateUi}),
                         [](const auto& of) {
                             return of.param == notify::CharAdded  ? "CharAdded"
                                    : of.param == notify::Modified ? "Modified"
                                    : of.param == notify::UpdateUi ? "UpdateUi"
                                                                   : "SavePointLeft";
                         });

namespace {

class ByHand : public EditDocTest
{
protected:
    ByHand()
    {
        doc = OpenScript();
        doc->GetFirstEditView()->GetParentFrame()->ActivateFrame();
        Settle();
        engine = Control(doc).GetSafeHwnd();
    }

    void ExpectAllGone()
    {
        Settle();
        EXPECT_TRUE(engine.isNull());
        EXPECT_TRUE(kind.GetDocuments().empty());
    }

    OpenDoc* doc = nullptr;
    QPointer<QWidget> engine;
};

// Closes its document when it hears of a turn, or when its editor asks for a menu.
class TurnedView final : public CZNCoreEditorView
{
public:
    static CObject* CreateObject() { return new TurnedView; }
    static const CRuntimeClass* GetThisClass()
    {
        static const CRuntimeClass own = {"TurnedView", CZNCoreEditorView::GetThisClass(),
                                          &CreateObject};
        return &own;
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_MOUSEWHEEL || message == WM_CONTEXTMENU) {
            GetDocument()->OnCloseDocument();
            Settle();
            return 0;
        }
        return CZNCoreEditorView::WindowProc(message, wParam, lParam);
    }
};

} // namespace

TEST_F(ByHand, AKeyMayCloseItsDocument)
{
    QTest::keyClick(engine, Qt::Key_F4, Qt::ControlModifier);
    ExpectAllGone();
}

TEST_F(ByHand, AKeyMayCloseItsDocumentUnderItsQuestion)
{
    Control(doc).ReplaceSel(u"x", 1);
    user.answer = Answer::Yes;
    user.meanwhile = [this] {
        doc->OnCloseDocument();
        Settle();
    };
    QTest::keyClick(engine, Qt::Key_F4, Qt::ControlModifier);
    EXPECT_EQ(user.asked.size(), 1);
    ExpectAllGone();
}

TEST_F(ByHand, ATurnOrAMenuMayCloseADocument)
{
    CDocTemplate& turned = app.AddDocTemplate(std::make_unique<CMultiDocTemplate>(
        QString(), OpenDoc::GetThisClass(), CFrameWnd::GetThisClass(), TurnedView::GetThisClass()));
    for (const bool byMenu : {false, true}) {
        auto* opened = static_cast<OpenDoc*>(turned.OpenDocumentFile(QString(), true));
        Settle();
        const QPointer<QWidget> window = Control(opened).GetSafeHwnd();
        auto* viewport = window->findChild<QWidget*>("qt_scrollarea_viewport");
        QWheelEvent turn({5, 5}, {5, 5}, {}, {0, 360}, Qt::NoButton, Qt::ControlModifier,
                         Qt::NoScrollPhase, false);
        QContextMenuEvent menu(QContextMenuEvent::Mouse, {5, 5}, {5, 5});
        QApplication::sendEvent(viewport, byMenu ? static_cast<QEvent*>(&menu) : &turn);
        Settle();
        EXPECT_TRUE(window.isNull());
        EXPECT_TRUE(turned.GetDocuments().empty());
    }
}
