// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// CDC: what is drawn on. A QPainter stands behind it and stays whose it was.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

class QPainter;

/// What GetDeviceCaps tells.
inline constexpr int HORZRES = 8;     ///< the width, in device pixels
inline constexpr int VERTRES = 10;    ///< the height
inline constexpr int LOGPIXELSX = 88; ///< pixels to an inch, from left to right
inline constexpr int LOGPIXELSY = 90; ///< pixels to an inch, from top to bottom

/// What is drawn on.
class ZN_API CDC
{
public:
    explicit CDC(QPainter& painter) : m_painter(&painter) {} ///< the painter outlives it
    virtual ~CDC();                                          ///< the painter stays
    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;

    void FillSolidRect(const RECT& rect, COLORREF color); ///< in device pixels

    QPainter& Painter() { return *m_painter; }                 ///< only where there is one
    virtual QPainter* GetSafeHdc() const { return m_painter; } ///< null if there is none

    /// 0 for what it does not know, and for a context without a device.
    int GetDeviceCaps(int index) const;

    bool m_bPrinting = false; ///< on paper, or as if it were

protected:
    CDC() = default; ///< without a device

    QPainter* m_painter = nullptr; ///< null: without a device
};
