// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// Windows by handle: classes by name, creation, the synchronous send.
/// Behind a handle stands a QWidget; behind a class, a function that makes one.
/// All of it belongs to the GUI thread.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

/// The window is there; lParam: CCreateContext or null; -1 gives it up.
inline constexpr UINT WM_CREATE = 0x0001;
inline constexpr UINT WM_DESTROY = 0x0002;  ///< from CWnd::DestroyWindow alone
inline constexpr UINT WM_SIZE = 0x0005;     ///< wParam: 0; lParam: SizeParam
inline constexpr UINT WM_SETFOCUS = 0x0007; ///< wParam: the window that had the focus, or null
inline constexpr UINT WM_SETTEXT = 0x000C;  ///< lParam: UTF-16 with a terminator
inline constexpr UINT WM_CLOSE = 0x0010;   ///< the user's wish; answered with 1, Qt keeps out of it
inline constexpr UINT WM_SETFONT = 0x0030; ///< wParam: HFONT, lParam: whether to paint
inline constexpr UINT WM_NOTIFY = 0x004E;  ///< wParam: the sender's child identifier; lParam: a
                                           ///< record that begins with the sender's handle
/// The user's wish for a menu, told by an editor to itself. wParam: the window asked, lParam:
/// PointParam on the screen, or of -1 and -1 if it came by a key. Not 0 if it was dealt with.
inline constexpr UINT WM_CONTEXTMENU = 0x007B;
/// A turn of the wheel by one step with Control or Shift held, told by an editor to the window
/// around it. wParam: WheelParam, lParam: PointParam on the screen. Not 0 if it was dealt with.
inline constexpr UINT WM_MOUSEWHEEL = 0x020A;

inline constexpr UINT MK_SHIFT = 0x0004;   ///< Shift was held
inline constexpr UINT MK_CONTROL = 0x0008; ///< Control was held
inline constexpr int WHEEL_DELTA = 120;    ///< one step away from the user

inline constexpr unsigned long WS_CHILD = 0x40000000;        ///< stands in its parent
inline constexpr unsigned long WS_VISIBLE = 0x10000000;      ///< is shown when it is made
inline constexpr unsigned long WS_CLIPCHILDREN = 0x02000000; ///< without effect here
inline constexpr unsigned long WS_HSCROLL = 0x00100000;      ///< has a bar below
inline constexpr unsigned long WS_VSCROLL = 0x00200000;      ///< has a bar on the right

class CWnd;

/// What a class answers messages with.
using WindowProcedure = LRESULT (*)(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// What a module registers so that its windows can be made by name.
struct WindowClass
{
    const char16_t* name = nullptr;                ///< outlives the registration
    QWidget* (*create)(QWidget* parent) = nullptr; ///< makes a widget that the parent owns
    WindowProcedure procedure = nullptr; ///< answers what no CWnd does; null: nothing is answered
};

/// False if the name is taken.
ZN_API bool RegisterWindowClass(const WindowClass& windowClass);

/// A new window of the class, owned by its parent's widget; without a parent by the caller. Null if
/// the class is unknown. Shown if the style says WS_VISIBLE. The id is what the parent knows it by.
ZN_API HWND CreateWindowOfClass(const char16_t* className, unsigned long style, const RECT& rect,
                                HWND parent, UINT id = 0);

ZN_API UINT GetDlgCtrlID(HWND window); ///< the child identifier, 0 if it has none

/// Gives a widget that was made elsewhere a child identifier, and with it a handle that is live.
ZN_API void SetDlgCtrlID(HWND window, UINT id);

/// The window with the identifier, at any depth below this one; null if there is none.
ZN_API HWND GetDlgItem(HWND window, UINT id);

/// Whether the handle names a window that was made by class or attached, and that still lives.
/// Any value may be asked about.
ZN_API bool IsWindow(HWND window);

/// The window's answer: that of the CWnd attached to it, else that of its class. 0 if it is not
/// live. A file exception that a CWnd lets out becomes a message to the user, and the answer 0.
ZN_API LRESULT SendMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// Sends the message once the event loop comes to it. What is posted to a window that is gone by
/// then is dropped. False if the window is not live.
ZN_API bool PostMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// The parameter of WM_SIZE, and what is in it.
inline LPARAM SizeParam(int width, int height)
{
    return static_cast<LPARAM>(width) | static_cast<LPARAM>(height) << 32;
}
/// The width in a parameter of WM_SIZE, in pixels.
inline int WidthOf(LPARAM size)
{
    return static_cast<int>(size & 0xFFFFFFFF);
}
/// The height in a parameter of WM_SIZE, in pixels.
inline int HeightOf(LPARAM size)
{
    return static_cast<int>(size >> 32);
}

/// The parameters of WM_MOUSEWHEEL and WM_CONTEXTMENU, and what is in them.
inline WPARAM WheelParam(UINT flags, int delta)
{
    return WPARAM{flags} | static_cast<WPARAM>(static_cast<std::uint32_t>(delta)) << 32;
}
/// MK_SHIFT and MK_CONTROL, as they were held.
inline UINT WheelFlagsOf(WPARAM wheel)
{
    return static_cast<UINT>(wheel & 0xFFFFFFFF);
}
/// WHEEL_DELTA for each step, below 0 towards the user.
inline int WheelDeltaOf(WPARAM wheel)
{
    return static_cast<std::int32_t>(wheel >> 32);
}
/// A place as a parameter.
inline LPARAM PointParam(CPoint point)
{
    return static_cast<LPARAM>(static_cast<std::uint32_t>(point.x)) |
           static_cast<LPARAM>(static_cast<std::uint64_t>(point.y) << 32);
}
/// The place in a parameter.
inline CPoint PointOf(LPARAM param)
{
    return {static_cast<std::int32_t>(param & 0xFFFFFFFF), static_cast<std::int32_t>(param >> 32)};
}

/// The answer of the window's class, past any CWnd. 0 if the window has no class.
ZN_API LRESULT CallClassProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// The window around this one, null for a top-level one.
ZN_API HWND GetParent(HWND window);

/// A number for messages of this name, the same for every caller of the process; from 0xC000 up.
ZN_API UINT RegisterWindowMessage(const char16_t* name);

ZN_API bool IsWindowVisible(HWND window); ///< false for a window that is not live
ZN_API bool IsWindowEnabled(HWND window); ///< false for a window that is not live

/// From 0, 0; empty for a window that is not live.
ZN_API RECT GetClientRect(HWND window);

/// The whole window is painted again, once the event loop comes to it.
ZN_API void InvalidateWindow(HWND window);

inline constexpr UINT RDW_INVALIDATE = 0x01;  ///< the rectangle is to be painted
inline constexpr UINT RDW_ALLCHILDREN = 0x40; ///< and what stands in the window
/// The rectangle, all of the window if it is null, is painted again once the event loop comes to
/// it.
ZN_API void RedrawWindow(HWND window, const RECT* rect, UINT flags);

/// Paints at once what waits to be painted.
ZN_API void UpdateWindow(HWND window);

/// The CWnd attached to the window, or null. For CWnd itself.
ZN_API CWnd* AttachedWnd(HWND window);
ZN_API void SetAttachedWnd(HWND window, CWnd* wnd); ///< null takes the object away
