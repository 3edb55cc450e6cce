// SPDX-License-Identifier: GPL-3.0-or-later
// AlikeStyles: styles that look alike, laid by turns over the long runs of one style in long lines.
// The stock engine keeps the widths of pieces of text below thirty bytes alone, and a piece ends
// where the style does: without them a typed character measures all of such a line again, 0.5 s for
// a megabyte. A style and its alike differ in one bit, which nobody outside sees.
#pragma once

#include "engine/text/Raw.h"

#include <bitset>
#include <span>

namespace engine {

class AlikeStyles
{
public:
    static constexpr long kLongLine = 16 * 1024; // bytes

    // Lays them over styles of a long line, as long as the text's bytes; the ends are where styles
    // may change. Braces keep theirs: they match others of the same style.
    void Lay(std::span<char> styles, std::string_view bytes);

    // What a style of the text stands for, 0 to 255. The stock engine tells it with a sign, and
    // throws when it is asked for the look of a style below 0.
    int Plain(int style) const
    {
        const int low = style & (kBit - 1);
        return m_used[static_cast<std::size_t>(low)] ? low : style & (kBit | low);
    }

    // Gives the alikes their styles' looks in this window.
    void Match(const Raw& raw) const;

private:
    static constexpr int kBit = 0x80;

    std::bitset<kBit> m_used;
};

} // namespace engine
