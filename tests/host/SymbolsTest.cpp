// SPDX-License-Identifier: GPL-3.0-or-later
// What an outline has of a script.
#include "host/outline/Symbols.h"

#include <gtest/gtest.h>

namespace {

std::vector<std::string> SymbolsIn(const QString& text, const QString& language)
{
    std::vector<std::string> lines;
    for (const Symbol& symbol : SymbolsOf(text, language)) {
        const QString place = text.mid(symbol.start, symbol.end - symbol.start);
        lines.push_back((QString(symbol.isInside ? "  " : "") + KindText(symbol) + ' ' +
                         symbol.name + " at " + place)
                            .toStdString());
    }
    return lines;
}

using Lines = std::vector<std::string>;

} // namespace

TEST(Symbols, AreWhatAScriptCreates)
{
    EXPECT_EQ(SymbolsIn("-- create table no (x int)\ncreate table [a b] (n int, m int)\nGO\n"
                        "create procedure p @q int as select n from [a b]\n",
                        "Transact-SQL"),
              (Lines{"Table a b at [a b]", "  Column n at n", "  Column m at m", "Procedure p at p",
                     "  Parameter @q at @q"}));
}

TEST(Symbols, StandInNothingButWhatHasColumnsOrParameters)
{
    EXPECT_EQ(SymbolsIn("create table t (n int);\ncreate schema s;\ncreate type y as (m int);\n"
                        "create sequence q;\ncreate index i on t (n);\n",
                        "PostgreSQL"),
              (Lines{"Table t at t", "  Column n at n", "Schema s at s", "Type y at y",
                     "Sequence q at q", "Index i at i"}));
}

TEST(Symbols, AreNotTheColumnsThatInsertAndAlterName)
{
    for (const char* language : {"SQL", "Transact-SQL", "PL/SQL", "MySQL", "PostgreSQL"})
        EXPECT_EQ(SymbolsIn("insert into a (x, y) values (1, 2);\n"
                            "create table t (n int);\n"
                            "insert into t (n) values (1);\n"
                            "alter table a add z int;\n"
                            "create view v as select 1;\n"
                            "insert into t (n) select 2;\n",
                            language),
                  (Lines{"Table t at t", "  Column n at n", "View v at v"}))
            << language;
}

TEST(Symbols, AreTheStepsThatItAnnounces)
{
    EXPECT_EQ(SymbolsIn("print 'one'\ncreate view v as select 1\n  PRINT N'two'\n", "Transact-SQL"),
              (Lines{"Step one at one", "View v at v", "Step two at two"}));
    EXPECT_EQ(SymbolsIn("\\echo Loading data\nselect 1;\n", "PostgreSQL"),
              Lines{"Step Loading data at Loading data"});
}

TEST(Symbols, AreNotTheStepsOfARoutine)
{
    EXPECT_EQ(SymbolsIn("print 'one'\ngo\ncreate procedure p as begin\n  print 'inside'\nend\n"
                        "GO\nprint 'two'\n",
                        "Transact-SQL"),
              (Lines{"Step one at one", "Procedure p at p", "Step two at two"}));
}

TEST(Symbols, AreNoneOfALanguageThatIsNoSql)
{
    EXPECT_EQ(SymbolsIn("create table a (x int);", "C++"), Lines());
}
