// SPDX-License-Identifier: GPL-3.0-or-later
// The real program on a real display, driven with real keys and a real mouse.
#include "tests/host/WindowStory.h"

TEST_F(WindowStory, WhatIsTypedCutPastedAndSavedIsInTheFile)
{
    // A line at the top, then that line moved to the end.
    Keys({"ctrl+Home"});
    Type(QStringLiteral("-- Typed: (a_b) 'c'"));
    Keys({"Return", "shift+Up", "ctrl+x", "ctrl+End", "ctrl+v"});
    ASSERT_TRUE(Eventually([this] { return Title().contains(u'*'); })) << Title().toStdString();
    Keys({"ctrl+s"});
    EXPECT_TRUE(Eventually([this] {
        return Read() == "select 1;\nselect 2;\n-- Typed: (a_b) 'c'\n";
    })) << Read().toStdString();
    EXPECT_TRUE(Eventually([this] { return !Title().contains(u'*'); })) << Title().toStdString();
}

TEST_F(WindowStory, AClickBelowTheTextPutsTheCaretAtItsEnd)
{
    Type(QStringLiteral("tail"));
    Keys({"ctrl+s"});
    EXPECT_TRUE(Eventually([this] { return Read() == "select 1;\nselect 2;\ntail"; }))
        << Read().toStdString();
}

TEST_F(WindowStory, UndoTakesBackWhatTheFileHolds)
{
    Type(QStringLiteral("x"));
    Keys({"ctrl+s"});
    ASSERT_TRUE(Eventually([this] { return Read().endsWith("x"); }));
    Keys({"ctrl+z", "ctrl+s"});
    EXPECT_TRUE(Eventually([this] { return Read() == "select 1;\nselect 2;\n"; }))
        << Read().toStdString();
}

TEST_F(WindowStory, CtrlAndTabGoBackAndForthBetweenTwoScripts)
{
    const auto isInFront = [this](const QString& name) {
        return Eventually([&] { return Title().startsWith(name); });
    };
    Keys({"ctrl+n", "ctrl+n"});
    ASSERT_TRUE(isInFront("Script 2")) << Title().toStdString();
    Keys({"ctrl+Tab"});
    ASSERT_TRUE(isInFront("Script 1")) << Title().toStdString();
    Keys({"ctrl+Tab"});
    ASSERT_TRUE(isInFront("Script 2")) << Title().toStdString();
    // Held: nothing comes to the front before it is let go.
    XDoTool({"keydown", "ctrl", "key", "Tab", "key", "Tab"});
    EXPECT_TRUE(Title().startsWith("Script 2")) << Title().toStdString();
    XDoTool({"keyup", "ctrl"});
    EXPECT_TRUE(isInFront("story.sql")) << Title().toStdString();
    XDoTool({"keydown", "ctrl", "key", "Tab", "key", "Escape", "keyup", "ctrl"});
    Type(QStringLiteral("x"));
    Keys({"ctrl+s"});
    EXPECT_TRUE(Eventually([this] { return Read().endsWith("x"); })) << Read().toStdString();
}

TEST_F(WindowStory, TheQuitKeysEndTheProgram)
{
    Keys({"ctrl+q"});
    ASSERT_TRUE(m_workbench.waitForFinished(kPatienceInMs));
    EXPECT_EQ(m_workbench.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(m_workbench.exitCode(), 0);
}

TEST_F(WindowStory, AWindowWithChangesAsksBeforeItCloses)
{
    Type(QStringLiteral("x"));
    ASSERT_TRUE(Eventually([this] { return Title().contains(u'*'); }));
    Keys({"ctrl+q"});
    QString box;
    ASSERT_TRUE(Eventually([&box] {
        box = XDoTool({"search", "--onlyvisible", "--name", "Unsaved changes"});
        return !box.isEmpty();
    }));
    XDoTool({"windowfocus", "--sync", box});
    Keys({"Escape"});
    EXPECT_TRUE(Eventually([] {
        return XDoTool({"search", "--onlyvisible", "--name", "Unsaved changes"}).isEmpty();
    }));
    EXPECT_EQ(m_workbench.state(), QProcess::Running);
    EXPECT_EQ(Read(), QByteArray("select 1;\nselect 2;\n"));
}

TEST_F(WindowStory, APaneOfASplitScriptTypesIntoTheSameText)
{
    Keys({"ctrl+Home"});
    Type(QStringLiteral("a"));
    ASSERT_TRUE(Eventually([this] { return Title().contains(u'*'); }));
    Keys({"ctrl+z"});
    ASSERT_TRUE(Eventually([this] { return !Title().contains(u'*'); }));

    Keys({"ctrl+backslash", "ctrl+Home"});
    Type(QStringLiteral("two "));
    Keys({"F6", "ctrl+Home"});
    Type(QStringLiteral("one "));
    Keys({"ctrl+s"});
    EXPECT_TRUE(Eventually([this] { return Read() == "one two select 1;\nselect 2;\n"; }))
        << Read().toStdString();
}

TEST_F(WindowStory, AFileThatOthersChangeIsReadAgainOnYes)
{
    WriteFromOutside("from outside\n");
    LeaveAndComeBack();
    ASSERT_NO_FATAL_FAILURE(Answer("alt+y"));
    Keys({"ctrl+Home"});
    Type(QStringLiteral("read "));
    Keys({"ctrl+s"});
    EXPECT_TRUE(Eventually([this] { return Read() == "read from outside\n"; }))
        << Read().toStdString();
}

TEST_F(WindowStory, AFileThatOthersChangeIsNotSavedOverWithoutAYes)
{
    Keys({"ctrl+Home"});
    Type(QStringLiteral("mine "));
    ASSERT_TRUE(Eventually([this] { return Title().contains(u'*'); }));
    WriteFromOutside("from outside\n");
    Keys({"ctrl+s"});
    ASSERT_NO_FATAL_FAILURE(Answer("alt+o"));
    EXPECT_TRUE(Eventually([this] { return Read() == "mine select 1;\nselect 2;\n"; }))
        << Read().toStdString();
    EXPECT_TRUE(Eventually([this] { return !Title().contains(u'*'); })) << Title().toStdString();
}

TEST_F(WindowStory, AFileThatOthersDeleteIsKeptOnNoAndSavedAgain)
{
    QFile::remove(Path());
    LeaveAndComeBack();
    ASSERT_NO_FATAL_FAILURE(Answer("alt+n"));
    EXPECT_TRUE(Eventually([this] { return Title().contains(u'*'); })) << Title().toStdString();
    Keys({"ctrl+s"});
    EXPECT_TRUE(Eventually([this] { return Read() == "select 1;\nselect 2;\n"; }))
        << Read().toStdString();
}

TEST_F(WindowStory, KeysOfMenusAndOfTheKeyTableTakeEffectOnce)
{
    Keys({"ctrl+Home", "Delete", "ctrl+z", "ctrl+Home", "Tab", "shift+Tab"});
    Keys({"ctrl+Home", "ctrl+shift+Right", "ctrl+x", "ctrl+v", "ctrl+v"});
    Keys({"ctrl+s"});
    EXPECT_TRUE(Eventually([this] { return Read() == "select select 1;\nselect 2;\n"; }))
        << Read().toStdString();
    Keys({"ctrl+a", "Delete", "ctrl+s"});
    EXPECT_TRUE(Eventually([this] { return Read().isEmpty(); })) << Read().toStdString();
}

TEST_F(WindowStory, AClosedTabIsGoneAndAClosedWindowComesBackWithItsScripts)
{
    Keys({"ctrl+q"});
    ASSERT_TRUE(m_workbench.waitForFinished(kPatienceInMs));
    ASSERT_NO_FATAL_FAILURE(Start({}));
    Keys({"ctrl+F4"});
    EXPECT_TRUE(Eventually([this] { return Title() == "znworkbench"; })) << Title().toStdString();
}

TEST_F(WindowStory, FindsByAnExpressionThatIsTyped)
{
    Keys({"ctrl+Home", "ctrl+f"});
    Type("sel(ect) \\d;");
    Keys({"alt+x", "Return", "Escape"}); // from the first match, which is shown, to the second
    Type("x");
    Keys({"ctrl+s"});
    EXPECT_TRUE(Eventually([this] { return Read() == "select 1;\nx\n"; })) << Read().toStdString();
}

TEST_F(WindowStory, WalksThroughTabsAndBringsAClosedOneBack)
{
    Keys({"ctrl+n"});
    EXPECT_TRUE(Eventually([this] { return !Title().startsWith("story.sql"); }));
    Keys({"ctrl+Next"});
    EXPECT_TRUE(Eventually([this] { return Title().startsWith("story.sql"); }));
    Keys({"ctrl+w"});
    EXPECT_TRUE(Eventually([this] { return !Title().startsWith("story.sql"); }));
    Keys({"ctrl+shift+t"});
    EXPECT_TRUE(Eventually([this] { return Title().startsWith("story.sql"); }));
}

TEST_F(WindowStory, ALaterStartOpensItsFileInTheWindowThatIsThere)
{
    QFile other(m_folder.filePath(QStringLiteral("later.sql")));
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    other.write("select 3;\nselect 4;\n");
    other.close();
    QProcess later;
    later.setProcessEnvironment(OwnPlaces(m_folder.path()));
    later.setWorkingDirectory(m_folder.path());
    later.start(QStringLiteral(ZN_WORKBENCH), {QStringLiteral("later.sql:2")});
    ASSERT_TRUE(later.waitForFinished(kPatienceInMs));
    EXPECT_EQ(later.exitCode(), 0);
    ASSERT_TRUE(Eventually([this] { return Title().contains(QLatin1String("later.sql")); }))
        << Title().toStdString();
    Type(QStringLiteral("-- "));
    Keys({"ctrl+s"});
    EXPECT_TRUE(Eventually([&other] {
        const bool isOpen = other.open(QIODevice::ReadOnly);
        const QByteArray bytes = other.readAll();
        other.close();
        return isOpen && bytes == "select 3;\n-- select 4;\n";
    }));
}

TEST_F(WindowStory, ALaterStartWhileTheWindowAsksWhetherToGoHasAWindow)
{
    QFile other(m_folder.filePath(QStringLiteral("later.sql")));
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    other.close();
    Type("x");
    Keys({"ctrl+q"});
    ASSERT_TRUE(Eventually([] { return !Visible("Unsaved changes").isEmpty(); }));
    QProcess later;
    later.setProcessEnvironment(OwnPlaces(m_folder.path()));
    later.start(QStringLiteral(ZN_WORKBENCH), {other.fileName()});
    ASSERT_TRUE(later.waitForFinished(kPatienceInMs));
    XDoTool({"windowfocus", "--sync", Visible("Unsaved changes")});
    Keys({"alt+d"});
    EXPECT_TRUE(Eventually([] { return !Visible("later.sql").isEmpty(); }));
    EXPECT_EQ(Read(), QByteArray("select 1;\nselect 2;\n"));
}
