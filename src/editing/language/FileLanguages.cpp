// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/language/FileLanguages.h"

#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

namespace {

constexpr char16_t kPlainText[] = u"Text";
constexpr char16_t kGenericSql[] = u"SQL";

struct NameRow
{
    const char16_t* patterns; // with blanks between them, letter case ignored
    const char16_t* language; // its name in the registry
};

// The first row that has the name wins.
// clang-format off
constexpr NameRow kNames[] = {
    {u"*.tsql *.mssql *.tsql.sql *.mssql.sql",                   u"Transact-SQL"},
    {u"*.plsql *.pls *.pks *.pkb *.pck *.plb *.fnc *.prc *.trg *.tps *.tpb *.plsql.sql",
                                                                 u"PL/SQL"},
    {u"*.mysql *.mysql.sql",                                     u"MySQL"},
    {u"*.pgsql *.psql *.pgsql.sql .psqlrc",                      u"PostgreSQL"},
    {u"*.sqlite *.sqlite.sql .sqliterc",                         u"SQLite"},
    {u"*.db2 *.clp *.db2.sql",                                   u"DB2"},
    {u"*.ase *.ase.sql",                                         u"Sybase ASE"},
    {u"*.iq *.iq.sql",                                           u"Sybase IQ"},
    {u"*.fbs *.firebird.sql *.interbase.sql *.isql",             u"InterBase/Firebird"},
    {u"*.azure.sql",                                             u"Azure SQL"},
    {u"*.sql *.ddl *.dml *.dql",                                 kGenericSql},
    {u"*.php *.phtml *.php3 *.php4 *.php5",                      u"PHP"},
    {u"*.html *.htm *.xhtml",                                    u"HTML"},
    {u"*.xml *.xsd *.xsl *.xslt *.svg *.ui *.qrc *.dtsx *.rdl",  u"XML"},
    {u"*.css",                                                   u"CSS"},
    {u"*.c *.cc *.cpp *.cxx *.h *.hh *.hpp *.hxx *.idl *.pc",    u"C++"},
    {u"*.vb *.bas *.cls *.frm",                                  u"Visual Basic"},
    {u"*.bat *.cmd *.nt",                                        u"Batch"},
    {u"*.properties *.ini *.inf *.cfg *.conf *.cnf *.reg",       u"Properties"},
    {u"makefile makefile.* gnumakefile *.mak *.mk",              u"Makefile"},
    {u"*.diff *.patch",                                          u"Diff"},
    {u"*.pl *.pm *.pod",                                         u"Perl"},
    {u"*.tex *.latex *.sty",                                     u"LaTeX"},
};
// clang-format on

int LanguageOfName(QStringView name, int otherwise)
{
    const CFileTypeManager& languages = *zncoreeditor::GetFileTypeManager();
    for (int language = 0; language < languages.GetLanguageCount(); ++language) {
        if (languages.GetLanguageName(language) == name)
            return language;
    }
    return otherwise;
}

// What the library takes for plain text when there are no names to look for.
constexpr int kPlainTextNumber = 1;

} // namespace

int LanguageOfFile(const QString& path)
{
    const QString name = QFileInfo(path).fileName();
    for (const NameRow& row : kNames) {
        if (QDir::match(QString::fromUtf16(row.patterns).split(u' ', Qt::SkipEmptyParts), name))
            return LanguageOfName(row.language, kPlainTextNumber);
    }
    return LanguageOfName(kPlainText, kPlainTextNumber);
}

int LanguageNamed(const QString& name, int otherwise)
{
    return name.isEmpty() ? otherwise : LanguageOfName(name, otherwise);
}

int LanguageOfNewScripts()
{
    return LanguageOfName(kGenericSql, kPlainTextNumber);
}
