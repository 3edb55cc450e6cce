// SPDX-License-Identifier: GPL-3.0-or-later
// The converter with its protected side open, and blocks that end where their memory ends, so that
// a sanitizer sees a read behind them.
#pragma once

#include "encoding/FileEncodeConverter.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

using Bytes = std::vector<unsigned char>;

inline Bytes BytesOf(std::string_view text)
{
    return Bytes(text.begin(), text.end());
}

inline Bytes BytesOf(std::u16string_view text)
{
    Bytes bytes(text.size() * 2);
    if (!text.empty())
        std::memcpy(bytes.data(), text.data(), bytes.size());
    return bytes;
}

inline Bytes BytesOf(std::u32string_view text)
{
    Bytes bytes(text.size() * 4);
    if (!text.empty())
        std::memcpy(bytes.data(), text.data(), bytes.size());
    return bytes;
}

inline Bytes Swapped(Bytes bytes, std::size_t width)
{
    for (std::size_t i = 0; i + width <= bytes.size(); i += width) {
        for (std::size_t j = 0; j < width / 2; ++j)
            std::swap(bytes[i + j], bytes[i + width - 1 - j]);
    }
    return bytes;
}

struct OpenConverter : FileEncodeConverter
{
    using FileEncodeConverter::ConvertBlock;
    using FileEncodeConverter::DetermineEncoding;
    using FileEncodeConverter::InternalSwapBuffer;
    using FileEncodeConverter::InternalSwapUTF32CharBuffer;
    using FileEncodeConverter::ResolveEncoding;

    OpenConverter() = default;
    OpenConverter(encodingType in, encodingType out)
    {
        SetInputType(in);
        SetOutputType(out);
    }

    Bytes Converted()
    {
        unsigned char* data = nullptr;
        unsigned int size = 0;
        return GetConverted(&data, size) ? Bytes(data, data + size) : Bytes();
    }
};

// A block of its own memory.
struct Block
{
    explicit Block(const Bytes& bytes)
        : data(new unsigned char[bytes.size()]), length(static_cast<unsigned int>(bytes.size()))
    {
        std::copy(bytes.begin(), bytes.end(), data.get());
    }

    Bytes All() const { return Bytes(data.get(), data.get() + length); }

    std::unique_ptr<unsigned char[]> data;
    unsigned int length;
};

// What one later block converts to.
struct Outcome
{
    bool result;
    unsigned int remaining;
    Bytes converted;
    Bytes input; // afterwards
};

inline Outcome ConvertOne(OpenConverter& converter, const Bytes& bytes)
{
    Block block(bytes);
    unsigned int length = block.length;
    unsigned int remaining = 77;
    const bool result = converter.Convert(block.data.get(), length, remaining);
    return {result, remaining, converter.Converted(), block.All()};
}

inline Outcome ConvertOne(FileEncodeConverter::encodingType in,
                          FileEncodeConverter::encodingType out, const Bytes& bytes)
{
    OpenConverter converter(in, out);
    return ConvertOne(converter, bytes);
}

// Converts a whole stream in blocks whose sizes next() gives, each with the tail of the one before
// in front. What cannot be converted at the end is left out and counted in left.
template <typename Next>
Bytes ConvertStream(FileEncodeConverter::encodingType in, FileEncodeConverter::encodingType out,
                    const Bytes& bytes, Next next, std::size_t* left = nullptr)
{
    OpenConverter converter(in, out);
    Bytes result;
    Bytes tail;
    std::size_t at = 0;
    while (at < bytes.size()) {
        const std::size_t take = std::min<std::size_t>(next(), bytes.size() - at);
        tail.insert(tail.end(), bytes.begin() + static_cast<long>(at),
                    bytes.begin() + static_cast<long>(at + take));
        at += take;
        const Outcome outcome = ConvertOne(converter, tail);
        result.insert(result.end(), outcome.converted.begin(), outcome.converted.end());
        tail = Bytes(outcome.input.end() - outcome.remaining, outcome.input.end());
    }
    if (left != nullptr)
        *left = tail.size();
    return result;
}
