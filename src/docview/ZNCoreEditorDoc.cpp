// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorDoc: open, save, title. Outside changes stand in DocumentChanges, the read-only
// switch in DocumentReadOnly, the temporary copy in TempCopy.
#include "docview/ZNCoreEditorDoc.h"

#include "docview/ZNCoreEditorView.h"
#include "editing/language/Library.h"
#include "platform/docview/CommandIds.h"
#include "platform/docview/DocTemplate.h"

#include <QCoreApplication>

#include <algorithm>
#include <ctime>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CZNCoreEditorDoc)
};

const QString kModifiedMark = QStringLiteral(" *");

QString ReadOnlyMark()
{
    return Texts::tr(" (Read Only)");
}

constexpr std::intptr_t kLanguageHint = 1;

} // namespace

CZNCoreEditorDoc::~CZNCoreEditorDoc()
{
    try {
        RemoveTempCopy(0);
    } catch (const CFileException&) { // there is nobody left to tell
    }
}

const CRuntimeClass* CZNCoreEditorDoc::GetThisClass()
{
    static const CRuntimeClass own = {"CZNCoreEditorDoc", CDocument::GetThisClass(),
                                      &CZNCoreEditorDoc::CreateObject};
    return &own;
}

std::int64_t CZNCoreEditorDoc::Now() const
{
    return std::time(nullptr);
}

CConfigFile* CZNCoreEditorDoc::Configuration() const
{
    return zncoreeditor::GetConfigFile();
}

void CZNCoreEditorDoc::Serialize(CArchive& /*archive*/) {}

CZNCoreEditorView* CZNCoreEditorDoc::GetFirstEditView() const
{
    for (CView* view : GetViews()) {
        if (auto* editView = dynamic_cast<CZNCoreEditorView*>(view))
            return editView;
    }
    return nullptr;
}

// A text whose views are all gone has gone with them, and its number may name another one by now.
bool CZNCoreEditorDoc::IsDocPointerAlive() const
{
    return m_docPointer && std::any_of(GetViews().begin(), GetViews().end(), [this](CView* view) {
               auto* editView = dynamic_cast<CZNCoreEditorView*>(view);
               return editView &&
                      LPARAM(editView->GetCoreEditorControl()->GetDocPointer(1)) == m_docPointer;
           });
}

void CZNCoreEditorDoc::SetDocCoreEditor(CZNCoreEditorControlEx* control)
{
    if (IsDocPointerAlive())
        control->SetDocPointer(m_docPointer, 1);
    else
        m_docPointer = control->GetDocPointer(1);
}

int CZNCoreEditorDoc::OnNewDocument()
{
    if (!CDocument::OnNewDocument())
        return 0;
    m_lastAccessTime = m_changedTime = m_parsedTime = 0;
    m_docPointer = 0; // a view that joins later has a text of its own
    RemoveTempCopy(1);
    CZNCoreEditorView* view = GetFirstEditView();
    if (!view)
        return 0;
    view->GetCoreEditorControl()->SetReadOnly(0, 1);
    view->GetCoreEditorControl()->ClearAll(1);
    return 1;
}

int CZNCoreEditorDoc::OnOpenDocument(const QString& path)
{
    return OnOpenDocumentEx(path, FileEncodeConverter::encUnknown);
}

// The path is set, and with it the title, while the control is writable: a file that is read-only
// gets its mark only with the next title.
int CZNCoreEditorDoc::OnOpenDocumentEx(const QString& path,
                                       FileEncodeConverter::encodingType encoding)
{
    RemoveTempCopy(1);
    CFileException error(CFileException::none, -1);
    CFile* probe = GetFile(path, CFile::shareDenyWrite, &error);
    if (!probe) {
        ReportSaveLoadException(path, &error, false, IDP_FAILED_TO_OPEN);
        return 0;
    }
    ReleaseFile(probe, false);
    CZNCoreEditorView* view = GetFirstEditView();
    if (!view)
        return 0;
    CZNCoreEditorControlEx& control = view->GetCoreEditorControlRef();
    control.SetReadOnly(0, 1);
    const std::int64_t changedBefore = m_changedTime; // the load itself comes by as changes
    if (!control.OpenFile(path.toStdU16String().c_str(), encoding))
        return 0;
    SetPathName(path, true);
    CFileStatus status;
    CFile::GetStatus(path, status); // a file that is gone again counts as writable
    AdoptAttributes(control, status);
    if (!m_fileReadOnly) {
        SetLastAccessTime();
        m_changedTime = Now();
        SetModifiedFlag(control.CanUndo(1) ? 1 : 0);
    } else {
        m_changedTime = changedBefore;
        if (status.m_atime == status.m_mtime)
            m_fileFrozen = 1;
    }
    control.SetFocus();
    return 1;
}

void CZNCoreEditorDoc::AdoptAttributes(CZNCoreEditorControlEx& control, const CFileStatus& status)
{
    m_fileReadOnly = (status.m_attribute & CFileStatus::readOnly) != 0;
    control.SetReadOnly(m_fileReadOnly, 1);
}

// Paths that differ by case alone count as one: without changes nothing is written then.
int CZNCoreEditorDoc::OnSaveDocument(const QString& path)
{
    CZNCoreEditorView* view = GetFirstEditView();
    if (!view)
        return 0;
    CZNCoreEditorControlEx& control = view->GetCoreEditorControlRef();
    if (!IsModified() && !control.GetModified() &&
        path.compare(m_strPathName, Qt::CaseInsensitive) == 0)
        return 1;
    RemoveTempCopy(1);
    if (!control.SaveFile(path.toStdU16String().c_str(), true))
        return 0;
    SetPathName(path, true);
    CFileStatus status;
    CFile::GetStatus(path, status);
    AdoptAttributes(control, status);
    if (!m_fileReadOnly)
        SetLastAccessTime();
    SetModifiedFlag(0);
    return 1;
}

int CZNCoreEditorDoc::DoSave(const QString& path, int replace)
{
    QString name = path;
    if (name.isEmpty()) {
        name = m_strPathName;
        if (replace && name.isEmpty()) {
            const QString stops = QStringLiteral(" #%;/\\");
            const auto end = std::find_if(m_strTitle.begin(), m_strTitle.end(),
                                          [&](QChar c) { return stops.contains(c); });
            name = m_strTitle.left(end - m_strTitle.begin());
            QString extension;
            if (GetDocTemplate() &&
                GetDocTemplate()->GetDocString(extension, CDocTemplate::filterExt))
                name += extension;
        }
    }
    return CDocument::DoSave(name, replace) ? 1 : 0;
}

void CZNCoreEditorDoc::SetTitle(const QString& title)
{
    QString text = title.isEmpty() ? m_strPathName : title;
    CZNCoreEditorView* view = GetFirstEditView();
    if (view && !m_strPathName.isEmpty() && view->GetCoreEditorControl()->GetReadOnly(1) &&
        !text.endsWith(ReadOnlyMark()))
        text += ReadOnlyMark();
    CDocument::SetTitle(text);
}

void CZNCoreEditorDoc::SetModifiedFlag(int modified)
{
    CDocument::SetModifiedFlag(modified);
    const QString title = GetTitle();
    if (title.isEmpty() || title.endsWith(kModifiedMark) == (modified != 0))
        return;
    SetTitle(modified ? title + kModifiedMark : title.chopped(kModifiedMark.size()));
}

void CZNCoreEditorDoc::ReloadDefaults()
{
    UpdateAllViews(nullptr, kLanguageHint, nullptr);
}

void CZNCoreEditorDoc::ToggleSyntaxHighlighting()
{
    m_syntaxHighlighting = !m_syntaxHighlighting;
    UpdateAllViews(nullptr, kLanguageHint, nullptr);
}

const CommandMap& CZNCoreEditorDoc::GetCommandMap() const
{
    using Doc = CZNCoreEditorDoc;
    // clang-format off
    static constexpr CommandEntry kCommands[] = {
        {54008, [](CCmdTarget& t) { static_cast<Doc&>(t).OnFileReload(); }},
        {54010, [](CCmdTarget& t) { static_cast<Doc&>(t).OnFileReadonly(); }},
        {54011, [](CCmdTarget& t) { static_cast<Doc&>(t).OnFileMove(); }},
    };
    static constexpr UpdateEntry kUpdates[] = {
        {54008, [](CCmdTarget& t, CCmdUI& ui) { static_cast<Doc&>(t).OnUpdateFileReload(ui); }},
        {54010, [](CCmdTarget& t, CCmdUI& ui) { static_cast<Doc&>(t).OnUpdateFileReadonly(ui); }},
        {54011, [](CCmdTarget& t, CCmdUI& ui) { static_cast<Doc&>(t).OnUpdateFileMove(ui); }},
    };
    // clang-format on
    static const CommandMap map = {&CDocument::GetCommandMap(), kCommands, kUpdates};
    return map;
}
