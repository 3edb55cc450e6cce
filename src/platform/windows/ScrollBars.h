// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The scroll bars of windows by record, as the framework has them. A QScrollBar stands behind
/// each.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

class QScrollBar;

inline constexpr int SB_HORZ = 0; ///< the bar below
inline constexpr int SB_VERT = 1; ///< the bar on the right

/// Which fields of a record are in force.
inline constexpr UINT SIF_RANGE = 1;
inline constexpr UINT SIF_PAGE = 2;                                            ///< nPage
inline constexpr UINT SIF_POS = 4;                                             ///< nPos
inline constexpr UINT SIF_TRACKPOS = 16;                                       ///< asked for only
inline constexpr UINT SIF_ALL = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_TRACKPOS; ///< all of them

/// A scroll bar, in units of whoever it belongs to.
struct SCROLLINFO
{
    UINT cbSize = sizeof(SCROLLINFO); ///< a record of another size is refused
    UINT fMask = 0;                   ///< which fields are in force: SIF_ and their like
    int nMin = 0;                     ///< the first unit that can be shown
    int nMax = 0;  ///< the last unit that can be shown: the position goes up to nMax - nPage + 1
    int nPage = 0; ///< units that are shown at once
    int nPos = 0;  ///< the first unit that is shown
    int nTrackPos = 0; ///< while the bar is dragged
};

/// What a user does with the bar of a window, told to it. wParam: ScrollParam; lParam: the bar's
/// window, or null.
inline constexpr UINT WM_HSCROLL = 0x0114;
inline constexpr UINT WM_VSCROLL = 0x0115; ///< of the bar on the right

inline constexpr UINT SB_LINEUP = 0;        ///< or to the left, as the next ones
inline constexpr UINT SB_LINEDOWN = 1;      ///< a unit on
inline constexpr UINT SB_PAGEUP = 2;        ///< a page back
inline constexpr UINT SB_PAGEDOWN = 3;      ///< a page on
inline constexpr UINT SB_THUMBPOSITION = 4; ///< the slider was let go
inline constexpr UINT SB_THUMBTRACK = 5;    ///< the slider is dragged
inline constexpr UINT SB_TOP = 6;           ///< to the start
inline constexpr UINT SB_BOTTOM = 7;        ///< to the end

/// What an editor asks and tells the window around it of its bars: wParam is a SCROLLINFO, lParam
/// says which bar. Sent to an editor itself these numbers are commands of its own.
inline constexpr UINT kGetScrollInfo = 2100;
inline constexpr UINT kSetScrollInfo = 2101;      ///< the bar is to be so
inline constexpr LPARAM kScrollVertical = 0x8000; ///< the bar on the right, else the one below
inline constexpr LPARAM kScrollRedraw = 1;        ///< the bar is to be painted

/// The position's low 16 bits are all that there is room for; SIF_TRACKPOS has the whole of it.
inline WPARAM ScrollParam(UINT code, int position)
{
    constexpr UINT kWord = 0xFFFF;
    return (code & kWord) | (static_cast<UINT>(position) & kWord) << 16;
}
/// One of SB_LINEUP and its like.
inline UINT ScrollCodeOf(WPARAM param)
{
    return static_cast<UINT>(param & 0xFFFF);
}
/// The position's low 16 bits.
inline UINT ScrollPositionOf(WPARAM param)
{
    return static_cast<UINT>(param >> 16 & 0xFFFF);
}

/// False for a window that is not live, and for a record of another size. A bar that was never set
/// has a range of nothing.
ZN_API bool GetScrollInfo(HWND window, int bar, SCROLLINFO* info);
/// The page is cut to the range, and the position to what is left of it.
ZN_API bool SetScrollInfo(HWND window, int bar, const SCROLLINFO* info, bool redraw);

/// The bar of a window: that of a scroll area, else one of the window's own, which is made when it
/// is first asked for and hidden until a host gives it a place and shows it. What a user does with
/// such a bar comes as WM_HSCROLL and WM_VSCROLL. Null for a window that is not live.
ZN_API QScrollBar* ScrollBarOf(HWND window, int bar);
