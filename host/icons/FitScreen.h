// SPDX-License-Identifier: GPL-3.0-or-later
// Windows that are no larger than their screen. Sizes are pixels of the window's own scale.
#pragma once

#include <QSize>

class QWidget;

// The size, or what there is room for with a window manager's frame.
QSize FittingScreen(const QWidget& window, QSize size);

// Makes a window smaller, and moves it, until all of it can be seen. One that fills the screen by a
// person's choice stays.
void FitScreen(QWidget& window);

// The same with what opens over a window, as long as that can be seen itself.
void FitWindow(QWidget& popup, const QWidget& window);
