// SPDX-License-Identifier: GPL-3.0-or-later
// FileText: a file as UTF-8, piece after piece, with the encoding that an editor would detect.
#pragma once

#include "control/FileAccess.h"
#include "control/FileBlocks.h"

#include <memory>
#include <string>

// A file that is UTF-8 or ASCII is handed on as it is; any other goes through the conversion that
// loads it. What is neither before the end is told by Failed, and the file has to be begun again.
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

    // converts: from the start, whatever the file is.
    Kind Open(const std::string& path, bool converts);

    // Appends about so many bytes; false with the last ones, or once it has failed.
    bool Read(std::string& text, std::size_t bytes);

    bool IsConverting() const { return m_blocks != nullptr; }
    bool NeedsConversion() const { return m_needsConversion; } // begin again with converts
    bool Failed() const { return m_failed; } // or it became shorter than it was when it was opened
    long long BytesRead() const { return m_bytesRead; }

private:
    bool ReadRaw(std::string& text, std::size_t bytes);
    bool ReadConverted(std::string& text, std::size_t bytes);

    FilePointer m_file;
    std::unique_ptr<FileBlocks> m_blocks;
    bool m_isUtf8 = false;
    std::string m_tail; // the beginning of a character
    bool m_needsConversion = false;
    bool m_failed = false;
    bool m_atEnd = false;
    long long m_size = 0; // of the file as it was opened
    long long m_bytesRead = 0;
};
