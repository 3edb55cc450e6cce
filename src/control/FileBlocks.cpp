// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/FileBlocks.h"

#include "platform/text/Utf8.h"

#include <cstring>

namespace {

constexpr char16_t kFirstPrivate = 0xE000;

bool IsHighHalf(char16_t unit)
{
    return (unit & 0xFC00) == 0xD800;
}

bool IsLowHalf(char16_t unit)
{
    return (unit & 0xFC00) == 0xDC00;
}

} // namespace

bool FileBlocks::Start(FileEncodeConverter::encodingType requested, bool& hadMark)
{
    const unsigned int count = Read(0);
    m_length = count;
    m_converter.SetOutputType(FileEncodeConverter::encUTF16LE);
    const bool known =
        m_converter.Convert(requested, m_buffer.data(), m_length, m_remaining, hadMark);
    m_converted = count - m_remaining;
    // The converter has taken the mark off the length and not off the buffer.
    if (m_rule.skipsMark)
        m_start = count - m_length;
    return known;
}

// A sixty-fourth more if not all is ASCII: to fall short by a byte costs as much as the load.
long long FileBlocks::EstimatedUtf8(long long fileSize)
{
    unsigned char* data = nullptr;
    unsigned int size = 0;
    if (InputType() == FileEncodeConverter::encUTF8 || m_converted == 0 ||
        !m_converter.GetConverted(&data, size))
        return fileSize;
    const std::size_t units = size / 2;
    const auto bytes = static_cast<long long>(
        platform::utf8::ByteCount(reinterpret_cast<const char16_t*>(data), units));
    const long long whole = fileSize * bytes / m_converted;
    return static_cast<std::size_t>(bytes) == units ? whole : whole + whole / 64;
}

bool FileBlocks::Text(const char16_t*& text, long& length)
{
    unsigned char* data = nullptr;
    unsigned int size = 0;
    const bool more = m_converter.GetConverted(&data, size);
    text = reinterpret_cast<const char16_t*>(data);
    length = static_cast<long>(size / 2);
    return m_rule.keepsPairs ? KeepPairs(more, text, length) : more;
}

void FileBlocks::Advance()
{
    const unsigned int tail = MoveTailToFront();
    m_remaining = tail;
    const unsigned int count = Read(tail);
    m_length = m_rule.convertsTail ? tail + count : count;
    m_converter.Convert(m_buffer.data(), m_length, m_remaining);
    m_converted = m_length - (m_length > 0 ? m_remaining : 0);
    if (!m_rule.convertsTail)
        m_length += m_remaining;
}

// Without the tail being counted, the place where the rest should stand may lie behind the buffer.
// Then everything that the conversion did not take is the tail, so that no character is lost there.
unsigned int FileBlocks::MoveTailToFront()
{
    unsigned int from = m_start + m_length - m_remaining;
    unsigned int count = m_remaining;
    if (from + count > kBlockSize) {
        from = m_converted;
        count = m_filled - m_converted;
    }
    std::memmove(m_buffer.data(), m_buffer.data() + from, count);
    m_start = 0;
    return count;
}

// A read that fails counts as the end of the file, and as a rest.
unsigned int FileBlocks::Read(unsigned int from)
{
    const std::size_t count = std::fread(m_buffer.data() + from, 1, kBlockSize - from, m_file);
    m_readFailed = std::ferror(m_file) != 0;
    m_filled = from + static_cast<unsigned int>(count);
    return static_cast<unsigned int>(count);
}

// The converter takes U+E000 for the first half of a pair. So a true pair may be divided behind it
// and arrive in two blocks, and at the file's end the character itself is left over.
bool FileBlocks::KeepPairs(bool more, const char16_t*& text, long& length)
{
    if (!more) {
        m_joined.clear();
        if (m_highHalf)
            m_joined.push_back(m_highHalf);
        m_highHalf = 0;
        const bool taken = TakeLastUnit();
        text = m_joined.data();
        length = static_cast<long>(m_joined.size());
        return taken || length > 0;
    }
    if (m_highHalf) {
        m_joined.assign(1, m_highHalf);
        m_joined.append(text, static_cast<std::size_t>(length));
        text = m_joined.data();
        ++length;
        m_highHalf = 0;
    }
    if (length > 0 && IsHighHalf(text[length - 1]))
        m_highHalf = text[--length];
    return true;
}

// Appends the unit that is left over in a UTF-16 file, if it is a character by itself or completes
// the pair before it.
bool FileBlocks::TakeLastUnit()
{
    const FileEncodeConverter::encodingType input = InputType();
    const bool bigEndian = input == FileEncodeConverter::encUTF16BE;
    if ((input != FileEncodeConverter::encUTF16LE && !bigEndian) || m_length < 2 || m_length > 3)
        return false;
    const unsigned int first = m_buffer[m_start + (bigEndian ? 1 : 0)];
    const unsigned int second = m_buffer[m_start + (bigEndian ? 0 : 1)];
    const auto unit = static_cast<char16_t>(first | (second << 8));
    if (unit != kFirstPrivate && !(IsLowHalf(unit) && !m_joined.empty()))
        return false;
    m_joined.push_back(unit);
    m_start += 2;
    m_length -= 2;
    m_remaining = m_length;
    return true;
}
