// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/window/Carets.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr int kMargins = 5;

} // namespace

Carets::Carets(const Raw& raw) : m_raw(raw)
{
    m_raw.Send(Sci::SCI_SETMULTIPLESELECTION, 1);
    m_raw.Send(Sci::SCI_SETADDITIONALSELECTIONTYPING, 1);
    m_raw.Send(Sci::SCI_SETMULTIPASTE, Sci::SC_MULTIPASTE_EACH);
    m_raw.Send(Sci::SCI_SETVIRTUALSPACEOPTIONS, Sci::SCVS_RECTANGULARSELECTION);
}

bool Carets::IsInText(QPoint point) const
{
    long left = 0;
    for (std::uintptr_t margin = 0; margin < kMargins; ++margin)
        left += static_cast<long>(m_raw.Send(Sci::SCI_GETMARGINWIDTHN, margin));
    return point.x() >= left;
}

long Carets::PositionAt(QPoint point) const
{
    const int x = std::max(point.x(), 0);
    return static_cast<long>(m_raw.Send(Sci::SCI_CHARPOSITIONFROMPOINT,
                                        static_cast<std::uintptr_t>(x), long{point.y()}));
}

bool Carets::Add(QPoint point)
{
    if (!IsInText(point))
        return false;
    const long position = PositionAt(point);
    DissolveColumn();
    if (!Remove(position))
        m_raw.Send(Sci::SCI_ADDSELECTION, static_cast<std::uintptr_t>(position), position);
    return true;
}

// A column is made anew at each character, of its own lines alone.
void Carets::DissolveColumn()
{
    if (!Columns(m_raw).AreSelected())
        return;
    std::vector<std::pair<std::intptr_t, std::intptr_t>> ranges; // caret and anchor
    constexpr std::uintptr_t kMost = 10 * 1000; // each is compared with all before it
    const auto count = static_cast<std::uintptr_t>(m_raw.Send(Sci::SCI_GETSELECTIONS));
    if (count > kMost)
        return;
    for (std::uintptr_t i = 0; i < count; ++i)
        ranges.emplace_back(m_raw.Send(Sci::SCI_GETSELECTIONNCARET, i),
                            m_raw.Send(Sci::SCI_GETSELECTIONNANCHOR, i));
    const auto caretOf = [&](std::size_t i) {
        return static_cast<std::uintptr_t>(ranges[i].first);
    };
    m_raw.Send(Sci::SCI_SETEMPTYSELECTION, caretOf(0));
    m_raw.Send(Sci::SCI_SETSELECTION, caretOf(0), ranges[0].second);
    for (std::size_t i = 1; i < ranges.size(); ++i)
        m_raw.Send(Sci::SCI_ADDSELECTION, caretOf(i), ranges[i].second);
}

// One is left.
bool Carets::Remove(long position)
{
    const auto count = static_cast<std::uintptr_t>(m_raw.Send(Sci::SCI_GETSELECTIONS));
    for (std::uintptr_t i = 0; i < count && count > 1; ++i) {
        if (m_raw.Send(Sci::SCI_GETSELECTIONNCARET, i) == position &&
            m_raw.Send(Sci::SCI_GETSELECTIONNANCHOR, i) == position) {
            m_raw.Send(Sci::SCI_DROPSELECTIONN, i);
            return true;
        }
    }
    return false;
}

void Carets::Place(QPoint point)
{
    m_raw.Send(Sci::SCI_SETEMPTYSELECTION, static_cast<std::uintptr_t>(PositionAt(point)));
}

void Carets::PlaceForMenu(QPoint point)
{
    if (!IsInText(point))
        return;
    const std::intptr_t position = PositionAt(point);
    const auto count = static_cast<std::uintptr_t>(m_raw.Send(Sci::SCI_GETSELECTIONS));
    for (std::uintptr_t i = 0; i < count; ++i) {
        if (position >= m_raw.Send(Sci::SCI_GETSELECTIONNSTART, i) &&
            position <= m_raw.Send(Sci::SCI_GETSELECTIONNEND, i))
            return;
    }
    Place(point);
}

void Carets::Extend(QPoint point)
{
    const auto main = static_cast<std::uintptr_t>(m_raw.Send(Sci::SCI_GETMAINSELECTION));
    m_raw.Send(Sci::SCI_SETSELECTIONNCARET, main, PositionAt(point));
}

void Carets::Drop()
{
    if (m_raw.Send(Sci::SCI_GETSELECTIONS) > 1)
        m_raw.Send(Sci::SCI_SETEMPTYSELECTION,
                   static_cast<std::uintptr_t>(m_raw.Send(Sci::SCI_GETCURRENTPOS)));
}

} // namespace engine
