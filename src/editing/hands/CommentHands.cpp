// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/hands/EditedText.h"
#include "editing/hands/Operations.h"
#include "editing/operations/EditScopes.h"

#include <algorithm>
#include <limits>

namespace hands {
namespace {

bool IsBlank(Editor& editor, int line)
{
    return editor.GetLineIndentPosition(line, 1) == editor.GetLineEndPosition(line, 1);
}

QString FromIndent(Editor& editor, int line)
{
    return TextOf(editor, editor.GetLineIndentPosition(line, 1),
                  editor.GetLineEndPosition(line, 1));
}

// A marker may be one with a blank behind it alone.
void ToggleLines(Editor& editor, const LineRange& lines, const QString& ownMarker)
{
    const QString marker = ownMarker.trimmed();
    const QString withBlank = marker + u' ';
    bool areComments = true;
    bool haveBlanks = true;
    bool isEmpty = true;
    long indent = std::numeric_limits<long>::max(); // units
    for (int line = lines.first; line <= lines.last; ++line) {
        if (IsBlank(editor, line))
            continue;
        isEmpty = false;
        const QString text = FromIndent(editor, line);
        areComments = areComments && text.startsWith(marker);
        haveBlanks = haveBlanks && text.startsWith(withBlank);
        indent = std::min(indent,
                          editor.GetLineIndentPosition(line, 1) - editor.PositionFromLine(line, 1));
    }
    if (isEmpty)
        return;
    const BulkChange step(editor);
    for (int line = lines.first; line <= lines.last; ++line) {
        if (IsBlank(editor, line))
            continue;
        const long at = editor.GetLineIndentPosition(line, 1);
        if (areComments)
            Replace(editor, at, at + (haveBlanks ? withBlank : marker).size(), {});
        else
            Insert(editor, editor.PositionFromLine(line, 1) + indent, withBlank);
    }
}

// For a language that has nothing for single lines.
void ToggleBlock(Editor& editor, const LineRange& lines, const QString& open, const QString& close)
{
    const long start = editor.GetLineIndentPosition(lines.first, 1);
    const long end = editor.GetLineEndPosition(lines.last, 1);
    const QString text = TextOf(editor, start, end);
    const qsizetype marks = open.size() + close.size();
    const bool isComment = text.size() >= marks && text.startsWith(open) && text.endsWith(close) &&
                           text.indexOf(close) == text.size() - close.size();
    if (!isComment && (text.trimmed().isEmpty() || text.contains(close)))
        return;
    const UndoStep step(editor);
    if (isComment) {
        Replace(editor, end - close.size(), end, {});
        Replace(editor, start, start + open.size(), {});
    } else {
        Insert(editor, end, close);
        Insert(editor, start, open);
    }
}

} // namespace

LineRange SelectedLines(Editor& editor)
{
    const long end = editor.GetSelectionEnd(1);
    LineRange lines{editor.LineFromPosition(editor.GetSelectionStart(1), 1),
                    editor.LineFromPosition(end, 1)};
    if (lines.last > lines.first && end == editor.PositionFromLine(lines.last, 1))
        --lines.last;
    return lines;
}

void ToggleComment(Editor& editor)
{
    const LineRange lines = SelectedLines(editor);
    const QString marker = editor.GetSingleLineComment(0);
    const QString open = editor.GetBlockCommentStart(0);
    if (!marker.isEmpty())
        ToggleLines(editor, lines, marker);
    else if (!open.isEmpty())
        ToggleBlock(editor, lines, open, editor.GetBlockCommentEnd(0));
}

} // namespace hands
