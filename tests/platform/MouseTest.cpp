// SPDX-License-Identifier: GPL-3.0-or-later
// What is known of the mouse at this moment.
#include "platform/windows/Mouse.h"

#include <QTest>
#include <QWidget>
#include <QWindow>

#include <gtest/gtest.h>

TEST(Mouse, HoldsItsLeftButtonUntilItIsReleased)
{
    QWidget window;
    window.resize(100, 100);
    window.show();
    EXPECT_FALSE(IsLeftButtonDown());
    QTest::mousePress(window.windowHandle(), Qt::RightButton);
    EXPECT_FALSE(IsLeftButtonDown());
    QTest::mouseRelease(window.windowHandle(), Qt::RightButton);
    QTest::mousePress(window.windowHandle(), Qt::LeftButton);
    EXPECT_TRUE(IsLeftButtonDown());
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton);
    EXPECT_FALSE(IsLeftButtonDown());
}

TEST(Mouse, MayBeAHostsOwn)
{
    SetLeftButton([] { return true; });
    EXPECT_TRUE(IsLeftButtonDown());
    SetLeftButton(nullptr);
    EXPECT_FALSE(IsLeftButtonDown());
}
