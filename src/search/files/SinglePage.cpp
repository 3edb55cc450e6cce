// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/files/SinglePage.h"

#include "platform/text/AsciiRun.h"
#include "platform/text/CodePage.h"
#include "platform/text/Utf8.h"

#include <algorithm>
#include <cstring>

SinglePage::SinglePage(int codePage)
{
    constexpr int kUtf8 = 65001;
    std::array<char, 256> all{};
    for (std::size_t i = 0; i < all.size(); ++i)
        all[i] = static_cast<char>(i);
    constexpr int kCount = static_cast<int>(all.size());
    m_isOne = (codePage != 0 ? codePage : platform::GetSystemCodePage()) != kUtf8 &&
              platform::MultiByteToWideChar(codePage, all.data(), kCount, m_units.data(), kCount) ==
                  kCount;
    for (std::size_t i = 0; m_isOne && i < all.size(); ++i) {
        Character& character = m_characters[i];
        character.size = static_cast<unsigned char>(platform::utf8::ToBytes(
            &m_units[i], 1, reinterpret_cast<unsigned char*>(character.bytes.data())));
        m_isOne = i >= 0x80 || m_units[i] == i;
    }
}

bool SinglePage::Has(char16_t unit) const
{
    return std::find(m_units.begin(), m_units.end(), unit) != m_units.end();
}

std::size_t SinglePage::ToUtf8(const char* bytes, std::size_t byteCount, char* text) const
{
    constexpr std::size_t kChunk = platform::ascii::kChunk;
    char* out = text;
    for (std::size_t at = 0; at < byteCount;) {
        const bool isChunk = byteCount - at >= kChunk;
        if (isChunk &&
            platform::ascii::IsChunk(reinterpret_cast<const unsigned char*>(bytes + at))) {
            std::memcpy(out, bytes + at, kChunk);
            out += kChunk;
            at += kChunk;
            continue;
        }
        for (const std::size_t end = isChunk ? at + kChunk : byteCount; at < end; ++at) {
            const Character& character = m_characters[static_cast<unsigned char>(bytes[at])];
            std::memcpy(out, character.bytes.data(), character.bytes.size());
            out += character.size;
        }
    }
    return static_cast<std::size_t>(out - text);
}
