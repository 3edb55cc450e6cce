// SPDX-License-Identifier: GPL-3.0-or-later
#include "preprocess/language/SourceMap.h"
#include "tests/RandomSeed.h"

#include <gtest/gtest.h>

#include <random>

namespace {

TEST(SourceMap, BeginsWithTheScriptAlone)
{
    const SourceMap map;
    EXPECT_EQ(map.Locate(0), (SourceLine{"", 0}));
    EXPECT_EQ(map.Locate(1000), (SourceLine{"", 1000}));
    EXPECT_TRUE(map.IncludedFrom(3).empty());
    EXPECT_EQ(map.Find("", 7), 7);
    EXPECT_EQ(map.Find("a", 0), -1);
}

TEST(SourceMap, PutsAFileBelowItsLine)
{
    SourceMap map;
    map.InsertFile(1, 3, "a", 0);
    const SourceLine expected[] = {{"", 0}, {"", 1}, {"a", 0}, {"a", 1}, {"a", 2}, {"", 2}};
    for (long line = 0; line < 6; ++line)
        EXPECT_EQ(map.Locate(line), expected[line]) << line;
    EXPECT_EQ(map.IncludedFrom(3), (std::vector<SourceLine>{{"", 1}}));
    EXPECT_EQ(map.Find("", 2), 5);
    EXPECT_EQ(map.Find("a", 2), 4);
    EXPECT_EQ(map.Find("a", 3), -1);
}

TEST(SourceMap, NamesEachFileOnce)
{
    SourceMap map;
    EXPECT_TRUE(map.Files().empty());
    map.InsertFile(0, 3, "b", 0);
    map.InsertFile(2, 2, "a", 0);
    map.InsertFile(7, 3, "b", 0);
    EXPECT_EQ(map.Files(), (std::set<QString>{"a", "b"}));
    map.Clear();
    EXPECT_TRUE(map.Files().empty());
}

TEST(SourceMap, TellsNestedIncludesFromTheInside)
{
    SourceMap map;
    map.InsertFile(0, 3, "a", 0);
    map.InsertFile(2, 2, "b", 0);
    EXPECT_EQ(map.Locate(3), (SourceLine{"b", 0}));
    EXPECT_EQ(map.Locate(5), (SourceLine{"a", 2}));
    EXPECT_EQ(map.Locate(6), (SourceLine{"", 1}));
    EXPECT_EQ(map.IncludedFrom(4), (std::vector<SourceLine>{{"a", 1}, {"", 0}}));
}

TEST(SourceMap, KeepsTheLineOfAnExpansionForAllItsLines)
{
    SourceMap map;
    map.InsertExpansion(2, 2);
    EXPECT_EQ(map.Locate(2), (SourceLine{"", 2}));
    EXPECT_EQ(map.Locate(4), (SourceLine{"", 2}));
    EXPECT_EQ(map.Locate(5), (SourceLine{"", 3}));
    EXPECT_EQ(map.Find("", 2), 2);
    EXPECT_EQ(map.Find("", 3), 5);
}

TEST(SourceMap, ForgetsThroughClear)
{
    SourceMap map;
    map.InsertFile(0, 5, "a", 0);
    map.Clear();
    EXPECT_EQ(map.Locate(3), (SourceLine{"", 3}));
}

TEST(SourceMap, AgreesWithAListOfLines)
{
    const unsigned seed = RandomSeed();
    std::mt19937 random(seed);
    SCOPED_TRACE("seed " + std::to_string(seed));
    for (int round = 0; round < 300; ++round) {
        SourceMap map;
        std::vector<SourceLine> lines;
        for (long line = 0; line < 20; ++line)
            lines.push_back({"", line});
        for (int step = 0; step < 15; ++step) {
            const long below = static_cast<long>(random() % lines.size());
            const long count = static_cast<long>(random() % 5);
            std::vector<SourceLine> added;
            if (random() % 4) {
                const QString name = QString::number(step);
                for (long line = 0; line < count; ++line)
                    added.push_back({name, line});
                map.InsertFile(below, count, name, 0);
            } else {
                added.assign(static_cast<std::size_t>(count),
                             lines[static_cast<std::size_t>(below)]);
                map.InsertExpansion(below, count);
            }
            lines.insert(lines.begin() + below + 1, added.begin(), added.end());
            for (std::size_t line = 0; line < lines.size(); ++line)
                ASSERT_EQ(map.Locate(static_cast<long>(line)), lines[line]) << line;
        }
        for (const SourceLine& line : lines) {
            const long found = map.Find(line.path, line.line);
            ASSERT_GE(found, 0);
            ASSERT_EQ(lines[static_cast<std::size_t>(found)], line);
        }
    }
}

} // namespace
