// SPDX-License-Identifier: GPL-3.0-or-later
// Patterns that would run away, long lines, the gap of the text, and texts that are no UTF-8.
#include "engine/search/Budget.h"
#include "engine/search/Searcher.h"
#include "tests/engine/PlainText.h"

#include <gtest/gtest.h>

using namespace engine::search;

namespace {

constexpr long kMegabyte = 1024 * 1024;

// A clock that goes on when it is looked at, so that no machine is too slow for a test.
double CountLooks()
{
    static double looks = 0;
    return ++looks;
}

constexpr Budget::Limit kFewLooks = {400, CountLooks};

long StartOf(const std::optional<Range>& range)
{
    return range ? range->start : -1;
}

} // namespace

// A text without any b would be given up at once.
TEST(SearchLimits, StopAPatternThatRunsAway)
{
    const PlainText text(std::string(50000, 'a') + "c b");
    Searcher searcher(text);
    EXPECT_FALSE(searcher.Find(R"(\(a*\)*b)", flag::Expression, 0, text.Length()));
    EXPECT_EQ(searcher.Stopped(), 1);
    EXPECT_FALSE(searcher.Find(R"(\(a|aa\)*b)", flag::Expression, 0, text.Length()));
    EXPECT_EQ(searcher.Stopped(), 2);
    EXPECT_EQ(StartOf(searcher.Find("b", flag::Expression, 0, text.Length())), 50002);
    EXPECT_EQ(searcher.Stopped(), 2);
}

TEST(SearchLimits, StopAPatternThatRunsAwayBackwards)
{
    const PlainText text(std::string(50000, 'a') + "c b");
    Searcher searcher(text);
    EXPECT_FALSE(searcher.Find(R"(\(a|aa\)*d)", flag::Expression, text.Length(), 0));
    EXPECT_EQ(searcher.Stopped(), 0); // there is no d
    EXPECT_FALSE(searcher.Find(R"(^\(a|aa\)*b)", flag::Expression, text.Length(), 0));
    EXPECT_EQ(searcher.Stopped(), 1);
}

// No attempt goes on for long, but there is one for each of very many places.
TEST(SearchLimits, StopASearchWhoseAttemptsAddUp)
{
    for (const char* line : {"", "\n"}) {
        std::string bytes;
        while (bytes.size() < 4 * kMegabyte)
            bytes += std::string(kMegabyte / 2, 'a') + line;
        const PlainText text(bytes + "c b");
        Searcher searcher(text, kFewLooks);
        for (const char* pattern : {"a*[bd]", "[a]*b", "a*a*a*b", ".*a.*a.*[de]", "a[^c]*b"}) {
            const long stopped = searcher.Stopped();
            const auto found = searcher.Find(pattern, flag::Expression, 0, text.Length());
            EXPECT_EQ(found.has_value(), searcher.Stopped() == stopped) << pattern;
        }
        EXPECT_GE(searcher.Stopped(), 3);
        EXPECT_FALSE(searcher.Find("a*b", flag::Expression, text.Length() - 2, 0));
    }
}

// Each search has the whole time again.
TEST(SearchLimits, GoOnBehindASearchThatWasStopped)
{
    const PlainText text(std::string(4 * kMegabyte, 'a') + "c b");
    Searcher searcher(text, kFewLooks);
    EXPECT_FALSE(searcher.Find("a*[bd]", flag::Expression, 0, text.Length()));
    EXPECT_EQ(searcher.Stopped(), 1);
    EXPECT_EQ(StartOf(searcher.Find("c [bd]", flag::Expression, 0, text.Length())), 4 * kMegabyte);
    EXPECT_EQ(StartOf(searcher.Find("a*[bd]", flag::Expression, text.Length() - 4, text.Length())),
              text.Length() - 1);
    EXPECT_EQ(searcher.Stopped(), 1);
}

// Whatever has to be in a match and is not in the text is not tried at each place.
TEST(SearchLimits, GiveUpAtOnceWhereAByteIsMissing)
{
    const PlainText text(std::string(4 * kMegabyte, 'a'));
    Searcher searcher(text, kFewLooks);
    for (const char* pattern : {"a*b", R"(\(a|aa\)*z)", "a*[b]c"})
        EXPECT_FALSE(searcher.Find(pattern, flag::Expression, 0, text.Length())) << pattern;
    EXPECT_EQ(searcher.Stopped(), 0);
}

TEST(SearchLimits, FindAMatchOfManyWindows)
{
    std::string bytes(4 * kMegabyte, 'a');
    bytes.front() = '<';
    bytes.back() = '>';
    for (const long gap : {0L, 1L, 1000L, 2 * kMegabyte, 4 * kMegabyte - 1}) {
        const PlainText text(bytes, gap);
        Searcher searcher(text);
        const auto match = searcher.Find("<[a]*>", flag::Expression, 0, text.Length());
        ASSERT_TRUE(match) << gap;
        EXPECT_EQ(match->end, text.Length());
        EXPECT_EQ(StartOf(searcher.Find("<.*>$", flag::Expression, text.Length(), 0)), 0) << gap;
    }
}

TEST(SearchLimits, LeaveAPatternThatEndsAlone)
{
    const PlainText text(std::string(50000, 'a') + "b");
    Searcher searcher(text);
    EXPECT_EQ(StartOf(searcher.Find(R"(\(a*\)*b)", flag::Expression, 0, text.Length())), 0);
    EXPECT_EQ(StartOf(searcher.Find("a*b", flag::Expression, 0, text.Length())), 0);
    EXPECT_EQ(searcher.Stopped(), 0);
}

TEST(SearchLimits, TakeABadPatternForNoMatch)
{
    const PlainText text("a\\(b");
    Searcher searcher(text);
    for (const char* pattern : {"\\(", "[", "*", "\\)", "\\1", "\\", "\\(a\\)\\9"})
        EXPECT_FALSE(searcher.Find(pattern, flag::Expression, 0, text.Length())) << pattern;
    for (const char* pattern : {"(", "(?<n", "\\C", "a{2,1}", "(*NOSUCHVERB)"})
        EXPECT_FALSE(searcher.Find(pattern, flag::Expression | flag::Native, 0, text.Length()))
            << pattern;
    EXPECT_EQ(searcher.Stopped(), 0);
}

// A match that starts where no match can be would never let a search get on.
TEST(SearchLimits, RefuseAMatchThatStartsBeforeItsPlace)
{
    const PlainText text("abcabc");
    Searcher searcher(text);
    const int native = flag::Expression | flag::Native;
    EXPECT_FALSE(searcher.Find(R"((?<=\Kb)c)", native, 2, text.Length()));
    EXPECT_FALSE(searcher.Find(R"((?=ab\K))", native, 0, text.Length()));
}

TEST(SearchLimits, SearchALongLineBackwardsInStretches)
{
    std::string line(kMegabyte, 'a');
    line.replace(1000, 3, "xyz");
    const PlainText text(std::move(line));
    Searcher searcher(text);
    EXPECT_EQ(StartOf(searcher.Find("x[xyz]*", flag::Expression, text.Length(), 0)), 1000);
    EXPECT_EQ(StartOf(searcher.Find("[xyz]+", flag::Expression, text.Length(), 0)), 1002);
    EXPECT_EQ(StartOf(searcher.Find("a", flag::Expression, text.Length(), 0)), kMegabyte - 1);
    EXPECT_EQ(StartOf(searcher.Find("XYZ", 0, text.Length(), 0)), 1000);
}

TEST(SearchLimits, LeaveTheGapWhereNothingReachesIt)
{
    std::string bytes(kMegabyte, '.');
    bytes.replace(100, 4, "find");
    bytes.replace(kMegabyte - 100, 4, "last");
    const PlainText text(std::move(bytes), kMegabyte / 2);
    Searcher searcher(text);
    EXPECT_EQ(StartOf(searcher.Find("f[a-z]+", flag::Expression, 0, text.Length())), 100);
    EXPECT_EQ(StartOf(searcher.Find("last", 0, 0, text.Length())), kMegabyte - 100);
    EXPECT_EQ(StartOf(searcher.Find("FIND", 0, text.Length(), 0)), 100);
    EXPECT_EQ(text.GapMoved(), 0);
    // Where the search runs into it, it moves by the little that looks back.
    EXPECT_EQ(StartOf(searcher.Find("l[a-z]+", flag::Expression, 0, text.Length())),
              kMegabyte - 100);
    EXPECT_LT(text.GapMoved(), 100);
}

TEST(SearchLimits, FindAMatchOverTheGap)
{
    for (long gap = 0; gap <= 12; ++gap) {
        const PlainText text("xx\xC3\xA9\xE4\xB8\xAD\xF0\x9F\x98\x80y", gap);
        Searcher searcher(text);
        EXPECT_EQ(StartOf(searcher.Find("\xE4\xB8\xAD\xF0\x9F\x98\x80", 0, 0, 12)), 4) << gap;
        EXPECT_EQ(StartOf(searcher.Find("\xE4\xB8\xAD\xF0\x9F\x98\x80", 0, 12, 0)), 4) << gap;
        EXPECT_EQ(StartOf(searcher.Find("x.*y", flag::Expression, 0, 12)), 0) << gap;
        EXPECT_EQ(StartOf(searcher.Find("x.*y", flag::Expression, 12, 0)), 1) << gap;
        EXPECT_EQ(StartOf(searcher.Find("XX\xC3\x89", 0, 0, 12)), 0) << gap;
    }
}

// Half a character stands where somebody replaced a target that was set for another text.
TEST(SearchLimits, SearchATextThatIsNoUtf8)
{
    const PlainText text("a\xC3 b\xE4\xB8 c\x80\x80\x80\x80 d\xFF");
    Searcher searcher(text);
    EXPECT_EQ(StartOf(searcher.Find("b", flag::Expression, 0, text.Length())), 3);
    EXPECT_EQ(StartOf(searcher.Find("d", flag::Expression, 0, text.Length())), 13);
    EXPECT_EQ(StartOf(searcher.Find("d", flag::Expression, text.Length(), 0)), 13);
    EXPECT_EQ(StartOf(searcher.Find("C", 0, text.Length(), 0)), 7);
}

TEST(SearchFolding, FindsLettersInAnyCaseOutsideAscii)
{
    const PlainText text("\xC3\x89T\xC3\x89 \xE2\x84\xAA \xC5\xBF \xD0\x96");
    Searcher searcher(text);
    const auto find = [&](const char* sought) {
        return StartOf(searcher.Find(sought, 0, 0, text.Length()));
    };
    EXPECT_EQ(find("\xC3\xA9t\xC3\xA9"), 0);
    EXPECT_EQ(find("k"), 6);
    EXPECT_EQ(find(" K "), 5);
    EXPECT_EQ(find("s"), 10);
    EXPECT_EQ(find(" s "), 9);
    EXPECT_EQ(find("\xD0\xB6"), 13);
}

TEST(SearchReplacing, PutsGroupsAndCharactersIntoTheReplacement)
{
    const PlainText text("key = value");
    Searcher searcher(text);
    ASSERT_TRUE(searcher.Find(R"(\([a-z]+\) = \c\([a-z]+\))", flag::Expression, 0, text.Length()));
    EXPECT_EQ(searcher.Substituted(R"(\2:\1)"), "value:key");
    EXPECT_EQ(searcher.Substituted(R"([\0])"), "[key = ]");
    EXPECT_EQ(searcher.Substituted(R"(\n\t\\\q\3\)"), "\n\t\\\\q\\");
    EXPECT_FALSE(searcher.Find("none", flag::Expression, 0, text.Length()));
    EXPECT_EQ(searcher.Substituted(R"(<\1>)"), "<>");
}
