// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorControlEx: indentation while the user types. Runs inside the engine's notification,
// and takes braces in strings and comments for code.
#include "editing/ZNCoreEditorControlEx.h"

#include "editing/operations/EditScopes.h"
#include "editing/operations/TextWindow.h"
#include "editing/text/Spaces.h"

#include <algorithm>

namespace {

constexpr int kCrLf = 1;

// The brace that the one before the caret closes; -1 if there is none.
long OpeningBrace(CZNCoreEditorControl& control, long position)
{
    TextWindow text(control);
    int depth = 1;
    for (; position >= 0; --position) {
        if (text[position] == u'}')
            ++depth;
        else if (text[position] == u'{' && --depth == 0)
            return position;
    }
    return -1;
}

} // namespace

bool CZNCoreEditorControlEx::IsIndentChar(char16_t c) const
{
    return spaces::IsIndentChar(c);
}

// With CR LF the work is done for the CR, when both stand in the text already.
void CZNCoreEditorControlEx::AutoIndentIn(char16_t character)
{
    const int mode = GetEOLMode(1);
    if (mode <= kCrLf && character == u'\n')
        return;
    if (m_autoIndent < 1) {
        AutomaticCommenting();
        return;
    }
    const int line = LineFromPosition(GetCurrentPos(1), 1);
    int indent = GetLineIndentation(line - 1, 1);
    AutomaticCommenting();
    if (indent < GetLineIndentation(line, 1))
        return;
    if (m_autoIndent >= 2) {
        const int last = GetCharAt(GetCurrentPos(1) - (mode == kCrLf ? 3 : 2), 1);
        if (last == '{' || last == ')' || last == ':')
            indent += GetIndent(1) != 0 ? GetIndent(1) : GetTabWidth(1);
    }
    SetLineIndentationEx(line, indent);
}

void CZNCoreEditorControlEx::AutoIndentOut(char16_t character)
{
    const long caret = GetCurrentPos(1);
    const int line = LineFromPosition(caret, 1);
    int model = line - 1; // the line whose indentation this one takes
    if (character == u'{') {
        if (line == 0 || GetCharAt(GetLineEndPosition(model, 1) - 1, 1) == '{')
            return;
    } else {
        if (GetLineIndentPosition(line, 1) != caret - 1)
            return;
        const long opening = OpeningBrace(*this, caret - 2);
        if (opening < 0)
            return;
        model = LineFromPosition(opening, 1);
    }
    const UndoStep step(*this);
    SetLineIndentation(line, GetLineIndentation(model, 1), 1);
}

void CZNCoreEditorControlEx::SetLineIndentationEx(int line, int indent)
{
    if (indent < 0)
        return;
    const long start = GetSelectionStart(1);
    const long end = GetSelectionEnd(1);
    const long before = GetLineIndentPosition(line, 1);
    SetLineIndentation(line, indent, 1);
    const long after = GetLineIndentPosition(line, 1);
    // What stood at the text or behind it moves along; what stood in the blanks stays in them.
    const auto moved = [before, after](long bound) {
        return bound >= before ? bound + after - before : std::min(bound, after);
    };
    SetSel(moved(start), moved(end), 1);
}
