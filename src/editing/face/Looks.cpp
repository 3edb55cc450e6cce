// SPDX-License-Identifier: GPL-3.0-or-later
// The face's languages, colours, font and layout.
#include "control/EngineRecords.h"
#include "editing/face/Private.h"
#include "editing/language/FileLanguages.h"
#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "looks/ColourScheme.h"
#include "looks/Schemes.h"
#include "platform/services/OptionsServer.h"
#include "platform/system/Font.h"

#include <algorithm>

namespace {

constexpr int kStyles = 256;
constexpr int kWrapByWord = 1;
constexpr WPARAM kPlainStyle = 32; // what is plain text in every language

} // namespace

QStringList ZNCoreEditorWidget::languages()
{
    const CFileTypeManager& manager = *zncoreeditor::GetFileTypeManager();
    QStringList names;
    for (int language = 0; language < manager.GetLanguageCount(); ++language)
        names += manager.GetLanguageName(language);
    return names;
}

int ZNCoreEditorWidget::languageOfName(const QString& name)
{
    return static_cast<int>(languages().indexOf(name));
}

int ZNCoreEditorWidget::languageOfFile(const QString& path)
{
    return LanguageOfFile(path);
}

int ZNCoreEditorWidget::language() const
{
    return d->m_control->GetCurrentLanguage();
}

bool ZNCoreEditorWidget::setLanguage(int language)
{
    if (language < 0 || language >= zncoreeditor::GetFileTypeManager()->GetLanguageCount())
        return false;
    return d->Run([=, this](CZNCoreEditorControlEx& control) {
        d->KeepOwn();
        control.InitializeLanguage(language, 1);
        d->ApplyOwn();
        return true;
    });
}

QString ZNCoreEditorWidget::languageName() const
{
    const CFileTypeManager& manager = *zncoreeditor::GetFileTypeManager();
    const int number = language();
    return number >= 0 && number < manager.GetLanguageCount() ? manager.GetLanguageName(number)
                                                              : QString();
}

bool ZNCoreEditorWidget::setLanguageName(const QString& name)
{
    return setLanguage(languageOfName(name));
}

bool ZNCoreEditorWidget::setLanguageForFile(const QString& path)
{
    return setLanguage(languageOfFile(path));
}

QStringList ZNCoreEditorWidget::schemes()
{
    return zncoreeditor::SchemeNames();
}

QString ZNCoreEditorWidget::scheme() const
{
    return d->m_control->SchemeName();
}

bool ZNCoreEditorWidget::setScheme(const QString& name)
{
    if (!name.isEmpty() && name != zncoreeditor::kDesktopScheme && !zncoreeditor::FindScheme(name))
        return false;
    return d->Run([&](CZNCoreEditorControlEx& control) {
        control.SetScheme(name);
        d->m_colours = control.Scheme();
        d->ApplyOwn();
        return true;
    });
}

// What a person has changed by a command since it was set is theirs.
void ZNCoreEditorWidget::Private::KeepOwn()
{
    if (m_wraps)
        m_wraps = m_control->GetWrapMode(1) != 0;
    if (m_hasNumbers)
        m_hasNumbers = m_control->IsVisibleLineNumber();
}

// A language brings a font for each of its styles, a width of its tabs, and more.
void ZNCoreEditorWidget::Private::ApplyOwn()
{
    if (m_wraps)
        m_control->SetWrapMode(*m_wraps ? kWrapByWord : 0, 1);
    if (m_hasNumbers)
        m_control->SetVisibleLineNumber(*m_hasNumbers);
    if (m_tabWidth > 0)
        m_control->SetTabWidth(m_tabWidth, 1);
    if (!m_font)
        return;
    const QString family = m_font->family();
    for (int style = 0; style < kStyles; ++style) {
        m_control->StyleSetFont(style, face::Units(family), 1);
        m_control->StyleSetSize(style, m_font->pointSize(), 1);
    }
}

QFont ZNCoreEditorWidget::editorFont() const
{
    if (d->m_font)
        return *d->m_font;
    LOGFONT font;
    if (!CZNOptionsServer::GetObjectW()->GetLOGFONT(option::EditorFont, &font))
        return QFont(); // as long as nobody has chosen one
    constexpr int kPointsPerInch = 72;
    return QFont(QString(reinterpret_cast<const QChar*>(font.lfFaceName)),
                 -MulDiv(static_cast<int>(font.lfHeight), kPointsPerInch, ScreenPixelsPerInch()));
}

void ZNCoreEditorWidget::setEditorFont(const QFont& font)
{
    if (!d->IsInItsThread() || d->m_font == font)
        return;
    d->m_font = font;
    if (font.pointSize() < 1) // set in pixels
        d->m_font->setPointSize(QFontInfo(font).pointSize());
    d->ApplyOwn();
    Q_EMIT editorFontChanged();
}

int ZNCoreEditorWidget::tabWidth() const
{
    return d->m_control->GetTabWidth(1);
}

bool ZNCoreEditorWidget::setTabWidth(int characters)
{
    constexpr int kWidest = 64;
    if (characters < 1 || characters > kWidest)
        return false;
    return d->Run([=, this](CZNCoreEditorControlEx& control) {
        d->m_tabWidth = characters;
        control.SetTabWidth(characters, 1);
        return true;
    });
}

int ZNCoreEditorWidget::zoom() const
{
    return d->m_control->GetZoom(1);
}

void ZNCoreEditorWidget::setZoom(int points)
{
    d->Run([=](CZNCoreEditorControlEx& control) {
        control.SetZoom(points, 1);
        return 0;
    });
}

void ZNCoreEditorWidget::zoomIn(int points)
{
    setZoom(zoom() + points);
}

void ZNCoreEditorWidget::zoomOut(int points)
{
    setZoom(zoom() - points);
}

ZNCoreEditorWidget::LineWrapMode ZNCoreEditorWidget::lineWrapMode() const
{
    return d->m_control->GetWrapMode(1) ? LineWrapMode::WidgetWidth : LineWrapMode::NoWrap;
}

void ZNCoreEditorWidget::setLineWrapMode(LineWrapMode mode)
{
    d->Run([=, this](CZNCoreEditorControlEx& control) {
        d->m_wraps = mode == LineWrapMode::WidgetWidth;
        control.SetWrapMode(*d->m_wraps ? kWrapByWord : 0, 1);
        return 0;
    });
}

bool ZNCoreEditorWidget::areLineNumbersVisible() const
{
    return d->m_control->IsVisibleLineNumber();
}

void ZNCoreEditorWidget::setLineNumbersVisible(bool visible)
{
    d->Run([=, this](CZNCoreEditorControlEx& control) {
        d->m_hasNumbers = visible;
        control.SetVisibleLineNumber(visible);
        return 0;
    });
}

bool ZNCoreEditorWidget::isDocumentMapVisible() const
{
    return d->m_control->IsDocumentMapVisible();
}

void ZNCoreEditorWidget::setDocumentMapVisible(bool visible)
{
    d->Run([=](CZNCoreEditorControlEx& control) {
        control.SetDocumentMap(visible);
        return 0;
    });
}

// As they are painted, whether a scheme, the settings or a person has chosen them.
QPalette ZNCoreEditorWidget::textPalette() const
{
    const auto toColour = [](COLORREF colour) {
        constexpr COLORREF kByte = 0xFF;
        return QColor(static_cast<int>(colour & kByte), static_cast<int>(colour >> 8 & kByte),
                      static_cast<int>(colour >> 16 & kByte));
    };
    QPalette colours = palette();
    StyleLook look;
    if (!SendMessage(d->m_control->GetSafeHwnd(), kGetStyleLook, kPlainStyle,
                     reinterpret_cast<LPARAM>(&look)))
        return colours;
    colours.setColor(QPalette::Base, toColour(look.back));
    colours.setColor(QPalette::Text, toColour(look.fore));
    if (const ColourScheme* scheme = d->m_control->Scheme()) {
        colours.setColor(QPalette::Highlight, toColour(scheme->Of(Drawn::Selection)));
        colours.setColor(QPalette::HighlightedText, toColour(look.fore));
    }
    return colours;
}
