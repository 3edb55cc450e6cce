// SPDX-License-Identifier: GPL-3.0-or-later
// The names that a syntax file may give its lexer.
#pragma once

#include <QString>

// The engine's number for a name. A text of digits is the number itself, an empty one 0, any other
// -1.
int LexerNumberOf(const QString& name);
