// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/PlaceHistory.h"

#include <algorithm>
#include <cstdlib>

namespace {

bool IsSameScript(const PlaceHistory::Place& one, const PlaceHistory::Place& other)
{
    return (one.script != 0 && one.script == other.script) ||
           (!one.path.isEmpty() && one.path == other.path);
}

} // namespace

void PlaceHistory::Visit(const Place& place)
{
    if (!m_places.empty()) {
        Place& now = m_places[m_at];
        if (IsSameScript(now, place) && std::abs(now.line - place.line) <= kNear) {
            now = place;
            return;
        }
        m_places.resize(m_at + 1);
    }
    m_places.push_back(place);
    if (m_places.size() > kMost)
        m_places.erase(m_places.begin());
    m_at = m_places.size() - 1;
}

void PlaceHistory::LinesMoved(std::uintptr_t script, int first, int added)
{
    for (Place& place : m_places) {
        if (place.script == script && place.line >= first)
            place.line = std::max(first, place.line + added);
    }
}

void PlaceHistory::Closed(std::uintptr_t script)
{
    for (std::size_t i = m_places.size(); i-- > 0;) {
        Place& place = m_places[i];
        if (place.script != script)
            continue;
        place.script = 0;
        if (!place.path.isEmpty())
            continue;
        m_places.erase(m_places.begin() + static_cast<std::ptrdiff_t>(i));
        if (m_at > 0 && i <= m_at)
            --m_at;
    }
}

std::optional<PlaceHistory::Place> PlaceHistory::Back()
{
    if (!HasBack())
        return std::nullopt;
    return m_places[--m_at];
}

std::optional<PlaceHistory::Place> PlaceHistory::Forward()
{
    if (!HasForward())
        return std::nullopt;
    return m_places[++m_at];
}
