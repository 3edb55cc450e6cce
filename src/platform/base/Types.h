// SPDX-License-Identifier: GPL-3.0-or-later
// The plain types of the framework layer: message parameters, handles, rectangles.
// No Qt header is needed to name them.
#pragma once

#include <cstdint>

class QWidget;

using UINT = unsigned int;
using WPARAM = std::uintptr_t; // wide enough for a pointer, as are the next two
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;
using COLORREF = std::uint32_t; // 0x00BBGGRR

using HWND = QWidget*; // names a widget; IsWindow tells whether it is alive
struct Module;
using HINSTANCE = Module*; // a loaded module, or null

struct RECT
{
    long left = 0;
    long top = 0;
    long right = 0;
    long bottom = 0;
};

struct CPoint
{
    long x = 0;
    long y = 0;
};
