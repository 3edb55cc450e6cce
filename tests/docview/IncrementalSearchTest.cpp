// SPDX-License-Identifier: GPL-3.0-or-later
// The search that goes on with every character typed.
#include "tests/docview/ViewFixture.h"

#include "docview/SearchStatus.h"

#include <QTest>

namespace {

constexpr UINT kForward = 54024;
constexpr UINT kReverse = 54025;

// Holds what was shown last.
class Listener final : public ISearchStatus
{
public:
    Listener() { SetSearchStatus(this); }
    ~Listener() override { SetSearchStatus(nullptr); }
    void Show(CZNCoreEditorView&, const SearchStatus& status) override { last = status; }

    SearchStatus last;
};

class IncrementalSearch : public ViewTest
{
protected:
    void Start(UINT command) { view->OnCmdMsg(command, nullptr); }
    void Type(const QString& text)
    {
        for (const QChar unit : text)
            EXPECT_TRUE(view->HandleInputCharacter(unit.unicode(), 1, 0));
    }
    long From() { return Control().GetSelectionStart(1); }
    long To() { return Control().GetSelectionEnd(1); }

    Listener shown;
};

} // namespace

TEST_F(IncrementalSearch, GoesToTheFirstMatchOfWhatHasBeenTyped)
{
    Put("one two three twenty", 0, 0);
    Start(kForward);
    Type("tw");
    EXPECT_EQ(From(), 4);
    Type("e");
    EXPECT_EQ(From(), 14);
    EXPECT_EQ(To(), 17);
    EXPECT_EQ(Control().GetText(), "one two three twenty");
}

TEST_F(IncrementalSearch, BringsThePreviousTextBackAtItsSecondStartAndStepsAtTheThird)
{
    Put("ab ab ab", 0, 0);
    Start(kForward);
    Type("ab");
    EXPECT_TRUE(view->HandleInputCharacter(27, 1, 0));
    Put("ab ab ab", 0, 0);
    Start(kForward);
    EXPECT_EQ(view->m_searchText, "");
    Start(kForward);
    EXPECT_EQ(view->m_searchText, "ab");
    EXPECT_EQ(From(), 0);
    Start(kForward);
    EXPECT_EQ(From(), 3);
}

TEST_F(IncrementalSearch, TurnsRoundWithItsTextAndItsPlace)
{
    Put("ab -- ab", 4, 4);
    Start(kReverse);
    Type("ab");
    EXPECT_EQ(From(), 0);
    Start(kForward);
    EXPECT_EQ(view->m_searchText, "ab");
    EXPECT_EQ(From(), 6);
    EXPECT_TRUE(view->m_incrementalForward);
    EXPECT_FALSE(view->m_incrementalReverse);
}

TEST_F(IncrementalSearch, TakesNothingMoreOnceItFailedUntilTheTextIsShorter)
{
    Put("abc", 0, 0);
    Start(kForward);
    Type("ax");
    EXPECT_FALSE(shown.last.isFound);
    Type("b");
    EXPECT_EQ(view->m_searchText, "ax");
    EXPECT_TRUE(view->HandleDeleteBack());
    EXPECT_EQ(view->m_searchText, "a");
    EXPECT_TRUE(shown.last.isFound);
    Type("b");
    EXPECT_EQ(To(), 2);
}

TEST_F(IncrementalSearch, ComesBackToItsPlaceWithoutAText)
{
    Put("-- ab", 1, 1);
    Start(kForward);
    Type("a");
    EXPECT_EQ(From(), 3);
    EXPECT_TRUE(view->HandleDeleteBack());
    EXPECT_EQ(From(), 1);
    EXPECT_EQ(To(), 1);
    EXPECT_FALSE(view->HandleDeleteBack());
}

TEST_F(IncrementalSearch, FindsNothingInReverseFromTheTextsStart)
{
    Put("abc", 0, 0);
    Start(kReverse);
    Type("a");
    EXPECT_FALSE(shown.last.isFound);
    EXPECT_EQ(Control().GetCurrentPos(1), 0);
}

TEST_F(IncrementalSearch, TakesTabsAndBlanksForText)
{
    Put("a\tb c", 0, 0);
    Start(kForward);
    Type("\tb c");
    EXPECT_EQ(view->m_searchText, "\tb c");
    EXPECT_EQ(From(), 1);
    EXPECT_EQ(To(), 5);
}

TEST_F(IncrementalSearch, EndsWithEnterAndItsMatchSelected)
{
    Put("one two", 0, 0);
    Start(kForward);
    Type("two");
    EXPECT_TRUE(view->HandleInputCharacter(13, 1, 0));
    EXPECT_FALSE(view->m_incrementalForward);
    EXPECT_EQ(Control().GetSelText(), "two");
    EXPECT_EQ(Control().GetText(), "one two");
    EXPECT_FALSE(Control().GetReadOnly(1));
}

TEST_F(IncrementalSearch, TakesACharacterOfTwoUnitsAsOne)
{
    const QString clef = QString::fromUcs4(U"\U0001D11E");
    Put("a" + clef + "b", 0, 0);
    Start(kForward);
    Type(clef);
    EXPECT_TRUE(shown.last.isFound);
    EXPECT_EQ(Control().GetSelText(), clef);
    view->HandleDeleteBack();
    EXPECT_EQ(view->m_searchText, "");
}

TEST_F(IncrementalSearch, TellsWhatItSearchesForAndThatItEnded)
{
    Put("one", 0, 0);
    Start(kForward);
    Type("o");
    EXPECT_EQ(shown.last.text, "Incremental search: o");
    Start(kReverse);
    Type("x");
    EXPECT_EQ(shown.last.text, "Incremental search failed: o"); // nothing is before the start
    view->StopIncrementalSearch();
    EXPECT_EQ(shown.last.text, "");
}

TEST_F(IncrementalSearch, SaysNoMoreOfATextThanWhatStandsBeforeABar)
{
    Put("a|b", 3, 3);
    Start(kReverse);
    Type("a|");
    EXPECT_TRUE(shown.last.isFound);
    EXPECT_EQ(shown.last.text, "Incremental search reverse: a");
}

TEST_F(IncrementalSearch, CountsItsMatchesUpToALimit)
{
    Put("ab AB ab", 0, 0);
    Start(kForward);
    Type("ab");
    EXPECT_EQ(view->CountIncrementalMatches(100), 3);
    EXPECT_EQ(view->CountIncrementalMatches(2), 2);
}
