// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorControlEx: the language, and the host's options on their way into it.
#include "editing/ZNCoreEditorControlEx.h"

#include "control/EngineLooks.h"
#include "control/EngineModes.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "platform/services/OptionsServer.h"
#include "platform/system/Font.h"
#include "settings/ConfigFile.h"
#include "settings/Number.h"
#include "settings/SyntaxFile.h"

#include <QFile>

#include <cmath>
#include <string>

namespace {

constexpr int kDefaultStyle = 32;
constexpr int kLineNumberStyle = 33;
constexpr int kExtendedMargin = 0;
constexpr int kNumberMargin = 1;
constexpr int kMarginRoom = 4; // pixels beside the digits
constexpr int kSchemeRoom = 8; // beside those, with the margins of a scheme
constexpr int kUsualTabWidth = 4;

int DigitsOf(int lines)
{
    constexpr int kFewest = 4;
    constexpr int kMostOfThose = 9999;
    return lines <= kMostOfThose ? kFewest : static_cast<int>(std::floor(std::log10(lines))) + 1;
}

// All but the font, in the order in which the options are asked.
LanguageOptions Ask(CZNOptionsServer& options)
{
    LanguageOptions asked;
    asked.autoIndent = options.GetInt(option::AutoIndent);
    asked.tabsToSpaces = options.GetInt(option::TabsToSpaces) != 0;
    asked.lineNumbers = options.GetInt(option::LineNumbers) != 0;
    asked.tabWidth = options.GetInt(option::TabWidth);
    asked.foldMargin = options.GetInt(option::FoldMargin) != 0;
    if (asked.tabWidth <= 0)
        asked.tabWidth = kUsualTabWidth;
    return asked;
}

} // namespace

void CZNCoreEditorControlEx::Reset()
{
    m_singleLineComments.clear();
    m_blockComments.clear();
}

int CZNCoreEditorControlEx::InitializeLanguage(int language, int /*unused*/)
{
    Reset();
    zncoreeditor::GetFileTypeManager()->SetCoreEditorProperties(language, this);
    m_currentLanguage = language;
    ApplyColorMaxSize();
    InvalidateWindow(GetSafeHwnd());
    UpdateWindow(GetSafeHwnd());
    return 1;
}

// Another value has the text styled anew.
void CZNCoreEditorControlEx::ApplyColorMaxSize()
{
    constexpr std::size_t kCompared = 20;
    constexpr const char16_t* kProperty = u"colorMaxSize";
    const auto size =
        static_cast<unsigned int>(CZNOptionsServer::GetObjectW()->GetInt(option::ColorMaxSize));
    const std::u16string wanted = QString::number(size).toStdU16String();
    std::u16string present;
    if (const int length = GetProperty(kProperty, nullptr, 1); length > 0) {
        present.resize(static_cast<std::size_t>(length)); // with room for the terminator
        GetProperty(kProperty, present.data(), 1);
    }
    if (wanted == present.substr(0, kCompared))
        return;
    SetProperty(kProperty, wanted.c_str(), 1);
    ClearDocumentStyle(1);
    Call(engine::kRestyle, 0, 0, 1);
}

void CZNCoreEditorControlEx::SetEditorOptions()
{
    CZNOptionsServer* options = CZNOptionsServer::GetObjectW();
    LOGFONT font;
    if (!options->GetLOGFONT(option::EditorFont, &font)) {
        constexpr std::u16string_view kFace = u"Tahoma";
        font = LOGFONT();
        font.lfHeight = -15;
        font.lfCharSet = 1;
        kFace.copy(font.lfFaceName, kFace.size());
        options->SetLOGFONT(option::EditorFont, &font);
    }
    SetLogFont(&font);
}

void CZNCoreEditorControlEx::SetLogFont(LOGFONT* font)
{
    constexpr int kPointsPerInch = 72;
    if (!font)
        return;
    const int size =
        -MulDiv(static_cast<int>(font->lfHeight), kPointsPerInch, ScreenPixelsPerInch());
    UpdateXmlSettingsFromOptionServerData(QString::fromUtf16(font->lfFaceName), size,
                                          font->lfWeight == FW_BOLD, font->lfItalic != 0,
                                          font->lfUnderline != 0);
}

void CZNCoreEditorControlEx::WriteOptions(CSyntaxFile& syntax, const LanguageOptions& options) const
{
    if (!m_userSettingsFirst) {
        syntax.WriteOptions(options);
        return;
    }
    const bool wasModified = syntax.GetModified();
    LanguageOptions fitting = options;
    if (syntax.GetLexerNumber() == engine::lexer::Makefile)
        fitting.tabsToSpaces = false; // a recipe begins with a tab
    if (QFile::exists(syntax.GetCustomFilename()))
        syntax.FillFonts(fitting);
    else
        syntax.WriteOptions(fitting);
    syntax.SetModified(wasModified);
}

void CZNCoreEditorControlEx::UpdateXmlSettingsFromOptionServerData(QString fontName, int fontSize,
                                                                   bool bold, bool italic,
                                                                   bool underline)
{
    CZNOptionsServer& options = *CZNOptionsServer::GetObjectW();
    QString background = options.GetString(option::BackgroundColor);
    if (background.isEmpty())
        background = QStringLiteral("255,255,255");
    m_backgroundColor = COLORREFFromString(background);
    if (fontName.isEmpty())
        fontName = QStringLiteral("Courier New");
    const int tracking = options.GetInt(option::FileTracking);
    CConfigFile* config = zncoreeditor::GetConfigFile();
    if (!config)
        return;
    // It belongs to the options: an editor that comes up has changed no setting of the user's.
    const bool wasModified = config->GetModified();
    config->SetFileTracking(tracking);
    config->SetModified(wasModified);
    const int count = config->GetLanguageCount();
    if (count > 0) {
        LanguageOptions forAll = Ask(options);
        forAll.wordWrap = GetUseWordWrap();
        forAll.fontName = fontName;
        forAll.fontSize = fontSize;
        forAll.bold = bold;
        forAll.italic = italic;
        forAll.underline = underline;
        for (int language = 0; language < count; ++language) {
            CSyntaxFile* syntax = zncoreeditor::GetFileTypeManager()->GetSyntaxFile(language);
            if (!syntax)
                continue;
            // The last language's paper is what stays.
            m_backgroundColor =
                static_cast<COLORREF>(syntax->GetStyleColorBackground(kDefaultStyle));
            WriteOptions(*syntax, forAll);
        }
    }
    InitializeLanguage(m_currentLanguage, 1);
}

void CZNCoreEditorControlEx::SetFont(LOGFONT& font)
{
    CFont made;
    made.CreateFontIndirect(font);
    SendMessage(GetSafeHwnd(), WM_SETFONT, reinterpret_cast<WPARAM>(made.GetSafeHandle()), 1);
}

void CZNCoreEditorControlEx::SetFont(CFont* font)
{
    SendMessage(GetSafeHwnd(), WM_SETFONT,
                reinterpret_cast<WPARAM>(font ? font->GetSafeHandle() : nullptr), 1);
}

void CZNCoreEditorControlEx::SetAStyle(int style, COLORREF fore, COLORREF back, int size,
                                       const char16_t* face)
{
    StyleSetFore(style, fore, 1);
    StyleSetBack(style, back, 1);
    if (size >= 1)
        StyleSetSize(style, size, 1);
    if (face)
        StyleSetFont(style, face, 1);
}

COLORREF CZNCoreEditorControlEx::COLORREFFromString(const QString& text)
{
    constexpr int kParts = 3;
    COLORREF color = 0;
    qsizetype start = 0;
    for (int part = 0; part < kParts && start < text.size(); ++part) {
        qsizetype comma = text.indexOf(u',', start);
        if (comma < 0)
            comma = text.size();
        const auto value = static_cast<COLORREF>(TextToInt(text.mid(start, comma - start)));
        color |= (value & 0xFF) << (8 * part);
        start = comma + 1;
    }
    return color;
}

bool CZNCoreEditorControlEx::GetUseWordWrap()
{
    return CZNOptionsServer::GetObjectW()->GetInt(option::WordWrap) != 0;
}

void CZNCoreEditorControlEx::SetVisibleLineNumber(bool visible)
{
    m_visibleLineNumber = visible;
    SetLineNumberWidth();
}

void CZNCoreEditorControlEx::SetLineNumberWidth()
{
    int width = 0;
    if (m_visibleLineNumber)
        width = TextWidth(kLineNumberStyle, u"9", 1) * DigitsOf(GetLineCount(1)) + kMarginRoom +
                (m_scheme.isEmpty() ? 0 : kSchemeRoom);
    SetMarginWidthN(kNumberMargin, width, 1);
}

void CZNCoreEditorControlEx::SetDocumentMap(bool visible)
{
    Call(engine::kShowDocumentMap, visible ? 1 : 0, 0, 1);
}

bool CZNCoreEditorControlEx::IsDocumentMapVisible()
{
    return Call(engine::kIsDocumentMapShown, 0, 0, 1) != 0;
}

void CZNCoreEditorControlEx::SetExtendedMargin(bool on)
{
    constexpr int kDigits = 8;
    const int width = on ? TextWidth(kLineNumberStyle, u"9", 1) * kDigits + kMarginRoom : 0;
    SetMarginWidthN(kExtendedMargin, width, 1);
}

void CZNCoreEditorControlEx::SetExtendedText(const char16_t* text, int length)
{
    if (length > 0)
        Call(engine::kExtendedText, reinterpret_cast<WPARAM>(text), length, 1);
}

void CZNCoreEditorControlEx::SetExtendedText(std::map<int, std::u16string>& texts)
{
    Call(engine::kExtendedTexts, reinterpret_cast<WPARAM>(&texts), 0, 1);
}
