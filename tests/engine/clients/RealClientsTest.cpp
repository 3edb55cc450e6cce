// SPDX-License-Identifier: GPL-3.0-or-later
// Random scripts, divided here and by the client programs themselves.
#include "tests/RandomSeed.h"
#include "tests/engine/analysis/ScriptUnderTest.h"
#include "tests/engine/clients/FakeServers.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <regex>
#include <span>

namespace clients {
namespace {

using engine::analysis::ScriptUnderTest;
using Groups = std::vector<std::vector<std::string>>;

// Words are numbered: those of code and strings as w1, w2; those of comments, of client's lines and
// of data have other letters. % is the number.
// clang-format off
constexpr const char* kMySqlPieces[] = {
    "w% ", "w% ", "w%, w% ", "'w%;' ", "\"w%;\\\"'\" ", "`w%;` ", "'w%''\\'--' ", "-- c%;it's\n",
    "# c'%;\n", "/* c% ; ' \n */ ", "/* # ' */", ";", "; ", ";\n", ";\n", "\n", "\n", "\\g\n",
    "\\G ", "\\G\n", "\ndelimiter //\n", "//", " //\n", "\ndelimiter ;\n", "\ndelimiter '$$'\n",
    "$$\n", "\nDELIMITER ;;\n", "\nprompt k%'\n", "\nnopager\n", "\nwarnings\n", "\nrehash k%\n",
    "\nnotee\n", "\n--c%;'\n", " --c%;'\n", "w% --1 ", "\ntee /dev/null\n", "\\N ", "w% = \\N,",
    "begin w%; w% end", "case w% end", "\nuse db\n", "\ndelimiter 123456789012345678\n",
    "123456789012345 ",
};

constexpr const char* kPsqlPieces[] = {
    "w% ", "w% ", "w%, w% ", "'w%;' ", "'w%\\' ", "E'w%\\';' ", "U&'w%;' ", "\"w%;\"\"'\" ",
    "$$w%;'$$ ", "$t$w%; $$ ' $t$ ", "$1 ", "-- c%;it's\n", "/* c% ; /* ' */ ; */ ", ";", "; ",
    ";\n", ";\n", "\n", "\n", ")", "(w%; w%) ", "\\;", " \\; w% ", "\\g\n", "\\gx\n",
    "\\gset k%_\n", "\\gexec\n", "\\echo k%'a;' \n", "\\echo k% \\\\ w% ", "\\pset null k%\n",
    "\n\\echo k%\n", "\\! true 'k%' \\ ;\n", "::w% ", ":: ", "begin; ", "case w% end ",
    ";\ncreate function w%() begin atomic w%; case w% end; w%; end; ",
    ";\ncopy w% from stdin;\nd%;'\n\\.x\n\\.\nw%;\n", ";\ncopy w% to stdin;\n",
    ";\ncopy w% from stdout;\n\\.\nw%;\n", "N'w%' ", "b'w%;' ",
};

constexpr const char* kSqlitePieces[] = {
    "w% ", "w%, w% ", "'w%;''' ", "\"w%;\" ", "`w%;` ", "[w%;] ", "-- c%;it's\n", "/* c% ; ' */ ",
    ";", "; ", ";\n", "\n", "(", ")", "begin;", "begin ", "create w% ", "select w% ", "commit;",
    ";create trigger w% begin w%; w% 'w%;'; end;", ";create temp trigger w% begin w%; end;",
    ";explain create trigger w% begin w%; end;", "x'00' ", "w%.w% ",
};

// clang-format on

class RealClients : public testing::Test
{
protected:
    RealClients()
    {
        m_seed = RandomSeed();
        m_random.seed(m_seed);
    }

    std::string Script(std::span<const char* const> pieces)
    {
        std::string script;
        int number = 0;
        for (int i = 0; i < 60; ++i) {
            for (const char c : std::string(pieces[m_random() % pieces.size()]))
                script += c == '%' ? std::to_string(++number) : std::string(1, c);
        }
        return script;
    }

    static std::vector<std::string> WordsOf(const std::string& text)
    {
        static const std::regex kWord("w[0-9]+");
        std::vector<std::string> words;
        for (std::sregex_iterator at(text.begin(), text.end(), kWord), end; at != end; ++at)
            words.push_back(at->str());
        return words;
    }

    static Groups GroupsOf(const std::vector<std::string>& statements)
    {
        Groups groups;
        for (const std::string& statement : statements) {
            const std::vector<std::string> words = WordsOf(statement);
            const bool isRepeated = !groups.empty() && groups.back() == words; // a \\g by itself
            if (!words.empty() && !isRepeated)
                groups.push_back(words);
        }
        return groups;
    }

    // Some statements at least, or nothing was tried.
    void Compare(const char* dialect, const std::string& script,
                 const std::vector<std::string>& sent)
    {
        ScriptUnderTest ours(dialect, script);
        m_compared += sent.size();
        ASSERT_EQ(GroupsOf(ours.Statements()), GroupsOf(sent))
            << dialect << ", seed " << m_seed << "\n-----\n"
            << script << "\n-----";
    }

    unsigned m_seed = 0;
    std::mt19937 m_random;
    std::size_t m_compared = 0;
};

// Prefixes that are whole statements, as SQLite's own shell asks for them.
std::vector<std::string> DividedBySqlite(const std::string& script)
{
    std::vector<std::string> statements;
    std::string statement;
    for (const char c : script) {
        statement += c;
        if (c == ';' && sqlite3_complete(statement.c_str())) {
            statements.push_back(statement);
            statement.clear();
        }
    }
    statements.push_back(statement);
    return statements;
}

// How many statements Firebird's client would have sent: it has no database, and says so for each.
long AsksForADatabase(const std::string& script)
{
    std::string folder = (std::filesystem::temp_directory_path() / "isqlXXXXXX").string();
    if (!mkdtemp(folder.data()))
        return -1;
    std::ofstream(folder + "/a.sql", std::ios::binary) << script;
    const std::string output = folder + "/output";
    const std::string command =
        "isql-fb -e -i " + folder + "/a.sql >" + output + " 2>&1 </dev/null";
    const bool started = std::system(command.c_str()) >= 0;
    std::ifstream file(output);
    const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    std::filesystem::remove_all(folder);
    if (!started || text.find("not found") != std::string::npos)
        return -1;
    long count = 0;
    for (auto at = text.find("Use CONNECT"); at != std::string::npos;
         at = text.find("Use CONNECT", at + 1))
        ++count;
    return count;
}

} // namespace

TEST_F(RealClients, OfFirebirdCountTheSameStatements)
{
    constexpr const char* kPieces[] = {"w% ",       "w% , ",       "'w;^%''' ", "\"w;^%\" ",
                                       "-- c;^'\n", "/* c;^' */ ", "\n",        "(w%) "};
    const long without = AsksForADatabase("");
    ASSERT_GE(without, 0);
    for (int round = 0; round < 40 && !HasFatalFailure(); ++round) {
        std::string script;
        std::string terminator = ";";
        long changes = 0;
        for (int i = 0; i < 60; ++i) {
            script += kPieces[m_random() % std::size(kPieces)];
            if (m_random() % 3 == 0)
                script += " a" + terminator + (m_random() % 2 ? "\n" : " ");
            if (m_random() % 12 == 0) {
                const std::string next = terminator == ";" ? "^" : ";";
                script += " a" + terminator + "\nset term " + next + ' ' + terminator + '\n';
                terminator = next;
                ++changes;
            }
        }
        script += " a" + terminator + '\n';
        ScriptUnderTest ours("interbase", script);
        ASSERT_EQ(static_cast<long>(ours.Statements().size()) - changes,
                  AsksForADatabase(script) - without)
            << "seed " << m_seed << "\n"
            << script;
    }
}

TEST_F(RealClients, OfMySqlSendTheSameStatements)
{
    for (int round = 0; round < 40 && !HasFatalFailure(); ++round) {
        const std::string script = Script(kMySqlPieces);
        Compare(
            "mysql", script,
            SentToMySql("mariadb --no-defaults -S %s/server -uroot --batch --force -A", script));
    }
    EXPECT_GT(m_compared, 100U);
}

TEST_F(RealClients, OfPostgreSqlSendTheSameStatements)
{
    for (int round = 0; round < 40 && !HasFatalFailure(); ++round) {
        const std::string script = Script(kPsqlPieces);
        Compare("postgresql", script,
                SentToPostgreSql(
                    "PGSSLMODE=disable PGGSSENCMODE=disable psql -X -q -h %s -U u -d d", script));
    }
    EXPECT_GT(m_compared, 100U);
}

TEST_F(RealClients, OfSqliteDivideTheSame)
{
    for (int round = 0; round < 300 && !HasFatalFailure(); ++round) {
        const std::string script = Script(kSqlitePieces);
        Compare("sqlite", script, DividedBySqlite(script));
    }
    EXPECT_GT(m_compared, 100U);
}

} // namespace clients
