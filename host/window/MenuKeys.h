// SPDX-License-Identifier: GPL-3.0-or-later
// Keys of the menus' commands, as people know them: platforms bring some that few keyboards have,
// that nobody writes so, or that are another command's here.
#pragma once

#include <QKeySequence>
#include <QList>

class QAction;
class QMenuBar;

// Without those of keys behind F12, and of the keys that turn pages; Backtab is written as Tab,
// which Qt takes for the same.
QList<QKeySequence> KnownKeys(const QList<QKeySequence>& keys);

// A key that one command has first is no further key of another.
void GiveFirstKeysWay(const QList<QAction*>& commands);

// All entries of the menus that open no further menu.
QList<QAction*> CommandsOf(const QMenuBar& menus);
