// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorControlEx: braces and what they match.
#include "editing/ZNCoreEditorControlEx.h"

#include <algorithm>

bool CZNCoreEditorControlEx::IsBrace(char16_t c) const
{
    return c != 0 && m_braces.contains(QChar(c));
}

void CZNCoreEditorControlEx::HighlightBraces(long position)
{
    const long match = BraceMatch(position, 1);
    if (match == -1) {
        BraceHighlight(-1, -1, 1);
        BraceBadLight(position, 1);
        return;
    }
    BraceHighlight(position, match, 1);
    SetHighlightGuide(std::min(GetColumn(position, 1), GetColumn(match, 1)), 1);
}

bool CZNCoreEditorControlEx::HasMatchingBrace()
{
    return BraceMatch(GetCurrentPos(1), 1) > 0;
}

void CZNCoreEditorControlEx::JumpToMatchingBrace(bool extendSelection)
{
    const long caret = GetCurrentPos(1);
    long match = BraceMatch(caret, 1);
    if (match < 0)
        match = BraceMatch(caret - 1, 1);
    if (match < 0)
        return;
    SetCurrentPos(match, 1);
    if (!extendSelection)
        SetSel(match, match, 1);
}

void CZNCoreEditorControlEx::MatchToken()
{
    JumpToMatchingBrace(false);
}
