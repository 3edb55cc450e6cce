// SPDX-License-Identifier: GPL-3.0-or-later
// What is commented, and how: the decisions that need the text alone. Knows no window and no
// language; markers and positions are handed in. Lengths count UTF-16 units.
#pragma once

#include <string_view>

namespace comments {

// Positions of the markers in a line, -1 for one that is not there.
struct Found
{
    long start = -1;
    long end = -1;
    long middle = -1;

    bool Any() const { return start >= 0 || end >= 0 || middle >= 0; }
};

// In "/*/" only the start counts, in "*/*" only the end.
Found WithoutOverlap(Found found);

// How much of the text in front of a line is the marker: 0 if it is not, one more than the marker
// if a blank follows. Only three units are looked at, so that a marker of three loses no blank and
// a longer one is never found.
long MarkerToRemove(std::u16string_view text, std::u16string_view marker);

// What Enter puts into the line below this one, which is given without white space in front.
struct Continuation
{
    std::u16string_view text;
    bool ifOpen = false; // only inside a block comment
};
Continuation ContinuationOf(std::u16string_view previousLine);

// How far the word goes to the right of a caret that stands `offset` units behind the line's
// indentation, given the text from there on. The unit at the caret counts whatever it is; behind it
// the word goes on while isWordChar says so, and no further than kScanned units.
inline constexpr std::size_t kScanned = 99;
template <class IsWordChar>
long CountToTheRight(std::u16string_view fromIndent, long offset, IsWordChar isWordChar)
{
    const std::u16string_view scanned = fromIndent.substr(0, kScanned);
    if (offset < 0)
        return 1;
    long count = 1;
    for (auto at = static_cast<std::size_t>(offset) + 1;
         at < scanned.size() && isWordChar(scanned[at]); ++at)
        ++count;
    return count;
}

} // namespace comments
