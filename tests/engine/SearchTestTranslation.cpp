// SPDX-License-Identifier: GPL-3.0-or-later
// The engine's pattern syntax in PCRE2's, row by row.
#include "engine/search/Expression.h"
#include "engine/search/ExpressionTranslator.h"

#include <gtest/gtest.h>

using namespace engine::search;

namespace {

std::string Translated(std::string_view pattern, Syntax syntax = {.matchCase = true, .word = "W"})
{
    const auto translation = ExpressionTranslator(std::move(syntax)).Translate(pattern);
    return translation ? translation->pattern : "no pattern";
}

// The first match of a pattern in a text, as text; "-" for none.
std::string MatchOf(std::string_view pattern, std::string_view text, bool matchCase = true)
{
    const auto translation = ExpressionTranslator({.matchCase = matchCase}).Translate(pattern);
    if (!translation)
        return "no pattern";
    const auto expression =
        Expression::Compile(translation->pattern, Expression::Reading::Pattern, matchCase);
    if (!expression)
        return "not compiled";
    if (expression->Find(text, {}) != Expression::Outcome::Found)
        return "-";
    const std::size_t start = expression->Start();
    std::size_t end = expression->End();
    for (const int mark : translation->ends)
        end = expression->Start(mark);
    return std::string(text.substr(start, end - start));
}

struct Row
{
    const char* pattern;
    const char* text;
    const char* match;
};

class EveryExpression : public testing::TestWithParam<Row>
{};

} // namespace

TEST_P(EveryExpression, MatchesWhatItsRowSays)
{
    EXPECT_EQ(MatchOf(GetParam().pattern, GetParam().text), GetParam().match)
        << GetParam().pattern << " in " << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(
    OfTheMenu, EveryExpression,
    testing::Values(Row{"^b", "ab\nbc", "b"}, Row{"a$", "ab\r\nca\r\n", "a"},
                    Row{"a.c", "a\nc abc", "abc"}, Row{"[bc]+", "abcd", "bc"},
                    Row{"[^ab]+", "abcd\nef", "cd"}, Row{R"(\(ab\)\1)", "abab", "abab"},
                    Row{"cat|dog", "hotdog", "dog"}, Row{R"(foo\cbar)", "foo foobar", "foo"},
                    Row{"ab*", "abbb", "abbb"}, Row{"ab+", "a abb", "abb"}, Row{"ab?c", "ac", "ac"},
                    Row{R"(a\nb)", "a\nb", "a\nb"}, Row{R"(a\r\nb)", "a\r\nb", "a\r\nb"},
                    Row{R"(\t)", "a\tb", "\t"}, Row{R"(\b)", "a\bb", "\b"},
                    Row{R"(\f)", "a\fb", "\f"}, Row{R"(\x41)", "xA", "A"},
                    Row{R"(\x\x)", "xyz 9f", "9f"}, Row{R"(\*)", "a*", "*"},
                    Row{"[a-zA-Z0-9]+", " a1 ", "a1"}));

INSTANTIATE_TEST_SUITE_P(
    OfTheEngine, EveryExpression,
    testing::Values(Row{R"(\<a\w*)", "ba ab", "ab"}, Row{R"(\w*b\>)", "aba ab", "ab"},
                    Row{R"(\d+)", "ab12", "12"}, Row{R"(\D+)", "12ab\ncd", "ab"},
                    Row{R"(\s+)", "a \t\nb", " \t"}, Row{R"(\S+)", " ab\ncd", "ab"},
                    Row{R"(\W+)", "ab -\n-", " -"}, Row{R"([\d-]+)", "a1-2", "1-2"},
                    Row{R"([^\d]+)", "1ab\n", "ab"}, Row{R"([\D]+)", "1ab\n", "ab"},
                    Row{R"([\S]+)", " ab\n", "ab"}, Row{R"([\W]+)", "a ,\n", " ,"},
                    Row{R"([^\W]+)", " ab ", "ab"}, Row{R"([\x41-\x43]+)", "xABCD", "ABC"},
                    Row{R"([\x]+)", "xyz 9f", "9f"}, Row{R"([\n\r]+)", "a\r\nb", "\r\n"},
                    Row{R"(a|b\c|c)", "xb", "b"}, Row{"a$b", "a$b", "a$b"},
                    Row{"a^b", "a^b", "a^b"}, Row{"(a){2}", "(a){2}", "(a){2}"},
                    Row{R"(a\|b)", "a|b", "a|b"}, Row{R"(\(^a\|\)b)", "ab", "-"},
                    Row{R"(x\(^a|b$\))", "xb", "xb"}, Row{R"(\(^a|b$\))", "xa\nab", "a"},
                    Row{R"(\a\v)", "\a\v", "\a\v"}, Row{R"(\0)", "0", "0"},
                    Row{"a**", "aaa", "aaa"}, Row{"a*+", "aaa", "aaa"}, Row{"a+?", "aaa", "aaa"},
                    Row{"\xC3\xA9+", "x\xC3\xA9\xC3\xA9", "\xC3\xA9\xC3\xA9"},
                    Row{"[\xC3\xA9-\xC3\xAB]", "\xC3\xAA", "\xC3\xAA"},
                    Row{"#a b", "#a b", "#a b"}));

INSTANTIATE_TEST_SUITE_P(
    OfNoMatch, EveryExpression,
    testing::Values(Row{"*", "*", "no pattern"}, Row{"+a", "+a", "no pattern"},
                    Row{"^*", "^", "no pattern"}, Row{"a|*", "*", "no pattern"},
                    Row{R"(\(\))", "", "no pattern"}, Row{R"(\(*a\))", "a", "no pattern"},
                    Row{R"(\(a)", "a", "no pattern"}, Row{R"(a\))", "a)", "no pattern"},
                    Row{"[", "[", "no pattern"}, Row{"[]", "]", "no pattern"},
                    Row{"[^]", "]", "no pattern"}, Row{"[a-", "a", "no pattern"},
                    Row{R"(\1)", "1", "no pattern"}, Row{R"(\(a\1\))", "a", "no pattern"},
                    Row{R"(\(a\)\2)", "a", "no pattern"}, Row{R"(\<\>)", "", "no pattern"},
                    Row{R"(\<*)", "", "no pattern"}, Row{"a??", "a", "no pattern"},
                    Row{"a\\", "a\\", "no pattern"}, Row{"\xFF", "\xFF", "no pattern"},
                    Row{"[\xC3]", "a", "no pattern"}));

TEST(ExpressionTranslation, KeepsEscapedLettersInTheirCase)
{
    EXPECT_EQ(MatchOf(R"(q\q)", "QQ Qq", false), "Qq");
    EXPECT_EQ(MatchOf(R"([\q]a)", "QA qA", false), "qA");
    EXPECT_EQ(MatchOf(R"(\x71)", "Qq", false), "q");
    EXPECT_EQ(MatchOf(R"(\(a\)\1)", "aA AA", false), "AA");
}

TEST(ExpressionTranslation, TakesABracketForAGroupUnderThePosixFlag)
{
    EXPECT_EQ(Translated("(a)", {.posix = true, .matchCase = true}), "(a)");
    EXPECT_EQ(Translated(R"(\(a\))", {.posix = true, .matchCase = true}), R"(\x{28}a\x{29})");
    EXPECT_EQ(Translated("(a", {.posix = true, .matchCase = true}), "no pattern");
}

TEST(ExpressionTranslation, WritesWordsAsItIsTold)
{
    EXPECT_EQ(Translated(R"(\w)"), "W");
    EXPECT_EQ(Translated(R"(\W)"), R"((?:(?!W)[^\r\n]))");
    EXPECT_EQ(Translated(R"([\w-])"), R"((?:[\x{2d}]|W))");
    EXPECT_EQ(Translated(R"(\<)"), "(?=W)(?<!W)");
}

TEST(ExpressionTranslation, TellsWhereItsGroupsStandAmongTheMarks)
{
    const auto translation = ExpressionTranslator({}).Translate(R"(a\c\(b\)\cd\(e\))");
    ASSERT_TRUE(translation);
    EXPECT_EQ(translation->groups[1], 2);
    EXPECT_EQ(translation->groups[2], 4);
    EXPECT_EQ(translation->groups[3], 0);
    EXPECT_EQ(translation->ends, (std::vector<int>{1, 3}));
}

TEST(ExpressionTranslation, TellsWhichPatternsMayMatchNothingAtALinesEnd)
{
    const auto atLineEnds = [](std::string_view pattern) {
        return ExpressionTranslator({}).Translate(pattern)->emptyAtLineEnds;
    };
    EXPECT_TRUE(atLineEnds("^"));
    EXPECT_TRUE(atLineEnds("$"));
    EXPECT_TRUE(atLineEnds("a|^b*"));
    EXPECT_FALSE(atLineEnds("a*"));
    EXPECT_FALSE(atLineEnds("a*$"));
}

TEST(ExpressionTranslation, StandsBetweenCrAndLfAtNoEdgeOfALine)
{
    const auto matches = [](std::string_view pattern, std::size_t from) {
        const auto translation = ExpressionTranslator({}).Translate(pattern);
        const auto expression =
            Expression::Compile(translation->pattern, Expression::Reading::Pattern, true);
        return expression->Find("a\r\nb", {.from = from}) == Expression::Outcome::Found
                   ? static_cast<long>(expression->Start())
                   : -1;
    };
    EXPECT_EQ(matches("^", 1), 3);
    EXPECT_EQ(matches("$", 2), 4);
}

TEST(ExpressionTranslation, TellsWhatEveryMatchHas)
{
    const auto required = [](std::string_view pattern) {
        return ExpressionTranslator({}).Translate(pattern)->required;
    };
    EXPECT_EQ(required("[a-z]+_id"), "_id");
    EXPECT_EQ(required("abc+d"), "abc");
    EXPECT_EQ(required("abc*d"), "ab");
    EXPECT_EQ(required("ab?cde"), "cde");
    EXPECT_EQ(required(R"(^ab\.c\>$)"), "ab.c");
    EXPECT_EQ(required(R"(a\(bcd\)?ef)"), "ef");
    EXPECT_EQ(required("abc|d"), "");
    EXPECT_EQ(required(R"(x\(abc|d\)y)"), "x");
    EXPECT_EQ(required("\xC3\xA9\xC3\xA8*"), "\xC3\xA9");
    EXPECT_EQ(required(R"(\xe9\x\xe9)"), "\xC3\xA9");
}

TEST(ExpressionTranslation, TellsWhichPatternsStayInALine)
{
    const auto stays = [](std::string_view pattern) {
        return ExpressionTranslator({}).Translate(pattern)->staysInLine;
    };
    EXPECT_TRUE(stays(R"(^a.*[^b]\s\S\W\D[^\n]\cb$)"));
    for (const std::string_view pattern :
         {R"(a\nb)", R"(a\r)", R"(\(\x0a\))", "a\n", R"([ab\n])", R"([\t-z])", R"([\r]b)"})
        EXPECT_FALSE(stays(pattern)) << pattern;
}
