// SPDX-License-Identifier: GPL-3.0-or-later
// The find bar over an editor of its own: what it finds, selects, replaces and says.
#include "host/finding/FindBar.h"

#include "control/EngineLooks.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "host/finding/ExpressionHelp.h"
#include "host/finding/MatchCase.h"
#include "prefs/RegProfile.h"
#include "search/FindReplaceManager.h"
#include "tests/looks/Contrast.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
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
        SetPerl(true);
        window.show();
        RowForReplacing().setChecked(true);
    }
    // The manager is that of the process, which other tests share.
    ~FindBars() override
    {
        CFindReplaceManager& manager = *zncoreeditor::GetFindReplaceManager();
        manager.SetFind(QString());
        manager.SetReplace(QString());
        manager.SetRegExp(false);
        manager.SetPerlSyntax(false);
        CRegProfile().DeleteProfileValue(u"Preferences\\Search", u"PerlSyntax");
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
    void SetPerl(bool isPerl) { bar.findChild<ExpressionHelp*>()->SetPerl(isPerl); }
    QComboBox& Box(const char* name) { return *bar.findChild<QComboBox*>(QLatin1String(name)); }
    QToolButton& RowForReplacing()
    {
        return *bar.findChild<QToolButton*>(QStringLiteral("showReplace"));
    }
    QString Result() { return bar.findChild<QLabel*>(QStringLiteral("findResult"))->text(); }
    QAction& Action(const char* name) { return *menu.findChild<QAction*>(QLatin1String(name)); }

    static void Settle() // what is shown once no key is waiting
    {
        for (int i = 0; i < 3; ++i)
            QApplication::processEvents();
    }

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
    Seek(QStringLiteral("^(o.*)O"));
    bar.FindNext();
    EXPECT_EQ(Selected(), Range(0, 8));
}

TEST_F(FindBars, SaysThatNothingIsFound)
{
    SetText(QStringLiteral("one"));
    editor->SetSel(1, 2, 1);
    Seek(QStringLiteral("two"));
    bar.FindNext();
    EXPECT_EQ(Result(), QStringLiteral("Not found"));
    EXPECT_EQ(Selected(), Range(1, 2));
}

TEST_F(FindBars, ColourWhatIsNotFoundInLightAndDark)
{
    SetText(QStringLiteral("one"));
    const QLineEdit& field = *Box("findText").lineEdit();
    const auto ink = [&field] { return field.palette().color(QPalette::Text); };
    const auto ground = [&field] { return field.palette().color(QPalette::Base); };
    for (const bool isDark : {false, true, false}) {
        QPalette palette;
        palette.setColor(QPalette::Base, isDark ? QColor(30, 31, 34) : QColor(Qt::white));
        palette.setColor(QPalette::Text, isDark ? QColor(Qt::white) : QColor(Qt::black));
        Seek(QStringLiteral("two"));
        bar.FindNext();
        bar.setPalette(palette); // the scheme changes while it is missing
        QApplication::processEvents();
        EXPECT_EQ(ground(), palette.color(QPalette::Base));
        EXPECT_NE(ink(), palette.color(QPalette::Text));
        EXPECT_GE(Contrast(ink(), ground()), 4.5);
        Seek(QStringLiteral("on"));
        EXPECT_EQ(ink(), palette.color(QPalette::Text));
    }
    Set("expression", true);
    Seek(QStringLiteral("o("));
    EXPECT_GE(Contrast(ink(), ground()), 4.5);
    EXPECT_NE(ink(), QColor(Qt::black));
}

TEST_F(FindBars, SaysWhatIsWrongWithAnExpression)
{
    SetText(QStringLiteral("one"));
    editor->SetSel(1, 2, 1);
    bar.Open();
    Set("expression", true);
    Seek(QStringLiteral("o(n"));
    EXPECT_EQ(Result(), "No expression: missing closing parenthesis, at character 4");
    bar.FindNext();
    EXPECT_EQ(Result(), "No expression: missing closing parenthesis, at character 4");
    EXPECT_EQ(Selected(), Range(1, 2));
    Seek(QStringLiteral("o(n)"));
    EXPECT_EQ(Result(), QString());
    SetPerl(false);
    Seek(QStringLiteral("\u00E4\\(o"));
    EXPECT_EQ(Result(), "No expression: the group has no end, at character 2");
    Seek(QStringLiteral("*"));
    bar.ReplaceAll();
    EXPECT_EQ(Result(), "No expression: nothing stands here to be repeated, at character 1");
    Set("expression", false);
    EXPECT_EQ(Result(), QString());
}

TEST_F(FindBars, TakesTheGrammarThatIsChosenAndKeepsIt)
{
    SetText(QStringLiteral("(ab)ab"));
    Set("expression", true);
    Seek(QStringLiteral("(ab)"));
    bar.FindNext();
    EXPECT_EQ(Selected(), Range(1, 3));
    SetPerl(false);
    bar.FindNext();
    EXPECT_EQ(Selected(), Range(0, 4));
    EXPECT_FALSE(FindBar([this] { return editor; }).findChild<ExpressionHelp*>()->IsPerl());
    EXPECT_FALSE(CFindReplaceManager().GetPerlSyntax());
}

TEST_F(FindBars, PutPiecesOfAnExpressionIn)
{
    auto& help = *bar.findChild<ExpressionHelp*>();
    Q_EMIT help.menu()->aboutToShow();
    for (QAction* action : help.menu()->actions()) {
        if (action->text().startsWith(QStringLiteral("\\d\t")))
            action->trigger();
    }
    EXPECT_EQ(Box("findText").currentText(), QStringLiteral("\\d"));
    EXPECT_TRUE(bar.findChild<QCheckBox*>(QStringLiteral("expression"))->isChecked());
}

TEST_F(FindBars, SayThatTheyWentRound)
{
    SetText(QStringLiteral("one two one"));
    bar.Open();
    Seek(QStringLiteral("one"));
    bar.FindNext();
    bar.FindNext();
    EXPECT_EQ(Result(), QStringLiteral("2 of 2"));
    bar.FindNext();
    EXPECT_EQ(Result(), QStringLiteral("1 of 2, gone round"));
    bar.Close();
    QStringList told;
    QObject::connect(&bar, &FindBar::Told, [&told](const QString& text) { told << text; });
    bar.FindPrevious();
    bar.FindPrevious();
    EXPECT_EQ(told, QStringList{"On from the end"});
}

TEST_F(FindBars, StayInTheSelection)
{
    SetText(QStringLiteral("one\none one\none"));
    editor->SetSel(4, 11, 1);
    Seek(QStringLiteral("one"));
    Set("inSelection", true);
    bar.FindNext();
    bar.FindNext();
    EXPECT_EQ(Selected(), Range(8, 11));
    bar.FindNext();
    EXPECT_EQ(Selected(), Range(4, 7));
    bar.FindPrevious();
    EXPECT_EQ(Selected(), Range(8, 11));
    ReplaceWith(QStringLiteral("x"));
    bar.ReplaceAll();
    EXPECT_EQ(widget.text(), QStringLiteral("one\nx x\none"));
    EXPECT_EQ(Selected(), Range(4, 7));
    ReplaceWith(QStringLiteral("longer"));
    Seek(QStringLiteral("x"));
    bar.ReplaceAll();
    EXPECT_EQ(widget.text(), QStringLiteral("one\nlonger longer\none"));
    Seek(QStringLiteral("one"));
    bar.ReplaceAll();
    EXPECT_EQ(Result(), QStringLiteral("0 replaced"));
    editor->Undo(1);
    editor->Undo(1);
    EXPECT_EQ(widget.text(), QStringLiteral("one\none one\none"));
}

TEST_F(FindBars, KeepTheSelectionTheySearchWhileTheTextIsEdited)
{
    SetText("one\none one\none");
    Seek("one");
    editor->SetSel(4, 11, 1);
    Set("inSelection", true);
    editor->InsertText(0, u"one\n", 1);
    editor->InsertText(11, u" one", 1);
    bar.Count();
    EXPECT_EQ(Result(), "3 found");
    bar.FindNext();
    bar.FindPrevious();
    EXPECT_EQ(Selected(), Range(16, 19));
    const auto from = [this] { return editor->Call(engine::kMatchesFrom, 0, 0, 1); };
    EXPECT_EQ(from(), 8);
    bar.Close();
    EXPECT_EQ(from(), -1);
}

TEST_F(FindBars, SearchAllOfTheNextScript)
{
    SetText("one\none one\none");
    bar.Open();
    Seek("one");
    editor->SetSel(4, 11, 1);
    Set("inSelection", true);
    ZNCoreEditorWidget other;
    other.setText("one one");
    editor = &other.control();
    bar.Update();
    EXPECT_FALSE(bar.findChild<QCheckBox*>("inSelection")->isChecked());
    bar.Count();
    EXPECT_EQ(Result(), "2 found");
    editor = &widget.control();
    bar.Update();
    EXPECT_EQ(editor->Call(engine::kMatchesFrom, 0, 0, 1), -1) << "nor is it framed there";
}

TEST_F(FindBars, SearchLinesThatAreSelected)
{
    SetText(QStringLiteral("one\none one\none"));
    Seek(QStringLiteral("one"));
    editor->SetSel(3, 11, 1);
    bar.Open();
    EXPECT_EQ(Box("findText").currentText(), QStringLiteral("one"));
    bar.Count();
    EXPECT_EQ(Result(), QStringLiteral("2 found"));
    bar.Close();
    bar.Count();
    EXPECT_EQ(Result(), QStringLiteral("4 found"));
    editor->SetSel(0, 0, 1);
    Set("inSelection", true);
    EXPECT_EQ(Result(), QStringLiteral("Nothing is selected"));
    EXPECT_FALSE(bar.findChild<QCheckBox*>(QStringLiteral("inSelection"))->isChecked());
}

TEST_F(FindBars, KeepTheCaseOfWhatTheyReplace)
{
    SetText(QStringLiteral("name Name NAME nAme"));
    Seek(QStringLiteral("name"));
    ReplaceWith(QStringLiteral("titleOf"));
    Set("preserveCase", true);
    bar.ReplaceAll();
    EXPECT_EQ(widget.text(), QStringLiteral("titleof TitleOf TITLEOF titleOf"));
    editor->Undo(1);
    EXPECT_EQ(widget.text(), QStringLiteral("name Name NAME nAme"));
    bar.Open();
    Seek(QStringLiteral("name"));
    editor->SetSel(10, 14, 1);
    bar.Replace();
    EXPECT_EQ(widget.text(), QStringLiteral("name Name TITLEOF nAme"));
    editor->Undo(1);
    EXPECT_EQ(widget.text(), QStringLiteral("name Name NAME nAme"));
}

TEST(MatchCase, LeavesWhatHasNoCase)
{
    EXPECT_EQ(InCaseOf(QStringLiteral("12"), QStringLiteral("aB")), QStringLiteral("aB"));
    EXPECT_EQ(InCaseOf(QStringLiteral("\u00C4\u00D6"), QStringLiteral("\u00FC")),
              QStringLiteral("\u00DC"));
    EXPECT_EQ(InCaseOf(QStringLiteral("A"), QString()), QString());
}

TEST_F(FindBars, ReplaceNothingAtEachLineInTheSelection)
{
    SetText(QStringLiteral("a\n\nb\nc"));
    editor->SetSel(0, 4, 1);
    Seek(QStringLiteral("^"));
    ReplaceWith(QStringLiteral("-- "));
    Set("expression", true);
    Set("inSelection", true);
    bar.ReplaceAll();
    EXPECT_EQ(widget.text(), QStringLiteral("-- a\n-- \n-- b\nc"));
    Set("preserveCase", true); // of a match of nothing
    ReplaceWith(QString());
    bar.ReplaceAll();
    EXPECT_EQ(widget.text(), QStringLiteral("-- a\n-- \n-- b\nc"));
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
    Seek(QStringLiteral("([a-z])-([a-z])"));
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

TEST_F(FindBars, TakeNoLetterOfAButtonThatCannotBePressed)
{
    SetText("one");
    Seek("zz");
    editor->SetReadOnly(1, 1);
    bar.Update();
    Box("findText").setFocus();
    QTest::keyClick(&Box("findText"), Qt::Key_A, Qt::AltModifier);
    EXPECT_EQ(Box("findText").currentText(), "zz");
    QTest::keyClick(&Box("findText"), Qt::Key_A);
    EXPECT_EQ(Box("findText").currentText(), "zza");
    editor->SetReadOnly(0, 1);
}

TEST_F(FindBars, ReplaceAllAndStayAtTheLine)
{
    SetText(QStringLiteral("one\none\nhere\none"));
    editor->SetSel(10, 10, 1);
    Seek(QStringLiteral("one"));
    ReplaceWith(QStringLiteral("many of them"));
    bar.ReplaceAll();
    ASSERT_EQ(widget.text(), QStringLiteral("many of them\nmany of them\nhere\nmany of them"));
    EXPECT_EQ(Selected(), Range(28, 28));
}

TEST_F(FindBars, ReplaceAllAndGoBackFromTheMatchThatWasShown)
{
    SetText("one\n--\none\n");
    editor->SetSel(5, 5, 1);
    bar.Open();
    Seek("one");
    Settle();
    ASSERT_EQ(Selected(), Range(7, 10));
    ReplaceWith("two");
    bar.ReplaceAll();
    EXPECT_EQ(widget.text(), "two\n--\ntwo\n");
    EXPECT_EQ(Selected(), Range(5, 5));
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
    EXPECT_TRUE(editor->HasBookmarks()); // so that F2 goes there
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

TEST_F(FindBars, HaveOneLineUntilSomethingIsToBeReplaced)
{
    RowForReplacing().setChecked(false);
    SetText("one two");
    bar.Open();
    EXPECT_FALSE(Box("replaceText").isVisible());
    Seek("one");
    bar.FindNext();
    Action("replace").trigger();
    EXPECT_TRUE(Box("replaceText").isVisible());
    EXPECT_EQ(editor->GetText(), "one two") << "the first time it only shows where to type";
    ReplaceWith("1");
    Action("replace").trigger();
    EXPECT_EQ(editor->GetText(), "one two") << "nor later: that is the button's";
    bar.findChild<QPushButton*>("replaceButton")->click();
    EXPECT_EQ(editor->GetText(), "1 two");
    RowForReplacing().click();
    EXPECT_FALSE(Box("replaceText").isVisible());
}

TEST_F(FindBars, HaveTheRowForReplacingOnlyWhereItIsAskedFor)
{
    SetText("one two");
    Action("replace").trigger();
    EXPECT_TRUE(Box("replaceText").isVisible());
    Action("find").trigger();
    EXPECT_FALSE(Box("replaceText").isVisible());
}

TEST_F(FindBars, LeadFromWhatIsSoughtToWhatItBecomes)
{
    SetText("one two");
    Seek("");
    const auto press = [this] {
        Action("replace").trigger();
        return window.focusWidget();
    };
    EXPECT_EQ(press(), &Box("findText"));
    Seek("");
    EXPECT_EQ(press(), &Box("findText")) << "which is to be typed first";
    Seek("two");
    EXPECT_EQ(press(), &Box("replaceText"));
    EXPECT_EQ(press(), &Box("findText"));
    EXPECT_EQ(Box("findText").lineEdit()->selectedText(), "two");
    bar.findChild<QPushButton*>("replaceAllButton")->setFocus();
    EXPECT_EQ(press(), &Box("findText"));
    EXPECT_EQ(editor->GetText(), "one two");
}

TEST_F(FindBars, NameTheirFieldsWhateverStandsInThem)
{
    bar.Open();
    Seek("cust");
    ReplaceWith("client");
    struct Field
    {
        const char* box;
        const char* name;
        const char* value;
    };
    for (const Field& row :
         {Field{"findText", "Find", "cust"}, Field{"replaceText", "Replace with", "client"}}) {
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&Box(row.box));
        EXPECT_EQ(spoken->text(QAccessible::Name), row.name);
        EXPECT_EQ(spoken->text(QAccessible::Value), row.value);
        EXPECT_EQ(spoken->role(), QAccessible::ComboBox);
        QAccessibleInterface* line = QAccessible::queryAccessibleInterface(Box(row.box).lineEdit());
        EXPECT_EQ(line->text(QAccessible::Name), row.name);
        EXPECT_EQ(line->text(QAccessible::Value), row.value);
        const int place = spoken->indexOfChild(line);
        ASSERT_GE(place, 0);
        EXPECT_EQ(spoken->child(place), line);
        EXPECT_TRUE(spoken->actionInterface()->actionNames().contains(
            QAccessibleActionInterface::showMenuAction()));
    }
}

TEST_F(FindBars, ArePassedByTabAsTheyAreSeenButForBothFieldsAtOnce)
{
    window.resize(2000, 300); // a row for each
    SetText("one two");
    bar.Open();
    Seek("one");
    Settle();
    const auto place = [this](const QWidget* part) { // its row, and where in there
        const QPoint at = part->mapTo(&bar, part->rect().center());
        return std::pair(at.y() > Box("findText").geometry().bottom(), at.x());
    };
    QWidget* first = &RowForReplacing();
    first->setFocus();
    QList<QWidget*> passed;
    for (QWidget* at = first; passed.size() < 30 && bar.isAncestorOf(at);
         at = window.focusWidget()) {
        passed << at;
        QTest::keyClick(at, Qt::Key_Tab);
    }
    EXPECT_EQ(passed.size(), 16);
    const qsizetype find = passed.indexOf(&Box("findText"));
    EXPECT_EQ(passed.indexOf(&Box("replaceText")), find + 1);
    passed.removeAt(find + 1);
    for (qsizetype i = 1; i < passed.size(); ++i)
        EXPECT_LT(place(passed[i - 1]), place(passed[i]))
            << passed[i - 1]->objectName().toStdString() << " before "
            << passed[i]->objectName().toStdString();
}

TEST_F(FindBars, PressTheButtonThatHasTheKeyboard)
{
    SetText("one two one");
    bar.Open();
    Seek("one");
    ReplaceWith("1");
    const auto enter = [this](const char* button) {
        auto* pressed = bar.findChild<QAbstractButton*>(QLatin1String(button));
        pressed->setFocus();
        Press(*pressed, Qt::Key_Return);
    };
    enter("countMatchesButton");
    EXPECT_EQ(Result(), "2 found");
    enter("replaceAllButton");
    EXPECT_EQ(editor->GetText(), "1 two 1");
    enter("closeFind");
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

TEST_F(FindBars, ShowTheFirstMatchFromWhereTheyWereOpenedAtEachLetter)
{
    SetText("only on one once");
    editor->SetSel(5, 5, 1);
    bar.Open();
    for (const auto& [typed, start, result] : {std::tuple("o", 5L, "2 of 4"),
                                               {"on", 5L, "2 of 4"},
                                               {"one", 8L, "1 of 1"},
                                               {"on", 5L, "2 of 4"},
                                               {"onl", 0L, "1 of 1, gone round"}}) {
        Seek(typed);
        Settle();
        EXPECT_EQ(Selected(), Range(start, start + qsizetype(strlen(typed)))) << typed;
        EXPECT_EQ(Result(), result) << typed;
    }
    Seek("on");
    Set("wholeWord", true);
    Settle();
    EXPECT_EQ(Result(), "1 of 1");
    Seek("none");
    Settle();
    EXPECT_EQ(Result(), "Not found");
    EXPECT_EQ(Selected(), Range(5, 5));
}

TEST_F(FindBars, StayAtTheMatchOnEscape)
{
    SetText("a--b" + QString("\n").repeated(196) + "one two one");
    editor->SetSel(3, 1, 1);
    bar.Open();
    Seek("two");
    Settle();
    ASSERT_EQ(Selected(), Range(204, 207));
    const int top = editor->GetFirstVisibleLine(1);
    Press(Box("findText"), Qt::Key_Escape);
    EXPECT_TRUE(bar.isHidden());
    EXPECT_EQ(Selected(), Range(204, 207));
    EXPECT_EQ(editor->GetFirstVisibleLine(1), top);
    bar.Open(); // from there on
    Seek("one");
    Settle();
    EXPECT_EQ(Selected(), Range(208, 211));
}

TEST_F(FindBars, LeaveACaretThatSomebodyElseHasMoved)
{
    SetText("one two one");
    bar.Open();
    Seek("two");
    Settle();
    editor->SetSel(9, 9, 1);
    Press(Box("findText"), Qt::Key_Escape);
    EXPECT_EQ(Selected(), Range(9, 9));
}

TEST_F(FindBars, TellThePlaceOfTheWordAtTheCaretAndLeaveIt)
{
    SetText("one two one");
    editor->SetSel(10, 10, 1);
    bar.Open();
    Settle();
    EXPECT_EQ(Result(), "2 of 2");
    EXPECT_EQ(Selected(), Range(10, 10));
}

TEST_F(FindBars, KeepTheExpressionWhoseMatchIsSelected)
{
    SetText("one two");
    bar.Open();
    Set("expression", true);
    Seek("t.o");
    Settle();
    ASSERT_EQ(Selected(), Range(4, 7));
    bar.Open();
    EXPECT_EQ(Box("findText").currentText(), "t.o");
}

TEST_F(FindBars, ReplaceOnTheFirstEnterOnlyWhatWasShown)
{
    SetText("one two one");
    bar.Open();
    Seek("one");
    ReplaceWith("1");
    Press(Box("replaceText"), Qt::Key_Return);
    EXPECT_EQ(widget.text(), "one two one");
    EXPECT_EQ(Selected(), Range(0, 3));
    Press(Box("replaceText"), Qt::Key_Return);
    EXPECT_EQ(widget.text(), "1 two one");
    EXPECT_EQ(Result(), "1 of 1");
}

TEST_F(FindBars, CountMoreThanAThousand)
{
    SetText(QString("one\n").repeated(30000));
    bar.Open();
    Seek("one");
    bar.FindNext();
    const QString all = QString("1 of %1").arg(QLocale().toString(30000));
    EXPECT_TRUE(QTest::qWaitFor([&] { return Result() == all; })) << Result().toStdString();
}

TEST_F(FindBars, CountAnewOnceTheTextHasChanged)
{
    SetText("one two one");
    bar.Open();
    Seek("one");
    Settle();
    ASSERT_EQ(Result(), "1 of 2");
    editor->InsertText(11, u" one", 1);
    bar.OnTextChanged();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Result() == "1 of 3"; })) << Result().toStdString();
}

TEST_F(FindBars, HaveAllInSightInANarrowWindow)
{
    bar.Open();
    for (const int width : {1100, 480, 330}) {
        window.resize(width, 500);
        Settle();
        EXPECT_EQ(window.width(), width);
        for (const QWidget* part : bar.findChildren<QWidget*>()) {
            if (!part->isVisible() || part->isWindow())
                continue;
            const QRect place(part->mapTo(&window, QPoint()), part->size());
            EXPECT_TRUE(window.rect().contains(place))
                << width << ' ' << part->objectName().toStdString();
            EXPECT_GE(part->width(),
                      qobject_cast<const QCheckBox*>(part) ? part->sizeHint().width() : 1);
        }
    }
}

TEST_F(FindBars, ShowAllThatIsWrong)
{
    bar.Open();
    Set("expression", true);
    Seek("[a");
    const auto* result = bar.findChild<QLabel*>("findResult");
    ASSERT_TRUE(Result().startsWith("No expression"));
    for (const int width : {1500, 1100, 560}) {
        window.resize(width, 500);
        Settle();
        EXPECT_GE(result->width(), result->sizeHint().width()) << width;
    }
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
