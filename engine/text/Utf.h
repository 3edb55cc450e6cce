// SPDX-License-Identifier: GPL-3.0-or-later
// Text as it crosses the channel: UTF-16 of the caller's to the UTF-8 that the stock engine holds.
// A lone surrogate enters as U+FFFD, one unit for one unit, so positions stay right.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace engine {

// UTF-8 made of a text of the caller's, terminated. Short texts take no heap.
class Utf8Text
{
public:
    Utf8Text() = default;
    explicit Utf8Text(std::u16string_view text) { Assign(text); }
    Utf8Text(const Utf8Text&) = delete;
    Utf8Text& operator=(const Utf8Text&) = delete;

    void Assign(std::u16string_view text);

    const char* Data() const { return m_data; }
    std::size_t Size() const { return m_size; } // bytes, without the terminator
    std::string_view View() const { return {m_data, m_size}; }

private:
    static constexpr std::size_t kInlineBytes = 256;

    char m_inline[kInlineBytes];
    std::unique_ptr<char[]> m_heap;
    const char* m_data = "";
    std::size_t m_size = 0;
};

// UTF-16 made of a text of the stock engine's, terminated. Its storage stays for the next one.
class Utf16Text
{
public:
    void Assign(std::string_view text);

    const char16_t* Data() const { return m_units.empty() ? u"" : m_units.data(); }
    std::size_t Size() const { return m_size; } // units, without the terminator

    // Whether this is ASCII without control characters. A text beyond sixteen bytes never says so.
    bool IsPlain() const { return m_isPlain; }

private:
    std::vector<char16_t> m_units;
    std::size_t m_size = 0;
    bool m_isPlain = true;
};

bool HasSurrogates(std::u16string_view text);

// Up to the terminator; empty for null.
std::u16string_view TerminatedText(const char16_t* text);

// How many units begin in the bytes of well-formed text: a character that is cut counts where its
// first byte stands.
long CountUnits(std::string_view text);

// Writes the text as UTF-16, in no more units than the capacity, which holds them all. Gives the
// units written.
std::size_t ToUtf16(std::string_view text, char16_t* buffer, std::size_t capacity);
std::u16string ToUtf16(std::string_view text);

} // namespace engine
