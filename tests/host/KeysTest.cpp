// SPDX-License-Identifier: GPL-3.0-or-later
// What a key stands for in the workbench: menus, then the view's key table, then the engine.
#include "host/finding/FindBar.h"
#include "host/help/TextKeys.h"
#include "platform/windows/ActionUI.h"
#include "tests/host/WorkbenchTest.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QMap>
#include <QMenuBar>

namespace {

// The key table of every view.
class AnyView final : public CZNCoreEditorView
{
public:
    using CZNCoreEditorView::m_accelerators;
};

class Keys : public WorkbenchTest
{
protected:
    QMap<QString, QList<QAction*>> Shortcuts() const
    {
        QMap<QString, QList<QAction*>> found;
        for (QAction* action : m_window.findChildren<QAction*>()) {
            for (const QKeySequence& keys : action->shortcuts())
                found[keys.toString(QKeySequence::PortableText)] << action;
        }
        return found;
    }

    // The find bar's actions are without a number; the frame runs the bar for these.
    static UINT NumberOf(const QAction& action)
    {
        static const QMap<QString, UINT> kOfTheBar = {
            {"find", 57636},         {"findNext", 54063},         {"findPrevious", 53902},
            {"findNextWord", 53903}, {"findPreviousWord", 53904}, {"replace", 57641}};
        if (kOfTheBar.contains(action.objectName()))
            return kOfTheBar[action.objectName()];
        return CommandOf(action) != 0 ? CommandOf(action) : action.data().toUInt();
    }

    void Press(int key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {})
    {
        QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
        QApplication::sendEvent(Editor().GetSafeHwnd(), &press);
        QApplication::processEvents();
        Disposal::Run();
    }
};

} // namespace

TEST_F(Keys, OfLettersStandForOneEntryInEachMenu)
{
    QList<QWidget*> menus = {m_window.menuBar()};
    for (QMenu* menu : m_window.findChildren<QMenu*>())
        menus << menu;
    for (const QWidget* menu : menus) {
        QMap<QString, QString> letters;
        for (const QAction* action : menu->actions()) {
            const QString letter = QKeySequence::mnemonic(action->text()).toString();
            EXPECT_FALSE(!letter.isEmpty() && letters.contains(letter))
                << letters[letter].toStdString() << " and " << action->text().toStdString();
            letters[letter] = action->text();
        }
    }
}

TEST_F(Keys, OfLettersAreKeptByTheMenuBarAndByWhatRecords)
{
    for (const QAction* menu : m_window.menuBar()->actions())
        EXPECT_FALSE(QKeySequence::mnemonic(menu->text()).isEmpty()) << menu->text().toStdString();
    Open("a.sql", "a");
    const auto letter = [this] {
        return QKeySequence::mnemonic(Action("recordMacro").text()).toString();
    };
    EXPECT_EQ(letter(), "Alt+R");
    Trigger("recordMacro");
    Settle();
    EXPECT_EQ(Action("recordMacro").text(), "Stop &Recording");
    Trigger("recordMacro");
    Settle();
    EXPECT_EQ(Action("recordMacro").text(), "&Record Macro");
}

TEST_F(Keys, OfLettersInTheFindBarStandForOneControlAndNoMenu)
{
    QMap<QString, QString> letters;
    for (const QAction* menu : m_window.menuBar()->actions())
        letters[QKeySequence::mnemonic(menu->text()).toString()] = menu->text();
    for (const auto* button : m_window.findChild<FindBar*>()->findChildren<QAbstractButton*>()) {
        if (button->text().isEmpty()) // Escape closes the bar
            continue;
        const QString letter = QKeySequence::mnemonic(button->text()).toString();
        EXPECT_FALSE(letter.isEmpty()) << button->text().toStdString();
        EXPECT_FALSE(letters.contains(letter))
            << letters[letter].toStdString() << " and " << button->text().toStdString();
        letters[letter] = button->text();
    }
}

TEST_F(Keys, StandForOneActionOfTheMenusEach)
{
    const auto shortcuts = Shortcuts();
    EXPECT_GT(shortcuts.size(), 25);
    for (auto keys = shortcuts.begin(); keys != shortcuts.end(); ++keys)
        EXPECT_EQ(keys->size(), 1) << keys.key().toStdString();
}

TEST_F(Keys, OfAMenuAndOfTheKeyTableStandForTheSameCommand)
{
    const auto shortcuts = Shortcuts();
    int shared = 0;
    const AnyView view;
    for (const Accelerator& entry : *view.m_accelerators) {
        const QKeySequence keys(entry.modifiers | entry.key);
        const QString name = keys.toString(QKeySequence::PortableText);
        for (const QAction* action : shortcuts.value(name)) {
            EXPECT_EQ(NumberOf(*action), entry.command) << name.toStdString();
            ++shared;
        }
    }
    EXPECT_GE(shared, 14);
}

TEST_F(Keys, TakeTheirEffectOnce)
{
    Open("a.sql", "abc\ndef\n");
    Press(Qt::Key_Delete);
    EXPECT_EQ(Text(), "bc\ndef\n");
    Press(Qt::Key_Z, Qt::ControlModifier, QStringLiteral("\x1A"));
    EXPECT_EQ(Text(), "abc\ndef\n");
    Editor().GotoPos(0, 1);
    Press(Qt::Key_X, {}, QStringLiteral("x"));
    EXPECT_EQ(Text(), "xabc\ndef\n");
}

TEST_F(Keys, IndentASelectionAndPutInATabOtherwise)
{
    Open("a.sql", "abc\ndef\n");
    Editor().SetUseTabs(1, 1);
    Press(Qt::Key_Tab, {}, QStringLiteral("\t"));
    EXPECT_EQ(Text(), "\tabc\ndef\n");
    Editor().SelectAll(1);
    Press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Text(), "abc\ndef\n");
}

TEST_F(Keys, ReachBookmarks)
{
    Open("a.sql", "abc\ndef\nghi\n");
    Editor().GotoLine(2, 1);
    Press(Qt::Key_F2, Qt::ControlModifier);
    Editor().GotoLine(0, 1);
    Press(Qt::Key_F2);
    EXPECT_EQ(Editor().GetCurLineNumber(), 2);
}

TEST_F(Keys, CloseOneTabOfAScript)
{
    Open("a.sql", "abc\n");
    Trigger("newView");
    Press(Qt::Key_F4, Qt::ControlModifier);
    EXPECT_EQ(m_window.TabCount(), 1);
    Press(Qt::Key_F4, Qt::ControlModifier);
    EXPECT_EQ(m_window.TabCount(), 0);
}

TEST_F(Keys, GoToThePaneWithTheFocus)
{
    Open("a.sql", "abc\n");
    Trigger("splitBelow");
    const ScriptView* front = Frame().View();
    Editor().GotoPos(3, 1);
    Press(Qt::Key_X, {}, QStringLiteral("x"));
    EXPECT_EQ(Text(), "abcx\n");
    EXPECT_EQ(Frame().View(), front);
}

TEST_F(Keys, FindThroughTheBar)
{
    Open("a.sql", "abc def abc\n");
    Press(Qt::Key_F3, Qt::ControlModifier);
    EXPECT_EQ(Editor().GetSelectionStart(1), 8);
    Press(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(Editor().GetSelectionStart(1), 0);
    Press(Qt::Key_F3);
    EXPECT_EQ(Editor().GetSelectionStart(1), 8);
    EXPECT_FALSE(m_window.Find().isVisible());
    Press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(m_window.Find().isVisible());
}

TEST_F(Keys, TellWhatTheyDoNotFind)
{
    Open("a.sql", "abc def abc\n");
    Press(Qt::Key_F3, Qt::ControlModifier);
    EXPECT_FALSE(m_window.Find().isVisible());
    Editor().ReplaceSel(u"x", 1);
    Editor().SetSel(0, 3, 1);
    Editor().ReplaceSel(u"x", 1);
    Press(Qt::Key_F3);
    EXPECT_TRUE(m_window.Find().isVisible());
    EXPECT_EQ(Status("findResult"), "Not found");
}

TEST_F(Keys, CloseTheFindBarFromTheText)
{
    Open("a.sql", "abc def abc\n");
    Press(Qt::Key_F, Qt::ControlModifier);
    Editor().UserListShow(1, u"abc", 1);
    Press(Qt::Key_Escape);
    EXPECT_TRUE(m_window.Find().isVisible()) << "the list comes first";
    Editor().AutoCCancel(1);
    Press(Qt::Key_Escape);
    EXPECT_FALSE(m_window.Find().isVisible());
}

TEST_F(Keys, OfTheKeyTableAloneReachTheBarTooAndSoDoMenusOfAView)
{
    Open("a.sql", "abc def abc\n");
    Press(Qt::Key_R, Qt::ControlModifier);
    EXPECT_TRUE(m_window.Find().isVisible());
    for (const UINT id : {57636u, 57640u, 57641u})
        EXPECT_TRUE(Frame().HasCommand(id)) << id;
    EXPECT_FALSE(Frame().HasCommand(1));
}

// All that the editor does with a key that no menu has, and nothing else.
TEST_F(Keys, OfTheTextAreKnownByWhatTheyDo)
{
    m_app.NewScript();
    CZNCoreEditorControlEx& editor = Editor();
    const auto state = [&] {
        return QList<QVariant>{editor.GetText(),
                               qlonglong(editor.GetCurrentPos(1)),
                               qlonglong(editor.GetSelectionStart(1)),
                               qlonglong(editor.GetSelectionEnd(1)),
                               editor.GetFirstVisibleLine(1),
                               editor.GetSelectionMode(1)};
    };
    QList<int> keys = {Qt::Key_BracketLeft, Qt::Key_BracketRight, Qt::Key_Slash, Qt::Key_Backslash};
    for (int key = Qt::Key_Home; key <= Qt::Key_PageDown; ++key)
        keys << key;
    for (int key = Qt::Key_A; key <= Qt::Key_Z; ++key)
        keys << key;
    keys << Qt::Key_Backspace << Qt::Key_Delete << Qt::Key_Return << Qt::Key_Insert;
    const QString text = QStringLiteral("one two three\n\nfour five six\n").repeated(100);
    const auto menus = Shortcuts();
    constexpr Qt::KeyboardModifiers kAll[] = {Qt::ControlModifier,
                                              Qt::ControlModifier | Qt::ShiftModifier,
                                              Qt::AltModifier, Qt::AltModifier | Qt::ShiftModifier};
    for (const int key : keys) {
        for (const Qt::KeyboardModifiers modifiers : kAll) {
            const QKeySequence written(QKeyCombination(modifiers, static_cast<Qt::Key>(key)));
            if (menus.contains(written.toString(QKeySequence::PortableText)))
                continue;
            editor.SetText(Units(text), 1);
            editor.GotoPos(text.size() / 2 + 21, 1);
            const auto before = state();
            Press(key, modifiers);
            EXPECT_EQ(state() != before, !UseInText(written).isEmpty())
                << written.toString().toStdString();
        }
    }
}
