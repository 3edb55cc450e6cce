// SPDX-License-Identifier: GPL-3.0-or-later
// Templates in the face of the editor for plain Qt hosts.
#include "editing/ZNCoreEditorWidget.h"

#include <QAction>
#include <QApplication>
#include <QInputDialog>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

using Editor = ZNCoreEditorWidget;

class FaceTemplates : public testing::Test
{
protected:
    Editor editor;
    QStringList asked;
    Editor::Ask answer = [this](const QString& question) -> std::optional<QString> {
        asked += question;
        return question.toLower();
    };
};

TEST_F(FaceTemplates, PutAnswersInAndTheCaretAtItsMark)
{
    ASSERT_TRUE(editor.insertTemplate(
        QStringLiteral("SELECT ^!\nFROM ^#Table#^ AS ^#Name#^, ^#Table#^"), answer));
    EXPECT_EQ(editor.text(), QStringLiteral("SELECT \nFROM table AS name, table"));
    EXPECT_EQ(asked, (QStringList{QStringLiteral("Table"), QStringLiteral("Name")}));
    EXPECT_EQ(editor.cursorPosition(), 7);
    EXPECT_FALSE(editor.hasSelectedText());
    editor.undo();
    EXPECT_EQ(editor.text(), QString());
}

TEST_F(FaceTemplates, SurroundWhatIsSelected)
{
    editor.setText(QStringLiteral("  select 1;"));
    editor.setSelection({2, 9});
    ASSERT_TRUE(editor.insertTemplate(QStringLiteral("BEGIN\n    ^!\nEND")));
    EXPECT_EQ(editor.text(), QStringLiteral("  BEGIN\n      select 1;\n  END"));
    EXPECT_EQ(editor.cursorPosition(), 23);
    editor.undo();
    EXPECT_EQ(editor.text(), QStringLiteral("  select 1;"));
}

TEST_F(FaceTemplates, HaveTheLineEndsOfTheText)
{
    editor.setLineEnd(Editor::LineEnd::CrLf);
    ASSERT_TRUE(editor.insertTemplate(QStringLiteral("a\n^!b")));
    EXPECT_EQ(editor.text(), QStringLiteral("a\r\nb"));
    EXPECT_EQ(editor.cursorPosition(), 3);
}

TEST_F(FaceTemplates, ChangeNothingWithoutAnAnswer)
{
    editor.setText(QStringLiteral("x"));
    const auto refuse = [](const QString&) { return std::optional<QString>(); };
    EXPECT_FALSE(editor.insertTemplate(QStringLiteral("a ^#Name#^"), refuse));
    EXPECT_FALSE(editor.insertTemplate(QStringLiteral("a ^#Name"), answer));
    editor.setReadOnly(true);
    EXPECT_FALSE(editor.insertTemplate(QStringLiteral("a"), answer));
    EXPECT_EQ(editor.text(), QStringLiteral("x"));
    EXPECT_TRUE(asked.isEmpty());
}

// An answer may look like a question or the caret's mark, and is none.
TEST_F(FaceTemplates, TakeAnswersAsTheyAre)
{
    const auto odd = [](const QString&) { return std::optional(QStringLiteral("^#again#^^!")); };
    ASSERT_TRUE(editor.insertTemplate(QStringLiteral("a ^#Name#^ ^! b"), odd));
    EXPECT_EQ(editor.text(), QStringLiteral("a ^#again#^^!  b"));
    EXPECT_EQ(editor.cursorPosition(), 14);
}

TEST_F(FaceTemplates, KeepAllOfWhatIsSelected)
{
    const QString odd = QStringLiteral("one") + QChar(0) + QStringLiteral("two");
    editor.setText(odd);
    editor.selectAll();
    ASSERT_TRUE(editor.insertTemplate(QStringLiteral("(^!)")));
    EXPECT_EQ(editor.text(), u'(' + odd + u')');
}

TEST_F(FaceTemplates, ComeAsPlainTextDoesWithEachOfItsCharacters)
{
    const QString odd = QStringLiteral("a\n") + QChar(0) + QStringLiteral("\nb") + QChar(0);
    editor.setLineEnd(Editor::LineEnd::CrLf);
    editor.setText(QStringLiteral("[x]"));
    editor.setSelection({1, 1});
    editor.insertPlainText(odd);
    EXPECT_EQ(editor.text(), u'[' + QString(odd).replace(u'\n', QStringLiteral("\r\n")) + u']');
    EXPECT_EQ(editor.cursorPosition(), editor.length() - 1);
    editor.undo();
    EXPECT_EQ(editor.text(), QStringLiteral("[x]"));
}

TEST_F(FaceTemplates, AskByADialogUnlessTheHostDoes)
{
    QString label;
    QTimer::singleShot(0, &editor, [&] {
        auto* dialog = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        label = dialog->labelText();
        dialog->setTextValue(QStringLiteral("orders"));
        dialog->accept();
    });
    ASSERT_TRUE(editor.insertTemplate(QStringLiteral("SELECT * FROM ^#Table#^")));
    EXPECT_EQ(label, QStringLiteral("Table"));
    EXPECT_EQ(editor.text(), QStringLiteral("SELECT * FROM orders"));
}

TEST_F(FaceTemplates, LeaveAnEditorAloneThatGoesWhileTheyAsk)
{
    auto* gone = new Editor;
    const auto destroy = [&](const QString& question) {
        delete gone;
        return std::optional(question);
    };
    EXPECT_FALSE(gone->insertTemplate(QStringLiteral("^#Name#^"), destroy));
}

TEST_F(FaceTemplates, GoToTheLineThatADialogAsksFor)
{
    editor.setText(QStringLiteral("a\nb\nc\n"));
    QTimer::singleShot(0, &editor, [] {
        auto* dialog = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        dialog->setIntValue(3);
        dialog->accept();
    });
    editor.command(QStringLiteral("goToLine"))->trigger();
    EXPECT_EQ(editor.cursorLine(), 2);
}

} // namespace
