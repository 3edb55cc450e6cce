// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QLineEdit;
class QListWidget;
class QWidget;

// Lays a popup out: the line above its list, in a frame that sets it off against what it covers.
void FrameList(QWidget& popup, QLineEdit& line, QListWidget& list);
