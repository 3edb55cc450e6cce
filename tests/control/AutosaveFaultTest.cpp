// SPDX-License-Identifier: GPL-3.0-or-later
// Autosave where folder, disk, copy or profile are not as they should be: the document in memory
// and the file on disk stay as they are, and a later tick makes up for it.
#include "tests/control/AutosaveFixture.h"
#include "tests/platform/file/FullDisk.h"
#include "tests/platform/file/OrdinaryUser.h"

#include <sys/stat.h>

namespace {

// Each with files handled as they are and with care.
class AutosaveFaults : public AutosaveTest, public testing::WithParamInterface<bool>
{
protected:
    void SetUp() override
    {
        control().SetCarefulFiles(GetParam());
        ASSERT_TRUE(Open("select 1;"));
        control().setAutoSaveOn(true);
        editor.Type(u"x");
    }

    // After a tick that could not do its work.
    void ExpectUntouched()
    {
        EXPECT_EQ(editor.Text(), u"xselect 1;");
        EXPECT_TRUE(control().GetModified());
        EXPECT_EQ(Read(PathOf("doc.sql")), QByteArray("select 1;"));
        EXPECT_EQ(editor.Interval(), 60000u);
        EXPECT_TRUE(questions.asked.isEmpty());
    }

    void ExpectCopyAtNextTick()
    {
        editor.Tick();
        const QString copy = OnlyCopy();
        EXPECT_EQ(Read(copy), QByteArray("xselect 1;"));
        EXPECT_EQ(Note(QFileInfo(copy).fileName()), PathOf("doc.sql"));
    }
};

INSTANTIATE_TEST_SUITE_P(Files, AutosaveFaults, testing::Bool(),
                         [](const auto& run) { return run.param ? "WithCare" : "AsTheyAre"; });

} // namespace

TEST_P(AutosaveFaults, TheFolderIsAFile)
{
    ASSERT_TRUE(QDir().mkpath(PathOf("data/bench")));
    Write(PathOf("data/bench/Backup"), "in the way");
    editor.Tick();
    ExpectUntouched();
    EXPECT_EQ(Read(PathOf("data/bench/Backup")), QByteArray("in the way"));
    ASSERT_TRUE(QFile::remove(PathOf("data/bench/Backup")));
    ExpectCopyAtNextTick();
}

TEST_P(AutosaveFaults, TheFolderMayNotBeWritten)
{
    ASSERT_TRUE(QDir().mkpath(BackupFolder()));
    ASSERT_EQ(chmod(BackupFolder().toUtf8().constData(), 0500), 0);
    {
        const OrdinaryUser ordinary;
        editor.Tick();
    }
    ExpectUntouched();
    EXPECT_TRUE(Copies().isEmpty());
    ASSERT_EQ(chmod(BackupFolder().toUtf8().constData(), 0700), 0);
    ExpectCopyAtNextTick();
}

TEST_P(AutosaveFaults, TheFolderIsClearedAwayBetweenTicks)
{
    editor.Tick();
    ASSERT_EQ(Copies().size(), 1);
    ASSERT_TRUE(QDir(PathOf("data")).removeRecursively());
    ExpectCopyAtNextTick();
    ExpectUntouched();
}

TEST_P(AutosaveFaults, TheCopyVanishesBetweenTicks)
{
    editor.Tick();
    ASSERT_TRUE(QFile::remove(OnlyCopy()));
    ExpectCopyAtNextTick();
    ASSERT_TRUE(QFile::remove(OnlyCopy()));
    EXPECT_TRUE(control().SaveFile(PathOf("doc.sql").toStdU16String().c_str(), true));
    EXPECT_TRUE(Copies().isEmpty());
}

TEST_P(AutosaveFaults, ThereIsNoFolderForTheUser)
{
    folders.hasData = false;
    editor.Tick();
    ExpectUntouched();
    // The copy stands among the temporary files; no crash's copy is looked for there.
    const QString copy = control().m_strAutoSaveFile;
    EXPECT_EQ(QFileInfo(copy).path(), folder.path());
    EXPECT_EQ(Read(copy), QByteArray("xselect 1;"));
    EXPECT_FALSE(QFile::exists(PathOf(".claims")));
    editor.Close();
    EXPECT_FALSE(QFile::exists(copy));
}

TEST_P(AutosaveFaults, TheDiskIsFull)
{
    {
        const FullDisk full(4);
        editor.Tick();
        EXPECT_EQ(Read(control().m_strAutoSaveFile).size(), GetParam() ? 0 : 4);
        EXPECT_TRUE(control().AutoSaveFailed());
    }
    ExpectUntouched();
    ExpectCopyAtNextTick();
    EXPECT_FALSE(control().AutoSaveFailed());
}

TEST_P(AutosaveFaults, NothingFailedOfWhatWasSavedOrUndone)
{
    {
        const FullDisk full(4);
        editor.Tick();
        ASSERT_TRUE(control().AutoSaveFailed());
    }
    ASSERT_TRUE(control().SaveFile(PathOf("doc.sql").toStdU16String().c_str(), true));
    EXPECT_FALSE(control().AutoSaveFailed());
    editor.Type(u"y");
    {
        const FullDisk full(4);
        editor.Tick();
        ASSERT_TRUE(control().AutoSaveFailed());
    }
    control().Undo(1);
    editor.Tick();
    EXPECT_EQ(control().AutoSaveFailed(), !GetParam()) << "the other one looks at no file";
}

TEST_P(AutosaveFaults, ATextWithoutAFileHasNoCopyOnAFullDisk)
{
    const Editor other;
    other.control->SetCarefulFiles(GetParam());
    other.control->setAutoSaveOn(true);
    other.control->SetUntitledName(QStringLiteral("Script 1"));
    other.Type(u"typed");
    {
        const FullDisk full(2);
        other.Tick();
        EXPECT_TRUE(other.control->AutoSaveFailed());
    }
    EXPECT_EQ(other.Text(), u"typed");
    other.Tick();
    EXPECT_FALSE(other.control->AutoSaveFailed());
    const QString copy = other.control->m_strAutoSaveFile;
    EXPECT_EQ(Read(copy), QByteArray("\xFF\xFEt\0y\0p\0e\0d\0", 12));
    EXPECT_EQ(Note(QFileInfo(copy).fileName()), QStringLiteral("Script 1"));
    EXPECT_EQ(ApplicationProfile().GetString(QStringLiteral("BackupOrigins"),
                                             QFileInfo(copy).fileName(), QStringLiteral("none")),
              QStringLiteral("none"))
        << "there is no file that it stems from";
    other.control->Undo(1); // where there was nothing, nothing is to be kept
    other.Tick();
    EXPECT_EQ(QFile::exists(copy), !GetParam());
}

TEST_P(AutosaveFaults, ATextThatWasRecoveredKeepsItsCopyOnAFullDisk)
{
    const QString copy = Plant("~ZN1.tmp", "recovered");
    control().SetOffersCopies(false);
    control().SetCarefulFiles(true);
    ASSERT_TRUE(control().RecoverCopy(copy, kDetect));
    EXPECT_FALSE(control().AutoSaveFailed());
    editor.Type(u"more ");
    {
        const FullDisk full(4);
        editor.Tick();
        EXPECT_TRUE(control().AutoSaveFailed());
    }
    EXPECT_EQ(Read(copy), QByteArray("recovered"));
    editor.Tick();
    EXPECT_FALSE(control().AutoSaveFailed());
    EXPECT_EQ(Read(copy), QByteArray("more recovered"));
}

TEST_P(AutosaveFaults, ATextThatHasBecomeReadOnlyGetsItsCopyOnceItIsNot)
{
    {
        const FullDisk full(4);
        editor.Tick();
    }
    control().SetReadOnly(1, 1);
    editor.Tick();
    EXPECT_TRUE(control().AutoSaveFailed()) << "there is none still";
    ExpectUntouched();
    control().SetReadOnly(0, 1);
    ExpectCopyAtNextTick();
    EXPECT_FALSE(control().AutoSaveFailed());
    control().SetReadOnly(1, 1);
    editor.Tick();
    EXPECT_FALSE(control().AutoSaveFailed()) << "it is there";
}

TEST_P(AutosaveFaults, ACopyThatNobodyFindsIsNone)
{
    folders.hasData = false;
    editor.Tick();
    EXPECT_TRUE(control().AutoSaveFailed());
    folders.hasData = true;
    editor.Tick();
    EXPECT_EQ(control().AutoSaveFailed(), !GetParam()) << "the other one leaves it there";
}

TEST_P(AutosaveFaults, TheDiskFillsUpOverAnEarlierCopy)
{
    editor.Tick();
    const QString copy = OnlyCopy();
    editor.Type(u"yy");
    {
        const FullDisk full(4);
        editor.Tick();
        EXPECT_TRUE(control().AutoSaveFailed());
    }
    // With care the last complete copy is still there; without it the new one is cut short.
    EXPECT_EQ(Read(copy), QByteArray(GetParam() ? "xselect 1;" : "xyys"));
    EXPECT_EQ(editor.Text(), u"xyyselect 1;");
    editor.Tick();
    EXPECT_EQ(Read(OnlyCopy()), QByteArray("xyyselect 1;"));
}

TEST_P(AutosaveFaults, AFullDeviceStandsWhereTheCopyShould)
{
    editor.Tick();
    const QString copy = OnlyCopy();
    ASSERT_TRUE(QFile::remove(copy));
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/full"), copy));
    editor.Tick();
    ExpectUntouched();
    ASSERT_TRUE(QFile::remove(copy));
    ExpectCopyAtNextTick();
}

TEST_P(AutosaveFaults, TheProfileIsCorrupt)
{
    ASSERT_TRUE(QDir().mkpath(PathOf("config/bench")));
    Write(PathOf("config/bench/profile.ini"), QByteArray("\0\xFF[Backup\n[Backup]\n==\n\\x\n", 26));
    EXPECT_TRUE(Reopen());
    editor.Type(u"x");
    ExpectCopyAtNextTick();
    ExpectUntouched();
}

TEST_P(AutosaveFaults, TheProfileCannotBeWritten)
{
    ASSERT_TRUE(QDir().mkpath(PathOf("config/bench/profile.ini")));
    editor.Tick();
    ExpectUntouched();
    EXPECT_EQ(Copies().size(), 1);
    ASSERT_TRUE(QDir().rmdir(PathOf("config/bench/profile.ini")));
    ExpectCopyAtNextTick();
}

TEST_P(AutosaveFaults, TheNoteWasRemovedByAnother)
{
    editor.Tick();
    const QString copy = OnlyCopy();
    ASSERT_TRUE(QFile::remove(PathOf("config/bench/profile.ini")));
    ExpectCopyAtNextTick();
    EXPECT_EQ(OnlyCopy(), copy);
}

TEST_P(AutosaveFaults, TheFileBehindTheTextIsGone)
{
    ASSERT_TRUE(QFile::remove(PathOf("doc.sql")));
    ExpectCopyAtNextTick();
    EXPECT_FALSE(QFile::exists(PathOf("doc.sql")));
}
