// SPDX-License-Identifier: GPL-3.0-or-later
// TextType: the encodings of text as the utility functions number them, mark included.
#pragma once

namespace znutils {

enum TextType : int
{
    ttNone = -1,
    ttANSI = 0,
    ttUTF16LEMark = 1,
    ttUTF16LE = 2,
    ttUTF16BEMark = 3,
    ttUTF16BE = 4,
    ttUTF8Mark = 5,
    ttUTF8 = 6,
    ttUTF32LEMark = 7,
    ttUTF32LE = 8,
    ttUTF32BEMark = 9,
    ttUTF32BE = 10,
};

} // namespace znutils
