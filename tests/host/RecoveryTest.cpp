// SPDX-License-Identifier: GPL-3.0-or-later
// What crashes have left, in the workbench: the list of it at the start, and each script that comes
// back. The crashes are those of other processes, which are killed.
#include "control/EngineLooks.h"
#include "control/LeftCopies.h"
#include "editing/ZNCoreEditorWidget.h"
#include "host/files/Places.h"
#include "host/recovery/RecoveryDialog.h"
#include "host/session/Session.h"
#include "platform/windows/Timer.h"
#include "tests/host/WorkbenchTest.h"

#include <QComboBox>
#include <QDir>
#include <QMainWindow>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include <set>

namespace {

using State = RecoverableCopy::State;

constexpr UINT kAutosave = 100;
constexpr int kPatienceInMs = 30000;

// Stands for the program that is killed, whose copies are found by its name.
class Recovery : public WorkbenchTest
{
protected:
    Recovery() { QApplication::setApplicationName(QStringLiteral("znworkbench")); }
    ~Recovery() override
    {
        m_app.CloseAllDocuments();
        LeftCopies left;
        for (const LeftCopies::Copy& copy : left.All())
            left.Discard(copy.path);
        QApplication::setApplicationName(m_before);
    }

    // A workbench in which somebody types into the scripts and which is killed.
    void Crash(const QStringList& words)
    {
        QProcess workbench;
        workbench.setProcessChannelMode(QProcess::ForwardedChannels);
        workbench.start(QStringLiteral(ZN_CRASHING_WORKBENCH), words);
        ASSERT_TRUE(workbench.waitForFinished(kPatienceInMs));
        ASSERT_EQ(workbench.exitStatus(), QProcess::CrashExit) << workbench.exitCode();
    }

    QString Script(const char* name) const { return PathOf(QString::fromLatin1(name)); }

    void StartAgain(RecoveryChoice choice)
    {
        m_prompts.recovery = choice;
        m_app.ChooseWhatToRecover();
        m_app.Recover();
        QApplication::processEvents();
    }

    State OnlyState() const
    {
        EXPECT_EQ(m_prompts.recoverable.size(), 1);
        return m_prompts.recoverable.value(0).state;
    }

    QString m_before = QApplication::applicationName();
};

RecoverableCopy Copy(const QString& path, const QString& document, State state)
{
    RecoverableCopy copy;
    copy.path = path;
    copy.document = document;
    copy.name = QStringLiteral("a.sql");
    copy.copyTime = copy.fileTime = QDateTime::currentDateTime();
    copy.state = state;
    return copy;
}

} // namespace

TEST_F(Recovery, ListsAScriptAtTheStartAndBringsItBack)
{
    const QString script = Write(QStringLiteral("a.sql"), "select 1;\n");
    Crash({script});
    StartAgain(RecoveryChoice::Recover);
    EXPECT_EQ(OnlyState(), State::Unchanged);
    EXPECT_EQ(m_prompts.recoverable[0].document, script);
    EXPECT_EQ(Text(), QStringLiteral("-- typed\nselect 1;\n"));
    EXPECT_TRUE(WorkbenchTest::Script().IsModified());
    EXPECT_TRUE(m_prompts.told.isEmpty());
    Trigger("undo");
    EXPECT_EQ(Text(), QStringLiteral("select 1;\n"));
}

TEST_F(Recovery, BringsBackAScriptOfTheSessionThatIsNotReadYet)
{
    const QString script = Write(QStringLiteral("a.sql"), "select 1;\n");
    const QString front = Write(QStringLiteral("b.sql"), "select 2;\n");
    Crash({script});
    m_prompts.recovery = RecoveryChoice::Recover;
    ASSERT_TRUE(Session({.files = {{.path = script}, {.path = front}}, .front = 1})
                    .Store(Session::DefaultPath()));
    m_app.ChooseWhatToRecover();
    m_window.ResumeSession();
    ASSERT_EQ(m_window.TabCount(), 1);
    m_app.Recover();
    m_window.FinishResuming();
    EXPECT_EQ(m_window.TabCount(), 2);
    EXPECT_EQ(m_prompts.recoverable.size(), 1);
    m_window.ShowTab(0);
    EXPECT_EQ(Text(), QStringLiteral("-- typed\nselect 1;\n"));
    EXPECT_TRUE(WorkbenchTest::Script().IsModified());
    QFile::remove(Session::DefaultPath());
}

TEST_F(Recovery, ListsAllScriptsOnce)
{
    Crash({Write(QStringLiteral("a.sql"), "a\n"), Write(QStringLiteral("b.sql"), "b\n"),
           QStringLiteral("--new")});
    StartAgain(RecoveryChoice::Recover);
    EXPECT_EQ(m_prompts.recoverable.size(), 3);
    EXPECT_EQ(m_window.TabCount(), 3);
    EXPECT_TRUE(m_prompts.asked.isEmpty());
    StartAgain(RecoveryChoice::Recover); // they are this run's own
    EXPECT_EQ(m_prompts.recoverable.size(), 3);
}

TEST_F(Recovery, BringsBackAScriptThatNeverHadAName)
{
    Crash({QStringLiteral("--new")});
    StartAgain(RecoveryChoice::Recover);
    EXPECT_EQ(OnlyState(), State::NeverNamed);
    EXPECT_EQ(Text(), QStringLiteral("-- typed\n"));
    EXPECT_EQ(WorkbenchTest::Script().GetPathName(), QString());
    EXPECT_TRUE(WorkbenchTest::Script().IsModified());

    // It goes into a file as any other, and the copy with it.
    m_prompts.saveTarget = SaveTarget{Script("named.sql"), 6, false};
    Trigger("save");
    EXPECT_EQ(Read(QStringLiteral("named.sql")), QByteArray("-- typed\n"));
    Trigger("close");
    EXPECT_TRUE(LeftCopies().All().empty());
}

TEST_F(Recovery, KeepsTheLanguageOfAScriptThatNeverHadAName)
{
    Crash({QStringLiteral("--new"), QStringLiteral("--language"), QStringLiteral("5")});
    StartAgain(RecoveryChoice::Recover);
    EXPECT_EQ(WorkbenchTest::Script().Language(), 5);
}

TEST_F(Recovery, KeepsTheNameThatTheListShowed)
{
    Crash({QStringLiteral("--new"), QStringLiteral("--new")});
    LeftCopies copies;
    QStringList names;
    for (const LeftCopies::Copy& copy : copies.All()) {
        const RecoverableCopy described = Describe(copy);
        names << described.name;
        if (described.name != QStringLiteral("Script 2"))
            continue;
        m_app.NewScript();
        ASSERT_EQ(WorkbenchTest::Script().Name(), QStringLiteral("Script 1"));
        copies.Release(described.path);
        EXPECT_TRUE(WorkbenchTest::Script().Recover(described));
    }
    ASSERT_TRUE(names.contains(QStringLiteral("Script 2")));
    EXPECT_EQ(WorkbenchTest::Script().Name(), QStringLiteral("Script 2"));
    m_app.NewScript();
    EXPECT_EQ(WorkbenchTest::Script().Name(), QStringLiteral("Script 3")) << "one of each name";
}

TEST_F(Recovery, ChangesOnlyTheLinesThatDifferFromTheFile)
{
    const QString script = Write(QStringLiteral("a.sql"), "one\r\ntwo\nthree\n");
    Crash({script});
    StartAgain(RecoveryChoice::Recover);
    EXPECT_EQ(Text(), QStringLiteral("-- typed\none\r\ntwo\nthree\n"));
    constexpr int kChanged = 1 << engine::lookmarker::kLineChanged;
    EXPECT_TRUE(Editor().MarkerGet(0, 1) & kChanged);
    for (int line = 1; line < 4; ++line)
        EXPECT_FALSE(Editor().MarkerGet(line, 1) & kChanged) << line;
    Trigger("undo");
    EXPECT_EQ(Text(), QStringLiteral("one\r\ntwo\nthree\n"));
    EXPECT_FALSE(WorkbenchTest::Script().IsModified());
}

TEST_F(Recovery, FindsWhatWasTypedUntilTheKeysRested)
{
    const QString script = Write(QStringLiteral("a.sql"), "select 1;\n");
    ASSERT_TRUE(m_app.OpenDocumentFile(script));
    auto* soon = WorkbenchTest::Script().findChild<QTimer*>(QStringLiteral("copySoon"));
    ASSERT_TRUE(soon);
    EXPECT_LE(soon->interval(), 5000) << "some seconds";
    soon->setInterval(1);
    Type(u"-- last\n");
    const QDir folder(QFileInfo(places::DataPath(QString())).filePath() + QStringLiteral("Backup"));
    const auto copied = [&] {
        for (const QFileInfo& info : folder.entryInfoList({QStringLiteral("~ZN*")}, QDir::Files)) {
            QFile copy(info.filePath());
            if (copy.open(QIODevice::ReadOnly) && copy.readAll() == "-- last\nselect 1;\n")
                return true;
        }
        return false;
    };
    EXPECT_TRUE(QTest::qWaitFor(copied, kPatienceInMs));
}

TEST_F(Recovery, NamesTheScriptOfWhichNoCopyCouldBeWritten)
{
    QDir data(places::DataPath(QString()));
    ASSERT_TRUE(QDir(data.filePath("Backup")).removeRecursively());
    QFile inTheWay(data.filePath("Backup"));
    ASSERT_TRUE(data.mkpath(".") && inTheWay.open(QIODevice::WriteOnly));
    Open("a.sql", "select 1;\n");
    const QSignalSpy told(&WorkbenchTest::Script(), &ScriptDoc::Told);
    Type(u"-- typed\n");
    ASSERT_TRUE(WorkbenchTest::Script().GetTitle().endsWith("*"));
    WorkbenchTest::Script().findChild<QTimer*>(QStringLiteral("copySoon"))->start(0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !told.empty(); }, kPatienceInMs));
    EXPECT_TRUE(told.value(0).value(0).toString().startsWith(
        QString::fromUtf8("No copy of “a.sql” could be written")));
    EXPECT_TRUE(inTheWay.remove());
}

TEST_F(Recovery, BringsBackAScriptWhoseFileWasDeletedUnderItsName)
{
    const QString script = Write(QStringLiteral("a.sql"), "select 1;\n");
    Crash({script});
    ASSERT_TRUE(QFile::remove(script));
    StartAgain(RecoveryChoice::Recover);
    EXPECT_EQ(OnlyState(), State::Deleted);
    EXPECT_EQ(Text(), QStringLiteral("-- typed\nselect 1;\n"));
    EXPECT_EQ(WorkbenchTest::Script().GetPathName(), script);
    Trigger("save");
    EXPECT_EQ(Read(QStringLiteral("a.sql")), QByteArray("-- typed\nselect 1;\n"));
    EXPECT_FALSE(WorkbenchTest::Script().IsModified());
}

TEST_F(Recovery, SurvivesASecondCrash)
{
    const QString script = Write(QStringLiteral("a.sql"), "select 1;\n");
    Crash({script, QStringLiteral("--new")});
    ASSERT_TRUE(QFile::remove(script));
    Crash({QStringLiteral("--recover")});
    StartAgain(RecoveryChoice::Recover);
    EXPECT_EQ(m_prompts.recoverable.size(), 2);
    m_window.ShowTab(0);
    const QString first = Text();
    m_window.ShowTab(1);
    EXPECT_EQ(
        std::set<QString>({first, Text()}),
        std::set<QString>({QStringLiteral("-- typed\nselect 1;\n"), QStringLiteral("-- typed\n")}));
}

TEST_F(Recovery, TellsAFileThatOthersHaveChanged)
{
    const QString script = Write(QStringLiteral("a.sql"), "select 1;\n");
    Crash({script});
    Write(QStringLiteral("a.sql"), "select 22;\n");
    StartAgain(RecoveryChoice::Later);
    EXPECT_EQ(OnlyState(), State::Changed);
    EXPECT_EQ(m_window.TabCount(), 0);
}

TEST_F(Recovery, TellsAFileThatOthersChangedBeforeTheCopyWasWritten)
{
    const QString script = Write(QStringLiteral("a.sql"), "select 1;\n");
    Crash({script, QStringLiteral("--others"), QStringLiteral("-- theirs\n")});
    StartAgain(RecoveryChoice::Recover);
    EXPECT_EQ(OnlyState(), State::Changed);
    ASSERT_EQ(Text(), QStringLiteral("-- typed\nselect 1;\n"));
    EXPECT_FALSE(WorkbenchTest::Script().DoFileSave());
    ASSERT_EQ(m_prompts.asked.size(), 1);
    EXPECT_TRUE(m_prompts.asked[0].contains(QStringLiteral("changed outside")));
    EXPECT_EQ(Read(QStringLiteral("a.sql")), QByteArray("select 1;\n-- theirs\n"));
    m_prompts.confirm = true;
    EXPECT_TRUE(WorkbenchTest::Script().DoFileSave());
    Type(u"x");
    EXPECT_TRUE(WorkbenchTest::Script().DoFileSave());
    EXPECT_EQ(m_prompts.asked.size(), 2) << "what was saved is this text";
}

TEST_F(Recovery, TellsSoAfterASecondCrashToo)
{
    const QString script = Write(QStringLiteral("a.sql"), "select 1;\n");
    Crash({script, QStringLiteral("--others"), QStringLiteral("-- theirs\n")});
    Crash({QStringLiteral("--recover")});
    StartAgain(RecoveryChoice::Later);
    EXPECT_EQ(OnlyState(), State::Changed);
}

TEST_F(Recovery, AsksBeforeASaveOverWhatOthersWroteWhileTheListStood)
{
    const QString script = Write(QStringLiteral("a.sql"), "select 1;\n");
    Crash({script});
    m_prompts.recovery = RecoveryChoice::Recover;
    m_app.ChooseWhatToRecover();
    Write(QStringLiteral("a.sql"), "select 22;\n");
    m_app.Recover();
    EXPECT_EQ(OnlyState(), State::Unchanged);
    EXPECT_FALSE(WorkbenchTest::Script().DoFileSave());
    EXPECT_EQ(Read(QStringLiteral("a.sql")), QByteArray("select 22;\n"));
}

TEST_F(Recovery, LeavesForLaterWhatIsOpenedBeforeItEnds)
{
    const QString script = Write(QStringLiteral("a.sql"), "select 1;\n");
    Crash({script});
    m_app.ChooseWhatToRecover();
    ASSERT_TRUE(m_app.OpenDocumentFile(script)); // as the session does
    m_app.Recover();
    EXPECT_EQ(m_prompts.recoverable.size(), 1);
    EXPECT_EQ(Text(), QStringLiteral("select 1;\n"));
    Trigger("close");
    StartAgain(RecoveryChoice::Later);
    EXPECT_EQ(m_prompts.recoverable.size(), 2);
}

TEST_F(Recovery, DiscardsACopyForGood)
{
    Crash({Write(QStringLiteral("a.sql"), "select 1;\n")});
    StartAgain(RecoveryChoice::Discard);
    StartAgain(RecoveryChoice::Recover);
    EXPECT_EQ(m_prompts.recoverable.size(), 1);
    EXPECT_EQ(m_window.TabCount(), 0);
}

TEST_F(Recovery, SaysNothingOfACopyThatIsTheFile)
{
    Crash({Write(QStringLiteral("a.sql"), "select 1;\n")});
    Write(QStringLiteral("a.sql"), "-- typed\nselect 1;\n");
    StartAgain(RecoveryChoice::Later);
    EXPECT_TRUE(m_prompts.recoverable.isEmpty());
}

TEST_F(Recovery, LosesNoneOfTwoCopiesOfOneFile)
{
    const QString script = Write(QStringLiteral("a.sql"), "select 1;\n");
    Crash({script});
    Crash({script, QStringLiteral("--text"), QStringLiteral("-- other\n")});
    StartAgain(RecoveryChoice::Recover);
    ASSERT_EQ(m_prompts.recoverable.size(), 2);
    const QString newer = Text();
    const LeftCopies left;
    ASSERT_EQ(left.All().size(), 1u);
    QFile copy(left.All()[0].path);
    ASSERT_TRUE(copy.open(QIODevice::ReadOnly));
    EXPECT_EQ(std::set<QString>({newer, QString::fromUtf8(copy.readAll())}),
              std::set<QString>({QStringLiteral("-- typed\nselect 1;\n"),
                                 QStringLiteral("-- other\nselect 1;\n")}));
}

TEST_F(Recovery, CopiesAScriptWhoseFileIsGoneThoughNobodyTypes)
{
    const QString script = Write(QStringLiteral("a.sql"), "select 1;\n");
    ASSERT_TRUE(m_app.OpenDocumentFile(script));
    ASSERT_TRUE(QFile::remove(script));
    WorkbenchTest::Script().OnFocus(); // No: the text is kept
    QApplication::processEvents();
    SendMessage(Editor().GetSafeHwnd(), WM_TIMER, kAutosave, 0);
    const QDir folder(QFileInfo(places::DataPath(QString())).filePath() + QStringLiteral("Backup"));
    QByteArrayList texts;
    for (const QFileInfo& info : folder.entryInfoList({QStringLiteral("~ZN*")}, QDir::Files)) {
        QFile copy(info.filePath());
        ASSERT_TRUE(copy.open(QIODevice::ReadOnly));
        texts << copy.readAll();
    }
    EXPECT_EQ(texts, QByteArrayList{"select 1;\n"});
}

TEST_F(Recovery, LeavesTheCopyOfAScriptThatCannotBeOpened)
{
    Crash({QStringLiteral("--new")});
    m_prompts.recovery = RecoveryChoice::Recover;
    m_app.ChooseWhatToRecover();
    LeftCopies others; // another workbench was faster
    ASSERT_EQ(others.All().size(), 1u);
    m_app.Recover();
    EXPECT_EQ(m_prompts.told.size(), 1);
    EXPECT_EQ(m_window.TabCount(), 0);
    EXPECT_TRUE(QFile::exists(others.All()[0].path));
}

TEST_F(Recovery, ComparesTheCopyWithTheFile)
{
    const QString file = Write(QStringLiteral("a.sql"), "one\ntwo\nthree\n");
    const QString copy = Write(QStringLiteral("copy"), "one\nzwei\nthree\n");
    const RecoveryDialog dialog(nullptr, {Copy(copy, file, State::Unchanged)});
    auto* comparison = dialog.findChild<ZNCoreEditorWidget*>(QStringLiteral("comparison"));
    EXPECT_EQ(comparison->text(), QStringLiteral("  one\n- two\n+ zwei\n  three"));
    EXPECT_EQ(comparison->control().GetReadOnly(1), 1);
    EXPECT_EQ(comparison->control().MarkerGet(0, 1) & 3 << 15, 0);
    EXPECT_EQ(comparison->control().MarkerGet(1, 1) & 3 << 15, 1 << 16);
    EXPECT_EQ(comparison->control().MarkerGet(2, 1) & 3 << 15, 1 << 15);
}

TEST_F(Recovery, AsksInTheMiddleOfTheScreenUntilTheWindowHasItsPlace)
{
    const QString copy = Write(QStringLiteral("copy"), "one");
    const QList<RecoverableCopy> copies{Copy(copy, QString(), State::NeverNamed)};
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_window));
    const RecoveryDialog overIt(&m_window, copies);
    EXPECT_FALSE(overIt.testAttribute(Qt::WA_Moved)) << "Qt puts it over the window";
    QMainWindow unplaced;
    RecoveryDialog dialog(&unplaced, copies);
    dialog.show();
    const QPoint middle = dialog.screen()->availableGeometry().center();
    EXPECT_LE((dialog.geometry().center() - middle).manhattanLength(), 8); // a frame
}

TEST_F(Recovery, ShowsTheTextOfACopyWithoutAFile)
{
    const QString copy = Write(QStringLiteral("copy"), "one\ntwo");
    const RecoveryDialog dialog(nullptr, {Copy(copy, QString(), State::NeverNamed)});
    EXPECT_EQ(dialog.findChild<ZNCoreEditorWidget*>(QStringLiteral("comparison"))->text(),
              QStringLiteral("one\ntwo"));
}

TEST_F(Recovery, TakesAChoiceForEachAndForAll)
{
    const QString copy = Write(QStringLiteral("copy"), "x");
    RecoveryDialog dialog(nullptr,
                          QList<RecoverableCopy>(3, Copy(copy, QString(), State::NeverNamed)));
    EXPECT_EQ(dialog.Choices(), QList<RecoveryChoice>(3, RecoveryChoice::Later)); // not accepted
    dialog.findChild<QPushButton*>(QStringLiteral("Discard all"))->click();
    dialog.findChildren<QComboBox*>()[1]->setCurrentIndex(0);
    dialog.accept();
    EXPECT_EQ(dialog.Choices(),
              (QList<RecoveryChoice>{RecoveryChoice::Discard, RecoveryChoice::Recover,
                                     RecoveryChoice::Discard}));
}

TEST_F(Recovery, TakesTheChoiceOfTheCurrentRowFromTheKeyboard)
{
    const QString copy = Write(QStringLiteral("copy"), "x");
    RecoveryDialog dialog(nullptr,
                          QList<RecoverableCopy>(3, Copy(copy, QString(), State::NeverNamed)));
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    auto* list = dialog.findChild<QTreeWidget*>(QStringLiteral("recoverable"));
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Space);
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Tab);
    const QWidget* box = list->itemWidget(list->topLevelItem(2), list->columnCount() - 1);
    EXPECT_EQ(dialog.focusWidget(), box);
    EXPECT_EQ(list->indexOfTopLevelItem(list->currentItem()), 2);
    dialog.accept();
    EXPECT_EQ(dialog.Choices(),
              (QList<RecoveryChoice>{RecoveryChoice::Recover, RecoveryChoice::Discard,
                                     RecoveryChoice::Recover}));
}

TEST_F(Recovery, GoesOnByEnterWithoutDiscardingAnything)
{
    const QString copy = Write(QStringLiteral("copy"), "x");
    RecoveryDialog dialog(nullptr, {Copy(copy, QString(), State::NeverNamed)});
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Return);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(dialog.Choices(), QList<RecoveryChoice>{RecoveryChoice::Recover});
}

TEST(AgeOfACopy, IsToldInTheLargestUnit)
{
    const QDateTime now = QDateTime::fromSecsSinceEpoch(1'000'000'000);
    const auto age = [&now](qint64 seconds) {
        return AgeOf(now.addSecs(-seconds), now).toStdString();
    };
    EXPECT_EQ(age(59), "just now");
    EXPECT_EQ(age(60), "1 minute ago");
    EXPECT_EQ(age(3599), "59 minutes ago");
    EXPECT_EQ(age(3600), "1 hour ago");
    EXPECT_EQ(age(2 * 86400), "2 days ago");
    EXPECT_EQ(age(8 * 86400).find("ago"), std::string::npos);
    EXPECT_EQ(age(-5).find("ago"), std::string::npos); // the clock was set back
}
