// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorControlEx: what its operations share to read, replace and select a range.
#include "editing/ZNCoreEditorControlEx.h"

// The engine reads a pair whole, so a range that cuts one at its front gives a unit more.
std::u16string CZNCoreEditorControlEx::TextBetween(long start, long end)
{
    if (end <= start)
        return {};
    std::u16string text(static_cast<std::size_t>(end - start) + 2, u'\0');
    const int units = GetRange(start, end, text.data());
    text.resize(static_cast<std::size_t>(units));
    return text;
}

void CZNCoreEditorControlEx::ReplaceBetween(long start, long end, std::u16string_view text)
{
    SetTarget(static_cast<int>(start), static_cast<int>(end));
    ReplaceTargetNoProcess(static_cast<int>(text.size()), text.empty() ? u"" : text.data(), 1);
}

CZNCoreEditorControlEx::Selection CZNCoreEditorControlEx::CurrentSelection()
{
    const long end = GetSelectionEnd(1);
    return {GetSelectionStart(1), end, GetCurrentPos(1) < end};
}

void CZNCoreEditorControlEx::Select(const Selection& selection)
{
    if (!selection.caretInFront) {
        SetSel(selection.start, selection.end, 1);
        return;
    }
    GotoPos(selection.end, 1);
    SetCurrentPos(selection.start, 1);
}

CZNCoreEditorControlEx::Lines CZNCoreEditorControlEx::SelectedLines()
{
    const long end = GetSelectionEnd(1);
    Lines lines{LineFromPosition(GetSelectionStart(1), 1), LineFromPosition(end, 1)};
    if (lines.last > lines.first && end == PositionFromLine(lines.last, 1))
        --lines.last;
    return lines;
}
