// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/engine/analysis/ScriptUnderTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace engine::analysis {
namespace {

using testing::ElementsAre;

constexpr int kTransactSql = 3;

std::vector<std::string> BatchesOf(const std::string& text)
{
    return ScriptUnderTest(kTransactSql, text).Batches();
}

} // namespace

struct SeparatorCase
{
    const char* text;
    bool separates;
};

class GoCommand : public testing::TestWithParam<SeparatorCase>
{};

TEST_P(GoCommand, SeparatesWhereItsRulesSaySo)
{
    const auto batches = BatchesOf(GetParam().text);
    EXPECT_EQ(batches.size(), GetParam().separates ? 2U : 1U) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(
    Rules, GoCommand,
    testing::Values(
        SeparatorCase{"select 1\nGO\nselect 2", true},
        SeparatorCase{"select 1\ngo\nselect 2", true},
        SeparatorCase{"select 1\nGo\nselect 2", true},
        SeparatorCase{"select 1\ngO\nselect 2", true},
        SeparatorCase{"select 1\r\nGO\r\nselect 2", true},
        SeparatorCase{"select 1\rGO\rselect 2", true},
        SeparatorCase{"select 1\n \t GO \t \nselect 2", true},
        // A count, and only one.
        SeparatorCase{"select 1\nGO 5\nselect 2", true},
        SeparatorCase{"select 1\nGO 5 6\nselect 2", false},
        SeparatorCase{"select 1\nGO5\nselect 2", false},
        SeparatorCase{"select 1\nGO five\nselect 2", false},
        SeparatorCase{"select 1\nGO 5x\nselect 2", false},
        SeparatorCase{"select 1\nGO -5\nselect 2", false},
        // No statement on its line.
        SeparatorCase{"select 1 GO\nselect 2", false},
        SeparatorCase{"select 1\nGO select 2", false},
        SeparatorCase{"select 1\nGO;\nselect 2", false},
        SeparatorCase{"select 1\n;GO\nselect 2", false},
        SeparatorCase{"select 1\nGO 5;\nselect 2", false},
        // Comments around it.
        SeparatorCase{"select 1\nGO -- done\nselect 2", true},
        SeparatorCase{"select 1\nGO 5 -- done\nselect 2", true},
        SeparatorCase{"select 1\nGO--done\nselect 2", true},
        SeparatorCase{"select 1\nGO /* done */\nselect 2", true},
        SeparatorCase{"select 1\nGO /* done */ 5\nselect 2", true},
        SeparatorCase{"select 1\nGO /* a */ /* b */ -- c\nselect 2", true},
        SeparatorCase{"select 1\nGO /* done */ x\nselect 2", false},
        SeparatorCase{"select 1\nGO /* over\n lines */ select 2", true},
        SeparatorCase{"select 1\n/* before */ GO\nselect 2", true},
        SeparatorCase{"select 1\n/* a */ /* b */ GO 2 -- c\nselect 2", true},
        SeparatorCase{"select 1 /* over\n lines */ GO\nselect 2", true},
        SeparatorCase{"select 1 /* here */ GO\nselect 2", false},
        // Not inside strings, names and comments.
        SeparatorCase{"select '\nGO\n' + 2", false}, SeparatorCase{"select [\nGO\n]", false},
        SeparatorCase{"select \"\nGO\n\"", false}, SeparatorCase{"/*\nGO\n*/ select 2", false},
        SeparatorCase{"/* /* */\nGO\n*/ select 2", false},
        SeparatorCase{"-- x\n-- GO\nselect 2", false},
        SeparatorCase{"select 'a\nb' GO\nselect 2", false},
        // Parts of words are none.
        SeparatorCase{"select 1\nGOTO x\nselect 2", false},
        SeparatorCase{"select 1\nGO_\nx", false}, SeparatorCase{"select 1\n@GO\nselect 2", false},
        SeparatorCase{"select 1\n[GO]\nx", false},
        // Inside blocks, parentheses and unclosed statements it separates all the same.
        SeparatorCase{"begin\nselect 1\nGO\nend", true},
        SeparatorCase{"select (1\nGO\nselect 2", true},
        SeparatorCase{"create proc p as\nselect 1;\nGO\nselect 2", true},
        // At the ends of the text.
        SeparatorCase{"GO\nselect 2", true}, SeparatorCase{"select 1\nGO\n", true},
        SeparatorCase{"select 1\nGO", false}));

TEST(Batches, AreWhatStandsBetweenSeparators)
{
    EXPECT_THAT(BatchesOf("use a\nGO\nselect 1\nselect 2\nGO 3 -- x\n\nselect 3\n"),
                ElementsAre("use a", "select 1\nselect 2", "select 3"));
    EXPECT_THAT(BatchesOf(""), ElementsAre(""));
    EXPECT_THAT(BatchesOf("GO\nGO\n"), ElementsAre("", "", ""));
}

TEST(Batches, TakeTheSeparatorLineBehindThem)
{
    const std::string text = "select 1\n/* c */ GO 5 -- x\nselect 2";
    ScriptUnderTest script(kTransactSql, text);
    const Span first{0, script.Find("GO")};
    const Span second{script.Find("select 2"), static_cast<long>(text.size())};
    for (long at = 0; at < second.start; ++at)
        EXPECT_EQ(script.Analysis().BatchAt(script.Spans(), at), first) << at;
    for (long at = second.start; at <= second.end; ++at)
        EXPECT_EQ(script.Analysis().BatchAt(script.Spans(), at), second) << at;
}

TEST(Batches, AreAskedForOutsideTheTextAtItsEnds)
{
    ScriptUnderTest script(kTransactSql, "select 1\nGO\nselect 2");
    EXPECT_EQ(script.Analysis().BatchAt(script.Spans(), -7), (Span{0, 9}));
    EXPECT_EQ(script.Analysis().BatchAt(script.Spans(), 4711), (Span{12, 20}));
}

TEST(Batches, FollowTheSeparatorThatIsSet)
{
    ScriptUnderTest script(kTransactSql, "a\n;;\nb\nGO\nc\nRun\nd");
    script.SetSeparator({.text = ";;"});
    EXPECT_THAT(script.Batches(), ElementsAre("a", "b\nGO\nc\nRun\nd"));
    script.SetSeparator({.text = "run"});
    EXPECT_THAT(script.Batches(), ElementsAre("a\n;;\nb\nGO\nc", "d"));
    script.SetSeparator({.text = "run", .matchCase = true});
    EXPECT_EQ(script.Batches().size(), 1U);
    script.SetSeparator({});
    EXPECT_EQ(script.Batches().size(), 1U);
}

TEST(Batches, TakeACountOnlyWhereTheSeparatorDoes)
{
    ScriptUnderTest script(kTransactSql, "a\nGO 5\nb");
    script.SetSeparator({.text = "GO", .takesCount = false});
    EXPECT_EQ(script.Batches().size(), 1U);
}

TEST(Batches, EndAtASlashOnItsOwnLineInOracle)
{
    ScriptUnderTest script(5, "select 4\n/ 2 from dual;\n/\nbegin null; end;\n  /  \nselect 1 / 2");
    EXPECT_THAT(script.Batches(),
                ElementsAre("select 4\n/ 2 from dual;", "begin null; end;", "select 1 / 2"));
}

TEST(Batches, AreTheWholeScriptWhereTheDialectHasNone)
{
    for (const int lexer : {4, 10, 14, 15})
        EXPECT_EQ(ScriptUnderTest(lexer, "a;\nGO\nb;\n/\nc;").Batches().size(), 1U) << lexer;
}

TEST(Batches, StandFarApartBehindALongCommentOnTheSeparatorLine)
{
    const std::string far(100000, 'x');
    EXPECT_EQ(BatchesOf("a\nGO -- " + far + "\nb").size(), 2U);
    EXPECT_EQ(BatchesOf("a\nGO /* " + far + " */\nb").size(), 2U);
    EXPECT_EQ(BatchesOf("a\nGO " + far + "\nb").size(), 1U);
}

} // namespace engine::analysis
