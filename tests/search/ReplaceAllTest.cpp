// SPDX-License-Identifier: GPL-3.0-or-later
// Replacements of the find manager, one and all: what they leave in the text, and that they end.
#include "tests/search/FindFixture.h"

namespace {

class Replacing : public FindTest
{
protected:
    Replacing() { manager.SetWrap(false); }

    // With the caret at a place.
    QString After(const char16_t* text, int caret, const char16_t* what, const char16_t* with,
                  int expected)
    {
        SetText(QString::fromUtf16(text));
        control.GotoPos(caret, 1);
        EXPECT_EQ(ReplaceAll(what, with), expected);
        return Text();
    }
    QString AfterInSelection(const char16_t* text, int start, int end, const char16_t* what,
                             const char16_t* with, int expected)
    {
        SetText(QString::fromUtf16(text));
        control.SetSel(start, end, 1);
        EXPECT_EQ(ReplaceAll(what, with, true), expected);
        return Text();
    }
};

} // namespace

TEST_F(Replacing, DecodesEscapes)
{
    EXPECT_EQ(CFindReplaceManager::DecodeEscapes(u"\\a\\b\\f\\n\\r\\t\\v"), u"\a\b\f\n\r\t\v");
    EXPECT_EQ(CFindReplaceManager::DecodeEscapes(u"\\q\\1\\\\n"), u"\\q\\1\\\\n");
    EXPECT_EQ(CFindReplaceManager::DecodeEscapes(u"plain"), u"plain");
    EXPECT_EQ(CFindReplaceManager::DecodeEscapes(u""), QString());
    EXPECT_EQ(CFindReplaceManager::DecodeEscapes(nullptr), QString());
}

TEST_F(Replacing, KeepsABackslashAtTheEndWithItsTerminator)
{
    EXPECT_EQ(CFindReplaceManager::DecodeEscapes(u"a\\").toStdU16String(),
              std::u16string(u"a\\\0", 3));
}

TEST_F(Replacing, DecodesWhatIsDecodedToTheSame)
{
    const unsigned seed = SeedOfTest();
    RandomTexts random(seed);
    for (int i = 0; i < 2000; ++i) {
        const std::u16string text = random.Text(8, u"\\\\antx");
        const QString once = CFindReplaceManager::DecodeEscapes(text.c_str());
        EXPECT_EQ(CFindReplaceManager::DecodeEscapes(Units(once)), once) << "seed " << seed;
    }
}

TEST_F(Replacing, ReplacesTheTargetAndMovesTheCaretOn)
{
    SetText(QStringLiteral("one two"));
    control.GotoPos(0, 1);
    Seek(u"one");
    manager.AddReplaceHistory(QStringLiteral("1\\t"));
    manager.SetTransform(true);
    ASSERT_EQ(manager.FindNext(&control), 0);
    manager.ReplaceOne(&control);
    EXPECT_EQ(Text(), u"1\t two");
    EXPECT_EQ(control.GetCurrentPos(1), 2);
}

TEST_F(Replacing, ReplacesWithTheGroupsOfAnExpression)
{
    SetText(QStringLiteral("key=value"));
    manager.SetRegExp(true);
    Seek(u"\\([a-z]+\\)=\\([a-z]+\\)");
    manager.AddReplaceHistory(QStringLiteral("\\2 = \\1"));
    ASSERT_EQ(manager.FindInRange(&control, 0, 9, true), 0);
    manager.ReplaceOne(&control);
    EXPECT_EQ(Text(), u"value = key");
}

TEST_F(Replacing, PutsTheLineEndsOfTheTextInWhereItHasOneMode)
{
    SetText(QStringLiteral("a,b"));
    control.SetEOLMode(1, 1);
    manager.SetTransform(true);
    EXPECT_EQ(ReplaceAll(u",", u"\\n"), 1);
    EXPECT_EQ(Text(), u"a\r\nb");
}

TEST_F(Replacing, ReplacesAllBehindTheCaret)
{
    EXPECT_EQ(After(u"one one one", 1, u"one", u"seven", 2), u"one seven seven");
}

TEST_F(Replacing, ReplacesAllBeforeTheCaretUpwards)
{
    manager.SetDown(false);
    EXPECT_EQ(After(u"one one one", 7, u"one", u"seven", 2), u"seven seven one");
}

// Upwards the search goes on one unit before the match, which a match right before it reaches into.
TEST_F(Replacing, PassesUpwardsOverAMatchThatTouchesTheLastOne)
{
    manager.SetDown(false);
    EXPECT_EQ(After(u"aaaa", 4, u"a", u"b", 2), u"abab");
}

TEST_F(Replacing, CoversTheWholeTextWithWrapping)
{
    manager.SetWrap(true);
    for (const bool down : {true, false}) {
        for (const int caret : {0, 5, 11}) {
            manager.SetDown(down);
            EXPECT_EQ(After(u"one one one", caret, u"one", u"1", 3), u"1 1 1");
        }
    }
}

TEST_F(Replacing, LeavesTheCaretWhereItWas)
{
    manager.SetWrap(true);
    SetText(QStringLiteral("one one one end"));
    control.SetSel(12, 14, 1);
    EXPECT_EQ(ReplaceAll(u"one", u"three"), 3);
    EXPECT_EQ(control.GetCurrentPos(1), 14);
    EXPECT_EQ(control.GetAnchor(1), 14);
    EXPECT_EQ(ReplaceAll(u"three", u""), 3);
    EXPECT_EQ(control.GetCurrentPos(1), Length()) << "the text has become too short";
}

TEST_F(Replacing, StaysInTheSelection)
{
    manager.SetWrap(true);
    EXPECT_EQ(AfterInSelection(u"one one one one", 4, 11, u"one", u"seven", 2),
              u"one seven seven one");
    EXPECT_EQ(control.GetSelectionStart(1), 4);
    EXPECT_EQ(control.GetSelectionEnd(1), 15);
    EXPECT_EQ(control.GetCurrentPos(1), 15);
}

TEST_F(Replacing, StaysInTheSelectionUpwards)
{
    manager.SetDown(false);
    EXPECT_EQ(AfterInSelection(u"aabab", 1, 5, u"a", u"x", 2), u"axbxb");
    EXPECT_EQ(control.GetCurrentPos(1), 1);
}

TEST_F(Replacing, EndsAfterOneInASelectionUpwardsWithWrapping)
{
    manager.SetWrap(true);
    manager.SetDown(false);
    EXPECT_EQ(AfterInSelection(u"a a a a", 0, 5, u"a", u"x", 1), u"a a x a");
}

// The range grows by what the text has shrunk.
TEST_F(Replacing, ReachesBehindTheSelectionWhereItMakesTheTextShorter)
{
    EXPECT_EQ(AfterInSelection(u"abc abc abc abc", 0, 7, u"abc", u"ab", 3), u"ab ab ab abc");
}

TEST_F(Replacing, DoesNotReplaceWhatItHasPutIn)
{
    for (const bool wrap : {true, false}) {
        manager.SetWrap(wrap);
        EXPECT_EQ(After(u"a b a", 0, u"a", u"xaax", 2), u"xaax b xaax");
    }
}

TEST_F(Replacing, IsOneUndoStep)
{
    SetText(QStringLiteral("one one one"));
    control.EmptyUndoBuffer(1);
    control.GotoPos(0, 1);
    EXPECT_EQ(ReplaceAll(u"one", u"1"), 3);
    control.Undo(1);
    EXPECT_EQ(Text(), u"one one one");
    EXPECT_FALSE(control.CanUndo(1));
}

TEST_F(Replacing, LeavesATextThatIsReadOnly)
{
    SetText(QStringLiteral("one one"));
    control.SetReadOnly(true, 1);
    for (const char16_t* with : {u"1", u"one more", u""}) {
        for (const bool wrap : {true, false}) {
            manager.SetWrap(wrap);
            EXPECT_EQ(ReplaceAll(u"one", with), 0);
        }
    }
    EXPECT_EQ(Text(), u"one one");
}

TEST_F(Replacing, CountsNoneWhereNothingIsFound)
{
    SetText(QStringLiteral("one"));
    EXPECT_EQ(ReplaceAll(u"two", u"three"), 0);
    EXPECT_EQ(Text(), u"one");
}

namespace {

class ReplacingNothing : public Replacing
{
protected:
    ReplacingNothing() { manager.SetRegExp(true); }

    // From where the direction begins.
    QString After(const char16_t* text, const char16_t* what, const char16_t* with, int expected)
    {
        const auto length = static_cast<int>(std::u16string_view(text).size());
        return Replacing::After(text, manager.GetDown() ? 0 : length, what, with, expected);
    }
};

} // namespace

TEST_F(ReplacingNothing, PutsOneAtTheEndOfEachLine)
{
    for (const bool wrap : {true, false}) {
        manager.SetWrap(wrap);
        EXPECT_EQ(After(u"a\nb\n\nc", u"$", u";", 4), u"a;\nb;\n;\nc;");
        EXPECT_EQ(After(u"a\r\nb\r\n", u"$", u";", 3), u"a;\r\nb;\r\n;");
        EXPECT_EQ(After(u"a", u"$", u"", 1), u"a");
        EXPECT_EQ(After(u"", u"$", u";", 1), u";");
        EXPECT_EQ(After(u"a\nb", u"$", u"\n", 2), u"a\n\nb\n");
    }
}

TEST_F(ReplacingNothing, PutsOneAtTheStartOfEachLine)
{
    for (const bool wrap : {true, false}) {
        manager.SetWrap(wrap);
        EXPECT_EQ(After(u"a\nb\n\nc", u"^", u"> ", 4), u"> a\n> b\n> \n> c");
        EXPECT_EQ(After(u"a\r\nb", u"^", u"> ", 2), u"> a\r\n> b");
        EXPECT_EQ(After(u"a\nb", u"^", u"", 2), u"a\nb");
        EXPECT_EQ(After(u"a\nb", u"^", u"\n", 2), u"\na\n\nb");
        EXPECT_EQ(After(u"", u"^", u"x", 1), u"x");
    }
}

TEST_F(ReplacingNothing, ReplacesNothingBetweenCharacters)
{
    for (const bool wrap : {true, false}) {
        manager.SetWrap(wrap);
        EXPECT_EQ(After(u"baac", u"a*", u"-", 3), u"-b--c") << "the end of a line is none";
        EXPECT_EQ(After(u"\U0001F600b", u"a*", u"-", 2), u"-\U0001F600-b");
    }
}

TEST_F(ReplacingNothing, EndsUpwards)
{
    manager.SetDown(false);
    EXPECT_EQ(After(u"a\nb", u"^", u">", 2), u">a\n>b");
    EXPECT_EQ(After(u"a\nb", u"$", u";", 2), u"a;\nb;");
    manager.SetWrap(true);
    EXPECT_EQ(After(u"a\nb", u"^", u"", 2), u"a\nb");
    EXPECT_EQ(After(u"a\nb", u"^", u">", 2), u">a\n>b");
}

TEST_F(ReplacingNothing, TakesAnEmptyTextForAMatchEverywhere)
{
    manager.SetRegExp(false);
    EXPECT_EQ(After(u"ab", u"", u"-", 3), u"-a-b-");
    EXPECT_EQ(After(u"ab", u"", u"", 3), u"ab");
    EXPECT_EQ(After(u"", u"", u"-", 1), u"-");
}

TEST_F(ReplacingNothing, EndsInASelection)
{
    EXPECT_EQ(AfterInSelection(u"a\nb\nc", 0, 3, u"^", u"> ", 2), u"> a\n> b\nc");
    control.SetSel(2, 2, 1);
    EXPECT_EQ(ReplaceAll(u"^", u"> ", true), 0);
    control.SetSel(0, 0, 1);
    EXPECT_EQ(ReplaceAll(u"^", u"> ", true), 1);
}

// A round that shortens the text may be followed by another.
TEST_F(ReplacingNothing, GoesRoundAsLongAsTheTextGetsShorter)
{
    manager.SetWrap(true);
    manager.SetRegExp(false);
    EXPECT_EQ(After(u"aabb ab ab", u"ab", u"", 4), u"  ");
}

namespace {

// The most replacements that a text of so many units can have. A round replaces each unit once, and
// nothing once at each place; the next one comes where the text got shorter, and after those one
// more goes up to the first match.
int MostReplacements(int units)
{
    int most = 2 * units + 1;
    for (int length = units; length >= 0; --length)
        most += 2 * length + 1;
    return most;
}

} // namespace

TEST_F(ReplacingNothing, EndsWhateverThePattern)
{
    const unsigned seed = SeedOfTest();
    RandomTexts random(seed);
    constexpr const char16_t* kPatterns[] = {u"$", u"^",       u"a*",   u"^a*",   u"a*$",
                                             u"",  u"\\(a\\)", u"a?",   u"ab",    u"^\\|$",
                                             u".", u"b*",      u"a*b*", u"[^a]*", u"ab*"};
    constexpr const char16_t* kReplacements[] = {u"", u"a", u"ab", u"\\0\\0", u"\n", u"\n\nab"};
    for (int i = 0; i < 3000; ++i) {
        const std::u16string text = random.Text(8, u"ab\n\r ");
        SetText(QString::fromStdU16String(text));
        control.EmptyUndoBuffer(1);
        manager.SetDown(random.Number(2) == 0);
        manager.SetWrap(random.Number(2) == 0);
        manager.SetRegExp(random.Number(4) != 0);
        control.SetSel(random.Number(Length() + 1), random.Number(Length() + 1), 1);
        const bool inSelection = random.Number(3) == 0;
        const int count =
            ReplaceAll(kPatterns[random.Number(std::size(kPatterns))],
                       kReplacements[random.Number(std::size(kReplacements))], inSelection);
        EXPECT_GE(count, 0);
        EXPECT_LE(count, MostReplacements(static_cast<int>(text.size())))
            << "seed " << seed << " round " << i;
        if (control.CanUndo(1))
            control.Undo(1);
        ASSERT_EQ(Text().toStdU16String(), text) << "seed " << seed << " round " << i;
    }
}
