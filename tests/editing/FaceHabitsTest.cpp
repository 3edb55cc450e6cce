// SPDX-License-Identifier: GPL-3.0-or-later
// What people who know Qt's own editors take for granted of the face.
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"

#include <QAbstractScrollArea>
#include <QAction>
#include <QApplication>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace {

using Editor = ZNCoreEditorWidget;

class FaceHabits : public testing::Test
{
protected:
    void Show()
    {
        editor.resize(400, 300);
        editor.show();
        QApplication::processEvents();
    }
    QScrollBar& Bar() { return *editor.findChild<QAbstractScrollArea*>()->horizontalScrollBar(); }

    Editor editor;
};

TEST_F(FaceHabits, KeepPeopleAndNotTheHostFromAReadOnlyText)
{
    QSignalSpy readOnly(&editor, &Editor::readOnlyChanged);
    editor.setReadOnly(true);
    editor.setText(QStringLiteral("a"));
    editor.appendPlainText(QStringLiteral("b"));
    editor.setCursorPosition(0);
    editor.insertPlainText(QStringLiteral("c"));
    EXPECT_EQ(editor.text(), QStringLiteral("ca\nb"));
    QTest::keyClicks(editor.focusProxy(), QStringLiteral("x"));
    EXPECT_EQ(editor.text(), QStringLiteral("ca\nb"));
    editor.clear();
    EXPECT_EQ(editor.text(), QString());
    EXPECT_TRUE(editor.isReadOnly());
    EXPECT_EQ(readOnly.count(), 1);
}

TEST_F(FaceHabits, StartAnewWithAPlainText)
{
    editor.setText(QStringLiteral("before"));
    QSignalSpy changed(&editor, &Editor::textChanged);
    QSignalSpy modified(&editor, &Editor::modificationChanged);
    editor.setPlainText(QStringLiteral("select 1;\n"));
    EXPECT_EQ(editor.text(), QStringLiteral("select 1;\n"));
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(modified.count(), 1);
    EXPECT_FALSE(editor.isModified());
    EXPECT_FALSE(editor.isUndoAvailable());
    editor.insertPlainText(QStringLiteral("x"));
    editor.undo();
    EXPECT_EQ(editor.text(), QStringLiteral("select 1;\n"));
}

TEST_F(FaceHabits, BeginUnmodifiedInAForm)
{
    EXPECT_TRUE(editor.setProperty("text", QStringLiteral("select 1;")));
    EXPECT_EQ(editor.text(), QStringLiteral("select 1;"));
    EXPECT_FALSE(editor.isModified());
    EXPECT_FALSE(editor.isUndoAvailable());
}

// A form sets the texts of its properties, a language's name among them, behind all others.
TEST_F(FaceHabits, KeepWrapAndNumbersThatWereSetWhateverTheLanguage)
{
    for (const bool on : {true, false}) {
        const auto mode = on ? Editor::LineWrapMode::WidgetWidth : Editor::LineWrapMode::NoWrap;
        editor.setLineWrapMode(mode);
        editor.setLineNumbersVisible(on);
        editor.setDocumentMapVisible(on);
        EXPECT_TRUE(
            editor.setLanguageName(on ? QStringLiteral("Transact-SQL") : QStringLiteral("PL/SQL")));
        EXPECT_EQ(editor.lineWrapMode(), mode);
        EXPECT_EQ(editor.areLineNumbersVisible(), on);
        EXPECT_EQ(editor.isDocumentMapVisible(), on);
    }
    editor.command(QStringLiteral("documentMap"))->trigger();
    EXPECT_TRUE(editor.isDocumentMapVisible());
    editor.command(QStringLiteral("lineNumbers"))->trigger();
    editor.setLanguageName(QStringLiteral("SQL"));
    EXPECT_TRUE(editor.areLineNumbersVisible());
}

TEST_F(FaceHabits, ScrollSidewaysOnlyWhereALineIsTooLong)
{
    editor.setText(QStringLiteral("select 1;\n"));
    Show();
    EXPECT_FALSE(Bar().isVisible());
    editor.setText(QStringLiteral("select ") + QString(200, u'1'));
    ASSERT_TRUE(QTest::qWaitFor([&] { return Bar().isVisible(); }));
    EXPECT_GT(Bar().maximum(), 0);
    editor.setText(QStringLiteral("select 2;\n"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !Bar().isVisible(); }));
    QTest::keyClicks(editor.focusProxy(), QString(200, u'x'));
    EXPECT_TRUE(QTest::qWaitFor([&] { return Bar().isVisible(); }));
}

// Each other range paints a line again that takes long to paint.
TEST_F(FaceHabits, LeaveRoomBehindAVeryLongLine)
{
    editor.setText(QString(25'000, u'm'));
    Show();
    ASSERT_TRUE(QTest::qWaitFor([&] { return Bar().isVisible(); }));
    const int range = Bar().maximum();
    const long needed = 25'000 * editor.control().TextWidth(0, u"m", 1);
    EXPECT_GT(range + Bar().pageStep(), needed);
    for (int i = 0; i < 100; ++i) {
        editor.insertPlainText(QStringLiteral("m"));
        QApplication::processEvents();
    }
    EXPECT_EQ(Bar().maximum(), range);
    editor.insertPlainText(QString(10'000, u'm'));
    EXPECT_TRUE(QTest::qWaitFor([&] { return Bar().maximum() > range; }));
}

TEST_F(FaceHabits, ScrollSidewaysInAFileThatWasOpened)
{
    Show();
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("wide.sql")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("select 1;\n" + QByteArray(300, 'x'));
    file.close();
    EXPECT_TRUE(editor.openFile(file.fileName()));
    EXPECT_TRUE(QTest::qWaitFor([&] { return Bar().isVisible(); }));
}

} // namespace
