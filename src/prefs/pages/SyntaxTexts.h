// SPDX-License-Identifier: GPL-3.0-or-later
// What the syntax files call styles and sets of keywords, in the language of the user interface.
#pragma once

#include <QString>

// "JavaScript: keyword" is translated in its parts. A name that is in none of the files that are
// shipped stays as it is.
QString ShownStyle(const QString& name);
QString ShownKeywordSet(const QString& description);
