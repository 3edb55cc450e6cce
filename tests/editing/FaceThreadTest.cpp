// SPDX-License-Identifier: GPL-3.0-or-later
// What the face does where it is used outside of the GUI thread.
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "tests/SourceTree.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QMenu>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>
#include <thread>

namespace {

using Editor = ZNCoreEditorWidget;
using Use = std::function<void(Editor& editor)>;

// What was said on stderr.
QStringList g_said;

void InAnotherThread(const Use& use, Editor& editor)
{
    g_said.clear();
    const QtMessageHandler before = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString& text) { g_said += text; });
    std::thread([&] { use(editor); }).join();
    qInstallMessageHandler(before);
}

const QString kFile = QStringLiteral("/nowhere/a.sql");

struct Deed
{
    const char* name;
    Use act;
};

// Each operation that may change something, and those that make actions.
const Deed kDeeds[] = {
    {"setText", [](Editor& e) { e.setText(QStringLiteral("b")); }},
    {"setPlainText", [](Editor& e) { e.setPlainText(QStringLiteral("b")); }},
    {"setModified", [](Editor& e) { e.setModified(false); }},
    {"setReadOnly", [](Editor& e) { e.setReadOnly(true); }},
    {"setOverwriteMode", [](Editor& e) { e.setOverwriteMode(true); }},
    {"setCursorPosition", [](Editor& e) { e.setCursorPosition(1); }},
    {"setCursorPosition", [](Editor& e) { e.setCursorPosition(9, 2); }},
    {"setSelection",
     [](Editor& e) {
         e.setSelection({1, 2});
     }},
    {"setSelection", [](Editor& e) { e.setSelection(1, 2, 3, 4); }},
    {"ensureCursorVisible", [](Editor& e) { e.ensureCursorVisible(); }},
    {"centerCursor", [](Editor& e) { e.centerCursor(); }},
    {"setSelections",
     [](Editor& e) {
         e.setSelections({{0, 1}, {4, 1}});
     }},
    {"addCursor", [](Editor& e) { e.addCursor(3); }},
    {"addCursor", [](Editor& e) { e.addCursor(5, 1); }},
    {"dropOtherCursors", [](Editor& e) { e.dropOtherCursors(); }},
    {"setColumnSelection", [](Editor& e) { e.setColumnSelection(0, 1, 2, 3); }},
    {"open", [](Editor& e) { EXPECT_EQ(e.open(kFile).problem, FileProblem::WrongThread); }},
    {"save", [](Editor& e) { EXPECT_EQ(e.save(kFile).problem, FileProblem::WrongThread); }},
    {"openFile", [](Editor& e) { EXPECT_FALSE(e.openFile(kFile)); }},
    {"saveFile", [](Editor& e) { EXPECT_FALSE(e.saveFile(kFile)); }},
    {"setEncoding", [](Editor& e) { EXPECT_FALSE(e.setEncoding(Editor::Utf16BE)); }},
    {"setByteOrderMark", [](Editor& e) { e.setByteOrderMark(!e.hasByteOrderMark()); }},
    {"setLineEnd", [](Editor& e) { EXPECT_FALSE(e.setLineEnd(Editor::Cr)); }},
    {"setLanguage", [](Editor& e) { EXPECT_FALSE(e.setLanguage(4)); }},
    {"setLanguageName", [](Editor& e) { e.setLanguageName(Editor::languages().at(4)); }},
    {"setLanguageForFile", [](Editor& e) { e.setLanguageForFile(QStringLiteral("a.xml")); }},
    {"setScheme", [](Editor& e) { EXPECT_FALSE(e.setScheme(QStringLiteral("Dark"))); }},
    {"setCompletesWhileTyping", [](Editor& e) { e.setCompletesWhileTyping(true); }},
    {"setEditorFont", [](Editor& e) { e.setEditorFont(QFont(QStringLiteral("x"), 33)); }},
    {"setTabWidth", [](Editor& e) { EXPECT_FALSE(e.setTabWidth(7)); }},
    {"setZoom", [](Editor& e) { e.setZoom(5); }},
    {"setLineWrapMode", [](Editor& e) { e.setLineWrapMode(Editor::WidgetWidth); }},
    {"setLineNumbersVisible",
     [](Editor& e) { e.setLineNumbersVisible(!e.areLineNumbersVisible()); }},
    {"setDocumentMapVisible", [](Editor& e) { e.setDocumentMapVisible(true); }},
    {"find", [](Editor& e) { EXPECT_FALSE(e.find(QStringLiteral("50"))); }},
    {"replaceAll",
     [](Editor& e) { EXPECT_EQ(e.replaceAll(QStringLiteral("5"), QStringLiteral("6")), 0); }},
    {"markMatches", [](Editor& e) { e.markMatches(QStringLiteral("5")); }},
    {"setProblems",
     [](Editor& e) {
         e.setProblems({{1, 2, QStringLiteral("no")}});
     }},
    {"goToNextProblem", [](Editor& e) { EXPECT_FALSE(e.goToNextProblem()); }},
    {"goToPreviousProblem", [](Editor& e) { EXPECT_FALSE(e.goToPreviousProblem()); }},
    {"insertTemplate",
     [](Editor& e) {
         const auto ask = [](const QString& question) {
             ADD_FAILURE() << question.toStdString();
             return std::optional<QString>();
         };
         EXPECT_FALSE(e.insertTemplate(QStringLiteral("^#name#^"), ask));
     }},
    {"setBookmark", [](Editor& e) { e.setBookmark(7, true); }},
    {"goToNextBookmark", [](Editor& e) { EXPECT_FALSE(e.goToNextBookmark()); }},
    {"goToPreviousBookmark", [](Editor& e) { EXPECT_FALSE(e.goToPreviousBookmark()); }},
    {"clearBookmarks", [](Editor& e) { e.clearBookmarks(); }},
    {"createStandardContextMenu",
     [](Editor& e) { EXPECT_EQ(e.createStandardContextMenu(), nullptr); }},
    {"commands", [](Editor& e) { EXPECT_TRUE(e.commands().isEmpty()); }},
    {"command", [](Editor& e) { EXPECT_EQ(e.command(QStringLiteral("undo")), nullptr); }},
    {"print",
     [](Editor& e) {
         const QTemporaryDir folder;
         QPdfWriter pdf(folder.filePath(QStringLiteral("a.pdf")));
         EXPECT_FALSE(e.print(&pdf));
     }},
    {"undo", [](Editor& e) { e.undo(); }},
    {"redo", [](Editor& e) { e.redo(); }},
    {"cut", [](Editor& e) { e.cut(); }},
    {"copy", [](Editor& e) { e.copy(); }},
    {"paste", [](Editor& e) { e.paste(); }},
    {"clear", [](Editor& e) { e.clear(); }},
    {"selectAll", [](Editor& e) { e.selectAll(); }},
    {"insertPlainText", [](Editor& e) { e.insertPlainText(QStringLiteral("b")); }},
    {"appendPlainText", [](Editor& e) { e.appendPlainText(QStringLiteral("b")); }},
    {"startRecording", [](Editor& e) { e.startRecording(); }},
    {"stopRecording", [](Editor& e) { e.stopRecording(); }},
    {"playMacro", [](Editor& e) { e.playMacro(); }},
    {"zoomIn", [](Editor& e) { e.zoomIn(); }},
    {"zoomOut", [](Editor& e) { e.zoomOut(); }},
};

// All that can be asked of an editor and of what it shares.
QStringList StateOf(Editor& editor)
{
    QStringList state = {editor.text(),
                         editor.fileName(),
                         editor.scheme(),
                         editor.languageName(),
                         editor.editorFont().toString(),
                         QApplication::clipboard()->text()};
    const auto add = [&](auto... numbers) { (..., (state += QString::number(int(numbers)))); };
    for (const Editor::Range& range : editor.selections())
        add(range.position, range.length);
    for (const int line : editor.bookmarks())
        add(line);
    for (const Editor::Problem& problem : editor.problems())
        add(problem.position, problem.length);
    CZNCoreEditorControlEx& control = editor.control();
    add(editor.cursorPosition(), editor.hasColumnSelection(), editor.isModified(),
        editor.isReadOnly(), editor.overwriteMode(), editor.encoding(), editor.hasByteOrderMark(),
        editor.lineEnd(), editor.completesWhileTyping(), editor.tabWidth(), editor.zoom(),
        editor.lineWrapMode(), editor.areLineNumbersVisible(), editor.isDocumentMapVisible(),
        editor.isRecording(), editor.hasMacro(), editor.isUndoAvailable(), editor.isRedoAvailable(),
        control.GetFirstVisibleLine(1), editor.findChildren<QAction*>().size(),
        editor.findChildren<QMenu*>().size());
    return state;
}

// The operations of the header that are not const, and so may change something.
std::set<std::string> Operations()
{
    QFile file(QString::fromStdString(InSourceTree("src/editing/ZNCoreEditorWidget.h")));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QString text = QString::fromUtf8(file.readAll());
    text = text.mid(text.indexOf(QLatin1String("explicit ZNCoreEditorWidget(")));
    text = text.left(text.indexOf(QLatin1String("Q_SIGNALS:")));
    text.remove(QRegularExpression(QStringLiteral("//[^\n]*|public Q_SLOTS:")));
    std::set<std::string> names;
    for (const QString& each : text.split(u';')) {
        const QString declaration = each.simplified();
        const auto name =
            QRegularExpression(QStringLiteral("([~\\w]+)\\(")).match(declaration).captured(1);
        if (!name.isEmpty() && !declaration.startsWith(QLatin1String("static ")) &&
            !declaration.startsWith(QLatin1String("using ")) &&
            !declaration.endsWith(QLatin1String(" const")))
            names.insert(name.toStdString());
    }
    return names;
}

class FaceThread : public testing::Test
{
protected:
    FaceThread()
    {
        QStringList lines;
        for (int i = 0; i < 100; ++i)
            lines += QStringLiteral("select %1;").arg(i);
        editor.setText(lines.join(u'\n'));
        editor.setBookmark(3, true);
        editor.setBookmark(30, true);
        editor.setProblems({{40, 2, QStringLiteral("slow")}, {80, 2, QStringLiteral("slow")}});
        editor.setCursorPosition(60);
        editor.insertPlainText(QStringLiteral("x"));
        editor.setSelections({{10, 2}, {70, 3}});
        QApplication::clipboard()->setText(QStringLiteral("clipboard"));
    }

    Editor editor;
};

TEST_F(FaceThread, OfAnotherKindIsToldOnceAndChangesNothing)
{
    const QStringList before = StateOf(editor);
    for (const Deed& deed : kDeeds) {
        InAnotherThread(deed.act, editor);
        ASSERT_EQ(g_said.size(), 1) << deed.name << ": " << g_said.join(u'\n').toStdString();
        EXPECT_TRUE(g_said.first().contains(QStringLiteral("GUI thread"))) << deed.name;
        ASSERT_EQ(StateOf(editor), before) << deed.name;
    }
}

TEST_F(FaceThread, IsAskedAboutByAllThatMayChangeSomething)
{
    std::set<std::string> expected = Operations();
    ASSERT_GT(expected.size(), 50U);
    // The first needs no editor yet, and what the others give checks nothing.
    for (const char* other : {"ZNCoreEditorWidget", "~ZNCoreEditorWidget", "control", "completer"})
        expected.erase(other);
    expected.insert({"commands", "command"}); // which make actions
    std::set<std::string> tried;
    for (const Deed& deed : kDeeds)
        tried.insert(deed.name);
    EXPECT_EQ(tried, expected);
}

TEST_F(FaceThread, OfAnotherKindHasNoText)
{
    InAnotherThread([](Editor& e) { EXPECT_EQ(e.text(), QString()); }, editor);
    EXPECT_EQ(g_said.size(), 1);
}

TEST_F(FaceThread, OfAnotherKindMakesAnEditorThatIsEmpty)
{
    InAnotherThread(
        [](Editor&) {
            Editor other;
            other.setText(QStringLiteral("b"));
            EXPECT_EQ(other.length(), 0);
        },
        editor);
    EXPECT_TRUE(g_said.join(u' ').contains(QStringLiteral("GUI thread")));
}

} // namespace
