// SPDX-License-Identifier: GPL-3.0-or-later
// The parsers of the databases, over statements.
#include "host/problems/StatementPieces.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <ostream>

std::ostream& operator<<(std::ostream& stream, const ScriptProblem& problem)
{
    return stream << problem.start << '-' << problem.end << (problem.isSyntax ? " syntax " : " ")
                  << problem.text.toStdString();
}

namespace {

// Statements end at a semicolon here, which stands in none of the tests' texts.
std::vector<ScriptStatement> Statements(const QString& script)
{
    std::vector<ScriptStatement> statements;
    long start = 0;
    for (const QString& text : script.split(u';')) {
        statements.push_back({start, text});
        start += static_cast<long>(text.size()) + 1;
    }
    return statements;
}

std::vector<ScriptProblem> Check(const char* language, const QString& script)
{
    return SyntaxCheckFor(QLatin1String(language))->Check(Statements(script));
}

// What stands under the underline of the only problem.
QString Underlined(const char* language, const QString& script)
{
    const std::vector<ScriptProblem> problems = Check(language, script);
    if (problems.size() != 1)
        return QStringLiteral("(%1 problems)").arg(problems.size());
    return script.mid(problems[0].start, problems[0].end - problems[0].start);
}

TEST(SyntaxChecks, StandForPostgresAndSqlite)
{
    EXPECT_NE(SyntaxCheckFor(QStringLiteral("PostgreSQL")), nullptr);
    EXPECT_NE(SyntaxCheckFor(QStringLiteral("SQLite")), nullptr);
    EXPECT_EQ(SyntaxCheckFor(QStringLiteral("Transact-SQL")), nullptr);
}

TEST(PostgresChecks, FindNothingInAGoodScript)
{
    EXPECT_TRUE(Check("PostgreSQL", QStringLiteral("select 1; select '\u00e9' as \"\U0001F600\";"
                                                   "create table t (a jsonb); \\echo what' ;"))
                    .empty());
}

TEST(PostgresChecks, PointAtTheWord)
{
    EXPECT_EQ(Underlined("PostgreSQL", QStringLiteral("select 1; selekt 2; select 3")),
              QStringLiteral("selekt"));
    EXPECT_EQ(Underlined("PostgreSQL", QStringLiteral("select '\u00e9\U0001F600' frm t")),
              QStringLiteral("t"));
}

// As the partitioner gives it: a parenthesis that is open takes semicolons in.
TEST(SyntaxChecks, GoOnBehindAParenthesisThatIsNotClosed)
{
    const QString script = QStringLiteral("insert into t (id, a values (1, 2);\n\nselct 1;\n"
                                          "\nselect 2;\n");
    for (const char* language : {"PostgreSQL", "SQLite"}) {
        const auto problems = SyntaxCheckFor(QLatin1String(language))->Check({{10, script}});
        ASSERT_EQ(problems.size(), 2U) << language;
        EXPECT_EQ(script.mid(problems[1].start - 10, problems[1].end - problems[1].start),
                  QStringLiteral("selct"));
    }
}

QStringList Pieces(const char* text)
{
    QStringList pieces;
    const QString whole = QString::fromUtf8(text);
    for (const ScriptStatement& piece : PiecesOf({7, whole})) {
        EXPECT_EQ(whole.mid(piece.start - 7, piece.text.size()), piece.text);
        pieces << piece.text;
    }
    return pieces;
}

TEST(PiecesOfAStatement, BeginBehindAnEmptyLineAtTheFirstColumn)
{
    EXPECT_EQ(Pieces("f(a;\n\nb);\nc (; -- d\r\n \r\n\r\n-- e\ng"),
              QStringList({"f(a;", "b);\nc (;", "-- e\ng"}));
    for (const char* whole : {"", "f(a;\nb", "f(a;\n\n b", "f(a;\n\n)b", "f(a)\n\nb;\n\nc"})
        EXPECT_EQ(Pieces(whole), QStringList(whole)) << whole;
}

TEST(PiecesOfAStatement, DoNotBeginInStringsCommentsAndNames)
{
    for (const char* whole : {"f('(') ;\n\nb", "f(';\n\nb", "f(\"x;\n\nb\")", "f(/* ;\n\nb */)",
                              "f(1 -- ;\n\nb", "f($$;\n\nb$$", "f($a$;\n\nb", "--", "(-", "($"})
        EXPECT_EQ(Pieces(whole), QStringList(whole)) << whole;
    EXPECT_EQ(Pieces("f($1;\n\nb").size(), 2);
}

TEST(PiecesOfAStatement, BeginBehindUnitsThatAreNoCharacters)
{
    const QString text = QStringLiteral("f(a;\n\nb '") + QChar(0xD800) + u'\'';
    EXPECT_EQ(PiecesOf({0, text}).size(), 2U);
}

// A dump whose first parenthesis is open is one statement, with a semicolon in each line: minutes,
// if each looks at all that follows.
TEST(PiecesOfAStatement, TakeATimeThatGrowsWithTheText)
{
    const QString text = u'(' + QStringLiteral("v ($1);\n").repeated(400'000);
    EXPECT_EQ(PiecesOf({0, text}).size(), 1U);
}

TEST(PiecesOfAStatement, AreCheckedOnceEach)
{
    std::vector<long> checked;
    const auto check = [&](const ScriptStatement& statement) {
        checked.push_back(statement.start);
        return std::optional(ScriptProblem{statement.start, 1, {}});
    };
    EXPECT_EQ(ProblemsOfPieces({4, QStringLiteral("select (1;")}, check).size(), 1U);
    EXPECT_EQ(checked, std::vector<long>({4}));
    EXPECT_EQ(ProblemsOfPieces({0, QStringLiteral("f(a;\n\nb(")}, check).size(), 2U);
    EXPECT_EQ(checked, std::vector<long>({4, 0, 0, 6}));
}

TEST(PostgresChecks, PointAtTheEndOfAStatementThatStops)
{
    const std::vector<ScriptProblem> problems =
        Check("PostgreSQL", QStringLiteral("select * from"));
    ASSERT_EQ(problems.size(), 1u);
    EXPECT_EQ(problems[0].end, 13);
    EXPECT_TRUE(problems[0].isSyntax);
}

TEST(PostgresChecks, GoOnBehindAProblem)
{
    EXPECT_EQ(Check("PostgreSQL", QStringLiteral("selekt 1; select 2; frob 3")).size(), 2u);
}

TEST(PostgresChecks, LiveWithAnything)
{
    EXPECT_TRUE(Check("PostgreSQL", QStringLiteral("a") + QChar(u'\0') + u'b').empty());
    EXPECT_EQ(Check("PostgreSQL", QString(100, u'(')).size(), 1u);
    EXPECT_EQ(Check("PostgreSQL", QStringLiteral("select ") + QString(1000000, u'(')).size(), 1u);
    EXPECT_EQ(Check("PostgreSQL", QStringLiteral("select ") + QString(300000, u'(') + u'1' +
                                      QString(300000, u')'))
                  .size(),
              1u);
    EXPECT_EQ(Check("PostgreSQL", QString(QChar(0xD800))).size(), 1u);
}

TEST(SqliteChecks, KnowTheTablesOfTheScript)
{
    EXPECT_TRUE(Check("SQLite", QStringLiteral("create table t (a, b); insert into t values (1, 2);"
                                               "create view v as select a from t; select a from v;"
                                               ".mode csv"))
                    .empty());
}

TEST(SqliteChecks, PointAtTheWord)
{
    EXPECT_EQ(Underlined("SQLite", QStringLiteral("select '\u00e9\U0001F600'; selekt 2")),
              QStringLiteral("selekt"));
    EXPECT_EQ(Underlined("SQLite", QStringLiteral("select '\u00e9' frm from, t")),
              QStringLiteral(","));
}

TEST(SqliteChecks, TellATableThatIsNotThereFromASyntaxError)
{
    const std::vector<ScriptProblem> problems = Check("SQLite", QStringLiteral("select a from n"));
    ASSERT_EQ(problems.size(), 1u);
    EXPECT_FALSE(problems[0].isSyntax);
    EXPECT_EQ(problems[0].text, QStringLiteral("no such table: n"));
}

TEST(SqliteChecks, PointAtTheEndOfAStatementThatStops)
{
    const std::vector<ScriptProblem> problems = Check("SQLite", QStringLiteral("select * from"));
    ASSERT_EQ(problems.size(), 1u);
    EXPECT_EQ(problems[0].end, 13);
}

TEST(SqliteChecks, LiveWithAnything)
{
    EXPECT_EQ(Check("SQLite", QStringLiteral("select ") + QString(1000000, u'(')).size(), 1u);
    EXPECT_EQ(Check("SQLite", QString(QChar(0xD800))).size(), 1u);
    EXPECT_TRUE(Check("SQLite", QString()).empty());
}

TEST(SqliteChecks, TouchNoFile)
{
    EXPECT_TRUE(Check("SQLite", QStringLiteral("attach '/no/such/place/x.db' as x")).empty());
    EXPECT_EQ(Check("SQLite", QStringLiteral("select load_extension('x')")).size(), 1u);
}

} // namespace
