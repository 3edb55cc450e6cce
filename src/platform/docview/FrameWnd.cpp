// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/docview/FrameWnd.h"

#include "platform/docview/CreateContext.h"
#include "platform/docview/Document.h"
#include "platform/docview/View.h"
#include "platform/docview/WinApp.h"
#include "platform/windows/Disposal.h"

#include <QApplication>
#include <QMainWindow>
#include <QVBoxLayout>

#include <algorithm>
#include <vector>

namespace {

// What stands inside a window now, each of which may take others along when it is called.
template <class T>
QList<QPointer<QWidget>> WindowsInside(HWND window)
{
    QList<QPointer<QWidget>> found;
    for (QWidget* inside : window->findChildren<QWidget*>()) {
        if (dynamic_cast<T*>(AttachedWnd(inside)))
            found << inside;
    }
    return found;
}

template <class T>
T* Attached(QWidget* window)
{
    return dynamic_cast<T*>(AttachedWnd(window));
}

QString NumberOf(const CFrameWnd* frame, const CDocument& document)
{
    std::vector<const CFrameWnd*> frames;
    for (const CView* view : document.GetViews()) {
        const CFrameWnd* around = view->GetParentFrame();
        if (std::find(frames.begin(), frames.end(), around) == frames.end())
            frames.push_back(around);
    }
    const auto place = std::find(frames.begin(), frames.end(), frame) - frames.begin();
    return frames.size() > 1 ? QStringLiteral(":%1").arg(place + 1) : QString();
}

} // namespace

const CRuntimeClass* CFrameWnd::GetThisClass()
{
    static const CRuntimeClass own = {"CFrameWnd", CObject::GetThisClass(),
                                      &CFrameWnd::CreateObject};
    return &own;
}

CFrameWnd* FrameAround(HWND window)
{
    for (QWidget* at = window; at; at = at->parentWidget()) {
        if (auto* frame = Attached<CFrameWnd>(at))
            return frame;
    }
    return nullptr;
}

bool CFrameWnd::LoadFrame(CCreateContext* context)
{
    if (!GetSafeHwnd() && !Attach(MakeWidget())) {
        PostNcDestroy();
        return false;
    }
    if (OnCreateClient(context) && GetSafeHwnd())
        return true;
    DestroyWindow();
    return false;
}

// A view has no size of its own, and a frame none without it.
HWND CFrameWnd::MakeWidget()
{
    auto* widget = new QWidget;
    widget->resize(800, 600);
    return widget;
}

bool CFrameWnd::OnCreateClient(CCreateContext* context)
{
    if (!context || !context->m_pNewViewClass)
        return true;
    const CView* view = CreateView(context);
    if (!view)
        return false;
    RecalcLayout(view->GetSafeHwnd());
    return true;
}

CView* CFrameWnd::CreateView(CCreateContext* context)
{
    CObject* object = context->m_pNewViewClass->CreateObject();
    auto* view = dynamic_cast<CView*>(object);
    if (!view) {
        delete object;
        return nullptr;
    }
    if (view->CreateView(this, context))
        return view;
    Disposal::Later(view, nullptr);
    return nullptr;
}

void CFrameWnd::RecalcLayout(HWND client)
{
    if (auto* window = qobject_cast<QMainWindow*>(GetSafeHwnd())) {
        window->setCentralWidget(client);
        return;
    }
    if (!GetSafeHwnd()->layout()) {
        auto* layout = new QVBoxLayout(GetSafeHwnd());
        layout->setContentsMargins(0, 0, 0, 0);
    }
    GetSafeHwnd()->layout()->addWidget(client);
}

CView* CFrameWnd::GetActiveView() const
{
    return Attached<CView>(m_activeView);
}

void CFrameWnd::SetActiveView(CView* view)
{
    const FrameworkCall call;
    for (CFrameWnd *inner = this, *outer = GetParentFrame(); outer;
         inner = outer, outer = outer->GetParentFrame())
        outer->m_activeFrame = inner->GetSafeHwnd();
    CView* previous = GetActiveView();
    if (previous == view)
        return;
    m_activeView = nullptr;
    if (previous)
        previous->OnActivateView(0, view, previous);
    if (GetActiveView() || !view || !view->GetSafeHwnd())
        return; // another one has come first, or this one has gone
    m_activeView = view->GetSafeHwnd();
    view->OnActivateView(1, view, previous);
    for (CFrameWnd* frame = this; frame; frame = frame->GetParentFrame())
        frame->OnUpdateFrameTitle();
}

CDocument* CFrameWnd::GetActiveDocument() const
{
    const auto* inside = Attached<CFrameWnd>(m_activeFrame);
    if (inside)
        return inside->GetActiveDocument();
    const CView* view = GetActiveView();
    return view ? view->GetDocument() : nullptr;
}

CFrameWnd* CFrameWnd::GetActiveFrame()
{
    auto* inside = Attached<CFrameWnd>(m_activeFrame);
    return inside ? inside->GetActiveFrame() : this;
}

CFrameWnd* CFrameWnd::GetParentFrame() const
{
    return FrameAround(GetParent(GetSafeHwnd()));
}

int CFrameWnd::OnCmdMsg(UINT id, int code, void* extra, CommandHandlerInfo* info)
{
    const FrameworkCall call;
    if (Route(id, code, extra, info))
        return 1;
    return GetApp() ? GetApp()->OnCmdMsg(id, code, extra, info) : 0;
}

int CFrameWnd::Route(UINT id, int code, void* extra, CommandHandlerInfo* info)
{
    auto* inside = Attached<CFrameWnd>(m_activeFrame);
    if (inside && inside->Route(id, code, extra, info))
        return 1;
    CView* view = GetActiveView();
    if (view && view->OnCmdMsg(id, code, extra, info))
        return 1;
    return CSelfOwnedWnd::OnCmdMsg(id, code, extra, info);
}

void CFrameWnd::InitialUpdateFrame(CDocument* document, bool visible)
{
    const FrameworkCall call;
    if (!GetSafeHwnd())
        return;
    for (const QPointer<QWidget>& inside : WindowsInside<CView>(GetSafeHwnd())) {
        auto* view = Attached<CView>(inside);
        if (!view || view->GetDocument() != document)
            continue;
        view->OnInitialUpdate();
        if (!GetActiveView() && Attached<CView>(inside))
            SetActiveView(view);
    }
    if (visible && GetSafeHwnd())
        ActivateFrame();
}

void CFrameWnd::ActivateFrame()
{
    if (HWND window = GetSafeHwnd()) {
        window->show();
        window->window()->raise();
        window->window()->activateWindow();
    }
}

void CFrameWnd::OnUpdateFrameTitle()
{
    const CDocument* document = GetActiveDocument();
    if (document && GetSafeHwnd())
        GetSafeHwnd()->setWindowTitle(document->GetTitle() + NumberOf(GetActiveFrame(), *document));
}

void CFrameWnd::DestroyWindow()
{
    if (!GetSafeHwnd())
        return;
    const FrameworkCall call;
    for (const QPointer<QWidget>& inside : WindowsInside<CSelfOwnedWnd>(GetSafeHwnd())) {
        if (auto* wnd = Attached<CSelfOwnedWnd>(inside))
            wnd->DestroyWindow();
    }
    CSelfOwnedWnd::DestroyWindow();
}

// While a question stands, the frame may be closed by others: it has no window then.
void CFrameWnd::OnClose()
{
    CWinApp* app = GetApp();
    if (app && app->GetMainWnd() == this) {
        if (!app->SaveAllModified() || !GetSafeHwnd())
            return;
        app->CloseAllDocuments();
        DestroyWindow();
        QCoreApplication::exit();
        return;
    }
    CDocument* document = GetActiveDocument();
    if (document && !document->CanCloseFrame(this))
        return;
    if (document)
        document->PreCloseFrame(this);
    DestroyWindow();
}

const MessageMap& CFrameWnd::GetMessageMap() const
{
    static constexpr MessageEntry kEntries[] = {
        {WM_CLOSE,
         [](CWnd& t, WPARAM, LPARAM) -> LRESULT {
             static_cast<CFrameWnd&>(t).OnClose();
             return 1;
         }},
    };
    static const MessageMap map = {&CSelfOwnedWnd::GetMessageMap(), kEntries};
    return map;
}
