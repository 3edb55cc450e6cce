// SPDX-License-Identifier: GPL-3.0-or-later
// Find in Files as the window has it: from the dialog to the place in the script.
#include "tests/host/WorkbenchTest.h"

#include "host/files/Encodings.h"
#include "host/finding/ResultsModel.h"
#include "host/finding/ResultsPane.h"
#include "host/finding/SearchPlace.h"
#include "host/session/Session.h"
#include "platform/dialogs/Dialog.h"
#include "platform/services/OptionsServer.h"
#include "prefs/RegProfile.h"
#include "search/FindReplaceManager.h"

#include <QAbstractButton>
#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScopeGuard>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <unistd.h>

#include <algorithm>

namespace {

constexpr UINT kFindBox = 28139;
constexpr UINT kTypeBox = 28127;
constexpr UINT kFolderBox = 28128;
constexpr UINT kInOpenFiles = 28158;

class FindInFilesInWindow : public WorkbenchTest
{
protected:
    ~FindInFilesInWindow() override
    {
        CFindReplaceManager& manager = *zncoreeditor::GetFindReplaceManager();
        manager.SetFind(QString());
    }

    // Fills in the dialog and says Find, and waits until all is found.
    void Search(const char* text, bool inOpenFiles = false)
    {
        QTimer::singleShot(0, &m_window, [=, this] {
            auto& dialog = *static_cast<CDialog*>(AttachedWnd(QApplication::activeModalWidget()));
            dialog.GetDlgItem<QComboBox>(kFindBox)->setEditText(QString::fromUtf8(text));
            dialog.GetDlgItem<QComboBox>(kTypeBox)->setEditText(QStringLiteral("*.sql"));
            dialog.GetDlgItem<QComboBox>(kFolderBox)->setEditText(m_folder.path());
            if (inOpenFiles)
                dialog.GetDlgItem<QAbstractButton>(kInOpenFiles)->click();
            dialog.GetDlgItem<QAbstractButton>(IDOK)->click();
        });
        Action("findInFiles").trigger();
        ASSERT_TRUE(QTest::qWaitFor([this] { return !Pane().IsSearching(); }));
    }
    void Replace(const char* replacement)
    {
        Pane().Preview(QString::fromUtf8(replacement));
        ASSERT_TRUE(QTest::qWaitFor([this] { return !Pane().IsSearching(); }));
        Pane().ReplaceChosen();
        ASSERT_TRUE(QTest::qWaitFor([this] { return !Pane().IsReplacing(); }));
    }
    QPushButton& Button(const char* text) const
    {
        const auto buttons = Pane().findChildren<QPushButton*>();
        return **std::ranges::find(buttons, QLatin1String(text), &QPushButton::text);
    }
    QAbstractItemModel& Model() const { return *Pane().ListArea()->model(); }
    QModelIndex File(int row) const { return Model().index(row, 0); }
    QModelIndex Match(int file, int row) const { return Model().index(row, 0, File(file)); }
    QStringList Rows(int file) const
    {
        QStringList rows;
        for (int row = 0; row < Model().rowCount(File(file)); ++row)
            rows += Match(file, row).data().toString();
        return rows;
    }
    ResultsPane& Pane() const
    {
        return *m_window.findChild<ResultsPane*>(QStringLiteral("FindResults"));
    }
};

} // namespace

TEST_F(FindInFilesInWindow, WalksTheMatchesOverFilesAndBack)
{
    Write("a.sql", "one\ntwo one\n");
    Write("b.txt", "one");
    Search("one");
    const QAbstractItemModel& model = *Pane().ListArea()->model();
    ASSERT_EQ(model.rowCount(), 1);
    EXPECT_EQ(model.rowCount(model.index(0, 0)), 2);
    Trigger("nextResult");
    EXPECT_EQ(Script().GetPathName(), PathOf("a.sql"));
    EXPECT_EQ(Editor().GetSelectionStart(1), 0);
    Trigger("nextResult");
    EXPECT_EQ(Editor().GetSelectionStart(1), 8);
    EXPECT_EQ(Editor().GetSelectionEnd(1), 11);
    Trigger("previousResult");
    EXPECT_EQ(Editor().GetSelectionStart(1), 0);
}

TEST_F(FindInFilesInWindow, HasRoomForMoreThanAFewResultsUntilSomebodyResizesIt)
{
    m_window.show();
    Write("a.sql", "one");
    Settle();
    Search("one");
    Settle();
    const int first = Pane().height();
    EXPECT_GE(first, 200);
    m_window.resizeDocks({&Pane()}, {150}, Qt::Vertical);
    Settle();
    const int chosen = Pane().height();
    EXPECT_LT(chosen, first);
    Search("one");
    Settle();
    EXPECT_EQ(Pane().height(), chosen);
}

TEST_F(FindInFilesInWindow, ListsFilesInTheOrderOfTheirNames)
{
    QDir(m_folder.path()).mkpath("b");
    QStringList expected;
    for (const char* name :
         {"A2.sql", "a10.sql", "b/1.sql", "b/c.sql", "b-1.sql", "c.sql", "d.sql"}) {
        Write(name, "one");
        expected << PathOf(name) + "  (1)";
    }
    Write("d.sql", QByteArray("one\n").repeated(3));
    expected.back() = PathOf("d.sql") + "  (3)";
    Open("b-1.sql", "one");
    Search("one");
    QStringList files;
    for (int row = 0; row < Model().rowCount(); ++row)
        files << File(row).data().toString();
    EXPECT_EQ(files, expected) << files.join('\n').toStdString();
    for (int row = 0; row < Model().rowCount(); ++row)
        EXPECT_EQ(Match(row, 0).parent(), File(row));
}

TEST_F(FindInFilesInWindow, ListsAFileThatComesLaterAtItsPlace)
{
    ResultsModel model(nullptr);
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    const auto found = [](const char* path, QStringList lines) {
        FoundFile file{QLatin1String(path), path, false, {}, lines.size()};
        for (const QString& line : lines)
            file.matches.push_back({0, 0, 1, 0, line, {}});
        return file;
    };
    EXPECT_EQ(model.Add(found("/m", {"x", "y"})), 0);
    const QPersistentModelIndex kept = model.index(1, 0, model.index(0, 0, {}));
    EXPECT_EQ(model.Add(found("/z", {"x"})), 1);
    EXPECT_EQ(model.Add(found("/a", {"x"})), 0);
    EXPECT_EQ(model.Add(found("/m", {"z"})), 1);
    EXPECT_EQ(kept.data().toString(), "1:  y");
    EXPECT_EQ(kept.parent().data().toString(), "/m  (3)");
    EXPECT_EQ(model.RowOf("/z"), 2);
    EXPECT_EQ(model.RowOf("/q"), -1);
}

TEST(SearchPlace, IsTheFolderOfTheScriptUntilOneIsChosen)
{
    for (const char16_t* entry : {u"LocCombo", u"TypeCombo"})
        CRegProfile().DeleteProfileValue(u"Preferences\\Search", entry);
    CFindReplaceManager manager;
    ProposePlace(manager, QString());
    EXPECT_EQ(manager.GetLocation(), QString());
    ProposePlace(manager, QStringLiteral("/scripts/a.sql"));
    EXPECT_EQ(manager.GetLocation(), QStringLiteral("/scripts"));
    EXPECT_EQ(manager.GetFileType(), QStringLiteral("*.sql"));
    ProposePlace(manager, QStringLiteral("/others/b.sql"));
    EXPECT_EQ(manager.GetLocation(), QStringLiteral("/scripts"));
}

TEST_F(FindInFilesInWindow, FindsOpenScriptsAsTheyAreEdited)
{
    Open("a.sql", "nothing");
    Editor().SetText(u"here it is", 1);
    Search("it is", true);
    Trigger("nextResult");
    EXPECT_EQ(Editor().GetSelectionStart(1), 5);
}

TEST_F(FindInFilesInWindow, ComesAndGoesInTheViewMenu)
{
    Open("a.sql", "one");
    Search("one", true);
    EXPECT_FALSE(Action("findResults2").isVisible()) << "nothing was found there";
    EXPECT_TRUE(Action("findResults").isVisible() && Action("findResults").isChecked());
    Trigger("findResults");
    EXPECT_FALSE(Pane().isVisible());
    Trigger("findResults");
    EXPECT_TRUE(Pane().isVisible());
}

TEST_F(FindInFilesInWindow, FollowsAScriptWithoutAFileToItsSavedPoint)
{
    m_app.NewScript();
    Type(u"one");
    Search("one", true);
    EXPECT_EQ(File(0).data().toString(), Script().Name() + "  (1)");
    Editor().Undo(1);
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return File(0).data().toString() == Script().Name() + "  (0)"; }));
}

TEST_F(FindInFilesInWindow, FindsInScriptsOfTheSessionThatAreNotReadYet)
{
    const QString behind = Write("behind.sql", "sought here");
    const QString front = Write("front.sql", "not here");
    ASSERT_TRUE(Session({.files = {{.path = behind}, {.path = front}}, .front = 1})
                    .Store(Session::DefaultPath()));
    m_window.ResumeSession();
    ASSERT_TRUE(m_window.IsResuming());
    Search("sought", true);
    EXPECT_EQ(Rows(0), QStringList{"1:  sought here"});
    QFile::remove(Session::DefaultPath());
}

TEST_F(FindInFilesInWindow, ShowsASearchAsOneTypesInTheStatusBar)
{
    Open("a.sql", "ab ab x");
    Frame().View()->OnCmdMsg(54024, nullptr);
    Frame().View()->HandleInputCharacter(u'a', 1, 0);
    const auto said = [this] { return m_window.statusBar()->currentMessage(); };
    EXPECT_EQ(said(), "Incremental search: a");
    EXPECT_TRUE(QTest::qWaitFor([&] { return said() == "Incremental search: a   2 matches"; }));
    Frame().View()->StopIncrementalSearch();
    EXPECT_EQ(m_window.statusBar()->currentMessage(), "");
}

TEST_F(FindInFilesInWindow, CountsNothingOnceASearchAsOneTypesHasEnded)
{
    Open("a.sql", "ab ab x");
    Frame().View()->OnCmdMsg(54024, nullptr);
    Frame().View()->HandleInputCharacter(u'a', 1, 0);
    Frame().View()->StopIncrementalSearch();
    constexpr int kLongerThanItRests = 300; // milliseconds
    EXPECT_FALSE(QTest::qWaitFor(
        [this] { return !m_window.statusBar()->currentMessage().isEmpty(); }, kLongerThanItRests));
}

TEST_F(FindInFilesInWindow, FollowsTheTextsThatAreEdited)
{
    Open("a.sql", "one\ntwo one\nthe one\n");
    Search("one");
    EXPECT_EQ(Rows(0), QStringList({"1:  one", "2:  two one", "3:  the one"}));
    Trigger("nextResult");
    Trigger("nextResult");
    Editor().SetText(u"\nfirst\none\nTWO\nthe one\n", 1); // the second is gone
    Trigger("nextResult");
    EXPECT_EQ(Rows(0), QStringList({"3:  one", "5:  the one"}));
    EXPECT_EQ(Editor().GetCurLineNumber(), 4);
    Editor().Undo(1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Rows(0).size() == 3; })) << "once the text rests";
}

// Marks of encodings within a text are characters of it.
TEST_F(FindInFilesInWindow, KeepsMarksThatTheTextsBeginWith)
{
    const QString text = QChar(0xFEFF) + QString("one two\n");
    Write("a.sql", "\xEF\xBB\xBF" + text.toUtf8());
    Open("b.sql", "");
    Type(u"\xFEFFone two\n");
    EXPECT_EQ(Text(), text);
    Search("one");
    ASSERT_EQ(Model().rowCount(), 2);
    for (const int file : {0, 1})
        EXPECT_EQ(Rows(file).value(0), "1:  " + text.trimmed()) << file;
    Replace("1");
    Trigger("save");
    EXPECT_EQ(Read("a.sql"), "\xEF\xBB\xBF\xEF\xBB\xBF" + QByteArray("1 two\n"));
    EXPECT_EQ(Text(), QChar(0xFEFF) + QString("1 two\n"));
}

TEST_F(FindInFilesInWindow, LooksAgainIntoAFileThatOthersHaveChanged)
{
    Write("a.sql", "one\ntwo\n");
    Search("two");
    Write("a.sql", "zero\none\nand two\n");
    Trigger("nextResult");
    EXPECT_EQ(Rows(0), QStringList("3:  and two"));
    EXPECT_EQ(Editor().GetSelectionStart(1), 13);
    Write("a.sql", "nothing of it\n");
    m_window.ShowTab(0);
    Script().OnCloseDocument();
    Trigger("nextResult");
    EXPECT_EQ(Rows(0), QStringList());
}

TEST_F(FindInFilesInWindow, ShowsMatchesOfATextThatHasBeenClosed)
{
    Open("a.sql", "one");
    Editor().SetText(u"edited one", 1);
    Search("one");
    EXPECT_EQ(Rows(0), QStringList("1:  edited one"));
    Script().OnCloseDocument();
    Trigger("nextResult");
    EXPECT_EQ(Rows(0), QStringList("1:  one")) << "as the file has it";
    EXPECT_EQ(Editor().GetSelectionStart(1), 0);
}

TEST_F(FindInFilesInWindow, ListsWhatWasNotSearched)
{
    Write("a.sql", QByteArray("one\0\0\0\1", 7));
    Search("one");
    ASSERT_EQ(Model().rowCount(), 1);
    EXPECT_EQ(File(0).data().toString(), "Not searched or not replaced  (1)");
    EXPECT_EQ(Rows(0), QStringList(PathOf("a.sql") + ": no text"));
    Trigger("nextResult");
    EXPECT_EQ(m_window.TabCount(), 0);
}

TEST_F(FindInFilesInWindow, ReplacesWhatIsNotLeftOut)
{
    Write("a.sql", "one\r\none one\r\n");
    Open("b.sql", "one, one");
    Search("one");
    Pane().Preview("three");
    ASSERT_TRUE(QTest::qWaitFor([this] { return !Pane().IsSearching(); }));
    const int closed = File(0).data().toString().contains("a.sql") ? 0 : 1;
    EXPECT_EQ(Rows(closed), QStringList({"1:  onethree", "2:  onethree one", "2:  one onethree"}));
    Model().setData(Match(closed, 1), Qt::Unchecked, Qt::CheckStateRole);
    EXPECT_EQ(File(closed).data(Qt::CheckStateRole), Qt::PartiallyChecked);
    Model().setData(Match(1 - closed, 0), Qt::Unchecked, Qt::CheckStateRole);
    Pane().ReplaceChosen();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !Pane().IsReplacing(); }));
    EXPECT_EQ(Read("a.sql"), "three\r\none three\r\n");
    EXPECT_EQ(Text(), "one, three");
    EXPECT_EQ(Read("b.sql"), "one, one") << "what is open is not saved";
    Editor().Undo(1);
    EXPECT_EQ(Text(), "one, one");
}

TEST_F(FindInFilesInWindow, ShowsTheTextsAsTheyAreOnceItHasReplaced)
{
    Write("a.sql", "so one\r\none\r\n");
    Open("b.sql", "one, one");
    Search("one");
    Replace("(one)");
    EXPECT_EQ(Rows(0), QStringList({"1:  so (one)", "2:  (one)"}));
    EXPECT_EQ(Rows(1), QStringList({"1:  (one), (one)", "1:  (one), (one)"}));
    for (const QModelIndex& row : {File(0), Match(0, 0), Match(1, 1)})
        EXPECT_FALSE(row.data(Qt::CheckStateRole).isValid());
}

TEST_F(FindInFilesInWindow, KeepsTheKeysOfTheButtonThatReplaces)
{
    Open("a.sql", "one");
    Search("one");
    Pane().findChild<QLineEdit*>("replacement")->parentWidget()->show();
    Pane().Preview("two");
    ASSERT_TRUE(QTest::qWaitFor([this] { return !Pane().IsSearching(); }));
    m_window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
    for (auto* button : Pane().findChildren<QPushButton*>()) {
        if (button->text() == "&Replace Checked") {
            button->setFocus();
            ASSERT_TRUE(button->hasFocus());
            button->click();
        }
    }
    ASSERT_TRUE(QTest::qWaitFor([this] { return !Pane().IsReplacing() && Text() == "two"; }));
    EXPECT_TRUE(Pane().ListArea()->hasFocus());
}

TEST_F(FindInFilesInWindow, TellsWhatItSavedFromWhatCanBeUndone)
{
    Write("a.sql", "one one");
    Write("b.sql", "one");
    Open("c.sql", "one");
    Search("one");
    Pane().Preview("two");
    ASSERT_TRUE(QTest::qWaitFor([this] { return !Pane().IsSearching(); }));
    const auto row = [this](int file) { return File(file).data().toString(); };
    EXPECT_EQ(row(0), PathOf("a.sql") + "  (2, not open: is saved at once, no undo)");
    EXPECT_EQ(row(2), PathOf("c.sql") + "  (1)");
    Pane().ReplaceChosen();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !Pane().IsReplacing(); }));
    const auto labels = Pane().findChildren<QLabel*>();
    EXPECT_TRUE(std::ranges::any_of(labels, [](const QLabel* label) {
        return label->text() ==
               "4 matches replaced: 2 files saved, 1 open script changed, not saved";
    }));
    EXPECT_EQ(row(0), PathOf("a.sql") + "  (saved)");
    EXPECT_EQ(row(2), PathOf("c.sql") + "  (open, not saved)");
    Trigger("save");
    EXPECT_EQ(row(2), PathOf("c.sql") + "  (saved)");
    Editor().Undo(1);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return row(2) == PathOf("c.sql") + "  (1, open, not saved)"; }));
}

TEST_F(FindInFilesInWindow, PressesTheButtonThatHasTheKeyboard)
{
    Write("a.sql", "one");
    Search("one");
    const auto enter = [this](const char* text) {
        for (auto* button : Pane().findChildren<QPushButton*>()) {
            if (button->text() == text) {
                button->setFocus();
                QTest::keyClick(button, Qt::Key_Return);
            }
        }
    };
    enter("Re&place...");
    Pane().findChild<QLineEdit*>("replacement")->setText("two");
    enter("Prev&iew");
    ASSERT_TRUE(QTest::qWaitFor([this] { return !Pane().IsSearching(); }));
    EXPECT_EQ(Rows(0), QStringList("1:  onetwo"));
    enter("&Replace Checked");
    ASSERT_TRUE(QTest::qWaitFor([this] { return Read("a.sql") == "two"; }));
}

TEST_F(FindInFilesInWindow, IsWalkedThroughByTabAndNeverLeftByIt)
{
    Open("a.sql", "one\n");
    Search("one");
    QStringList walked;
    const auto walk = [&](Qt::Key key) {
        walked.clear();
        for (int i = 0; i < 7; ++i) {
            QTest::keyClick(m_window.focusWidget(), key);
            const auto* button = qobject_cast<QPushButton*>(m_window.focusWidget());
            walked << (button ? button->text() : m_window.focusWidget()->metaObject()->className());
        }
    };
    Pane().setFocus();
    ASSERT_EQ(m_window.focusWidget(), Pane().ListArea());
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(m_window.focusWidget(), &Button("Re&place..."));
    Button("Re&place...").click();
    Pane().Preview("two");
    ASSERT_TRUE(QTest::qWaitFor([this] { return !Pane().IsSearching(); }));
    Pane().setFocus();
    walk(Qt::Key_Tab);
    EXPECT_EQ(walked, (QStringList{"Re&place...", "QLineEdit", "Prev&iew", "&Replace Checked",
                                   "QTreeView", "Re&place...", "QLineEdit"}));
    walk(Qt::Key_Backtab);
    EXPECT_EQ(walked, (QStringList{"Re&place...", "QTreeView", "&Replace Checked", "Prev&iew",
                                   "QLineEdit", "Re&place...", "QTreeView"}));
    EXPECT_EQ(Text(), "one\n");
}

TEST_F(FindInFilesInWindow, PutsTheKeyboardIntoTheFieldByEachClickOnReplaceAndClosesItFromThere)
{
    Open("a.sql", "one\n");
    Search("one");
    auto* field = Pane().findChild<QLineEdit*>("replacement");
    QPushButton* replaces = &Button("Re&place...");
    const auto click = [&] { QTest::mouseClick(replaces, Qt::LeftButton); };
    click();
    EXPECT_EQ(m_window.focusWidget(), field);
    m_window.GoToScript();
    click();
    EXPECT_EQ(m_window.focusWidget(), field);
    EXPECT_TRUE(replaces->isChecked());
    click();
    EXPECT_FALSE(field->isVisible());
    EXPECT_FALSE(replaces->isChecked());
    EXPECT_EQ(m_window.focusWidget(), Pane().ListArea());
}

TEST_F(FindInFilesInWindow, ShowsInTheSelectedRowWhichMatchItIs)
{
    Write("a.sql", "one one\n");
    Search("one");
    QTreeView& tree = *Pane().ListArea();
    ASSERT_EQ(Match(0, 0).data().toString(), Match(0, 1).data().toString());
    const auto selected = [&](int row) {
        tree.setCurrentIndex(Match(0, row));
        return tree.viewport()->grab(tree.visualRect(Match(0, row))).toImage();
    };
    const QImage first = selected(0);
    EXPECT_NE(first, selected(1));
    EXPECT_EQ(first, selected(0));
}

TEST_F(FindInFilesInWindow, GroupsTheDigitsOfLargeNumbers)
{
    const QLocale kept;
    const auto back = qScopeGuard([&] { QLocale::setDefault(kept); });
    QLocale::setDefault(QLocale(QLocale::English));
    Write("a.sql", QByteArray("one\n").repeated(1234));
    Search("one");
    EXPECT_EQ(File(0).data().toString(), PathOf("a.sql") + "  (1,234)");
    QStringList told;
    for (const QLabel* label : Pane().findChildren<QLabel*>())
        told << label->text();
    EXPECT_TRUE(told.contains("'one': 1,234 matches in 1 of 1 files"))
        << told.join('|').toStdString();
}

TEST_F(FindInFilesInWindow, IsReachedByTheKeyOfTheNextAreaAndLeftByIt)
{
    Open("a.sql", "one\n");
    Search("one");
    m_window.GoToScript();
    const auto isReached = [this] { return Pane().isAncestorOf(m_window.focusWidget()); };
    for (int i = 0; i < 8 && !isReached(); ++i)
        m_window.NextArea();
    EXPECT_EQ(m_window.focusWidget(), Pane().ListArea());
    Button("Re&place...").setFocus();
    m_window.NextArea();
    EXPECT_FALSE(isReached());
}

TEST_F(FindInFilesInWindow, ChecksAFileAgainOnceWhatWasLeftOutIsGone)
{
    Open("a.sql", "one\ntwo one\n");
    Search("one");
    Pane().Preview("1");
    ASSERT_TRUE(QTest::qWaitFor([this] { return !Pane().IsSearching(); }));
    const auto checked = [this] { return File(0).data(Qt::CheckStateRole).toInt(); };
    EXPECT_EQ(checked(), Qt::Checked);
    Model().setData(Match(0, 1), Qt::Unchecked, Qt::CheckStateRole);
    EXPECT_EQ(checked(), Qt::PartiallyChecked);
    Editor().SetSel(4, 11, 1);
    Type(u"");
    ASSERT_TRUE(QTest::qWaitFor([this] { return Rows(0).size() == 1; }));
    EXPECT_EQ(checked(), Qt::Checked);
}

TEST_F(FindInFilesInWindow, ReplacesInTheFilesOwnEncoding)
{
    Write("a.sql", "stra\xDF"
                   "e one\n");
    Write("b.sql", QByteArray("\xFF\xFEo\0n\0e\0", 8));
    Search("one");
    Replace("two");
    EXPECT_EQ(Read("a.sql"), "stra\xDF"
                             "e two\n");
    EXPECT_EQ(Read("b.sql"), QByteArray("\xFF\xFEt\0w\0o\0", 8));
}

TEST_F(FindInFilesInWindow, ReadsAndReplacesInTheCodePageOfTheOptions)
{
    CZNOptionsServer& options = *CZNOptionsServer::GetObjectW();
    options.SetInt(kCodePageOption, 1251);
    const auto restored = qScopeGuard([&] { options.SetInt(kCodePageOption, 0); });
    Write("a.sql", "\xCF\xF0 one\n");
    Search("\u041F\u0440");
    Replace("\u042F");
    EXPECT_EQ(Read("a.sql"), "\xDF one\n");
}

TEST_F(FindInFilesInWindow, ReportsWhatWasNotReplaced)
{
    Write("changed.sql", "one");
    Write("latin.sql", "\xE4\xF6\xFC one");
    Write("sealed.sql", "\u00e4 one");
    QFile::setPermissions(PathOf("sealed.sql"), QFile::ReadOwner);
    Write("well.sql", "\u00e4 one");
    Search("one");
    Pane().Preview(QString::fromUtf8("\u0436"));
    ASSERT_TRUE(QTest::qWaitFor([this] { return !Pane().IsSearching(); }));
    Write("changed.sql", "no, one");
    Pane().ReplaceChosen();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !Pane().IsReplacing(); }));
    EXPECT_EQ(Read("changed.sql"), "no, one");
    EXPECT_EQ(Read("latin.sql"), "\xE4\xF6\xFC one");
    EXPECT_EQ(Read("well.sql"), "\u00e4 \u0436");
    QStringList notes = Rows(4);
    notes.sort();
    const bool mayAll = geteuid() == 0; // what is sealed is not sealed for that one
    ASSERT_EQ(notes.size(), mayAll ? 2 : 3) << notes.join('\n').toStdString();
    EXPECT_EQ(notes[0], PathOf("changed.sql") + ": its text is another one by now");
    EXPECT_TRUE(notes[1].startsWith(PathOf("latin.sql") + ": its encoding does not have"));
}

TEST_F(FindInFilesInWindow, TellsWhatIsWrongWithAnExpression)
{
    CFindReplaceManager& manager = *zncoreeditor::GetFindReplaceManager();
    manager.SetRegExp(true);
    Search("[one"); // in the grammar of the engine and in that of Perl
    manager.SetRegExp(false);
    const auto labels = Pane().findChildren<QLabel*>();
    EXPECT_TRUE(std::ranges::any_of(labels, [](const QLabel* label) {
        return label->text() == "'[one': The expression is not complete.";
    }));
}
