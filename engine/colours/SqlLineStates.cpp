// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/colours/SqlLineStates.h"

namespace engine {

void SqlLineStates::Clear(const SqlLineState& first)
{
    m_states.assign(1, first);
    m_numbers.clear();
    m_numbers.emplace(first, 0);
}

int SqlLineStates::NumberOf(const SqlLineState& state)
{
    const auto [found, isNew] = m_numbers.emplace(state, static_cast<int>(m_states.size()));
    if (isNew)
        m_states.push_back(state);
    return found->second;
}

const SqlLineState& SqlLineStates::Of(long number) const
{
    const auto index = static_cast<std::size_t>(number);
    return m_states[number >= 0 && index < m_states.size() ? index : 0];
}

long SqlLineStates::NumberAt(const Raw& raw, long line)
{
    return static_cast<long>(
        raw.Send(QsciScintillaBase::SCI_GETLINESTATE, static_cast<std::uintptr_t>(line)));
}

} // namespace engine
