// SPDX-License-Identifier: GPL-3.0-or-later
// The conversions of FileEncodeConverter, one for each pair of text forms. Each takes whole
// characters only and tells how many bytes behind them it left.
#include "encoding/FileEncodeConverter.h"

#include "encoding/Units.h"
#include "platform/text/AsciiRun.h"
#include "platform/text/CodePage.h"
#include "platform/text/Utf8.h"

#include <cstdint>
#include <cstring>

namespace {

using UnitVector = std::vector<char16_t, UninitialisedAllocator<char16_t>>;

constexpr int kUtf8 = 65001;
constexpr unsigned int kReplacement = 0xFFFD;

// Up to this size a conversion gets room for the most that may come out; above, it is measured, so
// that a line of 50 MB does not ask for three times its room.
constexpr int kMeasureAbove = 1 << 20;

const char* AsText(const unsigned char* bytes)
{
    return reinterpret_cast<const char*>(bytes);
}

char16_t* AsUnits(ByteVector& bytes)
{
    return reinterpret_cast<char16_t*>(bytes.data());
}

// The units of a buffer, in place where the buffer stands at an even address, else in a copy.
class UnitView
{
public:
    UnitView(const unsigned char* buffer, unsigned int count)
        : m_units(reinterpret_cast<const char16_t*>(buffer))
    {
        if (reinterpret_cast<std::uintptr_t>(buffer) % alignof(char16_t) == 0)
            return;
        m_copy.resize(count);
        std::memcpy(m_copy.data(), buffer, count * sizeof(char16_t));
        m_units = m_copy.data();
    }

    const char16_t* Get() const { return m_units; }

private:
    UnitVector m_copy;
    const char16_t* m_units;
};

// The first unit behind the low surrogates takes a second unit with it, too.
bool TakesTwo(char16_t unit)
{
    return static_cast<char16_t>(unit - 0xD800) <= 0x800;
}

// Any unit that takes a second one takes whatever follows.
unsigned int WalkUnits(const char16_t* units, unsigned int count)
{
    constexpr unsigned int kChunk = platform::ascii::kChunk;
    unsigned int i = 0;
    while (i < count) {
        if (count - i >= kChunk && !platform::ascii::HasUnitWithin(units + i, 0xD800, 0x800)) {
            i += kChunk;
            continue;
        }
        const unsigned int stop = count - i > kChunk ? i + kChunk : count;
        while (i < stop) {
            const unsigned int step = TakesTwo(units[i]) ? 2 : 1;
            if (step > count - i)
                return i;
            i += step;
        }
    }
    return i;
}

unsigned int WalkBytes(const unsigned char* buffer, unsigned int length, int codePage)
{
    const std::size_t walked = codePage == kUtf8
                                   ? platform::utf8::Walk(buffer, length)
                                   : platform::WalkCharacters(codePage, AsText(buffer), length);
    return static_cast<unsigned int>(walked);
}

// The units of a text in a code page. Empty if there are none or the page is unknown.
UnitVector ToUnits(const unsigned char* buffer, unsigned int length, int codePage)
{
    UnitVector units(static_cast<std::size_t>(platform::MaxUnitCount(codePage, length)));
    if (units.empty())
        return units;
    const int count =
        platform::MultiByteToWideChar(codePage, AsText(buffer), static_cast<int>(length),
                                      units.data(), static_cast<int>(units.size()));
    units.resize(static_cast<std::size_t>(count));
    return units;
}

unsigned char* PutUtf8(unsigned char* at, unsigned int character)
{
    if (character < 0x80) {
        *at++ = static_cast<unsigned char>(character);
        return at;
    }
    if (character < 0x800) {
        *at++ = static_cast<unsigned char>(0xC0 | character >> 6);
    } else {
        if (character < 0x10000) {
            *at++ = static_cast<unsigned char>(0xE0 | character >> 12);
        } else {
            *at++ = static_cast<unsigned char>(0xF0 | character >> 18);
            *at++ = static_cast<unsigned char>(0x80 | (character >> 12 & 0x3F));
        }
        *at++ = static_cast<unsigned char>(0x80 | (character >> 6 & 0x3F));
    }
    *at++ = static_cast<unsigned char>(0x80 | (character & 0x3F));
    return at;
}

} // namespace

// Makes the units the converted bytes of a code page. False, and nothing changes, if the page is
// unknown.
bool FileEncodeConverter::FillFromUnits(const char16_t* units, unsigned int count, int codePage)
{
    int room = platform::MaxByteCount(codePage, count);
    if (room > kMeasureAbove)
        room = platform::WideCharToMultiByte(codePage, units, static_cast<int>(count), nullptr, 0);
    if (room < 1)
        return false;
    m_converted.resize(static_cast<std::size_t>(room));
    const int written =
        platform::WideCharToMultiByte(codePage, units, static_cast<int>(count),
                                      reinterpret_cast<char*>(m_converted.data()), room);
    m_converted.resize(static_cast<std::size_t>(written));
    return true;
}

void FileEncodeConverter::InternalConvertCharToChar(const unsigned char* buffer,
                                                    unsigned int length, unsigned int& remaining,
                                                    int codePageIn, int codePageOut)
{
    const unsigned int consumed = WalkBytes(buffer, length, codePageIn);
    remaining = length - consumed;
    if (consumed == 0) {
        m_converted.clear();
    } else if (codePageIn == codePageOut) {
        m_converted.assign(buffer, buffer + consumed);
    } else {
        const UnitVector units = ToUnits(buffer, consumed, codePageIn);
        if (!units.empty())
            FillFromUnits(units.data(), static_cast<unsigned int>(units.size()), codePageOut);
    }
}

void FileEncodeConverter::InternalConvertCharToWideChar(const unsigned char* buffer,
                                                        unsigned int length,
                                                        unsigned int& remaining, int codePage)
{
    unsigned int consumed = 0;
    std::size_t written = 0;
    if (codePage == kUtf8) {
        // Good text is walked and converted in one pass; the rest is walked from the first fault.
        m_converted.resize(std::size_t{length} * 2);
        const auto good =
            platform::utf8::ToUnitsWhileWellFormed(buffer, length, AsUnits(m_converted));
        const unsigned char* const rest = buffer + good.bytes;
        const std::size_t walked = platform::utf8::Walk(rest, length - good.bytes);
        written =
            good.units + platform::utf8::ToUnits(rest, walked, AsUnits(m_converted) + good.units,
                                                 length - good.units);
        consumed = static_cast<unsigned int>(good.bytes + walked);
    } else {
        consumed = WalkBytes(buffer, length, codePage);
        const int room = platform::MaxUnitCount(codePage, consumed);
        if (consumed > 0 && room < 1) {
            remaining = length - consumed;
            return;
        }
        m_converted.resize(static_cast<std::size_t>(room) * 2);
        written = static_cast<std::size_t>(platform::MultiByteToWideChar(
            codePage, AsText(buffer), static_cast<int>(consumed), AsUnits(m_converted), room));
    }
    m_converted.resize(written * 2);
    remaining = length - consumed;
}

void FileEncodeConverter::InternalConvertCharToUTF32(const unsigned char* buffer,
                                                     unsigned int length, unsigned int& remaining,
                                                     int codePage)
{
    InternalConvertCharToWideChar(buffer, length, remaining, codePage);
    if (m_converted.empty())
        return;
    const ByteVector wide = m_converted;
    unsigned int ignored = 0;
    InternalConvertWideCharToUTF32(wide.data(), static_cast<unsigned int>(wide.size()), ignored);
}

// In an unknown code page nothing is converted, and nothing remains either.
void FileEncodeConverter::InternalConvertWideCharToChar(const unsigned char* buffer,
                                                        unsigned int length,
                                                        unsigned int& remaining, int codePage)
{
    const UnitView units(buffer, length / 2);
    const unsigned int consumed = WalkUnits(units.Get(), length / 2);
    if (consumed == 0) {
        m_converted.clear();
        remaining = length;
    } else if (FillFromUnits(units.Get(), consumed, codePage)) {
        remaining = length - 2 * consumed;
    }
}

void FileEncodeConverter::InternalConvertWideCharToWideChar(const unsigned char* buffer,
                                                            unsigned int length,
                                                            unsigned int& remaining)
{
    const UnitView units(buffer, length / 2);
    const unsigned int consumed = WalkUnits(units.Get(), length / 2);
    m_converted.assign(buffer, buffer + std::size_t{consumed} * 2);
    remaining = length - 2 * consumed;
}

// A high surrogate that ends the input has no other half to look at: it is written as it is.
void FileEncodeConverter::InternalConvertWideCharToUTF32(const unsigned char* buffer,
                                                         unsigned int length,
                                                         unsigned int& remaining)
{
    const unsigned int count = length / 2;
    m_converted.resize(std::size_t{count} * 4);
    unsigned char* out = m_converted.data();
    for (unsigned int i = 0; i < count; ++i) {
        unsigned int word = units::UnitAt(buffer + 2 * std::size_t{i});
        if (units::IsHighSurrogate(word) && i + 1 < count) {
            const unsigned int low = units::UnitAt(buffer + 2 * std::size_t{i + 1});
            if (units::IsLowSurrogate(low)) {
                word = ((word - 0xD7F7) << 10) + low;
                ++i;
            }
        }
        units::PutWord(out, word);
        out += 4;
    }
    m_converted.resize(static_cast<std::size_t>(out - m_converted.data()));
    remaining = length - 2 * count;
}

void FileEncodeConverter::InternalConvertUTF32ToChar(const unsigned char* buffer,
                                                     unsigned int length, unsigned int& remaining,
                                                     int codePage)
{
    if (codePage == kUtf8) {
        InternalConvertUTF32ToUTF8(buffer, length, remaining);
        return;
    }
    InternalConvertUTF32ToWideChar(buffer, length, remaining);
    const ByteVector wide = m_converted;
    // What this step leaves is lost: a unit that takes two, at the end of the block.
    unsigned int ignored = 0;
    InternalConvertWideCharToChar(wide.data(), static_cast<unsigned int>(wide.size()), ignored,
                                  codePage);
}

// Writes whatever a word holds up to 1FFFFF, surrogates and values above 10FFFF included.
void FileEncodeConverter::InternalConvertUTF32ToUTF8(const unsigned char* buffer,
                                                     unsigned int length, unsigned int& remaining)
{
    remaining = length % 4;
    m_converted.resize(length - remaining);
    unsigned char* out = m_converted.data();
    for (unsigned int i = 0; i < length - remaining; i += 4) {
        const unsigned int word = units::WordAt(buffer + i);
        out = PutUtf8(out, word < 0x200000 ? word : kReplacement);
    }
    m_converted.resize(static_cast<std::size_t>(out - m_converted.data()));
}

void FileEncodeConverter::InternalConvertUTF32ToWideChar(const unsigned char* buffer,
                                                         unsigned int length,
                                                         unsigned int& remaining)
{
    remaining = length % 4;
    m_converted.resize(length - remaining);
    unsigned char* out = m_converted.data();
    for (unsigned int i = 0; i < length - remaining; i += 4) {
        unsigned int word = units::WordAt(buffer + i);
        if (word > 0x10FFFF)
            word = kReplacement;
        if (word >= 0x10000) {
            units::PutUnit(out, static_cast<char16_t>(((word - 0x10000) >> 10) + 0xD800));
            out += 2;
            word = (word & 0x3FF) + 0xDC00;
        }
        units::PutUnit(out, static_cast<char16_t>(word));
        out += 2;
    }
    m_converted.resize(static_cast<std::size_t>(out - m_converted.data()));
}

void FileEncodeConverter::InternalConvertUTF32ToUTF32(const unsigned char* buffer,
                                                      unsigned int length, unsigned int& remaining)
{
    remaining = length % 4;
    m_converted.assign(buffer, buffer + (length - remaining));
}

void FileEncodeConverter::InternalSwapBuffer(unsigned char* buffer, unsigned int length)
{
    for (unsigned int i = 0; i < length / 2; ++i) {
        unsigned char* const at = buffer + 2 * std::size_t{i};
        units::PutUnit(at, units::Swap16(units::UnitAt(at)));
    }
}

void FileEncodeConverter::InternalSwapUTF32CharBuffer(unsigned char* buffer, unsigned int length)
{
    for (unsigned int i = 0; i < length / 4; ++i) {
        unsigned char* const at = buffer + 4 * std::size_t{i};
        units::PutWord(at, units::Swap32(units::WordAt(at)));
    }
}
