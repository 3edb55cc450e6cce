// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorControlEx: the colours of a scheme, over those of the language's settings.
#include "editing/ZNCoreEditorControlEx.h"

#include "control/EngineLooks.h"
#include "editing/hands/EnterKeys.h"
#include "editing/hands/PairKeys.h"
#include "editing/hands/SurroundKeys.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "editing/looks/DeliveredSettings.h"
#include "editing/looks/DesktopWatch.h"
#include "editing/looks/HoverTips.h"
#include "editing/looks/StyleColours.h"
#include "editing/operations/ScrollRest.h"
#include "looks/Schemes.h"
#include "settings/ConfigFile.h"
#include "settings/SyntaxFile.h"

#include <QApplication>
#include <QSet>
#include <QStyle>

namespace {

constexpr int kDefaultStyle = 32;
constexpr int kLineNumberStyle = 33;
constexpr int kGuideStyle = 37;
constexpr int kLastPredefinedStyle = 38;
constexpr int kLastStyle = 127;

void ApplyStyles(const ColourScheme& scheme, CSyntaxFile& syntax, CZNCoreEditorControlEx& control)
{
    const StyleColours colours(scheme, syntax);
    const bool highlight = syntax.GetSyntaxHighlighting();
    for (int style = 0; style <= kLastStyle; ++style) {
        const bool isPredefined = style >= kDefaultStyle && style <= kLastPredefinedStyle;
        ColourScheme::Pair pair = colours.Of(highlight || isPredefined ? style : kDefaultStyle);
        if (style == kGuideStyle) // lines, no text
            pair = {scheme.Of(Drawn::Guide), scheme.Of(Drawn::Ground)};
        if (style == kLineNumberStyle)
            pair.back = scheme.Of(Drawn::Margin);
        control.StyleSetFore(style, pair.fore, 1);
        control.StyleSetBack(style, pair.back, 1);
    }
}

// The colours of all languages: what a person has chosen stays, as with styles.
void ApplyGeneral(const ColourScheme& scheme, CZNCoreEditorControlEx& control)
{
    using Get = unsigned long (CConfigFile::*)();
    CConfigFile& config = *zncoreeditor::GetConfigFile();
    const auto colour = [&](Get get, Drawn drawn) {
        const auto own = static_cast<COLORREF>((config.*get)());
        const auto delivered = static_cast<COLORREF>((DeliveredConfig().*get)());
        return own == delivered ? scheme.Of(drawn) : own;
    };
    control.SetCaretFore(colour(&CConfigFile::GetCaretColor, Drawn::Caret), 1);
    control.SetCaretLineBack(colour(&CConfigFile::GetHighlightCurrentLineColor, Drawn::CurrentLine),
                             1);
    control.SetSelFore(config.UseSelectionForegroundColor(),
                       static_cast<COLORREF>(config.GetSelectionForegroundColor()), 1);
    control.SetSelBack(config.UseSelectionBackgroundColor(),
                       colour(&CConfigFile::GetSelectionBackgroundColor, Drawn::Selection), 1);
    control.SetEdgeColor(colour(&CConfigFile::GetRightEdgeColor, Drawn::RightEdge), 1);
}

// Of words that a language has, or that nothing has: SELECT again is nothing to look for.
std::bitset<128> QuietStyles(const StyleColours& colours)
{
    static const QSet<QString> roles = {
        QStringLiteral("comment"), QStringLiteral("documentation"),
        QStringLiteral("keyword"), QStringLiteral("documentationKeyword"),
        QStringLiteral("number"),  QStringLiteral("operator"),
        QStringLiteral("type"),
    };
    std::bitset<128> quiet;
    for (int style = 0; style <= kLastStyle; ++style)
        quiet[static_cast<std::size_t>(style)] = roles.contains(colours.RoleOf(style));
    return quiet;
}

// The engine draws these itself, sharp at every scale.
void TakeIcons(const ColourScheme& scheme, CSyntaxFile& syntax, CZNCoreEditorControlEx& control)
{
    constexpr int kEmpty = 5; // Scintilla's number of the symbol
    constexpr int kFirstFolder = 25;
    constexpr int kLastFolder = 31;
    namespace marker = engine::lookmarker;
    for (const int each : {marker::kBookmark, marker::kError, marker::kWarning,
                           marker::kLineChanged, marker::kLineSaved})
        control.MarkerDefine(each, kEmpty, 1);
    for (int folder = kFirstFolder; folder <= kLastFolder; ++folder)
        control.MarkerDefine(folder, kEmpty, 1);
    engine::Looks looks;
    looks.margin = scheme.Of(Drawn::Margin);
    looks.fold = scheme.Of(Drawn::Fold);
    looks.foldHot = scheme.Of(Drawn::FoldHot);
    looks.currentNumber = scheme.Of(Drawn::CurrentLineNumber);
    looks.foldedLine = scheme.Of(Drawn::FoldedLine);
    looks.bookmark = scheme.Of(Drawn::Bookmark);
    looks.error = scheme.Of(Drawn::Error);
    looks.warning = scheme.Of(Drawn::Warning);
    looks.lineChanged = scheme.Of(Drawn::LineChanged);
    looks.lineSaved = scheme.Of(Drawn::LineSaved);
    looks.occurrence = scheme.Of(Drawn::Occurrence);
    looks.match = scheme.Of(Drawn::Match);
    looks.statement = scheme.Of(Drawn::Batch);
    looks.whitespace = scheme.Of(Drawn::Whitespace);
    looks.selection = scheme.Of(Drawn::Selection);
    looks.selectionWithoutFocus = scheme.Of(Drawn::SelectionWithoutFocus);
    looks.quiet = QuietStyles(StyleColours(scheme, syntax));
    control.Call(engine::kSetLooks, 0, reinterpret_cast<LPARAM>(&looks), 1);
}

} // namespace

void CZNCoreEditorControlEx::SetScheme(const QString& name)
{
    m_scheme = name;
    if (!name.isEmpty() && !m_desktopWatch && GetSafeHwnd()) {
        m_desktopWatch = new DesktopWatch(*GetSafeHwnd(), [this] {
            if (m_scheme == zncoreeditor::kDesktopScheme)
                ApplyScheme();
        });
        new HoverTips(*this, m_desktopWatch); // which it goes with
        new SurroundKeys(*this, m_desktopWatch);
        new PairKeys(*this, m_desktopWatch);
        new EnterKeys(*this, m_desktopWatch);
        new ScrollRest(*this, m_desktopWatch);
    }
    if (name.isEmpty() && GetSafeHwnd()) {
        Call(engine::kSetLooks, 0, 0, 1);
        SetMarginLeft(1, 1);
    }
    if (name.isEmpty())
        InitializeLanguage(m_currentLanguage, 1);
    else
        ApplyScheme();
}

const ColourScheme* CZNCoreEditorControlEx::Scheme() const
{
    return m_scheme.isEmpty() ? nullptr : zncoreeditor::FindScheme(m_scheme);
}

void CZNCoreEditorControlEx::ApplyScheme()
{
    const ColourScheme* scheme = Scheme();
    CSyntaxFile* syntax = zncoreeditor::GetFileTypeManager()->GetSyntaxFile(m_currentLanguage);
    if (scheme && syntax && syntax->Parse() && GetSafeHwnd())
        ApplyScheme(*scheme, *syntax);
}

void CZNCoreEditorControlEx::ApplySchemeToStyles(const ColourScheme& scheme)
{
    CSyntaxFile* syntax = zncoreeditor::GetFileTypeManager()->GetSyntaxFile(m_currentLanguage);
    if (syntax && syntax->Parse() && GetSafeHwnd())
        ApplyStyles(scheme, *syntax, *this);
}

void CZNCoreEditorControlEx::ApplyScheme(const ColourScheme& scheme, CSyntaxFile& syntax)
{
    ApplyStyles(scheme, syntax, *this);
    m_backgroundColor = scheme.Of(Drawn::Ground);
    SetFoldMarginColor(1, scheme.Of(Drawn::Margin), 1);
    SetFoldMarginHiColor(1, scheme.Of(Drawn::Margin), 1);
    ApplyGeneral(scheme, *this);
    SetCaretWidth(QApplication::style()->pixelMetric(QStyle::PM_TextCursorWidth) + 1, 1);
    SetCaretPeriod(QApplication::cursorFlashTime() / 2, 1);
    SetWhitespaceFore(1, scheme.Of(Drawn::Whitespace), 1);
    constexpr int kAir = 6; // pixels between the margins and the text
    SetMarginLeft(kAir, 1);
    TakeIcons(scheme, syntax, *this);
    SetLineNumberWidth();
}
