// SPDX-License-Identifier: GPL-3.0-or-later
// The face's problems, statements, batches and bookmarks.
#include "control/Analysis.h"
#include "control/ErrorInfo.h"
#include "control/PartitionInfo.h"
#include "editing/face/Private.h"

#include <algorithm>

namespace {

using Editor = CZNCoreEditorControlEx;
using Range = ZNCoreEditorWidget::Range;

// Whose problems these are in the list of the text.
constexpr int kOwner = 0x5A4E;
constexpr int kBookmark = 1; // the mask of marker 0

void SelectProblem(ZNCoreEditorWidget& widget, const ZNCoreEditorWidget::Problem& problem)
{
    widget.setSelection({problem.position, problem.length});
}

Range BatchAt(Editor& editor, long position)
{
    long start = 0;
    long end = 0;
    if (editor.GetBatchSeparator(1).empty() ||
        !editor.DoFindBatch(position, position, start, end, 1))
        return {0, static_cast<int>(editor.GetLength(1))};
    return {static_cast<int>(start), static_cast<int>(end - start)};
}

} // namespace

void ZNCoreEditorWidget::setProblems(const QList<Problem>& problems)
{
    d->Run([&](Editor& control) {
        control.ErrorDeleteAll(kOwner, problem::kAny, 1);
        control.DefineErrorIndicators();
        for (const Problem& each : problems) {
            ErrorInfo record;
            record.nStart = std::max(each.position, 0);
            record.nEnd = record.nStart + std::max(each.length, 0);
            record.nLine = lineAt(each.position);
            record.nSeverity = static_cast<int>(each.severity);
            record.nCode = each.code;
            record.SetText(face::Units(each.message));
            control.ErrorAdd(kOwner, &record, 1);
        }
        control.ErrorsShow(1);
        d->m_problemsChanged = true;
        return 0;
    });
}

// They would be heaped at the end of the text that comes.
void ZNCoreEditorWidget::Private::ForgetProblems()
{
    if (q.problems().isEmpty())
        return;
    m_control->ErrorDeleteAll(kOwner, problem::kAny, 1);
    m_control->ErrorsShow(1);
    m_problemsChanged = true;
}

QList<ZNCoreEditorWidget::Problem> ZNCoreEditorWidget::problems() const
{
    QList<Problem> all;
    const ErrorMap* lines = d->m_control->ErrorsGetAll(kOwner, problem::kAny, 1);
    if (!lines)
        return all;
    for (const auto& [line, records] : *lines) {
        for (const std::shared_ptr<ErrorInfo>& record : records)
            all +=
                {static_cast<int>(record->nStart), static_cast<int>(record->nEnd - record->nStart),
                 QString(reinterpret_cast<const QChar*>(record->pszText)),
                 static_cast<Severity>(record->nSeverity), record->nCode};
    }
    return all;
}

bool ZNCoreEditorWidget::goToNextProblem()
{
    if (!d->IsInItsThread())
        return false;
    const QList<Problem> all = problems();
    if (all.isEmpty())
        return false;
    const int from = selection().position;
    const auto next =
        std::ranges::find_if(all, [=](const Problem& each) { return each.position > from; });
    SelectProblem(*this, next != all.end() ? *next : all.first());
    return true;
}

bool ZNCoreEditorWidget::goToPreviousProblem()
{
    if (!d->IsInItsThread())
        return false;
    const QList<Problem> all = problems();
    if (all.isEmpty())
        return false;
    const int from = selection().position;
    const auto previous = std::find_if(all.rbegin(), all.rend(),
                                       [=](const Problem& each) { return each.position < from; });
    SelectProblem(*this, previous != all.rend() ? *previous : all.last());
    return true;
}

ZNCoreEditorWidget::Range ZNCoreEditorWidget::statementAtCursor() const
{
    PartitionInfo statement;
    if (!d->m_control->PartitionGetAt(statement, partitioner::AtCaret, 1))
        return {cursorPosition(), 0};
    return {statement.nFirst, statement.nSecond - statement.nFirst};
}

// The line of the separator stands between two batches.
QList<ZNCoreEditorWidget::Range> ZNCoreEditorWidget::batches() const
{
    QList<Range> all;
    const int last = length();
    for (int from = 0; from <= last;) {
        const Range batch = BatchAt(*d->m_control, from);
        const int end = batch.position + batch.length;
        if (all.isEmpty() || batch.position > all.last().position)
            all += batch;
        const int separator = lineAt(end);
        if (end >= last || separator + 1 >= lineCount())
            break;
        from = positionAt(separator + 1, 0);
    }
    return all;
}

ZNCoreEditorWidget::Range ZNCoreEditorWidget::batchAtCursor() const
{
    return BatchAt(*d->m_control, cursorPosition());
}

QList<int> ZNCoreEditorWidget::bookmarks() const
{
    QList<int> lines;
    if (!d->m_control->GetSafeHwnd()) // which would find one in each line of no text
        return lines;
    for (auto line = d->m_control->MarkerNext(0, kBookmark, 1); line >= 0;
         line = d->m_control->MarkerNext(line + 1, kBookmark, 1))
        lines += static_cast<int>(line);
    return lines;
}

bool ZNCoreEditorWidget::hasBookmark(int line) const
{
    return line >= 0 && line < lineCount() && (d->m_control->MarkerGet(line, 1) & kBookmark) != 0;
}

void ZNCoreEditorWidget::setBookmark(int line, bool set)
{
    if (!d->IsInItsThread())
        return;
    if (line < 0 || line >= lineCount() || hasBookmark(line) == set)
        return;
    d->m_control->ToggleBookmark(line);
    Q_EMIT bookmarksChanged();
}

bool ZNCoreEditorWidget::goToNextBookmark()
{
    if (!d->IsInItsThread())
        return false;
    const QList<int> lines = bookmarks();
    if (lines.isEmpty())
        return false;
    const auto next = std::ranges::upper_bound(lines, cursorLine());
    setCursorPosition(next != lines.end() ? *next : lines.first(), 0);
    return true;
}

bool ZNCoreEditorWidget::goToPreviousBookmark()
{
    if (!d->IsInItsThread())
        return false;
    const QList<int> lines = bookmarks();
    if (lines.isEmpty())
        return false;
    const auto here = std::ranges::lower_bound(lines, cursorLine());
    setCursorPosition(here != lines.begin() ? *(here - 1) : lines.last(), 0);
    return true;
}

void ZNCoreEditorWidget::clearBookmarks()
{
    if (!d->IsInItsThread())
        return;
    if (bookmarks().isEmpty())
        return;
    for (const int line : bookmarks())
        d->m_control->ToggleBookmark(line);
    Q_EMIT bookmarksChanged();
}
