// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QFileDialog;

// Gives the columns of sizes and dates the room of what they show, as far as the screen has it. The
// platform's own dialog is as it is.
void FitColumns(QFileDialog& dialog);
