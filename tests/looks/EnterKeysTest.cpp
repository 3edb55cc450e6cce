// SPDX-License-Identifier: GPL-3.0-or-later
// Enter in brackets, with keys as they are typed.
#include "control/Completion.h"
#include "control/Selections.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/ZNCoreEditorWidget.h"
#include "platform/services/OptionsServer.h"
#include "tests/RandomSeed.h"
#include "tests/control/ControlFixture.h"

#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace {

constexpr int kTransactSql = 3;
constexpr int kCrLf = 1;

class EnterKeysTest : public testing::Test
{
protected:
    EnterKeysTest()
    {
        face.setScheme(QStringLiteral("Light"));
        face.setLanguage(kTransactSql);
        face.resize(500, 300);
        control.SetAutoIndent(1);
        Close(true);
    }
    ~EnterKeysTest() override { Close(false); }

    static void Close(bool closes)
    {
        CZNOptionsServer::GetObjectW()->SetInt(option::ClosePairs, closes ? 1 : 0);
    }

    // Carets stand at the bars, which are none of the text.
    void Put(QString text)
    {
        std::vector<engine::SelectionEnds> carets;
        for (auto at = text.indexOf(u'|'); at >= 0; at = text.indexOf(u'|')) {
            carets.push_back({int(at), int(at)});
            text.remove(at, 1);
        }
        control.SetUndoCollection(0, 1);
        face.setText(text);
        control.SetUndoCollection(1, 1);
        control.EmptyUndoBuffer(1);
        control.Call(engine::kSetSelections, carets.size(), reinterpret_cast<LPARAM>(carets.data()),
                     1);
    }

    std::string Shown()
    {
        std::vector<engine::SelectionEnds> carets(
            std::size_t(control.Call(engine::kGetSelections, 0, 0, 1)));
        control.Call(engine::kGetSelections, carets.size(), reinterpret_cast<LPARAM>(carets.data()),
                     1);
        std::ranges::sort(carets, std::greater(), &engine::SelectionEnds::caret);
        QString text = face.text();
        for (const auto& each : carets)
            text.insert(each.caret, u'|');
        return text.toStdString();
    }

    std::string EnterAt(const QString& marked)
    {
        Put(marked);
        QTest::keyClick(control.GetSafeHwnd(), Qt::Key_Return);
        return Shown();
    }

    ZNCoreEditorWidget face;
    CZNCoreEditorControlEx& control = face.control();
};

} // namespace

TEST_F(EnterKeysTest, OpensALineBetweenABracketAndItsPartner)
{
    EXPECT_EQ(EnterAt("create table t (|)"), "create table t (\n    |\n)");
    EXPECT_EQ(EnterAt("  f(|);\nb"), "  f(\n      |\n  );\nb");
    EXPECT_EQ(EnterAt("  {|} x"), "  {\n      |\n  } x");
    EXPECT_EQ(EnterAt("g( |)"), "g( \n    |\n)");
    ASSERT_TRUE(face.setLanguageForFile(QStringLiteral("a.cpp")));
    control.SetAutoIndent(1);
    EXPECT_EQ(EnterAt("a[|]"), "a[\n    |\n]");
}

TEST_F(EnterKeysTest, StepsInBehindABracketThatEndsItsLine)
{
    EXPECT_EQ(EnterAt("  values (|\nx"), "  values (\n      |\nx");
    EXPECT_EQ(EnterAt("{|"), "{\n    |");
    EXPECT_EQ(EnterAt("f(|a)"), "f(\n|a)");
    EXPECT_EQ(EnterAt("  f(a|)"), "  f(a\n  |)");
    EXPECT_EQ(EnterAt("  f()|"), "  f()\n  |");
    EXPECT_EQ(EnterAt("f(|]"), "f(\n|]");
}

TEST_F(EnterKeysTest, TakesTheIndentationOfTheEditor)
{
    control.SetIndent(2, 1);
    EXPECT_EQ(EnterAt("  (|)"), "  (\n    |\n  )");
    control.SetIndent(0, 1);
    control.SetTabWidth(3, 1);
    EXPECT_EQ(EnterAt("(|)"), "(\n   |\n)");
    control.SetUseTabs(1, 1);
    EXPECT_EQ(EnterAt("\t(|)"), "\t(\n\t\t|\n\t)");
    control.SetAutoIndent(2);
    EXPECT_EQ(EnterAt("{|"), "{\n\t|");
    control.SetEOLMode(kCrLf, 1);
    EXPECT_EQ(EnterAt("(|)"), "(\r\n\t|\r\n)");
}

TEST_F(EnterKeysTest, LeavesCommentsAndStringsAlone)
{
    EXPECT_EQ(EnterAt("/* (|) */"), "/* (\n|) */");
    EXPECT_EQ(EnterAt("-- a (|"), "-- a (\n|");
    EXPECT_EQ(EnterAt("select 'a (|)'"), "select 'a (\n|)'");
    EXPECT_EQ(EnterAt("select [|]"), "select [\n|]"); // a name
}

TEST_F(EnterKeysTest, IsAsEverywhereUnlessTheOptionsSaySo)
{
    control.SetAutoIndent(0);
    EXPECT_EQ(EnterAt("  (|)"), "  (\n|)");
    control.SetAutoIndent(1);
    Close(false);
    EXPECT_EQ(EnterAt("  (|)"), "  (\n  |)");
    Close(true);
    control.SetReadOnly(1, 1);
    QTest::keyClick(control.GetSafeHwnd(), Qt::Key_Return);
    EXPECT_EQ(Shown(), "  (\n  |)");
    control.SetReadOnly(0, 1);
    control.SetScheme(QString());
    control.SetAutoIndent(1);
    EXPECT_EQ(EnterAt("  (|)"), "  (\n  |)");
}

TEST_F(EnterKeysTest, IsOneStepOfUndo)
{
    EXPECT_EQ(EnterAt("  f(|)"), "  f(\n      |\n  )");
    control.Undo(1);
    EXPECT_EQ(Shown(), "  f(|)");
    EXPECT_FALSE(control.CanUndo(1));
    control.Redo(1);
    EXPECT_EQ(face.text(), "  f(\n      \n  )");
}

TEST_F(EnterKeysTest, OpensALineAtEachOfSeveralCarets)
{
    EXPECT_EQ(EnterAt("a (|)\n  b (|);\n  c|"), "a (\n    |\n)\n  b (\n      |\n  );\n  c\n  |");
    QTest::keyClick(control.GetSafeHwnd(), Qt::Key_X);
    EXPECT_EQ(Shown(), "a (\n    x|\n)\n  b (\n      x|\n  );\n  c\n  x|");
    control.Undo(1);
    control.Undo(1);
    EXPECT_EQ(face.text(), "a ()\n  b ();\n  c");
    EXPECT_FALSE(control.CanUndo(1));
}

TEST_F(EnterKeysTest, IsOneStepOfUndoWithTheIndentationOfItsLine)
{
    EXPECT_EQ(EnterAt("    select 1|;"), "    select 1\n    |;");
    face.undo();
    EXPECT_EQ(Shown(), "    select 1|;");
    EXPECT_FALSE(control.CanUndo(1));
    face.redo();
    EXPECT_EQ(Shown(), "    select 1\n    |;");
}

TEST_F(EnterKeysTest, IsOneStepOfUndoWithWhatIsTypedInItsLine)
{
    for (const auto& [marked, lineTyped] :
         {std::pair("  a|", "  ab\n  cd|"), std::pair("a|", "ab\ncd|"),
          std::pair("  f(|)", "  f(b\n  cd|)"),
          std::pair("  a|\n  a|", "  ab\n  cd|\n  ab\n  cd|")}) {
        Put(marked);
        const std::string text = face.text().toStdString();
        const auto type = [this](Qt::Key key) { QTest::keyClick(control.GetSafeHwnd(), key); };
        type(Qt::Key_B);
        const std::string letter = Shown();
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_C, Qt::Key_D})
            type(key);
        EXPECT_EQ(Shown(), lineTyped);
        face.undo();
        EXPECT_EQ(Shown(), letter);
        face.undo();
        EXPECT_EQ(face.text().toStdString(), text);
        EXPECT_FALSE(control.CanUndo(1)) << marked;
        face.redo();
        EXPECT_EQ(Shown(), letter);
        face.redo();
        EXPECT_EQ(Shown(), lineTyped);
    }
}

TEST_F(EnterKeysTest, BeginsAStepForEachLine)
{
    Put("  |");
    for (const Qt::Key key : {Qt::Key_A, Qt::Key_Return, Qt::Key_B, Qt::Key_Return, Qt::Key_C})
        QTest::keyClick(control.GetSafeHwnd(), key);
    for (const char* left : {"  a\n  b\n  c|", "  a\n  b|", "  a|", "  |"}) {
        EXPECT_EQ(Shown(), left);
        face.undo();
    }
    EXPECT_FALSE(control.CanUndo(1));
}

TEST_F(EnterKeysTest, EndsItsStepWhereTheCaretMovesAndWhereTheTextIsSaved)
{
    const auto type = [this](Qt::Key key) { QTest::keyClick(control.GetSafeHwnd(), key); };
    EXPECT_EQ(EnterAt("  a|"), "  a\n  |");
    type(Qt::Key_B);
    type(Qt::Key_Left);
    type(Qt::Key_Right);
    type(Qt::Key_C);
    control.SetSavePoint(1);
    type(Qt::Key_D);
    for (const char* left : {"  a\n  bcd|", "  a\n  bc|", "  a\n  b|", "  a|"}) {
        EXPECT_EQ(Shown(), left);
        EXPECT_EQ(face.isModified(), std::string(left) != "  a\n  bc|") << left;
        face.undo();
    }
    EXPECT_FALSE(control.CanUndo(1));
}

TEST_F(EnterKeysTest, IsOneStepOfUndoWithTheIndentationOfTheLanguage)
{
    Close(false);
    control.SetAutoIndent(2);
    EXPECT_EQ(EnterAt("f()|"), "f()\n    |") << "a step further in";
    QTest::keyClick(control.GetSafeHwnd(), Qt::Key_X);
    face.undo();
    EXPECT_EQ(Shown(), "f()|");
    EXPECT_FALSE(control.CanUndo(1));
}

// Outside of brackets, too, whatever the options say of pairs.
TEST_F(EnterKeysTest, LeavesEachOfSeveralCaretsInItsLine)
{
    Close(false);
    EXPECT_EQ(EnterAt("  id int,|\n  name text,|\nlast|"),
              "  id int,\n  |\n  name text,\n  |\nlast\n|");
    QTest::keyClick(control.GetSafeHwnd(), Qt::Key_Q);
    EXPECT_EQ(Shown(), "  id int,\n  q|\n  name text,\n  q|\nlast\nq|");
    control.SetAutoIndent(0);
    EXPECT_EQ(EnterAt("  a|\n  b|"), "  a\n|\n  b\n|");
}

TEST_F(EnterKeysTest, BreaksEachLineOfAColumn)
{
    Put("id int\nname text\nkind char");
    const engine::ColumnCorners corners = {{2, 19}}; // behind two letters of each line
    control.Call(engine::kSetColumns, 0, reinterpret_cast<LPARAM>(&corners), 1);
    QTest::keyClick(control.GetSafeHwnd(), Qt::Key_Return);
    EXPECT_EQ(Shown(), "id\n| int\nna\n|me text\nki\n|nd char");
    face.undo();
    EXPECT_EQ(face.text(), "id int\nname text\nkind char");
    EXPECT_FALSE(control.CanUndo(1));
}

TEST_F(EnterKeysTest, TakesTheRowOfAListThatTheHostHasOpened)
{
    std::vector<std::shared_ptr<znsqlassist::SQLCompletionProposal>> proposals = {
        std::make_shared<znsqlassist::SQLCompletionProposal>(u"select", -1)};
    const AutoCompleteConfig config{nullptr, 1, 0, 1};
    face.show();
    Put("    f(|)");
    control.AutoCShow(&config, &proposals, 1);
    ASSERT_TRUE(control.AutoCActive(1));
    QTest::keyClick(control.GetSafeHwnd(), Qt::Key_Return);
    EXPECT_EQ(Shown(), "    f(select|)");
}

TEST_F(EnterKeysTest, IsPlayedByMacros)
{
    Put("  |");
    face.startRecording();
    for (const char c : std::string("f("))
        QTest::keyClick(control.GetSafeHwnd(), c);
    QTest::keyClick(control.GetSafeHwnd(), Qt::Key_Return);
    QTest::keyClick(control.GetSafeHwnd(), 'x');
    face.stopRecording();
    EXPECT_EQ(Shown(), "  f(\n      x|\n  )");
    Put("|");
    Close(false);
    face.playMacro();
    EXPECT_EQ(Shown(), "f(\n      x|\n  )");
}

// Pieces of code, strings and comments, in any order.
class EnterKeysAnywhere : public EnterKeysTest
{
protected:
    qsizetype Below(qsizetype n)
    {
        return std::uniform_int_distribution<qsizetype>(0, n - 1)(random);
    }
    QString Code(int pieces)
    {
        static const QStringList kPieces = {"(",  ")",  "()", "{}",     "[]",
                                            "  ", "\n", "ab", "'s ()'", "--c (\n"};
        QString text;
        while (pieces-- > 0)
            text += kPieces[Below(kPieces.size())];
        return text;
    }

    const unsigned seed = RandomSeed();
    std::mt19937 random{seed};
    testing::ScopedTrace trace{__FILE__, __LINE__, "seed " + std::to_string(seed)};
};

TEST_F(EnterKeysAnywhere, AddsBlanksAloneAndIsTakenBackByUndo)
{
    const auto withoutBlanks = [](QString text) {
        return text.remove(u' ').remove(u'\n').toStdString();
    };
    for (int round = 0; round < 150; ++round) {
        QString marked = Code(20);
        const std::string text = marked.toStdString();
        const auto first = Below(marked.size() + 1);
        marked.insert(first, u'|');
        if (round % 2 != 0 && first + 2 <= marked.size())
            marked.insert(first + 2 + Below(marked.size() - first - 1), u'|');
        EnterAt(marked);
        EXPECT_EQ(withoutBlanks(face.text()), withoutBlanks(QString::fromStdString(text)))
            << marked.toStdString();
        while (control.CanUndo(1)) // elsewhere the indentation is a step of its own
            control.Undo(1);
        EXPECT_EQ(face.text().toStdString(), text) << marked.toStdString();
    }
}

TEST_F(EnterKeysAnywhere, DoesInStringsAndCommentsWhatItDoesWithoutTheOption)
{
    const QStringList within = {"'(|)'",    "'a (|\n'", "--(|)\n",
                                "--a (|\n", "/*{|}*/",  "/*a (|\n*/"};
    for (int round = 0; round < 36; ++round) {
        const QString marked = Code(8) + u' ' + within[round % within.size()] + Code(8);
        Close(true);
        const std::string with = EnterAt(marked);
        Close(false);
        EXPECT_EQ(with, EnterAt(marked)) << marked.toStdString();
    }
}
