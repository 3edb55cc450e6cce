// SPDX-License-Identifier: GPL-3.0-or-later
// A script as HTML, in the colours and fonts of the screen.
#pragma once

#include <QByteArray>
#include <QString>

class CZNCoreEditorControl;
class QIODevice;

// The text between two positions, in UTF-16 units, as a document in UTF-8, written in blocks. False
// if the device took less than it was given.
bool WriteHtml(CZNCoreEditorControl& editor, long start, long end, const QString& title,
               QIODevice& to);
