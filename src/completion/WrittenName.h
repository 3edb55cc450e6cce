// SPDX-License-Identifier: GPL-3.0-or-later
// A name as a script has to write it.
#pragma once

#include "engine/analysis/SqlDialects.h"

#include <QString>

namespace completion {

// What opens the quotes of a name.
QChar QuoteOf(const engine::analysis::SqlDialect& dialect);

// In quotes if it needs them, or if somebody has begun it with one. A dialect that reads names in
// one case alone has the case of one that was given in quotes.
QString WrittenName(const engine::analysis::SqlDialect& dialect, const QString& name, QChar begun,
                    bool wasQuoted);

} // namespace completion
