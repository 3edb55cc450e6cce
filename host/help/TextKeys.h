// SPDX-License-Identifier: GPL-3.0-or-later
// What keys with Ctrl or Alt do in a text that no command of the menus stands for.
#pragma once

#include <QKeySequence>
#include <QString>

// In the language of the workbench; empty if the text has no use for the key.
QString UseInText(const QKeySequence& key);
