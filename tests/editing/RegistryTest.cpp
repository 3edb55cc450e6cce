// SPDX-License-Identifier: GPL-3.0-or-later
// The registry of languages over the settings files.
#include "common/Globals.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "platform/system/Exceptions.h"
#include "platform/system/SpecialFolders.h"
#include "tests/editing/Languages.h"

namespace {

class Registry : public testing::Test
{
protected:
    Registry()
    {
        m_files.Write(
            QStringLiteral("config.xml"),
            QStringLiteral("<a><Languages count=\"3\">"
                           "<Language number=\"0\"><Name>One</Name><SyntaxFile>SQL.xml</SyntaxFile>"
                           "</Language><Language number=\"1\"><Name>Two</Name>"
                           "<SyntaxFile>CSS.xml</SyntaxFile></Language><Language number=\"2\">"
                           "<Name>Three</Name><SyntaxFile>nowhere.xml</SyntaxFile></Language>"
                           "</Languages></a>"));
        m_config.SetFilename(m_files.Path(QStringLiteral("config.xml")));
        m_languages.Init(&m_config);
    }

    LanguageFiles m_files;
    CConfigFile m_config;
    CFileTypeManager m_languages;
};

TEST_F(Registry, NamesItsLanguagesByNumber)
{
    EXPECT_EQ(m_languages.GetLanguageCount(), 3);
    EXPECT_EQ(m_languages.GetLanguageName(0), QStringLiteral("One"));
    EXPECT_EQ(m_languages.GetLanguageName(2), QStringLiteral("Three"));
}

TEST_F(Registry, RaisesForTheNameOfALanguageThatIsNotThere)
{
    EXPECT_THROW(m_languages.GetLanguageName(99), CInvalidArgException);
    EXPECT_THROW(m_languages.GetLanguageName(3), CInvalidArgException);
    EXPECT_THROW(m_languages.GetLanguageName(-1), CInvalidArgException);
}

TEST_F(Registry, AnswersNothingOfALanguageThatIsNotThere)
{
    EXPECT_EQ(m_languages.GetSyntaxFile(99), nullptr);
    EXPECT_EQ(m_languages.GetBraceMatching(99), 0);
    EXPECT_EQ(m_languages.GetSyntaxHighlighting(99), 0);
    EXPECT_EQ(m_languages.GetDelimitedKeywords(99, ' '), QString());
}

TEST_F(Registry, AnswersNothingOfALanguageWithoutItsFile)
{
    ASSERT_NE(m_languages.GetSyntaxFile(2), nullptr);
    EXPECT_EQ(m_languages.GetBraceMatching(2), 0);
    EXPECT_EQ(m_languages.GetSyntaxHighlighting(2), 0);
    EXPECT_EQ(m_languages.GetDelimitedKeywords(2, ' '), QString());
}

TEST_F(Registry, AnswersFromTheFileOfALanguage)
{
    EXPECT_EQ(m_languages.GetBraceMatching(0), 1);
    EXPECT_EQ(m_languages.GetSyntaxHighlighting(0), 1);
    const QString words = m_languages.GetDelimitedKeywords(0, ',');
    EXPECT_TRUE(words.contains(QStringLiteral(",select,")));
    EXPECT_TRUE(std::is_sorted(words.begin(), words.begin() + words.indexOf(u',')) ||
                !words.isEmpty());
}

TEST_F(Registry, LooksBesideTheLibraryAndInTheUsersFolder)
{
    const CSyntaxFile& file = *m_languages.GetSyntaxFile(1);
    EXPECT_EQ(file.GetFilename(), zncoreeditor::GetAppPath() + "Syntax/CSS.xml");
    const QString data = znutils::CSpecialFolders::GetLocalAppDataPath(false);
    EXPECT_EQ(file.GetCustomFilename(), data + "/Marrowfield/Syntax/CSS.xml");
    EXPECT_TRUE(QDir(data + "/Marrowfield/Syntax").exists());
}

TEST_F(Registry, KeepsNoColoursOfAUserWithoutAFolder)
{
    struct Nowhere final : ISpecialFolders
    {
        QString LocalAppData() const override { return QString(); }
    } nowhere;
    SetSpecialFolders(&nowhere);
    m_config.SetLanguageSyntaxFileName(1, QStringLiteral("SQL.xml"));
    m_languages.Init(&m_config);
    SetSpecialFolders(nullptr);
    CSyntaxFile& file = *m_languages.GetSyntaxFile(1);
    EXPECT_EQ(file.GetCustomFilename(), QString());
    EXPECT_TRUE(file.Parse());
    EXPECT_GT(file.GetStyleMax(), 0);
}

TEST_F(Registry, ReadsALanguageAgainAfterInit)
{
    CSyntaxFile* file = m_languages.GetSyntaxFile(0);
    const int width = file->GetTabWidth();
    ASSERT_TRUE(file->SetTabWidth(width + 1));
    m_languages.Init(&m_config);
    EXPECT_EQ(m_languages.GetSyntaxFile(0), file);
    EXPECT_FALSE(file->GetModified());
    EXPECT_EQ(file->GetTabWidth(), width);
}

TEST_F(Registry, TakesAnotherFileOfALanguageAtInit)
{
    m_config.SetLanguageSyntaxFileName(0, QStringLiteral("CSS.xml"));
    m_languages.GetSyntaxFile(0)->SetTabWidth(33);
    m_languages.Init(&m_config);
    EXPECT_EQ(m_languages.GetSyntaxFile(0)->GetLexerNumber(), -1); // not read yet
    EXPECT_TRUE(m_languages.GetSyntaxFile(0)->Parse());
    EXPECT_EQ(m_languages.GetSyntaxFile(0)->GetLexerNumber(), 27);
}

TEST_F(Registry, LeavesALanguageAloneWhoseBaseFileWasMoved)
{
    CSyntaxFile* file = m_languages.GetSyntaxFile(0);
    ASSERT_TRUE(file->SetTabWidth(33));
    file->SetFilename(m_files.Path(QStringLiteral("elsewhere.xml")));
    m_languages.Init(&m_config);
    EXPECT_EQ(file->GetTabWidth(), 33);
    EXPECT_EQ(file->GetFilename(), m_files.Path(QStringLiteral("elsewhere.xml")));
}

TEST_F(Registry, KeepsALanguageThatLeftTheListUnderItsNumber)
{
    m_config.RemoveLanguage(2);
    m_languages.Init(&m_config);
    EXPECT_EQ(m_languages.GetLanguageCount(), 2);
    EXPECT_NE(m_languages.GetSyntaxFile(2), nullptr);
    EXPECT_THROW(m_languages.GetLanguageName(2), CInvalidArgException);
}

TEST_F(Registry, ForgetsWhatWasReadWhenAskedTo)
{
    CSyntaxFile* file = m_languages.GetSyntaxFile(0);
    const int width = file->GetTabWidth();
    file->SetTabWidth(width + 1);
    m_languages.ReParseAllSyntaxFiles();
    EXPECT_EQ(file->GetTabWidth(), width);
}

TEST_F(Registry, BeginsWithLanguageZero)
{
    EXPECT_EQ(m_languages.GetCurrentLanguageNumber(), 0);
    m_languages.SetCurrentLanguageNumber(7);
    EXPECT_EQ(m_languages.GetCurrentLanguageNumber(), 7);
    m_languages.SetCoreEditorDefaultProperties(1, nullptr);
    EXPECT_EQ(m_languages.GetCurrentLanguageNumber(), 7);
}

TEST_F(Registry, KnowsNoLanguageWithoutAConfiguration)
{
    CConfigFile missing;
    missing.SetFilename(m_files.Path(QStringLiteral("missing.xml")));
    CFileTypeManager languages;
    languages.Init(&missing);
    EXPECT_EQ(languages.GetLanguageCount(), 0);
    EXPECT_EQ(languages.GetSyntaxFile(0), nullptr);
}

// The languages that ship with the library, by the numbers that hosts rely on.
TEST(ShippedLanguages, HaveTheirNumbers)
{
    const CFileTypeManager& languages = *zncoreeditor::GetFileTypeManager();
    const QStringList names = {
        "Default",
        "Text",
        "SQL",
        "Transact-SQL",
        "PL/SQL",
        "MySQL",
        "PostgreSQL",
        "SQLite",
        "DB2",
        "Sybase ASE",
        "Sybase IQ",
        "Messages",
        "InterBase/Firebird",
        "Azure SQL",
        "HTML",
        "XML",
        "CSS",
        "C++",
        "Visual Basic",
        "Batch",
        "Properties",
        "Makefile",
        "Diff",
        "Perl",
        "PHP",
        "LaTeX",
    };
    ASSERT_EQ(languages.GetLanguageCount(), names.size());
    for (int i = 0; i < names.size(); ++i)
        EXPECT_EQ(languages.GetLanguageName(i), names[i]);
}

TEST(ShippedLanguages, AllParse)
{
    const CFileTypeManager& languages = *zncoreeditor::GetFileTypeManager();
    for (int i = 0; i < languages.GetLanguageCount(); ++i) {
        EXPECT_TRUE(languages.GetSyntaxFile(i)->Parse()) << i;
        EXPECT_GE(languages.GetSyntaxFile(i)->GetLexerNumber(), 0) << i;
    }
}

TEST(TextsOfTheLibrary, AreAllThere)
{
    const IZNBaseResourceLoader& texts = zncoreeditor::GetResourceLoader();
    for (const UINT id : {28167u, 28168u, 28169u, 28170u, 28171u, 28172u, 28173u, 28174u, 28175u,
                          28176u, 28177u, 28178u, 53892u, 53893u, 53950u, 53990u, 53991u, 54003u,
                          54006u, 54008u, 54010u, 54070u, 57344u, 57346u, 57612u, 59140u, 59141u})
        EXPECT_FALSE(texts.LoadString(id).isEmpty()) << id;
    EXPECT_EQ(texts.LoadString(53950),
              QStringLiteral("Bring up the auto complete editor\nAuto Complete Editor"));
    EXPECT_EQ(texts.FormatString(28169, {QStringLiteral("a.sql"), texts.LoadString(28170)}),
              QStringLiteral("Unable to open the included file 'a.sql': "
                             "No such file or directory"));
}

TEST(TextsOfTheLibrary, AreTranslatedByAnotherTable)
{
    LanguageFiles files;
    QFile file(files.Path(QStringLiteral("de.xml")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<strings><string id=\"28173\">Datei zu gro\xC3\x9F</string></strings>");
    file.close();
    const CZNBaseResourceLoader german(files.Path(QStringLiteral("de.xml")));
    zncoreeditor::SetResourceLoader(&german);
    EXPECT_EQ(zncoreeditor::GetResourceLoader().LoadString(28173),
              QStringLiteral("Datei zu gro\u00df"));
    zncoreeditor::SetResourceLoader(nullptr);
    EXPECT_EQ(zncoreeditor::GetResourceLoader().LoadString(28173),
              QStringLiteral("File too large"));
}

TEST(LibraryStart, FoundItsConfiguration)
{
    EXPECT_TRUE(zncoreeditor::GetStartup().configured);
    EXPECT_EQ(zncoreeditor::GetStartup().configFile,
              zncoreeditor::GetAppPath() + "ZNCoreEditor.xml");
    EXPECT_EQ(zncoreeditor::GetConfigFile()->GetFilename(),
              zncoreeditor::GetAppPath() + "ZNCoreEditor.xml");
}

} // namespace
