// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/Analysis.h"
#include "control/PartitionInfo.h"
#include "editing/ZNCoreEditorControlEx.h"
#include "editing/hands/EditedText.h"
#include "editing/hands/Operations.h"
#include "editing/operations/EditScopes.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace hands {
namespace {

struct Span
{
    long start;
    long end;

    bool Holds(const Span& other) const { return start <= other.start && end >= other.end; }
    bool operator==(const Span&) const = default;
};

Span SelectionOf(Editor& editor)
{
    return {editor.GetSelectionStart(1), editor.GetSelectionEnd(1)};
}

// The brackets around a place, from the inside: what they hold, then with them. Those in strings
// and comments have no partner outside.
std::vector<Span> Brackets(Editor& editor, const Span& around)
{
    constexpr long kFarthest = 20000; // units
    constexpr int kMost = 20;
    std::vector<Span> spans;
    for (long at = around.start - 1;
         at >= 0 && at > around.start - kFarthest && spans.size() < kMost; --at) {
        const int c = editor.GetCharAt(at, 1);
        if (c != '(' && c != '[' && c != '{')
            continue;
        const long partner = editor.BraceMatch(at, 1);
        if (partner < around.end)
            continue;
        spans.push_back({at + 1, partner});
        spans.push_back({at, partner + 1});
    }
    return spans;
}

// From the inside, each around the selection.
std::vector<Span> Around(Editor& editor)
{
    const Span now = SelectionOf(editor);
    std::vector<Span> spans;
    spans.push_back(
        {editor.WordStartPosition(now.start, 1, 1), editor.WordEndPosition(now.end, 1, 1)});
    for (const Span& span : Brackets(editor, now))
        spans.push_back(span);
    const int first = editor.LineFromPosition(now.start, 1);
    const int last = editor.LineFromPosition(now.end, 1);
    const Span line{editor.GetLineIndentPosition(first, 1), editor.GetLineEndPosition(last, 1)};
    PartitionInfo statement;
    const bool isStatement = editor.PartitionGetAt(statement, static_cast<int>(now.start), 1) != 0;
    const Span whole{statement.nFirst, statement.nSecond};
    if (first == last && (!isStatement || whole.Holds(line)))
        spans.push_back(line);
    if (isStatement)
        spans.push_back(whole);
    long start = 0;
    long end = 0;
    if (editor.DoFindBatch(now.start, now.end, start, end, 1))
        spans.push_back({start, end});
    spans.push_back({0, editor.GetLength(1)});
    return spans;
}

// Each of several selections, and each line of columns; a caret alone stays as it is.
void SurroundBy(Editor& editor, const char16_t* open, const char16_t* close)
{
    std::vector<engine::SelectionEnds> all = SelectionsOf(editor);
    std::vector<engine::SelectionEnds*> inOrder;
    for (engine::SelectionEnds& each : all)
        inOrder.push_back(&each);
    std::ranges::sort(inOrder, {},
                      [](const auto* each) { return std::min(each->anchor, each->caret); });
    const UndoStep step(editor);
    int shift = 0;
    for (engine::SelectionEnds* each : inOrder) {
        const int start = std::min(each->anchor, each->caret);
        const int end = std::max(each->anchor, each->caret);
        if (start < end) {
            editor.InsertText(end + shift, close, 1);
            editor.InsertText(start + shift, open, 1);
            ++shift;
        }
        each->anchor += shift;
        each->caret += shift;
        shift += start < end ? 1 : 0;
    }
    Select(editor, all);
}

} // namespace

void SelectLines(Editor& editor)
{
    const Span now = SelectionOf(editor);
    const int first = editor.LineFromPosition(now.start, 1);
    const int last = editor.LineFromPosition(now.end, 1);
    editor.SetSel(editor.PositionFromLine(first, 1), editor.PositionFromLine(last + 1, 1), 1);
}

void GrowSelection(Editor& editor)
{
    const Span now = SelectionOf(editor);
    std::optional<Span> next;
    for (const Span& span : Around(editor)) {
        if (span.Holds(now) && !(span == now) && (!next || next->Holds(span)))
            next = span;
    }
    if (!next)
        return;
    editor.GrownSelections().push_back(
        {static_cast<int>(editor.GetAnchor(1)), static_cast<int>(editor.GetCurrentPos(1))});
    editor.SetSel(next->start, next->end, 1);
}

// Back over the selections that grew into this one, as long as they lie in it.
void ShrinkSelection(Editor& editor)
{
    auto& grown = editor.GrownSelections();
    const Span now = SelectionOf(editor);
    while (!grown.empty()) {
        const CharacterRange before = grown.back();
        grown.pop_back();
        const Span span{std::min(before.cpMin, before.cpMax), std::max(before.cpMin, before.cpMax)};
        if (now.Holds(span) && !(span == now)) {
            editor.SetSel(before.cpMin, before.cpMax, 1);
            return;
        }
    }
}

void SelectStatement(Editor& editor)
{
    PartitionInfo statement;
    if (editor.PartitionGetAt(statement, partitioner::AtCaret, 1))
        editor.SetSel(statement.nFirst, statement.nSecond, 1);
}

void SurroundByParentheses(Editor& editor)
{
    SurroundBy(editor, u"(", u")");
}

void SurroundByQuotes(Editor& editor)
{
    SurroundBy(editor, u"'", u"'");
}

void SurroundByDoubleQuotes(Editor& editor)
{
    SurroundBy(editor, u"\"", u"\"");
}

void SurroundByBrackets(Editor& editor)
{
    SurroundBy(editor, u"[", u"]");
}

void SurroundByBraces(Editor& editor)
{
    SurroundBy(editor, u"{", u"}");
}

} // namespace hands
