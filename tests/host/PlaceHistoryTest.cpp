// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/window/PlaceHistory.h"
#include "tests/host/WorkbenchTest.h"

namespace {

using Place = PlaceHistory::Place;

class Places : public testing::Test
{
protected:
    void Visit(std::uintptr_t script, int line, const char* path = "")
    {
        m_history.Visit({script, QLatin1String(path), line, 0});
    }

    // -1: there is none.
    int Back() { return LineOf(m_history.Back()); }
    int Forward() { return LineOf(m_history.Forward()); }
    static int LineOf(const std::optional<Place>& place) { return place ? place->line : -1; }

    PlaceHistory m_history;
};

class WorkbenchPlaces : public WorkbenchTest
{
protected:
    int Line() const { return Editor().GetCurLineNumber(); }

    // As after a rest.
    void GoTo(int line)
    {
        Frame().View()->GoToLine(line);
        Trigger("back");
        Trigger("forward");
    }
};

} // namespace

TEST_F(Places, AreWalkedBackAndForward)
{
    EXPECT_EQ(Back(), -1);
    Visit(1, 0);
    Visit(1, 100);
    Visit(2, 50);
    EXPECT_EQ(Back(), 100);
    EXPECT_EQ(Back(), 0);
    EXPECT_EQ(Back(), -1);
    EXPECT_EQ(Forward(), 100);
    EXPECT_EQ(Forward(), 50);
    EXPECT_EQ(Forward(), -1);
}

TEST_F(Places, ThatAreNearAreTheSame)
{
    Visit(1, 0);
    Visit(1, 10);
    Visit(1, 20);
    EXPECT_FALSE(m_history.HasBack());
    Visit(1, 31);
    EXPECT_EQ(Back(), 20);
    Visit(2, 20); // another script
    EXPECT_EQ(Back(), 20);
}

TEST_F(Places, ForwardAreForgottenWhereAnotherWayIsTaken)
{
    Visit(1, 0);
    Visit(1, 100);
    Back();
    Visit(1, 5); // still there
    EXPECT_TRUE(m_history.HasForward());
    Visit(1, 200);
    EXPECT_FALSE(m_history.HasForward());
    EXPECT_EQ(Back(), 5);
}

TEST_F(Places, GoWithTheirLines)
{
    Visit(1, 50);
    Visit(2, 50);
    Visit(1, 100);
    m_history.LinesMoved(1, 50, 7);
    m_history.LinesMoved(1, 58, 3);
    EXPECT_EQ(Back(), 50);
    EXPECT_EQ(Back(), 57);
    m_history.LinesMoved(1, 55, -20);
    Forward();
    EXPECT_EQ(Forward(), 90);
    Back();
    EXPECT_EQ(Back(), 55);
}

TEST_F(Places, OfAClosedScriptStayIfItHasAFile)
{
    Visit(1, 1, "/a.sql");
    Visit(2, 2);
    Visit(3, 3, "/c.sql");
    Visit(2, 50);
    m_history.Closed(1);
    m_history.Closed(2);
    EXPECT_EQ(Back(), 1);
    EXPECT_EQ(Forward(), 3);
    Visit(9, 4, "/c.sql"); // opened again
    EXPECT_FALSE(m_history.HasForward());
    EXPECT_EQ(Back(), 1);
}

TEST_F(Places, AreAHundred)
{
    for (int i = 0; i < 200; ++i)
        Visit(1, i * 100);
    int steps = 0;
    while (m_history.Back())
        ++steps;
    EXPECT_EQ(steps, 99);
}

TEST_F(WorkbenchPlaces, AreGoneBackToInAndBetweenScripts)
{
    const QByteArray text = QByteArray("select 1;\n").repeated(300);
    Open("a.sql", text);
    GoTo(100);
    Open("b.sql", text);
    GoTo(200);
    Trigger("back");
    EXPECT_EQ(Line(), 0);
    EXPECT_EQ(Script().Name(), "b.sql");
    Trigger("back");
    EXPECT_EQ(Script().Name(), "a.sql");
    EXPECT_EQ(Line(), 100);
    Editor().InsertText(0, u"\n\n", 1);
    Trigger("back");
    EXPECT_EQ(Line(), 2); // where line 0 went
    Trigger("forward");
    EXPECT_EQ(Line(), 102);
    Trigger("forward");
    Trigger("forward");
    EXPECT_EQ(Script().Name(), "b.sql");
    EXPECT_EQ(Line(), 200);
    EXPECT_FALSE(Action("forward").isEnabled());
}

TEST_F(WorkbenchPlaces, AreThoseOfThePersonWhenATabIsBroughtBack)
{
    Open("a.sql", QByteArray("select 1;\n").repeated(300));
    Frame().View()->GoToLine(100);
    Trigger("close");
    Open("b.sql", "select 2;\n");
    Trigger("reopenClosed");
    ASSERT_EQ(Line(), 100);
    Trigger("back");
    EXPECT_EQ(Script().Name(), "b.sql");
    Trigger("forward");
    EXPECT_EQ(Script().Name(), "a.sql");
    EXPECT_EQ(Line(), 100);
}

TEST_F(WorkbenchPlaces, OfAClosedFileOpenItAgain)
{
    Open("a.sql", QByteArray("select 1;\n").repeated(300));
    GoTo(100);
    Open("b.sql", "select 2;\n");
    Trigger("previous");
    Trigger("close");
    ASSERT_EQ(Script().Name(), "b.sql");
    Trigger("back");
    EXPECT_EQ(Script().Name(), "a.sql");
    EXPECT_EQ(Line(), 100);
}

TEST_F(WorkbenchPlaces, ThatWereOutOfSightComeWithRoomAboveThem)
{
    Open("a.sql", QByteArray("select 1;\n").repeated(300));
    const int screen = Editor().LinesOnScreen(1);
    ASSERT_GT(screen, 5);
    Frame().View()->GoToLine(200);
    EXPECT_EQ(Editor().GetFirstVisibleLine(1), 200 - screen / 3);
    const int top = Editor().GetFirstVisibleLine(1);
    Frame().View()->GoToLine(201);
    EXPECT_EQ(Editor().GetFirstVisibleLine(1), top);
}
