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

// What is looked at stays where it is in the window, whatever lines come and go above: the caret's
// line if it is in sight, else the one at the top.
class InSight
{
public:
    explicit InSight(Editor& editor) : m_editor(editor)
    {
        const int top = editor.GetFirstVisibleLine(1);
        const int caret = editor.GetCurLineNumber();
        const int row = editor.VisibleFromDocLine(caret, 1) - top;
        const bool isInSight = row >= 0 && row < editor.LinesOnScreen(1);
        m_line = isInSight ? caret : editor.DocLineFromVisible(top, 1);
        m_row = isInSight ? row : 0;
    }
    ~InSight()
    {
        int line = m_line;
        while (line > 0 && !m_editor.GetLineVisible(line, 1))
            line = m_editor.GetFoldParent(line, 1);
        const int top = std::max(0, m_editor.VisibleFromDocLine(std::max(line, 0), 1) - m_row);
        m_editor.LineScroll(0, top - m_editor.GetFirstVisibleLine(1), 1);
    }
    InSight(const InSight&) = delete;
    InSight& operator=(const InSight&) = delete;

private:
    Editor& m_editor;
    int m_line;
    int m_row;
};

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

void MatchingBracket(Editor& editor)
{
    constexpr long kFarthest = 20000; // units
    const long caret = editor.GetCurrentPos(1);
    if (const long before = editor.BraceMatch(caret, 1); before >= 0) {
        GoTo(editor, before);
        return;
    }
    if (const long behind = caret > 0 ? editor.BraceMatch(caret - 1, 1) : -1; behind >= 0) {
        GoTo(editor, behind + 1);
        return;
    }
    for (long at = caret - 1; at >= 0 && at > caret - kFarthest; --at) {
        const int c = editor.GetCharAt(at, 1);
        if ((c == '(' || c == '[' || c == '{') && editor.BraceMatch(at, 1) >= caret) {
            GoTo(editor, at);
            return;
        }
    }
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
    if (line != editor.GetCurLineNumber())
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
    const InSight inSight(editor);
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
