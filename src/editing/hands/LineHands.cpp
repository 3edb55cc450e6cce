// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/hands/EditedText.h"
#include "editing/hands/LineBlocks.h"
#include "editing/hands/Operations.h"
#include "editing/operations/EditScopes.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QRegularExpression>

#include <algorithm>
#include <set>
#include <vector>

namespace hands {
namespace {

using engine::SelectionEnds;

// That lines are typed with.
QString LineEndOf(Editor& editor)
{
    const int mode = editor.GetEOLMode(1);
    return mode == 2   ? QStringLiteral("\r")
           : mode == 3 ? QStringLiteral("\n")
                       : QStringLiteral("\r\n");
}

bool IsLastLine(Editor& editor, int line)
{
    return line >= editor.GetLineCount(1) - 1;
}

// Takes a line to the other side of the block beside it, with the line end that stands between
// them: so the block keeps its marks, and a last line without an end leaves none behind. The units
// that the block has moved by.
long CarryOver(Editor& editor, int line, const LineBlock& block)
{
    const bool isAbove = line < block.first;
    const long start = editor.PositionFromLine(line, 1);
    const long end = editor.GetLineEndPosition(line, 1);
    const QString text = TextOf(editor, start, end);
    if (isAbove) {
        const long next = editor.PositionFromLine(block.first, 1);
        const QString lineEnd = TextOf(editor, end, next);
        Insert(editor, editor.GetLineEndPosition(block.last, 1), lineEnd + text);
        Replace(editor, start, next, {});
        return start - next;
    }
    const long before = editor.GetLineEndPosition(block.last, 1);
    const QString lineEnd = TextOf(editor, before, start);
    Replace(editor, before, end, {});
    Insert(editor, editor.PositionFromLine(block.first, 1), text + lineEnd);
    return end - before;
}

// From the last block to the first, so that the lines of those to come are where they were. A block
// at the text's end stays there while the others move.
void MoveBlocks(Editor& editor, bool isUp)
{
    const LineBlocks lines(editor);
    const std::vector<LineBlock>& blocks = lines.All();
    std::vector<long> shifts(blocks.size());
    const UndoStep step(editor);
    for (std::size_t i = blocks.size(); i-- > 0;) {
        const LineBlock& block = blocks[i];
        if (isUp && block.first > 0)
            shifts[i] = CarryOver(editor, block.first - 1, block);
        else if (!isUp && !IsLastLine(editor, block.last))
            shifts[i] = CarryOver(editor, block.last + 1, block);
    }
    if (std::ranges::any_of(shifts, [](long shift) { return shift != 0; }))
        lines.SelectMoved(shifts);
}

// One blank takes the place of a line end and the indentation behind it, none beside a blank or an
// empty line.
void JoinWithNext(Editor& editor, int line)
{
    const long end = editor.GetLineEndPosition(line, 1);
    const long next = editor.GetLineIndentPosition(line + 1, 1);
    const bool isNextEmpty = next == editor.GetLineEndPosition(line + 1, 1);
    const bool isFirstEmpty = end == editor.PositionFromLine(line, 1);
    const QString before = isFirstEmpty ? QString() : TextOf(editor, end - 1, end);
    const bool hasBlank = !before.isEmpty() && before.back().isSpace();
    Replace(editor, end, next,
            isNextEmpty || isFirstEmpty || hasBlank ? QString() : QStringLiteral(" "));
}

// A line alone is joined with the next one. The caret comes to the first seam.
BlockChange JoinBlock(Editor& editor, const LineBlock& block)
{
    const int wanted = block.last == block.first ? block.last + 1 : block.last;
    const int last = std::min(wanted, editor.GetLineCount(1) - 1);
    if (last == block.first)
        return {};
    const long before = editor.GetLength(1);
    const auto seam = static_cast<int>(editor.GetLineEndPosition(block.first, 1));
    for (int line = last - 1; line >= block.first; --line)
        JoinWithNext(editor, line);
    return {{{seam, seam}}, editor.GetLength(1) - before};
}

BlockChange DeleteBlock(Editor& editor, const LineBlock& block)
{
    long start = editor.PositionFromLine(block.first, 1);
    long end = editor.GetLineEndPosition(block.last, 1);
    if (!IsLastLine(editor, block.last))
        end = editor.PositionFromLine(block.last + 1, 1);
    else if (block.first > 0) // the text ends with the line before
        start = editor.GetLineEndPosition(block.first - 1, 1);
    Replace(editor, start, end, {});
    const int line = editor.LineFromPosition(start, 1);
    const auto place = static_cast<int>(editor.PositionFromLine(line, 1));
    return {{{place, place}}, start - end};
}

bool IsEmpty(const SelectionEnds& ends)
{
    return ends.anchor == ends.caret;
}

// What goes in, at the end of what it is a copy of.
struct Copy
{
    long at;
    QString text;
};

// The selections, each moved by what has come in before it. One that is copied is that of its copy.
void PutIn(Editor& editor, const std::vector<Copy>& copies, std::vector<SelectionEnds> all)
{
    const auto shiftOf = [&copies](long end, bool isWithIt) {
        long shift = 0;
        for (const Copy& copy : copies) {
            if (copy.at < end || (isWithIt && copy.at == end))
                shift += copy.text.size();
        }
        return static_cast<int>(shift);
    };
    for (SelectionEnds& ends : all) {
        const int shift = shiftOf(std::max(ends.anchor, ends.caret), !IsEmpty(ends));
        ends.anchor += shift;
        ends.caret += shift;
    }
    const UndoStep step(editor);
    for (auto copy = copies.rbegin(); copy != copies.rend(); ++copy)
        Insert(editor, copy->at, copy->text);
    SelectInSight(editor, all);
}

// Carets among them stay as they are.
void DuplicateSelections(Editor& editor, const std::vector<SelectionEnds>& all)
{
    std::vector<Copy> copies;
    for (const auto& [anchor, caret] : all) {
        const auto [start, end] = std::minmax(anchor, caret);
        if (start < end)
            copies.push_back({end, TextOf(editor, start, end)});
    }
    std::ranges::sort(copies, {}, &Copy::at);
    PutIn(editor, copies, all);
}

// Each once, however many carets stand in it.
void DuplicateLines(Editor& editor, const std::vector<SelectionEnds>& all)
{
    std::set<int> lines;
    for (const SelectionEnds& ends : all)
        lines.insert(editor.LineFromPosition(ends.caret, 1));
    std::vector<Copy> copies;
    for (const int line : lines) {
        const long end = editor.GetLineEndPosition(line, 1);
        copies.push_back(
            {end, LineEndOf(editor) + TextOf(editor, editor.PositionFromLine(line, 1), end)});
    }
    PutIn(editor, copies, all);
}

void ChangeBlocks(Editor& editor, BlockChange (*change)(Editor&, const LineBlock&))
{
    const LineBlocks lines(editor);
    const std::vector<LineBlock>& blocks = lines.All();
    std::vector<BlockChange> changes(blocks.size());
    const UndoStep step(editor);
    for (std::size_t i = blocks.size(); i-- > 0;)
        changes[i] = change(editor, blocks[i]);
    lines.SelectChanged(changes);
}

} // namespace

void MoveLinesUp(Editor& editor)
{
    MoveBlocks(editor, true);
}

void MoveLinesDown(Editor& editor)
{
    MoveBlocks(editor, false);
}

void Duplicate(Editor& editor)
{
    const std::vector<SelectionEnds> all = SelectionsOf(editor);
    if (!std::ranges::all_of(all, IsEmpty))
        DuplicateSelections(editor, all);
    else if (all.size() == 1)
        editor.LineDuplicate(1);
    else
        DuplicateLines(editor, all);
}

void JoinLines(Editor& editor)
{
    ChangeBlocks(editor, JoinBlock);
}

void DeleteLines(Editor& editor)
{
    ChangeBlocks(editor, DeleteBlock);
}

void PasteIndented(Editor& editor)
{
    static const QRegularExpression lineEnd(QStringLiteral("\r\n|\r|\n"));
    QStringList lines = QGuiApplication::clipboard()->text().split(lineEnd);
    const auto indentOf = [](const QString& line) {
        const auto* text =
            std::find_if(line.begin(), line.end(), [](QChar c) { return c != u' ' && c != u'\t'; });
        return static_cast<qsizetype>(text - line.begin());
    };
    qsizetype least = -1;
    for (const QString& line : lines) {
        if (!line.trimmed().isEmpty())
            least = least < 0 ? indentOf(line) : std::min(least, indentOf(line));
    }
    const int caretLine = editor.LineFromPosition(editor.GetSelectionStart(1), 1);
    const long start = editor.PositionFromLine(caretLine, 1);
    const QString indent =
        TextOf(editor, start,
               std::min(editor.GetLineIndentPosition(caretLine, 1), editor.GetSelectionStart(1)));
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QString text =
            lines[i].mid(std::min(std::max<qsizetype>(least, 0), indentOf(lines[i])));
        lines[i] = i == 0 || text.isEmpty() ? text : indent + text;
    }
    const QString text = lines.join(LineEndOf(editor));
    const UndoStep step(editor);
    const long selected = editor.GetSelectionStart(1);
    Replace(editor, selected, editor.GetSelectionEnd(1), text); // with a NUL in it, too
    const long behind = selected + text.size();
    editor.SetSel(behind, behind, 1);
}

} // namespace hands
