// SPDX-License-Identifier: GPL-3.0-or-later
// A file of rich text on its way to the clipboard.
#pragma once

#include <QString>

// Puts what the file holds onto the clipboard as rich text, with a NUL behind it, and removes the
// file. Without such a file the clipboard stays as it is.
void MoveRtfToClipboard(const QString& path);
