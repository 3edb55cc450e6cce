// SPDX-License-Identifier: GPL-3.0-or-later
// What the tokens of names say. Positions count bytes.
#pragma once

#include "engine/analysis/SqlScanner.h"

#include <string>

namespace completion {

// The length of the tag that a text in dollars begins or ends with, 0 for any other token: what
// stands between two of them is read as code.
long DollarTag(const engine::analysis::TextSpans& text, const engine::analysis::Token& token);

// The name at the place in UTF-8, its quotes taken off and doubled ones made one.
std::string PlainName(const engine::analysis::TextSpans& text, long start, long end);

// Whether it stands there in quotes.
bool IsQuotedName(const engine::analysis::TextSpans& text, long start);

} // namespace completion
