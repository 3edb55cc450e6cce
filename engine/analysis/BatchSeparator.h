// SPDX-License-Identifier: GPL-3.0-or-later
// BatchSeparator: the word that stands alone on a line between two batches, and what may stand
// beside it: blanks, comments, a repeat count.
#pragma once

#include "engine/analysis/SqlScanner.h"

#include <string>

namespace engine::analysis {

struct BatchSeparator
{
    std::string text;       // UTF-8; empty: batches have no separator
    bool matchCase = false; // else ASCII letters of any case
    bool takesCount = true; // GO 5

    bool operator==(const BatchSeparator&) const = default;
};

// What the dialect separates batches with. A count goes with a word only.
BatchSeparator SeparatorOf(const SqlDialect& dialect);

// A separator line.
struct SeparatorLine
{
    bool found = false;
    long end = 0;      // behind the word and its count
    long nextLine = 0; // where the batch behind it starts
    long read = 0;     // how far the text was looked at
};

// What stands behind a separator this far on its line is not looked at.
inline constexpr long kSeparatorReach = 1024;

// Whether the separator stands at the position, which is the first on its line but for comments,
// and nothing but a count and comments behind it.
SeparatorLine SeparatorAt(const SqlDialect& dialect, const TextSpans& text, long position,
                          const BatchSeparator& separator);

} // namespace engine::analysis
