// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorControlEx: comment markers, and putting them in.
#include "editing/ZNCoreEditorControlEx.h"

#include "editing/language/FileTypeManager.h"
#include "editing/language/Library.h"
#include "editing/operations/EditScopes.h"
#include "editing/operations/LineEndText.h"
#include "editing/operations/TextWindow.h"
#include "editing/text/Comments.h"
#include "platform/base/Units.h"
#include "settings/SyntaxFile.h"

#include <algorithm>

namespace {

constexpr int kNone = -1; // a language's default marker, where it has none

// Block markers stand in pairs, start and end in turn.
QString BlockMarker(const std::vector<QString>& markers, int index, int offset)
{
    if (index < 0 || static_cast<std::size_t>(index) >= markers.size() / 2)
        return {};
    return markers[static_cast<std::size_t>(index) * 2 + static_cast<std::size_t>(offset)];
}

} // namespace

bool CZNCoreEditorControlEx::AddSingleLineComment(const QString& marker)
{
    if (marker.isEmpty())
        return false;
    m_singleLineComments.push_back(marker);
    return true;
}

bool CZNCoreEditorControlEx::AddBlockComment(const QString& start, const QString& end)
{
    if (start.isEmpty() || end.isEmpty())
        return false;
    m_blockComments.push_back(start);
    m_blockComments.push_back(end);
    return true;
}

// The index says whether there is a default at all; it selects nothing.
QString CZNCoreEditorControlEx::GetSingleLineComment(int index) const
{
    return index < 0 || m_singleLineComments.empty() ? QString() : m_singleLineComments.front();
}

QString CZNCoreEditorControlEx::GetBlockCommentStart(int index) const
{
    return BlockMarker(m_blockComments, index, 0);
}

QString CZNCoreEditorControlEx::GetBlockCommentEnd(int index) const
{
    return BlockMarker(m_blockComments, index, 1);
}

bool CZNCoreEditorControlEx::CommentSelection(int index, bool useBlock)
{
    if (index == kNone)
        return false;
    const Selection selection = CurrentSelection();
    return ChoosesLines(selection, useBlock) ? CommentLines(index, selection)
                                             : CommentBlock(index, selection);
}

// Lines as such get a marker each; so does a text that holds a block comment, which "/*" tells,
// whatever the language's markers are.
bool CZNCoreEditorControlEx::ChoosesLines(const Selection& selection, bool useBlock)
{
    if (!useBlock)
        return true;
    const auto [start, end, caretInFront] = selection;
    const PlainSearch plain(*this);
    if (FindInTarget(u"/*", 2, static_cast<int>(start), static_cast<int>(end)) >= 0)
        return true;
    const std::u16string_view lineEnd = LineEndOf(GetEOLMode(1), kCrLfText);
    const auto lineEndLength = static_cast<long>(lineEnd.size());
    const int last = LineFromPosition(end, 1);
    if (GetLineEndPosition(last - 1, 1) == end - lineEndLength &&
        TextBetween(end - lineEndLength, end) == lineEnd)
        return true;
    const long lastEnd = GetLineEndPosition(last, 1);
    return start == PositionFromLine(LineFromPosition(start, 1), 1) &&
           (end == lastEnd || end == lastEnd - lineEndLength);
}

// An empty selection becomes the word around the caret, which goes on behind the unit at the caret
// whatever that is: right behind a word, the next one is taken too. False if there is no word to
// the left.
bool CZNCoreEditorControlEx::TakeWordAtCaret(Selection& selection)
{
    const long caret = GetCurrentPos(1);
    const int line = LineFromPosition(caret, 1);
    const long indent = GetLineIndentPosition(line, 1);
    if (indent == GetLineEndPosition(line, 1))
        return false;
    TextWindow text(*this);
    long left = 0;
    while (left < caret && IsWordChar(text[caret - left - 1]))
        ++left;
    if (left == 0)
        return false;
    const long scanned = static_cast<long>(comments::kScanned);
    const std::u16string fromIndent = TextBetween(indent, std::min(indent + scanned, GetLength(1)));
    selection.start -= left;
    selection.end += comments::CountToTheRight(fromIndent, caret - indent,
                                               [this](char16_t c) { return IsWordChar(c); });
    return true;
}

bool CZNCoreEditorControlEx::CommentBlock(int index, Selection selection)
{
    const QString start = GetBlockCommentStart(index);
    const QString end = GetBlockCommentEnd(index);
    if (start.isEmpty() || end.isEmpty())
        return false;
    if (selection.start == selection.end && !TakeWordAtCaret(selection))
        return true;
    const UndoStep step(*this);
    InsertText(selection.start, Units(start), 1);
    selection.start += start.size();
    selection.end += start.size();
    InsertText(selection.end, Units(end), 1);
    Select(selection); // what stands between the markers
    return true;
}

// The first marker goes to the selection's start, which may split its line; the others go to column
// 0, not to the indentation. Blank lines get none.
bool CZNCoreEditorControlEx::CommentLines(int index, Selection selection)
{
    QString marker = GetSingleLineComment(index);
    if (marker.isEmpty())
        return false;
    marker += u' ';
    const auto [first, last] = SelectedLines();
    const BulkChange change(*this);
    for (int line = first; line <= last; ++line) {
        if (GetLineIndentPosition(line, 1) == GetLineEndPosition(line, 1))
            continue;
        InsertText(line == first ? selection.start : PositionFromLine(line, 1), Units(marker), 1);
        selection.end += marker.size();
    }
    Select(selection);
    return true;
}

void CZNCoreEditorControlEx::OnEditComments()
{
    CSyntaxFile* syntax = zncoreeditor::GetFileTypeManager()->GetSyntaxFile(m_currentLanguage);
    if (!syntax)
        return;
    if (!CommentSelection(syntax->GetDefaultBlockComment(), true))
        CommentSelection(syntax->GetDefaultSingleLineComment(), false);
}

void CZNCoreEditorControlEx::OnEditSingleLineComment()
{
    CSyntaxFile* syntax = zncoreeditor::GetFileTypeManager()->GetSyntaxFile(m_currentLanguage);
    if (syntax)
        CommentSelection(syntax->GetDefaultSingleLineComment(), false);
}

// Block comments go only where both defaults are the first marker of their kind. A default of -1
// leads to the line form too, which then does nothing.
void CZNCoreEditorControlEx::OnEditSingleLineUncomment()
{
    CSyntaxFile* syntax = zncoreeditor::GetFileTypeManager()->GetSyntaxFile(m_currentLanguage);
    if (!syntax)
        return;
    const int block = syntax->GetDefaultBlockComment();
    const int line = syntax->GetDefaultSingleLineComment();
    if (block != 0 || line != 0)
        UnCommentSelection(line, false);
    else
        UnCommentSelection(block, true);
}
