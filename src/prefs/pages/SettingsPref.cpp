// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/pages/SettingsPref.h"

#include "platform/windows/DataExchange.h"
#include "settings/Number.h"
#include "settings/SyntaxFile.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(SettingsPref)
};

using Kind = SettingRow::Kind;
namespace id = prefscontrol;

template <UINT... Ids>
inline constexpr UINT kIds[] = {Ids...};

template <auto Get, auto Set>
SettingRow Row(Kind kind, std::span<const UINT> ids)
{
    return {kind, ids, [](CSyntaxFile& file) { return static_cast<int>((file.*Get)()); },
            [](CSyntaxFile& file, int value) {
                if constexpr (std::is_invocable_v<decltype(Set), CSyntaxFile&, bool> &&
                              std::is_same_v<decltype((file.*Get)()), bool>)
                    (file.*Set)(value != 0);
                else
                    (file.*Set)(value);
            }};
}

using F = CSyntaxFile;

// clang-format off
const SettingRow kEditorRows[] = {
    Row<&F::GetMarginLineNumber, &F::SetMarginLineNumber>(Kind::Check,  kIds<id::LineNumbers>),
    Row<&F::GetMarginBookmark,   &F::SetMarginBookmark>  (Kind::Check,  kIds<id::BookmarkMargin>),
    Row<&F::GetMarginFold,       &F::SetMarginFold>      (Kind::Check,  kIds<id::Outlining>),
    Row<&F::GetWordWrap,         &F::SetWordWrap>        (Kind::Check,  kIds<id::WordWrap>),
    Row<&F::GetEOL,              &F::SetEOL>             (Kind::Check,  kIds<id::EndOfLine>),
    Row<&F::GetWhiteSpace,       &F::SetWhiteSpace>      (Kind::Check,  kIds<id::Whitespace>),
    Row<&F::GetIndent,           &F::SetIndent>          (Kind::Check,  kIds<id::TabIndents>),
    Row<&F::GetIndentSize,       &F::SetIndentSize>      (Kind::Number, kIds<id::IndentSize>),
    Row<&F::GetTabWidth,         &F::SetTabWidth>        (Kind::Number, kIds<id::TabSize>),
    Row<&F::GetTabsToSpaces,     &F::SetTabsToSpaces>    (Kind::Check,  kIds<id::TabsToSpaces>),
    Row<&F::GetAutoIndent,       &F::SetAutoIndent>      (Kind::Choice, kIds<id::IndentOff, id::IndentAsAbove, id::IndentByLanguage>),
    Row<&F::GetIndentGuides,     &F::SetIndentGuides>    (Kind::Check,  kIds<id::IndentGuides>),
};

const SettingRow kCodingRows[] = {
    Row<&F::GetSyntaxHighlighting,  &F::SetSyntaxHighlighting> (Kind::Check,  kIds<id::SyntaxHighlighting>),
    Row<&F::GetBraceMatch,          &F::SetBraceMatch>         (Kind::Check,  kIds<id::BraceMatching>),
    Row<&F::GetAutoCompletion,      &F::SetAutoCompletion>     (Kind::Check,  kIds<id::AutoCompletion>),
    Row<&F::GetCodeCompletion,      &F::SetCodeCompletion>     (Kind::Check,  kIds<id::CodeCompletion>),
    Row<&F::GetACKey,               &F::SetACKey>              (Kind::Choice, kIds<id::CompleteByTab, id::CompleteBySpace>),
    Row<&F::GetEnsureFinalNewLine,  &F::SetEnsureFinalNewLine> (Kind::Check,  kIds<id::FinalNewLine>),
    Row<&F::GetConvertTabsToSpaces, &F::SetConvertTabsToSpaces>(Kind::Check,  kIds<id::SaveTabsAsSpaces>),
    Row<&F::GetTrimTrailingSpaces,  &F::SetTrimTrailingSpaces> (Kind::Check,  kIds<id::SaveTrimmed>),
};
// clang-format on

// A titled group at the end of the page; what it holds goes below one another.
QVBoxLayout& AddGroup(QVBoxLayout& page, const char* title)
{
    auto* group = new QGroupBox(Texts::tr(title));
    page.addWidget(group);
    return *new QVBoxLayout(group);
}

} // namespace

bool CSettingsPref::OnInitDialog()
{
    m_isFilled = false;
    if (CSyntaxFile* file = Syntax()) {
        for (std::size_t i = 0; i < m_rows.size(); ++i)
            m_values[i] = m_rows[i].get(*file);
    }
    m_isFilled = CEditorPrefsSubDlg::OnInitDialog();
    return m_isFilled;
}

// A choice whose value has no button leaves them all off, and stays what it is until one is chosen.
void CSettingsPref::Exchange(CDataExchange& exchange, const SettingRow& row, int& value)
{
    if (row.kind == Kind::Number) {
        QString text = QString::number(value);
        DDX_Text(&exchange, row.ids[0], text);
        if (exchange.m_bSaveAndValidate)
            value = TextToInt(text);
        return;
    }
    for (std::size_t i = 0; i < row.ids.size(); ++i) {
        const int meant = row.kind == Kind::Check ? 1 : static_cast<int>(i);
        bool on = value == meant;
        DDX_Check(&exchange, row.ids[i], on);
        if (!exchange.m_bSaveAndValidate)
            continue;
        if (on)
            value = meant;
        else if (row.kind == Kind::Check)
            value = 0;
    }
}

void CSettingsPref::DoDataExchange(CDataExchange* exchange)
{
    for (std::size_t i = 0; i < m_rows.size(); ++i)
        Exchange(*exchange, m_rows[i], m_values[i]);
}

void CSettingsPref::Apply()
{
    CSyntaxFile* file = Syntax();
    if (!GetSafeHwnd() || !file)
        return;
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        if (m_rows[i].get(*file) != m_values[i])
            m_rows[i].set(*file, m_values[i]);
    }
}

void CSettingsPref::OnControl(UINT /*id*/, UINT code)
{
    if (code == EN_CHANGE && m_isFilled)
        OnChanged();
}

// Every button of the page is a setting.
int CSettingsPref::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const int done = CEditorPrefsSubDlg::OnCommand(wParam, lParam);
    if (lParam && wParam >> 16 == BN_CLICKED)
        OnChanged();
    return done;
}

void CSettingsPref::AddCheck(QVBoxLayout& column, UINT id, const char* label)
{
    column.addWidget(AddControl(id, new QCheckBox(Texts::tr(label))));
}

void CSettingsPref::AddRadio(QVBoxLayout& column, UINT id, const char* label)
{
    column.addWidget(AddControl(id, new QRadioButton(Texts::tr(label))));
}

void CSettingsPref::AddNumber(QVBoxLayout& column, UINT id, const char* label)
{
    constexpr int kDigits = 8;
    auto* row = new QHBoxLayout;
    auto* text = new QLabel(Texts::tr(label));
    auto* edit = AddControl(id, new QLineEdit);
    edit->setAccessibleName(Texts::tr(label));
    edit->setFixedWidth(edit->fontMetrics().averageCharWidth() * (kDigits + 4));
    text->setBuddy(edit);
    row->addWidget(text);
    row->addWidget(edit);
    row->addStretch();
    column.addLayout(row);
}

CEditorPref::CEditorPref() : CSettingsPref(kEditorRows) {}

void CEditorPref::OnBuild(QWidget* window)
{
    auto* page = new QVBoxLayout(window);
    QVBoxLayout& shown =
        AddGroup(*page, QT_TRANSLATE_NOOP("SettingsPref", "Shown Beside and In the Text"));
    AddCheck(shown, id::LineNumbers, QT_TRANSLATE_NOOP("SettingsPref", "Line Numbers"));
    AddCheck(shown, id::BookmarkMargin, QT_TRANSLATE_NOOP("SettingsPref", "Bookmark Margin"));
    AddCheck(shown, id::Outlining, QT_TRANSLATE_NOOP("SettingsPref", "Outlining"));
    AddCheck(shown, id::WordWrap, QT_TRANSLATE_NOOP("SettingsPref", "Word Wrap"));
    AddCheck(shown, id::EndOfLine, QT_TRANSLATE_NOOP("SettingsPref", "End Of Line"));
    AddCheck(shown, id::Whitespace, QT_TRANSLATE_NOOP("SettingsPref", "Whitespace"));
    AddCheck(shown, id::IndentGuides, QT_TRANSLATE_NOOP("SettingsPref", "Indentation Guides"));

    QVBoxLayout& tabs = AddGroup(*page, QT_TRANSLATE_NOOP("SettingsPref", "Tabs and Indentation"));
    AddNumber(tabs, id::TabSize, QT_TRANSLATE_NOOP("SettingsPref", "Tab Size"));
    AddNumber(tabs, id::IndentSize, QT_TRANSLATE_NOOP("SettingsPref", "Indent Size"));
    AddCheck(tabs, id::TabsToSpaces,
             QT_TRANSLATE_NOOP("SettingsPref", "Pressing Tab inserts Spaces"));
    AddCheck(tabs, id::TabIndents,
             QT_TRANSLATE_NOOP("SettingsPref", "Tab and Backspace (Un)Indent"));

    QVBoxLayout& style =
        AddGroup(*page, QT_TRANSLATE_NOOP("SettingsPref", "Auto Indentation Style"));
    AddRadio(style, id::IndentOff, QT_TRANSLATE_NOOP("SettingsPref", "Off"));
    AddRadio(style, id::IndentAsAbove, QT_TRANSLATE_NOOP("SettingsPref", "Follow Previous Line"));
    AddRadio(style, id::IndentByLanguage,
             QT_TRANSLATE_NOOP("SettingsPref", "Follow Language Scoping"));
    page->addStretch();
}

CCodingPref::CCodingPref() : CSettingsPref(kCodingRows) {}

void CCodingPref::OnBuild(QWidget* window)
{
    auto* page = new QVBoxLayout(window);
    QVBoxLayout& reading = AddGroup(*page, QT_TRANSLATE_NOOP("SettingsPref", "Reading"));
    AddCheck(reading, id::SyntaxHighlighting,
             QT_TRANSLATE_NOOP("SettingsPref", "Syntax &Highlighting"));
    AddCheck(reading, id::BraceMatching, QT_TRANSLATE_NOOP("SettingsPref", "&Brace Matching"));

    QVBoxLayout& completion = AddGroup(*page, QT_TRANSLATE_NOOP("SettingsPref", "Completion"));
    AddCheck(completion, id::AutoCompletion, QT_TRANSLATE_NOOP("SettingsPref", "&Auto Completion"));
    AddCheck(completion, id::CodeCompletion, QT_TRANSLATE_NOOP("SettingsPref", "C&ode Completion"));
    AddRadio(completion, id::CompleteByTab, QT_TRANSLATE_NOOP("SettingsPref", "&Tab Key"));
    AddRadio(completion, id::CompleteBySpace, QT_TRANSLATE_NOOP("SettingsPref", "Space Bar &Key"));

    QVBoxLayout& saving =
        AddGroup(*page, QT_TRANSLATE_NOOP("SettingsPref", "When a File is Saved"));
    AddCheck(saving, id::FinalNewLine, QT_TRANSLATE_NOOP("SettingsPref", "Ensure Final New Line"));
    AddCheck(saving, id::SaveTabsAsSpaces,
             QT_TRANSLATE_NOOP("SettingsPref", "Convert Tabs To Spaces"));
    AddCheck(saving, id::SaveTrimmed, QT_TRANSLATE_NOOP("SettingsPref", "Trim Trailing Spaces"));
    page->addStretch();
}
