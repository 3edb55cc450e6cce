// SPDX-License-Identifier: GPL-3.0-or-later
// SinglePage: a code page as UTF-8, if each of its characters has one byte.
#pragma once

#include <array>
#include <cstddef>

class SinglePage
{
public:
    static constexpr std::size_t kMostBytes = 3; // of a character as UTF-8

    explicit SinglePage(int codePage); // 0: the system's
    bool IsOne() const { return m_isOne; }
    bool Has(char16_t unit) const;

    // The page has to be one. Gives the bytes written; there has to be room for the most and one
    // more.
    std::size_t ToUtf8(const char* bytes, std::size_t byteCount, char* text) const;

private:
    struct Character
    {
        std::array<char, 4> bytes{};
        unsigned char size = 0;
    };

    bool m_isOne = false;
    std::array<char16_t, 256> m_units{};
    std::array<Character, 256> m_characters;
};
