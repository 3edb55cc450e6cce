// SPDX-License-Identifier: GPL-3.0-or-later
// CZNCoreEditorControlEx: access to words, lines and the selection.
#include "editing/ZNCoreEditorControlEx.h"
#include "platform/base/Units.h"

namespace {

constexpr long kLongestFindString = 199;

} // namespace

CharacterRange CZNCoreEditorControlEx::GetSelection()
{
    return {static_cast<int>(GetSelectionStart(1)), static_cast<int>(GetSelectionEnd(1))};
}

bool CZNCoreEditorControlEx::IsSelection()
{
    return GetSelectionEnd(1) > GetSelectionStart(1);
}

int CZNCoreEditorControlEx::GetRange(long start, long end, char16_t* buffer)
{
    return CZNCoreEditorControl::GetRange(static_cast<int>(start), static_cast<int>(end), buffer);
}

int CZNCoreEditorControlEx::GetCurLineNumber()
{
    return LineFromPosition(GetCurrentPos(1), 1);
}

long CZNCoreEditorControlEx::GetCaretInLine()
{
    return GetCurrentPos(1) - PositionFromLine(GetCurLineNumber(), 1);
}

int CZNCoreEditorControlEx::GotoLineCol(int line, int column)
{
    GotoPos(PositionFromLine(line, 1) + column, 1);
    return 0;
}

QString CZNCoreEditorControlEx::GetLineText(int line)
{
    const long length = LineLength(line, 1); // 0 for a line that is not there
    const long start = length > 0 ? PositionFromLine(line, 1) : 0;
    return FromUnits(TextBetween(start, start + length));
}

int CZNCoreEditorControlEx::GetWordFromPos(long position, QString& word, int onlyWordChars)
{
    word = FromUnits(TextBetween(WordStartPosition(position, onlyWordChars, 1),
                                 WordEndPosition(position, onlyWordChars, 1)));
    return 1;
}

int CZNCoreEditorControlEx::GetWordFromPos(const CPoint& point, QString& word, int onlyWordChars)
{
    return GetWordFromPos(
        PositionFromPoint(static_cast<int>(point.x), static_cast<int>(point.y), 1), word,
        onlyWordChars);
}

void CZNCoreEditorControlEx::SetWordChars(const char16_t* characters)
{
    m_wordChars = FromUnits(characters ? characters : u"");
    CZNCoreEditorControl::SetWordChars(characters, 1);
}

bool CZNCoreEditorControlEx::IsWordChar(char16_t c) const
{
    return m_wordChars.contains(QChar(c));
}

void CZNCoreEditorControlEx::InsertChar(long position, char16_t c)
{
    const char16_t text[] = {c, u'\0'};
    InsertText(position, text, 1);
}

int CZNCoreEditorControlEx::FindInTarget(const char16_t* text, int length, int start, int end)
{
    SetTarget(start, end);
    return static_cast<int>(SearchInTarget(length, text, 1));
}

int CZNCoreEditorControlEx::FindOneOf(const QString& text, int start, const QString& set) const
{
    if (start < 0)
        return -1;
    for (qsizetype at = start; at < text.size(); ++at) {
        if (set.contains(text[at]))
            return static_cast<int>(at);
    }
    return -1;
}

QString CZNCoreEditorControlEx::GetFindString()
{
    QString found;
    if (!IsSelection()) {
        GetWordFromPos(GetCurrentPos(1), found, 1);
        return found.size() > 1 ? found : QString();
    }
    const auto [start, end] = GetSelection();
    if (end - start <= kLongestFindString)
        found = FromUnits(TextBetween(start, end));
    return found.contains(u'\r') || found.contains(u'\n') ? QString() : found;
}

bool CZNCoreEditorControlEx::HasFindString()
{
    return IsSelection() || !GetFindString().isEmpty();
}
