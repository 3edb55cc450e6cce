// SPDX-License-Identifier: GPL-3.0-or-later
// White space of one line of text: tabs against blanks, what trails. Knows no window.
// Lengths count UTF-16 units, each of which is one column wide.
#pragma once

#include <string>
#include <string_view>

namespace spaces {

// A blank or a tab.
constexpr bool IsIndentChar(char16_t c)
{
    return c == u' ' || c == u'\t';
}

// The line with each tab as the blanks up to the next stop. A width below 1 counts as 1.
std::u16string TabsToBlanks(std::u16string_view line, int tabWidth);

// The line with a tab for each blank from which on there are only blanks up to the next stop. Stops
// are counted by character, so that a tab that stands in the line already is as wide as a letter;
// one blank right before a stop becomes a tab, also in a string.
std::u16string BlanksToTabs(std::u16string_view line, int tabWidth);

// How many units at the end are blanks or tabs by their low byte: U+0120 and U+2009 count too.
// Half of a pair never does.
std::size_t CountTrailing(std::u16string_view line);

} // namespace spaces
