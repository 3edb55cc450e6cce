// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/reference/SlowDetection.h"

#include <cctype>
#include <cstdlib>
#include <cstring>

namespace reference {
namespace {

using Bytes = std::vector<std::uint8_t>;

bool StartsWith(const Bytes& block, const Bytes& mark)
{
    if (block.size() < mark.size())
        return false;
    for (std::size_t i = 0; i < mark.size(); ++i) {
        if (block[i] != mark[i])
            return false;
    }
    return true;
}

Verdict FromMark(const Bytes& block)
{
    if (StartsWith(block, {0x00, 0x00, 0xFE, 0xFF}))
        return {10, 4};
    if (StartsWith(block, {0xFF, 0xFE, 0x00, 0x00}))
        return {8, 4};
    if (StartsWith(block, {0xFE, 0xFF}))
        return {4, 2};
    if (StartsWith(block, {0xFF, 0xFE}))
        return {2, 2};
    if (StartsWith(block, {0xEF, 0xBB, 0xBF}))
        return {6, 3};
    return {0, 0};
}

bool Blank(std::uint32_t c)
{
    return c == 9 || c == 10 || c == 13 || c == 32;
}

bool BadWord(std::uint32_t c)
{
    return (c >= 0xD800 && c <= 0xDFFF) || c == 0xFFFE || c == 0xFFFF || c > 0x10FFFF;
}

int Utf32(const Bytes& b)
{
    bool leInvalid = false, beInvalid = false, leZero = false, beZero = false;
    bool leSpace = false, beSpace = false, leAscii = true, beAscii = true;
    for (std::size_t i = 0; i < b.size(); i += 4) {
        if (leSpace || beSpace)
            break;
        const std::uint32_t w =
            b[i] + 0x100u * b[i + 1] + 0x10000u * b[i + 2] + 0x1000000u * b[i + 3];
        const std::uint32_t v =
            b[i + 3] + 0x100u * b[i + 2] + 0x10000u * b[i + 1] + 0x1000000u * b[i];
        if (w % 0x10000 == 0)
            leZero = true;
        if (w > 0x7F)
            leAscii = false;
        if (BadWord(w)) {
            const bool both = beInvalid;
            leInvalid = true;
            if (both) {
                leSpace = leAscii = beAscii = false;
                break;
            }
        }
        if (w == 0) {
            leInvalid = beInvalid = true;
            leAscii = beAscii = false;
            break;
        }
        if (Blank(w))
            leSpace = true;
        if (v % 0x10000 == 0)
            beZero = true;
        if (v > 0x7F)
            beAscii = false;
        if (BadWord(v)) {
            const bool both = leInvalid;
            beInvalid = true;
            if (both) {
                leSpace = leAscii = beAscii = false;
                break;
            }
        }
        if (Blank(v))
            beSpace = true;
    }
    if (!leZero && !beZero) {
        leSpace = leSpace && !leInvalid;
        beSpace = beSpace && !beInvalid;
    }
    if (leSpace)
        return 8;
    if (beSpace)
        return leAscii ? 8 : 10;
    if (leAscii)
        return 8;
    if (beAscii)
        return 10;
    if (!leZero && !beZero)
        return 0;
    return leZero ? 8 : 10;
}

bool High(std::uint32_t c)
{
    return c >= 0xD800 && c <= 0xDBFF;
}
bool Low(std::uint32_t c)
{
    return c >= 0xDC00 && c <= 0xDFFF;
}

bool VariesLikeSwappedText(const Bytes& b)
{
    std::size_t zerosAtEven = 0, zerosAtOdd = 0;
    for (std::size_t i = 0; i < b.size(); ++i)
        if (b[i] == 0)
            ++(i % 2 == 0 ? zerosAtEven : zerosAtOdd);
    if (zerosAtEven != zerosAtOdd)
        return zerosAtEven > zerosAtOdd;
    long first = 0, second = 0;
    for (std::size_t i = 2; i < b.size(); ++i)
        (i % 2 == 0 ? first : second) += std::abs(int{b[i]} - int{b[i - 2]});
    return 3 * first < second;
}

int Utf16(const Bytes& b)
{
    std::vector<std::uint32_t> little, big;
    for (std::size_t i = 0; i < b.size(); i += 2) {
        little.push_back(b[i] + 0x100u * b[i + 1]);
        big.push_back(b[i + 1] + 0x100u * b[i]);
    }
    bool leInvalid = false, beInvalid = false, zeroByte = false;
    bool leSpace = false, beSpace = false, leAscii = true, beAscii = true;
    for (std::size_t i = 0; i < little.size(); ++i) {
        if (leSpace || beSpace)
            break;
        const bool last = i + 1 == little.size();
        const std::uint32_t w = little[i], v = big[i];
        if (w / 0x100 == 0 || w % 0x100 == 0)
            zeroByte = true;
        bool invalid = false;
        if (High(w)) {
            leAscii = false;
            if (!last && Low(little[i + 1])) {
                ++i;
                leSpace = true;
                continue;
            }
            invalid = !last;
        } else {
            leAscii = leAscii && w <= 0x7F;
            invalid = w == 0xFFFE || w == 0xFFFF || Low(w);
        }
        if (invalid) {
            leInvalid = true;
            if (beInvalid)
                break;
        }
        if (w == 0) {
            leInvalid = beInvalid = true;
            leAscii = beAscii = false;
            break;
        }
        if (Blank(w))
            leSpace = true;
        if (High(v)) {
            beAscii = false;
            if (!last) {
                if (Low(big[i + 1])) {
                    ++i;
                    beSpace = true;
                    continue;
                }
                beInvalid = true;
                if (leInvalid) {
                    leSpace = true;
                    break;
                }
            }
        } else if (v > 0x7F) {
            beAscii = false;
            if (v == 0xFFFE || v == 0xFFFF || Low(v)) {
                beInvalid = true;
                if (leInvalid)
                    break;
            }
        }
        if (Blank(v))
            beSpace = true;
    }
    if (!zeroByte) {
        leSpace = leSpace && !leInvalid;
        beSpace = beSpace && !beInvalid;
    }
    if (leSpace)
        return 2;
    if (beSpace)
        return leAscii ? 2 : 4;
    if (leAscii)
        return 2;
    if (beAscii)
        return 4;
    if (!zeroByte)
        return 0;
    return VariesLikeSwappedText(b) ? 4 : 2;
}

int Utf8(const Bytes& b)
{
    bool ascii = true;
    std::size_t i = 0;
    while (i < b.size()) {
        const int lead = b[i++];
        if (lead == 0xC0 || lead == 0xC1 || lead >= 0xF5)
            return 0;
        int more = -1;
        if (lead < 0x80)
            more = 0;
        else if (lead / 0x20 == 6)
            more = 1;
        else if (lead / 0x10 == 14)
            more = 2;
        else if (lead / 0x08 == 30)
            more = 3;
        if (more < 0)
            return 0;
        if (more > 0)
            ascii = false;
        for (; more > 0 && i < b.size(); --more) {
            if (b[i++] / 0x40 != 2)
                return 0;
        }
    }
    return ascii ? 0 : 6;
}

int Cookie(const Bytes& b)
{
    std::string line;
    for (const std::uint8_t byte : b) {
        if (byte == '\r' || byte == '\n')
            break;
        line += static_cast<char>(byte);
    }
    line += '\n';
    std::size_t i = line.find("coding");
    if (i == std::string::npos)
        return 0;
    i += 6;
    if (line[i] != ':' && line[i] != '=')
        return 0;
    ++i;
    while (line[i] == ' ' || line[i] == '\t')
        ++i;
    std::string name;
    for (; line[i] > 0 && (std::isalnum(line[i]) != 0 || std::strchr("_-.", line[i])); ++i)
        name += static_cast<char>(std::tolower(line[i]));
    return name == "utf-8" ? 11 : 0;
}

Bytes Behind(const Bytes& block, int count)
{
    return Bytes(block.begin() + count, block.end());
}

} // namespace

Verdict Detect(const Bytes& block)
{
    if (block.size() < 2)
        return {0, 0};
    const Verdict mark = FromMark(block);
    if (mark.markSize > 0)
        return mark;
    int found = 0;
    if (block.size() >= 4 && block.size() % 4 == 0)
        found = Utf32(block);
    if (found == 0 && block.size() >= 4 && block.size() % 2 == 0)
        found = Utf16(block);
    if (found == 0 && block.size() >= 4)
        found = Utf8(block);
    if (found == 0)
        found = Cookie(block);
    return {found, 0};
}

Verdict Resolve(int requested, const Bytes& block)
{
    if (requested == -1)
        return Detect(block);
    const Verdict mark = FromMark(block);
    const int encoding = mark.markSize > 0 ? mark.encoding : requested;
    return {encoding == 0 ? Cookie(Behind(block, mark.markSize)) : encoding, mark.markSize};
}

} // namespace reference
