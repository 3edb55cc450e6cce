// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QLineEdit;
class QString;
class QListWidget;
class QWidget;

// Lays a popup out: the line above its list, in a frame that sets it off against what it covers.
void FrameList(QWidget& popup, QLineEdit& line, QListWidget& list);

// Ends the filling of a list: its first row is the current one, or it says that it has none.
void EndList(QListWidget& list, const QString& none);
