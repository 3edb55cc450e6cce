// SPDX-License-Identifier: GPL-3.0-or-later
// The files of a folder beside the script.
#include "host/folder/FolderPane.h"
#include "host/script/ScriptTabs.h"
#include "tests/host/WorkbenchTest.h"

#include <QClipboard>
#include <QDir>
#include <QFileSystemModel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QTest>
#include <QTreeView>

namespace {

class Folders : public WorkbenchTest
{
protected:
    Folders()
    {
        QDir(m_folder.path()).mkpath("sub/deep");
        Write("readme.txt", "x");
        Write("report.sql", "1");
        Write("sub/inner.sql", "2");
        Write("sub/deep/[a].sql", "3");
    }

    FolderPane& Pane() const { return *m_window.findChild<FolderPane*>(); }
    QTreeView& List() const { return *Pane().ListArea(); }
    QLineEdit& Words() const { return *Pane().findChild<QLineEdit*>(); }
    QFileSystemModel& Model() const { return *qobject_cast<QFileSystemModel*>(List().model()); }
    QModelIndex At(const QString& name) const { return Model().index(PathOf(name)); }

    QStringList Rows() const
    {
        QStringList names;
        for (QModelIndex row = Model().index(0, 0, List().rootIndex()); row.isValid();
             row = List().indexBelow(row))
            names << row.data().toString();
        return names;
    }

    // Files are listed by a thread.
    bool Shows(const QStringList& names) const
    {
        return QTest::qWaitFor([&] { return Rows() == names; });
    }

    void Show()
    {
        m_prompts.folder = m_folder.path();
        Trigger("openFolder");
        ASSERT_TRUE(Shows({"sub", "readme.txt", "report.sql"})) << Rows().join(' ').toStdString();
    }

    QAction& Tool(const char* name) const { return *Pane().findChild<QAction*>(name); }

    QAction* Entry(const QString& file, const QString& text) const
    {
        Pane().ShowMenu(At(file), QPoint(10, 10));
        for (QAction* action : Pane().findChildren<QMenu*>("folderMenu").constLast()->actions()) {
            if (action->text().section('\t', 0, 0).remove('&') == text)
                return action;
        }
        return nullptr;
    }
};

} // namespace

TEST_F(Folders, AreOpenedFromTheFileMenu)
{
    EXPECT_FALSE(Pane().isVisible());
    Show();
    EXPECT_TRUE(Pane().isVisible());
    EXPECT_EQ(Pane().Folder(), QDir::cleanPath(m_folder.path()));
    m_prompts.folder.clear(); // thought better of it
    Trigger("openFolder");
    EXPECT_EQ(m_prompts.proposals.last(), Pane().Folder());
    EXPECT_EQ(Pane().Folder(), QDir::cleanPath(m_folder.path()));
}

TEST_F(Folders, BeginWithThatOfTheScript)
{
    Open("sub/inner.sql", "2");
    Trigger("folder");
    EXPECT_EQ(Pane().Folder(), QFileInfo(PathOf("sub/inner.sql")).absolutePath());
    EXPECT_TRUE(Shows({"deep", "inner.sql"})) << Rows().join(' ').toStdString();
}

TEST_F(Folders, WaitForAScriptWithAFileWhereNoneWasChosen)
{
    Trigger("new");
    Trigger("folder");
    EXPECT_EQ(Pane().Folder(), QString()) << "what is shown meanwhile is nobody's choice";
    EXPECT_FALSE(Model().rootPath().isEmpty());
    Open("sub/inner.sql", "2");
    EXPECT_EQ(Pane().Folder(), PathOf("sub"));
    Open("report.sql", "1");
    EXPECT_EQ(Pane().Folder(), PathOf("sub"));
}

TEST_F(Folders, MarkTheScriptInFront)
{
    Show();
    const auto isMarked = [this](const char* name) {
        return At(name).data(Qt::FontRole).value<QFont>().bold();
    };
    Open("report.sql", "1");
    EXPECT_TRUE(isMarked("report.sql"));
    EXPECT_FALSE(isMarked("readme.txt"));
    Open("readme.txt", "x");
    EXPECT_TRUE(isMarked("readme.txt"));
    EXPECT_FALSE(isMarked("report.sql"));
}

TEST_F(Folders, ShowTheScriptInFrontWhenAsked)
{
    Show();
    Open("sub/deep/[a].sql", "3");
    EXPECT_FALSE(List().isExpanded(At("sub")));
    Words().setText("nothing has this");
    Tool("folder.showScript").trigger();
    EXPECT_TRUE(Shows({"sub", "deep", "[a].sql", "inner.sql", "readme.txt", "report.sql"}))
        << Rows().join(' ').toStdString();
    EXPECT_EQ(List().currentIndex(), At("sub/deep/[a].sql"));
    Pane().SetFolder(QDir(PathOf("sub/deep")).path());
    Open("report.sql", "1");
    Tool("folder.showScript").trigger();
    EXPECT_EQ(Pane().Folder(), QDir::cleanPath(m_folder.path()));
}

TEST_F(Folders, AreLeftUpwards)
{
    Show();
    Pane().SetFolder(PathOf("sub"));
    Tool("folder.upFolder").trigger();
    EXPECT_EQ(Pane().Folder(), QDir::cleanPath(m_folder.path()));
    EXPECT_EQ(List().currentIndex(), At("sub"));
}

TEST_F(Folders, ListFilesByAPartOfTheirNames)
{
    Show();
    QTest::keyClicks(&Words(), "PORT");
    EXPECT_TRUE(Shows({"sub", "report.sql"})) << Rows().join(' ').toStdString();
    Words().setText("*.txt");
    EXPECT_TRUE(Shows({"sub", "readme.txt"})) << Rows().join(' ').toStdString();
    Pane().SetFolder(PathOf("sub/deep"));
    Words().setText("[a");
    EXPECT_TRUE(Shows({"[a].sql"})) << Rows().join(' ').toStdString();
    QTest::keyClick(&Words(), Qt::Key_Return);
    EXPECT_EQ(Script().Name(), "[a].sql");
}

TEST_F(Folders, AreEnteredFromTheFilterAtTheirFirstRow)
{
    Show();
    Words().setText("r");
    ASSERT_TRUE(Shows({"sub", "readme.txt", "report.sql"}));
    QTest::keyClick(&Words(), Qt::Key_Down);
    EXPECT_EQ(List().currentIndex().data().toString(), "sub");
    List().setCurrentIndex(At("report.sql"));
    QTest::keyClick(&Words(), Qt::Key_Down);
    EXPECT_EQ(List().currentIndex().data().toString(), "report.sql");
    Words().setText("readme");
    ASSERT_TRUE(QTest::qWaitFor([this] { return !Rows().contains("report.sql"); }));
    QTest::keyClick(&Words(), Qt::Key_Down);
    EXPECT_EQ(List().currentIndex().data().toString(), Rows().constFirst());
}

TEST_F(Folders, HaveNumbersInTheOrderOfTheirValues)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::English, QLocale::World));
    for (const char* name : {"sub/step_10.sql", "sub/step_2.sql", "sub/Step_1.sql"})
        Write(name, "1");
    m_prompts.folder = PathOf("sub");
    Trigger("openFolder");
    EXPECT_TRUE(Shows({"deep", "inner.sql", "Step_1.sql", "step_2.sql", "step_10.sql"}))
        << Rows().join(' ').toStdString();
    QLocale::setDefault(before);
}

TEST_F(Folders, OpenFilesByEnter)
{
    Show();
    List().setCurrentIndex(At("report.sql"));
    QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_EQ(Script().Name(), "report.sql");
    List().setCurrentIndex(At("sub"));
    QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_TRUE(List().isExpanded(At("sub")));
    QTest::keyClick(&List(), Qt::Key_Return);
    EXPECT_FALSE(List().isExpanded(At("sub")));
}

TEST_F(Folders, OpenFilesBehindTheScriptInFront)
{
    Open("sub/inner.sql", "2");
    Show();
    List().setCurrentIndex(At("report.sql"));
    QTest::keyClick(&List(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(Script().Name(), "inner.sql");
    EXPECT_EQ(m_window.TabCount(), 2);
    EXPECT_TRUE(List().hasFocus());
    QTest::mouseClick(List().viewport(), Qt::MiddleButton, {},
                      List().visualRect(At("readme.txt")).center());
    EXPECT_EQ(Script().Name(), "inner.sql");
    EXPECT_EQ(m_window.TabCount(), 3);
}

TEST_F(Folders, HaveAMenuForEachFile)
{
    Open("sub/inner.sql", "2");
    Show();
    Entry("report.sql", "Copy Path")->trigger();
    EXPECT_EQ(QApplication::clipboard()->text(), PathOf("report.sql"));
    Entry("report.sql", "Open Behind the Script in Front")->trigger();
    EXPECT_EQ(Script().Name(), "inner.sql");
    Entry("report.sql", "Open")->trigger();
    EXPECT_EQ(Script().Name(), "report.sql");
    EXPECT_EQ(m_window.TabCount(), 2);
    Entry("sub", "Show Only This Folder")->trigger();
    EXPECT_EQ(Pane().Folder(), PathOf("sub"));
}

TEST_F(Folders, TakeScriptsThatAreBegunInThem)
{
    Show();
    Entry("sub", "New Script Here")->trigger();
    Type(u"x");
    Trigger("save");
    ASSERT_FALSE(m_prompts.proposals.isEmpty());
    EXPECT_EQ(QFileInfo(m_prompts.proposals.last()).path(), PathOf("sub"));
}

TEST_F(Folders, TellFoldersScriptsAndOtherFilesApart)
{
    Show();
    const auto pictureOf = [this](const char* name) {
        return At(name).data(Qt::DecorationRole).value<QIcon>().pixmap(16).toImage();
    };
    EXPECT_NE(pictureOf("sub"), pictureOf("report.sql"));
    EXPECT_NE(pictureOf("readme.txt"), pictureOf("report.sql"));
    EXPECT_NE(pictureOf("readme.txt"), pictureOf("sub"));
}
