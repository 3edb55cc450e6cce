// SPDX-License-Identifier: GPL-3.0-or-later
// Reading the text of a pattern, and writing characters into another.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace engine::search {

// The character at a place, which then is behind it; false for what is not UTF-8.
bool NextCharacter(std::string_view text, std::size_t& at, char32_t& character);

// What a letter behind a backslash stands for: 10 for n. Itself, if it has no meaning.
char32_t EscapedCharacter(char32_t letter);

// The value of the two hexadecimal digits at a place, -1 if they are not there.
int HexadecimalAt(std::string_view text, std::size_t at);

bool IsAsciiLetter(char32_t character);

// Any byte of a character but its first.
constexpr bool IsInsideCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

std::string Join(std::initializer_list<std::string_view> parts);

std::string InUtf8(char32_t character);

// As PCRE2 takes it anywhere: \x{..}
void AppendCode(std::string& pattern, char32_t character);

} // namespace engine::search
