// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/text/Utf.h"

#include "platform/text/AsciiRun.h"
#include "platform/text/Utf8.h"

#include <algorithm>

namespace engine {
namespace {

const unsigned char* BytesOf(std::string_view text)
{
    return reinterpret_cast<const unsigned char*>(text.data());
}

// Most changes of a text are a plain word. False if this is none: then the units are of no use.
bool WidenPlainWord(const unsigned char* bytes, std::size_t count, char16_t* units)
{
    using namespace platform::ascii;
    if (count > kChunk)
        return false;
    if (count >= kHalfChunk) { // the halves overlap
        const std::size_t second = count - kHalfChunk;
        return WidenPlainHalf(bytes, units) && WidenPlainHalf(bytes + second, units + second);
    }
    bool plain = true;
    for (std::size_t i = 0; i < count; ++i) {
        plain &= bytes[i] >= ' ' && bytes[i] < 0x80;
        units[i] = bytes[i];
    }
    return plain;
}

} // namespace

void Utf8Text::Assign(std::u16string_view text)
{
    constexpr std::size_t kBytesPerUnit = 3; // at most; a pair takes four for two
    constexpr std::size_t kMeasureFrom =
        64 * 1024; // so long a text is measured rather than tripled
    const std::size_t room =
        (text.size() < kMeasureFrom ? text.size() * kBytesPerUnit
                                    : platform::utf8::ByteCount(text.data(), text.size())) +
        1;
    char* out = m_inline;
    if (room > kInlineBytes) {
        m_heap = std::make_unique_for_overwrite<char[]>(room);
        out = m_heap.get();
    }
    m_size =
        platform::utf8::ToBytes(text.data(), text.size(), reinterpret_cast<unsigned char*>(out));
    out[m_size] = '\0';
    m_data = out;
}

bool HasSurrogates(std::u16string_view text)
{
    using namespace platform::ascii;
    std::size_t at = 0;
    for (; at + kChunk <= text.size(); at += kChunk) {
        if (HasUnitWithin(text.data() + at, 0xD800, 0x7FF))
            return true;
    }
    return std::any_of(text.begin() + static_cast<std::ptrdiff_t>(at), text.end(),
                       [](char16_t unit) { return (unit & 0xF800) == 0xD800; });
}

std::u16string_view TerminatedText(const char16_t* text)
{
    return text ? std::u16string_view(text) : std::u16string_view();
}

// One for each byte that is not a continuation, and one more for the first byte of a pair.
long CountUnits(std::string_view text)
{
    constexpr std::size_t kBlock =
        128; // its counts fit a byte, sixteen of which are added at a time
    long units = 0;
    for (std::size_t at = 0; at < text.size(); at += kBlock) {
        const std::size_t end = std::min(text.size(), at + kBlock);
        unsigned char continuations = 0;
        unsigned char pairs = 0;
        for (std::size_t i = at; i < end; ++i) {
            continuations += static_cast<signed char>(text[i]) < -0x40;
            pairs += static_cast<unsigned char>(text[i]) >= 0xF0;
        }
        units += static_cast<long>(end - at) - continuations + pairs;
    }
    return units;
}

std::size_t ToUtf16(std::string_view text, char16_t* buffer, std::size_t capacity)
{
    return platform::utf8::ToUnits(BytesOf(text), text.size(), buffer, capacity);
}

std::u16string ToUtf16(std::string_view text)
{
    std::u16string result(text.size(), u'\0');
    result.resize(ToUtf16(text, result.data(), result.size()));
    return result;
}

void Utf16Text::Assign(std::string_view text)
{
    const std::size_t bytes = text.size();
    if (m_units.size() <= bytes)
        m_units.resize(bytes + 1);
    char16_t* units = m_units.data();
    m_isPlain = WidenPlainWord(BytesOf(text), bytes, units);
    m_size = m_isPlain ? bytes : ToUtf16(text, units, bytes);
    units[m_size] = u'\0';
}

} // namespace engine
