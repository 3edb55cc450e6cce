// SPDX-License-Identifier: GPL-3.0-or-later
// Which language a person chose for a file, kept for the next time, and for others in its folder.
// Languages by their names in the registry.
#pragma once

#include <QString>

namespace languages {

QString ChosenFor(const QString& path);      // empty: none was
QString ChosenInFolder(const QString& path); // the last choice for a file beside it; empty: none
void Remember(const QString& path, const QString& language);

// For scripts without a file, and where nothing tells; empty: generic SQL.
QString Default();
void SetDefault(const QString& language);

} // namespace languages
