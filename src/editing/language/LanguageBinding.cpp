// SPDX-License-Identifier: GPL-3.0-or-later
// CFileTypeManager::SetCoreEditorProperties: one language's settings as a fixed sequence of
// messages.
#include "editing/language/FileTypeManager.h"

#include "common/Globals.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/language/Library.h"
#include "looks/ColourScheme.h"
#include "platform/base/Units.h"
#include "settings/ConfigFile.h"
#include "settings/SyntaxFile.h"

#include <QByteArray>

#include <algorithm>

namespace {

constexpr int kDefaultStyle = 32;
constexpr int kLastPredefinedStyle = 38;
constexpr int kLastStyle = 127;
constexpr int kUnstyled = 23; // keeps what the default style gave it
constexpr int kKeywordSets = 9;

constexpr int kBookmarkMargin = 2;
constexpr int kFoldMargin = 3;
constexpr int kSymbolMargin = 0;
constexpr int kFolderMarkers = static_cast<int>(0xFE000000);
constexpr int kOtherMarkers = 0x01FFFFFF;
constexpr unsigned long kFoldMarginColor = 0xC1CDC1;

constexpr int kErrorMarker = 2;
constexpr int kWarningMarker = 9;
constexpr UINT kErrorImage = 28176;
constexpr UINT kWarningImage = 28177;

struct MarkerRow
{
    int marker;
    int symbol; // Scintilla's numbers
    unsigned long fore;
    unsigned long back;
};

constexpr MarkerRow kBookmark = {0, 1, 0xF3FA0E, 0xF3FA0E};
constexpr MarkerRow kPlainError = {kErrorMarker, 0, 0, 0x0000FF};
constexpr MarkerRow kPlainWarning = {kWarningMarker, 0, 0, 0x00FFFF};
constexpr MarkerRow kOtherRows[] = {
    {7, 4, 0, 0xFFFFFF},
    {8, 4, 0, 0x40FF00},
    {3, 0, 0, 0x0909BF},
    {4, 0, 0, 0xFFFFFF},
    {1, 1, 0xF3FA0E, 0xF3FA0E},
    {5, 10000 + 'C', 0xFF0000, 0xFF0000}, // a character
    {6, 10000 + 'R', 0x8000FF, 0x8000FF},
};

void ApplyStyle(CSyntaxFile& syntax, CZNCoreEditorControlEx& control, int style)
{
    const QString font = syntax.GetStyleFontName(style);
    if (!font.isEmpty())
        control.StyleSetFont(style, Units(font), 1);
    const int size = syntax.GetStyleFontSize(style);
    if (size > 0)
        control.StyleSetSize(style, size, 1);
    control.StyleSetBold(style, syntax.GetStyleFontBold(style), 1);
    control.StyleSetItalic(style, syntax.GetStyleFontItalic(style), 1);
    control.StyleSetUnderline(style, syntax.GetStyleFontUnderline(style), 1);
    control.StyleSetFore(style, static_cast<COLORREF>(syntax.GetStyleColorForeground(style)), 1);
    control.StyleSetBack(style, static_cast<COLORREF>(syntax.GetStyleColorBackground(style)), 1);
}

// The place of the next separator is taken for the length of the piece: pieces from the third on
// run over into what follows them.
void AddSingleLineComments(const QString& markers, CZNCoreEditorControlEx& control)
{
    qsizetype start = 0;
    for (;;) {
        qsizetype bar = markers.indexOf(u'|', start);
        if (bar < 0 && start >= markers.size())
            return;
        if (bar < 0)
            bar = markers.size();
        control.AddSingleLineComment(markers.mid(start, bar));
        start = bar + 1;
    }
}

// As above, by pairs.
void AddBlockComments(const QString& markers, CZNCoreEditorControlEx& control)
{
    qsizetype start = 0;
    bool more = true;
    while (more) {
        const qsizetype middle = markers.indexOf(u'|', start);
        if (middle < 0)
            return;
        qsizetype end = markers.indexOf(u'|', middle + 1);
        more = end >= 0;
        if (!more && middle + 1 >= markers.size())
            return;
        if (!more)
            end = markers.size();
        control.AddBlockComment(markers.mid(start, middle), markers.mid(middle + 1, end));
        start = end + 1;
    }
}

void ApplyHighlighting(CSyntaxFile& syntax, CZNCoreEditorControlEx& control)
{
    if (const int lexer = syntax.GetLexerNumber(); lexer != -1)
        control.SetLexer(lexer, 1);
    CMapStringToString properties;
    if (syntax.GetLexerProperties(properties) > 0) {
        for (auto property = properties.cbegin(); property != properties.cend(); ++property)
            control.SetProperty(Units(property.key()), Units(property.value()), 1);
    }
    for (int style = 0; style <= kLastStyle; ++style) {
        if (style != kUnstyled)
            ApplyStyle(syntax, control, style);
    }
    for (int set = 0; set < kKeywordSets; ++set) {
        const QString words = syntax.GetDelimitedKeywordSet(set, ' ');
        if (!words.isEmpty())
            control.SetKeyWords(set, Units(words), 1);
    }
}

void ApplyIndentation(CSyntaxFile& syntax, CZNCoreEditorControlEx& control)
{
    control.SetTabIndents(syntax.GetIndent(), 1);
    control.SetBackSpaceUnIndents(syntax.GetIndent(), 1);
    control.SetIndent(syntax.GetIndentSize(), 1);
    control.SetAutoIndent(syntax.GetAutoIndent());
    control.SetIndentationGuides(syntax.GetIndentGuides(), 1);
}

void ApplyView(CSyntaxFile& syntax, CZNCoreEditorControlEx& control)
{
    control.StyleSetEOLFilled(kDefaultStyle, 1, 1);
    control.UsePopUp(0, 1);
    control.SetViewWS(syntax.GetWhiteSpace(), 1);
    control.SetViewEOL(syntax.GetEOL(), 1);
    control.SetUseTabs(!syntax.GetTabsToSpaces(), 1);
    control.SetVisibleLineNumber(syntax.GetMarginLineNumber());
}

void ApplyMargins(CSyntaxFile& syntax, CZNCoreEditorControlEx& control)
{
    control.SetMarginWidthN(kBookmarkMargin, syntax.GetMarginBookmark() ? 20 : 0, 1);
    control.SetMarginTypeN(kBookmarkMargin, kSymbolMargin, 1);
    control.SetMarginMaskN(kBookmarkMargin, kOtherMarkers, 1);

    control.SetMarginWidthN(kFoldMargin, syntax.GetMarginFold() ? 16 : 0, 1);
    control.SetMarginTypeN(kFoldMargin, kSymbolMargin, 1);
    control.SetMarginMaskN(kFoldMargin, kFolderMarkers, 1);
    control.SetMarginSensitiveN(kFoldMargin, 1, 1);
    control.SetFoldingMargins(static_cast<EFoldStyle>(0));
    control.SetFoldMarginColor(1, kFoldMarginColor, 1);
    // Guides are on in every language, whatever its file says.
    control.SetIndentationGuides(1, 1);
}

void Define(const MarkerRow& row, CZNCoreEditorControlEx& control)
{
    control.DefineMarker(row.marker, row.symbol, row.fore, row.back);
}

// The image stands in the string table as XPM, one of its lines in a line. A text without one gives
// the plain marker.
void DefineImage(const MarkerRow& plain, UINT image, CZNCoreEditorControlEx& control)
{
    std::vector<QByteArray> lines;
    for (const QString& line : zncoreeditor::GetResourceLoader().LoadString(image).split(u'\n')) {
        if (line.isEmpty())
            break;
        lines.push_back(line.toUtf8());
    }
    if (lines.empty()) {
        Define(plain, control);
        return;
    }
    std::vector<const char*> pointers(lines.size() + 1, nullptr); // null behind the last line
    std::transform(lines.begin(), lines.end(), pointers.begin(),
                   [](const QByteArray& line) { return line.constData(); });
    control.MarkerDefinePixmap(plain.marker, reinterpret_cast<const char*>(pointers.data()), 1);
}

void DefineMarkers(CZNCoreEditorControlEx& control)
{
    Define(kBookmark, control);
    DefineImage(kPlainError, kErrorImage, control);
    control.ErrorsSetMarkNum(kErrorMarker, 1);
    DefineImage(kPlainWarning, kWarningImage, control);
    control.WarningsSetMarkNum(kWarningMarker, 1);
    for (const MarkerRow& row : kOtherRows)
        Define(row, control);
}

void ApplyOnSave(CSyntaxFile& syntax, CZNCoreEditorControlEx& control)
{
    control.SetEnsureFinalNewLine(syntax.GetEnsureFinalNewLine());
    control.SetSaveConvertTabToSpaces(syntax.GetConvertTabsToSpaces());
    control.SetSaveTrimTrailingSpaces(syntax.GetTrimTrailingSpaces());
}

// The caret has the colour of the text; that of the configuration is not used.
void ApplyCaret(CConfigFile& config, CSyntaxFile& syntax, CZNCoreEditorControlEx& control)
{
    control.SetCaretFore(static_cast<COLORREF>(syntax.GetStyleColorForeground(0)), 1);
    control.SetSelFore(config.UseSelectionForegroundColor(), config.GetSelectionForegroundColor(),
                       1);
    control.SetSelBack(config.UseSelectionBackgroundColor(), config.GetSelectionBackgroundColor(),
                       1);
    control.SetCaretLineVisible(config.GetHighlightCurrentLine(), 1);
    control.SetCaretWidth(1, 1);
    control.SetCaretLineBack(config.GetHighlightCurrentLineColor(), 1);
    control.SetEdgeMode(config.GetRightEdge(), 1);
    control.SetEdgeColumn(config.GetRightEdgeColumn(), 1);
    control.SetEdgeColor(config.GetRightEdgeColor(), 1);
}

} // namespace

void CFileTypeManager::SetCoreEditorProperties(int language, CZNCoreEditorControlEx* control)
{
    m_currentLanguage = language;
    SetCoreEditorProperties(zncoreeditor::GetConfigFile(), GetSyntaxFile(language), control);
}

void CFileTypeManager::SetCoreEditorProperties(CConfigFile* config, CSyntaxFile* syntax,
                                               CZNCoreEditorControlEx* control)
{
    if (!control || !syntax || !syntax->Parse())
        return;
    const bool highlight = syntax->GetSyntaxHighlighting();
    ApplyStyle(*syntax, *control, kDefaultStyle);
    control->StyleClearAll(1);
    AddSingleLineComments(syntax->GetSingleLineComment(), *control);
    AddBlockComments(syntax->GetBlockComment(), *control);
    if (const int bits = syntax->GetStyleBits(); bits != -1)
        control->SetStyleBits(bits, 1);
    if (highlight) {
        ApplyHighlighting(*syntax, *control);
    } else {
        for (int style = kDefaultStyle; style <= kLastPredefinedStyle; ++style)
            ApplyStyle(*syntax, *control, style);
    }
    ApplyIndentation(*syntax, *control);
    ApplyView(*syntax, *control);
    ApplyMargins(*syntax, *control);
    DefineMarkers(*control);
    ApplyOnSave(*syntax, *control);
    ApplyCaret(*config, *syntax, *control);
    control->SetTabWidth(syntax->GetTabWidth(), 1);
    control->SetWrapMode(syntax->GetWordWrap(), 1);
    control->DefineErrorIndicators();
    control->SetBraces(syntax->GetBraces());
    const QString wordCharacters = syntax->GetWordCharacters();
    control->SetWordChars(Units(wordCharacters));
    if (const ColourScheme* scheme = control->Scheme())
        control->ApplyScheme(*scheme, *syntax);
    // Once more: the width of the margin follows from the styles and the text that stand by then.
    control->SetVisibleLineNumber(syntax->GetMarginLineNumber());
    InvalidateWindow(control->GetSafeHwnd());
    UpdateWindow(control->GetSafeHwnd());
}
