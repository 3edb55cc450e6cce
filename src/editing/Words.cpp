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
