// SPDX-License-Identifier: GPL-3.0-or-later
// The forty colours of the palette that colour buttons drop down, in its order.
#pragma once

#include "platform/base/Types.h"

#include <QCoreApplication>

#include <array>

struct NamedColor
{
    const char* name; // in English
    COLORREF color;
};

// Values and names are those that the palette has always had, a trailing blank among them.
inline constexpr std::array<NamedColor, 40> kNamedColors = {{
    {QT_TRANSLATE_NOOP("NamedColors", "Black"), 0x000000},
    {QT_TRANSLATE_NOOP("NamedColors", "Brown"), 0x002AA5},
    {QT_TRANSLATE_NOOP("NamedColors", "Dark Olive Green"), 0x404000},
    {QT_TRANSLATE_NOOP("NamedColors", "Dark Green"), 0x005500},
    {QT_TRANSLATE_NOOP("NamedColors", "Dark Teal"), 0x5E0000},
    {QT_TRANSLATE_NOOP("NamedColors", "Dark blue"), 0x8B0000},
    {QT_TRANSLATE_NOOP("NamedColors", "Indigo"), 0x82004B},
    {QT_TRANSLATE_NOOP("NamedColors", "Dark grey"), 0x282828},
    {QT_TRANSLATE_NOOP("NamedColors", "Dark red"), 0x00008B},
    {QT_TRANSLATE_NOOP("NamedColors", "Orange"), 0x2068FF},
    {QT_TRANSLATE_NOOP("NamedColors", "Dark yellow"), 0x008B8B},
    {QT_TRANSLATE_NOOP("NamedColors", "Green"), 0x009300},
    {QT_TRANSLATE_NOOP("NamedColors", "Teal"), 0x8E8E38},
    {QT_TRANSLATE_NOOP("NamedColors", "Blue"), 0xFF0000},
    {QT_TRANSLATE_NOOP("NamedColors", "Blue-grey"), 0xC07B7B},
    {QT_TRANSLATE_NOOP("NamedColors", "Grey - 40"), 0x666666},
    {QT_TRANSLATE_NOOP("NamedColors", "Red"), 0x0000FF},
    {QT_TRANSLATE_NOOP("NamedColors", "Light orange"), 0x5BADFF},
    {QT_TRANSLATE_NOOP("NamedColors", "Lime"), 0x32CD32},
    {QT_TRANSLATE_NOOP("NamedColors", "Sea green"), 0x71B33C},
    {QT_TRANSLATE_NOOP("NamedColors", "Aqua"), 0xD4FF7F},
    {QT_TRANSLATE_NOOP("NamedColors", "Light blue"), 0xC09E7D},
    {QT_TRANSLATE_NOOP("NamedColors", "Violet"), 0x800080},
    {QT_TRANSLATE_NOOP("NamedColors", "Grey - 50"), 0x7F7F7F},
    {QT_TRANSLATE_NOOP("NamedColors", "Pink"), 0xCBC0FF},
    {QT_TRANSLATE_NOOP("NamedColors", "Gold"), 0x00D7FF},
    {QT_TRANSLATE_NOOP("NamedColors", "Yellow"), 0x00FFFF},
    {QT_TRANSLATE_NOOP("NamedColors", "Bright green"), 0x00FF00},
    {QT_TRANSLATE_NOOP("NamedColors", "Turquoise"), 0xD0E040},
    {QT_TRANSLATE_NOOP("NamedColors", "Skyblue"), 0xFFFFC0},
    {QT_TRANSLATE_NOOP("NamedColors", "Plum"), 0x480048},
    {QT_TRANSLATE_NOOP("NamedColors", "Light grey"), 0xC0C0C0},
    {QT_TRANSLATE_NOOP("NamedColors", "Rose"), 0xE1E4FF},
    {QT_TRANSLATE_NOOP("NamedColors", "Tan"), 0x8CB4D2},
    {QT_TRANSLATE_NOOP("NamedColors", "Light yellow"), 0xE0FFFF},
    {QT_TRANSLATE_NOOP("NamedColors", "Pale green "), 0x98FB98},
    {QT_TRANSLATE_NOOP("NamedColors", "Pale turquoise"), 0xEEEEAF},
    {QT_TRANSLATE_NOOP("NamedColors", "Pale blue"), 0x8B8368},
    {QT_TRANSLATE_NOOP("NamedColors", "Lavender"), 0xFAE6E6},
    {QT_TRANSLATE_NOOP("NamedColors", "White"), 0xFFFFFF},
}};

inline QString ShownName(const NamedColor& color)
{
    return QCoreApplication::translate("NamedColors", color.name);
}
