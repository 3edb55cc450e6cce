// SPDX-License-Identifier: GPL-3.0-or-later
// Code pages, under the names that code-page code knows: bytes to UTF-16 units and back.
// Knows no file and no window. Code page 0 is the system's default, 65001 is UTF-8. The tables of
// a page are made at its first use. For any thread.
#pragma once

#include "platform/text/SystemCodePage.h"

#include <cstddef>

namespace platform {

constexpr int IS_TEXT_UNICODE_REVERSE_STATISTICS = 0x20;

// Converts bytes to units and gives the units written, or with unitCapacity 0 the units it would
// write. A byteCount of -1 takes the bytes up to and with their terminator. 0 for an unknown code
// page, for no bytes, and when the units have no room; nothing is written then.
int MultiByteToWideChar(int codePage, const char* bytes, int byteCount, char16_t* units,
                        int unitCapacity);

// Converts units to bytes, with the same grammar. A unit that the page lacks becomes "?".
int WideCharToMultiByte(int codePage, const char16_t* units, int unitCount, char* bytes,
                        int byteCapacity);

// The character behind the one at a byte. The same place at a NUL, at the end, and where the bytes
// end within a character.
const char* CharNextExA(int codePage, const char* at, const char* end);

// The bytes that repeated steps of CharNextExA cover.
std::size_t WalkCharacters(int codePage, const char* bytes, std::size_t byteCount);

// The most units or bytes that a conversion can give. 0 for an unknown code page and for a figure
// that no int holds.
int MaxUnitCount(int codePage, std::size_t byteCount);
int MaxByteCount(int codePage, std::size_t unitCount);

// Whether bytes pass every test whose flag is set in tests; the flags of failed tests are cleared.
// The one test known is IS_TEXT_UNICODE_REVERSE_STATISTICS: do the bytes look like UTF-16 with the
// high byte first?
bool IsTextUnicode(const void* bytes, int byteCount, int* tests);

} // namespace platform
