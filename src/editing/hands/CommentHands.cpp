// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/hands/EditedText.h"
#include "editing/hands/LineBlocks.h"
#include "editing/hands/Operations.h"
#include "editing/operations/EditScopes.h"

#include <algorithm>
#include <limits>
#include <vector>

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

struct Looks
{
    bool areComments = true;
    bool haveBlanks = true; // behind their markers
    bool areEmpty = true;
};

void LookAt(Editor& editor, const LineBlock& block, const QString& marker, Looks& looks)
{
    for (int line = block.first; line <= block.last; ++line) {
        if (IsBlank(editor, line))
            continue;
        const QString text = FromIndent(editor, line);
        looks.areEmpty = false;
        looks.areComments = looks.areComments && text.startsWith(marker);
        looks.haveBlanks = looks.haveBlanks && text.startsWith(marker + u' ');
    }
}

void Uncomment(Editor& editor, const LineBlock& block, qsizetype units)
{
    for (int line = block.first; line <= block.last; ++line) {
        const long at = editor.GetLineIndentPosition(line, 1);
        if (!IsBlank(editor, line))
            Replace(editor, at, at + units, {});
    }
}

// At the indentation that the lines have in common.
void Comment(Editor& editor, const LineBlock& block, const QString& marker)
{
    long indent = std::numeric_limits<long>::max(); // units
    for (int line = block.first; line <= block.last; ++line) {
        if (!IsBlank(editor, line))
            indent = std::min(indent, editor.GetLineIndentPosition(line, 1) -
                                          editor.PositionFromLine(line, 1));
    }
    for (int line = block.first; line <= block.last; ++line) {
        if (!IsBlank(editor, line))
            Insert(editor, editor.PositionFromLine(line, 1) + indent, marker);
    }
}

// A marker may be one with a blank behind it alone.
void ToggleLines(Editor& editor, const std::vector<LineBlock>& blocks, const QString& ownMarker)
{
    const QString marker = ownMarker.trimmed();
    Looks looks;
    for (const LineBlock& block : blocks)
        LookAt(editor, block, marker, looks);
    if (looks.areEmpty)
        return;
    const BulkChange step(editor);
    for (const LineBlock& block : blocks) {
        if (looks.areComments)
            Uncomment(editor, block, marker.size() + (looks.haveBlanks ? 1 : 0));
        else
            Comment(editor, block, marker + u' ');
    }
}

// For a language that has nothing for single lines.
void ToggleBlock(Editor& editor, const LineBlock& lines, const QString& open, const QString& close)
{
    const long start = editor.GetLineIndentPosition(lines.first, 1);
    const long end = editor.GetLineEndPosition(lines.last, 1);
    const QString text = TextOf(editor, start, end);
    const qsizetype marks = open.size() + close.size();
    const bool isComment = text.size() >= marks && text.startsWith(open) && text.endsWith(close) &&
                           text.indexOf(close) == text.size() - close.size();
    if (!isComment && (text.trimmed().isEmpty() || text.contains(close)))
        return;
    if (isComment) {
        Replace(editor, end - close.size(), end, {});
        Replace(editor, start, start + open.size(), {});
    } else {
        Insert(editor, end, close);
        Insert(editor, start, open);
    }
}

} // namespace

void ToggleComment(Editor& editor)
{
    const LineBlocks lines(editor);
    const QString marker = editor.GetSingleLineComment(0);
    const QString open = editor.GetBlockCommentStart(0);
    if (!marker.isEmpty()) {
        ToggleLines(editor, lines.All(), marker);
    } else if (!open.isEmpty()) {
        const UndoStep step(editor);
        for (const LineBlock& block : lines.All())
            ToggleBlock(editor, block, open, editor.GetBlockCommentEnd(0));
    }
}

} // namespace hands
