// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorView: life, messages and keys. What the engine tells stands in ViewNotifications,
// the commands in ViewCommands and ViewToggles, the menu in ViewMenu.
#include "docview/ZNCoreEditorView.h"

#include "docview/ZNCoreEditorDoc.h"
#include "editing/language/KeyTable.h"
#include "platform/windows/ScrollBars.h"

namespace {

constexpr UINT kControlId = 28161;
constexpr std::intptr_t kLanguageHint = 1;

} // namespace

CZNCoreEditorView::CZNCoreEditorView(CZNCoreEditorControlExCallback* callback)
    : m_callback(callback), m_accelerators(EditorKeyTable())
{}

CZNCoreEditorView::~CZNCoreEditorView() = default;

const CRuntimeClass* CZNCoreEditorView::GetThisClass()
{
    static const CRuntimeClass own = {"CZNCoreEditorView", CView::GetThisClass(),
                                      &CZNCoreEditorView::CreateObject};
    return &own;
}

CObject* CZNCoreEditorView::CreateObject()
{
    return new CZNCoreEditorView;
}

CZNCoreEditorDoc* CZNCoreEditorView::EditDocument() const
{
    return dynamic_cast<CZNCoreEditorDoc*>(GetDocument());
}

// The control covers the whole view, which paints nothing; what the mouse does on a rim of it is
// nobody's. The engine's message 2500 chooses its current indicator.
int CZNCoreEditorView::OnCreate(CCreateContext* context)
{
    constexpr UINT kSetIndicatorCurrent = 2500;
    if (CView::OnCreate(context) == -1)
        return -1;
    GetSafeHwnd()->setAttribute(Qt::WA_OpaquePaintEvent);
    GetSafeHwnd()->setAttribute(Qt::WA_NoMousePropagation);
    if (!m_coreEditor.Create(WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, RECT{1, 1, 100, 100}, this,
                             kControlId, nullptr))
        return -1;
    SendMessage(m_coreEditor.GetSafeHwnd(), kSetIndicatorCurrent, 1, 0);
    GetSafeHwnd()->setFocusProxy(m_coreEditor.GetSafeHwnd());
    m_coreEditor.GetSafeHwnd()->show();
    if (CZNCoreEditorDoc* document = EditDocument())
        document->SetDocCoreEditor(&m_coreEditor);
    return 0;
}

void CZNCoreEditorView::OnInitialUpdate()
{
    CView::OnInitialUpdate();
    m_initialized = 1;
    CZNCoreEditorDoc* document = EditDocument();
    if (!document)
        return;
    CZNCoreEditorView* first = document->GetFirstEditView();
    if (first && first != this) {
        CZNCoreEditorControlEx& other = first->GetCoreEditorControlRef();
        const int line = other.GetFirstVisibleLine(1);
        const int offset = other.GetXOffset(1);
        m_coreEditor.LineScroll(0, line, 1);
        m_coreEditor.SetXOffset(offset, 1);
        m_coreEditor.InitializeLanguage(other.GetCurrentLanguage(), 0);
    } else {
        m_coreEditor.LineScroll(0, m_coreEditor.GetFirstVisibleLine(1), 1);
    }
    SetFocus();
}

void CZNCoreEditorView::OnUpdate(CView* /*sender*/, std::intptr_t hint, CObject* /*object*/)
{
    if (hint == kLanguageHint)
        m_coreEditor.InitializeLanguage(m_coreEditor.GetCurrentLanguage(), 0);
}

void CZNCoreEditorView::OnActivateView(int activate, CView* activated, CView* deactivated)
{
    CView::OnActivateView(activate, activated, deactivated);
    if (activate && activated)
        m_coreEditor.SetFocus();
    else
        m_coreEditor.AutoCCancel(0);
}

// The message's size may be one that the view has had.
void CZNCoreEditorView::OnSize(UINT type, int cx, int cy)
{
    constexpr UINT kNoSize = 6;
    if (cx > 0 && cy > 0 && type != kNoSize && m_coreEditor.GetSafeHwnd())
        m_coreEditor.GetSafeHwnd()->setGeometry(GetSafeHwnd()->rect());
}

// The only place where outside changes to the file are looked for.
void CZNCoreEditorView::OnSetFocus(HWND previous)
{
    CView::OnSetFocus(previous);
    m_coreEditor.SetFocus();
    if (CZNCoreEditorDoc* document = EditDocument())
        document->CheckLastAccessTime();
}

LRESULT CZNCoreEditorView::OnMouseWheel(UINT flags, int delta, CPoint point)
{
    if (flags & MK_CONTROL) {
        if (delta < 0)
            OnViewZoomlevelZoomout();
        else
            OnViewZoomlevelZoomin();
    } else if (flags & MK_SHIFT) {
        if (delta < 0)
            m_coreEditor.PageDown(1);
        else
            m_coreEditor.PageUp(1);
    }
    return DefWindowProc(WM_MOUSEWHEEL, WheelParam(flags, delta), PointParam(point));
}

void CZNCoreEditorView::SetExtendedMargin(bool on)
{
    m_coreEditor.SetExtendedMargin(on);
}

void CZNCoreEditorView::SetExtendedText(std::map<int, std::u16string>& texts)
{
    m_coreEditor.SetExtendedText(texts);
}

void CZNCoreEditorView::SetExtendedText(const char16_t* text, int length)
{
    m_coreEditor.SetExtendedText(text, length);
}

bool CZNCoreEditorView::ReloadFile()
{
    const CDocument* document = GetDocument();
    return document && m_coreEditor.ReloadFile(document->GetPathName().toStdU16String().c_str());
}

void CZNCoreEditorView::SetSelectedLine(int line, int focus)
{
    constexpr int kSelectedLineMarker = 4;
    m_coreEditor.GotoLineEnsureVisible(line);
    if (focus)
        m_coreEditor.SetFocus();
    m_coreEditor.MarkerDeleteAll(kSelectedLineMarker, 1);
    m_coreEditor.MarkerAdd(m_coreEditor.GetCurLineNumber(), kSelectedLineMarker, 1);
}

const MessageMap& CZNCoreEditorView::GetMessageMap() const
{
    using View = CZNCoreEditorView;
    static const MessageEntry kEntries[] = {
        {WM_CREATE,
         [](CWnd& t, WPARAM, LPARAM l) -> LRESULT {
             return static_cast<View&>(t).OnCreate(reinterpret_cast<CCreateContext*>(l));
         }},
        {WM_SIZE,
         [](CWnd& t, WPARAM w, LPARAM l) -> LRESULT {
             static_cast<View&>(t).OnSize(static_cast<UINT>(w), WidthOf(l), HeightOf(l));
             return 0;
         }},
        {WM_SETFOCUS,
         [](CWnd& t, WPARAM w, LPARAM) -> LRESULT {
             static_cast<View&>(t).OnSetFocus(reinterpret_cast<HWND>(w));
             return 0;
         }},
        {WM_MOUSEWHEEL,
         [](CWnd& t, WPARAM w, LPARAM l) {
             return static_cast<View&>(t).OnMouseWheel(WheelFlagsOf(w), WheelDeltaOf(w),
                                                       PointOf(l));
         }},
        {WM_CONTEXTMENU,
         [](CWnd& t, WPARAM w, LPARAM l) -> LRESULT {
             CWnd* window = AttachedWnd(reinterpret_cast<HWND>(w));
             static_cast<View&>(t).OnContextMenu(window, PointOf(l));
             return 1;
         }},
        {WM_HSCROLL,
         [](CWnd& t, WPARAM w, LPARAM l) -> LRESULT {
             static_cast<View&>(t).OnHScroll(ScrollCodeOf(w), ScrollPositionOf(w),
                                             AttachedWnd(reinterpret_cast<HWND>(l)));
             return 0;
         }},
        {WM_VSCROLL,
         [](CWnd& t, WPARAM w, LPARAM l) -> LRESULT {
             static_cast<View&>(t).OnVScroll(ScrollCodeOf(w), ScrollPositionOf(w),
                                             AttachedWnd(reinterpret_cast<HWND>(l)));
             return 0;
         }},
        {kGetScrollInfo,
         [](CWnd& t, WPARAM w, LPARAM l) {
             return static_cast<View&>(t).OnGetScrollInfoMsg(reinterpret_cast<SCROLLINFO*>(w), l);
         }},
        {kSetScrollInfo,
         [](CWnd& t, WPARAM w, LPARAM l) {
             return static_cast<View&>(t).OnSetScrollInfoMsg(reinterpret_cast<const SCROLLINFO*>(w),
                                                             l);
         }},
        {ZNBASEM_ON_EDITCHANGE,
         [](CWnd& t, WPARAM w, LPARAM l) { return static_cast<View&>(t).OnEditChange(w, l); }},
    };
    static const MessageMap map = {&CView::GetMessageMap(), kEntries};
    return map;
}
