// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/Font.h"

#include <gtest/gtest.h>

#include <string_view>

namespace {

TEST(Fonts, AreMadeAsDescribed)
{
    LOGFONT wanted;
    wanted.lfHeight = -17;
    wanted.lfWeight = FW_BOLD;
    wanted.lfItalic = 1;
    constexpr std::u16string_view kFace = u"DejaVu Sans Mono";
    kFace.copy(wanted.lfFaceName, kFace.size());
    CFont font;
    EXPECT_EQ(font.GetSafeHandle(), nullptr);
    ASSERT_TRUE(font.CreateFontIndirect(wanted));
    const QFont& made = *font.GetSafeHandle();
    EXPECT_EQ(made.pixelSize(), 17);
    EXPECT_EQ(made.weight(), QFont::Bold);
    EXPECT_TRUE(made.italic());
    EXPECT_FALSE(made.underline());
    EXPECT_EQ(made.family(), QStringLiteral("DejaVu Sans Mono"));
    font.DeleteObject();
    EXPECT_EQ(font.GetSafeHandle(), nullptr);
}

TEST(MulDiv, RoundsToTheNearest)
{
    EXPECT_EQ(MulDiv(-15, 72, 96), -11);
    EXPECT_EQ(MulDiv(15, 72, 96), 11);
    EXPECT_EQ(MulDiv(1, 1, 2), 1);
    EXPECT_EQ(MulDiv(-1, 1, 2), -1);
    EXPECT_EQ(MulDiv(2147483647, 2, 4), 1073741824);
    EXPECT_EQ(MulDiv(1, 1, 0), -1);
}

TEST(Screens, HavePixelsToAnInch)
{
    EXPECT_GT(ScreenPixelsPerInch(), 0);
}

} // namespace
