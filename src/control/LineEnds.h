// SPDX-License-Identifier: GPL-3.0-or-later
// Line ends of text on its way into the engine. Knows no window; lengths count UTF-16 units.
#pragma once

#include <string_view>
#include <vector>

namespace lineends {

// What each line end of a text becomes.
enum Selector : int
{
    kAsItIs = -1,
    kCrLf = 0,
    kLf = 1,
    kCr = 2,
};

// For the engine's modes: 1 CR LF, 2 CR, 3 LF; any other has no single line end.
int SelectorOf(int mode);

// The characters of one line end, none for kAsItIs.
std::u16string_view Sequence(int selector);

// Redirects text and length to a copy in target with every line end replaced. A CR with an LF
// behind it is one line end. Nothing happens for kAsItIs, a null text or a length of 0.
// The target must outlive the use of the pointer.
void Normalise(std::vector<char16_t>& target, const char16_t*& text, long& length, int selector);

// The same for a text that comes in blocks: a CR at a block's end is held until the next block
// tells whether an LF follows. held is 0 at the start; what it holds at the end is one line end
// more, which the caller adds.
void NormaliseBlock(std::vector<char16_t>& target, const char16_t*& text, long& length,
                    char16_t& held, int selector);

// The mode of the largest count; LF wins a tie over the others and CR one over CR LF. 0 if all
// three are equal.
int MajorityMode(int cr, int lf, int crlf);

} // namespace lineends
