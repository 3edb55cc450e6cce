// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/SystemColors.h"

#include <QGuiApplication>
#include <QPalette>

#include <gtest/gtest.h>

namespace {

// Gives the palette back that stood before.
class PaletteOf
{
public:
    explicit PaletteOf(const QPalette& palette) { QGuiApplication::setPalette(palette); }
    ~PaletteOf() { QGuiApplication::setPalette(m_before); }
    PaletteOf(const PaletteOf&) = delete;
    PaletteOf& operator=(const PaletteOf&) = delete;

private:
    QPalette m_before = QGuiApplication::palette();
};

} // namespace

TEST(SystemColors, AreThoseOfThePaletteWithRedInTheLowByte)
{
    QPalette palette;
    palette.setColor(QPalette::Highlight, QColor(0x11, 0x22, 0x33));
    palette.setColor(QPalette::HighlightedText, QColor(0xFF, 0xFE, 0x01));
    palette.setColor(QPalette::Link, QColor(0x00, 0x00, 0xC0));
    const PaletteOf scope(palette);
    EXPECT_EQ(GetSysColor(COLOR_HIGHLIGHT), 0x332211u);
    EXPECT_EQ(GetSysColor(COLOR_HIGHLIGHTTEXT), 0x01FEFFu);
    EXPECT_EQ(GetSysColor(COLOR_HOTLIGHT), 0xC00000u);
}

TEST(SystemColors, OfOtherNumbersAreBlack)
{
    for (const int index : {-1, 0, 11, 16, 25, 27, 1000})
        EXPECT_EQ(GetSysColor(index), 0u) << index;
}
