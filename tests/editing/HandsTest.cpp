// SPDX-License-Identifier: GPL-3.0-or-later
// The gestures of hands/Hands.def, by their numbers.
#include "EditingFixture.h"

#include "control/Selections.h"
#include "editing/hands/Hands.h"
#include "editing/language/KeyTable.h"
#include "tests/RandomSeed.h"

#include <QClipboard>

#include <set>

namespace {

class HandsTest : public EditingTest
{
protected:
    HandsTest()
    {
        control.SetLexer(3, 1);
        control.SetProperty(u"fold", u"1", 1);
    }
    ~HandsTest() override { control.SetLexer(0, 1); }

    void Do(const char* name)
    {
        for (const HandRow& row : Hands()) {
            if (std::string_view(row.name) == name) {
                EXPECT_TRUE(control.OnCmdMsg(row.number, CN_COMMAND, nullptr, nullptr));
                return;
            }
        }
        ADD_FAILURE() << name;
    }

    using Ends = std::vector<std::pair<int, int>>; // anchor and caret

    Ends Selections()
    {
        std::vector<engine::SelectionEnds> all(
            static_cast<std::size_t>(control.Call(engine::kGetSelections, 0, 0, 1)));
        control.Call(engine::kGetSelections, all.size(), reinterpret_cast<LPARAM>(all.data()), 1);
        Ends ends;
        for (const engine::SelectionEnds& each : all)
            ends.emplace_back(each.anchor, each.caret);
        return ends;
    }

    std::u16string After(const char* name, const std::u16string& marked)
    {
        Put(marked);
        Do(name);
        return Marked();
    }
};

TEST_F(HandsTest, CommentTheLineAtTheSameColumnAndTakeItBack)
{
    EXPECT_EQ(After("toggleComment", u"  se|lect"), u"  -- se|lect");
    Do("toggleComment");
    EXPECT_EQ(Marked(), u"  se|lect");
}

TEST_F(HandsTest, CommentLinesAtTheIndentationTheyShareAndLeaveBlankOnes)
{
    EXPECT_EQ(After("toggleComment", u"[  a\n\n    b]|"), u"[  -- a\n\n  --   b]|");
    Do("toggleComment");
    EXPECT_EQ(Marked(), u"[  a\n\n    b]|");
}

TEST_F(HandsTest, CommentLinesOfWhichSomeAreCommentsOnceMore)
{
    EXPECT_EQ(After("toggleComment", u"[-- a\nb\n]|"), u"[-- -- a\n-- b\n]|");
    Do("toggleComment");
    EXPECT_EQ(Text(), u"-- a\nb\n");
}

TEST_F(HandsTest, CommentByABlockWhereALanguageHasNothingElse)
{
    control.Reset();
    control.AddBlockComment(QStringLiteral("<!--"), QStringLiteral("-->"));
    EXPECT_EQ(After("toggleComment", u" a|b"), u" <!--a|b-->");
    Do("toggleComment");
    EXPECT_EQ(Text(), u" ab");
    EXPECT_EQ(After("toggleComment", u"[a --> b]|"), u"[a --> b]|");
}

TEST_F(HandsTest, MoveLinesWithTheirSelection)
{
    EXPECT_EQ(After("moveLinesUp", u"a\nb[b\nc]|c\nd"), u"b[b\nc]|c\na\nd");
    EXPECT_EQ(After("moveLinesDown", u"a\nb[b\nc]|c\nd"), u"a\nd\nb[b\nc]|c");
    EXPECT_EQ(After("moveLinesUp", u"|a\nb"), u"|a\nb");
    EXPECT_EQ(After("moveLinesDown", u"a\nb|"), u"a\nb|");
    EXPECT_EQ(After("moveLinesDown", u"a|\nb\n"), u"b\na|\n");
}

TEST_F(HandsTest, MoveBookmarksWithTheirLines)
{
    Put(u"a\nb|\nc");
    control.MarkerAdd(1, 0, 1);
    Do("moveLinesDown");
    EXPECT_EQ(control.MarkerNext(0, 1, 1), 2);
    Do("moveLinesUp");
    EXPECT_EQ(control.MarkerNext(0, 1, 1), 1);
    control.MarkerDeleteAll(0, 1);
}

TEST_F(HandsTest, DuplicateTheSelectionOrTheLine)
{
    EXPECT_EQ(After("duplicate", u"a[bc]|d"), u"abc[bc]|d");
    EXPECT_EQ(After("duplicate", u"a|[bc]d"), u"abc|[bc]d");
    EXPECT_EQ(After("duplicate", u"ab|\nc"), u"ab|\nab\nc");
}

TEST_F(HandsTest, JoinLinesByOneBlankAtMost)
{
    EXPECT_EQ(After("joinLines", u"a|\n   b\nc"), u"a| b\nc");
    EXPECT_EQ(After("joinLines", u"[a \n\nb\n  c]|"), u"a |b c");
    EXPECT_EQ(After("joinLines", u"last|"), u"last|");
}

TEST_F(HandsTest, DeleteWholeLines)
{
    EXPECT_EQ(After("deleteLines", u"a\nb[b\nc]|c\nd"), u"a\n|d");
    EXPECT_EQ(After("deleteLines", u"a\nb|"), u"|a");
    EXPECT_EQ(After("deleteLines", u"only|"), u"|");
    EXPECT_EQ(After("deleteLines", u"[a\n]|b"), u"|b");
}

TEST_F(HandsTest, SelectOneLineMoreEachTime)
{
    EXPECT_EQ(After("selectLines", u"a|a\nbb\nc"), u"[aa\n]|bb\nc");
    Do("selectLines");
    EXPECT_EQ(Marked(), u"[aa\nbb\n]|c");
}

TEST_F(HandsTest, GrowASelectionAndShrinkItBack)
{
    const std::u16string steps[] = {
        u"select f(a, b|b); select 2;",   u"select f(a, [bb]|); select 2;",
        u"select f([a, bb]|); select 2;", u"select f[(a, bb)]|; select 2;",
        u"select [f(a, bb)]|; select 2;", u"[select f(a, bb);]| select 2;",
        u"[select f(a, bb); select 2;]|"};
    Put(steps[0]);
    for (std::size_t i = 1; i < std::size(steps); ++i) {
        Do("growSelection");
        EXPECT_EQ(Marked(), steps[i]) << i;
    }
    for (std::size_t i = std::size(steps) - 1; i > 0; --i) {
        Do("shrinkSelection");
        EXPECT_EQ(Marked(), steps[i - 1]) << i;
    }
}

TEST_F(HandsTest, SelectTheStatementAtTheCaret)
{
    EXPECT_EQ(After("selectStatement", u"select 1;\nselect\n\n 2|;\nselect 3;"),
              u"select 1;\n[select\n\n 2;]|\nselect 3;");
}

TEST_F(HandsTest, SelectTheWordAndThenOneOccurrenceMoreEachTime)
{
    EXPECT_EQ(After("addNextOccurrence", u"x a; a_b, a|, A; a"), u"x a; a_b, [a]|, A; a");
    Do("addNextOccurrence");
    EXPECT_EQ(Selections(), (Ends{{10, 11}, {16, 17}}));
    Do("addNextOccurrence"); // from the start on
    EXPECT_EQ(Selections(), (Ends{{10, 11}, {16, 17}, {2, 3}}));
    Do("addNextOccurrence");
    EXPECT_EQ(Selections(), (Ends{{10, 11}, {16, 17}, {2, 3}}));
    Type(u'y');
    EXPECT_EQ(Text(), u"x y; a_b, y, A; y");
}

TEST_F(HandsTest, SelectWhatIsNoWordWhereverItStands)
{
    EXPECT_EQ(After("addNextOccurrence", u"ab[ab]|c abab"), u"ababc [ab]|ab");
    Put(u"a|[.b] c.b x.b");
    Do("selectOccurrences");
    EXPECT_EQ(Selections(), (Ends{{7, 5}, {11, 9}, {3, 1}}));
    EXPECT_EQ(After("addNextOccurrence", u" | "), u" | ");
    EXPECT_EQ(After("selectOccurrences", u"|"), u"|");
}

TEST_F(HandsTest, SelectAllOccurrencesUpToAsManyAsCanBeEdited)
{
    std::u16string text = u"|";
    for (int i = 0; i < 6000; ++i)
        text += u"a ";
    Put(text);
    Do("selectOccurrences");
    EXPECT_EQ(Selections().size(), 5000U);
    EXPECT_EQ(control.GetCurrentPos(1), 1);
}

TEST_F(HandsTest, GoToTheOtherBracketFromBothSides)
{
    EXPECT_EQ(After("matchingBracket", u"a|(b(c))"), u"a(b(c)|)");
    Do("matchingBracket");
    EXPECT_EQ(Marked(), u"a|(b(c))");
    EXPECT_EQ(After("matchingBracket", u"(b)| c"), u"(|b) c");
    EXPECT_EQ(After("matchingBracket", u"f(a, (b), c| + 1)"), u"f|(a, (b), c + 1)");
    EXPECT_EQ(After("matchingBracket", u"(a) b| (c)"), u"(a) b| (c)");
}

TEST_F(HandsTest, SurroundWhatIsSelected)
{
    EXPECT_EQ(After("surroundParentheses", u"a[b]|c"), u"a([b]|)c");
    EXPECT_EQ(After("surroundQuotes", u"a|[b]c"), u"a'|[b]'c");
    EXPECT_EQ(After("surroundBrackets", u"ab|c"), u"ab|c");
}

TEST_F(HandsTest, PasteWithTheIndentationOfThePlace)
{
    QApplication::clipboard()->setText(QStringLiteral("    if\n      then\n\n    end"));
    EXPECT_EQ(After("pasteIndented", u"  |x"), u"  if\n    then\n\n  end|x");
    QApplication::clipboard()->clear();
}

TEST_F(HandsTest, PasteWithTheIndentationOfThePlaceANulToo)
{
    QApplication::clipboard()->setText(QStringLiteral("a") + QChar(0) + QStringLiteral("b\nc"));
    EXPECT_EQ(After("pasteIndented", u"  [x]|y"), std::u16string(u"  a\0b\n  c|y", 11));
    QApplication::clipboard()->clear();
}

TEST_F(HandsTest, GoFromStatementToStatement)
{
    EXPECT_EQ(After("nextStatement", u"se|lect 1;\n-- x\nselect 2;\nselect 3;"),
              u"select 1;\n-- x\n|select 2;\nselect 3;");
    Do("nextStatement");
    EXPECT_EQ(Marked(), u"select 1;\n-- x\nselect 2;\n|select 3;");
    Do("nextStatement");
    EXPECT_EQ(Marked(), u"select 1;\n-- x\nselect 2;\n|select 3;");
    Do("previousStatement");
    EXPECT_EQ(Marked(), u"select 1;\n-- x\n|select 2;\nselect 3;");
}

TEST_F(HandsTest, GoFromBatchToBatch)
{
    EXPECT_EQ(After("nextBatch", u"a|\ngo\nb\ngo\nc"), u"a\ngo\n|b\ngo\nc");
    Do("nextBatch");
    EXPECT_EQ(Marked(), u"a\ngo\nb\ngo\n|c");
    Do("previousBatch");
    EXPECT_EQ(Marked(), u"a\ngo\n|b\ngo\nc");
}

TEST_F(HandsTest, FoldToALevel)
{
    PutPlain(u"begin\n begin\n  a\n end\nend\nb\n");
    Do("foldToLevel1");
    EXPECT_TRUE(control.GetLineVisible(1, 1));
    EXPECT_FALSE(control.GetLineVisible(2, 1));
    Do("foldEverything");
    EXPECT_FALSE(control.GetLineVisible(1, 1));
    EXPECT_TRUE(control.GetLineVisible(0, 1));
    Do("unfoldEverything");
    EXPECT_TRUE(control.GetLineVisible(2, 1));
}

TEST_F(HandsTest, FoldWhatTheCaretStandsInAndOpenIt)
{
    Put(u"begin\n begin\n  a|\n end\nend\n");
    Do("foldHere");
    EXPECT_FALSE(control.GetLineVisible(2, 1));
    EXPECT_EQ(control.GetCurLineNumber(), 1);
    Do("unfoldHere");
    EXPECT_TRUE(control.GetLineVisible(2, 1));
}

TEST_F(HandsTest, ChangeNothingThatIsReadOnly)
{
    for (const HandRow& row : Hands()) {
        Put(u"[a\nb]|\nc");
        control.SetReadOnly(1, 1);
        control.OnCmdMsg(row.number, CN_COMMAND, nullptr, nullptr);
        EXPECT_EQ(Text(), u"a\nb\nc") << row.name;
        control.SetReadOnly(0, 1);
    }
}

TEST_F(HandsTest, AreTakenBackByOneUndo)
{
    const unsigned seed = RandomSeed();
    SCOPED_TRACE(seed);
    RandomText random(seed);
    QApplication::clipboard()->setText(QStringLiteral("  x\n   y"));
    for (int round = 0; round < 30; ++round) {
        for (const HandRow& row : Hands()) {
            PutPlain(random.Text(30));
            const std::u16string before = Text();
            const int length = static_cast<int>(control.GetLength(1));
            control.SetSel(random.Number(length + 1), random.Number(length + 1), 1);
            control.OnCmdMsg(row.number, CN_COMMAND, nullptr, nullptr);
            if (Text() != before)
                control.Undo(1);
            ASSERT_EQ(Text(), before) << row.name;
        }
    }
    QApplication::clipboard()->clear();
}

// What is a comment already loses a blank too many where its comments have none.
TEST_F(HandsTest, CommentTwiceToNoEffect)
{
    const unsigned seed = RandomSeed();
    SCOPED_TRACE(seed);
    RandomText random(seed);
    for (int round = 0; round < 300; ++round) {
        PutPlain(u"x" + random.Text(30));
        const std::u16string before = Text();
        control.SetSel(0, random.Number(static_cast<int>(control.GetLength(1)) + 1), 1);
        Do("toggleComment");
        Do("toggleComment");
        ASSERT_EQ(Text(), before);
    }
}

// A CR that comes to stand before an LF is one line end with it: not in texts with a CR alone.
TEST_F(HandsTest, MoveDownWhatTheyMoveUp)
{
    const unsigned seed = RandomSeed();
    SCOPED_TRACE(seed);
    RandomText random(seed);
    for (int round = 0; round < 300; ++round) {
        std::u16string text = random.Text(30);
        std::erase(text, u'\r');
        PutPlain(text);
        const std::u16string before = Text();
        const int length = static_cast<int>(control.GetLength(1));
        control.SetSel(random.Number(length + 1), random.Number(length + 1), 1);
        if (control.LineFromPosition(control.GetSelectionStart(1), 1) == 0)
            continue;
        Do("moveLinesUp");
        Do("moveLinesDown");
        ASSERT_EQ(Text(), before);
    }
}

TEST(HandRows, HaveNumbersAndKeysOfTheirOwn)
{
    std::set<UINT> numbers;
    std::set<std::pair<int, int>> keys;
    for (const Accelerator& key : *EditorKeyTable())
        keys.insert({key.key, key.modifiers});
    for (const HandRow& row : Hands()) {
        EXPECT_TRUE(numbers.insert(row.number).second) << row.name;
        EXPECT_TRUE(row.number >= 54200 && row.number < 54300) << row.name;
        if (row.key) {
            EXPECT_TRUE(keys.insert({row.key, row.modifiers}).second) << row.name;
        }
    }
    EXPECT_EQ(FindHand(54037), nullptr);
}

} // namespace
