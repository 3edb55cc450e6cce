// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/text/Utf8Shape.h"
#include "tests/RandomSeed.h"

#include <gtest/gtest.h>

#include <iostream>
#include <random>
#include <string>
#include <vector>

#include <unicode/ustring.h>

namespace {

using namespace platform::utf8;

const unsigned char* Bytes(const std::string& text)
{
    return reinterpret_cast<const unsigned char*>(text.data());
}

// ICU's conversion fails at anything ill-formed.
bool IcuTakes(const std::string& text)
{
    UErrorCode error = U_ZERO_ERROR;
    std::u16string units(text.size() + 1, u' ');
    int32_t count = 0;
    u_strFromUTF8(units.data(), static_cast<int32_t>(units.size()), &count, text.data(),
                  static_cast<int32_t>(text.size()), &error);
    return U_SUCCESS(error) != 0;
}

// A character by its lead byte alone, the last one cut or not.
bool HasShapeSlowly(const std::string& text)
{
    for (std::size_t at = 0; at < text.size();) {
        const auto lead = static_cast<unsigned char>(text[at++]);
        const int behind = lead < 0x80 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
        if ((lead >= 0x80 && lead < 0xC2) || lead > 0xF4)
            return false;
        for (int i = 0; i < behind && at < text.size(); ++i) {
            if ((static_cast<unsigned char>(text[at++]) & 0xC0) != 0x80)
                return false;
        }
    }
    return true;
}

} // namespace

TEST(ShapeOfUtf8, IsWhatASlowWalkAndIcuSay)
{
    const unsigned seed = RandomSeed();
    std::cout << "seed " << seed << '\n';
    std::mt19937 random(seed);
    const std::vector<std::string> good = {"a",      "\u0080", "\u07ff",     "\u0800",    "\u4e2d",
                                           "\ud7ff", "\uffff", "\U00010000", "\U0010ffff"};
    const std::vector<std::string> bad = {"\x80",
                                          "\xC2",
                                          "\xE0\x9F\xBF",
                                          "\xED\xA0\x80",
                                          "\xC1\xBF",
                                          "\xF4\x90\x80\x80",
                                          "\xF0\x80\x80",
                                          "\xF5",
                                          "\xE4\xB8",
                                          "\xF8",
                                          "\xF0\x8F\xBF\xBF"};
    int wellFormed = 0;
    for (int round = 0; round < 20000; ++round) {
        std::string text(random() % 20, 'x');
        const std::size_t size = random() % 80;
        while (text.size() < size)
            text += random() % 300 == 0 ? bad[random() % bad.size()] : good[random() % good.size()];
        text.resize(text.size() - std::min<std::size_t>(random() % 8 == 0 ? 2 : 0, text.size()));
        ASSERT_EQ(IsWellFormed(Bytes(text), text.size()), IcuTakes(text)) << round;
        ASSERT_EQ(HasShape(Bytes(text), text.size()), HasShapeSlowly(text)) << round;
        wellFormed += IcuTakes(text);
    }
    EXPECT_GT(wellFormed, 5000);
    EXPECT_LT(wellFormed, 19000);
}

TEST(ShapeOfUtf8, ToleratesACharacterThatTheEndCuts)
{
    const std::string text = std::string(13, 'a') + "\u00e9\u4e2d";
    EXPECT_TRUE(IsWellFormed(Bytes(text), text.size()));
    for (const std::size_t cut : {14u, 16u, 17u}) {
        EXPECT_TRUE(HasShape(Bytes(text), cut)) << cut;
        EXPECT_FALSE(IsWellFormed(Bytes(text), cut)) << cut;
    }
}

TEST(ShapeOfUtf8, TellsAsciiWhereverTheOtherByteStands)
{
    for (std::size_t size = 0; size < 40; ++size) {
        std::string text(size, '\x7F');
        EXPECT_TRUE(IsAscii(Bytes(text), size));
        for (std::size_t at = 0; at < size; ++at) {
            text[at] = '\x80';
            EXPECT_FALSE(IsAscii(Bytes(text), size)) << at << " of " << size;
            text[at] = 'a';
        }
    }
}
