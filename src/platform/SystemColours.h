// GetSysColor: the colours of the desktop by number; the application's QPalette stands behind it.
#pragma once

#include "common/Export.h"

constexpr int COLOR_HIGHLIGHT = 13;
constexpr int COLOR_HIGHLIGHTTEXT = 14;
constexpr int COLOR_HOTLIGHT = 26;

// 0x00BBGGRR; 0 for a number without a colour, and before there is an application.
ZN_API unsigned long GetSysColor(int index);
