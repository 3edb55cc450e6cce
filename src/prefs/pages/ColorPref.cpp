// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/pages/ColorPref.h"

#include "common/Globals.h"
#include "editing/looks/StyleColours.h"
#include "looks/Schemes.h"
#include "platform/windows/Questions.h"
#include "prefs/controls/ColorButton.h"
#include "prefs/controls/ColorStatic.h"
#include "prefs/pages/Preferences.h"
#include "prefs/pages/StyleSample.h"
#include "prefs/pages/SyntaxTexts.h"
#include "settings/SyntaxFile.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ColorPref)
};

namespace id = prefscontrol;

constexpr int kLastStyle = 127;
constexpr int kNoColor = -1;

} // namespace

CColorPref::CColorPref() = default;
CColorPref::~CColorPref() = default;

void CColorPref::OnBuild(QWidget* window)
{
    auto* page = new QGridLayout(window);
    auto* styles = new QLabel(Texts::tr("St&yles"));
    auto* list = AddControl(id::ColorStyles, new QListWidget);
    list->setAccessibleName(Texts::tr("Styles"));
    styles->setBuddy(list);
    page->addWidget(styles, 0, 0);
    page->addWidget(list, 1, 0, 5, 1);

    int row = 1;
    const auto addColor = [&](UINT number, const char* label) {
        auto* text = new QLabel(Texts::tr(label));
        auto* button = AddControl(number, new CColorButton);
        button->setAccessibleName(Texts::tr(label));
        text->setBuddy(button);
        page->addWidget(text, row, 1);
        page->addWidget(button, row++, 2, Qt::AlignLeft);
    };
    addColor(id::Foreground, QT_TRANSLATE_NOOP("ColorPref", "Foreground Color"));
    addColor(id::Background, QT_TRANSLATE_NOOP("ColorPref", "Background Color"));
    auto* reset = AddControl(id::ResetColors, new QPushButton(Texts::tr("Reset All Colors")));
    reset->setAutoDefault(false);
    page->addWidget(reset, row, 1, 1, 2, Qt::AlignLeft);

    auto* group = new QGroupBox(Texts::tr("Sample Editor Area"));
    auto* samples = new QVBoxLayout(group);
    samples->addWidget(AddControl(id::Sample, new CColorStatic(Texts::tr("Sample Text"))));
    m_sample = new StyleSample;
    samples->addWidget(m_sample, 1);
    page->addWidget(group, 6, 0, 1, 3);
    page->setRowStretch(4, 1);
    page->setRowStretch(6, 2);
    page->setColumnStretch(0, 2);
    page->setColumnStretch(2, 1);
}

void CColorPref::ReadColors(CSyntaxFile& file)
{
    for (int style = 0; style <= kLastStyle; ++style) {
        if (file.GetStyleName(style).isEmpty())
            continue;
        if (const int color = file.GetStyleColorForeground(style); color != kNoColor)
            m_foreground[style] = static_cast<COLORREF>(color);
        if (const int color = file.GetStyleColorBackground(style); color != kNoColor)
            m_background[style] = static_cast<COLORREF>(color);
    }
}

bool CColorPref::OnInitDialog()
{
    m_foreground.clear();
    m_background.clear();
    CSyntaxFile* file = Syntax();
    if (!file)
        return true;
    IPreferencesHost* host = zncoreeditor::GetPreferencesHost();
    if (const ColourScheme* scheme = host ? zncoreeditor::FindScheme(host->Scheme()) : nullptr)
        m_painted = std::make_unique<StyleColours>(*scheme, *file);
    m_sample->Show(*file);
    ReadColors(*file);
    auto* list = GetDlgItem<QListWidget>(id::ColorStyles);
    for (int style = 0; style <= kLastStyle; ++style) {
        const QString name = file->GetStyleName(style);
        if (name.isEmpty())
            continue;
        auto* item = new QListWidgetItem(ShownStyle(name), list);
        item->setData(Qt::UserRole, style);
    }
    list->setCurrentRow(0);
    ShowStyle();
    return CEditorPrefsSubDlg::OnInitDialog();
}

int CColorPref::CurrentStyle() const
{
    const QListWidgetItem* item = GetDlgItem<QListWidget>(id::ColorStyles)->currentItem();
    return item ? item->data(Qt::UserRole).toInt() : -1;
}

ColourScheme::Pair CColorPref::Own(int style) const
{
    return {m_foreground.value(style), m_background.value(style)};
}

// Where a scheme paints over what was delivered, that colour is the default, and what is seen.
void CColorPref::ShowButton(UINT id, COLORREF own, COLORREF delivered, COLORREF painted)
{
    auto* button = GetDlgItem<CColorButton>(id);
    button->SetDefaultColor(m_painted ? painted : delivered);
    button->SetColor(m_painted && own == delivered ? CColorButton::kDefaultColor : own);
}

void CColorPref::ShowStyle()
{
    const int style = CurrentStyle();
    if (style < 0)
        return;
    const ColourScheme::Pair own = Own(style);
    const ColourScheme::Pair delivered = DeliveredColoursOf(*m_pSyntaxFile).value(style, own);
    const ColourScheme::Pair standard = m_painted ? m_painted->Of(style, delivered) : delivered;
    ShowButton(id::Foreground, own.fore, delivered.fore, standard.fore);
    ShowButton(id::Background, own.back, delivered.back, standard.back);
    const ColourScheme::Pair seen = m_painted ? m_painted->Of(style, own) : own;
    GetDlgItem<CColorStatic>(id::Sample)->SetColors(seen.fore, seen.back);
    m_sample->SetStyleColors(style, seen);
}

// The default is the colour that the language was delivered with.
void CColorPref::OnColorChosen(UINT id, COLORREF color)
{
    const int style = CurrentStyle();
    if (style < 0)
        return;
    const bool isFore = id == id::Foreground;
    Colors& colors = isFore ? m_foreground : m_background;
    if (color == CColorButton::kDefaultColor) {
        const ColourScheme::Pair own = Own(style);
        const ColourScheme::Pair delivered = DeliveredColoursOf(*m_pSyntaxFile).value(style, own);
        color = isFore ? delivered.fore : delivered.back;
    }
    colors[style] = color;
    ShowStyle();
    OnChanged();
}

// From the file as it was delivered: what the user's folder has is not looked at. Nothing is
// written before Apply.
void CColorPref::OnResetColors()
{
    if (!m_pSyntaxFile ||
        !AskYesNoUnder(GetSafeHwnd(), Texts::tr("Clearing color changes"),
                       Texts::tr("All of your color settings will be lost ! Are you sure ?")))
        return;
    CSyntaxFile delivered;
    delivered.SetFilename(zncoreeditor::GetAppPath() + QStringLiteral("Syntax/") +
                          QFileInfo(m_pSyntaxFile->GetFilename()).fileName());
    if (!delivered.Parse())
        return;
    ReadColors(delivered);
    for (const int style : m_foreground.keys()) {
        const ColourScheme::Pair own = Own(style);
        m_sample->SetStyleColors(style, m_painted ? m_painted->Of(style, own) : own);
    }
    ShowStyle();
    OnChanged();
}

void CColorPref::Apply()
{
    CSyntaxFile* file = Syntax();
    if (!GetSafeHwnd() || !file)
        return;
    const auto write = [file](const Colors& colors, int (CSyntaxFile::*get)(int),
                              bool (CSyntaxFile::*set)(int, int)) {
        for (auto color = colors.cbegin(); color != colors.cend(); ++color) {
            if (static_cast<COLORREF>((file->*get)(color.key())) != color.value())
                (file->*set)(color.key(), static_cast<int>(color.value()));
        }
    };
    write(m_foreground, &CSyntaxFile::GetStyleColorForeground,
          &CSyntaxFile::SetStyleColorForeground);
    write(m_background, &CSyntaxFile::GetStyleColorBackground,
          &CSyntaxFile::SetStyleColorBackground);
}

void CColorPref::OnControl(UINT id, UINT code)
{
    if (id == id::ColorStyles && code == LBN_SELCHANGE)
        ShowStyle();
}

const MessageMap& CColorPref::GetMessageMap() const
{
    static constexpr MessageEntry kEntries[] = {
        {colornews::Chosen,
         [](CWnd& target, WPARAM id, LPARAM color) -> LRESULT {
             static_cast<CColorPref&>(target).OnColorChosen(static_cast<UINT>(id),
                                                            static_cast<COLORREF>(color));
             return 0;
         }},
    };
    static const MessageMap kMap{&CEditorPrefsSubDlg::GetMessageMap(), kEntries};
    return kMap;
}

const CommandMap& CColorPref::GetCommandMap() const
{
    static constexpr CommandEntry kCommands[] = {
        {id::ResetColors, [](CCmdTarget& t) { static_cast<CColorPref&>(t).OnResetColors(); }},
    };
    static const CommandMap kMap{&CEditorPrefsSubDlg::GetCommandMap(), kCommands, {}};
    return kMap;
}
