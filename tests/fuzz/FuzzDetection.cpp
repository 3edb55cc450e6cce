// SPDX-License-Identifier: GPL-3.0-or-later
// Any first block, detected and requested in every encoding. The block fills its memory to the last
// byte, so that a read behind it is caught.
#include "encoding/FileEncodeConverter.h"
#include "tests/reference/SlowDetection.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>

namespace {

struct Resolver : FileEncodeConverter
{
    using FileEncodeConverter::DetermineEncoding;
    using FileEncodeConverter::ResolveEncoding;
};

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

void CheckRequest(int requested, const std::vector<std::uint8_t>& bytes)
{
    const auto size = static_cast<unsigned int>(bytes.size());
    const std::unique_ptr<unsigned char[]> block(new unsigned char[size]);
    std::copy(bytes.begin(), bytes.end(), block.get());

    Resolver resolver;
    unsigned char* at = block.get();
    unsigned int length = size;
    bool hadMark = false;
    resolver.ResolveEncoding(static_cast<FileEncodeConverter::encodingType>(requested), at, length,
                             hadMark);

    const reference::Verdict expected = reference::Resolve(requested, bytes);
    Require(resolver.GetInputType() == expected.encoding);
    Require(at - block.get() == expected.markSize);
    Require(length + static_cast<unsigned int>(expected.markSize) == size);
    Require(hadMark == (expected.markSize > 0));
    Require((resolver.GetInputTextType() % 2 == 1) == hadMark);
    Require(std::equal(bytes.begin(), bytes.end(), block.get()));

    // What is decided stays decided.
    unsigned char* again = at;
    resolver.DetermineEncoding(again, length, hadMark);
    Require(again == at && resolver.GetInputType() == expected.encoding);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::vector<std::uint8_t> bytes(data, data + size);
    for (const int requested : {-1, 0, 2, 4, 6, 8, 10, 11})
        CheckRequest(requested, bytes);
    return 0;
}
