// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes between every pair of encodings, as a stream cut into blocks of any size. The first
// bytes choose the pair, the code page and the cuts. Each block fills its memory to the last byte.
#include "encoding/FileEncodeConverter.h"
#include "platform/text/CodePage.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <vector>

namespace {

using Bytes = std::vector<unsigned char>;
using Converter = FileEncodeConverter;

constexpr int kEncodings[] = {0, 2, 4, 6, 8, 10, 11, -1};
constexpr int kCodePages[] = {1252, 932, 949, 54936, 65001, 437, 51932, 4711};

// The most bytes that one byte of input can become: an ANSI byte as a word.
constexpr std::size_t kGrowth = 4;

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

struct Stream
{
    int in;
    int out;
    unsigned int cuts; // seeds the block sizes

    unsigned int NextSize()
    {
        cuts = cuts * 1664525 + 1013904223;
        return 1 + (cuts >> 24) % (cuts >> 16 & 1 ? 200 : 7);
    }
};

// Converts one block and gives its tail as it is for the next one.
Bytes ConvertBlock(Converter& converter, const Bytes& bytes, bool first, const Stream& stream,
                   Bytes& all)
{
    const std::unique_ptr<unsigned char[]> block(new unsigned char[bytes.size()]);
    std::copy(bytes.begin(), bytes.end(), block.get());
    auto length = static_cast<unsigned int>(bytes.size());
    unsigned int remaining = 0;
    bool hadMark = false;
    const bool result = first ? converter.Convert(static_cast<Converter::encodingType>(stream.in),
                                                  block.get(), length, remaining, hadMark)
                              : converter.Convert(block.get(), length, remaining);
    Require(length <= bytes.size() && remaining <= length);
    Require(converter.GetInputType() != Converter::encUnknown);
    if (length > 0 && stream.out != -1)
        Require(result == (stream.out != 10 || converter.GetInputType() == 0));

    unsigned char* data = nullptr;
    unsigned int size = 0;
    const bool any = converter.GetConverted(&data, size);
    Require(any == (size > 0) && any == (data != nullptr));
    Require(size <= kGrowth * bytes.size());
    if (any)
        all.insert(all.end(), data, data + size);

    // The tail has its own bytes again, whatever was swapped before it.
    const Bytes tail(bytes.end() - remaining, bytes.end());
    const unsigned char* const end = block.get() + bytes.size();
    Require(std::equal(tail.begin(), tail.end(), end - remaining));
    return tail;
}

// The cuts leave a trace where a cut may part a pair of surrogates (a walk over ill-formed UTF-16
// steps between the two), where the second of two steps drops its tail, and in the pages in which a
// faulty byte changes what those behind it mean.
bool CutsLeaveNoTrace(int in, int out, int codePage)
{
    const bool outWide = out == 2 || out == 4;
    const bool ansi = in == 0 || out == 0;
    if (in == -1 || out == -1)
        return false;
    if (in == 2 || in == 4)
        return outWide;
    if ((in == 8 || in == 10) && out == 0)
        return false;
    return !ansi || codePage == 1252 || codePage == 437 || codePage == 932 || codePage == 949;
}

// The converted stream; in becomes the encoding that it was found to have.
Bytes Convert(Stream stream, const Bytes& bytes, bool cut, int& in)
{
    Converter converter;
    converter.SetOutputType(static_cast<Converter::encodingType>(stream.out));
    Bytes all;
    Bytes tail;
    std::size_t at = 0;
    bool first = true;
    // The first block is always whole enough for every mark and for a cookie.
    std::size_t take = std::min<std::size_t>(64, bytes.size());
    while (at < bytes.size()) {
        if (!first)
            take = std::min<std::size_t>(cut ? stream.NextSize() : bytes.size(), bytes.size() - at);
        Bytes block = tail;
        block.insert(block.end(), bytes.begin() + static_cast<long>(at),
                     bytes.begin() + static_cast<long>(at + take));
        at += take;
        tail = ConvertBlock(converter, block, first, stream, all);
        first = false;
    }
    in = converter.GetInputType();
    return all;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 4)
        return 0;
    const Stream stream = {kEncodings[data[0] % 8], kEncodings[data[1] % 8], data[3] * 2654435761u};
    const int codePage = kCodePages[data[2] % 8];
    platform::SetSystemCodePage(codePage);
    const Bytes bytes(data + 4, data + size);
    int in = -1;
    const Bytes streamed = Convert(stream, bytes, true, in);
    if (CutsLeaveNoTrace(in, stream.out, codePage))
        Require(streamed == Convert(stream, bytes, false, in));
    return 0;
}
