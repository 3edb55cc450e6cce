// SPDX-License-Identifier: GPL-3.0-or-later
// Several carets, columns and macros in the face of the editor for plain Qt hosts.
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "editing/operations/Macro.h"

#include <QAction>
#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace {

using Editor = ZNCoreEditorWidget;
using Ranges = QList<Editor::Range>;

class FaceCarets : public testing::Test
{
protected:
    FaceCarets() { editor.setText(QStringLiteral("alpha\nbeta\ngamma\n")); }

    void Type(const char* text) { QTest::keyClicks(editor.focusProxy(), QLatin1String(text)); }

    Editor editor;
};

TEST_F(FaceCarets, TypeAtEachPlace)
{
    editor.addCursor(1, 0);
    editor.addCursor(2, 0);
    editor.addCursor(2, 0); // there is one
    EXPECT_EQ(editor.cursorCount(), 3);
    EXPECT_EQ(editor.cursorLine(), 2);
    Type("- ");
    EXPECT_EQ(editor.text(), QStringLiteral("- alpha\n- beta\n- gamma\n"));
    editor.dropOtherCursors();
    EXPECT_EQ(editor.selections(), (Ranges{{17, 0}}));
}

TEST_F(FaceCarets, AreToldInTheOrderOfTheText)
{
    editor.setSelections({{11, 5}, {0, 5}});
    EXPECT_EQ(editor.selections(), (Ranges{{0, 5}, {11, 5}}));
    EXPECT_EQ(editor.cursorPosition(), 5);
    EXPECT_EQ(editor.selection(), (Editor::Range{0, 5}));
    editor.setSelections({});
    EXPECT_EQ(editor.cursorCount(), 2);
    editor.setSelections({{-4, 99}});
    EXPECT_EQ(editor.selections(), (Ranges{{0, 17}}));
}

TEST_F(FaceCarets, AreToldWhenTheyComeAndGo)
{
    editor.show();
    QApplication::processEvents();
    QSignalSpy changed(&editor, &Editor::selectionChanged);
    editor.addCursor(1, 2);
    ASSERT_TRUE(changed.wait());
    EXPECT_EQ(changed.count(), 1);
    editor.dropOtherCursors();
    ASSERT_TRUE(changed.wait());
    EXPECT_EQ(changed.count(), 2);
}

TEST_F(FaceCarets, SelectColumns)
{
    editor.setColumnSelection(0, 2, 2, 4);
    EXPECT_TRUE(editor.hasColumnSelection());
    EXPECT_EQ(editor.cursorCount(), 3);
    Type("_");
    EXPECT_EQ(editor.text(), QStringLiteral("al_a\nbe_\nga_a\n"));
    editor.setCursorPosition(0);
    EXPECT_FALSE(editor.hasColumnSelection());
}

TEST_F(FaceCarets, ReachBehindLinesInColumns)
{
    editor.setText(QStringLiteral("a\n\nb"));
    editor.setColumnSelection(0, 4, 2, 4);
    Type("|");
    EXPECT_EQ(editor.text(), QStringLiteral("a   |\n    |\nb   |"));
}

TEST_F(FaceCarets, OpenFoldsAroundTheMainOne)
{
    editor.setLanguageName(QStringLiteral("SQL"));
    editor.setText(QStringLiteral("/* a\n b\n c */\nselect 1;\n"));
    editor.command(QStringLiteral("foldEverything"))->trigger();
    ASSERT_EQ(editor.control().GetLineVisible(1, 1), 0);
    editor.addCursor(1, 1);
    EXPECT_EQ(editor.control().GetLineVisible(1, 1), 1);
}

class FaceMacros : public FaceCarets
{
protected:
    FaceMacros() { FreeMacro(); }
    ~FaceMacros() override { FreeMacro(); }
};

TEST_F(FaceMacros, RepeatWhatWasTypedInAnotherEditor)
{
    QSignalSpy changed(&editor, &Editor::recordingChanged);
    EXPECT_FALSE(editor.hasMacro());
    editor.startRecording();
    EXPECT_TRUE(editor.isRecording());
    Type("--");
    QTest::keyClick(editor.focusProxy(), Qt::Key_Down);
    QTest::keyClick(editor.focusProxy(), Qt::Key_Home);
    EXPECT_FALSE(editor.hasMacro());
    editor.stopRecording();
    EXPECT_EQ(changed.count(), 2);
    Editor other;
    other.setText(QStringLiteral("a\nb\nc"));
    QSignalSpy textChanged(&other, &Editor::textChanged);
    other.playMacro(2);
    EXPECT_EQ(other.text(), QStringLiteral("--a\n--b\nc"));
    EXPECT_EQ(textChanged.count(), 1);
    other.undo();
    EXPECT_EQ(other.text(), QStringLiteral("a\nb\nc"));
}

TEST_F(FaceMacros, AreRecordedInOneEditorAtATime)
{
    Editor other;
    editor.startRecording();
    QSignalSpy changed(&other, &Editor::recordingChanged);
    other.startRecording();
    other.stopRecording();
    EXPECT_FALSE(other.isRecording());
    EXPECT_EQ(changed.count(), 0);
    EXPECT_TRUE(editor.isRecording());
    editor.stopRecording();
    EXPECT_FALSE(editor.hasMacro()); // nothing was typed
}

TEST_F(FaceMacros, EndWithTheirEditor)
{
    auto gone = std::make_unique<Editor>();
    gone->startRecording();
    QTest::keyClicks(gone->focusProxy(), QStringLiteral("x"));
    gone.reset();
    EXPECT_TRUE(editor.hasMacro());
    editor.playMacro();
    EXPECT_EQ(editor.lineText(0), QStringLiteral("xalpha"));
}

TEST_F(FaceMacros, StayWholeWhileASlotTakesThemForAnother)
{
    editor.startRecording();
    Type("ab");
    editor.stopRecording();
    Editor other;
    QObject::connect(&other, &Editor::notified, &other, [this, &other] {
        other.playMacro(); // there is none while it is played
        editor.startRecording();
    });
    other.playMacro();
    EXPECT_EQ(other.text(), QStringLiteral("ab"));
    EXPECT_TRUE(editor.isRecording());
    editor.stopRecording();
    EXPECT_FALSE(editor.hasMacro());
}

TEST_F(FaceMacros, HaveActions)
{
    QAction* record = editor.command(QStringLiteral("recordMacro"));
    QAction* play = editor.command(QStringLiteral("playMacro"));
    ASSERT_TRUE(record && play);
    EXPECT_FALSE(play->isEnabled());
    record->trigger();
    EXPECT_TRUE(editor.isRecording());
    EXPECT_TRUE(record->isChecked());
    Type("x");
    record->trigger();
    EXPECT_FALSE(record->isChecked());
    ASSERT_TRUE(play->isEnabled());
    play->trigger();
    EXPECT_EQ(editor.lineText(0), QStringLiteral("xxalpha"));
}

} // namespace
