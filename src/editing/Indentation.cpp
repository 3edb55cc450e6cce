// CZNCoreEditorControlEx: indentation while the user types.
#include "editing/ZNCoreEditorControlEx.h"

void CZNCoreEditorControlEx::AutoIndentIn(char16_t /*character*/) {}

void CZNCoreEditorControlEx::AutoIndentOut(char16_t /*character*/) {}
