// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/SystemColors.h"

#include "platform/base/Colours.h"

#include <QGuiApplication>
#include <QPalette>

namespace {

struct ColorRow
{
    int number;
    QPalette::ColorRole role;
    QPalette::ColorGroup group = QPalette::Active;
};

constexpr ColorRow kColors[] = {
    {COLOR_WINDOW, QPalette::Base}, // what text is written on
    {COLOR_APPWORKSPACE, QPalette::Dark},
    {COLOR_HIGHLIGHT, QPalette::Highlight},
    {COLOR_HIGHLIGHTTEXT, QPalette::HighlightedText},
    {COLOR_BTNFACE, QPalette::Button},
    {COLOR_GRAYTEXT, QPalette::ButtonText, QPalette::Disabled},
    {COLOR_BTNTEXT, QPalette::ButtonText},
    {COLOR_HOTLIGHT, QPalette::Link},
};

} // namespace

COLORREF GetSysColor(int number)
{
    if (!qGuiApp)
        return 0;
    for (const ColorRow& row : kColors) {
        if (row.number != number)
            continue;
        return FromQColor(QGuiApplication::palette().color(row.group, row.role));
    }
    return 0;
}
