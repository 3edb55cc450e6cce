// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/PartitionInfo.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/hands/Operations.h"

#include <algorithm>
#include <vector>

namespace hands {
namespace {

constexpr int kHeader = 0x2000;
constexpr int kNumber = 0xFFF;
constexpr int kBase = 0x400;
constexpr int kStretch = 65536; // units that are asked about at a time

void GoTo(Editor& editor, long position)
{
    editor.EnsureVisibleEnforcePolicy(editor.LineFromPosition(position, 1), 1);
    editor.GotoPos(position, 1);
}

std::vector<PartitionInfo> StatementsIn(Editor& editor, long from, long to)
{
    std::vector<PartitionInfo> statements;
    editor.PartitionGetAll(statements, static_cast<int>(from), static_cast<int>(to), 1);
    return statements;
}

} // namespace

void NextStatement(Editor& editor)
{
    const long caret = editor.GetCurrentPos(1);
    const long length = editor.GetLength(1);
    for (long from = caret; from < length; from += kStretch) {
        for (const PartitionInfo& each :
             StatementsIn(editor, from, std::min(from + kStretch, length))) {
            if (each.nFirst > caret) {
                GoTo(editor, each.nFirst);
                return;
            }
        }
    }
}

void PreviousStatement(Editor& editor)
{
    const long caret = editor.GetCurrentPos(1);
    for (long to = caret; to > 0; to -= kStretch) {
        const std::vector<PartitionInfo> statements =
            StatementsIn(editor, std::max(to - kStretch, 0L), to);
        const auto before =
            std::find_if(statements.rbegin(), statements.rend(),
                         [caret](const PartitionInfo& each) { return each.nFirst < caret; });
        if (before != statements.rend()) {
            GoTo(editor, before->nFirst);
            return;
        }
    }
}

// The line of the separator stands between two batches.
void NextBatch(Editor& editor)
{
    long start = 0;
    long end = 0;
    const long caret = editor.GetCurrentPos(1);
    if (!editor.DoFindBatch(caret, caret, start, end, 1))
        return;
    const int separator = editor.LineFromPosition(end, 1);
    if (end < editor.GetLength(1) && separator + 1 < editor.GetLineCount(1))
        GoTo(editor, editor.PositionFromLine(separator + 1, 1));
}

void PreviousBatch(Editor& editor)
{
    long start = 0;
    long end = 0;
    const long caret = editor.GetCurrentPos(1);
    if (!editor.DoFindBatch(caret, caret, start, end, 1))
        return;
    if (caret == start && start > 0 && !editor.DoFindBatch(start - 1, start - 1, start, end, 1))
        return;
    GoTo(editor, start);
}

void FoldHere(Editor& editor)
{
    int line = editor.LineFromPosition(editor.GetCurrentPos(1), 1);
    editor.Colorize(0, -1, 1);
    while (line >= 0 &&
           !(editor.GetFoldLevel(line, 1) & kHeader && editor.GetFoldExpanded(line, 1)))
        line = editor.GetFoldParent(line, 1);
    if (line < 0)
        return;
    editor.ToggleFold(line, 1);
    editor.GotoLine(line, 1);
}

void UnfoldHere(Editor& editor)
{
    const int line = editor.LineFromPosition(editor.GetCurrentPos(1), 1);
    if (editor.GetFoldLevel(line, 1) & kHeader && !editor.GetFoldExpanded(line, 1))
        editor.ToggleFold(line, 1);
}

void FoldFromDepth(Editor& editor, int depth)
{
    editor.Colorize(0, -1, 1);
    const int count = editor.GetLineCount(1);
    editor.ShowLines(0, count - 1, 1);
    for (int line = 0; line < count; ++line) {
        const int level = editor.GetFoldLevel(line, 1);
        if (!(level & kHeader))
            continue;
        const bool isOpen = (level & kNumber) - kBase < depth;
        editor.SetFoldExpanded(line, isOpen, 1);
        const int last = isOpen ? line : editor.GetLastChild(line, -1, 1);
        if (last > line)
            editor.HideLines(line + 1, last, 1);
    }
    int line = editor.GetCurLineNumber();
    while (line > 0 && !editor.GetLineVisible(line, 1))
        line = editor.GetFoldParent(line, 1);
    if (line >= 0 && line != editor.GetCurLineNumber())
        editor.GotoLine(line, 1);
}

void FoldEverything(Editor& editor)
{
    FoldFromDepth(editor, 0);
}

void UnfoldEverything(Editor& editor)
{
    FoldFromDepth(editor, kNumber);
}

} // namespace hands
