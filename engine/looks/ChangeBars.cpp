// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/looks/ChangeBars.h"

#include "control/EngineLooks.h"

#include <utility>

namespace engine {
namespace {

using Sci = QsciScintillaBase;

constexpr std::size_t kMostEdits = 4 * 1000 * 1000; // 64 MB of a text's history

constexpr int kMarkers[] = {lookmarker::kLineChanged, lookmarker::kLineSaved};
constexpr std::uint8_t kChanged = 1;

long LineAt(const Raw& raw, long position)
{
    return static_cast<long>(
        raw.Send(Sci::SCI_LINEFROMPOSITION, static_cast<std::uintptr_t>(position)));
}

std::uint8_t MarksOf(const Raw& raw, long line)
{
    const auto markers =
        static_cast<unsigned>(raw.Send(Sci::SCI_MARKERGET, static_cast<std::uintptr_t>(line)));
    return static_cast<std::uint8_t>((markers >> unsigned{lookmarker::kLineChanged} & 1U) |
                                     (markers >> unsigned{lookmarker::kLineSaved} & 1U) << 1U);
}

// Lines that have been joined have the marks of each.
void SetMarks(const Raw& raw, long line, std::uint8_t marks)
{
    const auto at = static_cast<std::uintptr_t>(line);
    for (std::uint8_t has = MarksOf(raw, line); has != marks; has = MarksOf(raw, line)) {
        for (unsigned i = 0; i < std::size(kMarkers); ++i) {
            const unsigned bit = 1U << i;
            if ((has & bit) != (marks & bit))
                raw.Send(marks & bit ? Sci::SCI_MARKERADD : Sci::SCI_MARKERDELETE, at,
                         long{kMarkers[i]});
        }
    }
}

} // namespace

void ChangeBars::Stack::Push(long position, std::uint32_t saves, Marks lines)
{
    if (m_edits.size() == kMostEdits)
        Clear();
    const bool hasMore = lines.size() > 1;
    m_edits.push_back({position, saves, lines.front(), hasMore});
    if (hasMore)
        m_lines.insert_or_assign(m_edits.size(), std::move(lines));
}

std::optional<ChangeBars::Marks> ChangeBars::Stack::Pop(long position, std::uint32_t saves)
{
    if (m_edits.empty())
        return std::nullopt;
    const Edit edit = m_edits.back();
    Marks lines(1, edit.first);
    if (edit.hasMore)
        lines = std::move(m_lines.extract(m_edits.size()).mapped());
    m_edits.pop_back();
    if (edit.position != position)
        return std::nullopt;
    // The file is another one since.
    if (edit.saves != saves) {
        for (std::uint8_t& line : lines)
            line |= kChanged;
    }
    return lines;
}

void ChangeBars::Stack::Clear()
{
    m_edits = {};
    m_lines.clear();
}

void ChangeBars::Forget()
{
    m_done.Clear();
    m_undone.Clear();
    m_before.reset();
}

void ChangeBars::EditBegins(const Raw& raw, const TextEdit& edit)
{
    const long first = LineAt(raw, edit.position);
    const long last = edit.inserts ? first : LineAt(raw, edit.position + edit.bytes);
    Marks lines(static_cast<std::size_t>(last - first) + 1);
    for (std::size_t i = 0; i < lines.size(); ++i)
        lines[i] = MarksOf(raw, first + static_cast<long>(i));
    const bool isUndo = edit.origin == EditOrigin::Undo;
    m_before.reset();
    if (edit.origin == EditOrigin::Person)
        m_undone.Clear();
    else
        m_before = (isUndo ? m_done : m_undone).Pop(edit.position, m_saves);
    (isUndo ? m_undone : m_done).Push(edit.position, m_saves, std::move(lines));
}

void ChangeBars::EditEnds(const Raw& raw, long position, long end)
{
    const auto before = std::exchange(m_before, std::nullopt);
    const bool isMarked = m_series == s_series && position == m_marked && end == position;
    if (isMarked && !before)
        return;
    m_marked = position;
    m_series = s_series;
    const long first = LineAt(raw, position);
    long last = end > position ? LineAt(raw, end) : first;
    if (before && before->size() == static_cast<std::size_t>(last - first) + 1) {
        for (std::size_t i = 0; i < before->size(); ++i)
            SetMarks(raw, first + static_cast<long>(i), (*before)[i]);
        MarksMayGo();
        return;
    }
    // Whole lines put in front of one leave that as it was.
    const auto isStart = [&raw](long line, long place) {
        return raw.Send(Sci::SCI_POSITIONFROMLINE, static_cast<std::uintptr_t>(line)) == place;
    };
    if (last > first && isStart(first, position) && isStart(last, end))
        --last;
    for (long line = first; line <= last; ++line) {
        const std::uint8_t marks = MarksOf(raw, line);
        if (!(marks & kChanged))
            SetMarks(raw, line, marks | kChanged);
    }
}

} // namespace engine
