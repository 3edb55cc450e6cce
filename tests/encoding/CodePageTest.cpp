// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/text/CodePage.h"
#include "platform/text/CodePageTable.h"
#include "tests/RandomSeed.h"
#include "tests/reference/SlowEncoding.h"

#include <gtest/gtest.h>

#include <iostream>
#include <memory>
#include <random>
#include <string>

#include <unicode/ucnv.h>

namespace {

std::u16string ToUnits(int codePage, std::string_view bytes)
{
    const auto size = static_cast<int>(bytes.size());
    std::u16string units(static_cast<std::size_t>(platform::MultiByteToWideChar(
                             codePage, bytes.data(), size, nullptr, 0)),
                         u'#');
    const auto room = static_cast<int>(units.size());
    EXPECT_EQ(platform::MultiByteToWideChar(codePage, bytes.data(), size, units.data(), room),
              room);
    return units;
}

std::string ToBytes(int codePage, std::u16string_view units)
{
    const auto size = static_cast<int>(units.size());
    std::string bytes(static_cast<std::size_t>(
                          platform::WideCharToMultiByte(codePage, units.data(), size, nullptr, 0)),
                      '#');
    const auto room = static_cast<int>(bytes.size());
    EXPECT_EQ(platform::WideCharToMultiByte(codePage, units.data(), size, bytes.data(), room),
              room);
    return bytes;
}

long Next(int codePage, std::string_view bytes)
{
    const char* const at = bytes.data();
    return platform::CharNextExA(codePage, at, at + bytes.size()) - at;
}

// ICU's own converter of a page. The names are those by which the code pages are commonly known.
std::u16string IcuToUnits(const char* name, const std::string& bytes)
{
    UErrorCode error = U_ZERO_ERROR;
    const std::unique_ptr<UConverter, decltype(&ucnv_close)> converter(ucnv_open(name, &error),
                                                                       ucnv_close);
    UChar units[8];
    const int count = ucnv_toUChars(converter.get(), units, 8, bytes.data(),
                                    static_cast<int>(bytes.size()), &error);
    EXPECT_TRUE(U_SUCCESS(error)) << name;
    return std::u16string(units, static_cast<std::size_t>(count));
}

} // namespace

struct NamedPage
{
    int number;
    const char* name;
};

class EverySingleBytePage : public testing::TestWithParam<NamedPage>
{};

INSTANTIATE_TEST_SUITE_P(
    CodePages, EverySingleBytePage,
    testing::Values(NamedPage{437, "cp437"}, NamedPage{850, "cp850"}, NamedPage{852, "cp852"},
                    NamedPage{858, "cp858"}, NamedPage{866, "cp866"}, NamedPage{874, "windows-874"},
                    NamedPage{1250, "windows-1250"}, NamedPage{1251, "windows-1251"},
                    NamedPage{1252, "windows-1252"}, NamedPage{1253, "windows-1253"},
                    NamedPage{1254, "windows-1254"}, NamedPage{1255, "windows-1255"},
                    NamedPage{1256, "windows-1256"}, NamedPage{1257, "windows-1257"},
                    NamedPage{1258, "windows-1258"}, NamedPage{10000, "macintosh"},
                    NamedPage{20127, "us-ascii"}, NamedPage{20866, "koi8-r"},
                    NamedPage{21866, "koi8-u"}, NamedPage{28591, "latin1"},
                    NamedPage{28592, "latin2"}, NamedPage{28593, "latin3"},
                    NamedPage{28594, "latin4"}, NamedPage{28595, "cyrillic"},
                    NamedPage{28596, "arabic"}, NamedPage{28597, "greek"},
                    NamedPage{28598, "hebrew"}, NamedPage{28599, "latin5"},
                    NamedPage{28600, "latin6"}, NamedPage{28603, "iso-8859-13"},
                    NamedPage{28604, "iso-8859-14"}, NamedPage{28605, "latin9"}),
    [](const auto& page) { return "Number" + std::to_string(page.param.number); });

TEST_P(EverySingleBytePage, MapsEveryByteAsIcuDoesAndBack)
{
    for (int byte = 0; byte < 256; ++byte) {
        const std::string text(1, static_cast<char>(byte));
        // In the PC pages ICU rotates three controls, which here stand for themselves.
        const std::u16string expected = byte < 0x80 ? std::u16string(1, static_cast<char16_t>(byte))
                                                    : IcuToUnits(GetParam().name, text);
        const std::u16string units = ToUnits(GetParam().number, text);
        ASSERT_EQ(units, expected) << byte;
        ASSERT_EQ(ToBytes(GetParam().number, units), units == u"\uFFFD" ? "?" : text) << byte;
    }
}

TEST(CodePages, AreAllToBeHadAndKeepAscii)
{
    std::string ascii;
    for (char byte = 1; byte > 0; ++byte) {
        ascii += byte;
        if (byte == 0x7F)
            break;
    }
    const std::u16string wide(ascii.begin(), ascii.end());
    for (const int page : platform::KnownCodePages()) {
        EXPECT_EQ(ToUnits(page, ascii), wide) << page;
        EXPECT_EQ(ToBytes(page, wide), ascii) << page;
    }
}

TEST(CodePages, OfZeroMeanTheSystemsWhichIsWindows1252)
{
    EXPECT_EQ(platform::GetSystemCodePage(), 1252);
    EXPECT_EQ(ToUnits(0, "\x80"), u"\u20AC");
    platform::SetSystemCodePage(1251);
    EXPECT_EQ(ToUnits(0, "\xE0"), u"\u0430");
    platform::SetSystemCodePage(1252);
}

TEST(CodePages, OfWindows1252HaveFiveControls)
{
    EXPECT_EQ(ToUnits(1252, "\x81\x8D\x8F\x90\x9D"), u"\x81\x8D\x8F\x90\x9D");
    EXPECT_EQ(ToBytes(1252, u"\x81\x8D\x8F\x90\x9D"), "\x81\x8D\x8F\x90\x9D");
    EXPECT_EQ(ToBytes(1252, u"\x80"), "?");
}

TEST(CodePages, ThatNobodyKnowsAnswerZero)
{
    char16_t unit = u'#';
    char byte = '#';
    for (const int page : {1, -1, 1200, 4711}) {
        EXPECT_EQ(platform::MultiByteToWideChar(page, "a", 1, &unit, 1), 0);
        EXPECT_EQ(platform::WideCharToMultiByte(page, u"a", 1, &byte, 1), 0);
        EXPECT_EQ(platform::MaxUnitCount(page, 1), 0);
        EXPECT_EQ(platform::MaxByteCount(page, 1), 0);
    }
    EXPECT_EQ(unit, u'#');
    EXPECT_EQ(byte, '#');
}

TEST(CodePages, TakeATerminatedTextWithItsEnd)
{
    char16_t units[8] = {};
    EXPECT_EQ(platform::MultiByteToWideChar(1252, "ab\xE9", -1, units, 8), 4);
    EXPECT_EQ(std::u16string(units, 4), std::u16string(u"ab\u00E9\0", 4));
    char bytes[8] = {};
    EXPECT_EQ(platform::WideCharToMultiByte(65001, u"ab\u00E9", -1, bytes, 8), 5);
    EXPECT_EQ(std::string(bytes, 5), std::string("ab\xC3\xA9\0", 5));
}

TEST(CodePages, WriteNothingWithoutRoomForAll)
{
    for (const int page : {1252, 932, 54936, 65001}) {
        char16_t units[] = u"####";
        EXPECT_EQ(platform::MultiByteToWideChar(page, "abc", 3, units, 2), 0) << page;
        EXPECT_EQ(platform::MultiByteToWideChar(page, "abc", 0, units, 2), 0) << page;
        EXPECT_EQ(platform::MultiByteToWideChar(page, "abc", -2, units, 2), 0) << page;
        EXPECT_EQ(units, std::u16string(u"####")) << page;
        char bytes[] = "####";
        EXPECT_EQ(platform::WideCharToMultiByte(page, u"abc", 3, bytes, 2), 0) << page;
        EXPECT_EQ(bytes, std::string("####")) << page;
    }
}

TEST(CodePages, WriteAQuestionMarkForEachUnitTheyLack)
{
    for (const int page : {1252, 932, 949, 51932})
        EXPECT_EQ(ToBytes(page, u"a\U0001F600\u0E01z"), "a???z") << page;
    EXPECT_EQ(ToBytes(1252, u"\u0100\u2002\uFF21"), "???");
    EXPECT_EQ(ToBytes(932, std::u16string{u'a', 0xD83D, u'z'}), "a?z");
}

TEST(CodePages, ReplaceWhatIsNoCharacter)
{
    EXPECT_EQ(ToUnits(65001, "a\xC3"), u"a\uFFFD");
    EXPECT_EQ(ToUnits(65001, "\xF0\x9F\x98z\x80"), u"\uFFFDz\uFFFD");
    EXPECT_EQ(ToUnits(932, "a\x82"), u"a\uFFFD");
    EXPECT_EQ(ToBytes(65001, std::u16string{0xDC00, u'a', 0xD800}), "\xEF\xBF\xBD"
                                                                    "a\xEF\xBF\xBD");
}

// The room ends where its memory ends, for a sanitizer to watch.
// The first and the last of each half, before and behind what makes a pair of them or does not.
TEST(CodePages, TellHalvesFromPairsAtTheirLimits)
{
    const std::string lone = "\xEF\xBF\xBD";
    EXPECT_EQ(ToBytes(65001, std::u16string{0xD800, 0xDC00}), "\xF0\x90\x80\x80");
    EXPECT_EQ(ToBytes(65001, std::u16string{0xDBFF, 0xDFFF}), "\xF4\x8F\xBF\xBF");
    EXPECT_EQ(ToBytes(65001, std::u16string{0xD7FF, 0xE000}), "\xED\x9F\xBF\xEE\x80\x80");
    EXPECT_EQ(ToBytes(65001, std::u16string{0xD800, 0xE000}), lone + "\xEE\x80\x80");
    EXPECT_EQ(ToBytes(65001, std::u16string{0xD800, 0xDBFF}), lone + lone);
    EXPECT_EQ(ToBytes(65001, std::u16string{0xDC00, 0xDC00}), lone + lone);
    EXPECT_EQ(ToBytes(65001, std::u16string{0xD800, u'a'}), lone + "a");
    EXPECT_EQ(ToBytes(65001, std::u16string{0xD800, 0xD800, 0xDC00}), lone + "\xF0\x90\x80\x80");
}

TEST(CodePages, FillExactlyTheRoomThatWasMeasured)
{
    const unsigned int seed = RandomSeed();
    std::cout << "seed " << seed << '\n';
    std::mt19937 random(seed);
    static constexpr char32_t kFirst[] = {0x80, 0xE0, 0x431, 0x800, 0x4E2D, 0xF000, 0x1F600};
    for (int round = 0; round < 20000; ++round) {
        const std::size_t kinds = 1 + random() % std::size(kFirst);
        std::u32string text;
        for (std::size_t i = random() % 80; i > 0; --i)
            text +=
                random() % 3 == 0 ? kFirst[random() % kinds] + random() % 16 : U'a' + random() % 9;
        const std::vector<std::uint8_t> expected = reference::Encode(text, 6);
        const std::vector<std::uint8_t> pairs = reference::Encode(text, 2);
        const auto unitCount = static_cast<int>(pairs.size() / 2);
        const std::unique_ptr<char16_t[]> units(new char16_t[pairs.size() / 2]);
        std::copy(pairs.begin(), pairs.end(), reinterpret_cast<unsigned char*>(units.get()));

        const auto size = static_cast<int>(expected.size());
        ASSERT_EQ(platform::WideCharToMultiByte(65001, units.get(), unitCount, nullptr, 0), size);
        const std::unique_ptr<char[]> bytes(new char[expected.size()]);
        ASSERT_EQ(platform::WideCharToMultiByte(65001, units.get(), unitCount, bytes.get(), size),
                  size);
        ASSERT_TRUE(std::equal(expected.begin(), expected.end(),
                               reinterpret_cast<unsigned char*>(bytes.get())));

        ASSERT_EQ(platform::MultiByteToWideChar(65001, bytes.get(), size, nullptr, 0), unitCount);
        const std::unique_ptr<char16_t[]> back(new char16_t[pairs.size() / 2]);
        ASSERT_EQ(platform::MultiByteToWideChar(65001, bytes.get(), size, back.get(), unitCount),
                  unitCount);
        ASSERT_TRUE(std::equal(units.get(), units.get() + unitCount, back.get()));
    }
}

class EveryMultiBytePage : public testing::TestWithParam<NamedPage>
{};

INSTANTIATE_TEST_SUITE_P(
    CodePages, EveryMultiBytePage,
    testing::Values(NamedPage{932, "windows-31j"}, NamedPage{936, "windows-936-2000"},
                    NamedPage{949, "windows-949-2000"}, NamedPage{950, "windows-950-2000"},
                    NamedPage{51949, "euc-kr"}, NamedPage{51936, "euc-cn"},
                    NamedPage{51932, "euc-jp-2007"}, NamedPage{54936, "gb18030"}),
    [](const auto& page) { return "Number" + std::to_string(page.param.number); });

TEST_P(EveryMultiBytePage, MapsEveryCharacterBothWaysAndWalksOverIt)
{
    UErrorCode error = U_ZERO_ERROR;
    const std::unique_ptr<UConverter, decltype(&ucnv_close)> icu(ucnv_open(GetParam().name, &error),
                                                                 ucnv_close);
    ucnv_setFromUCallBack(icu.get(), UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &error);
    int known = 0;
    for (unsigned int unit = 0x80; unit < 0x10000; ++unit) {
        if (unit >= 0xD800 && unit < 0xE000)
            continue;
        const auto text = static_cast<UChar>(unit);
        char bytes[8];
        error = U_ZERO_ERROR;
        const int size = ucnv_fromUChars(icu.get(), bytes, 8, &text, 1, &error);
        if (U_FAILURE(error) || size == 0) {
            ASSERT_EQ(ToBytes(GetParam().number, {&text, 1}), "?") << unit;
            continue;
        }
        const std::string expected(bytes, static_cast<std::size_t>(size));
        ASSERT_EQ(ToBytes(GetParam().number, {&text, 1}), expected) << unit;
        ASSERT_EQ(ToUnits(GetParam().number, expected), IcuToUnits(GetParam().name, expected))
            << unit;
        ASSERT_EQ(Next(GetParam().number, expected + "ab"), size) << unit;
        ASSERT_EQ(Next(GetParam().number, expected.substr(0, expected.size() - 1)), 0) << unit;
        ++known;
    }
    EXPECT_GT(known, 5000);
}

TEST(CharNext, StaysAtANulAndAtTheEnd)
{
    for (const int page : {0, 1252, 932, 54936, 65001, 4711}) {
        EXPECT_EQ(Next(page, std::string_view("\0a", 2)), 0) << page;
        EXPECT_EQ(Next(page, ""), 0) << page;
        EXPECT_EQ(Next(page, "ab"), 1) << page;
    }
}

TEST(CharNext, LetsALeadByteBeforeANulStandAlone)
{
    EXPECT_EQ(Next(932, std::string_view("\x82\0", 2)), 1);
    EXPECT_EQ(Next(932, "\x82\xA0"), 2);
    EXPECT_EQ(Next(932, "\xB1\xA0"), 1);
    EXPECT_EQ(Next(932, "\x82"), 0);
    EXPECT_EQ(Next(54936, "\x81\x30\x81\x30"), 4);
    EXPECT_EQ(Next(54936, "\x81\x30\x81"), 0);
    EXPECT_EQ(Next(51932, "\x8F\xA2\xAF"), 3);
}

TEST(CharNext, IsWhatAWalkIsMadeOf)
{
    std::mt19937 random(20240229);
    for (int round = 0; round < 20000; ++round) {
        std::string bytes(random() % 40, 'a');
        for (char& byte : bytes)
            byte = static_cast<char>(random() % 40 == 0 ? 0 : random() % 2 ? 'a' : random());
        for (const int page : {0, 1252, 932, 51932, 54936, 65001, 4711}) {
            std::size_t at = 0;
            std::size_t step = 1;
            while (step != 0) {
                step = static_cast<std::size_t>(Next(page, std::string_view(bytes).substr(at)));
                at += step;
            }
            ASSERT_EQ(platform::WalkCharacters(page, bytes.data(), bytes.size()), at)
                << page << ", round " << round;
        }
    }
}

TEST(ReverseStatistics, TellWhichByteOfEachPairVaries)
{
    const std::u16string little = u"\u0431\u044F\u0432\u0451\u0430";
    std::u16string big = little;
    for (char16_t& unit : big)
        unit = static_cast<char16_t>(unit << 8 | unit >> 8);
    int tests = platform::IS_TEXT_UNICODE_REVERSE_STATISTICS;
    EXPECT_TRUE(platform::IsTextUnicode(big.data(), 10, &tests));
    EXPECT_EQ(tests, platform::IS_TEXT_UNICODE_REVERSE_STATISTICS);
    EXPECT_FALSE(platform::IsTextUnicode(little.data(), 10, &tests));
    EXPECT_EQ(tests, 0);
}

TEST(ReverseStatistics, SayNoToNothingAndToOtherTests)
{
    int tests = platform::IS_TEXT_UNICODE_REVERSE_STATISTICS;
    EXPECT_FALSE(platform::IsTextUnicode("", 0, &tests));
    tests = 0;
    EXPECT_FALSE(platform::IsTextUnicode("\0a\0b", 4, &tests));
    tests = 0x22;
    EXPECT_FALSE(platform::IsTextUnicode("\0a\0z\0b", 6, &tests));
    EXPECT_EQ(tests, 0x20);
}
