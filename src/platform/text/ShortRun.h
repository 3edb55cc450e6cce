// SPDX-License-Identifier: GPL-3.0-or-later
// Runs of characters of one and two bytes, sixteen bytes or units at a time. Which characters are
// the long ones nobody can foresee, so nothing branches on them; where the processor can shuffle
// bytes, which is asked once, eight characters move to their places in one step.
#pragma once

#include "platform/text/AsciiRun.h"

#include <cstddef>

namespace platform::ascii {

// Decodes from the front, where a character begins, up to a longer or ill-formed one, or to where
// too few bytes are left for a chunk. units has room for byteCount units.
Taken WidenShortRun(const unsigned char* bytes, std::size_t byteCount, char16_t* units);

// Encodes from the front up to a unit from 800 up, or to where too few units are left. bytes has
// room for what all units make, a byte each at least.
Taken NarrowShortRun(const char16_t* units, std::size_t unitCount, unsigned char* bytes);

// Likewise, chunk by chunk with what every processor has.
Taken WidenByChunks(const unsigned char* bytes, std::size_t byteCount, char16_t* units);
Taken NarrowByChunks(const char16_t* units, std::size_t unitCount, unsigned char* bytes);

} // namespace platform::ascii
