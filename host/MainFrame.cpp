#include "host/MainFrame.h"

#include "host/MainWindow.h"
#include "platform/docview/WinApp.h"

#include <QCoreApplication>

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
    QCoreApplication::exit();
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
