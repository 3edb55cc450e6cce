// SPDX-License-Identifier: GPL-3.0-or-later
// The engine's search against the stock engine's own, on what both know.
#include "engine/text/Utf.h"
#include "tests/RandomSeed.h"
#include "tests/engine/EngineFixture.h"
#include "tests/engine/StockSearch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <random>

namespace msg = engine::message;

namespace {

constexpr int kWholeWord = 2;
constexpr int kMatchCase = 4;
constexpr int kWordStart = 0x100000;
constexpr int kExpression = 0x200000;
constexpr int kPosix = 0x400000;
constexpr int kTexts = 600;
constexpr int kSearches = 40; // in each text

using Match = StockSearch::Match;

class Duel
{
public:
    explicit Duel(unsigned seed) : m_random(seed) {}

    long Pick(long first, long last)
    {
        return std::uniform_int_distribution<long>(first, last)(m_random);
    }
    bool Chance(int percent) { return Pick(1, 100) <= percent; }

    template <typename Pieces>
    std::string Make(const Pieces& pieces, long length)
    {
        std::string text;
        for (long i = 0; i < length; ++i)
            text +=
                pieces[static_cast<std::size_t>(Pick(0, static_cast<long>(std::size(pieces)) - 1))];
        return text;
    }

    // The same text in both; in ours it comes in two parts, which leaves a gap between them.
    void SetText(const std::string& text)
    {
        m_text = text;
        m_stock.SetText(text);
        m_starts.clear();
        for (std::size_t i = 0; i <= text.size(); ++i) {
            const bool insideCharacter = i < text.size() && (text[i] & 0xC0) == 0x80;
            const bool insideLineEnd =
                i > 0 && i < text.size() && text[i - 1] == '\r' && text[i] == '\n';
            if (!insideCharacter && !insideLineEnd)
                m_starts.push_back(static_cast<long>(i));
        }
        const auto seam = static_cast<std::size_t>(Place());
        m_ours.SetText(u"");
        m_ours.Insert(0, engine::ToUtf16(text.substr(seam)));
        m_ours.Insert(0, engine::ToUtf16(text.substr(0, seam)));
    }

    void SetWordChars(const std::string& characters)
    {
        m_words = characters;
        m_stock.SetWordChars(characters);
        m_ours.Send(msg::SetWordChars, 0, engine::ToUtf16(characters).c_str());
    }

    long Place()
    {
        return m_starts[static_cast<std::size_t>(Pick(0, static_cast<long>(m_starts.size()) - 1))];
    }

    void Compare(const std::string& sought, int flags, long from, long to)
    {
        const Match expected = m_stock.Find(sought, flags, from, to);
        EXPECT_EQ(Ours(sought, flags, from, to), expected)
            << testing::PrintToString(sought) << " in " << testing::PrintToString(m_text)
            << " from " << from << " to " << to << " with " << std::hex << flags << ", words "
            << testing::PrintToString(m_words);
        m_found += expected.start >= 0;
    }

    void Compare(const std::string& sought, int flags) { Compare(sought, flags, Place(), Place()); }

    const std::string& Text() const { return m_text; }
    long Found() const { return m_found; }

private:
    Match Ours(const std::string& sought, int flags, long from, long to)
    {
        const std::u16string wide = engine::ToUtf16(sought);
        m_ours.Send(msg::SetSearchFlags, static_cast<WPARAM>(flags));
        m_ours.Send(msg::SetTargetStart, static_cast<WPARAM>(Units(from)));
        m_ours.Send(msg::SetTargetEnd, static_cast<WPARAM>(Units(to)));
        const long found = m_ours.Send(msg::SearchInTarget, wide.size(), wide.data());
        if (found < 0)
            return {};
        EXPECT_EQ(m_ours.Send(msg::GetTargetStart), found);
        return {Bytes(found), Bytes(m_ours.Send(msg::GetTargetEnd))};
    }

    long Units(long bytes) const
    {
        return engine::CountUnits(
            std::string_view(m_text).substr(0, static_cast<std::size_t>(bytes)));
    }
    // The end of the characters that have this many units.
    long Bytes(long units) const
    {
        std::size_t bytes = 0;
        for (long seen = 0; seen < units;) {
            const auto lead = static_cast<unsigned char>(m_text[bytes]);
            bytes += lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
            seen += lead < 0xF0 ? 1 : 2;
        }
        return static_cast<long>(bytes);
    }

    std::mt19937 m_random;
    StockSearch m_stock;
    EngineUnderTest m_ours;
    std::string m_text;
    std::string m_words;
    std::vector<long> m_starts; // places of characters, line ends being one
    long m_found = 0;
};

unsigned NewSeed()
{
    const unsigned seed = RandomSeed();
    std::cout << "seed " << seed << std::endl;
    return seed;
}

std::string SomePiece(Duel& duel)
{
    const std::string& text = duel.Text();
    auto start = static_cast<std::size_t>(duel.Place());
    auto end = static_cast<std::size_t>(duel.Place());
    if (end < start)
        std::swap(start, end);
    return text.substr(
        start, std::min<std::size_t>(end - start, 1 + static_cast<std::size_t>(duel.Pick(0, 7))));
}

// Up to whole characters.
std::string Whole(std::string text)
{
    while (!text.empty()) {
        const auto lead = text.find_last_not_of("\x80\x81\x82\x84\x94\x98\x9F\xA9\xAD\xB8\xB6\xBC");
        if (lead == std::string::npos)
            return {};
        const auto byte = static_cast<unsigned char>(text[lead]);
        const std::size_t size = byte < 0x80 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
        if (text.size() - lead == size)
            return text;
        text.resize(lead);
    }
    return text;
}

std::string SomePattern(Duel& duel)
{
    static const char* const kItems[] = {
        "a",       "b",        "A",          " ",     ".",        "[ab]",     "[^a]",    "[^b ]",
        "[A-b]",   "[a-c-e]",  "[z-a]",      "[]a]",  "[-a]",     "[^]-]",    R"(\w)",   R"(\W)",
        R"(\d)",   R"(\D)",    R"(\s)",      R"(\S)", R"(\.)",    R"(\x61)",  R"(\a)",   R"(\t)",
        "_",       "1",        "$a",         "^",     R"([\d_])", R"([\w.])", R"([\D])", R"([\S])",
        R"([\W])", R"([^\W])", R"([\x61b])", "(",     "{"};
    std::string pattern;
    int groups = 0;
    int open = 0;
    bool openIsEmpty = false;
    if (duel.Chance(15))
        pattern += '^';
    const long items = duel.Pick(1, 5);
    for (long i = 0; i < items; ++i) {
        if (duel.Chance(12) && groups < 9) {
            pattern += R"(\()";
            ++groups;
            ++open;
        }
        if (duel.Chance(8) && groups > 0 && open == 0) {
            pattern += '\\' + std::to_string(duel.Pick(1, groups));
        } else {
            std::string item = kItems[static_cast<std::size_t>(
                duel.Pick(0, static_cast<long>(std::size(kItems)) - 1))];
            if (item == "^" && pattern.empty())
                item = "a";
            pattern += item;
            // Behind a set, and a letter without case is one, the stock engine takes ? for *.
            if (duel.Chance(30))
                pattern +=
                    item == "." || item == " " ? "*+?"[duel.Pick(0, 2)] : "*+"[duel.Pick(0, 1)];
        }
        openIsEmpty = false;
        while (open > 0 && !openIsEmpty && duel.Chance(50)) {
            pattern += R"(\))";
            --open;
        }
    }
    for (; open > 0; --open)
        pattern += R"(\))";
    if (duel.Chance(15))
        pattern += '$';
    return pattern;
}

constexpr const char* kAsciiPieces[] = {"a",  "b",    "A",  "B",  " ", "_",  ".", "1",
                                        "\n", "\r\n", "\r", "\t", "-", "aa", "$", "^"};
constexpr const char* kMixedPieces[] = {
    "a", "b", "A", " ", ".", "\xC3\xA9", "\xE4\xB8\xAD", "\xF0\x9F\x98\x80", "\n", "\r\n"};
// No letters that have a case: the stock engine folds ASCII only.
constexpr const char* kCaselessPieces[] = {
    "a", "b", "A", "B", " ", "\xE4\xB8\xAD", "\xF0\x9F\x98\x80", "\n"};

constexpr const char* kWordPieces[] = {"a", "A", "b1", "_", ".-", "B$"};

int SomeWordFlags(Duel& duel)
{
    return (duel.Chance(30) ? kWholeWord : 0) | (duel.Chance(20) ? kWordStart : 0);
}

} // namespace

TEST(SearchBesideStock, FindsTheSameTextsInAscii)
{
    Duel duel(NewSeed());
    for (int i = 0; i < kTexts && !testing::Test::HasFailure(); ++i) {
        duel.SetText(duel.Make(kAsciiPieces, duel.Pick(0, 90)));
        for (int k = 0; k < kSearches; ++k) {
            const std::string sought =
                duel.Chance(70) ? SomePiece(duel) : duel.Make(kAsciiPieces, 2);
            duel.Compare(sought, SomeWordFlags(duel) | (duel.Chance(50) ? kMatchCase : 0));
        }
    }
    EXPECT_GT(duel.Found(), kTexts);
}

TEST(SearchBesideStock, FindsTheSameTextsOutsideAscii)
{
    Duel duel(NewSeed());
    for (int i = 0; i < kTexts && !testing::Test::HasFailure(); ++i) {
        const bool matchCase = duel.Chance(50);
        duel.SetText(matchCase ? duel.Make(kMixedPieces, duel.Pick(0, 60))
                               : duel.Make(kCaselessPieces, duel.Pick(0, 60)));
        for (int k = 0; k < kSearches; ++k)
            duel.Compare(Whole(SomePiece(duel)),
                         SomeWordFlags(duel) | (matchCase ? kMatchCase : 0));
    }
    EXPECT_GT(duel.Found(), kTexts);
}

TEST(SearchBesideStock, FindsTheSameTextsInLongLines)
{
    Duel duel(NewSeed());
    for (int i = 0; i < 30 && !testing::Test::HasFailure(); ++i) {
        duel.SetText(duel.Make(kAsciiPieces, 3000));
        for (int k = 0; k < kSearches; ++k) {
            const std::string sought =
                duel.Chance(70) ? SomePiece(duel) : duel.Make(kAsciiPieces, 4);
            duel.Compare(sought, SomeWordFlags(duel) | (duel.Chance(50) ? kMatchCase : 0));
        }
    }
    EXPECT_GT(duel.Found(), 30);
}

TEST(SearchBesideStock, TakesTheWordsThatAreSet)
{
    Duel duel(NewSeed());
    for (int i = 0; i < kTexts && !testing::Test::HasFailure(); ++i) {
        duel.SetWordChars(duel.Make(kWordPieces, 3));
        duel.SetText(duel.Make(kAsciiPieces, duel.Pick(0, 60)));
        for (int k = 0; k < kSearches; ++k) {
            duel.Compare(SomePiece(duel), duel.Chance(50) ? kWholeWord : kWordStart);
            // Without case the stock engine folds the letters of words only.
            duel.Compare(duel.Chance(50) ? R"(\w+)" : R"([\W]a)", kExpression | kMatchCase);
        }
    }
    EXPECT_GT(duel.Found(), kTexts);
}

TEST(SearchBesideStock, FindsTheSameExpressions)
{
    constexpr int kPatterns = 8; // on each text; to compile one takes longer than to search
    Duel duel(NewSeed());
    for (int i = 0; i < kTexts && !testing::Test::HasFailure(); ++i) {
        duel.SetText(duel.Make(kAsciiPieces, duel.Pick(0, 60)));
        for (int k = 0; k < kPatterns; ++k) {
            const std::string pattern = SomePattern(duel);
            const int flags =
                kExpression | (duel.Chance(50) ? kMatchCase : 0) | SomeWordFlags(duel);
            for (int range = 0; range < kSearches / kPatterns; ++range)
                duel.Compare(pattern, flags);
        }
    }
    EXPECT_GT(duel.Found(), kTexts);
}

TEST(SearchBesideStock, FindsTheSameExpressionsOutsideAscii)
{
    static constexpr const char* kPatterns[] = {"\xC3\xA9 *",
                                                "a*\xE4\xB8\xAD",
                                                "\xF0\x9F\x98\x80$",
                                                "^\xC3\xA9",
                                                "\\(\xC3\xA9\\)a",
                                                "\\(\xE4\xB8\xAD\\)\\1",
                                                "$",
                                                "^"};
    Duel duel(NewSeed());
    for (int i = 0; i < kTexts && !testing::Test::HasFailure(); ++i) {
        duel.SetText(duel.Make(kMixedPieces, duel.Pick(0, 40)));
        for (const char* pattern : kPatterns)
            duel.Compare(pattern, kExpression | kMatchCase);
    }
    EXPECT_GT(duel.Found(), kTexts);
}

// The stock engine takes the start of every range for a word's start, too.
TEST(SearchBesideStock, FindsTheSameEdgesOfWordsFromTheTextsStart)
{
    static constexpr const char* kPatterns[] = {R"(\<a)",  R"(b\>)",  R"(\<\w+\>)",
                                                R"(\<.b)", R"(a\> )", R"(\>)"};
    Duel duel(NewSeed());
    for (int i = 0; i < kTexts && !testing::Test::HasFailure(); ++i) {
        duel.SetText(duel.Make(kAsciiPieces, duel.Pick(0, 40)));
        const auto end = static_cast<long>(duel.Text().size());
        for (const char* pattern : kPatterns)
            duel.Compare(pattern, kExpression, 0, end);
    }
    EXPECT_GT(duel.Found(), kTexts);
}

TEST(SearchBesideStock, GroupsByPlainBracketsUnderThePosixFlag)
{
    static constexpr const char* kPatterns[] = {"(a)b",     R"(\(a)", "(a.)(b)",
                                                R"((a)\1)", "(a",     "a)"};
    Duel duel(NewSeed());
    static constexpr const char* kPieces[] = {"a", "b", "(", ")", " "};
    for (int i = 0; i < kTexts && !testing::Test::HasFailure(); ++i) {
        duel.SetText(duel.Make(kPieces, duel.Pick(0, 40)));
        for (const char* pattern : kPatterns)
            duel.Compare(pattern, kExpression | kPosix);
    }
    EXPECT_GT(duel.Found(), kTexts / 2);
}
