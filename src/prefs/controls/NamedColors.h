// SPDX-License-Identifier: GPL-3.0-or-later
// The forty colours of the palette that colour buttons drop down, in its order.
#pragma once

#include "platform/base/Types.h"

#include <array>

struct NamedColor
{
    const char* name;
    COLORREF color;
};

// Values and names are those that the palette has always had, a trailing blank among them.
inline constexpr std::array<NamedColor, 40> kNamedColors = {{
    {"Black", 0x000000},
    {"Brown", 0x002AA5},
    {"Dark Olive Green", 0x404000},
    {"Dark Green", 0x005500},
    {"Dark Teal", 0x5E0000},
    {"Dark blue", 0x8B0000},
    {"Indigo", 0x82004B},
    {"Dark grey", 0x282828},
    {"Dark red", 0x00008B},
    {"Orange", 0x2068FF},
    {"Dark yellow", 0x008B8B},
    {"Green", 0x009300},
    {"Teal", 0x8E8E38},
    {"Blue", 0xFF0000},
    {"Blue-grey", 0xC07B7B},
    {"Grey - 40", 0x666666},
    {"Red", 0x0000FF},
    {"Light orange", 0x5BADFF},
    {"Lime", 0x32CD32},
    {"Sea green", 0x71B33C},
    {"Aqua", 0xD4FF7F},
    {"Light blue", 0xC09E7D},
    {"Violet", 0x800080},
    {"Grey - 50", 0x7F7F7F},
    {"Pink", 0xCBC0FF},
    {"Gold", 0x00D7FF},
    {"Yellow", 0x00FFFF},
    {"Bright green", 0x00FF00},
    {"Turquoise", 0xD0E040},
    {"Skyblue", 0xFFFFC0},
    {"Plum", 0x480048},
    {"Light grey", 0xC0C0C0},
    {"Rose", 0xE1E4FF},
    {"Tan", 0x8CB4D2},
    {"Light yellow", 0xE0FFFF},
    {"Pale green ", 0x98FB98},
    {"Pale turquoise", 0xEEEEAF},
    {"Pale blue", 0x8B8368},
    {"Lavender", 0xFAE6E6},
    {"White", 0xFFFFFF},
}};
