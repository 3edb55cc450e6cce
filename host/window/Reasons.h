// SPDX-License-Identifier: GPL-3.0-or-later
// What menus say of a command: why it cannot be given, for the status bar, and one name in all of
// them.
#pragma once

#include <QString>

class CZNCoreEditorControlEx;
class QAction;
class QMenu;
class QMainWindow;

// A sentence for a command that is disabled, by its action's object name. The editor is that of the
// script in front, null if there is none.
QString WhyDisabled(const QString& command, CZNCoreEditorControlEx* editor);

// Whether that is so because its script is read-only.
bool IsDisabledAsReadOnly(const QString& command, CZNCoreEditorControlEx& editor);

// Gives the entries of a menu their status tips: why they are disabled, nothing for the others.
void ExplainEntries(const QMenu& menu, CZNCoreEditorControlEx* editor);

// Gives the entries of another menu the texts and keys that their commands have in the window's.
void SpeakAsMenus(const QMenu& menu, const QMainWindow& window);
