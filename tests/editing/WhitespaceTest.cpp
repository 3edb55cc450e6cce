// SPDX-License-Identifier: GPL-3.0-or-later
// Clean-ups, line ends and braces.
#include "tests/editing/EditingFixture.h"

namespace {

class Whitespace : public EditingTest
{
protected:
    using Operation = void (CZNCoreEditorControlEx::*)();
    std::u16string Done(const std::u16string& marked, Operation operation)
    {
        Put(marked);
        (control.*operation)();
        return Text();
    }
    static constexpr Operation kToSpaces = &CZNCoreEditorControlEx::ConvertTabToSpaces;
    static constexpr Operation kToTabs = &CZNCoreEditorControlEx::ConvertSpacesToTab;
    static constexpr Operation kTrim = &CZNCoreEditorControlEx::RemoveTrailingSpaces;
    static constexpr Operation kEndLine = &CZNCoreEditorControlEx::EnsureFinalNewLine;
};

TEST_F(Whitespace, TabsBecomeBlanks)
{
    EXPECT_EQ(Done(u"a\tb\n\t\tc\r\n\n\t", kToSpaces), u"a   b\n        c\r\n\n    ");
    EXPECT_EQ(TextAfterUndo(), u"a\tb\n\t\tc\r\n\n\t");
}

TEST_F(Whitespace, BlanksBecomeTabs)
{
    EXPECT_EQ(Done(u"    a\na   b\nab c\nabc d", kToTabs), u"\ta\na\tb\nab c\nabc\td");
    EXPECT_EQ(TextAfterUndo(), u"    a\na   b\nab c\nabc d");
}

TEST_F(Whitespace, WhatTrailsIsRemoved)
{
    EXPECT_EQ(Done(u"a \t\r\n   \nb c\n\t", kTrim), u"a\r\n\nb c\n");
    EXPECT_EQ(TextAfterUndo(), u"a \t\r\n   \nb c\n\t");
}

TEST_F(Whitespace, ALineThatTrimmingMakesPartOfALineEndHidesNoOther)
{
    EXPECT_EQ(Done(u"a\r \nb \nc ", kTrim), u"a\r\nb\nc");
}

TEST_F(Whitespace, TrimmingGoesByTheLowByte)
{
    EXPECT_EQ(Done(u"a\u0120\nb\u2009\nc\u00a0\n\U0001F420", kTrim), u"a\nb\nc\u00a0\n\U0001F420");
}

TEST_F(Whitespace, OnlySelectedLinesAreCleanedUp)
{
    EXPECT_EQ(Done(u"a \nb[ \nc ]| \nd ", kTrim), u"a \nb\nc\nd ");
    EXPECT_EQ(Done(u"\ta\n[\tb\n\t]|c", kToSpaces), u"\ta\n    b\n    c");
}

TEST_F(Whitespace, TheLineThatASelectionReachesAtColumnZeroStays)
{
    EXPECT_EQ(Done(u"[a \n]|b ", kTrim), u"a\nb ");
    EXPECT_EQ(Done(u"[\ta\n]|\tb", kToSpaces), u"    a\n\tb");
    EXPECT_EQ(Done(u"|[    a\n]    b", kToTabs), u"\ta\n    b");
}

TEST_F(Whitespace, ATextOfOneLineAlwaysGetsALineEnd)
{
    EXPECT_EQ(Done(u"", kEndLine), u"\n");
    EXPECT_EQ(Done(u"a", kEndLine), u"a\n");
    EXPECT_EQ(TextAfterUndo(), u"a");
}

TEST_F(Whitespace, ATextOfLinesGetsALineEndIfItsLastLineHasText)
{
    EXPECT_EQ(Done(u"a\nb", kEndLine), u"a\nb\n");
    EXPECT_EQ(Done(u"a\nb\n", kEndLine), u"a\nb\n");
}

TEST_F(Whitespace, ALineEndOfCrLfGoesInAsLfCr)
{
    control.SetEOLMode(kCrLf, 1);
    EXPECT_EQ(Done(u"a", kEndLine), u"a\n\r");
    EXPECT_EQ(TextAfterUndo(), u"a");
    control.SetEOLMode(0, 1);
    EXPECT_EQ(Done(u"a", kEndLine), u"a\n\r");
    control.SetEOLMode(kCr, 1);
    EXPECT_EQ(Done(u"a", kEndLine), u"a\r");
}

TEST_F(Whitespace, LineEndsAreChangedInTheTextAndForWhatFollows)
{
    PutPlain(u"a\rb\nc\r\n");
    control.SetEOLCRLF();
    EXPECT_EQ(Text(), u"a\r\nb\r\nc\r\n");
    EXPECT_EQ(control.GetEOLMode(1), kCrLf);
    EXPECT_EQ(TextAfterUndo(), u"a\rb\nc\r\n");
    control.SetEOLCR();
    EXPECT_EQ(Text(), u"a\rb\rc\r");
    EXPECT_EQ(control.GetEOLMode(1), kCr);
    control.SetEOLLF();
    EXPECT_EQ(Text(), u"a\nb\nc\n");
    EXPECT_EQ(control.GetEOLMode(1), kLf);
    EXPECT_EQ(control.GetCursor(1), -1);
}

TEST_F(Whitespace, AReadOnlyTextStays)
{
    const std::u16string text = u"\ta \n    b\t";
    for (const Operation operation : {kToSpaces, kToTabs, kTrim, kEndLine}) {
        PutPlain(text);
        control.SetReadOnly(1, 1);
        (control.*operation)();
        EXPECT_EQ(Text(), text);
    }
}

TEST_F(Whitespace, AnEmptyTextStays)
{
    EXPECT_EQ(Done(u"", kToSpaces), u"");
    EXPECT_EQ(Done(u"", kToTabs), u"");
    EXPECT_EQ(Done(u"", kTrim), u"");
}

TEST_F(Whitespace, ATextWithNulIsCleanedUpWhole)
{
    const std::u16string nul(1, u'\0');
    PutPlain(u"a" + nul + u"\tb" + nul + u"  ");
    control.ConvertTabToSpaces();
    control.RemoveTrailingSpaces();
    EXPECT_EQ(Text(), u"a" + nul + u"  b" + nul);
}

TEST_F(Whitespace, NothingIsCleanedUpOnSavingUntilItIsAsked)
{
    OpenControlEx fresh;
    EXPECT_FALSE(fresh.IsSaveConvertTabToSpaces());
    EXPECT_FALSE(fresh.IsSaveTrimTrailingSpaces());
    EXPECT_FALSE(fresh.IsEnsureFinalNewLine());
    fresh.SetSaveConvertTabToSpaces(true);
    EXPECT_TRUE(fresh.IsSaveConvertTabToSpaces());
    EXPECT_FALSE(fresh.IsSaveTrimTrailingSpaces());
    fresh.SetSaveTrimTrailingSpaces(true);
    EXPECT_TRUE(fresh.IsSaveTrimTrailingSpaces());
    EXPECT_FALSE(fresh.IsEnsureFinalNewLine());
    fresh.SetEnsureFinalNewLine(true);
    EXPECT_TRUE(fresh.IsEnsureFinalNewLine());
}

TEST_F(Whitespace, TheWidthOfATabIsTheEditors)
{
    control.SetTabWidth(3, 1);
    EXPECT_EQ(Done(u"a\tb", kToSpaces), u"a  b");
    EXPECT_EQ(Done(u"a  b", kToTabs), u"a\tb");
}

class Braces : public EditingTest
{};

TEST_F(Braces, AreThoseOfTheLanguage)
{
    EXPECT_TRUE(control.IsBrace(u'('));
    EXPECT_FALSE(control.IsBrace(u'<'));
    EXPECT_FALSE(control.IsBrace(0));
    control.SetBraces(QStringLiteral("<>") + QChar(0));
    EXPECT_TRUE(control.IsBrace(u'<'));
    EXPECT_FALSE(control.IsBrace(0));
}

TEST_F(Braces, BlanksAndTabsIndent)
{
    EXPECT_TRUE(control.IsIndentChar(u' '));
    EXPECT_TRUE(control.IsIndentChar(u'\t'));
    EXPECT_FALSE(control.IsIndentChar(u'\n'));
    EXPECT_FALSE(control.IsIndentChar(u'\u0120'));
}

TEST_F(Braces, AMatchAtTheTextsStartCountsAsNoneAndIsJumpedTo)
{
    Put(u"(a|)");
    EXPECT_FALSE(control.HasMatchingBrace());
    control.MatchToken();
    EXPECT_EQ(Marked(), u"|(a)");
    EXPECT_TRUE(control.HasMatchingBrace());
}

TEST_F(Braces, TheBraceBeforeTheCaretIsTakenIfThereIsNoneAtIt)
{
    Put(u"x(a)|");
    control.JumpToMatchingBrace(false);
    EXPECT_EQ(Marked(), u"x|(a)");
    Put(u"|abc");
    control.JumpToMatchingBrace(false);
    EXPECT_EQ(Marked(), u"|abc");
    Put(u"|");
    control.JumpToMatchingBrace(false);
    EXPECT_EQ(Marked(), u"|");
}

TEST_F(Braces, TheSelectionCanBeExtendedToTheMatch)
{
    Put(u"x|(a)");
    control.JumpToMatchingBrace(true);
    EXPECT_EQ(Marked(), u"x[(a]|)");
}

TEST_F(Braces, TheGuideStandsAtTheLesserColumn)
{
    PutPlain(u"    {\n  }");
    control.HighlightBraces(4);
    EXPECT_EQ(control.GetHighlightGuide(1), 2);
    control.HighlightBraces(8);
    EXPECT_EQ(control.GetHighlightGuide(1), 2);
}

} // namespace
