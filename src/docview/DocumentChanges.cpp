// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorDoc: what others do to the file, and when a host has to parse.
#include "docview/ZNCoreEditorDoc.h"

#include "docview/ZNCoreEditorView.h"
#include "platform/docview/CommandIds.h"
#include "platform/docview/FrameWnd.h"
#include "platform/services/OptionsServer.h"
#include "platform/windows/Questions.h"
#include "settings/ConfigFile.h"

#include <QCoreApplication>
#include <QScopedValueRollback>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CZNCoreEditorDoc)
};

HWND WindowOf(const CView* view)
{
    return view ? view->GetSafeHwnd() : nullptr;
}

} // namespace

void CZNCoreEditorDoc::SetLastAccessTime()
{
    CConfigFile* config = Configuration();
    if ((config && !config->GetFileTracking()) || m_strPathName.isEmpty() || m_fileFrozen)
        return;
    CFileStatus status;
    if (CFile::GetStatus(m_strPathName, status))
        m_lastAccessTime = status.m_mtime;
}

bool CZNCoreEditorDoc::IsTracked() const
{
    CConfigFile* config = Configuration();
    return !m_fileFrozen && config && config->GetFileTracking() && m_lastAccessTime != 0 &&
           !m_strPathName.isEmpty() && !m_fileReadOnly;
}

// A question takes the focus and gives it back, which brings the view here once more.
void CZNCoreEditorDoc::CheckLastAccessTime()
{
    if (m_checkingAccessTime || !IsTracked())
        return;
    const QScopedValueRollback<bool> checking(m_checkingAccessTime, true);
    CFileStatus status;
    if (!CFile::GetStatus(m_strPathName, status)) {
        OnFileGone();
    } else if (status.m_mtime != m_lastAccessTime) { // older counts as well
        m_lastAccessTime = status.m_mtime;
        OnFileRewritten();
    } else if (status.m_attribute & CFileStatus::readOnly) {
        CZNCoreEditorView* view = GetFirstEditView();
        if (view && !view->GetCoreEditorControl()->GetReadOnly(1))
            view->GetCoreEditorControl()->SetReadOnly(1, 1);
        m_fileReadOnly = true;
    }
}

void CZNCoreEditorDoc::OnFileGone()
{
    m_lastAccessTime = 0;
    const QString text = Texts::tr("'%1'\nFile has been deleted outside of this application!\n"
                                   "Do you want to close this Document?");
    if (!AskYesNo(WindowOf(GetFirstEditView()), text.arg(m_strPathName)))
        return;
    RemoveTempCopy(0);
    CZNCoreEditorView* view = GetFirstEditView();
    CFrameWnd* frame = view ? view->GetParentFrame() : nullptr;
    if (frame)
        PostMessage(frame->GetSafeHwnd(), WM_CLOSE, 0, 0);
}

void CZNCoreEditorDoc::OnFileRewritten()
{
    const QString text = Texts::tr("'%1'\nFile has been modified outside of this application!\n"
                                   "Do you want to reload it?");
    if (CZNOptionsServer::GetObjectW()->GetInt(option::ReloadWithoutAsking) ||
        AskYesNo(WindowOf(GetFirstEditView()), text.arg(m_strPathName))) {
        ReloadFile();
        return;
    }
    if (CZNCoreEditorView* view = GetFirstEditView())
        view->GetCoreEditorControl()->SetFocus();
    m_lastAccessTime = 0;
}

// The engine of a read-only control would refuse the file's text and keep the old one.
void CZNCoreEditorDoc::ReloadFile()
{
    RemoveTempCopy(0);
    bool wasRead = true;
    if (CZNCoreEditorView* view = GetFirstEditView()) {
        CZNCoreEditorControlEx& control = view->GetCoreEditorControlRef();
        const bool isReadOnly = control.GetReadOnly(1);
        if (isReadOnly)
            control.SetReadOnly(0, 1);
        wasRead = view->ReloadFile();
        if (isReadOnly)
            control.SetReadOnly(1, 1);
    }
    m_changedTime = Now();
    if (!wasRead && !IsClosed())
        ReportSaveLoadException(m_strPathName, nullptr, false, IDP_FAILED_TO_OPEN);
}

void CZNCoreEditorDoc::OnFileReload()
{
    if (m_strPathName.isEmpty())
        return;
    const QString text = Texts::tr("Do you want to reload '%1' ?");
    if (AskYesNo(WindowOf(GetFirstEditView()), text.arg(m_strPathName)))
        ReloadFile();
}

void CZNCoreEditorDoc::OnUpdateFileReload(CCmdUI& ui)
{
    ui.Enable(!m_strPathName.isEmpty() && IsModified());
}

void CZNCoreEditorDoc::OnUpdateFileMove(CCmdUI& ui)
{
    ui.Enable(!m_strPathName.isEmpty());
}

int CZNCoreEditorDoc::ShouldParse() const
{
    if (m_changedTime == 0 || m_parsedTime >= m_changedTime)
        return 0;
    return Configuration() ? 1 : 0;
}
