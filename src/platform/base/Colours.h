// SPDX-License-Identifier: GPL-3.0-or-later
// Colours as numbers, and as they are painted.
#pragma once

#include "platform/base/Types.h"

#include <QColor>

inline QColor ToQColor(COLORREF color)
{
    return QColor(static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF),
                  static_cast<int>(color >> 16 & 0xFF));
}

inline COLORREF FromQColor(const QColor& color)
{
    return static_cast<COLORREF>(color.red() | color.green() << 8 | color.blue() << 16);
}
