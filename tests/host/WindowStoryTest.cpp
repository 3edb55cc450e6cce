// The real program on a real display, driven with real keys and a real mouse.
#include "tests/host/XDoTool.h"

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
        m_workbench.setProcessChannelMode(QProcess::ForwardedChannels);
        m_workbench.start(QStringLiteral(ZN_WORKBENCH), {Path()});
        ASSERT_TRUE(m_workbench.waitForStarted());
        ASSERT_TRUE(Eventually([this] {
            m_windowId =
                XDoTool({"search", "--onlyvisible", "--name", "story.sql"}).section('\n', 0, 0);
            return !m_windowId.isEmpty();
        })) << "the window does not come";
        Focus();
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
        XDoTool({"mousemove", "--window", m_windowId, "500", "400", "click", "1"});
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
