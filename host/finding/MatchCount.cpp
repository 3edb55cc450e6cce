// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/finding/MatchCount.h"

#include <QElapsedTimer>

#include <algorithm>

namespace {

constexpr int kSlice = 8;        // milliseconds
constexpr int kMost = 1'000'000; // matches, of 8 bytes each

} // namespace

MatchCount::MatchCount(QObject* parent) : QObject(parent)
{
    m_idle.setSingleShot(true);
    connect(&m_idle, &QTimer::timeout, this, &MatchCount::SearchOn);
}

void MatchCount::Start(Search search, long from)
{
    Stop();
    m_search = std::move(search);
    m_next = from;
    SearchOn();
}

void MatchCount::Stop()
{
    m_idle.stop();
    m_search = nullptr;
    m_next = -1;
    m_starts.clear();
}

int MatchCount::PlaceOf(long start) const
{
    const auto found = std::ranges::lower_bound(m_starts, start);
    return found != m_starts.end() && *found == start
               ? static_cast<int>(found - m_starts.begin()) + 1
               : 0;
}

void MatchCount::SearchOn()
{
    QElapsedTimer time;
    time.start();
    while (m_next >= 0 && Known() < kMost && time.elapsed() < kSlice) {
        const Step step = m_search(m_next);
        if (step.found >= 0)
            m_starts.push_back(step.found);
        m_next = step.next;
    }
    if (m_next >= 0 && Known() < kMost)
        m_idle.start(0);
    Q_EMIT Grown();
}
