// CZNCoreEditorControlEx: white space, on command and on save.
#include "editing/ZNCoreEditorControlEx.h"

void CZNCoreEditorControlEx::ConvertTabToSpaces() {}

void CZNCoreEditorControlEx::RemoveTrailingSpaces() {}

void CZNCoreEditorControlEx::EnsureFinalNewLine() {}
