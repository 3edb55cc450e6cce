// SPDX-License-Identifier: GPL-3.0-or-later
// Words, characters and numbers at the caret; what single operations select.
#include "tests/editing/EditingFixture.h"

#include <climits>
#include <fstream>

namespace {

class Words : public EditingTest
{
protected:
    using Operation = void (CZNCoreEditorControlEx::*)();
    std::u16string Done(const std::u16string& marked, Operation operation)
    {
        Put(marked);
        (control.*operation)();
        return Marked();
    }
};

TEST(WordCharacters, AreNoneBeforeTheyAreSet)
{
    const CZNCoreEditorControlEx control;
    EXPECT_FALSE(control.IsWordChar(u'a'));
    EXPECT_FALSE(control.IsWordChar(0));
    EXPECT_FALSE(control.IsWordChar(u'_'));
}

TEST_F(Words, ConsistOfTheCharactersThatWereSet)
{
    control.SetWordChars(u"ab");
    EXPECT_TRUE(control.IsWordChar(u'a'));
    EXPECT_FALSE(control.IsWordChar(u'c'));
    Put(u"abc|");
    control.SetSel(1, 1, 1);
    control.SelectWord();
    EXPECT_EQ(Marked(), u"[ab]|c");
}

TEST_F(Words, AreFoundByPosition)
{
    Put(u"one two");
    QString word = QStringLiteral("x");
    EXPECT_EQ(control.GetWordFromPos(5, word, 1), 1);
    EXPECT_EQ(word, QStringLiteral("two"));
    PutPlain(u"; ;");
    EXPECT_EQ(control.GetWordFromPos(1, word, 1), 1);
    EXPECT_EQ(word, QString());
    EXPECT_EQ(control.GetWordFromPos(-5, word, 1), 1);
    EXPECT_EQ(control.GetWordFromPos(500, word, 1), 1);
    EXPECT_EQ(word, QString());
}

TEST_F(Words, AreFoundByPoint)
{
    PutPlain(u"one two");
    QString word;
    const CPoint point{control.PointXFromPosition(5, 1), control.PointYFromPosition(5, 1)};
    EXPECT_EQ(control.GetWordFromPos(point, word, 1), 1);
    EXPECT_EQ(word, QStringLiteral("two"));
}

TEST_F(Words, AreDeletedAndChangedInCase)
{
    EXPECT_EQ(Done(u"one t|wo x", &CZNCoreEditorControlEx::WordDelete), u"one | x");
    EXPECT_EQ(Done(u"one t|wo x", &CZNCoreEditorControlEx::WordUpperCase), u"one T|WO x");
    EXPECT_EQ(Done(u"one T|WO x", &CZNCoreEditorControlEx::WordLowerCase), u"one t|wo x");
    EXPECT_EQ(Done(u"one t|WO x", &CZNCoreEditorControlEx::WordCapitalize), u"one T|wo x");
    EXPECT_EQ(TextAfterUndo(), u"one tWO x");
}

TEST_F(Words, AreCapitalisedInTheSelection)
{
    EXPECT_EQ(Done(u"x [one TWO]| y", &CZNCoreEditorControlEx::Capitalize), u"x One Two| y");
    EXPECT_EQ(TextAfterUndo(), u"x one TWO y");
    EXPECT_EQ(Done(u"on|e", &CZNCoreEditorControlEx::Capitalize), u"on|e");
}

TEST_F(Words, LoseLettersAbove7FInCapitals)
{
    EXPECT_EQ(Done(u"[\u00e9t\u0161]|", &CZNCoreEditorControlEx::Capitalize), u"\uffc9ta|");
}

TEST_F(Words, KeepTheLetterThatNarrowingWouldMakeANul)
{
    EXPECT_EQ(Done(u"[\u0101b c]|", &CZNCoreEditorControlEx::Capitalize), u"\u0101b C|");
    EXPECT_EQ(TextAfterUndo(), u"\u0101b c");
    EXPECT_EQ(Done(u"\u0100|b", &CZNCoreEditorControlEx::CharTranspose), u"b|\u0100");
    EXPECT_EQ(Done(u"\U0001F600|bc", &CZNCoreEditorControlEx::CharTranspose), u"b|\U0001F600c");
    EXPECT_EQ(TextAfterUndo(), u"\U0001F600bc");
}

// Reference: the full case mappings that the Unicode Character Database lists.
TEST_F(Words, ChangeTheirCaseByUnicodesRules)
{
    struct Pair
    {
        const char16_t* lower;
        const char16_t* upper;
    };
    for (const auto& [lower, upper] :
         {Pair{u"\u043f\u0440\u0438", u"\u041f\u0420\u0418"},
          Pair{u"\u00e5\u00f8\u0153", u"\u00c5\u00d8\u0152"},
          Pair{u"\u03bb\u03cc\u03b3\u03bf\u03c2", u"\u039b\u038c\u0393\u039f\u03a3"},
          Pair{u"\U00010428a", u"\U00010400A"}}) {
        PutPlain(u"a " + std::u16string(lower) + u" b");
        control.SetSel(3, 3, 1);
        control.WordUpperCase();
        EXPECT_EQ(Text(), u"a " + std::u16string(upper) + u" b");
        control.WordLowerCase();
        EXPECT_EQ(Text(), u"a " + std::u16string(lower) + u" b");
    }
}

TEST_F(Words, GrowWithTheirCaseAndStaySelected)
{
    Put(u"x [stra\u00dfe]| y");
    control.UpperCase(1);
    EXPECT_EQ(Marked(), u"x [STRASSE]| y");
    EXPECT_EQ(TextAfterUndo(), u"x stra\u00dfe y");
    Put(u"x |[\ufb01n] y"); // a ligature, from the far end
    control.UpperCase(1);
    EXPECT_EQ(Marked(), u"x |[FIN] y");
    Put(u"[A\u0130]|"); // one letter becomes two units
    control.LowerCase(1);
    EXPECT_EQ(Text(), u"ai\u0307");
}

TEST_F(Words, ExchangeTheirHalves)
{
    EXPECT_EQ(Done(u"x abc|de y", &CZNCoreEditorControlEx::WordTranspose), u"x de|abc y");
    EXPECT_EQ(TextAfterUndo(), u"x abcde y");
}

TEST_F(Words, ExchangeTheirPlacesAroundTheCaret)
{
    EXPECT_EQ(Done(u"one, |three x", &CZNCoreEditorControlEx::WordTranspose), u"three, |one x");
    EXPECT_EQ(TextAfterUndo(), u"one, three x");
    EXPECT_EQ(Done(u"a = |bcd", &CZNCoreEditorControlEx::WordTranspose), u"bcd = |a");
}

TEST_F(Words, StayWhereOneIsMissingOrTheLineEnds)
{
    EXPECT_EQ(Done(u"one ; |;", &CZNCoreEditorControlEx::WordTranspose), u"one ; |;");
    EXPECT_EQ(Done(u"; |one", &CZNCoreEditorControlEx::WordTranspose), u"; |one");
    EXPECT_EQ(Done(u"|one two", &CZNCoreEditorControlEx::WordTranspose), u"|one two");
    EXPECT_EQ(Done(u"one two|\nx", &CZNCoreEditorControlEx::WordTranspose), u"one two|\nx");
    EXPECT_EQ(Done(u"|", &CZNCoreEditorControlEx::WordTranspose), u"|");
    EXPECT_FALSE(control.CanUndo(1));
}

TEST_F(Words, CharactersExchangeAndTheCaretStays)
{
    EXPECT_EQ(Done(u"ab|cd", &CZNCoreEditorControlEx::CharTranspose), u"ac|bd");
    EXPECT_EQ(TextAfterUndo(), u"abcd");
    EXPECT_EQ(Done(u"|abc", &CZNCoreEditorControlEx::CharTranspose), u"|bac");
    EXPECT_EQ(Done(u"abc|\nx", &CZNCoreEditorControlEx::CharTranspose), u"acb|\nx");
    EXPECT_EQ(Done(u"a|\nbc", &CZNCoreEditorControlEx::CharTranspose), u"a|\nbc");
    EXPECT_EQ(Done(u"|", &CZNCoreEditorControlEx::CharTranspose), u"|");
}

TEST_F(Words, ACharacterAbove7FDoesNotSurviveAnExchange)
{
    EXPECT_EQ(Done(u"\u0161|b", &CZNCoreEditorControlEx::CharTranspose), u"b|a");
    EXPECT_EQ(TextAfterUndo(), u"\u0161b");
}

TEST_F(Words, NumbersCountUpAndDown)
{
    EXPECT_EQ(Done(u"a[007]|b", &CZNCoreEditorControlEx::NumPlus), u"a[8]|b");
    EXPECT_EQ(Done(u"a[0]|b", &CZNCoreEditorControlEx::NumMinus), u"a[-1]|b");
    EXPECT_EQ(TextAfterUndo(), u"a0b");
    EXPECT_EQ(Done(u"|[99]", &CZNCoreEditorControlEx::NumPlus), u"[100]|");
}

TEST_F(Words, WhatIsNoNumberCountsAsZero)
{
    EXPECT_EQ(Done(u"a|b", &CZNCoreEditorControlEx::NumPlus), u"a[1]|b");
    EXPECT_EQ(Done(u"[abc]|", &CZNCoreEditorControlEx::NumMinus), u"[-1]|");
    EXPECT_EQ(Done(u"[2147483647]|", &CZNCoreEditorControlEx::NumPlus), u"[-2147483648]|");
}

TEST_F(Words, ALineIsSelectedWithItsEnd)
{
    EXPECT_EQ(Done(u"a\nb|c\nd", &CZNCoreEditorControlEx::SelectLine), u"a\n[bc\n]|d");
    EXPECT_EQ(Done(u"a\nb|c", &CZNCoreEditorControlEx::SelectLine), u"a\n[bc]|");
}

TEST_F(Words, AParagraphIsSelectedWithTheCaretBehindIt)
{
    EXPECT_EQ(Done(u"x\n\na\nb|c\n\nd", &CZNCoreEditorControlEx::SelectPara),
              u"x\n\n[a\nbc\n\n]|d");
}

TEST_F(Words, TheAnchorAndTheCaretChangePlaces)
{
    EXPECT_EQ(Done(u"a[b]|c", &CZNCoreEditorControlEx::SwapAnchor), u"a|[b]c");
    EXPECT_EQ(Done(u"a|[b]c", &CZNCoreEditorControlEx::SwapAnchor), u"a[b]|c");
}

TEST_F(Words, TheTargetIsSelected)
{
    Put(u"abcd");
    control.SetTarget(1, 3);
    control.SelectionFromTarget();
    EXPECT_EQ(Marked(), u"a[bc]|d");
    EXPECT_EQ(control.GetSelection().cpMin, 1);
    EXPECT_EQ(control.GetSelection().cpMax, 3);
}

TEST_F(Words, PlacesAreToldByLineAndColumn)
{
    Put(u"ab\ncd|e");
    EXPECT_EQ(control.GetCurLineNumber(), 1);
    EXPECT_EQ(control.GetCaretInLine(), 2);
    EXPECT_EQ(control.GotoLineCol(0, 1), 0);
    EXPECT_EQ(Marked(), u"a|b\ncde");
    EXPECT_EQ(control.GotoLineCol(0, 100), 0);
    EXPECT_EQ(Marked(), u"ab\ncde|");
    EXPECT_EQ(control.GotoLineCol(0, 4), 0);
    EXPECT_EQ(Marked(), u"ab\nc|de");
    EXPECT_EQ(control.GotoLineCol(100, 0), 0);
    EXPECT_EQ(control.GotoLineCol(-1, INT_MIN), 0);
}

TEST_F(Words, ALineIsReadWithItsEnd)
{
    const std::u16string nul(1, u'\0');
    PutPlain(u"a" + nul + u"b\r\n\u00e9\U0001F600");
    EXPECT_EQ(control.GetLineText(0).toStdU16String(), u"a" + nul + u"b\r\n");
    EXPECT_EQ(control.GetLineText(1).toStdU16String(), u"\u00e9\U0001F600");
    EXPECT_EQ(control.GetLineText(2), QString());
    EXPECT_EQ(control.GetLineText(-1), QString());
}

TEST_F(Words, TextMayBeginWithWhatLooksLikeAMark)
{
    for (const char16_t mark : {u'\xFEFF', u'\xFFFE'}) {
        const std::u16string text = mark + std::u16string(u"ab");
        PutPlain(text);
        control.SetWordChars(text.c_str());
        QString word;
        control.GetWordFromPos(0, word, 0);
        EXPECT_EQ(word.toStdU16String(), text.substr(0, 1));
        EXPECT_TRUE(control.IsWordChar(mark));
        EXPECT_EQ(control.GetLineText(0).toStdU16String(), text);
        control.SetSel(0, 3, 1);
        EXPECT_EQ(control.GetSelText().toStdU16String(), text);
        EXPECT_EQ(control.GetFindString().toStdU16String(), text);
        EXPECT_EQ(control.SelectionFilename().toStdU16String(), text);
    }
}

TEST_F(Words, ALoneSurrogateIsReadAsTheReplacementCharacter)
{
    PutPlain(std::u16string(u"a") + char16_t(0xD800) + u"b");
    EXPECT_EQ(control.GetLineText(0).toStdU16String(), u"a\ufffdb");
}

TEST_F(Words, AFileNameIsFoundAroundTheCaret)
{
    Put(u"see c:\\dir-1\\a.b/x|y.sql now");
    EXPECT_EQ(control.SelectionFilename(), QStringLiteral("c:\\dir-1\\a.b/xy.sql"));
    EXPECT_EQ(Marked(), u"see c:\\dir-1\\a.b/x|y.sql now");
    Put(u"a \"x|y\" b");
    EXPECT_EQ(control.SelectionFilename(), QStringLiteral("xy"));
    Put(u"a | b");
    EXPECT_EQ(control.SelectionFilename(), QString());
}

TEST_F(Words, ASelectedFileNameLosesOneLineEnd)
{
    Put(u"[a b\r\n]|");
    EXPECT_EQ(control.SelectionFilename(), QStringLiteral("a b"));
    Put(u"[a\n\n]|");
    EXPECT_EQ(control.SelectionFilename(), QStringLiteral("a\n"));
}

TEST_F(Words, AFileNameIsCutTo999Units)
{
    PutPlain(std::u16string(5000, u'x'));
    control.SetSel(2500, 2500, 1);
    EXPECT_EQ(control.SelectionFilename(), QString(999, u'x'));
    PutPlain(std::u16string(998, u'x') + u"\U0001F600\U0001F600");
    control.SelectAll(1);
    EXPECT_EQ(control.SelectionFilename(), QString(998, u'x')); // a pair stays whole
}

TEST_F(Words, OneOfASetIsFoundInText)
{
    EXPECT_EQ(control.FindOneOf(QStringLiteral("abcabc"), 0, QStringLiteral("cb")), 1);
    EXPECT_EQ(control.FindOneOf(QStringLiteral("abcabc"), 3, QStringLiteral("cb")), 4);
    EXPECT_EQ(control.FindOneOf(QStringLiteral("abc"), 0, QStringLiteral("x")), -1);
    EXPECT_EQ(control.FindOneOf(QStringLiteral("abc"), -1, QStringLiteral("a")), -1);
    EXPECT_EQ(control.FindOneOf(QStringLiteral("abc"), 9, QStringLiteral("a")), -1);
}

TEST_F(Words, TheTargetIsSearchedInBothDirections)
{
    PutPlain(u"ab ab ab");
    EXPECT_EQ(control.FindInTarget(u"ab", 2, 1, 8), 3);
    EXPECT_EQ(control.GetTargetEnd(1), 5);
    EXPECT_EQ(control.FindInTarget(u"ab", -1, 8, 0), 6);
    EXPECT_EQ(control.FindInTarget(u"x", 1, 0, 8), -1);
}

TEST_F(Words, TheFindStringIsTheShortSelectionOfOneLine)
{
    Put(u"a[b c]|d");
    EXPECT_EQ(control.GetFindString(), QStringLiteral("b c"));
    EXPECT_TRUE(control.HasFindString());
    Put(u"a[b\nc]|d");
    EXPECT_EQ(control.GetFindString(), QString());
    EXPECT_TRUE(control.HasFindString());
    PutPlain(std::u16string(200, u'x'));
    control.SetSel(0, 199, 1);
    EXPECT_EQ(control.GetFindString().size(), 199);
    control.SetSel(0, 200, 1);
    EXPECT_EQ(control.GetFindString(), QString());
}

TEST_F(Words, TheFindStringIsElseTheWordAtTheCaretIfItIsLongEnough)
{
    Put(u"ab|c d");
    EXPECT_EQ(control.GetFindString(), QStringLiteral("abc"));
    EXPECT_TRUE(control.HasFindString());
    Put(u"abc |d ;");
    EXPECT_EQ(control.GetFindString(), QString());
    EXPECT_FALSE(control.HasFindString());
}

TEST_F(Words, ACharacterIsInserted)
{
    Put(u"ab");
    control.InsertChar(1, u'x');
    EXPECT_EQ(Text(), u"axb");
    control.InsertChar(99, u'y');
    EXPECT_EQ(Text(), u"axby");
    control.InsertChar(0, 0);
    EXPECT_EQ(Text(), u"axby");
}

TEST_F(Words, AFileIsInsertedInTheTextsLineEndsAndTheCaretStays)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("in.sql"));
    std::ofstream(path.toStdString(), std::ios::binary) << "x\r\ny";
    Put(u"a|b");
    EXPECT_TRUE(control.InsertFile(path.toStdU16String().c_str(), FileEncodeConverter::encUnknown));
    EXPECT_EQ(Marked(), u"a|x\nyb");
    EXPECT_EQ(TextAfterUndo(), u"ab");
    EXPECT_FALSE(control.InsertFile(folder.filePath(QStringLiteral("no")).toStdU16String().c_str(),
                                    FileEncodeConverter::encUnknown));
    EXPECT_EQ(Text(), u"ab");
}

TEST_F(Words, AnInsertedFileLeavesTheEncodingOfTheTextWithCareAlone)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("in.sql"));
    std::ofstream(path.toStdString(), std::ios::binary) << "plain";
    for (const bool careful : {false, true}) {
        control.SetCarefulFiles(careful);
        control.SetEncoding(FileEncodeConverter::encUTF8);
        control.SetWriteEncodingSig(true);
        EXPECT_TRUE(
            control.InsertFile(path.toStdU16String().c_str(), FileEncodeConverter::encUnknown));
        EXPECT_EQ(control.GetEncoding(),
                  careful ? FileEncodeConverter::encUTF8 : FileEncodeConverter::encANSI);
        EXPECT_EQ(control.GetWriteEncodingSig(), careful);
    }
}

TEST_F(Words, ARangeIsReadAsItIsWithoutAWayToGrow)
{
    Put(u"ab cd\r\n|");
    char16_t buffer[20] = u"before";
    int start = 1;
    int end = 1;
    control.RangeExtendAndGrab(buffer, 20, start, end, 7, nullptr, false);
    EXPECT_EQ(std::u16string(buffer), u"");
    end = 7;
    control.RangeExtendAndGrab(buffer, 20, start, end, 7, nullptr, false);
    EXPECT_EQ(std::u16string(buffer), u"b cd\r\n");
    control.RangeExtendAndGrab(buffer, 20, start, end, 7, nullptr, true);
    EXPECT_EQ(std::u16string(buffer), u"b cd");
    control.RangeExtendAndGrab(buffer, 4, start, end, 7, nullptr, false);
    EXPECT_EQ(std::u16string(buffer), u"b c");
    EXPECT_EQ(end, 4);
}

TEST_F(Words, ARangeGrowsNoFurtherThanItsLimit)
{
    Put(u"abcdef|");
    char16_t buffer[20];
    int start = 2;
    int end = 2;
    control.RangeExtendAndGrab(
        buffer, 20, start, end, 4, [](char16_t c) { return c != u'a'; }, false);
    EXPECT_EQ(std::u16string(buffer), u"bcd");
    EXPECT_EQ(start, 1);
    EXPECT_EQ(end, 4);
}

} // namespace
