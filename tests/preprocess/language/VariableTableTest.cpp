// SPDX-License-Identifier: GPL-3.0-or-later
#include "preprocess/language/VariableTable.h"
#include "tests/RandomSeed.h"

#include <gtest/gtest.h>

#include <random>

namespace {

TEST(Variables, KeepTheirFirstValue)
{
    VariableTable table;
    EXPECT_TRUE(table.IsEmpty());
    table.Insert("&&A", "1");
    table.Insert("&&A", "2");
    EXPECT_EQ(table.Lookup("&&A"), "1");
    EXPECT_EQ(table.Lookup("&&a"), "");
}

TEST(Variables, CannotBeDefinedAfterALookup)
{
    VariableTable table;
    EXPECT_EQ(table.Lookup("&&A"), "");
    EXPECT_FALSE(table.IsEmpty());
    table.Insert("&&A", "1");
    EXPECT_EQ(table.Lookup("&&A"), "");
}

TEST(Variables, CannotBeDefinedAfterAUseOfALongerName)
{
    VariableTable table;
    EXPECT_FALSE(table.LongestDefined("&&ABC"));
    for (const char* name : {"&&A", "&&AB", "&&ABC"}) {
        table.Insert(name, "1");
        EXPECT_EQ(table.Lookup(name), "") << name;
    }
    table.Insert("&&ABCD", "1");
    EXPECT_EQ(table.Lookup("&&ABCD"), "1");
}

TEST(Variables, GiveTheLongestThatHasAValue)
{
    VariableTable table;
    table.Insert("&&A", "1");
    table.Insert("&&ABC", "3");
    table.Insert("&&ABCDX", "5");
    table.Insert("&&ABCD", "");
    const auto variable = table.LongestDefined("&&ABCDE");
    ASSERT_TRUE(variable);
    EXPECT_EQ(variable->name, "&&ABC");
    EXPECT_EQ(variable->value, "3");
    EXPECT_EQ(table.LongestDefined("&&AX")->name, "&&A");
    EXPECT_FALSE(table.LongestDefined("&&B"));
}

TEST(Variables, TakeAWordOfFiftyMegabytes)
{
    VariableTable table;
    table.Insert("&&A", "1");
    const QString word = "&&" + QString(50 * 1024 * 1024, 'A');
    EXPECT_EQ(table.LongestDefined(word)->name, "&&A");
    EXPECT_TRUE(table.Contains(word.first(1000)));
    EXPECT_FALSE(table.Contains(word + "A"));
}

// A map in which every lookup of every prefix enters a key.
TEST(Variables, AgreeWithAPlainMap)
{
    const unsigned seed = RandomSeed();
    std::mt19937 random(seed);
    SCOPED_TRACE("seed " + std::to_string(seed));
    for (int round = 0; round < 2000; ++round) {
        VariableTable table;
        std::map<QString, QString> plain;
        for (int step = 0; step < 60; ++step) {
            QString name = "&&";
            for (unsigned length = 1 + random() % 4; length > 0; --length)
                name += QChar(u"ABC"[random() % 3]);
            const QString value = random() % 4 ? QString::number(step) : QString();
            switch (random() % 3) {
            case 0:
                table.Insert(name, value);
                plain.insert({name, value});
                break;
            case 1:
                ASSERT_EQ(table.Lookup(name), plain[name]);
                break;
            default:
                QString best;
                for (qsizetype length = 3; length <= name.size(); ++length) {
                    if (!plain[name.first(length)].isEmpty())
                        best = name.first(length);
                }
                const auto variable = table.LongestDefined(name);
                ASSERT_EQ(variable ? variable->name : QString(), best);
                if (variable) {
                    ASSERT_EQ(variable->value, plain[best]);
                }
            }
            ASSERT_EQ(table.IsEmpty(), plain.empty());
            ASSERT_EQ(table.Contains(name), plain.contains(name));
        }
    }
}

} // namespace
