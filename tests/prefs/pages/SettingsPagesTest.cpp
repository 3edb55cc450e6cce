// SPDX-License-Identifier: GPL-3.0-or-later
// The pages of plain settings, of the colours of all languages, and of keywords.
#include "tests/prefs/pages/PrefsFixture.h"

#include <QPlainTextEdit>

namespace {

namespace id = prefscontrol;

class PrefsPages : public PrefsTest
{
protected:
    PrefsPages() { Open(); }

    QString Words() const { return Keywords().toPlainText(); }
    void TypeWords(const QString& text)
    {
        Keywords().setPlainText(text);
        QApplication::processEvents();
    }
    QPlainTextEdit& Keywords() const
    {
        return *dialog->Pages()[static_cast<std::size_t>(dialog->CurrentPage())]
                    .page->GetDlgItem<QPlainTextEdit>(id::Keywords);
    }
    void Apply()
    {
        Click(*dialog, id::Apply);
        ReadAgain();
    }
};

struct Box
{
    const char* page;
    UINT id;
    const char* label;
    bool (CSyntaxFile::*get)();
};

constexpr Box kBoxes[] = {
    {"", 28078, "Line Numbers", &CSyntaxFile::GetMarginLineNumber},
    {"", 28079, "Bookmark Margin", &CSyntaxFile::GetMarginBookmark},
    {"", 28080, "Outlining", &CSyntaxFile::GetMarginFold},
    {"", 28081, "Word Wrap", &CSyntaxFile::GetWordWrap},
    {"", 28082, "End Of Line", &CSyntaxFile::GetEOL},
    {"", 28050, "Whitespace", &CSyntaxFile::GetWhiteSpace},
    {"", 28058, "Tab and Backspace (Un)Indent", &CSyntaxFile::GetIndent},
    {"", 28060, "Indentation Guides", &CSyntaxFile::GetIndentGuides},
    {"", 28057, "Pressing Tab inserts Spaces", &CSyntaxFile::GetTabsToSpaces},
    {"Code", 28085, "Syntax &Highlighting", &CSyntaxFile::GetSyntaxHighlighting},
    {"Code", 28098, "&Brace Matching", &CSyntaxFile::GetBraceMatch},
    {"Code", 28087, "&Auto Completion", &CSyntaxFile::GetAutoCompletion},
    {"Code", 28088, "C&ode Completion", &CSyntaxFile::GetCodeCompletion},
    {"Code", 28115, "Ensure Final New Line", &CSyntaxFile::GetEnsureFinalNewLine},
    {"Code", 28116, "Convert Tabs To Spaces", &CSyntaxFile::GetConvertTabsToSpaces},
    {"Code", 28117, "Trim Trailing Spaces", &CSyntaxFile::GetTrimTrailingSpaces},
};

TEST_F(PrefsPages, HaveABoxForEverySetting)
{
    for (const Box& box : kBoxes) {
        const CEditorPrefsSubDlg& page = Show("Transact-SQL", box.page);
        EXPECT_EQ(page.GetDlgItem<QAbstractButton>(box.id)->text(), box.label);
        EXPECT_EQ(IsChecked(page, box.id), (Language(kTransactSql).*box.get)()) << box.label;
    }
}

TEST_F(PrefsPages, WriteEveryBoxThatIsClicked)
{
    QList<bool> before;
    for (const Box& box : kBoxes) {
        before << (Language(kTransactSql).*box.get)();
        Click(Show("Transact-SQL", box.page), box.id);
    }
    EXPECT_TRUE(CanApply());
    Apply();
    for (std::size_t i = 0; i < std::size(kBoxes); ++i)
        EXPECT_NE((Language(kTransactSql).*kBoxes[i].get)(), before[static_cast<int>(i)])
            << kBoxes[i].label;
}

TEST_F(PrefsPages, LeaveAFileUnmodifiedThatHasWhatTheyShow)
{
    for (const char* page : {"", "Code", "Color", "Keywords"})
        Show("Transact-SQL", page).UpdateData();
    for (const char* page : {"", "Code", "Color", "Keywords"})
        Show("Transact-SQL", page).Apply();
    EXPECT_FALSE(Language(kTransactSql).GetModified());
}

TEST_F(PrefsPages, ChooseAKindOfIndentation)
{
    struct Choice
    {
        UINT id;
        const char* label;
        int value;
    };
    for (const Choice& choice : {Choice{28053, "Off", 0}, Choice{28084, "Follow Previous Line", 1},
                                 Choice{28083, "Follow Language Scoping", 2}}) {
        const CEditorPrefsSubDlg& page = Show("Transact-SQL");
        EXPECT_EQ(page.GetDlgItem<QAbstractButton>(choice.id)->text(), choice.label);
        Click(page, choice.id);
        dialog->Apply(false);
        EXPECT_EQ(Language(kTransactSql).GetAutoIndent(), choice.value);
    }
}

TEST_F(PrefsPages, ChooseTheKeyThatCompletes)
{
    for (const auto& [button, label, value] :
         {std::tuple{28097U, "Space Bar &Key", 1}, std::tuple{28089U, "&Tab Key", 0}}) {
        const CEditorPrefsSubDlg& page = Show("Transact-SQL", "Code");
        EXPECT_EQ(page.GetDlgItem<QAbstractButton>(button)->text(), label);
        Click(page, button);
        dialog->Apply(false);
        EXPECT_EQ(Language(kTransactSql).GetACKey(), value);
    }
}

TEST_F(PrefsPages, LeaveAChoiceThatHasNoButton)
{
    Language(kPlSql).SetAutoIndent(7);
    const CEditorPrefsSubDlg& page = Show("PL/SQL");
    EXPECT_FALSE(IsChecked(page, id::IndentOff));
    Type(page, id::TabSize, "3");
    Apply();
    EXPECT_EQ(Language(kPlSql).GetAutoIndent(), 7);
    EXPECT_EQ(Language(kPlSql).GetTabWidth(), 3);
}

TEST_F(PrefsPages, ReadANumberAsFarAsItGoes)
{
    struct Typed
    {
        const char* text;
        int value;
    };
    for (const Typed& typed : {Typed{"8", 8}, Typed{"none", 0}, Typed{" 5x", 5}, Typed{"-3", -3},
                               Typed{"", 0}, Typed{"99999999999", 2147483647}}) {
        Type(Show("PL/SQL"), id::TabSize, typed.text);
        dialog->Apply(false);
        EXPECT_EQ(Language(kPlSql).GetTabWidth(), typed.value) << typed.text;
    }
}

TEST_F(PrefsPages, EnableAColourWithItsBox)
{
    const CEditorPrefsSubDlg& page = *dialog->Pages()[0].page;
    for (const auto& [box, button] : {std::pair{28113U, 28109U}, std::pair{28114U, 28110U},
                                      std::pair{28051U, 28111U}, std::pair{28064U, 28112U}}) {
        EXPECT_EQ(page.GetDlgItem(button)->isEnabled(), IsChecked(page, box)) << box;
        Click(page, box);
        EXPECT_EQ(page.GetDlgItem(button)->isEnabled(), IsChecked(page, box)) << box;
    }
    EXPECT_TRUE(page.GetDlgItem(28118)->isEnabled());
}

TEST_F(PrefsPages, WriteTheColoursOfAllLanguages)
{
    const CEditorPrefsSubDlg& page = *dialog->Pages()[0].page;
    for (const UINT box : {28113U, 28114U, 28051U, 28064U}) {
        if (!IsChecked(page, box))
            Click(page, box);
    }
    ChooseColor(page, 28118, 0x0000FF);
    ChooseColor(page, 28109, 0x00FF00);
    ChooseColor(page, 28110, 0x00FFFF);
    ChooseColor(page, 28111, 0x808080);
    ChooseColor(page, 28112, 0xFF0000);
    Type(page, 28077, "72");
    Apply();
    EXPECT_EQ(config().GetCaretColor(), 0x0000FFU);
    EXPECT_TRUE(config().UseSelectionForegroundColor());
    EXPECT_EQ(config().GetSelectionForegroundColor(), 0x00FF00U);
    EXPECT_EQ(config().GetSelectionBackgroundColor(), 0x00FFFFU);
    EXPECT_EQ(config().GetHighlightCurrentLineColor(), 0x808080U);
    EXPECT_EQ(config().GetRightEdgeColor(), 0xFF0000U);
    EXPECT_EQ(config().GetRightEdgeColumn(), 72);
    QFile file(UserSettingsPath(QStringLiteral("ZNCoreEditor.xml")));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("<HighlightCurrentLineColor>8421504<"));
}

TEST_F(PrefsPages, TellOfTheRightEdgeOnlyWhenItDiffers)
{
    const CEditorPrefsSubDlg& page = *dialog->Pages()[0].page;
    Type(page, id::EdgeColumn, "0100"); // as the file has it
    EXPECT_FALSE(CanApply());
    Type(page, id::EdgeColumn, "101");
    EXPECT_TRUE(CanApply());
}

TEST_F(PrefsPages, GoBackToTheDeliveredColourByDefault)
{
    const unsigned long delivered = config().GetCaretColor();
    const CEditorPrefsSubDlg& page = *dialog->Pages()[0].page;
    ChooseColor(page, id::CaretColor, 0x0000FF);
    dialog->Apply(false);
    ChooseColor(page, id::CaretColor, CColorButton::kDefaultColor);
    Apply();
    EXPECT_EQ(config().GetCaretColor(), delivered);
}

TEST_F(PrefsPages, ShowTheSetsThatHaveAName)
{
    const CEditorPrefsSubDlg& page = Show("Transact-SQL", "Keywords");
    const auto* sets = page.GetDlgItem<QListWidget>(28108);
    QStringList expected;
    for (int set = 0; set < 8; ++set) {
        if (const QString name = Language(kTransactSql).GetKeywordSetDescription(set);
            !name.isEmpty())
            expected << name;
    }
    ASSERT_GE(sets->count(), 2);
    QStringList shown;
    for (int row = 0; row < sets->count(); ++row)
        shown << sets->item(row)->text();
    EXPECT_EQ(shown, expected);
    EXPECT_EQ(Words(), Language(kTransactSql).GetDelimitedKeywordSet(0, ' '));
}

TEST_F(PrefsPages, KeepTheWordsOfASetWhileAnotherIsShown)
{
    const CEditorPrefsSubDlg& page = Show("Transact-SQL", "Keywords");
    auto* sets = page.GetDlgItem<QListWidget>(id::KeywordSets);
    const QString second = Language(kTransactSql).GetDelimitedKeywordSet(1, ' ');
    TypeWords(QStringLiteral("alpha beta"));
    sets->setCurrentRow(1);
    EXPECT_EQ(Words(), second);
    sets->setCurrentRow(0);
    EXPECT_EQ(Words(), "alpha beta");
    Apply();
    EXPECT_EQ(Language(kTransactSql).GetDelimitedKeywordSet(0, ' '), "alpha beta");
    EXPECT_EQ(Language(kTransactSql).GetDelimitedKeywordSet(1, ' '), second);
}

TEST_F(PrefsPages, LoseALastWordOfOneLetter)
{
    Show("Transact-SQL", "Keywords");
    TypeWords(QStringLiteral("ab cd e"));
    Apply();
    EXPECT_EQ(Language(kTransactSql).GetDelimitedKeywordSet(0, ' '), "ab cd");
}

TEST_F(PrefsPages, KeepALastWordOfOneLetterBeforeABlank)
{
    Show("Transact-SQL", "Keywords");
    TypeWords(QStringLiteral("ab cd e "));
    Apply();
    EXPECT_EQ(Language(kTransactSql).GetDelimitedKeywordSet(0, ' '), "ab cd e");
}

TEST_F(PrefsPages, PartWordsAtNewLines)
{
    Show("Transact-SQL", "Keywords");
    TypeWords(QStringLiteral("ab\ncd\tef"));
    Apply();
    EXPECT_EQ(Language(kTransactSql).GetDelimitedKeywordSet(0, ' '), "ab cd ef");
}

TEST_F(PrefsPages, TakeTenThousandWords)
{
    QStringList words;
    for (int i = 0; i < 10000; ++i)
        words << QStringLiteral("word%1").arg(i);
    Show("Transact-SQL", "Keywords");
    TypeWords(words.join(u' '));
    Apply();
    EXPECT_EQ(Language(kTransactSql).GetDelimitedKeywordSet(0, ' '), words.join(u' '));
}

TEST_F(PrefsPages, WriteNothingWithoutAWindow)
{
    CEditorPref page;
    page.SetSyntaxFile(&Language(kPlSql));
    page.Apply();
    EXPECT_FALSE(Language(kPlSql).GetModified());
}

} // namespace
