// SPDX-License-Identifier: GPL-3.0-or-later
// The host's options on their way into a syntax file.
// Every editor that is made brings them for every language, and they are mostly those that the
// editor before it brought.
#include "settings/SyntaxFile.h"

namespace {

constexpr int kLastStyle = 127;

} // namespace

std::uint64_t CSyntaxFile::Changes() const
{
    return m_document.changes() + m_customDocument.changes();
}

// What changed nothing will change nothing the next time, so that time can be left out. That it
// changed something does not tell: a value that takes the place of elements may take those that
// another option has just been written into.
bool CSyntaxFile::WriteOptions(const LanguageOptions& options)
{
    if (!m_parsed && !Parse())
        return false;
    const std::uint64_t before = Changes();
    if (!m_settledOptions || m_settledOptions->changes != before ||
        !(m_settledOptions->options == options)) {
        const bool isSet = SetOptions(options);
        m_settledOptions.reset();
        if (Changes() != before)
            return isSet;
        m_settledOptions = {options, before, isSet};
    }
    m_modified |= m_settledOptions->isSet;
    return m_settledOptions->isSet;
}

bool CSyntaxFile::SetOptions(const LanguageOptions& options)
{
    bool isSet = SetAutoIndent(options.autoIndent);
    isSet |= SetTabsToSpaces(options.tabsToSpaces);
    isSet |= SetMarginLineNumber(options.lineNumbers);
    isSet |= SetMarginFold(options.foldMargin);
    isSet |= SetTabWidth(options.tabWidth);
    isSet |= SetIndentSize(options.tabWidth);
    isSet |= SetWordWrap(options.wordWrap);
    for (int style = 0; style <= kLastStyle; ++style)
        isSet |= SetStyleFont(style, options);
    return isSet;
}

void CSyntaxFile::FillFonts(const LanguageOptions& options)
{
    if (!m_parsed && !Parse())
        return;
    for (int style = 0; style <= kLastStyle; ++style) {
        if (GetStyleFontName(style).isEmpty())
            SetStyleFontName(style, options.fontName);
        if (options.fontSize > 0 && GetStyleFontSize(style) <= 0)
            SetStyleFontSize(style, options.fontSize);
    }
}

bool CSyntaxFile::SetStyleFont(int style, const LanguageOptions& options)
{
    pug::xml_node font = GetStyleFontNode(style);
    bool isSet = SetStringToXMLFile(font, u"Name", options.fontName, true);
    if (options.fontSize > 0)
        isSet |= SetIntToXMLFile(font, u"Size", options.fontSize);
    isSet |= SetBoolToXMLFile(font, u"Bold", options.bold);
    isSet |= SetBoolToXMLFile(font, u"Italic", options.italic);
    isSet |= SetBoolToXMLFile(font, u"Underline", options.underline);
    return isSet;
}
