// SPDX-License-Identifier: GPL-3.0-or-later
// A script and its file: opened, saved, reloaded, and changed by others meanwhile.
#include "host/files/Encodings.h"
#include "host/files/LineEnds.h"
#include "host/folder/FolderPane.h"
#include "platform/services/OptionsServer.h"
#include "tests/host/WorkbenchTest.h"

#include <QAbstractScrollArea>
#include <QDir>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QMimeData>
#include <QScopeGuard>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include <sys/stat.h>

namespace {

class ScriptFiles : public WorkbenchTest
{
protected:
    // Somebody else writes; the time is another one even within the second.
    void WriteFromOutside(const QString& name, const QByteArray& bytes, int hoursAgo = 1) const
    {
        const QString path = Write(name, bytes);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addSecs(-3600 * hoursAgo),
                                     QFileDevice::FileModificationTime));
    }

    // The person turns to something else in the window, and back to the script.
    void LeaveAndComeBack()
    {
        ASSERT_TRUE(m_window.isActiveWindow());
        QWidget other(&m_window);
        other.setFocusPolicy(Qt::StrongFocus);
        other.show();
        other.setFocus();
        QApplication::processEvents();
        ASSERT_TRUE(other.hasFocus());
        Frame().View()->SetFocus();
        for (int pass = 0; pass < 3; ++pass)
            QApplication::processEvents();
        Disposal::Run();
    }

    QString Caption() const
    {
        const auto* tabs = m_window.findChild<QTabWidget*>();
        const int index = tabs->currentIndex();
        return tabs->tabText(index) + (tabs->tabIcon(index).isNull() ? "" : " *");
    }

    void MakeReadOnly(const QString& name) const
    {
        ASSERT_EQ(chmod(PathOf(name).toLocal8Bit().constData(), 0444), 0);
    }

    bool WaitUntil(const std::function<bool()>& condition) const
    {
        QElapsedTimer clock;
        clock.start();
        while (!condition() && clock.elapsed() < 10000)
            QApplication::processEvents(QEventLoop::AllEvents, 20);
        return condition();
    }

    void Drop(QWidget& onto, const QStringList& files) const
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& file : files)
            urls << QUrl::fromLocalFile(file);
        data.setUrls(urls);
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&onto, &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&onto, &drop);
        EXPECT_TRUE(drop.isAccepted());
        QApplication::processEvents();
    }
};

} // namespace

TEST_F(ScriptFiles, OpenInAnEncodingOfChoice)
{
    m_prompts.whatToOpen = OpenChoice{Write("a.sql", "caf\xC3\xA9"), 0};
    Trigger("openAs");
    EXPECT_EQ(Text(), QStringLiteral("cafÃ©"));
    EXPECT_EQ(Status("encoding"), "windows-1252");
    m_prompts.whatToOpen = OpenChoice{PathOf("a.sql"), 6};
    Trigger("openAs");
    EXPECT_EQ(m_window.TabCount(), 1);
    EXPECT_EQ(Text(), QStringLiteral("café"));
    EXPECT_EQ(Status("encoding"), "UTF-8");
}

TEST_F(ScriptFiles, AreReadAndSavedInACodePageOfChoiceWhileOthersAreInTheirs)
{
    Write("a.sql", "\xCF\xF0\xE8\xE2\xE5\xF2\n");
    Open("b.sql", "caf\xE9\n");
    m_prompts.whatToOpen = OpenChoice{PathOf("a.sql"), 1251};
    Trigger("openAs");
    EXPECT_EQ(Text(), QString::fromUtf8("\u041F\u0440\u0438\u0432\u0435\u0442\n"));
    EXPECT_EQ(Status("encoding"), "windows-1251");
    Editor().ReplaceSel(u"\u042F", 1);
    Trigger("save");
    EXPECT_EQ(Read("a.sql"), "\xDF\xCF\xF0\xE8\xE2\xE5\xF2\n");
    m_window.ShowTab(0);
    Settle();
    EXPECT_EQ(Status("encoding"), "windows-1252");
    EXPECT_EQ(Text(), QString::fromUtf8("caf\u00E9\n"));
}

TEST_F(ScriptFiles, AreSavedAsAnotherCodePageUnlessThatLosesCharacters)
{
    Open("a.sql", "\xD0\x9F\xD1\x80 -- UTF-8\n");
    m_prompts.saveTarget = SaveTarget{PathOf("a.sql"), 866, false};
    Trigger("saveAs");
    EXPECT_EQ(Read("a.sql"), "\x8F\xE0 -- UTF-8\n");
    EXPECT_EQ(Status("encoding"), "IBM866");
    m_prompts.saveTarget = SaveTarget{PathOf("a.sql"), 1252, false};
    m_prompts.loseCharacters = LoseCharacters::Cancel;
    Trigger("saveAs");
    EXPECT_EQ(Read("a.sql"), "\x8F\xE0 -- UTF-8\n");
    EXPECT_EQ(Status("encoding"), "IBM866");
}

TEST_F(ScriptFiles, AreInTheCodePageOfTheOptionsWhereNobodyChose)
{
    CZNOptionsServer& options = *CZNOptionsServer::GetObjectW();
    options.SetInt(kCodePageOption, 1251);
    const auto restored = qScopeGuard([&] { options.SetInt(kCodePageOption, 0); });
    Open("a.sql", "\xCF\xF0\xE8\xE2\xE5\xF2\n");
    EXPECT_EQ(Text(), QString::fromUtf8("\u041F\u0440\u0438\u0432\u0435\u0442\n"));
    EXPECT_EQ(Status("encoding"), "windows-1251");
    options.SetInt(kCodePageOption, 4711);
    Open("b.sql", "caf\xE9\n");
    EXPECT_EQ(Status("encoding"), "windows-1252") << "which is none";
}

TEST_F(ScriptFiles, AreInTheCodePageThatWasChosenForThemOrForOthersOfTheirFolder)
{
    m_prompts.whatToOpen = OpenChoice{Write("a.sql", "\xCF\xF0\n"), 1251};
    Trigger("openAs");
    Trigger("close");
    Open("a.sql", "\xCF\xF0\n");
    EXPECT_EQ(Text(), QString::fromUtf8("\u041F\u0440\n"));
    Open("b.sql", "\xDF\xCF\n");
    EXPECT_EQ(Text(), QString::fromUtf8("\u042F\u041F\n"));
    EXPECT_TRUE(WaitUntil([this] {
        return m_window.statusBar()->currentMessage() ==
               "b.sql: windows-1251, as other files of this folder";
    }));
    Open("c.sql", "caf\xC3\xA9 in UTF-8\n");
    EXPECT_EQ(Status("encoding"), "UTF-8");
    ASSERT_TRUE(QDir(PathOf("")).mkdir("other"));
    Open("other/d.sql", "caf\xE9\n");
    EXPECT_EQ(Status("encoding"), "windows-1252");
}

TEST_F(ScriptFiles, TellOnceWhichCodePageOthersOfTheirFolderHave)
{
    const auto told = [this] {
        m_window.statusBar()->clearMessage();
        Open("b.sql", "\xDF\xCF\n");
        QApplication::processEvents();
        const QString text = m_window.statusBar()->currentMessage();
        Trigger("close");
        return text;
    };
    RememberCodePage(PathOf("a.sql"), 1251);
    EXPECT_EQ(told(), "b.sql: windows-1251, as other files of this folder");
    EXPECT_EQ(told(), "");
    RememberCodePage(PathOf("a.sql"), 866);
    EXPECT_EQ(told(), "b.sql: IBM866, as other files of this folder") << "which is another";
    EXPECT_EQ(told(), "");
}

TEST_F(ScriptFiles, KeepTheirCodePageIfTheyCannotBeReadInAnother)
{
    Open("a.sql", "caf\xE9\n");
    const QString path = PathOf("a.sql");
    ASSERT_TRUE(QFile::remove(path) && QDir().mkdir(path)); // which nobody can read
    m_prompts.whatToOpen = OpenChoice{path, 1251};
    Trigger("openAs");
    EXPECT_EQ(Status("encoding"), "windows-1252");
    EXPECT_EQ(Script().ChosenEncoding(), -1);
    ASSERT_TRUE(QDir().rmdir(path));
    Editor().ReplaceSel(u"\u00e9", 1);
    m_prompts.saveTarget = SaveTarget{path, Script().CurrentTarget().encoding, false};
    Trigger("saveAs");
    EXPECT_EQ(Read("a.sql"), "\xE9"
                             "caf\xE9\n");
}

TEST_F(ScriptFiles, AreReadAgainAsTheyWereSavedLast)
{
    m_prompts.whatToOpen = OpenChoice{Write("a.sql", "\xCF\xF0\n"), 1251};
    Trigger("openAs");
    EXPECT_EQ(Script().ChosenEncoding(), 1251);
    m_prompts.saveTarget = SaveTarget{PathOf("a.sql"), 6, false};
    Trigger("saveAs");
    EXPECT_EQ(Read("a.sql"), "\xD0\x9F\xD1\x80\n");
    EXPECT_EQ(Script().ChosenEncoding(), 6) << "which the session remembers";
    m_prompts.saveTarget = SaveTarget{PathOf("a.sql"), 866, false};
    Trigger("saveAs");
    EXPECT_EQ(Script().ChosenEncoding(), 866);
}

TEST_F(ScriptFiles, AreReadAnewInTheEncodingThatIsDetected)
{
    Write("a.sql", "caf\xE9 au lait");
    m_prompts.whatToOpen = OpenChoice{PathOf("a.sql"), 6};
    Trigger("openAs");
    EXPECT_EQ(Status("encoding"), "UTF-8");
    m_prompts.whatToOpen = OpenChoice{PathOf("a.sql"), -1};
    Trigger("openAs");
    EXPECT_EQ(m_window.TabCount(), 1);
    EXPECT_EQ(Text(), QStringLiteral("café au lait"));
    EXPECT_EQ(Status("encoding"), "windows-1252");
    EXPECT_EQ(m_window.statusBar()->currentMessage(), "a.sql was read anew: it is windows-1252");
}

TEST_F(ScriptFiles, KeepTheirChangesOverAnotherEncodingUnlessThePersonGivesThemUp)
{
    Open("a.sql", "caf\xC3\xA9");
    Type(u"x");
    m_prompts.whatToOpen = OpenChoice{PathOf("a.sql"), 0};
    Trigger("openAs");
    EXPECT_EQ(m_prompts.asked, QStringList{"a.sql"});
    EXPECT_EQ(Text(), QStringLiteral("xcafé"));
}

TEST_F(ScriptFiles, OpenAtTheLineThatTheCommandLineNames)
{
    const QString path = Write("a.sql", "one\ntwo\nthree\n");
    const QString other = Write("b.sql", "b\n");
    EXPECT_TRUE(m_window.OpenPlaces({path + ":3", other}));
    EXPECT_EQ(Script().Name(), "a.sql") << "the first of them is in front";
    EXPECT_EQ(Status("caret"), "Line 3, column 1");
    EXPECT_TRUE(m_window.OpenPlaces({path + ":2:3:"}));
    EXPECT_EQ(Editor().GetCurrentPos(1), 6);
    EXPECT_TRUE(m_window.OpenPlaces({path + ":1:2147483647"}));
    EXPECT_EQ(Editor().GetCurrentPos(1), 3) << "the line's end";
    EXPECT_FALSE(m_window.OpenPlaces({PathOf("gone.sql:3")}));
    EXPECT_TRUE(m_prompts.asked.value(0).contains("gone.sql")) << "whether it is to be made";
    EXPECT_TRUE(m_prompts.told.isEmpty());
}

TEST_F(ScriptFiles, AreAllSavedByOneCommand)
{
    Open("a.sql", "a");
    EXPECT_FALSE(Action("saveAll").isEnabled());
    Type(u"x");
    Open("b.sql", "b");
    Type(u"y");
    EXPECT_TRUE(Action("saveAll").isEnabled());
    Trigger("saveAll");
    EXPECT_EQ(Read("a.sql"), "xa");
    EXPECT_EQ(Read("b.sql"), "yb");
    EXPECT_FALSE(Action("saveAll").isEnabled());
}

TEST_F(ScriptFiles, ComeBackAsTheyAreOnDisk)
{
    Open("a.sql", "a");
    EXPECT_FALSE(Action("reload").isEnabled());
    Type(u"x");
    EXPECT_TRUE(Action("reload").isEnabled());
    Trigger("reload");
    ASSERT_EQ(m_prompts.told.size(), 1);
    EXPECT_TRUE(m_prompts.told[0].contains("reload"));
    EXPECT_TRUE(m_prompts.told[0].contains("changes that are not saved are lost"));
    EXPECT_EQ(Text(), "xa");
    m_prompts.answer = Answer::Yes;
    Trigger("reload");
    EXPECT_EQ(Text(), "a");
    EXPECT_EQ(Caption(), "a.sql");
}

TEST_F(ScriptFiles, AreLockedAgainstChangesByASwitch)
{
    Open("a.sql", "a");
    EXPECT_FALSE(Action("readOnlySwitch").isChecked());
    Trigger("readOnlySwitch");
    EXPECT_EQ(Caption(), "a.sql (Read Only)");
    EXPECT_TRUE(Action("readOnlySwitch").isChecked());
    EXPECT_TRUE(m_window.windowTitle().startsWith("a.sql (Read Only)"));
    ASSERT_EQ(m_prompts.told.size(), 1) << "whether the file shall be, too";
    Editor().ReplaceSel(u"x", 1);
    EXPECT_EQ(Text(), "a");
    Trigger("readOnlySwitch");
    EXPECT_EQ(Caption(), "a.sql");
}

TEST_F(ScriptFiles, ThatMayNotBeWrittenAreMarkedAndSavedElsewhere)
{
    Write("a.sql", "a");
    MakeReadOnly("a.sql");
    ASSERT_TRUE(m_app.OpenDocumentFile(PathOf("a.sql")));
    EXPECT_EQ(Caption(), "a.sql (Read Only)");
    EXPECT_EQ(Status("readOnly"), "Read-only");
    EXPECT_FALSE(Action("readOnlySwitch").isEnabled());
    m_prompts.saveTarget = SaveTarget{PathOf("b.sql"), 6, false};
    EXPECT_TRUE(Script().DoFileSave());
    EXPECT_EQ(Read("b.sql"), "a");
    EXPECT_EQ(Caption(), "b.sql");
}

TEST_F(ScriptFiles, ThatMayNotBeWrittenSaySoAtTheFirstKeyThatWouldChangeThem)
{
    Write("a.sql", "a");
    MakeReadOnly("a.sql");
    ASSERT_TRUE(m_app.OpenDocumentFile(PathOf("a.sql")));
    const QStatusBar& bar = *m_window.statusBar();
    QTest::keyClick(Editor().GetSafeHwnd(), Qt::Key_Right);
    QTest::keyClick(&m_window, Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(bar.currentMessage(), "") << "which change no text";
    QTest::keyClick(Editor().GetSafeHwnd(), Qt::Key_X);
    EXPECT_EQ(bar.currentMessage(), QString::fromUtf8("“a.sql” is read-only, and nothing was "
                                                      "changed. Save As makes a copy that you can "
                                                      "change."));
    EXPECT_TRUE(Action("saveAs").isEnabled());
    for (const Qt::Key command : {Qt::Key_K, Qt::Key_S}) { // Delete Line; Save As, which works
        m_window.statusBar()->clearMessage();
        QTest::keyClick(&m_window, command, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(bar.currentMessage().isEmpty(), command == Qt::Key_S);
    }
    EXPECT_EQ(m_prompts.proposals, QStringList{PathOf("a.sql")});
    EXPECT_EQ(Text(), "a");
}

TEST_F(ScriptFiles, ThatTheSwitchLocksTellHowItEnds)
{
    Open("a.sql", "a");
    Trigger("readOnlySwitch");
    QTest::keyClick(&m_window, Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(m_window.statusBar()->currentMessage().contains("File > Read Only"));
    m_window.statusBar()->clearMessage();
    Trigger("readOnlySwitch");
    QTest::keyClick(Editor().GetSafeHwnd(), Qt::Key_X);
    EXPECT_EQ(Text(), "xa");
    EXPECT_EQ(m_window.statusBar()->currentMessage(), "");
}

TEST_F(ScriptFiles, ThatOthersRewriteAreReadAgainOnYes)
{
    Open("a.sql", "old");
    LeaveAndComeBack();
    EXPECT_TRUE(m_prompts.told.isEmpty());
    WriteFromOutside("a.sql", "new");
    m_prompts.answer = Answer::Yes;
    LeaveAndComeBack();
    ASSERT_EQ(m_prompts.told.size(), 1);
    EXPECT_TRUE(m_prompts.told[0].contains("modified outside"));
    EXPECT_EQ(Text(), "new");
    EXPECT_FALSE(Script().IsModified());
    LeaveAndComeBack();
    EXPECT_EQ(m_prompts.told.size(), 1);
}

TEST_F(ScriptFiles, ThatOthersRewriteAreNoticedWithoutAKey)
{
    Open("a.sql", "old");
    LeaveAndComeBack();
    auto* watch = Editor().GetSafeHwnd()->findChild<QTimer*>("fileWatch");
    ASSERT_TRUE(watch);
    EXPECT_LE(watch->interval(), 5000) << "some seconds";
    watch->setInterval(1);
    WriteFromOutside("a.sql", "new");
    m_prompts.answer = Answer::Yes;
    EXPECT_TRUE(WaitUntil([this] { return Text() == "new"; }));
    EXPECT_EQ(m_prompts.told.size(), 1);
}

TEST_F(ScriptFiles, ThatOthersRewriteAreNotReplacedWithoutAQuestion)
{
    Open("a.sql", "old");
    Type(u"x");
    WriteFromOutside("a.sql", "new");
    EXPECT_FALSE(Script().DoFileSave());
    EXPECT_EQ(Read("a.sql"), "new");
    EXPECT_TRUE(Script().IsModified());
    ASSERT_EQ(m_prompts.asked.size(), 1);
    EXPECT_TRUE(m_prompts.asked[0].contains("changed outside"));
    EXPECT_EQ(m_prompts.compared, QStringList({Script().GetPathName(), "xold"}));
    m_prompts.confirm = true;
    EXPECT_TRUE(Script().DoFileSave());
    EXPECT_EQ(Read("a.sql"), "xold");
    Type(u"y");
    EXPECT_TRUE(Script().DoFileSave());
    EXPECT_EQ(m_prompts.asked.size(), 2) << "the own save is no change from outside";
}

TEST_F(ScriptFiles, ThatOthersRewriteAreNotReadAgainOverChangesUnlessThePersonSaysSo)
{
    Open("a.sql", "old");
    LeaveAndComeBack();
    Type(u"x");
    WriteFromOutside("a.sql", "new");
    LeaveAndComeBack();
    ASSERT_EQ(m_prompts.asked.size(), 1);
    EXPECT_TRUE(m_prompts.asked[0].contains("not saved are lost"));
    EXPECT_EQ(m_prompts.compared, QStringList({Script().GetPathName(), "xold"}));
    EXPECT_TRUE(m_prompts.told.isEmpty());
    EXPECT_EQ(Text(), "xold");
    LeaveAndComeBack();
    EXPECT_EQ(m_prompts.asked.size(), 1) << "once";
}

TEST_F(ScriptFiles, ThatOthersRewriteAreAskedAboutAtEachFurtherChange)
{
    Open("a.sql", "old");
    LeaveAndComeBack();
    Type(u"x");
    for (const int hours : {1, 2}) {
        WriteFromOutside("a.sql", "new", hours);
        LeaveAndComeBack(); // Cancel
        LeaveAndComeBack();
    }
    EXPECT_EQ(m_prompts.asked.size(), 2);
    EXPECT_EQ(Text(), "xold");
    m_prompts.confirm = true;
    WriteFromOutside("a.sql", "newest", 3);
    LeaveAndComeBack();
    EXPECT_EQ(Text(), "newest");
    EXPECT_EQ(Caption(), "a.sql");
}

TEST_F(ScriptFiles, ThatOthersRewriteAfterANoAreAskedAboutWithTheTextThatStandsHere)
{
    Open("a.sql", "old");
    LeaveAndComeBack();
    WriteFromOutside("a.sql", "new");
    LeaveAndComeBack(); // No
    CZNOptionsServer::GetObjectW()->SetInt(option::ReloadWithoutAsking, 1);
    WriteFromOutside("a.sql", "newer", 2);
    LeaveAndComeBack();
    CZNOptionsServer::GetObjectW()->SetInt(option::ReloadWithoutAsking, 0);
    EXPECT_EQ(m_prompts.told.size(), 1);
    EXPECT_EQ(m_prompts.compared, QStringList({Script().GetPathName(), "old"}));
    EXPECT_EQ(Text(), "old");
    EXPECT_EQ(Caption(), "a.sql *");
}

TEST_F(ScriptFiles, ThatOthersBringBackAreAskedAbout)
{
    Open("a.sql", "old");
    LeaveAndComeBack();
    QFile::remove(PathOf("a.sql"));
    LeaveAndComeBack(); // No, as it stays
    LeaveAndComeBack();
    EXPECT_EQ(m_prompts.told.size(), 1);
    WriteFromOutside("a.sql", "new");
    EXPECT_FALSE(Script().DoFileSave());
    EXPECT_EQ(Read("a.sql"), "new");
    m_prompts.confirm = true;
    LeaveAndComeBack();
    EXPECT_EQ(m_prompts.asked.size(), 2);
    EXPECT_EQ(Text(), "new");
    EXPECT_EQ(Caption(), "a.sql");
}

TEST_F(ScriptFiles, ThatOthersRewriteAreReadAgainOverChangesIfThePersonSaysSo)
{
    Open("a.sql", "old");
    LeaveAndComeBack();
    Type(u"x");
    WriteFromOutside("a.sql", "new");
    m_prompts.confirm = true;
    LeaveAndComeBack();
    EXPECT_EQ(Text(), "new");
    EXPECT_FALSE(Script().IsModified());
}

TEST_F(ScriptFiles, ThatOthersRewriteOnceMoreAfterANoAreAskedAboutBeforeASave)
{
    Open("a.sql", "old");
    LeaveAndComeBack();
    WriteFromOutside("a.sql", "new");
    LeaveAndComeBack(); // No
    Write("a.sql", "newer");
    EXPECT_FALSE(Script().DoFileSave());
    EXPECT_EQ(Read("a.sql"), "newer");
    ASSERT_EQ(m_prompts.asked.size(), 1);
    EXPECT_TRUE(m_prompts.asked[0].contains("changed outside"));
    WriteFromOutside("a.sql", "new");
}

TEST_F(ScriptFiles, ThatOthersRewriteAreNotLostAfterANo)
{
    Open("a.sql", "old");
    LeaveAndComeBack();
    WriteFromOutside("a.sql", "new");
    LeaveAndComeBack();
    EXPECT_EQ(Text(), "old");
    EXPECT_EQ(Caption(), "a.sql *") << "the text stands here and nowhere else";
    Type(u"x");
    Trigger("undo");
    EXPECT_EQ(Caption(), "a.sql *");
    Trigger("close");
    EXPECT_EQ(m_prompts.asked, QStringList{"a.sql"});
    Trigger("save");
    EXPECT_EQ(Read("a.sql"), "new") << "nobody has agreed to lose that";
    ASSERT_EQ(m_prompts.asked.size(), 2);
    EXPECT_TRUE(m_prompts.asked[1].contains("Saving it replaces those changes"));
    m_prompts.confirm = true;
    Trigger("save");
    EXPECT_EQ(Read("a.sql"), "old");
    EXPECT_EQ(Caption(), "a.sql");
    Type(u"y");
    Trigger("save");
    EXPECT_EQ(m_prompts.asked.size(), 3) << "once is enough";
}

TEST_F(ScriptFiles, ThatWereKeptAgainstTheFileCanStillBeReloaded)
{
    Open("a.sql", "old");
    LeaveAndComeBack();
    WriteFromOutside("a.sql", "new");
    LeaveAndComeBack();
    m_prompts.answer = Answer::Yes;
    Trigger("reload");
    EXPECT_EQ(Text(), "new");
    EXPECT_EQ(Caption(), "a.sql");
}

TEST_F(ScriptFiles, ThatAreDeletedStayOnNoAndCanBeSavedAgain)
{
    Open("a.sql", "text");
    LeaveAndComeBack();
    QFile::remove(PathOf("a.sql"));
    LeaveAndComeBack();
    ASSERT_EQ(m_prompts.told.size(), 1);
    EXPECT_TRUE(m_prompts.told[0].contains("deleted outside"));
    LeaveAndComeBack();
    EXPECT_EQ(m_prompts.told.size(), 1);
    EXPECT_EQ(Caption(), "a.sql *");
    Trigger("save");
    EXPECT_EQ(Read("a.sql"), "text");
}

namespace {

// Counts how often a window is painted until a question is shown, and closes that.
class Painted final : public QObject
{
public:
    explicit Painted(QWidget& window) : m_window(window) { qApp->installEventFilter(this); }
    bool eventFilter(QObject* object, QEvent* event) override
    {
        auto* widget = qobject_cast<QWidget*>(object);
        if (event->type() == QEvent::Paint &&
            (widget == &m_window || m_window.isAncestorOf(widget)))
            ++m_count;
        if (event->type() == QEvent::Show && qobject_cast<QMessageBox*>(object)) {
            beforeQuestion = m_count;
            title = m_window.window()->windowTitle();
            QMetaObject::invokeMethod(widget, &QWidget::close, Qt::QueuedConnection);
        }
        return false;
    }

    int beforeQuestion = -1;
    QString title;

private:
    QWidget& m_window;
    int m_count = 0;
};

} // namespace

TEST_F(ScriptFiles, ThatAreDeletedAreSeenBeforeTheyAreAskedAbout)
{
    SetUserQuestions(nullptr); // boxes
    Open("a.sql", "a");
    QWidget& shown = *Editor().GetSafeHwnd();
    Open("b.sql", "b");
    Settle();
    QFile::remove(PathOf("a.sql"));
    const Painted painted(shown);
    Trigger("previous");
    SetUserQuestions(&m_prompts);
    EXPECT_GT(painted.beforeQuestion, 0);
    EXPECT_TRUE(painted.title.startsWith("a.sql")) << painted.title.toStdString();
    EXPECT_EQ(m_window.TabCount(), 2);
}

TEST_F(ScriptFiles, ThatAreDeletedCloseOnYesIfTheirTextIsNotWanted)
{
    Open("a.sql", "text");
    LeaveAndComeBack();
    QFile::remove(PathOf("a.sql"));
    m_prompts.answer = Answer::Yes;
    m_prompts.loseChanges = LoseChanges::Discard;
    LeaveAndComeBack();
    EXPECT_EQ(m_window.TabCount(), 0);
    EXPECT_EQ(m_prompts.asked, QStringList{"a.sql"}) << "it is the last copy";
}

TEST_F(ScriptFiles, ThatOthersLockBecomeReadOnlyHere)
{
    Open("a.sql", "text");
    LeaveAndComeBack();
    MakeReadOnly("a.sql");
    LeaveAndComeBack();
    EXPECT_TRUE(m_prompts.told.isEmpty());
    EXPECT_EQ(Caption(), "a.sql (Read Only)");
}

TEST_F(ScriptFiles, AreSavedInUtf8WhenTheirCodePageWouldLoseACharacter)
{
    Open("a.sql", "caf\xE9\n");
    Type(u"\u0142");
    m_prompts.loseCharacters = LoseCharacters::SaveAsUtf8;
    Trigger("save");
    EXPECT_EQ(Read("a.sql"), QStringLiteral("łcafé\n").toUtf8());
    EXPECT_EQ(Status("encoding"), "UTF-8");
    EXPECT_EQ(Caption(), "a.sql");
}

TEST_F(ScriptFiles, ChangeTheirEncodingUnderTheirOwnName)
{
    Open("a.sql", "caf\xC3\xA9");
    m_prompts.saveTarget = SaveTarget{PathOf("a.sql"), 0, false};
    Trigger("saveAs");
    EXPECT_EQ(Read("a.sql"), "caf\xE9");
    EXPECT_EQ(Caption(), "a.sql");
}

TEST_F(ScriptFiles, KeepTheirEncodingWhenASaveInAnotherOneFails)
{
    Open("a.sql", "caf\xC3\xA9");
    m_prompts.saveTarget = SaveTarget{PathOf("gone/a.sql"), 2, true};
    Trigger("saveAs");
    EXPECT_EQ(m_prompts.told.size(), 1);
    EXPECT_EQ(Status("encoding"), "UTF-8");
    EXPECT_EQ(Caption(), "a.sql");
}

TEST_F(ScriptFiles, DoNotTakeThePlaceOfOneThatIsOpen)
{
    Open("a.sql", "a");
    Open("b.sql", "b");
    m_prompts.saveTarget = SaveTarget{PathOf("a.sql"), 6, false};
    Trigger("saveAs");
    ASSERT_EQ(m_prompts.told.size(), 1);
    EXPECT_TRUE(m_prompts.told[0].contains("is open in another tab"));
    EXPECT_EQ(Read("a.sql"), "a");
}

TEST_F(ScriptFiles, TellOfMixedLineEnds)
{
    Open("a.sql", "one\r\ntwo\nthree\r\n");
    EXPECT_TRUE(WaitUntil([this] { return Status("lineEnds") == "Mixed"; }))
        << Status("lineEnds").toStdString();
    Trigger("endsWindows");
    EXPECT_TRUE(WaitUntil([this] { return Status("lineEnds") == "CR LF"; }))
        << Status("lineEnds").toStdString();
}

TEST_F(ScriptFiles, OpenWhenTheyAreDroppedOnTheWindowItsTabsOrAScript)
{
    Open("a.sql", "a");
    const QString b = Write("b.sql", "b");
    const QString c = Write("c.sql", "c");
    const QString d = Write("d.sql", "d");
    auto* viewport = qobject_cast<QAbstractScrollArea*>(Editor().GetSafeHwnd())->viewport();
    Drop(*viewport, {b, c});
    EXPECT_EQ(m_window.TabCount(), 3);
    EXPECT_EQ(m_window.FrameAt(0)->Editor().GetText(), "a") << "no path is put into a text";
    Drop(*m_window.findChild<QTabWidget*>()->tabBar(), {d});
    EXPECT_EQ(Script().Name(), "d.sql");
}

TEST_F(ScriptFiles, OfAFolderThatIsDroppedAreListedBesideTheScript)
{
    Open("a.sql", "a");
    ASSERT_TRUE(QDir(m_folder.path()).mkdir("sub"));
    const QString b = Write("b.sql", "b");
    const auto* pane = m_window.findChild<FolderPane*>();
    auto* viewport = qobject_cast<QAbstractScrollArea*>(Editor().GetSafeHwnd())->viewport();
    Drop(*viewport, {PathOf("sub"), b});
    EXPECT_TRUE(pane->isVisible());
    EXPECT_EQ(pane->Folder(), PathOf("sub"));
    EXPECT_EQ(Text(), "b") << "a file beside it is opened";
    Drop(m_window, {m_folder.path()});
    EXPECT_EQ(pane->Folder(), QDir::cleanPath(m_folder.path()));
    EXPECT_EQ(m_window.TabCount(), 2);
    EXPECT_TRUE(m_prompts.told.isEmpty());
}
