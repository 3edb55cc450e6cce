// A view that is closed while the engine's own code is on the stack.
#include "EditDocFixture.h"

#include "control/EngineRecords.h"

#include <QTest>

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
    EXPECT_TRUE(livedOn);
    Settle();
    EXPECT_TRUE(engine.isNull());
}

INSTANTIATE_TEST_SUITE_P(Notifications, Closing,
                         testing::Values(UINT{notify::CharAdded}, UINT{notify::Modified},
                                         UINT{notify::SavePointLeft}),
                         [](const auto& of) {
                             return of.param == notify::CharAdded  ? "CharAdded"
                                    : of.param == notify::Modified ? "Modified"
                                                                   : "SavePointLeft";
                         });
