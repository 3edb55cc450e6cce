// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorView: keys and commands on their way in. An incremental search owns the keyboard
// while it runs.
#include "docview/ZNCoreEditorView.h"

#include "editing/hands/Hands.h"

namespace {

constexpr UINT kFirstCommand = 53890;
constexpr UINT kLastCommand = 54069;
constexpr UINT kIncrementalForward = 54024;
constexpr UINT kIncrementalReverse = 54025;

constexpr LPARAM kWord = 0xFFFF;

} // namespace

int CZNCoreEditorView::PreTranslateMessage(MSG* message)
{
    if (message->message >= WM_KEYFIRST && message->message <= WM_KEYLAST && m_accelerators &&
        (TranslateAccelerator(GetSafeHwnd(), m_accelerators, *message) ||
         TranslateAccelerator(GetSafeHwnd(), HandKeyTable(), *message)))
        return 1;
    if (!IsSearching())
        return CView::PreTranslateMessage(message);
    if (message->message == WM_CHAR)
        return HandleInputCharacter(static_cast<UINT>(message->wParam),
                                    static_cast<UINT>(message->lParam & kWord),
                                    static_cast<UINT>(message->lParam >> 16 & kWord))
                   ? 1
                   : 0;
    return message->message == WM_KEYDOWN && message->wParam == Qt::Key_Backspace &&
           HandleDeleteBack();
}

int CZNCoreEditorView::OnCmdMsg(UINT id, int code, void* extra, CommandHandlerInfo* info)
{
    if (code == CN_COMMAND && !extra)
        HandleCommand(id);
    if (FindHand(id))
        return m_coreEditor.OnCmdMsg(id, code, extra, info);
    return CView::OnCmdMsg(id, code, extra, info);
}

// Commands outside the editor's numbers, as those of the clipboard, leave the search running.
bool CZNCoreEditorView::HandleCommand(UINT id)
{
    if (!IsSearching())
        return false;
    if (id == kIncrementalForward || id == kIncrementalReverse)
        return true;
    if ((id >= kFirstCommand && id <= kLastCommand) || FindHand(id))
        StopIncrementalSearch();
    return false;
}
