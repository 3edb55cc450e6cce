// SPDX-License-Identifier: GPL-3.0-or-later
// What a crash has left is found by the file's path, offered, and loaded or kept.
#include "control/LeftCopies.h"
#include "tests/control/AutosaveFixture.h"

#include <QDateTime>

#include <ctime>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

class Recovery : public AutosaveTest
{
protected:
    QString Question() const
    {
        return QStringLiteral("bench has detected a more recent version of the file %1 that was "
                              "saved automatically.  Do you wish to load this most recent version?")
            .arg(PathOf("doc.sql"));
    }
};

} // namespace

TEST_F(Recovery, AsksByNameAndPath)
{
    Plant("~ZN1.tmp", "select 2;");
    ASSERT_TRUE(Open("select 1;"));
    EXPECT_EQ(questions.asked, QStringList(Question()));
    EXPECT_EQ(questions.owners, std::vector<HWND>{control().GetHwnd()});
}

TEST_F(Recovery, LoadsTheCopyOnYesAndTakesItAway)
{
    Plant("~ZN1.tmp", "select 2;");
    questions.answer = Answer::Yes;
    control().setAutoSaveOn(true);
    ASSERT_TRUE(Open("select 1;"));
    EXPECT_EQ(editor.Text(), u"select 2;");
    EXPECT_TRUE(control().GetModified());
    EXPECT_EQ(control().GetModify(1), 1);
    EXPECT_EQ(control().GetFileName(), PathOf("doc.sql"));
    EXPECT_EQ(control().GetSelectionStart(1), 0);
    EXPECT_EQ(control().GetSelectionEnd(1), 0);
    EXPECT_TRUE(Copies().isEmpty());
    EXPECT_EQ(Note(QStringLiteral("~ZN1.tmp")), QString());
    EXPECT_EQ(editor.Interval(), 60000u);
    EXPECT_EQ(Read(PathOf("doc.sql")), QByteArray("select 1;"));
}

TEST_F(Recovery, IsTakenBackByOneUndo)
{
    const QByteArray copy = QByteArray("select 22;\n").repeated(3000);
    Plant("~ZN1.tmp", copy);
    questions.answer = Answer::Yes;
    ASSERT_TRUE(Open("select 1;\n"));
    ASSERT_EQ(editor.Text().size(), std::size_t(copy.size()));
    control().Undo(1);
    EXPECT_EQ(editor.Text(), u"select 1;\n");
    EXPECT_FALSE(control().GetModified());
    control().Redo(1);
    EXPECT_EQ(editor.Text().size(), std::size_t(copy.size()));
}

TEST_F(Recovery, LeavesTextAndCopyOnNoAndWritesOverItLater)
{
    const QString copy = Plant("~ZN1.tmp", "select 2;");
    ASSERT_TRUE(Open("select 1;"));
    EXPECT_EQ(editor.Text(), u"select 1;");
    EXPECT_FALSE(control().GetModified());
    EXPECT_EQ(Read(copy), QByteArray("select 2;"));
    EXPECT_EQ(Note(QStringLiteral("~ZN1.tmp")), PathOf("doc.sql"));
    editor.Type(u"x");
    editor.Tick();
    EXPECT_EQ(OnlyCopy(), copy);
    EXPECT_EQ(Read(copy), QByteArray("xselect 1;"));
}

TEST_F(Recovery, TakesTheCopyAwayWithTheControlThatRefusedIt)
{
    Plant("~ZN1.tmp", "select 2;");
    ASSERT_TRUE(Open("select 1;"));
    editor.Close();
    EXPECT_TRUE(Copies().isEmpty());
    EXPECT_EQ(Note(QStringLiteral("~ZN1.tmp")), QString());
}

TEST_F(Recovery, OfAReadOnlyTextIsSilentAndEndsAtItsClose)
{
    const QString copy = Plant("~ZN1.tmp", "select 2;");
    ASSERT_TRUE(Open("select 0;", "first.sql"));
    control().SetReadOnly(1, 1);
    questions.answer = Answer::Yes;
    ASSERT_TRUE(Open("select 1;"));
    EXPECT_TRUE(questions.asked.isEmpty());
    EXPECT_EQ(control().m_strAutoSaveFile, copy);
    EXPECT_TRUE(QFile::exists(copy));
    editor.Close();
    EXPECT_FALSE(QFile::exists(copy));
    EXPECT_EQ(Note(QStringLiteral("~ZN1.tmp")), QString());
}

TEST_F(Recovery, OfTwoCopiesTakesTheFirstThatTheFileSystemGives)
{
    Plant("~ZNa.tmp", "one");
    Plant("~ZNb.tmp", "two");
    const QStringList order = Copies();
    ASSERT_EQ(order.size(), 2);
    const QByteArray first = Read(BackupFolder() + order[0]);
    questions.answer = Answer::Yes;
    ASSERT_TRUE(Open("select 1;"));
    EXPECT_EQ(questions.asked.size(), 1);
    EXPECT_EQ(editor.Text(), QString::fromUtf8(first).toStdU16String());
    EXPECT_EQ(Copies(), QStringList(order[1]));
    EXPECT_EQ(Note(order[1]), PathOf("doc.sql"));
}

TEST_F(Recovery, GoesByTheExactPath)
{
    Plant("~ZN1.tmp", "other", "other.sql");
    Plant("~ZN2.tmp", "case", "DOC.sql");
    Plant("~ZN3.tmp", "longer", "doc.sql.bak");
    ASSERT_TRUE(Open("select 1;"));
    EXPECT_TRUE(questions.asked.isEmpty());
    EXPECT_EQ(Copies().size(), 3);
}

TEST_F(Recovery, NeedsBothTheCopyAndItsNote)
{
    ASSERT_TRUE(QFile::remove(Plant("~ZN1.tmp", "note alone")));
    Plant("~ZN2.tmp", "copy alone");
    ApplicationProfile().WriteString(QStringLiteral("Backup"), QStringLiteral("~ZN2.tmp"), nullptr);
    ASSERT_TRUE(Open("select 1;"));
    EXPECT_TRUE(questions.asked.isEmpty());
    EXPECT_EQ(Note(QStringLiteral("~ZN1.tmp")), PathOf("doc.sql"));
    EXPECT_EQ(Copies(), QStringList(QStringLiteral("~ZN2.tmp")));
}

TEST_F(Recovery, PassesByFolders)
{
    ASSERT_TRUE(QFile::remove(Plant("~ZN1.tmp", "")));
    ASSERT_TRUE(QDir().mkdir(BackupFolder() + QStringLiteral("~ZN1.tmp")));
    ASSERT_TRUE(Open("select 1;"));
    EXPECT_TRUE(questions.asked.isEmpty());
    EXPECT_TRUE(control().m_strAutoSaveFile.isEmpty());
}

TEST_F(Recovery, TakesANameWithoutThePrefixToo)
{
    Plant("by hand", "select 2;");
    questions.answer = Answer::Yes;
    ASSERT_TRUE(Open("select 1;"));
    EXPECT_EQ(editor.Text(), u"select 2;");
}

TEST_F(Recovery, LooksForNothingWhereNoFolderIs)
{
    ASSERT_TRUE(Open("select 1;"));
    EXPECT_FALSE(QFile::exists(PathOf("data")));
    folders.hasData = false;
    ASSERT_TRUE(Open("select 1;"));
    EXPECT_TRUE(questions.asked.isEmpty());
}

TEST_F(Recovery, LeavesEverythingForLaterIfTheCopyCannotBeOpened)
{
    const QString copy = Plant("~ZN1.tmp", "");
    ASSERT_TRUE(QFile::remove(copy));
    ASSERT_TRUE(QFile::link(PathOf("nowhere"), copy));
    questions.answer = Answer::Yes;
    ASSERT_TRUE(Open("select 1;"));
    EXPECT_EQ(questions.asked.size(), 1);
    EXPECT_EQ(editor.Text(), u"select 1;");
    EXPECT_FALSE(control().GetModified());
    EXPECT_TRUE(QFileInfo(copy).isSymLink());
    EXPECT_EQ(Note(QStringLiteral("~ZN1.tmp")), PathOf("doc.sql"));
}

TEST_F(Recovery, OutlivesACopyThatVanishesWhileItAsks)
{
    const QString copy = Plant("~ZN1.tmp", "select 2;");
    questions.answer = Answer::Yes;
    questions.whileAsked = [&copy] { QFile::remove(copy); };
    ASSERT_TRUE(Open("select 1;"));
    EXPECT_EQ(editor.Text(), u"select 1;");
    EXPECT_FALSE(control().GetModified());
    editor.Type(u"x");
    editor.Tick();
    EXPECT_EQ(Read(copy), QByteArray("xselect 1;"));
}

TEST_F(Recovery, LoadsAnEmptyCopyAsTheEmptyTextThatItIs)
{
    Plant("~ZN1.tmp", "");
    questions.answer = Answer::Yes;
    ASSERT_TRUE(Open("select 1;"));
    EXPECT_EQ(editor.Text(), u"");
    EXPECT_TRUE(control().GetModified());
    control().Undo(1);
    EXPECT_EQ(editor.Text(), u"select 1;");
}

TEST_F(Recovery, ReadsTheCopyInTheEncodingOfTheOpen)
{
    Plant("~ZN1.tmp", "\xC3\xA9");
    Write(PathOf("doc.sql"), "x");
    questions.answer = Answer::Yes;
    ASSERT_TRUE(control().OpenFile(PathOf("doc.sql").toStdU16String().c_str(),
                                   FileEncodeConverter::encANSI));
    EXPECT_EQ(editor.Text(), u"\u00c3\u00a9");
}

TEST_F(Recovery, OfAFileThatWasCutShortDoesNotHideTheLoss)
{
    Plant("~ZN1.tmp", "whole");
    questions.answer = Answer::Yes;
    ASSERT_TRUE(Open(QByteArray("\xFF\xFEx\0y", 5)));
    EXPECT_EQ(editor.Text(), u"whole");
    EXPECT_TRUE(control().WasCutShort());
}

TEST_F(Recovery, PutsAPathIntoTheQuestionAsItIs)
{
    Plant("~ZN1.tmp", "x", "%1 %2 <b>.sql");
    ASSERT_TRUE(Open("y", "%1 %2 <b>.sql"));
    ASSERT_EQ(questions.asked.size(), 1);
    EXPECT_TRUE(questions.asked[0].startsWith(QStringLiteral("bench has")));
    EXPECT_TRUE(questions.asked[0].contains(QStringLiteral("/%1 %2 <b>.sql that")));
}

TEST_F(Recovery, AsksNothingAfterASaveOrAClose)
{
    ASSERT_TRUE(Open("select 1;"));
    editor.Type(u"x");
    editor.Tick();
    ASSERT_TRUE(control().SaveFile(PathOf("doc.sql").toStdU16String().c_str(), true));
    Editor second;
    ASSERT_TRUE(second.control->OpenFile(PathOf("doc.sql").toStdU16String().c_str(), kDetect));
    second.Type(u"y");
    second.Tick();
    second.Close();
    ASSERT_TRUE(Reopen());
    EXPECT_TRUE(questions.asked.isEmpty());
}

TEST_F(Recovery, GoesByNamesAndNotByTheClock)
{
    // The clock was wrong when the copy was written, or is now.
    for (const std::time_t seconds : {std::time_t(0), std::time_t(4102444800)}) {
        const QString copy = Plant("~ZN1.tmp", "select 2;");
        Write(PathOf("doc.sql"), "select 1;");
        const timespec times[2] = {{seconds, 0}, {seconds, 0}};
        ASSERT_EQ(utimensat(AT_FDCWD, copy.toUtf8().constData(), times, 0), 0);
        questions.asked.clear();
        questions.answer = Answer::Yes;
        ASSERT_TRUE(Reopen());
        EXPECT_EQ(questions.asked.size(), 1);
        EXPECT_EQ(editor.Text(), u"select 2;");
    }
}

TEST_F(Recovery, TakesAwayWhatADyingWriteLeftBesideTheCopy)
{
    Plant("~ZN1.tmp", "select 2;");
    const QString beside = BackupFolder() + QStringLiteral(".~ZN1.tmp.abc.tmp");
    const QString others = BackupFolder() + QStringLiteral(".~ZN11.tmp.abc.tmp");
    Write(beside, "sel");
    Write(others, "sel");
    questions.answer = Answer::Yes;
    ASSERT_TRUE(Open("select 1;"));
    EXPECT_FALSE(QFile::exists(beside));
    EXPECT_TRUE(QFile::exists(others));
}

namespace {

// What a process leaves that is killed around the first write of a copy.
class Unwritten : public Recovery
{
protected:
    Unwritten()
    {
        control().SetCarefulFiles(true);
        questions.answer = Answer::Yes;
    }
    QStringList Everything() const
    {
        QStringList names = QDir(BackupFolder()).entryList(QDir::Files | QDir::Hidden);
        names.removeOne(QStringLiteral(".claims"));
        return names;
    }
};

} // namespace

TEST_F(Unwritten, CopiesGoWithNoteAndPartsAndAreNotOffered)
{
    Plant("~ZN1.tmp", "");
    Write(BackupFolder() + QStringLiteral(".~ZN1.tmp.abc.tmp"), "sel");
    Plant("~ZN2.tmp", "", "other.sql");
    ApplicationProfile().WriteString(QStringLiteral("Backup"), QStringLiteral("~ZN2.tmp"), nullptr);
    Write(BackupFolder() + QStringLiteral(".~ZN3.tmp.1z.tmp"), "sel"); // its copy is gone
    ASSERT_TRUE(Open("select 1;"));
    EXPECT_TRUE(questions.asked.isEmpty());
    EXPECT_EQ(Everything(), QStringList());
    EXPECT_EQ(Note(QStringLiteral("~ZN1.tmp")), QString());
}

TEST_F(Unwritten, PartsGoAndLeaveTheCopyThatWasWrittenBefore)
{
    Plant("~ZN1.tmp", "select 2;");
    Plant("~ZN2.tmp", "select 3;", "other.sql");
    Write(BackupFolder() + QStringLiteral(".~ZN2.tmp.abc.tmp"), "sel");
    ASSERT_TRUE(Open("select 1;"));
    EXPECT_EQ(editor.Text(), u"select 2;");
    EXPECT_EQ(Everything(), (QStringList{QStringLiteral("~ZN1.tmp"), QStringLiteral("~ZN2.tmp")}));
    EXPECT_EQ(Note(QStringLiteral("~ZN2.tmp")), PathOf("other.sql"));
}

TEST_F(Unwritten, CopiesOfAControlThatLivesStay)
{
    Editor other;
    other.control->SetCarefulFiles(true);
    Write(PathOf("doc.sql"), "x");
    ASSERT_TRUE(other.control->OpenFile(PathOf("doc.sql").toStdU16String().c_str(), kDetect));
    other.control->ClearAll(1);
    other.Tick();
    const QString copy = OnlyCopy();
    const QString part = BackupFolder() + u'.' + QFileInfo(copy).fileName() + ".abc.tmp";
    Write(part, "sel");
    ASSERT_TRUE(Reopen());
    EXPECT_TRUE(QFile::exists(copy));
    EXPECT_TRUE(QFile::exists(part));
    EXPECT_EQ(Note(QFileInfo(copy).fileName()), PathOf("doc.sql"));
    other.Close();
    EXPECT_EQ(Everything(), QStringList());
}

TEST_F(Unwritten, FilesThatAreNotAutosavesStay)
{
    Plant("by hand", "", "other.sql");
    Write(BackupFolder() + QStringLiteral(".hidden.tmp"), "mine");
    QDir().mkdir(BackupFolder() + QStringLiteral("~ZN9.tmp"));
    QFile::link(PathOf("doc.sql"), BackupFolder() + QStringLiteral("~ZN8.tmp"));
    ASSERT_TRUE(Open(""));
    EXPECT_EQ(QDir(BackupFolder())
                  .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)
                  .size(),
              4 + QFile::exists(BackupFolder() + QStringLiteral(".claims")));
}

TEST_F(Unwritten, CopiesStayWhereNobodyAsksForCare)
{
    control().SetCarefulFiles(false);
    Plant("~ZN2.tmp", "", "other.sql");
    ASSERT_TRUE(Open("select 1;"));
    EXPECT_EQ(Copies(), QStringList(QStringLiteral("~ZN2.tmp")));
}

TEST_F(Recovery, WithCareKeepsUtf8ThoughTheCopyIsAscii)
{
    control().SetCarefulFiles(true);
    questions.answer = Answer::Yes;
    Plant("~ZN1.tmp", "select 2;");
    ASSERT_TRUE(Open("select '\xC3\xA9';"));
    EXPECT_EQ(editor.Text(), u"select 2;");
    EXPECT_EQ(control().GetEncoding(), FileEncodeConverter::encUTF8);
}

TEST_F(Recovery, WithCareTakesACopyOfAnotherEncodingForWhatItIs)
{
    control().SetCarefulFiles(true);
    questions.answer = Answer::Yes;
    Plant("~ZN1.tmp", "select '\xE9';");
    ASSERT_TRUE(Open("select '\xC3\xA9';"));
    EXPECT_EQ(editor.Text(), u"select '\u00E9';");
    EXPECT_EQ(control().GetEncoding(), FileEncodeConverter::encANSI);
    Plant("~ZN1.tmp", "select 2;");
    ASSERT_TRUE(Open("select 1;")); // the code page's, as far as anybody can tell
    EXPECT_EQ(control().GetEncoding(), FileEncodeConverter::encANSI);
}

TEST_F(Recovery, WithCareLeavesTheEncodingOfAnOpenThatNamesOne)
{
    control().SetCarefulFiles(true);
    questions.answer = Answer::Yes;
    Plant("~ZN1.tmp", "select 2;");
    Write(PathOf("doc.sql"), "\xEF\xBB\xBFselect 1;");
    ASSERT_TRUE(control().OpenFile(PathOf("doc.sql").toStdU16String().c_str(),
                                   FileEncodeConverter::encANSI));
    EXPECT_EQ(control().GetEncoding(), FileEncodeConverter::encANSI);
}

// A second control, as in another window or another host, edits the same file.
class TwoControls : public Recovery
{
protected:
    void OpenBoth(bool careful)
    {
        control().SetCarefulFiles(careful);
        second.control->SetCarefulFiles(careful);
        ASSERT_TRUE(Open("select 1;"));
        editor.Type(u"mine ");
        editor.Tick();
        firstCopy = OnlyCopy();
        ASSERT_TRUE(second.control->OpenFile(PathOf("doc.sql").toStdU16String().c_str(), kDetect));
    }

    Editor second;
    QString firstCopy;
};

TEST_F(TwoControls, WithCareLeaveEachOthersCopiesAlone)
{
    OpenBoth(true);
    EXPECT_TRUE(questions.asked.isEmpty());
    second.Type(u"yours ");
    second.Tick();
    EXPECT_EQ(Copies().size(), 2);
    EXPECT_EQ(Read(firstCopy), QByteArray("mine select 1;"));
    EXPECT_EQ(Read(second.control->m_strAutoSaveFile), QByteArray("yours select 1;"));
    second.Close();
    EXPECT_EQ(OnlyCopy(), firstCopy);
    EXPECT_EQ(Note(QFileInfo(firstCopy).fileName()), PathOf("doc.sql"));
}

TEST_F(TwoControls, WithoutCareShareTheCopyAndNeitherLosesItsText)
{
    questions.answer = Answer::Yes;
    OpenBoth(false);
    EXPECT_EQ(questions.asked.size(), 1);
    EXPECT_EQ(second.Text(), u"mine select 1;");
    EXPECT_TRUE(Copies().isEmpty());
    EXPECT_EQ(editor.Text(), u"mine select 1;");
    editor.Tick();
    EXPECT_EQ(OnlyCopy(), firstCopy);
    EXPECT_EQ(Note(QFileInfo(firstCopy).fileName()), PathOf("doc.sql"));
    EXPECT_EQ(Read(PathOf("doc.sql")), QByteArray("select 1;"));
}

TEST_F(TwoControls, FindACopyOnceTheOtherHasReopenedAndLeftIt)
{
    // The first has taken a crash's copy over; the second is not offered it.
    Plant("~ZN1.tmp", "select 2;");
    control().SetCarefulFiles(true);
    second.control->SetCarefulFiles(true);
    ASSERT_TRUE(Open("select 1;"));
    EXPECT_EQ(questions.asked.size(), 1);
    ASSERT_TRUE(second.control->OpenFile(PathOf("doc.sql").toStdU16String().c_str(), kDetect));
    EXPECT_EQ(questions.asked.size(), 1);
    EXPECT_EQ(Read(BackupFolder() + QStringLiteral("~ZN1.tmp")), QByteArray("select 2;"));
}

TEST_F(TwoControls, KeepTheirClaimWhenTheFolderIsClearedAndMadeAgain)
{
    OpenBoth(true);
    ASSERT_TRUE(QDir(BackupFolder()).removeRecursively());
    editor.Tick();
    ASSERT_EQ(OnlyCopy(), firstCopy);
    ASSERT_TRUE(second.control->OpenFile(PathOf("doc.sql").toStdU16String().c_str(), kDetect));
    EXPECT_TRUE(questions.asked.isEmpty());
}

TEST_F(Recovery, WithCareACopyThatIsTheFileGoesWithoutAWord)
{
    Plant("~ZN1.tmp", "select 1;");
    control().SetCarefulFiles(true);
    ASSERT_TRUE(Open("select 1;"));
    EXPECT_TRUE(questions.asked.isEmpty());
    EXPECT_TRUE(Copies().isEmpty());
    EXPECT_EQ(Note(QStringLiteral("~ZN1.tmp")), QString());
    EXPECT_TRUE(control().m_strAutoSaveFile.isEmpty());
}

TEST_F(Recovery, WithCareACopyThatWasLoadedStaysUntilItsTextIsSaved)
{
    const QString copy = Plant("~ZN1.tmp", "select 2;");
    control().SetCarefulFiles(true);
    questions.answer = Answer::Yes;
    ASSERT_TRUE(Open("select 1;"));
    EXPECT_EQ(editor.Text(), u"select 2;");
    EXPECT_EQ(Read(copy), QByteArray("select 2;"));
    EXPECT_EQ(Note(QStringLiteral("~ZN1.tmp")), PathOf("doc.sql"));
    ASSERT_TRUE(control().SaveFile(PathOf("doc.sql").toStdU16String().c_str(), true));
    EXPECT_TRUE(Copies().isEmpty());
}

TEST_F(Recovery, WithCareACopyThatCannotBeReadToItsEndStays)
{
    const QByteArray cut("\xFF\xFEx\0y", 5);
    const QString copy = Plant("~ZN1.tmp", cut);
    control().SetCarefulFiles(true);
    questions.answer = Answer::Yes;
    ASSERT_TRUE(Open("select 1;"));
    EXPECT_EQ(editor.Text(), u"x");
    EXPECT_TRUE(questions.asked.contains(kTruncated));
    editor.Close();
    EXPECT_EQ(Read(copy), cut);
    EXPECT_EQ(Note(QStringLiteral("~ZN1.tmp")), PathOf("doc.sql"));
}

TEST_F(Recovery, WithCareACopyOfAReadOnlyTextIsLeftForLater)
{
    const QString copy = Plant("~ZN1.tmp", "select 2;");
    control().SetCarefulFiles(true);
    control().SetReadOnly(1, 1);
    ASSERT_TRUE(Open("select 1;"));
    EXPECT_TRUE(questions.asked.isEmpty());
    editor.Close();
    EXPECT_EQ(Read(copy), QByteArray("select 2;"));
}

TEST_F(Recovery, WithCareTheCopySaysWhatItsFileWasWhenItWasRead)
{
    const auto origin = [this] {
        const QString name = QFileInfo(control().m_strAutoSaveFile).fileName();
        return ApplicationProfile().GetString(QStringLiteral("BackupOrigins"), name, QString());
    };
    control().SetCarefulFiles(true);
    ASSERT_TRUE(Open("select 1;"));
    Write(PathOf("doc.sql"), "others have written");
    editor.Type(u"x");
    editor.Tick();
    EXPECT_TRUE(origin().startsWith(QStringLiteral("9 "))) << origin().toStdString();
    const QString copy = QFileInfo(control().m_strAutoSaveFile).fileName();
    editor.Close();
    EXPECT_EQ(
        ApplicationProfile().GetString(QStringLiteral("BackupOrigins"), copy, QStringLiteral("-")),
        QStringLiteral("-"));
}

TEST_F(Recovery, WithoutCareTheCopySaysNothingButItsFile)
{
    ASSERT_TRUE(Open("select 1;"));
    editor.Type(u"x");
    editor.Tick();
    const QString copy = QFileInfo(OnlyCopy()).fileName();
    EXPECT_EQ(Note(copy), PathOf("doc.sql"));
    EXPECT_EQ(
        ApplicationProfile().GetString(QStringLiteral("BackupOrigins"), copy, QStringLiteral("-")),
        QStringLiteral("-"));
}

TEST_F(Recovery, WithCareATextThatIsTheFilesGetsNoCopy)
{
    control().SetCarefulFiles(true);
    ASSERT_TRUE(Open("select 1;"));
    control().SetModified(true);
    editor.Tick();
    EXPECT_TRUE(Copies().isEmpty());
    editor.Type(u"x");
    editor.Tick();
    EXPECT_EQ(Copies().size(), 1);
    control().Undo(1);
    control().SetModified(true);
    editor.Tick();
    EXPECT_TRUE(Copies().isEmpty());
}

// The file may have gone, or another may have written it.
TEST_F(Recovery, WithCareATextWhoseFileIsAnotherGetsItsCopy)
{
    control().SetCarefulFiles(true);
    ASSERT_TRUE(Open("select 1;"));
    ASSERT_TRUE(QFile::remove(PathOf("doc.sql")));
    control().SetModified(true);
    editor.Tick();
    EXPECT_EQ(Read(OnlyCopy()), QByteArray("select 1;"));
}

TEST_F(Recovery, WithCareACopyMovesToItsFolderOnceThereIsOne)
{
    control().SetCarefulFiles(true);
    ASSERT_TRUE(Open("select 1;"));
    editor.Type(u"x");
    folders.hasData = false;
    editor.Tick();
    const QString lost = control().m_strAutoSaveFile;
    EXPECT_EQ(QFileInfo(lost).path(), folder.path());
    folders.hasData = true;
    editor.Tick();
    EXPECT_EQ(Read(OnlyCopy()), QByteArray("xselect 1;"));
    EXPECT_FALSE(QFile::exists(lost));
}

TEST_F(Recovery, ANoteIsWrittenOnce)
{
    ASSERT_TRUE(Open("select 1;"));
    editor.Type(u"x");
    editor.Tick();
    const QString profile = PathOf("config/bench/profile.ini");
    const QDateTime written = QFileInfo(profile).lastModified();
    editor.Type(u"y");
    editor.Tick();
    EXPECT_EQ(QFileInfo(profile).lastModified(), written);
    EXPECT_EQ(Read(OnlyCopy()), QByteArray("xyselect 1;"));
}

TEST_F(Recovery, ATextWithAnUntitledNameIsCopiedUnderIt)
{
    control().setAutoSaveOn(true);
    EXPECT_EQ(editor.Interval(), 0u);
    control().SetUntitledName(QStringLiteral("Script 1"));
    EXPECT_EQ(editor.Interval(), 60000u);
    editor.Type(u"typed");
    editor.Tick();
    EXPECT_EQ(Note(QFileInfo(OnlyCopy()).fileName()), QStringLiteral("Script 1"));
    Write(PathOf("named.sql"), QByteArray());
    ASSERT_TRUE(control().SaveFile(PathOf("named.sql").toStdU16String().c_str(), true));
    EXPECT_TRUE(Copies().isEmpty());
}

TEST_F(Recovery, AHostThatShowsTheCopiesItselfIsNotAskedFor)
{
    control().SetCarefulFiles(true);
    control().SetOffersCopies(false);
    const QString copy = Plant("~ZN1.tmp", "typed");
    ASSERT_TRUE(Open("saved"));
    EXPECT_TRUE(questions.asked.isEmpty());
    EXPECT_EQ(control().m_strAutoSaveFile, QString());
    ASSERT_TRUE(control().RecoverCopy(copy, kDetect));
    EXPECT_EQ(editor.Text(), u"typed");
    EXPECT_EQ(control().m_strAutoSaveFile, copy);
    EXPECT_NE(control().GetModify(1), 0);
    EXPECT_EQ(Read(copy), QByteArray("typed"));
}

TEST_F(Recovery, WhatIsDiscardedLeavesNothingBehind)
{
    const QString copy = Plant("~ZN1.tmp", "typed");
    const QString name = QFileInfo(copy).fileName();
    ApplicationProfile().WriteString(QStringLiteral("BackupOrigins"), name, u"5 1 2");
    LeftCopies left;
    ASSERT_EQ(left.All().size(), 1u);
    left.Discard(copy);
    EXPECT_FALSE(QFile::exists(copy));
    EXPECT_EQ(Note(name), QString());
    EXPECT_EQ(
        ApplicationProfile().GetString(QStringLiteral("BackupOrigins"), name, QStringLiteral("-")),
        QStringLiteral("-"));
}

TEST_F(Recovery, NoCopyOfALivingEditorIsRecovered)
{
    const QString copy = Plant("~ZN1.tmp", "typed");
    control().SetOffersCopies(false);
    const LeftCopies others;
    ASSERT_EQ(others.All().size(), 1u);
    ASSERT_TRUE(Open("saved"));
    EXPECT_FALSE(control().RecoverCopy(copy, kDetect));
    EXPECT_TRUE(LeftCopies().All().empty());
    EXPECT_EQ(Read(copy), QByteArray("typed"));
}

TEST_F(Recovery, ListsTheOldestCopyFirstAndThoseOfOneMomentByTheirDocuments)
{
    const QDateTime moment(QDate(2020, 1, 1), QTime(12, 0));
    const auto plant = [&](const char* name, const char* document, const QDateTime& time) {
        QFile copy(Plant(name, "typed", document));
        ASSERT_TRUE(copy.open(QIODevice::ReadWrite));
        ASSERT_TRUE(copy.setFileTime(time, QFileDevice::FileModificationTime));
    };
    plant("~ZN1.tmp", "c.sql", moment);
    plant("~ZN2.tmp", "a.sql", moment.addSecs(1));
    plant("~ZN3.tmp", "b.sql", moment);
    QStringList documents;
    const LeftCopies copies;
    for (const LeftCopies::Copy& copy : copies.All())
        documents << QFileInfo(copy.document).fileName();
    EXPECT_EQ(documents, QStringList({"b.sql", "c.sql", "a.sql"}));
}

TEST_F(Recovery, ACopyThatCannotBeReadCostsTheTextNothing)
{
    control().SetOffersCopies(false);
    const QString copy = Plant("~ZN1.tmp", "typed");
    ASSERT_TRUE(Open("saved"));
    ASSERT_TRUE(QFile::remove(copy) && QDir().mkdir(copy));
    EXPECT_FALSE(control().RecoverCopy(copy, kDetect));
    EXPECT_EQ(editor.Text(), u"saved");
}
