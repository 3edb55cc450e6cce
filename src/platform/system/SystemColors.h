// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The colours of the desktop, by the framework's numbers.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

inline constexpr int COLOR_WINDOW = 5;         ///< the ground of texts
inline constexpr int COLOR_APPWORKSPACE = 12;  ///< behind windows within a window
inline constexpr int COLOR_HIGHLIGHT = 13;     ///< the ground of what is selected
inline constexpr int COLOR_HIGHLIGHTTEXT = 14; ///< text that is selected
inline constexpr int COLOR_BTNFACE = 15;       ///< the ground of dialogs
inline constexpr int COLOR_GRAYTEXT = 17;      ///< of what is disabled
inline constexpr int COLOR_BTNTEXT = 18;       ///< text of dialogs
inline constexpr int COLOR_HOTLIGHT = 26;      ///< links

/// From the application's palette, 0x00BBGGRR; 0 for a number that stands for nothing here, and
/// before there is an application.
ZN_API COLORREF GetSysColor(int number);
