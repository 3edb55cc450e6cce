// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorControlEx: white space and line ends, on command and on save.
#include "editing/ZNCoreEditorControlEx.h"

#include "editing/operations/EditScopes.h"
#include "editing/text/Spaces.h"

namespace {

constexpr int kWaitCursor = 4;
constexpr int kNormalCursor = -1;

} // namespace

// Without a selection one pass goes to the line behind the last one, which is empty.
CZNCoreEditorControlEx::Lines CZNCoreEditorControlEx::LinesToCleanUp()
{
    return IsSelection() ? SelectedLines() : Lines{0, GetLineCount(1)};
}

// Rewrites the lines that have the character.
template <class Rewrite>
void CZNCoreEditorControlEx::RewriteLines(char16_t only, Rewrite rewrite)
{
    const int width = GetTabWidth(1);
    const auto [first, last] = LinesToCleanUp();
    const BulkChange change(*this);
    for (int line = first; line <= last; ++line) {
        const long start = PositionFromLine(line, 1);
        const long end = GetLineEndPosition(line, 1);
        if (end <= start)
            continue;
        const std::u16string text = TextBetween(start, end);
        if (text.find(only) != std::u16string::npos)
            ReplaceBetween(start, end, rewrite(text, width));
    }
}

void CZNCoreEditorControlEx::ConvertTabToSpaces()
{
    RewriteLines(u'\t', spaces::TabsToBlanks);
}

void CZNCoreEditorControlEx::ConvertSpacesToTab()
{
    RewriteLines(u' ', spaces::BlanksToTabs);
}

// From the last line to the first: between a CR and an LF what trails is a line, which goes with
// it.
void CZNCoreEditorControlEx::RemoveTrailingSpaces()
{
    const auto [first, last] = LinesToCleanUp();
    const BulkChange change(*this);
    for (int line = last; line >= first; --line) {
        const long start = PositionFromLine(line, 1);
        const long end = GetLineEndPosition(line, 1);
        if (end <= start)
            continue;
        const auto trailing = static_cast<long>(spaces::CountTrailing(TextBetween(start, end)));
        if (trailing > 0)
            ReplaceBetween(end - trailing, end, {});
    }
}

void CZNCoreEditorControlEx::EnsureFinalNewLine()
{
    const int lines = GetLineCount(1);
    const long end = PositionFromLine(lines, 1);
    if (lines == 1 || (lines > 1 && end > PositionFromLine(lines - 1, 1)))
        InsertEOL(end);
}

void CZNCoreEditorControlEx::InsertEOL(long position)
{
    const UndoStep step(*this);
    const int mode = GetEOLMode(1);
    if (mode != 3)
        InsertChar(position, u'\r');
    if (mode != 2)
        InsertChar(position, u'\n');
}

void CZNCoreEditorControlEx::ChangeEOLs(int mode)
{
    SetCursor(kWaitCursor, 1);
    SetEOLMode(mode, 1);
    ConvertEOLs(mode, 1);
    SetCursor(kNormalCursor, 1);
}

void CZNCoreEditorControlEx::SetEOLCRLF()
{
    ChangeEOLs(1);
}

void CZNCoreEditorControlEx::SetEOLCR()
{
    ChangeEOLs(2);
}

void CZNCoreEditorControlEx::SetEOLLF()
{
    ChangeEOLs(3);
}
