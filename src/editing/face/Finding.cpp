// SPDX-License-Identifier: GPL-3.0-or-later
// The face's searches, with settings of their own.
#include "control/EngineLooks.h"
#include "editing/face/Private.h"

#include <algorithm>
#include <optional>

using face::Units;

namespace {

using Range = ZNCoreEditorWidget::Range;
using FindFlags = ZNCoreEditorWidget::FindFlags;

int EngineFlags(FindFlags flags)
{
    constexpr int kWholeWord = 2;
    constexpr int kMatchCase = 4;
    constexpr int kRegExp = 0x200000 | 0x800000; // in the grammar that people know
    return (flags & ZNCoreEditorWidget::FindWholeWords ? kWholeWord : 0) |
           (flags & ZNCoreEditorWidget::FindCaseSensitively ? kMatchCase : 0) |
           (flags & ZNCoreEditorWidget::FindRegularExpression ? kRegExp : 0);
}

// The engine's target and flags for a search, and as they were behind it.
class Search
{
public:
    Search(CZNCoreEditorControlEx& control, const QString& text, FindFlags flags)
        : m_control(control), m_text(text), m_flags(control.GetSearchFlags(1)),
          m_start(control.GetTargetStart(1)), m_end(control.GetTargetEnd(1))
    {
        control.SetSearchFlags(EngineFlags(flags), 1);
    }
    ~Search()
    {
        m_control.SetSearchFlags(m_flags, 1);
        m_control.SetTarget(static_cast<int>(m_start), static_cast<int>(m_end));
    }
    Search(const Search&) = delete;
    Search& operator=(const Search&) = delete;

    // The first match between the two, backwards if they stand so.
    std::optional<Range> Between(long from, long to)
    {
        if (m_text.isEmpty() || !m_control.GetSafeHwnd())
            return std::nullopt;
        m_control.SetTargetStart(from, 1);
        m_control.SetTargetEnd(to, 1);
        const long found =
            m_control.SearchInTarget(static_cast<int>(m_text.size()), Units(m_text), 1);
        if (found < 0)
            return std::nullopt;
        return Range{static_cast<int>(found), static_cast<int>(m_control.GetTargetEnd(1) - found)};
    }

    // Where the search goes on behind a match: behind the next character if the match is empty.
    // Below 0 at the end of the text.
    long Behind(Range match)
    {
        const long end = long{match.position} + match.length;
        if (match.length > 0)
            return end;
        return end < m_control.GetLength(1) ? m_control.PositionAfter(end, 1) : -1;
    }

private:
    CZNCoreEditorControlEx& m_control;
    const QString m_text;
    int m_flags;
    long m_start;
    long m_end;
};

// Many changes that nobody needs to hear of one by one, in one step of undo.
class Bulk
{
public:
    explicit Bulk(CZNCoreEditorControlEx& control) : m_control(control)
    {
        control.SetDoingReplaceAll(true, 1);
        control.BeginUndoAction(1);
    }
    ~Bulk()
    {
        m_control.EndUndoAction(1);
        m_control.SetDoingReplaceAll(false, 1);
    }
    Bulk(const Bulk&) = delete;
    Bulk& operator=(const Bulk&) = delete;

private:
    CZNCoreEditorControlEx& m_control;
};

std::optional<Range> Next(Search& search, CZNCoreEditorControlEx& control, FindFlags flags)
{
    const long start = control.GetSelectionStart(1);
    const long end = control.GetSelectionEnd(1);
    const long length = control.GetLength(1);
    const bool isBackward = flags & ZNCoreEditorWidget::FindBackward;
    std::optional<Range> match =
        isBackward ? search.Between(start, 0) : search.Between(end, length);
    // An empty match where the caret stands is the one that was found the last time.
    if (match && match->length == 0 && start == end && match->position == start) {
        const long on = isBackward ? control.PositionBefore(start, 1) : search.Behind(*match);
        const bool isOver = isBackward ? start == 0 : on < 0;
        match = isOver ? std::nullopt : search.Between(on, isBackward ? 0 : length);
    }
    if (!match && flags & ZNCoreEditorWidget::FindWrapped)
        match = isBackward ? search.Between(length, start) : search.Between(0, end);
    return match;
}

} // namespace

bool ZNCoreEditorWidget::find(const QString& text, FindFlags flags)
{
    if (!d->IsInItsThread())
        return false;
    std::optional<Range> match;
    {
        Search search(*d->m_control, text, flags);
        match = Next(search, *d->m_control, flags);
    }
    if (match)
        setSelection(*match);
    return match.has_value();
}

int ZNCoreEditorWidget::replaceAll(const QString& text, const QString& replacement, FindFlags flags)
{
    if (isReadOnly())
        return 0;
    return d->Run([&](CZNCoreEditorControlEx& control) {
        Search search(control, text, flags);
        const Bulk bulk(control);
        const auto length = static_cast<int>(replacement.size());
        int count = 0;
        for (long from = 0; from >= 0;) {
            std::optional<Range> match = search.Between(from, control.GetLength(1));
            if (!match)
                break;
            const auto put = flags & FindRegularExpression
                                 ? control.ReplaceTargetRE(length, Units(replacement), 1)
                                 : control.ReplaceTargetNoProcess(length, Units(replacement), 1);
            // An empty match lies in front of the character behind it, which stays.
            const Range behind{match->position + static_cast<int>(put), match->length};
            from = match->length > 0 ? behind.position : search.Behind({behind.position, 0});
            ++count;
        }
        return count;
    });
}

QList<ZNCoreEditorWidget::Range> ZNCoreEditorWidget::findAll(const QString& text,
                                                             FindFlags flags) const
{
    QList<Range> all;
    if (!d->IsInItsThread())
        return all;
    Search search(*d->m_control, text, flags);
    for (long from = 0; from >= 0;) {
        const std::optional<Range> match = search.Between(from, d->m_control->GetLength(1));
        if (!match)
            break;
        all += *match;
        from = search.Behind(*match);
    }
    return all;
}

void ZNCoreEditorWidget::markMatches(const QString& text, FindFlags flags)
{
    const char16_t* units = text.isEmpty() ? nullptr : Units(text);
    d->Act([=](CZNCoreEditorControlEx& control) {
        control.Call(engine::kShowMatches, static_cast<WPARAM>(EngineFlags(flags)),
                     reinterpret_cast<LPARAM>(units), 1);
    });
}
