// SPDX-License-Identifier: GPL-3.0-or-later
// FileBlocks: a file as UTF-16, block after block. Knows the converter and the seams between
// blocks; knows no engine and no window.
#pragma once

#include "control/FilePolicy.h"

#include <array>
#include <cstdio>
#include <string>

class FileBlocks
{
public:
    static constexpr unsigned int kBlockSize = 8192; // bytes

    // The file stays the caller's and outlives this object. The code page is what encANSI stands
    // for; 0: the system's.
    FileBlocks(std::FILE* file, const SeamRule& rule, int codePage = 0) : m_file(file), m_rule(rule)
    {
        m_converter.SetCodePage(codePage);
    }

    // Reads the first block, decides the encoding on it and converts it. False if it cannot be
    // converted into UTF-16 at all.
    bool Start(FileEncodeConverter::encodingType requested, bool& hadMark);
    FileEncodeConverter::encodingType InputType() const { return m_converter.GetInputType(); }

    // UTF-8 bytes that the whole file will make, by its first block. Behind Start.
    long long EstimatedUtf8(long long fileSize);

    // Lends the text of the block until Advance; false behind the last one. Lengths count units;
    // a block may have none and not be the last.
    bool Text(const char16_t*& text, long& length);
    void Advance();

    // Whether bytes were left that could not be converted or read.
    bool HasRest() const { return m_length > 0 || m_readFailed; }

private:
    unsigned int Read(unsigned int from);
    unsigned int MoveTailToFront();
    bool KeepPairs(bool more, const char16_t*& text, long& length);
    bool TakeLastUnit();

    std::FILE* m_file;
    SeamRule m_rule;
    FileEncodeConverter m_converter;
    std::array<unsigned char, kBlockSize> m_buffer{};
    unsigned int m_filled = 0;    // bytes of the buffer that came from the file
    unsigned int m_converted = 0; // where in the buffer the last conversion ended
    unsigned int m_start = 0;     // where in the buffer the block begins
    unsigned int m_length = 0;    // of the block; behind a seam as the rule counts it
    unsigned int m_remaining = 0; // what of it was not converted
    bool m_readFailed = false;
    char16_t m_highHalf = 0; // of a pair whose second half is in the next block
    std::u16string m_joined;
};
