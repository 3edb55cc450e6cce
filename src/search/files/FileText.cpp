// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/files/FileText.h"

#include "platform/text/Utf8.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using Encoding = FileEncodeConverter;

const unsigned char* AsBytes(const char* text)
{
    return reinterpret_cast<const unsigned char*>(text);
}

bool IsAsciiText(const char* text, std::size_t size)
{
    unsigned char all = 0;
    for (std::size_t at = 0; at < size; ++at)
        all |= static_cast<unsigned char>(text[at]);
    return all < 0x80;
}

// The bytes at the end that are the beginning of a character.
std::size_t CutCharacter(const char* text, std::size_t size)
{
    for (std::size_t back = 1; back <= std::min<std::size_t>(size, 3); ++back) {
        const auto byte = static_cast<unsigned char>(text[size - back]);
        if ((byte & 0xC0) == 0x80)
            continue;
        return platform::utf8::LengthByLead(byte) > back ? back : 0;
    }
    return 0;
}

// Units, as bytes; no text has the character 0.
bool HasZero(const unsigned char* units, unsigned int size)
{
    for (unsigned int at = 0; at + 1 < size; at += 2) {
        if (units[at] == 0 && units[at + 1] == 0)
            return true;
    }
    return false;
}

// The bytes behind the lead that a character of so many bytes may have first.
bool MayFollow(unsigned char lead, unsigned char second)
{
    const unsigned char least = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    const unsigned char most = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    return second >= least && second <= most;
}

// Without a conversion, which would cost as much as the search.
bool IsWellFormed(const char* text, std::size_t size)
{
    constexpr std::uint64_t kHighBits = 0x8080808080808080;
    const unsigned char* bytes = AsBytes(text);
    for (std::size_t at = 0; at < size;) {
        std::uint64_t eight = 0;
        if (size - at >= sizeof eight) {
            std::memcpy(&eight, bytes + at, sizeof eight);
            if ((eight & kHighBits) == 0) {
                at += sizeof eight;
                continue;
            }
        }
        const unsigned char lead = bytes[at];
        if (lead < 0x80) {
            ++at;
            continue;
        }
        const std::size_t length = lead < 0xC2   ? 0
                                   : lead < 0xE0 ? 2
                                   : lead < 0xF0 ? 3
                                   : lead < 0xF5 ? 4
                                                 : 0;
        if (length == 0 || size - at < length || !MayFollow(lead, bytes[at + 1]))
            return false;
        for (std::size_t i = 2; i < length; ++i) {
            if ((bytes[at + i] & 0xC0) != 0x80)
                return false;
        }
        at += length;
    }
    return true;
}

} // namespace

FileText::Kind FileText::Open(const std::string& path, bool converts)
{
    const int handle = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    struct stat status = {};
    if (handle == -1)
        return stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode) ? Kind::NotAFile
                                                                            : Kind::Unreadable;
    if (fstat(handle, &status) != 0 || !S_ISREG(status.st_mode)) {
        close(handle);
        return Kind::NotAFile;
    }
    m_size = status.st_size;
    m_file.reset(fdopen(handle, "rb"));
    if (!m_file) {
        close(handle);
        return Kind::Unreadable;
    }
    std::setvbuf(m_file.get(), nullptr, _IONBF, 0);

    std::array<unsigned char, FileBlocks::kBlockSize> head{};
    const std::size_t count = std::fread(head.data(), 1, head.size(), m_file.get());
    if (std::ferror(m_file.get()))
        return Kind::Unreadable;
    const bool hasZero = std::memchr(head.data(), 0, count) != nullptr;
    auto length = static_cast<unsigned int>(count);
    unsigned int remaining = 0;
    bool hadMark = false;
    Encoding converter;
    converter.SetOutputType(Encoding::encUTF16LE);
    converter.Convert(Encoding::encUnknown, head.data(), length, remaining, hadMark);
    const Encoding::encodingType type = converter.GetInputType();
    m_isUtf8 = type == Encoding::encUTF8 || type == Encoding::encUTF8Cookie;
    const bool isBytes = m_isUtf8 || type == Encoding::encANSI;
    unsigned char* units = nullptr;
    unsigned int size = 0;
    converter.GetConverted(&units, size);
    if (isBytes ? hasZero : HasZero(units, size))
        return Kind::Binary;
    std::fseek(m_file.get(), 0, SEEK_SET);
    if (!isBytes || converts) {
        m_blocks = std::make_unique<FileBlocks>(m_file.get(), kCarefulFiles.load);
        bool mark = false;
        m_blocks->Start(Encoding::encUnknown, mark);
        m_bytesRead = static_cast<long long>(count);
    } else if (hadMark) {
        std::fseek(m_file.get(), static_cast<long>(count) - static_cast<long>(length), SEEK_SET);
        m_bytesRead = static_cast<long long>(count) - static_cast<long long>(length);
    }
    return Kind::Text;
}

bool FileText::Read(std::string& text, std::size_t bytes)
{
    if (m_atEnd || m_failed || m_needsConversion)
        return false;
    return m_blocks ? ReadConverted(text, bytes) : ReadRaw(text, bytes);
}

// A character that the piece ends within waits for the next one.
bool FileText::ReadRaw(std::string& text, std::size_t bytes)
{
    const std::size_t old = text.size();
    text += m_tail;
    const std::size_t read = text.size();
    // No more room than the file needs, and a byte that shows its end; all of it in one that grows.
    const auto left = static_cast<std::size_t>(std::max(m_size - m_bytesRead, 0LL));
    const std::size_t wanted = left > 0 ? std::min(bytes, left + 1) : bytes;
    text.resize(read + wanted);
    const std::size_t count = std::fread(text.data() + read, 1, wanted, m_file.get());
    text.resize(read + count);
    m_bytesRead += static_cast<long long>(count);
    m_atEnd = count < wanted;
    m_failed = std::ferror(m_file.get()) != 0 || (m_atEnd && m_bytesRead < m_size);
    const std::size_t cut =
        m_isUtf8 && !m_atEnd ? CutCharacter(text.data() + old, text.size() - old) : 0;
    m_tail = text.substr(text.size() - cut);
    text.resize(text.size() - cut);
    const char* start = text.data() + old;
    const std::size_t size = text.size() - old;
    m_needsConversion = !(m_isUtf8 ? IsWellFormed(start, size) : IsAsciiText(start, size));
    return !m_failed && !m_needsConversion && !m_atEnd;
}

bool FileText::ReadConverted(std::string& text, std::size_t bytes)
{
    const std::size_t old = text.size();
    while (text.size() - old < bytes) {
        const char16_t* units = nullptr;
        long length = 0;
        if (!m_blocks->Text(units, length)) {
            m_atEnd = true;
            break;
        }
        const std::size_t at = text.size();
        const auto count = static_cast<std::size_t>(length);
        text.resize(at + count * 3);
        text.resize(at + platform::utf8::ToBytes(
                             units, count, reinterpret_cast<unsigned char*>(text.data() + at)));
        m_blocks->Advance();
    }
    if (const long at = std::ftell(m_file.get()); at > 0)
        m_bytesRead = at;
    m_failed = m_failed || (m_atEnd && m_bytesRead < m_size);
    return !m_atEnd;
}
