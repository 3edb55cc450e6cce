// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/looks/Highlights.h"

#include "engine/looks/IndicatorScope.h"

#include <algorithm>
#include <chrono>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr long kSlice = 2L << 20;         // bytes, some 2 ms
constexpr long kLongestScreen = 1L << 20; // bytes of a screen that are looked at
constexpr long kMostLines = 20000;        // more than any scroll bar can show
constexpr std::chrono::milliseconds kRest(300);

} // namespace

Highlights::Highlights(const Raw& raw, const StoredText& text, int indicator,
                       std::function<void()> changed, std::function<bool()> mayDraw)
    : m_raw(raw), m_searcher(text), m_indicator(indicator), m_changed(std::move(changed)),
      m_mayDraw(std::move(mayDraw))
{
    m_timer.setSingleShot(true);
    QObject::connect(&m_timer, &QTimer::timeout, [this] { SearchOn(); });
}

void Highlights::Show(std::string sought, int flags)
{
    if (sought == m_sought && flags == m_flags) {
        if (!IsShown())
            Erase(); // what another window of the text has drawn
        return;
    }
    m_sought = std::move(sought);
    m_flags = flags;
    Restart();
}

void Highlights::SetWithin(std::optional<search::Range> range)
{
    if (range == m_within)
        return;
    m_within = range;
    Restart();
}

void Highlights::Restart()
{
    m_timer.stop();
    Erase();
    const bool hadLines = !m_lines.empty();
    m_lines.clear();
    m_searched = -1;
    if (IsShown()) {
        FillVisible();
        m_timer.start(0);
    }
    if (hadLines)
        m_changed();
}

void Highlights::Refresh()
{
    if (IsShown())
        FillVisible();
}

void Highlights::SearchAnewSoon()
{
    if (!IsShown())
        return;
    m_searched = -1;
    m_timer.start(kRest);
}

// What goes in at an edge belongs to it: there a replacement stands for a match.
void Highlights::EditBegins(const TextEdit& edit)
{
    if (!m_within)
        return;
    const bool isAtEnd = edit.inserts && edit.position == m_within->end;
    m_within->start = edit.Moved(m_within->start);
    m_within->end = isAtEnd ? m_within->end + edit.bytes : edit.Moved(m_within->end);
}

search::Range Highlights::Searched() const
{
    const long length = m_raw.Length();
    if (!m_within)
        return {0, length};
    return {std::min(m_within->start, length), std::min(m_within->end, length)};
}

void Highlights::Erase()
{
    if (!MayDraw() || !IsDrawnAnywhere(m_raw, m_indicator))
        return;
    const IndicatorScope scope(m_raw, m_indicator);
    m_raw.Send(Sci::SCI_INDICATORCLEARRANGE, 0, m_raw.Length());
}

// Visits matches; each visit says from where to go on.
template <class Visit>
void Highlights::ForEach(long from, long to, Visit visit)
{
    while (from < to) {
        const std::optional<search::Range> match = m_searcher.Find(m_sought, m_flags, from, to);
        if (!match)
            return;
        from = match->end > match->start
                   ? visit(*match)
                   : static_cast<long>(m_raw.Send(Sci::SCI_POSITIONAFTER,
                                                  static_cast<std::uintptr_t>(match->end)));
        if (from <= match->start)
            return;
    }
}

void Highlights::FillVisible()
{
    if (!MayDraw())
        return;
    const auto first = m_raw.Send(Sci::SCI_GETFIRSTVISIBLELINE);
    const auto lines = m_raw.Send(Sci::SCI_LINESONSCREEN);
    const auto docLine = [this](std::intptr_t shown) {
        return static_cast<std::uintptr_t>(
            m_raw.Send(Sci::SCI_DOCLINEFROMVISIBLE, static_cast<std::uintptr_t>(shown)));
    };
    const auto from = static_cast<long>(m_raw.Send(Sci::SCI_POSITIONFROMLINE, docLine(first)));
    const auto end =
        static_cast<long>(m_raw.Send(Sci::SCI_GETLINEENDPOSITION, docLine(first + lines + 1)));
    const search::Range searched = Searched();
    const long to = std::min({end, from + kLongestScreen, searched.end});
    Erase();
    const IndicatorScope scope(m_raw, m_indicator);
    ForEach(std::max(from, searched.start), to, [this](search::Range match) {
        m_raw.Send(Sci::SCI_INDICATORFILLRANGE, static_cast<std::uintptr_t>(match.start),
                   match.end - match.start);
        return match.end;
    });
}

// A slice ends with a line, so that no match of one lies across its edge. Of a long text's lines
// those close behind one with a match are left out: they have no place of their own on the bar.
void Highlights::SearchOn()
{
    const search::Range searched = Searched();
    if (m_searched < 0) {
        m_lines.clear();
        FillVisible();
        m_searched = searched.start;
    }
    const auto lineAt = [this](long position) {
        return static_cast<long>(
            m_raw.Send(Sci::SCI_LINEFROMPOSITION, static_cast<std::uintptr_t>(position)));
    };
    const auto startOf = [this](long line) { // the last one's end behind it
        return static_cast<long>(
            m_raw.Send(Sci::SCI_POSITIONFROMLINE,
                       static_cast<std::uintptr_t>(std::min(line, m_raw.LineCount()))));
    };
    const long step = 1 + m_raw.LineCount() / kMostLines;
    const long to = std::min(
        searched.end,
        std::max(m_searched + 1, startOf(1 + lineAt(std::min(m_searched + kSlice, searched.end)))));
    long next = to;
    ForEach(m_searched, to, [&](search::Range match) {
        const long line = lineAt(match.start);
        m_lines.push_back(line);
        const long from = std::max(match.end, startOf(line + step));
        next = std::max(to, from);
        return from;
    });
    m_searched = next;
    if (m_searched < searched.end)
        m_timer.start(0);
    else
        m_changed();
}

} // namespace engine
