// SPDX-License-Identifier: GPL-3.0-or-later
// Which way a command goes, and what menus show of it.
#include "DocViewFixture.h"

#include "platform/docview/CreateContext.h"
#include "platform/docview/LabelUI.h"
#include "platform/system/Shell.h"
#include "platform/windows/Accelerators.h"
#include "platform/windows/ActionUI.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QToolBar>

namespace {

constexpr UINT kViewCommand = 1001;
constexpr UINT kBoth = 1002; // the view's and the document's
constexpr UINT kAppCommand = 1004;
constexpr UINT kMarked = 1005;

QStringList ran;

class RoutedDoc final : public NoteDoc
{
public:
    static CObject* CreateObject() { return new RoutedDoc; }
    static const CRuntimeClass* GetThisClass()
    {
        static const CRuntimeClass own = {"RoutedDoc", NoteDoc::GetThisClass(), &CreateObject};
        return &own;
    }

protected:
    const CommandMap& GetCommandMap() const override
    {
        static constexpr CommandEntry kCommands[] = {
            {kBoth, [](CCmdTarget&) { ran << "document"; }},
        };
        static const CommandMap map = {&NoteDoc::GetCommandMap(), kCommands, {}};
        return map;
    }
};

class RoutedView final : public NoteView
{
public:
    static CObject* CreateObject() { return new RoutedView; }
    static const CRuntimeClass* GetThisClass()
    {
        static const CRuntimeClass own = {"RoutedView", NoteView::GetThisClass(), &CreateObject};
        return &own;
    }
    bool allows = false;

protected:
    const CommandMap& GetCommandMap() const override
    {
        static constexpr CommandEntry kCommands[] = {
            {kViewCommand, [](CCmdTarget&) { ran << "view"; }},
            {kBoth, [](CCmdTarget&) { ran << "view"; }},
        };
        static constexpr UpdateEntry kUpdates[] = {
            {kViewCommand,
             [](CCmdTarget& t, CCmdUI& ui) { ui.Enable(static_cast<RoutedView&>(t).allows); }},
            {kMarked,
             [](CCmdTarget&, CCmdUI& ui) {
                 ui.SetCheck(1);
                 ui.SetText(QStringLiteral("Hide it"));
             }},
        };
        static const CommandMap map = {&NoteView::GetCommandMap(), kCommands, kUpdates};
        return map;
    }
};

class RoutedApp final : public CWinApp
{
protected:
    const CommandMap& GetCommandMap() const override
    {
        static constexpr CommandEntry kCommands[] = {
            {kAppCommand, [](CCmdTarget&) { ran << "application"; }},
        };
        static const CommandMap map = {&CWinApp::GetCommandMap(), kCommands, {}};
        return map;
    }
};

class Routing : public testing::Test
{
protected:
    Routing()
    {
        ran.clear();
        doc = app.AddDocTemplate(std::make_unique<CMultiDocTemplate>(
                                     QString(), RoutedDoc::GetThisClass(),
                                     NoteFrame::GetThisClass(), RoutedView::GetThisClass()))
                  .OpenDocumentFile(QString(), false);
        view = static_cast<RoutedView*>(doc->GetViews().front());
        frame = view->GetParentFrame();
    }
    ~Routing() override
    {
        app.CloseAllDocuments();
        Settle();
        EXPECT_EQ(liveObjects, 0);
    }

    User user;
    RoutedApp app;
    CDocument* doc = nullptr;
    RoutedView* view = nullptr;
    CFrameWnd* frame = nullptr;
};

} // namespace

TEST_F(Routing, GoesFromTheViewToTheDocumentToTheApplication)
{
    EXPECT_TRUE(frame->OnCmdMsg(kBoth, nullptr));
    EXPECT_TRUE(frame->OnCmdMsg(kAppCommand, nullptr));
    EXPECT_FALSE(frame->OnCmdMsg(4711, nullptr));
    EXPECT_EQ(ran, QStringList({"view", "application"}));
    doc->OnCmdMsg(kBoth, nullptr);
    EXPECT_EQ(ran.last(), "document");
}

TEST_F(Routing, FromAnOuterFrameGoesToTheActiveFrameInside)
{
    auto* outer = new CFrameWnd;
    outer->LoadFrame(nullptr);
    frame->GetSafeHwnd()->setParent(outer->GetSafeHwnd());
    EXPECT_FALSE(outer->OnCmdMsg(kViewCommand, nullptr));
    frame->SetActiveView(nullptr);
    frame->SetActiveView(view);
    EXPECT_TRUE(outer->OnCmdMsg(kViewCommand, nullptr));
    EXPECT_EQ(outer->GetActiveDocument(), doc);
    outer->DestroyWindow();
    EXPECT_TRUE(doc->IsClosed());
}

TEST_F(Routing, OfAKeyTableReachesTheView)
{
    static constexpr Accelerator kKeys[] = {{Qt::Key_F2, 0, kViewCommand}};
    const AcceleratorTable table(kKeys);
    const MSG key{view->GetSafeHwnd(), WM_KEYDOWN, Qt::Key_F2, 0};
    EXPECT_EQ(TranslateAccelerator(view->GetSafeHwnd(), &table, key), 1);
    EXPECT_EQ(ran, QStringList("view"));
}

TEST_F(Routing, AMenuShowsWhatCanRun)
{
    QMenu menu;
    QMenu* sub = menu.addMenu("More");
    QAction* known = menu.addAction("Known");
    QAction* unknown = menu.addAction("Unknown");
    QAction* plain = sub->addAction("Plain");
    QAction* foreign = menu.addAction("The host's own");
    SetCommand(*known, kViewCommand, frame->GetSafeHwnd());
    SetCommand(*unknown, 4711, frame->GetSafeHwnd());
    SetCommand(*plain, kBoth, frame->GetSafeHwnd());
    UpdateActions(menu.actions(), *frame);
    EXPECT_FALSE(known->isEnabled());
    EXPECT_FALSE(unknown->isEnabled());
    EXPECT_TRUE(plain->isEnabled());
    EXPECT_TRUE(foreign->isEnabled());
    view->allows = true;
    UpdateActions(menu.actions(), *frame);
    EXPECT_TRUE(known->isEnabled());
    EXPECT_TRUE(ran.isEmpty()); // asking runs nothing
}

TEST_F(Routing, AnUpdateHandlerMayMarkAndNameACommandThatNobodyRuns)
{
    QAction action;
    SetCommand(action, kMarked, frame->GetSafeHwnd());
    UpdateActions({&action}, *frame);
    EXPECT_TRUE(action.isChecked());
    EXPECT_EQ(action.text(), "Hide it");
    EXPECT_FALSE(action.isEnabled());
}

TEST_F(Routing, AToolBarShowsWhatCanRun)
{
    QToolBar bar;
    SetCommand(*bar.addAction("Known"), kViewCommand, frame->GetSafeHwnd());
    SetCommand(*bar.addAction("Unknown"), 4711, frame->GetSafeHwnd());
    view->allows = true;
    UpdateActions(bar.actions(), *frame);
    EXPECT_TRUE(bar.actions()[0]->isEnabled());
    EXPECT_FALSE(bar.actions()[1]->isEnabled());
}

TEST_F(Routing, ALabelShowsWhatItsHandlerSays)
{
    QLabel label("old");
    LabelUI(kMarked, label).DoUpdate(*frame);
    EXPECT_EQ(label.text(), "Hide it");
    LabelUI(kViewCommand, label).DoUpdate(*frame);
    EXPECT_FALSE(label.isEnabled());
    LabelUI(4711, label).DoUpdate(*frame);
    EXPECT_EQ(label.text(), "");
}

TEST_F(Routing, ATriggeredActionOutlivesItsFrame)
{
    QAction action;
    SetCommand(action, kViewCommand, frame->GetSafeHwnd());
    action.trigger();
    EXPECT_EQ(ran, QStringList("view"));
    doc->OnCloseDocument();
    action.trigger();
    Settle();
    action.trigger();
    EXPECT_EQ(ran.size(), 1);
}

TEST_F(Routing, MailIsOfferedForADocumentWithAFile)
{
    QAction action;
    SetCommand(action, ID_FILE_SEND_MAIL, frame->GetSafeHwnd());
    UpdateActions({&action}, *frame);
    EXPECT_FALSE(action.isEnabled());
    doc->SetPathName("/a/b.note");
    UpdateActions({&action}, *frame);
    EXPECT_TRUE(action.isEnabled());
    class Desktop final : public IShell
    {
    public:
        bool Open(const QUrl& url) override
        {
            opened << url.toString();
            return true;
        }
        QStringList opened;
    } desktop;
    SetShell(&desktop);
    action.trigger();
    SetShell(nullptr);
    EXPECT_EQ(desktop.opened, QStringList("mailto:?subject=b.note&attach=/a/b.note"));
}

TEST_F(Routing, TheFocusMakesItsViewTheActiveOne)
{
    auto* second = new RoutedView;
    CCreateContext context;
    context.m_pCurrentDoc = doc;
    ASSERT_TRUE(second->CreateView(frame, &context));
    auto* edit = new QLineEdit(second->GetSafeHwnd());
    frame->ActivateFrame();
    QApplication::setActiveWindow(frame->GetSafeHwnd());
    edit->show();
    edit->setFocus();
    EXPECT_EQ(frame->GetActiveView(), second);
    EXPECT_EQ(view->heard.last(), "off");
    view->SetFocus();
    EXPECT_EQ(frame->GetActiveView(), view);
}
