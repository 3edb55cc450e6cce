// SPDX-License-Identifier: GPL-3.0-or-later
// The macro of the process saved to a file of its own kind, and loaded.
#pragma once

class QWidget;

bool CanSaveMacro();
void SaveMacro(QWidget* window); // asks where
// Asks for a file; its macro takes the place of the one that is there. The person is told if it is
// none.
void LoadMacro(QWidget* window);
