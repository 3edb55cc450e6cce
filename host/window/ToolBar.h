// SPDX-License-Identifier: GPL-3.0-or-later
// The tool bar, and the pictures of commands in menus.
#pragma once

class QMainWindow;
class QToolBar;

QToolBar* AddToolBar(QMainWindow& window);

// With the actions that the window has, by their object names. Each gets its picture.
void FillToolBar(QToolBar& bar, QMainWindow& window);
