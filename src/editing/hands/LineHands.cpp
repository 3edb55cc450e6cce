// SPDX-License-Identifier: GPL-3.0-or-later
#include "editing/hands/EditedText.h"
#include "editing/hands/Operations.h"
#include "editing/operations/EditScopes.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QRegularExpression>

#include <algorithm>

namespace hands {
namespace {

bool IsLastLine(Editor& editor, int line)
{
    return line >= editor.GetLineCount(1) - 1;
}

// Takes a line to the other side of the block beside it, with the line end that stands between
// them: so the block keeps its marks, and a last line without an end leaves none behind.
void CarryOver(Editor& editor, int line, const LineRange& block)
{
    const long anchor = editor.GetAnchor(1);
    const long caret = editor.GetCurrentPos(1);
    const bool isAbove = line < block.first;
    const long start = editor.PositionFromLine(line, 1);
    const long end = editor.GetLineEndPosition(line, 1);
    const QString text = TextOf(editor, start, end);
    const UndoStep step(editor);
    long shift = 0;
    if (isAbove) {
        const long next = editor.PositionFromLine(block.first, 1);
        const QString lineEnd = TextOf(editor, end, next);
        Insert(editor, editor.GetLineEndPosition(block.last, 1), lineEnd + text);
        Replace(editor, start, next, {});
        shift = start - next;
    } else {
        const long before = editor.GetLineEndPosition(block.last, 1);
        const QString lineEnd = TextOf(editor, before, start);
        Replace(editor, before, end, {});
        Insert(editor, editor.PositionFromLine(block.first, 1), text + lineEnd);
        shift = end - before;
    }
    editor.SetSel(anchor + shift, caret + shift, 1);
}

} // namespace

void MoveLinesUp(Editor& editor)
{
    const LineRange block = SelectedLines(editor);
    if (block.first > 0)
        CarryOver(editor, block.first - 1, block);
}

void MoveLinesDown(Editor& editor)
{
    const LineRange block = SelectedLines(editor);
    if (!IsLastLine(editor, block.last))
        CarryOver(editor, block.last + 1, block);
}

void Duplicate(Editor& editor)
{
    if (!editor.IsSelection()) {
        editor.LineDuplicate(1);
        return;
    }
    const long start = editor.GetSelectionStart(1);
    const long end = editor.GetSelectionEnd(1);
    const bool caretInFront = editor.GetCurrentPos(1) < end;
    const UndoStep step(editor);
    Insert(editor, end, TextOf(editor, start, end));
    const long behind = end + (end - start);
    editor.SetSel(caretInFront ? behind : end, caretInFront ? end : behind, 1);
}

// One blank takes the place of a line end and the indentation behind it, none beside a blank or an
// empty line.
void JoinLines(Editor& editor)
{
    LineRange lines = SelectedLines(editor);
    if (lines.last == lines.first)
        ++lines.last;
    lines.last = std::min(lines.last, editor.GetLineCount(1) - 1);
    const UndoStep step(editor);
    for (int line = lines.last; line > lines.first; --line) {
        const long end = editor.GetLineEndPosition(line - 1, 1);
        const long next = editor.GetLineIndentPosition(line, 1);
        const bool isNextEmpty = next == editor.GetLineEndPosition(line, 1);
        const bool isFirstEmpty = end == editor.PositionFromLine(line - 1, 1);
        const QString before = isFirstEmpty ? QString() : TextOf(editor, end - 1, end);
        const bool hasBlank = !before.isEmpty() && before.back().isSpace();
        Replace(editor, end, next,
                isNextEmpty || isFirstEmpty || hasBlank ? QString() : QStringLiteral(" "));
        if (line == lines.first + 1)
            editor.SetSel(end, end, 1);
    }
}

void DeleteLines(Editor& editor)
{
    const LineRange lines = SelectedLines(editor);
    long start = editor.PositionFromLine(lines.first, 1);
    long end = editor.GetLineEndPosition(lines.last, 1);
    if (!IsLastLine(editor, lines.last))
        end = editor.PositionFromLine(lines.last + 1, 1);
    else if (lines.first > 0) // the text ends with the line before
        start = editor.GetLineEndPosition(lines.first - 1, 1);
    const UndoStep step(editor);
    Replace(editor, start, end, {});
    const long line = editor.PositionFromLine(editor.LineFromPosition(start, 1), 1);
    editor.SetSel(line, line, 1);
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
    const int mode = editor.GetEOLMode(1);
    const QString text = lines.join(mode == 2   ? QStringLiteral("\r")
                                    : mode == 3 ? QStringLiteral("\n")
                                                : QStringLiteral("\r\n"));
    const UndoStep step(editor);
    const long selected = editor.GetSelectionStart(1);
    Replace(editor, selected, editor.GetSelectionEnd(1), text); // with a NUL in it, too
    const long behind = selected + text.size();
    editor.SetSel(behind, behind, 1);
}

} // namespace hands
