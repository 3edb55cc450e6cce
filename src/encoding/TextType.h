// SPDX-License-Identifier: GPL-3.0-or-later
/// \file
/// TextType: the encodings of text as the utility functions number them, mark included.
#pragma once

/// Functions and numbers that utilities share.
namespace znutils {

/// An encoding, and whether a byte-order mark stands in front.
enum TextType : int
{
    ttNone = -1,       ///< unknown
    ttANSI = 0,        ///< the system's code page
    ttUTF16LEMark = 1, ///< low byte first, with a mark
    ttUTF16LE = 2,     ///< low byte first
    ttUTF16BEMark = 3, ///< high byte first, with a mark
    ttUTF16BE = 4,     ///< high byte first
    ttUTF8Mark = 5,    ///< UTF-8 with a mark
    ttUTF8 = 6,        ///< UTF-8
    ttUTF32LEMark = 7, ///< low byte first, with a mark
    ttUTF32LE = 8,     ///< low byte first
    ttUTF32BEMark = 9, ///< high byte first, with a mark
    ttUTF32BE = 10,    ///< high byte first
};

} // namespace znutils
