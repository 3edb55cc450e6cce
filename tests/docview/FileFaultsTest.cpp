// SPDX-License-Identifier: GPL-3.0-or-later
// What becomes of a document when its file does not behave: no crash, and no text lost. The control
// handles its files with care, as a host that edits users' files sets it.
#include "EditDocFixture.h"

#include "platform/system/Profile.h"
#include "platform/windows/Timer.h"
#include "tests/platform/file/FullDisk.h"
#include "tests/platform/file/OrdinaryUser.h"

#include <climits>
#include <cstdio>

namespace {

class FileFault : public EditDocTest
{
protected:
    OpenDoc* OpenCarefully(const QString& path)
    {
        OpenDoc* opened = Open(path);
        if (opened)
            Control(opened).SetCarefulFiles(true);
        return opened;
    }
    OpenDoc* OpenChanged()
    {
        OpenDoc* opened = OpenCarefully(Write("a.sql", "select 1"));
        Type(opened, "-- ");
        return opened;
    }
    void ExpectChangedTextIn(OpenDoc* doc)
    {
        EXPECT_EQ(Text(doc), "-- select 1");
        EXPECT_TRUE(doc->IsModified());
        EXPECT_TRUE(doc->GetTitle().endsWith(" *"));
        EXPECT_EQ(doc->GetPathName(), Path("a.sql"));
    }
    // Text that cannot go where it came from still goes elsewhere.
    void ExpectItCanBeSavedElsewhere(OpenDoc* doc)
    {
        EXPECT_EQ(doc->DoSave(Path("elsewhere.sql")), 1);
        EXPECT_EQ(Read(Path("elsewhere.sql")), "-- select 1");
        EXPECT_FALSE(doc->IsModified());
    }
    void ExpectToLiveWith(OpenDoc* doc, const QString& path);

    qsizetype CountIn(const QString& path) const
    {
        return QDir(path).entryList(QDir::Files | QDir::Hidden).size();
    }
};

// A path of so many bytes, its folders made, with a file name of some.
QString PathOfLength(const QString& folder, qsizetype length, qsizetype nameLength)
{
    QString path = folder;
    const qsizetype folderLength = length - nameLength - 1;
    while (folderLength - path.size() > 202)
        path += u'/' + QString(200, u'd');
    path += u'/' + QString(folderLength - path.size() - 1, u'e');
    EXPECT_TRUE(QDir().mkpath(path));
    return path + u'/' + QString(nameLength, u'n');
}

} // namespace

// Open, change, save, an outside change and a reload, the temporary copy.
void FileFault::ExpectToLiveWith(OpenDoc* doc, const QString& path)
{
    ASSERT_NE(doc, nullptr);
    EXPECT_EQ(doc->GetPathName(), path);
    EXPECT_EQ(Text(doc), "select 1");
    Type(doc, "-- ");
    EXPECT_TRUE(doc->IsModified());
    EXPECT_EQ(doc->DoFileSave(), 1);
    EXPECT_EQ(Read(path), "-- select 1");
    EXPECT_EQ(doc->SaveTempCopy(), 0);
    EXPECT_EQ(Read(doc->GetTempPathName()), "-- select 1");
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("select 2");
    file.close();
    const timespec times[] = {{7, 0}, {7, 0}};
    utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0);
    user.answer = Answer::Yes;
    user.asked.clear();
    doc->CheckLastAccessTime();
    ASSERT_EQ(user.asked.size(), 1);
    EXPECT_TRUE(user.asked[0].contains(path));
    EXPECT_EQ(Text(doc), "select 2");
}

TEST_F(FileFault, AFolderInThePlaceOfTheFileIsNotWrittenOver)
{
    OpenDoc* doc = OpenChanged();
    QFile::remove(Path("a.sql"));
    QDir().mkdir(Path("a.sql"));
    EXPECT_EQ(doc->DoFileSave(), 0);
    EXPECT_EQ(user.asked.size(), 1);
    ExpectChangedTextIn(doc);
    EXPECT_TRUE(QFileInfo(Path("a.sql")).isDir());
    EXPECT_EQ(CountIn(folder.path()), 0); // nothing half-written either
    ExpectItCanBeSavedElsewhere(doc);
}

TEST_F(FileFault, APipeInThePlaceOfTheFileIsNotWaitedFor)
{
    OpenDoc* doc = OpenChanged();
    QFile::remove(Path("a.sql"));
    ASSERT_EQ(mkfifo(QFile::encodeName(Path("a.sql")).constData(), 0600), 0);
    user.answer = Answer::Yes;
    doc->CheckLastAccessTime();
    ExpectChangedTextIn(doc);
    EXPECT_EQ(doc->DoFileSave(), 0);
    ExpectChangedTextIn(doc);
}

TEST_F(FileFault, ALinkThatLeadsNowhereIsFollowedByASaveAlone)
{
    QFile::link(Path("b.sql"), Path("a.sql"));
    EXPECT_EQ(New()->OnOpenDocument(Path("a.sql")), 0);
    OpenDoc* doc = New();
    Control(doc).SetCarefulFiles(true);
    Type(doc, "text");
    EXPECT_EQ(doc->DoSave(Path("a.sql")), 1);
    EXPECT_EQ(Read(Path("b.sql")), "text");
    QFile::link(Path("loop.sql"), Path("loop.sql"));
    Type(doc, "more ");
    EXPECT_EQ(doc->DoSave(Path("loop.sql")), 0);
    EXPECT_TRUE(doc->IsModified());
}

TEST_F(FileFault, AFileThatIsGoneIsMadeAgainByASave)
{
    OpenDoc* doc = OpenChanged();
    QFile::remove(Path("a.sql"));
    EXPECT_EQ(doc->DoFileSave(), 1);
    EXPECT_EQ(Read(Path("a.sql")), "-- select 1");
    EXPECT_FALSE(doc->IsModified());
}

TEST_F(FileFault, AFolderThatIsGoneKeepsTheTextInTheEditor)
{
    QDir().mkdir(Path("below"));
    OpenDoc* doc = OpenCarefully(Write("below/a.sql", "select 1"));
    Type(doc, "-- ");
    QDir(Path("below")).removeRecursively();
    doc->CheckLastAccessTime();
    EXPECT_EQ(doc->DoFileSave(), 0);
    EXPECT_EQ(user.asked.size(), 2); // that it is gone, that it could not be saved
    EXPECT_TRUE(user.asked[1].contains(Path("below/a.sql")));
    EXPECT_TRUE(doc->IsModified());
    QDir().mkdir(Path("below"));
    EXPECT_EQ(doc->DoFileSave(), 1);
    EXPECT_EQ(Read(Path("below/a.sql")), "-- select 1");
}

TEST_F(FileFault, AFileThatBecameReadOnlyIsNotWrittenOver)
{
    OpenDoc* doc = OpenChanged();
    Protect("a.sql");
    {
        const OrdinaryUser person;
        EXPECT_EQ(doc->DoFileSave(), 0);
    }
    EXPECT_EQ(user.asked.size(), 1);
    ExpectChangedTextIn(doc);
    EXPECT_EQ(Read(Path("a.sql")), "select 1");
    ExpectItCanBeSavedElsewhere(doc);
}

TEST_F(FileFault, AFileThatMayNotBeReadIsToldAndLeftAlone)
{
    OpenDoc* doc = OpenChanged();
    chmod(QFile::encodeName(Write("b.sql", "secret")).constData(), 0);
    const OrdinaryUser person;
    EXPECT_EQ(doc->OnOpenDocument(Path("b.sql")), 0);
    EXPECT_EQ(user.asked.size(), 1);
    ExpectChangedTextIn(doc);
}

TEST_F(FileFault, AFileThatBecameReadOnlyUnderAChangedTextLocksTheEditorAndKeepsTheText)
{
    OpenDoc* doc = OpenChanged();
    Protect("a.sql");
    doc->CheckLastAccessTime();
    EXPECT_TRUE(doc->IsFileReadOnly());
    EXPECT_EQ(Text(doc), "-- select 1");
    EXPECT_TRUE(doc->IsModified());
    EXPECT_EQ(doc->DoSave(Path("elsewhere.sql")), 1);
    EXPECT_EQ(Read(Path("elsewhere.sql")), "-- select 1");
}

TEST_F(FileFault, AFileThatOthersCutShortIsWholeAgainAfterASave)
{
    OpenDoc* doc = OpenChanged();
    Write("a.sql", "sel", 100001);
    doc->CheckLastAccessTime(); // No
    ExpectChangedTextIn(doc);
    EXPECT_EQ(doc->DoFileSave(), 1);
    EXPECT_EQ(Read(Path("a.sql")), "-- select 1");
}

TEST_F(FileFault, AFileRewrittenInAnotherEncodingIsReadByItsMark)
{
    OpenDoc* doc = OpenCarefully(Write("a.sql", "select 1"));
    Write("a.sql",
          QByteArray("\xFF\xFE"
                     "2\0\xE4\0",
                     6),
          100001);
    user.answer = Answer::Yes;
    doc->CheckLastAccessTime();
    EXPECT_EQ(Text(doc), QStringLiteral("2\u00E4"));
    Type(doc, "1");
    EXPECT_EQ(doc->DoFileSave(), 1);
    EXPECT_EQ(Read(Path("a.sql")), QByteArray("\xFF\xFE"
                                              "1\0"
                                              "2\0\xE4\0",
                                              8));
}

TEST_F(FileFault, AFileSystemThatGoesAwayIsADeletedFileThatComesBack)
{
    OpenDoc* doc = OpenChanged();
    facts.fails = true;
    doc->CheckLastAccessTime();
    EXPECT_EQ(user.asked.size(), 1);
    doc->CheckLastAccessTime();
    EXPECT_EQ(user.asked.size(), 1);
    ExpectChangedTextIn(doc);
    EXPECT_TRUE(doc->OnCmdMsg(54010, nullptr)); // the read-only switch, which asks about the file
    EXPECT_TRUE(doc->OnCmdMsg(54010, nullptr));
    facts.fails = false;
    ExpectChangedTextIn(doc);
    EXPECT_EQ(doc->DoFileSave(), 1);
    EXPECT_NE(doc->m_lastAccessTime, 0);
}

// The memory of a process is a regular file by its facts, and the first read from it fails.
TEST_F(FileFault, AReadThatFailsIsToldAndMarksTheText)
{
    OpenDoc* doc = OpenCarefully("/proc/self/mem");
    ASSERT_NE(doc, nullptr);
    EXPECT_EQ(user.asked.size(), 1);
    EXPECT_TRUE(Control(doc).WasCutShort());
    EXPECT_EQ(Text(doc), "");
}

TEST_F(FileFault, AReloadThatCannotReadSaysSoAndKeepsTheTextAndItsAutosave)
{
    OpenDoc* doc = OpenChanged();
    Control(doc).setAutoSaveOn(true);
    SendMessage(Control(doc).GetSafeHwnd(), WM_TIMER, 100, 0);
    QFile::remove(Path("a.sql"));
    QDir().mkdir(Path("a.sql"));
    user.answer = Answer::Yes;
    doc->CheckLastAccessTime();
    ASSERT_EQ(user.asked.size(), 2) << "the question, and that it came to nothing";
    EXPECT_EQ(user.asked.back(), QStringLiteral("%1 could not be opened.").arg(Path("a.sql")));
    ExpectChangedTextIn(doc);
    EXPECT_GT(TimerInterval(Control(doc).GetSafeHwnd(), 100), 0u);
}

TEST_F(FileFault, APathOfEveryCharacterIsOneLikeAnyOther)
{
    QString name;
    for (char16_t c = 1; c < 0x80; ++c) {
        if (c != u'/')
            name += QChar(c);
    }
    name += QStringLiteral("\u00E9\u0301\u202E\uFFFD\U0001F600 %1 &b");
    const QString path = Write(name, "select 1");
    ExpectToLiveWith(OpenCarefully(path), path);
}

TEST_F(FileFault, NamesThatLookLikeMarksAndFormatsAreNames)
{
    for (const char* name :
         {"a *", "a (Read Only)", "%1", "%s%n", " ", "..a", "a\\b", "-x", "~", "a\nb"}) {
        SCOPED_TRACE(name);
        const QString path = Write(name, "select 1");
        OpenDoc* doc = OpenCarefully(path);
        ASSERT_NE(doc, nullptr);
        Type(doc, "-- ");
        EXPECT_EQ(doc->DoFileSave(), 1);
        EXPECT_EQ(Read(path), "-- select 1");
        EXPECT_EQ(doc->GetPathName(), path);
    }
    EXPECT_TRUE(user.asked.isEmpty());
}

TEST_F(FileFault, APathOfFourThousandCharactersIsOneLikeAnyOther)
{
    const QString path = PathOfLength(folder.path(), 4000, 9);
    ASSERT_EQ(path.size(), 4000);
    ExpectToLiveWith(OpenCarefully(Write(path.mid(folder.path().size() + 1), "select 1")), path);
}

TEST_F(FileFault, TheLongestPathOfTheSystemCanBeSaved)
{
    for (const qsizetype nameLength : {20, 150, 255}) {
        const QString path = PathOfLength(folder.path(), PATH_MAX - 1, nameLength);
        ASSERT_EQ(path.size(), PATH_MAX - 1);
        ExpectToLiveWith(OpenCarefully(Write(path.mid(folder.path().size() + 1), "select 1")),
                         path);
        EXPECT_EQ(CountIn(QFileInfo(path).path()), 1);
    }
}

TEST_F(FileFault, ALongNameOfManyByteCharactersCanBeSaved)
{
    for (const QString& name : {QString(127, QChar(0xE9)), u'x' + QString(127, QChar(0xE9))}) {
        const QString path = Write(name, "select 1");
        ExpectToLiveWith(OpenCarefully(path), path);
    }
}

TEST_F(FileFault, APathBeyondTheSystemsIsRefusedAndTold)
{
    for (const QString& path :
         {folder.path() + u'/' + QString(PATH_MAX, u'x'), folder.path() + u'/' + QString(256, u'x'),
          folder.path() + u'/' + QString(4000, QChar(0x00E9))}) {
        user.asked.clear();
        OpenDoc* doc = OpenChanged();
        EXPECT_EQ(doc->OnOpenDocument(path), 0);
        EXPECT_EQ(doc->DoSave(path), 0);
        EXPECT_EQ(user.asked.size(), 2);
        ExpectChangedTextIn(doc);
    }
}

// Such a name has no spelling in UTF-16: what the system's dialogs give for it is the name of a
// file that is not there.
TEST_F(FileFault, ANameThatIsNotUtf8IsRefusedAndItsFileIsLeftAlone)
{
    const QByteArray name = QFile::encodeName(folder.path()) + "/caf\xE9.sql";
    std::FILE* file = std::fopen(name.constData(), "wb");
    ASSERT_NE(file, nullptr);
    std::fputs("select 1", file);
    std::fclose(file);
    const QString path = QFile::decodeName(name);
    OpenDoc* doc = OpenChanged();
    EXPECT_EQ(doc->OnOpenDocument(path), 0);
    ASSERT_EQ(user.asked.size(), 1);
    EXPECT_TRUE(user.asked[0].contains(path));
    ExpectChangedTextIn(doc);
    EXPECT_EQ(doc->DoSave(path), 1); // a file of its own, with U+FFFD in its name
    EXPECT_EQ(Read(path), "-- select 1");
    file = std::fopen(name.constData(), "rb");
    ASSERT_NE(file, nullptr);
    char bytes[16] = {};
    EXPECT_EQ(std::fread(bytes, 1, sizeof bytes, file), 8u);
    EXPECT_STREQ(bytes, "select 1");
    std::fclose(file);
    std::remove(name.constData()); // Qt could not
}

TEST_F(FileFault, AFullDiskKeepsTheFileAndTheText)
{
    OpenDoc* doc = OpenCarefully(Write("a.sql", "select 1"));
    Type(doc, QString(100000, u'x'));
    {
        const FullDisk full(20000);
        EXPECT_EQ(doc->DoFileSave(), 0);
    }
    EXPECT_EQ(user.asked.size(), 1);
    EXPECT_EQ(Read(Path("a.sql")), "select 1");
    EXPECT_EQ(CountIn(folder.path()), 1);
    EXPECT_TRUE(doc->IsModified());
    EXPECT_EQ(Text(doc).size(), 100008);
    EXPECT_EQ(doc->DoFileSave(), 1);
    EXPECT_EQ(Read(Path("a.sql")).size(), 100008);
}

TEST_F(FileFault, AFullDiskKeepsTheTextOfAControlWithoutCare)
{
    OpenDoc* doc = OpenScript();
    Type(doc, QString(100000, u'x'));
    {
        const FullDisk full(20000);
        EXPECT_EQ(doc->DoFileSave(), 0);
    }
    EXPECT_TRUE(doc->IsModified());
    EXPECT_EQ(doc->DoFileSave(), 1);
    EXPECT_EQ(Read(Path("a.sql")).size(), 100008);
}

TEST_F(FileFault, ACopyOfACrashOutlivesADocumentThatIsClosedUnderTheQuestion)
{
    QString backups;
    ASSERT_TRUE(znutils::CSpecialFolders::GetAppAppDataPath(backups, true, u"Backup"));
    const QString path = Write("b.sql", "select 1");
    const auto plant = [&](const QByteArray& bytes) {
        QFile copy(backups + "/~ZN1.tmp");
        ASSERT_TRUE(copy.open(QFile::WriteOnly));
        copy.write(bytes);
        ApplicationProfile().WriteString("Backup", "~ZN1.tmp", path.toStdU16String().c_str());
    };
    user.answer = Answer::Yes;
    // Under the offer, and under the news that the copy is cut short.
    for (const QByteArray& bytes : {QByteArray("select 2"), QByteArray("\xFF\xFEx\0y", 5)}) {
        plant(bytes);
        OpenDoc* doc = New();
        Control(doc).SetCarefulFiles(true);
        const auto close = [doc] {
            doc->OnCloseDocument();
            Settle();
        };
        user.meanwhile = close;
        if (bytes.size() == 5)
            user.meanwhile = [&] { user.meanwhile = close; };
        doc->OnOpenDocument(path);
        EXPECT_TRUE(doc->IsClosed());
        Settle();
        EXPECT_EQ(Read(backups + "/~ZN1.tmp"), bytes);
    }
    plant("select 2");
    EXPECT_EQ(Text(OpenCarefully(path)), "select 2");
    EXPECT_FALSE(QFile::exists(backups + "/~ZN1.tmp"));
}

namespace {

// Each question that a document asks, closed under it.
struct Question
{
    const char* name;
    void (*ask)(FileFault& test, OpenDoc& doc);
};

class ClosedUnder : public FileFault, public testing::WithParamInterface<Question>
{};

const Question kQuestions[] = {
    {"Reload", [](FileFault&, OpenDoc& doc) { doc.OnCmdMsg(54008, nullptr); }},
    {"ReadOnly", [](FileFault&, OpenDoc& doc) { doc.OnCmdMsg(54010, nullptr); }},
    {"SaveModified", [](FileFault&, OpenDoc& doc) { doc.SaveModified(); }},
    {"FailedSave", [](FileFault&, OpenDoc& doc) { doc.DoSave("/missing/a.sql"); }},
    {"FailedOpen", [](FileFault&, OpenDoc& doc) { doc.OnOpenDocument("/missing/a.sql"); }},
    {"CutShort", [](FileFault&, OpenDoc& doc) { doc.OnOpenDocument("/proc/self/mem"); }},
    {"Focus",
     [](FileFault&, OpenDoc& doc) {
         QFile::remove(doc.GetPathName());
         SendMessage(doc.GetFirstEditView()->GetSafeHwnd(), WM_SETFOCUS, 0, 0);
     }},
};

} // namespace

TEST_P(ClosedUnder, AQuestionADocumentEndsThere)
{
    OpenDoc* doc = OpenChanged();
    QPointer<QWidget> engine = Control(doc).GetSafeHwnd();
    user.answer = Answer::Yes;
    bool closed = false;
    user.meanwhile = [&] {
        doc->OnCloseDocument();
        Settle();
        closed = true;
    };
    GetParam().ask(*this, *doc);
    EXPECT_TRUE(closed);
    Settle();
    EXPECT_TRUE(engine.isNull());
    EXPECT_TRUE(kind.GetDocuments().empty());
    EXPECT_EQ(user.asked.size(), 1);
    EXPECT_TRUE(Read(Path("a.sql")).isEmpty() || Read(Path("a.sql")) == "select 1");
}

INSTANTIATE_TEST_SUITE_P(Questions, ClosedUnder, testing::ValuesIn(kQuestions),
                         [](const auto& of) { return of.param.name; });
