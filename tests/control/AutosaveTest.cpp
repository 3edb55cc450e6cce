// SPDX-License-Identifier: GPL-3.0-or-later
// When a copy is written, where it stands and when it goes.
#include "tests/control/AutosaveFixture.h"

#include <QTest>

#include <climits>

#include <sys/stat.h>

namespace {

using Strings = std::vector<std::string>;

constexpr UINT kMinute = 60000;

class Autosave : public AutosaveTest
{
protected:
    // A document with a change in it, of which a copy is due.
    void OpenAndChange()
    {
        ASSERT_TRUE(Open("select 1;\n"));
        editor.Type(u"-- typed\n");
        ASSERT_TRUE(control().GetModified());
    }
};

} // namespace

TEST_F(Autosave, OfAnUntitledTextWaitsForTheFirstFile)
{
    control().setAutoSaveOn(true);
    EXPECT_TRUE(control().GetAutoSaveOn());
    EXPECT_EQ(editor.Interval(), 0u);
    editor.Type(u"text");
    editor.Tick();
    EXPECT_TRUE(Copies().isEmpty());
    EXPECT_EQ(editor.Interval(), 0u);
    EXPECT_TRUE(Open("select 1;"));
    EXPECT_EQ(editor.Interval(), kMinute);
}

TEST_F(Autosave, OfAnUntitledTextStartsWithTheFirstCommittedSave)
{
    control().setAutoSaveOn(true);
    const std::u16string path = PathOf("new.sql").toStdU16String();
    EXPECT_TRUE(control().SaveFile(path.c_str(), false));
    EXPECT_EQ(editor.Interval(), 0u);
    EXPECT_TRUE(control().SaveFile(path.c_str(), true));
    EXPECT_EQ(editor.Interval(), kMinute);
}

TEST_F(Autosave, IsOffUntilItIsAskedFor)
{
    OpenAndChange();
    EXPECT_FALSE(control().GetAutoSaveOn());
    EXPECT_EQ(control().GetAutoSaveMinutes(), 1);
    EXPECT_EQ(editor.Interval(), 0u);
}

TEST_F(Autosave, FollowsItsMinutes)
{
    ASSERT_TRUE(Open("select 1;"));
    control().setAutoSaveOn(true);
    control().setAutoSaveMinutes(5);
    EXPECT_EQ(editor.Interval(), 5 * kMinute);
    // About 25 days are the longest that a timer takes.
    control().setAutoSaveMinutes(INT_MAX);
    EXPECT_EQ(editor.Interval(), UINT(INT_MAX));
    control().setAutoSaveOn(false);
    EXPECT_EQ(editor.Interval(), 0u);
    EXPECT_EQ(control().GetAutoSaveMinutes(), INT_MAX);
}

TEST_F(Autosave, StopsAtMinutesBelowOneWhileItsSwitchStaysOn)
{
    ASSERT_TRUE(Open("select 1;"));
    control().setAutoSaveOn(true);
    for (const int minutes : {0, -1, INT_MIN}) {
        control().setAutoSaveMinutes(1);
        ASSERT_EQ(editor.Interval(), kMinute);
        control().setAutoSaveMinutes(minutes);
        EXPECT_EQ(editor.Interval(), 0u);
        EXPECT_TRUE(control().GetAutoSaveOn());
    }
}

TEST_F(Autosave, DoesNothingWhenASettingIsSetToWhatItIs)
{
    ASSERT_TRUE(Open("select 1;"));
    control().setAutoSaveOn(true);
    control().setAutoSaveMinutes(5);
    control().calls.clear();
    control().setAutoSaveOn(true);
    control().setAutoSaveMinutes(5);
    EXPECT_TRUE(control().calls.empty());
    control().setAutoSaveMinutes(6);
    control().setAutoSaveOn(false);
    EXPECT_EQ(control().calls, (Strings{"SetAutoSave 1 6", "SetAutoSave 0 6"}));
}

TEST_F(Autosave, SetByHandIsNotKept)
{
    ASSERT_TRUE(Open("select 1;"));
    control().SetAutoSave(true, 7);
    EXPECT_EQ(editor.Interval(), 7 * kMinute);
    EXPECT_FALSE(control().GetAutoSaveOn());
    EXPECT_EQ(control().GetAutoSaveMinutes(), 1);
}

TEST_F(Autosave, WithoutAWindowDoesNothing)
{
    AutosaveControl windowless;
    windowless.m_strFileName = PathOf("doc.sql");
    windowless.setAutoSaveOn(true);
    windowless.setAutoSaveMinutes(2);
    EXPECT_TRUE(windowless.GetAutoSaveOn());
    EXPECT_EQ(TimerInterval(windowless.GetSafeHwnd(), kAutosaveTimer), 0u);
}

TEST_F(Autosave, WritesACopyAndANoteOfTheFileItStandsFor)
{
    OpenAndChange();
    editor.Tick();
    const QString copy = OnlyCopy();
    EXPECT_EQ(Read(copy), QByteArray("-- typed\nselect 1;\n"));
    const QString name = QFileInfo(copy).fileName();
    EXPECT_TRUE(name.startsWith(QStringLiteral("~ZN"))) << name.toStdString();
    EXPECT_EQ(Note(name), PathOf("doc.sql"));
    EXPECT_EQ(control().m_strAutoSaveFile, copy);
    EXPECT_EQ(Read(PathOf("doc.sql")), QByteArray("select 1;\n"));
}

TEST_F(Autosave, KeepsCopiesFromOtherUsers)
{
    OpenAndChange();
    editor.Tick();
    struct stat status = {};
    ASSERT_EQ(stat(OnlyCopy().toUtf8().constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600u);
    ASSERT_EQ(stat(BackupFolder().toUtf8().constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0700u);
}

TEST_F(Autosave, WritesTheCopyAsTheFileIsWritten)
{
    ASSERT_TRUE(Open(QByteArray("\xFF\xFEx\0", 4)));
    editor.Type(u"\u00e9");
    editor.Tick();
    EXPECT_EQ(Read(OnlyCopy()), QByteArray("\xFF\xFE\xE9\0x\0", 6));
}

TEST_F(Autosave, CountsAsNoSave)
{
    OpenAndChange();
    editor.Tick();
    EXPECT_TRUE(control().GetModified());
    EXPECT_EQ(control().GetModify(1), 1);
    EXPECT_EQ(control().GetFileName(), PathOf("doc.sql"));
    control().Undo(1);
    EXPECT_FALSE(control().GetModified());
}

TEST_F(Autosave, WritesTheSameCopyAgainAtEachTick)
{
    OpenAndChange();
    editor.Tick();
    const QString copy = OnlyCopy();
    editor.Type(u"more ");
    editor.Tick();
    EXPECT_EQ(OnlyCopy(), copy);
    EXPECT_EQ(Read(copy), QByteArray("-- typed\nmore select 1;\n"));
}

TEST_F(Autosave, ArmsItsTimerAgainAfterEachTick)
{
    ASSERT_TRUE(Open("select 1;"));
    control().setAutoSaveOn(true);
    control().calls.clear();
    editor.Tick();
    EXPECT_EQ(control().calls, (Strings{"SetAutoSave 1 1"}));
    EXPECT_EQ(editor.Interval(), kMinute);
    // The stored settings decide, whatever armed the timer.
    control().setAutoSaveOn(false);
    control().SetAutoSave(true, 3);
    editor.Tick();
    EXPECT_EQ(editor.Interval(), 0u);
}

TEST_F(Autosave, OfATextWithoutChangesWritesNothing)
{
    ASSERT_TRUE(Open("select 1;"));
    control().setAutoSaveOn(true);
    editor.Tick();
    EXPECT_TRUE(Copies().isEmpty());
    EXPECT_FALSE(QFile::exists(BackupFolder()));
    EXPECT_EQ(editor.Interval(), kMinute);
}

TEST_F(Autosave, WithCareTakesTheCopyAwayOfWhatWasUndone)
{
    control().SetCarefulFiles(true);
    ASSERT_TRUE(Open("select 1;"));
    control().setAutoSaveOn(true);
    editor.Type(u"x");
    editor.Tick();
    const QString name = Copies().value(0);
    ASSERT_FALSE(name.isEmpty());
    control().Undo(1);
    ASSERT_FALSE(control().GetModified());
    editor.Tick();
    EXPECT_TRUE(Copies().isEmpty());
    EXPECT_EQ(Note(name), QString());
    control().Redo(1);
    editor.Tick();
    EXPECT_EQ(Read(OnlyCopy()), QByteArray("xselect 1;"));
}

TEST_F(Autosave, OfAReadOnlyTextWritesNothing)
{
    OpenAndChange();
    control().setAutoSaveOn(true);
    control().SetReadOnly(1, 1);
    editor.Tick();
    EXPECT_TRUE(Copies().isEmpty());
    EXPECT_EQ(editor.Interval(), kMinute);
    control().SetReadOnly(0, 1);
    editor.Tick();
    EXPECT_EQ(Copies().size(), 1);
}

TEST_F(Autosave, LeavesOtherTimersAlone)
{
    OpenAndChange();
    control().setAutoSaveOn(true);
    control().calls.clear();
    for (const UINT id : {0u, 99u, 101u})
        editor.Tick(id);
    EXPECT_TRUE(Copies().isEmpty());
    EXPECT_TRUE(control().calls.empty());
}

TEST_F(Autosave, KeepsTheCopyOfAnEmptiedTextToo)
{
    ASSERT_TRUE(Open("select 1;"));
    control().ClearAll(1);
    editor.Tick();
    EXPECT_EQ(Read(OnlyCopy()), QByteArray());
}

TEST_F(Autosave, TakesCopyAndNoteAwayWhenTheTextIsSaved)
{
    OpenAndChange();
    control().setAutoSaveOn(true);
    editor.Tick();
    const QString name = Copies().value(0);
    ASSERT_TRUE(control().SaveFile(PathOf("doc.sql").toStdU16String().c_str(), true));
    EXPECT_TRUE(Copies().isEmpty());
    EXPECT_EQ(Note(name), QString());
    EXPECT_TRUE(control().m_strAutoSaveFile.isEmpty());
    EXPECT_EQ(editor.Interval(), kMinute);
    EXPECT_TRUE(QFile::exists(BackupFolder()));
}

TEST_F(Autosave, TakesTheCopyAwayWhenASaveFailsToo)
{
    OpenAndChange();
    editor.Tick();
    ASSERT_EQ(Copies().size(), 1);
    EXPECT_FALSE(control().SaveFile(u"/dev/full", true));
    EXPECT_TRUE(Copies().isEmpty());
}

TEST_F(Autosave, KeepsTheCopyWhenACarefulSaveFails)
{
    control().SetCarefulFiles(true);
    OpenAndChange();
    control().setAutoSaveOn(true);
    editor.Tick();
    const QString copy = OnlyCopy();
    EXPECT_FALSE(control().SaveFile(u"/dev/full", true));
    EXPECT_EQ(OnlyCopy(), copy);
    EXPECT_EQ(Note(QFileInfo(copy).fileName()), PathOf("doc.sql"));
    EXPECT_EQ(editor.Interval(), kMinute);
    EXPECT_TRUE(control().SaveFile(PathOf("doc.sql").toStdU16String().c_str(), true));
    EXPECT_TRUE(Copies().isEmpty());
}

TEST_F(Autosave, TakesNoNoticeOfAnExport)
{
    OpenAndChange();
    control().setAutoSaveOn(true);
    editor.Tick();
    const QString copy = OnlyCopy();
    control().calls.clear();
    EXPECT_TRUE(control().SaveFile(PathOf("export.sql").toStdU16String().c_str(), false));
    EXPECT_EQ(OnlyCopy(), copy);
    EXPECT_TRUE(control().calls.empty());
    EXPECT_EQ(editor.Interval(), kMinute);
}

TEST_F(Autosave, NotesTheFileThatTheTextWasSavedAs)
{
    OpenAndChange();
    editor.Tick();
    ASSERT_TRUE(control().SaveFile(PathOf("other.sql").toStdU16String().c_str(), true));
    editor.Type(u"x");
    editor.Tick();
    EXPECT_EQ(Note(QFileInfo(OnlyCopy()).fileName()), PathOf("other.sql"));
}

TEST_F(Autosave, TakesTheCopyAwayWhenAnotherFileIsOpened)
{
    OpenAndChange();
    editor.Tick();
    const QString name = Copies().value(0);
    ASSERT_TRUE(Open("select 2;", "second.sql"));
    EXPECT_TRUE(Copies().isEmpty());
    EXPECT_EQ(Note(name), QString());
}

TEST_F(Autosave, LosesItsCopyToAFileThatIsThereAndCannotBeRead)
{
    OpenAndChange();
    control().setAutoSaveOn(true);
    editor.Tick();
    EXPECT_FALSE(control().OpenFile(PathOf("missing").toStdU16String().c_str(), kDetect));
    EXPECT_EQ(Copies().size(), 1);
    EXPECT_EQ(editor.Interval(), kMinute);
    EXPECT_FALSE(control().OpenFile(folder.path().toStdU16String().c_str(), kDetect));
    EXPECT_TRUE(Copies().isEmpty());
    EXPECT_EQ(editor.Interval(), 0u);
}

TEST_F(Autosave, WithCareOutlivesAFileThatCannotBeRead)
{
    control().SetCarefulFiles(true);
    OpenAndChange();
    control().setAutoSaveOn(true);
    editor.Tick();
    const QString name = Copies().value(0);
    EXPECT_FALSE(control().OpenFile(folder.path().toStdU16String().c_str(), kDetect));
    EXPECT_EQ(Copies(), QStringList{name});
    EXPECT_EQ(Note(name), control().GetFileName());
    EXPECT_EQ(editor.Interval(), kMinute);
}

TEST_F(Autosave, TakesCopyAndNoteAwayWhenTheControlGoes)
{
    OpenAndChange();
    editor.Tick();
    const QString name = Copies().value(0);
    editor.Close();
    EXPECT_TRUE(Copies().isEmpty());
    EXPECT_EQ(Note(name), QString());
}

TEST_F(Autosave, TakesTheCopyAwayWhenTheWindowIsGoneBeforeTheControl)
{
    OpenAndChange();
    editor.Tick();
    control().DestroyWindow();
    EXPECT_EQ(Copies().size(), 1);
    editor.Close();
    EXPECT_TRUE(Copies().isEmpty());
}

TEST_F(Autosave, WritesWhenItsTimerRunsOut)
{
    OpenAndChange();
    SetTimer(control().GetSafeHwnd(), kAutosaveTimer, 1);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !control().m_strAutoSaveFile.isEmpty(); }, 20000));
    EXPECT_EQ(Read(OnlyCopy()), QByteArray("-- typed\nselect 1;\n"));
    EXPECT_EQ(editor.Interval(), 0u);
}
