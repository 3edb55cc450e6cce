#include "docview/ZNCoreEditorView.h"

#include "control/EngineRecords.h"
#include "docview/ZNCoreEditorDoc.h"

namespace {

constexpr UINT kControlId = 28161;
constexpr std::intptr_t kLanguageHint = 1;

CZNCoreEditorDoc* EditDocumentOf(const CView& view)
{
    return dynamic_cast<CZNCoreEditorDoc*>(view.GetDocument());
}

} // namespace

CZNCoreEditorView::CZNCoreEditorView(CZNCoreEditorControlExCallback* callback)
    : m_callback(callback)
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

// The engine's message 2500 chooses its current indicator.
int CZNCoreEditorView::OnCreate(CCreateContext* context)
{
    constexpr UINT kSetIndicatorCurrent = 2500;
    if (CView::OnCreate(context) == -1)
        return -1;
    if (!m_coreEditor.Create(WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, RECT{1, 1, 100, 100}, this,
                             kControlId, nullptr))
        return -1;
    SendMessage(m_coreEditor.GetSafeHwnd(), kSetIndicatorCurrent, 1, 0);
    m_coreEditor.GetSafeHwnd()->show();
    if (CZNCoreEditorDoc* document = EditDocumentOf(*this))
        document->SetDocCoreEditor(&m_coreEditor);
    return 0;
}

void CZNCoreEditorView::OnInitialUpdate()
{
    CView::OnInitialUpdate();
    m_initialized = 1;
    CZNCoreEditorDoc* document = EditDocumentOf(*this);
    if (!document)
        return;
    CZNCoreEditorView* first = document->GetFirstEditView();
    if (first && first != this) {
        CZNCoreEditorControlEx& other = first->GetCoreEditorControlRef();
        m_coreEditor.LineScroll(0, other.GetFirstVisibleLine(1), 1);
        m_coreEditor.SetXOffset(other.GetXOffset(1), 1);
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

void CZNCoreEditorView::OnSize(int cx, int cy)
{
    if (cx > 0 && cy > 0 && m_coreEditor.GetSafeHwnd())
        m_coreEditor.GetSafeHwnd()->setGeometry(0, 0, cx, cy);
}

// The only place where outside changes to the file are looked for.
void CZNCoreEditorView::OnSetFocus(HWND previous)
{
    CView::OnSetFocus(previous);
    m_coreEditor.SetFocus();
    if (CZNCoreEditorDoc* document = EditDocumentOf(*this))
        document->CheckLastAccessTime();
}

int CZNCoreEditorView::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (!lParam || !m_coreEditor.IsBaseEditorNotify(lParam))
        return CView::OnNotify(wParam, lParam, result);
    constexpr int kTextBits =
        modification::InsertText | modification::DeleteText | modification::User;
    const auto& record = *reinterpret_cast<const SCNotification*>(lParam);
    const UINT code = record.nmhdr.code;
    const int bits = record.modificationType;
    m_coreEditor.HandleNotify(lParam);
    CZNCoreEditorDoc* document = EditDocumentOf(*this);
    switch (code) {
    case notify::SavePointReached:
    case notify::SavePointLeft:
        if (document)
            document->SetModifiedFlag(m_coreEditor.GetModified());
        return 1;
    case notify::Modified:
        if (document && (bits & kTextBits))
            document->DocumentChanged();
        return 1;
    default:
        return 0;
    }
}

bool CZNCoreEditorView::ReloadFile()
{
    const CDocument* document = GetDocument();
    return document && m_coreEditor.ReloadFile(document->GetPathName().toStdU16String().c_str());
}

const MessageMap& CZNCoreEditorView::GetMessageMap() const
{
    using View = CZNCoreEditorView;
    static constexpr MessageEntry kEntries[] = {
        {WM_CREATE,
         [](CWnd& t, WPARAM, LPARAM l) -> LRESULT {
             return static_cast<View&>(t).OnCreate(reinterpret_cast<CCreateContext*>(l));
         }},
        {WM_SIZE,
         [](CWnd& t, WPARAM, LPARAM l) -> LRESULT {
             static_cast<View&>(t).OnSize(WidthOf(l), HeightOf(l));
             return 0;
         }},
        {WM_SETFOCUS,
         [](CWnd& t, WPARAM w, LPARAM) -> LRESULT {
             static_cast<View&>(t).OnSetFocus(reinterpret_cast<HWND>(w));
             return 0;
         }},
    };
    static const MessageMap map = {&CView::GetMessageMap(), kEntries};
    return map;
}
