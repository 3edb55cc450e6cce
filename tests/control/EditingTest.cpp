// SPDX-License-Identifier: GPL-3.0-or-later
// The control over the real engine: text entry, selection, notifications.
#include "control/Analysis.h"
#include "tests/control/ControlFixture.h"

#include <QApplication>

namespace {

class Editing : public ControlTest
{
protected:
    std::u16string Text()
    {
        std::u16string text(static_cast<std::size_t>(control.GetLength(1)), u'\0');
        control.GetText(static_cast<int>(text.size()) + 1, text.data(), 1);
        return text;
    }
};

TEST_F(Editing, TheEngineIsReachedByBothPaths)
{
    control.SetText(u"select 1", 1);
    EXPECT_EQ(control.GetLength(1), 8);
    EXPECT_EQ(control.GetLength(0), 8);
    EXPECT_EQ(Text(), u"select 1");
}

TEST_F(Editing, AddTextNormalisesByTheModeOfTheEngine)
{
    control.SetEOLMode(1, 1);
    control.AddText(3, u"a\nbcd", 1);
    EXPECT_EQ(Text(), u"a\r\nbcd");
    EXPECT_EQ(control.GetLength(1), 6);
}

TEST_F(Editing, AddTextWithoutAModeAddsExactlyTheGivenLength)
{
    control.SetEOLMode(0, 1);
    ASSERT_EQ(control.GetEOLMode(1), 0);
    control.AddText(3, u"a\nbcd", 1);
    EXPECT_EQ(Text(), u"a\nb");
}

TEST_F(Editing, ReplacedTextTakesTheLineEndsOfTheEngine)
{
    control.SetEOLMode(3, 1);
    control.SetText(u"one two three", 1);
    control.SetSel(4, 7, 1);
    control.ReplaceSel(u"2\r\n2", 1);
    EXPECT_EQ(Text(), u"one 2\n2 three");
    control.SetTarget(0, 3);
    EXPECT_EQ(control.ReplaceTarget(99, u"1\r1", 1), 3);
    EXPECT_EQ(Text(), u"1\n1 2\n2 three");
}

TEST_F(Editing, SelectedTextCountsUnits)
{
    control.SetText(u"a\U0001F600\u00e9z", 1);
    control.SetSel(1, 4, 1);
    EXPECT_EQ(control.GetSelText().toStdU16String(), u"\U0001F600\u00e9");
    control.SetSel(2, 2, 1);
    EXPECT_EQ(control.GetSelText(), QString());
    CharacterRange range;
    control.SetSel(3, 5, 1);
    control.GetSel(range);
    EXPECT_EQ(range.cpMin, 3);
    EXPECT_EQ(range.cpMax, 5);
}

TEST_F(Editing, ASelectionIsReadBehindANulByACarefulHostAlone)
{
    const char16_t text[] = u"a\0b";
    control.ClearAll(1);
    control.AddTextNoProcess(3, text, 1);
    control.SelectAll(1);
    EXPECT_EQ(control.GetSelText(), QStringLiteral("a"));
    control.SetCarefulFiles(true);
    EXPECT_EQ(control.GetSelText().toStdU16String(), std::u16string(text, 3));
}

TEST_F(Editing, SelectedTextOfARectangleFitsItsBuffer)
{
    control.SetEOLMode(1, 1);
    control.SetText(u"abcd\nefgh\nijkl\n", 1);
    control.SetSel(0, 0, 1);
    for (int i = 0; i < 2; ++i)
        control.LineDownRectExtend(1);
    for (int i = 0; i < 2; ++i)
        control.CharRightRectExtend(1);
    ASSERT_TRUE(control.SelectionIsRectangle(1));
    const QString text = control.GetSelText();
    // How wide the rectangle is in each line is a matter of the font.
    const QStringList lines = text.split(QStringLiteral("\r\n"));
    ASSERT_GE(lines.size(), 3);
    EXPECT_TRUE(QStringLiteral("abcd").startsWith(lines[0]));
    EXPECT_TRUE(QStringLiteral("efgh").startsWith(lines[1]));
    EXPECT_TRUE(lines[2].startsWith(u'i'));
}

TEST_F(Editing, ARangeIsReadByUnits)
{
    control.SetText(u"\U0001F600abc", 1);
    char16_t buffer[4] = {};
    EXPECT_EQ(control.GetRange(2, 5, buffer), 3);
    EXPECT_EQ(std::u16string(buffer), u"abc");
}

TEST_F(Editing, SetTextLeavesTheEngineModifiedAndTheControlNot)
{
    control.SetSavePoint(1);
    control.SetText(u"text", 1);
    EXPECT_FALSE(control.GetModified());
    EXPECT_EQ(control.GetModify(1), 1);
}

TEST_F(Editing, TheFirstChangeAfterASaveTellsNobodyAndTheSecondDoes)
{
    control.SetText(u"text", 1);
    control.SetSavePoint(1);
    ASSERT_FALSE(control.GetModified());
    parent.editChanges.clear();
    // The record that the save point is left sets the flag before the change itself is told.
    parent.records.clear();
    control.AddText(1, u"a", 1);
    EXPECT_TRUE(control.GetModified());
    control.AddText(1, u"b", 1);
    ASSERT_FALSE(parent.editChanges.empty());
    EXPECT_EQ(parent.editChanges.back().first, reinterpret_cast<WPARAM>(control.GetSafeHwnd()));
    EXPECT_EQ(parent.editChanges.back().second, 1);
}

TEST_F(Editing, ASavePointClearsTheModifiedFlag)
{
    control.AddText(1, u"a", 1);
    EXPECT_TRUE(control.GetModified());
    control.SetSavePoint(1);
    EXPECT_FALSE(control.GetModified());
    control.AddText(1, u"a", 1);
    EXPECT_TRUE(control.GetModified());
    control.Undo(1);
    EXPECT_EQ(control.GetModify(1), 0);
}

TEST_F(Editing, TheMessagesOfPlainEditWindowsAreAnswered)
{
    control.SetText(u"0123456789", 1);
    control.SetSel(2, 5, 1);
    int start = 0;
    int end = 0;
    SendMessage(control.GetSafeHwnd(), 0x00B0, reinterpret_cast<WPARAM>(&start),
                reinterpret_cast<LPARAM>(&end));
    EXPECT_EQ(start, 2);
    EXPECT_EQ(end, 5);
    EXPECT_EQ(SendMessage(control.GetSafeHwnd(), 0x00C1, 0, 0), 10);
}

TEST_F(Editing, AControlOutlivesItsWindow)
{
    control.SetText(u"text", 1);
    delete control.GetSafeHwnd();
    EXPECT_EQ(control.GetLength(1), 0);
    EXPECT_EQ(control.GetSelText(), QString());
    EXPECT_TRUE(
        control.SaveFile(PathOf("out").c_str(), FileEncodeConverter::encUTF8, false, false));
    EXPECT_EQ(ReadFile("out"), "");
    EXPECT_TRUE(control.OpenFile(WriteFile("in", "text").c_str(), kDetect));
}

TEST_F(Editing, TheTerminatorThatIsSetIsGivenBackAndEndsStatements)
{
    constexpr int kDb2 = 4;
    control.SetLexer(kDb2, 1);
    control.SetText(u"select 1; select 2; select 3@ select 4@", 1);
    const auto statements = [this] {
        std::vector<PartitionInfo> parts;
        control.PartitionGetAll(parts, 0, partitioner::ToEnd, 1);
        return parts.size();
    };
    EXPECT_EQ(control.GetStatementTerminator(1), u";");
    control.SetStatementTerminator(u"@", 1);
    EXPECT_EQ(control.GetStatementTerminator(1), u"@");
    EXPECT_EQ(control.GetStatementTerminator(0), u"@");
    EXPECT_EQ(statements(), 2u);
    control.SetStatementTerminator(nullptr, 1);
    EXPECT_EQ(control.GetStatementTerminator(1), u";");
    control.SetText(u"select 1@ select 2@", 1);
    EXPECT_EQ(statements(), 1u);
}

} // namespace
