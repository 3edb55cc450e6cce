// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures for commands: the desktop's where its theme has one, else drawings of our own, in the
// colours of the palette and sharp at any scale.
#pragma once

#include <QIcon>

// Of a command by its action's object name; null for one without.
QIcon CommandIcon(const QString& command);

QIcon ApplicationIcon();
