// SPDX-License-Identifier: GPL-3.0-or-later
// The comparison of two texts: it brings both back, and says no more than it has to.
#include "host/recovery/LineDiff.h"
#include "tests/RandomSeed.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <random>

namespace {

using Kind = DiffLine::Kind;

constexpr int kAll = 1 << 20;

QString SideOf(const std::vector<DiffLine>& lines, Kind own)
{
    QString text;
    for (const DiffLine& line : lines) {
        if (line.kind == Kind::Same || line.kind == own)
            text += line.text + u'\n';
    }
    return text;
}

long Changes(const std::vector<DiffLine>& lines)
{
    return std::ranges::count_if(lines, [](const DiffLine& line) {
        return line.kind == Kind::Added || line.kind == Kind::Removed;
    });
}

// Of all ways, by the table of the longest common lines.
long FewestChanges(const QStringList& first, const QStringList& second)
{
    std::vector<std::vector<long>> common(
        static_cast<std::size_t>(first.size()) + 1,
        std::vector<long>(static_cast<std::size_t>(second.size()) + 1, 0));
    for (std::size_t i = 1; i < common.size(); ++i) {
        for (std::size_t j = 1; j < common[i].size(); ++j)
            common[i][j] = first[long(i) - 1] == second[long(j) - 1]
                               ? common[i - 1][j - 1] + 1
                               : std::max(common[i - 1][j], common[i][j - 1]);
    }
    return first.size() + second.size() - 2 * common.back().back();
}

} // namespace

TEST(LineDiff, BringsBackBothTextsWithTheFewestChanges)
{
    const unsigned seed = RandomSeed();
    std::cout << "seed " << seed << '\n';
    std::mt19937 random(seed);
    for (int run = 0; run < 400; ++run) {
        const auto lines = [&random] {
            QStringList made;
            for (unsigned i = random() % 14; i > 0; --i)
                made << QString(QChar(u'a' + char16_t(random() % 4)));
            return made;
        };
        const QStringList first = lines();
        const QStringList second = lines();
        const auto text = [](const QStringList& of) {
            return of.isEmpty() ? QString() : of.join(u'\n') + u'\n';
        };
        const std::vector<DiffLine> diff = UnifiedDiff(text(first), text(second), kAll);
        if (first == second) {
            EXPECT_TRUE(diff.empty());
            continue;
        }
        EXPECT_EQ(SideOf(diff, Kind::Removed), text(first));
        EXPECT_EQ(SideOf(diff, Kind::Added), text(second));
        EXPECT_EQ(Changes(diff), FewestChanges(first, second));
    }
}

TEST(LineDiff, LeavesOutWhatIsFarFromAChange)
{
    const std::vector<DiffLine> diff =
        UnifiedDiff(u"1\n2\n3\n4\n5\n6\n7\n", u"1\n2\n3\nx\n5\n6\n7\n", 1);
    const std::vector<DiffLine> expected = {
        {Kind::Gap, QString()}, {Kind::Same, "3"}, {Kind::Removed, "4"},
        {Kind::Added, "x"},     {Kind::Same, "5"}, {Kind::Gap, QString()},
    };
    EXPECT_EQ(diff, expected);
}

TEST(LineDiff, TakesAnotherLineEndForAChange)
{
    EXPECT_EQ(Changes(UnifiedDiff(u"a\r\nb\r\n", u"a\nb\r\n", kAll)), 2);
    EXPECT_EQ(Changes(UnifiedDiff(u"a\rb", u"a\rb\r", kAll)), 2);
}

TEST(LineDiff, GivesTextsUpThatHaveNothingInCommon)
{
    QString first;
    QString second;
    for (int i = 0; i < 3000; ++i) {
        first += QStringLiteral("first %1\n").arg(i);
        second += QStringLiteral("second %1\n").arg(i);
    }
    const std::vector<DiffLine> diff = UnifiedDiff(first, second, kAll);
    EXPECT_EQ(SideOf(diff, Kind::Removed), first);
    EXPECT_EQ(SideOf(diff, Kind::Added), second);
}
