// SPDX-License-Identifier: GPL-3.0-or-later
// SqlFolds: how deep the lines of an SQL text fold, by what stands open at their ends.
#pragma once

#include "engine/analysis/SqlScanner.h"
#include "engine/colours/SqlBlocks.h"

namespace engine {

struct SqlFoldOptions
{
    bool comments = false;
    bool compact = false;
    bool statements = false; // else only what stands in them folds
    bool firstBatch = false; // a separator comes behind it

    bool operator==(const SqlFoldOptions&) const = default;
};

// Whether the lines of the batch fold behind its first: where a separator divides the script.
inline bool BatchFolds(const SqlBlockState& blocks, SqlFoldOptions fold)
{
    return blocks.divided || fold.firstBatch;
}

// How much stands open at a place. A comment under way counts where it stands over a line's end.
long FoldDepth(const analysis::ScanState& scan, const SqlBlockState& blocks, SqlFoldOptions fold);

// The level word of a line. Lines that are too deep for its number share the deepest one, and none
// of those is a header.
int FoldLevelOf(long depth, bool isHeader, bool isBlank);

// One deeper.
int Deeper(int level);

} // namespace engine
