// SPDX-License-Identifier: GPL-3.0-or-later
#include "preprocess/language/Directives.h"
#include "tests/RandomSeed.h"

#include <gtest/gtest.h>

#include <random>
#include <regex>

using namespace directive;

namespace {

const QString kMarker = QStringLiteral("--");

std::string Name(const QString& line, const QString& marker = kMarker)
{
    return IncludedName(line, 8, marker).toStdString();
}

TEST(IncludeLine, NamesAFileInEveryForm)
{
    EXPECT_EQ(Name("#include a.sql"), "a.sql");
    EXPECT_EQ(Name("#include <a.sql>"), "a.sql");
    EXPECT_EQ(Name("#include \"a.sql\""), "a.sql");
    EXPECT_EQ(Name("#include a b.sql"), "a b.sql");
    EXPECT_EQ(Name("#include"), "");
}

TEST(IncludeLine, EndsAtTheFirstComment)
{
    EXPECT_EQ(Name("#include a.sql -- note"), "a.sql");
    EXPECT_EQ(Name("#include a--b.sql"), "a");
    EXPECT_EQ(Name("#include a.sql /* note */"), "a.sql");
    EXPECT_EQ(Name("#include a.sql /* note -- more */"), "a.sql");
}

TEST(IncludeLine, IsNotCutAtItsFront)
{
    EXPECT_EQ(Name("#include-- a.sql"), "-- a.sql");
    EXPECT_EQ(Name("#include/* a.sql"), "/* a.sql");
    EXPECT_EQ(Name("#include -- a.sql"), ""); // a blank stands in front
}

TEST(IncludeLine, TrimsRunsOfBracketsAndQuotes)
{
    EXPECT_EQ(Name("#include <<< a.sql >>>"), "a.sql");
    EXPECT_EQ(Name("#include < a.sql"), "a.sql");
    EXPECT_EQ(Name("#include a.sql>"), "a.sql>"); // without "<" none is looked for
    EXPECT_EQ(Name("#include a<b.sql"), "a<b.sql");
    EXPECT_EQ(Name("#include \"\"a\"b.sql\""), "a\"b.sql");
    EXPECT_EQ(Name("#include \"<a.sql>\""), "<a.sql>");
    EXPECT_EQ(Name("#include <\"a.sql\">"), "a.sql");
    EXPECT_EQ(Name("#include <<"), "");
}

TEST(IncludeLine, DropsItsFrontWhateverStandsThere)
{
    EXPECT_EQ(Name("x #include a.sql"), "de a.sql");
    EXPECT_EQ(IncludedName("short", 8, kMarker), "");
}

TEST(IncludeLine, IsNotCutByAnEmptyMarker)
{
    EXPECT_EQ(Name("#include a--b.sql", ""), "a--b.sql");
}

TEST(Definition, HasANameAndAValue)
{
    const auto definition = ReadDefinition(u"#define \t&&A_1  two words ", u"#define");
    ASSERT_TRUE(definition);
    EXPECT_EQ(definition->name, "&&A_1");
    EXPECT_EQ(definition->value, "two words");
}

TEST(Definition, NeedsEachOfItsParts)
{
    for (const char16_t* line :
         {u"#define", u"#define ", u"#define A 1", u"#define &&A", u"#define &&A ", u"#define && 1",
          u"#define &A 1", u"#define&&A 1", u" #define &&A 1", u"#defines &&A 1",
          u"#define &&A-B 1", u"#define &&Ä 1", u"#DEFINE &&A 1", u"#define x &&A 1"})
        EXPECT_FALSE(ReadDefinition(line, u"#define")) << QString::fromUtf16(line).toStdString();
}

TEST(Definition, MayHaveAnEmptyValueBehindTwoBlanks)
{
    const auto definition = ReadDefinition(u"#define &&A  ", u"#define");
    ASSERT_TRUE(definition);
    EXPECT_EQ(definition->value, "");
}

TEST(Definition, DoesNotReachOverALineTerminator)
{
    EXPECT_TRUE(IsDefinition(u"#define \u2003x", u"#define"));
    EXPECT_FALSE(IsDefinition(u"#define x\u2028y", u"#define"));
    EXPECT_FALSE(ReadDefinition(u"#define &&A x\u2029y", u"#define"));
    EXPECT_FALSE(ReadDefinition(u"#define &&A \u2028", u"#define"));
}

TEST(Definition, MayBeFiftyMegabytesLong)
{
    const QString line = "#define &&A " + QString(50 * 1024 * 1024, 'x');
    ASSERT_TRUE(IsDefinition(line, u"#define"));
    EXPECT_EQ(ReadDefinition(line, u"#define")->value.size(), 50 * 1024 * 1024);
}

// The same lines through the standard library's expressions.
TEST(Definition, AgreesWithTheRegularExpressions)
{
    const unsigned seed = RandomSeed();
    std::mt19937 random(seed);
    SCOPED_TRACE("seed " + std::to_string(seed));
    const std::regex test("(^#define\\s+).*$", std::regex::ECMAScript);
    const std::regex parts("(^#define\\s+)(&&[a-zA-Z0-9_]+\\s+)(.+$)", std::regex::ECMAScript);
    const char* const pieces[] = {
        "#define", "#define ", " ",  "\t", "\v",  "\f", "\n",   "\r",          "&&",          "&",
        "A",       "z",        "_9", "-",  "x y", "#",  "\x7f", "#define &&A", "#define &&A "};
    int matches = 0;
    for (int round = 0; round < 100000; ++round) {
        std::string line = random() % 4 ? pieces[random() % 2] : "";
        for (unsigned count = random() % 7; count > 0; --count)
            line += pieces[random() % std::size(pieces)];
        const QString wide = QString::fromStdString(line);
        ASSERT_EQ(IsDefinition(wide, u"#define"), std::regex_match(line, test)) << line;
        std::smatch groups;
        const bool matched = std::regex_match(line, groups, parts);
        const auto definition = ReadDefinition(wide, u"#define");
        ASSERT_EQ(definition.has_value(), matched) << line;
        if (!matched)
            continue;
        ++matches;
        EXPECT_EQ(definition->name.toStdString(),
                  QString::fromStdString(groups[2]).trimmed().toStdString());
        EXPECT_EQ(definition->value.toStdString(),
                  QString::fromStdString(groups[3]).trimmed().toStdString());
    }
    EXPECT_GT(matches, 1000);
}

TEST(Reference, LeadsOrFollowsAPrefix)
{
    const auto leading = FirstReference("&&A");
    ASSERT_TRUE(leading);
    EXPECT_EQ(leading->name, "&&A");
    EXPECT_EQ(leading->pieces, 1);
    EXPECT_TRUE(leading->leads);
    const auto following = FirstReference("12&&A");
    ASSERT_TRUE(following);
    EXPECT_EQ(following->name, "&&A");
    EXPECT_EQ(following->prefix, "12");
    EXPECT_EQ(following->pieces, 2);
    EXPECT_FALSE(following->leads);
    EXPECT_FALSE(FirstReference("a&b"));
}

TEST(Reference, TakesWhatFollowsIntoItsName)
{
    EXPECT_EQ(FirstReference("&&A more")->name, "&&A more");
    EXPECT_EQ(FirstReference("&&A&&B")->name, "&&A");
    EXPECT_EQ(FirstReference("&&A&&B")->pieces, 2);
    EXPECT_EQ(FirstReference("x&y&&z")->name, "&&y"); // the second piece, whichever it is
}

TEST(Reference, MayLackItsName)
{
    EXPECT_EQ(FirstReference("x&&")->name, "&&");
    EXPECT_EQ(FirstReference("&&")->name, "&&");
    EXPECT_EQ(FirstReference("&&")->pieces, 0);
}

TEST(NameCharacter, IsJudgedByItsLowByte)
{
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit) {
        const unsigned low = unit & 0xFF;
        const bool expected = (low >= '0' && low <= '9') || (low >= 'A' && low <= 'Z') ||
                              (low >= 'a' && low <= 'z') || low == '_';
        ASSERT_EQ(IsNameCharacter(static_cast<char16_t>(unit)), expected) << unit;
    }
}

} // namespace
