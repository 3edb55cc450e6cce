// SPDX-License-Identifier: GPL-3.0-or-later
// What the workbench is.
#pragma once

class QWidget;

// Shows it until it is closed, and returns at once.
void ShowAbout(QWidget* parent);
