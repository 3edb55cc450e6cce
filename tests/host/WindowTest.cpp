// SPDX-License-Identifier: GPL-3.0-or-later
// What the window offers around the script: tabs, the palette, fields that open, the find bar's
// lights.
#include "control/EngineModes.h"
#include "host/finding/FindBar.h"
#include "host/script/ScriptTabs.h"
#include "host/window/CommandPalette.h"
#include "tests/host/WorkbenchTest.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTabBar>
#include <QTest>
#include <QToolButton>

namespace {

class Windows : public WorkbenchTest
{
protected:
    ScriptTabs& Tabs() { return *m_window.findChild<ScriptTabs*>(); }
    void Rest()
    {
        QApplication::processEvents();
        Disposal::Run();
    }
};

TEST_F(Windows, CloseATabByTheMiddleButton)
{
    Open("one.sql", "1\n");
    Open("two.sql", "2\n");
    const int before = m_window.TabCount();
    QTest::mouseClick(Tabs().tabBar(), Qt::MiddleButton, {}, Tabs().tabBar()->tabRect(0).center());
    Rest();
    EXPECT_EQ(m_window.TabCount(), before - 1);
}

TEST_F(Windows, FindACommandByWordsOfItsName)
{
    Open("one.sql", "a\nb\n");
    Editor().GotoPos(0, 1);
    m_window.ShowCommands();
    auto* palette = static_cast<CommandPalette*>(
        m_window.findChild<QDialog*>(QStringLiteral("commandPalette")));
    ASSERT_NE(palette, nullptr);
    palette->findChild<QLineEdit*>()->setText(QStringLiteral("down lines"));
    const auto* list = palette->findChild<QListWidget*>();
    ASSERT_EQ(list->count(), 1);
    EXPECT_TRUE(list->item(0)->text().endsWith(QStringLiteral("Alt+Down")));
    QTest::keyClick(palette->findChild<QLineEdit*>(), Qt::Key_Return);
    Rest();
    EXPECT_EQ(Text(), QStringLiteral("b\na\n"));
}

TEST_F(Windows, WalkThroughTheCommandsFromTheLineAboveThem)
{
    m_window.ShowCommands();
    auto* palette = m_window.findChild<QDialog*>(QStringLiteral("commandPalette"));
    ASSERT_NE(palette, nullptr);
    QApplication::processEvents();
    auto* line = palette->findChild<QLineEdit*>();
    const auto* list = palette->findChild<QListWidget*>();
    const auto rowBehind = [&](Qt::Key key) {
        QTest::keyClick(line, key);
        return list->currentRow();
    };
    EXPECT_EQ(rowBehind(Qt::Key_Up), 0);
    EXPECT_EQ(rowBehind(Qt::Key_Down), 1);
    const int page = rowBehind(Qt::Key_PageDown);
    EXPECT_GT(page, 5);
    EXPECT_EQ(rowBehind(Qt::Key_Up), page - 1);
    EXPECT_LT(rowBehind(Qt::Key_PageUp), 5);
    line->setText(QStringLiteral("no such command"));
    EXPECT_EQ(rowBehind(Qt::Key_Down), -1);
    ASSERT_EQ(list->count(), 1);
    EXPECT_EQ(list->item(0)->text(), "No command has these words in its name");
    QTest::keyClick(line, Qt::Key_Return);
    EXPECT_TRUE(palette->isVisible()) << "there is nothing to choose";
    palette->close();
}

TEST_F(Windows, CountWhatIsSelected)
{
    Open("one.sql", "select\n");
    Editor().SetSel(0, 4, 1);
    Q_EMIT Script().StateChanged();
    EXPECT_EQ(Status("caret"), QStringLiteral("Line 1, column 5 (4 selected)"));
}

TEST_F(Windows, CountWhatIsSelectedInAColumnAlone)
{
    Open("one.sql", "select 1;\r\nselect 2;\r\nselect 3;\r\n");
    Editor().SetSel(2, 26, 1); // from the first line's third letter to the third line's fifth
    Editor().SetSelectionMode(engine::selection::Rectangle, 1);
    Q_EMIT Script().StateChanged();
    EXPECT_EQ(Status("caret"), QStringLiteral("Line 3, column 5 (6 selected)"));
}

TEST_F(Windows, SayWhichMatchIsSelected)
{
    Open("one.sql", "x a x a x\n");
    Editor().GotoPos(0, 1);
    m_window.Find().Open();
    m_window.Find().findChild<QComboBox*>(QStringLiteral("findText"))->setEditText("a");
    QCoreApplication::processEvents();
    const auto* result = m_window.Find().findChild<QLabel*>(QStringLiteral("findResult"));
    EXPECT_EQ(result->text(), QStringLiteral("1 of 2"));
    m_window.Find().FindNext();
    EXPECT_EQ(result->text(), QStringLiteral("2 of 2"));
    m_window.Find().findChild<QToolButton*>(QStringLiteral("closeFind"))->click();
    EXPECT_TRUE(m_window.Find().isHidden());
}

TEST_F(Windows, OfferEveryGestureInTheMenus)
{
    Open("one.sql", "select 1;\n");
    Trigger("toggleComment");
    EXPECT_EQ(Text(), QStringLiteral("-- select 1;\n"));
    Trigger("toggleComment");
    EXPECT_EQ(Text(), QStringLiteral("select 1;\n"));
    EXPECT_FALSE(Action("surroundQuotes").isEnabled());
    Editor().SetReadOnly(1, 1);
    Q_EMIT Script().StateChanged();
    EXPECT_FALSE(Action("toggleComment").isEnabled());
    EXPECT_TRUE(Action("growSelection").isEnabled());
}

} // namespace
