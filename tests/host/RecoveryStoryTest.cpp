// SPDX-License-Identifier: GPL-3.0-or-later
// A workbench is killed while a script has changes; the next one is the real program on a real
// display, and the question is answered with its keys.
#include "tests/host/OwnPlaces.h"
#include "tests/host/XDoTool.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class RecoveryStory : public testing::Test
{
protected:
    void SetUp() override { Recover("select 1;\n", {Path()}); }

    void Recover(const QByteArray& bytes, const QStringList& words)
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

        m_workbench.setProcessEnvironment(OwnPlaces(m_folder.path()));
        m_workbench.setProcessChannelMode(QProcess::ForwardedChannels);
        m_workbench.start(QStringLiteral(ZN_WORKBENCH), {Path()});
        ASSERT_TRUE(m_workbench.waitForStarted());
        // The question stands before the window that is still without a script.
        ASSERT_TRUE(Eventually([] { return Visible("znworkbench").size() >= 2; }));
        ASSERT_TRUE(Visible("story.sql").isEmpty());
    }

    void TearDown() override
    {
        m_workbench.kill();
        m_workbench.waitForFinished();
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

    // The question has the window's name and was made after it.
    static bool Answer(const QString& key)
    {
        XDoTool({"windowfocus", "--sync", Visible("znworkbench").last()});
        XDoTool({"key", key});
        return Eventually([] { return !Visible("story.sql").isEmpty(); });
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
                {Path(), QStringLiteral("opening")});
    }
};

} // namespace

TEST_F(RecoveryStory, YesBringsBackWhatWasTyped)
{
    ASSERT_TRUE(Answer(QStringLiteral("alt+y")));
    EXPECT_TRUE(Eventually([] { return Title().contains(u'*'); })) << Title().toStdString();
    EXPECT_EQ(Read(), QByteArray("select 1;\n"));
    XDoTool({"windowfocus", "--sync", Visible("story.sql").value(0)});
    XDoTool({"key", "ctrl+s"});
    EXPECT_TRUE(Eventually([this] { return Read() == "-- typed\nselect 1;\n"; }))
        << Read().toStdString();
}

TEST_F(DeathStory, AFileThatTheLastRunDiedOnIsOpenedOnlyWhenThePersonSaysSo)
{
    XDoTool({"windowfocus", "--sync", Visible("znworkbench").last()});
    XDoTool({"key", "Escape"});
    EXPECT_TRUE(Eventually([] { return !Visible("Script 1").isEmpty(); })) << "no empty script";
    EXPECT_TRUE(Visible("story.sql").isEmpty());
    EXPECT_EQ(m_workbench.state(), QProcess::Running);
}

TEST_F(RecoveryStory, NoKeepsWhatIsInTheFile)
{
    ASSERT_TRUE(Answer(QStringLiteral("alt+n")));
    EXPECT_FALSE(Title().contains(u'*')) << Title().toStdString();
    EXPECT_EQ(Read(), QByteArray("select 1;\n"));
}
