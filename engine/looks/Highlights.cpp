// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/looks/Highlights.h"

#include "engine/looks/IndicatorScope.h"

#include <chrono>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr long kSlice = 2L << 20;         // bytes, some 2 ms
constexpr long kLongestScreen = 1L << 20; // bytes of a screen that are looked at
constexpr std::size_t kMostLines = 20000; // more than any scroll bar can show
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
    m_timer.stop();
    Erase();
    const bool hadLines = !m_lines.empty();
    m_lines.clear();
    m_searched = 0;
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
    m_searched = 0;
    m_timer.start(kRest);
}

void Highlights::Erase()
{
    if (!MayDraw() || !IsDrawnAnywhere(m_raw, m_indicator))
        return;
    const IndicatorScope scope(m_raw, m_indicator);
    m_raw.Send(Sci::SCI_INDICATORCLEARRANGE, 0, m_raw.Length());
}

// Visits matches until one says to stop; the place where the search has come to.
template <class Visit>
long Highlights::ForEach(long from, long to, Visit visit)
{
    while (from < to) {
        const std::optional<search::Range> match = m_searcher.Find(m_sought, m_flags, from, to);
        if (!match)
            return to;
        if (match->end > match->start && !visit(*match))
            return match->end;
        from = match->end > match->start
                   ? match->end
                   : static_cast<long>(m_raw.Send(Sci::SCI_POSITIONAFTER,
                                                  static_cast<std::uintptr_t>(match->end)));
        if (from <= match->start)
            return to;
    }
    return to;
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
    const long to = std::min(end, from + kLongestScreen);
    Erase();
    const IndicatorScope scope(m_raw, m_indicator);
    ForEach(from, to, [this](search::Range match) {
        m_raw.Send(Sci::SCI_INDICATORFILLRANGE, static_cast<std::uintptr_t>(match.start),
                   match.end - match.start);
        return true;
    });
}

// A slice ends with a line, so that no match of one lies across its edge.
void Highlights::SearchOn()
{
    const long length = m_raw.Length();
    if (m_searched == 0) {
        m_lines.clear();
        FillVisible();
    }
    const auto lineAt = [this](long position) {
        return static_cast<long>(
            m_raw.Send(Sci::SCI_LINEFROMPOSITION, static_cast<std::uintptr_t>(position)));
    };
    const long last = lineAt(std::min(m_searched + kSlice, length));
    const auto to = std::max(m_searched + 1,
                             static_cast<long>(m_raw.Send(Sci::SCI_POSITIONFROMLINE,
                                                          static_cast<std::uintptr_t>(last) + 1)));
    m_searched = ForEach(m_searched, std::min(to, length), [&](search::Range match) {
        const long line = lineAt(match.start);
        if (m_lines.empty() || m_lines.back() != line)
            m_lines.push_back(line);
        return m_lines.size() < kMostLines;
    });
    if (m_searched < length && m_lines.size() < kMostLines)
        m_timer.start(0);
    else
        m_changed();
}

} // namespace engine
