// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/host/WorkbenchTest.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QTabWidget>
#include <QTest>

namespace {

class MainWindows : public WorkbenchTest
{
protected:
    QString TabCaption() const
    {
        const auto* tabs = m_window.findChild<QTabWidget*>();
        const int index = tabs->currentIndex();
        return tabs->tabText(index) + (tabs->tabIcon(index).isNull() ? "" : " *");
    }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(Editor().GetSafeHwnd(), key, modifiers);
    }
};

} // namespace

TEST_F(MainWindows, OpensAScriptUnderItsName)
{
    Open("orders.sql", "select 1;\n");
    EXPECT_EQ(Text(), QStringLiteral("select 1;\n"));
    EXPECT_EQ(TabCaption(), QStringLiteral("orders.sql"));
    EXPECT_TRUE(m_window.windowTitle().contains(QStringLiteral("orders.sql")));
    EXPECT_FALSE(m_window.isWindowModified());
}

TEST_F(MainWindows, TellsScriptsOfOneNameApartByTheirFolders)
{
    const QDir files(QFileInfo(PathOf("a.sql")).path());
    ASSERT_TRUE(files.mkdir("with[*]mark"));
    QString folder = files.path();
    if (folder.startsWith(QDir::homePath() + '/'))
        folder.replace(0, QDir::homePath().size(), "~");
    Open("a.sql", "");
    EXPECT_EQ(m_window.windowTitle(), "a.sql[*] – " + folder + " – znworkbench");
    Open("with[*]mark/a.sql", "");
    EXPECT_EQ(m_window.windowTitle(), "a.sql[*] – " + folder + "/with[*][*]mark – znworkbench");
    Trigger("new");
    EXPECT_TRUE(m_window.windowTitle().startsWith("Script "));
    EXPECT_EQ(m_window.windowTitle().count("–"), 1) << "a script without a file has no folder";
}

TEST_F(MainWindows, TakesNoStarOfANameForAChange)
{
    Open("orders *", "select 1;\n");
    EXPECT_FALSE(m_window.isWindowModified());
    EXPECT_TRUE(m_window.windowTitle().startsWith("orders *[*]"));
    Type(u"x");
    EXPECT_TRUE(m_window.isWindowModified());
    EXPECT_TRUE(m_window.windowTitle().startsWith("orders * [*]"));
}

TEST_F(MainWindows, MarksAChangedScriptUntilTheChangeIsUndone)
{
    Open("orders.sql", "select 1;\n");
    Type(u"x");
    EXPECT_EQ(TabCaption(), QStringLiteral("orders.sql *"));
    EXPECT_TRUE(m_window.isWindowModified());
    EXPECT_EQ(Status("modified"), QStringLiteral("Modified"));
    Trigger("undo");
    EXPECT_EQ(TabCaption(), QStringLiteral("orders.sql"));
    EXPECT_FALSE(m_window.isWindowModified());
    EXPECT_TRUE(Status("modified").isEmpty());
}

TEST_F(MainWindows, OffersToSaveAtTheFirstChangeWithoutWaitingForThePaint)
{
    // A person's save keys may be next in line behind the typed one.
    Open("orders.sql", "select 1;\n");
    Editor().ReplaceSel(u"x", 1);
    EXPECT_TRUE(Action("save").isEnabled());
    EXPECT_TRUE(Script().DoFileSave());
    EXPECT_FALSE(Action("save").isEnabled());
}

TEST_F(MainWindows, FollowsTheCaretOnceTheKeysRest)
{
    Open("orders.sql", "select 1;\n");
    Settle();
    for (int i = 0; i < 3; ++i)
        Press(Qt::Key_Right);
    EXPECT_EQ(Status("caret"), QStringLiteral("Line 1, column 1")) << "not at each key";
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return Status("caret") == QStringLiteral("Line 1, column 4"); }));
}

// Of these keys neither the editor nor its table knows the first, so that the entry has to be
// enabled by then.
TEST_F(MainWindows, TakesAKeyOfAMenuForWhatTheKeyBeforeItMadePossible)
{
    Open("orders.sql", "select 1;\n");
    Settle();
    Press(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_FALSE(Action("copyWithColours").isEnabled()) << "not at each key";
    Press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("s"));
    Press(Qt::Key_Delete);
    EXPECT_EQ(Text(), QStringLiteral("elect 1;\n"));
    Press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Text(), QStringLiteral("select 1;\n"));
    Press(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(Text(), QStringLiteral("elect 1;\n"));
}

TEST_F(MainWindows, OffersInAMenuWhatTheLastKeyMadePossible)
{
    Open("orders.sql", "select 1;\n");
    Settle();
    Press(Qt::Key_Right, Qt::ShiftModifier);
    for (QMenu* menu : m_window.menuBar()->findChildren<QMenu*>()) {
        if (menu->actions().contains(&Action("copy")))
            Q_EMIT menu->aboutToShow();
    }
    EXPECT_TRUE(Action("copy").isEnabled());
}

TEST_F(MainWindows, SaysThatALineIsDrawnCoarsely)
{
    constexpr int kDefaultStyle = 32;
    Open("dump.sql", "");
    Editor().StyleSetSize(kDefaultStyle, 60, 1);
    const std::u16string line(600'000, u'x');
    Editor().SetText((u"a\n" + line).c_str(), 1);
    Editor().GetHwnd()->grab();
    Settle();
    EXPECT_TRUE(m_window.statusBar()->currentMessage().startsWith(
        QStringLiteral("Line 2 is very long: behind column ")))
        << m_window.statusBar()->currentMessage().toStdString();
}

TEST_F(MainWindows, ShowsAnAmpersandOfANameAsItIs)
{
    Open("a&b.sql", "");
    EXPECT_EQ(TabCaption(), QStringLiteral("a&&b.sql"));
}

TEST_F(MainWindows, ShowsTheTabOfAScriptThatIsOpenAlready)
{
    Open("a.sql", "a");
    Open("b.sql", "b");
    EXPECT_TRUE(m_app.OpenDocumentFile(PathOf("./a.sql")));
    EXPECT_EQ(m_window.TabCount(), 2);
    EXPECT_EQ(Text(), QStringLiteral("a"));
}

TEST_F(MainWindows, LetsTheUntouchedFirstScriptMakeRoom)
{
    m_app.NewScript();
    Open("a.sql", "a");
    EXPECT_EQ(m_window.TabCount(), 1);
    m_app.NewScript();
    Type(u"kept");
    Open("b.sql", "b");
    EXPECT_EQ(m_window.TabCount(), 3);
}

TEST_F(MainWindows, TellsWhyAScriptDoesNotOpen)
{
    EXPECT_FALSE(m_app.OpenDocumentFile(PathOf("no.sql")));
    EXPECT_FALSE(m_app.OpenDocumentFile(m_folder.path()));
    EXPECT_EQ(m_window.TabCount(), 0);
    ASSERT_EQ(m_prompts.told.size(), 2);
    EXPECT_TRUE(m_prompts.told[0].contains(QStringLiteral("does not exist")));
    EXPECT_TRUE(m_prompts.told[1].contains(QStringLiteral("folder")));

    m_prompts.filesToOpen = QStringList{PathOf("no.sql")};
    Trigger("open");
    EXPECT_EQ(m_prompts.told.size(), 3);

    EXPECT_FALSE(m_app.OpenDocumentFile(PathOf(QStringLiteral("a\uFFFD.sql"))));
    EXPECT_TRUE(m_prompts.told.last().contains(QStringLiteral("not UTF-8")));
}

TEST_F(MainWindows, SavesInTheEncodingOfTheFile)
{
    // UTF-16 LE with a mark: "a", a line end, "\u0142".
    const QByteArray bytes("\xFF\xFE"
                           "a\0\n\0\x42\x01",
                           8);
    Open("a.sql", bytes);
    EXPECT_EQ(Text(), QStringLiteral("a\n\u0142"));
    EXPECT_EQ(Status("encoding"), QStringLiteral("UTF-16 LE with mark"));
    Type(u"b");
    Trigger("save");
    EXPECT_EQ(Read("a.sql"), QByteArray("\xFF\xFE"
                                        "b\0a\0\n\0\x42\x01",
                                        10));
    EXPECT_FALSE(Script().IsModified());
}

TEST_F(MainWindows, SavesUnderAnotherNameAndEncoding)
{
    Open("a.sql", "caf\xC3\xA9\n");
    m_prompts.saveTarget = SaveTarget{PathOf("b.sql"), 2, true};
    Trigger("saveAs");
    EXPECT_EQ(m_prompts.proposals, QStringList{PathOf("a.sql")});
    EXPECT_EQ(Read("b.sql"), QByteArray("\xFF\xFE"
                                        "c\0a\0f\0\xE9\0\n\0",
                                        12));
    EXPECT_EQ(Read("a.sql"), QByteArray("caf\xC3\xA9\n"));
    EXPECT_EQ(TabCaption(), QStringLiteral("b.sql"));
    EXPECT_EQ(Status("encoding"), QStringLiteral("UTF-16 LE with mark"));
}

TEST_F(MainWindows, AsksForANameWhenAScriptWithoutOneIsSaved)
{
    m_app.NewScript();
    Type(u"select 1");
    m_prompts.saveTarget = SaveTarget{PathOf("new.sql"), 6, false};
    Trigger("save");
    EXPECT_EQ(Read("new.sql"), QByteArray("select 1"));
    EXPECT_EQ(m_prompts.proposals.size(), 1);
    EXPECT_TRUE(m_prompts.proposals.value(0).endsWith(QStringLiteral("Script 1.sql")));
    EXPECT_FALSE(Script().IsModified());
}

TEST_F(MainWindows, KeepsTheTextWhenASaveFails)
{
    Open("a.sql", "one\n");
    Type(u"two ");
    m_prompts.saveTarget = SaveTarget{PathOf("gone/b.sql"), 6, false};
    EXPECT_FALSE(Script().SaveAs());
    ASSERT_EQ(m_prompts.told.size(), 1);
    EXPECT_TRUE(m_prompts.told[0].contains(QStringLiteral("folder does not exist")));
    EXPECT_TRUE(m_prompts.told[0].contains(QStringLiteral("Save As")));
    EXPECT_EQ(Text(), QStringLiteral("two one\n"));
    EXPECT_TRUE(Script().IsModified());
    EXPECT_EQ(Script().GetPathName(), PathOf("a.sql"));
    EXPECT_TRUE(Script().DoFileSave());
    EXPECT_EQ(Read("a.sql"), QByteArray("two one\n"));
}

TEST_F(MainWindows, AsksBeforeAScriptThatWasCutShortReplacesTheLongerFile)
{
    // Half a unit stands at the end.
    const QByteArray bytes("\xFF\xFE"
                           "a\0b\0c",
                           7);
    Open("a.sql", bytes);
    EXPECT_EQ(Text(), QStringLiteral("ab"));
    QApplication::processEvents();
    ASSERT_EQ(m_prompts.told.size(), 1) << "once the tab is seen";
    EXPECT_TRUE(m_prompts.told[0].contains(QStringLiteral("Only the first part of “a.sql”")));

    Type(u"x");
    EXPECT_FALSE(Script().DoFileSave());
    EXPECT_EQ(m_prompts.asked.size(), 1);
    EXPECT_EQ(Read("a.sql"), bytes);

    m_prompts.confirm = true;
    EXPECT_TRUE(Script().DoFileSave());
    EXPECT_EQ(m_prompts.asked.size(), 2);
    EXPECT_TRUE(Script().DoFileSave()) << "the file holds what the window shows from here on";
    EXPECT_EQ(m_prompts.asked.size(), 2);
}

TEST_F(MainWindows, AsksBeforeCharactersBecomeQuestionMarks)
{
    Open("a.sql", "caf\xE9\n");
    EXPECT_EQ(Status("encoding"), QStringLiteral("windows-1252"));
    Type(u"\u0142");
    EXPECT_FALSE(Script().DoFileSave());
    ASSERT_EQ(m_prompts.asked.size(), 1);
    EXPECT_TRUE(m_prompts.asked[0].contains(QStringLiteral("windows-1252")));
    EXPECT_TRUE(m_prompts.asked[0].contains(u'\u0142'));
    EXPECT_TRUE(m_prompts.asked[0].contains(QStringLiteral("line 1")));
    EXPECT_EQ(Read("a.sql"), QByteArray("caf\xE9\n"));
    EXPECT_EQ(Editor().GetSelectionStart(1), 0) << "the character is shown";
    EXPECT_EQ(Editor().GetSelectionEnd(1), 1);

    m_prompts.loseCharacters = LoseCharacters::SaveAnyway;
    EXPECT_TRUE(Script().DoFileSave());
    EXPECT_EQ(Read("a.sql"), QByteArray("?caf\xE9\n"));
}

TEST_F(MainWindows, ClosesAnUnchangedScriptWithoutAWord)
{
    Open("a.sql", "a");
    Trigger("close");
    EXPECT_EQ(m_window.TabCount(), 0);
    EXPECT_TRUE(m_prompts.asked.isEmpty());
}

TEST_F(MainWindows, AsksBeforeAChangedScriptCloses)
{
    Open("a.sql", "a");
    Type(u"b");
    Trigger("close");
    EXPECT_EQ(m_prompts.asked, QStringList{"a.sql"});
    EXPECT_EQ(m_window.TabCount(), 1);

    m_prompts.loseChanges = LoseChanges::Save;
    Trigger("close");
    EXPECT_EQ(m_window.TabCount(), 0);
    EXPECT_EQ(Read("a.sql"), QByteArray("ba"));
}

TEST_F(MainWindows, DropsTheChangesThatAPersonDiscards)
{
    Open("a.sql", "a");
    Type(u"b");
    m_prompts.loseChanges = LoseChanges::Discard;
    Trigger("close");
    EXPECT_EQ(m_window.TabCount(), 0);
    EXPECT_EQ(Read("a.sql"), QByteArray("a"));
}

TEST_F(MainWindows, StaysOpenWhileAScriptHasChangesToKeep)
{
    Open("a.sql", "a");
    Type(u"b");
    Open("c.sql", "c");
    EXPECT_FALSE(CloseWindow());
    EXPECT_EQ(Text(), QStringLiteral("ba")) << "the script that is asked about is in front";
    m_prompts.loseChanges = LoseChanges::Discard;
    EXPECT_TRUE(CloseWindow());
}

TEST_F(MainWindows, StaysOpenWhenTheSaveOnTheWayOutFails)
{
    m_app.NewScript();
    Type(u"b");
    m_prompts.loseChanges = LoseChanges::Save;
    m_prompts.saveTarget = SaveTarget{PathOf("gone/b.sql"), 6, false};
    EXPECT_FALSE(CloseWindow());
    EXPECT_EQ(Text(), QStringLiteral("b"));
}

TEST_F(MainWindows, OffersOnlyWhatIsPossible)
{
    for (const char* name : {"save", "saveAs", "close", "undo", "redo", "cut", "copy", "paste",
                             "delete", "selectAll", "zoomIn", "next"})
        EXPECT_FALSE(Action(name).isEnabled()) << name << " without a script";

    QApplication::clipboard()->setText(QStringLiteral("clip"));
    Open("a.sql", "a");
    for (const char* name : {"save", "undo", "redo", "cut", "copy", "delete", "next"})
        EXPECT_FALSE(Action(name).isEnabled()) << name << " on an unchanged script";
    EXPECT_TRUE(Action("paste").isEnabled());

    Type(u"b");
    EXPECT_TRUE(Action("save").isEnabled());
    EXPECT_TRUE(Action("undo").isEnabled());
    Trigger("undo");
    EXPECT_TRUE(Action("redo").isEnabled());
    EXPECT_FALSE(Action("save").isEnabled());

    Trigger("selectAll");
    for (const char* name : {"cut", "copy", "delete"})
        EXPECT_TRUE(Action(name).isEnabled()) << name << " with a selection";
}

TEST_F(MainWindows, OffersNoChangeOfAReadOnlyScript)
{
    QApplication::clipboard()->setText(QStringLiteral("clip"));
    Open("a.sql", "a");
    Type(u"b");
    Editor().SetReadOnly(1, 1);
    Trigger("selectAll");
    Q_EMIT Script().StateChanged();
    for (const char* name : {"undo", "cut", "paste", "delete"})
        EXPECT_FALSE(Action(name).isEnabled()) << name;
    EXPECT_TRUE(Action("copy").isEnabled());
    EXPECT_EQ(Status("readOnly"), QStringLiteral("Read-only"));
}

TEST_F(MainWindows, CutsAndPastesThroughItsMenu)
{
    Open("a.sql", "one two");
    Editor().SetSel(0, 4, 1);
    Settle();
    Trigger("cut");
    EXPECT_EQ(Text(), QStringLiteral("two"));
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("one "));
    Editor().GotoPos(3, 1);
    Settle();
    Trigger("paste");
    EXPECT_EQ(Text(), QStringLiteral("twoone "));
    Editor().SetSel(0, 3, 1);
    Settle();
    Trigger("delete");
    EXPECT_EQ(Text(), QStringLiteral("one "));
}

TEST_F(MainWindows, TellsTheCaretsPlaceInTheStatusBar)
{
    Open("a.sql", "one\r\ntwo\r\n");
    EXPECT_EQ(Status("caret"), QStringLiteral("Line 1, column 1"));
    EXPECT_EQ(Status("lineEnds"), QStringLiteral("CR LF"));
    EXPECT_EQ(Status("overtype"), QStringLiteral("INS"));
    Editor().GotoPos(7, 1);
    Settle();
    EXPECT_EQ(Status("caret"), QStringLiteral("Line 2, column 3"));
}

TEST_F(MainWindows, ShowsEachScriptsOwnStateWhenItsTabComesToTheFront)
{
    Open("a.sql", "a\n");
    Type(u"x");
    Open("b.sql", "\xEF\xBB\xBF"
                  "b\r\n");
    EXPECT_EQ(Status("encoding"), QStringLiteral("UTF-8 with mark"));
    EXPECT_TRUE(Status("modified").isEmpty());
    Trigger("previous");
    EXPECT_EQ(Status("encoding"), QStringLiteral("UTF-8"));
    EXPECT_EQ(Status("modified"), QStringLiteral("Modified"));
    Trigger("next");
    EXPECT_EQ(Text(), QStringLiteral("b\r\n"));
}

TEST_F(MainWindows, WidensTheLineNumbersAsAScriptGrows)
{
    Open("a.sql", "a\n");
    const int narrow = Editor().GetMarginWidthN(1, 1);
    EXPECT_GT(narrow, 0);
    Type(QString(12000, u'\n').toStdU16String().c_str());
    EXPECT_GT(Editor().GetMarginWidthN(1, 1), narrow);
}

TEST_F(MainWindows, WidensTheLineNumbersWithTheZoom)
{
    Open("a.sql", "a\n");
    const int before = Editor().GetMarginWidthN(1, 1);
    for (int i = 0; i < 8; ++i)
        Trigger("zoomIn");
    EXPECT_GT(Editor().GetMarginWidthN(1, 1), before);
    Trigger("zoomReset");
    EXPECT_EQ(Editor().GetMarginWidthN(1, 1), before);
}

TEST_F(MainWindows, ScrollsSidewaysNoFurtherThanTheLongestLineSeen)
{
    Open("a.sql", "a\n");
    Settle();
    const int before = Editor().GetScrollWidth(1);
    EXPECT_LT(before, 200);
    Type(QString(300, u'x').toStdU16String().c_str());
    EXPECT_GT(Editor().GetScrollWidth(1), 300 * 4);
}

TEST_F(MainWindows, AppliesItsViewToEveryScript)
{
    Open("a.sql", "a");
    Trigger("whitespace");
    Trigger("lineEnds");
    Trigger("wrap");
    Open("b.sql", "b");
    for (int i = 0; i < m_window.TabCount(); ++i) {
        CZNCoreEditorControl& editor = m_window.FrameAt(i)->Editor();
        EXPECT_EQ(editor.GetViewWS(1), 1);
        EXPECT_EQ(editor.GetViewEOL(1), 1);
        EXPECT_EQ(editor.GetWrapMode(1), 1);
    }
    Trigger("wrap");
    EXPECT_EQ(m_window.FrameAt(0)->Editor().GetWrapMode(1), 0);
}

TEST_F(MainWindows, ColoursSqlByHand)
{
    Open("a.sql", "select 'text', 12 -- note\n");
    Editor().Colorize(0, -1, 1);
    EXPECT_EQ(Editor().GetStyleAt(0, 1), 5);
    EXPECT_EQ(Editor().GetStyleAt(8, 1), 7);
    EXPECT_EQ(Editor().GetStyleAt(15, 1), 4);
    EXPECT_EQ(Editor().GetStyleAt(20, 1), 2);
}
