// SPDX-License-Identifier: GPL-3.0-or-later
// Keys that a person gives to commands: in the dialog, at once, and at the next start.
#include "host/commands/CommandKeys.h"
#include "host/files/Places.h"
#include "host/help/KeysDialog.h"
#include "platform/system/SettingsFile.h"
#include "tests/host/WorkbenchTest.h"

#include <QKeySequenceEdit>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTreeWidget>

namespace {

class CommandKeysOfPeople : public WorkbenchTest
{
protected:
    ~CommandKeysOfPeople() override
    {
        CommandKeys({}).ResetAll(); // of the settings
    }

    KeysDialog& Dialog()
    {
        if (!m_window.findChild<KeysDialog*>())
            Trigger("keys");
        return *m_window.findChild<KeysDialog*>();
    }

    template <typename Part>
    Part& Find(const char* name = "")
    {
        return *Dialog().findChild<Part*>(QLatin1String(name));
    }

    QTreeWidget& List() { return *Dialog().findChild<QTreeWidget*>(); }
    QLineEdit& Words() { return *Dialog().findChild<QLineEdit*>({}, Qt::FindDirectChildrenOnly); }

    QStringList Shown()
    {
        QStringList shown;
        for (int i = 0; i < List().topLevelItemCount(); ++i) {
            if (!List().topLevelItem(i)->isHidden())
                shown << List().topLevelItem(i)->text(0).section(u'\u203A', -1).trimmed();
        }
        return shown;
    }

    // From the line to the row, to the field.
    void Ask(const QString& command)
    {
        Words().setText(command);
        QTest::keyClick(&Words(), Qt::Key_Return);
        QTest::keyClick(&List(), Qt::Key_Return);
    }

    void Press(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&Find<QKeySequenceEdit>("newKey"), static_cast<Qt::Key>(key), modifiers);
        QApplication::processEvents();
    }

    QString KeysOf(const char* name)
    {
        return QKeySequence::listToString(Action(name).shortcuts(), QKeySequence::PortableText);
    }
};

TEST_F(CommandKeysOfPeople, HaveADialogThatFitsTheScreenWithLargeLetters)
{
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSize(20);
    QApplication::setFont(large);
    const QSize size = Dialog().size();
    const QSize room = Dialog().screen()->availableSize();
    QApplication::setFont(usual);
    EXPECT_LT(size.width(), room.width());
    EXPECT_LT(size.height(), room.height());
}

TEST_F(CommandKeysOfPeople, AreAskedForByEnterAndKeptForTheNextStart)
{
    Ask(QStringLiteral("go to line"));
    ASSERT_TRUE(Find<QKeySequenceEdit>("newKey").isVisible());
    Press(Qt::Key_L, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(KeysOf("goToLine"), "Ctrl+Alt+L");
    EXPECT_FALSE(Find<QKeySequenceEdit>("newKey").isVisible());
    EXPECT_TRUE(List().currentItem()->font(0).bold());
    QAction next;
    next.setObjectName(QStringLiteral("goToLine"));
    next.setShortcut(Qt::CTRL | Qt::Key_G);
    const CommandKeys atTheNextStart({&next});
    EXPECT_EQ(next.shortcut().toString(), "Ctrl+Alt+L");
    EXPECT_TRUE(atTheNextStart.IsChanged(next));
}

TEST_F(CommandKeysOfPeople, LeaveTheKeyboardToAFilterThatIsTypedInMeanwhile)
{
    Ask(QStringLiteral("go to line"));
    Words().setFocus();
    Words().selectAll();
    QTest::keyClick(Dialog().focusWidget(), Qt::Key_D);
    QTest::keyClick(Dialog().focusWidget(), Qt::Key_U);
    EXPECT_EQ(Words().text(), "du");
    EXPECT_FALSE(Find<QKeySequenceEdit>("newKey").isVisible());
}

TEST_F(CommandKeysOfPeople, AreTakenFromAnotherCommandOnlyWhenThePersonSaysSo)
{
    Ask(QStringLiteral("go to line"));
    Press(Qt::Key_D, Qt::ControlModifier);
    ASSERT_EQ(m_prompts.asked.size(), 1);
    EXPECT_TRUE(m_prompts.asked.front().contains("Duplicate Line or Selection"));
    EXPECT_EQ(KeysOf("goToLine"), "Ctrl+G");
    m_prompts.confirm = true;
    Press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(KeysOf("goToLine"), "Ctrl+D");
    EXPECT_EQ(KeysOf("duplicate"), "");
}

TEST_F(CommandKeysOfPeople, AreTakenFromTheTextOnlyWhenThePersonSaysSo)
{
    Ask(QStringLiteral("go to line"));
    Press(Qt::Key_Left, Qt::ControlModifier);
    ASSERT_EQ(m_prompts.asked.size(), 1);
    EXPECT_TRUE(m_prompts.asked.front().contains("Word Left"));
    EXPECT_EQ(KeysOf("goToLine"), "Ctrl+G");
    m_prompts.confirm = true;
    Press(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(KeysOf("goToLine"), "Ctrl+Left");
}

TEST_F(CommandKeysOfPeople, AreNoneThatTypeMoveOrOpenAMenu)
{
    Ask(QStringLiteral("go to line"));
    const std::pair<int, Qt::KeyboardModifiers> keys[] = {
        {Qt::Key_A, {}},    {Qt::Key_A, Qt::ShiftModifier}, {Qt::Key_Return, {}},
        {Qt::Key_Left, {}}, {Qt::Key_Delete, {}},           {Qt::Key_F, Qt::AltModifier},
    };
    for (const auto& [key, modifiers] : keys) {
        Press(key, modifiers);
        EXPECT_TRUE(Find<QLabel>("keyTold").isVisible()) << key;
        EXPECT_EQ(KeysOf("goToLine"), "Ctrl+G") << key;
    }
    Press(Qt::Key_Escape);
    EXPECT_FALSE(Find<QKeySequenceEdit>("newKey").isVisible());
    EXPECT_TRUE(Dialog().isVisible());
}

TEST_F(CommandKeysOfPeople, AreRemovedAndComeBack)
{
    Ask(QStringLiteral("edit undo"));
    const QString first = KeysOf("undo");
    Find<QPushButton>("removeKey").click();
    EXPECT_EQ(KeysOf("undo"), "");
    Find<QPushButton>("resetKey").click();
    EXPECT_EQ(KeysOf("undo"), first);
    EXPECT_FALSE(List().currentItem()->font(0).bold());
    Find<QPushButton>("removeKey").click();
    m_prompts.confirm = true;
    Find<QPushButton>("resetKeys").click();
    EXPECT_EQ(KeysOf("undo"), first);
    EXPECT_FALSE(settingsfile::ReadValue(places::SettingsPath(), "Keys/undo"));
}

TEST_F(CommandKeysOfPeople, AreFoundAsPeopleWriteThem)
{
    for (const char* key : {"ctrl+shift+j", "shift + control + J"}) {
        Words().setText(QLatin1String(key));
        EXPECT_EQ(Shown(), QStringList{"Insert Template"}) << key;
    }
    EXPECT_FALSE(Find<QLabel>("noKeys").isVisible());
    Words().setText(QStringLiteral("ctrl+alt+shift+f11"));
    EXPECT_EQ(Shown(), QStringList());
    EXPECT_TRUE(Find<QLabel>("noKeys").isVisible());
}

// The key table of the view has Ctrl+D, too.
TEST_F(CommandKeysOfPeople, AreOfNobodyBelowTheMenusEither)
{
    Open("a.sql", "abc\ndef\n");
    Ask(QStringLiteral("duplicate line"));
    Find<QPushButton>("removeKey").click();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_D, Qt::ControlModifier, QStringLiteral("\x04"));
    QApplication::sendEvent(Editor().GetSafeHwnd(), &press);
    EXPECT_EQ(Text(), "abc\ndef\n");
    Find<QPushButton>("resetKey").click();
    QApplication::sendEvent(Editor().GetSafeHwnd(), &press);
    EXPECT_EQ(Text(), "abc\nabc\ndef\n");
}

} // namespace
