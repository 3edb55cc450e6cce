// SPDX-License-Identifier: GPL-3.0-or-later
// The styles of a syntax file, which stand in the custom document.
#include "settings/SyntaxFile.h"

namespace {

// A unit that is no digit counts 0.
int HexDigit(QChar unit)
{
    if (unit >= u'0' && unit <= u'9')
        return unit.unicode() - u'0';
    const char16_t lower = unit.unicode() | 0x20;
    return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10 : 0;
}

} // namespace

pug::xml_node CSyntaxFile::GetStyleNode(int style)
{
    if ((!m_parsed && !Parse()) || style > m_styleMax)
        return pug::xml_node();
    return m_customDocument.document()
        .first_element_by_name(u"StyleInformation")
        .first_element_by_attribute(u"Style", u"number", QString::number(style));
}

pug::xml_node CSyntaxFile::GetStyleFontNode(int style)
{
    return FindStyle(style).font;
}

pug::xml_node CSyntaxFile::GetStyleColorNode(int style)
{
    return FindStyle(style).color;
}

// Binding a language reads seven values of each style, and finding the style costs more than they.
CSyntaxFile::StyleNodes CSyntaxFile::FindStyle(int style)
{
    const auto find = [&] {
        const pug::xml_node node = GetStyleNode(style);
        return StyleNodes{node.first_element_by_name(u"Font"), node.first_element_by_name(u"Color"),
                          m_customDocument.element_changes()};
    };
    if (style < 0 || style >= static_cast<int>(m_foundStyles.size()))
        return find();
    StyleNodes& found = m_foundStyles[static_cast<std::size_t>(style)];
    if (!m_parsed || found.changes != m_customDocument.element_changes())
        found = find();
    return found;
}

QString CSyntaxFile::GetStyleName(int style)
{
    return GetStringFromXMLFile(GetStyleNode(style), u"Name");
}

QString CSyntaxFile::GetStyleFontName(int style)
{
    return GetStringFromXMLFile(GetStyleFontNode(style), u"Name");
}

bool CSyntaxFile::SetStyleFontName(int style, const QString& name)
{
    pug::xml_node font = GetStyleFontNode(style);
    return SetStringToXMLFile(font, u"Name", name, true);
}

int CSyntaxFile::GetStyleFontSize(int style)
{
    return GetIntFromXMLFile(GetStyleFontNode(style), u"Size");
}

bool CSyntaxFile::SetStyleFontSize(int style, int size)
{
    return SetIntToXMLFile(GetStyleFontNode(style), u"Size", size);
}

bool CSyntaxFile::GetStyleFontBold(int style)
{
    return GetBoolFromXMLFile(GetStyleFontNode(style), u"Bold");
}

bool CSyntaxFile::SetStyleFontBold(int style, bool bold)
{
    return SetBoolToXMLFile(GetStyleFontNode(style), u"Bold", bold);
}

bool CSyntaxFile::GetStyleFontItalic(int style)
{
    return GetBoolFromXMLFile(GetStyleFontNode(style), u"Italic");
}

bool CSyntaxFile::SetStyleFontItalic(int style, bool italic)
{
    return SetBoolToXMLFile(GetStyleFontNode(style), u"Italic", italic);
}

bool CSyntaxFile::GetStyleFontUnderline(int style)
{
    return GetBoolFromXMLFile(GetStyleFontNode(style), u"Underline");
}

bool CSyntaxFile::SetStyleFontUnderline(int style, bool underline)
{
    return SetBoolToXMLFile(GetStyleFontNode(style), u"Underline", underline);
}

int CSyntaxFile::GetStyleColorForeground(int style)
{
    return GetStyleColor(style, u"Foreground");
}

bool CSyntaxFile::SetStyleColorForeground(int style, int color)
{
    return SetStyleColor(style, u"Foreground", color);
}

int CSyntaxFile::GetStyleColorBackground(int style)
{
    return GetStyleColor(style, u"Background");
}

bool CSyntaxFile::SetStyleColorBackground(int style, int color)
{
    return SetStyleColor(style, u"Background", color);
}

int CSyntaxFile::GetStyleColor(int style, const char16_t* key)
{
    return RGBHexValueToColorInt(GetStringFromXMLFile(GetStyleColorNode(style), key));
}

bool CSyntaxFile::SetStyleColor(int style, const char16_t* key, int color)
{
    pug::xml_node node = GetStyleColorNode(style);
    return SetStringToXMLFile(node, key, ColorIntValueToRGBHex(color), true);
}

int CSyntaxFile::RGBHexValueToColorInt(const QString& text)
{
    int value = 0;
    for (const int place : {4, 5, 2, 3, 0, 1})
        value = value * 16 + (place < text.size() ? HexDigit(text[place]) : 0);
    return value;
}

QString CSyntaxFile::ColorIntValueToRGBHex(int color)
{
    QString text(6, u'0');
    auto rest = static_cast<unsigned int>(color);
    for (const int place : {1, 0, 3, 2, 5, 4}) {
        text[place] = u"0123456789ABCDEF"[rest % 16];
        rest /= 16;
    }
    return text;
}
