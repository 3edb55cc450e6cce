// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/files/FileText.h"

#include "platform/text/Utf8.h"
#include "platform/text/Utf8Shape.h"
#include "platform/text/VectorState.h"
#include "search/files/Screen.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using Encoding = FileEncodeConverter;

constexpr std::size_t kScreened = 256 * 1024; // bytes at a time

// What the first block is, without converting it.
class Detector final : public FileEncodeConverter
{
public:
    Detector(unsigned char* head, unsigned int length) : m_length(length)
    {
        DetermineEncoding(head, length, m_hasMark);
        m_markSize = m_length - length;
    }

    bool IsUtf8() const { return GetInputType() == encUTF8 || GetInputType() == encUTF8Cookie; }
    bool IsBytes() const { return IsUtf8() || GetInputType() == encANSI; }
    bool IsUtf32() const { return GetInputType() == encUTF32LE || GetInputType() == encUTF32BE; }
    unsigned int MarkSize() const { return m_markSize; }

private:
    unsigned int m_length;
    unsigned int m_markSize = 0;
    bool m_hasMark = false;
};

const unsigned char* AsBytes(const char* text)
{
    return reinterpret_cast<const unsigned char*>(text);
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

// No text has the character 0, whose size is that of a unit or a word.
bool HasZero(const unsigned char* bytes, std::size_t count, std::size_t size)
{
    for (std::size_t at = 0; at + size <= count; at += size) {
        if (std::all_of(bytes + at, bytes + at + size, [](unsigned char b) { return b == 0; }))
            return true;
    }
    return false;
}

} // namespace

void FileText::Close()
{
    if (m_file)
        m_file.reset();
    else if (m_handle != -1)
        close(m_handle);
    m_handle = -1;
    m_blocks.reset();
}

FileText::Kind FileText::Open(const std::string& path, bool converts, std::size_t bytes)
{
    Close();
    m_tail.clear();
    m_isBegun = m_needsConversion = m_failed = m_atEnd = false;
    m_bytesRead = 0;
    m_handle = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    struct stat status = {};
    if (m_handle == -1)
        return stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode) ? Kind::NotAFile
                                                                            : Kind::Unreadable;
    if (fstat(m_handle, &status) != 0 || !S_ISREG(status.st_mode))
        return Kind::NotAFile;
    m_size = status.st_size;

    // A byte more than the file has shows its end.
    const auto whole = static_cast<std::size_t>(m_size) + 1;
    m_first.clear();
    if (!ReadInto(m_first, std::clamp<std::size_t>(whole, FileBlocks::kBlockSize, bytes)))
        return Kind::Unreadable;
    auto* const head = reinterpret_cast<unsigned char*>(m_first.data());
    const auto count =
        static_cast<unsigned int>(std::min<std::size_t>(m_first.size(), FileBlocks::kBlockSize));
    const Detector found(head, count);
    m_isUtf8 = found.IsUtf8();
    const unsigned int mark = found.MarkSize();
    const std::size_t character = found.IsBytes() ? 1 : found.IsUtf32() ? 4 : 2;
    if (character == 1 ? std::memchr(head, 0, count) != nullptr
                       : HasZero(head + mark, count - mark, character))
        return Kind::Binary;
    if (!found.IsBytes() || converts)
        return BeginConversion() ? Kind::Text : Kind::Unreadable;
    m_first.drop(mark);
    return Kind::Text;
}

// Appends what the file has next, up to so many bytes. False if it cannot be read.
bool FileText::ReadInto(ByteBuffer& bytes, std::size_t wanted)
{
    platform::ClearUpperHalves();
    const std::size_t old = bytes.size();
    bytes.resize(old + wanted);
    std::size_t count = 0;
    ssize_t got = 1;
    while (count < wanted && got > 0) {
        got = pread(m_handle, bytes.data() + old + count, wanted - count,
                    static_cast<off_t>(m_bytesRead));
        if (got > 0) {
            count += static_cast<std::size_t>(got);
            m_bytesRead += got;
        } else if (got == -1 && errno == EINTR) {
            got = 1;
        }
    }
    bytes.resize(old + count);
    m_atEnd = count < wanted;
    m_failed |= got == -1;
    return got != -1;
}

bool FileText::BeginConversion()
{
    m_file.reset(fdopen(m_handle, "rb"));
    if (!m_file)
        return false;
    std::setvbuf(m_file.get(), nullptr, _IONBF, 0);
    m_atEnd = m_failed = false;
    m_blocks = std::make_unique<FileBlocks>(m_file.get(), kCarefulFiles.load, m_codePage);
    bool mark = false;
    m_blocks->Start(Encoding::encUnknown, mark);
    return true;
}

bool FileText::MayMatch(const Screen& screen, const std::atomic<bool>& stop)
{
    if (m_blocks || screen.Admits(m_first, m_isUtf8))
        return true;
    const long long begun = m_bytesRead;
    m_raw.assign(m_first);
    while (!m_atEnd && !m_failed) {
        m_raw.drop(m_raw.size() - std::min(screen.Overlap(), m_raw.size()));
        ReadInto(m_raw, kScreened);
        if (stop.load(std::memory_order_relaxed) || screen.Admits(m_raw, m_isUtf8)) {
            m_bytesRead = begun;
            m_atEnd = m_failed = false;
            return true;
        }
    }
    m_failed |= HasShrunk();
    Close();
    return false;
}

bool FileText::Read(ByteBuffer& text, std::size_t bytes)
{
    if (m_failed || m_needsConversion || (m_atEnd && m_isBegun))
        return false;
    return m_blocks ? ReadConverted(text, bytes) : ReadRaw(text, bytes);
}

// A character that the piece ends within waits for the next one.
bool FileText::ReadRaw(ByteBuffer& text, std::size_t bytes)
{
    if (m_isBegun) {
        m_raw.assign(m_tail);
        const auto left = static_cast<std::size_t>(std::max(m_size - m_bytesRead, 0LL));
        ReadInto(m_raw, left > 0 ? std::min(bytes, left + 1) : bytes);
    } else {
        m_raw.swap(m_first);
        m_isBegun = true;
    }
    m_failed |= HasShrunk();
    const std::string_view raw = m_raw;
    const std::size_t cut = m_isUtf8 && !m_atEnd ? CutCharacter(raw.data(), raw.size()) : 0;
    m_tail.assign(raw.substr(raw.size() - cut));
    m_raw.resize(raw.size() - cut);
    m_needsConversion = !AppendRaw(text);
    return !m_failed && !m_needsConversion && !m_atEnd;
}

// False if what was read is not what the file seemed to be. The conversion ends at a zero.
bool FileText::AppendRaw(ByteBuffer& text)
{
    const unsigned char* const raw = AsBytes(m_raw.data());
    const std::size_t size = m_raw.size();
    const bool isAsItIs =
        m_isUtf8 ? platform::utf8::IsWellFormed(raw, size) : platform::utf8::IsAscii(raw, size);
    if (!isAsItIs) {
        if (m_isUtf8 || !m_page.IsOne() || std::memchr(raw, 0, size))
            return false;
        AppendOfPage(text);
    } else if (text.empty()) {
        text.swap(m_raw);
    } else {
        text.append(m_raw);
    }
    return true;
}

// In steps, so that the room for the most that may come of each is not kept for all.
void FileText::AppendOfPage(ByteBuffer& text) const
{
    constexpr std::size_t kStep = 64 * 1024;
    const std::string_view raw = m_raw;
    for (std::size_t at = 0; at < raw.size(); at += kStep) {
        const std::string_view step = raw.substr(at, kStep);
        const std::size_t old = text.size();
        text.resize(old + step.size() * SinglePage::kMostBytes + 1);
        text.resize(old + m_page.ToUtf8(step.data(), step.size(), text.data() + old));
    }
}

bool FileText::ReadConverted(ByteBuffer& text, std::size_t bytes)
{
    m_isBegun = true;
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
