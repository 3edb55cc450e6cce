// SPDX-License-Identifier: GPL-3.0-or-later
// How much colours stand off from each other, from 1 to 21, as the Web Content Accessibility
// Guidelines count it. They want 4.5 of text and 3 of what is none.
#pragma once

#include "platform/base/Types.h"

#include <QColor>
#include <QImage>

#include <algorithm>
#include <cmath>

inline double Luminance(COLORREF colour)
{
    const auto part = [colour](int shift) {
        const double value = (colour >> shift & 0xFF) / 255.0;
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(0) + 0.7152 * part(8) + 0.0722 * part(16);
}

inline double Contrast(COLORREF one, COLORREF other)
{
    const double a = Luminance(one) + 0.05;
    const double b = Luminance(other) + 0.05;
    return std::max(a / b, b / a);
}

inline double Contrast(const QColor& one, const QColor& other)
{
    const auto colourOf = [](const QColor& colour) {
        return static_cast<COLORREF>(colour.red() | colour.green() << 8 | colour.blue() << 16);
    };
    return Contrast(colourOf(one), colourOf(other));
}

// Of what is painted most and the ground.
inline double BestContrast(const QImage& picture, QRgb ground)
{
    double best = 1;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            best = std::max(best, Contrast(picture.pixelColor(x, y), QColor(ground)));
    }
    return best;
}
