// SPDX-License-Identifier: GPL-3.0-or-later
// FoldLevels: the fold levels of the lines of a walk, until the stock engine has them.
//
// The first line of a batch is a header once there is something on another line of it. Between the
// two are blank lines only.
#pragma once

#include "engine/colours/SqlLineStates.h"

#include <span>
#include <utility>

namespace engine {

class FoldLevels
{
public:
    // The lines of a walk begin with this one.
    void Begin(long line);
    void Add(int level) { m_levels.push_back(level); }

    // Decides about a first line of a batch, in the walk or before it. The numbers are those of the
    // states behind each line; blocks are what stands open where the walk ends, inside a line or
    // not.
    void FoldFreshBatch(const Raw& raw, const SqlLineStates& states, std::span<const int> numbers,
                        const SqlBlockState& blocks, bool endsInLine, SqlFoldOptions fold);

    // Hands the levels on. False if a handler that hears of one makes an edit.
    bool Apply(const Raw& raw, const unsigned& edits) const;

private:
    void FoldBefore(const Raw& raw, const SqlLineStates& states, bool opens, SqlFoldOptions fold);

    long m_first = 0; // line
    std::vector<int> m_levels;
    std::vector<std::pair<long, int>> m_before; // of lines before the first
};

} // namespace engine
