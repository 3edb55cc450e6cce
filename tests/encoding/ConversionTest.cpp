// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/text/CodePage.h"
#include "tests/RandomSeed.h"
#include "tests/encoding/OpenConverter.h"
#include "tests/reference/SlowEncoding.h"

#include <gtest/gtest.h>

#include <cstring>
#include <iostream>
#include <random>

using namespace std::string_literals;
using enum FileEncodeConverter::encodingType;

namespace {

using Converter = FileEncodeConverter;

constexpr Converter::encodingType kEncodings[] = {encANSI,    encUTF16LE, encUTF16BE,   encUTF8,
                                                  encUTF32LE, encUTF32BE, encUTF8Cookie};

bool IsWide(int encoding)
{
    return encoding == encUTF16LE || encoding == encUTF16BE;
}
bool IsUtf32(int encoding)
{
    return encoding == encUTF32LE || encoding == encUTF32BE;
}

// A character that the end of the block cuts; for ANSI a NUL, which ends the walk as well.
Bytes CutCharacter(int encoding)
{
    if (encoding == encANSI)
        return {0, 'x'};
    if (encoding == encUTF16LE)
        return {0x3D, 0xD8};
    if (encoding == encUTF16BE)
        return {0xD8, 0x3D};
    return IsUtf32(encoding) ? Bytes{0x11, 0x22, 0x33} : Bytes{0xE2, 0x82};
}

unsigned int Seed()
{
    const unsigned int seed = RandomSeed();
    std::cout << "seed " << seed << '\n';
    return seed;
}

} // namespace

class EveryPair
    : public testing::TestWithParam<std::tuple<Converter::encodingType, Converter::encodingType>>
{
protected:
    Converter::encodingType m_in = std::get<0>(GetParam());
    Converter::encodingType m_out = std::get<1>(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Encodings, EveryPair,
                         testing::Combine(testing::ValuesIn(kEncodings),
                                          testing::ValuesIn(kEncodings)),
                         [](const auto& pair) {
                             return "From" + std::to_string(std::get<0>(pair.param)) + "To" +
                                    std::to_string(std::get<1>(pair.param));
                         });

TEST_P(EveryPair, ConvertsWholeCharactersAndLeavesTheTailAsItCame)
{
    const std::u32string text =
        U"na\u00EFve caf\u00E9 \u00FF and forty more plain characters, to pass";
    // On the way to UTF-32 no surrogate is held back, so there half a unit is the tail.
    const Bytes tail = IsWide(m_in) && IsUtf32(m_out) ? Bytes{0x3D} : CutCharacter(m_in);
    const Bytes whole = reference::Encode(text, m_in);
    Bytes block = whole;
    block.insert(block.end(), tail.begin(), tail.end());

    const Outcome outcome = ConvertOne(m_in, m_out, block);
    EXPECT_EQ(outcome.result, m_out != encUTF32BE || m_in == encANSI);
    // Between two big-endian texts the walk sees units the wrong way round: 3DD8 cuts nothing.
    const bool passes = m_in == encUTF16BE && m_out == encUTF16BE;
    Bytes expected = reference::Encode(text, m_out);
    if (passes)
        expected.insert(expected.end(), tail.begin(), tail.end());
    EXPECT_EQ(outcome.converted, expected);
    EXPECT_EQ(outcome.remaining, passes ? 0 : tail.size());

    const bool swaps = m_in != m_out && (m_in == encUTF16BE || m_in == encUTF32BE);
    Bytes input = swaps ? Swapped(whole, IsWide(m_in) ? 2 : 4) : whole;
    input.insert(input.end(), tail.begin(), tail.end());
    EXPECT_EQ(outcome.input, input);
}

TEST_P(EveryPair, GivesAnEmptyVectorForNoBytes)
{
    OpenConverter converter(m_in, m_out);
    ConvertOne(converter, reference::Encode(U"text", m_in));
    const Outcome outcome = ConvertOne(converter, {});
    EXPECT_TRUE(outcome.result);
    EXPECT_EQ(outcome.remaining, 77u);
    unsigned char* data = reinterpret_cast<unsigned char*>(this);
    unsigned int size = 5;
    EXPECT_FALSE(converter.GetConverted(&data, size));
    EXPECT_EQ(data, nullptr);
    EXPECT_EQ(size, 0u);
}

TEST_P(EveryPair, GivesTheSameTextWhereverTheBlocksAreCut)
{
    static constexpr char32_t kScripts[] = {0x20,   0xE0,   0x3B1,   0x431,   0x5D0,   0x627,
                                            0x915,  0xE01,  0x10D0,  0x3042,  0x4E2D,  0xAC00,
                                            0xFF21, 0xFFE0, 0x1F600, 0x20000, 0x10FFF0};
    std::mt19937 random(Seed());
    const auto below = [&](unsigned int limit) {
        return static_cast<unsigned int>(random() % limit);
    };
    // The far end of UTF-32 knows no pair that two blocks share, and ANSI holds Latin letters only.
    const bool ansi = m_in == encANSI || m_out == encANSI;
    const std::size_t scripts = ansi ? 2 : IsWide(m_in) && IsUtf32(m_out) ? 14 : 17;
    for (int round = 0; round < 60; ++round) {
        std::u32string text;
        for (unsigned int i = below(600); i > 0; --i)
            text += below(3) == 0 ? kScripts[below(static_cast<unsigned int>(scripts))] + below(15)
                                  : U'a' + below(26);
        std::size_t left = 0;
        const unsigned int most = 1 + below(40);
        const Bytes streamed = ConvertStream(
            m_in, m_out, reference::Encode(text, m_in), [&] { return 1 + below(most); }, &left);
        // Between two big-endian texts the last unit may look like half a pair and be held back.
        ASSERT_LE(left, m_in == encUTF16BE && m_out == encUTF16BE ? 2u : 0u);
        Bytes expected = reference::Encode(text, m_out);
        expected.resize(expected.size() - left);
        ASSERT_EQ(streamed, expected) << "round " << round;
    }
}

TEST(ConversionResults, AreFalseForAnEncodingThatCannotBeWritten)
{
    for (const auto in : kEncodings) {
        for (const int out : {-1, 1, 3, 5, 7, 9, 12}) {
            const Bytes text = reference::Encode(U"text", in);
            const Outcome outcome = ConvertOne(in, static_cast<Converter::encodingType>(out), text);
            EXPECT_FALSE(outcome.result) << in << " to " << out;
            EXPECT_EQ(outcome.remaining, 0u);
            EXPECT_TRUE(outcome.converted.empty());
            EXPECT_EQ(outcome.input, text);
        }
    }
}

TEST(ConversionResults, AreTrueForAnUnknownInputAndLeaveTheVectorAlone)
{
    OpenConverter converter(encUTF8, encUTF16LE);
    const Bytes text = ConvertOne(converter, BytesOf("text")).converted;
    for (const int in : {1, 3, 5, 7, 9, 12}) {
        converter.SetInputType(static_cast<Converter::encodingType>(in));
        const Outcome outcome = ConvertOne(converter, BytesOf("other"));
        EXPECT_TRUE(outcome.result) << in;
        EXPECT_EQ(outcome.remaining, 0u);
        EXPECT_EQ(outcome.converted, text);
    }
}

TEST(ConversionResults, AreFalseForAnUndecidedInput)
{
    OpenConverter converter(encUnknown, encUTF16LE);
    Block block(BytesOf("text"));
    unsigned int remaining = 0;
    EXPECT_FALSE(converter.ConvertBlock(block.data.get(), block.length, remaining));
    EXPECT_TRUE(converter.Converted().empty());
}

TEST(FirstConversion, SkipsTheMarkAndShortensTheLength)
{
    OpenConverter converter;
    converter.SetOutputType(encUTF16LE);
    Block block(BytesOf("\xEF\xBB\xBF"
                        "ab\xC3"));
    unsigned int remaining = 9;
    bool hadMark = false;
    EXPECT_TRUE(converter.Convert(encUnknown, block.data.get(), block.length, remaining, hadMark));
    EXPECT_TRUE(hadMark);
    EXPECT_EQ(block.length, 3u);
    EXPECT_EQ(remaining, 1u);
    EXPECT_EQ(converter.Converted(), BytesOf(u"ab"));
    EXPECT_EQ(converter.GetInputTextType(), znutils::ttUTF8Mark);
}

TEST(FirstConversion, FixesTheEncodingForTheStream)
{
    OpenConverter converter;
    converter.SetOutputType(encUTF16LE);
    EXPECT_EQ(ConvertOne(converter, BytesOf("plain text")).converted, BytesOf(u"plain text"));
    EXPECT_EQ(converter.GetInputType(), encANSI);
    EXPECT_EQ(ConvertOne(converter, BytesOf("\xEF\xBB\xBF")).converted,
              BytesOf(u"\u00EF\u00BB\u00BF"));
}

TEST(FirstConversion, OfAMarkAloneIsAnEmptyText)
{
    OpenConverter converter;
    converter.SetOutputType(encUTF16LE);
    const Outcome outcome = ConvertOne(converter, {0xFF, 0xFE});
    EXPECT_TRUE(outcome.result);
    EXPECT_EQ(outcome.remaining, 77u);
    EXPECT_TRUE(outcome.converted.empty());
    EXPECT_EQ(converter.GetInputTextType(), znutils::ttUTF16LEMark);
}

TEST(Converters, AreCopiedWithTheirBytes)
{
    OpenConverter converter(encUTF8, encUTF16LE);
    ConvertOne(converter, BytesOf("text"));
    OpenConverter copy(converter);
    OpenConverter assigned;
    assigned = converter;
    ConvertOne(converter, BytesOf("other"));
    EXPECT_EQ(copy.Converted(), BytesOf(u"text"));
    EXPECT_EQ(assigned.Converted(), BytesOf(u"text"));
    EXPECT_EQ(copy.GetInputType(), encUTF8);
    EXPECT_EQ(ConvertOne(assigned, BytesOf("a")).converted, BytesOf(u"a"));
}

TEST(Utf8Conversion, GoesOnAfterACutInsideACharacter)
{
    OpenConverter converter(encUTF8, encUTF16LE);
    for (const unsigned int cut : {1u, 2u}) {
        const Bytes euro = {0xE2, 0x82, 0xAC};
        Bytes first = BytesOf("costs ");
        first.insert(first.end(), euro.begin(), euro.begin() + cut);
        const Outcome head = ConvertOne(converter, first);
        EXPECT_EQ(head.remaining, cut);
        EXPECT_EQ(head.converted, BytesOf(u"costs "));
        EXPECT_EQ(ConvertOne(converter, BytesOf("\xE2\x82\xAC!")).converted, BytesOf(u"\u20AC!"));
    }
}

TEST(Utf8Conversion, StopsAtAStrayContinuationByte)
{
    OpenConverter converter(encUTF8, encUTF16LE);
    ConvertOne(converter, BytesOf("before"));
    const Outcome stray = ConvertOne(converter, BytesOf("\x80"
                                                        "abc"));
    EXPECT_TRUE(stray.result);
    EXPECT_EQ(stray.remaining, 4u);
    EXPECT_TRUE(stray.converted.empty());
    const Outcome later = ConvertOne(converter, BytesOf("abc\x80"
                                                        "abc"));
    EXPECT_EQ(later.remaining, 4u);
    EXPECT_EQ(later.converted, BytesOf(u"abc"));
}

// The walk judges a character by its lead byte alone, so FF takes three bytes with it.
TEST(Utf8Conversion, ReplacesWhatTheWalkPasses)
{
    EXPECT_EQ(ConvertOne(encUTF8, encUTF16LE,
                         BytesOf("\xFF"
                                 "abc"))
                  .converted,
              BytesOf(u"\uFFFDabc"));
    EXPECT_EQ(ConvertOne(encUTF8, encUTF16LE,
                         BytesOf("\xFF"
                                 "ab"))
                  .remaining,
              3u);
    EXPECT_EQ(ConvertOne(encUTF8, encUTF16LE, BytesOf("\xE2\x82x")).converted, BytesOf(u"\uFFFDx"));
    EXPECT_EQ(ConvertOne(encUTF8, encUTF16LE, BytesOf("\xED\xA0\x80x")).converted,
              BytesOf(u"\uFFFD\uFFFD\uFFFDx"));
    EXPECT_EQ(ConvertOne(encUTF8, encUTF8, BytesOf("\xE2\x82x")).converted, BytesOf("\xE2\x82x"));
}

TEST(Utf8Conversion, AgreesWithASlowReferenceOnAnyBytes)
{
    std::mt19937 random(Seed());
    for (int round = 0; round < 100000; ++round) {
        Bytes bytes(random() % 48);
        for (unsigned char& byte : bytes)
            byte = random() % 3 == 0 ? static_cast<unsigned char>('a' + random() % 3)
                                     : static_cast<unsigned char>(0x80 + random() % 0x80);
        std::size_t walked = 0;
        while (walked < bytes.size()) {
            const int lead = bytes[walked];
            const std::size_t step = lead >= 0xF0   ? 4
                                     : lead >= 0xE0 ? 3
                                     : lead >= 0xC0 ? 2
                                     : lead >= 0x80 ? 0
                                                    : 1;
            if (step == 0 || step > bytes.size() - walked)
                break;
            walked += step;
        }
        const Outcome outcome = ConvertOne(encUTF8, encUTF16LE, bytes);
        const auto end = bytes.begin() + static_cast<long>(walked);
        ASSERT_EQ(outcome.converted, BytesOf(reference::DecodeUtf8(Bytes(bytes.begin(), end))))
            << testing::PrintToString(bytes);
        ASSERT_EQ(outcome.remaining, bytes.empty() ? 77 : bytes.size() - walked);
    }
}

TEST(AnsiConversion, StopsAtANul)
{
    const Outcome outcome = ConvertOne(encANSI, encUTF16LE, BytesOf("ab\0cd"s));
    EXPECT_EQ(outcome.converted, BytesOf(u"ab"));
    EXPECT_EQ(outcome.remaining, 3u);
}

TEST(Utf16Conversion, HoldsBackAHighSurrogateAtTheEnd)
{
    const Outcome outcome = ConvertOne(encUTF16LE, encUTF16LE, {'a', 0, 0x3D, 0xD8});
    EXPECT_EQ(outcome.remaining, 2u);
    EXPECT_EQ(outcome.converted, BytesOf(u"a"));
}

TEST(Utf16Conversion, TakesTheUnitBehindTheSurrogatesForTheHeadOfAPairToo)
{
    EXPECT_EQ(ConvertOne(encUTF16LE, encUTF8, BytesOf(u"a\uE000")).remaining, 2u);
    EXPECT_EQ(ConvertOne(encUTF16LE, encUTF8, BytesOf(u"a\uE001")).remaining, 0u);
    EXPECT_EQ(ConvertOne(encUTF16LE, encUTF8, BytesOf(u"\uE000a")).converted, BytesOf("\xEE\x80\x80"
                                                                                      "a"));
}

// Nothing is swapped on this way, so U+00D8 looks like a surrogate to the walk.
TEST(Utf16Conversion, HoldsBackAnInnocentUnitBetweenTwoBigEndianTexts)
{
    const Outcome outcome = ConvertOne(encUTF16BE, encUTF16BE, {0, 'a', 0, 0xD8});
    EXPECT_EQ(outcome.remaining, 2u);
    EXPECT_EQ(outcome.converted, (Bytes{0, 'a'}));
}

TEST(Utf16Conversion, HandsBackAnOddByte)
{
    for (const auto out : kEncodings) {
        EXPECT_EQ(ConvertOne(encUTF16LE, out, {'a', 0, 'b'}).remaining, 1u) << out;
        EXPECT_EQ(ConvertOne(encUTF16LE, out, {'b'}).remaining, 1u) << out;
        EXPECT_TRUE(ConvertOne(encUTF16LE, out, {'b'}).converted.empty()) << out;
        EXPECT_EQ(ConvertOne(encUTF16BE, out, {0, 'a', 'b'}).remaining, 1u) << out;
    }
}

TEST(Utf16Conversion, SwapsTheTailOfABigEndianBlockBack)
{
    const Outcome outcome = ConvertOne(encUTF16BE, encUTF16LE, {0, 'a', 0, 'b', 0xD8, 0x3D, 0xDE});
    EXPECT_EQ(outcome.remaining, 3u);
    EXPECT_EQ(outcome.input, (Bytes{'a', 0, 'b', 0, 0xD8, 0x3D, 0xDE}));
}

TEST(Utf16Conversion, ConvertsALoneSurrogateToAReplacement)
{
    EXPECT_EQ(ConvertOne(encUTF16LE, encUTF8, {0x00, 0xDC, 'a', 0}).converted,
              BytesOf("\xEF\xBF\xBD"
                      "a"));
}

TEST(Utf16Conversion, ReadsFromAnOddAddress)
{
    const std::string padded = "#a\0b\0"s;
    for (const auto out : {encANSI, encUTF16LE, encUTF8, encUTF32LE}) {
        Block block(BytesOf(padded));
        OpenConverter converter(encUTF16LE, out);
        unsigned int length = 4;
        unsigned int remaining = 0;
        EXPECT_TRUE(converter.Convert(block.data.get() + 1, length, remaining));
        EXPECT_EQ(converter.Converted(), reference::Encode(U"ab", out)) << out;
    }
}

TEST(Utf16Conversion, MeasuresLongLinesFirst)
{
    const std::u16string line(1 << 20, u'\u00E9');
    EXPECT_EQ(ConvertOne(encUTF16LE, encANSI, BytesOf(line)).converted, Bytes(line.size(), 0xE9));
    const Bytes utf8 = ConvertOne(encUTF16LE, encUTF8, BytesOf(line)).converted;
    EXPECT_EQ(utf8.size(), 2 * line.size());
    EXPECT_EQ(ConvertOne(encUTF8, encUTF16LE, utf8).converted, BytesOf(line));
}

TEST(Utf16ToUtf32, WritesSurrogatesThatHaveNoPartner)
{
    EXPECT_EQ(ConvertOne(encUTF16LE, encUTF32LE, {0x3D, 0xD8, 'a', 0}).converted,
              (Bytes{0x3D, 0xD8, 0, 0, 'a', 0, 0, 0}));
    const Outcome last = ConvertOne(encUTF16LE, encUTF32LE, {'a', 0, 0x3D, 0xD8});
    EXPECT_EQ(last.converted, (Bytes{'a', 0, 0, 0, 0x3D, 0xD8, 0, 0}));
    EXPECT_EQ(last.remaining, 0u);
    const Outcome odd = ConvertOne(encUTF16LE, encUTF32LE, {0x3D, 0xD8, 0x00});
    EXPECT_EQ(odd.converted, (Bytes{0x3D, 0xD8, 0, 0}));
    EXPECT_EQ(odd.remaining, 1u);
}

TEST(Utf32Conversion, ReplacesWordsBeyondTheLastCharacter)
{
    const Bytes beyond = {0x00, 0x00, 0x11, 0x00};
    EXPECT_EQ(ConvertOne(encUTF32LE, encUTF16LE, beyond).converted, BytesOf(u"\uFFFD"));
    EXPECT_EQ(ConvertOne(encUTF32LE, encUTF8, beyond).converted, BytesOf("\xF4\x90\x80\x80"));
    const Bytes far = {0x00, 0x00, 0x20, 0x00};
    EXPECT_EQ(ConvertOne(encUTF32LE, encUTF8, far).converted, BytesOf("\xEF\xBF\xBD"));
    const Bytes last = {0xFF, 0xFF, 0x1F, 0x00};
    EXPECT_EQ(ConvertOne(encUTF32LE, encUTF8, last).converted, BytesOf("\xF7\xBF\xBF\xBF"));
}

TEST(Utf32Conversion, LetsSurrogatesThrough)
{
    const Bytes lone = {0x00, 0xD8, 0, 0};
    EXPECT_EQ(ConvertOne(encUTF32LE, encUTF16LE, lone).converted, (Bytes{0x00, 0xD8}));
    EXPECT_EQ(ConvertOne(encUTF32LE, encUTF8, lone).converted, BytesOf("\xED\xA0\x80"));
}

TEST(Utf32Conversion, TakesNothingOfLessThanAWord)
{
    for (const auto in : {encUTF32LE, encUTF32BE}) {
        for (const auto out : kEncodings) {
            const Outcome outcome = ConvertOne(in, out, {1, 2, 3});
            EXPECT_TRUE(outcome.converted.empty()) << in << " to " << out;
            EXPECT_EQ(outcome.remaining, 3u);
            EXPECT_EQ(outcome.input, (Bytes{1, 2, 3}));
        }
    }
}

// The second step's tail is not reported: the unit at the end of the block is gone.
TEST(Utf32Conversion, LosesAHeldBackUnitOnTheWayToACodePage)
{
    const Outcome outcome = ConvertOne(encUTF32LE, encANSI, BytesOf(U"ab\uE000"));
    EXPECT_EQ(outcome.converted, BytesOf("ab"));
    EXPECT_EQ(outcome.remaining, 0u);
}

TEST(CodePageConversion, WritesAQuestionMarkForEachUnitThatThePageLacks)
{
    EXPECT_EQ(ConvertOne(encUTF16LE, encANSI, BytesOf(u"\u20AC\u0431\U0001F600!")).converted,
              (Bytes{0x80, '?', '?', '?', '!'}));
    EXPECT_EQ(ConvertOne(encUTF8, encANSI, BytesOf("\xD0\xB1!")).converted, BytesOf("?!"));
}

class SystemCodePage : public testing::Test
{
protected:
    ~SystemCodePage() override { platform::SetSystemCodePage(1252); }
};

TEST_F(SystemCodePage, CarriesADoubleByteCharacterOverACut)
{
    platform::SetSystemCodePage(932);
    const Bytes text = {'a', 0x82, 0xA0, 0x83, 0x5C, 'b', 0xB1, '\\'};
    for (std::size_t size = 1; size <= text.size(); ++size)
        EXPECT_EQ(ConvertStream(encANSI, encUTF16LE, text, [&] { return size; }),
                  BytesOf(u"a\u3042\u30BDb\uFF71\\"))
            << size;
    EXPECT_EQ(ConvertOne(encANSI, encUTF16LE, {'a', 0x82}).remaining, 1u);
}

TEST_F(SystemCodePage, MayBeUtf8)
{
    platform::SetSystemCodePage(65001);
    const Outcome outcome = ConvertOne(encANSI, encUTF16LE, BytesOf("caf\xC3\xA9\xE2\x82"));
    EXPECT_EQ(outcome.converted, BytesOf(u"caf\u00E9"));
    EXPECT_EQ(outcome.remaining, 2u);
}

TEST_F(SystemCodePage, ThatNobodyKnowsConvertsNothingAndKeepsTheOldBytes)
{
    OpenConverter converter(encUTF16LE, encANSI);
    ConvertOne(converter, BytesOf(u"before"));
    platform::SetSystemCodePage(4711);
    const Outcome out = ConvertOne(converter, BytesOf(u"text"));
    EXPECT_TRUE(out.result);
    EXPECT_EQ(out.remaining, 0u);
    EXPECT_EQ(out.converted, BytesOf("before"));
    converter.SetInputType(encANSI);
    converter.SetOutputType(encUTF16LE);
    const Outcome in = ConvertOne(converter, BytesOf("text"));
    EXPECT_EQ(in.remaining, 0u);
    EXPECT_EQ(in.converted, BytesOf("before"));
}

TEST(ByteOrderMarks, AreWrittenForTheEncodingsThatHaveOne)
{
    const std::pair<Converter::encodingType, Bytes> expected[] = {{encUTF8, {0xEF, 0xBB, 0xBF}},
                                                                  {encUTF16LE, {0xFF, 0xFE}},
                                                                  {encUTF16BE, {0xFE, 0xFF}},
                                                                  {encUTF32LE, {0xFF, 0xFE, 0, 0}},
                                                                  {encUTF32BE, {0, 0, 0xFE, 0xFF}},
                                                                  {encANSI, {}},
                                                                  {encUTF8Cookie, {}},
                                                                  {encUnknown, {}}};
    for (const auto& [encoding, mark] : expected) {
        OpenConverter converter(encUTF16LE, encUTF8);
        ConvertOne(converter, BytesOf(u"text"));
        converter.SetOutputType(encoding);
        converter.WriteHeader();
        EXPECT_EQ(converter.Converted(), mark) << encoding;
        unsigned char* data = nullptr;
        unsigned int size = 0;
        EXPECT_EQ(converter.GetConverted(&data, size), !mark.empty());
    }
}

TEST(ByteSwaps, LeaveWhatMakesNoWholeGroup)
{
    Bytes pairs = {1, 2, 3, 4, 5};
    OpenConverter::InternalSwapBuffer(pairs.data(), 5);
    EXPECT_EQ(pairs, (Bytes{2, 1, 4, 3, 5}));
    Bytes fours = {1, 2, 3, 4, 5, 6, 7};
    OpenConverter::InternalSwapUTF32CharBuffer(fours.data(), 7);
    EXPECT_EQ(fours, (Bytes{4, 3, 2, 1, 5, 6, 7}));
    OpenConverter::InternalSwapUTF32CharBuffer(fours.data(), 3);
    EXPECT_EQ(fours, (Bytes{4, 3, 2, 1, 5, 6, 7}));
}

// A pair is one word; every half that has no other is a word of its own.
TEST(Utf32Conversion, TellsHalvesFromPairsAtTheirLimits)
{
    const auto words = [](const std::u16string& text) {
        Converter converter;
        converter.SetInputType(encUTF16LE);
        converter.SetOutputType(encUTF32LE);
        std::u16string units = text + u".";
        auto length = static_cast<unsigned int>(units.size() * 2);
        unsigned int remaining = 0;
        converter.Convert(reinterpret_cast<unsigned char*>(units.data()), length, remaining);
        unsigned char* bytes = nullptr;
        unsigned int size = 0;
        converter.GetConverted(&bytes, size);
        std::u32string found(size / 4, U'\0');
        std::memcpy(found.data(), bytes, found.size() * 4);
        found.pop_back();
        return found;
    };
    EXPECT_EQ(words({0xD800, 0xDC00}), std::u32string({0x10000}));
    EXPECT_EQ(words({0xDBFF, 0xDFFF}), std::u32string({0x10FFFF}));
    EXPECT_EQ(words({0xD7FF, 0xDC00}), std::u32string({0xD7FF, 0xDC00}));
    EXPECT_EQ(words({0xD800, u'a'}), std::u32string({0xD800, U'a'}));
    EXPECT_EQ(words({0xD800, 0xDBFF}), std::u32string({0xD800, 0xDBFF}));
    EXPECT_EQ(words({0xD800, 0xE000}), std::u32string({0xD800, 0xE000}));
}
