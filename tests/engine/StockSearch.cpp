// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/engine/StockSearch.h"

namespace {

using Sci = QsciScintillaBase;

} // namespace

StockSearch::StockSearch()
{
    m_widget.SendScintilla(Sci::SCI_SETCODEPAGE, Sci::SC_CP_UTF8);
    m_widget.SendScintilla(Sci::SCI_SETMODEVENTMASK, 0);
}

void StockSearch::SetText(const std::string& text)
{
    m_widget.SendScintilla(Sci::SCI_CLEARALL);
    m_widget.SendScintilla(Sci::SCI_APPENDTEXT, text.size(), text.data());
}

void StockSearch::SetWordChars(const std::string& characters)
{
    m_widget.SendScintilla(Sci::SCI_SETWORDCHARS, 0UL, characters.c_str());
}

StockSearch::Match StockSearch::Find(const std::string& sought, int flags, long from, long to)
{
    m_widget.SendScintilla(Sci::SCI_SETSEARCHFLAGS, static_cast<unsigned long>(flags));
    m_widget.SendScintilla(Sci::SCI_SETTARGETSTART, static_cast<unsigned long>(from));
    m_widget.SendScintilla(Sci::SCI_SETTARGETEND, static_cast<unsigned long>(to));
    const long found =
        m_widget.SendScintilla(Sci::SCI_SEARCHINTARGET, sought.size(), sought.data());
    if (found < 0)
        return {};
    return {found, m_widget.SendScintilla(Sci::SCI_GETTARGETEND)};
}
