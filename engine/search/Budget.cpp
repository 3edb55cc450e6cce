#include "engine/search/Budget.h"

#include <ctime>

namespace engine::search {
namespace {

constexpr double kSeconds = 2;

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
    m_isSpent = now - m_start > kSeconds;
    return !m_isSpent;
}

} // namespace engine::search
