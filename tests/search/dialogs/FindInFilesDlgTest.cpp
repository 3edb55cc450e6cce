// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog that gathers a search over files.
#include "tests/search/dialogs/DialogFixture.h"

#include "platform/dialogs/EditListBox.h"
#include "prefs/controls/FileEditCtrl.h"
#include "search/dialogs/FindInFilesDlg.h"

#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>

namespace {

class FindInFiles : public FindDialogTest
{
protected:
    // Runs the dialog, and ends it behind the action if that has not.
    template <class Action>
    std::intptr_t Run(Action action)
    {
        QTimer::singleShot(0, &parent, [this, action] {
            action();
            if (dialog.GetSafeHwnd() && dialog.GetSafeHwnd()->isVisible())
                dialog.EndDialog(IDCANCEL);
        });
        return dialog.DoModal();
    }
    void Set(UINT id, const QString& text) { dialog.GetDlgItem<QComboBox>(id)->setEditText(text); }
    void FillIn(const QString& text, const QString& types, const QString& place)
    {
        Set(findcontrol::FindBox, text);
        Set(findcontrol::TypeBox, types);
        Set(findcontrol::FolderBox, place);
    }
    void Ok() { dialog.GetDlgItem<QPushButton>(IDOK)->click(); }

    QTemporaryDir folder;
    CFindInFilesDlg dialog;
};

} // namespace

TEST_F(FindInFiles, AsksForATextBeforeAnythingElse)
{
    Run([this] {
        FillIn("", "", "/no/such/folder");
        Ok();
        EXPECT_TRUE(dialog.GetSafeHwnd()->isVisible());
    });
    EXPECT_EQ(user.read, QStringList("Enter Find String!"));
}

TEST_F(FindInFiles, SaysWhatIsWrongWithAnExpressionAsItIsTyped)
{
    Run([this] {
        Set(findcontrol::FindBox, "[a");
        const auto* fault = dialog.GetSafeHwnd()->findChild<QLabel*>("fault");
        EXPECT_EQ(fault->text(), "");
        dialog.GetDlgItem<QAbstractButton>(findcontrol::RegExp)->click();
        EXPECT_EQ(fault->text(), "The expression cannot be read from character 1 on.");
    });
}

TEST_F(FindInFiles, AsksForTypesThenForAPath)
{
    Run([this] {
        FillIn("a", "", "");
        Ok();
        Set(findcontrol::TypeBox, "*.sql");
        Ok();
    });
    EXPECT_EQ(user.read, QStringList({"Enter Type!", "Enter Path!"}));
}

TEST_F(FindInFiles, NamesAFolderThatDoesNotExistAndKeepsTheHistories)
{
    Run([this] {
        FillIn("wanted", "*.kind", "/no/such/folder");
        Ok();
        EXPECT_TRUE(dialog.GetSafeHwnd()->isVisible());
    });
    EXPECT_EQ(user.read, QStringList("Path '/no/such/folder' does not exists"));
    EXPECT_EQ(shared.GetFind(), "wanted");
    EXPECT_EQ(shared.GetFileType(), "*.kind");
    EXPECT_NE(shared.GetLocation(), "/no/such/folder");
}

TEST_F(FindInFiles, HandsOnOptionsAndFoldersWithOk)
{
    const auto result = Run([this] {
        FillIn("a", "*.sql", folder.path());
        Click(dialog, findcontrol::CountOnly);
        dialog.GetDlgItem<CZNBaseEditListBox>(findcontrol::Folders)->SetItems({"/one", "/two"});
        Ok();
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_TRUE(shared.GetCountOnly());
    EXPECT_EQ(shared.GetFindIn(), 1);
    EXPECT_EQ(dialog.m_aFolders, QStringList({folder.path(), "/one", "/two"}));
    shared.SetCountOnly(false);
}

TEST_F(FindInFiles, TakesNoFolderForTheOpenFiles)
{
    const auto result = Run([this] {
        FillIn("a", "", "");
        Click(dialog, findcontrol::InOpenFiles);
        Ok();
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(shared.GetFindIn(), 2);
    EXPECT_EQ(dialog.m_aFolders, QStringList(QString()));
}

TEST_F(FindInFiles, ClosesItsAdvancedPaneForTheOpenFiles)
{
    Run([this] {
        const int height = dialog.GetSafeHwnd()->height();
        auto* advanced = dialog.GetDlgItem<QPushButton>(findcontrol::Advanced);
        advanced->click();
        EXPECT_EQ(dialog.GetSafeHwnd()->height(), height + 190);
        EXPECT_EQ(advanced->text(), "Ad&vanced <<");
        EXPECT_TRUE(dialog.GetDlgItem(findcontrol::Folders)->isVisible());
        Click(dialog, findcontrol::InOpenFiles);
        EXPECT_EQ(dialog.GetSafeHwnd()->height(), height);
        EXPECT_EQ(advanced->text(), "Ad&vanced >>");
        for (const UINT id : {findcontrol::TypeBox, findcontrol::FolderBox, findcontrol::SubFolders,
                              findcontrol::Advanced, findcontrol::FolderPicker})
            EXPECT_FALSE(dialog.GetDlgItem(id)->isEnabled()) << id;
        Click(dialog, findcontrol::InFiles);
        EXPECT_TRUE(advanced->isEnabled());
    });
}

TEST_F(FindInFiles, KeepsItsAdvancedPaneOnTheScreen)
{
    Run([this] {
        QWidget& window = *dialog.GetSafeHwnd();
        const QRect room = window.screen()->availableGeometry();
        const int height = room.height() - 150; // which leaves less than the pane would have
        window.resize(window.width(), height);
        window.move(20, 100);
        QApplication::processEvents();
        auto* advanced = dialog.GetDlgItem<QPushButton>(findcontrol::Advanced);
        advanced->click();
        QApplication::processEvents();
        EXPECT_TRUE(room.contains(window.frameGeometry())) << window.frameGeometry().bottom();
        EXPECT_GT(window.height(), height);
        QWidget& folders = *dialog.GetDlgItem(findcontrol::Folders);
        folders.setFocus();
        for (const auto* button : folders.findChildren<QToolButton*>()) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            EXPECT_EQ(button->visibleRegion().boundingRect(), button->rect())
                << button->accessibleName().toStdString();
        }
        advanced->click();
        EXPECT_EQ(window.height(), height);
    });
}

TEST_F(FindInFiles, BeginsWithFilesByTypeWhereverTheLastSearchWas)
{
    shared.SetFindIn(2);
    Run([this] {
        EXPECT_TRUE(dialog.GetDlgItem<QAbstractButton>(findcontrol::InFiles)->isChecked());
        EXPECT_TRUE(dialog.GetDlgItem(findcontrol::TypeBox)->isEnabled());
    });
}

TEST_F(FindInFiles, MovesTheFolderToTheAdditionalOnes)
{
    Run([this] {
        Set(findcontrol::FolderBox, "/first");
        Click(dialog, findcontrol::AddFolder);
        Click(dialog, findcontrol::AddFolder); // nothing is there any more
        EXPECT_EQ(dialog.GetDlgItem<CZNBaseEditListBox>(findcontrol::Folders)->GetItems(),
                  QStringList("/first"));
        EXPECT_EQ(dialog.GetDlgItem<QComboBox>(findcontrol::FolderBox)->currentText(), "");
    });
}

TEST_F(FindInFiles, GivesTheAdditionalFoldersTheRoomBesideTheirButtons)
{
    Run([this] {
        Click(dialog, findcontrol::Advanced);
        QApplication::processEvents();
        const auto* folders = dialog.GetDlgItem<CZNBaseEditListBox>(findcontrol::Folders);
        EXPECT_GT(folders->findChild<QListWidget*>()->width() * 4, folders->width() * 3);
    });
}

TEST_F(FindInFiles, TakesAFolderThatIsBrowsedFor)
{
    user.folder = "/browsed";
    Run([this] {
        dialog.GetDlgItem<CFileEditCtrl>(findcontrol::FolderPicker)->Browse();
        auto* box = dialog.GetDlgItem<QComboBox>(findcontrol::FolderBox);
        EXPECT_EQ(box->currentText(), "/browsed");
        EXPECT_NE(box->findText("/browsed"), -1);
    });
}

TEST(FileEdit, GivesThePathsOfItsTextAgainstItsFolder)
{
    CFileEditCtrl edit;
    edit.SetFolder("/base");
    edit.SetText("one.sql; /abs/two.sql ;;\"with space.sql\"");
    EXPECT_EQ(edit.GetPaths(),
              QStringList({"/base/one.sql", "/abs/two.sql", "/base/with space.sql"}));
}

TEST(FileEdit, StandsForTheFilesThatFitAWildcard)
{
    QTemporaryDir folder;
    for (const char* name : {"a.sql", "b.sql", "c.txt"}) {
        QFile file(folder.filePath(QLatin1String(name)));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
    }
    CFileEditCtrl edit;
    edit.SetFolder(folder.path());
    edit.SetText("?.sql;*.none");
    EXPECT_EQ(edit.GetPaths(), QStringList({folder.filePath("a.sql"), folder.filePath("b.sql"),
                                            folder.filePath("*.none")}));
}

TEST(FileEdit, SaysWhatIsWrongWithAPath)
{
    MessageReader user;
    QTemporaryDir folder;
    QFile file(folder.filePath("a.sql"));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    CFileEditCtrl files;
    EXPECT_FALSE(files.Validate());
    files.SetText("/no/such.sql");
    EXPECT_FALSE(files.Validate());
    files.SetText(folder.path());
    EXPECT_FALSE(files.Validate());
    files.SetText(file.fileName());
    EXPECT_TRUE(files.Validate());
    CFileEditCtrl folders(CFileEditCtrl::Folders);
    folders.SetText(file.fileName());
    EXPECT_FALSE(folders.Validate());
    EXPECT_EQ(user.read, QStringList({"Enter an existing file.", "/no/such.sql does not exist.",
                                      folder.path() + " is not a file.",
                                      file.fileName() + " is not a folder."}));
}

TEST(FileEdit, BrowsesForWhatItIsFor)
{
    MessageReader user;
    user.folder = "/folder";
    user.file = "/file";
    CFileEditCtrl folders(CFileEditCtrl::Folders | CFileEditCtrl::TrailingSlash);
    folders.Browse();
    EXPECT_EQ(folders.GetText(), "/folder/");
    CFileEditCtrl files;
    files.Browse();
    EXPECT_EQ(files.GetText(), "/file");
    EXPECT_EQ(user.read, QStringList("Browse for File"));
}

TEST(FileEdit, FollowsAShortcutOnlyIfAsked)
{
    QTemporaryDir folder;
    const QString link = folder.filePath("a.lnk");
    ASSERT_TRUE(QFile::link("/target.sql", link));
    CFileEditCtrl plain;
    plain.SetText(link);
    EXPECT_EQ(plain.GetPaths(), QStringList(link));
    CFileEditCtrl following(CFileEditCtrl::ResolveShortcuts);
    following.SetText(link);
    EXPECT_EQ(following.GetPaths(), QStringList("/target.sql"));
}
