// SPDX-License-Identifier: GPL-3.0-or-later
// Writing in place and beside: what stands on the disk after every failure.
#include "platform/file/TargetFile.h"
#include "tests/RandomSeed.h"
#include "tests/platform/file/FullDisk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <string>

#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

class TargetFiles : public testing::Test
{
protected:
    TargetFiles()
    {
        std::string pattern = (fs::temp_directory_path() / "target-XXXXXX").string();
        folder = mkdtemp(pattern.data());
    }
    ~TargetFiles() override { fs::remove_all(folder); }

    QByteArray PathOf(const char* name) const { return QByteArray((folder / name).c_str()); }

    void Put(const char* name, const std::string& bytes) const
    {
        std::ofstream(folder / name, std::ios::binary) << bytes;
    }

    std::string Get(const char* name) const
    {
        std::ifstream file(folder / name, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), {});
    }

    std::size_t Entries() const
    {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
    }

    static bool WriteAll(TargetFile& file, const std::string& text)
    {
        return file.Write(text.data(), text.size()) && file.Close();
    }

    fs::path folder;
};

TEST_F(TargetFiles, InPlaceEmptiesTheTargetAtOnce)
{
    Put("a", "old text");
    TargetFile file;
    ASSERT_TRUE(file.OpenInPlace(PathOf("a")));
    EXPECT_EQ(Get("a"), "");
    EXPECT_TRUE(WriteAll(file, "new"));
    EXPECT_EQ(Get("a"), "new");
}

TEST_F(TargetFiles, BesideKeepsTheTargetUntilItIsClosed)
{
    Put("a", "old text");
    TargetFile file;
    ASSERT_TRUE(file.OpenBeside(PathOf("a")));
    file.Write("new", 3);
    EXPECT_EQ(Get("a"), "old text");
    EXPECT_EQ(Entries(), 2u);
    EXPECT_TRUE(file.Close());
    EXPECT_EQ(Get("a"), "new");
    EXPECT_EQ(Entries(), 1u);
}

TEST_F(TargetFiles, BesideGivesUpWhatIsNotClosed)
{
    Put("a", "old text");
    {
        TargetFile file;
        ASSERT_TRUE(file.OpenBeside(PathOf("a")));
        file.Write("new", 3);
    }
    EXPECT_EQ(Get("a"), "old text");
    EXPECT_EQ(Entries(), 1u);
}

TEST_F(TargetFiles, BesideMakesAFileWithTheUsualMode)
{
    const mode_t before = umask(027);
    TargetFile file;
    ASSERT_TRUE(file.OpenBeside(PathOf("a")));
    EXPECT_TRUE(WriteAll(file, "new"));
    umask(before);
    struct stat status;
    ASSERT_EQ(stat(PathOf("a").constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0640u);
}

TEST_F(TargetFiles, BesideKeepsPermissionsAndOwner)
{
    Put("a", "old");
    ASSERT_EQ(chmod(PathOf("a").constData(), 0751), 0);
    const bool given = chown(PathOf("a").constData(), 12345, 23456) == 0;
    TargetFile file;
    ASSERT_TRUE(file.OpenBeside(PathOf("a")));
    EXPECT_TRUE(WriteAll(file, "new"));
    struct stat status;
    ASSERT_EQ(stat(PathOf("a").constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0751u);
    EXPECT_EQ(status.st_uid, given ? 12345u : geteuid());
}

TEST_F(TargetFiles, BesideFollowsLinks)
{
    fs::create_directory(folder / "deep");
    Put("deep/file", "old");
    fs::create_symlink("deep/file", folder / "near");
    fs::create_symlink(folder / "near", folder / "far");
    TargetFile file;
    ASSERT_TRUE(file.OpenBeside(PathOf("far")));
    EXPECT_TRUE(WriteAll(file, "new"));
    EXPECT_TRUE(fs::is_symlink(folder / "far"));
    EXPECT_TRUE(fs::is_symlink(folder / "near"));
    EXPECT_FALSE(fs::is_symlink(folder / "deep/file"));
    EXPECT_EQ(Get("deep/file"), "new");
}

TEST_F(TargetFiles, BesideFollowsALinkToNothing)
{
    fs::create_symlink("later", folder / "link");
    TargetFile file;
    ASSERT_TRUE(file.OpenBeside(PathOf("link")));
    EXPECT_TRUE(WriteAll(file, "new"));
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_EQ(Get("later"), "new");
}

TEST_F(TargetFiles, BesideFollowsAsManyLinksAsTheSystemDoes)
{
    Put("0", "old");
    for (int i = 1; i <= 41; ++i)
        fs::create_symlink(std::to_string(i - 1), folder / std::to_string(i));
    for (const char* name : {"40", "41"}) {
        const bool opens = access(PathOf(name).constData(), W_OK) == 0;
        const int reason = opens ? 0 : errno;
        TargetFile file;
        ASSERT_EQ(file.OpenBeside(PathOf(name)), opens) << name;
        EXPECT_EQ(file.Error(), reason) << name;
        EXPECT_TRUE(!opens || WriteAll(file, name));
    }
    EXPECT_EQ(Get("0"), "40");
}

// The name of the file that is written beside it is longer, unless there is no room.
TEST_F(TargetFiles, BesideWritesAFileWithTheLongestPathThatThereIs)
{
    constexpr std::size_t kFolder = PATH_MAX - 1 - 195;
    std::string path = folder.string() + '/';
    while (path.size() < kFolder) {
        const std::size_t room = kFolder - path.size() - 1;
        path += std::string(room <= 200 ? room : std::min<std::size_t>(200, room - 2), 'd') + '/';
    }
    ASSERT_EQ(path.size(), kFolder);
    fs::create_directories(path);
    path += std::string(195, 'n');
    TargetFile file;
    ASSERT_TRUE(file.OpenBeside(QByteArray(path.c_str()))) << file.Error();
    EXPECT_FALSE(file.WritesOver());
    EXPECT_TRUE(WriteAll(file, "new"));
    std::string text;
    std::getline(std::ifstream(path), text);
    EXPECT_EQ(text, "new");
}

TEST_F(TargetFiles, LinksThatGoRoundAreNoTarget)
{
    fs::create_symlink("b", folder / "a");
    fs::create_symlink("a", folder / "b");
    TargetFile file;
    EXPECT_FALSE(file.OpenBeside(PathOf("a")));
    EXPECT_FALSE(TargetFile().OpenInPlace(PathOf("a")));
}

TEST_F(TargetFiles, AFolderAndAMissingFolderAreNoTargets)
{
    EXPECT_FALSE(TargetFile().OpenBeside(QByteArray(folder.c_str())));
    EXPECT_FALSE(TargetFile().OpenInPlace(QByteArray(folder.c_str())));
    EXPECT_FALSE(TargetFile().OpenBeside(PathOf("missing/a")));
    EXPECT_FALSE(TargetFile().OpenInPlace(PathOf("missing/a")));
    EXPECT_FALSE(TargetFile().OpenBeside(QByteArray()));
    EXPECT_EQ(Entries(), 0u);
}

TEST_F(TargetFiles, APipeWithoutAReaderIsNoTarget)
{
    ASSERT_EQ(mkfifo(PathOf("pipe").constData(), 0600), 0);
    EXPECT_FALSE(TargetFile().OpenBeside(PathOf("pipe")));
    EXPECT_FALSE(TargetFile().OpenInPlace(PathOf("pipe")));
}

TEST_F(TargetFiles, AFullDeviceFailsHoweverLittleIsWritten)
{
    for (const std::size_t size : {std::size_t(1), std::size_t(1) << 20}) {
        TargetFile inPlace;
        ASSERT_TRUE(inPlace.OpenInPlace("/dev/full"));
        EXPECT_FALSE(WriteAll(inPlace, std::string(size, 'x')));
        TargetFile beside;
        ASSERT_TRUE(beside.OpenBeside("/dev/full"));
        EXPECT_FALSE(WriteAll(beside, std::string(size, 'x')));
    }
}

TEST_F(TargetFiles, AFailedWriteIsNotForgotten)
{
    TargetFile file;
    ASSERT_TRUE(file.OpenInPlace("/dev/full"));
    EXPECT_FALSE(file.Write(std::string(1 << 20, 'x').data(), 1 << 20));
    EXPECT_FALSE(file.Write("", 0));
    EXPECT_FALSE(file.Close());
    EXPECT_FALSE(file.Close());
}

TEST_F(TargetFiles, BesideSurvivesADiskThatFillsUpAtAnyPoint)
{
    const std::string old = "old text";
    Put("a", old);
    const std::string text(300'000, 'n');
    for (const rlim_t room : {0ul, 1ul, 65'535ul, 65'536ul, 200'000ul, 299'999ul}) {
        bool closed = true;
        {
            const FullDisk full(room);
            TargetFile file;
            ASSERT_TRUE(file.OpenBeside(PathOf("a")));
            closed = WriteAll(file, text);
        }
        EXPECT_FALSE(closed) << room;
        EXPECT_EQ(Get("a"), old) << room;
        EXPECT_EQ(Entries(), 1u) << room;
    }
    TargetFile file;
    ASSERT_TRUE(file.OpenBeside(PathOf("a")));
    EXPECT_TRUE(WriteAll(file, text));
    EXPECT_EQ(Get("a"), text);
}

TEST_F(TargetFiles, BesideFailsIfTheFolderGoesAway)
{
    fs::create_directory(folder / "deep");
    Put("deep/a", "old");
    TargetFile file;
    ASSERT_TRUE(file.OpenBeside(PathOf("deep/a")));
    fs::remove_all(folder / "deep");
    EXPECT_FALSE(WriteAll(file, "new"));
    EXPECT_FALSE(fs::exists(folder / "deep"));
}

TEST_F(TargetFiles, AKilledProcessLeavesTheOldFileOrTheNewOne)
{
    const auto seed = RandomSeed();
    std::cout << "seed " << seed << '\n';
    std::mt19937 random(seed);
    const std::string texts[] = {std::string(400'000, 'a'), std::string(500'000, 'b')};
    Put("a", texts[0]);
    int killed = 0;
    for (int round = 0; round < 60; ++round) {
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            for (int turn = 0;; ++turn) {
                TargetFile file;
                if (!file.OpenBeside(PathOf("a")))
                    _exit(1);
                const std::string& text = texts[turn % 2];
                for (std::size_t at = 0; at < text.size(); at += 1000)
                    file.Write(text.data() + at, 1000);
                file.Close();
            }
        }
        usleep(random() % 5000);
        kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);
        killed += WIFSIGNALED(status) ? 1 : 0;
        const std::string found = Get("a");
        ASSERT_TRUE(found == texts[0] || found == texts[1]) << found.size();
    }
    EXPECT_EQ(killed, 60);
}

TEST_F(TargetFiles, BesideKeepsTheUsersAttributes)
{
    Put("a", "old");
    // The folder's file system may have none; the save is the same.
    const bool has = setxattr(PathOf("a").constData(), "user.note", "mine", 4, 0) == 0;
    ASSERT_TRUE(has || errno == ENOTSUP) << errno;
    TargetFile file;
    ASSERT_TRUE(file.OpenBeside(PathOf("a")));
    EXPECT_FALSE(file.WritesOver());
    ASSERT_TRUE(WriteAll(file, "new"));
    char value[8] = {};
    EXPECT_EQ(getxattr(PathOf("a").constData(), "user.note", value, sizeof value), has ? 4 : -1);
    EXPECT_STREQ(value, has ? "mine" : "");
    EXPECT_EQ(Get("a"), "new");
}

TEST_F(TargetFiles, BesideWritesOverAFileThatHasAnotherName)
{
    Put("a", "old");
    ASSERT_EQ(link(PathOf("a").constData(), PathOf("b").constData()), 0);
    TargetFile file;
    ASSERT_TRUE(file.OpenBeside(PathOf("a")));
    EXPECT_TRUE(file.WritesOver());
    EXPECT_EQ(Get("b"), "old");
    ASSERT_TRUE(WriteAll(file, "new"));
    EXPECT_EQ(Get("b"), "new");
    EXPECT_EQ(Entries(), 2u);
}

// What stands there is put aside before it is written over, and the disk has no room for that.
TEST_F(TargetFiles, BesideWritesOverNothingThatItCouldNotPutBack)
{
    const std::string old(300 * 1024, 'o');
    Put("a", old);
    ASSERT_EQ(link(PathOf("a").constData(), PathOf("b").constData()), 0);
    TargetFile file;
    ASSERT_TRUE(file.OpenBeside(PathOf("a")));
    ASSERT_TRUE(file.WritesOver());
    {
        const FullDisk full(100 * 1024);
        EXPECT_FALSE(WriteAll(file, "new"));
    }
    EXPECT_EQ(file.Error(), EFBIG);
    EXPECT_EQ(Get("b"), old);
}

// A part that somebody writes right now stays, and so does what only looks like one.
TEST_F(TargetFiles, BesideTakesAwayWhatADeadProcessLeft)
{
    Put(".a.zn1k2.tmp", "part");
    Put(".a.tmp", "a user's");
    Put(".ab.zn1k2.tmp", "of another file");
    TargetFile alive;
    ASSERT_TRUE(alive.OpenBeside(PathOf("a")));
    EXPECT_EQ(Entries(), 3u);
    TargetFile file;
    ASSERT_TRUE(file.OpenBeside(PathOf("a")));
    EXPECT_EQ(Entries(), 4u);
    ASSERT_TRUE(WriteAll(file, "second"));
    ASSERT_TRUE(WriteAll(alive, "first"));
    EXPECT_EQ(Get("a"), "first");
    EXPECT_EQ(Entries(), 3u);
}

TEST_F(TargetFiles, TellTheReasonOfAFailure)
{
    fs::create_directory(folder / "b");
    TargetFile file;
    EXPECT_FALSE(file.OpenBeside(PathOf("b")));
    EXPECT_EQ(file.Error(), EISDIR);
    TargetFile other;
    EXPECT_FALSE(other.OpenBeside(PathOf("no/a")));
    EXPECT_EQ(other.Error(), ENOENT);
}

} // namespace
