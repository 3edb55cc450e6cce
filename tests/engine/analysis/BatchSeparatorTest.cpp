// SPDX-License-Identifier: GPL-3.0-or-later
// A separator line: what may stand beside the word, and where the batch behind it starts.
#include "engine/analysis/BatchSeparator.h"

#include <gtest/gtest.h>

namespace {

using namespace engine::analysis;

constexpr int kTransactSql = 3; // its lexer
const BatchSeparator kGo{.text = "GO"};

SeparatorLine LineOf(std::string_view text, const BatchSeparator& separator = kGo,
                     long position = 0)
{
    return SeparatorAt(*DialectOfLexer(kTransactSql), TextSpans(text), position, separator);
}

// The start of the next batch, or -1.
long NextOf(std::string_view text, const BatchSeparator& separator = kGo)
{
    const SeparatorLine line = LineOf(text, separator);
    return line.found ? line.nextLine : -1;
}

} // namespace

TEST(BatchSeparators, EndAtTheirLinesEnd)
{
    EXPECT_EQ(NextOf("GO\nx"), 3);
    EXPECT_EQ(NextOf("GO\r\nx"), 4);
    EXPECT_EQ(NextOf("GO\rx"), 3);
    EXPECT_EQ(NextOf("go \t\nx"), 5);
    EXPECT_EQ(NextOf("GO -- x\ny"), 8);
    EXPECT_EQ(NextOf("GO /* x */\ny"), 11);
}

// Behind the text, so that no batch follows.
TEST(BatchSeparators, AtTheTextsEndHaveNothingBehind)
{
    EXPECT_EQ(NextOf("GO"), 3);
    EXPECT_EQ(NextOf("GO  "), 5);
    EXPECT_EQ(NextOf("GO 5"), 5);
}

TEST(BatchSeparators, TakeOneCountOfDigits)
{
    EXPECT_EQ(LineOf("GO 12\nx").end, 5);
    EXPECT_EQ(LineOf("GO\nx").end, 2);
    EXPECT_EQ(NextOf("GO 12\nx"), 6);
    EXPECT_EQ(NextOf("GO 0x1\nx"), -1);
    EXPECT_EQ(NextOf("GO 1.5\nx"), -1);
    EXPECT_EQ(NextOf("GO 1 2\nx"), -1);
    EXPECT_EQ(NextOf("GO 1\nx", {.text = "GO", .takesCount = false}), -1);
}

TEST(BatchSeparators, AreWholeWordsAlone)
{
    EXPECT_EQ(NextOf("GOT\n"), -1);
    EXPECT_EQ(NextOf("G"), -1);
    EXPECT_EQ(NextOf("GO x\n"), -1);
    EXPECT_EQ(NextOf("GO;\n"), -1);
    EXPECT_EQ(NextOf("go\n", {.text = "GO", .matchCase = true}), -1);
    EXPECT_EQ(NextOf("GO\n", {.text = "GO", .matchCase = true}), 3);
    EXPECT_EQ(NextOf("x", {.text = ""}), -1);
}

// The rest of such a comment belongs to the batch behind.
TEST(BatchSeparators, EndBeforeACommentThatLeavesTheirLine)
{
    EXPECT_EQ(NextOf("GO /* x\n */ y"), 2);
    EXPECT_EQ(NextOf("GO 3 /* x\n */ y"), 4);
}

TEST(BatchSeparators, LookAtTheirLineUpToALimit)
{
    const std::string blanks(static_cast<std::size_t>(kSeparatorReach) + 100, ' ');
    EXPECT_EQ(NextOf("GO" + blanks + "\nx"), 2);
    EXPECT_EQ(NextOf("GO 7" + blanks + "\nx"), 4);
}

TEST(BatchSeparators, TellHowFarTheyLooked)
{
    EXPECT_EQ(LineOf("xx").read, 0);
    EXPECT_GE(LineOf("GO x yz").read, 4);
    EXPECT_GE(LineOf("GO 9 8").read, 6);
    EXPECT_GE(LineOf("GO\nx").read, 3);
}
