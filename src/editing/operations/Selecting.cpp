// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorControlEx: what can be selected by a single operation, and file names.
#include "editing/ZNCoreEditorControlEx.h"

#include "editing/operations/TextWindow.h"
#include "platform/base/Units.h"

#include <algorithm>
#include <array>
#include <string_view>

void CZNCoreEditorControlEx::SelectWord()
{
    const long caret = GetCurrentPos(1);
    SetSel(WordStartPosition(caret, 1, 1), WordEndPosition(caret, 1, 1), 1);
}

void CZNCoreEditorControlEx::SelectLine()
{
    const int line = GetCurLineNumber();
    SetSel(PositionFromLine(line, 1), PositionFromLine(line + 1, 1), 1);
}

void CZNCoreEditorControlEx::SelectPara()
{
    ParaDown(1);
    ParaUpExtend(1);
    SwapAnchor();
}

void CZNCoreEditorControlEx::SwapAnchor()
{
    const long anchor = GetAnchor(1);
    SetAnchor(GetCurrentPos(1), 1);
    SetCurrentPos(anchor, 1);
}

void CZNCoreEditorControlEx::SelectionFromTarget()
{
    SetSel(GetTargetStart(1), GetTargetEnd(1), 1);
}

bool CZNCoreEditorControlEx::IsFilenameChar(char16_t c)
{
    return c != 0 &&
           std::u16string_view(u"\t\n\r \"$%'*,;<>?[]^`{|}").find(c) == std::u16string_view::npos;
}

QString CZNCoreEditorControlEx::SelectionFilename()
{
    std::array<char16_t, 1000> buffer;
    SelectionExtend(buffer.data(), static_cast<int>(buffer.size()), IsFilenameChar, true);
    return FromUnits(buffer.data());
}

void CZNCoreEditorControlEx::SelectionExtend(char16_t* buffer, int length, bool (*accept)(char16_t),
                                             bool stripEol)
{
    auto [start, end] = GetSelection();
    RangeExtendAndGrab(buffer, length, start, end, static_cast<int>(GetLength(1)), accept,
                       stripEol);
}

void CZNCoreEditorControlEx::RangeExtendAndGrab(char16_t* buffer, int length, int& start, int& end,
                                                int limit, bool (*accept)(char16_t), bool stripEol)
{
    if (start == end && accept) {
        TextWindow text(*this);
        while (start > 0 && accept(text[start - 1]))
            --start;
        while (end < limit && accept(text[end]))
            ++end;
    }
    buffer[0] = u'\0';
    if (end - start + 1 > length - 1)
        end = start + length - 1;
    if (start >= end)
        return;
    // A pair that the range cuts in front is read whole.
    std::u16string text = TextBetween(start, end);
    text.resize(std::min(text.size(), static_cast<std::size_t>(end - start)));
    if (stripEol && text.ends_with(u"\r\n"))
        text.resize(text.size() - 2);
    else if (stripEol && (text.ends_with(u'\r') || text.ends_with(u'\n')))
        text.pop_back();
    text.copy(buffer, text.size());
    buffer[text.size()] = u'\0';
}
