// SPDX-License-Identifier: GPL-3.0-or-later
// Go to Line, as the workbench asks for it.
#include "host/script/GoToDialog.h"
#include "tests/host/WorkbenchTest.h"

#include <QLineEdit>
#include <QTest>
#include <QTimer>

namespace {

class GoToLine : public WorkbenchTest
{
protected:
    GoToLine()
    {
        Open(QStringLiteral("a.sql"), "one\ntwo\nthree\nfour\n");
        Editor().GotoPos(5, 1); // behind the second line's first letter
    }

    // Types the place and presses Enter; a dialog that stays is closed by Escape. What it said
    // then, empty where it went.
    QString Ask(const QString& place)
    {
        QString said;
        QTimer::singleShot(0, &m_window, [&] {
            QWidget* dialog = QApplication::activeModalWidget();
            ASSERT_TRUE(dialog);
            auto* field = dialog->findChild<QLineEdit*>();
            shown = field->selectedText();
            QTest::keyClicks(field, place);
            QTest::keyClick(field, Qt::Key_Return);
            if (!dialog->isVisible())
                return;
            if (auto* expected = dialog->findChild<QLabel*>(QStringLiteral("expected"))) {
                said = expected->text();
                described = field->accessibleDescription();
            }
            EXPECT_EQ(field->selectedText(), place) << "to be written over";
            QTest::keyClick(dialog, Qt::Key_Escape);
        });
        Trigger("goToLine");
        return said;
    }

    QString shown;     // selected in the field at first
    QString described; // to those who do not see the line
};

TEST_F(GoToLine, GoesToALineAndToAColumnOfIt)
{
    EXPECT_EQ(Ask("3"), "");
    EXPECT_EQ(shown, "2");
    EXPECT_EQ(Editor().GetCurrentPos(1), 8);
    EXPECT_EQ(Ask("4:3"), "");
    EXPECT_EQ(Editor().GetCurrentPos(1), 16);
    EXPECT_EQ(Ask(" 1:99 "), "");
    EXPECT_EQ(Editor().GetCurrentPos(1), 3) << "as far as the line goes";
    EXPECT_EQ(Ask("2:"), "");
    EXPECT_EQ(Editor().GetCurrentPos(1), 4);
    EXPECT_EQ(m_window.focusWidget(), Editor().GetSafeHwnd());
}

TEST_F(GoToLine, StaysAndSaysWhatItExpectsOfWhatIsNoPlace)
{
    for (const char* wrong :
         {"abc", "0", "6", "2x", "-1", "2:x", "2:0", ":3", "99999999999999999999"}) {
        const QString said = Ask(QLatin1String(wrong));
        EXPECT_TRUE(said.contains(QLatin1String(wrong))) << wrong;
        EXPECT_TRUE(said.contains("a number from 1 to 5")) << said.toStdString();
        EXPECT_EQ(described, said);
        EXPECT_EQ(Editor().GetCurrentPos(1), 5) << wrong;
    }
}

TEST_F(GoToLine, SaysNothingWrongAnyMoreOnceSomethingIsTyped)
{
    GoToDialog dialog(&m_window, 1, 5);
    auto* field = dialog.findChild<QLineEdit*>();
    const auto* expected = dialog.findChild<QLabel*>(QStringLiteral("expected"));
    const QString first = expected->text();
    EXPECT_EQ(first, "From 1 to 5, or line:column");
    QTest::keyClicks(field, "x");
    dialog.accept();
    EXPECT_NE(expected->text(), first);
    QTest::keyClicks(field, "3");
    EXPECT_EQ(expected->text(), first);
    dialog.accept();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(dialog.Line(), 3);
    EXPECT_EQ(dialog.Column(), 0);
}

} // namespace
