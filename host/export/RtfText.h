// SPDX-License-Identifier: GPL-3.0-or-later
// A script as rich text, in the colours and fonts of the screen.
#pragma once

#include <QByteArray>

class CZNCoreEditorControl;

// The text between two positions, in UTF-16 units.
QByteArray RtfOf(CZNCoreEditorControl& editor, long start, long end);
