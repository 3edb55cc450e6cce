// SPDX-License-Identifier: GPL-3.0-or-later
// SqlWords: the few words that shape statements and blocks, told from all others by their length
// and first letter before they are compared.
#pragma once

#include "engine/analysis/SqlScanner.h"

#include <span>
#include <string_view>

namespace engine::analysis {

enum class SqlWord : std::uint8_t
{
    None, // any other word
#define ZN_SQL_WORD(name, text) name,
#include "engine/analysis/SqlWords.def"
#undef ZN_SQL_WORD
};

// All of them but None, in their order.
std::span<const std::string_view> SqlWordTexts();

// The word that a token is, in any letter case.
SqlWord WordOf(const TextSpans& text, const Token& token);

} // namespace engine::analysis
