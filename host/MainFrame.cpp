#include "host/MainFrame.h"

#include "host/MainWindow.h"
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
