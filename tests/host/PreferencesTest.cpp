// SPDX-License-Identifier: GPL-3.0-or-later
// The preferences and the schemes of the workbench.
#include "prefs/pages/Preferences.h"
#include "editing/ZNCoreEditorWidget.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "editing/language/UserFolder.h"
#include "host/preferences/Appearance.h"
#include "looks/Schemes.h"
#include "settings/ConfigFile.h"
#include "settings/SyntaxFile.h"
#include "tests/host/WorkbenchTest.h"

#include <QAbstractButton>
#include <QDir>
#include <QLineEdit>
#include <QTimer>
#include <QTreeWidget>

namespace {

constexpr int kSql = 2;

class WorkbenchPreferencesTest : public WorkbenchTest
{
protected:
    ~WorkbenchPreferencesTest() override
    {
        m_app.ChooseScheme(zncoreeditor::kDesktopScheme);
        QDir(UserSettingsPath(QString())).removeRecursively();
        zncoreeditor::GetConfigFile()->Clear();
        zncoreeditor::GetFileTypeManager()->Init(zncoreeditor::GetConfigFile());
    }

    static COLORREF Ground(const char* scheme)
    {
        return zncoreeditor::FindScheme(QLatin1String(scheme))->Of(Drawn::Ground);
    }

    // What happens in the dialog, once it stands; it is closed by the button then.
    void InDialog(const std::function<void(QWidget&)>& happens, UINT button)
    {
        QTimer::singleShot(0, &m_window, [happens, button] {
            QWidget* shown = QApplication::activeModalWidget();
            ASSERT_TRUE(shown);
            happens(*shown);
            qobject_cast<QAbstractButton*>(GetDlgItem(shown, button))->click();
        });
        Trigger("preferences");
    }
    static void ShowPage(QWidget& dialog, const char* language)
    {
        auto* tree = dialog.findChild<QTreeWidget*>();
        tree->setCurrentItem(tree->findItems(QLatin1String(language), Qt::MatchExactly)[0]);
        QApplication::processEvents();
    }
};

TEST_F(WorkbenchPreferencesTest, OpenWithoutAScriptToo)
{
    while (m_window.TabCount() > 0)
        Trigger("close");
    QString title;
    InDialog([&title](QWidget& dialog) { title = dialog.windowTitle(); }, 2);
    EXPECT_EQ(title, "Editor and Language Preferences");
}

TEST_F(WorkbenchPreferencesTest, AreInForceWhileTheDialogStands)
{
    Open("a.sql", "select 1;\n");
    InDialog(
        [this](QWidget& dialog) {
            ShowPage(dialog, "SQL");
            qobject_cast<QLineEdit*>(GetDlgItem(&dialog, 28076))->setText(QStringLiteral("7"));
            qobject_cast<QAbstractButton*>(GetDlgItem(&dialog, 28081))->click(); // word wrap
            QApplication::processEvents();
            qobject_cast<QAbstractButton*>(GetDlgItem(&dialog, 28122))->click();
            EXPECT_EQ(Editor().GetTabWidth(1), 7);
            EXPECT_EQ(Editor().GetWrapMode(1), 1);
        },
        2);
    EXPECT_EQ(Editor().GetTabWidth(1), 7) << "Cancel keeps what was applied";
    EXPECT_EQ(Editor().GetWrapMode(1), 1);
    EXPECT_TRUE(Action("wrap").isChecked());
    Open("b.sql", "select 2;\n");
    EXPECT_EQ(Editor().GetTabWidth(1), 7);
}

TEST_F(WorkbenchPreferencesTest, OfAnotherLanguageLeaveTheOptionsInForce)
{
    Open("a.sql", "select 1;\n");
    const int before = Editor().GetTabWidth(1);
    InDialog(
        [](QWidget& dialog) {
            ShowPage(dialog, "HTML");
            qobject_cast<QLineEdit*>(GetDlgItem(&dialog, 28076))->setText(QStringLiteral("9"));
        },
        1);
    EXPECT_EQ(Editor().GetTabWidth(1), before);
    m_window.SetLanguage(kSql);
    EXPECT_EQ(Editor().GetTabWidth(1), before);
}

TEST_F(WorkbenchPreferencesTest, SayWhichFilesCannotBeWritten)
{
    Open("a.sql", "select 1;\n");
    QDir(UserSettingsPath(QString())).removeRecursively();
    QFile inTheWay(UserSettingsPath(QString()).chopped(1));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    InDialog(
        [](QWidget& dialog) {
            ShowPage(dialog, "SQL");
            qobject_cast<QLineEdit*>(GetDlgItem(&dialog, 28076))->setText(QStringLiteral("9"));
            qobject_cast<QAbstractButton*>(GetDlgItem(&dialog, 1))->click();
            EXPECT_TRUE(dialog.isVisible());
        },
        2);
    ASSERT_EQ(m_prompts.told.size(), 1);
    EXPECT_TRUE(m_prompts.told[0].contains(QStringLiteral("Syntax/SQL.xml")));
    inTheWay.remove();
}

TEST_F(WorkbenchPreferencesTest, ChooseASchemeForAllThatIsOpen)
{
    Open("a.sql", "select 1;\n");
    CZNCoreEditorControlEx& first = Editor();
    Open("b.sql", "select 2;\n");
    const QPalette before = QApplication::palette();
    for (const char* scheme : {"Dark", "High Contrast", "Light", "Print"}) {
        Trigger(qPrintable(QStringLiteral("scheme") + QString(QLatin1String(scheme)).remove(u' ')));
        EXPECT_EQ(first.GetBackgroundColor(), Ground(scheme)) << scheme;
        EXPECT_EQ(Editor().GetBackgroundColor(), Ground(scheme)) << scheme;
        const QColor base = QApplication::palette().color(QPalette::Base);
        EXPECT_EQ(static_cast<COLORREF>(base.red() | base.green() << 8 | base.blue() << 16),
                  Ground(scheme));
        EXPECT_EQ(appearance::Current(), QLatin1String(scheme));
    }
    Trigger("expand");
    auto& expanded = m_window.findChild<ZNCoreEditorWidget*>("expandedText")->control();
    EXPECT_EQ(expanded.GetBackgroundColor(), Ground("Print"));
    Trigger("schemeHighContrast");
    QApplication::processEvents();
    EXPECT_EQ(expanded.GetBackgroundColor(), Ground("High Contrast"));
    Trigger("schemePrint");
    Open("c.sql", "select 3;\n");
    EXPECT_EQ(Editor().GetBackgroundColor(), Ground("Print"));
    Trigger("schemeDesktop");
    EXPECT_EQ(QApplication::palette().color(QPalette::Base), before.color(QPalette::Base));
    EXPECT_EQ(first.GetBackgroundColor(), Ground("Light"));
}

TEST_F(WorkbenchPreferencesTest, ShowTheSchemeInTheSamplesAndStillWriteWhatIsChosen)
{
    Trigger("schemeDark");
    Open("a.sql", "select 1;\n");
    EXPECT_EQ(zncoreeditor::GetPreferencesHost()->Scheme(), "Dark");
    CSyntaxFile& sql = *zncoreeditor::GetFileTypeManager()->GetSyntaxFile(kSql);
    const int delivered = sql.GetStyleColorForeground(5);
    InDialog([](QWidget& dialog) { ShowPage(dialog, "SQL"); }, 1);
    EXPECT_EQ(sql.GetStyleColorForeground(5), delivered);
}

TEST(SchemeOfTheWorkbench, IsRemembered)
{
    const QString settings = QDir::temp().filePath(QStringLiteral("zn-scheme.ini"));
    EXPECT_EQ(appearance::Load(settings), zncoreeditor::kDesktopScheme);
    EXPECT_TRUE(appearance::Store(settings, QStringLiteral("Dark")));
    EXPECT_EQ(appearance::Load(settings), "Dark");
}

TEST(SchemeOfTheWorkbench, IsTheDesktopsForANameThatIsUnknown)
{
    appearance::SetCurrent(QStringLiteral("Mauve"));
    EXPECT_EQ(appearance::Current(), zncoreeditor::kDesktopScheme);
}

} // namespace
