// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorControlEx: small changes of words, characters and numbers at the caret.
#include "editing/ZNCoreEditorControlEx.h"

#include "editing/operations/EditScopes.h"
#include "editing/operations/TextWindow.h"
#include "editing/text/Capitals.h"
#include "editing/text/Numbers.h"
#include "platform/text/Integer.h"

void CZNCoreEditorControlEx::WordDelete()
{
    SelectWord();
    Clear(1);
}

void CZNCoreEditorControlEx::WordUpperCase()
{
    const long caret = GetCurrentPos(1);
    SelectWord();
    UpperCase(1);
    SetSel(caret, caret, 1);
}

void CZNCoreEditorControlEx::WordLowerCase()
{
    const long caret = GetCurrentPos(1);
    SelectWord();
    LowerCase(1);
    SetSel(caret, caret, 1);
}

void CZNCoreEditorControlEx::WordCapitalize()
{
    const long caret = GetCurrentPos(1);
    SelectWord();
    Capitalize();
    SetSel(caret, caret, 1);
}

void CZNCoreEditorControlEx::Capitalize()
{
    if (!IsSelection())
        return;
    const auto [start, end] = GetSelection();
    const std::u16string text = capitals::Capitalized(TextBetween(start, end));
    const UndoStep step(*this);
    Clear(1);
    const long caret = GetCurrentPos(1);
    ReplaceBetween(caret, caret, text); // counted: the text may hold NULs
    GotoPos(caret + static_cast<long>(text.size()), 1);
}

// The caret comes back to where it was, so doing it again takes it back.
void CZNCoreEditorControlEx::CharTranspose()
{
    const long caret = GetCurrentPos(1);
    const int line = LineFromPosition(caret, 1);
    const long start = PositionFromLine(line, 1);
    const long end = GetLineEndPosition(line, 1);
    if (end - start < 2)
        return;
    if (caret == start)
        CharRight(1);
    if (caret == end)
        CharLeft(1);
    const long moved = GetCurrentPos(1);
    const std::u16string before = TextBetween(PositionBefore(moved, 1), moved);
    const char16_t narrowed = before.empty() ? u'\0' : capitals::Narrowed(before.back());
    const UndoStep step(*this);
    DeleteBack(1);
    const long place = GetCurrentPos(1) + 1;
    ReplaceBetween(place, place, narrowed ? std::u16string(1, narrowed) : before);
    SetCurrentPos(caret, 1);
    SetSel(caret, caret, 1);
}

void CZNCoreEditorControlEx::WordTranspose()
{
    const long caret = GetCurrentPos(1);
    const int line = LineFromPosition(caret, 1);
    if (caret == PositionFromLine(line, 1) || caret == GetLineEndPosition(line, 1))
        return;
    SetSel(caret, caret, 1);
    TextWindow text(*this);
    if (IsWordChar(text[caret]) && IsWordChar(text[caret - 1]))
        TransposeInWord(caret);
    else
        TransposeAround(caret);
}

void CZNCoreEditorControlEx::TransposeInWord(long caret)
{
    const long start = WordStartPosition(caret, 1, 1);
    const long end = WordEndPosition(caret, 1, 1);
    const std::u16string left = TextBetween(start, caret);
    const UndoStep step(*this);
    SetSel(start, caret, 1);
    Clear(1);
    const long place = end - caret + start;
    ReplaceBetween(place, place, left);
    SetCurrentPos(place, 1);
    SetSel(place, place, 1);
}

void CZNCoreEditorControlEx::TransposeAround(long caret)
{
    const int line = LineFromPosition(caret, 1);
    const long lineStart = PositionFromLine(line, 1);
    const long lineEnd = GetLineEndPosition(line, 1);
    TextWindow text(*this);
    long at = caret - 1;
    while (at > lineStart && !IsWordChar(text[at]))
        --at;
    const long leftStart = WordStartPosition(at, 1, 1);
    const long leftEnd = WordEndPosition(leftStart, 1, 1);
    long rightStart = caret;
    while (rightStart < lineEnd && !IsWordChar(text[rightStart]))
        ++rightStart;
    const long rightEnd = WordEndPosition(rightStart, 1, 1);
    const std::u16string left = TextBetween(leftStart, leftEnd);
    const std::u16string right = TextBetween(rightStart, rightEnd);
    if (left.empty() || right.empty()) {
        SetSel(caret, caret, 1);
        return;
    }
    const UndoStep step(*this);
    ReplaceBetween(rightStart, rightEnd, left); // the right one first: it moves nothing
    ReplaceBetween(leftStart, leftEnd, right);
    const long place = rightEnd - rightStart - leftEnd + leftStart + caret;
    SetSel(place, place, 1);
}

void CZNCoreEditorControlEx::NumPlus()
{
    AddToSelectedNumber(1);
}

void CZNCoreEditorControlEx::NumMinus()
{
    AddToSelectedNumber(-1);
}

void CZNCoreEditorControlEx::AddToSelectedNumber(int step)
{
    const auto [start, end] = GetSelection();
    const int number = numbers::Sum(IntegerOf(TextBetween(start, end)), step);
    const std::u16string text = numbers::TextOf(number);
    ReplaceSel(text.c_str(), 1);
    const long behind = GetSelectionEnd(1);
    SetSel(behind - static_cast<long>(text.size()), behind, 1);
}
