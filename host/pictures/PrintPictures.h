// SPDX-License-Identifier: GPL-3.0-or-later
// What printing and panes look like, for somebody to look at.
#pragma once

class MainWindow;
class QDir;
class QString;

// Into NAME-preview.png and NAME-facing.png the preview of the script in front, into NAME-split.png
// four panes of it, and its pages into NAME.pdf.
void PicturePrinting(MainWindow& window, const QDir& folder, const QString& name);
