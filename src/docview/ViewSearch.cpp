// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorView: the searches that go on without a dialog, with the settings that are the
// process's, and the way to a line.
#include "common/Globals.h"
#include "docview/Goto.h"
#include "docview/ZNCoreEditorView.h"
#include "editing/FindDialogs.h"
#include "platform/windows/Questions.h"
#include "search/FindReplaceManager.h"

#include <QCoreApplication>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CZNCoreEditorView)
};

CFindReplaceManager& Manager()
{
    return *zncoreeditor::GetFindReplaceManager();
}

constexpr UINT kNoFindDialog = 28174;
constexpr UINT kNoReplaceDialog = 28175;

void SayNoDialog(HWND owner, UINT text)
{
    ShowMessage(owner, zncoreeditor::GetResourceLoader().LoadString(text), MessageKind::Stop);
}

} // namespace

void CZNCoreEditorView::SayNotFound()
{
    ShowMessage(GetSafeHwnd(),
                Texts::tr("Could not find the string '%1'.").arg(Manager().GetFind()),
                MessageKind::Plain);
    SetFocus();
}

void CZNCoreEditorView::OnSearchFind()
{
    IFindDialogs* dialogs = GetFindDialogs();
    if (!dialogs || !dialogs->ShowFind(m_coreEditor, m_coreEditor.GetFindString(), false))
        SayNoDialog(GetSafeHwnd(), kNoFindDialog);
}

void CZNCoreEditorView::OnSearchFindreplace()
{
    IFindDialogs* dialogs = GetFindDialogs();
    if (!dialogs || !dialogs->ShowReplace(m_coreEditor, m_coreEditor.GetFindString(), false))
        SayNoDialog(GetSafeHwnd(), kNoReplaceDialog);
}

void CZNCoreEditorView::OnSearchIncrementalForward()
{
    FindIncrementalForward();
}

void CZNCoreEditorView::OnSearchIncrementalReverse()
{
    FindIncrementalReverse();
}

void CZNCoreEditorView::OnSearchFindnext()
{
    CFindReplaceManager& manager = Manager();
    const long caret = m_coreEditor.GetCurrentPos(1);
    if (manager.GetFind().isEmpty()) {
        OnSearchFind();
        return;
    }
    manager.SetWrap(true);
    const int found = manager.FindNext(&m_coreEditor);
    if (found == -1) {
        SayNotFound();
        return;
    }
    const bool isPast = manager.GetDown() ? found < caret : found > caret;
    if (isPast) {
        ShowMessage(GetSafeHwnd(),
                    manager.GetDown() ? Texts::tr("Passed the end of the document")
                                      : Texts::tr("Passed the start of the document"),
                    MessageKind::Information);
        SetFocus();
    }
    m_coreEditor.SelectionFromTarget();
}

// The direction stays upward. A match behind the text's start is not selected.
void CZNCoreEditorView::OnSearchFindprevious()
{
    CFindReplaceManager& manager = Manager();
    const long caret = m_coreEditor.GetCurrentPos(1);
    if (manager.GetFind().isEmpty()) {
        OnSearchFind();
        return;
    }
    manager.SetDown(false);
    manager.SetWrap(true);
    const int found = manager.FindNext(&m_coreEditor);
    manager.SetWrap(false);
    if (found == -1)
        SayNotFound();
    else if (found < caret)
        m_coreEditor.SelectionFromTarget();
}

// A match further down leaves the selection on the word at the caret: only one behind the text's
// end is gone to. The search keeps its settings.
void CZNCoreEditorView::OnSearchFindnextword()
{
    CFindReplaceManager& manager = Manager();
    const long caret = m_coreEditor.GetCurrentPos(1);
    manager.SetWholeWord(true);
    manager.SetDown(true);
    manager.SetWrap(true);
    m_coreEditor.SelectWord();
    manager.AddFindHistory(m_coreEditor.GetSelText());
    const int found = manager.FindNext(&m_coreEditor);
    if (found == -1)
        SayNotFound();
    else if (found < caret)
        m_coreEditor.SelectionFromTarget();
}

void CZNCoreEditorView::OnSearchFindprevword()
{
    CFindReplaceManager& manager = Manager();
    const long caret = m_coreEditor.GetCurrentPos(1);
    manager.SetWholeWord(true);
    manager.SetDown(false);
    manager.SetWrap(true);
    m_coreEditor.SelectWord();
    const QString word = m_coreEditor.GetSelText();
    m_coreEditor.SetCurrentPos(m_coreEditor.GetSelectionStart(1) - 1, 1); // not the word itself
    manager.AddFindHistory(word);
    const int found = manager.FindNext(&m_coreEditor);
    if (found == -1) {
        SayNotFound();
        m_coreEditor.SetCurrentPos(caret, 1);
    } else if (found < caret) {
        m_coreEditor.SelectionFromTarget();
    }
}

void CZNCoreEditorView::OnSearchGotoline()
{
    CGoto(this, m_coreEditor.GetCurLineNumber(), m_coreEditor.GetLineCount(1)).DoModal();
}
