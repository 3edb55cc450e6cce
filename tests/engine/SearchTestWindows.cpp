// SPDX-License-Identifier: GPL-3.0-or-later
// The ways a search takes to be quick, against the plain way: the expression run once over the
// whole text in one piece.
#include "engine/search/Budget.h"
#include "engine/search/Expression.h"
#include "engine/search/Searcher.h"
#include "tests/RandomSeed.h"
#include "tests/engine/PlainText.h"

#include <gtest/gtest.h>

#include <iostream>
#include <iterator>
#include <random>

using namespace engine::search;

namespace {

class Draw
{
public:
    Draw() : m_random(NewSeed()) {}

    std::size_t Below(std::size_t count) { return m_random() % count; }
    bool Chance(unsigned percent) { return m_random() % 100 < percent; }

    template <typename Pieces>
    std::string Text(const Pieces& pieces, std::size_t count)
    {
        std::string text;
        for (std::size_t i = 0; i < count; ++i)
            text += pieces[Below(std::size(pieces))];
        return text;
    }

private:
    static unsigned NewSeed()
    {
        const unsigned seed = RandomSeed();
        std::cout << "seed " << seed << std::endl;
        return seed;
    }

    std::mt19937 m_random;
};

std::string Show(const std::optional<Range>& range)
{
    return range ? std::to_string(range->start) + " to " + std::to_string(range->end) : "none";
}

// The expression alone. What PlainText takes for a word is what a translation takes for one unless
// it is told otherwise.
class PlainSearch
{
public:
    PlainSearch(std::string_view pattern, bool matchCase)
    {
        auto translation =
            ExpressionTranslator({.posix = false, .matchCase = matchCase}).Translate(pattern);
        if (!translation)
            return;
        m_ends = translation->ends;
        m_expression =
            Expression::Compile(translation->pattern, Expression::Reading::Pattern, matchCase);
    }

    // From a place to the text's end.
    std::optional<Range> First(const std::string& text, long from) const
    {
        Budget budget;
        Expression::Run run;
        run.from = static_cast<std::size_t>(from);
        run.budget = &budget;
        if (!m_expression || m_expression->Find(text, run) != Expression::Outcome::Found)
            return std::nullopt;
        const std::size_t end =
            m_ends.empty() ? m_expression->End() : m_expression->Start(m_ends.front());
        return Range{static_cast<long>(m_expression->Start()), static_cast<long>(end)};
    }

    std::optional<Range> Last(const std::string& text) const
    {
        std::optional<Range> last;
        for (auto next = First(text, 0); next; next = First(text, PlaceBehind(text, next->start)))
            last = next;
        return last;
    }

    static long PlaceBehind(const std::string& text, long at)
    {
        ++at;
        while (at < static_cast<long>(text.size()) &&
               (text[static_cast<std::size_t>(at)] & 0xC0) == 0x80)
            ++at;
        return at;
    }

private:
    std::unique_ptr<Expression> m_expression;
    std::vector<int> m_ends;
};

constexpr const char* kPieces[] = {"a",        "b", "k",  "K",  "s",    "_",        "1",
                                   " ",        ".", "\n", "\r", "\r\n", "\xC3\xA9", "\xE2\x84\xAA",
                                   "\xC5\xBF", "-"};

std::string SomeAnchoredPattern(Draw& draw)
{
    static constexpr const char* kItems[] = {"a",   "b", "k",        "S",  "_",  "1", " ",
                                             "\\.", "-", "\xC3\xA9", "\r", "\n", "]", "\\$"};
    std::string pattern;
    if (draw.Chance(40))
        pattern += "^";
    if (draw.Chance(40))
        pattern += "\\<";
    pattern += draw.Text(kItems, 1 + draw.Below(2));
    if (draw.Chance(30))
        pattern += "\\>";
    if (draw.Chance(30))
        pattern += "$";
    return pattern;
}

} // namespace

TEST(SearchAtEdges, FindsWhatTheExpressionFinds)
{
    Draw draw;
    int found = 0;
    for (int i = 0; i < 4000 && !testing::Test::HasFailure(); ++i) {
        const std::string bytes = draw.Text(kPieces, draw.Below(40));
        const auto length = static_cast<long>(bytes.size());
        const std::string pattern = SomeAnchoredPattern(draw);
        const bool matchCase = draw.Chance(50);
        const int flags = flag::Expression | (matchCase ? flag::MatchCase : 0);
        const PlainText text(bytes, static_cast<long>(draw.Below(bytes.size() + 1)));
        Searcher searcher(text);
        const PlainSearch plain(pattern, matchCase);
        for (long from = 0;;) {
            const auto expected = plain.First(bytes, from);
            const auto match = searcher.Find(pattern, flags, from, length);
            ASSERT_EQ(Show(match), Show(expected))
                << testing::PrintToString(pattern) << " in " << testing::PrintToString(bytes)
                << " from " << from << (matchCase ? ", case matters" : "");
            if (!match)
                break;
            ++found;
            EXPECT_EQ(searcher.Substituted("\\0\\1"),
                      bytes.substr(static_cast<std::size_t>(match->start),
                                   static_cast<std::size_t>(match->end - match->start)));
            from = match->end;
        }
        ASSERT_EQ(Show(searcher.Find(pattern, flags, length, 0)), Show(plain.Last(bytes)))
            << testing::PrintToString(pattern) << " in " << testing::PrintToString(bytes);
    }
    EXPECT_GT(found, 500);
}

// At the end of the range only what is before it counts, but for the line, which has to end there.
TEST(SearchAtEdges, EndWithTheRange)
{
    const PlainText text("one two\r\nonetwo");
    Searcher searcher(text);
    const auto find = [&](const char* pattern, long from, long to) {
        return Show(searcher.Find(pattern, flag::Expression, from, to));
    };
    EXPECT_EQ(find("one\\>", 9, 12), "9 to 12");
    EXPECT_EQ(find("one\\>", 9, 15), "none");
    EXPECT_EQ(find("one$", 9, 12), "none");
    EXPECT_EQ(find("two$", 0, 7), "4 to 7");
    EXPECT_EQ(find("two$", 0, 8), "4 to 7");
    EXPECT_EQ(find("two\\r$", 0, 8), "4 to 8");
    EXPECT_EQ(find("^one", 1, 15), "9 to 12");
    EXPECT_EQ(find("\\<two", 12, 15), "none");
    EXPECT_EQ(find("^\\<two", 4, 15), "none");
}

TEST(SearchInWindows, FindsWhatOneRunFinds)
{
    static constexpr const char* kPatterns[] = {
        "a[^k]*k",        "b.*1",       R"(\([abk_1]+\)-)", R"(\(.\)\1\1)", R"(\<[a-z]+\>-)",
        R"(k\n\(.*\)\n)", R"([^a]+$)",  R"(^.+-)",          R"(s.\c[ab])",  R"(1\r\n)",
        R"([\W]+1)",      R"(^[^1]+1)", R"(\(a\|b\)+$)",    "_+b",          R"(\>-\<)"};
    Draw draw;
    int found = 0;
    for (int i = 0; i < 60 && !testing::Test::HasFailure(); ++i) {
        std::string bytes;
        while (bytes.size() < 6000) {
            bytes += draw.Text(kPieces, draw.Below(200));
            if (draw.Chance(20))
                bytes += std::string(draw.Below(3000), 'a');
        }
        const auto length = static_cast<long>(bytes.size());
        const PlainText text(bytes, static_cast<long>(draw.Below(bytes.size() + 1)));
        Searcher searcher(text);
        for (const char* pattern : kPatterns) {
            const PlainSearch plain(pattern, true);
            for (long from = 0;;) {
                const auto expected = plain.First(bytes, from);
                const auto match =
                    searcher.Find(pattern, flag::Expression | flag::MatchCase, from, length);
                ASSERT_EQ(Show(match), Show(expected)) << pattern << " from " << from;
                if (!match)
                    break;
                ++found;
                from = std::max(match->end, PlainSearch::PlaceBehind(bytes, match->start));
            }
        }
        EXPECT_EQ(searcher.Stopped(), 0);
    }
    EXPECT_GT(found, 1000);
}
