// SPDX-License-Identifier: GPL-3.0-or-later
// The dialogs "Find" and "Find & Replace".
#include "tests/search/dialogs/DialogFixture.h"

#include "editing/FindDialogs.h"
#include "platform/dialogs/MenuButton.h"
#include "platform/dialogs/MyComboBox.h"
#include "search/dialogs/PatternMenus.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QTest>

namespace {

class FindDialogs : public FindDialogTest
{};

constexpr long kBookmark = 1;

} // namespace

TEST_F(FindDialogs, FindNothingSilentlyAndAskForATextToReplace)
{
    Put(u"abc");
    CFindDialog& find = Find();
    find.GetDlgItem<QComboBox>(findcontrol::FindBox)->setEditText(QString());
    Click(find, findcontrol::Find);
    EXPECT_TRUE(user.read.isEmpty());
    CFindReplace& replace = Replace();
    replace.GetDlgItem<QComboBox>(findcontrol::FindBox)->setEditText(QString());
    Click(replace, findcontrol::Find);
    Click(replace, findcontrol::ReplaceAll);
    EXPECT_EQ(user.read, QStringList({"Enter find string", "Enter find string"}));
}

TEST_F(FindDialogs, SayWhatIsWrongWithAnExpressionAsItIsTyped)
{
    CFindDialog& find = Find(u"\\(a");
    const auto* fault = find.GetSafeHwnd()->findChild<QLabel*>("fault");
    EXPECT_EQ(fault->text(), "");
    Click(find, findcontrol::RegExp);
    EXPECT_EQ(fault->text(), "The expression is not complete.");
    EXPECT_EQ(fault->accessibleName(), fault->text());
    find.GetDlgItem<QComboBox>(findcontrol::FindBox)->setEditText("\\(a\\)");
    EXPECT_EQ(fault->text(), "");
}

// The sanitizers see it.
TEST_F(FindDialogs, ForgetAnEditorThatTookTheFocusBehindItsWindowsEnd)
{
    CFindDialog& find = Find(u"a");
    {
        CZNCoreEditorControlEx gone;
        GetFindDialogs()->Serve(gone);
    }
    find.DestroyWindow();
    EXPECT_EQ(CFindDialog::GetFindDialog(false, false), nullptr);
}

TEST_F(FindDialogs, TakeEachOthersPlace)
{
    CFindReplace& replace = Replace();
    replace.GetSafeHwnd()->move(123, 77);
    CFindDialog& find = Find();
    EXPECT_FALSE(IsWindowVisible(replace.GetSafeHwnd()));
    EXPECT_TRUE(IsWindowVisible(find.GetSafeHwnd()));
    EXPECT_EQ(find.GetSafeHwnd()->pos(), QPoint(123, 77));
    find.GetSafeHwnd()->move(60, 50);
    Replace();
    EXPECT_FALSE(IsWindowVisible(find.GetSafeHwnd()));
    EXPECT_EQ(replace.GetSafeHwnd()->pos(), QPoint(60, 50));
}

TEST_F(FindDialogs, SelectTheMatchAndThenTheNextOne)
{
    Put(u"ab ab ab");
    CFindDialog& find = Find(u"ab");
    Click(find, findcontrol::Find);
    EXPECT_EQ(Selection(), Pair(0, 2));
    Click(find, findcontrol::Find);
    EXPECT_EQ(Selection(), Pair(3, 5));
    Click(find, findcontrol::Up);
    Click(find, findcontrol::Find);
    EXPECT_EQ(Selection(), Pair(0, 2));
    EXPECT_FALSE(shared.GetDown());
}

TEST_F(FindDialogs, SelectAsMuchAsThePatternIsLongBehindASelection)
{
    Put(u"abbb abbb", 0, 1);
    CFindDialog& find = Find(u"ab+");
    Click(find, findcontrol::RegExp);
    Click(find, findcontrol::Find);
    EXPECT_EQ(Selection(), Pair(5, 8));
}

TEST_F(FindDialogs, SayWhatTheyDidNotFind)
{
    Put(u"abc");
    Click(Find(u"x y"), findcontrol::Find);
    Click(Replace(u"z"), findcontrol::Find);
    EXPECT_EQ(user.read,
              QStringList({"Could not find the string 'x y'.", "Could not find the string 'z'."}));
}

TEST_F(FindDialogs, SelectTheNextMatchFirstAndReplaceItAtTheSecondPress)
{
    Put(u"-- one one", 0, 2);
    CFindReplace& replace = Replace(u"one", u"two");
    Click(replace, findcontrol::Replace);
    EXPECT_EQ(Text(), "-- one one");
    EXPECT_EQ(Selection(), Pair(3, 6));
    Click(replace, findcontrol::Replace);
    EXPECT_EQ(Text(), "-- two one");
    EXPECT_EQ(Selection(), Pair(7, 10));
}

TEST_F(FindDialogs, KeepTheSelectionWhereThereIsNothingToReplace)
{
    Put(u"abc", 0, 2);
    Click(Replace(u"x", u"y"), findcontrol::Replace);
    EXPECT_EQ(Selection(), Pair(0, 2));
    EXPECT_EQ(Text(), "abc");
}

TEST_F(FindDialogs, ReplaceUpwards)
{
    Put(u"one one", 4, 7);
    CFindReplace& replace = Replace(u"one", u"1");
    Click(replace, findcontrol::Up);
    Click(replace, findcontrol::Replace);
    EXPECT_EQ(Text(), "one 1");
    EXPECT_EQ(Selection(), Pair(0, 3));
}

TEST_F(FindDialogs, OfferTheSelectionOnlyIfTheyOpenWithOne)
{
    Put(u"abc");
    CFindReplace& replace = Replace(u"a");
    EXPECT_FALSE(replace.GetDlgItem(findcontrol::InSelection)->isEnabled());
    control.SetSel(0, 2, 1);
    EXPECT_FALSE(replace.GetDlgItem(findcontrol::InSelection)->isEnabled());
    Click(replace, IDCANCEL);
    Replace(u"a");
    EXPECT_TRUE(replace.GetDlgItem(findcontrol::InSelection)->isEnabled());
}

TEST_F(FindDialogs, ReplaceAllAndInTheSelectionAndSayHowMany)
{
    Put(u"a a a a", 2, 5);
    CFindReplace& replace = Replace(u"a", u"bb");
    Click(replace, findcontrol::InSelection);
    EXPECT_EQ(Text(), "a bb bb a");
    Click(replace, findcontrol::ReplaceAll);
    EXPECT_EQ(Text(), "bb bb bb bb");
    Click(replace, findcontrol::ReplaceAll);
    EXPECT_EQ(user.read,
              QStringList({"Replaced 2 occurrences of 'a'", "Replaced 2 occurrences of 'a'",
                           "Could not find the string 'a'."}));
}

TEST_F(FindDialogs, BookmarkEveryLineThatMatchesAndNoneTwice)
{
    Put(u"a\nb\na a\nb\na", 3, 3);
    control.ToggleBookmark(0);
    Click(Find(u"a"), findcontrol::BookmarkAll);
    const auto marked = [this](int line) { return (control.MarkerGet(line, 1) & kBookmark) != 0; };
    EXPECT_TRUE(marked(0));
    EXPECT_FALSE(marked(1));
    EXPECT_TRUE(marked(2));
    EXPECT_TRUE(marked(4));
    EXPECT_EQ(control.GetCurrentPos(1), 3);
}

TEST_F(FindDialogs, BookmarkNoFurtherThanTheTextsEndWithoutWrapping)
{
    Put(u"a\na\na", 2, 2);
    CFindDialog& find = Find(u"a");
    Click(find, findcontrol::Wrap);
    Click(find, findcontrol::BookmarkAll);
    EXPECT_FALSE(control.MarkerGet(0, 1) & kBookmark);
    EXPECT_TRUE(control.MarkerGet(1, 1) & kBookmark);
    EXPECT_TRUE(control.MarkerGet(2, 1) & kBookmark);
    Click(find, findcontrol::Up);
    control.SetSel(0, 0, 1);
    Click(find, findcontrol::BookmarkAll);
    EXPECT_EQ(user.read, QStringList("Could not find the string 'a'."));
}

TEST_F(FindDialogs, ShowTheSettingsAndTheHistoriesTheyHaveInCommon)
{
    shared.AddFindHistory("older");
    shared.AddFindHistory("newer");
    shared.SetMatchCase(true);
    CFindReplace& replace = Replace();
    auto* box = replace.GetDlgItem<CMyComboBox>(findcontrol::FindBox);
    EXPECT_EQ(box->currentText(), "newer");
    EXPECT_TRUE(replace.GetDlgItem<QAbstractButton>(findcontrol::MatchCase)->isChecked());
    shared.AddFindHistory("newest");
    box->showPopup();
    EXPECT_EQ(box->itemText(0), "newest");
    EXPECT_EQ(box->currentText(), "newest");
    box->hidePopup();
}

TEST_F(FindDialogs, OpenTheMenusOfExpressionsOnlyWithThem)
{
    CFindReplace& replace = Replace(u"a");
    EXPECT_FALSE(replace.GetDlgItem(findcontrol::FindMenu)->isEnabled());
    EXPECT_FALSE(replace.GetDlgItem(findcontrol::ReplaceMenu)->isEnabled());
    Click(replace, findcontrol::RegExp);
    EXPECT_TRUE(replace.GetDlgItem(findcontrol::FindMenu)->isEnabled());
    EXPECT_TRUE(replace.GetDlgItem(findcontrol::ReplaceMenu)->isEnabled());
}

TEST_F(FindDialogs, InsertAnItemWhereTheCaretWas)
{
    CFindDialog& find = Find();
    auto* box = find.GetDlgItem<CMyComboBox>(findcontrol::FindBox);
    ASSERT_TRUE(QTest::qWaitForWindowActive(find.GetSafeHwnd()));
    box->setFocus();
    box->setEditText("ab");
    box->lineEdit()->setCursorPosition(1);
    find.GetDlgItem(findcontrol::Find)->setFocus();
    box->lineEdit()->setCursorPosition(2);
    find.GetDlgItem<CMenuButton>(findcontrol::FindMenu)->menu()->actions()[3]->trigger();
    EXPECT_EQ(box->currentText(), "a[]b");
    EXPECT_EQ(box->lineEdit()->cursorPosition(), 3);
    EXPECT_TRUE(find.GetDlgItem<QAbstractButton>(findcontrol::RegExp)->isChecked());
    EXPECT_TRUE(find.GetDlgItem(findcontrol::FindMenu)->isEnabled());
}

TEST_F(FindDialogs, PutTheCaretWhereAnItemMarksIt)
{
    CMyComboBox box;
    EXPECT_TRUE(InsertItem(box, QStringLiteral("Group\t\\(\u0001\\)")));
    EXPECT_EQ(box.currentText(), "\\(\\)");
    EXPECT_EQ(box.lineEdit()->cursorPosition(), 2);
    EXPECT_FALSE(InsertItem(box, QStringLiteral("Nothing")));
    EXPECT_FALSE(InsertItem(box, QStringLiteral("Nothing\t")));
    EXPECT_EQ(box.currentText(), "\\(\\)");
}

TEST_F(FindDialogs, AreHiddenByCancelAndByEscapeAndStayWhatTheyWere)
{
    CFindDialog& find = Find(u"kept");
    QTest::keyClick(find.GetSafeHwnd(), Qt::Key_Escape);
    EXPECT_FALSE(IsWindowVisible(find.GetSafeHwnd()));
    EXPECT_EQ(CFindDialog::GetFindDialog(false, false), &find);
    EXPECT_EQ(find.GetSafeHwnd()->focusWidget(), find.GetDlgItem(findcontrol::Find));
}

TEST_F(FindDialogs, KeepWhatTheyKnowWhenTheirWindowIsDestroyed)
{
    Put(u"abc");
    CFindDialog& find = Find(u"b");
    Click(find, findcontrol::Find);
    find.DestroyWindow();
    EXPECT_FALSE(CFindDialog::GetFindDialog(false, false));
    EXPECT_TRUE(std::get<QString>(registry.Search("FindCombo")).startsWith("b|"));
}

TEST_F(FindDialogs, AreMadeAnewOnlyByForce)
{
    EXPECT_FALSE(CFindDialog::GetFindDialog(false, false));
    CFindDialog* first = CFindDialog::GetFindDialog(true, false);
    EXPECT_EQ(CFindDialog::GetFindDialog(true, false), first);
    const QPointer<QWidget> window = first->GetSafeHwnd();
    CFindDialog* second = CFindDialog::GetFindDialog(true, true);
    EXPECT_NE(second->GetSafeHwnd(), window);
}

TEST_F(FindDialogs, DoNothingOnceTheirEditorHasGone)
{
    Put(u"abc");
    CFindReplace& replace = Replace(u"b", u"x");
    control.DestroyWindow();
    EXPECT_FALSE(replace.GetControl());
    for (const UINT id : {findcontrol::Find, findcontrol::Replace, findcontrol::ReplaceAll})
        Click(replace, id);
    EXPECT_TRUE(user.read.isEmpty());
}

TEST_F(FindDialogs, SurviveTheEndOfTheirEditorWhileAMessageStands)
{
    Put(u"abc", 0, 1);
    user.meanwhile = [this] { control.DestroyWindow(); };
    Click(Replace(u"x", u"y"), findcontrol::Replace);
    EXPECT_EQ(user.read.size(), 1);
}

TEST_F(FindDialogs, SurviveTheEndOfTheirWindowWhileAMessageStands)
{
    Put(u"abc");
    user.meanwhile = [this] { CFindDialog::GetFindDialog(false, false)->DestroyWindow(); };
    Click(Find(u"x"), findcontrol::Find);
    EXPECT_FALSE(CFindDialog::GetFindDialog(false, false));
}

TEST_F(FindDialogs, NameEveryControlToAScreenReader)
{
    for (const CDialog* dialog :
         {static_cast<CDialog*>(&Find()), static_cast<CDialog*>(&Replace())}) {
        for (const UINT id : {findcontrol::FindMenu, findcontrol::ReplaceMenu}) {
            if (QWidget* menu = dialog->GetDlgItem(id)) {
                EXPECT_FALSE(menu->accessibleName().isEmpty());
            }
        }
        EXPECT_FALSE(dialog->GetDlgItem(findcontrol::FindBox)->accessibleDescription().isEmpty());
    }
}

TEST_F(FindDialogs, GoBesideTheMatchTheyWouldCover)
{
    Put(u"abc");
    CFindDialog& find = Find(u"b");
    find.GetSafeHwnd()->move(parent.mapToGlobal(QPoint(0, 0)));
    Click(find, findcontrol::Find);
    const QPoint match = control.GetSafeHwnd()->mapToGlobal(
        QPoint(control.PointXFromPosition(1, 1), control.PointYFromPosition(1, 1)));
    EXPECT_FALSE(find.GetSafeHwnd()->frameGeometry().contains(match));
}
