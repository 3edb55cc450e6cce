// SPDX-License-Identifier: GPL-3.0-or-later
// Budget: how long one search may go on.
#pragma once

#include <cstddef>

namespace engine::search {

// Processor time of the thread, so that a search ends or is stopped alike on a busy machine.
double ThreadSeconds();

class Budget
{
public:
    struct Limit
    {
        double seconds = 2;
        double (*clock)() = ThreadSeconds;
    };

    Budget() = default;
    explicit Budget(Limit limit) : m_limit(limit) {}

    // A step of a match attempt, at a place of its subject. False once the time is spent.
    bool TakeStep(std::size_t place)
    {
        constexpr std::size_t kBytesForAStep = 64;
        const std::size_t moved = place < m_place ? m_place - place : place - m_place;
        m_place = place;
        return Take(1 + moved / kBytesForAStep);
    }

    // Several at once.
    bool Take(std::size_t steps)
    {
        constexpr std::size_t kStepsBetween = 8192; // two looks at the clock
        m_steps += steps;
        if (m_steps < kStepsBetween)
            return true;
        m_steps = 0;
        return HasTime();
    }

    bool IsSpent() const { return m_isSpent; }

private:
    bool HasTime();

    Limit m_limit;
    std::size_t m_place = 0;
    std::size_t m_steps = 0;
    double m_start = -1; // seconds; the first look starts the clock
    bool m_isSpent = false;
};

} // namespace engine::search
