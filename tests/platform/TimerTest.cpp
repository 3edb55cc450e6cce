// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows/Timer.h"

#include "platform/windows/Wnd.h"

#include <QTest>

#include <gtest/gtest.h>

#include <climits>
#include <functional>
#include <vector>

namespace {

class TimedWnd : public CWnd
{
public:
    TimedWnd() { Attach(new QWidget); }

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_TIMER) {
            ids.push_back(wParam);
            if (onTimer)
                onTimer();
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }

    bool Wait(std::size_t ticks) const
    {
        return QTest::qWaitFor([this, ticks] { return ids.size() >= ticks; }, 20000);
    }

    std::vector<WPARAM> ids;
    std::function<void()> onTimer;
};

TEST(Timers, SendTheirNumberAgainAndAgain)
{
    TimedWnd window;
    EXPECT_TRUE(window.SetTimer(100, 1));
    EXPECT_TRUE(window.Wait(3));
    EXPECT_EQ(window.ids.front(), 100u);
    EXPECT_EQ(TimerInterval(window.GetSafeHwnd(), 100), 1u);
}

TEST(Timers, MayBeKilledAndSetOutOfTheirOwnMessage)
{
    TimedWnd window;
    window.onTimer = [&window] {
        EXPECT_TRUE(window.KillTimer(100));
        window.SetTimer(101, 1);
    };
    window.SetTimer(100, 1);
    ASSERT_TRUE(window.Wait(1));
    window.onTimer = [&window] { window.KillTimer(101); };
    ASSERT_TRUE(window.Wait(2));
    EXPECT_EQ(window.ids, (std::vector<WPARAM>{100, 101}));
    EXPECT_EQ(TimerInterval(window.GetSafeHwnd(), 101), 0u);
}

TEST(Timers, AreToldApartByNumberAndByWindow)
{
    TimedWnd first;
    TimedWnd second;
    first.SetTimer(1, 60000);
    second.SetTimer(1, 120000);
    first.SetTimer(2, 1000);
    EXPECT_TRUE(first.KillTimer(2));
    EXPECT_FALSE(first.KillTimer(2));
    EXPECT_FALSE(first.KillTimer(3));
    EXPECT_EQ(TimerInterval(first.GetSafeHwnd(), 1), 60000u);
    EXPECT_EQ(TimerInterval(second.GetSafeHwnd(), 1), 120000u);
    first.SetTimer(1, 5000);
    EXPECT_EQ(TimerInterval(first.GetSafeHwnd(), 1), 5000u);
}

TEST(Timers, RunForNoLongerThanAQtTimerCan)
{
    TimedWnd window;
    window.SetTimer(1, UINT_MAX);
    EXPECT_EQ(TimerInterval(window.GetSafeHwnd(), 1), UINT(INT_MAX));
}

TEST(Timers, NeedAWindowThatLives)
{
    CWnd none;
    EXPECT_FALSE(none.SetTimer(1, 1));
    EXPECT_FALSE(none.KillTimer(1));
    TimedWnd window;
    window.SetTimer(1, 1);
    window.DestroyWindow();
    EXPECT_FALSE(window.SetTimer(1, 1));
    EXPECT_EQ(TimerInterval(window.GetSafeHwnd(), 1), 0u);
}

} // namespace
