// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorDoc: the switch between writable and read-only, of the editor and of the file.
#include "docview/ZNCoreEditorDoc.h"

#include "docview/ZNCoreEditorView.h"
#include "platform/windows/Questions.h"

#include <QCoreApplication>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CZNCoreEditorDoc)
};

} // namespace

// The attributes of a file that is gone read as all ones, so as read-only.
void CZNCoreEditorDoc::OnFileReadonly()
{
    CZNCoreEditorView* view = GetFirstEditView();
    if (!view)
        return;
    CZNCoreEditorControlEx& control = view->GetCoreEditorControlRef();
    if (!m_fileFrozen)
        control.SetReadOnly(control.GetReadOnly(1) ? 0 : 1, 1);
    if (m_strPathName.isEmpty() || m_fileFrozen)
        return;
    const auto bitOf = [](std::uint32_t attributes) {
        return attributes & FILE_ATTRIBUTE_READONLY;
    };
    if (bitOf(GetFileAttributesW(m_strPathName)) ==
        static_cast<std::uint32_t>(control.GetReadOnly(1)))
        return;
    const QString text = Texts::tr("Do you want to set the file '%1' to read only too?");
    if (!AskYesNo(view->GetSafeHwnd(), text.arg(m_strPathName)))
        return;
    const std::uint32_t attributes = GetFileAttributesW(m_strPathName);
    m_fileReadOnly = !bitOf(attributes);
    SetFileAttributesW(m_strPathName, attributes ^ FILE_ATTRIBUTE_READONLY);
}

void CZNCoreEditorDoc::OnUpdateFileReadonly(CCmdUI& ui)
{
    ui.Enable(!m_fileReadOnly && !m_fileFrozen);
    if (CZNCoreEditorView* view = GetFirstEditView())
        ui.SetCheck(view->GetCoreEditorControl()->GetReadOnly(1) ? 1 : 0);
}
