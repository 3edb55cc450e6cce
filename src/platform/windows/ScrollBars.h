// SPDX-License-Identifier: GPL-3.0-or-later
// The scroll bars of windows by record, as the framework has them. A QScrollBar stands behind each.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

class QScrollBar;

inline constexpr int SB_HORZ = 0;
inline constexpr int SB_VERT = 1;

// Which fields of a record are in force.
inline constexpr UINT SIF_RANGE = 1;
inline constexpr UINT SIF_PAGE = 2;
inline constexpr UINT SIF_POS = 4;
inline constexpr UINT SIF_TRACKPOS = 16; // asked for only
inline constexpr UINT SIF_ALL = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_TRACKPOS;

struct SCROLLINFO
{
    UINT cbSize = sizeof(SCROLLINFO); // a record of another size is refused
    UINT fMask = 0;
    int nMin = 0;
    int nMax = 0; // the last unit that can be shown: the position goes up to nMax - nPage + 1
    int nPage = 0;
    int nPos = 0;
    int nTrackPos = 0; // while the bar is dragged
};

// What a user does with the bar of a window, told to it. wParam: ScrollParam; lParam: the bar's
// window, or null.
inline constexpr UINT WM_HSCROLL = 0x0114;
inline constexpr UINT WM_VSCROLL = 0x0115;

inline constexpr UINT SB_LINEUP = 0; // or to the left, as the next ones
inline constexpr UINT SB_LINEDOWN = 1;
inline constexpr UINT SB_PAGEUP = 2;
inline constexpr UINT SB_PAGEDOWN = 3;
inline constexpr UINT SB_THUMBPOSITION = 4;
inline constexpr UINT SB_THUMBTRACK = 5;
inline constexpr UINT SB_TOP = 6;
inline constexpr UINT SB_BOTTOM = 7;

// What an editor asks and tells the window around it of its bars: wParam is a SCROLLINFO, lParam
// says which bar. Sent to an editor itself these numbers are commands of its own.
inline constexpr UINT kGetScrollInfo = 2100;
inline constexpr UINT kSetScrollInfo = 2101;
inline constexpr LPARAM kScrollVertical = 0x8000;
inline constexpr LPARAM kScrollRedraw = 1;

// The position's low 16 bits are all that there is room for; SIF_TRACKPOS has the whole of it.
inline WPARAM ScrollParam(UINT code, int position)
{
    constexpr UINT kWord = 0xFFFF;
    return (code & kWord) | (static_cast<UINT>(position) & kWord) << 16;
}
inline UINT ScrollCodeOf(WPARAM param)
{
    return static_cast<UINT>(param & 0xFFFF);
}
inline UINT ScrollPositionOf(WPARAM param)
{
    return static_cast<UINT>(param >> 16 & 0xFFFF);
}

// False for a window that is not live, and for a record of another size. A bar that was never set
// has a range of nothing.
ZN_API bool GetScrollInfo(HWND window, int bar, SCROLLINFO* info);
// The page is cut to the range, and the position to what is left of it.
ZN_API bool SetScrollInfo(HWND window, int bar, const SCROLLINFO* info, bool redraw);

// The bar of a window: that of a scroll area, else one of the window's own, which is made when it
// is first asked for and hidden until a host gives it a place and shows it. What a user does with
// such a bar comes as WM_HSCROLL and WM_VSCROLL. Null for a window that is not live.
ZN_API QScrollBar* ScrollBarOf(HWND window, int bar);
