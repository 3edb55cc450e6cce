// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/search/Budget.h"

#include <ctime>

namespace engine::search {

double ThreadSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

bool Budget::HasTime()
{
    const double now = m_limit.clock();
    if (m_start < 0)
        m_start = now;
    m_isSpent = now - m_start > m_limit.seconds;
    return !m_isSpent;
}

} // namespace engine::search
