// CZNCoreEditorControlEx: words, and what is selected.
#include "editing/ZNCoreEditorControlEx.h"

void CZNCoreEditorControlEx::SetWordChars(const char16_t* characters)
{
    m_wordChars = QString::fromUtf16(characters);
    CZNCoreEditorControl::SetWordChars(characters, 1);
}

bool CZNCoreEditorControlEx::IsSelection()
{
    return GetSelectionEnd(1) > GetSelectionStart(1);
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
