// SPDX-License-Identifier: GPL-3.0-or-later
// What bytes without a byte-order mark look like, from their content alone. A judgement of the
// first block of a file: the end of the block may cut a character.
#pragma once

#include "encoding/FileEncodeConverter.h"

namespace content {

// Each gives the encoding that the bytes show, or encANSI when they show none.
FileEncodeConverter::encodingType DetectUtf32(const unsigned char* bytes, unsigned int length);
FileEncodeConverter::encodingType DetectUtf16(const unsigned char* bytes, unsigned int length);
FileEncodeConverter::encodingType DetectUtf8(const unsigned char* bytes, unsigned int length);

// encUTF8Cookie if the first line says "coding:" or "coding=" and then "utf-8", else encANSI. Only
// the first line counts; a cookie in the second is text like any other.
FileEncodeConverter::encodingType FindCookie(const unsigned char* bytes, unsigned int length);

} // namespace content
