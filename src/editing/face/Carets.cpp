// SPDX-License-Identifier: GPL-3.0-or-later
// The face's carets: several of them, and columns.
#include "editing/face/Private.h"

#include <algorithm>

using engine::SelectionEnds;

std::vector<SelectionEnds> ZNCoreEditorWidget::Private::Selections() const
{
    std::vector<SelectionEnds> ends(static_cast<std::size_t>(q.cursorCount()));
    m_control->Call(engine::kGetSelections, static_cast<WPARAM>(ends.size()),
                    reinterpret_cast<LPARAM>(ends.data()), 1);
    return ends;
}

// Folded lines that the main caret would be in open.
void ZNCoreEditorWidget::Private::SetSelections(const std::vector<SelectionEnds>& ends)
{
    if (!IsInItsThread() || ends.empty())
        return;
    m_control->Call(engine::kSetSelections, static_cast<WPARAM>(ends.size()),
                    reinterpret_cast<LPARAM>(ends.data()), 1);
    q.ensureCursorVisible();
}

int ZNCoreEditorWidget::cursorCount() const
{
    return std::max(1, static_cast<int>(d->m_control->Call(engine::kGetSelections, 0, 0, 1)));
}

QList<ZNCoreEditorWidget::Range> ZNCoreEditorWidget::selections() const
{
    QList<Range> ranges;
    for (const SelectionEnds& ends : d->Selections()) {
        const auto [start, end] = std::minmax(ends.anchor, ends.caret);
        ranges += Range{start, end - start};
    }
    std::ranges::sort(ranges, {}, &Range::position);
    return ranges;
}

void ZNCoreEditorWidget::setSelections(const QList<Range>& selections)
{
    CZNCoreEditorControlEx& control = *d->m_control;
    std::vector<SelectionEnds> all;
    for (const Range& range : selections) {
        const long end = long{range.position} + std::max(range.length, 0);
        all.push_back({static_cast<int>(face::Clamped(control, range.position)),
                       static_cast<int>(face::Clamped(control, end))});
    }
    d->SetSelections(all);
}

void ZNCoreEditorWidget::addCursor(int position)
{
    const auto place = static_cast<int>(face::Clamped(*d->m_control, position));
    std::vector<SelectionEnds> all = d->Selections();
    all.push_back({place, place});
    d->SetSelections(all);
}

void ZNCoreEditorWidget::addCursor(int line, int column)
{
    addCursor(positionAt(line, column));
}

void ZNCoreEditorWidget::dropOtherCursors()
{
    d->SetSelections({d->Selections().back()});
}

bool ZNCoreEditorWidget::hasColumnSelection() const
{
    return d->m_control->SelectionIsRectangle(1) != 0;
}

void ZNCoreEditorWidget::setColumnSelection(int line, int column, int caretLine, int caretColumn)
{
    if (!d->IsInItsThread())
        return;
    const auto blanksAt = [this](int at, int places) {
        return std::max(places - columnAt(positionAt(at, places)), 0);
    };
    const engine::ColumnCorners corners = {
        {positionAt(line, column), positionAt(caretLine, caretColumn)},
        blanksAt(line, column),
        blanksAt(caretLine, caretColumn)};
    d->m_control->EnsureRangeVisible(std::min(corners.ends.anchor, corners.ends.caret),
                                     std::max(corners.ends.anchor, corners.ends.caret));
    d->m_control->Call(engine::kSetColumns, 0, reinterpret_cast<LPARAM>(&corners), 1);
    d->m_control->ScrollCaret(1);
}
