// SPDX-License-Identifier: GPL-3.0-or-later
// CDC: what is drawn on. A QPainter stands behind it and stays whose it was.
#pragma once

#include "common/Export.h"
#include "platform/base/Types.h"

class QPainter;

// What GetDeviceCaps tells.
inline constexpr int HORZRES = 8;  // the width, in device pixels
inline constexpr int VERTRES = 10; // the height
inline constexpr int LOGPIXELSX = 88;
inline constexpr int LOGPIXELSY = 90;

class ZN_API CDC
{
public:
    explicit CDC(QPainter& painter) : m_painter(&painter) {}
    virtual ~CDC();
    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;

    void FillSolidRect(const RECT& rect, COLORREF color);

    QPainter& Painter() { return *m_painter; }
    virtual QPainter* GetSafeHdc() const { return m_painter; } // null if there is none

    // 0 for what it does not know, and for a context without a device.
    int GetDeviceCaps(int index) const;

    bool m_bPrinting = false; // on paper, or as if it were

protected:
    CDC() = default;

    QPainter* m_painter = nullptr;
};
