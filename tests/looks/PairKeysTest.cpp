// SPDX-License-Identifier: GPL-3.0-or-later
// Brackets and quotes that close themselves while somebody types.
#include "control/Selections.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "platform/services/OptionsServer.h"
#include "tests/RandomSeed.h"
#include "tests/control/ControlFixture.h"

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

#include <random>

namespace {

constexpr int kTransactSql = 3;

class PairKeysTest : public testing::Test
{
protected:
    PairKeysTest()
    {
        face.setScheme(QStringLiteral("Light"));
        face.setLanguage(kTransactSql);
        face.resize(500, 300);
        control.SetAutoIndent(0);
        Close(true);
    }
    ~PairKeysTest() override { Close(false); }

    static void Close(bool closes)
    {
        CZNOptionsServer::GetObjectW()->SetInt(option::ClosePairs, closes ? 1 : 0);
    }

    // The caret stands at the bar, which is none of the text.
    void Put(QString text)
    {
        const auto caret = text.indexOf(u'|');
        control.SetUndoCollection(0, 1);
        face.setText(text.remove(u'|'));
        control.SetUndoCollection(1, 1);
        control.EmptyUndoBuffer(1);
        control.GotoPos(static_cast<long>(caret), 1);
    }

    std::string Shown()
    {
        QString text = face.text();
        text.insert(control.GetCurrentPos(1), u'|');
        return text.toStdString();
    }

    void Type(const QString& text)
    {
        for (const QChar c : text)
            QTest::keyClick(control.GetSafeHwnd(), c == u'\n' ? '\r' : c.toLatin1());
    }

    std::string Typed(const QString& at, const QString& text)
    {
        Put(at);
        Type(text);
        return Shown();
    }

    ZNCoreEditorWidget face;
    CZNCoreEditorControlEx& control = face.control();
};

} // namespace

TEST_F(PairKeysTest, PutInAPartnerWhereThereIsRoomForIt)
{
    EXPECT_EQ(Typed("|", "("), "(|)");
    EXPECT_EQ(Typed("a| b", "["), "a[|] b");
    EXPECT_EQ(Typed("f(|, 1)", "{"), "f({|}, 1)");
    EXPECT_EQ(Typed("f(|)", "("), "f((|))");
    EXPECT_EQ(Typed("|a", "("), "(|a");
    EXPECT_EQ(Typed("|'a'", "("), "(|'a'");
    EXPECT_EQ(Typed("x = |;", "'"), "x = '|';");
    EXPECT_EQ(Typed("|a", "\""), "\"|a");
}

TEST_F(PairKeysTest, LeaveAQuoteAloneWhereItEndsSomething)
{
    EXPECT_EQ(Typed("'abc|", "'"), "'abc'|");
    EXPECT_EQ(Typed("word|", "'"), "word'|");
    EXPECT_EQ(Typed("N|", "'"), "N'|");
    EXPECT_EQ(Typed("''|", "'"), "'''|");
    EXPECT_EQ(Typed("'a |", "'"), "'a '|");
    EXPECT_EQ(Typed("'a\n |", "'"), "'a\n '|");
    EXPECT_EQ(Typed("-- it |", "'"), "-- it '|");
    EXPECT_EQ(Typed("/* it |\n*/", "\""), "/* it \"|\n*/");
    EXPECT_EQ(Typed("/* it */|", "'"), "/* it */'|'");
    EXPECT_EQ(Typed("[a |]", "'"), "[a '|]"); // a name
}

TEST_F(PairKeysTest, LeaveABracketAloneInCommentsAndStrings)
{
    EXPECT_EQ(Typed("-- close |", "(this"), "-- close (this|");
    EXPECT_EQ(Typed("/* a |", "["), "/* a [|");
    EXPECT_EQ(Typed("select 'a |'", "("), "select 'a (|'");
    EXPECT_EQ(Typed("-- above\n|", "("), "-- above\n(|)");
}

TEST_F(PairKeysTest, AreTakenBackLineByLine)
{
    EXPECT_EQ(Typed("|", "f(a\nb"), "f(a\nb|)");
    control.Undo(1);
    EXPECT_EQ(Shown(), "f(a|)");
    while (control.CanUndo(1))
        control.Undo(1);
    EXPECT_EQ(Shown(), "|");
}

TEST_F(PairKeysTest, AreSteppedOverByTypingThem)
{
    EXPECT_EQ(Typed("|", "f(g(1), [a])"), "f(g(1), [a])|");
    EXPECT_EQ(Typed("|", "SELECT count(*) FROM t WHERE x = 'a''b';"),
              "SELECT count(*) FROM t WHERE x = 'a''b';|");
    EXPECT_EQ(Typed("f(|)", ")"), "f()|)"); // that one was there
}

TEST_F(PairKeysTest, AreNoPairAnyMoreOnceTheCaretHasLeft)
{
    Put("|");
    Type("(");
    QTest::keyClick(control.GetSafeHwnd(), Qt::Key_Right);
    QTest::keyClick(control.GetSafeHwnd(), Qt::Key_Left);
    Type(")");
    EXPECT_EQ(Shown(), "()|)");
    Put("|");
    Type("(");
    QTest::keyClick(control.GetSafeHwnd(), Qt::Key_Left);
    QTest::keyClick(control.GetSafeHwnd(), Qt::Key_Right);
    QTest::keyClick(control.GetSafeHwnd(), Qt::Key_Backspace);
    EXPECT_EQ(Shown(), "|)");
}

TEST_F(PairKeysTest, GoTogetherByBackspaceWhileTheyAreEmpty)
{
    Put("a |");
    Type("({'");
    EXPECT_EQ(Shown(), "a ({'|'})");
    QTest::keyClick(control.GetSafeHwnd(), Qt::Key_Backspace);
    EXPECT_EQ(Shown(), "a ({|})");
    Type("x");
    QTest::keyClick(control.GetSafeHwnd(), Qt::Key_Backspace);
    QTest::keyClick(control.GetSafeHwnd(), Qt::Key_Backspace);
    QTest::keyClick(control.GetSafeHwnd(), Qt::Key_Backspace);
    EXPECT_EQ(Shown(), "a |");
    Put("(|)"); // which nobody put in
    QTest::keyClick(control.GetSafeHwnd(), Qt::Key_Backspace);
    EXPECT_EQ(Shown(), "|)");
}

TEST_F(PairKeysTest, AreOneStepOfUndo)
{
    Put("a |");
    Type("(");
    control.Undo(1);
    EXPECT_EQ(face.text(), "a ");
    EXPECT_FALSE(control.CanUndo(1));
    control.Redo(1);
    EXPECT_EQ(face.text(), "a ()");
    Type("(");
    QTest::keyClick(control.GetSafeHwnd(), Qt::Key_Backspace);
    control.Undo(1);
    control.Undo(1);
    EXPECT_EQ(face.text(), "a ()");
}

TEST_F(PairKeysTest, AreNoneForSeveralCaretsOverwritingAndReadOnlyText)
{
    Put("a\nb\n|");
    const engine::SelectionEnds ends[] = {{1, 1}, {3, 3}};
    control.Call(engine::kSetSelections, 2, reinterpret_cast<LPARAM>(ends), 1);
    Type("(");
    EXPECT_EQ(face.text(), "a(\nb(\n");
    control.SetOvertype(1, 1);
    EXPECT_EQ(Typed("|", "("), "(|");
    control.SetOvertype(0, 1);
    Put("|");
    control.SetReadOnly(1, 1);
    Type("(");
    EXPECT_EQ(face.text(), "");
}

TEST_F(PairKeysTest, AreOffUnlessTheOptionSaysSo)
{
    Close(false);
    EXPECT_EQ(Typed("|", "('"), "('|");
    CZNOptionsServer fresh;
    EXPECT_EQ(fresh.GetInt(option::ClosePairs), 0);
    Close(true);
    control.SetScheme(QString());
    EXPECT_EQ(Typed("|", "("), "(|");
}

TEST_F(PairKeysTest, ArePlayedByMacros)
{
    Put("|");
    face.startRecording();
    Type("f('x', [])(");
    QTest::keyClick(control.GetSafeHwnd(), Qt::Key_Backspace);
    Type(";");
    face.stopRecording();
    EXPECT_EQ(Shown(), "f('x', []);|");
    Close(false);
    face.playMacro();
    EXPECT_EQ(Shown(), "f('x', []);f('x', []);|");
}

// With a partner for each or without: what is typed straight on is the text.
TEST_F(PairKeysTest, LeaveTheTextThatIsTyped)
{
    const unsigned seed = RandomSeed();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 random(seed);
    const QString letters = QStringLiteral("()[]{}''\"\"(['\"ab ,;-\n*/");
    for (int round = 0; round < 150; ++round) {
        QString typed;
        for (int i = 0; i < 25; ++i)
            typed +=
                letters[std::uniform_int_distribution<qsizetype>(0, letters.size() - 1)(random)];
        Put("|");
        Type(typed);
        const QString closers = face.text().mid(control.GetCurrentPos(1));
        Type(closers);
        EXPECT_EQ(face.text().toStdString(), (typed + closers).toStdString());
        while (control.CanUndo(1))
            control.Undo(1);
        EXPECT_EQ(face.text(), "");
    }
}
