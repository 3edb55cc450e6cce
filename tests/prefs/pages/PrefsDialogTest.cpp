// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog: its tree, changes of page, Ok, Cancel and Apply on real files.
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "platform/windows/Accelerators.h"
#include "prefs/controls/ColorStatic.h"
#include "prefs/pages/EditorPrefsStatic.h"
#include "prefs/pages/Preferences.h"
#include "tests/prefs/pages/PrefsFixture.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <gmock/gmock.h>

namespace {

namespace id = prefscontrol;

class PrefsDialog : public PrefsTest
{
protected:
    QTreeWidget& Tree() const { return *dialog->GetDlgItem<QTreeWidget>(id::Tree); }
    QStringList TopTitles() const
    {
        QStringList titles;
        for (int i = 0; i < Tree().topLevelItemCount(); ++i)
            titles << Tree().topLevelItem(i)->text(0);
        return titles;
    }
    QStringList TitlesBelow(const QString& language) const
    {
        QStringList titles;
        const QTreeWidgetItem* item = Tree().findItems(language, Qt::MatchExactly).value(0);
        for (int i = 0; item && i < item->childCount(); ++i)
            titles << item->child(i)->text(0);
        return titles;
    }
    QString Caption() const { return dialog->GetDlgItem<CEditorPrefsStatic>(id::Caption)->Title(); }
};

class OneLanguage
{
public:
    OneLanguage()
    {
        QFile file(folder.filePath(QStringLiteral("one.xml")));
        if (!file.open(QIODevice::WriteOnly))
            std::abort();
        file.write("<Z><Editor><CaretColor>1</CaretColor></Editor><Languages count=\"1\">"
                   "<Language number=\"0\"><Name>Only</Name><SyntaxFile>Default.xml</SyntaxFile>"
                   "</Language></Languages></Z>");
        file.close();
        config.SetFilename(file.fileName());
        languages.Init(&config);
    }

    QTemporaryDir folder;
    CConfigFile config;
    CFileTypeManager languages;
};

TEST(PrefsDialogOfOneLanguage, ShowsColorsAndFontsAlone)
{
    OneLanguage one;
    CEditorPrefsDialog dialog(QStringLiteral("One"), one.config, one.languages);
    dialog.Create(nullptr);
    ASSERT_EQ(dialog.Pages().size(), 1U);
    EXPECT_EQ(dialog.Pages()[0].title, "Colors and Fonts");
    EXPECT_EQ(dialog.Pages()[0].templateId, 28096U);
    EXPECT_EQ(dialog.GetSafeHwnd()->windowTitle(), "One");
}

TEST_F(PrefsDialog, FitsTheScreenWithLargeLetters)
{
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSize(14);
    QApplication::setFont(large);
    Open();
    const QWidget& window = *dialog->GetSafeHwnd();
    EXPECT_LT(window.height(), window.screen()->availableSize().height());
    EXPECT_LT(window.width(), window.screen()->availableSize().width());
    QApplication::setFont(usual);
}

TEST_F(PrefsDialog, KeepsItsButtonsInSightOnALowScreenWhicheverPageIsShown)
{
    Open();
    QWidget& window = *dialog->GetSafeHwnd();
    window.show();
    constexpr int kLow = 400; // pixels
    window.resize(window.width(), kLow);
    for (int page = 0; page < 8; ++page) {
        dialog->ShowPage(page);
        QApplication::processEvents();
        EXPECT_EQ(window.height(), kLow) << page;
        const QWidget& ok = *dialog->GetDlgItem(IDOK);
        EXPECT_TRUE(window.rect().contains(QRect(ok.mapTo(&window, QPoint()), ok.size()))) << page;
        const QWidget& shown = *dialog->Pages()[size_t(page)].page->GetSafeHwnd();
        EXPECT_FALSE(shown.visibleRegion().isEmpty());
        for (const auto* sample : shown.findChildren<CColorStatic*>())
            EXPECT_GE(sample->height(), sample->sizeHint().height());
    }
}

TEST_F(PrefsDialog, ListsTheLanguagesByTheirNumbers)
{
    Open();
    QStringList expected = {QStringLiteral("Colors and Fonts")};
    for (int language = 1; language < config().GetLanguageCount(); ++language) {
        if (language != 11)
            expected << config().GetLanguageName(language);
    }
    EXPECT_EQ(TopTitles(), expected);
    EXPECT_EQ(TitlesBelow(QStringLiteral("Transact-SQL")),
              QStringList({"Code", "Color", "Font", "Keywords"}));
    EXPECT_EQ(TitlesBelow(QStringLiteral("Text")), QStringList({"Color", "Font"}));
    EXPECT_FALSE(TopTitles().contains(QStringLiteral("Messages")));
    EXPECT_TRUE(Tree().topLevelItem(2)->isExpanded());
}

TEST_F(PrefsDialog, BeginsWithTheFirstPageAndNothingToApply)
{
    Open();
    EXPECT_EQ(dialog->CurrentPage(), 0);
    EXPECT_EQ(Caption(), "Colors and Fonts");
    EXPECT_FALSE(CanApply());
    EXPECT_EQ(dialog->GetDlgItem<QAbstractButton>(IDOK)->text(), "&Ok");
    EXPECT_EQ(dialog->GetDlgItem<QAbstractButton>(IDCANCEL)->text(), "&Cancel");
    EXPECT_EQ(dialog->GetDlgItem<QAbstractButton>(28122)->text(), "&Apply");
    EXPECT_EQ(dialog->GetDlgItem<QAbstractButton>(28055)->text(), "&Help");
    EXPECT_TRUE(dialog->GetDlgItem(28123));
}

TEST_F(PrefsDialog, ShowsThePageThatIsChosenInTheTree)
{
    Open();
    const int page = PageOf(QStringLiteral("PL/SQL"), QStringLiteral("Color"));
    Tree().setCurrentItem(
        Tree().findItems(QStringLiteral("PL/SQL"), Qt::MatchExactly)[0]->child(1));
    EXPECT_EQ(dialog->CurrentPage(), 0) << "the message is on its way";
    QApplication::processEvents();
    EXPECT_EQ(dialog->CurrentPage(), page);
    EXPECT_EQ(Caption(), "Color");
    EXPECT_TRUE(dialog->Pages()[static_cast<std::size_t>(page)].page->GetSafeHwnd()->isVisible());
    EXPECT_FALSE(dialog->Pages()[0].page->GetSafeHwnd()->isVisible());
}

TEST_F(PrefsDialog, ShowsAPageThatAMessageAsksFor)
{
    Open();
    SendMessage(dialog->GetSafeHwnd(), 0x8064, 3, 0);
    EXPECT_EQ(dialog->CurrentPage(), 3);
    SendMessage(dialog->GetSafeHwnd(), 0x8064, 30000, 0);
    EXPECT_EQ(dialog->CurrentPage(), 3);
}

TEST_F(PrefsDialog, MakesAPageWhenItIsFirstShown)
{
    Open();
    const auto made = [this] {
        return std::ranges::count_if(dialog->Pages(), [](const auto& record) {
            return record.page->GetSafeHwnd() != nullptr;
        });
    };
    EXPECT_EQ(made(), 1);
    Show("Transact-SQL");
    Show("Transact-SQL", "Font");
    EXPECT_EQ(made(), 3);
}

TEST_F(PrefsDialog, WritesNothingByOkWithoutAChange)
{
    Language(kTransactSql).SetStyleColorForeground(0, 0x123456);
    Language(kTransactSql).Save();
    config().SetRightEdgeColumn(90);
    config().Save();
    const FileStates before = StatesBelow(UserFolder());
    ASSERT_GE(before.size(), 2);
    Open();
    for (const char* title : {"", "Code", "Color", "Font", "Keywords"})
        Show("Transact-SQL", title);
    Click(*dialog, IDOK);
    EXPECT_EQ(StatesBelow(UserFolder()), before);
    EXPECT_FALSE(dialog->GetSafeHwnd()->isVisible());
}

TEST_F(PrefsDialog, KeepsByCancelWhatWasApplied)
{
    Open();
    Type(Show("Transact-SQL"), id::TabSize, "7");
    EXPECT_TRUE(CanApply());
    Click(*dialog, id::Apply);
    EXPECT_FALSE(CanApply());
    Type(Show("Transact-SQL"), id::TabSize, "9");
    Click(*dialog, IDCANCEL);
    ReadAgain();
    EXPECT_EQ(Language(kTransactSql).GetTabWidth(), 7);
}

TEST_F(PrefsDialog, WritesByOkAndCloses)
{
    Open();
    Type(Show("PL/SQL"), id::IndentSize, "6");
    Click(*dialog, IDOK);
    EXPECT_FALSE(dialog->GetSafeHwnd()->isVisible());
    ReadAgain();
    EXPECT_EQ(Language(kPlSql).GetIndentSize(), 6);
}

TEST_F(PrefsDialog, TakesAChangeWhoseNewsIsStillOnItsWay)
{
    Open();
    Show("PL/SQL").GetDlgItem<QLineEdit>(id::IndentSize)->setText(QStringLiteral("5"));
    dialog->Apply(false);
    ReadAgain();
    EXPECT_EQ(Language(kPlSql).GetIndentSize(), 5);
}

// The settings of this process are what is written, as a whole: the file is never a mixture of two
// programs' settings, and what was not touched here stays as the other program left it.
TEST_F(PrefsDialog, WritesOverWhatAnotherProgramWroteMeanwhileOnlyWhereSomethingChangedHere)
{
    for (const int language : {kTransactSql, kPlSql}) {
        Language(language).SetIndentSize(3);
        Language(language).Save();
    }
    Open();
    const auto writeFromOutside = [](const char* name) {
        QFile file(UserSettingsPath(QStringLiteral("Base/") + QLatin1String(name)));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        file.close();
        EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(QByteArray(bytes).replace("<IndentSize>3<", "<IndentSize>8<"));
    };
    writeFromOutside("TransactSQL.xml");
    writeFromOutside("PLSQL.xml");
    Type(Show("PL/SQL"), id::TabSize, "7");
    Click(*dialog, IDOK);
    ReadAgain();
    EXPECT_EQ(Language(kTransactSql).GetIndentSize(), 8);
    EXPECT_EQ(Language(kPlSql).GetIndentSize(), 3);
    EXPECT_EQ(Language(kPlSql).GetTabWidth(), 7);
}

TEST_F(PrefsDialog, NamesForAScreenReaderWhatTakesKeys)
{
    Open();
    int named = 0;
    for (const char* title : {"", "Code", "Color", "Font", "Keywords"}) {
        Show("SQL", title);
        for (const QWidget* widget : dialog->GetSafeHwnd()->findChildren<QWidget*>()) {
            const bool isPart = qobject_cast<QComboBox*>(widget->parentWidget());
            const bool takesKeys = qobject_cast<const QAbstractButton*>(widget) ||
                                   qobject_cast<const QLineEdit*>(widget) ||
                                   qobject_cast<const QComboBox*>(widget) ||
                                   qobject_cast<const QAbstractItemView*>(widget);
            if (isPart || !takesKeys || !widget->isVisible() ||
                widget->focusPolicy() == Qt::NoFocus)
                continue;
            const auto* spoken =
                QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
            ASSERT_TRUE(spoken);
            EXPECT_NE(spoken->text(QAccessible::Name), "")
                << title << ": " << widget->metaObject()->className();
            ++named;
        }
    }
    EXPECT_GT(named, 40);
}

TEST_F(PrefsDialog, SavesTheLanguagesThatChangedAndNoOthers)
{
    Open();
    Show("Transact-SQL", "Color");
    ChooseColor(Show("PL/SQL", "Color"), id::Foreground, 0x0000FF);
    Click(*dialog, id::Apply);
    QStringList written;
    for (const QString& path : StatesBelow(UserFolder()).keys())
        written << QDir(UserFolder()).relativeFilePath(path);
    EXPECT_EQ(written, QStringList{"Syntax/PLSQL.xml"});
}

TEST_F(PrefsDialog, WritesAColourAsItsSixDigits)
{
    Open();
    ChooseColor(Show("PL/SQL", "Color"), id::Foreground, 0x2068FF);
    Click(*dialog, id::Apply);
    QFile file(CustomPath("PLSQL.xml"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("<Foreground>FF6820</Foreground>"));
}

TEST_F(PrefsDialog, GoesByTabFromTheTreeOverThePageToTheButtons)
{
    Open();
    QWidget* const expected[] = {Show("Transact-SQL").GetDlgItem(id::LineNumbers),
                                 Show("Transact-SQL").GetDlgItem(id::IndentOff),
                                 dialog->GetDlgItem(IDOK)};
    std::vector<QWidget*> passed;
    for (QWidget* at = Tree().nextInFocusChain(); at != &Tree(); at = at->nextInFocusChain()) {
        if (std::ranges::find(expected, at) != std::end(expected))
            passed.push_back(at);
    }
    EXPECT_THAT(passed, testing::ElementsAreArray(expected));
}

TEST_F(PrefsDialog, EatsEscape)
{
    Open();
    CEditorPrefsSubDlg& page = Show("Transact-SQL");
    for (QWidget* widget :
         {dialog->GetSafeHwnd(), page.GetDlgItem(id::TabSize), static_cast<QWidget*>(&Tree())}) {
        widget->setFocus();
        QTest::keyClick(widget, Qt::Key_Escape);
    }
    EXPECT_TRUE(dialog->GetSafeHwnd()->isVisible());
}

TEST_F(PrefsDialog, TakesEnterAsOkButInTheWords)
{
    Open();
    CEditorPrefsSubDlg& words = Show("Transact-SQL", "Keywords");
    auto* edit = words.GetDlgItem<QPlainTextEdit>(id::Keywords);
    const qsizetype length = edit->toPlainText().size();
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_TRUE(dialog->GetSafeHwnd()->isVisible());
    EXPECT_EQ(edit->toPlainText().size(), length + 1);
    auto* size = Show("Transact-SQL").GetDlgItem<QLineEdit>(id::TabSize);
    size->setFocus();
    QTest::keyClick(size, Qt::Key_Return);
    EXPECT_FALSE(dialog->GetSafeHwnd()->isVisible());
}

TEST_F(PrefsDialog, FiltersItsTreeByAWordTypedOverIt)
{
    Open();
    Tree().setFocus();
    QTest::keyClicks(&Tree(), QStringLiteral("p"));
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("l/"));
    const auto isShown = [this](const char* title) {
        return !Tree().findItems(QLatin1String(title), Qt::MatchExactly)[0]->isHidden();
    };
    EXPECT_TRUE(isShown("PL/SQL"));
    EXPECT_FALSE(isShown("Transact-SQL"));
    EXPECT_FALSE(isShown("Colors and Fonts"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), &Tree());
    EXPECT_EQ(Tree().currentItem()->text(0), "PL/SQL");
    auto* filter = dialog->GetSafeHwnd()->findChild<QLineEdit*>(QStringLiteral("filter"));
    filter->setFocus();
    QTest::keyClick(filter, Qt::Key_Escape);
    EXPECT_TRUE(isShown("Transact-SQL"));
    EXPECT_TRUE(dialog->GetSafeHwnd()->isVisible());
}

TEST_F(PrefsDialog, TakesBackWhatWasSoughtFromTheTreeToo)
{
    Open();
    auto* filter = dialog->GetSafeHwnd()->findChild<QLineEdit*>(QStringLiteral("filter"));
    filter->setText(QStringLiteral("pl/"));
    Tree().setFocus();
    QTest::keyClick(&Tree(), Qt::Key_Escape);
    EXPECT_EQ(filter->text(), "");
    EXPECT_FALSE(Tree().findItems(QStringLiteral("Transact-SQL"), Qt::MatchExactly)[0]->isHidden());
    EXPECT_EQ(QApplication::focusWidget(), &Tree());
    EXPECT_TRUE(dialog->GetSafeHwnd()->isVisible());
}

TEST_F(PrefsDialog, SaysThatNoPageIsOfTheWord)
{
    Open();
    dialog->GetSafeHwnd()->show();
    auto* filter = dialog->GetSafeHwnd()->findChild<QLineEdit*>(QStringLiteral("filter"));
    const auto* none = dialog->GetSafeHwnd()->findChild<QLabel*>(QStringLiteral("noPage"));
    ASSERT_NE(none, nullptr);
    EXPECT_FALSE(none->isVisible());
    filter->setText(QStringLiteral("nothing has this"));
    EXPECT_TRUE(none->isVisible());
    EXPECT_EQ(filter->accessibleDescription(), none->text()) << "where the keyboard is";
    filter->setText(QStringLiteral("keyw"));
    EXPECT_FALSE(none->isVisible());
    EXPECT_EQ(filter->accessibleDescription(), "");
}

TEST_F(PrefsDialog, FiltersByPagesToo)
{
    Open();
    dialog->GetSafeHwnd()
        ->findChild<QLineEdit*>(QStringLiteral("filter"))
        ->setText(QStringLiteral("keyw"));
    const QTreeWidgetItem* sql = Tree().findItems(QStringLiteral("PL/SQL"), Qt::MatchExactly)[0];
    EXPECT_FALSE(sql->isHidden());
    EXPECT_TRUE(sql->child(1)->isHidden());
    EXPECT_FALSE(sql->child(3)->isHidden());
}

TEST_F(PrefsDialog, GivesWhatIsAppliedToOpenEditorsAtOnce)
{
    ZNCoreEditorWidget editor;
    editor.setScheme(QString());
    editor.setLanguage(kTransactSql);
    ZNCoreEditorWidget other;
    other.setScheme(QString());
    other.setLanguage(kPlSql);
    Open();
    Type(Show("Transact-SQL"), id::TabSize, "7");
    Click(*dialog, id::Apply);
    EXPECT_EQ(editor.control().GetTabWidth(1), 7);
    EXPECT_NE(other.control().GetTabWidth(1), 7);
}

TEST_F(PrefsDialog, GivesTheColoursOfAllLanguagesToEveryEditor)
{
    ZNCoreEditorWidget editor;
    editor.setLanguage(kTransactSql);
    Open();
    Click(*dialog->Pages()[0].page, id::RightEdge);
    Type(*dialog->Pages()[0].page, id::EdgeColumn, "77");
    Click(*dialog, id::Apply);
    EXPECT_EQ(editor.control().GetEdgeMode(1), 1);
    EXPECT_EQ(editor.control().GetEdgeColumn(1), 77);
}

class NotingHost final : public IPreferencesHost
{
public:
    NotingHost() { zncoreeditor::SetPreferencesHost(this); }
    ~NotingHost() override { zncoreeditor::SetPreferencesHost(nullptr); }

    void OnApplied() override { ++applied; }
    bool OnNotWritten(HWND, const QStringList& files) override
    {
        notWritten = files;
        return true;
    }
    bool HasHelp() override { return true; }
    void OnHelp(HWND) override { ++helped; }

    int applied = 0;
    int helped = 0;
    QStringList notWritten;
};

TEST_F(PrefsDialog, TellsItsHostWhatCannotBeWrittenAndStays)
{
    NotingHost host;
    Open();
    QDir(UserFolder()).removeRecursively();
    QFile inTheWay(UserFolder().chopped(1));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    inTheWay.close();
    ChooseColor(Show("PL/SQL", "Color"), id::Foreground, 0x0000FF);
    Click(*dialog, IDOK);
    EXPECT_EQ(host.notWritten, QStringList{CustomPath("PLSQL.xml")});
    EXPECT_TRUE(dialog->GetSafeHwnd()->isVisible());
    inTheWay.remove();
    QDir().mkpath(UserSettingsPath(QStringLiteral("Syntax")));
    Click(*dialog, IDOK);
    EXPECT_FALSE(dialog->GetSafeHwnd()->isVisible());
    ReadAgain();
    EXPECT_EQ(Language(kPlSql).GetStyleColorForeground(0), 0x0000FF);
    EXPECT_EQ(host.applied, 2);
}

TEST_F(PrefsDialog, IsSilentAboutAFailureWithoutAHost)
{
    Open();
    QDir(UserFolder()).removeRecursively();
    QFile inTheWay(UserFolder().chopped(1));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    ChooseColor(Show("PL/SQL", "Color"), id::Foreground, 0x0000FF);
    Click(*dialog, IDOK);
    EXPECT_FALSE(dialog->GetSafeHwnd()->isVisible());
    EXPECT_TRUE(person.read.isEmpty());
    inTheWay.remove();
}

TEST_F(PrefsDialog, OpensTheHelpOfItsHost)
{
    Open();
    EXPECT_FALSE(dialog->GetDlgItem(id::Help)->isEnabled());
    NotingHost host;
    Open();
    Click(*dialog, id::Help);
    EXPECT_EQ(host.helped, 1);
}

TEST_F(PrefsDialog, OpensByTheCommandOfAnEditor)
{
    ZNCoreEditorWidget editor;
    QString title;
    QTimer::singleShot(0, &editor, [&title] {
        QWidget* shown = QApplication::activeModalWidget();
        title = shown ? shown->windowTitle() : QString();
        qobject_cast<QAbstractButton*>(GetDlgItem(shown, IDCANCEL))->click();
    });
    editor.control().OnCmdMsg(54033, nullptr);
    EXPECT_EQ(title, "Editor and Language Preferences");
}

TEST_F(PrefsDialog, ReadsTheLanguagesAnewOnceItHasClosed)
{
    Language(kPlSql).SetTabWidth(11); // in memory alone
    QTimer::singleShot(0, qApp, [] {
        QWidget* shown = QApplication::activeModalWidget();
        qobject_cast<QAbstractButton*>(GetDlgItem(shown, IDCANCEL))->click();
    });
    zncoreeditor::OnConfigurePreferences();
    EXPECT_NE(Language(kPlSql).GetTabWidth(), 11);
}

TEST_F(PrefsDialog, SurvivesALanguageWithoutAFile)
{
    config().AddLanguage(QStringLiteral("Nowhere"), QStringLiteral("Nowhere.xml"), {}, {});
    languages().Init(&config());
    Open();
    for (const char* title : {"", "Code", "Color", "Font", "Keywords"})
        Show("Nowhere", title);
    Type(Show("Nowhere"), id::TabSize, "5");
    Click(*dialog, IDOK);
    EXPECT_FALSE(QFile::exists(CustomPath("Nowhere.xml")));
}

} // namespace
