#include "engine/search/Budget.h"

#include <ctime>

namespace engine::search {
namespace {

double ThreadSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

} // namespace

bool Budget::HasTime()
{
    const double now = ThreadSeconds();
    if (m_start < 0)
        m_start = now;
    m_isSpent = now - m_start > m_seconds;
    return !m_isSpent;
}

} // namespace engine::search
