// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/MainFrame.h"

#include "host/commands/WorkbenchCommands.h"
#include "host/finding/FindBar.h"
#include "host/window/MainWindow.h"
#include "platform/docview/WinApp.h"

#include <QCoreApplication>
#include <QThread>

MainFrame::MainFrame(MainWindow& window) : m_window(window)
{
    Attach(&window);
    GetApp()->SetMainWnd(this);
}

// What is open is remembered once nobody can say no any more.
void MainFrame::OnClose()
{
    if (!GetApp()->SaveAllModified() || !GetSafeHwnd())
        return;
    m_window.EndSession();
    GetApp()->CloseAllDocuments();
    DestroyWindow();
    // Without a loop to end, this would end the next one.
    if (QThread::currentThread()->loopLevel() > 0)
        QCoreApplication::exit();
}

// What a view's menu and keys have for finding, and no view here runs.
template <void (FindBar::*Operation)()>
void MainFrame::RunFind(CCmdTarget& target)
{
    (static_cast<MainFrame&>(target).m_window.Find().*Operation)();
}

const CommandMap& MainFrame::GetCommandMap() const
{
    static constexpr CommandEntry kCommands[] = {
        {57636, &RunFind<&FindBar::OpenFinding>},   {57640, &RunFind<&FindBar::FindNext>},
        {54063, &RunFind<&FindBar::FindNext>},      {53902, &RunFind<&FindBar::FindPrevious>},
        {53903, &RunFind<&FindBar::FindNextWord>},  {53904, &RunFind<&FindBar::FindPreviousWord>},
        {57641, &RunFind<&FindBar::OpenReplacing>}, {command::CloseFind, &RunFind<&FindBar::Close>},
    };
    static const CommandMap map = {&CFrameWnd::GetCommandMap(), kCommands, {}};
    return map;
}

const MessageMap& MainFrame::GetMessageMap() const
{
    static constexpr MessageEntry kEntries[] = {
        {WM_CLOSE,
         [](CWnd& t, WPARAM, LPARAM) -> LRESULT {
             static_cast<MainFrame&>(t).OnClose();
             return 1;
         }},
    };
    static const MessageMap map = {&CFrameWnd::GetMessageMap(), kEntries};
    return map;
}
