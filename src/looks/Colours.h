// SPDX-License-Identifier: GPL-3.0-or-later
// Colours as files spell them.
#pragma once

#include "platform/base/Types.h"

#include <QByteArray>

#include <optional>

// From RRGGBB; nothing for anything else.
inline std::optional<COLORREF> ColourOf(const char* text)
{
    constexpr int kDigits = 6;
    bool isNumber = false;
    const QByteArray digits(text);
    const unsigned rgb = digits.toUInt(&isNumber, 16);
    if (!isNumber || digits.size() != kDigits)
        return std::nullopt;
    return (rgb & 0xFFU) << 16 | (rgb & 0xFF00U) | rgb >> 16;
}
