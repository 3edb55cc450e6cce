// SPDX-License-Identifier: GPL-3.0-or-later
// What a match's place needs to know of the text before it, sixteen bytes at a time.
#pragma once

#include <QString>

#include <cstddef>
#include <string_view>

// UTF-16 units of well-formed UTF-8.
long UnitsIn(std::string_view text);
QString TextOf(std::string_view text);

// Line ends are CR LF, LF and CR; between CR and LF there is none. Whether one is at a place, and
// how many are from one place to another.
inline bool IsLineEnd(std::string_view text, std::size_t at)
{
    return text[at] == '\n' ||
           (text[at] == '\r' && !(at + 1 < text.size() && text[at + 1] == '\n'));
}
long LineEndsIn(std::string_view text, std::size_t from, std::size_t to);
