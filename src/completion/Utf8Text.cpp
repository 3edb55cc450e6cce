// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/Utf8Text.h"

namespace completion {
namespace {

void Append(char32_t code, std::string& utf8)
{
    const auto tail = [&](int shift) {
        utf8 += static_cast<char>(0x80 | ((code >> shift) & 0x3F));
    };
    if (code < 0x800) {
        utf8 += static_cast<char>(0xC0 | code >> 6);
    } else if (code < 0x10000) {
        utf8 += static_cast<char>(0xE0 | code >> 12);
        tail(6);
    } else {
        utf8 += static_cast<char>(0xF0 | code >> 18);
        tail(12);
        tail(6);
    }
    tail(0);
}

} // namespace

void AppendUtf8(std::u16string_view text, std::string& utf8)
{
    utf8.reserve(utf8.size() + text.size() + text.size() / 8);
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i];
        if (unit < 0x80) {
            utf8 += static_cast<char>(unit);
            continue;
        }
        const bool isHigh = unit >= 0xD800 && unit < 0xDC00;
        if (isHigh && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] < 0xE000) {
            Append(0x10000 + ((unit - 0xD800U) << 10) + (text[i + 1] - 0xDC00U), utf8);
            ++i;
        } else {
            Append(unit >= 0xD800 && unit < 0xE000 ? U'\uFFFD' : char32_t{unit}, utf8);
        }
    }
}

std::string ToUtf8(std::u16string_view text)
{
    std::string utf8;
    AppendUtf8(text, utf8);
    return utf8;
}

long CountUnits(std::string_view utf8)
{
    long units = 0;
    for (const char each : utf8) {
        const auto byte = static_cast<unsigned char>(each);
        units += ((byte & 0xC0) != 0x80) + (byte >= 0xF0);
    }
    return units;
}

} // namespace completion
