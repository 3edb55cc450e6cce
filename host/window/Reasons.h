// SPDX-License-Identifier: GPL-3.0-or-later
// Why a command of the menus cannot be given, for the status bar.
#pragma once

#include <QString>

class CZNCoreEditorControlEx;
class QAction;
class QMenu;

// A sentence for a command that is disabled, by its action's object name. The editor is that of the
// script in front, null if there is none.
QString WhyDisabled(const QString& command, CZNCoreEditorControlEx* editor);

// Gives the entries of a menu their status tips: why they are disabled, nothing for the others.
void ExplainEntries(const QMenu& menu, CZNCoreEditorControlEx* editor);
