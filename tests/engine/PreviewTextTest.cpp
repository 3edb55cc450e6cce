// SPDX-License-Identifier: GPL-3.0-or-later
// Which lines a preview of a place shows, what of each, and where it stands; all without a window.
#include "engine/looks/PreviewText.h"
#include "engine/looks/MapPreview.h"
#include "tests/RandomSeed.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace {

using engine::PreviewLines;
using engine::PreviewPiece;
using engine::PreviewRow;

// A text of which some lines are hidden.
struct Text
{
    explicit Text(std::vector<long> seen) : lines(std::move(seen)) {}

    PreviewLines Around(long meant, std::size_t wanted) const
    {
        return engine::LinesAround(
            meant, wanted,
            [this](long line) {
                const auto at = std::lower_bound(lines.begin(), lines.end(), line);
                return at == lines.begin() ? -1 : *(at - 1);
            },
            [this](long line) {
                const auto at = std::upper_bound(lines.begin(), lines.end(), line);
                return at == lines.end() ? -1 : *at;
            });
    }

    std::vector<long> lines;
};

using Lines = std::vector<long>;

TEST(PreviewLines, HaveTheOneThatIsMeantInTheMiddle)
{
    const Text text({0, 1, 2, 3, 4, 5, 6, 7, 8, 9});
    EXPECT_EQ(text.Around(5, 5).lines, Lines({3, 4, 5, 6, 7}));
    EXPECT_EQ(text.Around(5, 5).meant, 2U);
}

TEST(PreviewLines, AreAsManyNearTheEndsOfTheText)
{
    const Text text({0, 1, 2, 3, 4, 5, 6, 7, 8, 9});
    EXPECT_EQ(text.Around(0, 5).lines, Lines({0, 1, 2, 3, 4}));
    EXPECT_EQ(text.Around(0, 5).meant, 0U);
    EXPECT_EQ(text.Around(8, 5).lines, Lines({5, 6, 7, 8, 9}));
    EXPECT_EQ(text.Around(8, 5).meant, 3U);
}

TEST(PreviewLines, AreAllOfAShortText)
{
    EXPECT_EQ(Text({0, 1, 2}).Around(1, 11).lines, Lines({0, 1, 2}));
    EXPECT_EQ(Text({0, 1, 2}).Around(1, 11).meant, 1U);
    EXPECT_EQ(Text({0}).Around(0, 11).lines, Lines({0}));
}

TEST(PreviewLines, LeaveHiddenOnesOut)
{
    const Text text({0, 1, 7, 8, 30, 31});
    EXPECT_EQ(text.Around(8, 5).lines, Lines({1, 7, 8, 30, 31}));
    EXPECT_EQ(text.Around(8, 3).lines, Lines({7, 8, 30}));
}

TEST(PreviewLines, AreThePieceOfTheTextAroundThatHasItMostInTheMiddle)
{
    const unsigned seed = RandomSeed();
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const auto below = [&random](std::size_t limit) {
        return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
    };
    for (int i = 0; i < 500; ++i) {
        Lines seen{0};
        for (std::size_t more = below(30); more > 0; --more)
            seen.push_back(seen.back() + 1 + static_cast<long>(below(3)));
        const std::size_t at = below(seen.size());
        const std::size_t wanted = 1 + below(15);
        // The first of it, if it may begin anywhere where it has as many lines as there are.
        const std::size_t count = std::min(wanted, seen.size());
        const std::size_t first = std::min(at - std::min(at, wanted / 2), seen.size() - count);
        const PreviewLines found = Text(seen).Around(seen[at], wanted);
        const auto begin = seen.begin() + static_cast<long>(first);
        EXPECT_EQ(found.lines, Lines(begin, begin + static_cast<long>(count)));
        ASSERT_EQ(found.meant, at - first);
    }
}

// The bytes, and as many digits that are their styles.
PreviewRow Read(const std::string& text, const std::string& styles, long most = 100)
{
    std::vector<char> cells;
    for (std::size_t i = 0; i < text.size(); ++i) {
        cells.push_back(text[i]);
        cells.push_back(static_cast<char>(styles[i] - '0'));
    }
    return engine::ReadPreviewRow(cells, 4, most, [](const QByteArray& character) {
        return character == QByteArray(1, '\0') ? QStringLiteral("NUL")
               : character == "\xE2\x80\xAE"    ? QStringLiteral("RLO")
                                                : QString();
    });
}

std::string Told(const PreviewRow& row)
{
    std::string told = std::to_string(row.indent);
    for (const PreviewPiece& piece : row.pieces) {
        const std::string text = piece.text.toStdString();
        told += piece.kind == PreviewPiece::Kind::Tab ? " >"
                : piece.kind == PreviewPiece::Kind::Boxed
                    ? " [" + text + "]"
                    : " " + std::to_string(piece.style) + text;
    }
    return told;
}

TEST(PreviewRows, AreInPiecesOfOneStyle)
{
    EXPECT_EQ(Told(Read("select 1", "55555504")), "0 5select 0  41");
    EXPECT_EQ(Told(Read("", "")), "-1");
}

TEST(PreviewRows, CountTheColumnsThatTheyBeginWith)
{
    EXPECT_EQ(Told(Read("   a", "0000")), "3 0a");
    EXPECT_EQ(Told(Read("\ta", "00")), "4 0a");
    EXPECT_EQ(Told(Read("  \t a\tb", "0000000")), "5 0a > 0b");
    EXPECT_EQ(Told(Read("  \t", "000")), "-1");
}

TEST(PreviewRows, ShowWhatWouldMisleadByItsName)
{
    EXPECT_EQ(Told(Read(std::string("a\0b", 3), "000")), "0 0a [NUL] 0b");
    EXPECT_EQ(Told(Read("a\xE2\x80\xAE"
                        "b",
                        "00000")),
              "0 0a [RLO] 0b");
}

TEST(PreviewRows, EndBehindAWholeCharacter)
{
    EXPECT_EQ(Told(Read("\xE6\xBC\xA2\xE5\xAD\x97\xE6\xBC\xA2", "000000000", 2)),
              "0 0\xE6\xBC\xA2\xE5\xAD\x97");
    EXPECT_EQ(Told(Read("   abcdef", "000000000", 3)), "3 0abc");
}

TEST(PreviewRows, HaveInCommonWhatTheirTextsBeginWith)
{
    const auto common = [](const std::vector<std::string>& texts) {
        std::vector<PreviewRow> rows;
        for (const std::string& text : texts)
            rows.push_back(Read(text, std::string(text.size(), '0')));
        return engine::CommonIndent(rows);
    };
    EXPECT_EQ(common({"        a", "\tb", "      c"}), 4);
    EXPECT_EQ(common({"  a", "", " ", "  b"}), 2) << "a blank line is of any depth";
    EXPECT_EQ(common({"", "  "}), 0);
    EXPECT_EQ(common({}), 0);
}

TEST(PreviewPlace, IsLeftOfTheMapAsHighAsTheMouse)
{
    const QRect map(800, 100, 100, 600);
    const QRect place = engine::PlaceBeside(map, {0, 0, 1280, 1024}, {400, 200}, 500, 90);
    EXPECT_EQ(place, QRect(394, 410, 400, 200));
}

TEST(PreviewPlace, IsRightOfAMapAtTheLeftOfTheScreen)
{
    const QRect map(20, 100, 100, 600);
    const QRect place = engine::PlaceBeside(map, {0, 0, 1280, 1024}, {400, 200}, 500, 90);
    EXPECT_EQ(place, QRect(126, 410, 400, 200));
}

TEST(PreviewPlace, IsInTheScreenAndNeverOverTheMap)
{
    const unsigned seed = RandomSeed();
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const auto from = [&random](int least, int most) {
        return std::uniform_int_distribution<int>(least, most)(random);
    };
    int found = 0;
    for (int i = 0; i < 2000 && !testing::Test::HasFailure(); ++i) {
        const QRect screen(from(-2000, 2000), from(-500, 500), from(200, 3000), from(200, 2000));
        const QRect map(screen.x() + from(-200, screen.width()), screen.y() + from(-200, 900),
                        from(40, 100), from(50, 2000));
        const QSize size(from(1, 2000), from(1, 500));
        const int mouse = from(map.top(), map.bottom());
        const QRect place = engine::PlaceBeside(map, screen, size, mouse, from(0, size.height()));
        if (place.isEmpty())
            continue;
        ++found;
        EXPECT_TRUE(screen.contains(place));
        EXPECT_FALSE(map.intersects(place));
        EXPECT_LE(place.width(), size.width());
    }
    EXPECT_GT(found, 1000);
}

} // namespace
