// SPDX-License-Identifier: GPL-3.0-or-later
// The encodings of scripts, as a person chooses them and as the status bar names them, and what the
// control calls them.
#pragma once

#include "host/files/EncodingChoices.h"

#include <QString>

class CZNCoreEditorControl;

// The name of the pair; "Unknown encoding" if it is none of the choices.
QString EncodingName(int encoding, bool mark);
// With what is written in it, where one chooses.
QString EncodingTitle(const EncodingChoice& choice);

// The place of the pair among the choices, that of UTF-8 if it is none of them.
int IndexOfEncoding(int encoding, bool mark);

// What the control and the files of the library call it: a number of FileEncodeConverter, and what
// 0 stands for among them.
int FormOf(int encoding);
int CodePageOf(int encoding);

// Of the control's file.
int EncodingOf(const CZNCoreEditorControl& editor);
void SetEncodingOf(CZNCoreEditorControl& editor, int encoding);

// The code page of files that are no Unicode and that nobody has chosen one for: an option.
inline constexpr int kCodePageOption = 60002;
int DefaultCodePage();

// That a person chose a code page for a file. 0: none was, for it or for another of its folder.
void RememberCodePage(const QString& path, int encoding); // none if it is Unicode
int ChosenCodePage(const QString& path);
int ChosenCodePageInFolder(const QString& path);

// The line-end mode of the control in words; empty for a mode that is none.
QString LineEndName(int mode);
