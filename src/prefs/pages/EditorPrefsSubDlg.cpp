// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/pages/EditorPrefsSubDlg.h"

#include "platform/windows/Accelerators.h"
#include "settings/SyntaxFile.h"

// The dialog is the next window around that is one of the framework's.
void CEditorPrefsSubDlg::OnChanged()
{
    m_hasChanges = true;
    const QWidget* window = GetSafeHwnd();
    for (QWidget* at = window ? window->parentWidget() : nullptr; at; at = at->parentWidget()) {
        if (!AttachedWnd(at))
            continue;
        PostMessage(at, kPageChanged, 0, 0);
        return;
    }
}

CSyntaxFile* CEditorPrefsSubDlg::Syntax() const
{
    return m_pSyntaxFile && m_pSyntaxFile->Parse() ? m_pSyntaxFile : nullptr;
}

// Escape closes nothing here: what was set up over six pages would be gone by a slip.
int CEditorPrefsSubDlg::PreTranslateMessage(MSG* message)
{
    if (message->message == WM_KEYDOWN && message->wParam == Qt::Key_Escape)
        return 1;
    return CDialog::PreTranslateMessage(message);
}
