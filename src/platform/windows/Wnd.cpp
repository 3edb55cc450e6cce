// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/Wnd.h"

#include "platform/windows/Accelerators.h"
#include "platform/windows/Timer.h"

#include <QApplication>
#include <QString>

CWnd::~CWnd()
{
    DestroyWindow();
}

int CWnd::Create(const char16_t* className, const char16_t* title, unsigned long style,
                 const RECT& rect, CWnd* parent, UINT id, CCreateContext* context)
{
    if (m_hWnd)
        return 0;
    const HWND window = CreateWindowOfClass(className, style & ~WS_VISIBLE, rect,
                                            parent ? parent->GetSafeHwnd() : nullptr, id);
    if (!window)
        return 0;
    if (title && *title)
        window->setWindowTitle(QString::fromUtf16(title));
    SubclassWindow(window);
    if (SendMessage(window, WM_CREATE, 0, reinterpret_cast<LPARAM>(context)) == -1)
        DestroyWindow();
    if (m_hWnd && (style & WS_VISIBLE))
        window->show();
    return m_hWnd ? 1 : 0;
}

bool CWnd::SubclassWindow(HWND window)
{
    if (!Attach(window))
        return false;
    PreSubclassWindow();
    return true;
}

bool CWnd::Attach(HWND window)
{
    if (!window || m_hWnd || AttachedWnd(window))
        return false;
    m_hWnd = window;
    SetAttachedWnd(window, this);
    return true;
}

HWND CWnd::Detach()
{
    const HWND window = m_hWnd;
    if (window)
        SetAttachedWnd(window, nullptr);
    m_hWnd = nullptr;
    return window;
}

void CWnd::DestroyWindow()
{
    if (!m_hWnd)
        return;
    SendMessage(m_hWnd, WM_DESTROY, 0, 0);
    delete Detach();
    PostNcDestroy();
}

int CWnd::PreTranslateMessage(MSG* /*message*/)
{
    return 0;
}

int CWnd::OnNotify(WPARAM /*wParam*/, LPARAM /*lParam*/, LRESULT* /*result*/)
{
    return 0;
}

int CWnd::OnCommand(WPARAM wParam, LPARAM /*lParam*/)
{
    constexpr WPARAM kNumber = 0xFFFF;
    return OnCmdMsg(static_cast<UINT>(wParam & kNumber), nullptr) ? 1 : 0;
}

CWnd* CWnd::SetFocus()
{
    CWnd* previous = AttachedWnd(QApplication::focusWidget());
    if (m_hWnd)
        m_hWnd->setFocus();
    return previous;
}

bool CWnd::SetTimer(UINT id, UINT milliseconds)
{
    return ::SetTimer(m_hWnd, id, milliseconds);
}

bool CWnd::KillTimer(UINT id)
{
    return ::KillTimer(m_hWnd, id);
}

void CWnd::OnTimer(UINT id)
{
    DefWindowProc(WM_TIMER, id, 0);
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    for (const MessageMap* map = &GetMessageMap(); map; map = map->base) {
        for (const MessageEntry& entry : map->entries) {
            if (entry.message == message)
                return entry.run(*this, wParam, lParam);
        }
    }
    LRESULT result = 0;
    if (message == WM_NOTIFY && OnNotify(wParam, lParam, &result))
        return result;
    if (message == WM_COMMAND && OnCommand(wParam, lParam))
        return 0;
    return DefWindowProc(message, wParam, lParam);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return CallClassProcedure(m_hWnd, message, wParam, lParam);
}

const MessageMap& CWnd::GetMessageMap() const
{
    static constexpr MessageMap kNone{};
    return kNone;
}
