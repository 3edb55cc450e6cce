// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/pages/MainColorFontPref.h"

#include "common/Translations.h"
#include "editing/looks/DeliveredSettings.h"
#include "looks/Schemes.h"
#include "platform/windows/DataExchange.h"
#include "prefs/controls/ColorButton.h"
#include "prefs/pages/Preferences.h"
#include "settings/ConfigFile.h"
#include "settings/Number.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <utility>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(MainColorFontPref)
};

namespace id = prefscontrol;
using C = CConfigFile;

// A colour and, where it has one, the box that says whether it is used.
struct ColorRow
{
    UINT box; // 0: none
    UINT button;
    const char* label;
    bool (C::*isUsed)();
    bool (C::*setUse)(bool);
    unsigned long (C::*color)();
    bool (C::*setColor)(unsigned long);
    Drawn drawn; // by a scheme; Count: not at all
};

// clang-format off
constexpr ColorRow kRows[] = {
    {0, id::CaretColor, QT_TRANSLATE_NOOP("MainColorFontPref", "Caret Color"),
     nullptr, nullptr, &C::GetCaretColor, &C::SetCaretColor, Drawn::Caret},
    {id::UseSelectionFore, id::SelectionFore, QT_TRANSLATE_NOOP("MainColorFontPref", "Use Selected Text Foreground Color"),
     &C::UseSelectionForegroundColor, &C::SetUseSelectionForegroundColor,
     &C::GetSelectionForegroundColor, &C::SetSelectionForegroundColor, Drawn::Count},
    {id::UseSelectionBack, id::SelectionBack, QT_TRANSLATE_NOOP("MainColorFontPref", "Use Selected Text Background Color"),
     &C::UseSelectionBackgroundColor, &C::SetUseSelectionBackgroundColor,
     &C::GetSelectionBackgroundColor, &C::SetSelectionBackgroundColor, Drawn::Selection},
    {id::HighlightLine, id::LineColor, QT_TRANSLATE_NOOP("MainColorFontPref", "Enable Highlight Current &Line"),
     &C::GetHighlightCurrentLine, &C::SetHighlightCurrentLine,
     &C::GetHighlightCurrentLineColor, &C::SetHighlightCurrentLineColor, Drawn::CurrentLine},
    {id::RightEdge, id::EdgeColor, QT_TRANSLATE_NOOP("MainColorFontPref", "Enable Right Edge Warning"),
     &C::GetRightEdge, &C::SetRightEdge, &C::GetRightEdgeColor, &C::SetRightEdgeColor, Drawn::RightEdge},
};
// clang-format on
static_assert(std::size(kRows) == CMainColorFontPref::kColors);

unsigned long DeliveredColor(const ColorRow& row)
{
    return (DeliveredConfig().*row.color)();
}

const ColourScheme* PaintedScheme()
{
    IPreferencesHost* host = zncoreeditor::GetPreferencesHost();
    return host ? zncoreeditor::FindScheme(host->Scheme()) : nullptr;
}

} // namespace

CConfigFile* CMainColorFontPref::Config() const
{
    return m_config && m_config->Parse() ? m_config : nullptr;
}

void CMainColorFontPref::OnBuild(QWidget* window)
{
    auto* page = new QVBoxLayout(window);
    auto* group = new QGroupBox(Texts::tr("In All Languages"));
    auto* grid = new QGridLayout(group);
    int line = 0;
    for (const ColorRow& row : kRows) {
        const QString label = Texts::tr(row.label);
        auto* button = AddControl(row.button, new CColorButton);
        button->setAccessibleName(zncoreeditor::WithoutMnemonic(label));
        if (row.box != 0) {
            grid->addWidget(AddControl(row.box, new QCheckBox(label)), line, 0);
        } else {
            auto* text = new QLabel(label);
            text->setBuddy(button);
            grid->addWidget(text, line, 0);
        }
        grid->addWidget(button, line++, 1);
    }
    constexpr int kDigits = 12;
    auto* text = new QLabel(Texts::tr("Right Edge Position"));
    auto* edit = AddControl(id::EdgeColumn, new QLineEdit);
    edit->setAccessibleName(text->text());
    edit->setFixedWidth(edit->fontMetrics().averageCharWidth() * kDigits);
    text->setBuddy(edit);
    grid->addWidget(text, line, 0);
    grid->addWidget(edit, line, 1);
    grid->setColumnStretch(0, 1);
    page->addWidget(group);
    page->addStretch();
}

bool CMainColorFontPref::OnInitDialog()
{
    m_isFilled = false;
    if (CConfigFile* config = Config()) {
        for (std::size_t i = 0; i < kColors; ++i) {
            const ColorRow& row = kRows[i];
            m_uses[i] = !row.isUsed || (config->*row.isUsed)();
            m_colors[i] = (config->*row.color)();
        }
        m_edgeColumn = config->GetRightEdgeColumn();
    }
    CEditorPrefsSubDlg::OnInitDialog();
    EnableButtons();
    m_isFilled = true;
    return true;
}

// Where a scheme paints over what was delivered, that colour is the default.
void CMainColorFontPref::ShowButton(std::size_t row)
{
    auto* button = GetDlgItem<CColorButton>(kRows[row].button);
    const unsigned long delivered = DeliveredColor(kRows[row]);
    const ColourScheme* scheme = kRows[row].drawn == Drawn::Count ? nullptr : PaintedScheme();
    button->SetDefaultColor(scheme ? scheme->Of(kRows[row].drawn)
                                   : static_cast<COLORREF>(delivered));
    button->SetColor(scheme && m_colors[row] == delivered ? CColorButton::kDefaultColor
                                                          : static_cast<COLORREF>(m_colors[row]));
}

void CMainColorFontPref::EnableButtons()
{
    for (const ColorRow& row : kRows) {
        if (row.box != 0)
            GetDlgItem(row.button)->setEnabled(GetDlgItem<QCheckBox>(row.box)->isChecked());
    }
}

// The colours are taken as they are chosen.
void CMainColorFontPref::DoDataExchange(CDataExchange* exchange)
{
    for (std::size_t i = 0; i < kColors; ++i) {
        if (kRows[i].box != 0)
            DDX_Check(exchange, kRows[i].box, m_uses[i]);
        if (!exchange->m_bSaveAndValidate)
            ShowButton(i);
    }
    QString column = QString::number(m_edgeColumn);
    DDX_Text(exchange, id::EdgeColumn, column);
    if (exchange->m_bSaveAndValidate)
        m_edgeColumn = TextToInt(column);
}

void CMainColorFontPref::Apply()
{
    CConfigFile* config = Config();
    if (!GetSafeHwnd() || !config)
        return;
    for (std::size_t i = 0; i < kColors; ++i) {
        const ColorRow& row = kRows[i];
        if (row.isUsed && (config->*row.isUsed)() != m_uses[i])
            (config->*row.setUse)(m_uses[i]);
        if ((config->*row.color)() != m_colors[i])
            (config->*row.setColor)(m_colors[i]);
    }
    if (config->GetRightEdgeColumn() != m_edgeColumn)
        config->SetRightEdgeColumn(m_edgeColumn);
}

void CMainColorFontPref::OnColorChosen(UINT id, COLORREF color)
{
    for (std::size_t i = 0; i < kColors; ++i) {
        if (kRows[i].button != id)
            continue;
        m_colors[i] = color == CColorButton::kDefaultColor ? DeliveredColor(kRows[i])
                                                           : static_cast<unsigned long>(color);
        ShowButton(i);
        OnChanged();
    }
}

void CMainColorFontPref::OnControl(UINT id, UINT code)
{
    CConfigFile* config = Config();
    if (id == id::EdgeColumn && code == EN_CHANGE && m_isFilled && config &&
        TextToInt(GetDlgItem<QLineEdit>(id)->text()) != config->GetRightEdgeColumn())
        OnChanged();
}

int CMainColorFontPref::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const int done = CEditorPrefsSubDlg::OnCommand(wParam, lParam);
    const auto clicked = [wParam](const ColorRow& row) {
        return row.box != 0 && row.box == (wParam & 0xFFFF);
    };
    if (lParam && wParam >> 16 == BN_CLICKED && std::ranges::any_of(kRows, clicked)) {
        EnableButtons();
        OnChanged();
    }
    return done;
}

const MessageMap& CMainColorFontPref::GetMessageMap() const
{
    static constexpr MessageEntry kEntries[] = {
        {colornews::Chosen,
         [](CWnd& target, WPARAM id, LPARAM color) -> LRESULT {
             static_cast<CMainColorFontPref&>(target).OnColorChosen(static_cast<UINT>(id),
                                                                    static_cast<COLORREF>(color));
             return 0;
         }},
    };
    static const MessageMap kMap{&CEditorPrefsSubDlg::GetMessageMap(), kEntries};
    return kMap;
}
