// SPDX-License-Identifier: GPL-3.0-or-later
// The pages of colours and of fonts, and their samples.
#include "prefs/controls/ColorStatic.h"
#include "prefs/pages/SampleTexts.h"
#include "prefs/pages/StyleSample.h"
#include "tests/prefs/pages/PrefsFixture.h"

#include <QComboBox>
#include <QFontDatabase>
#include <QTest>
#include <Qsci/qsciscintillabase.h>

namespace {

namespace id = prefscontrol;

constexpr int kFirstStyle = 0;

class StylePages : public PrefsTest
{
protected:
    StylePages() { Open(); }

    static COLORREF ColorOf(const CDialog& page, UINT button)
    {
        return page.GetDlgItem<CColorButton>(button)->GetColor();
    }
    static void Select(const CDialog& page, const char* style)
    {
        auto* list = page.GetDlgItem<QListWidget>(id::ColorStyles);
        list->setCurrentItem(list->findItems(QLatin1String(style), Qt::MatchExactly).value(0));
    }
    static QString TextOf(const CDialog& page, UINT edit)
    {
        return page.GetDlgItem<QLineEdit>(edit)->text();
    }
    static CZNCoreEditorControl& Sample(const CDialog& page)
    {
        return *page.GetSafeHwnd()->findChild<StyleSample*>()->Control();
    }
    // What the engine itself has.
    static long Ask(const CDialog& page, unsigned message, int style)
    {
        return static_cast<QsciScintillaBase*>(Sample(page).GetSafeHwnd())
            ->SendScintilla(message, static_cast<unsigned long>(style));
    }
    static int NumberOf(int language, const char* style)
    {
        for (int number = 0; number <= 127; ++number) {
            if (Language(language).GetStyleName(number) == QLatin1String(style))
                return number;
        }
        return -1;
    }
    void Apply()
    {
        Click(*dialog, id::Apply);
        ReadAgain();
    }
};

TEST_F(StylePages, ListTheStylesThatHaveANameByNumber)
{
    const CEditorPrefsSubDlg& page = Show("Transact-SQL", "Color");
    const auto* list = page.GetDlgItem<QListWidget>(28061);
    QStringList expected;
    for (int style = 0; style <= 127; ++style) {
        if (const QString name = Language(kTransactSql).GetStyleName(style); !name.isEmpty())
            expected << name;
    }
    QStringList shown;
    for (int row = 0; row < list->count(); ++row)
        shown << list->item(row)->text();
    EXPECT_GT(shown.size(), 10);
    EXPECT_EQ(shown, expected);
    EXPECT_EQ(list->currentRow(), 0);
}

TEST_F(StylePages, ShowTheColoursOfTheChosenStyle)
{
    const CEditorPrefsSubDlg& page = Show("Transact-SQL", "Color");
    Select(page, "Statement");
    const int keyword = NumberOf(kTransactSql, "Statement");
    const auto fore =
        static_cast<COLORREF>(Language(kTransactSql).GetStyleColorForeground(keyword));
    EXPECT_EQ(ColorOf(page, 28059), fore);
    EXPECT_EQ(page.GetDlgItem<CColorStatic>(28062)->TextColor(), fore);
    EXPECT_EQ(page.GetDlgItem<CColorStatic>(28062)->Text(), "Sample Text");
}

TEST_F(StylePages, TryAColourOutBeforeItIsWritten)
{
    const CEditorPrefsSubDlg& page = Show("Transact-SQL", "Color");
    Select(page, "Statement");
    const int keyword = NumberOf(kTransactSql, "Statement");
    const int before = Language(kTransactSql).GetStyleColorForeground(keyword);
    ChooseColor(page, id::Foreground, 0x0000FF);
    EXPECT_EQ(page.GetDlgItem<CColorStatic>(id::Sample)->TextColor(), 0x0000FFU);
    EXPECT_EQ(Ask(page, QsciScintillaBase::SCI_STYLEGETFORE, keyword), 0x0000FF);
    EXPECT_EQ(Language(kTransactSql).GetStyleColorForeground(keyword), before);
    Apply();
    EXPECT_EQ(Language(kTransactSql).GetStyleColorForeground(keyword), 0x0000FF);
}

TEST_F(StylePages, KeepTheColoursOfEachStyle)
{
    const CEditorPrefsSubDlg& page = Show("Transact-SQL", "Color");
    Select(page, "Statement");
    ChooseColor(page, id::Foreground, 0x0000FF);
    Select(page, "Number");
    ChooseColor(page, id::Background, 0x00FFFF);
    Select(page, "Statement");
    EXPECT_EQ(ColorOf(page, id::Foreground), 0x0000FFU);
    Apply();
    EXPECT_EQ(Language(kTransactSql).GetStyleColorForeground(NumberOf(kTransactSql, "Statement")),
              0x0000FF);
    EXPECT_EQ(Language(kTransactSql).GetStyleColorBackground(NumberOf(kTransactSql, "Number")),
              0x00FFFF);
}

TEST_F(StylePages, TakeTheDefaultForTheDeliveredColour)
{
    const int delivered = Language(kTransactSql).GetStyleColorForeground(kFirstStyle);
    const CEditorPrefsSubDlg& page = Show("Transact-SQL", "Color");
    ChooseColor(page, id::Foreground, 0x0000FF);
    dialog->Apply(false);
    ChooseColor(page, id::Foreground, CColorButton::kDefaultColor);
    Apply();
    EXPECT_EQ(Language(kTransactSql).GetStyleColorForeground(kFirstStyle), delivered);
}

TEST_F(StylePages, ResetNoColourWhenThePersonSaysNo)
{
    Language(kTransactSql).SetStyleColorForeground(kFirstStyle, 0x123456);
    Language(kTransactSql).Save();
    const CEditorPrefsSubDlg& page = Show("Transact-SQL", "Color");
    person.answer = Answer::No;
    Click(page, 28063);
    EXPECT_EQ(person.titles, QStringList{"Clearing color changes"});
    EXPECT_EQ(person.read, QStringList{"All of your color settings will be lost ! Are you sure ?"});
    EXPECT_EQ(ColorOf(page, id::Foreground), 0x123456U);
    EXPECT_FALSE(CanApply());
}

TEST_F(StylePages, ResetEveryColourButWriteNoneBeforeApply)
{
    const int delivered = Language(kTransactSql).GetStyleColorForeground(kFirstStyle);
    const int keyword = NumberOf(kTransactSql, "Statement");
    const int deliveredKeyword = Language(kTransactSql).GetStyleColorBackground(keyword);
    Language(kTransactSql).SetStyleColorForeground(kFirstStyle, 0x123456);
    Language(kTransactSql).SetStyleColorBackground(keyword, 0x654321);
    Language(kTransactSql).Save();
    const FileStates before = StatesBelow(UserFolder());
    const CEditorPrefsSubDlg& page = Show("Transact-SQL", "Color");
    Click(page, id::ResetColors);
    EXPECT_EQ(ColorOf(page, id::Foreground), static_cast<COLORREF>(delivered));
    EXPECT_EQ(StatesBelow(UserFolder()), before);
    EXPECT_TRUE(CanApply());
    Apply();
    EXPECT_EQ(Language(kTransactSql).GetStyleColorForeground(kFirstStyle), delivered);
    EXPECT_EQ(Language(kTransactSql).GetStyleColorBackground(keyword), deliveredKeyword);
}

TEST_F(StylePages, OfferTheFontsOfTheScreenAndSizes)
{
    const CEditorPrefsSubDlg& page = Show("Transact-SQL", "Font");
    EXPECT_EQ(page.GetDlgItem<QListWidget>(28065)->count(), QFontDatabase::families().size());
    const auto* sizes = page.GetDlgItem<QListWidget>(28066);
    QStringList shown;
    for (int row = 0; row < sizes->count(); ++row)
        shown << sizes->item(row)->text();
    EXPECT_EQ(shown.join(u' '), "6 8 9 10 11 12 14 16 18 20 22 24 26 28 36 48 72");
    EXPECT_GT(page.GetDlgItem<QComboBox>(28074)->count(), 10);
}

TEST_F(StylePages, CompleteASizeThatIsTyped)
{
    const CEditorPrefsSubDlg& page = Show("Transact-SQL", "Font");
    auto* edit = page.GetDlgItem<QLineEdit>(28071);
    edit->clear();
    QTest::keyClicks(edit, QStringLiteral("3"));
    EXPECT_EQ(edit->text(), "36");
    EXPECT_EQ(edit->selectedText(), "6");
    EXPECT_EQ(page.GetDlgItem<QListWidget>(28066)->currentItem()->text(), "36");
}

TEST_F(StylePages, KeepASizeThatIsNotListed)
{
    const CEditorPrefsSubDlg& page = Show("Transact-SQL", "Font");
    auto* edit = page.GetDlgItem<QLineEdit>(28071);
    edit->clear();
    QTest::keyClicks(edit, QStringLiteral("13"));
    EXPECT_EQ(edit->text(), "13");
    QApplication::processEvents();
    EXPECT_TRUE(CanApply());
    Apply();
    EXPECT_EQ(Language(kTransactSql).GetStyleFontSize(kFirstStyle), 13);
}

TEST_F(StylePages, PutNothingBackThatIsTakenAway)
{
    const CEditorPrefsSubDlg& page = Show("Transact-SQL", "Font");
    auto* edit = page.GetDlgItem<QLineEdit>(28071);
    edit->clear();
    QTest::keyClicks(edit, QStringLiteral("3"));
    QTest::keyClick(edit, Qt::Key_Backspace);
    EXPECT_EQ(edit->text(), "3");
}

TEST_F(StylePages, TakeAFontFromTheList)
{
    const CEditorPrefsSubDlg& page = Show("Transact-SQL", "Font");
    auto* names = page.GetDlgItem<QListWidget>(28065);
    const QString name = names->item(names->count() - 1)->text();
    names->setCurrentRow(names->count() - 1);
    QApplication::processEvents();
    EXPECT_EQ(TextOf(page, 28067), name);
    EXPECT_TRUE(CanApply());
    EXPECT_EQ(page.GetDlgItem(id::Sample)->font().families(), QStringList{name});
    Apply();
    EXPECT_EQ(Language(kTransactSql).GetStyleFontName(kFirstStyle), name);
}

TEST_F(StylePages, ShowTheFlagsInTheSamples)
{
    const CEditorPrefsSubDlg& page = Show("Transact-SQL", "Font");
    const bool before = IsChecked(page, 28068);
    Click(page, 28068);
    Click(page, 28070);
    EXPECT_EQ(page.GetDlgItem(id::Sample)->font().bold(), !before);
    EXPECT_TRUE(page.GetDlgItem(id::Sample)->font().underline());
    EXPECT_EQ(Ask(page, QsciScintillaBase::SCI_STYLEGETBOLD, kFirstStyle) != 0, !before);
    Apply();
    EXPECT_EQ(Language(kTransactSql).GetStyleFontBold(kFirstStyle), !before);
    EXPECT_TRUE(Language(kTransactSql).GetStyleFontUnderline(kFirstStyle));
}

TEST_F(StylePages, GiveNameAndSizeToAllStylesButNoFlags)
{
    const CEditorPrefsSubDlg& page = Show("Transact-SQL", "Font");
    const int keyword = NumberOf(kTransactSql, "Statement");
    const bool bold = Language(kTransactSql).GetStyleFontBold(keyword);
    if (IsChecked(page, id::Bold) == bold)
        Click(page, id::Bold);
    Type(page, id::FontSize, "13");
    Click(page, 28072);
    EXPECT_EQ(person.titles, QStringList{"Information"});
    EXPECT_EQ(person.read, QStringList{"All styles have been set to the currrent font selection."});
    Apply();
    EXPECT_EQ(Language(kTransactSql).GetStyleFontSize(keyword), 13);
    EXPECT_EQ(Language(kTransactSql).GetStyleFontBold(keyword), bold);
    EXPECT_NE(Language(kTransactSql).GetStyleFontBold(kFirstStyle), bold);
}

TEST_F(StylePages, WriteEveryFontOfALanguageThatWasLookedAt)
{
    Show("PL/SQL", "Font");
    Type(Show("Transact-SQL"), id::TabSize, "7");
    Click(*dialog, id::Apply);
    EXPECT_TRUE(QFile::exists(CustomPath("PLSQL.xml")));
    EXPECT_FALSE(QFile::exists(CustomPath("MySQL.xml")));
}

TEST_F(StylePages, KeepAFontThatIsGone)
{
    Language(kTransactSql).SetStyleFontName(kFirstStyle, QStringLiteral("No Such Font"));
    Language(kTransactSql).SetStyleFontSize(kFirstStyle, 0);
    const CEditorPrefsSubDlg& page = Show("Transact-SQL", "Font");
    EXPECT_EQ(TextOf(page, id::FontName), "No Such Font");
    Click(page, id::Italic);
    Apply();
    EXPECT_EQ(Language(kTransactSql).GetStyleFontName(kFirstStyle), "No Such Font");
}

TEST_F(StylePages, ReadASizeThatIsNoNumberAsNone)
{
    const CEditorPrefsSubDlg& page = Show("Transact-SQL", "Font");
    Type(page, id::FontSize, "large");
    Apply();
    EXPECT_EQ(Language(kTransactSql).GetStyleFontSize(kFirstStyle), 0);
}

TEST_F(StylePages, ShowRealTextOfTheLanguageInItsStyles)
{
    const CEditorPrefsSubDlg& page = Show("Transact-SQL", "Color");
    CZNCoreEditorControl& sample = Sample(page);
    EXPECT_GT(sample.GetLength(1), 100);
    const int keyword = NumberOf(kTransactSql, "Statement");
    int coloured = 0;
    for (long at = 0; at < sample.GetLength(1); ++at)
        coloured += sample.GetStyleAt(at, 1) == keyword;
    EXPECT_GT(coloured, 20);
    EXPECT_TRUE(sample.GetReadOnly(1));
}

TEST(SampleTexts, AreThereForEveryLanguage)
{
    for (const char* file : {"Perl.xml", "HTML.xml", "SQL.xml", "Nothing.xml", "Text.xml"})
        EXPECT_GT(SampleTextOf(QLatin1String(file)).size(), 40) << file;
    EXPECT_NE(SampleTextOf(QStringLiteral("Perl.xml")), SampleTextOf(QStringLiteral("SQL.xml")));
}

} // namespace
