// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/colours/SqlFolds.h"

#include "control/SqlStyles.h"

#include <algorithm>

namespace engine {

using analysis::TokenKind;

long FoldDepth(const analysis::ScanState& scan, const SqlBlockState& blocks, SqlFoldOptions fold)
{
    const bool inComment =
        scan.inside == TokenKind::BlockComment || scan.inside == TokenKind::CodeComment;
    const bool inBatch = blocks.batch == SqlBlockState::Batch::Open && BatchFolds(blocks, fold);
    return static_cast<long>(blocks.Depth()) + inBatch + (fold.statements && blocks.inStatement) +
           (fold.comments && inComment);
}

int FoldLevelOf(long depth, bool isHeader, bool isBlank)
{
    constexpr long kDeepest = sqlstyle::kFoldNumber;
    const long number = std::min(sqlstyle::kFoldBase + depth, kDeepest);
    return static_cast<int>(number) | (isHeader && number < kDeepest ? sqlstyle::kFoldHeader : 0) |
           (isBlank ? sqlstyle::kFoldBlank : 0);
}

int Deeper(int level)
{
    const long depth = (level & sqlstyle::kFoldNumber) - sqlstyle::kFoldBase + 1;
    return FoldLevelOf(depth, level & sqlstyle::kFoldHeader, level & sqlstyle::kFoldBlank);
}

} // namespace engine
