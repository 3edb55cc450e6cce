// SPDX-License-Identifier: GPL-3.0-or-later
// CDocument: identity, views and life. Its files stand in DocumentFiles.
#include "platform/docview/Document.h"

#include "platform/docview/CommandIds.h"
#include "platform/docview/DocTemplate.h"
#include "platform/docview/FrameWnd.h"
#include "platform/docview/View.h"
#include "platform/docview/WinApp.h"
#include "platform/windows/Disposal.h"

#include <QFileInfo>

#include <algorithm>

CDocument::~CDocument()
{
    for (CView* view : m_views)
        view->m_pDocument = nullptr;
    if (m_pDocTemplate)
        m_pDocTemplate->RemoveDocument(this);
    Disposal::Forget(this);
}

const CRuntimeClass* CDocument::GetThisClass()
{
    static const CRuntimeClass own = {"CDocument", CObject::GetThisClass()};
    return &own;
}

void CDocument::SetTitle(const QString& title)
{
    m_strTitle = title;
    const std::vector<CView*> views = m_views;
    for (const CView* view : views) {
        for (CFrameWnd* frame = view->GetParentFrame(); frame; frame = frame->GetParentFrame())
            frame->OnUpdateFrameTitle();
    }
}

void CDocument::SetPathName(const QString& path, bool addToRecent)
{
    const QFileInfo file(path);
    m_strPathName = file.absoluteFilePath();
    SetTitle(file.fileName());
    if (addToRecent && GetApp())
        GetApp()->AddToRecentFileList(m_strPathName);
}

int CDocument::IsModified()
{
    return m_bModified;
}

void CDocument::SetModifiedFlag(int modified)
{
    m_bModified = modified;
}

void CDocument::AddView(CView* view)
{
    m_views.push_back(view);
    view->m_pDocument = this;
}

void CDocument::RemoveView(CView* view)
{
    if (std::erase(m_views, view) == 0)
        return;
    view->m_pDocument = nullptr;
    if (m_views.empty() && m_bAutoDelete && !m_closed)
        OnCloseDocument();
}

void CDocument::UpdateAllViews(CView* sender, std::intptr_t hint, CObject* object)
{
    const FrameworkCall call; // a view that one of them closes is still an object
    const std::vector<CView*> views = m_views;
    for (CView* view : views) {
        if (view != sender && std::find(m_views.begin(), m_views.end(), view) != m_views.end())
            view->OnUpdate(sender, hint, object);
    }
}

int CDocument::OnNewDocument()
{
    DeleteContents();
    SetModifiedFlag(0);
    m_strPathName.clear();
    return 1;
}

// A frame takes its views along, of other documents as well; a view may stand outside of any.
void CDocument::OnCloseDocument()
{
    if (m_closed)
        return;
    m_closed = true;
    const FrameworkCall call;
    while (!m_views.empty()) {
        CView* view = m_views.back();
        if (CFrameWnd* frame = view->GetParentFrame()) {
            PreCloseFrame(frame);
            frame->DestroyWindow();
        } else {
            view->DestroyWindow();
        }
        RemoveView(view); // one without a window has heard of nothing
    }
    DeleteContents();
    if (m_pDocTemplate)
        m_pDocTemplate->RemoveDocument(this);
    if (m_bAutoDelete)
        Disposal::Later(this, nullptr);
}

int CDocument::CanCloseFrame(CFrameWnd* frame)
{
    for (const CView* view : m_views) {
        const CFrameWnd* other = view->GetParentFrame();
        if (other && other != frame)
            return 1;
    }
    return SaveModified();
}

void CDocument::PreCloseFrame(CFrameWnd* /*frame*/) {}

void CDocument::DeleteContents() {}

HWND CDocument::FirstWindow() const
{
    return m_views.empty() ? nullptr : m_views.front()->GetSafeHwnd();
}

void CDocument::OnFileClose()
{
    if (SaveModified())
        OnCloseDocument();
}

const CommandMap& CDocument::GetCommandMap() const
{
    static constexpr CommandEntry kCommands[] = {
        {ID_FILE_CLOSE, [](CCmdTarget& t) { static_cast<CDocument&>(t).OnFileClose(); }},
        {ID_FILE_SAVE, [](CCmdTarget& t) { static_cast<CDocument&>(t).OnFileSave(); }},
        {ID_FILE_SAVE_AS, [](CCmdTarget& t) { static_cast<CDocument&>(t).OnFileSaveAs(); }},
        {ID_FILE_SEND_MAIL, [](CCmdTarget& t) { static_cast<CDocument&>(t).OnFileSendMail(); }},
    };
    static constexpr UpdateEntry kUpdates[] = {
        {ID_FILE_SEND_MAIL,
         [](CCmdTarget& t, CCmdUI& ui) { static_cast<CDocument&>(t).OnUpdateFileSendMail(ui); }},
    };
    static const CommandMap map = {&CCmdTarget::GetCommandMap(), kCommands, kUpdates};
    return map;
}
