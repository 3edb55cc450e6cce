// SPDX-License-Identifier: GPL-3.0-or-later
#include "prefs/pages/StyleSample.h"

#include "editing/looks/StyleColours.h"
#include "looks/Schemes.h"
#include "platform/base/Units.h"
#include "prefs/pages/Preferences.h"
#include "prefs/pages/SampleTexts.h"
#include "settings/SyntaxFile.h"

#include <QCoreApplication>
#include <QVBoxLayout>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(StyleSample)
};

constexpr int kDefaultStyle = 32;
constexpr int kLastStyle = 127;
constexpr int kKeywordSets = 8;

} // namespace

StyleSample::StyleSample(QWidget* parent)
    : QFrame(parent), m_control(std::make_unique<CZNCoreEditorControl>())
{
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    QWidget* window =
        CreateWindowOfClass(engine::kWindowClass, WS_CHILD, RECT{0, 0, 300, 120}, this);
    if (!window || !m_control->SubclassWindow(window)) {
        delete window;
        m_control.reset();
        return;
    }
    window->setFocusPolicy(Qt::NoFocus); // to look at, nothing to stop at on the way by keys
    window->setAccessibleName(Texts::tr("Sample of the language"));
    constexpr int kMargins = 5;
    constexpr int kAir = 6; // pixels
    for (int margin = 0; margin < kMargins; ++margin)
        m_control->SetMarginWidthN(margin, 0, 1);
    m_control->SetMarginLeft(kAir, 1);
    m_control->UsePopUp(0, 1);
    window->show();
    layout->addWidget(window);
    constexpr int kLines = 9;
    setMinimumHeight(kLines * fontMetrics().height());
}

StyleSample::~StyleSample()
{
    if (m_control)
        m_control->DestroyWindow();
}

void StyleSample::Show(CSyntaxFile& syntax)
{
    if (!m_control)
        return;
    CZNCoreEditorControl& control = *m_control;
    IPreferencesHost* host = zncoreeditor::GetPreferencesHost();
    const ColourScheme* scheme = host ? zncoreeditor::FindScheme(host->Scheme()) : nullptr;
    const auto colorsOf = [&](int style) {
        if (scheme)
            return StyleColours(*scheme, syntax).Of(style);
        return ColourScheme::Pair{static_cast<COLORREF>(syntax.GetStyleColorForeground(style)),
                                  static_cast<COLORREF>(syntax.GetStyleColorBackground(style))};
    };
    const auto fontOf = [&syntax](int style) {
        return SampleFont{syntax.GetStyleFontName(style), syntax.GetStyleFontSize(style),
                          syntax.GetStyleFontBold(style), syntax.GetStyleFontItalic(style),
                          syntax.GetStyleFontUnderline(style)};
    };
    SetStyleFont(kDefaultStyle, fontOf(kDefaultStyle));
    SetStyleColors(kDefaultStyle, colorsOf(kDefaultStyle));
    control.StyleClearAll(1);
    if (syntax.GetSyntaxHighlighting()) {
        if (const int lexer = syntax.GetLexerNumber(); lexer != -1)
            control.SetLexer(lexer, 1);
        CMapStringToString properties;
        syntax.GetLexerProperties(properties);
        for (auto property = properties.cbegin(); property != properties.cend(); ++property)
            control.SetProperty(Units(property.key()), Units(property.value()), 1);
        for (int style = 0; style <= kLastStyle; ++style) {
            if (syntax.GetStyleName(style).isEmpty())
                continue;
            SetStyleFont(style, fontOf(style));
            SetStyleColors(style, colorsOf(style));
        }
        for (int set = 0; set < kKeywordSets; ++set)
            control.SetKeyWords(set, Units(syntax.GetDelimitedKeywordSet(set, ' ')), 1);
    }
    control.SetReadOnly(0, 1);
    control.SetText(Units(SampleTextOf(syntax.GetFilename().section(u'/', -1))), 1);
    control.SetReadOnly(1, 1);
    control.SetCaretWidth(0, 1);
    control.Colorize(0, -1, 1);
}

void StyleSample::SetStyleColors(int style, ColourScheme::Pair colors)
{
    m_colors[style] = colors;
    if (!m_control)
        return;
    m_control->StyleSetFore(style, colors.fore, 1);
    m_control->StyleSetBack(style, colors.back, 1);
}

void StyleSample::SetStyleFont(int style, const SampleFont& font)
{
    if (!m_control)
        return;
    if (!font.name.isEmpty())
        m_control->StyleSetFont(style, Units(font.name), 1);
    if (font.size > 0)
        m_control->StyleSetSize(style, font.size, 1);
    m_control->StyleSetBold(style, font.bold, 1);
    m_control->StyleSetItalic(style, font.italic, 1);
    m_control->StyleSetUnderline(style, font.underline, 1);
}
