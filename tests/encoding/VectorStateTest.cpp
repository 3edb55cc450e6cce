// SPDX-License-Identifier: GPL-3.0-or-later
// What a hash of Qt's leaves in the vector registers does not slow conversions down.
#include "platform/text/Utf8.h"
#include "tests/UpperHalves.h"
#include "tests/encoding/OpenConverter.h"

namespace {

using upperhalves::VectorRegisters;

constexpr std::u16string_view kText = u"select 'é' from t";

} // namespace

TEST_F(VectorRegisters, AreClearedByTheConversionOfAText)
{
    unsigned char bytes[3 * kText.size()];
    platform::utf8::ToBytes(kText.data(), kText.size(), bytes);
    EXPECT_FALSE(upperhalves::AreInUse());
    char16_t units[sizeof bytes];
    upperhalves::Use();
    platform::utf8::ToUnitsWhileWellFormed(bytes, kText.size() + 1, units);
    EXPECT_FALSE(upperhalves::AreInUse());
}

TEST_F(VectorRegisters, AreClearedByTheConversionOfABlock)
{
    Bytes block = BytesOf(kText);
    FileEncodeConverter converter;
    converter.SetOutputType(FileEncodeConverter::encUTF8);
    auto length = static_cast<unsigned int>(block.size());
    unsigned int remaining = 0;
    bool hadMark = false;
    ASSERT_TRUE(converter.Convert(FileEncodeConverter::encUTF16LE, block.data(), length, remaining,
                                  hadMark));
    EXPECT_FALSE(upperhalves::AreInUse());
}
