// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/files/OpenGuard.h"
#include "host/files/Prompts.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMainWindow>
#include <QMessageBox>
#include <QScreen>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

namespace {

// Runs what a workbench does in a process that then dies, with everything that is on its stack
// left as it is.
template <typename Work>
void Die(Work work)
{
    const pid_t child = fork();
    if (child == 0) {
        work();
        _exit(0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
}

class OpenGuardTest : public testing::Test
{
protected:
    void DieOn(const QStringList& paths)
    {
        Die([&] {
            auto* guard = new OpenGuard(marks);
            std::vector<OpenGuard::Mark> open;
            for (const QString& path : paths)
                open.push_back(guard->Open(path));
            _exit(0);
        });
    }
    qsizetype MarkFiles() const { return QDir(marks).entryList(QDir::Files).size(); }

    QTemporaryDir folder;
    QString marks = folder.filePath("opening");
};

} // namespace

TEST_F(OpenGuardTest, KnowsNothingAtFirst)
{
    OpenGuard guard(marks);
    EXPECT_TRUE(guard.DiedOn().isEmpty());
    EXPECT_FALSE(guard.IsSuspect("/x/a.sql"));
    guard.Acquit("/x/a.sql");
    EXPECT_EQ(MarkFiles(), 0);
}

TEST_F(OpenGuardTest, TellsWhatTheLastRunDiedOn)
{
    DieOn({"/x/a.sql", "/x/\u00E9 \"b\".sql", "/x/a.sql"});
    OpenGuard guard(marks);
    EXPECT_EQ(guard.DiedOn(), (QStringList{"/x/a.sql", "/x/\u00E9 \"b\".sql"}));
    EXPECT_TRUE(guard.IsSuspect("/x/a.sql"));
    EXPECT_TRUE(guard.IsSuspect("/x/./y/../a.sql"));
    EXPECT_FALSE(guard.IsSuspect("/x/c.sql"));
}

TEST_F(OpenGuardTest, ForgetsAFileThatWasShown)
{
    Die([&] {
        auto* guard = new OpenGuard(marks);
        {
            const OpenGuard::Mark shown = guard->Open("/x/a.sql");
        }
        _exit(0);
    });
    EXPECT_TRUE(OpenGuard(marks).DiedOn().isEmpty());
}

TEST_F(OpenGuardTest, LeavesNothingAfterAnOrderlyEnd)
{
    {
        OpenGuard guard(marks);
        const OpenGuard::Mark open = guard.Open("/x/a.sql");
        EXPECT_EQ(MarkFiles(), 1);
    }
    EXPECT_EQ(MarkFiles(), 0);
    EXPECT_TRUE(OpenGuard(marks).DiedOn().isEmpty());
}

TEST_F(OpenGuardTest, LeavesTheMarksOfAWorkbenchThatRuns)
{
    OpenGuard first(marks);
    const OpenGuard::Mark open = first.Open("/x/a.sql");
    OpenGuard second(marks);
    EXPECT_TRUE(second.DiedOn().isEmpty());
    EXPECT_EQ(MarkFiles(), 1);
    Die([&] { // in another process as well
        if (!OpenGuard(marks).DiedOn().isEmpty())
            _exit(1);
    });
    EXPECT_EQ(MarkFiles(), 1);
}

TEST_F(OpenGuardTest, TellsOfSeveralRunsAtOnce)
{
    DieOn({"/x/a.sql"});
    Die([&] {
        auto* guard = new OpenGuard(marks); // takes over what the first has left
        auto* open = new OpenGuard::Mark(guard->Open("/x/b.sql"));
        (void)open;
        _exit(0);
    });
    OpenGuard guard(marks);
    EXPECT_EQ(guard.DiedOn(), (QStringList{"/x/a.sql", "/x/b.sql"}));
    EXPECT_EQ(MarkFiles(), 1);
}

TEST_F(OpenGuardTest, TellsAgainOfWhatNobodyHasDecided)
{
    DieOn({"/x/a.sql", "/x/b.sql"});
    Die([&] {
        auto* guard = new OpenGuard(marks);
        guard->Acquit("/x/../x/a.sql");
        _exit(0);
    });
    OpenGuard guard(marks);
    EXPECT_EQ(guard.DiedOn(), QStringList{"/x/b.sql"});
}

TEST_F(OpenGuardTest, AcquitsAFileThatCouldBeShownThisTime)
{
    DieOn({"/x/a.sql", "/x/b.sql"});
    Die([&] {
        auto* guard = new OpenGuard(marks);
        {
            const OpenGuard::Mark shown = guard->Open("/x/a.sql");
        }
        _exit(0);
    });
    EXPECT_EQ(OpenGuard(marks).DiedOn(), QStringList{"/x/b.sql"});
}

TEST_F(OpenGuardTest, KnowsAFileByItsLinks)
{
    const QString path = folder.filePath("a.sql");
    ASSERT_TRUE(QFile(path).open(QFile::WriteOnly));
    QFile::link(path, folder.filePath("link.sql"));
    DieOn({folder.filePath("link.sql")});
    OpenGuard guard(marks);
    EXPECT_TRUE(guard.IsSuspect(path));
    guard.Acquit(path);
    EXPECT_TRUE(guard.DiedOn().isEmpty());
}

TEST_F(OpenGuardTest, MarksAFileAsOftenAsItIsOpened)
{
    Die([&] {
        auto* guard = new OpenGuard(marks);
        auto* still = new OpenGuard::Mark(guard->Open("/x/a.sql"));
        OpenGuard::Mark shown = guard->Open("/x/a.sql");
        OpenGuard::Mark moved = guard->Open("/x/b.sql");
        shown = std::move(moved); // the first of the two ends with the other name
        (void)still;
        _exit(0);
    });
    EXPECT_EQ(OpenGuard(marks).DiedOn(), (QStringList{"/x/a.sql", "/x/b.sql"}));
}

TEST_F(OpenGuardTest, IsNotMisledByWhatElseIsInTheFolder)
{
    QDir().mkpath(marks + "/folder.opening");
    const auto put = [&](const QString& name, const QByteArray& bytes) {
        QFile file(marks + u'/' + name);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(bytes);
    };
    put("notes.txt", R"(["/x/notes.sql"])");
    put("1.opening", "nonsense");
    put("2.opening", R"([3, "relative.sql", "", "/x/\u0000", {"a": 1}, "/x/a.sql"])");
    put("3.opening", "");
    put("4.opening", QByteArray(2 * 1024 * 1024, '['));
    QFile::link(folder.filePath("away"), marks + "/5.opening");
    EXPECT_EQ(OpenGuard(marks).DiedOn(), QStringList{"/x/a.sql"});
    EXPECT_TRUE(QFile::exists(marks + "/notes.txt"));
}

TEST_F(OpenGuardTest, IsAbsentWithoutAFolder)
{
    OpenGuard nowhere((QString()));
    const OpenGuard::Mark open = nowhere.Open("/x/a.sql");
    EXPECT_TRUE(nowhere.DiedOn().isEmpty());
    ASSERT_TRUE(QFile(folder.filePath("file")).open(QFile::WriteOnly));
    OpenGuard refused(folder.filePath("file/below"));
    const OpenGuard::Mark other = refused.Open("/x/a.sql");
    EXPECT_TRUE(refused.DiedOn().isEmpty());
}

TEST(OpenGuard, AsksInTheMiddleOfTheScreenUntilTheWindowHasItsPlace)
{
    QMainWindow unplaced;
    QPoint off;
    QTimer::singleShot(0, [&off] {
        QWidget* box = QApplication::activeModalWidget();
        ASSERT_NE(box, nullptr);
        off = box->geometry().center() - box->screen()->availableGeometry().center();
        EXPECT_TRUE(box->testAttribute(Qt::WA_Moved));
        box->close();
    });
    EXPECT_FALSE(DialogPrompts().Confirm(&unplaced, OpenAgainQuestion("/x.sql"), "Open"));
    EXPECT_LE(off.manhattanLength(), 12); // a frame
}

TEST_F(OpenGuardTest, HasAPlaceOfTheUsersAndAQuestion)
{
    EXPECT_TRUE(QDir::isAbsolutePath(OpenGuard::DefaultFolder()));
    EXPECT_TRUE(OpenAgainQuestion("/x/%1.sql").contains("/x/%1.sql"));
}
