// SPDX-License-Identifier: GPL-3.0-or-later
// The face of the editor for plain Qt hosts, held to the control behind it.
#include "control/Selections.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "platform/services/OptionsServer.h"
#include "platform/windows/ActionUI.h"

#include <QAbstractScrollArea>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QMetaProperty>
#include <QPdfWriter>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace {

using Editor = ZNCoreEditorWidget;
using Control = CZNCoreEditorControlEx;

constexpr char kScript[] = "select alpha;\nselect beta;\nGO\nselect gamma;\n";

class EditorFace : public testing::Test
{
protected:
    EditorFace() { editor.setText(QString::fromLatin1(kScript)); }

    Editor editor;
    Control& control = editor.control();
};

// What the face answers, and what the control does.
struct Question
{
    const char* name;
    long (*ofFace)(Editor&);
    long (*ofControl)(Control&);
};

const Question kQuestions[] = {
    {"length", [](Editor& e) { return long{e.length()}; },
     [](Control& c) { return long(c.GetLength(1)); }},
    {"lineCount", [](Editor& e) { return long{e.lineCount()}; },
     [](Control& c) { return long(c.GetLineCount(1)); }},
    {"cursorPosition", [](Editor& e) { return long{e.cursorPosition()}; },
     [](Control& c) { return long(c.GetCurrentPos(1)); }},
    {"cursorLine", [](Editor& e) { return long{e.cursorLine()}; },
     [](Control& c) { return long(c.GetCurLineNumber()); }},
    {"selectionStart", [](Editor& e) { return long{e.selection().position}; },
     [](Control& c) { return long(c.GetSelectionStart(1)); }},
    {"selectionLength", [](Editor& e) { return long{e.selection().length}; },
     [](Control& c) { return long(c.GetSelectionEnd(1) - c.GetSelectionStart(1)); }},
    {"cursorCount", [](Editor& e) { return long{e.cursorCount()}; },
     [](Control& c) { return long(c.Call(engine::kGetSelections, 0, 0, 1)); }},
    {"hasColumnSelection", [](Editor& e) { return long{e.hasColumnSelection()}; },
     [](Control& c) { return long(c.SelectionIsRectangle(1)); }},
    {"isUndoAvailable", [](Editor& e) { return long{e.isUndoAvailable()}; },
     [](Control& c) { return long(c.CanUndo(1)); }},
    {"isRedoAvailable", [](Editor& e) { return long{e.isRedoAvailable()}; },
     [](Control& c) { return long(c.CanRedo(1)); }},
    {"isReadOnly", [](Editor& e) { return long{e.isReadOnly()}; },
     [](Control& c) { return long(c.GetReadOnly(1)); }},
    {"language", [](Editor& e) { return long{e.language()}; },
     [](Control& c) { return long{c.GetCurrentLanguage()}; }},
    {"encoding", [](Editor& e) { return static_cast<long>(e.encoding()); },
     [](Control& c) { return long{c.GetEncoding()}; }},
    {"lineEnd", [](Editor& e) { return static_cast<long>(e.lineEnd()); },
     [](Control& c) { return long(c.GetEOLMode(1)); }},
    {"tabWidth", [](Editor& e) { return long{e.tabWidth()}; },
     [](Control& c) { return long(c.GetTabWidth(1)); }},
    {"zoom", [](Editor& e) { return long{e.zoom()}; },
     [](Control& c) { return long(c.GetZoom(1)); }},
    {"areLineNumbersVisible", [](Editor& e) { return long{e.areLineNumbersVisible()}; },
     [](Control& c) { return long{c.IsVisibleLineNumber()}; }},
    {"isDocumentMapVisible", [](Editor& e) { return long{e.isDocumentMapVisible()}; },
     [](Control& c) { return long{c.IsDocumentMapVisible()}; }},
    {"overwriteMode", [](Editor& e) { return long{e.overwriteMode()}; },
     [](Control& c) { return long(c.GetOvertype(1)); }},
    {"lineWrapMode", [](Editor& e) { return static_cast<long>(e.lineWrapMode()); },
     [](Control& c) { return long(c.GetWrapMode(1)); }},
    {"hasByteOrderMark", [](Editor& e) { return long{e.hasByteOrderMark()}; },
     [](Control& c) { return long{c.GetWriteEncodingSig()}; }},
};

// What the control is brought to: by its own operation, and by the face's.
struct Deed
{
    const char* name;
    void (*byControl)(Control&);
    void (*byFace)(Editor&);
};

const Deed kDeeds[] = {
    {"caret", [](Control& c) { c.GotoPos(5, 1); }, [](Editor& e) { e.setCursorPosition(5); }},
    {"caretByLine", [](Control& c) { c.GotoPos(21, 1); },
     [](Editor& e) { e.setCursorPosition(1, 7); }},
    {"selection", [](Control& c) { c.SetSel(7, 12, 1); },
     [](Editor& e) {
         e.setSelection({7, 5});
     }},
    {"readOnly", [](Control& c) { c.SetReadOnly(true, 1); },
     [](Editor& e) { e.setReadOnly(true); }},
    {"undo", [](Control& c) { c.Undo(1); }, [](Editor& e) { e.undo(); }},
    {"language", [](Control& c) { c.InitializeLanguage(3, 1); },
     [](Editor& e) { e.setLanguage(3); }},
    {"encoding", [](Control& c) { c.SetEncoding(6); },
     [](Editor& e) { e.setEncoding(Editor::Encoding::Utf8); }},
    {"lineEnds", [](Control& c) { c.SetEOLCRLF(); },
     [](Editor& e) { e.setLineEnd(Editor::LineEnd::CrLf); }},
    {"tabs", [](Control& c) { c.SetTabWidth(3, 1); }, [](Editor& e) { e.setTabWidth(3); }},
    {"zoom", [](Control& c) { c.SetZoom(4, 1); }, [](Editor& e) { e.zoomIn(4); }},
    {"lineNumbers", [](Control& c) { c.SetVisibleLineNumber(true); },
     [](Editor& e) { e.setLineNumbersVisible(true); }},
    {"documentMap", [](Control& c) { c.SetDocumentMap(true); },
     [](Editor& e) { e.setDocumentMapVisible(true); }},
    {"mark", [](Control& c) { c.SetWriteEncodingSig(false); },
     [](Editor& e) { e.setByteOrderMark(false); }},
    {"clear", [](Control& c) { c.ClearAll(1); }, [](Editor& e) { e.clear(); }},
    {"selectAll", [](Control& c) { c.SelectAll(1); }, [](Editor& e) { e.selectAll(); }},
    {"overwrite", [](Control& c) { c.SetOvertype(true, 1); },
     [](Editor& e) { e.setOverwriteMode(true); }},
    {"wrap", [](Control& c) { c.SetWrapMode(1, 1); },
     [](Editor& e) { e.setLineWrapMode(Editor::LineWrapMode::WidgetWidth); }},
    {"selectionByLines", [](Control& c) { c.SetSel(19, 7, 1); },
     [](Editor& e) { e.setSelection(1, 5, 0, 7); }},
    {"selections",
     [](Control& c) {
         const engine::SelectionEnds ends[] = {{21, 25}, {7, 12}};
         c.Call(engine::kSetSelections, 2, reinterpret_cast<LPARAM>(ends), 1);
     },
     [](Editor& e) {
         e.setSelections({{21, 4}, {7, 5}});
     }},
    {"columns",
     [](Control& c) {
         const engine::ColumnCorners corners = {{7, 26}, 0, 3};
         c.Call(engine::kSetColumns, 0, reinterpret_cast<LPARAM>(&corners), 1);
     },
     [](Editor& e) { e.setColumnSelection(0, 7, 1, 15); }},
    {"append", [](Control& c) { c.AppendText(4, u"\nend", 1); },
     [](Editor& e) { e.appendPlainText(QStringLiteral("end")); }},
    {"insert", [](Control& c) { c.ReplaceSel(u"new", 1); },
     [](Editor& e) { e.insertPlainText(QStringLiteral("new")); }},
};

TEST(EditorFaceTable, AnswersAndDoesAsTheControl)
{
    for (const Deed& deed : kDeeds) {
        Editor byControl;
        Editor byFace;
        for (Editor* editor : {&byControl, &byFace})
            editor->setText(QString::fromLatin1(kScript));
        deed.byControl(byControl.control());
        deed.byFace(byFace);
        EXPECT_EQ(byFace.text(), byControl.text()) << deed.name;
        for (const Question& question : kQuestions) {
            const long expected = question.ofControl(byControl.control());
            EXPECT_EQ(question.ofFace(byFace), expected) << deed.name << ", " << question.name;
        }
    }
}

TEST_F(EditorFace, RefusesValuesThatThereAreNot)
{
    editor.setLanguage(3);
    EXPECT_FALSE(editor.setLanguage(999));
    EXPECT_FALSE(editor.setLanguage(-1));
    EXPECT_FALSE(editor.setLanguageName(QStringLiteral("Klingon")));
    EXPECT_FALSE(editor.setScheme(QStringLiteral("Plaid")));
    EXPECT_FALSE(editor.setEncoding(static_cast<Editor::Encoding>(5)));
    EXPECT_FALSE(editor.setLineEnd(static_cast<Editor::LineEnd>(0)));
    EXPECT_FALSE(editor.setTabWidth(0));
    EXPECT_EQ(editor.language(), 3);
    EXPECT_EQ(editor.scheme(), QStringLiteral("Desktop"));
}

TEST_F(EditorFace, TakesPlacesOutsideTheTextForTheNearestInside)
{
    editor.setCursorPosition(-5);
    EXPECT_EQ(editor.cursorPosition(), 0);
    editor.setCursorPosition(1 << 30);
    EXPECT_EQ(editor.cursorPosition(), editor.length());
    EXPECT_EQ(editor.positionAt(0, 99), 13);
    EXPECT_EQ(editor.positionAt(99, 0), editor.length());
    EXPECT_EQ(editor.textOf({40, 100}), QStringLiteral("ma;\n").right(editor.length() - 40));
    EXPECT_EQ(editor.lineText(99), QString());
    EXPECT_EQ(editor.lineText(1), QStringLiteral("select beta;"));
}

TEST_F(EditorFace, KnowsLanguagesByNameAndByFile)
{
    EXPECT_TRUE(editor.setLanguageName(QStringLiteral("PL/SQL")));
    EXPECT_EQ(editor.languageName(), QStringLiteral("PL/SQL"));
    EXPECT_TRUE(editor.setLanguageForFile(QStringLiteral("/tmp/a.tsql")));
    EXPECT_EQ(editor.languageName(), QStringLiteral("Transact-SQL"));
    EXPECT_EQ(Editor::languages().indexOf(QStringLiteral("PL/SQL")),
              Editor::languageOfName(QStringLiteral("PL/SQL")));
    EXPECT_EQ(Editor::languages().value(Editor::languageOfFile(QStringLiteral("notes"))),
              QStringLiteral("Text"));
}

TEST_F(EditorFace, TellsEachChangeOnce)
{
    QSignalSpy undo(&editor, &Editor::undoAvailable);
    QSignalSpy redo(&editor, &Editor::redoAvailable);
    QSignalSpy lines(&editor, &Editor::lineCountChanged);
    QSignalSpy language(&editor, &Editor::languageChanged);
    QSignalSpy readOnly(&editor, &Editor::readOnlyChanged);
    QSignalSpy ends(&editor, &Editor::lineEndChanged);
    QSignalSpy zoom(&editor, &Editor::zoomChanged);
    editor.undo();
    ASSERT_EQ(redo.count(), 1);
    EXPECT_TRUE(redo.at(0).at(0).toBool());
    ASSERT_EQ(undo.count(), 1);
    EXPECT_FALSE(undo.at(0).at(0).toBool());
    EXPECT_EQ(lines.count(), 1);
    for (int i = 0; i < 2; ++i) { // the second time nothing changes
        editor.setLanguage(3);
        editor.setReadOnly(true);
        editor.setZoom(2);
    }
    EXPECT_EQ(language.count(), 1);
    EXPECT_EQ(readOnly.count(), 1);
    EXPECT_EQ(zoom.count(), 1);
    editor.setReadOnly(false);
    editor.setLineEnd(Editor::LineEnd::Cr);
    EXPECT_EQ(ends.count(), 1);
}

TEST_F(EditorFace, TellsOfEachSettingOnce)
{
    editor.setLanguage(3);
    const bool hadNumbers = editor.areLineNumbersVisible();
    QSignalSpy overwrite(&editor, &Editor::overwriteModeChanged);
    QSignalSpy tabs(&editor, &Editor::tabWidthChanged);
    QSignalSpy wrap(&editor, &Editor::lineWrapModeChanged);
    QSignalSpy numbers(&editor, &Editor::lineNumbersVisibleChanged);
    QSignalSpy map(&editor, &Editor::documentMapVisibleChanged);
    QSignalSpy completes(&editor, &Editor::completesWhileTypingChanged);
    for (int i = 0; i < 2; ++i) { // the second time nothing changes
        editor.setOverwriteMode(true);
        editor.setTabWidth(13);
        editor.setLineWrapMode(Editor::LineWrapMode::WidgetWidth);
        editor.setLineNumbersVisible(!hadNumbers);
        editor.setDocumentMapVisible(true);
        editor.setCompletesWhileTyping(true);
    }
    for (const QSignalSpy* each : {&overwrite, &tabs, &wrap, &numbers, &map, &completes})
        EXPECT_EQ(each->count(), 1) << each->signal().toStdString();
}

TEST_F(EditorFace, TellsTheColoursOfItsText)
{
    editor.setScheme(QStringLiteral("Dark"));
    EXPECT_LT(editor.textPalette().color(QPalette::Base).lightness(), 90);
    EXPECT_GT(editor.textPalette().color(QPalette::Text).lightness(), 150);
    editor.setScheme(QStringLiteral("Light"));
    EXPECT_GT(editor.textPalette().color(QPalette::Base).lightness(), 200);
}

TEST_F(EditorFace, BringsItsCaretIntoTheMiddle)
{
    editor.resize(400, 300);
    editor.setText(QStringLiteral("select 1;\n").repeated(300));
    editor.show();
    QApplication::processEvents();
    editor.setCursorPosition(150, 0);
    editor.centerCursor();
    const auto middle = 150 - control.GetFirstVisibleLine(1);
    EXPECT_NEAR(static_cast<double>(middle), control.LinesOnScreen(1) / 2.0, 1.0);
    control.LineScroll(0, 120, 1);
    editor.ensureCursorVisible();
    EXPECT_LE(control.GetFirstVisibleLine(1), 150);
    EXPECT_GT(control.GetFirstVisibleLine(1) + control.LinesOnScreen(1), 150);
}

TEST_F(EditorFace, BringsACaretFarInAWrappedLineIntoTheMiddle)
{
    editor.resize(400, 300);
    editor.setLineWrapMode(Editor::LineWrapMode::WidgetWidth);
    editor.setText(QStringLiteral("word ").repeated(2000) +
                   QStringLiteral("\nselect 1;").repeated(50));
    editor.show();
    QApplication::processEvents();
    editor.setCursorPosition(5000);
    editor.centerCursor();
    const int row = control.PointYFromPosition(5000, 1) / control.TextHeight(0, 1);
    EXPECT_NEAR(static_cast<double>(row), control.LinesOnScreen(1) / 2.0, 1.0);
}

TEST_F(EditorFace, StaysWhereItIsScrolledToAsSoonAsItIsShown)
{
    editor.resize(400, 300);
    editor.setText(QStringLiteral("select 1;\n").repeated(300));
    editor.show();
    control.LineScroll(0, 100, 1);
    QApplication::processEvents();
    EXPECT_EQ(control.GetFirstVisibleLine(1), 100);
}

TEST_F(EditorFace, ShowsTheStartOfItsLinesThoughItWasGivenACaretBefore)
{
    editor.setLineNumbersVisible(true);
    editor.setSelection({0, 12});
    editor.resize(500, 300);
    editor.show();
    QApplication::processEvents();
    EXPECT_EQ(control.GetXOffset(1), 0);
}

TEST_F(EditorFace, TellsOfTheSelectionFromTheEventLoop)
{
    editor.show();
    QApplication::processEvents();
    QSignalSpy selection(&editor, &Editor::selectionChanged);
    QSignalSpy available(&editor, &Editor::copyAvailable);
    editor.setSelection({0, 6});
    EXPECT_TRUE(available.wait());
    EXPECT_EQ(selection.count(), 1);
    EXPECT_TRUE(available.at(0).at(0).toBool());
    editor.copy();
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("select"));
}

TEST_F(EditorFace, FindsOnwardsBackwardsAndAround)
{
    const QString word = QStringLiteral("SELECT");
    EXPECT_TRUE(editor.find(word));
    EXPECT_EQ(editor.selection(), (Editor::Range{0, 6}));
    EXPECT_TRUE(editor.find(word));
    EXPECT_EQ(editor.selection().position, 14);
    EXPECT_TRUE(editor.find(word, Editor::FindBackward));
    EXPECT_EQ(editor.selection().position, 0);
    EXPECT_FALSE(editor.find(word, Editor::FindBackward));
    EXPECT_TRUE(editor.find(word, Editor::FindBackward | Editor::FindWrapped));
    EXPECT_EQ(editor.cursorLine(), 3);
    EXPECT_FALSE(editor.find(word, Editor::FindCaseSensitively | Editor::FindWrapped));
    EXPECT_EQ(editor.cursorLine(), 3);
    EXPECT_FALSE(editor.find(QStringLiteral("elec"), Editor::FindWholeWords | Editor::FindWrapped));
    EXPECT_FALSE(editor.find(QString()));
}

TEST_F(EditorFace, FindsExpressionsAndWhatIsEmpty)
{
    const auto expression = Editor::FindRegularExpression;
    EXPECT_EQ(editor.findAll(QStringLiteral("\\b(a|b)\\w+a\\b"), expression).size(), 2);
    EXPECT_EQ(editor.findAll(QStringLiteral("^"), expression).size(), editor.lineCount());
    EXPECT_FALSE(editor.find(QStringLiteral("("), expression));
    EXPECT_TRUE(editor.find(QStringLiteral("$"), expression));
    EXPECT_TRUE(editor.find(QStringLiteral("$"), expression));
    EXPECT_EQ(editor.cursorLine(), 1);
}

TEST_F(EditorFace, ReplacesAllInOneStep)
{
    QSignalSpy changed(&editor, &Editor::textChanged);
    EXPECT_EQ(editor.replaceAll(QStringLiteral("select (\\w+);"), QStringLiteral("drop \\1;"),
                                Editor::FindRegularExpression),
              3);
    EXPECT_EQ(editor.text(), QStringLiteral("drop alpha;\ndrop beta;\nGO\ndrop gamma;\n"));
    EXPECT_EQ(changed.count(), 1);
    editor.undo();
    EXPECT_EQ(editor.text(), QString::fromLatin1(kScript));
    EXPECT_EQ(editor.replaceAll(QStringLiteral("a"), QStringLiteral("aa")), 5);
    editor.undo();
    EXPECT_EQ(editor.replaceAll(QStringLiteral("^"), QStringLiteral("-- "),
                                Editor::FindRegularExpression),
              editor.lineCount());
    EXPECT_EQ(editor.lineText(1), QStringLiteral("-- select beta;"));
    editor.setReadOnly(true);
    EXPECT_EQ(editor.replaceAll(QStringLiteral("a"), QStringLiteral("b")), 0);
}

TEST_F(EditorFace, LeavesTheSearchOfTheControlAsItWas)
{
    control.SetSearchFlags(4, 1);
    control.SetTarget(3, 9);
    editor.findAll(QStringLiteral("a"), Editor::FindWholeWords);
    EXPECT_EQ(control.GetSearchFlags(1), 4);
    EXPECT_EQ(control.GetTargetStart(1), 3);
    EXPECT_EQ(control.GetTargetEnd(1), 9);
}

TEST_F(EditorFace, ShowsProblemsAndFollowsTheirText)
{
    QSignalSpy changed(&editor, &Editor::problemsChanged);
    editor.setProblems({{7, 5, QStringLiteral("no such column"), Editor::Severity::Error, 42},
                        {21, 4, QStringLiteral("slow"), Editor::Severity::Warning, 0}});
    EXPECT_EQ(changed.count(), 1);
    editor.setCursorPosition(0);
    editor.insertPlainText(QStringLiteral("xx "));
    const QList<Editor::Problem> problems = editor.problems();
    ASSERT_EQ(problems.size(), 2);
    EXPECT_EQ(problems[0].position, 10);
    EXPECT_EQ(problems[0].message, QStringLiteral("no such column"));
    EXPECT_EQ(problems[0].code, 42);
    EXPECT_EQ(problems[1].severity, Editor::Severity::Warning);
    EXPECT_TRUE(editor.goToNextProblem());
    EXPECT_EQ(editor.selectedText(), QStringLiteral("alpha"));
    EXPECT_TRUE(editor.goToPreviousProblem());
    EXPECT_EQ(editor.selectedText(), QStringLiteral("beta"));
    editor.setProblems({});
    EXPECT_FALSE(editor.goToNextProblem());
}

TEST_F(EditorFace, KnowsStatementsAndBatches)
{
    editor.setLanguageName(QStringLiteral("Transact-SQL"));
    editor.setCursorPosition(1, 3);
    EXPECT_EQ(editor.textOf(editor.statementAtCursor()), QStringLiteral("select beta;"));
    const QList<Editor::Range> batches = editor.batches();
    ASSERT_EQ(batches.size(), 2);
    EXPECT_EQ(editor.textOf(batches[1]).trimmed(), QStringLiteral("select gamma;"));
    EXPECT_EQ(editor.batchAtCursor(), batches[0]);
    editor.setLanguageName(QStringLiteral("Text"));
    EXPECT_EQ(editor.batches().size(), 1);
}

TEST_F(EditorFace, WalksItsBookmarks)
{
    QSignalSpy changed(&editor, &Editor::bookmarksChanged);
    EXPECT_FALSE(editor.goToNextBookmark());
    editor.setBookmark(1, true);
    editor.setBookmark(3, true);
    editor.setBookmark(3, true);
    editor.setBookmark(99, true);
    EXPECT_EQ(changed.count(), 2);
    EXPECT_EQ(editor.bookmarks(), (QList<int>{1, 3}));
    EXPECT_TRUE(editor.goToNextBookmark());
    EXPECT_EQ(editor.cursorLine(), 1);
    EXPECT_TRUE(editor.goToPreviousBookmark());
    EXPECT_EQ(editor.cursorLine(), 3);
    editor.clearBookmarks();
    EXPECT_TRUE(editor.bookmarks().isEmpty());
    EXPECT_FALSE(control.HasBookmarks());
}

TEST_F(EditorFace, OffersItsCommandsAsActions)
{
    QAction* copy = editor.command(QStringLiteral("copy"));
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(copy->shortcut(), QKeySequence(QKeySequence::Copy));
    EXPECT_FALSE(copy->isEnabled());
    QAction* duplicate = editor.command(QStringLiteral("duplicate"));
    ASSERT_NE(duplicate, nullptr);
    duplicate->trigger();
    EXPECT_EQ(editor.lineText(1), QStringLiteral("select alpha;"));
    editor.command(QStringLiteral("undo"))->trigger();
    EXPECT_EQ(editor.text(), QString::fromLatin1(kScript));
    EXPECT_EQ(editor.command(QStringLiteral("nonsense")), nullptr);
}

// The view's own number of Delete and the rule without a command need none; Match Token has two.
TEST_F(EditorFace, HasAnActionForEachCommandOfTheControl)
{
    const UINT kCommands[] = {
#define ZN_COMMAND(number, ...) number,
#define ZN_PLAIN(number, ...) number,
#define ZN_OWN(number, ...) number,
#define ZN_OWN_PLAIN(number, ...) number,
#define ZN_AGAIN(...)
#define ZN_AGAIN_PLAIN(...)
#define ZN_RULE(...)
#include "editing/ControlCommands.def"
    };
    constexpr UINT kGoTo = 54049; // by a dialog that knows the face
    std::set<UINT> numbers{kGoTo};
    for (const QAction* action : editor.commands())
        numbers.insert(CommandOf(*action));
    for (const UINT number : kCommands)
        EXPECT_TRUE(numbers.contains(number)) << number;
    EXPECT_NE(editor.command(QStringLiteral("goToLine")), nullptr);
}

TEST_F(EditorFace, EnablesItsActionsAsTheyArePossible)
{
    editor.show();
    QAction* cut = editor.command(QStringLiteral("cut"));
    editor.setSelection({0, 6});
    QSignalSpy update(&editor, &Editor::updateUi);
    ASSERT_TRUE(update.count() > 0 || update.wait());
    EXPECT_TRUE(cut->isEnabled());
    const std::unique_ptr<QMenu> menu(editor.createStandardContextMenu());
    EXPECT_TRUE(menu->actions().contains(cut));
}

// The picture of the page is poppler's.
TEST_F(EditorFace, PrintsColoursForPaperFromADarkScreen)
{
    const QTemporaryDir folder;
    editor.setScheme(QStringLiteral("Dark"));
    editor.setLanguageName(QStringLiteral("SQL"));
    editor.setText(QStringLiteral("select from where group having order\n").repeated(30));
    CZNOptionsServer& options = *CZNOptionsServer::GetObjectW();
    options.SetInt(option::PrintColours, 1);
    const QImage screen = editor.grab().toImage();
    {
        QPdfWriter writer(folder.filePath("page.pdf"));
        EXPECT_TRUE(editor.print(&writer));
    }
    options.SetInt(option::PrintColours, 0);
    EXPECT_EQ(editor.grab().toImage(), screen);
    ASSERT_EQ(QProcess::execute("pdftoppm", {"-r", "200", "-png", "-singlefile",
                                             folder.filePath("page.pdf"), folder.filePath("page")}),
              0);
    const QImage page(folder.filePath("page.png"));
    int darkest = 255;
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x)
            darkest = std::min(darkest, qGray(page.pixel(x, y)));
    }
    constexpr int kReadable = 110; // the dark scheme's words have some 170
    EXPECT_LE(darkest, kReadable);
}

TEST_F(EditorFace, IsPaintedOnceInAnotherScheme)
{
    class Paints final : public QObject
    {
    public:
        bool eventFilter(QObject*, QEvent* event) override
        {
            count += event->type() == QEvent::Paint;
            return false;
        }
        int count = 0;
    } paints;
    editor.setScheme(QStringLiteral("Light"));
    editor.resize(400, 300);
    editor.show();
    QApplication::processEvents();
    auto* area = editor.findChild<QAbstractScrollArea*>();
    area->viewport()->installEventFilter(&paints);
    editor.setScheme(QStringLiteral("Dark"));
    QApplication::processEvents();
    EXPECT_EQ(paints.count, 1);
}

TEST_F(EditorFace, PrintsOnTheDevicesPages)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("script.pdf"));
    editor.setText(QStringLiteral("select 1;\n").repeated(200));
    {
        QPdfWriter writer(path);
        EXPECT_TRUE(editor.print(&writer));
    }
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray pdf = file.readAll();
    EXPECT_GT(pdf.count("/Type /Page\n"), 1);
    EXPECT_FALSE(editor.print(nullptr));
}

TEST_F(EditorFace, ReadsAndWritesEachPropertyByItsName)
{
    const QMetaObject& meta = Editor::staticMetaObject;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        const QVariant value = property.read(&editor);
        EXPECT_TRUE(value.isValid()) << property.name();
        if (property.isWritable()) {
            EXPECT_TRUE(property.write(&editor, value)) << property.name();
        }
    }
    EXPECT_TRUE(editor.setProperty("languageName", QStringLiteral("MySQL")));
    EXPECT_EQ(editor.languageName(), QStringLiteral("MySQL"));
}

TEST_F(EditorFace, KeepsItsFontAndTabsWhenTheLanguageChanges)
{
    QSignalSpy changed(&editor, &Editor::editorFontChanged);
    editor.setEditorFont(QFont(QStringLiteral("DejaVu Sans Mono"), 17));
    editor.setTabWidth(5);
    const int height = control.TextHeight(0, 1);
    editor.setLanguage(3);
    EXPECT_EQ(control.TextHeight(0, 1), height);
    EXPECT_EQ(editor.tabWidth(), 5);
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(editor.editorFont().pointSize(), 17);
}

} // namespace
