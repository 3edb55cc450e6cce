// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/RandomSeed.h"
#include "tests/completion/IndexedText.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

using namespace completion;

namespace {

const engine::analysis::SqlDialect* Dialect(const char* name)
{
    return engine::analysis::DialectByName(name);
}

bool Has(const std::vector<std::string>& lines, const std::string& line)
{
    return std::find(lines.begin(), lines.end(), line) != lines.end();
}

constexpr const char16_t* kPieces[] = {
    u"select o.id from orders o\n",
    u"create table stock (id int, name text);\n",
    u"/* a long remark\n over lines */ ",
    u"'a string\nwith words' ",
    u"/*",
    u"*/",
    u"'",
    u"$$ ",
    u"with c as (select 1) select * from c, d;\n",
    u"declare @a int; exec pay @a\n",
    u"[Order ",
    u"Lines] ",
    u"-- remark\n",
    u"caf\u00e9 \U0001F600 ",
    u"(",
    u")",
    u"insert into t1 (a, b) values (1, 2)\nGO\n",
    u"create or replace function f(a int) returns int as $$ declare v int; begin end $$;\n",
    u"prompt it's\n",
    u";\nremark isn't -\n it\n",
    u"\n.read it's\n",
    u"dbo.",
    u"alter table dbo.stock add a int, b int\n",
    u"create view v as select a.* from a;\n",
    u"from ",
    u";\n",
    u"\\g \\! ls 'a\n",
    u"delimiter //\n",
    u"alter table t drop column a, rename column b to c",
    u" drop table t\n",
    u") x (a, b) ",
};

std::u16string Piece(std::mt19937& random)
{
    if (random() % 40 == 0)
        return (random() % 2 ? u";\nprompt it's" : u" ") +
               std::u16string(600 + random() % 1000, u'z') + u' ';
    return kPieces[random() % std::size(kPieces)];
}

} // namespace

TEST(ScriptIndex, HasTheWordsOfCodeAndNotThoseOfCommentsAndStrings)
{
    IndexedText text(Dialect("transact-sql"), u"select a1 -- remark\nfrom [My Table] 'words'", 100);
    text.Finish();
    const auto told = text.Told();
    EXPECT_TRUE(Has(told, "word a1") && Has(told, "word My Table"));
    EXPECT_FALSE(Has(told, "word remark") || Has(told, "word words"));
}

TEST(ScriptIndex, FollowsACommentThatIsOpenedInFrontOfAll)
{
    std::u16string lines;
    for (int i = 0; i < 200; ++i)
        lines += u"create table tab_" + std::u16string(1, static_cast<char16_t>(u'a' + i % 26)) +
                 u" (id int);\n";
    IndexedText text(Dialect("sql"), lines, 256);
    text.Finish();
    EXPECT_EQ(text.Index().Objects().size(), 200U);
    text.Insert(0, u"/*");
    text.Finish();
    EXPECT_TRUE(text.Index().Objects().empty());
    text.Delete(0, 2);
    text.Finish();
    EXPECT_EQ(text.Index().Objects().size(), 200U);
}

TEST(ScriptIndex, KnowsTheStretchOfTheCaretBeforeTheRestIsRead)
{
    std::u16string lines(400000, u' ');
    lines.insert(300000, u"\nselect nearby from orders\n");
    IndexedText text(Dialect("sql"), lines, 4096);
    text.Index().Freshen(text.Reader(), 300010);
    EXPECT_FALSE(text.Index().IsDone());
    EXPECT_TRUE(Has(text.Told(), "word nearby"));
}

TEST(ScriptIndex, TakesNoMoreWordsThanItsShareOfTheText)
{
    std::u16string lines;
    std::mt19937 random(3);
    while (lines.size() < 8'000'000) {
        for (int i = 0; i < 8; ++i)
            lines += static_cast<char16_t>(u'a' + random() % 26);
        lines += u'\n';
    }
    IndexedText text(nullptr, lines, ScriptIndex::kStretch);
    text.Finish();
    EXPECT_GT(text.Index().Words().Count(), 10000U);
    EXPECT_LE(text.Index().MemoryBytes(), std::max<std::size_t>(lines.size() * 15 / 100, 2 << 20));
}

TEST(ScriptIndex, IsThatOfAFreshOneBehindAnyEdits)
{
    const unsigned seed = RandomSeed();
    SCOPED_TRACE("ZN_TEST_SEED=" + std::to_string(seed));
    std::mt19937 random(seed);
    for (const char* name : {"transact-sql", "postgresql", "oracle", "mysql", "sqlite", ""}) {
        IndexedText text(*name ? Dialect(name) : nullptr, u"", 64 + long(random() % 200));
        for (int step = 0; step < 250; ++step) {
            const long place = long(random() % std::size_t(text.Length() + 1));
            const bool isLow =
                place < text.Length() && (text.Text()[std::size_t(place)] & 0xFC00) == 0xDC00;
            if (random() % 4 && !isLow)
                text.Insert(place, Piece(random));
            else if (text.Length() > 0 && text.Text().find(u'\xD83D') == std::u16string::npos)
                text.Delete(place, std::min(long(random() % 60), text.Length() - place));
            if (random() % 3 == 0)
                text.Index().Freshen(text.Reader(), place);
            if (step % 25 == 0) {
                text.Finish();
                ASSERT_EQ(text.Told(), text.Afresh()) << name << " behind step " << step;
            }
        }
    }
}
