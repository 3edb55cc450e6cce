// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/text/ShortRun.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include <unicode/ustring.h>

namespace {

using platform::ascii::Taken;

// ICU's, which fails at anything ill-formed.
std::u16string IcuToUnits(const std::string& bytes)
{
    UErrorCode error = U_ZERO_ERROR;
    std::u16string units(bytes.size(), u'#');
    int32_t count = 0;
    u_strFromUTF8(units.data(), static_cast<int32_t>(units.size()), &count, bytes.data(),
                  static_cast<int32_t>(bytes.size()), &error);
    EXPECT_TRUE(U_SUCCESS(error)) << "within a character, or behind an ill-formed one";
    units.resize(static_cast<std::size_t>(count));
    return units;
}

// Mostly letters of one and two bytes; now and then a longer one, or bytes that are none.
std::string RandomBytes(std::mt19937& random, int rare)
{
    static const std::vector<std::string> kShort = {"a", "~", "\x7F", "\u0080", "\u00e9", "\u07ff"};
    static const std::vector<std::string> kOthers = {
        "\u0800", "\u4e2d", "\U0001F600", "\xC0\x80", "\xC1\xBF", "\xC2", "\x80", "\xBF", "\xFF"};
    std::string bytes;
    const std::size_t size = random() % 120;
    const unsigned accents = random() % 4;
    while (bytes.size() < size) {
        const bool isRare = static_cast<int>(random() % 1000) < rare;
        bytes += isRare                    ? kOthers[random() % kOthers.size()]
                 : random() % 4 <= accents ? kShort[random() % kShort.size()]
                                           : "b";
    }
    return bytes;
}

bool IsShort(char16_t unit)
{
    return unit < 0x800;
}

} // namespace

TEST(ShortRuns, BecomeTheUnitsThatIcuMakesOfThem)
{
    std::mt19937 random(1);
    for (const auto widen : {platform::ascii::WidenShortRun, platform::ascii::WidenByChunks}) {
        for (int i = 0; i < 20000; ++i) {
            const std::string bytes = RandomBytes(random, i % 3 * 20);
            std::u16string units(bytes.size(), u'#');
            const Taken taken = widen(reinterpret_cast<const unsigned char*>(bytes.data()),
                                      bytes.size(), units.data());
            units.resize(taken.units);
            ASSERT_EQ(units, IcuToUnits(bytes.substr(0, taken.bytes))) << i;
        }
    }
}

TEST(ShortRuns, OfUnitsBecomeTheBytesThatIcuReadsBack)
{
    std::mt19937 random(2);
    for (const auto narrow : {platform::ascii::NarrowShortRun, platform::ascii::NarrowByChunks}) {
        for (int i = 0; i < 20000; ++i) {
            std::u16string units;
            for (std::size_t left = random() % 100; left > 0; --left)
                units += static_cast<char16_t>(random() % (random() % 60 == 0  ? 0x10000
                                                           : random() % 3 == 0 ? 0x800
                                                                               : 0x80));
            std::size_t room = 0;
            for (const char16_t unit : units)
                room += unit < 0x80 ? 1 : unit < 0x800 ? 2 : 3;
            std::string bytes(room, '#');
            const Taken taken =
                narrow(units.data(), units.size(), reinterpret_cast<unsigned char*>(bytes.data()));
            bytes.resize(taken.bytes);
            ASSERT_EQ(IcuToUnits(bytes), units.substr(0, taken.units)) << i;
            ASSERT_TRUE(std::all_of(units.begin(), units.begin() + long(taken.units), IsShort));
        }
    }
}

TEST(ShortRuns, AreTakenButForTheLastTwoChunks)
{
    constexpr std::size_t kTwoChunks = 2 * platform::ascii::kChunk;
    std::mt19937 random(3);
    for (int i = 0; i < 2000; ++i) {
        const std::string bytes = RandomBytes(random, 0);
        std::u16string units(bytes.size(), u'#');
        const Taken widened = platform::ascii::WidenShortRun(
            reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size(), units.data());
        ASSERT_GE(widened.bytes + kTwoChunks, bytes.size()) << i;
        units = IcuToUnits(bytes);
        std::string back(bytes.size(), '#');
        const Taken narrowed = platform::ascii::NarrowShortRun(
            units.data(), units.size(), reinterpret_cast<unsigned char*>(back.data()));
        ASSERT_GE(narrowed.units + kTwoChunks, units.size()) << i;
    }
}
