// SPDX-License-Identifier: GPL-3.0-or-later
// SqlLineStates: the states of a document's lines by number, as the stock engine keeps numbers. 0
// is the state at the text's start.
#pragma once

#include "engine/colours/SqlStyler.h"
#include "engine/text/Raw.h"

#include <unordered_map>

namespace engine {

class SqlLineStates
{
public:
    SqlLineStates() { Clear({}); }

    void Clear(const SqlLineState& first);
    int NumberOf(const SqlLineState& state);
    const SqlLineState& Of(long number) const;

    // What the stock engine keeps for a line.
    static long NumberAt(const Raw& raw, long line);
    const SqlLineState& At(const Raw& raw, long line) const { return Of(NumberAt(raw, line)); }

private:
    struct HashOf
    {
        std::size_t operator()(const SqlLineState& state) const { return state.Hash(); }
    };

    std::vector<SqlLineState> m_states;
    std::unordered_map<SqlLineState, int, HashOf> m_numbers;
};

} // namespace engine
