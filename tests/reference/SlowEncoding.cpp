// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/reference/SlowEncoding.h"

namespace reference {
namespace {

using Bytes = std::vector<std::uint8_t>;

void Put(Bytes& bytes, std::uint32_t value, int width, bool bigEndian)
{
    for (int i = 0; i < width; ++i)
        bytes.push_back(static_cast<std::uint8_t>(value >> 8 * (bigEndian ? width - 1 - i : i)));
}

void PutUtf8(Bytes& bytes, std::uint32_t c)
{
    const int more = c < 0x80 ? 0 : c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
    static constexpr int kLeads[] = {0, 0xC0, 0xE0, 0xF0};
    bytes.push_back(static_cast<std::uint8_t>(kLeads[more] + (c >> 6 * more)));
    for (int i = more - 1; i >= 0; --i)
        bytes.push_back(static_cast<std::uint8_t>(0x80 + (c >> 6 * i) % 64));
}

void PutUtf16(Bytes& bytes, std::uint32_t c, bool bigEndian)
{
    if (c < 0x10000) {
        Put(bytes, c, 2, bigEndian);
        return;
    }
    Put(bytes, 0xD800 + (c - 0x10000) / 0x400, 2, bigEndian);
    Put(bytes, 0xDC00 + (c - 0x10000) % 0x400, 2, bigEndian);
}

} // namespace

Bytes Encode(const std::u32string& text, int encoding)
{
    Bytes bytes;
    for (const char32_t c : text) {
        if (encoding == 0)
            bytes.push_back(static_cast<std::uint8_t>(c));
        else if (encoding == 2 || encoding == 4)
            PutUtf16(bytes, c, encoding == 4);
        else if (encoding == 8 || encoding == 10)
            Put(bytes, c, 4, encoding == 10);
        else
            PutUtf8(bytes, c);
    }
    return bytes;
}

// A maximal part is the longest beginning of some well-formed character. All of them are tried.
std::u16string DecodeUtf8(const Bytes& bytes)
{
    std::u16string units;
    std::size_t i = 0;
    while (i < bytes.size()) {
        const auto at = [&](std::size_t j) { return i + j < bytes.size() ? bytes[i + j] : 0; };
        const int lead = at(0);
        const int size = lead < 0x80   ? 1
                         : lead < 0xC2 ? 0
                         : lead < 0xE0 ? 2
                         : lead < 0xF0 ? 3
                         : lead < 0xF5 ? 4
                                       : 0;
        std::uint32_t c = static_cast<std::uint32_t>(size < 2 ? lead : lead % (1 << (7 - size)));
        int good = 1;
        for (; good < size; ++good) {
            const int next = at(static_cast<std::size_t>(good));
            if (next / 64 != 2)
                break;
            c = c * 64 + static_cast<std::uint32_t>(next % 64);
            // What the remaining bytes could still make of it has to be a character of this size.
            const int left = size - 1 - good;
            const std::uint32_t low = c << 6 * left;
            const std::uint32_t high = low + (1u << 6 * left) - 1;
            const std::uint32_t least = size == 2 ? 0x80 : size == 3 ? 0x800 : 0x10000;
            if (high < least || low > 0x10FFFF || (low >= 0xD800 && high <= 0xDFFF))
                break;
        }
        i += static_cast<std::size_t>(good);
        if (size == 0 || good < size)
            c = 0xFFFD;
        if (c >= 0x10000) {
            units += static_cast<char16_t>(0xD800 + (c - 0x10000) / 0x400);
            c = 0xDC00 + (c - 0x10000) % 0x400;
        }
        units += static_cast<char16_t>(c);
    }
    return units;
}

} // namespace reference
