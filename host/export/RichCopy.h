// SPDX-License-Identifier: GPL-3.0-or-later
// Scripts on their way to a mail or a page: with their colours on the clipboard, and as HTML files.
#pragma once

#include <QString>

class CZNCoreEditorControlEx;
class QWidget;

// Puts the selected text onto the clipboard as plain text, as HTML and as RTF. Of a column
// selection the plain text alone.
void CopyWithColours(CZNCoreEditorControlEx& editor);

// Writes all of the text. The file is there once it is whole; the user is told if it cannot be.
bool SaveAsHtml(CZNCoreEditorControlEx& editor, const QString& title, const QString& path,
                QWidget* window);
