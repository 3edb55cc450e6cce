// SPDX-License-Identifier: GPL-3.0-or-later
// A workbench is killed while scripts have changes; the next one is the real program on a real
// display, and its list is answered with its keys.
#include "tests/host/OwnPlaces.h"
#include "tests/host/XDoTool.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class RecoveryStory : public testing::Test
{
protected:
    void SetUp() override
    {
        Recover("select 1;\n", {Path(), QStringLiteral("--new")}, "Recover Scripts");
    }

    // The box stands before the window that is still without a script.
    void Recover(const QByteArray& bytes, const QStringList& words, const char* box)
    {
        ASSERT_FALSE(qEnvironmentVariableIsEmpty("DISPLAY"));
        QFile file(Path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        QProcess crashing;
        crashing.setProcessEnvironment(OwnPlaces(m_folder.path()));
        crashing.start(QStringLiteral(ZN_CRASHING_WORKBENCH), words);
        ASSERT_TRUE(crashing.waitForFinished(kPatienceInMs));
        ASSERT_EQ(crashing.exitStatus(), QProcess::CrashExit);

        StartWorkbench();
        ASSERT_TRUE(Eventually([&] { return IsAsked(box); }));
        ASSERT_TRUE(Visible("story.sql").isEmpty());
    }

    void StartWorkbench()
    {
        m_workbench.setProcessEnvironment(OwnPlaces(m_folder.path()));
        m_workbench.setProcessChannelMode(QProcess::ForwardedChannels);
        m_workbench.start(QStringLiteral(ZN_WORKBENCH), {Path()});
        ASSERT_TRUE(m_workbench.waitForStarted());
    }

    void TearDown() override
    {
        m_workbench.kill();
        m_workbench.waitForFinished();
    }

    // As a person ends it: one that is killed while it opens a file is asked about that file.
    void Quit()
    {
        XDoTool({"windowfocus", "--sync", Visible("story.sql").value(0)});
        XDoTool({"key", "ctrl+q"});
        ASSERT_TRUE(m_workbench.waitForFinished(kPatienceInMs));
        ASSERT_EQ(m_workbench.exitCode(), 0);
    }

    QString Path() const { return m_folder.filePath(QStringLiteral("story.sql")); }

    QByteArray Read() const
    {
        QFile file(Path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static QStringList Visible(const char* name)
    {
        return XDoTool({"search", "--onlyvisible", "--name", QString::fromLatin1(name)})
            .split('\n', Qt::SkipEmptyParts);
    }

    // A question has the window's name and was made after it.
    static bool IsAsked(const char* box)
    {
        const QStringList windows = Visible(box);
        return QLatin1String(box) == QLatin1String("znworkbench") ? windows.size() >= 2
                                                                  : !windows.isEmpty();
    }

    static void Answer(const char* box, const QStringList& keys)
    {
        XDoTool({"windowfocus", "--sync", Visible(box).last()});
        for (const QString& key : keys)
            XDoTool({"key", key});
    }

    static QString Title() { return XDoTool({"getwindowname", Visible("story.sql").value(0)}); }

    QTemporaryDir m_folder;
    QProcess m_workbench;
};

// The file ends within a character, of which the workbench tells while it opens it.
class DeathStory : public RecoveryStory
{
protected:
    void SetUp() override
    {
        Recover(QByteArray("\xFF\xFE"
                           "a\0b",
                           5),
                {Path(), QStringLiteral("opening")}, "znworkbench");
    }
};

} // namespace

TEST_F(RecoveryStory, EnterBringsBackWhatWasTyped)
{
    Answer("Recover Scripts", {QStringLiteral("Return")});
    // The script without a name is the last one, and in front.
    ASSERT_TRUE(Eventually([] { return !Visible("Script 1").isEmpty(); }));
    XDoTool({"windowfocus", "--sync", Visible("Script 1").value(0)});
    XDoTool({"key", "ctrl+shift+Tab"});
    ASSERT_TRUE(Eventually([] { return !Visible("story.sql").isEmpty(); }));
    EXPECT_TRUE(Title().contains(u'*')) << Title().toStdString();
    EXPECT_EQ(Read(), QByteArray("select 1;\n"));
    XDoTool({"key", "ctrl+s"});
    EXPECT_TRUE(Eventually([this] { return Read() == "-- typed\nselect 1;\n"; }))
        << Read().toStdString();
}

TEST_F(RecoveryStory, EscapeLeavesEverythingForLater)
{
    Answer("Recover Scripts", {QStringLiteral("Escape")});
    ASSERT_TRUE(Eventually([] { return !Visible("story.sql").isEmpty(); }));
    EXPECT_FALSE(Title().contains(u'*')) << Title().toStdString();
    EXPECT_EQ(Read(), QByteArray("select 1;\n"));
    ASSERT_NO_FATAL_FAILURE(Quit());
    StartWorkbench();
    EXPECT_TRUE(Eventually([] { return IsAsked("Recover Scripts"); }));
}

TEST_F(RecoveryStory, AChoiceIsMadeWithKeys)
{
    // From the list to the choice of each script, where a letter takes the one that begins with it.
    Answer("Recover Scripts", {QStringLiteral("Tab"), QStringLiteral("d"), QStringLiteral("Tab"),
                               QStringLiteral("d"), QStringLiteral("Return")});
    ASSERT_TRUE(Eventually([] { return !Visible("story.sql").isEmpty(); }));
    EXPECT_FALSE(Title().contains(u'*')) << Title().toStdString();
    ASSERT_NO_FATAL_FAILURE(Quit());
    StartWorkbench();
    ASSERT_TRUE(Eventually([] { return !Visible("story.sql").isEmpty(); }));
    EXPECT_TRUE(Visible("Recover Scripts").isEmpty());
}

TEST_F(DeathStory, AFileThatTheLastRunDiedOnIsOpenedOnlyWhenThePersonSaysSo)
{
    Answer("znworkbench", {QStringLiteral("Escape")});
    EXPECT_TRUE(Eventually([] { return !Visible("Script 1").isEmpty(); })) << "no empty script";
    EXPECT_TRUE(Visible("story.sql").isEmpty());
    EXPECT_EQ(m_workbench.state(), QProcess::Running);
}
