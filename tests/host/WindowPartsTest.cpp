// SPDX-License-Identifier: GPL-3.0-or-later
// Parts of the main window beside the script: tool bar, help, outline, folder, fields of the status
// bar, tabs that were closed.
#include "host/finding/ResultsPane.h"
#include "host/help/KeysDialog.h"
#include "host/icons/FitScreen.h"
#include "host/icons/Style.h"
#include "host/options/OptionsDialog.h"
#include "host/outline/OutlinePane.h"
#include "host/outline/SymbolPicker.h"
#include "host/preferences/Appearance.h"
#include "host/problems/ProblemPane.h"
#include "host/script/ScriptTabs.h"
#include "host/window/FieldMenus.h"
#include "host/window/PathField.h"
#include "looks/Schemes.h"
#include "platform/services/OptionsServer.h"
#include "tests/host/WorkbenchTest.h"
#include "tests/looks/Contrast.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QDir>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QStatusBar>
#include <QStyleFactory>
#include <QTabBar>
#include <QTest>
#include <QToolBar>
#include <QTreeView>
#include <QTreeWidget>

#include <algorithm>
#include <cmath>

namespace {

class WindowParts : public WorkbenchTest
{
protected:
    template <typename Condition>
    static bool Wait(Condition condition)
    {
        constexpr int kMost = 5000; // milliseconds
        return QTest::qWaitFor(condition, kMost);
    }

    QTreeView& OutlineList() { return *m_window.findChild<QTreeView*>("outlineList"); }

    // Names, those inside of others behind two blanks.
    QStringList Outlined()
    {
        const QAbstractItemModel& model = *OutlineList().model();
        QStringList names;
        for (int i = 0; i < model.rowCount(); ++i) {
            const QModelIndex outer = model.index(i, 0);
            names << outer.data().toString();
            for (int j = 0; j < model.rowCount(outer); ++j)
                names << "  " + model.index(j, 0, outer).data().toString();
        }
        return names;
    }
};

TEST(FitScreens, BringAWindowOntoItsScreenWithItsFrame)
{
    for (const QRect place :
         {QRect(-300, -200, 5000, 5000), QRect(5000, 5000, 300, 200), QRect(-50, 10, 300, 200)}) {
        QWidget window;
        window.setGeometry(place);
        FitScreen(window);
        EXPECT_TRUE(window.screen()->availableGeometry().contains(window.geometry()));
        EXPECT_EQ(window.size(), place.size().boundedTo(window.size()));
    }
    QWidget inside;
    inside.setGeometry(100, 100, 300, 200);
    FitScreen(inside);
    EXPECT_EQ(inside.geometry(), QRect(100, 100, 300, 200));
}

TEST_F(WindowParts, GiveTheKeyboardToNothingBetweenTheScriptAndTheFindBar)
{
    Open("a.sql", "one two");
    Editor().SetFocus();
    const QWidget* text = QApplication::focusWidget();
    QStringList others;
    const auto watch =
        QObject::connect(qApp, &QApplication::focusChanged, [&](QWidget*, QWidget* now) {
            if (now && now != text && !qobject_cast<QComboBox*>(now))
                others << now->metaObject()->className();
        });
    for (const char* name : {"find", "replace", "find"}) {
        Trigger(name);
        ASSERT_NE(QApplication::focusWidget(), text);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        EXPECT_EQ(QApplication::focusWidget(), text);
    }
    QObject::disconnect(watch);
    EXPECT_TRUE(others.isEmpty()) << others.join(' ').toStdString();
}

TEST_F(WindowParts, HaveTabsOfPanesOnlyWhereTheyAreSeen)
{
    const auto bars = m_window.findChildren<QTabBar*>(QString(), Qt::FindDirectChildrenOnly);
    ASSERT_EQ(bars.size(), 1);
    QTabBar& bar = *bars.front();
    const auto expect = [&](bool isSeen, const char* when) {
        QApplication::processEvents();
        EXPECT_EQ(m_window.rect().intersects(bar.geometry()), isSeen) << when;
        EXPECT_EQ(bar.focusPolicy() != Qt::NoFocus, isSeen) << when;
        const QAccessibleInterface* window = QAccessible::queryAccessibleInterface(&m_window);
        const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&bar);
        EXPECT_EQ(window->indexOfChild(spoken) >= 0, isSeen) << when;
    };
    expect(false, "at first");
    auto* problems = m_window.findChild<ProblemPane*>();
    auto* results = m_window.findChild<ResultsPane*>();
    problems->show();
    expect(false, "with one pane");
    results->show();
    expect(true, "with two");
    EXPECT_FALSE(bar.accessibleName().isEmpty());
    problems->hide();
    expect(false, "with one again");
    problems->show();
    expect(true, "with two again");
}

TEST_F(WindowParts, HaveAPictureForEveryTool)
{
    const QToolBar* bar = m_window.findChild<QToolBar*>("toolBar");
    ASSERT_NE(bar, nullptr);
    int tools = 0;
    for (const QAction* action : bar->actions()) {
        if (action->isSeparator())
            continue;
        ++tools;
        const QImage picture = action->icon().pixmap(20).toImage();
        EXPECT_FALSE(picture.isNull()) << action->objectName().toStdString();
        bool isBlank = true;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                isBlank = isBlank && qAlpha(picture.pixel(x, y)) == 0;
        }
        EXPECT_FALSE(isBlank) << action->objectName().toStdString();
    }
    EXPECT_GT(tools, 12);
}

TEST_F(WindowParts, StayReadableWhenTheColoursChangeUnderThem)
{
    constexpr double kForDrawings = 3;
    Style::Install();
    Open("a.sql", "a");
    Trigger("find");
    for (const char* scheme : {"Dark", "Light"}) {
        appearance::SetCurrent(QLatin1String(scheme));
        QApplication::processEvents();
        const QImage picture = m_window.grab().toImage();
        int seen = 0;
        for (auto* button : m_window.findChildren<QAbstractButton*>()) {
            if (!button->isVisible() || !button->isEnabled() || button->visibleRegion().isEmpty())
                continue;
            ++seen;
            const QImage drawn =
                picture.copy(QRect(button->mapTo(&m_window, QPoint()), button->size()));
            EXPECT_GE(BestContrast(drawn, drawn.pixel(1, 1)), kForDrawings)
                << scheme << " " << button->objectName().toStdString() << " "
                << button->accessibleName().toStdString() << " "
                << button->metaObject()->className();
        }
        EXPECT_GT(seen, 20);
    }
    appearance::SetCurrent(zncoreeditor::kDesktopScheme);
    QApplication::setStyle(QStyleFactory::create("fusion"));
}

TEST_F(WindowParts, SayWhyAnEntryThatIsWalkedOntoCannotBeTaken)
{
    Style::Install();
    Open("a.sql", "a");
    auto* menu = m_window.menuBar()->actions().at(1)->menu();
    menu->popup(QPoint());
    QTest::keyClick(menu, Qt::Key_Down);
    ASSERT_EQ(menu->activeAction(), &Action("undo"));
    EXPECT_FALSE(Action("undo").isEnabled());
    EXPECT_EQ(m_window.statusBar()->currentMessage(), "There is nothing to undo.");
    menu->close();
    QApplication::setStyle(QStyleFactory::create("fusion"));
}

TEST_F(WindowParts, FitTheScreen)
{
    m_window.setGeometry(-50, 500, 3000, 2000);
    m_window.ResumeSession();
    EXPECT_TRUE(m_window.screen()->availableGeometry().contains(m_window.geometry()));
    const QRect place(20, 40, 700, 600);
    m_window.setGeometry(place);
    m_window.ResumeSession();
    EXPECT_EQ(m_window.geometry(), place);
}

TEST_F(WindowParts, BringAClosedTabBack)
{
    EXPECT_FALSE(Action("reopenClosed").isEnabled());
    Open("a.sql", "a");
    Open("b.sql", "b");
    Trigger("close");
    EXPECT_TRUE(Action("reopenClosed").isEnabled());
    EXPECT_EQ(Script().Name(), "a.sql");
    Trigger("reopenClosed");
    EXPECT_EQ(Script().Name(), "b.sql");
    EXPECT_FALSE(Action("reopenClosed").isEnabled());
    Trigger("reopenClosed");
    EXPECT_EQ(m_window.TabCount(), 2);
}

TEST_F(WindowParts, ListKeysByWords)
{
    Trigger("keys");
    auto* dialog = m_window.findChild<KeysDialog*>();
    ASSERT_NE(dialog, nullptr);
    const auto* list = dialog->findChild<QTreeWidget*>();
    dialog->findChild<QLineEdit*>()->setText("line go");
    QStringList shown;
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        if (!list->topLevelItem(i)->isHidden())
            shown << list->topLevelItem(i)->text(0) + ' ' + list->topLevelItem(i)->text(1);
    }
    EXPECT_EQ(shown, QStringList{QStringLiteral("Search \u203A Go to Line Ctrl+G")});
}

TEST_F(WindowParts, TellWhatTheWorkbenchIs)
{
    Trigger("about");
    const auto* box = m_window.findChild<QMessageBox*>("about");
    ASSERT_NE(box, nullptr);
    EXPECT_TRUE(box->text().contains(ZN_VERSION));
}

TEST_F(WindowParts, SayAndSetTheZoom)
{
    Open("a.sql", "a");
    EXPECT_EQ(ZoomText(Editor()), "100 %");
    const std::unique_ptr<QMenu> menu(ZoomMenu(Editor(), nullptr));
    for (QAction* action : menu->actions()) {
        if (action->text() == "200 %")
            action->trigger();
    }
    EXPECT_EQ(ZoomText(Editor()), "200 %");
}

TEST_F(WindowParts, SayAndSetTheIndentation)
{
    Open("a.sql", "");
    const std::unique_ptr<QMenu> menu(IndentationMenu(Editor(), nullptr));
    for (QAction* action : menu->actions()) {
        if (action->text() == "&8 Columns" || action->text() == "Indent with &Tabs")
            action->trigger();
    }
    EXPECT_EQ(IndentationText(Editor()), "Tabs: 8");
    EXPECT_EQ(Editor().GetTabWidth(1), 8);
    EXPECT_NE(Editor().GetUseTabs(1), 0);
}

TEST_F(WindowParts, ShowTheOutlineOfTheScript)
{
    Open("a.sql", "create table t (n int);\ncreate view v as select 1;\n");
    Trigger("outline");
    ASSERT_TRUE(Wait([&] { return Outlined() == QStringList({"t", "  n", "v"}); }));
    QTreeView& list = OutlineList();
    Q_EMIT list.activated(list.model()->index(1, 0));
    EXPECT_EQ(Editor().GetSelectionStart(1), 36);
    Editor().GotoPos(0, 1);
    Editor().ReplaceSel(u"create table before_it (n int);\n", 1);
    EXPECT_TRUE(Wait([&] {
        return Outlined() == QStringList({"before_it", "  n", "t", "  n", "v"});
    }));
}

// The index of the names is asked for one that is this long.
TEST_F(WindowParts, OutlineALongScriptAndFollowIt)
{
    std::string text;
    QStringList names;
    for (int i = 0; text.size() < 1'000'000; ++i) {
        names << QStringLiteral("table_%1").arg(i);
        text += "create table " + names.back().toStdString() + " (n int);\n";
        text += std::string(2000, ' ') + "\n";
    }
    Open("a.sql", QByteArray::fromStdString(text));
    Trigger("outline");
    ASSERT_TRUE(Wait([&] { return Outlined() == names; })) << Outlined().size();
    Editor().SetSel(13, 20, 1);
    Editor().ReplaceSel(u"\"first one\"", 1);
    names[0] = QStringLiteral("first one");
    EXPECT_TRUE(Wait([&] { return Outlined() == names; }))
        << Outlined().value(0).toStdString() << ' ' << Outlined().size() << " of " << names.size();
    QTreeView& list = OutlineList();
    Q_EMIT list.activated(list.model()->index(2, 0));
    const long start = Editor().GetSelectionStart(1);
    EXPECT_EQ(Text().mid(start, Editor().GetSelectionEnd(1) - start), names[2]);
    EXPECT_TRUE(Wait([&] { return list.currentIndex().row() == 2; }));
    Trigger("outline"); // what is typed while it is hidden stands there when it is shown
    Editor().GotoPos(0, 1);
    Editor().ReplaceSel(u"create table zeroth (n int);\n", 1);
    names.prepend(QStringLiteral("zeroth"));
    completion::LiveIndex& index = Script().Names();
    ASSERT_TRUE(Wait([&] { return index.IsDone(); }));
    Trigger("outline");
    EXPECT_TRUE(Wait([&] { return Outlined() == names; }));
}

TEST_F(WindowParts, SayWhyAnOutlineIsEmpty)
{
    Open("a.sql", "select 1;\n");
    Trigger("outline");
    const auto* why = m_window.findChild<QLabel*>("outlineWhy");
    ASSERT_TRUE(Wait([&] { return why->isVisible(); }));
    EXPECT_TRUE(why->text().contains("creates nothing"));
    EXPECT_FALSE(OutlineList().isVisible());
    Editor().ReplaceSel(u"create table t (n int);\n", 1);
    ASSERT_TRUE(Wait([&] { return OutlineList().isVisible(); }));
    EXPECT_FALSE(why->isVisible());
    EXPECT_EQ(Outlined(), QStringList({"t", "  n"}));
    Open("a.css", "a { color: red; }\n");
    ASSERT_TRUE(Wait([&] { return why->isVisible(); }));
    EXPECT_TRUE(why->text().contains("CSS"));
}

TEST_F(WindowParts, GoToASymbolByPartOfItsName)
{
    Open("a.sql", "create table first_one (n int);\ncreate table second_one (n int);\n");
    Trigger("goToSymbol");
    auto* picker = m_window.findChild<SymbolPicker*>();
    ASSERT_NE(picker, nullptr);
    auto* words = picker->findChild<QLineEdit*>();
    words->setText("SECOND");
    QTest::keyClick(words, Qt::Key_Return);
    EXPECT_EQ(Editor().GetSelectionStart(1), 45);
    EXPECT_EQ(Editor().GetSelectionEnd(1), 55);
}

TEST_F(WindowParts, TellThatNoSymbolHasTheName)
{
    Open("a.sql", "create table one (n int);\n");
    Trigger("goToSymbol");
    auto* picker = m_window.findChild<SymbolPicker*>();
    auto* list = picker->findChild<QListWidget*>();
    auto* words = picker->findChild<QLineEdit*>();
    words->setText("zzz");
    ASSERT_EQ(list->count(), 1);
    EXPECT_EQ(list->item(0)->text(), "Nothing that the script creates has this name");
    EXPECT_EQ(list->item(0)->foreground().color(), list->palette().color(QPalette::Text));
    QTest::keyClick(words, Qt::Key_Down);
    QTest::keyClick(words, Qt::Key_Return);
    EXPECT_TRUE(picker->isVisible()) << "there is nothing to choose";
    words->clear();
    EXPECT_TRUE(list->item(0)->text().startsWith("one"));
    picker->close();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Editor().SetText(u"", 1);
    Trigger("goToSymbol");
    EXPECT_EQ(m_window.findChild<SymbolPicker*>()->findChild<QListWidget*>()->item(0)->text(),
              "The script creates nothing that could be listed");
}

TEST_F(WindowParts, GoToAStepOfAShortScriptAndToATableOfALongOne)
{
    const auto goTo = [this](const char* name) {
        Trigger("goToSymbol");
        auto* words = m_window.findChild<SymbolPicker*>()->findChild<QLineEdit*>();
        words->setText(name);
        QTest::keyClick(words, Qt::Key_Return);
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return Editor().GetSelText();
    };
    Open("a.sql", "print 'load it'\n");
    m_window.SetLanguage(3);
    EXPECT_EQ(goTo("load").toStdString(), "load it");
    Open("b.sql", QByteArray(600'000, ' ') + "\ncreate table far_off (n int);\n");
    EXPECT_EQ(goTo("far").toStdString(), "far_off");
}

TEST_F(WindowParts, OpenInTheOutlineWhatStandsAroundTheWordsThatAreSought)
{
    Open("a.sql", "create table t (sought int);\ncreate table u (n int);\n");
    Trigger("outline");
    ASSERT_TRUE(Wait([&] { return Outlined().size() == 4; }));
    QTreeView& list = OutlineList();
    EXPECT_FALSE(list.isExpanded(list.model()->index(0, 0)));
    auto* words = list.parentWidget()->findChild<QLineEdit*>();
    words->setText("SOU");
    EXPECT_EQ(Outlined(), QStringList({"t", "  sought"}));
    EXPECT_TRUE(list.isExpanded(list.model()->index(0, 0)));
    words->clear();
    EXPECT_EQ(Outlined().size(), 4);
    EXPECT_FALSE(list.isExpanded(list.model()->index(0, 0)));
}

TEST_F(WindowParts, LeaveOpenInTheOutlineWhatWasBeforeWordsWereSought)
{
    Open("a.sql", "create table t (sought int);\ncreate table u (n int);\n");
    Trigger("outline");
    ASSERT_TRUE(Wait([&] { return Outlined().size() == 4; }));
    QTreeView& list = OutlineList();
    list.expand(list.model()->index(1, 0));
    auto* words = list.parentWidget()->findChild<QLineEdit*>();
    words->setText("S");
    words->setText("SO");
    words->clear();
    EXPECT_FALSE(list.isExpanded(list.model()->index(0, 0)));
    EXPECT_TRUE(list.isExpanded(list.model()->index(1, 0)));
}

TEST_F(WindowParts, SayWhyThereAreNoProblems)
{
    const auto* text = m_window.findChild<QLabel*>("noProblems");
    Open("a.tsql", "select from;\n");
    EXPECT_FALSE(text->isHidden());
    EXPECT_EQ(text->text(),
              "Scripts in Transact-SQL are not checked: there is no parser for it here.");
    Open("a.pgsql", "select 1;\n");
    EXPECT_EQ(text->text(), "No problems found.");
    Open("b.pgsql", "select 1;\n  select from from;\nselect 2;\n select, ;\n");
    EXPECT_TRUE(text->isHidden());
    const QTreeWidget* list = m_window.findChild<ProblemPane*>()->ListArea();
    ASSERT_EQ(list->topLevelItemCount(), 2); // beyond the first, by statement
    EXPECT_EQ(list->topLevelItem(0)->text(0), "2");
    EXPECT_EQ(list->topLevelItem(0)->text(1), "15");
    EXPECT_EQ(list->topLevelItem(1)->text(0), "4");
}

TEST_F(WindowParts, SayWhyACommandIsDisabled)
{
    const auto tipOf = [this](const char* name) {
        for (QMenu* menu : m_window.menuBar()->findChildren<QMenu*>()) {
            if (menu->actions().contains(&Action(name)))
                Q_EMIT menu->aboutToShow();
        }
        return Action(name).statusTip();
    };
    EXPECT_EQ(tipOf("undo"), "No script is open.");
    EXPECT_EQ(tipOf("reopenClosed"), "No tab was closed.");
    Open("a.sql", "a");
    EXPECT_EQ(tipOf("undo"), "There is nothing to undo.");
    EXPECT_EQ(tipOf("copy"), "Nothing is selected.");
    EXPECT_EQ(tipOf("next"), "No other script is open.");
    Editor().SetSel(0, 1, 1);
    QApplication::processEvents();
    EXPECT_EQ(tipOf("copy"), "");
    Trigger("readOnlySwitch");
    EXPECT_EQ(tipOf("cut"), "The script is read-only.");
}

TEST_F(WindowParts, NameCommandsInTheContextMenuAsInTheMenus)
{
    Open("a.sql", "a");
    SendMessage(Frame().View()->GetSafeHwnd(), WM_CONTEXTMENU, 0, PointParam({5, 5}));
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    QHash<QString, QString> tips; // by the text without its letter and keys
    QStringList keys;
    for (const QAction* action : menu->actions()) {
        tips[action->text().section('\t', 0, 0).remove('&')] = action->statusTip();
        keys << action->text().section('\t', 1);
    }
    menu->close();
    EXPECT_TRUE(tips.contains("Uncomment"));
    EXPECT_TRUE(tips.contains("Find Next"));
    EXPECT_TRUE(tips.contains("Convert Line Ends to"));
    EXPECT_FALSE(tips.contains("Undo Comment Out"));
    EXPECT_TRUE(keys.contains("Ctrl+Shift+/"));
    EXPECT_EQ(tips["Undo"], "There is nothing to undo.");
    EXPECT_EQ(tips["Copy"], "Nothing is selected.");
    EXPECT_EQ(tips["Select All"], "");
}

TEST_F(WindowParts, ShowThePathOfTheScript)
{
    const auto* field = m_window.findChild<PathField*>();
    ASSERT_NE(field, nullptr);
    EXPECT_EQ(field->Path(), "");
    Open("a.sql", "a");
    EXPECT_EQ(field->Path(), PathOf("a.sql"));
    QTest::mouseClick(m_window.findChild<PathField*>(), Qt::LeftButton);
    auto* menu = m_window.findChild<QMenu*>("tabMenu");
    ASSERT_NE(menu, nullptr);
    menu->close();
}

TEST_F(WindowParts, OfferToReadAndToWriteWithAnotherEncoding)
{
    Open("a.sql", "a");
    QTest::mouseClick(m_window.findChild<QLabel*>("encoding"), Qt::LeftButton);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->actions(), (QList<QAction*>{&Action("openAs"), &Action("saveAs")}));
    menu->close();
}

TEST_F(WindowParts, BringAClosedTabBackWhereItWasLeftLast)
{
    Open("a.sql", QByteArray("select 1;\n").repeated(100));
    for (const int line : {70, 30}) {
        ASSERT_TRUE(m_app.OpenDocumentFile(PathOf("a.sql")));
        Editor().GotoLine(line, 1);
        Trigger("close");
    }
    Trigger("reopenClosed");
    EXPECT_EQ(Editor().LineFromPosition(Editor().GetCurrentPos(1), 1), 30);
}

TEST_F(WindowParts, WriteOnesOwnFolderShort)
{
    PathField field(nullptr);
    const auto told = [&field](const QString& path) {
        field.Show(path);
        EXPECT_EQ(field.toolTip(), path);
        return field.accessibleDescription();
    };
    const QString home = QDir::homePath();
    EXPECT_EQ(told(home + "/a/b.sql").toStdString(), "~/a/b.sql");
    EXPECT_EQ(told(home + "s/b.sql"), home + "s/b.sql");
    EXPECT_EQ(told("/a" + home + "/b.sql"), "/a" + home + "/b.sql");
    EXPECT_EQ(told({}), QString());
}

TEST_F(WindowParts, BringAClosedTabBackAtItsPlace)
{
    Open("a.sql", QByteArray("begin\n  select 1;\nend\n").repeated(100));
    Editor().GotoLine(150, 1);
    Editor().LineScroll(0, 120 - Editor().GetFirstVisibleLine(1), 1);
    Editor().MarkerAdd(7, 0, 1);
    Editor().SetZoom(2, 1);
    Trigger("close");
    Trigger("reopenClosed");
    EXPECT_EQ(Editor().LineFromPosition(Editor().GetCurrentPos(1), 1), 150);
    EXPECT_EQ(Editor().GetFirstVisibleLine(1), 120);
    EXPECT_EQ(Editor().MarkerNext(0, 1, 1), 7);
    EXPECT_EQ(Editor().GetZoom(1), 2);
}

TEST_F(WindowParts, LeaveAnEncodingOfTheSettingsThatTheOptionsDoNotList)
{
    CZNOptionsServer& options = *CZNOptionsServer::GetObjectW();
    const int before = options.GetInt(option::DefaultTextType);
    constexpr int kUtf16BigEndian = 3;
    options.SetInt(option::DefaultTextType, kUtf16BigEndian);
    OptionsDialog(nullptr).Store();
    EXPECT_EQ(options.GetInt(option::DefaultTextType), kUtf16BigEndian);
    options.SetInt(option::DefaultTextType, before);
}

TEST_F(WindowParts, LeaveAFontThatIsNotThere)
{
    CZNOptionsServer& options = *CZNOptionsServer::GetObjectW();
    LOGFONT before;
    ASSERT_TRUE(options.GetLOGFONT(option::EditorFont, &before));
    LOGFONT gone = before;
    constexpr std::u16string_view kFace(u"Font That Is Gone");
    std::fill(std::begin(gone.lfFaceName), std::end(gone.lfFaceName), u'\0');
    kFace.copy(gone.lfFaceName, kFace.size());
    options.SetLOGFONT(option::EditorFont, &gone);
    OptionsDialog(nullptr).Store();
    LOGFONT after;
    options.GetLOGFONT(option::EditorFont, &after);
    EXPECT_EQ(FromUnits(after.lfFaceName).toStdString(), "Font That Is Gone");
    EXPECT_EQ(after.lfHeight, before.lfHeight);
    options.SetLOGFONT(option::EditorFont, &before);
}

// Bytes that are no UTF-8 tell what they are; plain letters do not.
TEST_F(WindowParts, TakeTheEncodingOfTheOptionsWhereAFileTellsNone)
{
    CZNOptionsServer& options = *CZNOptionsServer::GetObjectW();
    const int before = options.GetInt(option::DefaultTextType);
    {
        OptionsDialog dialog(nullptr);
        auto* box = dialog.findChild<QComboBox*>("encoding");
        EXPECT_EQ(box->currentText(), "UTF-8");
        box->setCurrentText("None of Unicode: as below");
        dialog.Store();
    }
    EXPECT_EQ(options.GetInt(option::DefaultTextType), 0);
    Open("a.sql", "plain\n");
    Settle();
    EXPECT_EQ(Status("encoding"), "windows-1252");
    options.SetInt(option::DefaultTextType, before);
    Open("b.sql", "plain\n");
    Settle();
    EXPECT_EQ(Status("encoding"), "UTF-8");
    Editor().ReplaceSel(u"\u00e9", 1);
    Trigger("save");
    EXPECT_EQ(Read("b.sql"), "\xC3\xA9plain\n");
    Open("c.sql", "caf\xE9\n");
    Settle();
    EXPECT_EQ(Status("encoding"), "windows-1252");
}

} // namespace

TEST_F(WindowParts, GiveAMessageTheRoomThatItNeeds)
{
    Open("a.sql", "select 1;\n");
    m_window.resize(900, 480);
    QStatusBar& bar = *m_window.statusBar();
    const auto shown = [&] {
        QList<QWidget*> fields;
        for (QLabel* label : bar.findChildren<QLabel*>()) {
            if (label->parentWidget() != &bar && label->isVisible())
                fields << label->parentWidget();
        }
        return fields;
    };
    QApplication::processEvents();
    const QList<QWidget*> before = shown();
    const QString message = QStringLiteral("latin1b.sql was read anew: it is windows-1252, as is "
                                           "everything in this folder");
    bar.showMessage(message);
    QApplication::processEvents();
    int room = bar.width();
    for (const QWidget* field : shown())
        room = std::min(room, field->x());
    EXPECT_GT(room, bar.fontMetrics().horizontalAdvance(message));
    EXPECT_EQ(bar.toolTip(), message);
    bar.showMessage(QStringLiteral("saved"));
    EXPECT_EQ(shown(), before) << "there is room";
    bar.showMessage(message);
    bar.clearMessage();
    EXPECT_EQ(shown(), before);
    EXPECT_EQ(bar.toolTip(), QString());
}

TEST_F(WindowParts, SayNothingOfAScriptThatIsNoLongerInFront)
{
    Open("a.sql", "a");
    Open("b.sql", "b");
    Q_EMIT Script().Told("of b");
    EXPECT_EQ(m_window.statusBar()->currentMessage(), "of b");
    m_window.ShowTab(0);
    EXPECT_EQ(m_window.statusBar()->currentMessage(), "");
}

TEST_F(WindowParts, HaveFieldsThatGiveWayToThePlaceOfTheCaret)
{
    Open("a.sql", "select 1;\n");
    Editor().ReplaceSel(u"x", 1);
    Settle();
    const QStatusBar& bar = *m_window.statusBar();
    const auto field = [&bar](const char* name) {
        return bar.findChild<QLabel*>(QLatin1String(name))->parentWidget();
    };
    for (const int width : {1200, 800, 560, 400, 800, 1200}) {
        m_window.resize(width, 480);
        Settle();
        ASSERT_EQ(bar.width(), width);
        ASSERT_TRUE(field("caret")->isVisible()) << width;
        int end = 0;
        int count = 0;
        for (const char* name :
             {"readOnly", "modified", "problemCount", "caret", "catalog", "language", "encoding",
              "lineEnds", "indentation", "zoom", "overtype"}) {
            if (!field(name)->isVisible())
                continue;
            ++count;
            EXPECT_GE(field(name)->x(), end) << name << " at " << width;
            end = field(name)->geometry().right() + 1;
        }
        EXPECT_LE(end, width);
        EXPECT_EQ(field("overtype")->isVisible(), width == 1200) << width;
        EXPECT_EQ(field("zoom")->isVisible(), width == 1200) << width;
        EXPECT_EQ(field("language")->isVisible(), width >= 560) << width;
        EXPECT_EQ(count == 8, width == 1200) << count; // all that say something
    }
    EXPECT_EQ(Status("caret"), "Line 1, column 2");
}

TEST_F(WindowParts, ShareTheSideBetweenOutlineAndFolder)
{
    Open("a.sql", "select 1;\n");
    m_window.resize(900, 700);
    Trigger("outline");
    QApplication::processEvents();
    Trigger("folder");
    QApplication::processEvents();
    const auto height = [this](const char* name) {
        const auto* action = m_window.findChild<QAction*>(QLatin1String(name));
        for (const auto* pane : m_window.findChildren<QDockWidget*>()) {
            if (pane->toggleViewAction() == action)
                return pane->height();
        }
        return 0;
    };
    EXPECT_GT(height("folder"), 150);
    EXPECT_NEAR(height("folder"), height("outline"), 20);
}
