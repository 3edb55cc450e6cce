// SPDX-License-Identifier: GPL-3.0-or-later
// Turns what Qt tells a widget into the framework's messages: keys on their way, the focus lost.
#pragma once

#include "platform/base/Types.h"

inline constexpr UINT WM_KILLFOCUS = 0x0008; // wParam: the window that gets the focus, or null

// From then on, as long as the widget lives; asking again changes nothing.
void DeliverEvents(HWND window);
