// SPDX-License-Identifier: GPL-3.0-or-later
// An engine window as a host sees it: by class name and number, with a parent that listens.
#pragma once

#include "control/EngineMessages.h"
#include "platform/windows/Wnd.h"

#include <string>
#include <vector>

// One notification, with its text copied.
struct Heard
{
    SCNotification record;
    std::u16string text;
    WPARAM id; // of the message
};

// A parent window that keeps every notification.
class Listener : public CWnd
{
public:
    Listener();

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    std::vector<Heard> heard;
    std::vector<Heard> Of(UINT code) const;
    void (*onNotify)(Listener& listener, const SCNotification& record) = nullptr;
    HWND editor = nullptr;
    bool takesTurns = false; // of the wheel
    std::vector<std::pair<UINT, int>> turns;
};

class EngineUnderTest
{
public:
    static constexpr UINT kId = 17; // that the parent knows the window by

    EngineUnderTest();
    ~EngineUnderTest();

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return m_function(m_instance, message, wParam, lParam);
    }
    LRESULT Send(UINT message, WPARAM wParam, const void* lParam) const
    {
        return Send(message, wParam, reinterpret_cast<LPARAM>(lParam));
    }

    void SetText(const std::u16string& text) const;
    void Insert(long position, const std::u16string& text) const; // by the target, NULs included
    void Erase(long start, long end) const;
    std::u16string Text() const;
    std::u16string Range(long start, long end) const;

    Listener& Parent() { return m_parent; }
    HWND Window() const { return m_window; }

private:
    Listener m_parent;
    HWND m_window;
    engine::DirectFunction m_function;
    LRESULT m_instance;
};
