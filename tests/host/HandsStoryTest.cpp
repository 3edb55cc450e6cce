// SPDX-License-Identifier: GPL-3.0-or-later
// The gestures of somebody who edits all day, with real keys and a real mouse. What they change,
// undo brings back.
#include "tests/host/WindowStory.h"

namespace {

class HandsStory : public WindowStory
{
protected:
    static constexpr const char* kStart = "select 1;\nselect 2;\n";

    void Holds(const QByteArray& text)
    {
        Keys({"ctrl+s"});
        ASSERT_TRUE(Eventually([&] { return Read() == text; }))
            << Read().toStdString() << " and not " << text.toStdString();
    }

    // One gesture after another from the start of the same script.
    void Makes(const QStringList& keys, const QByteArray& text)
    {
        SCOPED_TRACE(keys.join(' ').toStdString());
        Keys({"Escape", "ctrl+Home"});
        Keys(keys);
        ASSERT_NO_FATAL_FAILURE(Holds(text));
        Keys({"ctrl+z"});
        ASSERT_NO_FATAL_FAILURE(Holds(kStart));
    }

    // Lines count from 0, columns are some characters wide; below 0 are the line numbers.
    void MoveTo(int line, int column)
    {
        constexpr int kFirst = 94; // pixels of the window
        constexpr int kLine = 20;
        constexpr int kText = 94;
        constexpr int kColumn = 9;
        constexpr int kNumbers = 36;
        XDoTool({"mousemove", "--window", m_windowId,
                 QString::number(column < 0 ? kNumbers : kText + column * kColumn),
                 QString::number(kFirst + line * kLine)});
    }

    void Drag(int fromLine, int fromColumn, int toLine, int toColumn)
    {
        MoveTo(fromLine, fromColumn);
        XDoTool({"mousedown", "1"});
        MoveTo(toLine, toColumn);
        XDoTool({"mouseup", "1"});
    }
};

class BlocksStory : public HandsStory
{
protected:
    QByteArray FirstText() const override { return "begin\n  begin\n    select 1;\n  end\nend\n"; }
};

class BatchesStory : public HandsStory
{
protected:
    QByteArray FirstText() const override { return "select 1;\nGO\nselect 2;\nGO\nselect 3;\n"; }
};

} // namespace

TEST_F(HandsStory, LinesAreMovedDoubledJoinedAndDeleted)
{
    Makes({"alt+Down"}, "select 2;\nselect 1;\n");
    Makes({"Down", "alt+Up"}, "select 2;\nselect 1;\n");
    Makes({"ctrl+d"}, "select 1;\nselect 1;\nselect 2;\n");
    Makes({"ctrl+j"}, "select 1; select 2;\n");
    Makes({"ctrl+shift+k"}, "select 2;\n");
    Makes({"ctrl+slash"}, "-- select 1;\nselect 2;\n");
    Keys({"ctrl+Home", "ctrl+slash", "ctrl+slash"});
    Type("x");
    Holds("xselect 1;\nselect 2;\n");
}

TEST_F(HandsStory, WhatIsSelectedIsSurroundedGrownAndDeleted)
{
    Makes({"shift+End", "alt+9"}, "(select 1;)\nselect 2;\n");
    Makes({"ctrl+shift+Right", "alt+apostrophe"}, "'select '1;\nselect 2;\n");
    Makes({"ctrl+shift+m", "Delete"}, "\nselect 2;\n");
    Makes({"ctrl+shift+Up", "Delete"}, " 1;\nselect 2;\n");
    Makes({"ctrl+l", "ctrl+l", "Delete"}, "");
    Makes({"alt+Next", "x"}, "select 1;\nxselect 2;\n");
}

TEST_F(HandsStory, OccurrencesAreSelectedAndBracketsFoundAndClosed)
{
    Makes({"alt+j", "alt+j", "x"}, "x 1;\nx 2;\n");
    Makes({"alt+shift+j", "y"}, "y 1;\ny 2;\n");
    Keys({"Escape", "ctrl+Home", "shift+End", "alt+9", "Home", "ctrl+bracketright"});
    Type("x");
    Holds("(select 1;x)\nselect 2;\n");
    Keys({"ctrl+End"});
    Type("(a)b"); // the bracket that came by itself is stepped over
    Holds("(select 1;x)\nselect 2;\n(a)b");
}

TEST_F(HandsStory, ColumnsAreTypedIntoByKeysAndMouse)
{
    Makes({"alt+shift+Right", "alt+shift+Down", "x"}, "xelect 1;\nxelect 2;\n");
    Keys({"Escape", "ctrl+Home", "alt+shift+Down"});
    Type("y");
    Holds("yselect 1;\nyselect 2;\n");
}

TEST_F(HandsStory, EachLineWithACaretIsChangedOnce)
{
    Makes({"alt+shift+Down", "ctrl+slash"}, "-- select 1;\n-- select 2;\n");
    Makes({"alt+shift+Down", "alt+Down"}, "\nselect 1;\nselect 2;");
    Makes({"alt+shift+Down", "alt+shift+Down", "ctrl+shift+k"}, "");
    Keys({"ctrl+Home"});
    MoveTo(2, 0);
    XDoTool({"keydown", "ctrl", "click", "1", "keyup", "ctrl"});
    Keys({"alt+Up"}); // the first line has nowhere to go
    Holds("select 1;\n\nselect 2;");
    Type("x");
    Holds("xselect 1;\nx\nselect 2;");
}

TEST_F(HandsStory, AColumnIsDrawnWithAltAndTheMouse)
{
    XDoTool({"keydown", "alt"});
    Drag(0, 0, 1, 6);
    XDoTool({"keyup", "alt"});
    Keys({"Delete"});
    Holds(" 1;\n 2;\n");
    Keys({"ctrl+z"});
    Holds(kStart);
}

TEST_F(HandsStory, ClicksWithControlSetSeveralCarets)
{
    Keys({"ctrl+Home"});
    MoveTo(1, 0);
    XDoTool({"keydown", "ctrl", "click", "1", "keyup", "ctrl"});
    Type("x");
    Holds("xselect 1;\nxselect 2;\n");
}

TEST_F(HandsStory, ThreeClicksSelectALine)
{
    MoveTo(0, 3);
    XDoTool({"click", "--repeat", "3", "--delay", "40", "1"});
    Keys({"Delete"});
    Holds("select 2;\n");
    Keys({"ctrl+z"});
    Holds(kStart);
}

TEST_F(HandsStory, ADragAlongTheLineNumbersSelectsLines)
{
    Drag(0, -1, 1, -1);
    Keys({"Delete"});
    Holds("");
    Keys({"ctrl+z"});
    Holds(kStart);
}

TEST_F(HandsStory, HomeGoesToTheFirstCharacterAndThenToTheLinesStart)
{
    Keys({"ctrl+Home", "space", "space", "End", "Home"});
    Type("a");
    Holds("  aselect 1;\nselect 2;\n");
    Keys({"End", "Home", "Home"});
    Type("b");
    Holds("b  aselect 1;\nselect 2;\n");
}

TEST_F(HandsStory, AFoldIsPassedAndOpenedByKeys)
{
    Keys({"ctrl+a", "Delete"});
    Type("begin");
    Keys({"Return"});
    Type("select 1;");
    Keys({"Return"});
    Type("end");
    Keys({"Return", "ctrl+Home", "ctrl+alt+bracketleft", "Down"});
    Type("x");
    Keys({"ctrl+s"});
    ASSERT_TRUE(Eventually([this] { return Read().endsWith("end\nx"); })) << Read().toStdString();
    Keys({"ctrl+Home", "ctrl+alt+bracketright", "Down", "End"});
    Type("y");
    Keys({"ctrl+s"});
    EXPECT_TRUE(Eventually([this] { return Read().contains("select 1;y"); }))
        << Read().toStdString();
}

TEST_F(HandsStory, TheMiddleButtonClosesATab)
{
    XDoTool({"mousemove", "--window", m_windowId, "30", "70", "click", "2"});
    EXPECT_TRUE(Eventually([this] { return Title() == "znworkbench"; })) << Title().toStdString();
}

TEST_F(HandsStory, TheStatementBeforeIsReached)
{
    Makes({"Down", "Down", "alt+Prior", "x"}, "select 1;\nxselect 2;\n");
    Makes({"Down", "alt+Prior", "x"}, "xselect 1;\nselect 2;\n");
}

TEST_F(HandsStory, WhatIsPastedTakesTheIndentationOfTheCaret)
{
    Keys({"ctrl+Home", "ctrl+l", "ctrl+l", "ctrl+c", "ctrl+End", "Tab", "ctrl+shift+v"});
    Holds("select 1;\nselect 2;\n    select 1;\n    select 2;\n");
    Keys({"ctrl+z"});
    Holds("select 1;\nselect 2;\n    ");
}

TEST_F(HandsStory, AMacroIsRecordedAndPlayedByKeys)
{
    Keys({"ctrl+Home", "ctrl+shift+r"});
    Type("a,");
    Keys({"ctrl+shift+r", "End", "ctrl+shift+p"});
    Holds("a,select 1;a,\nselect 2;\n");
}

TEST_F(BlocksStory, FoldsOfALevelAreClosedAndAllAreOpened)
{
    Keys({"ctrl+Home", "ctrl+alt+1", "Down", "Down"});
    Type("-- ");
    Holds("begin\n  begin\n    select 1;\n  end\n-- end\n"); // an END is of its block
    Keys({"ctrl+z", "ctrl+alt+9", "ctrl+Home", "Down", "Down"});
    Type("-- ");
    Holds("begin\n  begin\n--     select 1;\n  end\nend\n");
}

TEST_F(BatchesStory, AreWalkedThroughBothWays)
{
    Keys({"ctrl+Home", "ctrl+alt+Next"});
    Type("x");
    Holds("select 1;\nGO\nxselect 2;\nGO\nselect 3;\n");
    Keys({"ctrl+alt+Next", "ctrl+alt+Prior"});
    Type("y");
    Holds("select 1;\nGO\nyxselect 2;\nGO\nselect 3;\n");
}
