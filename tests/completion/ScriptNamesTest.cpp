// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/ScriptNames.h"
#include "control/Analysis.h"

#include <gtest/gtest.h>

using completion::NameKind;
using completion::NamesIn;
using completion::ScriptName;

namespace {

const char* Letter(NameKind kind)
{
    constexpr const char* kLetters[] = {
        "table",   "view",    "procedure", "function",  "trigger",  "index",  "type", "sequence",
        "package", "schema",  "column",    "parameter", "variable", "cursor", "cte",  "alias",
        "derived", "dropped", "renamed",   "use",       "insert",   "call",   "alter"};
    return kLetters[static_cast<int>(kind)];
}

// Each name as "kind parent.name".
std::string Told(const char16_t* text, int dialect = partitioner::TransactSql)
{
    std::string told;
    for (const ScriptName& name : NamesIn(text, dialect)) {
        const QString full = name.parent.isEmpty() ? name.name : name.parent + u'.' + name.name;
        told +=
            (told.empty() ? "" : ", ") + std::string(Letter(name.kind)) + ' ' + full.toStdString();
    }
    return told;
}

} // namespace

TEST(ScriptNames, AreTheColumnsOfATableWithoutItsConstraints)
{
    EXPECT_EQ(Told(u"CREATE TABLE dbo.[Order Lines] (\n  id int PRIMARY KEY,\n  [unit price] "
                   u"decimal(9, 2) DEFAULT (0),\n  CONSTRAINT ck CHECK (id > 0),\n  "
                   u"PRIMARY KEY (id))"),
              "table Order Lines, column Order Lines.id, column Order Lines.unit price");
}

TEST(ScriptNames, AreTheParametersOfAProcedureWithoutParentheses)
{
    EXPECT_EQ(Told(u"CREATE OR ALTER PROCEDURE dbo.pay @order int, @amount money = 0 AS\n"
                   u"SELECT @order"),
              "procedure pay, parameter pay.@order, parameter pay.@amount");
}

TEST(ScriptNames, AreTheParametersOfAFunctionInParentheses)
{
    EXPECT_EQ(Told(u"create function total(in p_id integer, out p_sum numeric(9,2)) returns int",
                   partitioner::PostgreSql),
              "function total, parameter total.p_id, parameter total.p_sum");
    EXPECT_EQ(Told(u"create function total(integer, text) returns int", partitioner::PostgreSql),
              "function total");
}

TEST(ScriptNames, AreTheTablesOfAQueryWithTheirAliases)
{
    EXPECT_EQ(Told(u"select * from orders o, dbo.lines AS l join stock on stock.id = l.id "
                   u"where exists (select 1 from returns r)"),
              "use orders, alias orders.o, use lines, alias lines.l, use stock, use returns, "
              "alias returns.r");
}

TEST(ScriptNames, AreTheAliasesOfQueriesInParentheses)
{
    EXPECT_EQ(Told(u"select * from (select id from orders) d join f(1) g on 1 = 1"),
              "use orders, derived d, derived g");
}

TEST(ScriptNames, AreCommonTablesWithTheirColumns)
{
    EXPECT_EQ(Told(u"with a (x, y) as (select 1, 2), b as (select 3) select * from a"),
              "cte a, column a.x, column a.y, cte b, use a");
}

TEST(ScriptNames, AreNoTablesInFunctionsWithFrom)
{
    EXPECT_EQ(Told(u"select extract(year from ordered_at), trim(both from name), "
                   u"a is distinct from b from orders",
                   partitioner::PostgreSql),
              "use orders");
}

TEST(ScriptNames, AreVariablesOfABatch)
{
    EXPECT_EQ(Told(u"DECLARE @a int = 1, @t TABLE (id int, name text); SET @a = 2"),
              "variable @a, variable @t, column @t.id, column @t.name");
}

TEST(ScriptNames, AreDeclarationsOfAnOracleBody)
{
    EXPECT_EQ(Told(u"create or replace procedure pay(p_id in number) is\n  v_sum number := 0;\n"
                   u"  cursor c is select id from orders;\nbegin\n  v_sum := 1;\nend;",
                   partitioner::Oracle),
              "procedure pay, parameter pay.p_id, variable v_sum, cursor c, use orders");
}

TEST(ScriptNames, AreDeclarationsInDollars)
{
    EXPECT_EQ(Told(u"create function f() returns int as $$\ndeclare\n  v_id integer;\nbegin\n"
                   u"  select id into v_id from orders o;\nend $$ language plpgsql;",
                   partitioner::PostgreSql),
              "function f, variable v_id, use orders, alias orders.o");
}

TEST(ScriptNames, AreTheTablesThatAreWritten)
{
    EXPECT_EQ(Told(u"insert into orders (id, at) values (1, 2); update lines set a = 1;"
                   u"delete from stock; merge into target t using source s on t.id = s.id "
                   u"when matched then update set a = 1 when not matched then insert (b) "
                   u"values (1);"),
              "insert orders, column orders.id, column orders.at, use lines, use stock, "
              "use target, alias target.t, use source, alias source.s");
}

TEST(ScriptNames, AreTheColumnsThatAreDroppedAndRenamed)
{
    EXPECT_EQ(Told(u"alter table t drop column a, column if exists b\ndrop table u\n"
                   u"alter table t drop constraint pk\nalter table t alter column c int\n"
                   u"create table v (d int)"),
              "alter t, dropped t.a, dropped t.b, use u, alter t, alter t, table v, column v.d");
    EXPECT_EQ(Told(u"alter table t modify a int, change column b c int, drop d, drop key k, "
                   u"rename index e to f, rename column g to h, add i int",
                   partitioner::MySql),
              "alter t, renamed t.b, column t.c, dropped t.d, renamed t.g, column t.h, "
              "column t.i");
    EXPECT_EQ(Told(u"alter table t drop (a, b); alter table t rename column c to d;"
                   u"alter table t rename to u;",
                   partitioner::Oracle),
              "alter t, dropped t.a, dropped t.b, alter t, renamed t.c, column t.d, alter t");
}

TEST(ScriptNames, AreTheColumnsThatAnAliasNames)
{
    EXPECT_EQ(Told(u"select * from (values (1, 2)) x (a, b), t u", partitioner::PostgreSql),
              "derived x, column x.a, column x.b, use t, alias t.u");
}

TEST(ScriptNames, AreNotThoseOfGrants)
{
    EXPECT_EQ(Told(u"grant create table, select, update on orders to clerk;"
                   u"create trigger t1 on orders after insert, update as select 1"),
              "trigger t1");
}

TEST(ScriptNames, AreNotTheTablesThatColumnsReferTo)
{
    EXPECT_EQ(Told(u"create table a (b int references s.t (x, y), comment int references t, copy "
                   u"int references , c int);\nalter table a add d int references u (x), e int;"),
              "table a, column a.b, column a.comment, column a.copy, column a.c, "
              "alter a, column a.d, column a.e");
}

TEST(ScriptNames, StandWhereTheirQuotesBegin)
{
    const auto names = NamesIn(u"-- \u00e9\U0001F600\nselect * from [A]]B] x", 1);
    ASSERT_EQ(names.size(), 2U);
    EXPECT_EQ(names[0].name, QStringLiteral("A]B"));
    EXPECT_EQ(names[0].start, 21);
    EXPECT_EQ(names[0].end, 27);
}

TEST(ScriptNames, AreThoseBehindAQuoteInAClientsLine)
{
    EXPECT_EQ(Told(u"prompt it's\ncreate table t (a int);\nremark isn't\nselect * from t",
                   partitioner::Oracle),
              "table t, column t.a, use t");
}

TEST(ScriptNames, AreNoneInADialectThatIsUnknown)
{
    EXPECT_TRUE(NamesIn(u"create table t (a int)", 99).empty());
}
