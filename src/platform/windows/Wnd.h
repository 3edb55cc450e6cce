// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CWnd: an object for a window. It exists with or without one; a QWidget stands behind the handle.
#pragma once

#include "common/Export.h"
#include "platform/windows/CmdTarget.h"
#include "platform/windows/Window.h"

#include <QPointer>
#include <QWidget>

#include <span>

class CWnd;
struct MSG;
struct CCreateContext; // what a document template hands to the windows that it makes

/// A message and what answers it.
struct MessageEntry
{
    UINT message = 0; ///< the message's number
    /// The target is of the class whose map this is.
    LRESULT (*run)(CWnd& target, WPARAM wParam, LPARAM lParam) = nullptr;
};

/// The messages that a class answers, then those of its base. The first entry of a number wins.
struct MessageMap
{
    const MessageMap* base = nullptr;      ///< null at the root
    std::span<const MessageEntry> entries; ///< of this class alone
};

/// An object for a window.
class ZN_API CWnd : public CCmdTarget
{
public:
    CWnd() = default; ///< without a window
    ~CWnd() override; ///< destroys the window, taken over or not; Detach keeps it

    /// The window, null if there is none or it is gone.
    HWND GetSafeHwnd() const { return m_hWnd.data(); }

    /// Makes a window of the class and attaches it. 0 if the class is unknown, a window is
    /// attached, or WM_CREATE was answered with -1; then there is no window.
    virtual int Create(const char16_t* className, const char16_t* title, unsigned long style,
                       const RECT& rect, CWnd* parent, UINT id, CCreateContext* context = nullptr);

    /// Takes over a window that exists: its messages come here, and it goes with this object, as it
    /// goes with its parent's widget. False for a null handle, or if either side is attached
    /// already.
    bool SubclassWindow(HWND window);

    /// As SubclassWindow, without PreSubclassWindow.
    bool Attach(HWND window);
    HWND Detach(); ///< the window, which lives on

    virtual void DestroyWindow(); ///< the window gets WM_DESTROY and goes; nothing without one

    /// Timers of the window, by number; they end with it. False if there is no window.
    bool SetTimer(UINT id, UINT milliseconds);
    bool KillTimer(UINT id); ///< false if there is no such timer

    /// Runs once a window is attached by Create or SubclassWindow, before its first message.
    virtual void PreSubclassWindow() {}

    /// The last that a window's object hears of it: the window is gone, by DestroyWindow or because
    /// its widget was deleted.
    virtual void PostNcDestroy() {}

    /// Offered a key before the window that has the focus gets it, if it is that window's or one
    /// inside. Not 0 takes the key away.
    virtual int PreTranslateMessage(MSG* message);

    /// What a child tells, the record behind lParam. Not 0 if it was dealt with.
    virtual int OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result);

    /// A command from a key or a menu. Not 0 if it was known.
    virtual int OnCommand(WPARAM wParam, LPARAM lParam);

    virtual CWnd* SetFocus(); ///< the object of the window that had it, or null

    /// Every message that is sent to the window: the message maps, then DefWindowProc.
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT DefWindowProc(UINT message, WPARAM wParam,
                          LPARAM lParam); ///< that of the window's class

protected:
    /// What the window's class does with a timer's message.
    void OnTimer(UINT id);

    /// An override names the base's map as its base.
    virtual const MessageMap& GetMessageMap() const;

private:
    QPointer<QWidget> m_hWnd;
};
