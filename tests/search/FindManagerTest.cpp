// SPDX-License-Identifier: GPL-3.0-or-later
// Searches of the find manager: ranges, wrapping, styles.
#include "tests/search/FindFixture.h"

namespace {

constexpr int kSqlLanguage = 2;
const std::vector<int> kComments = {1, 2, 3};

class FindManager : public FindTest
{};

class FindSkipping : public FindTest
{
protected:
    void SetStyledText(const char* text)
    {
        control.InitializeLanguage(kSqlLanguage, 1);
        SetText(QLatin1String(text));
        control.Colorize(0, -1, 1);
        Seek(u"find");
    }
};

} // namespace

TEST_F(FindManager, FindsForwardsAndBackwards)
{
    SetText(QStringLiteral("one two one"));
    Seek(u"one");
    EXPECT_EQ(manager.FindInRange(&control, 1, 11, true), 8);
    EXPECT_EQ(manager.FindInRange(&control, 10, 0, true), 0);
    EXPECT_EQ(control.GetTargetStart(1), 0);
    EXPECT_EQ(control.GetTargetEnd(1), 3);
    EXPECT_EQ(manager.FindInRange(&control, 1, 10, true), -1);
}

TEST_F(FindManager, SearchesNoSecondRangeWhereWrappingIsNotAsked)
{
    SetText(QStringLiteral("one two"));
    control.GotoPos(5, 1);
    Seek(u"one");
    EXPECT_EQ(manager.FindInRange(&control, 5, 7, true), -1);
    EXPECT_EQ(manager.FindInRange(&control, 5, 7, false), 0);
    manager.SetWrap(false);
    EXPECT_EQ(manager.FindInRange(&control, 5, 7, false), -1);
}

TEST_F(FindManager, WrapsDownwardsUpToTheCaret)
{
    SetText(QStringLiteral("a one a"));
    control.GotoPos(4, 1);
    Seek(u"one");
    EXPECT_EQ(manager.FindInRange(&control, 4, 7, false), -1) << "the match is not all before it";
    control.GotoPos(5, 1);
    EXPECT_EQ(manager.FindInRange(&control, 5, 7, false), 2);
}

TEST_F(FindManager, WrapsUpwardsFromTheEndToTheStartOfTheSelection)
{
    SetText(QStringLiteral("one two one two"));
    control.SetSel(4, 7, 1);
    manager.SetDown(false);
    Seek(u"two");
    EXPECT_EQ(manager.FindInRange(&control, 3, 0, false), 12);
    control.SetSel(13, 13, 1);
    EXPECT_EQ(manager.FindInRange(&control, 3, 0, false), -1);
}

TEST_F(FindManager, FindsTheNextFromTheCaret)
{
    SetText(QStringLiteral("one one one"));
    Seek(u"one");
    control.GotoPos(3, 1);
    EXPECT_EQ(manager.FindNext(&control), 4);
    control.GotoPos(8, 1);
    manager.SetDown(false);
    EXPECT_EQ(manager.FindNext(&control), 4);
    manager.SetDown(true);
    control.GotoPos(9, 1);
    EXPECT_EQ(manager.FindNext(&control), 0);
}

TEST_F(FindManager, FollowsItsOptions)
{
    SetText(QStringLiteral("Ones one ONE"));
    Seek(u"one");
    EXPECT_EQ(manager.FindInRange(&control, 0, 12, true), 0);
    manager.SetWholeWord(true);
    EXPECT_EQ(manager.FindInRange(&control, 0, 12, true), 5);
    manager.SetWholeWord(false);
    manager.SetMatchCase(true);
    Seek(u"ONE");
    EXPECT_EQ(manager.FindInRange(&control, 0, 12, true), 9);
    manager.SetRegExp(true);
    Seek(u"[a-z]+$");
    EXPECT_EQ(manager.FindInRange(&control, 0, 8, true), -1);
    Seek(u" \\([a-z]\\)");
    EXPECT_EQ(manager.FindInRange(&control, 0, 12, true), 4);
}

TEST_F(FindManager, LeavesTheFlagsOfTheEngineAsTheyWere)
{
    SetText(QStringLiteral("one"));
    control.SetSearchFlags(4, 1);
    manager.SetRegExp(true);
    Seek(u"one");
    EXPECT_EQ(manager.FindNext(&control), 0);
    EXPECT_EQ(control.GetSearchFlags(1), 4);
    Seek(u"none");
    EXPECT_EQ(manager.FindNext(&control), -1);
    EXPECT_EQ(control.GetSearchFlags(1), 4);
}

TEST_F(FindManager, FindsNothingWithoutAnEditor)
{
    CZNCoreEditorControlEx none;
    Seek(u"one");
    EXPECT_EQ(manager.FindNext(&none), -1);
    EXPECT_EQ(manager.FindNext(nullptr), -1);
    EXPECT_EQ(manager.FindInRange(nullptr, 0, 0, false), -1);
    EXPECT_EQ(manager.FindSkippingStyles(nullptr, 0, 0, {1}, false), -1);
    EXPECT_EQ(manager.ReplaceAll(nullptr, false), 0);
    EXPECT_EQ(manager.ReplaceAll(&none, false), 0);
    manager.ReplaceOne(nullptr);
}

TEST_F(FindManager, FindsNothingByAPatternThatIsNone)
{
    SetText(QStringLiteral("a[b"));
    manager.SetRegExp(true);
    for (const char16_t* pattern : {u"[", u"\\(", u"*", u"\\"}) {
        Seek(pattern);
        EXPECT_EQ(manager.FindNext(&control), -1);
        EXPECT_EQ(manager.ReplaceAll(&control, false), 0);
    }
    EXPECT_EQ(Text(), u"a[b");
}

TEST_F(FindManager, TakesPlacesOutsideOfTheText)
{
    SetText(QStringLiteral("one"));
    Seek(u"one");
    EXPECT_EQ(manager.FindInRange(&control, -5, 99, true), 0);
    EXPECT_EQ(manager.FindInRange(&control, 99, -5, true), 0);
    EXPECT_EQ(manager.FindInRange(&control, 99, 100, true), -1);
}

TEST_F(FindSkipping, FindsAsEverWithoutStyles)
{
    SetStyledText("-- find\nfind");
    EXPECT_EQ(manager.FindSkippingStyles(&control, 0, Length(), {}, true), 3);
    EXPECT_EQ(manager.FindSkippingStyles(&control, 4, Length(), kComments, true), 8);
}

TEST_F(FindSkipping, LooksDownwardsOnlyBeforeAMatchThatDoesNotCount)
{
    SetStyledText("-- find\nfind");
    EXPECT_EQ(manager.FindSkippingStyles(&control, 0, Length(), kComments, true), -1);
}

TEST_F(FindSkipping, ComesBackFromAWrappedMatchToTheOnesBehindIt)
{
    SetStyledText("-- find\nfind");
    control.GotoPos(Length(), 1);
    EXPECT_EQ(manager.FindSkippingStyles(&control, Length(), Length(), kComments, false), 8);
}

TEST_F(FindSkipping, EndsWhereEveryMatchIsSkipped)
{
    SetStyledText("-- find\n-- find\n-- find");
    for (const bool down : {true, false}) {
        for (const int caret : {0, 10, Length()}) {
            manager.SetDown(down);
            control.GotoPos(caret, 1);
            EXPECT_EQ(
                manager.FindSkippingStyles(&control, caret, down ? Length() : 0, kComments, false),
                -1);
        }
    }
}

TEST_F(FindSkipping, GoesOnUpwardsOneUnitFurther)
{
    SetStyledText("find -- find\n-- find");
    manager.SetDown(false);
    control.GotoPos(0, 1);
    EXPECT_EQ(manager.FindSkippingStyles(&control, Length(), 0, kComments, true), 0);
}

TEST_F(FindSkipping, EndsForAMatchOfNothing)
{
    SetStyledText("-- find");
    manager.SetRegExp(true);
    Seek(u"x*");
    for (const bool down : {true, false}) {
        manager.SetDown(down);
        EXPECT_EQ(manager.FindSkippingStyles(&control, down ? 0 : Length(), down ? Length() : 0,
                                             {0, 1, 2, 3}, false),
                  -1);
    }
}

TEST_F(FindManager, FindsNulsAndAstralCharacters)
{
    const QString nul(1, QChar(0));
    SetText(QStringLiteral("a\U0001F600b\u4e2dc"));
    control.InsertText(0, u"x", 1);
    Seek(u"\U0001F600");
    EXPECT_EQ(manager.FindInRange(&control, 0, Length(), true), 2);
    EXPECT_EQ(control.GetTargetEnd(1), 4);
    Seek(u"\u4e2dC");
    EXPECT_EQ(manager.FindInRange(&control, Length(), 0, true), 5);
    const std::u16string text = u"ab" + nul.toStdU16String() + u"c";
    control.SetTarget(0, Length());
    control.ReplaceTargetNoProcess(static_cast<int>(text.size()), text.data(), 1);
    manager.AddFindHistory(QStringLiteral("B") + nul);
    EXPECT_EQ(manager.FindInRange(&control, 0, Length(), true), 1);
    EXPECT_EQ(control.GetTargetEnd(1), 3);
}

// It stands in the text as the replacement character.
TEST_F(FindManager, FindsALoneSurrogateAsWhatItBecame)
{
    const QString lone(1, QChar(0xD800));
    SetText(QStringLiteral("a") + lone + QStringLiteral("b"));
    manager.AddFindHistory(lone);
    EXPECT_EQ(manager.FindInRange(&control, 0, Length(), true), 1);
    EXPECT_EQ(control.GetTargetEnd(1), 2);
}

TEST_F(FindManager, FindsNothingWhereAPatternRunsAway)
{
    SetText(QString(200, u'a') + u'b');
    manager.SetRegExp(true);
    Seek(u"\\(a*\\)*\\(a*\\)*\\(a*\\)*c");
    EXPECT_EQ(manager.FindNext(&control), -1);
    EXPECT_EQ(manager.ReplaceAll(&control, false), 0);
}

TEST_F(FindManager, LeavesTheTargetOnAMatchThatWrapped)
{
    SetText(QStringLiteral("one two one"));
    control.GotoPos(9, 1);
    Seek(u"two");
    EXPECT_EQ(manager.FindNext(&control), 4);
    EXPECT_EQ(control.GetTargetStart(1), 4);
    EXPECT_EQ(control.GetTargetEnd(1), 7);
    EXPECT_EQ(control.GetCurrentPos(1), 9) << "the caret is the caller's business";
}
