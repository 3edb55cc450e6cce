// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/RandomSeed.h"
#include "tests/encoding/OpenConverter.h"
#include "tests/reference/SlowDetection.h"

#include <gtest/gtest.h>

#include <iostream>
#include <random>

namespace {

using Converter = FileEncodeConverter;
using namespace std::string_literals;
using enum FileEncodeConverter::encodingType;

struct Decision
{
    int encoding;
    bool hadMark;
    unsigned int skipped;
    unsigned int length;

    bool operator==(const Decision&) const = default;
};

void PrintTo(const Decision& decision, std::ostream* out)
{
    *out << decision.encoding << (decision.hadMark ? " with mark" : " without mark") << ", skipped "
         << decision.skipped << ", length " << decision.length;
}

Decision Resolve(Converter::encodingType requested, const Bytes& bytes)
{
    Block block(bytes);
    OpenConverter converter;
    unsigned char* at = block.data.get();
    unsigned int length = block.length;
    bool hadMark = true;
    converter.ResolveEncoding(requested, at, length, hadMark);
    return {converter.GetInputType(), hadMark, static_cast<unsigned int>(at - block.data.get()),
            length};
}

Decision Detect(const Bytes& bytes)
{
    return Resolve(encUnknown, bytes);
}
int DetectOnly(const Bytes& bytes)
{
    return Detect(bytes).encoding;
}
int DetectText(std::string_view text)
{
    return DetectOnly(BytesOf(text));
}

unsigned int Seed()
{
    const unsigned int seed = RandomSeed();
    std::cout << "seed " << seed << '\n';
    return seed;
}

} // namespace

TEST(EncodingDetection, TakesAnEmptyBlockAndASingleByteForAnsi)
{
    EXPECT_EQ(Detect({}), (Decision{0, false, 0, 0}));
    for (int byte = 0; byte < 256; ++byte)
        EXPECT_EQ(Detect({static_cast<unsigned char>(byte)}), (Decision{0, false, 0, 1}));
}

TEST(EncodingDetection, TakesALoneMarkAndLeavesNothing)
{
    EXPECT_EQ(Detect({0xFF, 0xFE}), (Decision{2, true, 2, 0}));
    EXPECT_EQ(Detect({0xFE, 0xFF}), (Decision{4, true, 2, 0}));
    EXPECT_EQ(Detect({0xEF, 0xBB, 0xBF}), (Decision{6, true, 3, 0}));
    EXPECT_EQ(Detect({0xFF, 0xFE, 0, 0}), (Decision{8, true, 4, 0}));
    EXPECT_EQ(Detect({0, 0, 0xFE, 0xFF}), (Decision{10, true, 4, 0}));
}

TEST(EncodingDetection, ReadsAMarkWithANulBehindItAsUtf32)
{
    EXPECT_EQ(Detect({0xFF, 0xFE, 0, 0, 'a', 0}), (Decision{8, true, 4, 2}));
    EXPECT_EQ(Detect({0xFF, 0xFE, 0}), (Decision{2, true, 2, 1}));
}

TEST(EncodingDetection, TakesPlainAsciiOfAnyLengthForAnsi)
{
    for (std::size_t length = 0; length < 100; ++length)
        EXPECT_EQ(DetectOnly(Bytes(length, 'x')), 0) << length;
    EXPECT_EQ(DetectText("SELECT *\r\nFROM orders\n"), 0);
}

TEST(EncodingDetection, TakesACookieInTheFirstLine)
{
    EXPECT_EQ(Detect(BytesOf("-- coding: utf-8\nselect 1")), (Decision{11, false, 0, 25}));
    EXPECT_EQ(DetectText("-- coding=utf-8"), 11);
    EXPECT_EQ(DetectText("-- coding:\t \tutf-8 -*-\n"), 11);
    EXPECT_EQ(DetectText("-- coding: UTF-8\n"), 11);
    EXPECT_EQ(DetectText(std::string_view("-\0 coding: utf-8\n", 17)), 11);
}

TEST(EncodingDetection, PassesOverACookieThatSaysSomethingElse)
{
    EXPECT_EQ(DetectText("-- coding: latin-1\n"), 0);
    EXPECT_EQ(DetectText("-- coding: utf-8x\n"), 0);
    EXPECT_EQ(DetectText("-- coding: utf-8.1\n"), 0);
    EXPECT_EQ(DetectText("-- coding: utf8\n"), 0);
    EXPECT_EQ(DetectText("-- coding utf-8\n"), 0);
    EXPECT_EQ(DetectText("-- coding : utf-8\n"), 0);
    EXPECT_EQ(DetectText("-- Coding: utf-8\n"), 0);
    EXPECT_EQ(DetectText("-- coding:"), 0);
    EXPECT_EQ(DetectText("-- coding"), 0);
    EXPECT_EQ(DetectText("-- coding: \nutf-8"), 0);
}

TEST(EncodingDetection, LooksAtTheFirstCodingOnly)
{
    EXPECT_EQ(DetectText("-- coding coding: utf-8\n"), 0);
    EXPECT_EQ(DetectText("-- encoding: utf-8 coding: latin-1\n"), 11);
}

TEST(EncodingDetection, PassesOverACookieInTheSecondLine)
{
    EXPECT_EQ(DetectText("-- a script\n-- coding: utf-8\n"), 0);
    EXPECT_EQ(DetectText("\r-- coding: utf-8\n"), 0);
    EXPECT_EQ(DetectText("\r\n-- coding: utf-8\n"), 0);
}

TEST(EncodingDetection, TakesValidUtf8BeforeACookie)
{
    EXPECT_EQ(DetectText("-- coding: latin-1 \xC3\xA9\n"), 6);
    EXPECT_EQ(DetectText("-- coding: utf-8 \xC3\xA9\n"), 6);
    EXPECT_EQ(DetectText("caf\xC3\xA9"), 6);
}

TEST(EncodingDetection, TakesAccentedAnsiForAnsiUnlessACookieStandsInIt)
{
    EXPECT_EQ(DetectText("caf\xE9 cr\xE8me"), 0);
    EXPECT_EQ(DetectText("-- coding: utf-8 caf\xE9!"), 11);
    EXPECT_EQ(DetectText("caf\xC0 "), 0);
    EXPECT_EQ(DetectText("caf\xF5 "), 0);
    EXPECT_EQ(DetectText("caf\x80 "), 0);
}

TEST(EncodingDetection, AcceptsUtf8ThatTheBlockCutsInItsLastCharacter)
{
    EXPECT_EQ(DetectText("price \xE2\x82"), 6);
    EXPECT_EQ(DetectText("price: \xE2"), 6);
    EXPECT_EQ(DetectText("face \xF0\x9F\x98"), 6);
}

TEST(EncodingDetection, PassesOverNulsBetweenUtf8Characters)
{
    EXPECT_EQ(DetectOnly({0xC3, 0xA9, 0, 'a', 'b'}), 6);
}

TEST(EncodingDetection, JudgesTwoAndThreeBytesByTheirCookieAlone)
{
    EXPECT_EQ(DetectOnly({0xC3, 0xA9}), 0);
    EXPECT_EQ(DetectOnly({'a', 0}), 0);
    EXPECT_EQ(DetectOnly({0xE2, 0x82, 0xAC}), 0);
}

TEST(EncodingDetection, KnowsUtf16LittleEndianByABlankOrALineEnd)
{
    EXPECT_EQ(Detect(BytesOf(u"abc \u0431")), (Decision{2, false, 0, 10}));
    EXPECT_EQ(DetectOnly(BytesOf(u"\u0431\u0432\n")), 2);
    EXPECT_EQ(DetectOnly(BytesOf(u"\u0431\r\u0432")), 2);
}

TEST(EncodingDetection, KnowsUtf16BigEndianByABlankOrALineEnd)
{
    EXPECT_EQ(DetectOnly(Swapped(BytesOf(u"abc \u0431"), 2)), 4);
    EXPECT_EQ(DetectOnly(Swapped(BytesOf(u"\u0431\u0432\n"), 2)), 4);
    EXPECT_EQ(DetectOnly(Swapped(BytesOf(u"\u0431\r\u0432"), 2)), 4);
}

// Without a blank the order in which all units are ASCII wins, little-endian first.
TEST(EncodingDetection, TakesUnitsThatAreAsciiInLittleEndianForLittleEndian)
{
    EXPECT_EQ(DetectOnly(BytesOf(u"abc")), 2);
    EXPECT_EQ(DetectOnly(Swapped(BytesOf(u"abc"), 2)), 4);
    EXPECT_EQ(DetectOnly(Swapped(BytesOf(u"\u6100\u6200\u6300"), 2)), 2);
    EXPECT_EQ(DetectOnly(Swapped(BytesOf(u"\u6100\u2000\u6300"), 2)), 2);
}

TEST(EncodingDetection, TakesAPairOfSurrogatesAsProof)
{
    EXPECT_EQ(DetectOnly(BytesOf(u"\u4E2D\U0001F600\u4E2D")), 2);
    EXPECT_EQ(DetectOnly(Swapped(BytesOf(u"\u4E2D\U0001F600\u4E2D"), 2)), 4);
}

// With a NUL in it nothing but the statistics speaks.
TEST(EncodingDetection, AsksTheStatisticsWhenOnlyAZeroByteSpeaks)
{
    const std::u16string text = u"\u0431\u0432\u0451\u0430\u044F\u0410\u0433\0\u0431"s;
    EXPECT_EQ(DetectOnly(BytesOf(text)), 2);
    EXPECT_EQ(DetectOnly(Swapped(BytesOf(text), 2)), 4);
}

TEST(EncodingDetection, SeesTheOrderByTheSideOfTheZeroBytes)
{
    std::u16string text; // without a blank or a line end
    while (text.size() < 4095)
        text += u"sales_order_line,";
    text.resize(4095);
    for (const std::size_t at : {0u, 2000u, 4094u}) {
        for (const char16_t letter : {u'\u4e00', u'\u9f8d', u'\u0100', u'\uff01', u'\u3000'}) {
            std::u16string mixed = text;
            mixed.insert(at, 1, letter);
            EXPECT_EQ(DetectOnly(BytesOf(mixed)), 2) << std::hex << int{letter} << " at " << at;
            EXPECT_EQ(DetectOnly(Swapped(BytesOf(mixed), 2)), 4) << std::hex << int{letter};
        }
    }
}

TEST(EncodingDetection, KnowsUtf32OfBothOrders)
{
    EXPECT_EQ(DetectOnly(BytesOf(U"a b")), 8);
    EXPECT_EQ(DetectOnly(Swapped(BytesOf(U"a b"), 4)), 10);
    EXPECT_EQ(DetectOnly(BytesOf(U"abc")), 8);
    EXPECT_EQ(DetectOnly(Swapped(BytesOf(U"abc"), 4)), 10);
    EXPECT_EQ(DetectOnly(BytesOf(U"\U0001F600 ")), 8);
    EXPECT_EQ(DetectOnly({0, 0, 0, 0}), 8);
}

TEST(EncodingResolution, LetsAMarkBeatTheRequest)
{
    const Bytes utf8 = BytesOf("\xEF\xBB\xBFx");
    for (const auto requested : {encANSI, encUTF16LE, encUTF16BE, encUTF8, encUTF32LE, encUTF32BE,
                                 encUTF8Cookie, encUnknown})
        EXPECT_EQ(Resolve(requested, utf8), (Decision{6, true, 3, 1})) << requested;
    EXPECT_EQ(Resolve(encUTF8, {0xFF, 0xFE, 'a', 0}), (Decision{2, true, 2, 2}));
}

TEST(EncodingResolution, TakesTheRequestWithoutAnyHeuristic)
{
    EXPECT_EQ(Resolve(encUTF16LE, BytesOf("caf\xC3\xA9")), (Decision{2, false, 0, 5}));
    EXPECT_EQ(Resolve(encUTF8, BytesOf(u"a b ")), (Decision{6, false, 0, 8}));
    EXPECT_EQ(Resolve(encUTF32BE, {}), (Decision{10, false, 0, 0}));
}

TEST(EncodingResolution, LetsACookieTurnARequestForAnsi)
{
    EXPECT_EQ(Resolve(encANSI, BytesOf("-- coding: utf-8")), (Decision{11, false, 0, 16}));
    EXPECT_EQ(Resolve(encANSI, BytesOf("caf\xC3\xA9 au lait")), (Decision{0, false, 0, 13}));
    EXPECT_EQ(Resolve(encUTF8, BytesOf("-- coding: utf-8")), (Decision{6, false, 0, 16}));
}

TEST(EncodingResolution, LeavesAKnownEncodingAndTheFlagAlone)
{
    OpenConverter converter(encUTF16BE, encUTF16LE);
    Block block({0xEF, 0xBB, 0xBF});
    unsigned char* at = block.data.get();
    bool hadMark = true;
    converter.DetermineEncoding(at, block.length, hadMark);
    EXPECT_EQ(converter.GetInputType(), encUTF16BE);
    EXPECT_TRUE(hadMark);
    EXPECT_EQ(at, block.data.get());
    EXPECT_EQ(block.length, 3u);
}

TEST(EncodingResolution, RemembersTheMarkForTheTextType)
{
    OpenConverter converter;
    EXPECT_EQ(converter.GetInputType(), encUnknown);
    EXPECT_EQ(converter.GetInputTextType(), znutils::ttNone);
    Block block({0xEF, 0xBB, 0xBF});
    unsigned char* at = block.data.get();
    bool hadMark = false;
    converter.ResolveEncoding(encUnknown, at, block.length, hadMark);
    EXPECT_EQ(converter.GetInputTextType(), znutils::ttUTF8Mark);
    converter.SetInputType(encUTF8);
    EXPECT_EQ(converter.GetInputTextType(), znutils::ttUTF8);
}

TEST(TextTypes, MapToEncodingsAndBack)
{
    const int expected[] = {0, 2, 2, 4, 4, 6, 6, 8, 8, 10, 10};
    for (int type = 0; type <= 10; ++type) {
        bool hasMark = type % 2 == 0;
        const auto encoding =
            Converter::ConvertToEncodingType(static_cast<znutils::TextType>(type), hasMark);
        EXPECT_EQ(encoding, expected[type]);
        EXPECT_EQ(hasMark, type % 2 == 1) << type;
        EXPECT_EQ(Converter::ConvertToTextType(encoding, hasMark), type);
    }
}

TEST(TextTypes, KnowNothingElse)
{
    for (const int type : {-2, -1, 11, 12, 1000}) {
        bool hasMark = true;
        EXPECT_EQ(Converter::ConvertToEncodingType(static_cast<znutils::TextType>(type), hasMark),
                  encUnknown);
        EXPECT_FALSE(hasMark);
    }
    for (const int encoding : {-1, 1, 3, 5, 7, 9, 11, 12}) {
        for (const bool mark : {false, true})
            EXPECT_EQ(
                Converter::ConvertToTextType(static_cast<Converter::encodingType>(encoding), mark),
                znutils::ttNone);
    }
}

// Most bytes come from a small set that makes blanks, surrogates, NULs and lead bytes meet.
TEST(EncodingDetection, AgreesWithASlowReferenceOnAnyBytes)
{
    static constexpr unsigned char kTelling[] = {
        0x00, 0x00, 0x00, 0x09, 0x0A, 0x0D, 0x20, 0x20, 'a',  'c',  0x7F, 0x80, 0xA9,
        0xBB, 0xBF, 0xC0, 0xC3, 0xD8, 0xDB, 0xDC, 0xDF, 0xE2, 0xEF, 0xF0, 0xFE, 0xFF};
    std::mt19937 random(Seed());
    const auto below = [&](unsigned int limit) {
        return static_cast<unsigned int>(random() % limit);
    };
    std::vector<int> seen(12);
    for (int round = 0; round < 200000; ++round) {
        Bytes block(below(4) == 0 ? below(64) : below(5) * 4);
        const unsigned int wild = below(3) * 40;
        for (unsigned char& byte : block)
            byte = below(100) < wild ? static_cast<unsigned char>(random())
                                     : kTelling[below(sizeof kTelling)];
        if (below(20) == 0) {
            const Bytes cookie = BytesOf(below(2) == 0 ? "coding: utf-8\n" : "coding=utf-8");
            block.insert(block.begin() + below(static_cast<unsigned int>(block.size()) + 1),
                         cookie.begin(), cookie.end());
        }
        for (const int requested : {-1, 0, 2, 4, 6, 8, 10, 11}) {
            const reference::Verdict expected = reference::Resolve(requested, block);
            const auto mark = static_cast<unsigned int>(expected.markSize);
            const auto length = static_cast<unsigned int>(block.size());
            ASSERT_EQ(Resolve(static_cast<Converter::encodingType>(requested), block),
                      (Decision{expected.encoding, mark > 0, mark, length - mark}))
                << "round " << round << ", requested " << requested << ", bytes "
                << testing::PrintToString(block);
        }
        ++seen[static_cast<std::size_t>(DetectOnly(block))];
    }
    for (const std::size_t encoding : {0, 2, 4, 6, 8, 10, 11})
        EXPECT_GT(seen[encoding], 100) << encoding;
}
