// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// The plain types of the framework layer: message parameters, handles, rectangles.
/// No Qt header is needed to name them.
#pragma once

#include <cstdint>

class QWidget;

using UINT = unsigned int;      ///< a number of a message, a command or a window
using WPARAM = std::uintptr_t;  ///< wide enough for a pointer, as are the next two
using LPARAM = std::intptr_t;   ///< the second parameter of a message
using LRESULT = std::intptr_t;  ///< what a message answers
using COLORREF = std::uint32_t; ///< 0x00BBGGRR

using HWND = QWidget*; ///< names a widget; IsWindow tells whether it is alive
struct Module;
using HINSTANCE = Module*; ///< a loaded module, or null

/// A rectangle in pixels. Right and bottom lie outside of it.
struct RECT
{
    long left = 0;   ///< the first column
    long top = 0;    ///< the first row
    long right = 0;  ///< behind the last column
    long bottom = 0; ///< behind the last row
};

/// A place in pixels.
struct CPoint
{
    long x = 0; ///< from the left
    long y = 0; ///< from the top
};
