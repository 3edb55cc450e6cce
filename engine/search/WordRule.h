// SPDX-License-Identifier: GPL-3.0-or-later
// WordRule: whether a match has to be a word, or to start as one.
#pragma once

#include "engine/search/SearchedText.h"

namespace engine::search {

// Bytes of the text.
struct Range
{
    long start = 0;
    long end = 0;
    bool operator==(const Range&) const = default;
};

struct WordRule
{
    bool wholeWord = false;
    bool wordStart = false;

    bool Admits(const SearchedText& text, Range match) const
    {
        if (wholeWord && text.IsWord(match.start, match.end))
            return true;
        if (wordStart && text.IsWordStart(match.start))
            return true;
        return !wholeWord && !wordStart;
    }
};

} // namespace engine::search
