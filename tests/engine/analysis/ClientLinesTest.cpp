// SPDX-License-Identifier: GPL-3.0-or-later
// Lines that a script's client program reads itself, by tables that were written from the programs'
// manuals, and what they set: terminators, catalogs.
#include "tests/engine/analysis/ScriptUnderTest.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace engine::analysis {
namespace {

using testing::ElementsAre;

// As the manuals write them: what stands in brackets may be left out.
constexpr const char* kSqlPlusManual =
    "ACC[EPT] A[PPEND] ARCHIVE ATTR[IBUTE] BRE[AK] BTI[TLE] C[HANGE] CL[EAR] COL[UMN] COMP[UTE] "
    "CONN[ECT] COPY DEF[INE] DEL DESC[RIBE] DISC[ONNECT] ED[IT] EXEC[UTE] EXIT GET HELP HIST[ORY] "
    "HO[ST] I[NPUT] L[IST] PASSW[ORD] PAU[SE] PRI[NT] PRO[MPT] QUIT RECOVER REM[ARK] REPF[OOTER] "
    "REPH[EADER] R[UN] SAV[E] SET SHO[W] SHUTDOWN SPO[OL] STA[RT] STARTUP STORE TIMI[NG] TTI[TLE] "
    "UNDEF[INE] VAR[IABLE] WHENEVER @ @@ ! ?";

struct ManualWord
{
    std::string least;
    std::string whole;
};

std::vector<ManualWord> WordsOf(const char* manual)
{
    std::vector<ManualWord> words;
    std::istringstream in(manual);
    for (std::string word; in >> word;) {
        const auto bracket = word.find('[');
        std::string whole = word;
        std::erase_if(whole, [](char c) { return c == '[' || c == ']'; });
        words.push_back({word.substr(0, bracket), whole});
    }
    return words;
}

// As the front of some word, or because it begins with a sign.
bool IsAllowed(const std::string& front)
{
    const auto words = WordsOf(kSqlPlusManual);
    return std::any_of(words.begin(), words.end(), [&](const ManualWord& word) {
        return word.whole.starts_with(front) && front.size() >= word.least.size();
    });
}

bool IsLineOfItsOwn(const char* dialect, const std::string& line)
{
    ScriptUnderTest script(dialect, line + "\nselect 1;\n");
    return script.Statements() == std::vector<std::string>{line, "select 1;"};
}

} // namespace

TEST(SqlPlusLines, BeginWithEachWordInEveryLengthThatItsManualAllows)
{
    for (const ManualWord& word : WordsOf(kSqlPlusManual)) {
        for (std::size_t length = word.least.size(); length <= word.whole.size(); ++length) {
            const std::string front = word.whole.substr(0, length);
            EXPECT_TRUE(IsLineOfItsOwn("oracle", front + " it's here")) << front;
            EXPECT_TRUE(IsLineOfItsOwn("oracle", front)) << front;
        }
        const std::string less = word.least.substr(0, word.least.size() - 1);
        if (!less.empty()) {
            EXPECT_EQ(IsLineOfItsOwn("oracle", less + " x"), IsAllowed(less)) << less;
        }
    }
    for (const char* sql : {"comment", "commit", "delete", "explain", "insert", "lock", "grant",
                            "rename", "savepoint", "select", "with", "audit", "call"})
        EXPECT_FALSE(IsLineOfItsOwn("oracle", std::string(sql) + " x")) << sql;
}

TEST(SqlPlusLines, GoOnBehindADash)
{
    ScriptUnderTest script("oracle",
                           "col a -\n  heading 'it''s' - \r\n format a9\nselect 1 from x -\n"
                           "where a = 1;\nprompt a -\nselect 2;\nselect 3;");
    EXPECT_THAT(script.Statements(), ElementsAre("col a -\n  heading 'it''s' - \r\n format a9",
                                                 "select 1 from x -\nwhere a = 1;",
                                                 "prompt a -\nselect 2;", "select 3;"));
    for (const long stretch : {1, 3, 17}) {
        const auto whole = script.Everything();
        script.SetStretch(stretch);
        EXPECT_EQ(script.Everything(), whole);
    }
}

TEST(SqlPlusLines, AreNoneWhereSetIsTheServers)
{
    for (const char* sql : {"SET TRANSACTION READ\nONLY;", "set role\nall;",
                            "set constraints all\nimmediate;", "set constraint a\ndeferred;"}) {
        ScriptUnderTest script("oracle", std::string(sql) + "\nselect 1;");
        EXPECT_THAT(script.Statements(), ElementsAre(sql, "select 1;"));
    }
}

TEST(MySqlLines, BeginWithTheWordsOfTheClient)
{
    for (const char* line :
         {"source it's.sql", "system echo it's", "tee it's", "nopager", "pager less", "help it's",
          "warnings", "connect base host", "exit", "quit", "status", "prompt it's> ", "\\u it's",
          "\\. it's.sql", "\\! echo it's", "\\T it's", "rehash", "go", "DELIMITER ;"})
        EXPECT_TRUE(IsLineOfItsOwn("mysql", line)) << line;
    for (const char* line : {"warnings x", "exit now", "status of", "sourced x"})
        EXPECT_FALSE(IsLineOfItsOwn("mysql", line)) << line;
    ScriptUnderTest script("mysql", "source a.sql; select 1; exit; help 'a;b'; select 2");
    EXPECT_THAT(script.Statements(),
                ElementsAre("source a.sql;", "select 1;", "exit;", "help 'a;b';", "select 2"));
}

TEST(MySqlLines, EndStatementsByTheClientsOwnTerminators)
{
    ScriptUnderTest script("mysql", "select 1\\G\nselect '\\g' \\g select \\N, 2\nfrom t \\c\n"
                                    "delimiter //\nselect 3; \\G select 4 // \\s select 5;\n//");
    EXPECT_THAT(script.Statements(),
                ElementsAre("select 1\\G", "select '\\g' \\g", "select \\N, 2\nfrom t \\c",
                            "delimiter //", "select 3; \\G", "select 4 //", "\\s",
                            "select 5;\n//"));
}

TEST(MySqlLines, SetADelimiterWithoutItsQuotes)
{
    ScriptUnderTest script("mysql", "DELIMITER '//'\nselect 1; select 2//\ndelimiter \"a b\"\n"
                                    "select 3; //a b\n\\d ;;\nselect 4;select 5;;\n");
    EXPECT_THAT(script.Statements(),
                ElementsAre("DELIMITER '//'", "select 1; select 2//", "delimiter \"a b\"",
                            "select 3; //a b", "\\d ;;", "select 4;select 5;;"));
}

TEST(MySqlLines, TakeTwoDashesForACommentWhereAStatementStarts)
{
    ScriptUnderTest script("mysql", "--it's; no\nselect 1\n--1;\n --x\nselect 2;");
    EXPECT_THAT(script.Statements(), ElementsAre("select 1\n--1;", "select 2;"));
}

TEST(MySqlLines, MaySetTwoHundredThousandDelimiters)
{
    std::string text;
    for (int i = 0; i < 200000; ++i)
        text += "delimiter d" + std::to_string(i) + "\n";
    ScriptUnderTest script("mysql", text + "select 1; select 2 d199999 select 3;");
    const long end = static_cast<long>(script.Text().size());
    EXPECT_EQ(script.StatementAt(end), "select 3;");
    EXPECT_EQ(script.StatementAt(script.Find("select 1")), "select 1; select 2 d199999");
    script.Insert(0, "# x\n");
    EXPECT_EQ(script.StatementAt(end + 4), "select 3;");
}

TEST(PsqlLines, EndTheStatementThatTheyStandBehind)
{
    ScriptUnderTest script(
        "postgresql",
        "select 1 \\gset a_\nselect 2 \\g it's.txt\nselect 3\n\\gx\nselect 4 \\gexec\n"
        "select 5 \\gdesc\nselect 6 \\crosstabview a b\nselect 7 \\watch 2\n"
        "select 8 \\d it's\nselect 9;");
    EXPECT_THAT(script.Statements(),
                ElementsAre("select 1 \\gset a_", "select 2 \\g it's.txt", "select 3\n\\gx",
                            "select 4 \\gexec", "select 5 \\gdesc", "select 6 \\crosstabview a b",
                            "select 7 \\watch 2", "select 8", "\\d it's", "select 9;"));
}

TEST(PsqlLines, DescribeWhateverLettersStandBehindTheD)
{
    for (const std::string letters : {"", "t", "abcdefghijklmn", "abcdefghijklmno"}) {
        const std::string line = "\\d" + letters + " it's";
        ScriptUnderTest script("postgresql", "select 1 " + line + "\nselect 2;");
        EXPECT_THAT(script.Statements(), ElementsAre("select 1", line, "select 2;"));
    }
}

TEST(PsqlLines, GoOnBehindTwoBackslashes)
{
    ScriptUnderTest script("postgresql", "\\x \\\\ select 1; \\echo 'a\\\\b' \\t \\\\ select 2 \\; "
                                         "select 3; \\! echo \\ it's; no\nselect 4;");
    EXPECT_THAT(script.Statements(),
                ElementsAre("\\x \\\\", "select 1;", "\\echo 'a\\\\b' ", "\\t \\\\",
                            "select 2 \\; select 3;", "\\! echo \\ it's; no", "select 4;"));
}

TEST(PsqlLines, LeaveTheStatementOpenThatTheyStandIn)
{
    ScriptUnderTest script("postgresql", "select\n\\echo it's\n1;\nselect 2;");
    EXPECT_THAT(script.Statements(), ElementsAre("select\n\\echo it's\n1;", "select 2;"));
}

TEST(PsqlLines, KeepDataToALineOfBackslashAndPoint)
{
    const std::string copy = "COPY t FROM stdin;\nit's\n\\.x\n \\.\n\\.";
    ScriptUnderTest script("postgresql", copy + "\nselect 1;\r\ncopy t from stdout;\r\n;\r\n\\.\r\n"
                                                "copy (select a from stdin) to stdout; select 2;\n"
                                                "copy t to stdin; select 3;");
    EXPECT_THAT(script.Statements(),
                ElementsAre(copy, "select 1;", "copy t from stdout;\r\n;\r\n\\.",
                            "copy (select a from stdin) to stdout;", "select 2;",
                            "copy t to stdin;", "select 3;"));
}

TEST(SqlcmdLines, StandBetweenStatementsThatHaveNoTerminator)
{
    ScriptUnderTest script("transact-sql", "select 1\n:setvar a it's\nselect 2 + :b\n!!echo it's\n"
                                           "select 3\nGO\nquit\nreset\nexit(select 1)\nselect 4");
    EXPECT_THAT(script.Statements(),
                ElementsAre("select 1", ":setvar a it's", "select 2 + :b", "!!echo it's",
                            "select 3", "quit", "reset", "exit(select 1)", "select 4"));
    ScriptUnderTest routine("transact-sql", "create proc p as\n:r it's.sql\nselect 1;\nselect 2");
    EXPECT_EQ(routine.Statements().size(), 1U);
}

TEST(Db2Lines, AreTheClients)
{
    ScriptUnderTest script("db2", "! echo it's\nECHO it's done\nselect 1;\n? it's\nselect 2;");
    EXPECT_THAT(script.Statements(),
                ElementsAre("! echo it's", "ECHO it's done", "select 1;", "? it's", "select 2;"));
}

TEST(Db2Terminators, StandInAFirstComment)
{
    for (const char* comment : {"-- db2 -td@ -vf x.sql", "--db2 -vtd@ \n-- and more",
                                "/* run with\n   db2 \"-td@\" -f */", "-- a\n\n-- -td@"}) {
        ScriptUnderTest script("db2", std::string(comment) + "\nselect 1; select 2@ select 3@");
        EXPECT_THAT(script.Statements(), ElementsAre("select 1; select 2@", "select 3@"))
            << comment;
    }
    for (const char* comment : {"select 0;\n-- -td@", "-- -tvf x", "-- x-td@", "-- -tdmore"}) {
        ScriptUnderTest script("db2", std::string(comment) + "\nselect 1@; select 2;");
        EXPECT_EQ(script.StatementAt(static_cast<long>(script.Text().size())), "select 2;")
            << comment;
    }
}

// A longer one is read in pieces that end wherever a stretch does.
TEST(Db2Terminators, StandWithinTheFirstBytesOfALongComment)
{
    for (const auto& [before, isFound] : {std::pair(400, true), std::pair(600, false)}) {
        for (const long stretch : {100L, 550L, 700L, 100000L}) {
            ScriptUnderTest script("db2", "/*" + std::string(std::size_t(before), ' ') + "-td@ " +
                                              std::string(900, 'x') + "*/\nselect 1@ select 2;");
            script.SetStretch(stretch);
            script.Erase(0, 1);
            script.Insert(0, "/");
            EXPECT_EQ(script.StatementAt(static_cast<long>(script.Text().size())),
                      isFound ? "select 2;" : "select 1@ select 2;")
                << before << " " << stretch;
        }
    }
}

TEST(GivenTerminators, HoldUntilTheScriptSetsAnother)
{
    ScriptUnderTest script("db2",
                           "begin; end; select 1@ select 2@\n--#SET TERMINATOR ;\n"
                           "begin atomic a; end; select 3;\n--#SET TERMINATOR @\nselect 4;@");
    script.SetTerminator("@");
    EXPECT_THAT(script.Statements(),
                ElementsAre("begin; end; select 1@", "select 2@", "begin atomic a; end;",
                            "select 3;", "select 4;@"));
}

TEST(Catalogs, AreNamedByVariablesOfTheClient)
{
    ScriptUnderTest script("transact-sql",
                           ":setvar Name one\n:setvar other \"t w\"\nuse $(NAME)\nselect 1\n"
                           "use [x_$(Other)]\nselect 2\nuse a$(name)_b$(other); select 3\n"
                           "use $(unknown)\nselect 4\n:setvar name two\nuse $(name)\nGO\nselect 5\n"
                           ":setvar name\nuse $(name)\nselect 6");
    EXPECT_EQ(script.CatalogAt(script.Find("select 1")), "one");
    EXPECT_EQ(script.CatalogAt(script.Find("select 2")), "x_t w");
    EXPECT_EQ(script.CatalogAt(script.Find("select 3")), "aone_bt w");
    EXPECT_EQ(script.CatalogAt(script.Find("select 4")), "$(unknown)");
    EXPECT_EQ(script.CatalogAt(script.Find("select 5")), "two");
    EXPECT_EQ(script.CatalogAt(static_cast<long>(script.Text().size())), "$(name)");
    EXPECT_EQ(script.StatementAt(script.Find("use $(NAME)")), "use $(NAME)");
}

TEST(Blocks, AreNotOpenedByTheBeginOfAClause)
{
    for (const auto& [dialect, statement] :
         {std::pair("oracle", "alter tablespace x begin backup;"),
          std::pair("interbase", "alter database begin backup;"),
          std::pair("db2", "alter tablespace x begin new stripe set (file 'a' 10);"),
          std::pair("db2", "exec sql begin declare section;"),
          std::pair("sql", "exec sql begin declare section;")}) {
        ScriptUnderTest script(dialect, std::string(statement) + " select 1; select 2;");
        EXPECT_THAT(script.Statements(), ElementsAre(statement, "select 1;", "select 2;"));
    }
    for (const auto& [dialect, statement] :
         {std::pair("db2", "begin declare section int; select 1; end;"),
          std::pair("transact-sql", "begin backup database x to y; select 1; end;"),
          std::pair("oracle", "create trigger t before insert on x for each row begin new.a := 1; "
                              "null; end;")}) {
        ScriptUnderTest script(dialect, std::string(statement) + " select 2;");
        EXPECT_THAT(script.Statements(), ElementsAre(statement, "select 2;"));
    }
}

TEST(Blocks, AreWholeInEveryFormThatOpensThem)
{
    const std::pair<const char*, const char*> kStatements[] = {
        {"oracle", "<<a>>\ndeclare x int; begin null; end a;"},
        {"oracle", "<<a>> begin null; end;"},
        {"oracle", "with function f(a int) return int is b int; begin return 1; end;\n"
                   " procedure p is begin null; end;\nselect f(1) from dual;"},
        {"oracle", "with a as (select 1 from dual) select * from a;"},
        {"mysql", "create procedure p(a int) case a when 1 then select 1; select 2; else select "
                  "case 1 when 1 then 3 end; end case;"},
        {"mysql", "create function f() returns int return case 1 when 1 then 2 end;"},
        {"mysql", "begin not atomic declare x int; if x then select 1; end if; end;"},
        {"transact-sql", "insert t select * from openrowset('p', 'd';'u';'pw', q) a;"},
        {"sqlite", "explain create trigger t after insert on x begin select 1; select 2; end;"},
        {"sqlite", "explain query plan create temp trigger t delete on x begin select 1; end;"},
    };
    for (const auto& [dialect, statement] : kStatements) {
        ScriptUnderTest script(dialect, std::string(statement) + "\nselect 8; select 9;");
        EXPECT_THAT(script.Statements(), ElementsAre(statement, "select 8;", "select 9;"))
            << dialect;
    }
    ScriptUnderTest open("transact-sql", "select openrowset(1; select (2; select 3;");
    EXPECT_EQ(open.Statements().size(), 1U); // its parentheses are not closed
    ScriptUnderTest other("transact-sql", "select (1; select 2;");
    EXPECT_EQ(other.Statements().size(), 2U);
}

TEST(Blocks, OfJavaGoOnToTheirSlash)
{
    const std::string source = "create or replace and resolve java source named \"A\" as\n"
                               "class A { // it's; here\n char c = '\"'; int d = 4\n/ 2; }";
    ScriptUnderTest script("oracle", source + "\n / \nselect 1 from dual;\ncreate java class using "
                                              "bfile (d, 'A.class');\nselect 2 from dual;");
    EXPECT_THAT(script.Statements(), ElementsAre(source, "select 1 from dual;",
                                                 "create java class using bfile (d, 'A.class');",
                                                 "select 2 from dual;"));
    EXPECT_EQ(script.Batches().size(), 2U);
}

} // namespace engine::analysis
