// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/UnreadBytes.h"

#include "encoding/FileEncodeConverter.h"
#include "platform/text/CodePage.h"
#include "platform/text/Utf8.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <vector>

namespace {

constexpr char16_t kReplacement = 0xFFFD;
constexpr std::size_t kBlock = 1 << 20; // bytes

// The file block after block; what a block leaves comes in front of the next.
class Blocks
{
public:
    explicit Blocks(QFile& file) : m_file(file), m_bytes(kBlock) {}

    // False behind the last one.
    bool Next()
    {
        const auto left = static_cast<std::ptrdiff_t>(m_size - m_taken);
        std::copy_n(m_bytes.begin() + static_cast<std::ptrdiff_t>(m_taken), left, m_bytes.begin());
        m_start += static_cast<long long>(m_taken);
        m_taken = 0;
        m_size = static_cast<std::size_t>(left);
        const qint64 count = m_file.read(reinterpret_cast<char*>(m_bytes.data()) + left,
                                         static_cast<qint64>(kBlock) - left);
        m_size += static_cast<std::size_t>(std::max<qint64>(count, 0));
        m_isLast = count <= 0;
        return m_size > 0;
    }

    const unsigned char* At() const { return m_bytes.data() + m_taken; }
    std::size_t Left() const { return m_size - m_taken; }
    bool IsLast() const { return m_isLast; } // nothing follows what is left
    void Take(std::size_t count) { m_taken += count; }

    void TakeUnread(std::size_t count, UnreadBytes& unread)
    {
        if (unread.count == 0)
            unread.first = m_start + static_cast<long long>(m_taken);
        unread.count += static_cast<long long>(count);
        Take(count);
    }

private:
    QFile& m_file;
    std::vector<unsigned char> m_bytes;
    std::size_t m_size = 0;
    std::size_t m_taken = 0;
    long long m_start = 0; // of the block in the file
    bool m_isLast = false;
};

// How many bytes become one U+FFFD, at a place that is no character.
std::size_t MaximalPart(const unsigned char* at, std::size_t left)
{
    std::size_t part = std::min<std::size_t>(left, 3);
    while (part > 1 && platform::utf8::UnitCount(at, part) != 1)
        --part;
    return part;
}

UnreadBytes InUtf8(Blocks& blocks)
{
    constexpr std::size_t kLongest = 4; // bytes of a character
    UnreadBytes unread;
    std::vector<char16_t> units(kBlock);
    while (blocks.Next()) {
        while (blocks.Left() > 0) {
            blocks.Take(
                platform::utf8::ToUnitsWhileWellFormed(blocks.At(), blocks.Left(), units.data())
                    .bytes);
            if (blocks.Left() == 0 || (blocks.Left() < kLongest && !blocks.IsLast()))
                break;
            blocks.TakeUnread(MaximalPart(blocks.At(), blocks.Left()), unread);
        }
    }
    return unread;
}

char32_t NumberAt(const unsigned char* at, std::size_t size, bool isBigEndian)
{
    char32_t number = 0;
    for (std::size_t i = 0; i < size; ++i)
        number = number << 8 | at[isBigEndian ? i : size - 1 - i];
    return number;
}

bool IsHalf(char32_t unit)
{
    return unit >= 0xD800 && unit < 0xE000;
}

UnreadBytes InUtf16(Blocks& blocks, bool isBigEndian)
{
    UnreadBytes unread;
    while (blocks.Next()) {
        while (blocks.Left() >= 4 || (blocks.IsLast() && blocks.Left() >= 2)) {
            const char32_t unit = NumberAt(blocks.At(), 2, isBigEndian);
            const char32_t next =
                blocks.Left() >= 4 ? NumberAt(blocks.At() + 2, 2, isBigEndian) : 0;
            if (!IsHalf(unit))
                blocks.Take(2);
            else if (unit < 0xDC00 && IsHalf(next) && next >= 0xDC00)
                blocks.Take(4);
            else
                blocks.TakeUnread(2, unread);
        }
        if (blocks.IsLast())
            break; // half a unit
    }
    return unread;
}

UnreadBytes InUtf32(Blocks& blocks, bool isBigEndian)
{
    UnreadBytes unread;
    while (blocks.Next()) {
        while (blocks.Left() >= 4) {
            const char32_t word = NumberAt(blocks.At(), 4, isBigEndian);
            if (IsHalf(word) || word > 0x10FFFF)
                blocks.TakeUnread(4, unread);
            else
                blocks.Take(4);
        }
        if (blocks.IsLast())
            break;
    }
    return unread;
}

bool IsUnknown(int codePage, const char* character, std::size_t size)
{
    std::array<char16_t, 4> units{};
    const int count = platform::MultiByteToWideChar(codePage, character, static_cast<int>(size),
                                                    units.data(), static_cast<int>(units.size()));
    return std::find(units.begin(), units.begin() + count, kReplacement) != units.begin() + count;
}

// Whether each byte above ASCII is a character by itself, and one that the page has.
bool HasAllBytes(int codePage)
{
    for (int byte = 0x80; byte <= 0xFF; ++byte) {
        const std::array<char, 2> text = {static_cast<char>(byte), 'a'};
        if (platform::CharNextExA(codePage, text.data(), text.data() + 2) != text.data() + 1 ||
            IsUnknown(codePage, text.data(), 1))
            return false;
    }
    return true;
}

UnreadBytes InCodePage(Blocks& blocks, int codePage)
{
    UnreadBytes unread;
    if (HasAllBytes(codePage))
        return unread;
    while (blocks.Next()) {
        while (blocks.Left() > 1 || (blocks.IsLast() && blocks.Left() > 0)) {
            const char* const at = reinterpret_cast<const char*>(blocks.At());
            const auto size = static_cast<std::size_t>(
                platform::CharNextExA(codePage, at, at + blocks.Left()) - at);
            if (size == 0)
                return unread;
            if (*blocks.At() >= 0x80 && IsUnknown(codePage, at, size))
                blocks.TakeUnread(size, unread);
            else
                blocks.Take(size);
        }
        if (blocks.IsLast())
            break;
    }
    return unread;
}

} // namespace

UnreadBytes FindUnreadBytes(const QString& path, int encoding, int codePage)
{
    QFile file(path);
    if (!file.open(QFile::ReadOnly | QFile::Unbuffered))
        return {};
    Blocks blocks(file);
    switch (encoding) {
    case FileEncodeConverter::encUTF8:
    case FileEncodeConverter::encUTF8Cookie:
        return InUtf8(blocks);
    case FileEncodeConverter::encUTF16LE:
    case FileEncodeConverter::encUTF16BE:
        return InUtf16(blocks, encoding == FileEncodeConverter::encUTF16BE);
    case FileEncodeConverter::encUTF32LE:
    case FileEncodeConverter::encUTF32BE:
        return InUtf32(blocks, encoding == FileEncodeConverter::encUTF32BE);
    default:
        return InCodePage(blocks, codePage);
    }
}
