// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/Wnd.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace {

LRESULT Procedure(HWND /*window*/, UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    return message == 5 ? 555 : 0;
}

[[maybe_unused]] const bool registered = RegisterWindowClass(
    {u"WndTestWin", [](QWidget* parent) { return new QWidget(parent); }, &Procedure});

template <LRESULT Result>
LRESULT Give(CWnd& /*target*/, WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    return Result;
}

class Base : public CWnd
{
public:
    void PreSubclassWindow() override { calls.push_back("subclass"); }

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_CREATE)
            calls.push_back("create");
        return CWnd::WindowProc(message, wParam, lParam);
    }

    std::vector<const char*> calls;

protected:
    static const MessageMap& Map()
    {
        static constexpr MessageEntry kEntries[] = {{1, &Give<11>}, {2, &Give<12>}};
        static constexpr MessageMap kMap{nullptr, kEntries};
        return kMap;
    }
    const MessageMap& GetMessageMap() const override { return Map(); }
};

class Derived : public Base
{
protected:
    const MessageMap& GetMessageMap() const override
    {
        static constexpr MessageEntry kEntries[] = {{2, &Give<22>}, {2, &Give<23>}};
        static const MessageMap kMap{&Map(), kEntries};
        return kMap;
    }
};

HWND MakeWindow(QWidget* parent = nullptr)
{
    return CreateWindowOfClass(u"WndTestWin", 0, RECT{}, parent);
}

TEST(Wnd, IsSafeWithoutAWindow)
{
    CWnd wnd;
    EXPECT_EQ(wnd.GetSafeHwnd(), nullptr);
    EXPECT_EQ(wnd.Detach(), nullptr);
    wnd.DestroyWindow();
    EXPECT_FALSE(wnd.SubclassWindow(nullptr));
    EXPECT_EQ(wnd.DefWindowProc(5, 0, 0), 0);
}

TEST(Wnd, CreateSubclassesBeforeTheFirstMessage)
{
    Base wnd;
    ASSERT_EQ(wnd.Create(u"WndTestWin", u"title", 0, RECT{}, nullptr, 1), 1);
    EXPECT_EQ(wnd.calls, (std::vector<const char*>{"subclass", "create"}));
    EXPECT_EQ(wnd.GetSafeHwnd()->windowTitle(), QStringLiteral("title"));
    EXPECT_EQ(wnd.Create(u"WndTestWin", u"", 0, RECT{}, nullptr, 1), 0);
}

TEST(Wnd, CreateOfAnUnknownClassFails)
{
    CWnd wnd;
    EXPECT_EQ(wnd.Create(u"NoSuchClass", u"", 0, RECT{}, nullptr, 1), 0);
    EXPECT_EQ(wnd.GetSafeHwnd(), nullptr);
}

TEST(Wnd, TheFirstEntryOfTheNearestMapAnswers)
{
    Derived wnd;
    ASSERT_TRUE(wnd.SubclassWindow(MakeWindow()));
    EXPECT_EQ(SendMessage(wnd.GetSafeHwnd(), 1, 0, 0), 11);
    EXPECT_EQ(SendMessage(wnd.GetSafeHwnd(), 2, 0, 0), 22);
    EXPECT_EQ(SendMessage(wnd.GetSafeHwnd(), 5, 0, 0), 555);
    EXPECT_EQ(SendMessage(wnd.GetSafeHwnd(), 6, 0, 0), 0);
}

TEST(Wnd, AttachTakesAWindowWithoutSubclassing)
{
    Base wnd;
    const HWND window = MakeWindow();
    ASSERT_TRUE(wnd.Attach(window));
    EXPECT_TRUE(wnd.calls.empty());
    EXPECT_EQ(AttachedWnd(window), &wnd);
    CWnd other;
    EXPECT_FALSE(other.Attach(window));
    const std::unique_ptr<QWidget> second(MakeWindow());
    EXPECT_FALSE(wnd.Attach(second.get()));
}

TEST(Wnd, DetachLeavesTheWindowToItsClass)
{
    Base wnd;
    const std::unique_ptr<QWidget> window(MakeWindow());
    ASSERT_TRUE(wnd.SubclassWindow(window.get()));
    EXPECT_EQ(wnd.Detach(), window.get());
    EXPECT_EQ(wnd.GetSafeHwnd(), nullptr);
    EXPECT_EQ(SendMessage(window.get(), 1, 0, 0), 0);
    EXPECT_EQ(SendMessage(window.get(), 5, 0, 0), 555);
}

TEST(Wnd, AWidgetThatGoesLeavesNoWindow)
{
    Base wnd;
    auto parent = std::make_unique<QWidget>();
    ASSERT_TRUE(wnd.SubclassWindow(MakeWindow(parent.get())));
    parent.reset();
    EXPECT_EQ(wnd.GetSafeHwnd(), nullptr);
}

TEST(Wnd, ItsEndDestroysTheWindow)
{
    QWidget parent;
    QPointer<QWidget> window = MakeWindow(&parent);
    {
        Base wnd;
        ASSERT_TRUE(wnd.SubclassWindow(window));
    }
    EXPECT_TRUE(window.isNull());
}

TEST(Wnd, AnyWidgetCanBeAttached)
{
    QWidget widget;
    Base wnd;
    ASSERT_TRUE(wnd.Attach(&widget));
    EXPECT_TRUE(IsWindow(&widget));
    EXPECT_EQ(SendMessage(&widget, 1, 0, 0), 11);
    wnd.Detach();
}

} // namespace
