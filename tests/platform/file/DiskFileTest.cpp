// SPDX-License-Identifier: GPL-3.0-or-later
// Whole files on the disk: after a failure the old bytes stand there, with nothing beside them.
#include "platform/file/DiskFile.h"
#include "tests/platform/file/FullDisk.h"
#include "tests/platform/file/OrdinaryUser.h"
#include "tests/settings/SettingsFolder.h"

#include <QDir>
#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

namespace {

class DiskFile : public SettingsFolder
{
protected:
    bool Write(const char* name, const QByteArray& bytes) const
    {
        return WriteWholeFile(PathOf(name), bytes);
    }
    void Link(const char* from, const char* to) const
    {
        ASSERT_EQ(link(QFile::encodeName(PathOf(from)).constData(),
                       QFile::encodeName(PathOf(to)).constData()),
                  0);
    }
    mode_t ModeOf(const char* name) const
    {
        struct stat status = {};
        stat(QFile::encodeName(PathOf(name)).constData(), &status);
        return status.st_mode & 07777;
    }
    qsizetype EntriesOf(const char* folder) const
    {
        return QDir(PathOf(folder))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot)
            .size();
    }
    // For every amount of room that is too little the file stays, and nothing is left beside it.
    void ExpectWholeOnAFullDisk(const char* folder, const char* name) const
    {
        const QByteArray old = Get(name);
        const qsizetype entries = EntriesOf(folder);
        const QByteArray bytes(200'000, 'n');
        for (const rlim_t room : {0, 1, 5, 4096, 65'536, 199'999}) {
            {
                const FullDisk disk(room);
                EXPECT_FALSE(Write(name, bytes)) << room;
            }
            EXPECT_EQ(Get(name), old) << room;
            EXPECT_EQ(EntriesOf(folder), entries) << room;
        }
        EXPECT_TRUE(Write(name, bytes));
        EXPECT_EQ(Get(name), bytes);
        EXPECT_EQ(EntriesOf(folder), entries);
    }
};

TEST_F(DiskFile, IsCreatedOrReplaced)
{
    EXPECT_TRUE(Write("a", "one"));
    EXPECT_EQ(Get("a"), "one");
    EXPECT_TRUE(Write("a", "two or more"));
    EXPECT_EQ(Get("a"), "two or more");
    EXPECT_TRUE(Write("a", ""));
    EXPECT_EQ(Get("a"), "");
    EXPECT_EQ(ReadWholeFile(PathOf("a")), QByteArray());
    EXPECT_EQ(EntriesOf("."), 1);
}

TEST_F(DiskFile, KeepsItsPermissions)
{
    Put("a", "old");
    SetMode("a", 0640);
    EXPECT_TRUE(Write("a", "new"));
    EXPECT_EQ(ModeOf("a"), 0640u);
}

TEST_F(DiskFile, IsWrittenThroughALink)
{
    Put("a", "old");
    ASSERT_TRUE(QFile::link(PathOf("a"), PathOf("link")));
    EXPECT_TRUE(Write("link", "new"));
    EXPECT_TRUE(QFileInfo(PathOf("link")).isSymLink());
    EXPECT_EQ(Get("a"), "new");
}

TEST_F(DiskFile, KeepsItsFurtherNames)
{
    Put("a", "old bytes");
    Link("a", "b");
    EXPECT_TRUE(Write("a", "new"));
    EXPECT_EQ(Get("b"), "new");
    EXPECT_TRUE(Write("b", "more than there was"));
    EXPECT_EQ(Get("a"), "more than there was");
}

TEST_F(DiskFile, IsWrittenInAFolderThatTakesNoOtherFile)
{
    ASSERT_TRUE(QDir().mkdir(PathOf("folder")));
    Put("folder/a", "old");
    SetMode("folder", 0555);
    {
        const OrdinaryUser user;
        EXPECT_FALSE(Write("folder/b", "new"));
        EXPECT_TRUE(Write("folder/a", "new"));
    }
    EXPECT_EQ(Get("folder/a"), "new");
    EXPECT_EQ(EntriesOf("folder"), 1);
    SetMode("folder", 0755);
}

TEST_F(DiskFile, StaysWholeOnAFullDisk)
{
    Put("a", "old");
    ExpectWholeOnAFullDisk(".", "a");
}

TEST_F(DiskFile, StaysWholeOnAFullDiskUnderAllItsNames)
{
    Put("a", "old");
    Link("a", "b");
    ExpectWholeOnAFullDisk(".", "a");
    EXPECT_EQ(Get("b"), Get("a"));
}

TEST_F(DiskFile, StaysWholeOnAFullDiskInAFolderThatTakesNoOtherFile)
{
    ASSERT_TRUE(QDir().mkdir(PathOf("folder")));
    Put("folder/a", "old");
    SetMode("folder", 0555);
    {
        const OrdinaryUser user;
        ExpectWholeOnAFullDisk("folder", "folder/a");
    }
    SetMode("folder", 0755);
}

TEST_F(DiskFile, IsNotCreatedOnAFullDisk)
{
    {
        const FullDisk disk(2);
        EXPECT_FALSE(Write("a", "new"));
    }
    EXPECT_EQ(EntriesOf("."), 0);
}

TEST_F(DiskFile, IsNotWrittenIfItIsReadOnly)
{
    Put("a", "old");
    Link("a", "b");
    Put("c", "old");
    SetMode("a", 0444);
    SetMode("c", 0444);
    const OrdinaryUser user;
    EXPECT_FALSE(Write("a", "new"));
    EXPECT_FALSE(Write("c", "new"));
    EXPECT_EQ(Get("a") + Get("c"), "oldold");
}

TEST_F(DiskFile, IsNothingButARegularFile)
{
    ASSERT_TRUE(QDir().mkdir(PathOf("folder")));
    ASSERT_EQ(mkfifo(QFile::encodeName(PathOf("pipe")).constData(), 0600), 0);
    for (const QString& name : {PathOf("folder"), PathOf("pipe"), PathOf("no/such"), QString(),
                                QStringLiteral("/dev/full")}) {
        EXPECT_FALSE(WriteWholeFile(name, "new")) << name.toStdString();
        EXPECT_EQ(ReadWholeFile(name), std::nullopt) << name.toStdString();
    }
    EXPECT_EQ(EntriesOf("."), 2);
}

} // namespace
