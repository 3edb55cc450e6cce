// SPDX-License-Identifier: GPL-3.0-or-later
// What holds for every text and every selection.
#include "tests/RandomSeed.h"
#include "tests/editing/EditingFixture.h"

#include <functional>

namespace {

struct OperationRow
{
    const char* name;
    std::function<void(CZNCoreEditorControlEx&)> run;
};

const OperationRow kOperations[] = {
    {"CommentBlock", [](auto& c) { c.CommentSelection(0, true); }},
    {"CommentLines", [](auto& c) { c.CommentSelection(0, false); }},
    {"UnCommentBlock", [](auto& c) { c.UnCommentSelection(0, true); }},
    {"UnCommentLines", [](auto& c) { c.UnCommentSelection(0, false); }},
    {"ConvertTabToSpaces", [](auto& c) { c.ConvertTabToSpaces(); }},
    {"ConvertSpacesToTab", [](auto& c) { c.ConvertSpacesToTab(); }},
    {"RemoveTrailingSpaces", [](auto& c) { c.RemoveTrailingSpaces(); }},
    {"EnsureFinalNewLine", [](auto& c) { c.EnsureFinalNewLine(); }},
    {"SetEOLCRLF", [](auto& c) { c.SetEOLCRLF(); }},
    {"SetEOLCR", [](auto& c) { c.SetEOLCR(); }},
    {"SetEOLLF", [](auto& c) { c.SetEOLLF(); }},
    {"SortLines", [](auto& c) { c.SortLines(true, false, true, 0, -1, -1); }},
    {"SortLinesByNumber", [](auto& c) { c.SortLines(false, true, false, 2, 1, -1); }},
    {"InsertText", [](auto& c) { c.InsertTextIntoLines(1, QStringLiteral("x")); }},
    {"InsertNumbers", [](auto& c) { c.InsertTextIntoLines(1, QStringLiteral("x"), 1, 3); }},
    {"Capitalize", [](auto& c) { c.Capitalize(); }},
    {"CharTranspose", [](auto& c) { c.CharTranspose(); }},
    {"WordTranspose", [](auto& c) { c.WordTranspose(); }},
    {"WordDelete", [](auto& c) { c.WordDelete(); }},
    {"WordUpperCase", [](auto& c) { c.WordUpperCase(); }},
    {"WordLowerCase", [](auto& c) { c.WordLowerCase(); }},
    {"WordCapitalize", [](auto& c) { c.WordCapitalize(); }},
    {"NumPlus", [](auto& c) { c.NumPlus(); }},
    {"NumMinus", [](auto& c) { c.NumMinus(); }},
};

// Where one undo takes back all that was done.
class EveryOperation : public EditingTest, public testing::WithParamInterface<OperationRow>
{
protected:
    void PutAnything(RandomText& random)
    {
        PutPlain(random.Text(40));
        const int length = static_cast<int>(control.GetLength(1));
        control.SetEOLMode(random.Number(4), 1);
        control.SetSel(random.Number(length + 1), random.Number(length + 1), 1);
    }
};

TEST_P(EveryOperation, IsTakenBackByOneUndo)
{
    const unsigned seed = RandomSeed();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    RandomText random(seed);
    for (int round = 0; round < 150; ++round) {
        PutAnything(random);
        const std::u16string before = Text();
        GetParam().run(control);
        if (Text() == before)
            continue;
        ASSERT_EQ(TextAfterUndo(), before);
        ASSERT_FALSE(control.CanUndo(1));
    }
}

TEST_P(EveryOperation, LeavesAReadOnlyTextAlone)
{
    const unsigned seed = RandomSeed();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    RandomText random(seed);
    for (int round = 0; round < 40; ++round) {
        PutAnything(random);
        const std::u16string before = Text();
        control.SetReadOnly(1, 1);
        GetParam().run(control);
        ASSERT_EQ(Text(), before);
    }
}

// None and one character, and every selection of them.
TEST_P(EveryOperation, TakesTheShortestTexts)
{
    const std::u16string texts[] = {u"",           u"a",      u" ",
                                    u"\t",         u"\n",     u"\r\n",
                                    u"*",          u"1",      std::u16string(1, u'\0'),
                                    u"\U0001F600", u"\u4e00", std::u16string(1, char16_t(0xDC00))};
    for (const std::u16string& text : texts) {
        for (int bounds = 0; bounds < 9; ++bounds) {
            for (int mode = 0; mode < 4; ++mode) {
                PutPlain(text);
                control.SetEOLMode(mode, 1);
                control.SetSel(bounds % 3, bounds / 3, 1);
                const std::u16string before = Text();
                GetParam().run(control);
                ASSERT_LE(control.GetSelectionEnd(1), control.GetLength(1));
                if (control.CanUndo(1))
                    control.Undo(1);
                ASSERT_EQ(Text(), before);
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Operations, EveryOperation, testing::ValuesIn(kOperations),
                         [](const auto& row) { return std::string(row.param.name); });

class AnyText : public EditingTest
{};

std::u16string Visible(const std::u16string& text, std::size_t width)
{
    std::u16string result;
    std::size_t column = 0;
    for (const char16_t c : text) {
        const std::size_t columns = c == u'\t' ? width - column % width : 1;
        result.append(columns, c == u'\t' ? u' ' : c);
        column = c == u'\r' || c == u'\n' ? 0 : column + columns;
    }
    return result;
}

TEST_F(AnyText, LooksTheSameWithBlanksInPlaceOfTabs)
{
    const unsigned seed = RandomSeed();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    RandomText random(seed);
    for (int round = 0; round < 200; ++round) {
        const int width = 1 + random.Number(8);
        PutPlain(random.Text(40));
        const std::u16string text = Text();
        control.SetTabWidth(width, 1);
        control.ConvertTabToSpaces();
        ASSERT_EQ(Text(), Visible(text, static_cast<std::size_t>(width)));
    }
}

TEST_F(AnyText, OfWholeLinesComesBackFromLineComments)
{
    const unsigned seed = RandomSeed();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    RandomText random(seed);
    int commented = 0;
    for (int round = 0; round < 300; ++round) {
        PutPlain(random.Text(60));
        control.SetEOLMode(random.Number(4), 1);
        const int lines = control.GetLineCount(1);
        const int first = random.Number(lines);
        const int behind = first + 1 + random.Number(lines - first);
        control.SetSel(control.PositionFromLine(first, 1), control.PositionFromLine(behind, 1), 1);
        const std::u16string text = Text();
        ASSERT_TRUE(control.CommentSelection(0, false));
        commented += Text() != text;
        ASSERT_TRUE(control.UnCommentSelection(0, false));
        ASSERT_EQ(Text(), text);
    }
    EXPECT_GT(commented, 100);
}

TEST_F(AnyText, IsTrimmedOfNothingButWhatTrails)
{
    const unsigned seed = RandomSeed();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    RandomText random(seed);
    for (int round = 0; round < 100; ++round) {
        PutPlain(random.Text(40));
        control.RemoveTrailingSpaces();
        const std::u16string once = Text();
        ASSERT_EQ(once.find(u" \n"), once.npos);
        ASSERT_EQ(once.find(u"\t\r"), once.npos);
        control.RemoveTrailingSpaces();
        ASSERT_EQ(Text(), once);
    }
}

} // namespace
