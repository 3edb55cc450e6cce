// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/search/PatternText.h"

#include <cstdio>

namespace engine::search {
namespace {

int DigitValue(char digit)
{
    if (digit >= '0' && digit <= '9')
        return digit - '0';
    const char lower = static_cast<char>(digit | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

} // namespace

bool IsAsciiLetter(char32_t character)
{
    return (character | 0x20) >= U'a' && (character | 0x20) <= U'z';
}

bool NextCharacter(std::string_view text, std::size_t& at, char32_t& character)
{
    const auto byte = [&text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned lead = byte(at);
    const std::size_t size = lead < 0x80   ? 1
                             : lead < 0xC2 ? 0
                             : lead < 0xE0 ? 2
                             : lead < 0xF0 ? 3
                                           : 4;
    if (size == 0 || lead > 0xF4 || at + size > text.size())
        return false;
    character = size == 1 ? lead : lead & (0x7FU >> size);
    for (std::size_t i = 1; i < size; ++i) {
        if ((byte(at + i) & 0xC0) != 0x80)
            return false;
        character = (character << 6) | (byte(at + i) & 0x3F);
    }
    at += size;
    return true;
}

char32_t EscapedCharacter(char32_t letter)
{
    switch (letter) {
    case U'a':
        return 7;
    case U'b':
        return 8;
    case U'f':
        return 12;
    case U'n':
        return 10;
    case U'r':
        return 13;
    case U't':
        return 9;
    case U'v':
        return 11;
    default:
        return letter;
    }
}

int HexadecimalAt(std::string_view text, std::size_t at)
{
    if (at + 2 > text.size())
        return -1;
    const int high = DigitValue(text[at]);
    const int low = DigitValue(text[at + 1]);
    return high < 0 || low < 0 ? -1 : high * 16 + low;
}

std::string Join(std::initializer_list<std::string_view> parts)
{
    std::string text;
    for (const std::string_view part : parts)
        text += part;
    return text;
}

std::string InUtf8(char32_t character)
{
    if (character < 0x80)
        return {static_cast<char>(character)};
    std::string text;
    int shift = character < 0x800 ? 6 : character < 0x10000 ? 12 : 18;
    const unsigned lead = shift == 6 ? 0xC0 : shift == 12 ? 0xE0 : 0xF0;
    text += static_cast<char>(lead | character >> shift);
    while (shift > 0) {
        shift -= 6;
        text += static_cast<char>(0x80 | (character >> shift & 0x3F));
    }
    return text;
}

void AppendCode(std::string& pattern, char32_t character)
{
    char code[16];
    std::snprintf(code, sizeof code, "\\x{%x}", static_cast<unsigned>(character));
    pattern += code;
}

} // namespace engine::search
