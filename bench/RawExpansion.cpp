// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/RawExpansion.h"

#include <cctype>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace bench {
namespace {

using Sci = RawEngine::Sci;

constexpr std::uintptr_t kSqlLexer = 7; // Scintilla's
constexpr int kCommentLine = 2;         // its styles
constexpr int kComment = 1;

constexpr std::string_view kSigil = "&&";
constexpr std::string_view kDefine = "#define ";
constexpr std::string_view kInclude = "#include ";

struct TextRange // as the engine has it
{
    long from;
    long to;
    char* text;
};

bool IsNameCharacter(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) || c == '_';
}

} // namespace

RawExpansion::RawExpansion(RawEngine& raw, std::string folder)
    : m_raw(raw), m_folder(std::move(folder))
{
    m_raw.Send(Sci::SCI_SETLEXER, kSqlLexer);
    m_raw.Send(Sci::SCI_SETSEARCHFLAGS, Sci::SCFIND_MATCHCASE);
}

void RawExpansion::Expand()
{
    m_variables.clear();
    VisitAll(0, m_raw.Send(Sci::SCI_GETLENGTH));
    for (std::intptr_t at = Find(kInclude, 0, m_raw.Send(Sci::SCI_GETLENGTH)); at >= 0;) {
        const auto line =
            static_cast<std::uintptr_t>(m_raw.Send(Sci::SCI_LINEFROMPOSITION, Word(at)));
        if (!IsComment(at))
            Include(line);
        at = Find(kInclude, m_raw.Send(Sci::SCI_GETLINEENDPOSITION, line),
                  m_raw.Send(Sci::SCI_GETLENGTH));
    }
}

// All hits of the variables' sign between the two.
void RawExpansion::VisitAll(std::intptr_t from, std::intptr_t to)
{
    const std::intptr_t behind = m_raw.Send(Sci::SCI_GETLENGTH) - to;
    for (std::intptr_t hit = Find(kSigil, from, to); hit >= 0;) {
        const std::intptr_t next = Visit(hit);
        hit = Find(kSigil, next, m_raw.Send(Sci::SCI_GETLENGTH) - behind);
    }
}

// Where to go on.
std::intptr_t RawExpansion::Visit(std::intptr_t hit)
{
    const auto line = static_cast<std::uintptr_t>(m_raw.Send(Sci::SCI_LINEFROMPOSITION, Word(hit)));
    const std::intptr_t start = m_raw.Send(Sci::SCI_POSITIONFROMLINE, line);
    const std::string text = Text(start, m_raw.Send(Sci::SCI_GETLINEENDPOSITION, line));
    if (IsComment(hit))
        return hit + 2;
    const auto offset = static_cast<std::size_t>(hit - start);
    std::size_t end = offset + kSigil.size();
    while (end < text.size() && IsNameCharacter(text[end]))
        ++end;
    const std::string name = text.substr(offset, end - offset);
    if (text.starts_with(kDefine)) {
        m_variables.emplace(name, text.substr(end + 1));
        Insert(start, "--");
        return hit + 4;
    }
    const auto variable = m_variables.find(name);
    if (variable == m_variables.end())
        std::abort();
    m_raw.Send(Sci::SCI_BEGINUNDOACTION);
    m_raw.Send(Sci::SCI_SETTARGETSTART, Word(hit));
    m_raw.Send(Sci::SCI_SETTARGETEND, Word(start) + end);
    m_raw.Send(Sci::SCI_REPLACETARGET, variable->second.size(), variable->second.data());
    m_raw.Send(Sci::SCI_ENDUNDOACTION);
    return hit + 2;
}

void RawExpansion::Include(std::uintptr_t line)
{
    const std::intptr_t start = m_raw.Send(Sci::SCI_POSITIONFROMLINE, line);
    const std::intptr_t end = m_raw.Send(Sci::SCI_GETLINEENDPOSITION, line);
    const std::string name = Text(start + static_cast<std::intptr_t>(kInclude.size()), end);
    std::ifstream file(m_folder + '/' + name, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    if (text.empty())
        std::abort();
    Insert(end, "\r" + text);
    Insert(start, "--");
    VisitAll(end + 2, end + 3 + static_cast<std::intptr_t>(text.size()));
}

void RawExpansion::Insert(std::intptr_t position, const std::string& text) const
{
    m_raw.Send(Sci::SCI_INSERTTEXT, Word(position), text.c_str());
}

// Styles up to the end of the position's line, if it is not styled.
bool RawExpansion::IsComment(std::intptr_t position) const
{
    const std::intptr_t styled = m_raw.Send(Sci::SCI_GETENDSTYLED);
    if (styled <= position) {
        const std::intptr_t line = m_raw.Send(Sci::SCI_LINEFROMPOSITION, Word(position));
        m_raw.Send(Sci::SCI_COLOURISE, Word(styled),
                   m_raw.Send(Sci::SCI_POSITIONFROMLINE, Word(line) + 1));
    }
    const std::intptr_t style = m_raw.Send(Sci::SCI_GETSTYLEAT, Word(position));
    return style == kComment || style == kCommentLine;
}

std::intptr_t RawExpansion::Find(std::string_view what, std::intptr_t from, std::intptr_t to) const
{
    m_raw.Send(Sci::SCI_SETTARGETSTART, Word(from));
    m_raw.Send(Sci::SCI_SETTARGETEND, Word(to));
    return m_raw.Send(Sci::SCI_SEARCHINTARGET, what.size(), what.data());
}

std::string RawExpansion::Text(std::intptr_t from, std::intptr_t to) const
{
    std::string text(static_cast<std::size_t>(to - from), '\0');
    TextRange range{from, to, text.data()};
    m_raw.Send(Sci::SCI_GETTEXTRANGE, 0, &range);
    return text;
}

} // namespace bench
