// SPDX-License-Identifier: GPL-3.0-or-later
// What is kept through edits is what a fresh look at the text gives.
#include "tests/RandomSeed.h"
#include "tests/engine/analysis/ScriptUnderTest.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

namespace engine::analysis {
namespace {

// Pieces that turn what follows inside out, pieces that shape statements, and plain ones.
constexpr const char* kPieces[] = {"'",
                                   "\"",
                                   "`",
                                   "[",
                                   "]",
                                   "/*",
                                   "*/",
                                   "--",
                                   "\n",
                                   "\r\n",
                                   "$$",
                                   "$t$",
                                   "q'[",
                                   "]'",
                                   "E'",
                                   "\\",
                                   ";",
                                   ";\n",
                                   "//",
                                   "$$\n",
                                   "(",
                                   ")",
                                   "\nGO\n",
                                   "\nGO 5 -- x\n",
                                   "\n/\n",
                                   " go ",
                                   "\n/* x */ GO",
                                   "begin ",
                                   "begin tran ",
                                   "end ",
                                   "end;",
                                   "end if;",
                                   "end loop;",
                                   "case when x then ",
                                   "end case",
                                   "create procedure p as ",
                                   "create or replace function f return int is ",
                                   "create trigger t ",
                                   "package body ",
                                   "declare ",
                                   "declare x int;",
                                   "if x then ",
                                   "loop ",
                                   "as ",
                                   "is ",
                                   "null;",
                                   "use db1\n",
                                   "\nuse [a b];",
                                   "\\c base\n",
                                   "DELIMITER $$\n",
                                   "\ndelimiter ;\n",
                                   "SET TERM ^ ;",
                                   "set term ; ^",
                                   "^",
                                   "--#SET TERMINATOR @\n",
                                   "@",
                                   "select 1",
                                   "select a from b where c = 'd'",
                                   "\nelse ",
                                   "execute block as ",
                                   "prompt it's\n",
                                   "\nprompt it's -\n",
                                   "\nset x -\r\n",
                                   "-",
                                   "\nset role ",
                                   "\\gset a\n",
                                   "\\g",
                                   "\\;",
                                   "\\echo 'a ",
                                   "\\d x\n",
                                   "\\! it's\n",
                                   "\nsource it's ",
                                   "\ndelimiter 'x y' ",
                                   "\n:setvar a b\n",
                                   "\nuse $(a)x ",
                                   "\n!!dir it's\n",
                                   "-- -td@ x\n",
                                   "<<a>> ",
                                   "with function f ",
                                   "select ",
                                   "create java source ",
                                   "begin backup",
                                   "begin declare section",
                                   "begin not atomic ",
                                   "openrowset(",
                                   "explain ",
                                   "U&'x' ",
                                   "copy t from stdin;",
                                   "\n\\.\n",
                                   ".",
                                   "x",
                                   "1",
                                   "/*! code */",
                                   " ",
                                   "\t",
                                   "\n\n"};

constexpr const char* kDialects[] = {"sql",    "transact-sql", "ase",       "iq",         "db2",
                                     "oracle", "mysql",        "interbase", "postgresql", "sqlite"};

std::string Piece(std::mt19937& random)
{
    if (random() % 200 == 0) // longer than a token is kept whole
        return std::string(300 + random() % 1000, "x*'/ ]-"[random() % 7]);
    return kPieces[random() % std::size(kPieces)];
}

std::string Pieces(std::mt19937& random, std::size_t bytes)
{
    std::string text;
    while (text.size() < bytes)
        text += Piece(random) + (random() % 3 ? " " : "");
    return text;
}

void EditAtRandom(ScriptUnderTest& script, std::mt19937& random)
{
    const auto size = script.Text().size();
    const auto at = static_cast<long>(random() % (size + 1));
    const auto most = static_cast<long>(size) - at;
    switch (random() % 8) {
    case 0:
    case 1:
    case 2:
        script.Erase(at, std::min<long>(most, 1 + static_cast<long>(random() % 8)));
        break;
    case 3:
        script.Erase(at, std::min<long>(most, static_cast<long>(random() % (1 + size / 4))));
        break;
    case 4:
        script.Insert(at, Pieces(random, random() % 2 ? 100 : 1 + random() % 20000));
        break;
    default:
        script.Insert(at, Piece(random));
        break;
    }
}

} // namespace

// 10 dialects, 6000 edits each; what is asked in between is what drives the reading.
TEST(IncrementalPartitions, EqualFreshOnesAfterAnyEdits)
{
    const unsigned seed = RandomSeed();
    std::mt19937 random(seed);
    for (const char* dialect : kDialects) {
        ScriptUnderTest script(dialect, Pieces(random, 2000));
        script.SetStretch(1 + static_cast<long>(random() % 2000));
        for (int edit = 0; edit < 6000; ++edit) {
            EditAtRandom(script, random);
            if (script.Text().size() > 60000)
                script.Erase(500, static_cast<long>(script.Text().size()) - 1500);
            const auto at = static_cast<long>(random() % (script.Text().size() + 1));
            if (random() % 3 == 0)
                script.StatementAt(at);
            else if (random() % 3 == 0)
                script.Analysis().Work(script.Spans(), static_cast<long>(random() % 9000));
            if (edit % 20 == 0) {
                ScriptUnderTest fresh = script.Fresh();
                ASSERT_EQ(script.Everything(), fresh.Everything())
                    << dialect << ", seed " << seed << ", edit " << edit;
            }
        }
    }
}

// Small scripts, so that every edit can be compared.
TEST(IncrementalPartitions, EqualFreshOnesAfterEveryEdit)
{
    const unsigned seed = RandomSeed();
    std::mt19937 random(seed);
    for (const char* dialect : kDialects) {
        ScriptUnderTest script(dialect, Pieces(random, 200));
        script.SetStretch(1 + static_cast<long>(random() % 60));
        for (int edit = 0; edit < 1000; ++edit) {
            EditAtRandom(script, random);
            if (script.Text().size() > 3000)
                script.Erase(100, static_cast<long>(script.Text().size()) - 300);
            ScriptUnderTest fresh = script.Fresh();
            ASSERT_EQ(script.Everything(), fresh.Everything())
                << dialect << ", seed " << seed << ", edit " << edit << '\n'
                << script.Text();
        }
    }
}

} // namespace engine::analysis
