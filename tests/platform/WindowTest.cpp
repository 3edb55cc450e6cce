// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/Window.h"

#include <QWidget>

#include <gtest/gtest.h>

#include <memory>

namespace {

LRESULT Answer(HWND /*window*/, UINT message, WPARAM wParam, LPARAM lParam)
{
    return static_cast<LRESULT>(message) * 100 + static_cast<LRESULT>(wParam) * 10 + lParam;
}

QWidget* Make(QWidget* parent)
{
    return new QWidget(parent);
}

const bool kRegistered = RegisterWindowClass({u"TestWin", &Make, &Answer});

HWND MakeWindow(QWidget* parent = nullptr, unsigned long style = 0)
{
    return CreateWindowOfClass(u"TestWin", style, RECT{1, 2, 31, 42}, parent);
}

TEST(Windows, AClassIsRegisteredOnce)
{
    EXPECT_TRUE(kRegistered);
    EXPECT_FALSE(RegisterWindowClass({u"TestWin", &Make, &Answer}));
}

TEST(Windows, AnUnknownClassMakesNone)
{
    EXPECT_EQ(CreateWindowOfClass(u"NoSuchClass", 0, RECT{}, nullptr), nullptr);
}

TEST(Windows, AreMadeWithTheirRectangleAndParent)
{
    QWidget parent;
    const HWND window = MakeWindow(&parent);
    EXPECT_EQ(window->geometry(), QRect(1, 2, 30, 40));
    EXPECT_EQ(GetParent(window), &parent);
    EXPECT_TRUE(window->isHidden());
    EXPECT_FALSE(MakeWindow(&parent, WS_VISIBLE)->isHidden());
}

TEST(Windows, LiveFromTheirMakingToTheirEnd)
{
    const HWND window = MakeWindow();
    EXPECT_TRUE(IsWindow(window));
    delete window;
    EXPECT_FALSE(IsWindow(window));
    EXPECT_FALSE(IsWindow(nullptr));
    EXPECT_EQ(SendMessage(window, 1, 2, 3), 0);
    EXPECT_EQ(CallClassProcedure(window, 1, 2, 3), 0);
    EXPECT_EQ(GetParent(window), nullptr);
    EXPECT_EQ(AttachedWnd(window), nullptr);
    UpdateWindow(window);
}

TEST(Windows, AWidgetThatWasNotMadeByClassIsNone)
{
    QWidget widget;
    EXPECT_FALSE(IsWindow(&widget));
    EXPECT_EQ(SendMessage(&widget, 1, 2, 3), 0);
}

TEST(Windows, AnswerBySynchronousSend)
{
    const std::unique_ptr<QWidget> window(MakeWindow());
    EXPECT_EQ(SendMessage(window.get(), 7, 2, 3), 723);
}

TEST(Windows, AreDeadWhileTheirWidgetIsDestroyed)
{
    const HWND window = MakeWindow();
    bool wasLive = true;
    QObject::connect(window, &QObject::destroyed, [&] { wasLive = IsWindow(window); });
    delete window;
    EXPECT_FALSE(wasLive);
}

TEST(RegisteredMessages, HaveOneNumberForAName)
{
    const UINT first = RegisterWindowMessage(u"TEST_FIRST");
    const UINT second = RegisterWindowMessage(u"TEST_SECOND");
    EXPECT_GE(first, 0xC000u);
    EXPECT_NE(first, second);
    EXPECT_EQ(RegisterWindowMessage(u"TEST_FIRST"), first);
}

} // namespace
