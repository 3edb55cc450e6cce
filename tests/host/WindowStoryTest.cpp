// SPDX-License-Identifier: GPL-3.0-or-later
// The real program on a real display, driven with real keys and a real mouse.
#include "tests/host/OwnPlaces.h"
#include "tests/host/XDoTool.h"

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class WindowStory : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_FALSE(qEnvironmentVariableIsEmpty("DISPLAY"));
        Write("select 1;\nselect 2;\n");
        m_workbench.setProcessEnvironment(OwnPlaces(m_folder.path()));
        m_workbench.setProcessChannelMode(QProcess::ForwardedChannels);
        ASSERT_NO_FATAL_FAILURE(Start({Path()}));
    }

    void Start(const QStringList& words)
    {
        m_workbench.start(QStringLiteral(ZN_WORKBENCH), words);
        ASSERT_TRUE(m_workbench.waitForStarted());
        ASSERT_TRUE(Eventually([this] {
            m_windowId = Visible("story.sql");
            return !m_windowId.isEmpty();
        })) << "the window does not come";
        Focus();
    }

    static QString Visible(const QString& name)
    {
        return XDoTool({"search", "--onlyvisible", "--name", name}).section('\n', 0, 0);
    }

    void TearDown() override
    {
        if (m_workbench.state() != QProcess::NotRunning) {
            m_workbench.kill();
            m_workbench.waitForFinished();
        }
    }

    QString Path() const { return m_folder.filePath(QStringLiteral("story.sql")); }

    void Write(const QByteArray& bytes) const
    {
        QFile file(Path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    QByteArray Read() const
    {
        QFile file(Path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QString Title() const { return XDoTool({"getwindowname", m_windowId}); }

    // There is no window manager to give the window the keyboard.
    void Focus()
    {
        XDoTool({"windowfocus", "--sync", m_windowId});
        Click(500, 400);
    }

    void Click(int x, int y)
    {
        XDoTool({"mousemove", "--window", m_windowId, QString::number(x), QString::number(y),
                 "click", "1"});
    }

    // Somebody else writes; the time is another one even within the second.
    void WriteFromOutside(const QByteArray& bytes) const
    {
        Write(bytes);
        QFile file(Path());
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addSecs(-3600),
                                     QFileDevice::FileModificationTime));
    }

    // To the list of problems, and back to the script.
    void LeaveAndComeBack()
    {
        Click(500, 660);
        Click(500, 200);
    }

    // The question of a box, answered with its key.
    void Answer(const QString& key)
    {
        QString box;
        ASSERT_TRUE(Eventually([&box] {
            box = Visible("^znworkbench$");
            return !box.isEmpty();
        })) << "no question comes";
        XDoTool({"windowfocus", "--sync", box});
        Keys({key});
        ASSERT_TRUE(Eventually([] { return Visible("^znworkbench$").isEmpty(); }));
        XDoTool({"windowfocus", "--sync", m_windowId});
    }

    void Keys(const QStringList& keys) { XDoTool(QStringList{"key", "--delay", "20"} + keys); }
    void Type(const QString& text) { XDoTool({"type", "--delay", "20", "--", text}); }

    QTemporaryDir m_folder;
    QProcess m_workbench;
    QString m_windowId;
};

} // namespace

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
