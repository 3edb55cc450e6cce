// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/engine/analysis/ScriptUnderTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace engine::analysis {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

std::string Joined(const std::vector<std::string>& statements, const std::string& between)
{
    std::string text;
    for (const std::string& statement : statements)
        text += statement + between;
    return text;
}

// Statements that stand below each other are told apart, and so they are on one line.
void ExpectParts(const char* dialect, const std::vector<std::string>& statements)
{
    for (const char* between : {"\n", "\n\n\n", " -- c;\n", "\r\n/* begin ; */\r\n"}) {
        ScriptUnderTest script(dialect, Joined(statements, between));
        EXPECT_THAT(script.Statements(), ElementsAreArray(statements))
            << dialect << ", between: " << between;
    }
}

// The same where a line has more than one.
void ExpectPartsOnALine(const char* dialect, const std::vector<std::string>& statements)
{
    ScriptUnderTest script(dialect, Joined(statements, " "));
    EXPECT_THAT(script.Statements(), ElementsAreArray(statements)) << dialect;
}

constexpr const char* kDialects[] = {"sql",    "transact-sql", "ase",       "iq",         "db2",
                                     "oracle", "mysql",        "interbase", "postgresql", "sqlite"};

} // namespace

TEST(Statements, EndAtTheTerminatorInEveryDialect)
{
    for (const char* dialect : kDialects) {
        ExpectParts(dialect,
                    {"select 1;", "update t set a = 'x;y' where b = \"c;d\";", "select 2;"});
        ExpectPartsOnALine(dialect, {"select 1;", "select case a when 1 then 2 end;", "select 3"});
    }
}

TEST(Statements, AreNotEndedByABlankLine)
{
    for (const char* dialect : kDialects)
        ExpectParts(dialect, {"select a,\n\n\n  b\n\nfrom t;", "select\r\n\r\n1;"});
}

TEST(Statements, LeaveCommentsBeforeAndBehindOut)
{
    ScriptUnderTest script("sql", "-- a\n/* b */ select /* c */ 1 -- d\n ; -- e\n-- f\n");
    EXPECT_THAT(script.Statements(), ElementsAre("select /* c */ 1 -- d\n ;"));
}

TEST(Statements, AreNotMadeOfTerminatorsAlone)
{
    ScriptUnderTest script("sql", ";;; select 1;; ; select 2;;");
    EXPECT_THAT(script.Statements(), ElementsAre("select 1;", "select 2;"));
}

TEST(Statements, NeedNoTerminatorAtTheTextsEnd)
{
    ScriptUnderTest script("sql", "select 1;\nselect 2  -- c\n  ");
    EXPECT_THAT(script.Statements(), ElementsAre("select 1;", "select 2"));
}

TEST(Statements, EndAtASeparatorToo)
{
    ScriptUnderTest script("transact-sql", "print 1\nprint 2 -- c\nGO\nbegin print 3\nGO\nend");
    EXPECT_THAT(script.Statements(), ElementsAre("print 1\nprint 2", "begin print 3", "end"));
}

TEST(TransactSqlStatements, HoldTheTerminatorsOfBlocks)
{
    ExpectParts("transact-sql", {"begin select 1; begin select case 2 when 2 then 3 end; end; end;",
                                 "begin try select 1; end try begin catch throw; end catch;",
                                 "if @a = 1 begin print 'x'; end else begin print 'y'; end;",
                                 "while 1 = 1 begin break; end;",
                                 "select begin_date, [end], t.begin, @end from t;"});
}

TEST(TransactSqlStatements, TakeNoTransactionForABlock)
{
    ExpectParts("transact-sql",
                {"begin tran;", "update t set a = 1;", "commit tran;", "begin transaction x;",
                 "BEGIN DISTRIBUTED TRAN;", "begin dialog conversation @h from service a to b;",
                 "end conversation @h;", "begin conversation timer (@h) timeout = 5;",
                 "select 1;"});
}

TEST(TransactSqlStatements, KeepElseBehindATerminator)
{
    ExpectParts("transact-sql", {"if 1 = 1 select 1; else select 2;", "select 3;"});
    ExpectParts("ase", {"if 1 = 1 select 1;\n-- c\nelse\n select 2;", "select 3;"});
}

TEST(TransactSqlStatements, KeepARoutineUpToTheEndOfItsBatch)
{
    for (const char* head :
         {"create procedure p @a int as", "create or alter proc p as",
          "ALTER FUNCTION f() returns int as", "create trigger t on x for insert as"}) {
        const std::string routine =
            std::string(head) + "\nselect 1;\nif 1 = 1 begin select 2; end;\nselect 3;";
        ScriptUnderTest script("transact-sql", routine + "\nGO\nselect 4; select 5;");
        EXPECT_THAT(script.Statements(), ElementsAre(routine, "select 4;", "select 5;")) << head;
    }
    ExpectParts("transact-sql", {"create table proc_log (a int);", "create view v as select 1;",
                                 "alter table t enable trigger x;", "drop procedure p;",
                                 "create type t from int;", "create event session e on server;"});
}

TEST(TransactSqlStatements, BeginAtUseWithoutATerminator)
{
    ScriptUnderTest script("transact-sql",
                           "print 1\nuse a\nselect 2\nselect 3\nuse [b];\nselect 4");
    EXPECT_THAT(script.Statements(),
                ElementsAre("print 1", "use a", "select 2\nselect 3", "use [b];", "select 4"));
    ExpectParts("transact-sql", {"select 1 option (\nuse plan N'x');", "select t.use from t;"});
}

TEST(TransactSqlStatements, TakeCommandsOfTheClientByLine)
{
    ExpectParts("transact-sql", {"select 1;"});
    ScriptUnderTest script("transact-sql", ":setvar a it's\n:r other.sql\n!! dir\nselect 1;");
    EXPECT_THAT(script.Statements(),
                ElementsAre(":setvar a it's", ":r other.sql", "!! dir", "select 1;"));
}

TEST(OracleStatements, HoldTheTerminatorsOfBlocksAndDeclarations)
{
    ExpectParts(
        "oracle",
        {"begin null; end;",
         "declare\n  x number := case when 1 = 1 then 2 end;\n  procedure p is begin null; end;\n"
         "  function f return int;\nbegin\n  if x = 1 then null; elsif x = 2 then null; end if;\n"
         "  for i in 1..3 loop null; end loop;\n  case x when 1 then null; end case;\n"
         "  declare y int; begin null; end;\nend;",
         "create or replace procedure p (a in int) is b int; begin null; exception when others "
         "then "
         "null; end p;",
         "create or replace function f return int as begin return 1; end;", "select 1 from dual;"});
}

TEST(OracleStatements, KeepPackagesWhole)
{
    ExpectParts(
        "oracle",
        {"create or replace package p as\n  type t is table of int;\n  cursor c is select 1 from "
         "dual;\n  procedure a;\n  function b return int;\nend p;",
         "create or replace editionable package body p is\n  x int;\n  procedure a is\n    "
         "procedure "
         "inner is begin null; end;\n  begin inner; end a;\n  function b return int is begin "
         "return "
         "1; end;\nend p;",
         "create package body q is procedure a is begin null; end; begin a; end q;",
         "create type body t as member function f return int is begin return 1; end; end;",
         "create type o as object (a int, member function f return int);", "select 2 from dual;"});
}

TEST(OracleStatements, KeepTriggersWhole)
{
    ExpectParts(
        "oracle",
        {"create trigger t before insert on x referencing new as n for each row when (n.a > 1) "
         "declare y int; begin null; end;",
         "create or replace trigger t after insert on x begin null; end;",
         "create trigger t for insert on x compound trigger\n  a int;\n  before statement is begin "
         "null; end before statement;\n  after each row is begin null; end after each row;\nend t;",
         "select 1 from dual;"});
}

TEST(OracleStatements, EndAtASlashWhateverIsOpen)
{
    ScriptUnderTest script("oracle",
                           "declare x int;\n/\nselect 1 from dual\n/\nbegin null; end;\n/\n");
    EXPECT_THAT(script.Statements(),
                ElementsAre("declare x int;", "select 1 from dual", "begin null; end;"));
}

TEST(OracleStatements, TakeExternalRoutinesForSingleStatements)
{
    ExpectParts("oracle", {"create procedure p as language java name 'P.q()';",
                           "create function f return int is language c library l;",
                           "alter procedure p compile;", "select 1 from dual;"});
}

TEST(OracleStatements, TakeCommandsOfTheClientByLine)
{
    ScriptUnderTest script("oracle", "SET SERVEROUTPUT ON\nprompt it's running;\n@other.sql\n"
                                     "REM don't\nselect 'a' from dual;\nwhenever sqlerror exit\n");
    EXPECT_THAT(script.Statements(),
                ElementsAre("SET SERVEROUTPUT ON", "prompt it's running;", "@other.sql",
                            "REM don't", "select 'a' from dual;", "whenever sqlerror exit"));
}

TEST(MySqlStatements, HoldTheTerminatorsOfRoutines)
{
    ExpectParts(
        "mysql",
        {"create procedure p() begin declare x int; select case 1 when 1 then 2 end; end;",
         "create definer = `root`@`localhost` function f() returns int begin if a then return 1; "
         "end if; while b do set c = 1; end while; return 2; end;",
         "create definer=admin@localhost trigger t before insert on x for each row begin set new.a "
         "= "
         "1; end;",
         "create trigger t before insert on x for each row if new.a > 1 then set new.a = 1; elseif "
         "new.a < 0 then set new.a = 0; end if;",
         "create event e on schedule every 1 day do begin select 1; end;",
         "create procedure r() repeat set @a = repeat('x', 2); until @a end repeat;",
         "create procedure w() while a > 0 do set a = a - 1; end while;",
         "create procedure l() loop leave l; end loop;",
         "create function g() returns int return if(1, 2, 3);", "drop table if exists t;",
         "select 1;"});
}

TEST(MySqlStatements, TakeNoTransactionForABlock)
{
    ExpectParts("mysql", {"begin;", "select 1;", "begin work;", "select 2;", "commit;"});
}

TEST(MySqlStatements, FollowTheDelimiter)
{
    ScriptUnderTest script("mysql",
                           "select 1;\nDELIMITER $$\ncreate procedure p() begin select 1; "
                           "end$$\nselect '$$'; select 2 $$\ndelimiter ;\nselect 3; select 4;");
    EXPECT_THAT(script.Statements(),
                ElementsAre("select 1;", "DELIMITER $$",
                            "create procedure p() begin select 1; end$$",
                            "select '$$'; select 2 $$", "delimiter ;", "select 3;", "select 4;"));
}

TEST(MySqlStatements, KeepTheDelimiterThatIsTooLongOrMissing)
{
    ScriptUnderTest script("mysql", "delimiter\nselect 1;\ndelimiter 1234567890123456\nselect 2;");
    EXPECT_THAT(script.Statements(),
                ElementsAre("delimiter", "select 1;", "delimiter 1234567890123456", "select 2;"));
}

TEST(MySqlStatements, BeginWithACommentThatTheServerRuns)
{
    ExpectParts("mysql", {"/*!40101 set names utf8 */;", "/*!50003 create*/ /*!50020 trigger t */;",
                          "select 1;"});
}

TEST(InterBaseStatements, FollowSetTerm)
{
    ScriptUnderTest script("interbase",
                           "select 1 from t; set term ^ ;\ncreate procedure p as begin "
                           "a = 1; end^\nSET TERM ; ^\nselect 2 from t;set term !!;\n"
                           "select 3;4!! set term ;!! select 5;");
    EXPECT_THAT(script.Statements(), ElementsAre("select 1 from t;", "set term ^ ;",
                                                 "create procedure p as begin a = 1; end^",
                                                 "SET TERM ; ^", "select 2 from t;", "set term !!;",
                                                 "select 3;4!!", "set term ;!!", "select 5;"));
}

TEST(InterBaseStatements, HoldTheTerminatorsOfRoutines)
{
    ExpectParts(
        "interbase",
        {"create procedure p (a int) returns (b int) as declare variable c int; begin b = 1; end;",
         "recreate trigger t for x before insert as declare variable y int; begin y = 1; end;",
         "execute block as declare x int; begin x = 1; end;", "create view v as select 1 from t;",
         "execute procedure p;", "select 1 from t;"});
}

TEST(Db2Statements, HoldTheTerminatorsOfRoutines)
{
    for (const char* dialect : {"db2", "db2-zos"}) {
        ExpectParts(dialect, {"create procedure p (in a int) language sql begin declare b int; for "
                              "v as select 1 from "
                              "t do set b = 1; end for; end;",
                              "create trigger t after insert on x referencing new as n for each "
                              "row begin atomic set a "
                              "= 1; end;",
                              "begin atomic declare x int; end;", "select 1 from t;"});
    }
}

TEST(Db2Statements, FollowTheTerminatorComment)
{
    ScriptUnderTest script("db2", "select 1;\n--#SET TERMINATOR @\nselect 2; select 3@\n"
                                  "--#set terminator ;\nselect 4;");
    EXPECT_THAT(script.Statements(), ElementsAre("select 1;", "select 2; select 3@", "select 4;"));
}

TEST(PostgreSqlStatements, HoldTheTerminatorsOfStringsParenthesesAndAtomicBodies)
{
    ExpectParts(
        "postgresql",
        {"create function f() returns int as $$ begin return 1; end; $$ language plpgsql;",
         "create function g() returns int language sql begin atomic select 1; select case 2 when 2 "
         "then 3 end; end;",
         "do $body$ begin perform $$;$$; end; $body$;",
         "create rule r as on insert to t do (select 1; select 2);", "select E'\\';', ';';",
         "begin;", "select 1;", "begin isolation level serializable;", "select 2;", "commit;"});
}

TEST(PostgreSqlStatements, TakeCommandsOfTheClientByLine)
{
    ScriptUnderTest script("postgresql", "\\c base\n\\echo it's; here\nselect 1;\n\\i other.sql\n");
    EXPECT_THAT(script.Statements(),
                ElementsAre("\\c base", "\\echo it's; here", "select 1;", "\\i other.sql"));
}

TEST(PostgreSqlStatements, KeepTheDataOfACopy)
{
    const std::string copy = "COPY t (a, b) FROM stdin;\n1\tit's;\n/*\n\\N\t\\\\.\n\\.";
    ScriptUnderTest script("postgresql", copy + "\nselect 1; copy t from stdin;\n\\.\n"
                                                "copy t from 'stdin'; copy t to stdout; select 2;");
    EXPECT_THAT(script.Statements(),
                ElementsAre(copy, "select 1;", "copy t from stdin;\n\\.", "copy t from 'stdin';",
                            "copy t to stdout;", "select 2;"));
    EXPECT_EQ(script.StatementAt(script.Find("it's")), copy);
}

TEST(SqliteStatements, HoldTheTerminatorsOfTriggers)
{
    ExpectParts("sqlite",
                {"create trigger t after insert on x begin update y set a = case b when 1 then 2 "
                 "end; delete "
                 "from z; end;",
                 "create temp trigger if not exists u delete on x begin select 1; end;", "begin;",
                 "select 1;", "end;", "begin immediate transaction;", "select 2;", "commit;"});
    ScriptUnderTest script("sqlite", ".mode it's\nselect 1;");
    EXPECT_THAT(script.Statements(), ElementsAre(".mode it's", "select 1;"));
}

TEST(GenericStatements, HoldTheTerminatorsOfAnyDialectsBlocks)
{
    ExpectParts("sql", {"create procedure p as begin select 1; end;",
                        "create procedure p is x number; begin null; end;",
                        "create procedure p() begin if a then b; end if; end;",
                        "create trigger t for x as declare variable y int; begin y = 1; end;",
                        "begin null; end;", "begin;", "select 1;", "begin transaction;",
                        "select 2;", "begin isolation level x;",
                        "create function f(a int) returns int return a is null;",
                        "select q'[it's;]', $$;$$;"});
}

TEST(IqStatements, ReadBothOfTheirLanguages)
{
    ExpectParts("iq",
                {"create procedure p() begin declare a int; if a then set b = 1; end if; end;",
                 "select 1 // c;\n + 2;"});
}

TEST(StatementAtTheCaret, IsTheOneItStandsInOrAtTheEndOf)
{
    const std::string text = "select 'a;b';  -- x\n\n-- next\nbegin\n  select 2;\nend;\nselect 3";
    ScriptUnderTest script("transact-sql", text);
    const std::string first = "select 'a;b';";
    const std::string second = "begin\n  select 2;\nend;";
    EXPECT_EQ(script.StatementAt(0), first);
    EXPECT_EQ(script.StatementAt(script.Find(";b")), first);         // in a string
    EXPECT_EQ(script.StatementAt(script.Find("  -- x")), first);     // behind the terminator
    EXPECT_EQ(script.StatementAt(script.Find("x\n")), first);        // in the blank behind it
    EXPECT_EQ(script.StatementAt(script.Find("\n-- next")), second); // on the next line
    EXPECT_EQ(script.StatementAt(script.Find("next")), second);      // in its comment
    EXPECT_EQ(script.StatementAt(script.Find("2;")), second);        // in its block
    EXPECT_EQ(script.StatementAt(script.Find("end;")), second);
    EXPECT_EQ(script.StatementAt(static_cast<long>(text.size())), "select 3");
    EXPECT_EQ(script.StatementAt(-5), first);
    EXPECT_EQ(script.StatementAt(5000), "select 3");
}

TEST(StatementAtTheCaret, StaysInTheBatch)
{
    ScriptUnderTest script("transact-sql", "\nselect 1;\n\nGO\n\nGO\nselect 2;\n");
    EXPECT_EQ(script.StatementAt(0), "select 1;");
    EXPECT_EQ(script.StatementAt(script.Find("\nGO")), "select 1;"); // the last one of the batch
    EXPECT_EQ(script.StatementAt(script.Find("GO") + 1), "select 1;");
    EXPECT_EQ(script.StatementAt(script.Find("\nGO\nselect")), "none");
    EXPECT_EQ(script.StatementAt(script.Find("select 2") - 2), "none");
    EXPECT_EQ(script.StatementAt(script.Find("select 2")), "select 2;");
    EXPECT_EQ(script.StatementAt(static_cast<long>(script.Text().size())), "select 2;");
}

TEST(StatementAtTheCaret, IsNoneInATextWithoutAny)
{
    for (const char* text : {"", "   ", "-- c", "/* c", ";;;", "\n\n"})
        EXPECT_EQ(ScriptUnderTest("transact-sql", text).StatementAt(0), "none") << text;
}

TEST(StatementsOfARange, AreThoseWithTextInIt)
{
    ScriptUnderTest script("sql", "aaa; bbb; ccc;");
    const auto in = [&](long start, long end) {
        std::string all;
        script.Analysis().ForEachStatement(script.Spans(), {start, end},
                                           [&](const Span& span) { all += script.TextOf(span); });
        return all;
    };
    EXPECT_EQ(in(0, 14), "aaa;bbb;ccc;");
    EXPECT_EQ(in(-9, 99), "aaa;bbb;ccc;");
    EXPECT_EQ(in(6, 7), "bbb;");
    EXPECT_EQ(in(3, 6), "aaa;bbb;");
    EXPECT_EQ(in(4, 5), "");
    EXPECT_EQ(in(9, 3), "");
}

TEST(Catalogs, AreChosenByUse)
{
    ScriptUnderTest script("transact-sql",
                           "select 0; use one;\nselect 1\nGO\nuse [t]]w o]\nselect 2; use \"q\"\n"
                           "select '\nuse no\n' -- use no\n, [use x]");
    EXPECT_EQ(script.CatalogAt(0), "none");
    EXPECT_EQ(script.CatalogAt(script.Find("one") + 2), "none");
    EXPECT_EQ(script.CatalogAt(script.Find("one") + 3), "one");
    EXPECT_EQ(script.CatalogAt(script.Find("GO")), "one");
    EXPECT_EQ(script.CatalogAt(script.Find("select 2")), "t]w o");
    EXPECT_EQ(script.CatalogAt(static_cast<long>(script.Text().size())), "q");
}

TEST(Catalogs, AreChosenInBlocksToo)
{
    ScriptUnderTest script("transact-sql", "if 1 = 1\nbegin\n  use one\n  select 1; end\nselect 2");
    EXPECT_EQ(script.CatalogAt(script.Find("select 2")), "one");
    EXPECT_EQ(script.Statements().size(), 1U);
}

TEST(Catalogs, AreChosenByEachDialectsMeans)
{
    ScriptUnderTest mysql("mysql", "use `a b`; select * from t use index (i);\nuse c\nselect 1;");
    EXPECT_EQ(mysql.CatalogAt(mysql.Find("index")), "a b");
    EXPECT_EQ(mysql.CatalogAt(mysql.Find("select 1")), "c");
    ScriptUnderTest postgres(
        "postgresql", "\\c one\nselect 1;\n\\connect \"t o\" me\nselect 2;\\copy x\n\\c -\n");
    EXPECT_EQ(postgres.CatalogAt(postgres.Find("select 1")), "one");
    EXPECT_EQ(postgres.CatalogAt(static_cast<long>(postgres.Text().size())), "t o");
    for (const char* dialect : {"oracle", "db2", "postgresql", "sqlite", "interbase"})
        EXPECT_EQ(ScriptUnderTest(dialect, "use a; select 1;").CatalogAt(10), "none") << dialect;
}

// Deep nesting and junk: an answer, in time that grows as the text does.
TEST(BadInput, IsAnsweredWithoutDepthOrDelay)
{
    const auto repeated = [](const std::string& piece, int times) {
        std::string text;
        for (int i = 0; i < times; ++i)
            text += piece;
        return text;
    };
    std::string binary;
    for (unsigned i = 0; i < 400000; ++i)
        binary += static_cast<char>(i * 7919 >> 3);
    const std::string texts[] = {repeated("(", 100000),
                                 repeated(")", 100000),
                                 repeated("begin ", 100000),
                                 repeated("begin ", 100000) + repeated("end ", 100000) +
                                     ";select 1;",
                                 repeated("case ", 100000),
                                 repeated("end ", 100000),
                                 repeated("/* ", 100000),
                                 repeated("'", 100001),
                                 repeated("$a$ $b$ ", 50000),
                                 repeated("create procedure p is ", 50000),
                                 repeated("delimiter a\n", 5000),
                                 repeated("set term ", 50000),
                                 repeated("\nGO", 100000),
                                 repeated("GO 1 ", 100000),
                                 repeated("\n/* */ /", 50000),
                                 repeated("[", 100000),
                                 repeated("q'", 100000),
                                 repeated("use ", 100000),
                                 repeated("\\c ", 100000),
                                 std::string(300000, '\0'),
                                 std::string(300000, '*'),
                                 binary};
    for (const char* dialect : kDialects) {
        for (const std::string& text : texts) {
            ScriptUnderTest script(dialect, text);
            for (long at = 0; at < static_cast<long>(text.size()); at += 50000) {
                script.StatementAt(at);
                script.CatalogAt(at);
                const Span batch = script.Analysis().BatchAt(script.Spans(), at);
                EXPECT_LE(batch.start, batch.end);
            }
        }
    }
}

TEST(BadInput, ClosesAsManyBlocksAsWereOpened)
{
    std::string text;
    for (int i = 0; i < 100000; ++i)
        text += "begin ";
    for (int i = 0; i < 100000; ++i)
        text += "end ";
    ScriptUnderTest script("transact-sql", text + ";select 1;");
    EXPECT_EQ(script.Statements().size(), 2U);
    EXPECT_EQ(script.StatementAt(static_cast<long>(script.Text().size())), "select 1;");
}

TEST(BadInput, StartsAfreshBehindASeparator)
{
    for (const char* open : {"select (1", "begin", "case", "create proc p as begin", "if 1 = 1"}) {
        ScriptUnderTest script("transact-sql", std::string(open) + "\nGO\nselect 1; select 2;");
        EXPECT_THAT(script.Statements(), ElementsAre(open, "select 1;", "select 2;"));
    }
}

} // namespace engine::analysis
