// SPDX-License-Identifier: GPL-3.0-or-later
// AnchoredText: a pattern that is a plain text, at the edges of lines and words that it names. Such
// texts are looked for as texts are, and their edges where they stand.
#pragma once

#include "engine/search/WordRule.h"

#include <bitset>
#include <optional>
#include <string>
#include <string_view>

namespace engine::search {

// The characters of words below 0x80.
using AsciiWords = std::bitset<128>;

// A text some of whose bytes are at hand.
struct PeekedText
{
    const SearchedText& text;
    long length = 0;
    std::string_view bytes; // of the text, from base
    long base = 0;

    int ByteAt(long at) const; // -1 outside the text
};

struct AnchoredText
{
    // Nothing for a pattern that is more than that. It is one of the translator's.
    static std::optional<AnchoredText> Of(std::string_view pattern, bool posix);

    bool HasEdges() const { return lineStart || lineEnd || wordStart || wordEnd; }

    // Whether a match of the text has its edges, in a search that ends at a place. Nothing if that
    // takes more to know than bytes below 0x80.
    std::optional<bool> FitsAt(Range match, long to, const PeekedText& searched,
                               const AsciiWords& words) const;

    std::string text;
    bool lineStart = false;
    bool lineEnd = false;
    bool wordStart = false;
    bool wordEnd = false;
};

} // namespace engine::search
