// SPDX-License-Identifier: GPL-3.0-or-later
// The find bar over an editor of its own: what it finds, selects, replaces and says.
#include "host/finding/FindBar.h"

#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "search/FindReplaceManager.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace {

class FindBars : public testing::Test
{
protected:
    FindBars() : bar([this] { return editor; }, &window)
    {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(&widget);
        layout->addWidget(&bar);
        bar.AddActions(menu);
        for (const char* option : {"matchCase", "wholeWord", "expression"})
            Set(option, false);
        window.show();
    }
    // The manager is that of the process, which other tests share.
    ~FindBars() override
    {
        CFindReplaceManager& manager = *zncoreeditor::GetFindReplaceManager();
        manager.SetFind(QString());
        manager.SetReplace(QString());
        manager.SetRegExp(false);
        manager.SetMatchCase(false);
        manager.SetWholeWord(false);
    }

    void SetText(const QString& text)
    {
        widget.setText(text);
        editor->SetEOLMode(3, 1);
        editor->EmptyUndoBuffer(1);
        editor->SetSel(0, 0, 1);
    }
    void Seek(const QString& text) { Box("findText").setEditText(text); }
    void ReplaceWith(const QString& text) { Box("replaceText").setEditText(text); }
    void Set(const char* option, bool on)
    {
        bar.findChild<QCheckBox*>(QLatin1String(option))->setChecked(on);
    }
    QComboBox& Box(const char* name) { return *bar.findChild<QComboBox*>(QLatin1String(name)); }
    QString Result() { return bar.findChild<QLabel*>(QStringLiteral("findResult"))->text(); }
    QAction& Action(const char* name) { return *menu.findChild<QAction*>(QLatin1String(name)); }

    // Start and end of the selection.
    std::pair<long, long> Selected()
    {
        return {editor->GetSelectionStart(1), editor->GetSelectionEnd(1)};
    }
    using Range = std::pair<long, long>;

    static void Press(QWidget& where, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QApplication::sendEvent(&where, &event);
    }

    QWidget window;
    ZNCoreEditorWidget widget;
    CZNCoreEditorControlEx* editor = &widget.control();
    FindBar bar;
    QMenu menu;
};

} // namespace

TEST_F(FindBars, FindsTheNextAndThePreviousAndGoesRound)
{
    SetText(QStringLiteral("one two one"));
    Seek(QStringLiteral("ONE"));
    bar.FindNext();
    EXPECT_EQ(Selected(), Range(0, 3));
    bar.FindNext();
    EXPECT_EQ(Selected(), Range(8, 11));
    bar.FindNext();
    EXPECT_EQ(Selected(), Range(0, 3));
    bar.FindPrevious();
    EXPECT_EQ(Selected(), Range(8, 11));
    bar.FindPrevious();
    EXPECT_EQ(Selected(), Range(0, 3));
    EXPECT_EQ(Result(), QString());
}

TEST_F(FindBars, FollowsItsOptions)
{
    SetText(QStringLiteral("oneone One one"));
    Seek(QStringLiteral("one"));
    Set("matchCase", true);
    Set("wholeWord", true);
    bar.FindNext();
    EXPECT_EQ(Selected(), Range(11, 14));
    Set("wholeWord", false);
    Set("expression", true);
    Seek(QStringLiteral("^\\(o.*\\)O"));
    bar.FindNext();
    EXPECT_EQ(Selected(), Range(0, 8));
}

TEST_F(FindBars, SaysThatNothingIsFound)
{
    SetText(QStringLiteral("one"));
    editor->SetSel(1, 2, 1);
    for (const char* sought : {"two", "\\(", "["}) {
        Set("expression", *sought != 't');
        Seek(QLatin1String(sought));
        bar.FindNext();
        EXPECT_EQ(Result(), QStringLiteral("Not found")) << sought;
        EXPECT_EQ(Selected(), Range(1, 2));
    }
}

TEST_F(FindBars, PassesFromOneLineEndToTheNext)
{
    SetText(QStringLiteral("a\nb\nc"));
    Set("expression", true);
    Seek(QStringLiteral("$"));
    for (const long end : {1L, 3L, 5L}) {
        bar.FindNext();
        EXPECT_EQ(Selected(), Range(end, end));
    }
    bar.FindPrevious();
    EXPECT_EQ(Selected(), Range(3, 3));
}

TEST_F(FindBars, FindsTheWordAtTheCaret)
{
    SetText(QStringLiteral("two one ones one"));
    editor->SetSel(5, 5, 1);
    bar.FindNextWord();
    EXPECT_EQ(Selected(), Range(8, 11));
    editor->SetSel(13, 16, 1);
    bar.FindPreviousWord();
    EXPECT_EQ(Selected(), Range(8, 11));
    EXPECT_EQ(Box("findText").currentText(), QStringLiteral("one"));
    editor->SetSel(3, 4, 1);
    bar.FindNextWord(); // of a blank
    EXPECT_EQ(Selected(), Range(7, 8));
}

TEST_F(FindBars, ReplacesWhatIsFoundAndGoesOn)
{
    SetText(QStringLiteral("a-b a-c"));
    bar.Open();
    Set("expression", true);
    Seek(QStringLiteral("\\([a-z]\\)-\\([a-z]\\)"));
    ReplaceWith(QStringLiteral("\\2+\\1"));
    bar.Replace(); // nothing is selected yet
    EXPECT_EQ(widget.text(), QStringLiteral("a-b a-c"));
    EXPECT_EQ(Selected(), Range(0, 3));
    bar.Replace();
    EXPECT_EQ(widget.text(), QStringLiteral("b+a a-c"));
    EXPECT_EQ(Selected(), Range(4, 7));
    bar.Replace();
    EXPECT_EQ(widget.text(), QStringLiteral("b+a c+a"));
    EXPECT_EQ(Result(), QStringLiteral("Not found"));
}

TEST_F(FindBars, ReplacesAllInOneStep)
{
    SetText(QStringLiteral("one two one"));
    Seek(QStringLiteral("one"));
    ReplaceWith(QStringLiteral("a one"));
    bar.ReplaceAll();
    EXPECT_EQ(widget.text(), QStringLiteral("a one two a one"));
    EXPECT_EQ(Result(), QStringLiteral("2 replaced"));
    editor->Undo(1);
    EXPECT_EQ(widget.text(), QStringLiteral("one two one"));
}

TEST_F(FindBars, MarksTheLinesOfATextAsItStands)
{
    SetText(QStringLiteral("a.b\naxb\na.b a.b\n"));
    editor->SetSel(2, 1, 1);
    Seek(QStringLiteral("A.B"));
    bar.MarkAll();
    EXPECT_EQ(Result(), QStringLiteral("3 found and marked"));
    EXPECT_TRUE((editor->MarkerGet(0, 1) & 1) != 0);
    EXPECT_FALSE((editor->MarkerGet(1, 1) & 1) != 0);
    EXPECT_TRUE((editor->MarkerGet(2, 1) & 1) != 0);
    EXPECT_EQ(editor->GetCurrentPos(1), 1);
    EXPECT_EQ(editor->GetAnchor(1), 2);
    Seek(QStringLiteral("none"));
    bar.MarkAll();
    EXPECT_EQ(Result(), QStringLiteral("0 found and marked"));
    EXPECT_EQ(editor->GetCurrentPos(1), 1);
}

TEST_F(FindBars, Counts)
{
    SetText(QStringLiteral("aaaa\nb\U0001F600\n"));
    Seek(QStringLiteral("aa"));
    bar.Count();
    EXPECT_EQ(Result(), QStringLiteral("2 found"));
    Set("expression", true);
    Seek(QStringLiteral("^"));
    bar.Count();
    EXPECT_EQ(Result(), QStringLiteral("3 found"));
    EXPECT_EQ(Selected(), Range(0, 0));
}

TEST_F(FindBars, OpensWithWhatIsSelectedAndClosesOnEscape)
{
    SetText(QStringLiteral("one two"));
    EXPECT_FALSE(bar.isVisible());
    editor->SetSel(4, 7, 1);
    Action("find").trigger();
    EXPECT_TRUE(bar.isVisible());
    EXPECT_EQ(Box("findText").currentText(), QStringLiteral("two"));
    EXPECT_EQ(Box("findText").lineEdit()->selectedText(), QStringLiteral("two"));
    Press(Box("findText"), Qt::Key_Escape);
    EXPECT_FALSE(bar.isVisible());
}

TEST_F(FindBars, FindsOnEnter)
{
    SetText(QStringLiteral("one two one"));
    bar.Open();
    Seek(QStringLiteral("one"));
    ReplaceWith(QStringLiteral("1"));
    Press(Box("findText"), Qt::Key_Return);
    EXPECT_EQ(Selected(), Range(0, 3));
    Press(Box("findText"), Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(Selected(), Range(8, 11));
    Press(Box("replaceText"), Qt::Key_Enter);
    EXPECT_EQ(widget.text(), QStringLiteral("one two 1"));
}

TEST_F(FindBars, OffersWhatIsPossible)
{
    Seek(QString());
    EXPECT_FALSE(Action("replaceAll").isEnabled());
    EXPECT_TRUE(Action("findNext").isEnabled());
    Seek(QStringLiteral("one"));
    EXPECT_TRUE(Action("replaceAll").isEnabled());
    editor->SetReadOnly(1, 1);
    bar.Update();
    EXPECT_FALSE(Action("replaceAll").isEnabled());
    EXPECT_FALSE(Action("replace").isEnabled());
    EXPECT_TRUE(Action("markAll").isEnabled());
    editor = nullptr;
    bar.Update();
    EXPECT_FALSE(Action("find").isEnabled());
    bar.FindNext();
    bar.ReplaceAll();
    bar.Open();
    EXPECT_FALSE(bar.isVisible());
}
