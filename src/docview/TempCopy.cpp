// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorDoc: a copy of the text that is not the user's file.
#include "docview/ZNCoreEditorDoc.h"

#include "docview/ZNCoreEditorView.h"
#include "platform/system/SpecialFolders.h"

#include <QDir>
#include <QFileInfo>

int CZNCoreEditorDoc::SaveTempCopy()
{
    if (!m_docPointer || m_strPathName.isEmpty())
        return 0;
    RemoveTempCopy(0);
    if (m_tempPathName.isEmpty()) {
        QString folder;
        if (!znutils::CSpecialFolders::GetAppTempPath(folder, true) || folder.isEmpty())
            return 0;
        m_tempPathName = QDir(folder).filePath(QFileInfo(m_strPathName).fileName());
    }
    CZNCoreEditorView* view = GetFirstEditView();
    if (!view)
        return 0;
    // A file that the user has opened in that folder is no copy, which would be deleted later.
    if (QFileInfo(m_tempPathName) == QFileInfo(m_strPathName))
        return 1;
    const bool written =
        view->GetCoreEditorControl()->SaveFile(m_tempPathName.toStdU16String().c_str(), false);
    m_tempCopySaved = 1;
    return written ? 0 : 1;
}

// What keeps the copy from being removed goes to the caller, and the copy still counts as there:
// also one that was never written, or that others have cleared away. Whoever makes copies has to
// look after their folder.
void CZNCoreEditorDoc::RemoveTempCopy(int clearName)
{
    if (m_tempCopySaved)
        CFile::Remove(m_tempPathName);
    m_tempCopySaved = 0;
    if (clearName)
        m_tempPathName.clear();
}
