// SPDX-License-Identifier: GPL-3.0-or-later
// Folds in the bodies of routines that stand between tags of dollars. Bodies that are grown at
// random know their own depth.
#include "tests/RandomSeed.h"
#include "tests/engine/SqlUnderTest.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

namespace msg = engine::message;

namespace {

constexpr int kGeneric = 9;

void ExpectFolds(const std::string& picture)
{
    for (const auto* dialect : {u"postgresql", u"sql"})
        EXPECT_EQ(FoldsOf(kGeneric, picture, dialect), picture);
}

} // namespace

TEST(BodyFolds, BlocksLoopsAndConditionsFold)
{
    ExpectFolds("0H |create function f() returns int as $$\n"
                "1H |declare\n"
                "2  |  v int := 0;\n"
                "2  |begin\n"
                "2H |  for r in select a from t\n"
                "3  |           where b loop\n"
                "3H |    if r.a > 0 then\n"
                "4  |      v := v + 1;\n"
                "4  |    elsif r.a < 0 then\n"
                "4  |      v := v - 1;\n"
                "4  |    else\n"
                "4  |      exit;\n"
                "4  |    end if;\n"
                "3  |  end loop;\n"
                "2H |  while v < 3\n"
                "3  |  loop\n"
                "3  |    v := 3;\n"
                "3  |  end loop;\n"
                "2H |  <<outer>> loop\n"
                "3  |    exit outer;\n"
                "3  |  end loop outer;\n"
                "2  |  foreach x in array a loop null; end loop;\n"
                "2  |  return v;\n"
                "2  |end;\n"
                "1  |$$ language plpgsql;\n"
                "0  |select 1;\n");
}

TEST(BodyFolds, ExceptionsBelongToTheirBlock)
{
    ExpectFolds("0H |do $x$\n"
                "1H |begin\n"
                "2H |  begin\n"
                "3  |    raise exception 'begin';\n"
                "3  |  exception\n"
                "3  |    when others then\n"
                "3H |      if a then\n"
                "4  |        null;\n"
                "4  |      end if;\n"
                "3  |  end;\n"
                "2  |end\n"
                "1  |$x$;\n"
                "0  |select 1;\n");
}

TEST(BodyFolds, CasesFoldAsStatementsAndAsExpressions)
{
    ExpectFolds("0H |do $$ begin\n"
                "2H |  case x\n"
                "3  |    when 1 then\n"
                "3  |      y := case when a then 1 else 2 end;\n"
                "3  |    else\n"
                "3H |      y := case z\n"
                "4  |        when 2 then 3\n"
                "4  |      end;\n"
                "3  |  end case;\n"
                "2H |  if case when a then b end then\n"
                "3  |    null;\n"
                "3  |  end if;\n"
                "2H |  for i in 1..case when a then 1 else 2 end loop\n"
                "3  |    null;\n"
                "3  |  end loop;\n"
                "2  |end $$;\n");
}

TEST(BodyFolds, ClausesAreNoStatements)
{
    ExpectFolds("0H |do $$\n"
                "1H |begin\n"
                "2  |  drop table if exists t;\n"
                "2  |  select a into b from t for update;\n"
                "2  |  insert into t values (1) on conflict do nothing;\n"
                "2  |  select t.begin, t.end, t.case, t.loop from t;\n"
                "2  |  open c for select substring(a from 1 for 2);\n"
                "2H |  create function g() returns int begin atomic\n"
                "3  |    select 1;\n"
                "3  |  end;\n"
                "2  |end;\n"
                "1  |$$;\n"
                "0  |select 1;\n");
}

TEST(BodyFolds, StringsAndCommentsOpenNothing)
{
    ExpectFolds("0H |do $$\n"
                "1H |begin\n"
                "2  |  execute 'begin if x then';\n"
                "2  |  execute $q$\n"
                "2  |    begin loop (\n"
                "2  |  $q$;\n"
                "2  |  -- begin loop (\n"
                "2H |  /* if x then\n"
                "3  |     loop */\n"
                "2H |  perform f(\n"
                "3  |    1, ')'\n"
                "3  |  );\n"
                "2  |end;\n"
                "1  |$$;\n"
                "0  |select 1;\n");
}

TEST(BodyFolds, ABodyThatDoesNotBalanceLeavesTheTextBehindIt)
{
    ExpectFolds("0H |do $$\n"
                "1H |begin\n"
                "2H |  if a then\n"
                "3H |    loop (\n"
                "1  |$$ language plpgsql;\n"
                "0  |select 1;\n");
    ExpectFolds("0H |create function f() as $$\n"
                "1  |end if; end loop; end; end case; ) end\n"
                "1  |end\n"
                "1  |$$ language\n"
                "1  |  plpgsql;\n"
                "0H |select 1,\n"
                "1  |  2;\n");
}

TEST(BodyFolds, AnEndClosesWhatWasLeftOpenInIt)
{
    ExpectFolds("0H |do $$ begin\n"
                "2H |  loop\n"
                "3H |    if a then\n"
                "4  |      b := (c;\n"
                "4  |      d := case when e;\n"
                "4  |      for i in 1;\n"
                "4  |  end loop;\n"
                "2H |  loop\n"
                "3  |    end if;\n"
                "3  |  end loop;\n"
                "2  |end $$;\n");
}

TEST(BodyFolds, ConditionsOfOtherLanguagesOpenNothingForLong)
{
    ExpectFolds("0H |create function f() returns int as $$\n"
                "1  |  if (a) { b(); }\n"
                "1  |  for (;;) { c(); }\n"
                "1  |  switch (d) { case 1: e(); break; case 2: f(); }\n"
                "1  |$$ language plv8;\n"
                "0  |select 1;\n");
}

TEST(BodyFolds, MoreThanSixteenBlocksNest)
{
    std::string picture = "0H |do $$\n";
    for (int i = 1; i < 40; ++i)
        picture += std::to_string(i) + "H |" + (i % 2 ? "loop\n" : "begin\n");
    for (int i = 39; i > 0; --i)
        picture += std::to_string(i + 1) + "  |" + (i % 2 ? "end loop;\n" : "end;\n");
    ExpectFolds(picture + "1  |$$;\n0  |select 1;\n");
}

namespace {

// A body whose lines know how deep they are.
class GrownBody
{
public:
    explicit GrownBody(std::mt19937& random) : m_random(random) {}

    std::string Picture()
    {
        m_picture = "0H |create function f() returns int language plpgsql as $body$\n";
        m_depth = 1;
        Block(4);
        m_depth = 1;
        Line("$body$;");
        m_depth = 0;
        Line("select 1;");
        return m_picture;
    }

private:
    unsigned Choose(unsigned count) { return static_cast<unsigned>(m_random() % count); }

    void Line(const std::string& text, bool opens = false)
    {
        static const char* const kBehind[] = {"", "", "", " -- begin loop ( case", " /* end; */"};
        m_picture += std::to_string(m_depth) + (opens ? "H |" : "  |") + text +
                     kBehind[Choose(std::size(kBehind))] + "\n";
        m_depth += opens;
    }
    void Close(const std::string& text)
    {
        Line(text);
        --m_depth;
    }

    std::string Expression()
    {
        static const char* const kExpressions[] = {
            "a",      "'begin'",        "case when a then b else c end", "f(if_, (b))", "x.end",
            "\"if\"", "$q$ loop ; $q$", "(case a when 1 then 2 end)"};
        return kExpressions[Choose(std::size(kExpressions))];
    }

    void Block(unsigned room)
    {
        if (Choose(2)) {
            Line("DECLARE", true);
            Line("v int := " + Expression() + ";");
            Line("begin");
        } else {
            Line("Begin", true);
        }
        Statements(room);
        if (Choose(3) == 0) {
            Line("exception when others then");
            Statements(room / 2);
        }
        Close("end;");
    }

    void Statements(unsigned room)
    {
        for (unsigned i = 1 + Choose(3); i-- > 0;)
            Statement(room);
    }

    void Statement(unsigned room)
    {
        switch (room == 0 ? Choose(3) : Choose(9)) {
        case 0:
            Line("v := " + Expression() + ";");
            return;
        case 1:
            Line("perform f(", true);
            Line(Expression());
            Close(");");
            return;
        case 2:
            Line("return case", true);
            Line("when a then " + Expression());
            Close("end;");
            return;
        case 3:
            Line("if " + Expression() + " then", true);
            Statements(room - 1);
            if (Choose(2)) {
                Line("elsif " + Expression() + " then");
                Statements(room - 1);
                Line("else");
                Statements(room - 1);
            }
            Close("end if;");
            return;
        case 4:
            Line("for r in select " + Expression() + " from t", true);
            Line("where " + Expression() + " for update loop");
            Statements(room - 1);
            Close("end loop;");
            return;
        case 5:
            Line("while " + Expression() + " loop", true);
            Statements(room - 1);
            Close("end loop;");
            return;
        case 6:
            Line("case " + Expression(), true);
            Line("when 1 then");
            Statements(room - 1);
            Close("end case;");
            return;
        case 7:
            Line("<<l>> loop", true);
            Statements(room - 1);
            Close("end loop l;");
            return;
        default:
            Block(room - 1);
            return;
        }
    }

    std::mt19937& m_random;
    std::string m_picture;
    int m_depth = 0;
};

} // namespace

TEST(BodyFolds, AreThoseThatABodyWasGrownBy)
{
    const unsigned seed = RandomSeed();
    std::mt19937 random(seed);
    for (int round = 0; round < 100; ++round) {
        const std::string picture = GrownBody(random).Picture();
        ASSERT_EQ(FoldsOf(kGeneric, picture, u"postgresql"), picture)
            << "ZN_TEST_SEED=" << seed << " round " << round;
    }
}

TEST(BodyFolds, AnEditInABodyFoldsItAnew)
{
    const SqlUnderTest sql(kGeneric, u"do $$\nbegin\nloop\nnull;\nend loop;\nend;\n$$;\nselect 1;");
    sql.SetProperty(u"sql.dialect", u"postgresql");
    sql.FoldAlso();
    sql.Style();
    const std::string whole = sql.Folds();
    EXPECT_EQ(whole, "0H |do $$\n1H |begin\n2H |loop\n3  |null;\n3  |end loop;\n2  |end;\n1  |$$;\n"
                     "0  |select 1;\n");
    sql.Insert(12, u"-- ");
    sql.StyleRest();
    EXPECT_EQ(sql.Folds(), "0H |do $$\n1H |begin\n2  |-- loop\n2  |null;\n2  |end loop;\n2  |end;\n"
                           "1  |$$;\n0  |select 1;\n");
    sql.Erase(12, 15);
    sql.StyleRest();
    EXPECT_EQ(sql.Folds(), whole);
}
