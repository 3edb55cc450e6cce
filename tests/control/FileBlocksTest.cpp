// SPDX-License-Identifier: GPL-3.0-or-later
// Files as UTF-16, block by block: what a seam does to a character, with and without care.
#include "control/FileBlocks.h"
#include "tests/RandomSeed.h"

#include <gtest/gtest.h>

#include <iostream>
#include <memory>
#include <random>
#include <string>

#include <unistd.h>

namespace {

constexpr auto kUtf8 = FileEncodeConverter::encUTF8;
constexpr auto kUtf16 = FileEncodeConverter::encUTF16LE;

struct Loaded
{
    std::u16string text;
    bool rest = false;
    bool operator==(const Loaded&) const = default;
};

struct CloseFile
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};

Loaded TakeAll(FileBlocks& blocks)
{
    Loaded loaded;
    const char16_t* text = nullptr;
    long length = 0;
    while (blocks.Text(text, length)) {
        loaded.text.append(text, static_cast<std::size_t>(length));
        blocks.Advance();
    }
    loaded.rest = blocks.HasRest();
    return loaded;
}

Loaded Load(std::string bytes, const SeamRule& rule, FileEncodeConverter::encodingType encoding)
{
    const std::unique_ptr<std::FILE, CloseFile> file(std::tmpfile());
    std::fwrite(bytes.data(), 1, bytes.size(), file.get());
    std::rewind(file.get());
    FileBlocks blocks(file.get(), rule);
    bool hadMark = false;
    blocks.Start(encoding, hadMark);
    return TakeAll(blocks);
}

long long Estimated(const std::string& bytes, FileEncodeConverter::encodingType encoding)
{
    const std::unique_ptr<std::FILE, CloseFile> file(std::tmpfile());
    std::fwrite(bytes.data(), 1, bytes.size(), file.get());
    std::rewind(file.get());
    FileBlocks blocks(file.get(), {true, true, true});
    bool hadMark = false;
    blocks.Start(encoding, hadMark);
    return blocks.EstimatedUtf8(static_cast<long long>(bytes.size()));
}

TEST(FileBlocks, TellHowMuchRoomTheWholeTextTakes)
{
    std::string wide;
    std::string ansi;
    for (int i = 0; i < 100000; ++i) {
        wide += i % 10 == 0 ? std::string("\xE9\0", 2) : std::string("a\0", 2);
        ansi += i % 10 == 0 ? '\xE9' : 'a';
    }
    for (const long long told :
         {Estimated(wide, kUtf16), Estimated(ansi, FileEncodeConverter::encANSI)}) {
        EXPECT_GE(told, 110000);
        EXPECT_LE(told, 112000);
    }
    EXPECT_EQ(Estimated(std::string(50000, 'a'), FileEncodeConverter::encANSI), 50000);
    EXPECT_EQ(Estimated(std::string(50000, '\xE9'), kUtf8), 50000); // the file's own size
    EXPECT_EQ(Estimated("", kUtf16), 0);
}

const std::string kAcute = "\xC3\xA9"; // two bytes

// The text of a file to which something happens behind its first block.
Loaded LoadWhile(const std::string& bytes, void (*happens)(std::FILE* writer))
{
    const std::unique_ptr<std::FILE, CloseFile> file(std::tmpfile());
    std::fwrite(bytes.data(), 1, bytes.size(), file.get());
    std::fflush(file.get());
    const std::unique_ptr<std::FILE, CloseFile> reader(
        std::fopen(("/proc/self/fd/" + std::to_string(fileno(file.get()))).c_str(), "rb"));
    FileBlocks blocks(reader.get(), kCarefulFiles.load);
    bool hadMark = false;
    blocks.Start(kUtf8, hadMark);
    happens(file.get());
    return TakeAll(blocks);
}

TEST(ChangingFile, WhatIsAppendedDuringTheLoadIsRead)
{
    const Loaded loaded = LoadWhile(std::string(20000, 'a'), [](std::FILE* writer) {
        std::fputs("zz", writer);
        std::fflush(writer);
    });
    EXPECT_EQ(loaded, (Loaded{std::u16string(20000, u'a') + u"zz", false}));
}

TEST(ChangingFile, ALoadEndsWhereTheFileIsCut)
{
    const Loaded loaded = LoadWhile(std::string(50000, 'a'), [](std::FILE* writer) {
        ASSERT_EQ(ftruncate(fileno(writer), 30000), 0);
    });
    EXPECT_EQ(loaded, (Loaded{std::u16string(30000, u'a'), false}));
}

TEST(ChangingFile, AFileThatIsEmptiedKeepsItsFirstBlock)
{
    const Loaded loaded = LoadWhile(std::string(50000, 'a'), [](std::FILE* writer) {
        ASSERT_EQ(ftruncate(fileno(writer), 0), 0);
    });
    EXPECT_EQ(loaded, (Loaded{std::u16string(8192, u'a'), false}));
}

TEST(Seams, ACharacterOverTheFirstOneLosesABytesOfItself)
{
    const std::string bytes = std::string(8191, 'a') + kAcute + std::string(100, 'b');
    const Loaded plain = Load(bytes, kPlainFiles.load, kUtf8);
    // The lead byte is carried, but the block behind it is converted a byte short.
    EXPECT_EQ(plain.text, std::u16string(8191, u'a') + u"\u00e9" + std::u16string(99, u'b'));
    EXPECT_FALSE(plain.rest);
    const Loaded whole{std::u16string(8191, u'a') + u"\u00e9" + std::u16string(100, u'b'), false};
    EXPECT_EQ(Load(bytes, kPlainFiles.replace, kUtf8), whole);
    EXPECT_EQ(Load(bytes, kCarefulFiles.load, kUtf8), whole);
}

TEST(Seams, AMarkMovesTheTailOfTheFirstBlock)
{
    const std::string bytes =
        "\xEF\xBB\xBF" + std::string(8188, 'a') + kAcute + std::string(100, 'b');
    const std::u16string whole = std::u16string(8188, u'a') + u"\u00e9" + std::u16string(100, u'b');
    EXPECT_NE(Load(bytes, kPlainFiles.load, kUtf8).text, whole);
    EXPECT_NE(Load(bytes, kPlainFiles.replace, kUtf8).text, whole);
    EXPECT_EQ(Load(bytes, kCarefulFiles.load, kUtf8), (Loaded{whole, false}));
}

TEST(Seams, ATailThatWouldBeFetchedFromBehindTheBufferIsTheTrueOne)
{
    const std::string bytes =
        std::string(8192 + 8191, 'a') + kAcute + std::string(8191, 'c') + kAcute;
    const Loaded plain = Load(bytes, kPlainFiles.load, kUtf8);
    EXPECT_EQ(plain.text.substr(8192 + 8191, 1), u"\u00e9");
}

TEST(Seams, OneBlockWithAMarkLoadsWithoutIt)
{
    const std::string bytes = "\xEF\xBB\xBF" + std::string(8189, 'a');
    for (const SeamRule& rule : {kPlainFiles.load, kPlainFiles.replace, kCarefulFiles.load})
        EXPECT_EQ(Load(bytes, rule, FileEncodeConverter::encUnknown),
                  (Loaded{std::u16string(8189, u'a'), false}));
}

TEST(Seams, AMarkAloneIsAnEmptyText)
{
    for (const std::string mark : {"\xFF\xFE", "\xFE\xFF", "\xEF\xBB\xBF"}) {
        EXPECT_EQ(Load(mark, kPlainFiles.load, FileEncodeConverter::encUnknown), Loaded{});
        EXPECT_EQ(Load(mark, kCarefulFiles.load, FileEncodeConverter::encUnknown), Loaded{});
    }
}

TEST(Seams, ATruncatedLastCharacterIsARest)
{
    EXPECT_EQ(Load("ab\xE4\xB8", kCarefulFiles.load, kUtf8), (Loaded{u"ab", true}));
    EXPECT_EQ(Load("ab\xE4\xB8", kPlainFiles.load, kUtf8), (Loaded{u"ab", true}));
    EXPECT_EQ(Load(std::string("a\0b", 3), kCarefulFiles.load, kUtf16), (Loaded{u"a", true}));
}

// The bytes that the text has in a file of the encoding.
std::string Encoded(const std::u16string& text, FileEncodeConverter::encodingType encoding)
{
    FileEncodeConverter converter;
    converter.SetInputType(kUtf16);
    converter.SetOutputType(encoding);
    std::u16string input = text;
    auto length = static_cast<unsigned int>(input.size() * 2);
    unsigned int remaining = 0;
    converter.Convert(reinterpret_cast<unsigned char*>(input.data()), length, remaining);
    unsigned char* data = nullptr;
    unsigned int size = 0;
    converter.GetConverted(&data, size);
    return std::string(reinterpret_cast<const char*>(data), size);
}

// A text with every length of character, U+E000 among them, that no ".\n" at its end divides.
std::u16string RandomText(std::mt19937& random, std::size_t units)
{
    constexpr std::u16string_view kPieces[] = {u"a",      u"b\r\n",      u"\u00e9", u"\u0436",
                                               u"\u4e2d", u"\U0001F600", u"\xE000", u"\uFFFD"};
    std::u16string text;
    const bool ascii = random() % 4 == 0;
    while (text.size() < units)
        text += kPieces[ascii ? 0 : random() % std::size(kPieces)];
    return text + u".\n";
}

TEST(Seams, CareCarriesEveryCharacterOverEverySeam)
{
    const auto seed = RandomSeed();
    std::cout << "seed " << seed << '\n';
    std::mt19937 random(seed);
    constexpr FileEncodeConverter::encodingType kAll[] = {kUtf16, FileEncodeConverter::encUTF16BE,
                                                          kUtf8, FileEncodeConverter::encUTF32LE,
                                                          FileEncodeConverter::encUTF32BE};
    for (int round = 0; round < 600; ++round) {
        const std::u16string text = RandomText(random, 4000 + random() % 14000);
        for (const auto encoding : kAll) {
            const std::string bytes = Encoded(text, encoding);
            ASSERT_EQ(Load(bytes, kCarefulFiles.load, encoding), (Loaded{text, false}))
                << "encoding " << encoding << " round " << round;
        }
    }
}

TEST(Seams, CareKeepsALastCharacterThatTheConverterLeaves)
{
    EXPECT_EQ(Load(std::string("a\0\0\xE0", 4), kPlainFiles.load, kUtf16), (Loaded{u"a", true}));
    EXPECT_EQ(Load(std::string("a\0\0\xE0", 4), kCarefulFiles.load, kUtf16),
              (Loaded{u"a\xE000", false}));
    EXPECT_EQ(Load(std::string("\xFE\xFF\xE0\0", 4), kCarefulFiles.load, kUtf16),
              (Loaded{u"\xE000", false}));
    // A pair behind U+E000 is divided by the converter; both halves arrive.
    EXPECT_EQ(Load(std::string("\0\xE0\x3D\xD8\0\xDE", 6), kCarefulFiles.load, kUtf16),
              (Loaded{u"\xE000\U0001F600", false}));
    // Half a pair at the end is no character.
    EXPECT_EQ(Load(std::string("a\0\x3D\xD8", 4), kCarefulFiles.load, kUtf16),
              (Loaded{u"a", true}));
}

} // namespace
