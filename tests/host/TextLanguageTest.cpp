// SPDX-License-Identifier: GPL-3.0-or-later
// The dialect of a script that is called .sql and no more.
#include "host/TextLanguage.h"

#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "host/files/LanguageMemory.h"
#include "host/window/LanguageMenu.h"
#include "tests/host/WorkbenchTest.h"

TEST(TextLanguage, IsToldByWhatOneDialectAloneHas)
{
    EXPECT_EQ(DialectOfText("select 1\r\nGO\r\nselect 2\r\n"), "Transact-SQL");
    EXPECT_EQ(DialectOfText("delimiter //\nselect 1//\n"), "MySQL");
    EXPECT_EQ(DialectOfText("do $body$ begin end $body$;"), "PostgreSQL");
    EXPECT_EQ(DialectOfText("\\connect db\nselect 1;"), "PostgreSQL");
    EXPECT_EQ(DialectOfText("begin\n null;\nend;\n/\n"), "PL/SQL");
    EXPECT_EQ(DialectOfText("create table t (n varchar2(10));"), "PL/SQL");
    EXPECT_EQ(DialectOfText(".mode csv\nselect 1;"), "SQLite");
    EXPECT_EQ(DialectOfText("set term ^ ;\n"), "InterBase/Firebird");
    EXPECT_EQ(DialectOfText("--#SET TERMINATOR @\n"), "DB2");
}

TEST(TextLanguage, IsUnknownWhereNothingTellsOrTwoTellTheSame)
{
    EXPECT_EQ(DialectOfText("select a / b from going where x = 'GO';"), "");
    EXPECT_EQ(DialectOfText("select 1\nGO\n/\n"), "");
    EXPECT_EQ(DialectOfText("select `a`"), ""); // too little
    EXPECT_EQ(DialectOfText(QString(70000, ' ') + "\nGO\n"), "");
}

namespace {

class Dialects : public WorkbenchTest
{
protected:
    ~Dialects() override { languages::SetDefault({}); }

    QString Language() const
    {
        return zncoreeditor::GetFileTypeManager()->GetLanguageName(Script().Language());
    }
    void Choose(const QString& language)
    {
        const CFileTypeManager& registry = *zncoreeditor::GetFileTypeManager();
        for (int i = 0; i < registry.GetLanguageCount(); ++i) {
            if (registry.GetLanguageName(i) == language)
                m_window.SetLanguage(i);
        }
    }
};

TEST_F(Dialects, AreGuessedForAFileOfNoDialectByName)
{
    Open("a.sql", "select 1\nGO\n");
    EXPECT_EQ(Language(), "Transact-SQL");
    Open("b.mysql", "select 1\nGO\n");
    EXPECT_EQ(Language(), "MySQL");
    Open("c.sql", "select 1;\n");
    EXPECT_EQ(Language(), "SQL");
}

TEST_F(Dialects, AreRememberedByFileAndFolder)
{
    Open("a.sql", "select 1\nGO\n");
    Choose("PL/SQL");
    Trigger("close");
    m_app.OpenDocumentFile(PathOf("a.sql"));
    EXPECT_EQ(Language(), "PL/SQL");
    Open("b.sql", "select 1;\n");
    EXPECT_EQ(Language(), "PL/SQL");
    Open("c.sql", "select $$a$$;\n");
    EXPECT_EQ(Language(), "PostgreSQL");
}

TEST_F(Dialects, HaveOneForNewScripts)
{
    Trigger("new");
    EXPECT_EQ(Language(), "SQL");
    Choose("SQLite");
    Trigger("defaultLanguage");
    Trigger("new");
    EXPECT_EQ(Language(), "SQLite");
    Open("a.sql", "select 1;\n");
    EXPECT_EQ(Language(), "SQLite");
}

TEST_F(Dialects, AreOfAFileThatIsCreatedByNamingIt)
{
    m_prompts.confirm = true;
    EXPECT_TRUE(m_window.OpenPlaces({PathOf("fresh.pgsql")}));
    EXPECT_EQ(Language(), "PostgreSQL");
    EXPECT_EQ(Read("fresh.pgsql"), "");
    m_prompts.confirm = false;
    EXPECT_FALSE(m_window.OpenPlaces({PathOf("other.sql")}));
    EXPECT_EQ(Read("other.sql"), "(no file)");
}

} // namespace
