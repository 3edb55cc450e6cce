// SPDX-License-Identifier: GPL-3.0-or-later
// The tabs of the scripts: what they say, their menu, their list, and the way from one to another.
#include "host/preferences/Appearance.h"
#include "host/script/ScriptTabs.h"
#include "looks/Schemes.h"
#include "tests/host/WorkbenchTest.h"
#include "tests/looks/Contrast.h"

#include <QClipboard>
#include <QDialog>
#include <QDir>
#include <QFrame>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QScreen>
#include <QTabBar>
#include <QTest>
#include <QToolButton>

namespace {

class Tabs : public WorkbenchTest
{
protected:
    ScriptTabs& All() const { return *m_window.findChild<ScriptTabs*>(); }

    QStringList Names() const
    {
        QStringList names;
        for (int i = 0; i < All().count(); ++i)
            names << All().tabText(i);
        return names;
    }

    void OpenThree()
    {
        for (const char* name : {"one.sql", "two.sql", "three.sql"})
            Open(name, "text\n");
    }

    // An entry of the menu of a tab, which is left open.
    QAction* Entry(int tab, const QString& text) const
    {
        All().ShowMenu(tab, QPoint(10, 10));
        const QList<QMenu*> menus = All().findChildren<QMenu*>(QStringLiteral("tabMenu"));
        for (QAction* action : menus.isEmpty() ? QList<QAction*>() : menus.constLast()->actions()) {
            if (action->text().section('\t', 0, 0).remove('&') == text)
                return action;
        }
        ADD_FAILURE() << text.toStdString();
        return nullptr;
    }

    void Choose(int tab, const QString& text)
    {
        if (QAction* entry = Entry(tab, text))
            entry->trigger();
        QApplication::processEvents();
        Disposal::Run();
    }

    QDialog& OpenList()
    {
        m_window.findChild<QToolButton*>(QStringLiteral("tabList"))->click();
        return *m_window.findChildren<QDialog*>(QStringLiteral("tabListPopup")).constLast();
    }

    static QStringList Rows(const QWidget& list)
    {
        const auto* rows = list.findChild<QListWidget*>();
        QStringList names;
        for (int i = 0; i < rows->count(); ++i)
            names << rows->item(i)->text();
        return names;
    }

    // Until Release, Ctrl is held: the toolbox lets it go with each key that it lets go.
    void Hold() { QTest::keyPress(&m_window, Qt::Key_Control, Qt::ControlModifier); }
    void Release() { QTest::keyRelease(&m_window, Qt::Key_Control); }
    void Press(Qt::Key key, Qt::KeyboardModifiers more = {})
    {
        QTest::keyPress(&m_window, key, Qt::ControlModifier | more);
    }
    const QFrame& WalkList() const
    {
        return *m_window.findChild<QFrame*>(QStringLiteral("tabWalk"));
    }
};

} // namespace

TEST_F(Tabs, TellTheFolderOfFilesOfOneName)
{
    ASSERT_TRUE(QDir(m_folder.path()).mkdir("sub"));
    Open("report.sql", "1");
    Open("other.sql", "1");
    EXPECT_EQ(Names(), QStringList({"report.sql", "other.sql"}));
    Open("sub/report.sql", "2");
    const QString folder = QDir(m_folder.path()).dirName();
    EXPECT_EQ(Names(),
              QStringList({"report.sql (" + folder + ")", "other.sql", "report.sql (sub)"}));
    EXPECT_EQ(All().tabToolTip(2), PathOf("sub/report.sql"));
    Trigger("newView");
    EXPECT_EQ(Names().mid(2), QStringList({"report.sql:1 (sub)", "report.sql:2 (sub)"}));
    Trigger("close");
    Trigger("close");
    EXPECT_EQ(Names(), QStringList({"report.sql", "other.sql"}));
}

TEST_F(Tabs, ShowAChangeAtAGlanceInEachScheme)
{
    constexpr double kForMarks = 3;
    Open("a.sql", "1");
    EXPECT_TRUE(All().tabIcon(0).isNull());
    Type(u"x");
    EXPECT_EQ(All().tabBar()->accessibleTabName(0), "a.sql, changed");
    for (const char* scheme : {"Dark", "Light", "High Contrast"}) {
        appearance::SetCurrent(QLatin1String(scheme));
        QApplication::processEvents();
        QTabBar& bar = *All().tabBar();
        const QRect tab = bar.tabRect(0);
        const QImage left = bar.grab(QRect(tab.left(), tab.top(), 30, tab.height())).toImage();
        EXPECT_GE(BestContrast(left, left.pixel(4, left.height() / 2)), kForMarks) << scheme;
    }
    appearance::SetCurrent(zncoreeditor::kDesktopScheme);
    Trigger("undo");
    EXPECT_TRUE(All().tabIcon(0).isNull());
}

TEST_F(Tabs, LeaveTheFrontToTheOneThatWasThereBefore)
{
    OpenThree();
    m_window.ShowTab(0);
    m_window.ShowTab(2);
    Trigger("close");
    EXPECT_EQ(Script().Name(), "one.sql");
}

TEST_F(Tabs, AreClosedBesideOne)
{
    OpenThree();
    Choose(1, "Close Others");
    EXPECT_EQ(Names(), QStringList{"two.sql"});
}

TEST_F(Tabs, AreClosedToTheRightOfOne)
{
    OpenThree();
    Choose(0, "Close to the Right");
    EXPECT_EQ(Names(), QStringList{"one.sql"});
    EXPECT_FALSE(Entry(0, "Close to the Right")->isEnabled());
}

TEST_F(Tabs, AreClosedAllAndComeBackFromTheMenu)
{
    OpenThree();
    Choose(1, "Close All");
    EXPECT_EQ(m_window.TabCount(), 0);
    Trigger("new");
    Choose(0, "Reopen Closed Tab");
    EXPECT_EQ(Script().Name(), "three.sql");
}

TEST_F(Tabs, AreClosedUntilAPersonKeepsOne)
{
    OpenThree();
    for (int i = 0; i < 3; ++i) {
        m_window.ShowTab(i);
        Type(u"x");
    }
    m_prompts.loseChanges = LoseChanges::Discard;
    Choose(1, "Close to the Right");
    EXPECT_EQ(m_prompts.asked, QStringList{"three.sql"});
    m_prompts.loseChanges = LoseChanges::Cancel;
    Choose(1, "Close All");
    EXPECT_EQ(m_prompts.asked, QStringList({"three.sql", "one.sql"}));
    EXPECT_EQ(Names(), QStringList({"one.sql", "two.sql"}));
}

TEST_F(Tabs, AreSavedFromTheirMenuWithoutComingToTheFront)
{
    OpenThree();
    EXPECT_FALSE(Entry(0, "Save")->isEnabled());
    m_window.ShowTab(0);
    Type(u"x");
    m_window.ShowTab(2);
    Choose(0, "Save");
    EXPECT_EQ(Read("one.sql"), "xtext\n");
    EXPECT_EQ(Script().Name(), "three.sql");
    EXPECT_TRUE(All().tabIcon(0).isNull());
}

TEST_F(Tabs, ShowTheKeysOfTheirCommands)
{
    OpenThree();
    for (const char* name : {"save", "close"}) {
        const QString words = Action(name).text().remove('&');
        const QString keys = Action(name).shortcut().toString(QKeySequence::NativeText);
        ASSERT_FALSE(keys.isEmpty());
        EXPECT_EQ(Entry(0, words)->text().section('\t', 1), keys);
    }
    EXPECT_EQ(Entry(0, "Reopen Closed Tab"), &Action("reopenClosed"));
}

TEST_F(Tabs, GiveTheirPathToTheClipboard)
{
    Open("one.sql", "1\n");
    Choose(0, "Copy Path");
    EXPECT_EQ(QApplication::clipboard()->text(), PathOf("one.sql"));
}

TEST_F(Tabs, ShowWholeNamesAndAListOfThem)
{
    Open("a_name_that_is_really_quite_long_for_a_script.sql", "1\n");
    OpenThree();
    m_window.ShowTab(2);
    EXPECT_EQ(All().tabBar()->elideMode(), Qt::ElideNone);
    QDialog& list = OpenList();
    EXPECT_EQ(Rows(list), Names());
    const auto* rows = list.findChild<QListWidget*>();
    EXPECT_EQ(rows->currentRow(), 2);
    for (int i = 0; i < rows->count(); ++i)
        EXPECT_EQ(rows->item(i)->font().bold(), i == 2) << i;
    list.close();
}

TEST_F(Tabs, AreChosenFromTheListByAPartOfTheName)
{
    OpenThree();
    Trigger("goToScript");
    auto* list = m_window.findChild<QDialog*>(QStringLiteral("tabListPopup"));
    ASSERT_NE(list, nullptr);
    auto* words = list->findChild<QLineEdit*>();
    QTest::keyClicks(words, "TW");
    EXPECT_EQ(Rows(*list), QStringList{"two.sql"});
    QTest::keyClick(words, Qt::Key_Return);
    EXPECT_EQ(Script().Name(), "two.sql");
}

TEST_F(Tabs, AreNotChosenFromAListThatSaysThatItHasNone)
{
    OpenThree();
    Trigger("goToScript");
    auto* list = m_window.findChild<QDialog*>(QStringLiteral("tabListPopup"));
    ASSERT_NE(list, nullptr);
    auto* words = list->findChild<QLineEdit*>();
    QTest::keyClicks(words, "zzz");
    EXPECT_EQ(Rows(*list), QStringList{"No script has this in its name"});
    QTest::keyClick(words, Qt::Key_Down);
    QTest::keyClick(words, Qt::Key_Return);
    EXPECT_TRUE(list->isVisible()) << "there is nothing to choose";
    EXPECT_EQ(Script().Name(), "three.sql");
    words->clear();
    EXPECT_EQ(Rows(*list).size(), 3);
    list->close();
}

TEST_F(Tabs, HaveTheirListOnTheScreen)
{
    OpenThree();
    const QRect room = m_window.screen()->availableGeometry();
    for (const QPoint place : {room.topLeft() - QPoint(m_window.width() - 40, 0),
                               room.bottomRight() - QPoint(200, 200), room.topLeft()}) {
        m_window.move(place);
        QDialog& list = OpenList();
        EXPECT_TRUE(room.contains(list.geometry()))
            << list.x() << ' ' << list.y() << ' ' << list.width() << ' ' << list.height() << " of "
            << room.right() << ' ' << room.bottom();
        list.close();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

TEST_F(Tabs, AreGoneToByLastUseWithoutAKeyHeld)
{
    Release(); // what an earlier test may hold
    OpenThree();
    m_window.ShowTab(0);
    Trigger("lastUsed");
    EXPECT_EQ(Script().Name(), "three.sql");
    Trigger("lastUsed");
    EXPECT_EQ(Script().Name(), "one.sql");
    Trigger("longestUnused");
    EXPECT_EQ(Script().Name(), "two.sql");
    EXPECT_FALSE(WalkList().isVisible());
}

TEST_F(Tabs, AreWalkedThroughByLastUseWhileCtrlIsHeld)
{
    OpenThree();
    m_window.ShowTab(0);
    Hold();
    Trigger("lastUsed");
    ASSERT_TRUE(QTest::qWaitFor([&] { return WalkList().isVisible(); }));
    EXPECT_EQ(Rows(WalkList()), QStringList({"one.sql", "three.sql", "two.sql"}));
    Press(Qt::Key_Tab);
    EXPECT_EQ(Script().Name(), "one.sql") << "nothing is chosen yet";
    Release();
    EXPECT_EQ(Script().Name(), "two.sql");
    EXPECT_FALSE(WalkList().isVisible());
    Hold();
    Trigger("lastUsed");
    Press(Qt::Key_Tab);
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    Release();
    EXPECT_EQ(Script().Name(), "one.sql") << "two on, one back";
}

TEST_F(Tabs, StayWhereEscapeEndsTheWalk)
{
    OpenThree();
    Hold();
    Trigger("lastUsed");
    Press(Qt::Key_Escape);
    Release();
    EXPECT_EQ(Script().Name(), "three.sql");
    Editor().GotoPos(0, 1);
    QTest::keyClicks(Editor().GetSafeHwnd(), "x");
    EXPECT_EQ(Text(), "xtext\n") << "the keys are the script's again";
}

TEST_F(Tabs, AreWalkedThroughFromLeftToRightByOtherKeys)
{
    OpenThree();
    m_window.ShowTab(0);
    Trigger("next");
    EXPECT_EQ(Script().Name(), "two.sql");
    Trigger("previous");
    Trigger("previous");
    EXPECT_EQ(Script().Name(), "three.sql");
    EXPECT_EQ(Action("next").shortcut(), QKeySequence("Ctrl+PgDown"));
    EXPECT_EQ(Action("lastUsed").shortcut(), QKeySequence("Ctrl+Tab"));
}
