// SPDX-License-Identifier: GPL-3.0-or-later
#include "completion/Definitions.h"
#include "completion/ScriptSource.h"
#include "tests/completion/IndexedText.h"

#include <gtest/gtest.h>

#include <memory>

using namespace completion;

namespace {

// A script with a caret at the bar, and what is proposed there.
class Caret
{
public:
    explicit Caret(std::u16string script, const char* dialect = "transact-sql")
        : m_caret(long(script.find(u'|'))), m_text(engine::analysis::DialectByName(dialect),
                                                   script.erase(std::size_t(m_caret), 1), 4096),
          m_source(m_text.Index(), m_text.Reader())
    {
        m_text.Finish();
        m_source.SetLanguage({{QStringLiteral("select")},
                              {QStringLiteral("order")},
                              {QStringLiteral("lateral")},
                              {QStringLiteral("into")},
                              {QStringLiteral("insensitive")},
                              {QStringLiteral("insert")},
                              {QStringLiteral("comments")},
                              {QStringLiteral("commit")},
                              {QStringLiteral("rowset")},
                              {QStringLiteral("sysorders"), ProposalKind::System},
                              {QStringLiteral("substring"), ProposalKind::Function}});
        m_source.SetContext(ContextAt(m_text.Index(), m_text.Reader(), m_caret));
    }

    const ProposalQuery& Query() const { return m_source.Context().query; }
    Caret& Asked()
    {
        m_isAsked = true;
        return *this;
    }
    // The script that is open beside, in a dialect of its own.
    Caret& Beside(std::u16string script, const char* dialect = "postgresql")
    {
        m_beside = std::make_unique<IndexedText>(engine::analysis::DialectByName(dialect),
                                                 std::move(script), 4096);
        m_beside->Finish();
        m_source.SetOthers({{&m_beside->Index(), m_beside->Reader(), QStringLiteral("beside")}});
        return *this;
    }

    std::vector<Proposal> Best()
    {
        std::vector<Proposal> proposals;
        ProposalQuery query = Query();
        query.isAsked = m_isAsked;
        m_source.Propose(query, proposals);
        return BestOf(std::move(proposals), query.typed, 100);
    }
    QStringList Texts()
    {
        QStringList texts;
        for (const Proposal& each : Best())
            texts << each.text;
        return texts;
    }
    std::string First(qsizetype count) { return Texts().mid(0, count).join(u' ').toStdString(); }
    Signature Tip(const char16_t* name)
    {
        return SignatureIn(m_text.Index(), m_text.Reader(), QString::fromUtf16(name));
    }

private:
    long m_caret;
    IndexedText m_text;
    std::unique_ptr<IndexedText> m_beside;
    ScriptSource m_source;
    bool m_isAsked = false;
};

constexpr const char16_t* kTables = u"create table dbo.Orders (id int, [ordered at] date, customer "
                                    u"int);\ncreate table customers (id int, name text);\n";

} // namespace

TEST(Proposals, AreTheColumnsBehindAnAlias)
{
    Caret caret(std::u16string(kTables) + u"select o.| from orders o join customers c on 1 = 1");
    EXPECT_EQ(caret.First(9), "id [ordered at] customer");
}

TEST(Proposals, AreTheColumnsBehindAQuotedNameInAnyCase)
{
    Caret caret(std::u16string(kTables) + u"select [ORDERS].[or| from [Orders]");
    EXPECT_EQ(caret.First(9), "[ordered at]");
    EXPECT_EQ(caret.Query().typed, QStringLiteral("or"));
}

TEST(Proposals, AreTablesFirstBehindFrom)
{
    Caret caret(std::u16string(kTables) + u"select * from o|");
    EXPECT_EQ(caret.First(1), "Orders");
}

TEST(Proposals, AreNoPartsOfTheWordsThatMayStandForATable)
{
    EXPECT_EQ(Caret(u"select rows|").First(9), "rowset");
    EXPECT_EQ(Caret(u"select * from rows|").First(9), ""); // it stands in "openrowset"
}

TEST(Proposals, AreATableAndARoutineOfOneName)
{
    Caret caret(u"create table pay (id int);\ngo\ncreate procedure pay as select 1;\ngo\npa|");
    QStringList kinds;
    for (const Proposal& each : caret.Asked().Best()) {
        if (each.text == QStringLiteral("pay"))
            kinds << QString::number(int(each.kind));
    }
    EXPECT_EQ(kinds.size(), 2);
}

TEST(Proposals, AreNoKeywordsWhereATableFits)
{
    const std::u16string script = std::u16string(kTables) + u"select 1 from t Order by 1;\n";
    for (const char16_t* begun :
         {u"select * from ORDER|", u"select * from t a join order|", u"insert into order|",
          u"update order|", u"delete from Order|", u"SELECT * FROM ord|"}) {
        for (const bool isAsked : {false, true}) {
            Caret caret(script + begun);
            if (isAsked)
                caret.Asked();
            EXPECT_EQ(caret.First(1), "Orders") << QString::fromUtf16(begun).toStdString();
            EXPECT_FALSE(caret.Texts().contains(QStringLiteral("order"), Qt::CaseInsensitive));
        }
    }
    EXPECT_TRUE(Caret(script + u"select * from t ord|").Texts().contains("order"));
}

TEST(Proposals, AreTablesFirstWhereverATableIsNamed)
{
    const std::u16string script = std::u16string(kTables) + u"select 1 from t Order by 1;\n";
    for (const char16_t* begun : {u"create table a (id int references or|",
                                  u"create table a (id int, b int constraint c references or|",
                                  u"create table a (like or|",
                                  u"create table a (id int, foreign key (id) references or|",
                                  u"alter table t add constraint c foreign key (id) references or|",
                                  u"alter table t add id int references or|",
                                  u"comment on table or|",
                                  u"comment on column or|",
                                  u"comment on view or|",
                                  u"create index i on or|",
                                  u"create unique index if not exists i on only or|",
                                  u"create index on or|",
                                  u"drop index i on or|",
                                  u"create trigger i after insert or update on or|",
                                  u"grant select, insert on or|",
                                  u"grant select on table or|",
                                  u"revoke all on or|",
                                  u"truncate or|",
                                  u"truncate table or|",
                                  u"drop table a, or|",
                                  u"alter table or|",
                                  u"lock table or|",
                                  u"optimize table or|",
                                  u"vacuum or|",
                                  u"vacuum full or|",
                                  u"analyze or|",
                                  u"vacuum analyze or|",
                                  u"copy or|",
                                  u"describe or|",
                                  u"merge into t using or|",
                                  u"select * from t left join or|"}) {
        Caret caret(script + begun, "postgresql");
        EXPECT_EQ(caret.First(1), "Orders") << QString::fromUtf16(begun).toStdString();
        EXPECT_FALSE(caret.Texts().contains(QStringLiteral("order"), Qt::CaseInsensitive))
            << QString::fromUtf16(begun).toStdString();
    }
    for (const char16_t* begun :
         {u"select * from t a join u b on or|", u"create table a (id int) on or|",
          u"create table a (id int references t or|", u"grant execute on or|",
          u"create trigger i on t as select 1 from t join u on or|", u"comment or|",
          u"select analyze or|", u"create index i on t (id) where or|"})
        EXPECT_TRUE(Caret(script + begun).Texts().contains("order"))
            << QString::fromUtf16(begun).toStdString();
}

TEST(Proposals, AreTheColumnsOfATableThatIsNamed)
{
    EXPECT_EQ(Caret(std::u16string(kTables) + u"create index i on customers (|").First(2),
              "id name");
    EXPECT_EQ(Caret(std::u16string(kTables) + u"comment on column customers.|").First(9),
              "id name");
}

TEST(Proposals, AreNoKeywordsWhereATableIsWantedUnlessSomebodyAsks)
{
    EXPECT_EQ(Caret(u"select * from ord|").First(9), "");
    EXPECT_EQ(Caret(u"select * from syso|").First(9), "sysorders");
    EXPECT_EQ(Caret(u"select * from t join sel|").First(9), "");
    EXPECT_EQ(Caret(u"select * from sub|").First(9), "");
    EXPECT_EQ(Caret(u"select * from ord|").Asked().First(9), "order sysorders");
    EXPECT_EQ(Caret(std::u16string(kTables) + u"select * from ers|").Asked().First(9),
              "customers Orders");
}

TEST(Proposals, AreTheKeywordsThatMayStandInFrontOfATable)
{
    EXPECT_EQ(Caret(u"select * from t, LAT|").First(9), "LATERAL");
    EXPECT_EQ(Caret(u"select * from int|").First(9), "");
    EXPECT_EQ(Caret(u"insert int|").First(9), "into");
    EXPECT_EQ(Caret(u"insert lat|").First(9), "");
    EXPECT_EQ(Caret(u"select * from (sel|").First(1), "select");
}

TEST(Proposals, AreTheWordsThatBeginStatementsFirstWhereOneBegins)
{
    for (const char16_t* begun :
         {u"ins|", u"select 1;\n-- one\nIns|", u"begin ins|", u"if 1 = 1 begin ins|",
          u"if a then ins|", u"select 1\nGO\nins|", u"create table insertions (id int);\nins|",
          u"begin select case when a then 1 end; ins|",
          u"merge into t using u on t.a = u.a when not matched then ins|"})
        EXPECT_EQ(Caret(begun).First(1), "insert") << QString::fromUtf16(begun).toStdString();
    EXPECT_EQ(Caret(u"create function f() returns int as $$ begin COM|", "postgresql").First(2),
              "COMMIT COMMENTS");
    for (const char16_t* within :
         {u"select ins|", u"select case when a then ins|", u"declare c ins|", u"(ins|",
          u"update t set a = case when b then ins|"})
        EXPECT_EQ(Caret(within).First(2), "insensitive insert")
            << QString::fromUtf16(within).toStdString();
    QStringList declared = Caret(u"create procedure p is ins|", "oracle").Texts();
    declared.removeAll(QStringLiteral("ins")); // the variable that it may be
    EXPECT_EQ(declared.mid(0, 2).join(u' ').toStdString(), "insensitive insert");
}

TEST(Proposals, AreTheTablesOfOtherScriptsBehindTheScriptsOwn)
{
    const char16_t* beside = u"create table order_line (id int);\ncreate view ord_open as select "
                             u"1 as x;\ncreate table orders (z int);\nselect * from ordinal;";
    Caret caret(std::u16string(kTables) + u"select * from ord|");
    EXPECT_EQ(caret.Beside(beside).First(9), "Orders ord_open order_line [ordered at]");
    EXPECT_EQ(caret.Best()[1].kind, ProposalKind::View);
    EXPECT_EQ(caret.Best()[2].description, QStringLiteral("beside"));
    EXPECT_EQ(Caret(u"select * from t where ord|").Beside(beside).First(9),
              "order ord_open order_line orders sysorders");
}

TEST(Proposals, AreTheRoutinesOfOtherScriptsBehindExec)
{
    EXPECT_EQ(Caret(u"exec pa|")
                  .Beside(u"create procedure pay_all() as select 1;\ncreate table pages (id int);")
                  .First(9),
              "pay_all");
}

TEST(Proposals, AreTheColumnsOfTablesOfOtherScripts)
{
    const char16_t* beside = u"create table orders (id int, \"Total\" int);\n"
                             u"alter table orders add paid bool;\n"
                             u"create view v as select o.*, 1 as one from orders o;";
    EXPECT_EQ(Caret(u"select o.| from orders o").Beside(beside).First(9), "id Total paid");
    EXPECT_EQ(Caret(u"select x.| from v x").Beside(beside).First(9), "id Total paid one");
    EXPECT_EQ(Caret(u"select to| from t, orders o").Beside(beside).First(1), "Total");
    EXPECT_EQ(Caret(u"with c as (select * from orders) select c.| from c").Beside(beside).First(9),
              "id Total paid");
    EXPECT_EQ(Caret(u"insert into orders (id) values (1);\nselect o.| from orders o")
                  .Beside(beside)
                  .First(9),
              "id Total paid");
    EXPECT_EQ(Caret(u"select o.tot| from Orders o", "postgresql").Beside(beside).First(9),
              "\"Total\"");
}

TEST(Proposals, AreTheColumnsOfTheScriptsOwnTableAlone)
{
    EXPECT_EQ(Caret(std::u16string(kTables) + u"select o.| from orders o")
                  .Beside(u"create table orders (a int);")
                  .First(9),
              "id [ordered at] customer");
    EXPECT_EQ(Caret(u"with orders as (select 1 as n) select o.| from orders o")
                  .Beside(u"create table orders (a int);")
                  .First(9),
              "n");
}

TEST(Proposals, AreTheColumnsOfTheStatementBeforeKeywords)
{
    Caret caret(std::u16string(kTables) + u"select o| from orders ord where 1 = 1");
    EXPECT_EQ(caret.First(4), "[ordered at] ord order Orders");
}

TEST(Proposals, AreTheColumnsOfATableThatIsJoinedWithItself)
{
    EXPECT_EQ(Caret(u"create table tree (aa int, ab int);\nselect a| from tree a, TREE b, trunk c")
                  .First(3),
              "a aa ab");
}

TEST(Proposals, AreNotTheColumnsOfTheNextStatement)
{
    Caret caret(std::u16string(kTables) + u"select na|\nselect * from customers c");
    EXPECT_TRUE(caret.First(3) == "name") << caret.First(3);
    EXPECT_EQ(caret.Best().front().kind, ProposalKind::Word);
}

TEST(Proposals, AreRoutinesBehindExec)
{
    Caret caret(
        u"create procedure pay_all @id int as select 1\nGO\nselect payment from t\nexec pa|");
    EXPECT_EQ(caret.First(2), "pay_all payment");
}

TEST(Proposals, AreTheVariablesOfTheBatch)
{
    Caret caret(u"declare @total int, @today date; set @to|");
    EXPECT_EQ(caret.First(3), "@today @total");
    EXPECT_EQ(caret.Best().front().kind, ProposalKind::Variable);
}

TEST(Proposals, AreInTheCaseThatIsTyped)
{
    EXPECT_EQ(Caret(u"SEL|").First(1), "SELECT");
    EXPECT_EQ(Caret(u"sel|").First(1), "select");
}

TEST(Proposals, AreCommonTablesAndTheirColumns)
{
    EXPECT_EQ(Caret(u"with recent (a_id, b) as (select 1, 2) select * from re|").First(1),
              "recent");
    EXPECT_EQ(Caret(u"with recent (a_id, b) as (select 1, 2) select recent.| from recent").First(3),
              "a_id b");
}

TEST(Proposals, AreTheWordsOfTheTextInComments)
{
    Caret caret(u"select shipping from t -- shi|");
    EXPECT_EQ(caret.Query().place, ProposalQuery::Place::Comment);
    EXPECT_EQ(caret.First(2), "shipping");
}

TEST(Proposals, KnowWhereANameIsGiven)
{
    EXPECT_EQ(Caret(u"create table or|").Query().place, ProposalQuery::Place::OwnName);
    EXPECT_EQ(Caret(u"select a as or|").Query().place, ProposalQuery::Place::OwnName);
    EXPECT_EQ(Caret(u"select 'or|").Query().place, ProposalQuery::Place::String);
    EXPECT_EQ(Caret(u"select 'or' |").Query().place, ProposalQuery::Place::Anywhere);
}

TEST(Proposals, TakeNoQuoteInAClientsLineForAString)
{
    Caret caret(u"create table orders (id int);\nprompt it's\nselect * from o|", "oracle");
    EXPECT_EQ(caret.Query().place, ProposalQuery::Place::Table);
    EXPECT_EQ(caret.First(1), "orders");
    EXPECT_EQ(Caret(u"select 1;\nprompt or|", "oracle").Query().place,
              ProposalQuery::Place::String);
}

TEST(Proposals, AreColumnsOfTableVariables)
{
    EXPECT_EQ(Caret(u"declare @t table (a int, bb int); select x.| from @t x").First(4), "a bb");
}

TEST(Proposals, AreColumnsOfWhatIsOnlyInsertedInto)
{
    EXPECT_EQ(Caret(u"insert into t1 (alpha, beta) values (1, 2); select t1.| from t1").First(4),
              "alpha beta");
}

TEST(Proposals, AreTheColumnsInTheListOfAnInsert)
{
    Caret caret(std::u16string(kTables) + u"insert into customers (id, na|");
    EXPECT_EQ(caret.Query().place, ProposalQuery::Place::Anywhere);
    EXPECT_EQ(caret.First(1), "name");
    EXPECT_EQ(caret.Best().front().kind, ProposalKind::Column);
    EXPECT_EQ(Caret(u"create table t (id int, na|").Query().place, ProposalQuery::Place::OwnName);
}

TEST(Proposals, AreTheColumnsOfAViewsQuery)
{
    EXPECT_EQ(Caret(std::u16string(kTables) +
                    u"create view v as select distinct o.id, o.customer as [who is it], "
                    u"count(*) number, o.id + 1, total = sum(o.id) from orders o "
                    u"union select 1, 2, 3, 4, 5;\nselect v.| from v")
                  .First(9),
              "id [who is it] number total");
    EXPECT_EQ(Caret(u"create view v (a, b) as select 1, 2;\nselect v.| from v").First(9), "a b");
}

TEST(Proposals, AreTheColumnsThatAStarStandsFor)
{
    EXPECT_EQ(Caret(std::u16string(kTables) + u"create view v as select top (5) c.*, 1 as one from "
                                              u"orders o, customers c;\nselect v.| from v")
                  .First(9),
              "id name one");
    EXPECT_EQ(Caret(u"create view v as select * from v;\nselect v.| from v").First(9), "v");
}

TEST(Proposals, AreTheColumnsOfACommonTablesQuery)
{
    EXPECT_EQ(Caret(std::u16string(kTables) +
                    u"with a as (select id, name n from customers), b as (select *, 2 as two from "
                    u"a) select b.| from b")
                  .First(9),
              "id n two");
}

TEST(Proposals, AreTheColumnsOfAViewBehindItsCommonTables)
{
    EXPECT_EQ(Caret(u"create view v as with a as (select 1 as x) select x as y, 2 as z from a;\n"
                    u"select v.| from v",
                    "postgresql")
                  .First(9),
              "y z");
}

TEST(Proposals, AreTheColumnsOfAQueryInParentheses)
{
    EXPECT_EQ(Caret(u"select x.| from (select a, b as c from t) x").First(9), "a c");
    EXPECT_EQ(Caret(u"select 1 from t u join (select a, b as c from t union select 1, 2) as x on "
                    u"u.a = x.|")
                  .First(9),
              "a c");
    EXPECT_EQ(Caret(u"select | from (select xa1, xb1 from t) x").First(3), "xa1 xb1 x");
    EXPECT_EQ(Caret(u"select x.| from (values (1, 2)) as x (a, b)").First(9), "a b");
}

TEST(Proposals, AreTheColumnsOfQueriesInQueries)
{
    EXPECT_EQ(Caret(std::u16string(kTables) +
                    u"select x.| from (select o.id as n, y.* from orders o join (select c.*, 1 as "
                    u"one from customers c) y on 1 = 1) x")
                  .First(9),
              "n id name one");
}

TEST(Proposals, AreTheColumnsOfTheQueryOfTheCaretBeforeThoseAroundIt)
{
    const std::u16string outer = std::u16string(kTables) + u"select na| from orders o where o.id "
                                                           u"in (select id from customers)";
    EXPECT_NE(Caret(outer).Best().front().kind, ProposalKind::Column);
    const std::u16string inner = std::u16string(kTables) +
                                 u"select 1 from orders o where exists (select 1 from customers c "
                                 u"where | )";
    EXPECT_EQ(Caret(inner).First(5), "id name [ordered at] customer c");
    EXPECT_EQ(
        Caret(std::u16string(kTables) + u"select (select max(o.|) from customers) from orders o")
            .First(9),
        "id [ordered at] customer");
}

TEST(Proposals, KeepTheQuotesThatANameNeeds)
{
    const std::u16string tables =
        u"create table \"Orders\" (\"Id\" int, \"low\" int, \"a b\" int);\n";
    EXPECT_EQ(Caret(tables + u"select o.| from \"Orders\" o", "postgresql").First(9),
              "\"Id\" low \"a b\"");
    EXPECT_EQ(Caret(tables + u"select * from ord|", "postgresql").First(1), "\"Orders\"");
    EXPECT_EQ(Caret(tables + u"select o.| from \"Orders\" o", "oracle").First(9),
              "\"Id\" \"low\" \"a b\"");
    EXPECT_EQ(
        Caret(u"create table t (Id int, [Order] int, [Name] int);\nselect t.| from t").First(9),
        "Id [Order] Name");
}

TEST(Proposals, AreNoWordsOfTheLanguageInQuotes)
{
    EXPECT_EQ(Caret(std::u16string(kTables) + u"select * from [ord|]").First(9),
              "[Orders] [ordered at]");
    EXPECT_EQ(Caret(std::u16string(kTables) + u"select [sub|").First(9), "");
}

TEST(Proposals, AreNoColumnsThatAlterTakesAway)
{
    EXPECT_EQ(Caret(u"create table t (a int, b int, c int, d int);\nalter table t drop column a, "
                    u"change b bb bigint, modify c text, rename column d to dd, add e int;\n"
                    u"select t.| from t",
                    "mysql")
                  .First(9),
              "bb c dd e");
    Caret renamed(u"create table t (a int, b money);\nalter table t rename column b to bb;\n"
                  u"select t.bb| from t",
                  "oracle");
    EXPECT_EQ(renamed.Best().front().description, QStringLiteral("money \u00b7 t"));
}

TEST(Proposals, AreTheBestOfMany)
{
    std::u16string script;
    for (int i = 0; i < 3000; ++i)
        script += u"create table zone_" + QString::number(i).toStdU16String() + u" (id int);\n";
    Caret caret(script + u"create table azone (id int);\nselect * from zon|");
    EXPECT_EQ(caret.First(3), "zone_0 zone_1 zone_10");
    EXPECT_EQ(caret.Best().size(), 100U);
}

TEST(Proposals, AreColumnsThatAlterAdds)
{
    EXPECT_EQ(Caret(std::u16string(kTables) +
                    u"alter table dbo.customers add city varchar(20) not null, age int\nalter "
                    u"table customers add constraint pk primary key (id)\nalter table customers "
                    u"add tax decimal(9, 2);\nselect c.| from customers c")
                  .First(9),
              "id name city age tax");
    EXPECT_EQ(Caret(u"create table t (a int);\nalter table t add (b number, c date);\nselect t.| "
                    u"from t",
                    "oracle")
                  .First(9),
              "a b c");
    EXPECT_EQ(Caret(u"create table t (a int);\nalter table t add column b int, modify d int, add "
                    u"c int;\nselect t.| from t",
                    "mysql")
                  .First(9),
              "a b c");
}

// Until the index has read again what was cut from the text.
TEST(Proposals, KeepInsideATextThatWasCut)
{
    IndexedText text(engine::analysis::DialectByName("sql"),
                     u"select 1; " + std::u16string(kTables), 4096);
    text.Finish();
    text.Delete(5, text.Length() - 8);
    CaretContext context;
    context.query.caret = text.Length();
    context.query.qualifier = {QStringLiteral("orders")};
    ScriptSource source(text.Index(), text.Reader());
    source.SetContext(context);
    std::vector<Proposal> proposals;
    source.Propose(context.query, proposals);
    EXPECT_TRUE(std::none_of(proposals.begin(), proposals.end(), [](const Proposal& each) {
        return each.kind == ProposalKind::Column;
    }));
    EXPECT_TRUE(SignatureIn(text.Index(), text.Reader(), QStringLiteral("orders")).text.isEmpty());
}

TEST(Proposals, TellTheTypeOfAColumn)
{
    Caret caret(std::u16string(kTables) + u"select o.na| from customers o");
    EXPECT_EQ(caret.Best().front().description, QStringLiteral("text \u00b7 customers"));
}

TEST(Signatures, ShowTheParametersOfAScriptsRoutines)
{
    Caret caret(u"create procedure dbo.Pay @id int = 1,\n @amount decimal(9, 2) AS select 1\n|");
    const Signature tip = caret.Tip(u"pay");
    EXPECT_EQ(tip.text, QStringLiteral("Pay(@id int = 1, @amount decimal(9, 2))"));
    ASSERT_EQ(tip.arguments.size(), 2U);
    EXPECT_EQ(
        tip.text.mid(tip.arguments[1].first, tip.arguments[1].second - tip.arguments[1].first),
        QStringLiteral("@amount decimal(9, 2)"));
}
