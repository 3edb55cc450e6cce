// SPDX-License-Identifier: GPL-3.0-or-later
// The colours of the desktop, by the framework's numbers.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

inline constexpr int COLOR_WINDOW = 5;
inline constexpr int COLOR_APPWORKSPACE = 12; // behind windows within a window
inline constexpr int COLOR_HIGHLIGHT = 13;
inline constexpr int COLOR_HIGHLIGHTTEXT = 14;
inline constexpr int COLOR_BTNFACE = 15;
inline constexpr int COLOR_GRAYTEXT = 17; // of what is disabled
inline constexpr int COLOR_BTNTEXT = 18;
inline constexpr int COLOR_HOTLIGHT = 26;

// From the application's palette, 0x00BBGGRR; 0 for a number that stands for nothing here, and
// before there is an application.
ZN_API COLORREF GetSysColor(int number);
