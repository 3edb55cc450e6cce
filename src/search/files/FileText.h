// SPDX-License-Identifier: GPL-3.0-or-later
// FileText: a file as UTF-8, piece after piece, with the encoding that an editor would detect.
#pragma once

#include "control/FileAccess.h"
#include "control/FileBlocks.h"
#include "search/files/ByteBuffer.h"
#include "search/files/SinglePage.h"

#include <atomic>
#include <memory>
#include <string>

class Screen;

// One file after the other, by one thread, which so has its room for all of them. A file that is
// UTF-8 or ASCII is handed on as it is, one of a page whose characters have one byte by a table;
// any other goes through the conversion that loads it. What is neither before the end is told by
// NeedsConversion, and the file has to be begun again.
class FileText
{
public:
    enum class Kind
    {
        Text,
        Binary,
        Unreadable,
        NotAFile,
    };

    // The code page of files that are no Unicode; 0: the system's.
    explicit FileText(int codePage) : m_codePage(codePage), m_page(codePage) {}
    FileText(const FileText&) = delete;
    FileText& operator=(const FileText&) = delete;
    ~FileText() { Close(); }

    // Closes the file before. Reads as much at first as is going to be read at a time. converts:
    // through the conversion from the start, whatever it is.
    Kind Open(const std::string& path, bool converts, std::size_t bytes);
    void Close();

    // False if the screen admits nothing in the whole file: it is read then, and closed. Until the
    // first Read; true at once for a file that is converted, and if it is stopped.
    bool MayMatch(const Screen& screen, const std::atomic<bool>& stop);

    // Appends about so many bytes; false with the last ones, or once it has failed.
    bool Read(ByteBuffer& text, std::size_t bytes);

    bool NeedsConversion() const { return m_needsConversion; } // begin again with converts
    bool Failed() const { return m_failed; } // or it became shorter than it was when it was opened
    long long BytesRead() const { return m_bytesRead; }

private:
    bool ReadInto(ByteBuffer& bytes, std::size_t wanted);
    bool BeginConversion();
    bool HasShrunk() const { return m_atEnd && m_bytesRead < m_size; }
    bool ReadRaw(ByteBuffer& text, std::size_t bytes);
    bool ReadConverted(ByteBuffer& text, std::size_t bytes);
    bool AppendRaw(ByteBuffer& text);
    void AppendOfPage(ByteBuffer& text) const;

    int m_handle = -1;
    FilePointer m_file; // of a conversion; owns the handle then
    std::unique_ptr<FileBlocks> m_blocks;
    int m_codePage;
    SinglePage m_page;
    ByteBuffer m_first; // what was read before it was known what it is
    ByteBuffer m_raw;
    ByteBuffer m_tail; // the beginning of a character
    bool m_isBegun = false;
    bool m_isUtf8 = false;
    bool m_needsConversion = false;
    bool m_failed = false;
    bool m_atEnd = false;
    long long m_size = 0; // of the file as it was opened
    long long m_bytesRead = 0;
};
