// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/analysis/SqlScanner.h"
#include "tests/RandomSeed.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace engine::analysis {
namespace {

using testing::ElementsAre;

char LetterOf(TokenKind kind)
{
    return "_/cCX!SQNVWtoE"[static_cast<int>(kind)];
}

// The tokens as "kind:text", blanks left out.
std::vector<std::string> Tokens(int lexer, const std::string& text,
                                std::string_view terminator = {})
{
    SqlScanner scanner(*DialectOfLexer(lexer), TextSpans(text));
    scanner.SetTerminator(terminator);
    std::vector<std::string> tokens;
    for (Token token = scanner.Next(); token.kind != TokenKind::End; token = scanner.Next()) {
        if (token.kind != TokenKind::Blank && token.kind != TokenKind::LineEnd)
            tokens.push_back(std::string(1, LetterOf(token.kind)) + ':' +
                             scanner.Text().Copy(token.start, token.end));
    }
    return tokens;
}

std::vector<std::string> TokensOf(const char* dialect, const std::string& text)
{
    SqlScanner scanner(*DialectByName(dialect), TextSpans(text));
    std::vector<std::string> tokens;
    for (Token token = scanner.Next(); token.kind != TokenKind::End; token = scanner.Next()) {
        if (token.kind != TokenKind::Blank && token.kind != TokenKind::LineEnd)
            tokens.push_back(std::string(1, LetterOf(token.kind)) + ':' +
                             scanner.Text().Copy(token.start, token.end));
    }
    return tokens;
}

constexpr int kSqlLexers[] = {0, 2, 3, 4, 5, 9, 10, 14, 15, 16, 17, 18};

} // namespace

TEST(SqlDialects, StandBehindEverySqlLexerAndNoOther)
{
    for (const int lexer : kSqlLexers)
        EXPECT_TRUE(DialectOfLexer(lexer)) << lexer;
    for (const int lexer : {-1, 1, 6, 8, 11, 12, 13, 19, 28, 29, 30, 1000})
        EXPECT_FALSE(DialectOfLexer(lexer)) << lexer;
}

TEST(SqlDialects, AreFoundByNameInAnyCase)
{
    EXPECT_EQ(DialectByName("PostgreSQL")->name, "postgresql");
    EXPECT_EQ(DialectByName("sqlite")->name, "sqlite");
    EXPECT_FALSE(DialectByName("klingon"));
    EXPECT_FALSE(DialectByName(""));
}

TEST(SqlScanner, TellsTheCommonKindsApart)
{
    EXPECT_THAT(Tokens(9, "select a.b1, 1.5e3 from \"T t\" -- c\nwhere x='it''s';"),
                ElementsAre("W:select", "W:a", "o:.", "W:b1", "o:,", "N:1.5e3", "W:from",
                            "Q:\"T t\"", "c:-- c", "W:where", "W:x", "o:=", "S:'it''s'", "t:;"));
}

TEST(SqlScanner, NestsCommentsOnlyWhereTheDialectDoes)
{
    const std::string text = "/* a /* b */ c */ d";
    for (const int lexer : {2, 3, 4, 10, 16, 17, 18})
        EXPECT_THAT(Tokens(lexer, text), ElementsAre("C:/* a /* b */ c */", "W:d")) << lexer;
    EXPECT_THAT(TokensOf("postgresql", text), ElementsAre("C:/* a /* b */ c */", "W:d"));
    for (const int lexer : {0, 5, 9, 14, 15})
        EXPECT_THAT(Tokens(lexer, text), ElementsAre("C:/* a /* b */", "W:c", "o:*", "o:/", "W:d"))
            << lexer;
    EXPECT_EQ(TokensOf("sqlite", text).size(), 5U);
}

TEST(SqlScanner, AsksForABlankBehindTheDashesOfMySql)
{
    EXPECT_THAT(Tokens(14, "1--2 -- c"), ElementsAre("N:1", "o:-", "o:-", "N:2", "c:-- c"));
    EXPECT_THAT(Tokens(14, "--\n1--"), ElementsAre("c:--", "N:1", "c:--"));
    EXPECT_THAT(Tokens(3, "1--2"), ElementsAre("N:1", "c:--2"));
}

TEST(SqlScanner, ReadsTheOtherLineCommentsWhereTheyExist)
{
    EXPECT_THAT(Tokens(14, "a # b\nc"), ElementsAre("W:a", "c:# b", "W:c"));
    EXPECT_THAT(Tokens(3, "a #b"), ElementsAre("W:a", "W:#b"));
    EXPECT_THAT(Tokens(18, "a // b\nc"), ElementsAre("W:a", "c:// b", "W:c"));
    EXPECT_THAT(Tokens(9, "a // b"), ElementsAre("W:a", "o:/", "o:/", "W:b"));
}

TEST(SqlScanner, ReadsTheQuotesOfEachDialect)
{
    EXPECT_THAT(Tokens(3, "[a]]b] N'x' \"q\""), ElementsAre("Q:[a]]b]", "S:N'x'", "Q:\"q\""));
    EXPECT_THAT(Tokens(14, "`a``b` \"s\" 'i\\'s' \"d\\\"\""),
                ElementsAre("Q:`a``b`", "S:\"s\"", "S:'i\\'s'", "S:\"d\\\"\""));
    EXPECT_THAT(Tokens(5, "'a\\' q'[it's]' nq'{a}b}' Q'!a!b!'"),
                ElementsAre("S:'a\\'", "S:q'[it's]'", "S:nq'{a}b}'", "S:Q'!a!b!'"));
    EXPECT_THAT(TokensOf("postgresql", "E'a\\'b' 'c\\' a[1]"),
                ElementsAre("S:E'a\\'b'", "S:'c\\'", "W:a", "o:[", "N:1", "o:]"));
    EXPECT_THAT(TokensOf("sqlite", "[a;b] `c`"), ElementsAre("Q:[a;b]", "Q:`c`"));
}

TEST(SqlScanner, TakesACharacterOfManyBytesAsAQuote)
{
    EXPECT_THAT(Tokens(5, "q'\u00e9a'b\u00e9' c"), ElementsAre("S:q'\u00e9a'b\u00e9'", "W:c"));
}

TEST(SqlScanner, ClosesADollarStringWithItsOwnTagOnly)
{
    EXPECT_THAT(TokensOf("postgresql", "$$a;$b$;$$ $f$ $$ ; $g$f$ $1 a$b$c"),
                ElementsAre("S:$$a;$b$;$$", "S:$f$ $$ ; $g$f$", "V:$1", "W:a$b$c"));
    EXPECT_THAT(Tokens(3, "$$"), ElementsAre("o:$", "o:$"));
}

TEST(SqlScanner, NoDollarStringBeginsWithADigit)
{
    using testing::Contains;
    using testing::StartsWith;
    for (const char digit : std::string("0123456789"))
        EXPECT_THAT(TokensOf("postgresql", std::string("$") + digit + "$ a"),
                    testing::Not(Contains(StartsWith("S:"))));
}

TEST(SqlScanner, KnowsVariablesAndCasts)
{
    EXPECT_THAT(Tokens(3, "@a @@b a@c"), ElementsAre("V:@a", "V:@@b", "W:a@c"));
    EXPECT_THAT(TokensOf("postgresql", "a::int :b := c"),
                ElementsAre("W:a", "o:::", "W:int", "V::b", "o::", "o:=", "W:c"));
    EXPECT_THAT(Tokens(5, ":a &&b &c"), ElementsAre("V::a", "V:&&b", "V:&c"));
}

TEST(SqlScanner, KnowsCommentsThatAServerRuns)
{
    EXPECT_THAT(Tokens(14, "/*!50003 set a */ /* b */"),
                ElementsAre("X:/*!50003 set a */", "C:/* b */"));
}

TEST(SqlScanner, FindsATerminatorInsideAWordToo)
{
    EXPECT_THAT(
        Tokens(14, "end$$ a;b // '$$' -- $$", "$$"),
        ElementsAre("W:end", "t:$$", "W:a", "o:;", "W:b", "o:/", "o:/", "S:'$$'", "c:-- $$"));
    EXPECT_THAT(Tokens(15, "end^", "^"), ElementsAre("W:end", "t:^"));
}

TEST(SqlScanner, EndsUnclosedTokensAtTheTextsEnd)
{
    for (const int lexer : kSqlLexers) {
        for (const char* text : {"'a", "/* a", "\"a", "-- a", "a", "'a''", "/*", "/**"}) {
            SqlScanner scanner(*DialectOfLexer(lexer), TextSpans(text));
            EXPECT_EQ(scanner.Next().end, static_cast<long>(std::string(text).size()))
                << text << ' ' << lexer;
            EXPECT_EQ(scanner.Next().kind, TokenKind::End);
        }
    }
}

// What stands where, with cut tokens put together again.
struct Piece
{
    TokenKind kind;
    long start;
    long end;
    bool operator==(const Piece&) const = default;
};

static std::vector<Piece> PiecesOf(const SqlDialect& dialect, const TextSpans& text,
                                   std::string_view terminator, std::mt19937* cuts)
{
    std::vector<Piece> pieces;
    long position = 0;
    ScanState state;
    for (;;) {
        SqlScanner scanner(dialect, text, position, state); // resumed at every step
        scanner.SetTerminator(terminator);
        const long limit =
            cuts ? position + 1 + static_cast<long>((*cuts)() % 700) : SqlScanner::kNoLimit;
        const Token token = scanner.Next(limit);
        if (token.kind == TokenKind::End)
            return pieces;
        const bool blank = token.kind == TokenKind::Blank || token.kind == TokenKind::LineEnd;
        if (!pieces.empty() && (token.resumed || (blank && pieces.back().kind == token.kind)))
            pieces.back().end = token.end;
        else if (!pieces.empty() && pieces.back().kind == TokenKind::LineEnd && blank)
            pieces.back().end = token.end;
        else
            pieces.push_back({token.kind, token.start, token.end});
        position = token.end;
        state = scanner.State();
    }
}

TEST(SqlScanner, GivesTheSameTokensWhereverItIsCutAndWhereverTheGapLies)
{
    const unsigned seed = RandomSeed();
    std::mt19937 random(seed);
    SCOPED_TRACE("seed " + std::to_string(seed));
    static const char* const kWords[] = {"'",  "\"", "`",  "[",  "]",  "/*", "*/",  "--", "\n",
                                         "$$", "$a", "$",  "q'", "E'", "\\", ";",   "#",  "@x",
                                         "::", "{",  "}'", " ",  "a1", "//", "\r\n"};
    for (int round = 0; round < 300; ++round) {
        std::string text;
        const int words = static_cast<int>(random() % 400);
        for (int i = 0; i < words; ++i) {
            const char* word = kWords[random() % std::size(kWords)];
            const bool isLong = random() % 40 == 0;
            for (int repeat = isLong ? 600 : 1; repeat > 0; --repeat)
                text += word;
        }
        const int lexer = kSqlLexers[random() % std::size(kSqlLexers)];
        const std::string_view terminator = random() % 4 == 0 ? "$$" : "";
        const std::size_t gap = text.empty() ? 0 : random() % text.size();
        const TextSpans spans(std::string_view(text).substr(0, gap),
                              std::string_view(text).substr(gap));
        const auto whole = PiecesOf(*DialectOfLexer(lexer), TextSpans(text), terminator, nullptr);
        const auto cut = PiecesOf(*DialectOfLexer(lexer), spans, terminator, &random);
        ASSERT_EQ(whole.size(), cut.size()) << lexer;
        ASSERT_TRUE(whole == cut) << lexer;
        long position = 0;
        for (const Piece& piece : whole) {
            ASSERT_EQ(piece.start, position);
            position = piece.end;
        }
        ASSERT_EQ(position, static_cast<long>(text.size()));
    }
}

} // namespace engine::analysis
