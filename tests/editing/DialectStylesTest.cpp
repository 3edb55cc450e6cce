// SPDX-License-Identifier: GPL-3.0-or-later
// Every shipped SQL language, bound as a host binds it: a sample of the dialect, and under each
// line its styles as letters (tests/reference/StyleLetters.h).
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "settings/SyntaxFile.h"
#include "tests/reference/StyleLetters.h"

#include <QWidget>

#include <gtest/gtest.h>

namespace {

struct Sample
{
    const char* language;
    const char* name; // of the test
    std::vector<std::pair<std::string, std::string>> lines;
};

void PrintTo(const Sample& sample, std::ostream* out)
{
    *out << sample.language;
}

// C block comment  c line comment  D documentation  n number  s string  o operator  i identifier
// v variable  q "name"  Q [name] or `name`  k statement  K further keyword  t data type  T system
// object  g global variable or setting  f function  p procedure  _ before a data type  $ client
const Sample kSamples[] = {
    {"SQL",
     "GenericSql",
     {{"select count(*), \"a b\", 'it''s' from t -- note", //
       "kkkkkk fffffoooo qqqqqo sssssss kkkk i ccccccc"},
      {"where x >= 12.5e3 and name like :p; /* c */", //
       "kkkkk i oo nnnnnn kkk iiii kkkk iio CCCCCCC"},
      {"create table t (a varchar(10), b int); /** doc */",
       "kkkkkk kkkkk i oi tttttttonnoo i tttoo DDDDDDDDDD"},
      {"select message_text from information_schema.tables where if `q` $$x$$",
       "kkkkkk gggggggggggg kkkk TTTTTTTTTTTTTTTTTToTTTTTT kkkkk KK QQQ sssss"}}},
    {"Transact-SQL",
     "TransactSql",
     {{"SELECT COUNT(*), [a b], N'it''s' FROM sys.objects -- note",
       "kkkkkk fffffoooo QQQQQo ssssssss kkkk TTTTTTTTTTT ccccccc"},
      {"declare @v varchar(10) = 0x1F + @@rowcount, \"q\" and 1", //
       "kkkkkkk vv_tttttttonno o nnnn o ggggggggggo qqq ooo n"},
      {"exec sp_help 'x' /* a /* b */ c */ #t", //
       "kkkk ppppppp sss CCCCCCCCCCCCCCCCC ii"},
      {"go 5", //
       "kk n"}}},
    {"PL/SQL",
     "PlSql",
     {{"select nvl(a, q'[it's]') from user_tables -- note", //
       "kkkkkk fffoio ssssssssso kkkk TTTTTTTTTTT ccccccc"},
      {"where \"Q\" = :v and n'x' <> nq'{a'b}' /* c */;", //
       "kkkkk qqq o vv ooo ssss oo sssssssss CCCCCCCo"},
      {"prompt it's", //
       "kkkkkk     "},
      {"create procedure p is v number(8); begin dbms_output.put_line('x'); end;",
       "kkkkkk kkkkkkkkk i oo i_ttttttonoo kkkkk pppppppppppppppppppposssoo kkko"},
      {"/", //
       "o"}}},
    {"MySQL",
     "MySql",
     {{"select `a b`, 'it\\'s', \"x\\\"y\", count(*) # note", //
       "kkkkkk QQQQQo ssssssso sssssso fffffooo cccccc"},
      {"from information_schema.tables where 1--1 /* c */ -- note",
       "kkkk TTTTTTTTTTTTTTTTTTTTTTTTT kkkkk noon CCCCCCC ccccccc"},
      {"set @v = @@global.sql_mode; create table t (a int);", //
       "kkk vv o ggggggggoggggggggo kkkkkk kkkkk i oi_tttoo"},
      {"delimiter //", //
       "kkkkkkkkk oo"}}},
    {"PostgreSQL",
     "PostgreSql",
     {{"select count(*), \"a b\", E'it\\'s', $1 from pg_class -- note",
       "kkkkkk fffffoooo qqqqqo sssssssso ii kkkk TTTTTTTT ccccccc"},
      {"create function f() returns text as $b$ it's $b$ /* a /* b */ c */",
       "kkkkkk kkkkkkkk ioo kkkkkkk tttt kk sss iissssss CCCCCCCCCCCCCCCCC"},
      {"set work_mem = 64; select 1::int;", //
       "kkk gggggggg o nno kkkkkk noottto"},
      {"\\d it's", //
       "$$$$$$$"}}},
    {"SQLite",
     "Sqlite",
     {{"select count(*), [a b], `c`, \"d\", 'it''s' from sqlite_master -- note",
       "kkkkkk fffffoooo QQQQQo QQQo qqqo sssssss kkkk TTTTTTTTTTTTT ccccccc"},
      {"where a = 12 /* c */; pragma cache_size;", //
       "kkkkk i o nn CCCCCCCo kkkkkk ggggggggggo"},
      {".open it's", //
       "$$$$$$$$$$"}}},
    {"DB2",
     "Db2",
     {{"select count(*), \"a b\", 'it''s' from syscat.tables -- note",
       "kkkkkk fffffoooo qqqqqo sssssss kkkk TTTTTTTTTTTTT ccccccc"},
      {"where a = :v and 12 > 1.5 /* a /* b */ c */;", //
       "kkkkk i o vv ooo nn o nnn CCCCCCCCCCCCCCCCCo"},
      {"create table t (a varchar(10), b decimal(8, 2));", //
       "kkkkkk kkkkk i oi_tttttttonnoo i_tttttttono nooo"}}},
    {"Sybase ASE",
     "SybaseAse",
     {{"select count(*), [a b], \"it's\", 'x' from sysobjects -- note",
       "kkkkkk fffffoooo QQQQQo sssssso sss kkkk TTTTTTTTTT ccccccc"},
      {"declare @v int select @@rowcount, 12 /* a /* b */ c */", //
       "kkkkkkk vv_ttt kkkkkk ggggggggggo nn CCCCCCCCCCCCCCCCC"},
      {"exec sp_help #t", //
       "kkkk ppppppp ii"},
      {"go", //
       "kk"}}},
    {"Sybase IQ",
     "SybaseIq",
     {{"select count(*), \"a b\", 'it''s' from sys.systable -- note",
       "kkkkkk fffffoooo qqqqqo sssssss kkkk TTTTTTTTTTTT ccccccc"},
      {"where a = 12 // note", //
       "kkkkk i o nn ccccccc"},
      {"/* a /* b */ c */ create variable v int;", //
       "CCCCCCCCCCCCCCCCC kkkkkk kkkkkkkk i_ttto"}}},
    {"InterBase/Firebird",
     "InterBase",
     {{"select count(*), \"a b\", q'(it's)' from rdb$relations -- note",
       "kkkkkk fffffoooo qqqqqo sssssssss kkkk TTTTTTTTTTTTT ccccccc"},
      {"where a = :v and 12 > 1.5 /* c */;", //
       "kkkkk i o vv ooo nn o nnn CCCCCCCo"},
      {"create table t (a varchar(10));", //
       "kkkkkk kkkkk i oi_tttttttonnooo"}}},
    {"Azure SQL",
     "AzureSql",
     {{"select count(*), [a b], N'it''s', \"q\" from sys.objects -- note",
       "kkkkkk fffffoooo QQQQQo sssssssso qqq kkkk TTTTTTTTTTT ccccccc"},
      {"declare @v int = 12 /* a /* b */ c */ select @@rowcount", //
       "kkkkkkk vv_ttt o nn CCCCCCCCCCCCCCCCC kkkkkk gggggggggg"}}},
};

int LanguageByName(const QString& name)
{
    CFileTypeManager* languages = zncoreeditor::GetFileTypeManager();
    for (int i = 0; i < languages->GetLanguageCount(); ++i) {
        if (languages->GetLanguageName(i) == name)
            return i;
    }
    return -1;
}

class DialectStyles : public testing::TestWithParam<Sample>
{
protected:
    DialectStyles()
    {
        m_control.SubclassWindow(
            CreateWindowOfClass(engine::kWindowClass, WS_CHILD, RECT{0, 0, 300, 200}, &m_parent));
    }

    std::string LettersOf(int line)
    {
        std::string letters;
        const long start = m_control.PositionFromLine(line, 1);
        const long end = m_control.GetLineEndPosition(line, 1);
        for (long i = start; i < end; ++i)
            letters += reference::LetterOf(m_control.GetLexer(1), m_control.GetStyleAt(i, 1));
        return letters;
    }

    QWidget m_parent;
    CZNCoreEditorControlEx m_control;
};

} // namespace

TEST_P(DialectStyles, AreThoseOfTheSample)
{
    const Sample& sample = GetParam();
    const int language = LanguageByName(QString::fromUtf8(sample.language));
    ASSERT_GE(language, 0);
    // The language before leaves nothing behind.
    m_control.InitializeLanguage(LanguageByName(QStringLiteral("PostgreSQL")), 1);
    m_control.InitializeLanguage(language, 1);
    QString text;
    for (const auto& [line, letters] : sample.lines)
        text += QString::fromStdString(line) + u'\n';
    m_control.SetWindowTextW(text);
    m_control.Colorize(0, -1, 1);
    for (std::size_t i = 0; i < sample.lines.size(); ++i)
        EXPECT_EQ(sample.lines[i].first + "\n" + LettersOf(static_cast<int>(i)),
                  sample.lines[i].first + "\n" + sample.lines[i].second);
}

INSTANTIATE_TEST_SUITE_P(Shipped, DialectStyles, testing::ValuesIn(kSamples),
                         [](const auto& sample) { return std::string(sample.param.name); });

// What a keyword set of a language says, its lexer shows.
TEST(ShippedKeywords, EachComesOutInAStyleOfItsSets)
{
    QWidget parent;
    CZNCoreEditorControlEx control;
    control.SubclassWindow(
        CreateWindowOfClass(engine::kWindowClass, WS_CHILD, RECT{0, 0, 300, 200}, &parent));
    CFileTypeManager* languages = zncoreeditor::GetFileTypeManager();
    for (const Sample& sample : kSamples) {
        const int language = LanguageByName(QString::fromUtf8(sample.language));
        control.InitializeLanguage(language, 1);
        const bool isGeneric = control.GetLexer(1) == 9;
        const std::string letters = isGeneric ? "ktd$fTgK" : "ktTgfpo";
        for (int set = 0; set < static_cast<int>(letters.size()); ++set) {
            if (!isGeneric && set == 3)
                continue; // behind @@ alone
            const QStringList words =
                languages->GetSyntaxFile(language)->GetDelimitedKeywordSet(set, u' ').split(
                    u' ', Qt::SkipEmptyParts);
            // A terminator behind each, so that none is a client's, a call or behind a name.
            control.SetWindowTextW(QStringLiteral("x;") + words.join(u';'));
            control.Colorize(0, -1, 1);
            long position = 2;
            for (const QString& word : words) {
                const char letter =
                    reference::LetterOf(control.GetLexer(1), control.GetStyleAt(position, 1));
                EXPECT_NE(letter, 'i') << sample.language << " " << word.toStdString();
                position += word.size() + 1;
            }
        }
    }
}
