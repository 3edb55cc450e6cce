// What holds for every text and every selection.
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
    {"SortLines", [](auto& c) { c.SortLines(true, false, true, 0, -1, -1); }},
    {"SortLinesByNumber", [](auto& c) { c.SortLines(false, true, false, 2, 1, -1); }},
    {"InsertText", [](auto& c) { c.InsertTextIntoLines(1, QStringLiteral("x")); }},
    {"InsertNumbers", [](auto& c) { c.InsertTextIntoLines(1, QStringLiteral("x"), 1, 3); }},
    {"Capitalize", [](auto& c) { c.Capitalize(); }},
    {"CharTranspose", [](auto& c) { c.CharTranspose(); }},
    {"WordTranspose", [](auto& c) { c.WordTranspose(); }},
    {"WordDelete", [](auto& c) { c.WordDelete(); }},
    {"WordUpperCase", [](auto& c) { c.WordUpperCase(); }},
    {"WordCapitalize", [](auto& c) { c.WordCapitalize(); }},
    {"NumPlus", [](auto& c) { c.NumPlus(); }},
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
    const unsigned seed = std::random_device{}();
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
    const unsigned seed = std::random_device{}();
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
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    RandomText random(seed);
    for (int round = 0; round < 200; ++round) {
        const std::u16string text = random.Text(40);
        const int width = 1 + random.Number(8);
        PutPlain(text);
        control.SetTabWidth(width, 1);
        control.ConvertTabToSpaces();
        ASSERT_EQ(Text(), Visible(text, static_cast<std::size_t>(width)));
    }
}

// A line that already begins with a marker and a blank, or with white space only, is another
// matter.
TEST_F(AnyText, OfWholeLinesComesBackFromLineComments)
{
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    RandomText random(seed);
    for (int round = 0; round < 200; ++round) {
        std::u16string text;
        for (int line = random.Number(8); line >= 0; --line)
            text += u"a b" + random.Text(0) + std::u16string(random.Number(3), u'\t') + u"x\n";
        PutPlain(text);
        control.SelectAll(1);
        ASSERT_TRUE(control.CommentSelection(0, true));
        if (Text() == text)
            FAIL() << "nothing was commented";
        ASSERT_TRUE(control.UnCommentSelection(0, true));
        ASSERT_EQ(Text(), text);
    }
}

TEST_F(AnyText, IsTrimmedOfNothingButWhatTrails)
{
    const unsigned seed = std::random_device{}();
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
