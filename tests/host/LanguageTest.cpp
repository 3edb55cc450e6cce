// SPDX-License-Identifier: GPL-3.0-or-later
// Languages and options in the workbench.
#include "editing/language/FileLanguages.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "host/options/OptionsDialog.h"
#include "host/window/LanguageMenu.h"
#include "platform/services/OptionsServer.h"
#include "tests/host/WorkbenchTest.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontComboBox>
#include <QSpinBox>
#include <QStatusBar>
#include <QTest>

#include <map>

namespace {

QString NameOf(int language)
{
    return zncoreeditor::GetFileTypeManager()->GetLanguageName(language);
}

class WorkbenchLanguages : public WorkbenchTest
{
protected:
    // What the letters lead to in the menu, from the entry that is marked.
    QString Sought(const char* letters)
    {
        auto* menu = m_window.findChild<LanguageMenu*>();
        menu->popup({});
        Settle();
        QTest::keyClicks(menu, QLatin1String(letters));
        const QString found = menu->activeAction() ? menu->activeAction()->text() : QString();
        menu->hide();
        return found;
    }
};

TEST_F(WorkbenchLanguages, AreReachedByTheFirstLettersOfTheirNames)
{
    m_window.show();
    Open("a.sql", "select 1\n");
    EXPECT_EQ(Sought(""), "SQL") << "the one that is marked";
    EXPECT_EQ(Sought("po"), "PostgreSQL");
    EXPECT_EQ(Sought("tr"), "Transact-SQL");
    EXPECT_EQ(Sought("m"), "Makefile");
    EXPECT_EQ(Sought("mm"), "MySQL") << "the next one of the letter";
    EXPECT_EQ(Sought("C+"), "C++");
}

TEST(FileLanguages, GoByTheNameOfTheFile)
{
    const std::pair<const char*, const char*> kFiles[] = {
        {"/a/b/script.sql", "SQL"},
        {"REPORT.SQL", "SQL"},
        {"x.tsql", "Transact-SQL"},
        {"x.mssql.sql", "Transact-SQL"},
        {"body.pkb", "PL/SQL"},
        {"a.mysql", "MySQL"},
        {"a.pgsql", "PostgreSQL"},
        {".psqlrc", "PostgreSQL"},
        {"a.sqlite.sql", "SQLite"},
        {"a.db2", "DB2"},
        {"a.ase", "Sybase ASE"},
        {"a.iq", "Sybase IQ"},
        {"a.firebird.sql", "InterBase/Firebird"},
        {"a.azure.sql", "Azure SQL"},
        {"index.html", "HTML"},
        {"a.xml", "XML"},
        {"a.css", "CSS"},
        {"a.cpp", "C++"},
        {"a.vb", "Visual Basic"},
        {"run.bat", "Batch"},
        {"a.properties", "Properties"},
        {"Makefile", "Makefile"},
        {"rules.mk", "Makefile"},
        {"a.patch", "Diff"},
        {"a.pl", "Perl"},
        {"a.php", "PHP"},
        {"a.tex", "LaTeX"},
        {"README", "Text"},
        {"a.txt", "Text"},
        {"", "Text"},
        {"sql", "Text"},
    };
    for (const auto& [file, language] : kFiles)
        EXPECT_EQ(NameOf(LanguageOfFile(QLatin1String(file))), QLatin1String(language)) << file;
}

TEST_F(WorkbenchLanguages, TakesTheLanguageFromTheFilesName)
{
    Open("a.mysql", "select 1 # one\n");
    EXPECT_EQ(NameOf(Script().Language()), QStringLiteral("MySQL"));
    EXPECT_EQ(Status("language"), QStringLiteral("MySQL"));
    Open("b.css", "a { color: red }\n");
    EXPECT_EQ(Status("language"), QStringLiteral("CSS"));
    Trigger("previous");
    EXPECT_EQ(Status("language"), QStringLiteral("MySQL"));
}

TEST_F(WorkbenchLanguages, SaysThatOtherFilesOfTheFolderDecided)
{
    languages::Remember(PathOf("chosen.sql"), "PostgreSQL");
    Open("plain.sql", "select 1;\n");
    QApplication::processEvents();
    EXPECT_EQ(Status("language"), "PostgreSQL");
    EXPECT_EQ(m_window.statusBar()->currentMessage(),
              "plain.sql: PostgreSQL, as other files of this folder");
    m_window.statusBar()->clearMessage();
    Open("clear.sql", "create or replace package p as\n  x varchar2(10);\nend p;\n/\n");
    QApplication::processEvents();
    EXPECT_EQ(Status("language"), "PL/SQL") << "what stands in the file comes first";
    EXPECT_EQ(m_window.statusBar()->currentMessage(), "");
}

TEST_F(WorkbenchLanguages, SaysOnceThatOtherFilesOfTheFolderDecided)
{
    languages::Remember(PathOf("chosen.sql"), "PostgreSQL");
    for (const char* told : {"plain.sql: PostgreSQL, as other files of this folder", ""}) {
        m_window.statusBar()->clearMessage();
        Open("plain.sql", "select 1;\n");
        QApplication::processEvents();
        EXPECT_EQ(Status("language"), "PostgreSQL");
        EXPECT_EQ(m_window.statusBar()->currentMessage(), told);
        Trigger("close");
    }
}

TEST_F(WorkbenchLanguages, PutsTabsIntoMakefiles)
{
    Open("Makefile", "all:\n");
    EXPECT_EQ(Status("language"), "Makefile");
    EXPECT_TRUE(Editor().GetUseTabs(1));
    Open("a.sql", "select 1;\n");
    EXPECT_FALSE(Editor().GetUseTabs(1));
}

TEST_F(WorkbenchLanguages, BeginsAScriptInSql)
{
    Trigger("new");
    EXPECT_EQ(Status("language"), QStringLiteral("SQL"));
}

TEST_F(WorkbenchLanguages, ChangesTheLanguageFromTheMenu)
{
    Open("a.txt", "begin 'it' end\n");
    auto& menu = *m_window.findChild<LanguageMenu*>();
    QAction* chosen = nullptr;
    for (QAction* action : menu.actions()) {
        if (!action->isCheckable())
            continue; // the default for scripts to come
        EXPECT_NE(action->data().toInt(), 0);
        EXPECT_NE(action->data().toInt(), 11);
        if (action->text() == QStringLiteral("Transact-SQL"))
            chosen = action;
    }
    ASSERT_NE(chosen, nullptr);
    chosen->trigger();
    EXPECT_EQ(Status("language"), QStringLiteral("Transact-SQL"));
    EXPECT_TRUE(chosen->isChecked());
    Editor().Colorize(0, -1, 1);
    EXPECT_EQ(Editor().GetStyleAt(7, 1), 4);
    EXPECT_EQ(Editor().GetModify(1), 0);
}

TEST_F(WorkbenchLanguages, KeepsTheChosenViewOverAChangeOfLanguage)
{
    Open("a.sql", "select 1\n");
    Trigger("whitespace");
    m_window.SetLanguage(LanguageOfFile(QStringLiteral("a.css")));
    EXPECT_EQ(Editor().GetViewWS(1), 1);
}

TEST_F(WorkbenchLanguages, LightsUpTheBraceThatMatches)
{
    m_window.show();
    Open("a.sql", "select (1)\n");
    const auto picture = [this](long caret) {
        Editor().GotoPos(caret, 1);
        Editor().GetSafeHwnd()->repaint();
        QApplication::processEvents();
        Editor().HideSelection(1, 1);
        // The closing brace alone, so that the caret is not in the picture.
        const int x = Editor().PointXFromPosition(9, 1);
        const int y = Editor().PointYFromPosition(9, 1);
        const int width = Editor().TextWidth(0, u")", 1);
        return Editor()
            .GetSafeHwnd()
            ->grab(QRect(x, y, width, Editor().TextHeight(0, 1)))
            .toImage();
    };
    const QImage plain = picture(2);
    EXPECT_NE(picture(7), plain);
    EXPECT_EQ(picture(2), plain);
    EXPECT_NE(picture(8), plain);
}

TEST_F(WorkbenchLanguages, FollowsTheOptionsInEveryScriptAtOnce)
{
    class Options final : public CZNOptionsServer
    {
    public:
        Options() { SetOptionsServer(this); }
        ~Options() override { SetOptionsServer(nullptr); }
        int GetInt(int key) override { return numbers.count(key) ? numbers[key] : 0; }
        std::map<int, int> numbers;
    } options;
    Open("a.sql", "select 1\n");
    Open("b.css", "a {}\n");
    options.numbers[option::TabWidth] = 7;
    m_window.FollowOptions();
    for (int i = 0; i < m_window.TabCount(); ++i)
        EXPECT_EQ(m_window.FrameAt(i)->Editor().GetTabWidth(1), 7) << i;
    EXPECT_EQ(NameOf(m_window.FrameAt(1)->Script()->Language()), QStringLiteral("CSS"));
}

TEST(OptionsDialogs, KeepWhatIsChosen)
{
    {
        OptionsDialog dialog(nullptr);
        dialog.findChild<QSpinBox*>(QStringLiteral("tabWidth"))->setValue(5);
        dialog.findChild<QSpinBox*>(QStringLiteral("points"))->setValue(14);
        dialog.findChild<QComboBox*>(QStringLiteral("autoIndent"))->setCurrentIndex(2);
        dialog.findChild<QCheckBox*>(QStringLiteral("lineNumbers"))->setChecked(false);
        dialog.Store();
    }
    CZNOptionsServer& options = *CZNOptionsServer::GetObjectW();
    EXPECT_EQ(options.GetInt(option::TabWidth), 5);
    EXPECT_EQ(options.GetInt(option::AutoIndent), 2);
    EXPECT_EQ(options.GetInt(option::LineNumbers), 0);
    OptionsDialog again(nullptr);
    EXPECT_EQ(again.findChild<QSpinBox*>(QStringLiteral("points"))->value(), 14);
    EXPECT_EQ(again.findChild<QComboBox*>(QStringLiteral("autoIndent"))->currentIndex(), 2);
    EXPECT_FALSE(again.findChild<QCheckBox*>(QStringLiteral("lineNumbers"))->isChecked());
    options.SetInt(option::TabWidth, 4);
    options.SetInt(option::AutoIndent, 1);
    options.SetInt(option::LineNumbers, 1);
    again.findChild<QSpinBox*>(QStringLiteral("points"))->setValue(11);
}

} // namespace
