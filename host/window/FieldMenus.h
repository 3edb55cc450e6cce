// SPDX-License-Identifier: GPL-3.0-or-later
// What the fields of the status bar for zoom and indentation say, and the menus that they open.
#pragma once

#include <QString>

class CZNCoreEditorControlEx;
class QMenu;
class QWidget;

QString ZoomText(CZNCoreEditorControlEx& editor);        // "100 %"
QString IndentationText(CZNCoreEditorControlEx& editor); // "Spaces: 4"

// Delete themselves when they are closed, which has to be before the editor goes.
QMenu* ZoomMenu(CZNCoreEditorControlEx& editor, QWidget* parent);
QMenu* IndentationMenu(CZNCoreEditorControlEx& editor, QWidget* parent);
