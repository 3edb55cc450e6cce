// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/colours/FoldLevels.h"

#include "control/SqlStyles.h"

namespace engine {
namespace {

using Batch = SqlBlockState::Batch;

int FoldLevelAt(const Raw& raw, long line)
{
    return static_cast<int>(
        raw.Send(QsciScintillaBase::SCI_GETFOLDLEVEL, static_cast<std::uintptr_t>(line)));
}

} // namespace

void FoldLevels::Begin(long line)
{
    m_first = line;
    m_levels.clear();
    m_before.clear();
}

void FoldLevels::FoldFreshBatch(const Raw& raw, const SqlLineStates& states,
                                std::span<const int> numbers, const SqlBlockState& blocks,
                                bool endsInLine, SqlFoldOptions fold)
{
    bool fresh = m_first > 0 && states.At(raw, m_first).blocks.batch == Batch::Fresh;
    bool isBefore = fresh; // the batch's first line
    std::size_t begin = 0; // of the blank lines behind it
    for (std::size_t i = 0; i < numbers.size() + endsInLine; ++i) {
        const SqlBlockState& behind = i < numbers.size() ? states.Of(numbers[i]).blocks : blocks;
        const bool freshBehind = behind.batch == Batch::Fresh;
        if (fresh && !freshBehind) {
            const bool opens = behind.batch == Batch::Open && BatchFolds(behind, fold);
            for (std::size_t blank = begin; opens && blank < i; ++blank)
                m_levels[blank] = Deeper(m_levels[blank]);
            if (isBefore)
                FoldBefore(raw, states, opens, fold);
            else if (opens)
                m_levels[begin - 1] |= sqlstyle::kFoldHeader;
        } else if (!fresh && freshBehind) {
            begin = i + 1;
            isBefore = false;
        }
        fresh = freshBehind;
    }
    if (fresh && isBefore)
        FoldBefore(raw, states, false, fold);
}

// The same for a batch whose first line stands before the lines that were walked over.
void FoldLevels::FoldBefore(const Raw& raw, const SqlLineStates& states, bool opens,
                            SqlFoldOptions fold)
{
    long line = m_first;
    long depthBehind = 0;
    while (line > 0) {
        const SqlLineState& behind = states.At(raw, line);
        depthBehind = FoldDepth(behind.scan, behind.blocks, fold);
        --line;
        if (line == 0 || states.At(raw, line).blocks.batch != Batch::Fresh)
            break;
        m_before.emplace_back(line, FoldLevelOf(depthBehind + opens, false, fold.compact));
    }
    const int level = FoldLevelAt(raw, line);
    const long depth = (level & sqlstyle::kFoldNumber) - sqlstyle::kFoldBase;
    m_before.emplace_back(line, FoldLevelOf(depth, opens || depthBehind > depth,
                                            (level & sqlstyle::kFoldBlank) != 0));
}

bool FoldLevels::Apply(const Raw& raw, const unsigned& edits) const
{
    const unsigned before = edits;
    const auto set = [&](long line, int level) {
        if (FoldLevelAt(raw, line) != level)
            raw.Send(QsciScintillaBase::SCI_SETFOLDLEVEL, static_cast<std::uintptr_t>(line),
                     long{level});
        return edits == before;
    };
    for (const auto& [line, level] : m_before) {
        if (!set(line, level))
            return false;
    }
    long line = m_first;
    for (const int level : m_levels) {
        if (!set(line++, level))
            return false;
    }
    return true;
}

} // namespace engine
