// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/text/Utf8.h"

#include "platform/text/AsciiRun.h"
#include "platform/text/ShortRun.h"
#include "platform/text/VectorState.h"

#include <algorithm>
#include <cstring>

namespace platform::utf8 {
namespace {

constexpr char16_t kReplacement = 0xFFFD;
constexpr std::ptrdiff_t kStep = ascii::kChunk;

bool IsContinuation(unsigned char byte)
{
    return (byte & 0xC0) == 0x80;
}
bool IsHighSurrogate(char16_t unit)
{
    return (unit & 0xFC00) == 0xD800;
}
bool IsLowSurrogate(char16_t unit)
{
    return (unit & 0xFC00) == 0xDC00;
}

// Only the second byte tells overlong forms, surrogates and values above U+10FFFF from good text.
bool IsSecondOf(unsigned char lead, unsigned char second)
{
    switch (lead) {
    case 0xE0:
        return second >= 0xA0 && second < 0xC0;
    case 0xED:
        return second >= 0x80 && second < 0xA0;
    case 0xF0:
        return second >= 0x90 && second < 0xC0;
    case 0xF4:
        return second >= 0x80 && second < 0x90;
    default:
        return IsContinuation(second);
    }
}

struct Decoded
{
    unsigned int bytes;
    unsigned int units; // 0: ill-formed or cut off, and bytes is the maximal part
};

// Decodes one character that does not begin with an ASCII byte.
inline Decoded Decode(const unsigned char* at, std::size_t left, char16_t* units)
{
    const unsigned char lead = at[0];
    if (lead < 0xC2 || lead > 0xF4)
        return {1, 0};
    if (left < 2 || !IsSecondOf(lead, at[1]))
        return {1, 0};
    if (lead < 0xE0) {
        units[0] = static_cast<char16_t>((lead & 0x1F) << 6 | (at[1] & 0x3F));
        return {2, 1};
    }
    if (left < 3 || !IsContinuation(at[2]))
        return {2, 0};
    if (lead < 0xF0) {
        units[0] =
            static_cast<char16_t>((lead & 0x0F) << 12 | (at[1] & 0x3F) << 6 | (at[2] & 0x3F));
        return {3, 1};
    }
    if (left < 4 || !IsContinuation(at[3]))
        return {3, 0};
    const unsigned int character =
        (lead & 0x07u) << 18 | (at[1] & 0x3Fu) << 12 | (at[2] & 0x3Fu) << 6 | (at[3] & 0x3Fu);
    units[0] = static_cast<char16_t>(0xD7C0 + (character >> 10));
    units[1] = static_cast<char16_t>(0xDC00 + (character & 0x3FF));
    return {4, 2};
}

// The last bytes of a text, no more than a chunk: with NULs behind them they are a run. In a file's
// lines they are a fifth of it.
ascii::Taken ShortTailToUnits(const unsigned char* bytes, std::size_t count, char16_t* units)
{
    unsigned char chunk[ascii::kChunk + 1] = {};
    char16_t widened[ascii::kChunk + 1];
    std::memcpy(chunk, bytes, count);
    const ascii::Taken taken = ascii::WidenShortRun(chunk, sizeof chunk, widened);
    if (taken.bytes == 0)
        return taken;
    const std::size_t written = taken.units - (ascii::kChunk - count);
    std::memcpy(units, widened, written * sizeof *units);
    return {std::min(taken.bytes, count), written};
}

} // namespace

Extent ToUnitsWhileWellFormed(const unsigned char* bytes, std::size_t byteCount, char16_t* units)
{
    ClearUpperHalves();
    const unsigned char* at = bytes;
    const unsigned char* const end = bytes + byteCount;
    char16_t* out = units;
    while (at < end) {
        // There are never fewer units of room left than bytes to read.
        const ascii::Taken run = ascii::WidenShortRun(at, static_cast<std::size_t>(end - at), out);
        at += run.bytes;
        out += run.units;
        if (at == end)
            break;
        const auto left = static_cast<std::size_t>(end - at);
        if (left <= ascii::kChunk && (*at & 0xC0) != 0x80) {
            const ascii::Taken tail = ShortTailToUnits(at, left, out);
            at += tail.bytes;
            out += tail.units;
            if (at == end)
                break;
        }
        if (*at < 0x80) {
            *out++ = *at++;
            continue;
        }
        do {
            const Decoded decoded = Decode(at, static_cast<std::size_t>(end - at), out);
            if (decoded.units == 0)
                return {static_cast<std::size_t>(at - bytes),
                        static_cast<std::size_t>(out - units)};
            at += decoded.bytes;
            out += decoded.units;
        } while (at < end && *at >= 0x80);
    }
    return {byteCount, static_cast<std::size_t>(out - units)};
}

std::size_t UnitCount(const unsigned char* bytes, std::size_t byteCount)
{
    ClearUpperHalves();
    std::size_t units = 0;
    std::size_t i = 0;
    while (i < byteCount) {
        if (byteCount - i >= ascii::kChunk && ascii::IsChunk(bytes + i)) {
            i += ascii::kChunk;
            units += ascii::kChunk;
        } else if (bytes[i] < 0x80) {
            ++i;
            ++units;
        } else {
            char16_t scratch[2];
            const Decoded decoded = Decode(bytes + i, byteCount - i, scratch);
            i += decoded.bytes;
            units += decoded.units == 0 ? 1 : decoded.units;
        }
    }
    return units;
}

std::size_t ToUnits(const unsigned char* bytes, std::size_t byteCount, char16_t* units,
                    std::size_t capacity)
{
    ClearUpperHalves();
    std::size_t in = 0;
    std::size_t out = 0;
    while (in < byteCount) {
        if (capacity - out >= byteCount - in) {
            const Extent taken = ToUnitsWhileWellFormed(bytes + in, byteCount - in, units + out);
            in += taken.bytes;
            out += taken.units;
            if (in == byteCount)
                break;
        }
        if (bytes[in] < 0x80) {
            units[out++] = bytes[in++];
            continue;
        }
        const Decoded decoded = Decode(bytes + in, byteCount - in, units + out);
        in += decoded.bytes;
        if (decoded.units == 0)
            units[out++] = kReplacement;
        else
            out += decoded.units;
    }
    return out;
}

std::size_t ByteCount(const char16_t* units, std::size_t unitCount)
{
    ClearUpperHalves();
    std::size_t bytes = 0;
    for (std::size_t i = 0; i < unitCount; ++i) {
        const char16_t unit = units[i];
        const bool pair =
            IsHighSurrogate(unit) && i + 1 < unitCount && IsLowSurrogate(units[i + 1]);
        bytes += unit < 0x80 ? 1 : unit < 0x800 ? 2 : pair ? 4 : 3;
        i += pair;
    }
    return bytes;
}

std::size_t ToBytes(const char16_t* units, std::size_t unitCount, unsigned char* bytes)
{
    ClearUpperHalves();
    const char16_t* at = units;
    const char16_t* const end = units + unitCount;
    unsigned char* out = bytes;
    while (at < end) {
        const ascii::Taken run = ascii::NarrowShortRun(at, static_cast<std::size_t>(end - at), out);
        at += run.units;
        out += run.bytes;
        // There is a long one in what is next, or too little of it for a chunk.
        const char16_t* const stop = end - at > kStep ? at + kStep : end;
        while (at < stop) {
            unsigned int unit = *at++;
            if (unit < 0x80) {
                *out++ = static_cast<unsigned char>(unit);
                continue;
            }
            if (unit < 0x800) {
                *out++ = static_cast<unsigned char>(0xC0 | unit >> 6);
                *out++ = static_cast<unsigned char>(0x80 | (unit & 0x3F));
                continue;
            }
            if ((unit & 0xF800) == 0xD800) {
                if (unit < 0xDC00 && at < end && IsLowSurrogate(*at)) {
                    unit = 0x10000 + ((unit & 0x3FF) << 10) + (*at++ & 0x3FF);
                    *out++ = static_cast<unsigned char>(0xF0 | unit >> 18);
                    *out++ = static_cast<unsigned char>(0x80 | (unit >> 12 & 0x3F));
                    *out++ = static_cast<unsigned char>(0x80 | (unit >> 6 & 0x3F));
                    *out++ = static_cast<unsigned char>(0x80 | (unit & 0x3F));
                    continue;
                }
                unit = kReplacement;
            }
            *out++ = static_cast<unsigned char>(0xE0 | unit >> 12);
            *out++ = static_cast<unsigned char>(0x80 | (unit >> 6 & 0x3F));
            *out++ = static_cast<unsigned char>(0x80 | (unit & 0x3F));
        }
    }
    return static_cast<std::size_t>(out - bytes);
}

std::size_t Walk(const unsigned char* bytes, std::size_t byteCount)
{
    std::size_t i = 0;
    while (i < byteCount) {
        if (byteCount - i >= ascii::kChunk && ascii::IsChunk(bytes + i)) {
            i += ascii::kChunk;
            continue;
        }
        const std::size_t step = LengthByLead(bytes[i]);
        if (step == 0 || step > byteCount - i)
            break;
        i += step;
    }
    return i;
}

} // namespace platform::utf8
