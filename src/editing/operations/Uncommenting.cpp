// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorControlEx: taking comment markers out.
#include "editing/ZNCoreEditorControlEx.h"

#include "editing/operations/EditScopes.h"
#include "editing/operations/LineEndText.h"
#include "editing/operations/TextWindow.h"
#include "editing/text/Comments.h"

#include <QChar>

#include <algorithm>

namespace {

constexpr std::u16string_view kMiddle = u"**";

std::u16string_view View(const QString& text)
{
    return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<std::size_t>(text.size())};
}

// The markers of a block comment. Both are looked for and removed with the length of the start
// marker: a longer end marker counts up to there, a shorter one is never found.
struct BlockMarkers
{
    BlockMarkers(const QString& startMarker, const QString& endMarker)
        : start(View(startMarker)), end(View(endMarker))
    {
        end.resize(start.size(), u'\0');
    }

    long Length() const { return static_cast<long>(start.size()); }

    std::u16string start;
    std::u16string end;
};

// Searches the target, which is left as it was where nothing is found.
long Search(CZNCoreEditorControl& control, std::u16string_view marker)
{
    return control.SearchInTarget(static_cast<int>(marker.size()), marker.data(), 1);
}

// The start marker, the last end marker, and a middle marker in what is left behind that.
comments::Found FindMarkers(CZNCoreEditorControl& control, int line, const BlockMarkers& markers)
{
    const auto from = static_cast<int>(control.GetLineIndentPosition(line, 1));
    const auto to = static_cast<int>(control.GetLineEndPosition(line, 1));
    comments::Found found;
    control.SetTarget(from, to);
    found.start = Search(control, markers.start);
    control.SetTarget(from, to);
    for (long at = Search(control, markers.end); at >= 0; at = Search(control, markers.end)) {
        found.end = at;
        control.SetTarget(static_cast<int>(at + markers.Length()), to);
    }
    found = comments::WithoutOverlap(found);
    found.middle = Search(control, kMiddle);
    return found;
}

void Remove(CZNCoreEditorControl& control, long position, long length)
{
    const long start = std::max(position, 0L);
    control.SetTarget(static_cast<int>(start), static_cast<int>(std::max(position + length, 0L)));
    control.ReplaceTargetNoProcess(0, u"", 1);
}

long RemoveSelected(CZNCoreEditorControl& control, long position, long length)
{
    if (position >= 0) {
        control.SetSel(position, position + length, 1);
        control.ReplaceSel(u"", 1);
    }
    return position;
}

// What is left selected goes from the start marker's place to the end marker's; the engine knows
// what -1 means in place of one that was not found.
void UnCommentLine(CZNCoreEditorControl& control, int line, const BlockMarkers& markers)
{
    const UndoStep step(control);
    const auto from = static_cast<int>(control.GetLineIndentPosition(line, 1));
    const auto to = static_cast<int>(control.GetLineEndPosition(line, 1));
    const long length = markers.Length();
    control.SetTarget(from, to);
    const long start = RemoveSelected(control, Search(control, markers.start), length);
    control.SetTarget(from + static_cast<int>(length), to);
    const long end = RemoveSelected(control, Search(control, markers.end), length);
    control.SetSel(start, end, 1);
}

// Gives how many units went. A line that is as long as a marker cut by one is taken for one, and
// the line of the caret is deleted in its place.
long UnCommentOneOfLines(CZNCoreEditorControl& control, int line, const BlockMarkers& markers,
                         long lineEndLength)
{
    const comments::Found found = FindMarkers(control, line, markers);
    if (!found.Any())
        return 0;
    const long length = markers.Length();
    if (control.LineLength(line, 1) == length + lineEndLength - 1) {
        control.LineDelete(1);
        return length;
    }
    if (found.start >= 0) {
        Remove(control, found.start, length);
        if (found.end < 0)
            return length;
        Remove(control, found.end - length, length); // moved by the removal before it
        return 2 * length;
    }
    const bool isEnd = found.end >= 0;
    const long removed = isEnd ? length : static_cast<long>(kMiddle.size());
    Remove(control, isEnd ? found.end : found.middle, removed);
    return removed;
}

} // namespace

bool CZNCoreEditorControlEx::UnCommentSelection(int index, bool useBlock)
{
    const Selection selection = CurrentSelection();
    if (selection.start == -1 || selection.end == -1 || index == -1)
        return false;
    if (!useBlock || IsLineCommented(index, selection.start, selection.end))
        return UnCommentLines(index, selection);
    return UnCommentBlock(index, selection);
}

// Whether the first characters of the selected text are the marker: two of them, or two more than
// the line's indentation is wide.
bool CZNCoreEditorControlEx::IsLineCommented(int index, long start, long end)
{
    const int line = LineFromPosition(start, 1);
    const long indent = GetLineIndentPosition(line, 1) - PositionFromLine(line, 1);
    TextWindow text(*this);
    while (start < end && QChar::isSpace(text[start]))
        ++start;
    const std::u16string head = TextBetween(start, std::min(start + indent + 2, end));
    const QString marker = GetSingleLineComment(index);
    return View(marker) == std::u16string_view(head).substr(0, 2) || View(marker) == head;
}

bool CZNCoreEditorControlEx::UnCommentBlock(int index, const Selection& selection)
{
    const QString start = GetBlockCommentStart(index);
    const QString end = GetBlockCommentEnd(index);
    if (start.isEmpty() || end.isEmpty())
        return false;
    const BlockMarkers markers(start, end);
    const PlainSearch plain(*this);
    const int firstLine = LineFromPosition(selection.start, 1);
    if (firstLine == LineFromPosition(selection.end, 1)) {
        UnCommentLine(*this, firstLine, markers);
        return true;
    }
    const std::u16string_view lineEnd = LineEndOf(GetEOLMode(1), kLfText);
    const auto [first, last] = SelectedLines();
    const BulkChange change(*this);
    long caret = selection.end;
    for (int line = first; line <= last; ++line) {
        if (LineLength(line, 1) == 2 && View(GetLineText(line)) == lineEnd)
            continue;
        caret -= UnCommentOneOfLines(*this, line, markers, static_cast<long>(lineEnd.size()));
    }
    GotoPos(std::max(caret, 0L), 1);
    return true;
}

// On the first line the marker is looked for from the selection's start on, behind blanks; on the
// others at the indentation.
bool CZNCoreEditorControlEx::UnCommentLines(int index, Selection selection)
{
    const QString marker = GetSingleLineComment(index);
    if (marker.isEmpty())
        return false;
    const auto [first, last] = SelectedLines();
    TextWindow text(*this);
    long start = selection.start;
    while (start < GetLineEndPosition(first, 1) && IsIndentChar(text[start]))
        ++start;
    const BulkChange change(*this);
    for (int line = first; line <= last; ++line) {
        const long at = line == first ? start : GetLineIndentPosition(line, 1);
        if (at == GetLineEndPosition(line, 1))
            continue;
        const long length = comments::MarkerToRemove(TextBetween(at, at + 3), View(marker));
        if (length == 0)
            continue;
        Remove(*this, at, length);
        selection.end -= length;
    }
    Select(selection);
    return true;
}
