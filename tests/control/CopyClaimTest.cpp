// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/CopyClaim.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

class CopyClaims : public testing::Test
{
protected:
    QString PathOf(const char* name) const { return m_folder.filePath(QString::fromLatin1(name)); }

    QTemporaryDir m_folder;
};

// A process that claims the copy and lives until it is killed.
class Claimant
{
public:
    explicit Claimant(const QString& copy)
    {
        int ready[2];
        EXPECT_EQ(pipe(ready), 0);
        m_process = fork();
        if (m_process == 0) {
            CopyClaim claim;
            const char taken = claim.Take(copy) ? 'y' : 'n';
            if (write(ready[1], &taken, 1) == 1)
                pause();
            _exit(1);
        }
        char taken = 0;
        EXPECT_EQ(read(ready[0], &taken, 1), 1);
        EXPECT_EQ(taken, 'y');
        close(ready[0]);
        close(ready[1]);
    }
    ~Claimant() { Kill(); }
    Claimant(const Claimant&) = delete;
    Claimant& operator=(const Claimant&) = delete;

    void Kill()
    {
        if (m_process <= 0)
            return;
        kill(m_process, SIGKILL);
        EXPECT_EQ(waitpid(m_process, nullptr, 0), m_process);
        m_process = -1;
    }

private:
    pid_t m_process = -1;
};

} // namespace

TEST_F(CopyClaims, AreForOneAtATimeInAProcess)
{
    CopyClaim first;
    CopyClaim second;
    EXPECT_TRUE(first.Take(PathOf("~ZN1.tmp")));
    EXPECT_TRUE(first.Take(PathOf("~ZN1.tmp")));
    EXPECT_FALSE(second.Take(PathOf("~ZN1.tmp")));
    EXPECT_TRUE(second.Take(PathOf("~ZN2.tmp")));
    first.Release();
    EXPECT_TRUE(second.Take(PathOf("~ZN1.tmp")));
    // What was claimed before has been given back.
    EXPECT_TRUE(first.Take(PathOf("~ZN2.tmp")));
}

TEST_F(CopyClaims, EndWithTheProcessHoweverItEnds)
{
    Claimant other(PathOf("~ZN1.tmp"));
    CopyClaim claim;
    EXPECT_FALSE(claim.Take(PathOf("~ZN1.tmp")));
    other.Kill();
    EXPECT_TRUE(claim.Take(PathOf("~ZN1.tmp")));
}

TEST_F(CopyClaims, DoNotNeedTheCopyToBeThere)
{
    CopyClaim claim;
    EXPECT_TRUE(claim.Take(PathOf("~ZN1.tmp")));
    EXPECT_FALSE(QFile::exists(PathOf("~ZN1.tmp")));
}

TEST_F(CopyClaims, AreGrantedWhereNoneCanBeKept)
{
    CopyClaim claim;
    EXPECT_TRUE(claim.Take(PathOf("missing/~ZN1.tmp")));
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(QStringLiteral(".claims")));
    EXPECT_TRUE(claim.Take(PathOf("~ZN1.tmp")));
}

TEST_F(CopyClaims, AreMadeAgainWhenTheirFileWasClearedAway)
{
    CopyClaim claim;
    CopyClaim other;
    ASSERT_TRUE(claim.Take(PathOf("~ZN1.tmp")));
    ASSERT_TRUE(QFile::remove(PathOf(".claims")));
    EXPECT_TRUE(claim.Take(PathOf("~ZN1.tmp")));
    EXPECT_FALSE(other.Take(PathOf("~ZN1.tmp")));
}

TEST_F(CopyClaims, TakeNoRoomOnDisk)
{
    CopyClaim claim;
    ASSERT_TRUE(claim.Take(PathOf("~ZN1.tmp")));
    struct stat status = {};
    ASSERT_EQ(stat(PathOf(".claims").toUtf8().constData(), &status), 0);
    EXPECT_EQ(status.st_size, 0);
    EXPECT_EQ(status.st_mode & 0777, 0600u);
}
