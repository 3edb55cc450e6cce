// SPDX-License-Identifier: GPL-3.0-or-later
// Lines joined and divided.
#include "engine/core/Engine.h"
#include "engine/core/Handlers.h"
#include "engine/text/Characters.h"

#include <algorithm>
#include <string>
#include <vector>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

long Ask(const Raw& raw, unsigned message, long wParam = 0, long lParam = 0)
{
    return static_cast<long>(raw.Send(message, static_cast<std::uintptr_t>(wParam), lParam));
}

// The stock engine keeps a target of its own, which goes stale.
LRESULT LinesJoin(Engine& engine, WPARAM, LPARAM)
{
    if (Ask(engine.raw, Sci::SCI_GETREADONLY)) // the target would shrink to before the text
        return 0;
    engine.LendTarget();
    engine.raw.Send(Sci::SCI_LINESJOIN);
    engine.TakeTarget();
    return 0;
}

// One line, and where it is to be divided for a width. A line breaks before a word, and in a word
// only where that is wider than a line; each line gets a character at least. Bytes and pixels.
class LineBreaks
{
public:
    LineBreaks(const Raw& raw, long start, long end, long width)
        : m_raw(raw), m_start(start), m_width(width), m_text(raw.Bytes(start, end)),
          m_tab(std::max(1L, Ask(raw, Sci::SCI_GETTABWIDTH)) * BlankWidth(raw))
    {}

    std::vector<long> Find()
    {
        for (std::size_t word = 0; word < m_text.size();) {
            const std::size_t behind = std::min(m_text.find_first_of(" \t", word), m_text.size());
            if (Measured(word, behind, m_x) > m_width)
                Break(word);
            if (Measured(word, behind, m_x) > m_width)
                BreakInside(word, behind);
            else
                m_x = Measured(word, behind, m_x);
            word = std::min(m_text.find_first_not_of(" \t", behind), m_text.size());
            m_x = Measured(behind, word, m_x);
        }
        return std::move(m_breaks);
    }

private:
    static long BlankWidth(const Raw& raw)
    {
        return std::max(1L,
                        static_cast<long>(raw.Send(Sci::SCI_TEXTWIDTH, Sci::STYLE_DEFAULT, " ")));
    }

    void Break(std::size_t at)
    {
        if (at == m_lineStart)
            return;
        m_breaks.push_back(m_start + static_cast<long>(at));
        m_lineStart = at;
        m_x = 0;
    }

    void BreakInside(std::size_t word, std::size_t behind)
    {
        while (word < behind) {
            const std::size_t next =
                std::min(word + static_cast<std::size_t>(WidthOf(m_text[word])), behind);
            if (Measured(word, next, m_x) > m_width)
                Break(word);
            m_x = Measured(word, next, m_x);
            word = next;
        }
    }

    int StyleAt(std::size_t at) const
    {
        return static_cast<int>(Ask(m_raw, Sci::SCI_GETSTYLEAT, m_start + static_cast<long>(at)) &
                                0xFF);
    }

    // Where text ends that begins at x.
    long Measured(std::size_t from, std::size_t to, long x) const
    {
        while (from < to) {
            if (m_text[from] == '\t') {
                x = (x / m_tab + 1) * m_tab;
                ++from;
                continue;
            }
            const int style = StyleAt(from);
            std::size_t end = from + 1;
            while (end < to && m_text[end] != '\t' && StyleAt(end) == style)
                ++end;
            std::string run = m_text.substr(from, end - from);
            std::replace(run.begin(), run.end(), '\0', ' ');
            x += static_cast<long>(
                m_raw.Send(Sci::SCI_TEXTWIDTH, static_cast<std::uintptr_t>(style), run.c_str()));
            from = end;
        }
        return x;
    }

    const Raw& m_raw;
    const long m_start;
    const long m_width;
    const std::string m_text;
    const long m_tab;
    std::vector<long> m_breaks;
    std::size_t m_lineStart = 0;
    long m_x = 0;
};

long WidthOfWindow(const Engine& engine)
{
    long width = engine.window.viewport()->width() - Ask(engine.raw, Sci::SCI_GETMARGINLEFT) -
                 Ask(engine.raw, Sci::SCI_GETMARGINRIGHT);
    for (long margin = Ask(engine.raw, Sci::SCI_GETMARGINS) - 1; margin >= 0; --margin)
        width -= Ask(engine.raw, Sci::SCI_GETMARGINWIDTHN, margin);
    return std::max(1L, width);
}

bool IsProtected(const Raw& raw, long start, long end)
{
    for (; start < end; ++start) {
        const long style = Ask(raw, Sci::SCI_GETSTYLEAT, start) & 0xFF;
        if (!Ask(raw, Sci::SCI_STYLEGETCHANGEABLE, style))
            return true;
    }
    return false;
}

// The stock message never ends where a character is wider than the line, divides characters, and
// lays out other text while it holds a line. A width below 1 is that of the window.
LRESULT LinesSplit(Engine& engine, WPARAM wParam, LPARAM)
{
    constexpr const char* kLineEnds[] = {"\r\n", "\r", "\n"};
    const Raw& raw = engine.raw;
    const long length = raw.Length();
    const long start = std::clamp(engine.target.start, 0L, length);
    const long end = std::clamp(engine.target.end, start, length);
    if (Ask(raw, Sci::SCI_GETREADONLY) || IsProtected(raw, start, end))
        return 0;
    const long asked = static_cast<int>(wParam);
    const long width = asked > 0 ? asked : WidthOfWindow(engine);
    const char* lineEnd =
        kLineEnds[std::clamp(Ask(raw, Sci::SCI_GETEOLMODE), 0L, long{Sci::SC_EOL_LF})];
    const long first = Ask(raw, Sci::SCI_LINEFROMPOSITION, start);
    raw.Send(Sci::SCI_BEGINUNDOACTION);
    for (long line = Ask(raw, Sci::SCI_LINEFROMPOSITION, end); line >= first; --line) {
        std::vector<long> breaks = LineBreaks(raw, Ask(raw, Sci::SCI_POSITIONFROMLINE, line),
                                              Ask(raw, Sci::SCI_GETLINEENDPOSITION, line), width)
                                       .Find();
        for (; !breaks.empty(); breaks.pop_back()) {
            const long at = breaks.back();
            raw.Send(Sci::SCI_SETTARGETRANGE, static_cast<std::uintptr_t>(at), at);
            raw.Send(Sci::SCI_REPLACETARGET, static_cast<std::uintptr_t>(-1), lineEnd);
        }
    }
    raw.Send(Sci::SCI_ENDUNDOACTION);
    return 0;
}

constexpr HandlerRow kRows[] = {
    {message::LinesJoin, LinesJoin},
    {message::LinesSplit, LinesSplit},
};

} // namespace

std::span<const HandlerRow> LineHandlers()
{
    return kRows;
}

} // namespace engine
