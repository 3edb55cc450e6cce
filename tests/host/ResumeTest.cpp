// SPDX-License-Identifier: GPL-3.0-or-later
// The scripts of the last run, while some of them are not read yet.
#include "host/script/ScriptTabs.h"
#include "host/session/Session.h"
#include "tests/host/WorkbenchTest.h"

#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QTest>

namespace {

class Resuming : public WorkbenchTest
{
protected:
    ~Resuming() override { QFile::remove(Session::DefaultPath()); }

    // Three scripts, the second one in front. The others are read by an event loop alone.
    void Begin(int front = 1)
    {
        Write("a.sql", QByteArray("a\n").repeated(300));
        Write("b.sql", "b\n");
        Write("c.sql", "c1\nc2\nc3\n");
        Resume({.files = {{.path = PathOf("a.sql"), .caretLine = 200, .firstVisible = 190},
                          {.path = PathOf("b.sql")},
                          {.path = PathOf("c.sql"), .caretLine = 1, .bookmarks = {2}}},
                .front = front});
    }

    void Resume(const Session& session)
    {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(Session::DefaultPath()).path()));
        ASSERT_TRUE(session.Store(Session::DefaultPath()));
        m_window.ResumeSession();
    }

    bool ReadTheRest()
    {
        return QTest::qWaitFor([this] { return !m_window.IsResuming(); }, 20000);
    }

    QStringList Tabs() const
    {
        QStringList names;
        for (int i = 0; i < m_window.TabCount(); ++i)
            names << m_window.FrameAt(i)->Caption().Text();
        return names;
    }

    ScriptTabs& TabWidget() const { return *m_window.findChild<ScriptTabs*>(); }

    const QStringList m_all = {"a.sql", "b.sql", "c.sql"};
};

} // namespace

// As a geometry from another scale, which Qt does not take.
TEST_F(Resuming, KeepsAMaximisedWindowWhoseGeometryIsOfAnotherScreen)
{
    ASSERT_FALSE(m_window.restoreGeometry("of another"));
    Resume({.geometry = "of another"});
    EXPECT_FALSE(m_window.isMaximized());
    Resume({.geometry = "of another", .maximised = true});
    EXPECT_TRUE(m_window.isMaximized());
    ASSERT_TRUE(CloseWindow()); // which keeps it
    EXPECT_TRUE(Session::Load(Session::DefaultPath()).value_or(Session()).maximised);
}

TEST_F(Resuming, ShowsTheScriptInFrontBeforeTheOthersAreRead)
{
    Begin();
    EXPECT_EQ(Tabs(), QStringList{"b.sql"});
    EXPECT_EQ(Text(), "b\n");
    ASSERT_TRUE(ReadTheRest());
    EXPECT_EQ(Tabs(), m_all);
    EXPECT_EQ(Script().Name(), "b.sql");
    EXPECT_EQ(m_app.ActiveScript(), &Script()) << "whose commands the menus run";
    m_window.ShowTab(0);
    EXPECT_EQ(Editor().LineFromPosition(Editor().GetCurrentPos(1), 1), 200);
    EXPECT_EQ(Editor().GetFirstVisibleLine(1), 190);
    m_window.ShowTab(2);
    EXPECT_EQ(Text(), "c1\nc2\nc3\n");
    EXPECT_EQ(Editor().MarkerNext(0, 1, 1), 2);
}

TEST_F(Resuming, LeavesTheKeysToTheScriptThatIsTypedInto)
{
    Begin();
    m_window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
    m_window.GoToScript();
    const QWidget* keys = QApplication::focusWidget();
    ASSERT_TRUE(keys && keys->isEnabled());
    Editor().ReplaceSel(u"typed ", 1);
    ASSERT_TRUE(ReadTheRest());
    EXPECT_EQ(QApplication::focusWidget(), keys);
    EXPECT_EQ(Text(), "typed b\n");
    m_window.ShowTab(0);
    ASSERT_TRUE(QApplication::focusWidget());
    EXPECT_TRUE(TabWidget().currentWidget()->isAncestorOf(QApplication::focusWidget()));
    QTest::keyClicks(QApplication::focusWidget(), "x");
    EXPECT_TRUE(Script().IsModified());
}

TEST_F(Resuming, KeepsWhatIsNotReadYetInTheSession)
{
    Begin();
    const QList<SessionFile> before = Session::Load(Session::DefaultPath())->files;
    Open("d.sql", "d\n");
    m_window.EndSession();
    const Session kept = *Session::Load(Session::DefaultPath());
    ASSERT_EQ(kept.files.size(), 4);
    EXPECT_EQ(kept.files[0], before[0]);
    EXPECT_EQ(kept.files[1].path, PathOf("b.sql"));
    EXPECT_EQ(kept.files[2], before[2]);
    EXPECT_EQ(kept.files[3].path, PathOf("d.sql"));
    EXPECT_EQ(kept.front, 3);
}

TEST_F(Resuming, ShowsOneThatIsOpenedMeanwhileAtItsPlace)
{
    Begin();
    ASSERT_TRUE(m_app.OpenDocumentFile(m_folder.path() + "/./c.sql"));
    EXPECT_EQ(Tabs(), (QStringList{"b.sql", "c.sql"}));
    EXPECT_EQ(Script().Name(), "c.sql");
    EXPECT_EQ(Editor().LineFromPosition(Editor().GetCurrentPos(1), 1), 1);
    ASSERT_TRUE(ReadTheRest());
    EXPECT_EQ(Tabs(), m_all);
    EXPECT_EQ(Script().Name(), "c.sql");
}

TEST_F(Resuming, KeepsAnEmptyScriptThatIsBegunMeanwhile)
{
    Begin();
    m_app.NewScript();
    const ScriptDoc* begun = &Script();
    ASSERT_TRUE(ReadTheRest());
    EXPECT_EQ(m_window.TabCount(), 4);
    EXPECT_EQ(&Script(), begun);
    EXPECT_EQ(Tabs().mid(0, 3), m_all);
}

TEST_F(Resuming, ReadsTheRestForWhatKnowsAllTabs)
{
    Begin();
    Trigger("next");
    EXPECT_EQ(Tabs(), m_all);
    EXPECT_EQ(Script().Name(), "c.sql");
    EXPECT_EQ(TabWidget().ByLastUse().size(), 3);
}

TEST_F(Resuming, ClosesTheTabsThatAreNotReadYetWithAll)
{
    Begin();
    TabWidget().CloseAll();
    Disposal::Run();
    EXPECT_FALSE(m_window.IsResuming());
    EXPECT_EQ(m_window.TabCount(), 0);
    m_window.EndSession();
    EXPECT_TRUE(Session::Load(Session::DefaultPath())->files.isEmpty());
}

TEST_F(Resuming, GoesOnWithTheOthersWhereTheOneInFrontIsGone)
{
    Write("a.sql", "a\n");
    Resume({.files = {{.path = PathOf("gone.sql")}, {.path = PathOf("a.sql")}}, .front = 0});
    EXPECT_EQ(Tabs(), QStringList{"a.sql"});
    EXPECT_EQ(TabWidget().ByLastUse().size(), 1);
    EXPECT_TRUE(Frame().GetSafeHwnd()->isEnabled());
}

TEST_F(Resuming, NumbersTheTabsOfOneScriptAsTheyWere)
{
    Write("a.sql", "a\n");
    Write("b.sql", "b\n");
    const SessionFile a = {.path = PathOf("a.sql")};
    Resume({.files = {a, {.path = PathOf("b.sql")}, a, a}, .front = 2});
    EXPECT_EQ(Frame().Caption().Text(), "a.sql:2");
    ASSERT_TRUE(ReadTheRest());
    EXPECT_EQ(Tabs(), (QStringList{"a.sql:1", "b.sql", "a.sql:2", "a.sql:3"}));
    EXPECT_EQ(m_app.Scripts().size(), 2U);
}

TEST_F(Resuming, WaitsWhileAMenuIsOpen)
{
    Begin();
    QMenu menu(&m_window);
    menu.addAction("x");
    menu.popup(m_window.mapToGlobal(QPoint(50, 50)));
    ASSERT_EQ(QApplication::activePopupWidget(), &menu);
    for (int i = 0; i < 3; ++i)
        QTest::qWait(60);
    EXPECT_EQ(m_window.TabCount(), 1);
    menu.close();
    EXPECT_TRUE(ReadTheRest());
    EXPECT_EQ(Tabs(), m_all);
}
