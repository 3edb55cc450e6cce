// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// Timers of a window, by number. A QTimer that belongs to the window's widget stands behind each.
#pragma once

#include "common/Export.h"
#include "platform/windows/Window.h"

inline constexpr UINT WM_TIMER = 0x0113; ///< wParam: the timer's number

/// The window gets WM_TIMER each time this many milliseconds have passed, whatever the wall clock
/// does meanwhile, until the timer is killed or the window is gone. A timer of the same number
/// starts afresh. False if the window is not live.
ZN_API bool SetTimer(HWND window, UINT id, UINT milliseconds);

/// False if there is no such timer.
ZN_API bool KillTimer(HWND window, UINT id);

/// The milliseconds of a timer that runs, 0 if it does not.
ZN_API UINT TimerInterval(HWND window, UINT id);
