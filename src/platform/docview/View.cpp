// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/docview/View.h"

#include "platform/docview/CommandIds.h"
#include "platform/docview/CreateContext.h"
#include "platform/docview/Document.h"
#include "platform/docview/FrameWnd.h"
#include "platform/windows/WindowEvents.h"

#include <QApplication>

namespace {

CView* ViewAround(const QWidget* at)
{
    for (; at; at = at->parentWidget()) {
        if (auto* view = dynamic_cast<CView*>(AttachedWnd(const_cast<QWidget*>(at))))
            return view;
    }
    return nullptr;
}

// A focus that goes from one window of a view to another one has not left it.
void OnFocusChanged(QWidget* previous, QWidget* now)
{
    CView* view = ViewAround(now);
    if (!view || view == ViewAround(previous))
        return;
    const HWND window = view->GetSafeHwnd();
    if (CFrameWnd* frame = view->GetParentFrame())
        frame->SetActiveView(view);
    SendMessage(window, WM_SETFOCUS, reinterpret_cast<WPARAM>(previous), 0);
}

void WatchFocus()
{
    static QPointer<QObject> watched;
    if (watched == qApp)
        return;
    watched = qApp;
    QObject::connect(qApp, &QApplication::focusChanged, qApp, &OnFocusChanged);
}

constexpr char16_t kViewClass[] = u"ZNView";

bool RegisterViewClass()
{
    const auto make = [](QWidget* parent) {
        auto* widget = new QWidget(parent);
        widget->setFocusPolicy(Qt::StrongFocus);
        return widget;
    };
    // What a turn of the wheel has to do for a view, its handler has done.
    const auto procedure = [](HWND, UINT message, WPARAM, LPARAM) -> LRESULT {
        return message == WM_MOUSEWHEEL;
    };
    return RegisterWindowClass({kViewClass, make, procedure});
}

} // namespace

CView::~CView()
{
    if (m_pDocument)
        m_pDocument->RemoveView(this);
}

const CRuntimeClass* CView::GetThisClass()
{
    static const CRuntimeClass own = {"CView", CObject::GetThisClass()};
    return &own;
}

int CView::CreateView(CWnd* parent, CCreateContext* context)
{
    return CreateViewIn(parent ? parent->GetSafeHwnd() : nullptr, context);
}

int CView::CreateViewIn(HWND parent, CCreateContext* context)
{
    static const bool registered = RegisterViewClass();
    if (!registered || GetSafeHwnd())
        return 0;
    WatchFocus();
    const HWND window = CreateWindowOfClass(kViewClass, WS_CHILD, RECT{0, 0, 100, 100}, parent);
    SubclassWindow(window);
    if (SendMessage(window, WM_CREATE, 0, reinterpret_cast<LPARAM>(context)) == -1)
        DestroyWindow();
    if (!GetSafeHwnd())
        return 0;
    window->show();
    return 1;
}

CFrameWnd* CView::GetParentFrame() const
{
    return FrameAround(GetParent(GetSafeHwnd()));
}

int CView::OnCmdMsg(UINT id, int code, void* extra, CommandHandlerInfo* info)
{
    if (CSelfOwnedWnd::OnCmdMsg(id, code, extra, info))
        return 1;
    return m_pDocument ? m_pDocument->OnCmdMsg(id, code, extra, info) : 0;
}

void CView::OnInitialUpdate()
{
    OnUpdate(nullptr, 0, nullptr);
}

void CView::OnActivateView(int /*activate*/, CView* /*activated*/, CView* /*deactivated*/) {}

void CView::OnUpdate(CView* /*sender*/, std::intptr_t /*hint*/, CObject* /*object*/)
{
    InvalidateWindow(GetSafeHwnd());
}

void CView::PostNcDestroy()
{
    if (m_pDocument)
        m_pDocument->RemoveView(this);
    CSelfOwnedWnd::PostNcDestroy();
}

int CView::OnCreate(CCreateContext* context)
{
    if (context && context->m_pCurrentDoc)
        context->m_pCurrentDoc->AddView(this);
    return 0;
}

const MessageMap& CView::GetMessageMap() const
{
    static constexpr MessageEntry kEntries[] = {
        {WM_CREATE,
         [](CWnd& t, WPARAM, LPARAM l) -> LRESULT {
             return static_cast<CView&>(t).OnCreate(reinterpret_cast<CCreateContext*>(l));
         }},
        {WM_DESTROY,
         [](CWnd& t, WPARAM, LPARAM) -> LRESULT {
             static_cast<CView&>(t).OnDestroy();
             return 0;
         }},
        {WM_SETFOCUS,
         [](CWnd& t, WPARAM w, LPARAM) -> LRESULT {
             static_cast<CView&>(t).OnSetFocus(reinterpret_cast<HWND>(w));
             return 0;
         }},
    };
    static const MessageMap map = {&CSelfOwnedWnd::GetMessageMap(), kEntries};
    return map;
}

const CommandMap& CView::GetCommandMap() const
{
    static constexpr CommandEntry kCommands[] = {
        {ID_FILE_PRINT, [](CCmdTarget& t) { static_cast<CView&>(t).OnFilePrint(); }},
        {ID_FILE_PRINT_DIRECT, [](CCmdTarget& t) { static_cast<CView&>(t).OnFilePrintDirect(); }},
    };
    static const CommandMap map = {&CSelfOwnedWnd::GetCommandMap(), kCommands, {}};
    return map;
}
