// SPDX-License-Identifier: GPL-3.0-or-later
// What the workbench remembers from one run to the next: the session, recent files, and a file that
// it died on.
#include "editing/language/FileLanguages.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "host/files/Places.h"
#include "host/folder/FolderPane.h"
#include "host/session/Session.h"
#include "host/window/RecentMenu.h"
#include "platform/system/SpecialFolders.h"
#include "tests/host/WorkbenchTest.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <memory>

namespace {

// Folders of the test's own, so that runs do not see each other.
class OwnFolders final : public ISpecialFolders
{
public:
    OwnFolders() { SetSpecialFolders(this); }
    ~OwnFolders() override { SetSpecialFolders(nullptr); }
    QString AppData() const override { return folder.filePath("data"); }
    QString Config() const override { return folder.filePath("config"); }

    QTemporaryDir folder;
};

class Memory : public testing::Test
{
protected:
    ~Memory() override { m_app.reset(); }

    void Start()
    {
        m_app.reset();
        m_app = std::make_unique<Workbench>(Workbench::Keeps::Places);
        m_window = new MainWindow(*m_app);
        m_window->show();
        m_window->ResumeSession();
        while (m_window->IsResuming())
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QApplication::processEvents();
    }

    void End()
    {
        m_window->close();
        ASSERT_FALSE(m_app->GetMainWnd());
    }

    QString Write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(m_files.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            ADD_FAILURE() << file.errorString().toStdString();
        return file.fileName();
    }

    void LeaveAsOpening(const QString& path)
    {
        const QString marks = places::DataPath("opening");
        ASSERT_TRUE(QDir().mkpath(marks));
        QFile mark(marks + "/dead.opening");
        ASSERT_TRUE(mark.open(QIODevice::WriteOnly));
        mark.write(QJsonDocument(QJsonArray{path}).toJson());
    }

    CZNCoreEditorControlEx& Editor() const { return m_window->CurrentFrame()->Editor(); }

    QStringList RecentEntries() const
    {
        auto* menu = m_window->findChild<RecentMenu*>();
        Q_EMIT menu->aboutToShow();
        QStringList texts;
        for (const QAction* action : menu->actions())
            texts << action->text();
        return texts;
    }

    OwnFolders m_folders;
    QTemporaryDir m_files;
    ScriptedPrompts m_prompts;
    std::unique_ptr<Workbench> m_app;
    MainWindow* m_window = nullptr;
};

} // namespace

TEST_F(Memory, BringsBackTheScriptsTheirPlacesAndTheOneInFront)
{
    Start();
    ASSERT_TRUE(m_app->OpenDocumentFile(Write("a.sql", QByteArray("x\n").repeated(300))));
    m_window->CurrentFrame()->View()->GoToLine(200);
    Editor().GotoPos(Editor().GetCurrentPos(1) + 1, 1);
    const int top = Editor().GetFirstVisibleLine(1);
    ASSERT_TRUE(m_app->OpenDocumentFile(Write("b.sql", "b\n")));
    m_app->NewScript();
    m_window->ShowTab(0);
    m_window->resize(700, 500); // the screen has 800
    End();

    Start();
    EXPECT_EQ(m_window->TabCount(), 2) << "a script without a file is nothing to come back to";
    EXPECT_EQ(m_window->CurrentFrame()->Script()->Name(), "a.sql");
    EXPECT_EQ(Editor().LineFromPosition(Editor().GetCurrentPos(1), 1), 200);
    EXPECT_EQ(Editor().GetCurrentPos(1) - Editor().PositionFromLine(200, 1), 1);
    EXPECT_EQ(Editor().GetFirstVisibleLine(1), top);
    EXPECT_EQ(m_window->size(), QSize(700, 500));
}

TEST_F(Memory, BringsBackTheDocumentMap)
{
    for (const bool shown : {true, false}) {
        Start();
        ASSERT_TRUE(m_app->OpenDocumentFile(Write("a.sql", "a\n")));
        auto* action = m_window->findChild<QAction*>(QStringLiteral("documentMap"));
        EXPECT_NE(action->isChecked(), shown);
        action->trigger();
        End();
        Start();
        EXPECT_EQ(Editor().IsDocumentMapVisible(), shown);
        m_window->FollowNow();
        EXPECT_EQ(m_window->findChild<QAction*>(QStringLiteral("documentMap"))->isChecked(), shown);
        End();
    }
}

TEST_F(Memory, BringsBackTheFolderBesideTheScripts)
{
    Start();
    ASSERT_TRUE(m_app->OpenDocumentFile(Write("a.sql", "a\n")));
    const QString folder = m_files.filePath("sub");
    ASSERT_TRUE(QDir().mkpath(folder));
    m_prompts.folder = folder;
    m_window->OpenFolder();
    End();

    Start();
    const auto* pane = m_window->findChild<FolderPane*>();
    EXPECT_TRUE(pane->isVisible());
    EXPECT_EQ(pane->Folder(), folder);
    End();

    ASSERT_TRUE(QDir().rmdir(folder));
    Start();
    EXPECT_EQ(m_window->findChild<FolderPane*>()->Folder(), m_files.path())
        << "that of the script, where the other one is gone";
}

TEST_F(Memory, BringsBackZoomFoldsAndBookmarks)
{
    Start();
    ASSERT_TRUE(m_app->OpenDocumentFile(
        Write("a.sql", "select 1,\n  2;\nselect 3,\n  4;\nselect 5,\n  6;\n")));
    Editor().Colorize(0, -1, 1);
    Editor().ToggleFold(2, 1);
    Editor().MarkerAdd(4, 0, 1);
    Editor().SetZoom(3, 1);
    ASSERT_EQ(Editor().GetLineVisible(3, 1), 0);
    End();

    Start();
    EXPECT_EQ(Editor().GetZoom(1), 3);
    EXPECT_NE(Editor().GetLineVisible(1, 1), 0);
    EXPECT_EQ(Editor().GetLineVisible(3, 1), 0);
    EXPECT_NE(Editor().GetLineVisible(5, 1), 0);
    EXPECT_EQ(Editor().MarkerGet(4, 1) & 1, 1);
    EXPECT_EQ(Editor().MarkerNext(0, 1, 1), 4);
    EXPECT_EQ(Editor().MarkerNext(5, 1, 1), -1);
    QAction& next = *m_window->findChild<QAction*>("nextBookmark");
    EXPECT_TRUE(next.isEnabled());
    next.trigger();
    EXPECT_EQ(Editor().LineFromPosition(Editor().GetCurrentPos(1), 1), 4);
    EXPECT_FALSE(m_window->CurrentFrame()->Script()->IsModified());
}

TEST_F(Memory, KeepsTheLanguageThatAScriptHad)
{
    const auto language = [this](int tab) {
        m_window->ShowTab(tab);
        return zncoreeditor::GetFileTypeManager()
            ->GetLanguageName(Editor().GetCurrentLanguage())
            .toStdString();
    };
    Start();
    ASSERT_TRUE(m_app->OpenDocumentFile(Write("a.sql", "select 1;\n")));
    ASSERT_TRUE(m_app->OpenDocumentFile(Write("b.sql", "select 2;\n")));
    m_window->SetLanguage(LanguageNamed("PostgreSQL", -1));
    ASSERT_EQ(language(0), "SQL");
    End();

    Start();
    EXPECT_EQ(language(0), "SQL") << "the choice was for the other one";
    EXPECT_EQ(language(1), "PostgreSQL");
}

TEST_F(Memory, PassesOverLinesThatAreNoMore)
{
    const QString path = Write("a.sql", "select 1,\n  2;\n");
    Session session;
    session.files = {{.path = path, .folds = {INT_MAX, 0}, .bookmarks = {INT_MAX, 1}}};
    ASSERT_TRUE(QDir().mkpath(QFileInfo(Session::DefaultPath()).path()));
    ASSERT_TRUE(session.Store(Session::DefaultPath()));
    Start();
    ASSERT_EQ(m_window->TabCount(), 1);
    EXPECT_EQ(Editor().GetLineVisible(1, 1), 0) << "the block that is there is folded";
    EXPECT_EQ(Editor().MarkerNext(0, 1, 1), 1);
}

TEST_F(Memory, DoesNotShowAnExpandedScriptThatIsNoMore)
{
    Start();
    ASSERT_TRUE(m_app->OpenDocumentFile(Write("a.sql", "#define &&A 1\n")));
    m_window->findChild<QAction*>("expand")->trigger();
    ASSERT_TRUE(m_window->findChild<QWidget*>("expandedScript")->isVisible());
    End();
    Start();
    EXPECT_FALSE(m_window->findChild<QWidget*>("expandedScript")->isVisible());
}

TEST_F(Memory, BringsBackPanesAndFurtherTabs)
{
    Start();
    ASSERT_TRUE(m_app->OpenDocumentFile(Write("a.sql", QByteArray("x\n").repeated(300))));
    m_window->CurrentFrame()->Split(Qt::Vertical);
    Editor().MarkerAdd(7, 0, 1);
    m_window->CurrentFrame()->NewView();
    m_window->CurrentFrame()->View()->GoToLine(200);
    m_window->CurrentFrame()->Split(Qt::Horizontal);
    ASSERT_TRUE(m_app->OpenDocumentFile(Write("b.sql", "b\n")));
    m_window->ShowTab(1);
    End();

    Start();
    ASSERT_EQ(m_window->TabCount(), 3);
    EXPECT_EQ(m_app->Scripts().size(), 2U);
    EXPECT_EQ(m_window->CurrentFrame()->Caption().Text(), "a.sql:2");
    EXPECT_EQ(Editor().LineFromPosition(Editor().GetCurrentPos(1), 1), 200);
    EXPECT_TRUE(m_window->CurrentFrame()->IsSplit());
    EXPECT_FALSE(m_window->CurrentFrame()->IsSplit(Qt::Vertical));
    m_window->ShowTab(0);
    EXPECT_TRUE(m_window->CurrentFrame()->IsSplit(Qt::Vertical));
    Editor().MarkerDelete(7, 0, 1);
    EXPECT_EQ(Editor().MarkerGet(7, 1), 0) << "one text has a bookmark once, in however many tabs";
    m_window->ShowTab(2);
    EXPECT_FALSE(m_window->CurrentFrame()->IsSplit());
}

TEST_F(Memory, PassesOverAFileThatIsGone)
{
    Start();
    ASSERT_TRUE(m_app->OpenDocumentFile(Write("a.sql", "a\n")));
    ASSERT_TRUE(m_app->OpenDocumentFile(Write("b.sql", "b\n")));
    End();
    QFile::remove(m_files.filePath("b.sql"));
    Start();
    EXPECT_EQ(m_window->TabCount(), 1);
    EXPECT_TRUE(m_prompts.told.isEmpty());
}

TEST_F(Memory, KeepsALockAndAChosenEncoding)
{
    Start();
    ASSERT_TRUE(m_app->OpenScript(Write("a.sql", "caf\xC3\xA9"), 0));
    Editor().SetReadOnly(1, 1);
    End();
    Start();
    EXPECT_EQ(Editor().GetText(), QStringLiteral("cafÃ©"));
    EXPECT_TRUE(Editor().GetReadOnly(1));
}

TEST_F(Memory, HoldsWhatWasOpenWhenThePersonStays)
{
    Start();
    ASSERT_TRUE(m_app->OpenDocumentFile(Write("a.sql", "a\n")));
    Editor().ReplaceSel(u"x", 1);
    m_window->close();
    ASSERT_TRUE(m_app->GetMainWnd());
    m_prompts.loseChanges = LoseChanges::Discard;
    End();
    EXPECT_EQ(Session::Load(Session::DefaultPath())->files.size(), 1);
}

TEST_F(Memory, ListsRecentFilesTheLastOneFirst)
{
    Start();
    EXPECT_EQ(RecentEntries(), QStringList{"No files yet"});
    ASSERT_TRUE(m_app->OpenDocumentFile(Write("a.sql", "a\n")));
    ASSERT_TRUE(m_app->OpenDocumentFile(Write("b.sql", "b\n")));
    EXPECT_EQ(RecentEntries(), (QStringList{"&1 b.sql", "&2 a.sql", "", "&Clear List"}));
    End();
    Start();
    EXPECT_EQ(RecentEntries(), (QStringList{"&1 b.sql", "&2 a.sql", "", "&Clear List"}));
}

TEST_F(Memory, OffersToForgetARecentFileThatIsGone)
{
    Start();
    ASSERT_TRUE(m_app->OpenDocumentFile(Write("a.sql", "a\n")));
    m_window->CurrentFrame()->Script()->OnCloseDocument();
    QFile::remove(m_files.filePath("a.sql"));
    RecentEntries();
    m_window->findChild<RecentMenu*>()->actions().front()->trigger();
    ASSERT_EQ(m_prompts.asked.size(), 1);
    EXPECT_EQ(m_app->Recent().Paths().size(), 1);
    m_prompts.confirm = true;
    m_window->findChild<RecentMenu*>()->actions().front()->trigger();
    EXPECT_TRUE(m_app->Recent().Paths().isEmpty());
}

TEST_F(Memory, AsksBeforeAFileIsOpenedThatTheLastRunDiedOn)
{
    const QString path = Write("a.sql", "a\n");
    LeaveAsOpening(path);
    Start();
    EXPECT_FALSE(m_app->OpenDocumentFile(path));
    ASSERT_EQ(m_prompts.asked.size(), 1);
    EXPECT_TRUE(m_prompts.asked[0].contains("a.sql"));
    EXPECT_EQ(m_window->TabCount(), 0);
    EXPECT_TRUE(m_app->OpenDocumentFile(path)) << "the person has been asked";
    EXPECT_EQ(m_prompts.asked.size(), 1);
}

TEST_F(Memory, AsksOnceAboutAFileOfSeveralTabs)
{
    Start();
    ASSERT_TRUE(m_app->OpenDocumentFile(Write("a.sql", "a\n")));
    m_window->CurrentFrame()->NewView();
    const QString path = m_window->CurrentFrame()->Script()->GetPathName();
    End();
    LeaveAsOpening(path);
    Start();
    EXPECT_EQ(m_prompts.asked.size(), 1);
    EXPECT_EQ(m_window->TabCount(), 0);
}

TEST_F(Memory, HoldsNothingAgainstAFileThatWasOpenedWell)
{
    Start();
    ASSERT_TRUE(m_app->OpenDocumentFile(Write("a.sql", "a\n")));
    End();
    Start();
    EXPECT_EQ(m_window->TabCount(), 1);
    EXPECT_TRUE(m_prompts.asked.isEmpty());
}

TEST_F(Memory, IsNotWrittenOverWhenItCannotBeRead)
{
    const QString path = Session::DefaultPath();
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write("{\"files\": [{\"path\"");
    file.close();
    Start();
    ASSERT_EQ(m_prompts.told.size(), 1);
    EXPECT_TRUE(m_prompts.told[0].startsWith(QStringLiteral("What was open last cannot be read.")));
    End();
    QFile aside(path + QStringLiteral(".unreadable"));
    ASSERT_TRUE(aside.open(QFile::ReadOnly));
    EXPECT_EQ(aside.readAll(), QByteArray("{\"files\": [{\"path\""));
    EXPECT_TRUE(Session::Load(path).has_value()); // this run's own
}

TEST_F(Memory, StaysAsItIsWhereItCannotBePutAside)
{
    const QString path = Session::DefaultPath();
    ASSERT_TRUE(QDir().mkpath(path)); // a folder, which the system cannot rename onto another
    ASSERT_TRUE(QDir().mkpath(path + QStringLiteral(".unreadable/full")));
    Start();
    ASSERT_EQ(m_prompts.told.size(), 1);
    End();
    EXPECT_TRUE(QFileInfo(path).isDir());
}
